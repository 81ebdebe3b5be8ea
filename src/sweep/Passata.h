// One pass of a run: the sweep command goes out, and its stream goes to the file and to the
// picture.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "data/Traccia.h"
#include "setup/ComandoSweep.h"
#include "sweep/Corsa.h"
#include "sweep/FlussoSweep.h"
#include "sweep/Progresso.h"

namespace orvane {

class Passata {
public:
    /// `Fermata`: the user wants out, and the receiver is still to be told. Every other end but
    /// `Compiuta` has been told to the user.
    struct Fine {
        EsitoCorsa esito = EsitoCorsa::Compiuta;
        std::string motivo = {};
    };

    /// `riga` takes over the step that the receiver announces.
    Passata(const Corsa& corsa, Progresso& progresso, ScanLine& riga);

    /// The file of the pass; false after a box.
    bool ApriFile(std::string percorso);
    /// Sends the command and stays until the end mark has come and the line is silent.
    Fine Esegui(const ComandoSweep& comando);

private:
    using Passi = std::span<const SampleRecord>;

    bool Avvia();
    bool Ricevi();
    bool LeggiArrivati();
    bool AttendeIntestazione() const;
    bool Attendi5520F(Scadenza& intestazione);
    bool LetturaFallita();
    bool Elabora();
    void FermaFlusso();
    double Frequenza(long long passo) const;
    void AggiungiPassi(Passi passi);
    void MostraDati(Passi passi);
    void ApplicaPassoAnnunciato();
    bool SweepRifiutato();
    void ScarigaDatiSweepRestanti();
    bool Interrotta() const { return stato_.StopRichiesto || r_.stato.AbbandonaComandi; }
    bool Finisci(EsitoCorsa esito, std::string motivo = {});
    double TempoMassimo() const;

    Ricevitore& r_;
    Scrivania& s_;
    const StatoCorsa& stato_;
    VistaCorsa& vista_;
    Progresso& progresso_;
    ScanLine& riga_;
    ComandoSweep comando_;
    Fine fine_;
    std::optional<LettoreFlusso> lettore_;
    ScrittoreTraccia traccia_;
    std::string percorso_;
    double passoMhz_;
    long long passi_ = 0;
    double ultimoTesto_ = 0;
    int tentativiIntestazione_ = 0;
};

} // namespace orvane
