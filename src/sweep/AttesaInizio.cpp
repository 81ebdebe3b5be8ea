#include "sweep/AttesaInizio.h"

#include "link/Interrogazioni.h"

namespace orvane {
namespace {

constexpr double kPeriodoTriggerS = 0.2;

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
        AttendiNellaCorsa(c, kPeriodoTriggerS);
        if (VuoleUscire(c))
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
        AttendiNellaCorsa(c, prossimo - ambiente.Adesso());
        if (VuoleUscire(c))
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
