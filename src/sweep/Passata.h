// One pass of a run: the sweep command goes out, and its stream goes to the file and to the
// picture.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "setup/ComandoSweep.h"
#include "sweep/Corsa.h"
#include "sweep/FlussoSweep.h"
#include "sweep/Progresso.h"
#include "sweep/TracciaRiga.h"

namespace orvane {

class Passata {
public:
    /// `Fermata`: the user wants out, and the receiver is still to be told. Every other end but
    /// `Compiuta` has been told to the user.
    struct Fine {
        EsitoCorsa esito = EsitoCorsa::Compiuta;
        std::string motivo = {};
    };

    /// `riga` takes over the step that the receiver announces; `file` is open. `holdMs`: what a
    /// step may take, as far as is known.
    Passata(const Corsa& corsa, Progresso& progresso, ScanLine& riga, TracciaRiga& file,
            float holdMs);

    /// Sends the command and stays until the end mark has come and the line is silent.
    Fine Esegui(const ComandoSweep& comando);

private:
    using Passi = std::span<const SampleRecord>;

    bool Avvia();
    bool Ricevi();
    bool LeggiArrivati();
    bool AttendeIntestazione() const;
    bool Attendi5520F(Scadenza& intestazione);
    bool PausaMatura() const;
    bool Pausa(Scadenza& termine);
    bool LetturaFallita();
    bool Elabora();
    void FermaFlusso();
    double DeterminaFreqValFC(long long passo) const;
    void AggiungiPassi(Passi passi);
    void MostraDati(Passi passi);
    void ApplicaPassoAnnunciato();
    bool SweepRifiutato();
    void ScarigaDatiSweepRestanti();
    bool Interrotta() const { return c_.stato.StopRichiesto || r_.stato.AbbandonaComandi; }
    bool Finisci(EsitoCorsa esito, std::string motivo = {});
    double TempoMassimo() const;

    const Corsa& c_;
    Ricevitore& r_;
    VistaCorsa& vista_;
    Progresso& progresso_;
    ScanLine& riga_;
    ComandoSweep comando_;
    Fine fine_;
    std::optional<LettoreFlusso> lettore_;
    TracciaRiga& file_;
    float holdMs_;
    double passoMhz_;
    long long passi_ = 0;
    double ultimoTesto_ = 0;
    int tentativiIntestazione_ = 0;
};

} // namespace orvane
