#include "records/ImpostazioniReport.h"

#include <algorithm>

namespace orvane {
namespace {

constexpr int16_t kUltimoDetector = 5;

int16_t Detector(int16_t campo) {
    return std::clamp<int16_t>(campo, 0, kUltimoDetector);
}

} // namespace

int16_t ReportDetector(const EnvRecord& env) {
    return Detector(env.ReportFlag);
}

int16_t ReportDetectorLim1(const EnvRecord& env) {
    return Detector(env.ReportMode1);
}

int16_t ReportDetectorLim2(const EnvRecord& env) {
    return Detector(env.ReportMode2);
}

int NumPicchi(const EnvRecord& env) {
    const int voluti = env.ReportList[voce_report::kNumPicchi];
    return voluti <= 0 ? kPicchiDefault : std::min(voluti, kMaxPicchi);
}

} // namespace orvane
