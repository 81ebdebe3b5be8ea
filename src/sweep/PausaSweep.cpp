#include "sweep/PausaSweep.h"

#include <algorithm>
#include <span>
#include <vector>

#include "link/ImpLocali.h"
#include "link/Interrogazioni.h"
#include "link/Protocollo.h"
#include "records/SetupRecord.h"

namespace orvane {
namespace {

constexpr int kTentativi = 4;
constexpr double kAttesaComandoS = 0.2;
constexpr double kSilenzioS = 0.1;
constexpr double kArretratoS = 1.0; ///< what was on its way when the receiver fell silent
constexpr double kFraTentativiS = 0.5;
constexpr double kPeriodoBatteriaS = 5;
constexpr int kMessaggioMs = 1500;
constexpr size_t kBloccoLettura = 64 * 1024;
constexpr std::string_view kRifiuto = "SERR";
constexpr std::string_view kRifiutoIntero = "SERR\r\n";
constexpr std::string_view kFineSweep = "SFD_END";
constexpr int kAncillaryMastTable = 5;

/// Whether what has come behind a silence is a refusal, or the beginning of one.
bool PuoEssereRifiuto(std::span<const uint8_t> dati) {
    const size_t quanti = std::min(dati.size(), kRifiutoIntero.size());
    return std::equal(dati.begin(), dati.begin() + static_cast<std::ptrdiff_t>(quanti),
                      kRifiutoIntero.begin(),
                      [](uint8_t a, char b) { return a == static_cast<uint8_t>(b); });
}

/// A command empties the accumulation buffer, in which part of a step may wait: keeps what it held.
class TieniAccumulo {
public:
    explicit TieniAccumulo(Accumulo& accumulo)
        : accumulo_(accumulo), tenuti_(accumulo.Dati().begin(), accumulo.Dati().end()) {}
    ~TieniAccumulo() {
        accumulo_.Azzera();
        std::ranges::copy(tenuti_, accumulo_.Spazio(tenuti_.size()).begin());
        accumulo_.Aggiunti(tenuti_.size());
    }
    TieniAccumulo(const TieniAccumulo&) = delete;
    TieniAccumulo& operator=(const TieniAccumulo&) = delete;

private:
    Accumulo& accumulo_;
    std::vector<uint8_t> tenuti_;
};

/// In a pause the column of settings shows the record already; nothing else is to be shown.
struct VistaMuta : VistaComuni {
    void MostraComuni() override {}
    void RidisegnaScala() override {}
    void MostraFiltro(const FiltroMostrato&) override {}
    void RiempiLineSwitch() override {}
    void InviaLineSwitch() override {}
};

/// The setter of a live mode, which sends what the record holds.
void InviaCambio(const Corsa& corsa, const CambioInPausa& cambio) {
    const TieniAccumulo tenuto(corsa.ricevitore.porta.accumulo);
    VistaMuta vista;
    ComuniVivi comuni{corsa.ricevitore, corsa.scrivania.setup, vista};
    const auto ordine = OrdineInvio();
    const auto voce = std::ranges::find(ordine, cambio.quale, &VoceInvio::quale);
    if (voce != ordine.end())
        voce->invia(comuni, cambio.modalita);
}

class Pausa {
public:
    explicit Pausa(const Corsa& c) : c_(c), r_(c.ricevitore) {}
    /// True: the receiver is silent in the midst of its sweep.
    bool Sospendi();
    void RestaInPausa();
    void Riprendi();

private:
    bool ProvaSospensione();
    bool ProvaRipresa();
    void TimerAggiornaControlli();
    void Attendi(double secondi) { AttendiNellaCorsa(c_, secondi); }
    bool Raccogli();
    bool TogliRifiuto();
    bool SweepGiaFinito() const { return CercaSequenza(r_.porta.accumulo.Dati(), kFineSweep) > 0; }
    bool VuoleUscire() const { return orvane::VuoleUscire(c_); }
    void Fase(FaseCorsa fase) {
        c_.stato.fase = fase;
        c_.vista.MostraFase(fase);
    }

    const Corsa& c_;
    Ricevitore& r_;
};

bool Pausa::Raccogli() {
    if (r_.porta.ByteInCoda() == 0)
        return false;
    const size_t letti = r_.porta.LeggiInAccumulo(kBloccoLettura);
    if (letti > 0)
        r_.log.BloccoSweep(r_.porta.accumulo.Dati().last(letti));
    return letti > 0;
}

/// Cuts a refusal, with its line end, out of the stream that goes on around it.
bool Pausa::TogliRifiuto() {
    const auto dati = r_.porta.accumulo.Dati();
    const int32_t qui = CercaSequenza(dati, kRifiuto);
    if (qui == 0)
        return false;
    std::vector<uint8_t> tutti(dati.begin(), dati.end());
    const auto da = tutti.begin() + (qui - 1);
    auto a = da + static_cast<std::ptrdiff_t>(kRifiuto.size());
    if (tutti.end() - a >= 2 && a[0] == '\r' && a[1] == '\n')
        a += 2;
    tutti.erase(da, a);
    r_.porta.accumulo.Azzera();
    std::ranges::copy(tutti, r_.porta.accumulo.Spazio(tutti.size()).begin());
    r_.porta.accumulo.Aggiunti(tutti.size());
    return true;
}

/// True: the receiver has fallen silent.
bool Pausa::ProvaSospensione() {
    if (!InviaGrezzo(r_, "#ASPA*"))
        return false;
    Attendi(kAttesaComandoS);
    Scadenza silenzio(r_.ambiente, kSilenzioS);
    const Scadenza arretrato(r_.ambiente, kArretratoS);
    while (!VuoleUscire()) {
        if (Raccogli())
            silenzio.Rinnova(kSilenzioS);
        else if (silenzio.Passata())
            return !TogliRifiuto();
        const bool rifiutata = CercaSequenza(r_.porta.accumulo.Dati(), kRifiutoIntero) > 0;
        if (rifiutata || arretrato.Passata()) {
            TogliRifiuto();
            return false;
        }
        r_.ambiente.ElaboraEventi(silenzio.Rimane(), Veglia::EventiELink);
    }
    return false;
}

bool Pausa::Sospendi() {
    c_.vista.AbilitaTastiCorsa(false);
    bool riuscita = false;
    for (int i = 0; i < kTentativi && !riuscita && !VuoleUscire() && !SweepGiaFinito(); ++i) {
        if (i > 0)
            Attendi(kFraTentativiS);
        riuscita = ProvaSospensione();
    }
    c_.vista.AbilitaTastiCorsa(true);
    if (riuscita && !SweepGiaFinito())
        return true;
    // A pass that was over first leaves the pause to the next one.
    if (SweepGiaFinito() && !VuoleUscire())
        return false;
    c_.stato.PausaRichiesta = 0;
    if (VuoleUscire())
        return false;
    c_.stato.StopRichiesto = true;
    c_.stato.motivo = "Pause Failed";
    c_.vista.MostraMessaggioBreve("Pause Failed", kMessaggioMs);
    return false;
}

/// Sends what the user has changed meanwhile. While a command is out a further change may come.
void Pausa::TimerAggiornaControlli() {
    auto& inSospeso = c_.stato.inSospeso;
    while (!inSospeso.empty() && !VuoleUscire()) {
        const CambioInPausa cambio = inSospeso.front();
        inSospeso.erase(inSospeso.begin());
        InviaCambio(c_, cambio);
    }
}

void Pausa::RestaInPausa() {
    Fase(FaseCorsa::Pausa);
    Scadenza batteria(r_.ambiente, 0);
    while (c_.stato.PausaRichiesta == 1 && !VuoleUscire()) {
        r_.porta.ByteInCoda(); // finds out whether there is a port still
        if (!r_.porta.Aperta()) {
            c_.stato.PausaRichiesta = 0;
            return Fase(FaseCorsa::Misura);
        }
        // While a command is out the user may have asked for something: no wait behind it.
        if (!c_.stato.inSospeso.empty()) {
            TimerAggiornaControlli();
        } else if (batteria.Passata()) {
            VisualizzaBatteriaUnaVolta(c_);
            batteria.Rinnova(kPeriodoBatteriaS);
        } else {
            r_.ambiente.ElaboraEventi(batteria.Rimane(), Veglia::Eventi);
        }
    }
}

/// False: the receiver has refused. Its steps may be there again at once.
bool Pausa::ProvaRipresa() {
    const size_t prima = r_.porta.accumulo.Quanti();
    InviaGrezzo(r_, "#ASRE*");
    const Scadenza risposta(r_.ambiente, kSilenzioS);
    while (!risposta.Passata() && !VuoleUscire() && r_.porta.Aperta()) {
        r_.ambiente.ElaboraEventi(risposta.Rimane(), Veglia::EventiELink);
        Raccogli();
        const auto nuovi = r_.porta.accumulo.Dati().subspan(prima);
        if (!nuovi.empty() && !PuoEssereRifiuto(nuovi))
            return true;
    }
    return !TogliRifiuto();
}

void Pausa::Riprendi() {
    // Still paused: a Stop ends the commands too.
    TimerAggiornaControlli();
    if (!VuoleUscire())
        VisualizzaBatteriaUnaVolta(c_);
    Fase(FaseCorsa::Misura);
    while (!VuoleUscire() && !ProvaRipresa()) {
        MostraErrore(r_, "set Resume Sweep", true);
        Attendi(kFraTentativiS);
    }
    MostraErrore(r_, "set Resume Sweep", false);
    c_.stato.PausaRichiesta = 0;
}

} // namespace

void ControllaVisCMBPausa(Corsa& corsa) {
    const ReceiverModel& modello = corsa.ricevitore.modello;
    const bool mastTable = AncillaryDi(corsa.scrivania.setup) == kAncillaryMastTable;
    corsa.vista.MostraCMBPausa(modello.FwVersione >= firmware::kPausaBatteria &&
                               !(mastTable && modello.EstensioneAttiva));
}

void ControllaPausaSweep(const Corsa& corsa, const std::function<void()>& elabora) {
    Pausa pausa(corsa);
    if (corsa.stato.PausaRichiesta == 1 && pausa.Sospendi()) {
        elabora();
        pausa.RestaInPausa();
    }
    if (corsa.stato.PausaRichiesta == 2 && !corsa.stato.StopRichiesto)
        pausa.Riprendi();
}

void VisualizzaBatteriaUnaVolta(const Corsa& corsa) {
    Ricevitore& r = corsa.ricevitore;
    if (r.modello.FwVersione < firmware::kPausaBatteria || !HaBatteria(r.modello))
        return;
    const TieniAccumulo tenuto(r.porta.accumulo);
    const auto batteria = LeggiRispostaBAT(InviaComando(r, kTempoRisposta, "#?BAT*", true));
    if (batteria)
        corsa.vista.MostraBatteria(batteria->livello);
}

} // namespace orvane
