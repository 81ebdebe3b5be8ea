#include "live/FlussoAnalyzer.h"

#include <algorithm>
#include <string_view>

#include "link/Livelli.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

constexpr std::string_view kRiscontro = "AGO=OK\r\n";
constexpr size_t kBloccoLettura = 64 * 1024;

std::string_view ComeTesto(std::span<const uint8_t> dati) {
    return {reinterpret_cast<const char*>(dati.data()), dati.size()};
}

} // namespace

void LettoreAnalyzer::Inizia() {
    riscontrato_ = false;
    punti_ = arrivati_ = 0;
}

/// False while the acknowledgement is not whole; of what is none, only its beginning may stay.
bool LettoreAnalyzer::TrovaRiscontro(Accumulo& dati) {
    const std::string_view testo = ComeTesto(dati.Dati());
    const size_t dove = testo.find(kRiscontro);
    if (dove != std::string_view::npos) {
        dati.Consuma(dove + kRiscontro.size());
        return true;
    }
    dati.Consuma(testo.size() - std::min(testo.size(), kRiscontro.size() - 1));
    return false;
}

size_t LettoreAnalyzer::LeggiIntestazione(Accumulo& dati) {
    if (punti_ > 0)
        return punti_;
    riscontrato_ = riscontrato_ || TrovaRiscontro(dati);
    if (!riscontrato_ || dati.Quanti() < kMinimiIntestazioneAnalyzer)
        return 0;
    const auto arrivata = DecodificaIntestazione(dati.Dati().first<kByteIntestazioneAnalyzer>());
    IntestazioneAnalyzer intestazione = arrivata;
    FormattaSSSSweep(intestazione);
    if (!ChkDataSweep(intestazione, modello_, caps_)) {
        dati.Azzera();
        riscontrato_ = false;
        return 0;
    }
    dati.Consuma(kByteIntestazioneAnalyzer);
    intestazione_ = intestazione;
    punti_ = PuntiSweep(arrivata);
    return punti_;
}

int LettoreAnalyzer::UpDateSweep(Accumulo& dati, std::span<int16_t> traccia) {
    if (punti_ == 0 || traccia.size() < punti_)
        return kErroreSweepAnalyzer;
    const size_t nuovi = std::min(PassiInteri(dati.Quanti(), 1), punti_ - arrivati_);
    if (nuovi == 0 && !Completo())
        return kRileggiSweepAnalyzer;
    DecodificaLivelli(dati.Dati(), traccia.subspan(arrivati_, nuovi));
    dati.Consuma(nuovi * kByteLivello);
    arrivati_ += nuovi;
    return static_cast<int>(arrivati_);
}

size_t Get5520Header(Ricevitore& r, LettoreAnalyzer& lettore, float holdMs) {
    lettore.Inizia();
    r.porta.SvuotaRicezione();
    if (!InviaGrezzo(r, "#SAGO*"))
        return 0;
    // Not moved on by what arrives: samples of a sweep whose header was dropped may go on for long.
    const Scadenza termine(r.ambiente, TempoSweepAnalyzer(holdMs));
    while (!r.stato.AbbandonaComandi && r.porta.Aperta()) {
        if (r.porta.LeggiInAccumulo(kBloccoLettura) > 0) {
            if (const size_t punti = lettore.LeggiIntestazione(r.porta.accumulo))
                return punti;
        }
        if (termine.Passata())
            return 0;
        r.ambiente.ElaboraEventi(termine.Rimane(), Veglia::EventiELink);
    }
    return 0;
}

} // namespace orvane
