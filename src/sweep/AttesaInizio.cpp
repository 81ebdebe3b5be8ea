#include "sweep/AttesaInizio.h"

#include "link/Interrogazioni.h"

namespace orvane {
namespace {

constexpr double kPeriodoTriggerS = 0.2;

bool VuoleUscire(const Corsa& c) {
    return c.stato.StopRichiesto || c.ricevitore.stato.AbbandonaComandi;
}

/// False: the user wants out, and has not had to wait for the end of it.
bool AttendiFinche(const Corsa& c, const Scadenza& fine) {
    while (!fine.Passata() && !VuoleUscire(c))
        c.ricevitore.ambiente.ElaboraEventi(fine.Rimane(), Veglia::Eventi);
    return !VuoleUscire(c);
}

bool TriggerScattato(int16_t modo, int userPort) {
    return modo == 1 ? userPort == 0 : userPort != 0;
}

bool AttendiTrigger(Corsa& c) {
    const int16_t modo = c.stato.TriggerSweepMode;
    while (true) {
        const auto userPort = LeggiUserPort(c.ricevitore);
        if (!userPort || VuoleUscire(c))
            return false;
        c.vista.MostraAttesaTrigger(modo, *userPort);
        if (TriggerScattato(modo, *userPort))
            return true;
        if (!AttendiFinche(c, {c.ricevitore.ambiente, kPeriodoTriggerS}))
            return false;
    }
}

bool AttendiTimer(Corsa& c) {
    const Ambiente& ambiente = c.ricevitore.ambiente;
    const double inizio = ambiente.Adesso();
    const int secondi = c.stato.TimerSweepSec;
    for (int passati = 0; passati < secondi; ++passati) {
        c.vista.MostraAttesaTimer(secondi - passati, secondi);
        const double prossimo = inizio + passati + 1;
        if (!AttendiFinche(c, {ambiente, prossimo - ambiente.Adesso()}))
            return false;
    }
    return true;
}

} // namespace

bool ControllaTTSweep(Corsa& corsa) {
    if (corsa.stato.TriggerSweepMode == 0 && corsa.stato.TimerSweepSec <= 0)
        return true;
    const bool via =
        corsa.stato.TriggerSweepMode != 0 ? AttendiTrigger(corsa) : AttendiTimer(corsa);
    corsa.vista.NascondiAttesaInizio();
    return via;
}

} // namespace orvane
