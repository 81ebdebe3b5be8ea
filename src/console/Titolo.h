// The title of the main window, from its parts.
#pragma once

#include <string>
#include <string_view>

#include "link/Identificazione.h"

namespace orvane {

/// What a title tells besides name and release.
struct ParteTitolo {
    Modalita modalita = Modalita::SweepsArchive;
    std::string pannello;    ///< bare name of the panel
    std::string modello;     ///< shown with `/INFOMOD`
    std::string descrizione; ///< of the link, shown with `/INFOCOMUSB`
};

/// Name, ten blanks, release, ten blanks, panel, ten blanks, model and link.
std::string ComponiTitolo(const ParteTitolo& parte, std::string_view rigaComando);

} // namespace orvane
