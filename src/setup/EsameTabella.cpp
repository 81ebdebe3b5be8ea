#include "setup/EsameTabella.h"

#include "setup/PreVolo.h"

namespace orvane {
namespace {

constexpr float kFirmwareIgnoto = 99;

ReceiverModel ModelloNoto(const ReceiverModel& modello) {
    if (!modello.FwTesto.empty())
        return modello;
    ReceiverModel presunto;
    presunto.ConFiltriMil = true;
    presunto.ConRmsAvg = true;
    presunto.FwVersione = kFirmwareIgnoto;
    return presunto;
}

} // namespace

Segnalazioni EsaminaTabella(const ContestoControlli& contesto) {
    if (RigheInUso(contesto.tabella) == 0)
        return {};
    const ReceiverModel modello = ModelloNoto(contesto.modello);
    const std::array<ModelCaps, 2> caps = ImpostaModelCaps(modello);
    Segnalazioni trovate;
    int numero = 0; // of the check that spoke last
    for (Riscontro& riscontro : EsaminaScan({.tabella = contesto.tabella,
                                .modello = modello,
                                .caps = caps,
                                .setup = contesto.setup,
                                .albero = contesto.albero,
                                .rigaComando = contesto.rigaComando,
                                .runKind = contesto.runKind})) {
        Segnalazione& una = riscontro.segnalazione;
        const bool ferma = una.esito == EsitoControllo::Ferma;
        // A check that first repairs and then stops all the same says so once.
        if (una.riquadro.testo.empty() && ferma && numero == riscontro.numero)
            trovate.back().esito = EsitoControllo::Ferma;
        else if (una.riquadro.testo.empty() && ferma)
            una.riquadro.testo = riscontro.motivo;
        if (una.riquadro.testo.empty())
            continue;
        numero = riscontro.numero;
        trovate.push_back(std::move(una));
    }
    return trovate;
}

} // namespace orvane
