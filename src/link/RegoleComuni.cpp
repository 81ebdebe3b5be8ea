#include "link/RegoleComuni.h"

#include <algorithm>

#include "link/ElencoAtt.h"

namespace orvane {
namespace {

using M = const ReceiverModel&;

constexpr std::string_view kSoloCondotta = "Only in the conducted range of this receiver";
constexpr std::string_view kPreselFisso = "The 5590 has a fixed preselector";
constexpr std::string_view kPreselFrontEnd = "Not with a GX2207 attached";
constexpr std::string_view kGenFuoriModo = "Only in the Sweep, Analyzer and Manual modes";
constexpr std::string_view kSenzaGen = "This receiver has no tracking generator";
constexpr std::string_view kGenFrontEnd = "Not with this front-end";

/// Preselector, preamplifier and pulse limiter belong to the conducted input.
void AbilitaPerGamma(RegoleComuni& regole, M m) {
    const StatoControllo stato =
        m.ModoK3X == 2 ? StatoControllo{false, kSoloCondotta} : StatoControllo{};
    regole.preselettore = regole.preAmp = regole.pulseLimiter = stato;
}

bool TipoK3X(M m) {
    return m.HaK3XK6X || (m.ModelloOEM != 0 && !m.Is3360);
}

/// States of the generator in the live modes. The first row that holds decides.
struct VoceGeneratore {
    bool (*vale)(M);
    StatoGeneratore stato;
};
constexpr VoceGeneratore kGeneratori[] = {
    {[](M m) { return m.HaK3XK6X || m.ModelloOEM == 3; }, {}},
    {[](M m) { return m.Is3360; }, {.stato = {false, kSenzaGen}, .spento = true}},
    {[](M m) { return m.TipoFrontEnd == 1; }, {.invariato = true}},
    {[](M m) { return m.TipoFrontEnd >= 2; }, {.stato = {false, kGenFrontEnd}, .spento = true}},
    {[](M) { return true; }, {}},
};

bool Viva(Modalita scheda) {
    return scheda == Modalita::Analyzer || scheda == Modalita::Manual;
}

void ScriviFiltro(SetupRecord& setup, ListaFiltri filtri, size_t riga) {
    setup.BWIFId = static_cast<int16_t>(riga);
    setup.BWIFText = filtri[riga].nome;
}

} // namespace

void ControllaPreSel(RegoleComuni& regole, const ReceiverModel& modello) {
    if (modello.EstensioneAttiva && modello.UnitaEstensione == 2)
        regole.preselettore = {false, kPreselFisso};
    else if (modello.TipoFrontEnd >= 1)
        regole.preselettore = {false, kPreselFrontEnd};
}

void AbilitaDisabilitaPSPAPLK3X(RegoleComuni& regole, const ReceiverModel& modello) {
    if (TipoK3X(modello))
        AbilitaPerGamma(regole, modello);
}

void AbilitaDisabilitaPSPAPL3360(RegoleComuni& regole, const ReceiverModel& modello) {
    if (modello.Is3360)
        AbilitaPerGamma(regole, modello);
}

std::optional<size_t> RigaFiltroCoupled(const SetupRecord& setup, const ReceiverModel& modello,
                                        const CasoFiltri& caso) {
    const double span = setup.GraphStop - setup.GraphStart;
    if (caso.modalita == Modalita::Manual || setup.Coupled == 0 || span <= 0)
        return std::nullopt;
    return TrovaRBWSelAM(ElencoBW(modello, caso), FiltroCoupled(modello, span));
}

StatoGeneratore ControllaImpGen(const ReceiverModel& modello, Modalita scheda) {
    if (scheda == Modalita::Sweep)
        return {};
    if (!Viva(scheda))
        return {.stato = {false, kGenFuoriModo}};
    return std::ranges::find_if(kGeneratori,
                                [&](const VoceGeneratore& riga) { return riga.vale(modello); })
        ->stato;
}

RegoleComuni DeterminaRegoleComuni(const SetupRecord& setup, const ReceiverModel& modello,
                                   const CasoComuni& caso) {
    RegoleComuni regole;
    ControllaPreSel(regole, modello);
    AbilitaDisabilitaPSPAPLK3X(regole, modello);
    AbilitaDisabilitaPSPAPL3360(regole, modello);
    regole.filtri = ElencoBW(modello, caso.filtri);
    regole.rigaFiltro = RigaFiltroCoupled(setup, modello, caso.filtri)
                            .value_or(RigaFiltro(regole.filtri, setup.BWIFText, setup.BWIFId));
    regole.generatore = ControllaImpGen(modello, caso.scheda);
    const bool antenna = setup.AntennaGX2207 != 0;
    regole.attenuatori = ElencoAtt(modello, antenna);
    regole.rigaAtt = RigaAtt(regole.attenuatori, setup.Attenuator);
    regole.minAtt = ElencoMinAtt(modello, antenna);
    regole.rigaMinAtt = static_cast<size_t>(
        std::clamp(static_cast<int>(setup.MinAtt), 0, static_cast<int>(regole.minAtt.size()) - 1));
    regole.conFrontEnd = modello.TipoFrontEnd >= 1;
    return regole;
}

RegoleComuni ControllaParComuni(SetupRecord& setup, const ReceiverModel& modello,
                                const CasoComuni& caso) {
    const RegoleComuni regole = DeterminaRegoleComuni(setup, modello, caso);
    ScriviFiltro(setup, regole.filtri, regole.rigaFiltro);
    if (regole.generatore.spento)
        setup.RFOut = setup.TGOn = 0;
    setup.Attenuator = static_cast<int16_t>(regole.attenuatori[regole.rigaAtt]);
    setup.MinAtt = static_cast<int16_t>(regole.rigaMinAtt);
    return regole;
}

} // namespace orvane
