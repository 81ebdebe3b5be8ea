// Units, ranges, the frequency axis, and its labels.
#include "graph/Scala.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "base/Numeri.h"
#include "setup/ComandoSweep.h"

namespace orvane {
namespace {

struct VoceLimitiScala {
    float unitOffset;
    int scaleTop;
    int scaleFloor;
};
constexpr std::array<VoceLimitiScala, 6> kLimitiScala = {{
    // The 0 stands where its neighbours have a negative floor, and the top lies below 0.
    {.unitOffset = -107.0f, .scaleTop = -2000, .scaleFloor = 0},
    {.unitOffset = 0.0f, .scaleTop = 9000, .scaleFloor = -10700},
    {.unitOffset = -34.0f, .scaleTop = 5000, .scaleFloor = -7300},
    {.unitOffset = -51.5f, .scaleTop = 5000, .scaleFloor = -5750},
    {.unitOffset = -49.5f, .scaleTop = 5000, .scaleFloor = -5550},
    {.unitOffset = -17.0f, .scaleTop = 7000, .scaleFloor = -9000},
}};

constexpr double kCentPerDb = 100;
/// Height of the scale that belongs to the margins above and below the grid.
constexpr double kMarginiCent = 1000;
constexpr double kMassimaX = 10000;
/// Two frequencies nearer than 1 mHz are one.
constexpr double kTolleranzaHz = 1e-3;
/// Above every frequency of the family; ends the walk over the decades.
constexpr double kUltimaDecadeHz = 1e13;

double DinamicaCent(int dinamicaId) {
    const int ultimo = static_cast<int>(kDinamicaTable.size()) - 1;
    return kCentPerDb * kDinamicaTable[static_cast<size_t>(std::clamp(dinamicaId, 0, ultimo))];
}

/// Without the last bits that a product or a sum of steps leaves behind.
double Ripulisci(double valore) {
    char testo[40];
    std::snprintf(testo, sizeof testo, "%.14e", valore);
    return LeggiNumero(testo).value_or(valore);
}

void ImpostaAsse(ScalaGrafico& scala) {
    if (!AsseValido(scala.start, scala.stop, scala.logaritmica) || !(scala.larghezzaPixel > 0))
        return;
    scala.XScale = scala.larghezzaPixel / (scala.logaritmica ? std::log(scala.stop / scala.start)
                                                             : scala.stop - scala.start);
    scala.XOffset = scala.XScale * (scala.logaritmica ? std::log(scala.start) : scala.start);
}

/// On a decade is what repeated multiplication by 10 from 1 meets exactly.
bool SuDecade(double freqHz) {
    double decade = 1;
    while (decade < freqHz)
        decade *= 10;
    return decade == freqHz;
}

double PrimaDecadeHz(double startHz) {
    const int esponente = static_cast<int>(std::log(std::max(startHz, 1.0)) / kLog10App);
    double decade = 1;
    for (int i = 0; i < esponente; ++i)
        decade *= 10;
    return decade;
}

bool PortaEtichetta(int cifra) {
    return cifra == 1 || cifra == 2 || cifra == 5;
}

} // namespace

void ImpostaLimitiScala(float unitOffset, int& scaleTop, int& scaleFloor) {
    const auto voce = std::find_if(kLimitiScala.begin(), kLimitiScala.end(),
                                   [&](const auto& v) { return v.unitOffset == unitOffset; });
    if (voce == kLimitiScala.end())
        return;
    scaleTop = voce->scaleTop;
    scaleFloor = voce->scaleFloor;
}

ScalaGrafico SetScaleGraph(const SetupRecord& setup, double startMhz, double stopMhz,
                           bool logaritmica, double larghezzaPixel, double refOffset) {
    ScalaGrafico s{.start = startMhz, .stop = stopMhz, .logaritmica = logaritmica};
    s.larghezzaPixel = larghezzaPixel;
    s.RangeDB = DinamicaCent(setup.DinamicaId) - kMarginiCent;
    s.TopLevel = s.RangeDB + setup.RefLevel * kCentPerDb + refOffset - DinamicaCent(0);
    // An attenuator on AUTO is stored as -1 and moves nothing.
    s.AttLevel = std::max<int>(setup.Attenuator, 0) * kCentPerDb;
    const float offset = ImpostaUnita(setup.UnitId);
    s.UnitOffset = static_cast<double>(offset);
    ImpostaLimitiScala(offset, s.ScaleTop, s.ScaleFloor);
    s.basso = s.TopLevel - s.RangeDB + s.AttLevel + s.ScaleTop;
    s.alto = s.TopLevel + s.AttLevel + s.ScaleTop;
    ImpostaAsse(s);
    return s;
}

bool AsseValido(double startMhz, double stopMhz, bool logaritmica) {
    return std::isfinite(startMhz) && std::isfinite(stopMhz) && startMhz < stopMhz &&
           (!logaritmica || startMhz > 0);
}

std::optional<double> PosizioneX(const ScalaGrafico& scala, double freqMhz) {
    if (!(scala.XScale > 0) || (scala.logaritmica && !(freqMhz > 0)))
        return std::nullopt;
    const double x =
        scala.XScale * (scala.logaritmica ? std::log(freqMhz) : freqMhz) - scala.XOffset;
    return std::isfinite(x) ? std::optional(x) : std::nullopt;
}

int FreqToX(const ScalaGrafico& scala, double freqMhz) {
    const double x = freqMhz == 0 ? 0 : std::round(PosizioneX(scala, freqMhz).value_or(0));
    // Far outside is 0, not the nearer edge: callers tell such places by it.
    return std::abs(x) > kMassimaX ? 0 : static_cast<int>(x);
}

double XToFreq(const ScalaGrafico& scala, double x) {
    if (!(scala.XScale > 0))
        return scala.start;
    const double posto = (x + scala.XOffset) / scala.XScale;
    return scala.logaritmica ? std::exp(posto) : posto;
}

std::string FormatFreqLabel(double mhz) {
    if (!std::isfinite(mhz))
        return {};
    const double f = Ripulisci(mhz);
    if (f <= 0)
        return TestoDaNumero(f == 0 ? 0.0 : Ripulisci(f * 1e6)) + " Hz";
    if (f < 1)
        return TestoDaNumero(Ripulisci(f * 1000)) + " k";
    if (f < 1000)
        return TestoDaNumero(f) + " M";
    return TestoDaNumero(Ripulisci(f / 1000)) + " G";
}

std::vector<Tacca> CalcolaDecade(double startMhz, double stopMhz) {
    if (!AsseValido(startMhz, stopMhz, true))
        return {};
    const double daHz = startMhz * 1e6 - kTolleranzaHz;
    const double aHz = std::min(stopMhz * 1e6 + kTolleranzaHz, kUltimaDecadeHz);
    std::vector<Tacca> tacche;
    int etichette = 0;
    for (double decade = PrimaDecadeHz(daHz); decade <= aHz; decade *= 10) {
        for (int cifra = 1; cifra <= 9; ++cifra) {
            const double hz = cifra * decade;
            if (hz < daHz || hz > aHz)
                continue;
            const bool scritta = PortaEtichetta(cifra);
            etichette += scritta;
            tacche.push_back({.freqMhz = hz / 1e6,
                              .decade = SuDecade(hz),
                              .etichetta = scritta ? FormatFreqLabel(hz / 1e6) : std::string()});
        }
    }
    for (auto& tacca : tacche)
        if (etichette < 2)
            tacca.etichetta = FormatFreqLabel(tacca.freqMhz);
    return tacche;
}

} // namespace orvane
