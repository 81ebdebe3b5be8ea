#include "graph/RighePicchi.h"

#include "base/Numeri.h"
#include "data/Interpolazione.h"
#include "graph/Marcatori.h"
#include "graph/Scala.h"
#include "graph/Verdetto.h"

namespace orvane {
namespace {

constexpr std::string_view kMhz = " MHz";
constexpr const char* kNiente = "---";
constexpr std::array<const char*, kNumDetector> kSigle = {"PK", "QP",     "RMS",
                                                          "AV", "RMS-AV", "C-AV"};

/// A limit that is on, with the detector held against it.
struct LimiteAcceso {
    size_t slot = 0;
    const LimFacRecord* tabella = nullptr;
    DetectorKind detector = DetectorKind::Peak;
};

std::vector<LimiteAcceso> LimitiAccesi(const MisuraAperta& misura, const SetupRecord& setup) {
    std::vector<LimiteAcceso> accesi;
    for (size_t slot = 0; slot < setup.VerdictDetector.size(); ++slot) {
        const LimFacRecord& tabella = misura.tabelle.slot[kPrimoLimite + slot];
        if (setup.LimitOn[slot] != 1 || NumeroPunti(tabella) == 0)
            continue;
        accesi.push_back({slot, &tabella,
                          DetectorDelLimite(setup.VerdictDetector[slot], setup.LimitName[slot],
                                            tabella, misura.detector)});
    }
    return accesi;
}

std::string Decibel(int cent, double piu) {
    return TestoFisso(cent / 100.0 + piu, 2);
}

RigaPicco::Confronto Confronta(const LimiteAcceso& limite, const CampioneTraccia& campione,
                               double unita) {
    const int16_t valore =
        ValoreLimite(*limite.tabella, static_cast<float>(campione.freqMhz * 1e6));
    if (valore == kNessunValore)
        return {kNiente, kNiente, false};
    const int16_t livello = campione.livello[static_cast<size_t>(limite.detector)];
    RigaPicco::Confronto c{Decibel(valore, unita), kNiente, false};
    if (livello <= kNessunLivello)
        return c;
    c.oltre = livello > valore;
    c.delta = (c.oltre ? "+" : "") + Decibel(livello - valore, 0);
    return c;
}

} // namespace

const char* SiglaDetector(DetectorKind detector) {
    return kSigle[static_cast<size_t>(detector)];
}

TabellaPicchi ComponiTabellaPicchi(const MisuraAperta& misura, const SetupRecord& setup,
                                   std::span<const Picco> picchi) {
    TabellaPicchi tabella;
    const auto& voce = TabellaUnitaGrafico()[std::clamp<size_t>(
        static_cast<size_t>(std::max<int>(setup.UnitId, 0)), 0, 7)];
    const std::string unita = "\n[" + std::string(voce.testo) + "]";
    const double offset = static_cast<double>(ImpostaUnita(setup.UnitId));
    const auto limiti = LimitiAccesi(misura, setup);
    tabella.titoli.push_back({"Frequency\n[MHz]", {}});
    for (size_t d = 0; d < kNumDetector; ++d)
        if (misura.detector[d])
            tabella.titoli.push_back({kNomiDetector[d] + unita, {}});
    for (const LimiteAcceso& l : limiti) {
        tabella.titoli.push_back(
            {std::string("Limit ") + SiglaDetector(l.detector), setup.LimitName[l.slot]});
        tabella.titoli.push_back({"Delta\n[dB]", setup.LimitName[l.slot]});
    }
    for (const Picco& p : picchi) {
        if (p.indice >= misura.traccia->size())
            continue;
        const CampioneTraccia& campione = (*misura.traccia)[p.indice];
        const LetturaMarker lettura = LeggiMarker(misura, setup, p.indice);
        RigaPicco riga{.indice = p.indice, .freqMhz = p.freqMhz, .frequenza = lettura.frequenza};
        if (riga.frequenza.ends_with(kMhz))
            riga.frequenza.resize(riga.frequenza.size() - kMhz.size());
        for (const auto& livello : lettura.livelli)
            riga.livelli.push_back(livello.testo);
        for (const LimiteAcceso& l : limiti)
            riga.confronti.push_back(Confronta(l, campione, offset));
        tabella.righe.push_back(std::move(riga));
    }
    return tabella;
}

} // namespace orvane
