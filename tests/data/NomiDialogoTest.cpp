// Names typed into file dialogs.
#include "data/NomiDialogo.h"

#include "aiuto/AmbienteProva.h"

namespace orvane::prova {
namespace {

TEST(NomiDialogoTest, APlusAnywhereIsRefused) {
    AmbienteProva ambiente;
    EXPECT_TRUE(ControllaNomeDialogo(ambiente, "Limits\\EN55011.5SL"));
    EXPECT_TRUE(ambiente.riquadri.empty());
    EXPECT_FALSE(ControllaNomeDialogo(ambiente, "Limits\\A+B.5SL"));
    EXPECT_FALSE(ControllaNomeDialogo(ambiente, "+"));
    ASSERT_EQ(ambiente.riquadri.size(), 2u);
    EXPECT_EQ(ambiente.riquadri[0].testo, "Not valid name\rA+B");
    EXPECT_EQ(ambiente.riquadri[0].icona, Icona::Esclamazione);
}

TEST(NomiDialogoTest, TheLengthIsMeasuredFourShortOfTheLimitButCutAtIt) {
    const std::string a(6, 'a');
    const std::string accenti = "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9"; // six letters
    struct {
        std::string nome;
        int limite;
        std::string esito;
        std::string detto; ///< the name in the box; empty for none
    } const casi[] = {
        {a + ".EST", 10, a + ".EST", ""},
        {a + "b.EST", 10, a + "b.EST", a + "b"}, // one too long, and not yet cut
        {a + a + ".EST", 10, a + "aaaa.EST", a + "aaaa"},
        {"Panels\\" + a + a + ".EST", 10, "Panels\\" + a + "aaaa.EST", a + "aaaa"},
        {a + a, 10, a + "aaaa", a + "aaaa"},
        {accenti + ".EST", 10, accenti + ".EST", ""},
        {accenti + ".EST", 5, accenti.substr(0, 10) + ".EST", accenti.substr(0, 10)},
        {std::string(300, 'x') + ".EAM", 60, std::string(60, 'x') + ".EAM", std::string(60, 'x')},
    };
    for (const auto& caso : casi) {
        AmbienteProva ambiente;
        EXPECT_EQ(ControllaLunghezzaNome(ambiente, caso.nome, caso.limite, ModoDialogo::Salva),
                  caso.esito);
        EXPECT_EQ(ambiente.riquadri.size(), caso.detto.empty() ? 0u : 1u) << caso.nome;
        if (!caso.detto.empty()) {
            EXPECT_EQ(ambiente.riquadri[0].testo, "The name as been shortened in\r" + caso.detto);
            EXPECT_EQ(ambiente.riquadri[0].titolo, "5520UT SAVE FILE");
        }
    }
}

TEST(NomiDialogoTest, ATooLongNameToLoadComesToNothing) {
    AmbienteProva ambiente;
    EXPECT_EQ(ControllaLunghezzaNome(ambiente, "abcdef.EST", 10, ModoDialogo::Carica),
              "abcdef.EST");
    EXPECT_TRUE(ambiente.riquadri.empty());
    EXPECT_EQ(ControllaLunghezzaNome(ambiente, "abcdefg.EST", 10, ModoDialogo::Carica), "");
    ASSERT_EQ(ambiente.riquadri.size(), 1u);
    EXPECT_EQ(ambiente.riquadri[0].testo, "File name too long");
    EXPECT_EQ(ambiente.riquadri[0].titolo, "5520UT OPEN FILE");
}

} // namespace
} // namespace orvane::prova
