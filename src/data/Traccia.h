// Trace files and the positions that run beside them: written step by step, read back as one trace.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/FileProvvisorio.h"
#include "data/Scrivania.h"
#include "records/SampleRecord.h"

namespace orvane {

/// Appends whole records to a file, by writes that a kill does not tear: the file is a whole number
/// of records at every moment.
template <class Record> class ScrittoreRecord {
public:
    /// False when the file cannot be made. What a crash left of a record is cut off.
    bool Apri(const Scrivania& s, std::string_view percorso);
    bool Scrivi(std::span<const Record> record);
    void Chiudi() { file_.reset(); }
    bool Aperto() const { return file_ != nullptr; }

private:
    FileC file_;
    std::vector<uint8_t> byte_;
};
extern template class ScrittoreRecord<SampleRecord>;
extern template class ScrittoreRecord<PositionRecord>;

using ScrittoreTraccia = ScrittoreRecord<SampleRecord>;     ///< RS
using ScrittorePosizioni = ScrittoreRecord<PositionRecord>; ///< TM

/// RS and TM file of one line, record k beside record k.
class ScrittoreConPosizioni {
public:
    /// Appends behind the last step that both files hold; what one has more than the other is cut
    /// off. False when either cannot be made.
    bool Apri(const Scrivania& s, std::string_view percorsoRS, std::string_view percorsoTM);
    /// As many positions as steps.
    bool Scrivi(std::span<const SampleRecord> passi, std::span<const PositionRecord> posizioni);
    void Chiudi();
    bool Aperto() const { return traccia_.Aperto() && posizioni_.Aperto(); }

private:
    ScrittoreTraccia traccia_;
    ScrittorePosizioni posizioni_;
};

/// A trace file's whole steps; a part-step at the end is left out, an absent file gives none.
std::vector<SampleRecord> LeggiTraccia(const Scrivania& s, std::string_view percorso);

/// Puts a whole trace in the place of the one that is there. False on failure, which leaves it.
bool SalvaTraccia(const Scrivania& s, std::string_view percorso,
                  std::span<const SampleRecord> passi);

/// One sample of a shown trace, as the winner of its frequency left it.
struct CampioneTraccia {
    double freqMhz = 0;
    std::array<int16_t, kNumDetector> livello{}; ///< hundredths of a dB in dBuV
    int16_t riga = 0;                            ///< scan line, 0 to 9
    int16_t mast = kNessunaPosizione;            ///< cm
    int16_t table = kNessunaPosizione;           ///< degrees
    bool stacco = false; ///< a gap before it: the first, or of a line that adjoins no other
};
using SweepTrace = std::vector<CampioneTraccia>;

/// Whether two frequencies of overlapping lines are the same point: k x Step differs in its last
/// bits from line to line, so anything nearer than 1 mHz is one frequency.
bool StessaFrequenza(double aMhz, double bMhz);

/// What is shown of a measure, and with it which TM file goes with a trace.
enum class ViewMode {
    Normale = 1,   ///< "<base>.TM<n>"
    MastTable = 2, ///< "POSMEASMT.TM<n>"
    Inviluppo = 3  ///< "POSENVMEASMT.TM<n>"
};

/// Notes what a sample hides that takes the place of another of its frequency: where that one held
/// a higher level of some detector, `coperti` gets the highest of each, once a frequency. Called in
/// the order of frequency.
void NotaCoperto(SweepTrace& coperti, const CampioneTraccia& vincitore,
                 const CampioneTraccia& perdente);

struct OpzioniTraccia {
    ViewMode vista = ViewMode::Normale;
    /// Gets `NotaCoperto` of every frequency that lines share.
    SweepTrace* coperti = nullptr;
    /// Frequency of step k of a line with `StepMode` 1, MHz, in any order; empty behind the last.
    /// Without it such lines have no samples.
    std::function<std::optional<double>(const ScanLine& riga, size_t k)> frequenza{};
};

/// Builds the trace of a measure (or of its sub-measure `base`) from its files, in the order of
/// frequency. Where lines meet, the higher value of `detector` wins with all that its sample holds;
/// on a tie the earlier line. A line ends with its RS file, or with its TM file where there is a
/// shorter one. On the switch /RSCOMP each line keeps its own sample.
SweepTrace CreaTracciaSweep(const Scrivania& s, std::string_view misura, std::string_view base,
                            const ScanTable& tabella, DetectorKind detector,
                            const OpzioniTraccia& opzioni = {});

} // namespace orvane
