// However a run ends, it leaves no file and no port open behind it.
#include <gtest/gtest.h>

#include <filesystem>

#include "aiuto/BancoSimulato.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

using prova::BancoSimulato;

long Aperti() {
    const std::filesystem::directory_iterator cartella("/proc/self/fd");
    return std::distance(begin(cartella), end(cartella));
}

TEST(ManiglieTest, NoEndOfARunLeavesAnyOpen) {
    const struct {
        const char* nome;
        Capriccio capriccio;
        EsitoCorsa esito;
        bool ferma; ///< at the first step
    } casi[] = {
        {"whole",
         {.tipo = Capriccio::Tipo::Testo, .comando = "?UHT", .testo = "UHT=25"},
         EsitoCorsa::Compiuta,
         false},
        {"stop",
         {.tipo = Capriccio::Tipo::Testo, .comando = "?UHT", .testo = "UHT=25"},
         EsitoCorsa::Fermata,
         true},
        {"silence",
         {.tipo = Capriccio::Tipo::Muto, .comando = "SSFD"},
         EsitoCorsa::GuastoLink,
         false},
        {"refusal",
         {.tipo = Capriccio::Tipo::Testo, .comando = "SSFD", .testo = "SFD=ERR 5"},
         EsitoCorsa::GuastoLink,
         false},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.nome);
        BancoSimulato banco({.byteAlSecondo = kByteAlSecondoLinea});
        ImpostaBanda(banco.scan.Righe[0], TabellaBande()[static_cast<size_t>(TrovaBanda("B"))], 0);
        banco.scan.Righe[0].Stop = 0.65;
        banco.simulato.Aggiungi(caso.capriccio);
        banco.vista.alPasso = [&] {
            if (caso.ferma)
                ChiediStop(banco.statoCorsa);
        };
        const long prima = Aperti();
        for (const char* misura : {"M", "N", "O"})
            EXPECT_EQ(ClickExecuteSweep(banco.corsa, misura), caso.esito)
                << banco.statoCorsa.motivo;
        EXPECT_EQ(Aperti(), prima);
        EXPECT_FALSE(banco.porta.Aperta());
    }
}

} // namespace
} // namespace orvane
