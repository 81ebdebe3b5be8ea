// The whole core on a bench: simulated receiver, virtual time, a data tree of its own, and views
// that note what they were told.
#pragma once

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "aiuto/AmbienteProva.h"
#include "aiuto/CartellaProva.h"
#include "aiuto/DriverUsbProva.h"
#include "data/Misure.h"
#include "data/Panels.h"
#include "data/Scrivania.h"
#include "link/LogTraffico.h"
#include "link/Ricevitore.h"
#include "setup/TabellaScan.h"
#include "simulator/FlussoSimulato.h"
#include "sweep/Corsa.h"

namespace orvane::prova {

struct NessunaPorta : CatalogoPorte {
    std::vector<PortaCom> Elenca() override { return {}; }
};

/// Notes what a run and a banner say.
struct VistaNota : VistaErrore, VistaCorsa {
    std::vector<std::string> strisce;
    bool strisciaVisibile = false;
    size_t passi = 0;
    double frazione = 0;
    std::vector<std::pair<int, ColonnaScan>> celleErrate;
    std::function<void()> alPasso;

    void MostraStriscia(const std::string& testo) override {
        strisce.push_back(testo);
        strisciaVisibile = true;
    }
    void NascondiStriscia() override { strisciaVisibile = false; }
    void ColoraStriscia(bool) override {}
    void AbilitaSSTabMode() override {}
    void AggiornaGriglia() override {}
    void EvidenziaCella(int riga, ColonnaScan colonna, bool errata) override {
        if (errata)
            celleErrate.emplace_back(riga, colonna);
    }
    void MostraModello() override {}
    void MostraFase(FaseCorsa) override {}
    void IniziaTraccia(const ScanTable&, const std::string&) override {}
    void AggiungiPassi(const ScanLine&, double, double,
                       std::span<const SampleRecord> nuovi) override {
        passi += nuovi.size();
        if (alPasso)
            alPasso();
    }
    void MostraFreqLivello(double, int16_t) override {}
    void MostraAvanzamento(const Avanzamento& a) override { frazione = a.frazione; }
    void MostraBatteria(const std::string&) override {}
};

/// A new line of that band, its detectors by their letters.
inline ScanLine Banda(const char* banda, const char* detector) {
    ScanLine riga;
    ImpostaBanda(riga, TabellaBande()[static_cast<size_t>(TrovaBanda(banda))], 0);
    riga.Detector = *LeggiDetector(detector);
    return riga;
}

struct BancoSimulato {
    explicit BancoSimulato(const OpzioniSimulatore& opzioni = {}) : simulato(opzioni) {
        usb.installato = usb.chiamabile = false;
        ambiente.linkPronto = [this] { return simulato.Pronti(ambiente.ora) > 0; };
        ambiente.prossimoByte = [this] {
            return simulato.ProssimoByte(ambiente.ora)
                .value_or(std::numeric_limits<double>::infinity());
        };
        porta.fisso = LinkFisso{&flusso, opzioni.modello, "simulated " + opzioni.modello};
        scrivania.setup = SetupDefault();
        ApplicaEnv(scrivania.env, false);
    }

    /// Commands of the receiver that begin like this.
    size_t Quanti(std::string_view inizio) const {
        return static_cast<size_t>(std::ranges::count_if(
            simulato.Comandi(), [&](const std::string& c) { return c.starts_with(inizio); }));
    }
    /// Whole steps of a trace file.
    size_t Passi(const std::string& misura, const std::string& base, int riga = 0) const {
        return File(PercorsoRS(misura, base, riga)).size() / kByteCampione;
    }
    /// Bytes of a file of the data tree.
    std::vector<uint8_t> File(const std::string& percorso) const {
        return scrivania.albero.Leggi(percorso).value_or(std::vector<uint8_t>{});
    }

    CartellaProva cartella;
    AmbienteProva ambiente;
    RicevitoreSimulato simulato;
    FlussoSimulato flusso{ambiente, simulato};
    DriverUsbProva usb{ambiente}; ///< without a library to call
    NessunaPorta catalogo;
    StatoProtocollo stato;
    LogTraffico log{ambiente, cartella.Percorso()};
    Porta porta{ambiente, stato, log, Vettori{&flusso, &usb, &catalogo}};
    VistaNota vista;
    Ricevitore ricevitore{ambiente, stato, log, porta, vista};
    Scrivania scrivania{.ambiente = ambiente, .albero = AlberoDati(cartella.Percorso())};
    ScanRecord scan;
    StatoCorsa statoCorsa;
    Corsa corsa{scrivania, ricevitore, scan, statoCorsa, vista};
};

} // namespace orvane::prova
