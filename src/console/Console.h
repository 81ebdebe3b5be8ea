// The life of the console: start-up, the modes and the way between them, the confirmed exit.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "console/StatoArchivio.h"
#include "data/Scrivania.h"
#include "link/Identificazione.h"
#include "link/Ricevitore.h"
#include "sweep/Corsa.h"

namespace orvane {

/// What the modes say to the main window.
struct VistaConsole {
    virtual ~VistaConsole() = default;
    virtual void MostraTitolo(const std::string& titolo) = 0;
    /// Makes this the current tab of `SSTabMode`, without its click handler.
    virtual void MostraScheda(Modalita modalita) = 0;
    /// Menu entries that a mode must enable are disabled.
    virtual void DisabilitaMenu() = 0;
    /// A mode's panel: archive list, scan grid, or the receiver's data.
    virtual void EntraArchivio() = 0;
    virtual void EntraSweep() = 0;
    virtual void EntraModoVivo(Modalita modalita) = 0;
    /// `NascondiLBFR`, `CancellaBarMete`: what the mode left behind on the picture is hidden.
    virtual void PulisciQuadro() = 0;
    virtual void ChiudiFinestreAusiliarie() = 0;
    /// Arms `TimerTask`: `TimerTask_Timer` is to be called from the main loop, outside any handler.
    virtual void AbilitaTimerTask() = 0;
    /// Ends the process once every handler has returned.
    virtual void TerminaProcesso() = 0;
    /// A word for the status line: why a mode could not start.
    virtual void MostraStato(const std::string& testo) = 0;
};

struct StatoConsole {
    Modalita modalita = Modalita::SweepsArchive;
    int16_t ModoPrecedente = 0;
    bool ChiusuraInCorso = false;
    bool uscitaChiesta = false; ///< the exit box is up
    bool avvioInCorso = false;  ///< a live mode is opening the link
    /// The tab to go to once what is under way has unwound.
    std::optional<Modalita> schedaChiesta = {};
    StatoArchivio archivio = {};
};

struct Console {
    Scrivania& scrivania;
    Ricevitore& ricevitore;
    ScanRecord& scan;
    Corsa& corsa;
    StatoConsole& stato;
    VistaConsole& vista;
};

/// `TabelleUnita`: level units, with the micro sign.
const std::array<std::string, 7>& TabelleUnita();

/// The order of launch up to the loaded panels: `InitForm`, then the main window's own load. What
/// was damaged is repaired, and told in `Scrivania::avvisi`.
void AvviaDati(Scrivania& s, LinkPort& link, ScanRecord& scan);
/// The panels as they are, with defaults where there are none, and nothing written: for programs
/// that only pass by. With `linkScelto` the link stays as it is.
void AvviaInLettura(Scrivania& s, LinkPort& link, bool linkScelto);
/// `VisualizzazioneIniziale`: shows the first mode.
void VisualizzazioneIniziale(Console& c);

/// The only way into a mode...
void AttivaModalita(Console& c, Modalita modalita);
/// ...and the only way out of one.
void ChiudiModalita(Console& c, Modalita vecchia);
/// `SSTabMode`'s click: out of the old mode, into the new one.
void ClickSSTabMode(Console& c, Modalita nuova);

/// The user closes the window: asks, and on OK sets everything going for the end. The unload
/// itself is always cancelled.
void ChiediUscita(Console& c);
/// Runs mode changes and the exit outside the handler that asked for them.
void TimerTask_Timer(Console& c);
/// `CMBAbort`.
void ClickCMBAbort(Console& c);

/// Title of the main window: name, release, panel, and on request model and link.
std::string TitoloFinestra(const Console& c);

} // namespace orvane
