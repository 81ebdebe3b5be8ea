#include "setup/NumeroScalato.h"

#include <charconv>
#include <cmath>

#include "base/Numeri.h"

namespace orvane {

double NumeroScalato(double valore, double fattore) {
    const double prodotto = valore * fattore;
    if (!std::isfinite(prodotto))
        return 0;
    char testo[40];
    const auto fine =
        std::to_chars(testo, testo + sizeof testo, prodotto, std::chars_format::scientific, 14);
    double arrotondato = 0;
    std::from_chars(testo, fine.ptr, arrotondato);
    return arrotondato;
}

std::string TestoScalato(double valore, double fattore) {
    return TestoDaNumero(NumeroScalato(valore, fattore));
}

} // namespace orvane
