// The rules that tie the front-end settings of the live modes together: which controls a model has
// enabled, and which lists they show. Nothing here needs a link or a window.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "link/ElencoBW.h"
#include "link/ReceiverModel.h"
#include "records/SetupRecord.h"

namespace orvane {

/// A setting that is common to the live modes, by the code under which a mode lists pending work.
enum class ParComune {
    BWIF = 1,
    Attenuatore,
    MinAtt,
    Dinamica,
    RefLevel,
    Presel,
    PreAmp,
    PulseLim,
    Frequenza,
    RFOut = 12,
    Livello,
    Tracking,
    TGFrequenza,
    Unita = 17,
    Fattore,
    Limite = 20,
    LineSwitch,
    AntennaGX2207,
    FiltroGX2207
};

struct StatoControllo {
    bool abilitato = true;
    std::string_view perche = {}; ///< why not
};

/// `FRMGenerator`.
struct StatoGeneratore {
    StatoControllo stato = {};
    bool invariato = false; ///< stays as it was
    bool spento = false;    ///< RF out and tracking are cleared
};

/// In which tab of `SSTabMode`, and for which live mode, the settings are shown.
struct CasoComuni {
    Modalita scheda = Modalita::SweepsArchive;
    CasoFiltri filtri = {};
};

/// What the settings' controls show.
struct RegoleComuni {
    ListaFiltri filtri = {};
    size_t rigaFiltro = 0;
    std::vector<int> attenuatori = {}; ///< dB, `kAttAuto` first
    size_t rigaAtt = 0;
    std::span<const int> minAtt = {}; ///< dB
    size_t rigaMinAtt = 0;
    StatoControllo preselettore = {};
    StatoControllo preAmp = {};
    StatoControllo pulseLimiter = {};
    bool conFrontEnd = false; ///< controls of the GX2207
    StatoGeneratore generatore = {};
};

// Steps of the rules, in their order.
void ControllaPreSel(RegoleComuni& regole, const ReceiverModel& modello);
void AbilitaDisabilitaPSPAPLK3X(RegoleComuni& regole, const ReceiverModel& modello);
void AbilitaDisabilitaPSPAPL3360(RegoleComuni& regole, const ReceiverModel& modello);
/// The filter that the span asks for, as a row; empty where the filter is not coupled.
std::optional<size_t> RigaFiltroCoupled(const SetupRecord& setup, const ReceiverModel& modello,
                                        const CasoFiltri& caso);
StatoGeneratore ControllaImpGen(const ReceiverModel& modello, Modalita scheda);

/// Lists and states for the settings as they are; changes nothing.
RegoleComuni DeterminaRegoleComuni(const SetupRecord& setup, const ReceiverModel& modello,
                                   const CasoComuni& caso);
/// The rules, applied: stored values are limited to the lists, a coupled filter follows its span,
/// a generator that the model lacks is off.
RegoleComuni ControllaParComuni(SetupRecord& setup, const ReceiverModel& modello,
                                const CasoComuni& caso);

} // namespace orvane
