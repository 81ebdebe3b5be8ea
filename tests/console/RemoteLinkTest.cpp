#include "console/RemoteLink.h"

#include <gtest/gtest.h>

#include "aiuto/BancoSimulato.h"

namespace orvane {
namespace {

struct DuePorte : CatalogoPorte {
    std::vector<PortaCom> Elenca() override {
        return {{"Communications Port (COM1)", "/dev/a"}, {"Bluetooth link (COM7)", "/dev/b"}};
    }
};

struct RemoteLinkTest : testing::Test {
    void SetUp() override {
        banco.scrivania.env.LinkKind = 1;
        banco.scrivania.env.LinkPort = 7;
        banco.porta.link.TipoLink = 1;
        banco.porta.link.NumeroCom = 7;
        SalvaPanelEPN(banco.scrivania, kPannelloEPN);
    }
    /// What the file holds, as the next start would read it.
    EnvRecord SuDisco() {
        EnvRecord env;
        EXPECT_TRUE(LeggiRecord(banco.File(std::string(kPannelloEPN)), env));
        return env;
    }
    prova::BancoSimulato banco;
    DuePorte porte;
};

TEST_F(RemoteLinkTest, ListsThePortsAndFindsTheCurrentOne) {
    EXPECT_EQ(ApriRemoteLink(banco.scrivania, banco.porta.link, porte).scelta, 1);
    EXPECT_TRUE(banco.scrivania.albero.Esiste("Panels\\TMP.TMP"));
    banco.porta.link.NumeroCom = 12;
    const auto quadro = ApriRemoteLink(banco.scrivania, banco.porta.link, porte);
    EXPECT_EQ(quadro.scelta, -1);
    EXPECT_EQ(quadro.testoPorta, "12");
}

TEST_F(RemoteLinkTest, EachChoiceIsOnDiskAtOnceAndOkKeepsIt) {
    ApriRemoteLink(banco.scrivania, banco.porta.link, porte);
    OptLink(banco.scrivania, banco.porta.link, 0);
    EXPECT_EQ(SuDisco().LinkKind, 0);
    ComboPortDevice(banco.scrivania, banco.porta.link, "Communications Port (COM1)");
    EXPECT_EQ(SuDisco().LinkPort, 1);
    EXPECT_EQ(banco.porta.link.NumeroCom, 1);
    for (const char* nome : {"no number here", "none (COM)", "zero (COM0)", "Bad (COM-3)"}) {
        ComboPortDevice(banco.scrivania, banco.porta.link, nome);
        EXPECT_EQ(SuDisco().LinkPort, 1) << nome;
    }
    ConfermaRemoteLink(banco.scrivania);
    EXPECT_FALSE(banco.scrivania.albero.Esiste("Panels\\TMP.TMP"));
    EXPECT_EQ(SuDisco().LinkKind, 0);
}

TEST_F(RemoteLinkTest, CancelPutsTheWholeEnvironmentBack) {
    ApriRemoteLink(banco.scrivania, banco.porta.link, porte);
    OptLink(banco.scrivania, banco.porta.link, 0);
    DefaultRemoteLink(banco.scrivania, banco.porta.link);
    EXPECT_EQ(SuDisco().LinkPort, 1);
    RipristinaRemoteLink(banco.scrivania, banco.porta.link);
    EXPECT_EQ(SuDisco().LinkKind, 1);
    EXPECT_EQ(SuDisco().LinkPort, 7);
    EXPECT_EQ(banco.porta.link.NumeroCom, 7);
    EXPECT_FALSE(banco.scrivania.albero.Esiste("Panels\\TMP.TMP"));
}

} // namespace
} // namespace orvane
