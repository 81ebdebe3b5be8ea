#include "base/Testo.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

// A and E keep their hold in `holdTimeSD` and leave `holdTime` at 0, unlike all others: archives
// of scan tables rely on it.
constexpr std::array<VoceBanda, 26> kBande = {{
    {.nome = "A", .startMhz = 0.009, .stopMhz = 0.15, .rbwId = 3, .holdTimeSD = 62},
    {.nome = "B", .startMhz = 0.15, .stopMhz = 30, .rbwId = 2, .holdTime = 1.9f},
    {.nome = "A+B",
     .startMhz = 0.009,
     .stopMhz = 0.15,
     .rbwId = 3,
     .holdTimeSD = 62,
     .seguenti = {1, -1, -1}},
    {.nome = "C", .startMhz = 30, .stopMhz = 300, .rbwId = 1, .holdTime = 0.2f},
    {.nome = "D", .startMhz = 300, .stopMhz = 1000, .rbwId = 1, .holdTime = 0.2f},
    {.nome = "E", .startMhz = 1000, .stopMhz = 6000, .rbwId = 0, .holdTimeSD = 0.1f},
    {.nome = "C+D", .startMhz = 30, .stopMhz = 1000, .rbwId = 1, .holdTime = 0.2f},
    {.nome = "D+E",
     .startMhz = 300,
     .stopMhz = 1000,
     .rbwId = 1,
     .holdTime = 0.2f,
     .seguenti = {5, -1, -1}},
    {.nome = "C+D+E",
     .startMhz = 30,
     .stopMhz = 1000,
     .rbwId = 1,
     .holdTime = 0.2f,
     .seguenti = {5, -1, -1}},
    {.nome = "---- Mil Scan ----"},
    {.nome = "30Hz_to_1kHz",
     .startMhz = 0.00003,
     .stopMhz = 0.001,
     .rbwId = 15,
     .holdTime = 323,
     .autoStep = 0},
    {.nome = "30Hz_to_30MHz",
     .startMhz = 0.00003,
     .stopMhz = 0.001,
     .rbwId = 15,
     .holdTime = 323,
     .autoStep = 0,
     .seguenti = {12, 14, 16}},
    {.nome = "1kHz_to_10kHz",
     .startMhz = 0.001,
     .stopMhz = 0.01,
     .rbwId = 14,
     .holdTime = 29,
     .autoStep = 0},
    {.nome = "1kHz_to_30MHz",
     .startMhz = 0.001,
     .stopMhz = 0.01,
     .rbwId = 14,
     .holdTime = 29,
     .autoStep = 0,
     .seguenti = {14, 16, -1}},
    {.nome = "10kHz_to_150kHz",
     .startMhz = 0.01,
     .stopMhz = 0.15,
     .rbwId = 13,
     .holdTime = 4.5f,
     .autoStep = 0},
    {.nome = "10kHz_to_30MHz",
     .startMhz = 0.01,
     .stopMhz = 0.15,
     .rbwId = 13,
     .holdTime = 4.5f,
     .autoStep = 0,
     .seguenti = {16, -1, -1}},
    {.nome = "150kHz_to_30MHz",
     .startMhz = 0.15,
     .stopMhz = 30,
     .rbwId = 12,
     .holdTime = 0.9f,
     .autoStep = 0},
    {.nome = "30MHz_to_1GHz",
     .startMhz = 30,
     .stopMhz = 1000,
     .rbwId = 6,
     .holdTime = 0.1f,
     .autoStep = 0},
    {.nome = "30MHz_to_3GHz",
     .startMhz = 30,
     .stopMhz = 1000,
     .rbwId = 6,
     .holdTime = 0.1f,
     .autoStep = 0,
     .seguenti = {20, -1, -1}},
    {.nome = "30MHz_to_6GHz",
     .startMhz = 30,
     .stopMhz = 1000,
     .rbwId = 6,
     .holdTime = 0.1f,
     .autoStep = 0,
     .seguenti = {21, -1, -1}},
    {.nome = "1GHz_to_3GHz",
     .startMhz = 1000,
     .stopMhz = 3000,
     .rbwId = 0,
     .holdTime = 0.1f,
     .autoStep = 0},
    {.nome = "1GHz_to_6GHz",
     .startMhz = 1000,
     .stopMhz = 6000,
     .rbwId = 0,
     .holdTime = 0.1f,
     .autoStep = 0},
    {.nome = "6GHz_to_18GHz",
     .startMhz = 6000,
     .stopMhz = 18000,
     .rbwId = 0,
     .holdTime = 0.1f,
     .autoStep = 0,
     .preSel = 1},
    {.nome = "------------------"},
    {.nome = "IEC 62493 Annex E",
     .startMhz = 0.02,
     .stopMhz = 0.15,
     .rbwId = 3,
     .holdTime = 100,
     .autoStep = 0,
     .stepMhz = 0.00022,
     .preSel = 1,
     .minAtt = 0,
     .seguenti = {25, -1, -1}},
    {.nome = "",
     .startMhz = 0.15,
     .stopMhz = 10,
     .rbwId = 2,
     .holdTime = 20,
     .autoStep = 0,
     .stepMhz = 0.01,
     .preSel = 1,
     .minAtt = 0,
     .elencata = false},
}};

} // namespace

std::span<const VoceBanda> TabellaBande() {
    return kBande;
}

int TrovaBanda(std::string_view nome) {
    for (size_t i = 0; i < kBande.size(); ++i)
        if (kBande[i].elencata && kBande[i].startMhz != 0 &&
            UgualiSenzaMaiuscole(kBande[i].nome, nome))
            return static_cast<int>(i);
    return -1;
}

void ImpostaBanda(ScanLine& riga, const VoceBanda& banda, int ancillaryKind) {
    ImpostaLineaDefault(riga, ancillaryKind);
    riga.Start = banda.startMhz;
    riga.Stop = banda.stopMhz;
    riga.RbwId = banda.rbwId;
    riga.HoldTime = banda.holdTime;
    riga.HoldTimeSD = banda.holdTimeSD;
    riga.AutoStep = banda.autoStep;
    // The filter's step, even where `AutoStep` is 0; the finer step of an FFT scan comes later.
    riga.Step = banda.stepMhz != 0 ? banda.stepMhz
                                   : TabellaRbw()[static_cast<size_t>(banda.rbwId)].passoAuto;
    riga.PreSel = banda.preSel;
    riga.MinAtt = banda.minAtt;
}

} // namespace orvane
