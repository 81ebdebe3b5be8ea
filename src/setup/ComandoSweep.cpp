#include "setup/ComandoSweep.h"

#include <algorithm>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/TabelleFrequenza.h"
#include "setup/ListaFrequenze.h"
#include "setup/NumeroScalato.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

constexpr int kRbw9kHz = 2;
constexpr double kHzPerMhz = 1e6;

int MinAttDb(int16_t minAtt) {
    const auto ultimo = static_cast<int16_t>(kMinAttDb.size() - 1);
    return kMinAttDb[static_cast<size_t>(std::clamp<int16_t>(minAtt, 0, ultimo))];
}

ComandoSweep NonInviabile(std::string perche) {
    return {.testo = std::string(kTabellaNonInviabile),
            .obiezione = {.testo = std::move(perche), .icona = Icona::Esclamazione}};
}

std::vector<ComandoPronto> RigheElenco(const std::vector<double>& frequenzeMhz) {
    std::vector<ComandoPronto> righe;
    for (const double mhz : frequenzeMhz)
        righe.push_back(
            {Impostazione::RigaTabFreq, TestoIntero(static_cast<long long>(righe.size())) + "," +
                                            TestoScalato(mhz, kHzPerMhz)});
    return righe;
}

} // namespace

int DeterminaIDRbwSweep(const ReceiverModel& modello, int rbwId, double stopMhz) {
    if (rbwId < 0 || rbwId >= kNumRbw)
        return 0;
    if (rbwId != kRbw9kHz)
        return TabellaRbw()[static_cast<size_t>(rbwId)].codice;
    const bool aDueGamme = modello.HaK3XK6X || modello.ModelloOEM != 0;
    const bool alto = aDueGamme ? stopMhz > 30 : modello.EstensioneAttiva;
    return alto ? 12 : 6;
}

bool ControllaFW5520FPerAutoStep(const ReceiverModel& modello) {
    return modello.Is5520F && modello.FwVersione >= firmware::kAutoStep5520F;
}

bool VaAlRadiato(const ScanLine& riga) {
    constexpr double kInizioRadiatoMhz = 30.0;
    return riga.Start >= kInizioRadiatoMhz;
}

std::string ComponiComandoSweep(const ReceiverModel& modello, const ScanLine& riga) {
    const bool passoImposto = ControllaFW5520FPerAutoStep(modello) && riga.AutoStep == 0;
    const bool smart = riga.Smart == 1;
    constexpr int16_t kUnita5590 = 2; // has no preselector to switch
    const std::vector<std::string> campi = {
        TestoScalato(riga.Start, kHzPerMhz),
        TestoScalato(riga.Stop, kHzPerMhz),
        riga.StepMode == 1 ? "0" : TestoScalato(riga.Step, kHzPerMhz),
        std::string(smart ? "S" : "").append(LettereDetector(riga)),
        TestoDaNumero(riga.HoldTime),
        TestoIntero(DeterminaIDRbwSweep(modello, riga.RbwId, riga.Stop)),
        TestoIntero(MinAttDb(riga.MinAtt)),
        std::string(OnOff(riga.PreAmp != 0)),
        std::string(OnOff(riga.PreSel != 0 && modello.UnitaEstensione != kUnita5590)),
        smart ? TestoDaNumero(riga.HoldTimeSD) : "0"};
    return std::string(passoImposto ? "#SSFDS " : "#SSFD ").append(Unisci(campi, ";")).append("*");
}

ComandoSweep ComponiComandoRiga(const ReceiverModel& modello, const ScanLine& riga,
                                const FrequencyTable* tabella) {
    constexpr size_t kMinFrequenze = 2;
    if (riga.StepMode != 1)
        return {.testo = ComponiComandoSweep(modello, riga)};
    if (!tabella)
        return NonInviabile("Frequency table " + Rifila(riga.FreqTable) + "  NOT FOUND");
    std::vector<double> frequenze = CreaElencoFreqTab(*tabella, riga);
    if (frequenze.size() > kMaxFreqTable)
        return NonInviabile("Too many frequencies.\rReduce either the number of frequencies\r"
                            "or reduce the number of steps");
    ComandoSweep comando{.testo = ComponiComandoSweep(modello, riga)};
    // Even a list that is too short goes out: it takes the place of an older one.
    if (frequenze.size() < kMinFrequenze)
        comando = NonInviabile("Too few table frequencies or too few Steps");
    comando.elenco = RigheElenco(frequenze);
    comando.frequenzeMhz = std::move(frequenze);
    return comando;
}

ComandoSweep PreparaComandoSweep(Scrivania& s, const ReceiverModel& modello, const ScanLine& riga) {
    const std::string percorso = PercorsoFreqTab(Rifila(riga.FreqTable));
    if (riga.StepMode != 1 || !s.albero.Esiste(percorso))
        return ComponiComandoRiga(modello, riga, nullptr);
    FrequencyTable tabella;
    if (!CaricaFreqTab(s, FormaFreqTab::Semplice, percorso, tabella))
        return {.testo = std::string(kNessunaFrequenza)};
    return ComponiComandoRiga(modello, riga, &tabella);
}

ComandoSweep DeterminaComandoSweep(Ricevitore& r, Scrivania& s, const ScanLine& riga) {
    ComandoSweep comando = PreparaComandoSweep(s, r.modello, riga);
    if (InviaInOrdine(r, comando.elenco) && !comando.obiezione.testo.empty())
        r.ambiente.Mostra(comando.obiezione);
    return comando;
}

std::vector<ComandoPronto> ComponiImpostazioniCorsa(const ReceiverModel& modello,
                                                    const SetupRecord& setup) {
    const auto acceso = [](int16_t flag) { return std::string(OnOff(flag != 0)); };
    const Dinamica d = CalcolaDinamica(modello, setup);
    std::vector<ComandoPronto> comandi = {
        {Impostazione::Dinamica, TestoIntero(d.dinamica) + ";" + TestoIntero(d.riferimento)},
        {Impostazione::PulseLim, acceso(setup.PulseLim)},
        {Impostazione::RFOut, acceso(setup.RFOut)}};
    if (!HaGeneratore(modello))
        return comandi;
    comandi.push_back({Impostazione::LivelloTG, TestoDaNumero(setup.TGLevel)});
    comandi.push_back({Impostazione::Tracking, acceso(setup.TGOn)});
    comandi.push_back({Impostazione::FrequenzaTG, FrequenzaHz(setup.TGFreq)});
    return comandi;
}

} // namespace orvane
