// Rows of comma-separated values, and the limits that stand in them.
#pragma once

#include <string>
#include <string_view>

#include "verbs/Json.h"
#include "verbs/MisuraDaOpzioni.h"

namespace orvane {

/// Frequencies are multiples of a step: the noise of the last binary digits is no information.
double FreqPulita(double mhz);
std::string TestoFreqPulita(double mhz);

/// A text as a field: in quotes where it has a comma or quotes.
std::string CampoCsv(std::string_view testo);

/// Hundredths of a dB in dBµV as a level in the unit of the measure.
double InUnita(const MisuraChiesta& chiesta, int cent);

/// A limit that is on, to be read along a trace.
struct ColonnaLimite {
    std::string nome;
    const LimFacRecord* limite = nullptr;

    /// Hundredths of a dB in dBµV; empty where the limit has no value.
    std::optional<int> Valore(double freqMhz) const;
};
/// Points into `chiesta`.
std::vector<ColonnaLimite> ColonneLimiti(const MisuraChiesta& chiesta);
/// ",66.00,-3.20" of each: the limit in the unit, and level less limit; empty fields where it has
/// no value.
std::string CampiLimiti(const MisuraChiesta& chiesta, const std::vector<ColonnaLimite>& colonne,
                        double freqMhz, int livelloCent);
/// ",name,delta_name" of each.
std::string TitoliLimiti(const std::vector<ColonnaLimite>& colonne);

} // namespace orvane
