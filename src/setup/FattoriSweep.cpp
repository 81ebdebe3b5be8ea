#include "setup/FattoriSweep.h"

#include <algorithm>
#include <set>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/CaricamentoTabelle.h"
#include "data/Interpolazione.h"
#include "data/NomiTabelle.h"

namespace orvane {
namespace {

constexpr size_t kMinFrequenze = 2;

Riquadro Avviso(std::string testo) {
    return {.testo = std::move(testo), .icona = Icona::Esclamazione};
}

/// At its own points a factor is what its table says: read as a curve it has already ended at the
/// last of them.
int ValoreAlPunto(FactorTable& fattore, float freqHz) {
    const auto freq = std::span(fattore.Freq).first(NumeroPunti(fattore));
    const auto oltre = std::upper_bound(freq.begin(), freq.end(), freqHz);
    if (oltre != freq.begin() && *(oltre - 1) == freqHz)
        return fattore.Value[static_cast<size_t>(oltre - freq.begin()) - 1];
    return ValoreFattore(fattore, freqHz);
}

/// One row of the upload: three short tries.
bool InviaRiga(Ricevitore& r, const ComandoPronto& pronto) {
    const ReceiverCommand comando = Componi(pronto.quale, pronto.argomenti);
    const std::string risposta = InviaRigaCaricamento(r, comando.Comando, comando.Risposta[0]);
    return Contiene(risposta, comando.Risposta[0]) && Contiene(risposta, comando.Risposta[1]);
}

bool InviaFattori(Ricevitore& r, std::span<const ComandoPronto> comandi) {
    return std::all_of(comandi.begin(), comandi.end(), [&](const ComandoPronto& comando) {
        return !r.stato.AbbandonaComandi && InviaRiga(r, comando);
    });
}

/// The wait window belongs to a USB link.
bool InviaConAttesa(Ricevitore& r, std::span<const ComandoPronto> comandi) {
    if (comandi.empty() || r.porta.Seriale())
        return InviaFattori(r, comandi);
    const FinestraAttesa attesa(r.finestra, std::string(kNomeFattoreSweep), "Store Conv Factor");
    return InviaFattori(r, comandi);
}

} // namespace

std::vector<FactorTable> FattoriInUso(const AlberoDati& albero, const SetupRecord& setup) {
    std::vector<FactorTable> fattori;
    for (size_t i = 0; i < setup.FactorOn.size(); ++i) {
        if (setup.FactorOn[i] == 1 && NominaTabella(setup.FactorName[i]))
            fattori.push_back(FattoreDaNome(albero, Rifila(setup.FactorName[i])));
    }
    return fattori;
}

std::vector<PuntoFattore> UnisciFattori(std::span<const FactorTable> fattori) {
    std::vector<FactorTable> curve(fattori.begin(), fattori.end());
    std::set<float> frequenze;
    for (const FactorTable& curva : curve)
        frequenze.insert(curva.Freq.begin(),
                         curva.Freq.begin() + static_cast<std::ptrdiff_t>(NumeroPunti(curva)));
    std::vector<PuntoFattore> punti;
    for (const float f : frequenze) {
        int somma = 0;
        for (FactorTable& curva : curve)
            somma += ValoreAlPunto(curva, f);
        punti.push_back({.freqHz = f, .somma = somma});
    }
    return punti;
}

std::vector<ComandoPronto> ComponiCFSweep(std::span<const PuntoFattore> punti) {
    std::vector<ComandoPronto> comandi;
    for (const PuntoFattore& punto : punti)
        comandi.push_back(
            {Impostazione::RigaFattore, TestoIntero(static_cast<long long>(comandi.size())) + "," +
                                            TestoPunto(punto.freqHz, punto.somma)});
    if (!comandi.empty())
        comandi.push_back({Impostazione::FineFattore, std::string(kNomeFattoreSweep)});
    return comandi;
}

Riquadro ObiezioneAiFattori(std::span<const FactorTable> fattori, size_t punti) {
    if (fattori.empty())
        return {};
    if (punti > kMaxPuntiFattore)
        return Avviso("Too many frequencies\rMax " + TestoIntero(kMaxPuntiFattore) +
                      " frequencies");
    if (punti < kMinFrequenze)
        return Avviso("Too few factor frequencies\rMin 2 different frequencies");
    return {};
}

Segnalazioni ControllaCFSweep(const ContestoControlli& contesto) {
    const auto fattori = FattoriInUso(contesto.albero, contesto.setup);
    Riquadro obiezione = ObiezioneAiFattori(fattori, UnisciFattori(fattori).size());
    if (obiezione.testo.empty())
        return {};
    return {{.riquadro = std::move(obiezione)}};
}

bool ImpostaCFSweep(Ricevitore& r, Scrivania& s) {
    DisabilitaCF(r);
    if (r.stato.AbbandonaComandi)
        return false;
    const auto fattori = FattoriInUso(s.albero, s.setup);
    const auto punti = UnisciFattori(fattori);
    const Riquadro obiezione = ObiezioneAiFattori(fattori, punti.size());
    if (!obiezione.testo.empty()) {
        r.ambiente.Mostra(obiezione);
        return false;
    }
    if (InviaConAttesa(r, ComponiCFSweep(punti)))
        return true;
    if (!r.stato.AbbandonaComandi)
        r.ambiente.Mostra(Avviso("Could not store\rConversion Factor"));
    return false;
}

} // namespace orvane
