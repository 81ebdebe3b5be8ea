// What a name typed into a file dialog must pass.
#pragma once

#include <string>
#include <string_view>

#include "base/Ambiente.h"

namespace orvane {

enum class ModoDialogo { Carica, Salva };

/// False after the box "Not valid name" with the name without extension below it, for a "+": the
/// table editor uses it in names that stand for two tables.
bool ControllaNomeDialogo(Ambiente& ambiente, std::string_view nome);

/// Measures the base name, in characters, against `limite` - 4, after which it counts as too long.
/// Loading: the box "File name too long", and an empty result. Saving: the box tells the name cut
/// to `limite` characters; the result is that name with the old extension, in its old directory.
/// Any other name comes back as it is.
std::string ControllaLunghezzaNome(Ambiente& ambiente, std::string_view nome, int limite,
                                   ModoDialogo modo);

} // namespace orvane
