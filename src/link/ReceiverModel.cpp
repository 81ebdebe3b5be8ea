#include "link/ReceiverModel.h"

#include <algorithm>

namespace orvane {
namespace {

using M = const ReceiverModel&;

bool ConSuffisso3360(M m) {
    return m.Is3360_01 || m.Is3360_02 || m.Is3360_03;
}

/// The range in charge, on models that have two of their own.
bool GammaAlta(M m) {
    return m.ModoK3X == 0 ? m.EstensioneAttiva : m.ModoK3X == 2;
}

bool ConUnita(M m) {
    return m.EstensioneAttiva && !m.HaK3XK6X;
}

bool SenzaUnita(M m) {
    return !m.EstensioneAttiva && !m.HaK3XK6X;
}

struct VoceNome {
    bool (*vale)(M);
    const char* nome;
    const char* nomeConFrontEnd;
};

// The first row that holds decides.
constexpr VoceNome kNomi[] = {
    {[](M m) { return m.ModelloOEM == 1; }, "5520/60OEM", "5520/60OEM"},
    {[](M m) { return m.ModelloOEM == 2; }, "5520/VSD3", "5520/VSD3"},
    {[](M m) { return m.ModelloOEM == 3; }, "5520/T4470K", "5520/T4470K"},
    {[](M m) { return m.Is3360 && m.Is3360_01; }, "3360/01", "3360/01"},
    {[](M m) { return m.Is3360 && m.Is3360_02; }, "3360/02", "3360/02"},
    {[](M m) { return m.Is3360 && m.Is3360_03; }, "3360/03", "3360/03"},
    {[](M m) { return m.Is3360 && m.Is3360_00; }, "3360/00", "3360/00"},
    {[](M m) { return m.Is3360; }, "3360", "3360"},
    {[](M m) { return ConUnita(m) && m.UnitaEstensione == 1; }, "5570", "5570"},
    {[](M m) { return ConUnita(m) && m.UnitaEstensione == 2; }, "5590", "5590"},
    {[](M m) { return ConUnita(m); }, "5540", "5540"},
    {[](M m) { return SenzaUnita(m) && m.TipoFrontEnd == 1; }, "GX2207", "GX2207"},
    {[](M m) { return SenzaUnita(m) && m.TipoFrontEnd == 2 && m.Is5520F; }, "F5/GX2207", "GX2207"},
    {[](M m) { return SenzaUnita(m) && m.TipoFrontEnd == 2; }, "5/GX2207", "GX2207"},
    {[](M m) { return SenzaUnita(m) && m.TipoFrontEnd == 3 && m.Is5520F; }, "FGX2207", "FGX2207"},
    {[](M m) { return SenzaUnita(m) && m.TipoFrontEnd == 3; }, "GX2207", "GX2207"},
    {[](M m) { return SenzaUnita(m) && m.Is5520F; }, "F5520", "F5520"},
    {[](M m) { return SenzaUnita(m); }, "5520", "5520"},
    {[](M m) { return m.IsK0X; }, "5520/K0X", "5520/K0X"},
    {[](M m) { return m.IsK6X; }, "5520/K6X", "5520/K6X"},
    {[](M m) { return m.Is60OEM; }, "OEM", "OEM"},
    {[](M) { return true; }, "5520/K3X", "5520/K3X"},
};

struct VoceGamma {
    bool (*vale)(M);
    double minimo; ///< MHz
    double massimo;
};

// The first row that holds decides.
constexpr VoceGamma kGamme[] = {
    {[](M m) { return m.Is3360 && !GammaAlta(m) && ConSuffisso3360(m); }, 0.009, 30.1},
    {[](M m) { return m.Is3360 && !GammaAlta(m); }, 0.15, 30.1},
    {[](M m) { return m.Is3360 && m.Is3360_03; }, 28, 3000},
    {[](M m) { return m.Is3360; }, 28, 1000},
    {[](M m) { return (m.ModelloOEM != 0 || m.HaK3XK6X) && !GammaAlta(m); }, 0.00001, 30.1},
    {[](M m) { return m.ModelloOEM != 0; }, 28, 6000},
    {[](M m) { return m.HaK3XK6X && m.IsK0X; }, 28, 300},
    {[](M m) { return m.HaK3XK6X && (m.IsK6X || m.Is60OEM); }, 28, 6000},
    {[](M m) { return m.HaK3XK6X; }, 28, 3000},
    {[](M m) { return m.TipoFrontEnd >= 1; }, 0.009, 30.1},
    {[](M m) { return m.EstensioneAttiva && m.UnitaEstensione == 2; }, 6000.001, 18000},
    {[](M m) { return m.EstensioneAttiva && m.UnitaEstensione == 1; }, 28, 6000},
    {[](M m) { return m.EstensioneAttiva; }, 28, 3000},
    {[](M) { return true; }, 0.00001, 30.1},
};

// Of the OEM models 2 and 3, before the link has told its own.
constexpr double kMinimoLink = 30;
constexpr double kMassimoLink = 6000;

VoceGamma GammaDi(M m) {
    VoceGamma gamma = *std::find_if(std::begin(kGamme), std::end(kGamme),
                                    [&](const VoceGamma& riga) { return riga.vale(m); });
    if (m.ModelloOEM >= 2 && GammaAlta(m)) {
        gamma.minimo = m.FMinLink != -1 ? double{m.FMinLink} : kMinimoLink;
        gamma.massimo = m.FMaxLink != -1 ? double{m.FMaxLink} : kMassimoLink;
    }
    return gamma;
}

} // namespace

std::string NomeModello(const ReceiverModel& modello, bool conFrontEnd) {
    const auto* voce = std::find_if(std::begin(kNomi), std::end(kNomi),
                                    [&](const VoceNome& riga) { return riga.vale(modello); });
    return conFrontEnd ? voce->nomeConFrontEnd : voce->nome;
}

std::array<ModelCaps, 2> ImpostaModelCaps(const ReceiverModel& modello) {
    const VoceGamma gamma = GammaDi(modello);
    ModelCaps caps;
    caps.FMinAn = caps.FMinMa = caps.FMinScan = gamma.minimo;
    caps.FMaxAn = caps.FMaxMa = caps.FMaxScan = caps.FMaxCenter = gamma.massimo;
    if (modello.Is3360 && !GammaAlta(modello))
        caps.FRisoluzione = gamma.minimo;
    return {caps, caps};
}

bool HaBatteria(const ReceiverModel& modello) {
    return !modello.Is3360 && !modello.Is60OEM && modello.ModelloOEM == 0;
}

} // namespace orvane
