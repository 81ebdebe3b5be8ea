#include "verbs/EsameScan.h"

namespace orvane {

ContestoControlli ContestoDiScan(Banco& banco, const ScanTable& tabella) {
    return {.tabella = tabella,
            .modello = banco.ricevitore.modello,
            .caps = banco.ricevitore.caps,
            .setup = banco.scrivania.setup,
            .albero = banco.scrivania.albero,
            .rigaComando = banco.scrivania.ambiente.RigaComando()};
}

Rispondi RispostaDiScan(Banco& banco) {
    return [&banco](const Segnalazione& s) {
        const Risposta risposta = banco.scrivania.ambiente.Mostra(s.riquadro);
        return risposta == Risposta::Si || risposta == Risposta::Ok;
    };
}

} // namespace orvane
