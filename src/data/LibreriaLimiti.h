// The starter library of limits that comes with the program.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "data/Scrivania.h"
#include "records/LimFacRecord.h"

namespace orvane {

struct LimiteLibreria {
    std::string_view nome; ///< of the file, without extension
    LimFacRecord tabella;
};
/// Every limit of the library. Where the curve steps up, and at its end, the point stands one
/// step of the stored frequency higher: the stricter value holds at the edge, and the last
/// frequency still has one.
std::vector<LimiteLibreria> LibreriaLimiti();

struct EsitoLibreria {
    std::string nome;
    bool scritto = false;  ///< false with `presente` false: the file could not be written
    bool presente = false; ///< a file of this name was there, and has been left alone
};
/// Copies the library into "Limits\"; existing files are never overwritten. A failed write has
/// shown its box.
std::vector<EsitoLibreria> InstallaLibreria(const Scrivania& s);

} // namespace orvane
