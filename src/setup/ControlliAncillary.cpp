// Checks of what is attached: networks, and what a front-end leaves of them.
#include "setup/ElencoControlli.h"
#include "setup/RegoleScan.h"
#include "setup/Segnala.h"

namespace orvane::prevolo {
namespace {

enum Attaccato { kNiente = 0, kL2Krv = 1, kL3Krv = 2, kMastTable = 5, kInterna = 6 };

bool Scelta(const ScanLine& riga) {
    return riga.LineSwitch != decltype(riga.LineSwitch){};
}

bool SceltaL1L2(const ScanLine& riga) {
    return riga.LineSwitch[1] == 1 || riga.LineSwitch[2] == 1;
}

/// The line switches of these kinds are those of a network with "L1" and "L2".
bool ConL1L2(int ancillary) {
    return ancillary == kL2Krv || ancillary == kL3Krv || ancillary == kInterna;
}

Segnalazioni ConFrontEnd(C c, int ancillary) {
    if (ancillary == kNiente || ancillary == kMastTable)
        return {};
    return SeCiSono(CelleDove(c.tabella, {ColonnaScan::Ancillary}, Scelta),
                    EsitoControllo::Corregge,
                    Esclamazione("GX2207 connected\rAncillary is not available"));
}

/// The lines lose their network and the run stops: it would measure without what was chosen.
Segnalazioni ReteSuRadiato(C c) {
    Segnalazioni trovate =
        SeCiSono(CelleDove(c.tabella, {ColonnaScan::Ancillary},
                           [&](const ScanLine& riga) {
                               return SceltaL1L2(riga) &&
                                      DetIDMacLocRBWScanTab(c.modello, riga.Start, riga.Stop) == 2;
                           }),
                 EsitoControllo::Corregge, Esclamazione("L2 KRV not available with this setup"));
    if (!trovate.empty())
        trovate.push_back({.celle = trovate[0].celle});
    return trovate;
}

} // namespace

void AdattaAncillary(ScanTable& tabella, const SetupRecord& setup, const Segnalazione&) {
    CorreggiLineScanTab(tabella, AncillaryDi(setup), setup.InsLossOn == 1);
}

Segnalazioni ControllaAncyllaryGX2207Sweep(C c) {
    const int ancillary = AncillaryDi(c.setup);
    if (c.modello.TipoFrontEnd > 0)
        return ConFrontEnd(c, ancillary);
    return ancillary == kL2Krv ? ReteSuRadiato(c) : Segnalazioni{};
}

void TogliCommutazioni(ScanTable& tabella, const SetupRecord&, const Segnalazione& s) {
    for (const CellaErrata& cella : s.celle)
        tabella[cella.riga].LineSwitch.fill(0);
}

Segnalazioni ControllaL23360Sweep(C c) {
    const int ancillary = AncillaryDi(c.setup);
    if (!c.modello.Is3360)
        return Se(ancillary == kInterna, EsitoControllo::Ferma,
                  Esclamazione("L2 3360 Available only with KRV3360 connected"));
    if (!ConL1L2(ancillary))
        return {};
    const double inizioRadiato = GammaRadiata(c.modello).minimo;
    return SeCiSono(CelleDove(c.tabella, {ColonnaScan::Ancillary},
                              [&](const ScanLine& riga) {
                                  return riga.Start >= inizioRadiato && SceltaL1L2(riga);
                              }),
                    EsitoControllo::Ferma, Esclamazione("L2 3360 not available with this setup"));
}

} // namespace orvane::prevolo
