// A frequency in another unit, without the last bits that the product leaves behind.
#pragma once

#include <string>

namespace orvane {

/// `valore` x `fattore` to 15 significant digits, as many as any typed decimal keeps: 2.5e-05 MHz
/// are 25 Hz and not 25.000000000000004. 0 where the product is no number.
double NumeroScalato(double valore, double fattore);
/// The same as shortest decimal text.
std::string TestoScalato(double valore, double fattore);

} // namespace orvane
