#include <cmath>
#include <ostream>

#include "base/Numeri.h"
#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/ControllaRecord.h"
#include "data/Misure.h"
#include "setup/ListaFrequenze.h"
#include "setup/TabellaScan.h"
#include "verbs/Argomenti.h"
#include "verbs/Json.h"
#include "verbs/ParoleArchivio.h"
#include "verbs/Verbo.h"

namespace orvane {
namespace {

void Stampa(Banco& banco, Json& json, const VoceArchivio& voce) {
    json.Oggetto().Coppia("name", voce.nome).Coppia("first", voce.prima);
    json.Coppia("last", voce.ultima).Coppia("lines", voce.righe);
    json.Coppia("steps", static_cast<double>(voce.passi)).Coppia("detectors", voce.detector);
    json.Coppia("readable", voce.leggibile).Coppia("incomplete", voce.incompiuta);
    json.Coppia("running", voce.inCorso).Chiudi();
    if (banco.json)
        return;
    const char* fine = voce.inCorso ? "\trunning\n" : voce.incompiuta ? "\tincomplete\n" : "\n";
    banco.dati << voce.nome << "\t" << voce.ultima << "\t";
    if (voce.leggibile)
        banco.dati << voce.righe << (voce.righe == 1 ? " line\t" : " lines\t") << voce.passi
                   << " steps\t" << voce.detector << fine;
    else
        banco.dati << "header damaged\t" << voce.passi << " steps" << fine;
}

/// Frequencies are multiples of a step: the noise of the last binary digits is no information.
std::string TestoFrequenza(double mhz) {
    std::string testo = TestoFisso(mhz, 9);
    testo.erase(testo.find_last_not_of('0') + 1);
    return testo.ends_with('.') ? testo.substr(0, testo.size() - 1) : testo;
}

/// The detector asked for, or the first one that the measure has.
std::optional<DetectorKind> Detector(const std::optional<std::string>& chiesto,
                                     const ScanTable& tabella) {
    std::array<int16_t, kNumDetector> quali{};
    if (chiesto) {
        const auto letti = LeggiDetector(*chiesto);
        if (!letti)
            return std::nullopt;
        quali = *letti;
    } else {
        quali = tabella[0].Detector;
    }
    for (size_t d = 0; d < kNumDetector; ++d)
        if (quali[d] != 0)
            return static_cast<DetectorKind>(d);
    return std::nullopt;
}

void StampaTraccia(Banco& banco, const SweepTrace& traccia, DetectorKind detector) {
    const auto d = static_cast<size_t>(detector);
    Json json;
    json.Oggetto().Coppia("detector", kNomiDetector[d]).Chiave("samples").Lista();
    std::string testo = "frequency_mhz,level_db,line\n";
    for (const CampioneTraccia& campione : traccia) {
        if (campione.livello[d] <= kNessunLivello)
            continue;
        const double dB = campione.livello[d] / 100.0;
        if (banco.json)
            json.Lista()
                .Numero(std::round(campione.freqMhz * 1e9) / 1e9)
                .Numero(dB)
                .Numero(campione.riga + 1)
                .Chiudi();
        else
            testo += TestoFrequenza(campione.freqMhz) + "," + TestoFisso(dB, 2) + "," +
                     TestoIntero(campione.riga + 1) + "\n";
    }
    banco.dati << (banco.json ? json.Chiudi().Chiudi().Documento() + "\n" : testo);
}

/// All measures, or those that contain the words of `--search`.
EsitoVerbo Elenca(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, {"search"});
    if (!argomenti.Errore().empty() || !argomenti.Posizioni().empty())
        return UsoErrato(banco, "archive",
                         argomenti.Errore().empty()
                             ? "unknown word \"" + argomenti.Posizioni()[0] + "\""
                             : argomenti.Errore());
    const std::string cercato = argomenti.Opzione("search").value_or("");
    Json json;
    json.Lista();
    for (const std::string& nome : ElencaNomiMisure(banco.scrivania, OrdineArchivio::PerNome))
        if (cercato.empty() || MisuraContiene(banco.scrivania, nome, cercato))
            Stampa(banco, json, LeggiVoce(banco.scrivania, nome));
    if (banco.json)
        banco.dati << json.Chiudi().Documento() << "\n";
    return kFatto;
}

} // namespace

EsitoVerbo VerboArchive(Banco& banco, Parole parole) {
    for (const ParolaArchivio& parola : ParoleArchivio())
        if (!parole.empty() && parole[0] == parola.nome)
            return parola.esegui(banco, parole.subspan(1));
    const bool list = !parole.empty() && parole[0] == "list";
    return Elenca(banco, list ? parole.subspan(1) : parole);
}

EsitoVerbo VerboTrace(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, {"detector", "sub"});
    if (!argomenti.Errore().empty() || argomenti.Posizioni().size() != 1)
        return UsoErrato(banco, "trace",
                         argomenti.Errore().empty() ? "wants one MEASURE" : argomenti.Errore());
    const std::string& chiesta = argomenti.Posizioni()[0];
    const auto misura = NomeDaParola(chiesta);
    const auto passata = NomeDaParola(argomenti.Opzione("sub").value_or(chiesta));
    if (!misura || !passata)
        return UsoErrato(banco, "trace", "MEASURE or NAME is no valid name");
    const std::string& nome = *misura;
    const std::string& base = *passata;
    if (!banco.scrivania.albero.Esiste(TrovaKSH(banco.scrivania.albero, nome)))
        return Guasto(banco, kGuastoFile, "there is no measure " + PercorsoKSH(nome));
    ScanRecord scan;
    SetupRecord setup;
    if (!CaricaHeaderSweep(banco.scrivania, PercorsoKSH(nome), scan, setup))
        return kGuastoFile;
    ControllaScan(scan);
    const auto detector = Detector(argomenti.Opzione("detector"), scan.Righe);
    if (!detector)
        return UsoErrato(banco, "trace", "unknown detector: P, Q, R, A, N, C");
    const OpzioniTraccia opzioni{.frequenza = FrequenzeDaTabella(banco.scrivania.albero)};
    StampaTraccia(banco,
                  CreaTracciaSweep(banco.scrivania, nome, base, scan.Righe, *detector, opzioni),
                  *detector);
    return kFatto;
}

} // namespace orvane
