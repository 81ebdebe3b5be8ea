#include "report/RiassuntoReport.h"

#include "base/Numeri.h"
#include "base/Testo.h"
#include "records/Unita.h"
#include "report/FormatiReport.h"

namespace orvane {
namespace {

constexpr size_t kLarghezzaEtichetta = 14;
// Together they fit between the margins of an upright sheet.
constexpr size_t kLarghezzaNome = 24;
constexpr size_t kLarghezzaNumero = 10;

std::string NomeBreve(const std::string& nome) {
    return NumeroCaratteri(nome) < kLarghezzaNome ? nome
                                                  : PrimiCaratteri(nome, kLarghezzaNome - 3) + "..";
}

std::string Livello(int16_t cent, float offset) {
    return TestoFisso(cent / 100.0 + static_cast<double>(offset), 2);
}

PuntoPeggiore Punto(const VerdettoLimite& v, float offset) {
    PuntoPeggiore p{.giudizio = v.giudizio,
                    .limite = Rifila(v.limite),
                    .detector = kNomiDetector.at(static_cast<size_t>(v.detector)),
                    .freqMhz = std::string(kCellaVuota),
                    .livello = std::string(kCellaVuota),
                    .valore = std::string(kCellaVuota),
                    .delta = std::string(kCellaVuota),
                    .oltre = v.oltre};
    if (v.giudizio == Giudizio::Nessuno)
        return p;
    p.freqMhz = FormattaFreqRep(v.freqMhz, 0);
    p.livello = Livello(v.livelloCent, offset);
    p.valore = Livello(v.limiteCent, offset);
    p.delta = TestoFisso(v.Delta(), 2);
    return p;
}

std::string Ricevitore(const SetupRecord& run) {
    std::string testo = RifilaControlli(run.ModelText);
    if (const std::string serie = RifilaControlli(run.SerialA + run.SerialB); !serie.empty())
        testo += (testo.empty() ? "S/N " : ", S/N ") + serie;
    if (const std::string fw = RifilaControlli(run.FwRelease); !fw.empty())
        testo += (testo.empty() ? "firmware " : ", firmware ") + fw;
    return testo;
}

std::string RigaPunto(const std::string& primo, const std::string& limite,
                      const std::array<std::string, 5>& resto) {
    std::string riga = Riempi(primo, kLarghezzaEtichetta) + Riempi(limite, kLarghezzaNome);
    for (const std::string& cella : resto)
        riga += Riempi(cella, kLarghezzaNumero);
    return riga.substr(0, riga.find_last_not_of(' ') + 1);
}

} // namespace

Riassunto CalcolaRiassunto(const FonteReport& fonte) {
    const Verdetto verdetto = CalcolaVerdetto(fonte.misura, fonte.setup);
    const float offset = ImpostaUnita(fonte.setup.UnitId);
    const SetupRecord& run = fonte.misura.header.Setup;
    Riassunto r{.giudizio = verdetto.insieme, .unita = TestoUnita(fonte.setup.UnitId)};
    for (const VerdettoLimite& v : verdetto.limiti)
        r.punti.push_back(Punto(v, offset));
    r.voci = {{"Uncertainty", TestoDaNumero(fonte.setup.MeasUncertainty) + " dB"},
              {"Receiver", Ricevitore(run)},
              {"Started", fonte.misura.date.prima},
              {"Finished", fonte.misura.date.ultima}};
    std::erase_if(r.voci, [](const VoceRiassunto& voce) { return voce.testo.empty(); });
    return r;
}

std::vector<std::string> RigheRiassunto(const Riassunto& r) {
    std::vector<std::string> righe = {Riempi("Verdict", kLarghezzaEtichetta) +
                                      TestoGiudizio(r.giudizio)};
    for (const VoceRiassunto& voce : r.voci)
        righe.push_back(Riempi(voce.etichetta, kLarghezzaEtichetta) + voce.testo);
    if (r.punti.empty())
        return righe;
    righe.emplace_back();
    righe.push_back(
        RigaPunto("Worst point", "Limit", {"Detector", "Frequency", "Level", "Limit", "Delta"}));
    righe.push_back(
        RigaPunto("", "", {"", "[MHz]", "[" + r.unita + "]", "[" + r.unita + "]", "[dB]"}));
    for (const PuntoPeggiore& p : r.punti)
        righe.push_back(RigaPunto(TestoGiudizio(p.giudizio), NomeBreve(p.limite),
                                  {p.detector, p.freqMhz, p.livello, p.valore, p.delta}));
    return righe;
}

} // namespace orvane
