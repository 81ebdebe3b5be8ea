// The change of the display unit: what a unit asks for, and what moves with it.
#pragma once

#include <string>

#include "base/Ambiente.h"
#include "link/Identificazione.h"
#include "records/SetupRecord.h"

namespace orvane {

/// Units that a picture offers, from the first of the table on; the rest are for the table editor.
inline constexpr int kUnitaGrafico = 7;

/// An entry of `CBXUnitaDiMisura`: the unit's text with blanks up to six characters.
std::string VoceUnitaGrafico(int unitId);

/// Whether a unit may be shown with the factors that are on: a field unit needs one. False after a
/// box. In Analyzer and Manual the running set-up counts...
bool ControlladBpTFC(Ambiente& ambiente, const SetupRecord& setup, int unitId);
/// ...in Sweep and for what it has measured the one that the scan uses.
bool ControlladBpTFCSweep(Ambiente& ambiente, const SetupRecord& setupScan, int unitId);

/// Whether levels are shown in this unit at all in a mode; a box of its own says when not.
bool UnitaAmmessa(Modalita modalita, int unitId);

/// The reference level with which a trace keeps its place in another unit, dB.
int16_t RiferimentoInUnita(const SetupRecord& setup, int unitId);

/// `CBXUnitaDiMisura` change: the checks, then the unit with its reference level; the caller saves
/// and redraws. False: refused with a box, nothing changed.
bool CambiaUnita(Ambiente& ambiente, SetupRecord& setup, Modalita modalita, int unitId);

} // namespace orvane
