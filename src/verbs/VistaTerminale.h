// The views of the command line program: banner, run and grid as lines of text.
#pragma once

#include <iosfwd>
#include <string>

#include "link/Ricevitore.h"
#include "sweep/Corsa.h"

namespace orvane {

/// Minutes and seconds, "1:16"; hours from the first on.
std::string TestoTempo(double secondi);

class VistaTerminale : public VistaErrore, public VistaCorsa {
public:
    /// `riscrivi`: the progress line is written over itself, as a terminal can.
    VistaTerminale(const Ambiente& ambiente, std::ostream& messaggi, bool riscrivi, bool json)
        : ambiente_(ambiente), messaggi_(messaggi), riscrivi_(riscrivi), json_(json) {}

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
    void MostraFase(FaseCorsa) override {}
    void IniziaTraccia(const ScanTable&, const std::string& misura) override;
    void AggiungiPassi(const ScanLine&, double, double, std::span<const SampleRecord>) override {}
    void MostraFreqLivello(double freqMhz, int16_t livelloCent) override;
    void MostraAvanzamento(const Avanzamento& avanzamento) override;
    void MostraBatteria(const std::string&) override {}

private:
    const Ambiente& ambiente_;
    std::ostream& messaggi_;
    bool riscrivi_;
    bool json_;
    bool aMeta_ = false; ///< a progress line waits for its end
    double strisciaDa_ = -1;
    double ultimo_ = -1;
    bool intero_ = false; ///< the last word was of a whole run
    double freqMhz_ = 0;
    int16_t livelloCent_ = kNessunLivello;
};

} // namespace orvane
