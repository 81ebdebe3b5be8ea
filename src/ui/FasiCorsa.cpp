#include "ui/FasiCorsa.h"

#include <array>

namespace orvane {
namespace {

constexpr std::array<ControlliFase, 9> kFasi = {{
    // phase, Execute, alive, Pause, alive, what belongs to a window at rest, filter and attenuator
    {FaseCorsa::Ferma, "Execute", true, "Pause", false, true, true},
    {FaseCorsa::Controlli, "Stop", true, "Pause", false, false, false},
    {FaseCorsa::Attesa, "Stop", true, "Pause", false, false, false},
    {FaseCorsa::Preparazione, "Stop", true, "Pause", false, false, false},
    {FaseCorsa::Riga, "Stop", true, "Pause", true, false, false},
    {FaseCorsa::Misura, "Stop", true, "Pause", true, false, false},
    {FaseCorsa::Pausa, "Stop", true, "Resume", true, false, true},
    {FaseCorsa::Arresto, "Stop", false, "Pause", false, false, false},
    {FaseCorsa::Guasto, "Stop", false, "Pause", false, false, false},
}};

} // namespace

ControlliFase ControlliDiFase(FaseCorsa fase, bool riceve) {
    ControlliFase controlli = kFasi[static_cast<size_t>(fase)];
    controlli.eseguiVivo = controlli.eseguiVivo && riceve;
    controlli.pausaViva = controlli.pausaViva && riceve;
    return controlli;
}

} // namespace orvane
