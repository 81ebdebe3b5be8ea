#include "base/Numeri.h"

#include <charconv>
#include <cmath>
#include <cstdio>

#include "base/Testo.h"

namespace orvane {
namespace {

template <class T> std::string Corto(T valore) {
    char buffer[400];
    const double grandezza = std::abs(static_cast<double>(valore));
    if (grandezza == 0)
        return "0";
    const bool fisso = grandezza < 1e17 && grandezza >= 1e-20;
    const auto esito = std::to_chars(buffer, buffer + sizeof buffer, valore,
                                     fisso ? std::chars_format::fixed : std::chars_format::general);
    return std::string(buffer, esito.ptr);
}

/// The longest leading part of `testo` that reads as a decimal number; `usati` tells its length.
std::optional<double> Prefisso(std::string_view testo, size_t& usati) {
    const size_t segno = testo.starts_with('+') && !testo.starts_with("+-") ? 1 : 0;
    double valore = 0;
    const auto esito = std::from_chars(testo.data() + segno, testo.data() + testo.size(), valore);
    usati = static_cast<size_t>(esito.ptr - testo.data());
    if (esito.ec != std::errc{} || !std::isfinite(valore))
        return std::nullopt;
    return valore;
}

} // namespace

std::string TestoDaNumero(double valore) {
    return Corto(valore);
}
std::string TestoDaNumero(float valore) {
    return Corto(valore);
}

std::string TestoFisso(double valore, int decimali) {
    char buffer[400];
    const auto esito =
        std::to_chars(buffer, buffer + sizeof buffer, valore, std::chars_format::fixed, decimali);
    return std::string(buffer, esito.ptr);
}

std::string TestoIntero(long long valore, int cifre) {
    char buffer[64];
    const int n = std::snprintf(buffer, sizeof buffer, "%0*lld", cifre, valore);
    return std::string(buffer, static_cast<size_t>(n));
}

double ValoreIniziale(std::string_view testo) {
    const std::string pulito = Sostituisci(RifilaControlli(testo), ",", ".");
    size_t usati = 0;
    return Prefisso(pulito, usati).value_or(0);
}

std::optional<double> LeggiNumero(std::string_view testo) {
    const std::string pulito = Sostituisci(RifilaControlli(testo), ",", ".");
    size_t usati = 0;
    const auto valore = Prefisso(pulito, usati);
    return valore && usati == pulito.size() ? valore : std::nullopt;
}

} // namespace orvane
