// The rules of the scan table: filters and their steps, bands, defaults, and what a cell shows.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "link/ElencoAtt.h"
#include "link/ReceiverModel.h"
#include "records/ScanRecord.h"

namespace orvane {

struct VoceRbw {
    std::string_view testo;
    int codice = 0;       ///< as the sweep command sends it; 0 for a separator
    double passoAuto = 0; ///< MHz
    bool Separatore() const { return codice == 0; }
};
inline constexpr int kNumRbw = 16;
/// By `RbwId`. The code of "9 kHz" depends on the model: `DeterminaIDRbwSweep`.
const std::array<VoceRbw, kNumRbw>& TabellaRbw();

/// A band of the picker; `seguenti` are the bands of the further rows that it inserts.
struct VoceBanda {
    std::string_view nome;
    double startMhz = 0; ///< 0 for a separator
    double stopMhz = 0;
    int16_t rbwId = 0;
    float holdTime = 0;   ///< ms
    float holdTimeSD = 0; ///< ms
    int16_t autoStep = 1;
    double stepMhz = 0; ///< 0: the automatic step of the filter
    int16_t preSel = 1;
    int16_t minAtt = 1;
    std::array<int, 3> seguenti = {-1, -1, -1};
    bool elencata = true;
};
std::span<const VoceBanda> TabellaBande();
/// Index of a band by name, in any case of letters; -1 for none, and for separators.
int TrovaBanda(std::string_view nome);

/// A new line's settings, apart from its frequencies.
void ImpostaLineaDefault(ScanLine& riga, int ancillaryKind);
/// Writes a band to a line: defaults, then the band's own values.
void ImpostaBanda(ScanLine& riga, const VoceBanda& banda, int ancillaryKind);
/// The filter that goes with the middle of the span.
int16_t DetRBWDefault(double startMhz, double stopMhz);
/// Step in MHz that `AutoStep` gives.
double DetStepAutoDaRBW(int rbwId, const ScanLine& riga);
bool ControllaScanFFT(const ScanLine& riga);
/// Drops lines with `Start` 0 and moves the later ones up.
void CompattaScanTable(ScanTable& tabella);
/// Lines in use, contiguous from index 0 after `CompattaScanTable`.
size_t RigheInUso(const ScanTable& tabella);
/// Steps of a line by start, stop and step, both ends counted; 0 where they make none.
long long PassiDellaRiga(const ScanLine& riga);

enum class ColonnaScan {
    Numero,
    Start,
    Stop,
    Step,
    Detector,
    HoldTime,
    Rbw,
    MinAtt,
    PreAmp,
    PreSel,
    Prompt,
    Ancillary,
    NumColonne
};
/// Header text; a second line is joined by LF.
std::string_view TitoloColonna(ColonnaScan colonna);
/// What a cell shows.
std::string TestoCella(const ScanLine& riga, ColonnaScan colonna, int ancillaryKind);
/// Commits a cell that is edited in place (Start, Stop, Rbw, MinAtt, PreAmp, PreSel): `testo` for
/// the two frequencies, `id` for the lists. Recomputes an automatic step.
void ScriviCellaScanLine(ScanLine& riga, ColonnaScan colonna, std::string_view testo, int id);
/// Letters of the detectors in use, in order: "PQ".
std::string LettereDetector(const ScanLine& riga);
/// Flags from letters in any order or from names, separated by commas: "P,Q"; empty for an unknown.
std::optional<std::array<int16_t, kNumDetector>> LeggiDetector(std::string_view testo);

} // namespace orvane
