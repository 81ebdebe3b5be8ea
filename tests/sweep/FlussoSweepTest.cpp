#include "sweep/FlussoSweep.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstring>

namespace orvane {
namespace {

using Flag = std::array<int16_t, kNumDetector>;

void Metti(Accumulo& dati, std::string_view byte) {
    const auto dove = dati.Spazio(byte.size());
    std::memcpy(dove.data(), byte.data(), byte.size());
    dati.Aggiunti(byte.size());
}

std::string Coppia(uint16_t grezzo) {
    return {static_cast<char>(grezzo & 0xFF), static_cast<char>(grezzo >> 8)};
}

std::string Intestazione(float hz) {
    std::string testo(32, '\x55');
    const auto bit = std::bit_cast<uint32_t>(hz);
    for (int i = 0; i < 4; ++i)
        testo[static_cast<size_t>(i)] = static_cast<char>(bit >> (8 * i));
    return testo;
}

struct Ricevuto {
    LettoreFlusso::Stato stato;
    std::vector<SampleRecord> passi;
    std::optional<double> passo;
    int codice;
};

/// Feeds a stream in pieces of `pezzo` bytes.
Ricevuto Leggi(const std::string& stream, const Flag& detector, bool con5520F, size_t pezzo) {
    LettoreFlusso lettore(detector, con5520F);
    Accumulo dati;
    std::vector<SampleRecord> passi;
    for (size_t da = 0; da < stream.size(); da += pezzo) {
        Metti(dati, std::string_view(stream).substr(da, pezzo));
        lettore.Avanza(dati, [&](std::span<const SampleRecord> nuovi) {
            passi.insert(passi.end(), nuovi.begin(), nuovi.end());
        });
    }
    return {lettore.StatoAttuale(), passi, lettore.PassoAnnunciato(), lettore.CodiceErrore()};
}

TEST(LettoreFlusso, GivesTheSameStepsHoweverTheBytesAreSplit) {
    const Flag insiemi[] = {{1}, {1, 1}, {0, 1, 0, 1}, {1, 1, 1, 1, 1, 1}};
    for (const Flag& detector : insiemi) {
        for (const bool con5520F : {false, true}) {
            std::string stream = "SFD=OK\r\n" + (con5520F ? Intestazione(2500) : std::string());
            std::vector<SampleRecord> attesi(23);
            for (size_t k = 0; k < attesi.size(); ++k) {
                for (size_t d = 0; d < kNumDetector; ++d) {
                    if (detector[d] == 0)
                        continue;
                    // Some samples read "SF" and "D_": no end mark among them.
                    const auto grezzo = static_cast<uint16_t>(k % 5 == 3   ? 0x4653
                                                              : k % 5 == 4 ? 0x5F44
                                                                           : 997 * k + 31 * d);
                    stream += Coppia(grezzo);
                    attesi[k].Livello[d] = DecodificaLivello(static_cast<uint8_t>(grezzo & 0xFF),
                                                             static_cast<uint8_t>(grezzo >> 8));
                }
            }
            stream += "SFD_END";
            for (size_t pezzo = 1; pezzo <= stream.size(); ++pezzo) {
                const Ricevuto letto = Leggi(stream, detector, con5520F, pezzo);
                ASSERT_EQ(letto.stato, LettoreFlusso::Stato::Finito) << "pieces of " << pezzo;
                ASSERT_EQ(letto.passi.size(), attesi.size()) << "pieces of " << pezzo;
                for (size_t k = 0; k < attesi.size(); ++k)
                    ASSERT_EQ(letto.passi[k].Livello, attesi[k].Livello) << k << " of " << pezzo;
                ASSERT_EQ(letto.passo.has_value(), con5520F);
            }
        }
    }
}

TEST(LettoreFlusso, DropsAPartStepBeforeTheEndMarkAndWhatComesBehindIt) {
    const auto letto = Leggi("SFD=OK\r\n" + Coppia(100) + Coppia(200) + Coppia(300) + "SFD_ENDxyz",
                             {1, 1}, false, 100);
    EXPECT_EQ(letto.stato, LettoreFlusso::Stato::Finito);
    ASSERT_EQ(letto.passi.size(), 1u);
    EXPECT_EQ(letto.passi[0].Livello[1], 200);
    EXPECT_EQ(letto.passi[0].Livello[2], kNessunLivello);
}

TEST(LettoreFlusso, ReadsRefusalsAndPassesOverLinesOfOtherCommands) {
    struct Caso {
        const char* stream;
        LettoreFlusso::Stato stato;
        int codice;
    };
    const Caso casi[] = {
        {"SFD=ERR 5\r\n", LettoreFlusso::Stato::Rifiutato, 5},
        {"SFD=ERR8\r\n", LettoreFlusso::Stato::Rifiutato, 8},
        {"SFD=ERR\r\n", LettoreFlusso::Stato::Rifiutato, 0},
        {"SFD=N/A\r\n", LettoreFlusso::Stato::Rifiutato, 0},
        {"SFD=ERR 99999999999\r\n", LettoreFlusso::Stato::Rifiutato, 1000},
        {"SBK=OK\r\nSFD=OK\r\nSFD_END", LettoreFlusso::Stato::Finito, 0},
        {"SFD=OK\r", LettoreFlusso::Stato::Riscontro, 0},
    };
    for (const Caso& caso : casi) {
        const auto letto = Leggi(caso.stream, {1}, false, 3);
        EXPECT_EQ(letto.stato, caso.stato) << caso.stream;
        EXPECT_EQ(letto.codice, caso.codice) << caso.stream;
    }
    const std::pair<int, const char*> parole[] = {{-1, ""},
                                                  {1, "set start or stop freq."},
                                                  {2, "set step freq."},
                                                  {3, "set detector"},
                                                  {4, "set Hold Time"},
                                                  {5, "set RBW"},
                                                  {6, "set MinAtt"},
                                                  {7, "set Preamp."},
                                                  {8, "set Presel."},
                                                  {9, ""}};
    for (const auto& [codice, testo] : parole)
        EXPECT_EQ(ParoleErroreSweep(codice), testo) << codice;
}

TEST(LettoreFlusso, RoundsTheStepOfThe5520FByItsSize) {
    EXPECT_EQ(ArrotondaPasso5520F(4500.0f), 0.0045);
    EXPECT_EQ(ArrotondaPasso5520F(4500.4f), 0.0045);
    EXPECT_EQ(ArrotondaPasso5520F(1.23456f), 0.00000123);
    EXPECT_EQ(ArrotondaPasso5520F(12.3456f), 0.0000123);
    EXPECT_EQ(ArrotondaPasso5520F(123.456f), 0.000123);
    EXPECT_EQ(ArrotondaPasso5520F(123456784.0f), 123.456784);
    // A step that is no step, or too fine to be told, changes nothing.
    for (const float hz : {-1.0f, 0.004f, NAN, INFINITY}) {
        const auto letto = Leggi("SFD=OK\r\n" + Intestazione(hz) + "SFD_END", {1}, true, 7);
        EXPECT_FALSE(letto.passo.has_value()) << hz;
        EXPECT_EQ(letto.stato, LettoreFlusso::Stato::Finito);
    }
}

TEST(LettoreFlusso, KeepsNoGarbageWhileItWaitsForTheAcknowledgement) {
    Accumulo dati;
    LettoreFlusso lettore({1}, false);
    const auto Aggiungi = [&](const std::string& testo) {
        std::copy(testo.begin(), testo.end(), dati.Spazio(testo.size()).begin());
        dati.Aggiunti(testo.size());
        return lettore.Avanza(dati, [](auto) {});
    };
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(Aggiungi(std::string(1000, 'x')), LettoreFlusso::Stato::Riscontro);
    EXPECT_LT(dati.Quanti(), 10000u);
    // A line end torn across two reads still ends the garbage.
    Aggiungi(std::string(10000, 'x') + "\r");
    EXPECT_EQ(Aggiungi("\nSFD=OK\r\nSFD_END"), LettoreFlusso::Stato::Finito);
}

} // namespace
} // namespace orvane
