#include "setup/StimaDurata.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/Numeri.h"
#include "data/Cartelle.h"
#include "data/TabelleFrequenza.h"
#include "setup/CommutatoriSweep.h"
#include "setup/ListaFrequenze.h"
#include "setup/RegoleRiga.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

constexpr double kMsPerPasso = 0.1;
constexpr double kMsMinimi = 0.1;
constexpr double kPuntiPerFFT = 1000;
constexpr double kQuotaSmart = 0.05;
constexpr double kSecondiPerPassata = 0.5;

/// Bandwidths in kHz by `RbwId`; 0 for a separator.
constexpr std::array<double, kNumRbw> kKHz = {1000, 120, 9, 0.2, 0,  300, 100, 30,
                                              10,   3,   1, 0,   10, 1,   0.1, 0.01};

/// ms of one measurement: "Lowest" is two periods of the filter.
double MsDiMisura(const ScanLine& riga, double holdMs) {
    const double kHz =
        riga.RbwId >= 0 && riga.RbwId < kNumRbw ? kKHz[static_cast<size_t>(riga.RbwId)] : 0;
    const double lowest = kHz > 0 ? std::max(2 / kHz, kMsMinimi) : kMsMinimi;
    return holdMs > 0 ? holdMs : lowest;
}

/// ms of the measurements that a Smart line makes again, over all its points.
double MsDiConferma(const ScanLine& riga, double punti) {
    if (riga.Smart != 1)
        return 0;
    const auto detector = std::count(riga.Detector.begin(), riga.Detector.end(), int16_t{1});
    const double volte = std::max<double>(1, static_cast<double>(detector));
    return punti * kQuotaSmart * volte * (MsDiMisura(riga, riga.HoldTime) + kMsPerPasso);
}

/// Smart decides by the hold time of its peak scan, and two detectors under it leave no FFT.
bool PassataFFT(const ScanLine& riga) {
    constexpr float kHoldFFT = 50; // ms
    const bool smart = riga.Smart == 1;
    const bool esclusa = ControllaCondizioniDSDScanTab(riga) || riga.HoldTimeSD >= kHoldFFT;
    return ControllaScanFFT(riga) && !(smart && esclusa);
}

double MsDellaPassata(const ScanLine& riga, double punti) {
    const double una = MsDiMisura(riga, riga.Smart == 1 ? riga.HoldTimeSD : riga.HoldTime);
    const double prese = PassataFFT(riga) ? std::ceil(punti / kPuntiPerFFT) : punti;
    return prese * (una + kMsPerPasso) + MsDiConferma(riga, punti);
}

std::string_view NomePassata(int ancillaryKind) {
    if (ancillaryKind == 3)
        return "polarisation";
    return ancillaryKind == 4 ? "output" : "line";
}

/// "5 971": groups of three digits.
std::string Raggruppa(long long numero) {
    std::string testo = TestoIntero(numero);
    for (size_t i = testo.size(); i > 3;) {
        i -= 3;
        testo.insert(i, " ");
    }
    return testo;
}

std::string Contati(long long numero, std::string_view nome) {
    return Raggruppa(numero) + " " + std::string(nome) + (numero == 1 ? "" : "s");
}

/// Two units, the smaller one left out where it is 0: "3 min 20 s".
std::string DueUnita(long long grande, const char* nome, long long piccola, const char* altro) {
    const std::string testo = Raggruppa(grande) + nome;
    return piccola == 0 ? testo : testo + " " + TestoIntero(piccola) + altro;
}

} // namespace

long long PuntiDaFreqTable(const ScanLine& riga, const FrequencyTable& tabella) {
    if (!(riga.Stop > riga.Start))
        return 0;
    return static_cast<long long>(std::min(CreaElencoFreqTab(tabella, riga).size(), kMaxFreqTable));
}

StimaSweep StimaRiga(const ScanLine& riga, int ancillaryKind, const FrequencyTable* tabella) {
    StimaSweep stima{.passate = static_cast<int>(PassateDellaRiga(riga, ancillaryKind).size())};
    if (riga.StepMode != 1)
        stima.punti = PassiDellaRiga(riga);
    else if (tabella)
        stima.punti = PuntiDaFreqTable(riga, *tabella);
    const double ms = MsDellaPassata(riga, static_cast<double>(stima.punti));
    stima.secondi = stima.passate * (ms / 1000 + kSecondiPerPassata);
    return stima;
}

StimaSweep SommaStime(const StimaSweep& a, const StimaSweep& b) {
    StimaSweep somma{
        .punti = a.punti + b.punti, .passate = a.passate, .secondi = a.secondi + b.secondi};
    if (a.passate != b.passate) {
        const auto tutti = [](const StimaSweep& s) { return s.punti * std::max(1, s.passate); };
        somma.punti = tutti(a) + tutti(b);
        somma.passate = 0;
    }
    return somma;
}

StimaSweep StimaTabella(const AlberoDati& albero, const ScanTable& tabella, int ancillaryKind) {
    StimaSweep somma{.passate = 0};
    bool prima = true;
    for (const ScanLine& riga : tabella) {
        if (riga.Start == 0)
            continue;
        const std::string percorso = std::string(cartella::kTable) + riga.FreqTable + ".5SF";
        const auto dati = riga.StepMode == 1 ? albero.Leggi(percorso, kByteFTM) : std::nullopt;
        const FrequencyTable frequenze =
            dati ? LeggiFreqTab(FormaFreqTab::Semplice, *dati) : FrequencyTable{};
        const StimaSweep una = StimaRiga(riga, ancillaryKind, dati ? &frequenze : nullptr);
        somma = prima ? una : SommaStime(somma, una);
        prima = false;
    }
    return somma;
}

std::string TestoStima(const StimaSweep& stima, int ancillaryKind) {
    std::string testo = Contati(stima.punti, "point");
    if (stima.passate > 1)
        testo += " \u00D7 " + Contati(stima.passate, NomePassata(ancillaryKind));
    if (stima.punti > 0)
        testo += " \u00B7 " + std::string(stima.secondi < 1 ? "" : "about ") +
                 TestoTempoStimato(stima.secondi);
    return testo;
}

std::string TestoTempoStimato(double secondi) {
    if (!(secondi >= 1))
        return "less than 1 s";
    const auto s = std::llround(std::min(secondi, 1e12));
    if (s < 60)
        return TestoIntero(s) + " s";
    if (s < 3600)
        return DueUnita(s / 60, " min", s % 60, " s");
    const long long minuti = std::llround(std::min(secondi, 1e12) / 60);
    return DueUnita(minuti / 60, " h", minuti % 60, " min");
}

} // namespace orvane
