// The views of the command line program: banner, run and grid as lines of text.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "link/Ricevitore.h"
#include "sweep/Corsa.h"

namespace orvane {

/// Minutes and seconds, "1:16"; hours from the first on.
std::string TestoTempo(double secondi);

class VistaTerminale : public VistaErrore, public VistaCorsa {
public:
    /// `riscrivi`: the progress line is written over itself, as a terminal can. `json`: a run tells
    /// nothing in words of how far it is.
    VistaTerminale(const Ambiente& ambiente, std::ostream& messaggi, bool riscrivi, bool json)
        : ambiente_(ambiente), messaggi_(messaggi), riscrivi_(riscrivi), json_(json) {}

    /// From here on a run is told as events, an object a line.
    void AvviaEventi(std::ostream& dove) { eventi_ = &dove; }
    /// Seconds since the first data of the run; empty before they came.
    std::optional<double> DatiDaS() const;
    /// The run has said that its receiver can pause.
    bool PuoPausare() const { return puoPausare_; }
    /// Seconds that the banner has been up; 0 while it is not.
    double StrisciaDaS() const;
    /// Ends a progress line that is being written over.
    void FineRiga();

    void MostraStriscia(const std::string& testo) override;
    void NascondiStriscia() override { strisciaDa_ = -1; }
    void ColoraStriscia(bool) override {}
    void AbilitaSSTabMode() override {}
    void MostraAttesa(const std::string& titolo, const std::string& testo) override;

    void AggiornaGriglia() override {}
    void EvidenziaCella(int riga, ColonnaScan colonna, bool errata) override;
    void MostraModello() override {}
    void MostraFase(FaseCorsa fase) override;
    void IniziaTraccia(const ScanTable&, const std::string& misura) override;
    void IniziaPassata(const PassataInCorso& passata) override;
    void AggiungiPassi(const ScanLine&, double, double, std::span<const SampleRecord>) override;
    void MostraFreqLivello(double freqMhz, int16_t livelloCent) override;
    void MostraAvanzamento(const Avanzamento& avanzamento) override;
    void MostraBatteria(const std::string& livello) override;
    void MostraAttesaTimer(int restanoS, int totaleS) override;
    void MostraAttesaTrigger(int16_t modo, int userPort) override;
    void NascondiAttesaInizio() override { FineRiga(); }
    void MostraCMBPausa(bool visibile) override { puoPausare_ = visibile; }
    void MostraMessaggioBreve(const std::string& testo, int ms) override;
    /// A box was answered.
    void MostraRisposta(std::string_view testo, std::string_view risposta);

private:
    void Evento(const std::string& evento);
    void Riga(const std::string& testo);
    void RigaMobile(const std::string& testo);

    const Ambiente& ambiente_;
    std::ostream& messaggi_;
    bool riscrivi_;
    bool json_;
    std::ostream* eventi_ = nullptr;
    bool aMeta_ = false; ///< a progress line waits for its end
    double strisciaDa_ = -1;
    double ultimo_ = -1;
    double primiDati_ = -1;
    int portaDetta_ = -1; ///< the user port as it was told last
    bool puoPausare_ = false;
    FaseCorsa fase_ = FaseCorsa::Ferma;
    bool intero_ = false; ///< the last word was of a whole run
    double freqMhz_ = 0;
    int16_t livelloCent_ = kNessunLivello;
};

} // namespace orvane
