// The receiver as the core holds it: its port, the state of its protocol, who it is.
#pragma once

#include <array>
#include <string>

#include "base/Ambiente.h"
#include "link/LinkPort.h"
#include "link/LogTraffico.h"
#include "link/ReceiverModel.h"
#include "link/StatoProtocollo.h"

namespace orvane {

/// What the protocol says to the window it runs for.
struct VistaErrore {
    virtual ~VistaErrore() = default;
    /// Shows `FRMErrore` with this text in `LBErrore`, enables the window, starts `TimerError`,
    /// hides `CMBStopMT` and `CMBPauseMT`, resets the progress bars.
    virtual void MostraStriscia(const std::string& testo) = 0;
    /// Hides the banner and stops `TimerError`.
    virtual void NascondiStriscia() = 0;
    /// Fore and back colour of the banner: red and pale red, or exchanged.
    virtual void ColoraStriscia(bool scambiata) = 0;
    /// Lets the user leave the mode while a setter retries.
    virtual void AbilitaSSTabMode() = 0;
    /// The wait window, over the main window, while something takes its time; `titolo` may be
    /// empty. A view without windows may leave it out.
    virtual void MostraAttesa(const std::string& /*titolo*/, const std::string& /*testo*/) {}
    virtual void NascondiAttesa() {}
};

/// The wait window for as long as it lives.
class FinestraAttesa {
public:
    FinestraAttesa(VistaErrore& vista, const std::string& titolo, const std::string& testo)
        : vista_(vista) {
        vista_.MostraAttesa(titolo, testo);
    }
    ~FinestraAttesa() { vista_.NascondiAttesa(); }
    FinestraAttesa(const FinestraAttesa&) = delete;
    FinestraAttesa& operator=(const FinestraAttesa&) = delete;

private:
    VistaErrore& vista_;
};

struct Ricevitore {
    Ambiente& ambiente;
    StatoProtocollo& stato;
    LogTraffico& log;
    Porta& porta;
    VistaErrore& finestra;
    ReceiverModel modello = {};
    std::array<ModelCaps, 2> caps = {};
};

} // namespace orvane
