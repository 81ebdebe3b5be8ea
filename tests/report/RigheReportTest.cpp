#include <gtest/gtest.h>

#include "MisuraProva.h"
#include "aiuto/AmbienteProva.h"
#include "report/GrigliaReport.h"
#include "report/RigheReport.h"

namespace orvane {
namespace {

using prova::BancoReport;
using prova::Campione;
using Celle = std::vector<std::string>;

struct Griglie : ::testing::Test {
    BancoReport banco;
    ReportModel model;
    prova::AmbienteProva ambiente;

    GrigliaReport Compila(bool invertita = false) {
        const FonteReport fonte = banco.Fonte(invertita);
        RaccogliRigheRep(model, fonte);
        GrigliaReport griglia = ImpostaGridReport(model, fonte);
        CompilaReport(griglia, model, fonte, ambiente);
        return griglia;
    }
    /// Cells of a row behind number and frequency, without their blanks.
    static Celle Riga(const GrigliaReport& griglia, size_t quale) {
        Celle celle;
        for (size_t c = 2; c < griglia.righe.at(quale).celle.size(); ++c) {
            const std::string& cella = griglia.righe[quale].celle[c];
            celle.push_back(cella.substr(cella.find_first_not_of(' ')));
        }
        return celle;
    }
};

TEST_F(Griglie, MarginDecidesTheRows) {
    struct Caso {
        float margine;
        double livello;
        bool riga;
        bool invertita = false;
    };
    constexpr Caso casi[] = {
        {0, 60.00, true},         {0, 59.99, false},       {6, 54.00, true},
        {6, 53.99, false},        {6.1f, 53.90, true},     {6.1f, 53.89, false},
        {-3, 63.00, true},        {-3, 62.99, false},      {999, -199.99, true},
        {6, 66.00, true, true},   {6, 66.01, false, true}, {-3, 57.00, true, true},
        {-3, 57.01, false, true},
    };
    banco.Limite(0, "A", {{1e6f, 60}, {9e6f, 60}});
    for (const Caso& caso : casi) {
        SCOPED_TRACE(testing::Message() << caso.margine << " " << caso.livello);
        // At the last point of a limit, and beyond it, no margin makes a row.
        banco.Traccia({Campione(0.5, 99), Campione(2, caso.livello), Campione(9, 99)});
        for (int16_t unita = 0; unita < 8; ++unita) {
            banco.setup.UnitId = unita;
            model.ReportMargin = caso.margine;
            EXPECT_EQ(Compila(caso.invertita).righe.size(), caso.riga ? 1u : 0u) << unita;
        }
    }
}

TEST_F(Griglie, LaterHitOfAFrequencyStands) {
    banco.Limite(0, "A", {{1e6f, 60}, {9e6f, 60}});
    banco.Traccia({Campione(2, 62), Campione(2 + 1e-10, 61), Campione(2, 10), Campione(3, 60)});
    const GrigliaReport griglia = Compila();
    ASSERT_EQ(griglia.righe.size(), 2u);
    EXPECT_EQ(Riga(griglia, 0)[0], "61.00");
    EXPECT_EQ(UBoundArrFreqLevLimRep(model), 1);
}

TEST_F(Griglie, SecondLimitAloneComesFirst) {
    banco.Limite(1, "Second", {{1e6f, 60}, {9e6f, 60}});
    banco.Traccia({Campione(2, 61)});
    const GrigliaReport griglia = Compila();
    EXPECT_EQ(model.ArrFreqLevLimRep.at(0).Limit[0], 60.0f);
    EXPECT_EQ(griglia.colonne[3].nome, "Second");
    EXPECT_EQ(Riga(griglia, 0), (Celle{"61.00", "60.00", "1.00"}));
    EXPECT_FALSE(griglia.LBColorLim[0].visibile);
    EXPECT_EQ(griglia.LBColorLim[1].sinistra, 1300 + 500 + 1200 + 1000);
}

TEST_F(Griglie, ValuesThatAreNotThere) {
    banco.Limite(0, "A", {{5e6f, 60}, {9e6f, 60}});
    banco.Limite(1, "B", {{1e6f, 50}, {9e6f, 50}});
    banco.Fattore(0, "F", {{1e6f, 1}, {2e6f, 3}, {4e6f, 3}});
    banco.Fattore(6, "G", {});
    banco.Traccia({Campione(1, 50), Campione(4, 51), Campione(5, 61)});
    const GrigliaReport griglia = Compila();
    EXPECT_EQ(Riga(griglia, 0), (Celle{"50.00", "---", "---", "50.00", "0.00", "1.00", "---"}));
    EXPECT_EQ(Riga(griglia, 1), (Celle{"51.00", "---", "---", "50.00", "1.00", "---", "---"}));
    EXPECT_EQ(Riga(griglia, 2), (Celle{"61.00", "60.00", "1.00", "50.00", "11.00", "---", "---"}));
    EXPECT_EQ(griglia.colonne.size(), 3u + 2 * 2 + 2);
    banco.setup.LimitOn = {};
    EXPECT_TRUE(Compila().righe.empty());
}

TEST_F(Griglie, TwoDetectors) {
    banco.Limite(0, "A", {{1e6f, 60}, {9e6f, 60}});
    banco.Limite(1, "B", {{1e6f, 50}, {9e6f, 50}});
    CampioneTraccia entrambi = Campione(2, 61);
    entrambi.livello[3] = 4999;
    // No detector near its own limit; both; only the second; the second without the first.
    banco.Traccia(
        {Campione(1.5, 55), entrambi, Campione(3, 55), Campione(4, 51, DetectorKind::Avg)});
    model = {.ReportDetectorLim1 = 0, .ReportDetectorLim2 = 3, .tipo = TipoReport::DueDetector};
    GrigliaReport griglia = Compila();
    EXPECT_EQ(UBoundArrFreqLevLimRepDSD(model), 3);
    ASSERT_EQ(griglia.righe.size(), 2u);
    EXPECT_EQ(Riga(griglia, 0), (Celle{"61.00", "60.00", "1.00", "50.00", "---"}));
    EXPECT_EQ(Riga(griglia, 1), (Celle{"---", "---", "---", "50.00", "1.00"}));
    EXPECT_EQ(griglia.righe[1].celle[0], "2");

    model.tipo = TipoReport::DueDetectorFull;
    griglia = Compila();
    EXPECT_EQ(Riga(griglia, 0), (Celle{"61.00", "60.00", "1.00", "49.99", "50.00", "---"}));
    EXPECT_EQ(Riga(griglia, 1), (Celle{"---", "---", "---", "51.00", "50.00", "1.00"}));

    model.tipo = TipoReport::DueDetector;
    banco.setup.LimitOn[0] = 0;
    EXPECT_EQ(Riga(Compila(), 0), (Celle{"51.00", "50.00", "1.00"}));
}

TEST_F(Griglie, PositionsOfAMastTableMeasure) {
    banco.Limite(0, "A", {{1e6f, 60}, {9e6f, 60}});
    CampioneTraccia con = Campione(2, 61);
    con.mast = 95;
    con.table = 7;
    banco.Traccia({con, Campione(3, 61)});
    EXPECT_EQ(Compila().colonne.size(), 5u);
    banco.misura.header.Setup.AncillaryKind = 5;
    const GrigliaReport griglia = Compila();
    EXPECT_EQ(griglia.colonne[5].intestazione, "Mast \r[cm]");
    EXPECT_EQ(griglia.righe[0].celle[5], "   095");
    EXPECT_EQ(Riga(griglia, 0)[4], "007");
    EXPECT_EQ(Riga(griglia, 1)[3], "---");
}

/// Every look at the clock takes a while.
struct AmbienteLento : prova::AmbienteProva {
    mutable double passati = 0;
    double Adesso() const override { return passati += 0.011; }
};

TEST_F(Griglie, CancelKeepsTheRowsSoFar) {
    banco.Limite(0, "A", {{1e6f, 60}, {9e6f, 60}});
    SweepTrace traccia;
    for (int i = 0; i < 100; ++i)
        traccia.push_back(Campione(2 + i * 0.01, 61));
    banco.Traccia(traccia);
    AmbienteLento lento;
    size_t turni = 0;
    GrigliaReport griglia;
    CompilaReport1Det(griglia, model, banco.Fonte(), lento, [&](size_t fatte, size_t tutte) {
        EXPECT_EQ(tutte, 100u);
        EXPECT_TRUE(model.ReportCompiling);
        EXPECT_GE(fatte, 9 * ++turni);
        model.ReportCancelRequested = turni == 3;
    });
    EXPECT_EQ(turni, 3u);
    EXPECT_TRUE(griglia.tagliata && model.tagliato);
    EXPECT_FALSE(model.ReportCompiling || model.ReportCancelRequested);
    EXPECT_GE(griglia.righe.size(), 27u);
    EXPECT_LT(griglia.righe.size(), 40u);
}

TEST_F(Griglie, FrequencyTableOfTheRows) {
    banco.setup.UnitId = 0;
    banco.Limite(0, "A", {{1e6f, 60}, {9e8f, 60}});
    SweepTrace traccia;
    for (int i = 0; i < 203; ++i)
        traccia.push_back(Campione(2 + i, 61.25));
    banco.Traccia(traccia);
    const GrigliaReport griglia = Compila();
    bool intera = true;
    const FrequencyTable tabella = TabellaDaGriglia(griglia, banco.Fonte(), intera);
    EXPECT_FALSE(intera);
    EXPECT_EQ(tabella.Elementi[201].Freq, 203);
    EXPECT_EQ(tabella.Elementi[0].Level, 6125);
}

TEST(FormatiReport, Numbers) {
    struct Caso {
        float livello;
        const char* testo;
    };
    constexpr Caso casi[] = {
        {-123.456f, "-123.46"}, {-100, "-100.00"},    {-99.99f, " -99.99"},  {-10, " -10.00"},
        {-9.99f, "  -9.99"},    {0, "   0.00"},       {-0.001f, "   0.00"},  {9.999f, "  10.00"},
        {10, "  10.00"},        {100, " 100.00"},     {1234.5f, " 1234.50"}, {-100.01f, "-100.01"},
        {-10.01f, " -10.01"},   {-9.999f, " -10.00"}, {-0.01f, "  -0.01"},   {9.99f, "   9.99"},
        {99.99f, "  99.99"},    {99.999f, " 100.00"}, {-99.999f, "-100.00"}};
    for (const Caso& caso : casi)
        EXPECT_EQ(FormattaLivelloRep(caso.livello), caso.testo);
    EXPECT_EQ(FormattaFreqRep(0.15, 9.99), "0.15");
    EXPECT_EQ(FormattaFreqRep(0.15 + 3 * 0.0045, 10), " 0.1635");
    EXPECT_EQ(FormattaFreqRep(9.5, 1234567), "      9.5");
    EXPECT_EQ(FormattaFreqRep(10, 10), "10");
    EXPECT_EQ(FormattaFreqRep(12345678.25, 12345678.25), "12345678.25");
    EXPECT_EQ(FormattaFreqRep(9.999999999, 9.999999999), "10");
    EXPECT_EQ(FormattaIntRep(7), "   007");
    EXPECT_EQ(FormattaIntRep(-7), "   -007");
}

TEST(FormatiReport, NamesAreCut) {
    const auto dieci = [](std::string_view t) { return 10.0 * static_cast<double>(t.size()); };
    EXPECT_EQ(TagliaTestoWidth("12345", 50, dieci), "12345");
    EXPECT_EQ(TagliaTestoWidth("123456", 50, dieci), "12345...");
    EXPECT_EQ(PrimiCaratteri("Größe", 4), "Größ");
}

} // namespace
} // namespace orvane
