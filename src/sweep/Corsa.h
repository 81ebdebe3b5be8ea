// The run of a scan table: from the click on Execute to the last byte on disk.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "data/Misure.h"
#include "data/Scrivania.h"
#include "link/RegoleComuni.h"
#include "link/Ricevitore.h"
#include "records/ScanRecord.h"
#include "setup/PreVolo.h"

namespace orvane {

enum class FaseCorsa {
    Ferma,
    Controlli,
    Attesa,
    Preparazione,
    Riga,
    Misura,
    Pausa,
    Arresto,
    Guasto
};

/// How far a run is. Times in seconds.
struct Avanzamento {
    int riga = 0; ///< 0 to 9
    int numRighe = 0;
    int passata = 0; ///< from 0
    int numPassate = 1;
    std::string nomePassata; ///< "L1", "V"; empty without passes
    long long passiRiga = 0; ///< steps of the pass so far
    long long totaleRiga = 0;
    double frazione = 0; ///< of the whole run, 0 to 1
    double trascorsiS = 0;
    double restanoS = -1; ///< measured from the speed so far; -1 while unknown
};

/// The pass under way.
struct PassataInCorso {
    int riga = 0;          ///< 0 to 9
    std::string nome;      ///< "L1", "V"; empty for a plain pass
    std::string base;      ///< name of its trace file: the measure's, or "<measure>-L1"
    std::string etichetta; ///< for the status line: "1: ", "1: Line: L1"
};

/// What a run says to its window, besides what its checks show in the grid.
struct VistaCorsa : VistaGriglia {
    /// Captions and enabled controls follow from the phase.
    virtual void MostraFase(FaseCorsa fase) = 0;
    /// The axis spans the lines of this table; what was drawn is gone.
    virtual void IniziaTraccia(const ScanTable& tabella, const std::string& misura) = 0;
    /// A pass is about to send its command: its steps begin at the start of the line again.
    virtual void IniziaPassata(const PassataInCorso& /*passata*/) {}
    /// New steps of the current line, the first of them at `freqMhz`, one each `passoMhz`.
    virtual void AggiungiPassi(const ScanLine& riga, double freqMhz, double passoMhz,
                               std::span<const SampleRecord> passi) = 0;
    /// `LBFreqTrc`, at most ten times a second.
    virtual void MostraFreqLivello(double freqMhz, int16_t livelloCent) = 0;
    virtual void MostraAvanzamento(const Avanzamento& avanzamento) = 0;
    virtual void MostraBatteria(const std::string& livello) = 0;

    /// `PBTimerSweep`, once a second: "<n> s to start Sweep".
    virtual void MostraAttesaTimer(int /*restanoS*/, int /*totaleS*/) {}
    /// `FrmPBTriggerSweep`, at each reading of the user port.
    virtual void MostraAttesaTrigger(int16_t /*modo*/, int /*userPort*/) {}
    /// The wait for timer or trigger is over, or was given up.
    virtual void NascondiAttesaInizio() {}
    /// `CMBPauseSweep` is there, with the caption "Pause"; it is hidden at `FaseCorsa::Ferma`.
    virtual void MostraCMBPausa(bool /*visibile*/) {}
    /// `CMBPauseSweep` and `CMBExecuteSweep`, disabled while the receiver is asked to pause.
    virtual void AbilitaTastiCorsa(bool /*abilitati*/) {}
    /// A message that goes away by itself, such as "Pause Failed".
    virtual void MostraMessaggioBreve(const std::string& /*testo*/, int /*ms*/) {}
};

enum class EsitoCorsa {
    Compiuta,
    Rifiutata,   ///< by a check, before anything was written
    Fermata,     ///< Stop; the measure stands
    Abbandonata, ///< the global abort
    GuastoLink,  ///< receiver or link
    GuastoFile
};

/// A setting of the front-end that was changed in a pause; the record has its value.
struct CambioInPausa {
    ParComune quale = ParComune::BWIF;
    Modalita modalita = Modalita::Analyzer; ///< the live mode whose list and command it belongs to
};

/// Flags through which the window reaches the run, and what the run keeps.
struct StatoCorsa {
    FaseCorsa fase = FaseCorsa::Ferma;
    bool SweepInCorso = false;
    bool StopRichiesto = false;
    int16_t PausaRichiesta = 0;                ///< 0 none, 1 pause wanted, 2 resume wanted
    std::vector<CambioInPausa> inSospeso = {}; ///< still to be sent, in order
    bool SweepFinito = false;
    int TimerSweepSec = 0;        ///< delayed start; 0 none. A run leaves it as it is
    int16_t TriggerSweepMode = 0; ///< start when the user port is 0 (1), or is not (2); 0 none
    /// While a run is on: through it a Stop ends a command that repeats itself.
    StatoProtocollo* protocollo = nullptr;
    bool ComandoFermato = false; ///< a Stop has done so
    std::string misura;          ///< name of the measure under way, or of the last one
    std::string motivo;          ///< why the run ended, in words; empty when it was completed
};

struct Corsa {
    Scrivania& scrivania;
    Ricevitore& ricevitore;
    ScanRecord& scan;
    StatoCorsa& stato;
    VistaCorsa& vista;
};

/// `CMBExecuteSweep`: a click while a run is on is the Stop; otherwise runs to the end, pumping
/// events. `misura` is the wished name of the measure.
EsitoCorsa ClickExecuteSweep(Corsa& corsa, const std::string& misura);

/// Asks a run to stop, from within the event pump. It sends `#ASBK*` itself as soon as no command
/// is in flight.
void ChiediStop(StatoCorsa& stato);

/// Whether the user wants out of the run, by Stop or by the global abort.
bool VuoleUscire(const Corsa& corsa);
/// A wait that this ends.
void AttendiNellaCorsa(const Corsa& corsa, double secondi);

/// `CMBPauseSweep`: pause while a pass is measuring, resume while it is paused. Between two passes
/// the pause is kept for the next one. Nothing in any other phase.
void ChiediPausa(StatoCorsa& stato);

/// The user has changed filter or attenuator while the run is paused: the run sends it from there.
/// False, and nothing noted, for any other setting and in any other phase.
bool ChiediCambio(StatoCorsa& stato, const CambioInPausa& cambio);

/// `ChkTimerSweep` and `ChkTriggerSweep`: setting one clears the other.
void ScegliTimer(StatoCorsa& stato, int secondi);
void ScegliTrigger(StatoCorsa& stato, int16_t modo);

} // namespace orvane
