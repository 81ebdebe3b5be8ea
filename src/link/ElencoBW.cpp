#include "link/ElencoBW.h"

#include <algorithm>
#include <array>

#include "base/Interruttori.h"
#include "base/Testo.h"

namespace orvane {
namespace {

constexpr VoceFiltro kAuto = {"AUTO CISPR", 0};
constexpr VoceFiltro k1M = {"1 MHz", 9};
constexpr VoceFiltro k300k = {"300 kHz", 1};
constexpr VoceFiltro k100k = {"100 kHz", 2};
constexpr VoceFiltro k30k = {"30 kHz", 3};
constexpr VoceFiltro k10k = {"10 kHz", 4};
constexpr VoceFiltro k3k = {"3 kHz", 5};
constexpr VoceFiltro k1k = {"1 kHz", 8};
constexpr VoceFiltro k120kCispr = {"120 kHz CISPR", 10};
constexpr VoceFiltro k9kCispr = {"9 kHz CISPR", 6};
constexpr VoceFiltro k200Cispr = {"200 Hz CISPR", 7};
constexpr VoceFiltro k10kMil = {"10 kHz Mil", 11};
constexpr VoceFiltro k1kMil = {"1 kHz Mil", 22};
constexpr VoceFiltro k100Mil = {"100 Hz Mil", 23};
constexpr VoceFiltro k10Mil = {"10 Hz Mil", 24};
// The same filter has another number behind an extension unit, and yet another on the 3360.
constexpr VoceFiltro k9kEstesa = {"9 kHz CISPR", 12};
constexpr VoceFiltro k9k3360 = {"9 kHz CISPR", 7};

// Lists of Manual; Analyzer has the same without their first row.
constexpr std::array kLarga = {kAuto, k1M, k300k, k100k, k30k, k10k, k3k, k120kCispr, k9kEstesa};
constexpr std::array kLarga3360 = {kAuto, k300k, k100k, k30k, k10k, k3k, k120kCispr, k9k3360};
constexpr std::array kStretta3360 = {kAuto, k300k, k100k, k30k, k10k, k3k, k9kCispr};
constexpr std::array kStretta = {kAuto, k300k, k100k, k30k, k10k, k3k, k9kCispr, k200Cispr};
constexpr std::array kStretta1k = {kAuto, k300k, k100k, k30k, k10k, k3k, k1k, k9kCispr, k200Cispr};
constexpr std::array kMilVeloce = {kAuto, k300k,    k100k,     k30k,    k10k,
                                   k3k,   k9kCispr, k200Cispr, k10kMil, k1kMil};
constexpr std::array kMil = {kAuto,    k300k,     k100k,   k30k,   k10k,   k3k,
                             k9kCispr, k200Cispr, k10kMil, k1kMil, k100Mil};
constexpr std::array kMil1k = {kAuto,    k300k,     k100k,   k30k,   k10k,    k3k,   k1k,
                               k9kCispr, k200Cispr, k10kMil, k1kMil, k100Mil, k10Mil};
/// With the demodulator on the receiver offers what it can demodulate behind.
constexpr std::array kDemodulatore = {k30k, k10k, k3k, k9kCispr, k10kMil};

using M = const ReceiverModel&;

bool Con1kHz(M m) {
    return m.Is5520F || m.TipoFrontEnd == 1;
}

/// The fast GX2207 has no narrow Mil filters.
bool Veloce(M m) {
    return (m.TipoFrontEnd == 2 && m.Is5520F) || m.TipoFrontEnd == 3;
}

struct VoceElenco {
    bool (*vale)(M, const CasoFiltri&);
    ListaFiltri filtri;
};

// The first row that holds decides. The fast case stands before the 5520F, which it belongs to.
constexpr VoceElenco kElenchi[] = {
    {[](M m, const CasoFiltri&) { return m.EstensioneAttiva && m.Is3360 && !m.Is3360_03; },
     kLarga3360},
    {[](M m, const CasoFiltri&) { return m.EstensioneAttiva; }, kLarga},
    {[](M m, const CasoFiltri&) {
         return m.Is3360 && !(m.Is3360_01 || m.Is3360_02 || m.Is3360_03);
     },
     kStretta3360},
    {[](M m, const CasoFiltri&) { return m.Is3360; }, kStretta1k},
    {[](M m, const CasoFiltri&) { return !m.ConFiltriMil && Con1kHz(m); }, kStretta1k},
    {[](M m, const CasoFiltri&) { return !m.ConFiltriMil; }, kStretta},
    {[](M m, const CasoFiltri& c) {
         return Veloce(m) && !Acceso(c.rigaComando, interruttore::kNoCMilFrFast);
     },
     kMilVeloce},
    {[](M m, const CasoFiltri&) { return Con1kHz(m); }, kMil1k},
    {[](M, const CasoFiltri&) { return true; }, kMil},
};

/// Filter numbers by the span in MHz above which they hold.
struct VoceSpan {
    double oltreMhz;
    int estesa;
    int stretta;
    int mil;
    bool con5520F; ///< 1 kHz on the 5520F, whatever the narrow columns say
};
constexpr std::array<VoceSpan, 9> kSpan = {{{50, 9, 1, 1, false},
                                            {20, 1, 1, 1, false},
                                            {6, 2, 2, 2, false},
                                            {2, 3, 3, 3, false},
                                            {0.6, 4, 4, 4, false},
                                            {0.2, 5, 5, 5, false},
                                            {0.006, 5, 5, 22, true},
                                            {0.0006, 5, 5, 23, true},
                                            {-1, 5, 5, 24, true}}};

constexpr std::array kConDetector = {1, 2, 3, 4, 5, 8, 11, 12, 22, 23, 24};
constexpr size_t kNomeLungo = 10;

std::string_view NomeFiltro(ListaFiltri filtri, int id, size_t riga) {
    const auto voce = std::ranges::find(filtri, id, &VoceFiltro::id);
    return voce != filtri.end() ? voce->nome : filtri[riga].nome;
}

} // namespace

ListaFiltri ElencoBW(const ReceiverModel& modello, const CasoFiltri& caso) {
    const bool manual = caso.modalita == Modalita::Manual;
    const bool stretto = !modello.EstensioneAttiva && !modello.ConFiltriMil;
    if (manual && caso.demodulatore && stretto)
        return kDemodulatore;
    const auto* voce = std::ranges::find_if(
        kElenchi, [&](const VoceElenco& riga) { return riga.vale(modello, caso); });
    return manual ? voce->filtri : voce->filtri.subspan(1);
}

std::optional<size_t> TrovaRBWSelAM(ListaFiltri filtri, int id) {
    const auto voce = std::ranges::find(filtri, id, &VoceFiltro::id);
    if (voce != filtri.end())
        return static_cast<size_t>(voce - filtri.begin());
    return id > 0 ? std::optional(filtri.size() - 1) : std::nullopt;
}

size_t RigaFiltro(ListaFiltri filtri, std::string_view testo, int riga) {
    const auto voce = std::ranges::find(filtri, Rifila(testo), &VoceFiltro::nome);
    if (voce != filtri.end())
        return static_cast<size_t>(voce - filtri.begin());
    return static_cast<size_t>(std::clamp(riga, 0, static_cast<int>(filtri.size()) - 1));
}

int FiltroCoupled(const ReceiverModel& modello, double spanMhz) {
    const auto* voce =
        std::ranges::find_if(kSpan, [&](const VoceSpan& riga) { return spanMhz > riga.oltreMhz; });
    if (voce == kSpan.end())
        voce = &kSpan.back();
    if (modello.EstensioneAttiva)
        return voce->estesa == k1M.id && modello.Is3360 ? k300k.id : voce->estesa;
    if (voce->con5520F && modello.Is5520F)
        return k1k.id;
    return modello.ConFiltriMil ? voce->mil : voce->stretta;
}

std::optional<FiltroMostrato> MostraFiltroInUso(ListaFiltri filtri, const FiltroInUso& inUso,
                                                Modalita modalita) {
    const bool automatico = modalita == Modalita::Manual && inUso.automatico;
    const auto trovata = TrovaRBWSelAM(filtri, inUso.id);
    if (!trovata)
        return std::nullopt;
    const std::string_view nome = NomeFiltro(filtri, inUso.id, *trovata);
    return FiltroMostrato{.riga = automatico ? 0 : *trovata,
                          .didascalia = "BW IF " + std::string(nome),
                          .carattereStretto = nome.size() >= kNomeLungo,
                          .detectorAbilitati =
                              modalita != Modalita::Manual ||
                              std::ranges::find(kConDetector, inUso.id) != kConDetector.end()};
}

} // namespace orvane
