// How far a run is, and how long it still takes: measured from the steps that have come.
#pragma once

#include <vector>

#include "base/Ambiente.h"
#include "records/ScanRecord.h"
#include "sweep/Corsa.h"

namespace orvane {

/// Weighs each step by its line's measuring time, so that a slow line counts for what it takes.
class Progresso {
public:
    Progresso(const Ambiente& ambiente, const ScanTable& tabella);

    void IniziaRiga(int riga);
    /// A 5520F has announced another step than the table's: its line has `passi` steps.
    void CorreggiRiga(long long passi);
    void Aggiungi(long long passi) { passiRiga_ += passi; }
    /// The line is done, however many steps it had.
    void FineRiga() { rigaFinita_ = true; }
    Avanzamento Adesso() const;

private:
    struct PesoRiga {
        long long passi = 0;
        double perPasso = 0; ///< relative time of one step
        double Peso() const { return static_cast<double>(passi) * perPasso; }
    };
    double PesoFatto() const;

    const Ambiente& ambiente_;
    std::vector<PesoRiga> righe_;
    double inizio_;
    double totale_ = 0;
    double finite_ = 0; ///< weight of the lines that are done
    int riga_ = 0;
    long long passiRiga_ = 0;
    bool rigaFinita_ = false;
};

} // namespace orvane
