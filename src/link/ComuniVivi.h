// The front-end settings while a receiver follows them: what the procedures work on, and what they
// say to the window.
#pragma once

#include "link/ElencoBW.h"
#include "link/Ricevitore.h"
#include "records/SetupRecord.h"

namespace orvane {

struct VistaComuni {
    virtual ~VistaComuni() = default;
    /// The values of the record are others: controls are shown anew.
    virtual void MostraComuni() = 0;
    /// The picture's scale is another one.
    virtual void RidisegnaScala() = 0;
    virtual void MostraFiltro(const FiltroMostrato& filtro) = 0;
    /// Another range is in charge: the list of line switches is filled anew.
    virtual void RiempiLineSwitch() = 0;
    /// The line switch goes out as the ancillary asks for it.
    virtual void InviaLineSwitch() = 0;
};

struct ComuniVivi {
    Ricevitore& r;
    SetupRecord& setup;
    VistaComuni& vista;
};

} // namespace orvane
