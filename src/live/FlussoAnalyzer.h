// The stream of the Analyzer: acknowledgement, header, and the points of one sweep.
#pragma once

#include <cstdint>
#include <span>

#include "link/Ricevitore.h"
#include "live/IntestazioneAnalyzer.h"

namespace orvane {

/// How long the receiver may be silent in a sweep, in seconds.
constexpr double TempoSweepAnalyzer(float holdMs) {
    return static_cast<double>(holdMs) / 1000 * 8 + 1;
}

/// What `UpDateSweep` tells besides a number of points.
inline constexpr int kErroreSweepAnalyzer = -1;
inline constexpr int kRileggiSweepAnalyzer = -2;

/// Reads one sweep after the other out of the accumulation buffer. Bytes may be split anywhere.
class LettoreAnalyzer {
public:
    /// The two are looked at for each header, and live longer than the reader.
    LettoreAnalyzer(const ReceiverModel& modello, const ModelCaps& caps)
        : modello_(modello), caps_(caps) {}

    /// A sweep has been asked for: its acknowledgement comes next.
    void Inizia();

    /// Points of the coming sweep, 0 while its header is not there. What comes before the
    /// acknowledgement is passed over; a header that cannot be is dropped with all the buffer, and
    /// the next one awaited.
    size_t LeggiIntestazione(Accumulo& dati);

    /// Puts the points that have come to their places in `traccia`, a level in hundredths of a dB
    /// each, and leaves what is behind the last one. How many of the sweep are there by now; -2
    /// when no other has come: read again; -1 when none can: no header, or no room for the sweep.
    int UpDateSweep(Accumulo& dati, std::span<int16_t> traccia);

    /// Of the last header that was accepted.
    const IntestazioneAnalyzer& Intestazione() const { return intestazione_; }
    size_t Punti() const { return punti_; }
    /// Whether the last point has come.
    bool Completo() const { return punti_ > 0 && arrivati_ == punti_; }

private:
    bool TrovaRiscontro(Accumulo& dati);

    const ReceiverModel& modello_;
    const ModelCaps& caps_;
    bool riscontrato_ = false;
    IntestazioneAnalyzer intestazione_;
    size_t punti_ = 0;
    size_t arrivati_ = 0;
};

/// Starts a sweep and waits for its header: the number of points, or 0 when none came in time, the
/// link is gone, or the user gave up.
size_t Get5520Header(Ricevitore& r, LettoreAnalyzer& lettore, float holdMs);

} // namespace orvane
