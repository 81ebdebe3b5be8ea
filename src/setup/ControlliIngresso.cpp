// Checks of attenuator, preamplifier and preselector of the lines.
#include <algorithm>
#include <array>

#include "base/Numeri.h"
#include "setup/ElencoControlli.h"
#include "setup/RegoleScan.h"
#include "setup/Segnala.h"

namespace orvane::prevolo {
namespace {

using M = const ReceiverModel&;

/// Most minimum attenuation of a receiver, dB.
struct VoceAttMax {
    bool (*vale)(M);
    int detta;     ///< as the message tells it
    int ammessa;   ///< as it is compared
    int conPreAmp; ///< both, with the front-end's preamplifier on
};

bool FrontEndInterno(M m) {
    return m.TipoFrontEnd == 2 || m.TipoFrontEnd == 3;
}

// The first row that holds decides.
constexpr std::array<VoceAttMax, 6> kAttMax = {{
    {Con5590, 40, 40, 40},
    {[](M m) { return m.EstensioneAttiva; }, 50, 50, 50},
    // Told as 35 and compared with 30: so it has always been.
    {[](M m) { return m.TipoFrontEnd == 0; }, 35, 30, 30},
    {[](M m) { return m.TipoFrontEnd == 1; }, 30, 30, 10},
    {[](M m) { return FrontEndInterno(m) && m.Is5520F; }, 30, 30, 10},
    {[](M) { return true; }, 10, 10, 10},
}};

const VoceAttMax& AttMaxDi(M modello) {
    return *std::find_if(kAttMax.begin(), kAttMax.end(),
                         [&](const VoceAttMax& voce) { return voce.vale(modello); });
}

/// The front-end's preamplifier is the one that the line switches.
bool ConPreAmp(M modello, const ScanLine& riga) {
    return modello.TipoFrontEnd > 0 && riga.PreAmp == 1;
}

/// `DetStAttMaxSweep`
int AttMaxDetta(M modello, const ScanLine& riga) {
    const VoceAttMax& voce = AttMaxDi(modello);
    return ConPreAmp(modello, riga) ? voce.conPreAmp : voce.detta;
}

bool TroppaAtt(M modello, const ScanLine& riga) {
    const VoceAttMax& voce = AttMaxDi(modello);
    const auto id = std::clamp<size_t>(static_cast<size_t>(riga.MinAtt), 0, kMinAttDb.size() - 1);
    return kMinAttDb[id] > (ConPreAmp(modello, riga) ? voce.conPreAmp : voce.ammessa);
}

std::string ParolaIngresso(bool preAmp, bool preSel) {
    return preAmp && preSel ? "Pre Amp and Pre Sel" : preAmp ? "Pre Amp" : "Pre Sel";
}

std::string ParoleSenzaIngresso(M m) {
    if (m.Is3360)
        return " not available with ";
    const bool finoA6GHz = m.IsK6X || m.Is60OEM || m.ModelloOEM != 0;
    return std::string(" not available for Frequency Range 30-") + (finoA6GHz ? "6000" : "3000") +
           " MHz with ";
}

bool Radiata(M modello, const ScanLine& riga) {
    return DetIDMacLocRBWScanTab(modello, riga.Start, riga.Stop) == 2;
}

} // namespace

Segnalazioni ControllaMinAttMax(C c) {
    auto celle = CelleDove(c.tabella, {ColonnaScan::MinAtt},
                           [&](const ScanLine& riga) { return TroppaAtt(c.modello, riga); });
    if (celle.empty())
        return {};
    const int massima = AttMaxDetta(c.modello, c.tabella[celle[0].riga]);
    return SeCiSono(std::move(celle), EsitoControllo::Ferma,
                    Esclamazione("KRV " + NomeModello(c.modello, true) + " Max Attenuation is " +
                                 TestoIntero(massima) + " dB.\r         Cannot set Min Att"));
}

Segnalazioni ControlloPreSelPreAmpK3X(C c) {
    if (!HaCondottoERadiato(c.modello))
        return {};
    const bool entrambe = c.modello.Is60OEM || c.modello.ModelloOEM != 0;
    std::vector<CellaErrata> celle;
    bool preAmp = false;
    bool preSel = false;
    for (size_t i = 0; i < c.tabella.size(); ++i) {
        const ScanLine& riga = c.tabella[i];
        const bool senza = riga.Start != 0 && (c.modello.Is3360 || Radiata(c.modello, riga));
        if (!senza || (riga.PreAmp != 1 && riga.PreSel != 1))
            continue;
        if (riga.PreAmp == 1 || entrambe)
            celle.push_back({i, ColonnaScan::PreAmp});
        if (riga.PreSel == 1 || entrambe)
            celle.push_back({i, ColonnaScan::PreSel});
        preAmp = preAmp || riga.PreAmp == 1;
        preSel = preSel || riga.PreSel == 1;
    }
    return SeCiSono(std::move(celle), EsitoControllo::Ferma,
                    Esclamazione(ParolaIngresso(preAmp, preSel) + ParoleSenzaIngresso(c.modello) +
                                 NomeModello(c.modello, false)));
}

Segnalazioni ControlloPreAmp5590(C c) {
    if (!Con5590(c.modello))
        return {};
    constexpr int kMinAtt30dB = 3;
    return SeCiSono(CelleDove(c.tabella, {ColonnaScan::PreAmp, ColonnaScan::MinAtt},
                              [](const ScanLine& riga) {
                                  return riga.PreAmp == 1 && riga.MinAtt >= kMinAtt30dB;
                              }),
                    EsitoControllo::Ferma, Esclamazione("Pre Amp is OFF when attenuation > 20 dB"));
}

Segnalazioni ControlloPreSelPerFreq5590(C c) {
    if (!Con5590(c.modello))
        return {};
    return SeCiSono(CelleDove(c.tabella, {ColonnaScan::PreSel},
                              [](const ScanLine& riga) { return riga.PreSel == 0; }),
                    EsitoControllo::Corregge, Informazione("Pre Sel not available"));
}

void AccendiPreSel(ScanTable& tabella, const SetupRecord&, const Segnalazione& s) {
    for (const CellaErrata& cella : s.celle)
        tabella[cella.riga].PreSel = 1;
}

// Models whose radiated input has no preselector are not meant: there it must be off.
Segnalazioni ControlloPreSelPerFreq(C c) {
    constexpr double kSempreDaMhz = 1000;
    if (Con5590(c.modello) || HaCondottoERadiato(c.modello))
        return {};
    return SeCiSono(CelleDove(c.tabella, {ColonnaScan::PreSel},
                              [&](const ScanLine& riga) {
                                  return riga.PreSel == 0 && riga.Stop > kSempreDaMhz &&
                                         Radiata(c.modello, riga);
                              }),
                    EsitoControllo::Ferma, Esclamazione("Pre Sel always on above 1000 MHz"));
}

} // namespace orvane::prevolo
