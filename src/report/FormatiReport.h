// Numbers and names as the cells of a report show them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace orvane {

/// What a cell without a value shows.
inline constexpr std::string_view kCellaVuota = "---";

/// A frequency in MHz without what lies behind its eighth decimal.
double FrequenzaRep(double mhz);
/// A frequency in MHz with at most 8 decimals, its integer part padded with blanks to the width of
/// that of `massimaMhz`, the greatest of the table.
std::string FormattaFreqRep(double mhz, double massimaMhz);
/// Two decimals, padded with blanks to seven characters; at least one blank before 100 and above.
std::string FormattaLivelloRep(float livello);
/// Three blanks and the number with at least three digits.
std::string FormattaIntRep(int valore);

/// "---" for no position.
std::string FormattaPosizioneRep(int16_t posizione);
/// The text of a display unit; an index outside the list counts as dBµV.
std::string TestoUnita(int unitId);

/// Width of a text in whatever measure columns have.
using MisuraTesto = std::function<double(std::string_view)>;
/// The name itself where it fits into `limite`; otherwise the longest head whose characters, each
/// measured by itself, fit, and "..." behind it.
std::string TagliaTestoWidth(const std::string& nome, double limite, const MisuraTesto& misura);

/// Characters of a text, and its first ones.
size_t NumeroCaratteri(std::string_view utf8);
std::string PrimiCaratteri(std::string_view utf8, size_t quanti);
/// Padded with blanks to a width in characters; a longer text stays.
std::string Riempi(std::string_view utf8, size_t larghezza);

} // namespace orvane
