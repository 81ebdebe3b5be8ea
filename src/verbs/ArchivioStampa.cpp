// `orvane archive` with the words that print what a measure is, and what its traces give.
#include <algorithm>
#include <ostream>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "console/Archivio.h"
#include "data/FileTesto.h"
#include "graph/Confronto.h"
#include "setup/TabellaScan.h"
#include "verbs/Argomenti.h"
#include "verbs/Json.h"
#include "verbs/MisuraDaOpzioni.h"
#include "verbs/ParoleArchivio.h"
#include "verbs/RigheCsv.h"

namespace orvane {
namespace {

/// "key: value" a line, and the members of an object.
class Scheda {
public:
    explicit Scheda(Banco& banco) : banco_(banco) { json_.Oggetto(); }
    template <class Valore> void Riga(std::string_view nome, const Valore& valore) {
        json_.Coppia(nome, valore);
        if (!banco_.json)
            banco_.dati << nome << ": " << Testo(valore) << "\n";
    }
    /// A line for each text.
    void Lista(std::string_view nome, const std::vector<std::string>& testi) {
        json_.Chiave(nome).Lista();
        for (const std::string& testo : testi) {
            json_.Testo(testo);
            if (!banco_.json)
                banco_.dati << nome << ": " << testo << "\n";
        }
        json_.Chiudi();
    }
    void Fine() {
        if (banco_.json)
            banco_.dati << json_.Chiudi().Documento() << "\n";
    }

private:
    static std::string Testo(const std::string& valore) { return valore; }
    static std::string Testo(double valore) { return TestoDaNumero(valore); }
    static std::string Testo(bool valore) { return valore ? "yes" : "no"; }

    Banco& banco_;
    Json json_;
};

/// The names of those that are on.
template <class Nomi, class Accesi>
std::vector<std::string> Accese(const Nomi& nomi, const Accesi& accesi) {
    std::vector<std::string> quali;
    for (size_t i = 0; i < nomi.size(); ++i)
        if (accesi[i] == 1)
            quali.push_back(Rifila(nomi[i]));
    return quali;
}

/// The names under which the traces of the measure can be asked for.
std::vector<std::string> SubMisure(const Scrivania& s, const std::string& misura) {
    auto nomi = ElencaSubMisure(s, false, misura);
    std::erase(nomi, "");
    return nomi;
}

std::vector<std::string> Commento(const Scrivania& s, const std::string& misura) {
    const std::string percorso = PercorsoCommento(misura);
    if (!s.albero.Esiste(percorso))
        return {};
    auto righe = Dividi(CaricaTesto(s, percorso).value_or(""), '\n');
    while (!righe.empty() && righe.back().empty())
        righe.pop_back();
    return righe;
}

void StampaIntestazione(Scheda& scheda, const MisuraAperta& misura) {
    const SetupRecord& setup = misura.header.Setup;
    scheda.Riga("start_mhz", misura.startMhz);
    scheda.Riga("stop_mhz", misura.stopMhz);
    scheda.Riga("model", setup.ModelText);
    scheda.Riga("firmware", setup.FwRelease);
    scheda.Riga("serial", setup.SerialA + setup.SerialB);
    scheda.Riga("worst_mode", static_cast<double>(misura.header.Scan.WorstMode));
    scheda.Riga("insertion_loss", setup.InsLossOn != 0);
    scheda.Riga("scan_comment", misura.header.Scan.ScanComment);
    scheda.Lista("limit", Accese(setup.LimitName, setup.LimitOn));
    scheda.Lista("factor", Accese(setup.FactorName, setup.FactorOn));
}

/// CSV, or an object whose samples are lists; `valore` names the middle column.
void StampaCampioni(Banco& banco, const SweepTrace& traccia, DetectorKind detector,
                    std::string_view valore) {
    const auto d = static_cast<size_t>(detector);
    Json json;
    json.Oggetto().Coppia("detector", kNomiDetector[d]).Chiave("samples").Lista();
    std::string testo = "frequency_mhz," + std::string(valore) + ",line\n";
    for (const CampioneTraccia& c : traccia) {
        if (c.livello[d] <= kNessunLivello)
            continue;
        json.Lista()
            .Numero(FreqPulita(c.freqMhz))
            .Numero(c.livello[d] / 100.0)
            .Numero(c.riga + 1)
            .Chiudi();
        testo += TestoFreqPulita(c.freqMhz) + "," + TestoFisso(c.livello[d] / 100.0, 2) + "," +
                 TestoIntero(c.riga + 1) + "\n";
    }
    banco.dati << (banco.json ? json.Chiudi().Chiudi().Documento() + "\n" : testo);
}

/// The detector of an option, which the measure must have, or the first that was measured.
std::optional<DetectorKind> DetectorChiesto(const Argomenti& argomenti,
                                            const MisuraAperta& misura) {
    if (const auto testo = argomenti.Opzione("detector")) {
        const auto detector = PrimoDetector(*testo);
        return detector && misura.detector[static_cast<size_t>(*detector)] ? detector
                                                                           : std::nullopt;
    }
    const auto primo = std::ranges::find(misura.detector, true);
    return primo == misura.detector.end()
               ? std::nullopt
               : std::optional(static_cast<DetectorKind>(primo - misura.detector.begin()));
}

EsitoVerbo SenzaDetector(Banco& banco, const MisuraAperta& misura) {
    return Guasto(banco, kUsoErrato, misura.nome + " was not measured with this detector");
}

} // namespace

EsitoVerbo ArchivioShow(Banco& banco, Parole parole) {
    if (parole.size() != 1)
        return UsoErrato(banco, "archive", "show wants one MEASURE");
    EsitoVerbo esito = kFatto;
    const auto nome = MisuraDaParola(banco, parole[0], esito);
    if (!nome)
        return esito;
    const VoceArchivio voce = LeggiVoce(banco.scrivania, *nome);
    Scheda scheda(banco);
    scheda.Riga("name", voce.nome);
    scheda.Riga("first", voce.prima);
    scheda.Riga("last", voce.ultima);
    scheda.Riga("readable", voce.leggibile);
    scheda.Riga("incomplete", voce.incompiuta);
    scheda.Riga("running", voce.inCorso);
    scheda.Riga("lines", static_cast<double>(voce.righe));
    scheda.Riga("steps", static_cast<double>(voce.passi));
    scheda.Riga("detectors", voce.detector);
    if (voce.leggibile)
        StampaIntestazione(scheda, ApriIntestazione(banco.scrivania, *nome));
    scheda.Lista("sub", SubMisure(banco.scrivania, *nome));
    scheda.Lista("comment", Commento(banco.scrivania, *nome));
    scheda.Fine();
    return voce.leggibile ? kFatto : kGuastoFile;
}

EsitoVerbo ArchivioDifference(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, {"detector"});
    if (!argomenti.Errore().empty() || argomenti.Posizioni().size() != 2)
        return UsoErrato(banco, "archive",
                         argomenti.Errore().empty() ? "difference wants MEASURE and REFERENCE"
                                                    : argomenti.Errore());
    EsitoVerbo esito = kFatto;
    const auto nome = MisuraDaParola(banco, argomenti.Posizioni()[0], esito);
    const auto altra = nome ? MisuraDaParola(banco, argomenti.Posizioni()[1], esito) : std::nullopt;
    if (!altra)
        return esito;
    StatoArchivio a{.misura = ApriMisura(banco.scrivania, *nome)};
    if (!a.misura.leggibile)
        return kGuastoFile;
    const auto detector = DetectorChiesto(argomenti, a.misura);
    if (!detector)
        return SenzaDetector(banco, a.misura);
    a.detector = static_cast<int>(*detector);
    CaricaTracciaMisura(banco.scrivania, a.misura, a.misura.header.Setup, detector);
    if (!ScegliRiferimento(banco.scrivania, a, *altra))
        return kRifiutato;
    StampaCampioni(banco, a.differenza, *detector, "delta_db");
    return kFatto;
}

EsitoVerbo ArchivioEnvelope(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, {"detector"}, {"factors"});
    if (!argomenti.Errore().empty() || argomenti.Posizioni().size() != 1)
        return UsoErrato(banco, "archive",
                         argomenti.Errore().empty() ? "envelope wants one MEASURE"
                                                    : argomenti.Errore());
    EsitoVerbo esito = kFatto;
    const auto nome = MisuraDaParola(banco, argomenti.Posizioni()[0], esito);
    if (!nome)
        return esito;
    MisuraAperta misura = ApriMisura(banco.scrivania, *nome);
    if (!misura.leggibile)
        return kGuastoFile;
    const auto detector = DetectorChiesto(argomenti, misura);
    if (!detector)
        return SenzaDetector(banco, misura);
    SetupRecord setup = misura.header.Setup;
    if (!argomenti.Bandiera("factors"))
        setup.FactorOn = {};
    const ContestoNodi contesto = LeggiContestoNodi(banco.scrivania, *nome);
    auto basi = contesto.mastTable ? PosizioniMastTable(contesto) : PassateDellaMisura(contesto);
    if (basi.empty())
        basi = {*nome};
    CaricaInviluppo(banco.scrivania, misura, setup, basi, *detector);
    StampaCampioni(banco, *misura.traccia, *detector, "level_db");
    return kFatto;
}

} // namespace orvane
