// The stream of a sweep: its checks, its length, and every level in it.
#include <cstring>

#include "simulator/Banco.h"

namespace orvane::prova {
namespace {

constexpr std::string_view kFine = "SFD_END";

float Singolo(std::string_view byte, size_t dove) {
    float valore = 0;
    std::memcpy(&valore, byte.data() + dove, sizeof valore);
    return valore;
}

TEST(Sweep, EveryLevelIsTheSpectrumsOwn) {
    const struct {
        const char* modello;
        const char* prima; ///< command that chooses the input
        double startHz, stopHz, stepHz;
        const char* det;
        std::vector<int> quali;
        int rbw;
        double rbwHz;
        size_t passi;
        bool intestazione = false;
    } casi[] = {{"5520", "", 150e3, 30e6, 5e3, "P", {0}, 6, 9e3, 5971},
                {"5520,seed=7", "", 9e3, 150e3, 100, "PQRANC", {0, 1, 2, 3, 4, 5}, 7, 200, 1411},
                {"5520", "", 30, 1e3, 2.5, "PRA", {0, 2, 3}, 24, 10, 389},
                {"5520", "", 150e3, 1.15e6, 333.25, "SPQ", {0, 1}, 12, 9e3, 3001},
                {"K3X", "#S3PRR*", 30e6, 1e9, 100e3, "SQ", {1}, 10, 120e3, 9701},
                {"5520+5590", "", 6e9, 18e9, 1e6, "PN", {0, 4}, 9, 1e6, 12001},
                {"5520F,fw=1.43", "", 150e3, 30e6, 5e3, "QA", {1, 3}, 6, 9e3, 5971, true},
                {"GX2207F,fw=1.43", "", 150e3, 30e6, 5e3, "C", {5}, 6, 9e3, 5971, true}};
    for (const auto& c : casi) {
        SCOPED_TRACE(c.modello);
        Banco banco(c.modello);
        banco.Chiedi(c.prima);
        char comando[200];
        std::snprintf(comando, sizeof comando, "#SSFD %.10g;%.12g;%.10g;%s;1;%d;20;ON;OFF;0*",
                      c.startHz, c.stopHz, c.stepHz, c.det, c.rbw);
        const std::string flusso = banco.Chiedi(comando);
        const size_t inizio = 8 + (c.intestazione ? 32 : 0);
        ASSERT_EQ(flusso.size(), inizio + c.passi * c.quali.size() * 2 + kFine.size());
        EXPECT_EQ(flusso.substr(0, 8), "SFD=OK\r\n");
        EXPECT_TRUE(flusso.ends_with(kFine));

        const auto livelli = Decodifica(std::string_view(flusso).substr(inizio));
        const uint32_t seme = std::string_view(c.modello).ends_with("seed=7") ? 7 : 1;
        const CondizioniSpettro condizioni{
            .rbwHz = c.rbwHz, .attDb = 20, .preAmp = true, .seme = seme};
        for (size_t k = 0; k<c.passi; k += c.passi> 3000 ? 7 : 1)
            for (size_t d = 0; d < c.quali.size(); ++d)
                ASSERT_EQ(livelli[k * c.quali.size() + d],
                          LivelloSimulato((c.startHz + static_cast<double>(k) * c.stepHz) / 1e6,
                                          c.quali[d], condizioni))
                    << k << " " << d;
    }
}

TEST(Sweep, NegativeLevelsKeepTheOddEncoding) {
    // Far below what a wide filter reads: some levels are negative.
    const std::string flusso =
        Banco().Chiedi("#SSFD 1000000;1001000;0.5;A;1;24;0;ON;OFF;0*").substr(8);
    const auto livelli = Decodifica(flusso.substr(0, flusso.size() - kFine.size()));
    const CondizioniSpettro condizioni{.rbwHz = 10, .attDb = 0, .preAmp = true, .seme = 1};
    ASSERT_EQ(livelli.size(), 2001u);
    EXPECT_LT(livelli[0], 0);
    EXPECT_EQ(livelli[0], LivelloSimulato(1.0, 3, condizioni));
    const int grezzo = static_cast<uint8_t>(flusso[0]) + 256 * static_cast<uint8_t>(flusso[1]);
    EXPECT_EQ(grezzo, livelli[0] + 65535);
}

TEST(Sweep, A5520FTellsItsStep) {
    const std::tuple<const char*, const char*, float, size_t> casi[] = {
        {"5520F", "#SSFDS", 5000, 5971},
        {"5520F,fw=1.43", "#SSFD", 5000, 5971},
        {"5520F,fw=1.44", "#SSFD", 4500, 6634}};
    for (const auto& [modello, comando, passo, passi] : casi) {
        const std::string flusso = Banco(modello).Chiedi(
            std::string(comando) + " 150000;30000000;5000;P;1;6;10;OFF;OFF;0*");
        EXPECT_EQ(flusso.size(), 8 + 32 + passi * 2 + kFine.size()) << modello;
        EXPECT_EQ(Singolo(flusso, 8), passo) << modello;
    }
}

TEST(Sweep, AFrequencyTableTakesThePlaceOfTheStep) {
    Banco banco;
    const char* comando = "#SSFD 150000;30000000;0;P;1;6;10;OFF;OFF;0*";
    EXPECT_EQ(banco.Chiedi(comando), "SFD=ERR 2\r\n");
    banco.Chiedi("#SSFW 0,150000*");
    EXPECT_EQ(banco.Chiedi(comando), "SFD=ERR 2\r\n") << "one entry is no table";
    banco.Chiedi("#SSFW 1,20500000*#SSFW 2,1000000.5*");
    const std::string flusso = banco.Chiedi(comando);
    const auto livelli = Decodifica(flusso.substr(8, 6));
    const CondizioniSpettro condizioni;
    EXPECT_EQ(livelli, (std::vector<int16_t>{LivelloSimulato(0.15, 0, condizioni),
                                             LivelloSimulato(20.5, 0, condizioni),
                                             LivelloSimulato(1.0000005, 0, condizioni)}));
    EXPECT_EQ(flusso.substr(14), kFine);
}

TEST(Sweep, TheFirstWrongFieldIsTold) {
    const struct {
        const char* campi;
        int errore;
        const char* modello = "5520";
    } casi[] = {{"x;30000000;5000;P;1;6;10;OFF;OFF;0", 1},
                {"9;30000000;5000;P;1;6;10;OFF;OFF;0", 1},
                {"150000;30200000;5000;P;1;6;10;OFF;OFF;0", 1},
                {"30000000;150000;5000;P;1;6;10;OFF;OFF;0", 1},
                {"30000000;40000000;5000;P;1;10;10;OFF;OFF;0", 1, "K6X"},
                {"150000;30000000;-1;P;1;6;10;OFF;OFF;0", 2},
                {"150000;30000000;5000;;1;6;10;OFF;OFF;0", 3},
                {"150000;30000000;5000;QP;1;6;10;OFF;OFF;0", 3},
                {"150000;30000000;5000;P;-1;6;10;OFF;OFF;0", 4},
                {"150000;30000000;5000;P;1;13;10;OFF;OFF;0", 5},
                {"150000;30000000;5000;P;1;9;10;OFF;OFF;0", 5},
                {"30000000;900000000;5000;P;1;7;10;OFF;OFF;0", 5, "5520+5540"},
                {"150000;30000000;5000;P;1;6;15;OFF;OFF;0", 6},
                {"150000;30000000;5000;P;1;6;10;0;OFF;0", 7},
                {"150000;30000000;5000;P;1;6;10;OFF;on;0", 8},
                {"7000000000;8000000000;1000000;P;1;9;10;OFF;ON;0", 8, "5520+5590"},
                {"150000;30000000;5000;P;1;13;15;0;0;0", 5}};
    for (const auto& caso : casi) {
        Banco banco(caso.modello);
        EXPECT_EQ(banco.Chiedi(std::string("#SSFD ") + caso.campi + "*"),
                  "SFD=ERR " + std::to_string(caso.errore) + "\r\n")
            << caso.modello << " " << caso.campi;
    }
}

TEST(Sweep, TheAnalyzerHeadsItsSamplesWithTheSpan) {
    Banco banco;
    banco.Chiedi("#SAFF1000e3,2000e3*#SRBW6*#SADT3*#SDIS100;96*#SAAT20*#SAPAON*");
    const std::string flusso = banco.Chiedi("#SAGO*");
    ASSERT_TRUE(flusso.starts_with("AGO=OK\r\n"));
    const std::string testa = flusso.substr(8, 48);
    EXPECT_EQ(Singolo(testa, 8), 1e6f);
    EXPECT_EQ(Singolo(testa, 12), 2e6f);
    const float passo = Singolo(testa, 16);
    EXPECT_EQ(passo, 2000.0f);
    EXPECT_EQ(Decodifica(testa.substr(26, 2)).front(), 100) << "whole tens of dB";
    const auto livelli = Decodifica(flusso.substr(8 + 48));
    ASSERT_EQ(livelli.size(), 501u);
    const CondizioniSpettro condizioni{.rbwHz = 9e3, .attDb = 20, .preAmp = true, .seme = 1};
    for (size_t k = 0; k < livelli.size(); ++k)
        ASSERT_EQ(livelli[k], LivelloSimulato(1 + static_cast<double>(k) * 0.002, 3, condizioni));
}

} // namespace
} // namespace orvane::prova
