// The scan table as files hold it: the whole of an EST file, and the first part of each KSH.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "records/Visite.h"

namespace orvane {

/// A detector of the receiver, in the one order that letters, flags and samples share.
enum class DetectorKind { Peak, QPeak, Rms, Avg, RmsAvg, CAvg };
inline constexpr size_t kNumDetector = 6;
/// Letters P, Q, R, A, N, C and long names, by `DetectorKind`.
inline constexpr std::array<char, kNumDetector> kLettereDetector = {'P', 'Q', 'R', 'A', 'N', 'C'};
inline constexpr std::array<const char*, kNumDetector> kNomiDetector = {"Peak", "QPeak",   "Rms",
                                                                        "Avg",  "Rms-Avg", "C-Avg"};

/// One line of a scan table: a frequency span with its detectors and front-end settings.
struct ScanLine {
    int16_t PreSel = 0;   ///< 0 OFF, 1 ON
    int16_t PreAmp = 0;   ///< 0 OFF, 1 ON
    double Start = 0;     ///< MHz; 0 marks an unused line
    double Stop = 0;      ///< MHz
    int16_t StepMode = 0; ///< 0 by `Step`, 1 from a frequency table
    int16_t AutoStep = 0; ///< 1: `Step` follows from the RBW
    double Step = 0;      ///< MHz
    std::string FreqTable = {};
    int16_t MinAtt = 0; ///< index into 0, 10, 20, 30, 40, 50 dB
    float HoldTime = 0; ///< ms; 0 is the lowest
    float Margin = 0;   ///< dB, -19 to 19
    std::array<int16_t, 4> LineSwitch{};
    int16_t Smart = 0;
    std::array<int16_t, kNumDetector> Detector{}; ///< 1 for each in use, by `DetectorKind`
    std::array<int16_t, 101> LineReserved0{};
    int16_t LimitOn = 0;
    std::string Limit = {};
    int16_t PromptOn = 0;
    std::string Prompt = {};
    int16_t RbwId = 0; ///< 0 to 15, never 4 or 11
    int16_t NumStepFT = 0;
    std::array<int16_t, 2> Antenna{}; ///< vertical, horizontal
    float HoldTimeSD = 0;             ///< ms
    int16_t LimitDSDOn = 0;
    std::string LimitDSD = {};
    double StepOriginal = 0; ///< MHz, of a run
    std::array<int16_t, 64> LineReserved1{};
    std::array<int32_t, 100> LineReserved2{};
};

template <class Visita> constexpr void Campi(Visita& v, ScanLine& r) {
    v.I16(r.PreSel, "PreSel");
    v.I16(r.PreAmp, "PreAmp");
    v.F64(r.Start, "Start");
    v.F64(r.Stop, "Stop");
    v.I16(r.StepMode, "StepMode");
    v.I16(r.AutoStep, "AutoStep");
    v.F64(r.Step, "Step");
    v.Testo(r.FreqTable, 60, "FreqTable");
    v.I16(r.MinAtt, "MinAtt");
    v.F32(r.HoldTime, "HoldTime");
    v.F32(r.Margin, "Margin");
    for (auto& x : r.LineSwitch)
        v.I16(x, "LineSwitch");
    v.I16(r.Smart, "Smart");
    for (auto& x : r.Detector)
        v.I16(x, "Detector");
    for (auto& x : r.LineReserved0)
        v.I16(x, "LineReserved0");
    v.I16(r.LimitOn, "LimitOn");
    v.Testo(r.Limit, 60, "Limit");
    v.I16(r.PromptOn, "PromptOn");
    v.Testo(r.Prompt, 200, "Prompt");
    v.I16(r.RbwId, "RbwId");
    v.I16(r.NumStepFT, "NumStepFT");
    for (auto& x : r.Antenna)
        v.I16(x, "Antenna");
    v.F32(r.HoldTimeSD, "HoldTimeSD");
    v.I16(r.LimitDSDOn, "LimitDSDOn");
    v.Testo(r.LimitDSD, 60, "LimitDSD");
    v.F64(r.StepOriginal, "StepOriginal");
    for (auto& x : r.LineReserved1)
        v.I16(x, "LineReserved1");
    for (auto& x : r.LineReserved2)
        v.I32(x, "LineReserved2");
}
static_assert(DimensioneSuDisco<ScanLine>() == 1200);

inline constexpr size_t kMaxScanLine = 10;
using ScanTable = std::array<ScanLine, kMaxScanLine>;

struct ScanRecord {
    ScanTable Righe;
    int16_t WorstMode = 0; ///< 0 to 2
    int32_t NumWorst = 0;
    std::string ScanComment;
    int16_t GridRow = 0;
    int16_t GridCol = 0;
    std::array<uint8_t, 4> ScanReserved0{};
    std::array<int16_t, 99> ScanReserved1{};
    std::array<int32_t, 101> ScanReserved2{};
};

template <class Visita> constexpr void Campi(Visita& v, ScanRecord& r) {
    for (size_t i = 0; i < kMaxScanLine; ++i) {
        Gruppo(v, "ScanLine", i);
        Campi(v, r.Righe[i]);
    }
    FineGruppo(v);
    v.I16(r.WorstMode, "WorstMode");
    v.I32(r.NumWorst, "NumWorst");
    v.Testo(r.ScanComment, 60, "ScanComment");
    v.I16(r.GridRow, "GridRow");
    v.I16(r.GridCol, "GridCol");
    v.Riserva(r.ScanReserved0, "ScanReserved0");
    for (auto& x : r.ScanReserved1)
        v.I16(x, "ScanReserved1");
    for (auto& x : r.ScanReserved2)
        v.I32(x, "ScanReserved2");
}
static_assert(DimensioneSuDisco<ScanRecord>() == 12676);

} // namespace orvane
