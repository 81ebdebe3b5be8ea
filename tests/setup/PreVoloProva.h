// A bench for the checks before a run: a receiver identified, and a table of one line.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "aiuto/BancoSimulato.h"
#include "data/TabelleLimFac.h"
#include "setup/PreVolo.h"
#include "setup/TabellaScan.h"

namespace orvane::prova {

/// A bench with a table of one line, and the receiver identified.
struct BancoPreVolo : BancoSimulato {
    explicit BancoPreVolo(const char* modello, double start = 0.15, double stop = 30)
        : BancoSimulato({.modello = modello}) {
        scrivania.env.ScanPanelPath = kPannelloEST;
        EXPECT_TRUE(RiconosciRicevitore(ricevitore, motivo)) << motivo;
        Riga(0, start, stop);
    }
    ScanLine& Riga(size_t i, double start, double stop) {
        ScanLine& riga = scan.Righe[i];
        ImpostaLineaDefault(riga, 0);
        riga.Start = start;
        riga.Stop = stop;
        riga.RbwId = DetRBWDefault(start, stop);
        riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
        return riga;
    }
    ScanLine& Smart(size_t i, const char* limite, const char* detector = "Q") {
        ScanLine& riga = scan.Righe[i];
        riga.Smart = 1;
        riga.Detector = *LeggiDetector(detector);
        riga.LimitOn = limite ? 1 : 0;
        riga.Limit = limite ? limite : "NONE";
        return riga;
    }
    /// A limit or factor of so many points, by the slot's kind.
    LimFacRecord& Curva(const char* nome, int punti, int slot = kPrimoLimite) {
        tabella = {};
        for (size_t i = 0; i < static_cast<size_t>(punti); ++i)
            tabella.Freq[i] = 9e3f * static_cast<float>(i + 1);
        return Salva(nome, slot);
    }
    LimFacRecord& Salva(const char* nome, int slot = kPrimoLimite) {
        TabelleLimFac tabelle;
        tabelle.slot[static_cast<size_t>(slot)] = tabella;
        EXPECT_TRUE(SalvaLimFac(scrivania, tabelle,
                                slot == kPrimoLimite ? PercorsoLimite(nome) : PercorsoFattore(nome),
                                slot));
        return tabella;
    }
    std::vector<Riscontro> Guarda(const Rispondi& rispondi = {}) {
        return EsaminaScan({.tabella = scan.Righe,
                            .modello = ricevitore.modello,
                            .caps = ricevitore.caps,
                            .setup = scrivania.setup,
                            .albero = scrivania.albero,
                            .rigaComando = ambiente.RigaComando()},
                           rispondi);
    }
    bool Controlla(int runKind = 0) {
        PreVolo volo{.scrivania = scrivania,
                     .ricevitore = ricevitore,
                     .scan = scan,
                     .vista = vista,
                     .misura = "M",
                     .motivo = {},
                     .runKind = runKind};
        const bool bene = ControlliSweep(volo);
        motivo = volo.motivo;
        return bene;
    }
    SetupRecord& setup = scrivania.setup;
    ReceiverModel& m = ricevitore.modello;
    LimFacRecord tabella;
    std::string motivo;
};

} // namespace orvane::prova
