// The Sweeps Archive without its window: the list, the open measure, its tree, comparison, and the
// way back to a scan table.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>

#include "console/Console.h"
#include "console/StatoArchivio.h"

namespace orvane {

// --- In and out. `AttivaModalita` and `ChiudiModalita` call these.

/// The operator's set-up is kept and `NoSaveSetup` goes on; the list is read, and the measure of
/// `SweepPath` opened, or the first where that is gone. With an empty list `SweepPath` becomes
/// "Untitled.EST" and nothing is shown.
void AttivaSweepsArchive(Scrivania& s, StatoArchivio& a);
/// The set-up is as it was on the way in, whatever the view changed, and is stored again. Nothing
/// without `attivo`.
void LasciaSweepsArchive(Scrivania& s, StatoArchivio& a);

/// The fields of the set-up that stay at the user's values when a measure is opened.
void CopiaCampiVista(const SetupRecord& da, SetupRecord& a);

// --- The list.

/// Names only, by date (the latest first) with `OrderForDate`, else by name; how many. Rows are
/// read one by one with `LeggiVoce`.
int ElencaArchivio(Scrivania& s, StatoArchivio& a);
/// The name after this one in the list, the one before it at the end; empty without another.
std::string MisuraVicina(const StatoArchivio& a, const std::string& nome);
/// `passi` further in the list, stopped at its ends: keys and mouse wheel
/// (`InterceptMousewheelSelMeas`). The first without a measure on show; empty for an empty list.
std::string MisuraAccanto(const StatoArchivio& a, int passi);

// --- The open measure.

/// What an opening led to.
struct EsitoMostra {
    std::string mostrata;        ///< now in `misura`; empty for a blank view
    bool elencoCambiato = false; ///< the list was read again: show it anew
};
/// Opens a measure: the set-up becomes its own but for the view fields, tables, tree and trace are
/// read, and `SweepPath` follows. Where its KSH is gone the list is read again and the next measure
/// on the way is shown. A damaged header is told; the measure is then on show with `leggibile`
/// false. An empty name blanks the view. Nothing without `attivo`: the set-up would be lost.
EsitoMostra VisualizzaDatiSweepata(Scrivania& s, StatoArchivio& a, const std::string& nome);
/// The list from the disk again; a measure on show that is gone gives way to its neighbour.
EsitoMostra RinnovaArchivio(Scrivania& s, StatoArchivio& a);
/// A row of the tree; false for a heading, and for one that is not there. Reads the trace, not the
/// header.
bool ClickTreeViewFileSweep(Scrivania& s, StatoArchivio& a, size_t nodo);
/// `CBXDetectorMeasSweep`: -1 for all. False for one that was not measured.
bool ScegliDetectorArchivio(Scrivania& s, StatoArchivio& a, int detector);
/// `CambiaUnita` in the view: refused with its box, or the trace is read again from its files.
bool CambiaUnitaArchivio(Scrivania& s, StatoArchivio& a, int unitId);
/// Another limit or factor was chosen in `Scrivania::setup` while a measure is on show: tables and
/// trace follow.
void RinnovaTabelle(Scrivania& s, StatoArchivio& a);

/// Title over the picture: measure, sub-measure, worst number; "Insertion Loss" with its tolerance.
std::string TitoloArchivio(const StatoArchivio& a);

/// Which controls are on.
struct AbilitazioniArchivio {
    bool CHKShowHighestPeaks = false;
    bool MNUMakeTabFreq = false;
    bool MNUMakeTabSubRange = false;
    bool MNUSymbolOnPeaks = false;
    bool FRMMultiMarker = false;
    bool TBNumOFPeaks = false;
    bool CMBFileTable = false;
    bool CBXDetectorMeasSweep = false;
    bool CHKLock = false;
    bool operator==(const AbilitazioniArchivio&) const = default;
};
AbilitazioniArchivio ControllaAbilitazioniArchivio(const StatoArchivio& a);

/// All traces on show again from their files: after a change of what is added to them.
void CaricaTracceArchivio(Scrivania& s, StatoArchivio& a);
/// The measure's trace becomes the envelope of several of its traces by one detector (the first
/// that was measured without one), with the factors that `setup` has on; made in memory.
void CaricaInviluppo(Scrivania& s, MisuraAperta& misura, const SetupRecord& setup,
                     std::span<const std::string> basi, std::optional<DetectorKind> detector);

// --- Comparison.

/// A second measure as reference. False, and nothing changed, after the box "Measure not
/// comparable", and after the box of a header that cannot be read.
bool ScegliRiferimento(Scrivania& s, StatoArchivio& a, const std::string& nome);
void TogliRiferimento(StatoArchivio& a);
/// Any measure laid over the one on show; once each. False after a box, and for the one on show.
bool SovrapponiMisura(Scrivania& s, StatoArchivio& a, const std::string& nome);
void TogliSovrapposta(StatoArchivio& a, const std::string& nome);

// --- Delete, rename and redo.

/// The Delete key: asks; on OK the measure goes, the list is read again and, where it was on show,
/// its neighbour opened. Empty: the user's No, nothing changed. What could not be deleted stays in
/// the list.
std::optional<EsitoMostra> EliminaMisura(Scrivania& s, StatoArchivio& a, const std::string& nome);

/// Directory, header and traces get another name, all of them or none; traces in "Sub_Measure\"
/// keep theirs. False after a box: no valid name, one that exists, or a file that cannot be
/// renamed.
bool RinominaMisura(Scrivania& s, const std::string& da, const std::string& a);

/// The scan table of a measure becomes the current one, stored under this name as `RedoProfiloB`
/// decides. The path of the new EST; empty after a refusal, with nothing changed.
std::optional<std::string> RedoTabella(Scrivania& s, const ScanRecord& dellaMisura,
                                       const std::string& nome, ScanRecord& scan);
/// The same of the measure on show, by its own name where `nome` is empty; then the mode goes to
/// Sweep. False: refused, still in the archive.
bool RedoDaMeasureAScanTab(Console& c, const std::string& nome = {});

} // namespace orvane
