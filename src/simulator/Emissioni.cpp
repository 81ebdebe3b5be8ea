// The emissions: mains, a switching supply, clocks, broadcast and mobile services.
#include "simulator/Emissioni.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

/// Ordinals that keep the draws of one kind apart from those of another.
enum Mazzo : uint64_t { kMazzoRete, kMazzoPettine, kMazzoOrologio, kMazzoOnda, kMazzoCanale };

/// Parabola in decades around a centre, in dB; far off it is nothing.
double Gobba(double freqHz, double centroHz, double decadi, double altezza, double piede) {
    const double x = std::log10(freqHz / centroHz) / decadi;
    return piede + altezza * std::exp(-x * x);
}

double Sparsi(uint64_t seme, Mazzo mazzo, uint64_t indice, double ampiezza) {
    return (Sorte(seme, mazzo, indice) - 0.5) * 2 * ampiezza;
}

class Raccolta {
public:
    Raccolta(double minHz, double maxHz) : minHz_(minHz), maxHz_(maxHz) {}
    void Aggiungi(double freqHz, double db, ClasseRiga classe, double mezzaLarghezzaHz = 0) {
        if (freqHz >= minHz_ && freqHz <= maxHz_)
            righe.push_back({freqHz, mezzaLarghezzaHz, static_cast<float>(db * 100), classe});
    }
    /// Ordinals of the harmonics of `fondamentale` that lie in the range, at most `ultima`.
    std::pair<int, int> Armoniche(double fondamentale, int ultima) const {
        const double prima = std::ceil(minHz_ / fondamentale);
        const double fine = std::floor(maxHz_ / fondamentale);
        return {prima < 1 ? 1 : static_cast<int>(std::min<double>(prima, ultima + 1)),
                static_cast<int>(std::min<double>(fine, ultima))};
    }
    std::vector<RigaSpettro> righe;

private:
    double minHz_, maxHz_;
};

void AggiungiRete(uint64_t seme, Raccolta& raccolta) {
    const auto [prima, ultima] = raccolta.Armoniche(50, 60);
    for (int n = prima; n <= ultima; ++n) {
        const double db = (n % 2 ? 74 : 52) - 19 * std::log10(n) + Sparsi(seme, kMazzoRete, n, 3);
        raccolta.Aggiungi(50.0 * n, db, kRete);
    }
}

/// Odd harmonics lead, all of them fall, and the board's resonance lifts those around 14 MHz.
double LivelloArmonica(uint64_t seme, int n, double freqHz) {
    const double calo = freqHz > 18e6 ? 40 * std::log10(freqHz / 18e6) : 0;
    return 73 - calo - (n % 2 ? 0 : 5) - 17.5 * std::log10(n) + Gobba(freqHz, 14e6, 0.22, 10, 0) +
           Sparsi(seme, kMazzoPettine, n, 2.2);
}

void AggiungiPettine(uint64_t seme, Raccolta& raccolta) {
    const double fondamentale = 65e3 * (1 + 0.03 * Sparsi(seme, kMazzoPettine, 0, 1));
    const auto [prima, ultima] = raccolta.Armoniche(fondamentale, 620);
    for (int n = prima; n <= ultima; ++n) {
        // The switching frequency wanders by a few parts in ten thousand: high harmonics broaden.
        const double freq = fondamentale * n;
        raccolta.Aggiungi(freq, LivelloArmonica(seme, n, freq), kImpulsi, freq * 1.5e-4);
    }
}

void AggiungiOrologio(uint64_t seme, uint64_t quale, Raccolta& raccolta) {
    constexpr double kQuarzi[] = {24e6, 24.576e6, 25e6, 26e6, 27e6, 32e6, 33.333e6, 48e6, 50e6};
    const double quarzo =
        kQuarzi[static_cast<size_t>(Sorte(seme, kMazzoOrologio, quale) * std::size(kQuarzi))];
    const double base = quale == 0 ? 62 : 51;
    const auto [prima, ultima] = raccolta.Armoniche(quarzo, quale == 0 ? 120 : 45);
    for (int n = prima; n <= ultima; ++n) {
        const double sorte = Sparsi(seme, kMazzoOrologio, 1000 * (quale + 1) + n, 5);
        const double db = base - (n % 2 ? 0 : 7) - 15 * std::log10(n) + sorte;
        raccolta.Aggiungi(quarzo * n, db, kPortante, 400);
    }
}

/// A service with its stations on a raster.
struct Servizio {
    double daHz, aHz, rasterHz;
    int stazioni;
    double dbMin, dbMax;
    ClasseRiga classe;
    double mezzaLarghezzaHz;
};
constexpr Servizio kServizi[] = {
    {0.531e6, 1.602e6, 9e3, 9, 24, 46, kAmpiezzaModulata, 2e3},
    {5.9e6, 6.2e6, 5e3, 3, 20, 36, kAmpiezzaModulata, 2e3},
    {9.4e6, 9.9e6, 5e3, 4, 20, 38, kAmpiezzaModulata, 2e3},
    {87.6e6, 107.9e6, 100e3, 16, 28, 63, kPortante, 55e3},
    {118e6, 136.9e6, 25e3, 3, 22, 34, kAmpiezzaModulata, 3e3},
    {156e6, 162e6, 25e3, 2, 24, 36, kPortante, 5e3},
    {380e6, 395e6, 25e3, 3, 28, 44, kPortante, 9e3},
    {430e6, 440e6, 12.5e3, 2, 24, 40, kPortante, 4e3},
    {925e6, 958e6, 200e3, 6, 34, 52, kPortante, 80e3},
    {5.18e9, 5.7e9, 20e6, 2, 38, 46, kAmpiezzaModulata, 2e6},
    {9.3e9, 9.5e9, 10e6, 2, 40, 52, kImpulsi, 1e6},
    {10.5e9, 12.7e9, 40e6, 5, 36, 48, kPortante, 200e3},
    {14e9, 17.9e9, 100e6, 4, 36, 46, kPortante, 200e3},
};

void AggiungiServizi(uint64_t seme, Raccolta& raccolta) {
    uint64_t ordinale = 0;
    for (const Servizio& s : kServizi)
        for (int i = 0; i < s.stazioni; ++i, ordinale += 2) {
            const double posti = std::floor((s.aHz - s.daHz) / s.rasterHz);
            const double posto = std::floor(Sorte(seme, kMazzoOnda, ordinale) * (posti + 1));
            const double db = s.dbMin + (s.dbMax - s.dbMin) * Sorte(seme, kMazzoOnda, ordinale + 1);
            raccolta.Aggiungi(s.daHz + posto * s.rasterHz, db, s.classe, s.mezzaLarghezzaHz);
        }
}

/// Digital channels: how many of the raster are on the air.
struct Banda {
    double daHz, rasterHz;
    int posti;
    double larghezzaHz, quota, dbMin, dbMax;
};
constexpr Banda kBande[] = {
    {174.928e6, 1.712e6, 38, 1.54e6, 0.14, 18, 28},
    {474e6, 8e6, 27, 7.6e6, 0.3, 16, 27},
    {796e6, 10e6, 3, 9e6, 0.9, 18, 26},
    {1815e6, 20e6, 4, 18e6, 0.7, 9, 17},
    {2120e6, 10e6, 5, 9e6, 0.6, 8, 15},
    {2412e6, 25e6, 3, 17e6, 0.8, 8, 18},
    {3500e6, 80e6, 3, 76e6, 0.6, 6, 12},
};

} // namespace

uint64_t Mescola(uint64_t x) {
    x += 0x9e3779b97f4a7c15u;
    x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9u;
    x = (x ^ (x >> 27)) * 0x94d049bb133111ebu;
    return x ^ (x >> 31);
}

double Sorte(uint64_t seme, uint64_t quale, uint64_t indice) {
    const uint64_t x = Mescola(Mescola(seme * 131 + quale) + indice);
    return static_cast<double>(x >> 11) * 0x1p-53;
}

double FondoRicevitore(double freqHz) {
    const double rumoreUnoSuF = freqHz < 150e3 ? 7 * std::log10(150e3 / freqHz) : 0;
    // From one range to the next the receiver gets quieter by what its usual filter gets wider.
    const double sopra30 = std::clamp(std::log10(freqHz / 29e6) / 0.045, 0.0, 1.0);
    const double sopra1000 = std::clamp(std::log10(freqHz / 0.96e9) / 0.05, 0.0, 1.0);
    const double salita = freqHz > 30e6 ? 2.2 * std::log10(freqHz / 30e6) : 0;
    return 10 + rumoreUnoSuF - 11 * sopra30 - 10 * sopra1000 + salita;
}

double FondoApparato(double freqHz) {
    const double rete = 44 - 26 * std::log10(std::max(freqHz, 1e3) / 9e3);
    const double gobba = Gobba(freqHz, 14.5e6, 0.29, 90, -60);
    const double cavi = Gobba(freqHz, 65e6, 0.25, 64, -60);
    return std::max({rete, gobba, cavi});
}

std::vector<RigaSpettro> RigheEmesse(uint64_t seme, double minHz, double maxHz) {
    Raccolta raccolta(minHz, maxHz);
    AggiungiRete(seme, raccolta);
    AggiungiPettine(seme, raccolta);
    AggiungiOrologio(seme, 0, raccolta);
    AggiungiOrologio(seme, 1, raccolta);
    AggiungiServizi(seme, raccolta);
    std::ranges::sort(raccolta.righe, {}, &RigaSpettro::freqHz);
    return std::move(raccolta.righe);
}

std::vector<Altopiano> AltopianiEmessi(uint64_t seme, double minHz, double maxHz) {
    std::vector<Altopiano> altopiani;
    uint64_t ordinale = 0;
    for (const Banda& b : kBande)
        for (int i = 0; i < b.posti; ++i, ordinale += 2) {
            const double freq = b.daHz + i * b.rasterHz;
            if (freq < minHz || freq > maxHz || Sorte(seme, kMazzoCanale, ordinale) >= b.quota)
                continue;
            const double db =
                b.dbMin + (b.dbMax - b.dbMin) * Sorte(seme, kMazzoCanale, ordinale + 1);
            altopiani.push_back({freq, b.larghezzaHz / 2, static_cast<float>(db * 100)});
        }
    return altopiani;
}

} // namespace orvane
