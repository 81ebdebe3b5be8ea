// The extension unit that a line needs, and the way to it: the user switches units by hand.
#include <algorithm>

#include "setup/RegoleScan.h"

namespace orvane {
namespace {

constexpr GammaMhz kRicevitore = {0.00001, 30};

constexpr int kNessuna = -1;

/// What is switched on ahead of a radiated line, by the unit in charge and the end of the span.
struct VoceUnita {
    int inCarica; ///< by `UnitaEstensione`, or none
    double oltreMhz;
    double finoMhz;
    double daMhz; ///< lowest start
    UnitaRichiesta richiesta;
};
using enum UnitaRichiesta;

// A line that no row holds runs on the unit in charge.
constexpr VoceUnita kUnita[] = {
    {kNessuna, 30, 3000, 30, Estesa},
    {kNessuna, 3000, 6000, 30, Estesa6GHz},
    {kNessuna, 6000, 18000, 6000, Estesa18GHz},
    {0, 3000, 6000, 30, Estesa6GHz},
    {0, 6000, 18000, 6000, Estesa18GHz},
    {1, 6000, 18000, 6000, Estesa18GHz},
    {2, 30, 3000, 30, Estesa},
    {2, 3000, 6000, 30, Estesa6GHz},
};

const Segnalazione* Domanda(const Segnalazioni& trovate) {
    const auto qui = std::find_if(trovate.begin(), trovate.end(), [](const Segnalazione& una) {
        return una.esito == EsitoControllo::Chiede;
    });
    return qui == trovate.end() ? nullptr : &*qui;
}

void Segna(const Segnalazioni& trovate, const SegnaCelle& segna) {
    std::vector<CellaErrata> celle;
    for (const Segnalazione& una : trovate)
        celle.insert(celle.end(), una.celle.begin(), una.celle.end());
    segna(celle);
}

} // namespace

std::optional<UnitaRichiesta> UnitaPerRiga(const ReceiverModel& modello, double startMhz,
                                           double stopMhz) {
    if (!HaUnitaAMano(modello))
        return std::nullopt;
    if (kRicevitore.Contiene(startMhz, stopMhz)) {
        if (modello.EstensioneAttiva)
            return UnitaRichiesta::SoloRicevitore;
        return std::nullopt;
    }
    const int inCarica = modello.EstensioneAttiva ? modello.UnitaEstensione : kNessuna;
    const auto* voce = std::find_if(std::begin(kUnita), std::end(kUnita), [&](const VoceUnita& v) {
        return v.inCarica == inCarica && startMhz >= v.daMhz && stopMhz > v.oltreMhz &&
               stopMhz <= v.finoMhz;
    });
    return voce == std::end(kUnita) ? std::nullopt : std::optional(voce->richiesta);
}

bool ControlloRigaPerRigaST(Ricevitore& r, const ContestoControlli& c, size_t indice,
                            const SegnaCelle& segna) {
    const ScanLine& riga = c.tabella[indice];
    const auto unita = UnitaPerRiga(r.modello, riga.Start, riga.Stop);
    if (!unita)
        return true;
    bool aperta = ChiediCambioUnita(r, *unita, Modalita::Sweep, 1);
    while (aperta) {
        const Segnalazioni trovate = ControllaFstartFstopScanTab(c, true, indice, indice);
        Segna(trovate, segna);
        const Segnalazione* domanda = Domanda(trovate);
        if (!domanda)
            return true;
        if (r.ambiente.Mostra(domanda->riquadro) != Risposta::Riprova)
            return false;
        aperta = RiapriERiconosci(r, Modalita::Sweep, 1);
    }
    return false;
}

} // namespace orvane
