// All measuring settings: the whole of an EAM file, and the second part of each KSH.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "records/Visite.h"

namespace orvane {

/// Ranges called `Riserva...` belong to the live modes and the positioner settings; they are kept
/// byte for byte.
struct SetupRecord {
    double GraphStart = 0; ///< left end of the frequency axis, MHz
    double GraphStop = 0;  ///< right end, MHz
    int16_t GraphFlag = 0;
    float HoldTimeAn = 0;
    std::array<float, 2> ScaleAn{};
    int16_t Coupled = 0;
    int16_t MaxHold = 0;
    int16_t KeepTrace = 0;
    int16_t ParAn = 0;
    std::array<uint8_t, 604> Riserva38{};
    double FreqMa = 0; ///< MHz
    float SpanMa = 0;
    int16_t VolumeMa = 0;
    int16_t ParMa1 = 0;
    int16_t ManualOld = 0; ///< an older release's Manual level
    int16_t HoldTimeMa = 0;
    int16_t MaxHoldMa = 0;
    int16_t MaxHoldInf = 0;
    int16_t ParMa2 = 0;
    std::array<uint8_t, 198> Riserva668{};
    float ManualLevel = 0;
    std::array<uint8_t, 400> Riserva870{};
    std::string BWIFText;
    int16_t BWIFId = 0;
    int16_t MinAtt = 0;
    int16_t Attenuator = 0; ///< dB; -1 for AUTO
    int16_t PreSel = 0;
    int16_t PreAmp = 0;
    std::array<int16_t, 4> DetectorAn{};
    std::array<int16_t, 10> LimitOn{};
    std::array<std::string, 10> LimitName{};
    std::array<uint8_t, 606> Riserva1928{};
    int16_t Mode = 0; ///< tab of `SSTabMode`; 5 is the Sweeps Archive
    int16_t DinamicaId = 0;
    int16_t RefLevel = 0; ///< dB
    int16_t PulseLim = 0; ///< pulse limiter, 0 or 1
    double TGLevel = 0;
    int16_t RFOut = 0; ///< generator output, 0 or 1
    double TGFreq = 0; ///< MHz
    int16_t TGOn = 0;
    std::array<std::string, 7> FactorName{};
    std::array<int16_t, 7> FactorOn{};
    int16_t SommaFact = 0;
    int16_t UnitId = 0;        ///< 0 to 7
    int16_t AncillaryKind = 0; ///< as stored; read it through `AncillaryDi`
    int16_t AntennaGX2207 = 0; ///< rod antenna on the GX2207
    int16_t FiltroHP150 = 0;   ///< its 150 kHz high-pass
    int16_t AltaImpedenza = 0; ///< its high impedance input
    int16_t InsLossOn = 0;     ///< Insertion Loss active
    std::array<uint8_t, 600> Riserva3010{};
    int16_t OverwriteWarning = 0; ///< 0 off, -1 on
    int16_t OrderForDate = 0;     ///< menu marks, 0 off, -1 on
    int16_t SymbolOnPeaks = 0;
    int16_t TableUnitId = 0;
    int16_t GX2207FFTSwept = 0;
    int16_t CheckSweepArchiveSize = 0;
    int16_t ZoomModeA = 0;
    int16_t ZoomModeB = 0;
    int16_t AutoReportMode = 0;               ///< 0 none, 1 text, 2 PDF, 3 RTF, after each sweep
    float MeasUncertainty = 0;                ///< dB, of the verdict; 0 and more
    std::array<int16_t, 2> VerdictDetector{}; ///< of each limit: 0 by its title, 1 to 6 a detector
    std::array<uint8_t, 28> Riserva3636{};
    std::string AntennaName;
    std::array<uint8_t, 98> Riserva3724{};
    float InsLossRef = 0;
    std::array<uint8_t, 400> Riserva3826{};
    std::string SwRelease; ///< printed after "Rel. SW "
    std::string FwRelease; ///< printed after "Rel. FW "
    std::string SerialA;
    std::string SerialB;
    std::array<uint8_t, 2> Riserva4306{};
    std::string ModelText;
    std::array<uint8_t, 604> Riserva4320{};
    std::array<uint8_t, 170> Spare{}; ///< 85 empty counted strings
};

template <class Visita> constexpr void Campi(Visita& v, SetupRecord& r) {
    v.F64(r.GraphStart, "GraphStart");
    v.F64(r.GraphStop, "GraphStop");
    v.I16(r.GraphFlag, "GraphFlag");
    v.F32(r.HoldTimeAn, "HoldTimeAn");
    for (auto& x : r.ScaleAn)
        v.F32(x, "ScaleAn");
    v.I16(r.Coupled, "Coupled");
    v.I16(r.MaxHold, "MaxHold");
    v.I16(r.KeepTrace, "KeepTrace");
    v.I16(r.ParAn, "ParAn");
    v.Riserva(r.Riserva38);
    v.F64(r.FreqMa, "FreqMa");
    v.F32(r.SpanMa, "SpanMa");
    v.I16(r.VolumeMa, "VolumeMa");
    v.I16(r.ParMa1, "ParMa1");
    v.I16(r.ManualOld, "ManualOld");
    v.I16(r.HoldTimeMa, "HoldTimeMa");
    v.I16(r.MaxHoldMa, "MaxHoldMa");
    v.I16(r.MaxHoldInf, "MaxHoldInf");
    v.I16(r.ParMa2, "ParMa2");
    v.Riserva(r.Riserva668);
    v.F32(r.ManualLevel, "ManualLevel");
    v.Riserva(r.Riserva870);
    v.Testo(r.BWIFText, 20, "BWIFText");
    v.I16(r.BWIFId, "BWIFId");
    v.I16(r.MinAtt, "MinAtt");
    v.I16(r.Attenuator, "Attenuator");
    v.I16(r.PreSel, "PreSel");
    v.I16(r.PreAmp, "PreAmp");
    for (auto& x : r.DetectorAn)
        v.I16(x, "DetectorAn");
    for (auto& x : r.LimitOn)
        v.I16(x, "LimitOn");
    for (auto& x : r.LimitName)
        v.Testo(x, 60, "LimitName");
    v.Riserva(r.Riserva1928);
    v.I16(r.Mode, "Mode");
    v.I16(r.DinamicaId, "DinamicaId");
    v.I16(r.RefLevel, "RefLevel");
    v.I16(r.PulseLim, "PulseLim");
    v.F64(r.TGLevel, "TGLevel");
    v.I16(r.RFOut, "RFOut");
    v.F64(r.TGFreq, "TGFreq");
    v.I16(r.TGOn, "TGOn");
    for (auto& x : r.FactorName)
        v.Testo(x, 60, "FactorName");
    for (auto& x : r.FactorOn)
        v.I16(x, "FactorOn");
    v.I16(r.SommaFact, "SommaFact");
    v.I16(r.UnitId, "UnitId");
    v.I16(r.AncillaryKind, "AncillaryKind");
    v.I16(r.AntennaGX2207, "AntennaGX2207");
    v.I16(r.FiltroHP150, "FiltroHP150");
    v.I16(r.AltaImpedenza, "AltaImpedenza");
    v.I16(r.InsLossOn, "InsLossOn");
    v.Riserva(r.Riserva3010);
    v.I16(r.OverwriteWarning, "OverwriteWarning");
    v.I16(r.OrderForDate, "OrderForDate");
    v.I16(r.SymbolOnPeaks, "SymbolOnPeaks");
    v.I16(r.TableUnitId, "TableUnitId");
    v.I16(r.GX2207FFTSwept, "GX2207FFTSwept");
    v.I16(r.CheckSweepArchiveSize, "CheckSweepArchiveSize");
    v.I16(r.ZoomModeA, "ZoomModeA");
    v.I16(r.ZoomModeB, "ZoomModeB");
    v.I16(r.AutoReportMode, "AutoReportMode");
    v.F32(r.MeasUncertainty, "MeasUncertainty");
    for (auto& x : r.VerdictDetector)
        v.I16(x, "VerdictDetector");
    v.Riserva(r.Riserva3636);
    v.Testo(r.AntennaName, 60, "AntennaName");
    v.Riserva(r.Riserva3724);
    v.F32(r.InsLossRef, "InsLossRef");
    v.Riserva(r.Riserva3826);
    v.Testo(r.SwRelease, 30, "SwRelease");
    v.Testo(r.FwRelease, 30, "FwRelease");
    v.Testo(r.SerialA, 10, "SerialA");
    v.Testo(r.SerialB, 10, "SerialB");
    v.Riserva(r.Riserva4306);
    v.Testo(r.ModelText, 12, "ModelText");
    v.Riserva(r.Riserva4320);
    v.Riserva(r.Spare, "Spare");
}
static_assert(DimensioneSuDisco<SetupRecord>() == 5094);

inline constexpr int16_t kMaxAncillaryKind = 6;
/// What is attached, 0 to 6, whatever a file holds.
inline int AncillaryDi(const SetupRecord& setup) {
    return std::clamp<int16_t>(setup.AncillaryKind, 0, kMaxAncillaryKind);
}

} // namespace orvane
