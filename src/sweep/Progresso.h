// How far a run is, and how long it still takes: measured from the steps that have come.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Ambiente.h"
#include "records/ScanRecord.h"
#include "sweep/Corsa.h"

namespace orvane {

/// Weighs each step by its line's measuring time, so that a slow line counts for what it takes.
class Progresso {
public:
    /// With `ancillaryKind` the passes of each line count.
    Progresso(const Ambiente& ambiente, const ScanTable& tabella, int ancillaryKind = 0);

    void IniziaRiga(int riga);
    /// `nome`: "L1", "V"; empty for a plain pass. The first of a line needs no call.
    void IniziaPassata(int passata, std::string_view nome);
    /// A 5520F has announced another step than the table's: its line has `passi` steps.
    void CorreggiRiga(long long passi);
    void Aggiungi(long long passi) { passiRiga_ += passi; }
    /// So long the sweep was held: elapsed, but no measure of its speed.
    void AggiungiPausa(double secondi) { pauseS_ += secondi; }
    /// The line is done, however many steps it had.
    void FineRiga() { rigaFinita_ = true; }
    Avanzamento Adesso() const;

private:
    struct PesoRiga {
        long long passi = 0;
        double perPasso = 0; ///< relative time of one step
        int passate = 1;
        /// Of one pass.
        double Peso() const { return static_cast<double>(passi) * perPasso; }
    };
    double PesoFatto() const;

    const Ambiente& ambiente_;
    std::vector<PesoRiga> righe_;
    double inizio_;
    double pauseS_ = 0;
    double totale_ = 0;
    double finite_ = 0; ///< weight of the lines that are done
    int riga_ = 0;
    long long passiRiga_ = 0;
    int passata_ = 0;
    std::string nomePassata_;
    bool rigaFinita_ = false;
};

} // namespace orvane
