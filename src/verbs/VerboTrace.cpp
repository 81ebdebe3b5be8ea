#include <cmath>
#include <ostream>

#include "base/Numeri.h"
#include "verbs/RigheCsv.h"

namespace orvane {
namespace {

/// The one asked for, or the first of the first line: not of a later one.
DetectorKind DetectorMostrato(const Argomenti& argomenti, const MisuraChiesta& chiesta) {
    const auto& prima = chiesta.misura.header.Scan.Righe[0].Detector;
    for (size_t d = 0; !argomenti.Opzione("detector") && d < kNumDetector; ++d)
        if (prima[d] != 0)
            return static_cast<DetectorKind>(d);
    return chiesta.detector;
}

void StampaCsv(Banco& banco, const MisuraChiesta& chiesta, size_t d) {
    const auto colonne = ColonneLimiti(chiesta);
    std::string testo = "frequency_mhz,level_db,line" + TitoliLimiti(colonne) + "\n";
    for (const CampioneTraccia& campione : *chiesta.misura.traccia) {
        if (campione.livello[d] <= kNessunLivello)
            continue;
        testo += TestoFreqPulita(campione.freqMhz) + "," +
                 TestoFisso(InUnita(chiesta, campione.livello[d]), 2) + "," +
                 TestoIntero(campione.riga + 1) +
                 CampiLimiti(chiesta, colonne, campione.freqMhz, campione.livello[d]);
        testo += "\n";
    }
    banco.dati << testo;
}

void StampaJson(Banco& banco, const MisuraChiesta& chiesta, size_t d) {
    const auto colonne = ColonneLimiti(chiesta);
    Json json;
    json.Oggetto().Coppia("detector", kNomiDetector[d]);
    if (chiesta.unitOffset != 0)
        json.Coppia("unit", chiesta.nomeUnita);
    if (!colonne.empty()) {
        json.Chiave("limits").Lista();
        for (const ColonnaLimite& colonna : colonne)
            json.Testo(colonna.nome);
        json.Chiudi();
    }
    json.Chiave("samples").Lista();
    for (const CampioneTraccia& campione : *chiesta.misura.traccia) {
        if (campione.livello[d] <= kNessunLivello)
            continue;
        json.Lista().Numero(FreqPulita(campione.freqMhz));
        json.Numero(InUnita(chiesta, campione.livello[d])).Numero(campione.riga + 1);
        for (const ColonnaLimite& colonna : colonne) {
            const auto limite = colonna.Valore(campione.freqMhz);
            json.Numero(limite ? InUnita(chiesta, *limite) : NAN);
            json.Numero(limite ? (campione.livello[d] - *limite) / 100.0 : NAN);
        }
        json.Chiudi();
    }
    banco.dati << json.Chiudi().Chiudi().Documento() << "\n";
}

} // namespace

EsitoVerbo VerboTrace(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, OpzioniMisura(), {"factors"});
    MisuraChiesta chiesta;
    const EsitoVerbo esito = ApriDaOpzioni(banco, "trace", argomenti, Partenza::Grezza, chiesta);
    if (esito != kFatto)
        return esito;
    const DetectorKind detector = DetectorMostrato(argomenti, chiesta);
    if (detector != chiesta.detector)
        CaricaTracciaMisura(banco.scrivania, chiesta.misura, chiesta.setup, detector);
    (banco.json ? StampaJson : StampaCsv)(banco, chiesta, static_cast<size_t>(detector));
    return kFatto;
}

} // namespace orvane
