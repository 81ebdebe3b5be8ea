// Names of tables as lists and records hold them: "NONE" stands for no table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/AlberoDati.h"

namespace orvane {

inline constexpr std::string_view kNessunaTabella = "NONE";

/// Whether a name stands for a table: neither blank nor "NONE", whatever its case.
bool NominaTabella(std::string_view nome);

/// Base names of the files of a directory.
std::vector<std::string> NomiTabelle(const AlberoDati& albero, std::string_view cartella,
                                     std::string_view estensione);
/// What a list offers: "NONE", then those.
std::vector<std::string> VociTabelle(const AlberoDati& albero, std::string_view cartella,
                                     std::string_view estensione);

} // namespace orvane
