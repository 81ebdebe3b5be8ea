// The chain of checks in front of a run as data: the table of all of them, in order.
#pragma once

#include <span>
#include <string_view>

#include "setup/Controlli.h"

namespace orvane {

struct PreVolo;

/// One check. What is absent it does not do.
struct VoceControllo {
    int numero = 0; ///< 1 to 37; the parts of one check share theirs
    std::string_view nome;
    std::string_view motivo = {}; ///< what is said of a run that it stopped
    /// Looks, and changes nothing.
    Segnalazioni (*esamina)(const ContestoControlli&) = nullptr;
    /// What a correction, or a Yes, does to the table or to the set-up.
    void (*correggi)(ScanTable&, const SetupRecord&, const Segnalazione&) = nullptr;
    void (*correggiSetup)(SetupRecord&) = nullptr;
    /// Talks to receiver, disk or user, and speaks for itself: of a run alone, and there in place
    /// of `esamina`. False stops.
    bool (*agisci)(PreVolo&) = nullptr;
};

std::span<const VoceControllo> CatenaControlli();

} // namespace orvane
