// Numbers as text, and text as numbers: always with the point, whatever the locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// Shortest decimal text that reads back as the same value; without exponent wherever that takes
/// at most 17 digits before and 20 behind the point.
std::string TestoDaNumero(double valore);
std::string TestoDaNumero(float valore);
/// Fixed decimals, such as "0.00".
std::string TestoFisso(double valore, int decimali);
/// Whole number padded with zeros to `cifre`.
std::string TestoIntero(long long valore, int cifre = 1);

/// Numeric value of the leading part of a text: blanks skipped, stops at the first character that
/// is no part of a number, 0 when there is none. A comma counts as the point. Never infinite.
double ValoreIniziale(std::string_view testo);
/// The value of a text that is a number from end to end, blanks aside; comma or point.
std::optional<double> LeggiNumero(std::string_view testo);

} // namespace orvane
