#include "verbs/VistaTerminale.h"

#include <cmath>
#include <ostream>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "verbs/Json.h"

namespace orvane {
namespace {

// How often a progress line comes where it cannot be written over.
constexpr double kPeriodoRigheS = 2;

std::string TestoAvanzamento(const Avanzamento& a, double freqMhz, int16_t livelloCent) {
    std::string testo = "line " + TestoIntero(a.riga + 1) + " of " + TestoIntero(a.numRighe) +
                        "  " + TestoIntero(a.passiRiga) + "/" + TestoIntero(a.totaleRiga) +
                        " steps  " + TestoIntero(std::lround(std::floor(a.frazione * 100))) +
                        " %  " + TestoTempo(a.trascorsiS) + " elapsed";
    testo += a.restanoS < 0 ? "  time left unknown" : "  " + TestoTempo(a.restanoS) + " left";
    if (livelloCent > kNessunLivello && a.frazione < 1)
        testo +=
            "  " + TestoFisso(freqMhz, 4) + " MHz " + TestoFisso(livelloCent / 100.0, 2) + " dBµV";
    return testo;
}

std::string EventoAvanzamento(const Avanzamento& a) {
    Json json;
    json.Oggetto().Coppia("event", "progress").Coppia("line", a.riga + 1);
    json.Coppia("lines", static_cast<double>(a.numRighe));
    json.Coppia("steps", static_cast<double>(a.passiRiga));
    json.Coppia("steps_of", static_cast<double>(a.totaleRiga));
    json.Coppia("fraction", a.frazione).Coppia("elapsed_s", a.trascorsiS);
    json.Chiave("left_s").Numero(a.restanoS < 0 ? NAN : a.restanoS);
    return json.Chiudi().Documento();
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

void VistaTerminale::FineRiga() {
    if (aMeta_)
        messaggi_ << "\n" << std::flush;
    aMeta_ = false;
}

void VistaTerminale::MostraStriscia(const std::string& testo) {
    FineRiga();
    messaggi_ << Sostituisci(testo, "\r", " ") << "\n" << std::flush;
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

void VistaTerminale::IniziaTraccia(const ScanTable&, const std::string& misura) {
    FineRiga();
    if (!json_)
        messaggi_ << "measure " << misura << "\n" << std::flush;
}

void VistaTerminale::MostraFreqLivello(double freqMhz, int16_t livelloCent) {
    freqMhz_ = freqMhz;
    livelloCent_ = livelloCent;
}

void VistaTerminale::MostraAvanzamento(const Avanzamento& avanzamento) {
    const bool intero = avanzamento.frazione >= 1;
    if (intero && intero_ && !riscrivi_)
        return;
    intero_ = intero;
    const double ora = ambiente_.Adesso();
    if (!riscrivi_ && !intero && ultimo_ >= 0 && ora - ultimo_ < kPeriodoRigheS)
        return;
    ultimo_ = ora;
    if (json_) {
        messaggi_ << EventoAvanzamento(avanzamento) << "\n" << std::flush;
        return;
    }
    // The blanks wipe the rest of a longer line.
    messaggi_ << (riscrivi_ ? "\r" : "") << TestoAvanzamento(avanzamento, freqMhz_, livelloCent_)
              << (riscrivi_ ? "    " : "\n") << std::flush;
    aMeta_ = riscrivi_;
}

} // namespace orvane
