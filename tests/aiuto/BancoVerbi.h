// The verbs on a bench: over the simulated receiver, with what they print kept apart.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "aiuto/BancoSimulato.h"
#include "base/Testo.h"
#include "verbs/Verbo.h"

namespace orvane::prova {

struct BancoVerbi : ::testing::Test {
    BancoSimulato b;
    Scrivania& s = b.scrivania;
    std::ostringstream dati;
    std::ostringstream messaggi;
    bool interrotto = false;
    VistaTerminale vista{b.ambiente, messaggi, false, false};
    Banco banco{.scrivania = s,
                .ricevitore = b.ricevitore,
                .corsa = b.statoCorsa,
                .vista = vista,
                .catalogo = b.catalogo,
                .linkScelto = true,
                .interrotto = interrotto,
                .dati = dati,
                .messaggi = messaggi};

    EsitoVerbo Esegui(const std::string& verbo, const std::vector<std::string>& parole) {
        dati.str("");
        messaggi.str("");
        return TrovaVerbo(verbo)->esegui(banco, parole);
    }
    /// Words parted by "|", the verb first.
    EsitoVerbo Esegui(const std::string& riga) {
        const auto parole = Dividi(riga, '|');
        return Esegui(parole[0], {parole.begin() + 1, parole.end()});
    }
    /// Whether this was printed as a line of its own.
    bool Ha(const std::string& riga) const {
        return Contiene("\n" + dati.str(), "\n" + riga + "\n");
    }
    /// Whether standard output holds all of these.
    void DiceTutte(std::initializer_list<const char*> parti) const {
        for (const char* parte : parti)
            EXPECT_TRUE(Contiene(dati.str(), parte)) << parte << ": " << dati.str();
    }
};

} // namespace orvane::prova
