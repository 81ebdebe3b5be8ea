// One run, from the click to its end: what it keeps while it lasts, and its steps.
#pragma once

#include <optional>
#include <string>

#include "data/AlberoDati.h"
#include "setup/ComandoSweep.h"
#include "setup/CommutatoriSweep.h"
#include "setup/LimitiSweep.h"
#include "sweep/Corsa.h"
#include "sweep/Passata.h"
#include "sweep/Progresso.h"
#include "sweep/TracciaRiga.h"

namespace orvane {

class Svolgimento {
public:
    Svolgimento(Corsa& corsa, std::string misura);

    /// All of it.
    EsitoCorsa Svolgi();

private:
    // A. Checks and delayed start, before any file of the measure is touched.
    bool Controlli();
    bool AttendiInizio();
    // B. Settings of the whole run, directory, header.
    bool PreparaMisura();
    bool InviaImpostazioniCorsa();
    void CompilaIntestazione();
    bool PreparaFile();
    void InizializzaHTOriginale();
    // C. and D. Lines, passes, data.
    bool PercorriRighe();
    bool EseguiRiga(size_t indice);
    bool ControllaUnita(size_t indice);
    bool PercorriPassate(size_t indice);
    bool EseguiPassata(size_t indice, const PassataSweep& passata, TracciaRiga& file);
    bool IniziaPassata(size_t indice, const PassataSweep& passata, TracciaRiga& file);
    bool VisMsgboxPromptStart(const ScanLine& riga, std::string_view nome);
    bool Commuta(const ScanLine& riga, const PassataSweep& passata, std::string& testo);
    std::optional<ComandoSweep> PreparaComando(size_t indice);
    bool PreparaIngresso(const ScanLine& riga);
    void SettaRadCondK3XSweep(const ScanLine& riga);
    bool MisuraPassata(size_t indice, const ComandoSweep& comando, TracciaRiga& file);
    float HoldTimePerAttesa(const ScanLine& riga) const;
    // E. What the receiver really did, for the header.
    void RileggiHoldTimeSW(ScanLine& riga);
    bool RiscriviHeader();
    void MostraDurata();
    // F. The one way out that is no normal end.
    void Fallimento();
    // G.
    void RipristinaCondizioniExitSweep();

    void Fase(FaseCorsa fase);
    void VisualizzaBatteria();
    void AbortSweepCorsa();
    bool Interrotta() const { return c_.stato.StopRichiesto || r_.stato.AbbandonaComandi; }
    bool ControllaInterruzioni();
    bool EsciInterrotta();
    bool Fallisci(EsitoCorsa esito, std::string motivo);

    Corsa& c_;
    Ricevitore& r_;
    Scrivania& s_;
    std::string misura_;
    /// The table as the checks left it: what is asked of the receiver in each pass.
    ScanTable originale_;
    /// The same as the receiver ran it: what the header tells. The user's own stays as it is.
    ScanRecord scan_;
    Presa segno_;            ///< the mark of the run, held until its end
    bool preparata_ = false; ///< what an older measure of this name held is gone
    EsitoCorsa esito_ = EsitoCorsa::Compiuta;
    std::optional<Progresso> progresso_;
    LimiteRicevitore limite_;
    float holdFFT_ = 0; ///< ms, as the receiver told it after an FFT scan
    bool linkVivo_ = true;
};

} // namespace orvane
