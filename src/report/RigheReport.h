// Rows of a report: one walk over the measure, and which of its points come near a limit.
#pragma once

#include "report/ReportModel.h"

namespace orvane {

/// Whether slots 0 and 1 are on.
bool LimiteAttivo(const SetupRecord& setup, size_t slot);
/// The slots that are on, in their order.
std::vector<size_t> LimitiAttivi(const SetupRecord& setup);
std::vector<size_t> FattoriAttivi(const SetupRecord& setup);
/// Whether positions belong to the levels: the measure was made with mast and table, and has some.
bool HaDatiMast(const MisuraAperta& misura);

/// A value of `Limit` that stands for none; `offset` is `UnitOffset`.
bool NessunLimite(float valore, float offset);
/// Whether a level comes within `margine` dB of a limit, or over it; exactly at the margin it does.
/// A negative margin demands that it lies that much above. `invertita` turns the comparison round.
bool ColpisceLimite(float limite, float livello, float margine, bool invertita);

/// State of one walk over a measure.
struct RaccoltaReport {
    explicit RaccoltaReport(const FonteReport& fonte);

    const FonteReport& fonte;
    float UnitOffset;
    std::vector<size_t> limiti;
    std::vector<size_t> fattori;
    TabelleLimFac tabelle; ///< a copy: looking factors up leaves notes in it
};

/// Takes a point into the rows if it comes near a limit. `livelloCent` in dBµV. At the frequency of
/// the row before it takes that row's place.
void ConfrontaPuntoLimitiRep(ReportModel& model, RaccoltaReport& raccolta,
                             const CampioneTraccia& punto, int16_t livelloCent);
/// Takes the level of one detector where any limit has a value; whether it is near one is asked
/// when the grid is filled.
void ConfrontaPuntoLimitiRepDSD(ReportModel& model, RaccoltaReport& raccolta,
                                const CampioneTraccia& punto, int16_t livelloCent,
                                size_t DetectorIndex);

/// Collects the rows of the model's kind afresh.
void RaccogliRigheRep(ReportModel& model, const FonteReport& fonte);

/// Collects the rows where there are none yet.
void ControllaDetFreqLevLimRep(ReportModel& model, const FonteReport& fonte);
void ControllaDetFreqLevLimRepDSD(ReportModel& model, const FonteReport& fonte);
/// -1 for an empty array.
int UBoundArrFreqLevLimRep(const ReportModel& model);
int UBoundArrFreqLevLimRepDSD(const ReportModel& model);

} // namespace orvane
