#include "verbs/VistaTerminale.h"

#include <algorithm>
#include <cmath>
#include <ostream>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "verbs/EventiCorsa.h"

namespace orvane {
namespace {

// How often a progress line comes where it cannot be written over.
constexpr double kPeriodoRigheS = 2;
constexpr double kPeriodoEventiS = 0.5;
// Seconds between two words of a countdown that cannot be written over.
constexpr int kPassoContoS = 10;

std::string TestoAvanzamento(const Avanzamento& a, double freqMhz, int16_t livelloCent) {
    const std::string passata = a.nomePassata.empty() ? "" : " " + a.nomePassata;
    std::string testo = "line " + TestoIntero(a.riga + 1) + " of " + TestoIntero(a.numRighe) +
                        passata + "  " + TestoIntero(a.passiRiga) + "/" +
                        TestoIntero(a.totaleRiga) + " steps  " +
                        TestoIntero(std::lround(std::floor(a.frazione * 100))) + " %  " +
                        TestoTempo(a.trascorsiS) + " elapsed";
    testo += a.restanoS < 0 ? "  time left unknown" : "  " + TestoTempo(a.restanoS) + " left";
    if (livelloCent > kNessunLivello && a.frazione < 1)
        testo +=
            "  " + TestoFisso(freqMhz, 4) + " MHz " + TestoFisso(livelloCent / 100.0, 2) + " dBµV";
    return testo;
}

} // namespace

std::string TestoTempo(double secondi) {
    const long long s = std::llround(std::max(0.0, std::min(secondi, 1e9)));
    if (s < 3600)
        return TestoIntero(s / 60) + ":" + TestoIntero(s % 60, 2);
    return TestoIntero(s / 3600) + ":" + TestoIntero(s / 60 % 60, 2) + ":" + TestoIntero(s % 60, 2);
}

double VistaTerminale::StrisciaDaS() const {
    return strisciaDa_ < 0 ? 0 : ambiente_.Adesso() - strisciaDa_;
}

std::optional<double> VistaTerminale::DatiDaS() const {
    return primiDati_ < 0 ? std::nullopt : std::optional(ambiente_.Adesso() - primiDati_);
}

void VistaTerminale::Evento(const std::string& evento) {
    if (eventi_)
        *eventi_ << evento << "\n" << std::flush;
}

void VistaTerminale::Riga(const std::string& testo) {
    FineRiga();
    if (!json_)
        messaggi_ << testo << "\n" << std::flush;
}

/// Written over itself where that can be done.
void VistaTerminale::RigaMobile(const std::string& testo) {
    // The blanks wipe the rest of a longer line.
    messaggi_ << (riscrivi_ ? "\r" : "") << testo << (riscrivi_ ? "    " : "\n") << std::flush;
    aMeta_ = riscrivi_;
}

void VistaTerminale::FineRiga() {
    if (aMeta_)
        messaggi_ << "\n" << std::flush;
    aMeta_ = false;
}

void VistaTerminale::MostraStriscia(const std::string& testo) {
    FineRiga();
    messaggi_ << Sostituisci(testo, "\r", " ") << "\n" << std::flush;
    Evento(EventoTesto("error", "text", testo));
    if (strisciaDa_ < 0)
        strisciaDa_ = ambiente_.Adesso();
}

void VistaTerminale::MostraAttesa(const std::string& titolo, const std::string& testo) {
    FineRiga();
    messaggi_ << titolo << (titolo.empty() ? "" : ": ") << testo << "\n" << std::flush;
}

void VistaTerminale::EvidenziaCella(int riga, ColonnaScan colonna, bool errata) {
    if (!errata)
        return;
    FineRiga();
    messaggi_ << "line " << riga + 1 << ": "
              << Sostituisci(std::string(TitoloColonna(colonna)), "\n", " ") << " is at fault\n";
}

void VistaTerminale::MostraFase(FaseCorsa fase) {
    if (fase == fase_)
        return;
    Evento(EventoFase(fase));
    if (fase == FaseCorsa::Pausa)
        Riga("paused");
    else if (fase_ == FaseCorsa::Pausa && fase == FaseCorsa::Misura)
        Riga("resumed");
    fase_ = fase;
}

void VistaTerminale::IniziaTraccia(const ScanTable&, const std::string& misura) {
    Riga("measure " + misura);
    Evento(EventoTesto("measure", "measure", misura));
}

void VistaTerminale::IniziaPassata(const PassataInCorso& passata) {
    if (!passata.nome.empty())
        Riga(passata.etichetta);
    Evento(EventoPassata(passata));
}

void VistaTerminale::AggiungiPassi(const ScanLine&, double, double, std::span<const SampleRecord>) {
    if (primiDati_ < 0)
        primiDati_ = ambiente_.Adesso();
}

void VistaTerminale::MostraFreqLivello(double freqMhz, int16_t livelloCent) {
    freqMhz_ = freqMhz;
    livelloCent_ = livelloCent;
    Evento(EventoLivello(freqMhz, livelloCent));
}

void VistaTerminale::MostraAvanzamento(const Avanzamento& avanzamento) {
    const bool intero = avanzamento.frazione >= 1;
    if (intero && intero_ && !riscrivi_)
        return;
    intero_ = intero;
    const double ora = ambiente_.Adesso();
    const double periodo = json_ ? kPeriodoEventiS : riscrivi_ ? 0 : kPeriodoRigheS;
    if (!intero && ultimo_ >= 0 && ora - ultimo_ < periodo)
        return;
    ultimo_ = ora;
    if (json_)
        Evento(EventoAvanzamento(avanzamento));
    else
        RigaMobile(TestoAvanzamento(avanzamento, freqMhz_, livelloCent_));
}

void VistaTerminale::MostraBatteria(const std::string& livello) {
    Evento(EventoTesto("battery", "level", livello));
}

void VistaTerminale::MostraAttesaTimer(int restanoS, int totaleS) {
    Evento(EventoTimer(restanoS, totaleS));
    if (!json_ && (riscrivi_ || restanoS == totaleS || restanoS % kPassoContoS == 0))
        RigaMobile(TestoIntero(restanoS) + " s to start Sweep");
}

void VistaTerminale::MostraAttesaTrigger(int16_t modo, int userPort) {
    if (userPort == portaDetta_)
        return;
    portaDetta_ = userPort;
    Evento(EventoTrigger(modo, userPort));
    Riga("user port reads " + TestoIntero(userPort) + ", waiting until it reads " +
         (modo == 1 ? "0" : "not 0"));
}

void VistaTerminale::MostraMessaggioBreve(const std::string& testo, int) {
    Riga(testo);
    Evento(EventoTesto("message", "text", testo));
}

void VistaTerminale::MostraRisposta(std::string_view testo, std::string_view risposta) {
    Evento(EventoRiquadro(testo, risposta));
}

} // namespace orvane
