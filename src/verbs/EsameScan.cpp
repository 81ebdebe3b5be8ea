#include "verbs/EsameScan.h"

#include "console/Console.h"
#include "verbs/VerboScanModifica.h"

namespace orvane {

EsitoVerbo CaricaPerEsame(Banco& banco, const std::string& nome, ScanRecord& scan) {
    AvviaInLettura(banco.scrivania, banco.ricevitore.porta.link, banco.linkScelto);
    return CaricaTabellaScan(banco, nome, scan);
}

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
