#include "console/Console.h"

#include "base/Percorsi.h"
#include "console/Archivio.h"
#include "console/Titolo.h"
#include "data/Panels.h"
#include "link/Comandi.h"
#include "link/Interrogazioni.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

bool Vivo(Modalita m) {
    return m == Modalita::Analyzer || m == Modalita::Manual || m == Modalita::Click;
}

/// Something of the receiver's is on the stack: a command, a run, the start of a mode.
bool Occupata(const Console& c) {
    return c.ricevitore.stato.inVolo || c.corsa.stato.SweepInCorso || c.stato.avvioInCorso;
}

void AggiornaTitolo(Console& c) {
    c.vista.MostraTitolo(TitoloFinestra(c));
}

/// From the open port to a receiver that is known and quiet. False when the mode cannot start.
bool RiconosciRicevitore(Console& c, Modalita modalita) {
    Ricevitore& r = c.ricevitore;
    if (!r.porta.ApriPorta(true))
        return false;
    AbortSweep(r);
    if (!r.stato.AbbandonaComandi)
        LeggiModello(r, modalita, 1);
    AggiornaTitolo(c);
    if (!r.stato.AbbandonaComandi)
        r.modello.SerialNumber = LeggiSerialNumber(r);
    if (!r.stato.AbbandonaComandi && modalita != Modalita::Click)
        DisabilitaCF(r);
    return !r.stato.AbbandonaComandi;
}

/// Analyzer, Manual and Click begin alike: menus off, link open, receiver identified.
bool AvviaModoVivo(Console& c, Modalita modalita) {
    c.vista.DisabilitaMenu();
    c.ricevitore.stato.AbbandonaComandi = false;
    c.stato.avvioInCorso = true;
    const bool bene = RiconosciRicevitore(c, modalita);
    c.stato.avvioInCorso = false;
    if (bene)
        c.vista.EntraModoVivo(modalita);
    return bene;
}

void AbbandonaAvvio(Console& c) {
    Ricevitore& r = c.ricevitore;
    if (!r.porta.link.motivo.empty())
        c.vista.MostraStato(r.porta.link.motivo);
    r.porta.ChiudiPorta();
    r.porta.link.PortaNonDisponibile = false;
    r.porta.link.UsbNonDisponibile = false;
    MostraErrore(r, "---", false);
}

/// Enters one mode; false when a live mode could not start.
bool Entra(Console& c, Modalita modalita) {
    c.stato.modalita = modalita;
    AggiornaTitolo(c);
    c.vista.MostraScheda(modalita);
    if (Vivo(modalita)) {
        c.vista.ChiudiFinestreAusiliarie();
        return AvviaModoVivo(c, modalita);
    }
    if (modalita == Modalita::Sweep) {
        c.vista.EntraSweep();
        return true;
    }
    AttivaSweepsArchive(c.scrivania, c.stato.archivio);
    c.vista.EntraArchivio();
    return true;
}

void SalvaSweep(Console& c) {
    SalvaPanelEST(c.scrivania, c.scrivania.env.ScanPanelPath, c.scan);
    SalvaPanelEAM(c.scrivania, kPannelloEAM);
}

void ChiudiSweep(Console& c) {
    // A run that is on sends #ASBK* itself, as soon as no command of its own is in flight.
    if (c.corsa.stato.SweepInCorso)
        ChiediStop(c.corsa.stato);
    c.vista.PulisciQuadro();
    SalvaSweep(c);
}

void ChiudiModoVivo(Console& c) {
    Ricevitore& r = c.ricevitore;
    c.vista.PulisciQuadro();
    r.stato.AbbandonaComandi = true;
    if (Occupata(c))
        return;
    if (r.porta.Aperta())
        InviaGrezzo(r, "#SSTP*");
    r.porta.ChiudiPorta();
}

void Termina(Console& c) {
    c.ricevitore.porta.ChiudiPorta();
    c.vista.TerminaProcesso();
}

} // namespace

std::string TitoloFinestra(const Console& c) {
    return ComponiTitolo({.modalita = c.stato.modalita,
                          .pannello = EstraiNomeFile(c.scrivania.env.SetupPanelPath),
                          .modello = NomeModello(c.ricevitore.modello, false),
                          .descrizione = c.ricevitore.porta.Descrizione()},
                         c.ricevitore.ambiente.RigaComando());
}

void AttivaModalita(Console& c, Modalita modalita) {
    c.ricevitore.stato.SeparaLog = true;
    if (c.stato.ChiusuraInCorso)
        return Termina(c);
    if (Entra(c, modalita))
        return;
    AbbandonaAvvio(c);
    if (c.stato.ChiusuraInCorso)
        return c.vista.AbilitaTimerTask();
    const Modalita ripiego = c.stato.schedaChiesta.value_or(Modalita::SweepsArchive);
    c.stato.schedaChiesta.reset();
    c.stato.modalita = ripiego;
    VisualizzazioneIniziale(c);
}

void ChiudiModalita(Console& c, Modalita vecchia) {
    switch (vecchia) {
    case Modalita::SweepsArchive:
        c.vista.ChiudiFinestreAusiliarie();
        LasciaSweepsArchive(c.scrivania, c.stato.archivio);
        return c.vista.PulisciQuadro();
    case Modalita::Sweep:
        return ChiudiSweep(c);
    default:
        return ChiudiModoVivo(c);
    }
}

void ClickSSTabMode(Console& c, Modalita nuova) {
    if (nuova == c.stato.modalita || c.stato.ChiusuraInCorso)
        return;
    if (Occupata(c)) {
        // What is under way unwinds first; the tab changes behind it.
        c.stato.schedaChiesta = nuova;
        if (c.corsa.stato.SweepInCorso)
            ChiediStop(c.corsa.stato);
        else
            c.ricevitore.stato.AbbandonaComandi = true;
        return c.vista.AbilitaTimerTask();
    }
    ChiudiModalita(c, c.stato.modalita);
    AttivaModalita(c, nuova);
}

void ChiediUscita(Console& c) {
    if (c.stato.ChiusuraInCorso || c.stato.uscitaChiesta)
        return;
    c.stato.uscitaChiesta = true;
    const Risposta risposta =
        c.ricevitore.ambiente.Mostra({.testo = "Are You Sure You Want To Exit?",
                                      .icona = Icona::Domanda,
                                      .pulsanti = Pulsanti::OkAnnulla});
    c.stato.uscitaChiesta = false;
    if (risposta != Risposta::Ok)
        return;
    c.ricevitore.stato.AbbandonaComandi = true;
    ChiudiModalita(c, c.stato.modalita);
    c.stato.ChiusuraInCorso = true;
    c.vista.AbilitaTimerTask();
    if (!Occupata(c))
        c.ricevitore.porta.ChiudiPorta();
}

void TimerTask_Timer(Console& c) {
    if (Occupata(c) || c.stato.uscitaChiesta)
        return c.vista.AbilitaTimerTask();
    if (c.stato.ChiusuraInCorso)
        return AttivaModalita(c, c.stato.modalita);
    if (!c.stato.schedaChiesta)
        return;
    const Modalita nuova = *c.stato.schedaChiesta;
    c.stato.schedaChiesta.reset();
    ClickSSTabMode(c, nuova);
}

void ClickCMBAbort(Console& c) {
    c.ricevitore.stato.AbbandonaComandi = true;
    if (!Vivo(c.stato.modalita) || c.stato.avvioInCorso)
        return;
    // In a live mode the abort leads back to the archive.
    c.stato.schedaChiesta = Modalita::SweepsArchive;
    c.vista.AbilitaTimerTask();
}

} // namespace orvane
