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
    for (Riscontro& riscontro : EsaminaScan({.tabella = contesto.tabella,
                                .modello = modello,
                                .caps = caps,
                                .setup = contesto.setup,
                                .albero = contesto.albero,
                                .rigaComando = contesto.rigaComando,
                                .runKind = contesto.runKind})) {
        Segnalazione& una = riscontro.segnalazione;
        if (una.riquadro.testo.empty() && una.esito == EsitoControllo::Ferma)
            una.riquadro.testo = riscontro.motivo;
        if (!una.riquadro.testo.empty())
            trovate.push_back(std::move(una));
    }
    return trovate;
}

} // namespace orvane
