// Measures on disk: names, headers, trace files, and the list of them.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/Scrivania.h"
#include "records/SampleRecord.h"
#include "records/SweepHeader.h"

namespace orvane {

/// "Sweep\<misura>\"
std::string CartellaMisura(std::string_view misura);
/// "Sweep\<misura>\<misura>.KSH"
std::string PercorsoKSH(std::string_view misura);
/// "Sweep\<misura>\<base>.RS<riga>"; `base` is the measure's name or the name of a pass.
std::string PercorsoRS(std::string_view misura, std::string_view base, int riga);

/// The name under which a new run may store: the name itself when free, else as the user answers;
/// empty for a refusal. Changes nothing on disk.
std::string ControlNameMeasProfiloB(Scrivania& s, std::string_view nome);

/// False, after the box "Cannot open file " + path, when the header cannot be written.
bool SalvaHeaderSweep(Scrivania& s, std::string_view percorso, const ScanRecord& scan,
                      const SetupRecord& setup);
/// Reads the two records; absent, it is created from a cleared `ScanRecord`. False after the box
/// "Failed loading" + path; the records then keep what was read so far.
bool CaricaHeaderSweep(Scrivania& s, std::string_view percorso, ScanRecord& scan,
                       SetupRecord& setup);

/// Empties the measure's directory and makes it and "Sub_Measure\" afresh.
void PreparaCartellaMisura(Scrivania& s, std::string_view misura);
/// Copies of the limits and factors in use into the measure.
void CopiaFileLimSweep(Scrivania& s, std::string_view misura, const ScanTable& tabella);
void CopiaFileFacSweep(Scrivania& s, std::string_view misura);

/// Appends whole steps to an RS file; each call is one write, so that the file is a whole number of
/// steps at every moment.
class ScrittoreTraccia {
public:
    /// False when the file cannot be made.
    bool Apri(const Scrivania& s, std::string_view percorso);
    bool Scrivi(std::span<const SampleRecord> passi);
    void Chiudi() { file_.reset(); }
    bool Aperto() const { return file_ != nullptr; }

private:
    struct Chiusura {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Chiusura> file_;
    std::vector<uint8_t> byte_;
};

/// A trace file's whole steps; a part-step at the end is left out, an absent file gives none.
std::vector<SampleRecord> LeggiTraccia(const Scrivania& s, std::string_view percorso);

/// One sample of a shown trace.
struct CampioneTraccia {
    double freqMhz = 0;
    std::array<int16_t, kNumDetector> livello{}; ///< hundredths of a dB in dBuV
    int16_t riga = 0;                            ///< scan line, 0 to 9
};
using SweepTrace = std::vector<CampioneTraccia>;

/// Whether two frequencies of overlapping lines are the same point: k x Step differs in its last
/// bits from line to line, so anything nearer than 1 mHz is one frequency.
bool StessaFrequenza(double aMhz, double bMhz);

/// Builds the trace of a measure (or of its sub-measure `base`) from its files, lines merged by
/// frequency: where they overlap, the higher value of `detector` wins with all six of its values.
SweepTrace CreaTracciaSweep(const Scrivania& s, std::string_view misura, std::string_view base,
                            const ScanTable& tabella, DetectorKind detector);

/// A row of the archive list.
struct VoceArchivio {
    std::string nome;
    std::string prima;  ///< "dd/mm/yyyy hh:mm:ss" of the earliest trace file; empty without one
    std::string ultima; ///< of the latest
    int righe = 0;      ///< scan lines in use
    long long passi = 0;
    bool leggibile = false; ///< the header is there and whole
    std::string detector;   ///< letters of all detectors in use
};
std::vector<VoceArchivio> ElencaMisure(const Scrivania& s);

} // namespace orvane
