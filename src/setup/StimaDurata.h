// How many points a scan table has, and about how long it takes: plain arithmetic on the table, for
// a receiver that nobody has asked yet.
//
// What it takes for granted, where only the receiver knows:
// - the detectors of a line are measured side by side, and cost no time of their own;
// - "Lowest" is two periods of the filter, at least 0.1 ms; every step costs 0.1 ms besides;
// - a Smart line measures every point with its peak scan hold time, and one in twenty of them again
//   with its hold time; with two detectors these are measured again one after the other;
// - an FFT scan takes a thousand points at a time, at the price of one;
// - a pass starts with half a second of commands; changing cables by hand is not counted.
#pragma once

#include <string>

#include "data/AlberoDati.h"
#include "records/FreqTableRecord.h"
#include "records/ScanRecord.h"

namespace orvane {

struct StimaSweep {
    long long punti = 0; ///< of one pass
    int passate = 1;
    double secondi = 0; ///< of all passes
};

/// Points that a frequency table gives a line, as many as the receiver takes at most.
long long PuntiDaFreqTable(const ScanLine& riga, const FrequencyTable& tabella);
/// `tabella`: the frequency table of a line that has one; without it the line has no points.
StimaSweep StimaRiga(const ScanLine& riga, int ancillaryKind,
                     const FrequencyTable* tabella = nullptr);

/// The lines in use together. `passate` is 0 where the lines differ in them, and `punti` then
/// counts those of all passes.
StimaSweep SommaStime(const StimaSweep& a, const StimaSweep& b);

StimaSweep StimaTabella(const AlberoDati& albero, const ScanTable& tabella, int ancillaryKind);

/// "5 971 points × 2 lines · about 3 min 20 s"; the kind says what the passes are called.
std::string TestoStima(const StimaSweep& stima, int ancillaryKind);
/// "less than 1 s", "45 s", "3 min 20 s", "2 h 5 min"
std::string TestoTempoStimato(double secondi);

} // namespace orvane
