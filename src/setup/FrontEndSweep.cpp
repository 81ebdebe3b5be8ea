#include "setup/FrontEndSweep.h"

#include <algorithm>

#include "base/Testo.h"
#include "link/Identificazione.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

constexpr int16_t kFrontEndFFT = 3;
constexpr double kAttesaSondaggioS = 0.05;
constexpr double kTempoCambioS = 5; ///< the unit starts anew
constexpr size_t kRispostaMassima = 4096;

/// Whether `atteso` comes, possibly behind other data.
bool AttendiTesto(Ricevitore& r, std::string_view atteso) {
    const Scadenza fine(r.ambiente, kTempoCambioS);
    std::string ricevuto;
    do {
        Attendi(r.ambiente, kAttesaSondaggioS);
        const auto letti = r.porta.LeggiPorta(std::min(r.porta.ByteInCoda(), kRispostaMassima));
        ricevuto.append(letti.begin(), letti.end());
        if (Contiene(ricevuto, atteso))
            return true;
        if (ricevuto.size() > kRispostaMassima)
            ricevuto.erase(0, ricevuto.size() - atteso.size());
    } while (!fine.Passata() && !r.stato.AbbandonaComandi);
    return false;
}

bool CambiaModo(Ricevitore& r, Impostazione modo) {
    const ReceiverCommand comando = Componi(modo, {});
    const FinestraAttesa attesa(r.finestra, {}, comando.Descrizione + "... Please wait");
    r.porta.SvuotaRicezione();
    if (!InviaGrezzo(r, comando.Comando))
        return false;
    const GuardiaVolo guardia(r.stato, comando.Comando);
    return AttendiTesto(r, comando.Risposta[0]);
}

bool Setta(Ricevitore& r, Impostazione modo) {
    if (CambiaModo(r, modo))
        return true;
    if (!r.stato.AbbandonaComandi)
        r.ambiente.Mostra(
            {.testo = "Error " + Componi(modo, {}).Descrizione, .icona = Icona::Esclamazione});
    return false;
}

void Spegni(Scrivania& s, int16_t& opzione, const char* perche) {
    if (opzione == 0)
        return;
    s.ambiente.Mostra({.testo = perche, .icona = Icona::Esclamazione});
    opzione = 0;
}

} // namespace

bool SettaGX2207FFT(Ricevitore& r) {
    return Setta(r, Impostazione::FFT);
}

bool SettaGX2207Swept(Ricevitore& r) {
    return Setta(r, Impostazione::Swept);
}

std::optional<Impostazione> ModoGX2207(const ReceiverModel& modello, const ScanTable& tabella) {
    if (modello.TipoFrontEnd != kFrontEndFFT)
        return std::nullopt;
    const bool conFFT = std::any_of(tabella.begin(), tabella.end(), [](const ScanLine& riga) {
        return riga.Start != 0 && ControllaScanFFT(riga);
    });
    return conFFT ? Impostazione::FFT : Impostazione::Swept;
}

bool ControllaGX2207FFTSwept(Ricevitore& r, const ScanTable& tabella) {
    const auto modo = ModoGX2207(r.modello, tabella);
    if (!modo)
        return true;
    // No query tells in which of the two the unit is: it is told each time.
    if (!(*modo == Impostazione::FFT ? SettaGX2207FFT(r) : SettaGX2207Swept(r)))
        return false;
    LeggiModello(r, Modalita::Sweep, 1);
    return !r.stato.AbbandonaComandi;
}

void ControllaFiltroAntennaGX2207(const ReceiverModel& modello, Scrivania& s) {
    if (modello.TipoFrontEnd != 0)
        return;
    Spegni(s, s.setup.FiltroHP150, "HP 150 kHz available only with GX2207 connected");
    Spegni(s, s.setup.AltaImpedenza, "HiZ receiver available only with GX2207 connected");
}

std::vector<ComandoPronto> ComponiFiltroAntennaGX2207(const ReceiverModel& modello,
                                                      const SetupRecord& setup) {
    if (modello.TipoFrontEnd == 0)
        return {};
    const bool altaImpedenza = setup.AltaImpedenza != 0;
    const char* generatore = setup.RFOut == 0 ? "0" : altaImpedenza ? "1" : "2";
    return {{Impostazione::FiltroGX2207, std::string(OnOff(setup.FiltroHP150 != 0))},
            {Impostazione::IngressoGX2207, altaImpedenza ? "H" : "A"},
            {Impostazione::TrackingGX2207, generatore}};
}

} // namespace orvane
