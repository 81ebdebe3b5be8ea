// What the window allows in each phase of a run: the one table behind its enabled controls.
#pragma once

#include "sweep/Corsa.h"

namespace orvane {

struct ControlliFase {
    FaseCorsa fase;
    const char* esegui; ///< caption of `CMBExecuteSweep`
    bool eseguiVivo;
    const char* pausa; ///< caption of `CMBPauseSweep`, where the run shows it
    bool pausaViva;
    bool fermi;      ///< scan table, measure, start, settings, tabs and menus
    bool filtroEAtt; ///< filter and attenuator, in the column of settings
};

/// `riceve`: false while the receiver is asked to pause; neither button acts then.
ControlliFase ControlliDiFase(FaseCorsa fase, bool riceve);

} // namespace orvane
