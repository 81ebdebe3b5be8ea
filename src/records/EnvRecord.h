// The console's environment: look, link, colours, current paths. The whole of an EPN or COL file.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "records/Visite.h"

namespace orvane {

/// A colour as files hold it: red in the low byte, then green, then blue.
constexpr int32_t Rgb(int rosso, int verde, int blu) {
    return rosso | verde << 8 | blu << 16;
}

struct EnvRecord {
    std::array<int16_t, 5> Window1{};
    std::array<uint8_t, 54> Window2{};
    std::array<uint8_t, 168> LookValues{};
    int16_t AutoStart = 0;
    int16_t LinkKind = 1; ///< 0 serial, 1 USB
    int16_t LinkPort = 1; ///< COM number, 1 or more
    std::string ScanPanelPath;
    std::string SetupPanelPath;
    std::string SweepPath;
    std::array<uint8_t, 4> ExportFlags{};
    int16_t ScanTabView = 0;
    int16_t ExportMode = 0;
    int16_t ReportFlag = 0;
    float ReportValue = 0;
    int16_t ReportMode1 = 0;
    int16_t ReportMode2 = 0;
    std::array<int16_t, 99> ReportList{};
    std::array<float, 2> WaterfallScale{};
    std::array<uint8_t, 434> WaterfallValues{};
    /// Grid: dotted, sub and main line, each for screen and for print; then traces and labels.
    std::array<int32_t, 50> GraphColors{};
    std::string PathA;
    std::string PathB;
};

template <class Visita> constexpr void Campi(Visita& v, EnvRecord& r) {
    for (auto& x : r.Window1)
        v.I16(x, "Window1");
    v.Riserva(r.Window2, "Window2");
    v.Riserva(r.LookValues, "LookValues");
    v.I16(r.AutoStart, "AutoStart");
    v.I16(r.LinkKind, "LinkKind");
    v.I16(r.LinkPort, "LinkPort");
    v.Testo(r.ScanPanelPath, 200, "ScanPanelPath");
    v.Testo(r.SetupPanelPath, 200, "SetupPanelPath");
    v.Testo(r.SweepPath, 200, "SweepPath");
    v.Riserva(r.ExportFlags, "ExportFlags");
    v.I16(r.ScanTabView, "ScanTabView");
    v.I16(r.ExportMode, "ExportMode");
    v.I16(r.ReportFlag, "ReportFlag");
    v.F32(r.ReportValue, "ReportValue");
    v.I16(r.ReportMode1, "ReportMode1");
    v.I16(r.ReportMode2, "ReportMode2");
    for (auto& x : r.ReportList)
        v.I16(x, "ReportList");
    for (auto& x : r.WaterfallScale)
        v.F32(x, "WaterfallScale");
    v.Riserva(r.WaterfallValues, "WaterfallValues");
    for (auto& x : r.GraphColors)
        v.I32(x, "GraphColors");
    v.Testo(r.PathA, 200, "PathA");
    v.Testo(r.PathB, 200, "PathB");
}
static_assert(DimensioneSuDisco<EnvRecord>() == 2096);

} // namespace orvane
