// A picture as a whole: what is on it and where, and the lines under it.
#include <gtest/gtest.h>

#include "aiuto/AmbienteProva.h"
#include "aiuto/CartellaProva.h"
#include "aiuto/SuperficieRegistra.h"
#include "data/FileTesto.h"
#include "data/Panels.h"
#include "graph/BloccoImpostazioni.h"
#include "graph/FabbricaQuadri.h"
#include "graph/PiedeQuadro.h"
#include "graph/TinteQuadro.h"
#include "records/ColoriGrafico.h"

namespace orvane::prova {
namespace {

using Righe = std::vector<std::string>;

LimFacRecord Piatto(int16_t cent) {
    LimFacRecord limite;
    limite.Freq = {100e3F, 40e6F};
    limite.Value = {cent, cent};
    return limite;
}

/// Two lines from 1 to 5 MHz, 10 dB and one sample of 50 dB at 2 MHz, under a limit of 45 dB.
struct QuadroTest : ::testing::Test {
    AmbienteProva ambiente;
    CartellaProva cartella;
    Scrivania s{.ambiente = ambiente, .albero = AlberoDati(cartella.Percorso())};
    MisuraAperta misura;
    SetupRecord setup = SetupDefault();

    QuadroTest() {
        ApplicaEnv(s.env, false);
        misura.nome = misura.base = "M";
        for (size_t i = 0; i < 2; ++i) {
            ScanLine& riga = misura.header.Scan.Righe[i];
            riga.Start = i == 0 ? 1 : 3;
            riga.Stop = riga.Start + 2;
            riga.Step = 0.005;
            riga.RbwId = 2;
            riga.Detector[0] = riga.Detector[1] = 1;
        }
        misura.detector[0] = misura.detector[1] = true;
        misura.startMhz = 1;
        misura.stopMhz = 5;
        auto traccia = std::make_shared<SweepTrace>();
        for (int i = 0; i <= 400; ++i) {
            const int16_t livello = i == 100 ? 5000 : 1000;
            traccia->push_back({.freqMhz = 1 + 0.01 * i, .livello = {livello, livello}});
        }
        misura.traccia = traccia;
        misura.tabelle.slot[kPrimoLimite] = Piatto(4500);
        setup.LimitName[0] = "Own QP";
        setup.LimitOn[0] = 1;
    }
    ContenutoQuadro Componi() { return ComponiQuadro(misura, setup, s.env); }
    SuperficieRegistra Disegna(const ContenutoQuadro& quadro, const StileQuadro& stile,
                               double larghezza = 900, double altezza = 560) {
        SuperficieRegistra superficie(larghezza, altezza);
        DisegnaQuadro(superficie, quadro, setup, s.env, quadro.intero, stile);
        EXPECT_EQ(superficie.ritagli, 0);
        return superficie;
    }
};

const SuperficieRegistra::TestoFatto* Trova(const SuperficieRegistra& s, const std::string& testo) {
    for (const auto& t : s.testi)
        if (t.testo == testo)
            return &t;
    return nullptr;
}

TEST_F(QuadroTest, PaperHasTracesLimitVerdictAndLegend) {
    const auto s2 = Disegna(Componi(), StileStampa(s.env, 11));
    ASSERT_FALSE(s2.rettangoli.empty());
    EXPECT_EQ(s2.rettangoli[0].colore, kCarta);
    for (const char* testo : {"M", "Peak", "QPeak", "Own QP"})
        EXPECT_TRUE(Trova(s2, testo)) << testo;
    const auto* insegna = Trova(s2, "QP +5.00 dB at 2.000 MHz");
    ASSERT_TRUE(insegna);
    EXPECT_EQ(insegna->colore, TintaGiudizio(Giudizio::Fail).testo);
    std::map<int32_t, int> spezzate;
    for (const auto& linea : s2.spezzate)
        ++spezzate[linea.penna.colore];
    for (const int32_t colore :
         {ColoreTraccia(s.env, DetectorKind::Peak), ColoreTraccia(s.env, DetectorKind::QPeak),
          s.env.GraphColors[colore::kLimiti]})
        EXPECT_EQ(spezzate[colore], 1);
}

TEST_F(QuadroTest, LegendAndBadgesOnlyWhereTheySaySomething) {
    misura.detector[1] = false;
    setup.LimitOn[0] = 0;
    const auto uno = Disegna(Componi(), StileStampa(s.env, 11));
    for (const char* testo : {"M", "Peak", "PASS", "FAIL", "---"})
        EXPECT_FALSE(Trova(uno, testo)) << testo;
}

TEST_F(QuadroTest, LimitsOfLinesAreCutToThemAndNotRepeated) {
    for (const char* nome : {"Line", "own qp"})
        ASSERT_TRUE(SalvaLimFac(
            s,
            [&] {
                TabelleLimFac t;
                t.slot[kPrimoLimite] = Piatto(3000);
                return t;
            }(),
            PercorsoLimite(nome), kPrimoLimite));
    ScanTable& righe = misura.header.Scan.Righe;
    for (size_t i = 0; i < 2; ++i) {
        righe[i].LimitOn = 1;
        righe[i].Limit = "Line";
    }
    ContenutoQuadro quadro = Componi();
    AggiungiLimitiRighe(s, quadro);
    ASSERT_EQ(quadro.limiti.size(), 3u);
    EXPECT_EQ(quadro.limiti[1].nome, "Line");
    EXPECT_EQ(quadro.limiti[2].nome, "") << "named once";
    EXPECT_EQ(quadro.limiti[1].colore, quadro.limiti[2].colore);
    EXPECT_EQ(quadro.limiti[2].soloFra, (CampoMhz{3, 5}));
    righe[0].Limit = "OWN QP";
    righe[1].LimitOn = 0;
    quadro = Componi();
    AggiungiLimitiRighe(s, quadro);
    EXPECT_EQ(quadro.limiti.size(), 1u) << "shown whole already";
}

TEST_F(QuadroTest, NothingIsTooSmallOrTooEmptyToDraw) {
    StileQuadro stile = StileStampa(s.env, 37);
    stile.blocco = Righe(60, "a line of settings that is far too wide for this");
    Disegna(Componi(), stile, 60, 40);
    Disegna({}, stile);
    setup.UnitId = 99;
    Disegna(Componi(), StileSchermo(s.env, true, 11));
}

TEST_F(QuadroTest, SettingsAreListedLineByLine) {
    misura.header.Setup.PulseLim = 1;
    misura.header.Setup.AncillaryKind = 1;
    misura.header.Scan.Righe[1].Smart = 1;
    misura.header.Scan.Righe[1].PreAmp = 1;
    misura.header.Scan.WorstMode = 1;
    misura.header.Scan.NumWorst = 7;
    setup.FactorOn[4] = 1;
    setup.FactorName[4] = "Cable";
    setup.FactorOn[5] = 1;
    setup.FactorName[5] = "NONE";
    s.albero.AssicuraCartella("Sweep\\M");
    ASSERT_TRUE(SalvaTesto(s, PercorsoCommento("M"), "\nA\tB\n\nlast \xC2\xB5\n\n"));
    EXPECT_EQ(BloccoImpostazioni(s, Componi(), setup),
              (Righe{"Start [MHz]  Stop [MHz]  Step   RBW    Detector          Hold Time  Min Att  "
                     "Pre Amp  Pre Sel",
                     "1            3           5 kHz  9 kHz  Peak QPeak        Lowest     0 dB     "
                     "OFF      OFF",
                     "3            5           5 kHz  9 kHz  Smart Peak QPeak  Lowest     0 dB     "
                     "ON       OFF",
                     "Pulse Limiter ON", "Ancillary = L2 KRV", "Nr. of Worst = 7",
                     "Trace Peak QPeak", "  Limits:", "    Own QP", "  Factors:", "    Cable",
                     "A   B", "", "last \xC2\xB5"}));
    misura.base = "W_03";
    const Righe scelto = BloccoImpostazioni(s, Componi(), setup);
    EXPECT_EQ(scelto[5], "Worst: 3 (Nr. of Worst = 7)");
    EXPECT_EQ(scelto[6], "Trace W_03 Peak QPeak");
}

TEST(PiedeQuadro, LinesShrinkGoToColumnsAndAreCountedAtLast) {
    struct Caso {
        size_t righe;
        std::string testo;
        size_t colonne;
        size_t scritte;
        std::string ultima;
    };
    const std::string lunga(100, 'x');
    const Caso casi[] = {
        {0, "", 1, 0, ""},
        {10, "short", 1, 10, "short"},
        {40, "short", 2, 40, "short"},
        {2, lunga + " " + lunga + " end", 1, 4, lunga + " end"},
        {200, lunga, 1, 26, "... (175 more lines)"},
    };
    for (const Caso& c : casi) {
        SuperficieRegistra superficie(900, 560);
        const PiedeQuadro piede = DisponiPiede(superficie, Righe(c.righe, c.testo), 11, 0.45);
        EXPECT_EQ(piede.colonne, c.colonne) << c.righe;
        EXPECT_LE(piede.altezza, 560 * 0.45) << c.righe;
        DisegnaPiede(superficie, piede, 0);
        ASSERT_EQ(superficie.testi.size(), c.scritte) << c.righe;
        for (const auto& t : superficie.testi) {
            EXPECT_GE(t.dove.y, 560 - piede.altezza);
            EXPECT_LE(t.dove.y + piede.passo, 560);
            EXPECT_LE(t.dove.x + superficie.DimensioneTesto(t.testo, piede.lettera).x, 900);
        }
        EXPECT_EQ(c.scritte > 0 ? superficie.testi.back().testo : "", c.ultima);
    }
}

TEST(FormatoDaPercorso, TheExtensionDecides) {
    EXPECT_EQ(FormatoDaPercorso("a.b/c.PNG"), FormatoImmagine::Png);
    EXPECT_EQ(FormatoDaPercorso("c.jpeg"), FormatoImmagine::Jpg);
    for (const char* nome : {"png", "a.png/b", "c.", "c.tif", ""})
        EXPECT_EQ(FormatoDaPercorso(nome), std::nullopt) << nome;
}

} // namespace
} // namespace orvane::prova
