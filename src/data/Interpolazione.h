// What a curve says at a frequency.
#pragma once

#include <array>
#include <optional>

#include "data/TabelleLimFac.h"
#include "records/SetupRecord.h"

namespace orvane {

/// Level of a limit at a frequency, in hundredths of a dB in dBµV; `kNessunValore` below the first
/// point and from the last point on. Straight on the limit's own axis, rounded to nearest with
/// ties to even.
int16_t ValoreLimite(const LimFacRecord& limite, float freqHz);
int16_t ValoreLimite(const TabelleLimFac& tabelle, float freqHz, int slot);

/// Value of a factor in hundredths of a dB, always straight on a linear axis; 0 where it has none,
/// and everywhere for a curve that begins below 9 Hz. Keeps in the record where it ended, so that
/// a rising sweep goes on from there.
int16_t ValoreFattore(LimFacRecord& fattore, float freqHz);
/// `quale` is 0 to 6.
int16_t ValoreFattore(TabelleLimFac& tabelle, float freqHz, int quale);

/// Points before the first 0, without those at the frequency of the one before.
int NumeroFreqTabella(const LimFacRecord& tabella);
int NumeroFreqTabella(const TabelleLimFac& tabelle, int slot);
/// Points before the first 0.
size_t NumeroPunti(const LimFacRecord& tabella);

/// The sum that is applied to levels, in hundredths of a dB: of the first four factors, those that
/// are on.
int SommaFattori(TabelleLimFac& tabelle, const SetupRecord& setup, float freqHz);
/// What the marker reads: each of the seven factors that is on...
std::array<std::optional<int16_t>, kNumFattori>
VisualizzaValoreFact(TabelleLimFac& tabelle, const SetupRecord& setup, float freqHz);
/// ...and the sum of all that are on; empty while `SommaFact` is off.
std::optional<int> SommaValoreFact(TabelleLimFac& tabelle, const SetupRecord& setup, float freqHz);

} // namespace orvane
