#include "sweep/Passata.h"

#include <algorithm>

#include "base/Testo.h"
#include "link/Protocollo.h"
#include "setup/TabellaScan.h"
#include "sweep/PausaSweep.h"

namespace orvane {
namespace {

// What the receiver may need before the first byte of a pass, besides eight times its hold times.
constexpr double kInizioConcessoS = 5.0;
constexpr double kAttesaComandoS = 0.2;
constexpr double kSilenzioFinaleS = 0.05;
constexpr double kResiduoMassimoS = 5.0;
constexpr double kIntestazioneS = 1.0;
constexpr int kTentativiIntestazione = 3;
constexpr double kPeriodoTestoS = 0.1;
// Beyond twice its steps and this many more a stream is no sweep: it would fill the disk.
constexpr long long kPassiDiTroppo = 1000;
constexpr size_t kBloccoLettura = 256 * 1024;
// Acknowledgement and header, without most of a pass that has come already.
constexpr size_t kBloccoPrimaDellaPausa = 64;

} // namespace

Passata::Passata(const Corsa& corsa, Progresso& progresso, ScanLine& riga, TracciaRiga& file,
                 float holdMs)
    : c_(corsa), r_(corsa.ricevitore), vista_(corsa.vista), progresso_(progresso), riga_(riga),
      file_(file), holdMs_(holdMs), passoMhz_(riga.Step) {}

Passata::Fine Passata::Esegui(const ComandoSweep& comando) {
    comando_ = comando;
    if (!comando_.frequenzeMhz.empty())
        progresso_.CorreggiRiga(static_cast<long long>(comando_.frequenzeMhz.size()));
    if (Avvia() && Ricevi())
        ScarigaDatiSweepRestanti();
    return fine_;
}

bool Passata::Finisci(EsitoCorsa esito, std::string motivo) {
    fine_ = {.esito = esito, .motivo = std::move(motivo)};
    return false;
}

bool Passata::Avvia() {
    lettore_.emplace(riga_.Detector, r_.modello.Is5520F);
    r_.porta.SvuotaRicezione();
    r_.log.InizioSweep(comando_.testo);
    if (!InviaGrezzo(r_, comando_.testo))
        return LetturaFallita();
    AttendiNellaCorsa(c_, kAttesaComandoS);
    return true;
}

double Passata::TempoMassimo() const {
    return static_cast<double>(holdMs_ + riga_.HoldTimeSD) / 1000 * 8 + kInizioConcessoS;
}

bool Passata::Ricevi() {
    Scadenza termine(r_.ambiente, TempoMassimo());
    Scadenza intestazione(r_.ambiente, kIntestazioneS);
    while (true) {
        const bool subito =
            Interrotta() || r_.porta.ByteInCoda() > 0 || !r_.porta.Aperta() || PausaMatura();
        const double attesa = AttendeIntestazione()
                                  ? std::min(termine.Rimane(), intestazione.Rimane())
                                  : termine.Rimane();
        r_.ambiente.ElaboraEventi(subito ? 0 : attesa, Veglia::EventiELink);
        if (PausaMatura() && !Interrotta() && !Pausa(termine))
            return false;
        if (Interrotta())
            return Finisci(EsitoCorsa::Fermata);
        if (LeggiArrivati()) {
            if (!Elabora())
                return false;
            if (lettore_->StatoAttuale() != LettoreFlusso::Stato::Riscontro)
                termine.Rinnova(TempoMassimo());
        } else if (termine.Passata() || !r_.porta.Aperta()) {
            return LetturaFallita();
        }
        if (lettore_->StatoAttuale() == LettoreFlusso::Stato::Finito)
            return true;
        if (!Attendi5520F(intestazione))
            return false;
    }
}

/// Ahead of its steps the silence of a receiver is no pause.
bool Passata::PausaMatura() const {
    return c_.stato.PausaRichiesta != 0 &&
           lettore_->StatoAttuale() == LettoreFlusso::Stato::Campioni;
}

/// False: what had come by then could not be stored, or was no sweep.
bool Passata::Pausa(Scadenza& termine) {
    bool bene = true;
    const double da = r_.ambiente.Adesso();
    ControllaPausaSweep(c_, [&] { bene = Elabora(); });
    progresso_.AggiungiPausa(r_.ambiente.Adesso() - da);
    termine.Rinnova(TempoMassimo());
    return bene && Elabora();
}

/// Whether any bytes came; the log has them.
bool Passata::LeggiArrivati() {
    const bool verraPausa = c_.stato.PausaRichiesta != 0;
    const size_t letti =
        r_.porta.LeggiInAccumulo(verraPausa ? kBloccoPrimaDellaPausa : kBloccoLettura);
    if (letti > 0)
        r_.log.BloccoSweep(r_.porta.accumulo.Dati().last(letti));
    return letti > 0;
}

/// Whether a header is still to come for which the command may be sent once more.
bool Passata::AttendeIntestazione() const {
    return lettore_->StatoAttuale() == LettoreFlusso::Stato::Intestazione &&
           r_.modello.TipoFrontEnd >= 2 && tentativiIntestazione_ < kTentativiIntestazione;
}

/// A fast front-end may acknowledge and then send no header: after a second the command goes out
/// again, three times at most.
bool Passata::Attendi5520F(Scadenza& intestazione) {
    if (lettore_->StatoAttuale() == LettoreFlusso::Stato::Riscontro)
        intestazione.Rinnova(kIntestazioneS);
    if (!AttendeIntestazione() || !intestazione.Passata())
        return true;
    ++tentativiIntestazione_;
    return Avvia();
}

/// Nothing came for too long, or the carrier is gone and nothing more can come.
bool Passata::LetturaFallita() {
    std::string testo = "5520 Time out";
    if (!r_.porta.Aperta())
        testo += "\r" + r_.porta.NomePorta() + " not Available";
    r_.ambiente.Mostra({.testo = testo, .icona = Icona::Esclamazione});
    return Finisci(EsitoCorsa::GuastoLink, Sostituisci(testo, "\r", ": "));
}

/// What has just been read: through the decoder, to the file, to the picture.
bool Passata::Elabora() {
    bool scritti = true;
    const auto stato = lettore_->Avanza(r_.porta.accumulo, [&](Passi passi) {
        ApplicaPassoAnnunciato();
        scritti = file_.Scrivi(passi);
        MostraDati(passi);
    });
    if (!scritti) {
        r_.ambiente.Mostra(
            {.testo = "Cannot save file " + c_.scrivania.albero.DataRoot() + file_.Percorso(),
             .icona = Icona::Esclamazione});
        FermaFlusso();
        return Finisci(EsitoCorsa::GuastoFile, "cannot write " + file_.Percorso());
    }
    if (passi_ > 2 * PassiDellaRiga(riga_) + kPassiDiTroppo) {
        FermaFlusso();
        return Finisci(EsitoCorsa::GuastoLink, "the receiver sends more steps than the line has");
    }
    return stato != LettoreFlusso::Stato::Rifiutato || SweepRifiutato();
}

/// Ends a stream that nobody reads any more. Its reply would be lost among the samples, so none is
/// waited for.
void Passata::FermaFlusso() {
    InviaGrezzo(r_, "#ASBK*");
    Attendi(r_.ambiente, kAttesaComandoS);
    r_.porta.SvuotaRicezione();
}

/// Of a line with a frequency table: the table's, its last one for whatever comes behind it.
double Passata::DeterminaFreqValFC(long long passo) const {
    const auto& elenco = comando_.frequenzeMhz;
    if (elenco.empty())
        return riga_.Start + static_cast<double>(passo) * passoMhz_;
    return elenco[std::min(static_cast<size_t>(passo), elenco.size() - 1)];
}

void Passata::AggiungiPassi(Passi passi) {
    if (comando_.frequenzeMhz.empty())
        return vista_.AggiungiPassi(riga_, DeterminaFreqValFC(passi_), passoMhz_, passi);
    for (size_t i = 0; i < passi.size(); ++i) {
        const long long passo = passi_ + static_cast<long long>(i);
        const double mhz = DeterminaFreqValFC(passo);
        vista_.AggiungiPassi(riga_, mhz, mhz - DeterminaFreqValFC(std::max(passo - 1, 0LL)),
                             passi.subspan(i, 1));
    }
}

void Passata::MostraDati(Passi passi) {
    AggiungiPassi(passi);
    passi_ += static_cast<long long>(passi.size());
    progresso_.Aggiungi(static_cast<long long>(passi.size()));
    if (r_.ambiente.Adesso() - ultimoTesto_ < kPeriodoTestoS)
        return;
    ultimoTesto_ = r_.ambiente.Adesso();
    const auto& livelli = passi.back().Livello;
    const auto piuAlto = *std::max_element(livelli.begin(), livelli.end());
    vista_.MostraFreqLivello(DeterminaFreqValFC(passi_ - 1), piuAlto);
    vista_.MostraAvanzamento(progresso_.Adesso());
}

/// The step that a 5520F works with takes the place of the table's for this pass.
void Passata::ApplicaPassoAnnunciato() {
    const auto passo = lettore_->PassoAnnunciato();
    if (!passo || *passo == passoMhz_ || !comando_.frequenzeMhz.empty())
        return;
    passoMhz_ = *passo;
    riga_.Step = *passo;
    progresso_.CorreggiRiga(PassiDellaRiga(riga_));
}

bool Passata::SweepRifiutato() {
    const std::string_view parole = ParoleErroreSweep(lettore_->CodiceErrore());
    const std::string testo(parole.empty() ? "set Sweep" : parole);
    MostraErrore(r_, testo, true);
    return Finisci(EsitoCorsa::GuastoLink, "Error " + testo + " (" + lettore_->Riscontro() + ")");
}

void Passata::ScarigaDatiSweepRestanti() {
    Scadenza silenzio(r_.ambiente, kSilenzioFinaleS);
    const Scadenza fine(r_.ambiente, kResiduoMassimoS); // a receiver that never falls silent
    while (!silenzio.Passata() && !fine.Passata() && !Interrotta() && r_.porta.Aperta()) {
        r_.ambiente.ElaboraEventi(silenzio.Rimane(), Veglia::EventiELink);
        if (r_.porta.LeggiInAccumulo(kBloccoLettura) > 0)
            silenzio.Rinnova(kSilenzioFinaleS);
        r_.porta.accumulo.Azzera();
    }
}

} // namespace orvane
