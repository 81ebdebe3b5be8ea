// What the settings window of a scan line decides: which of its frames and controls show, and what
// each edit makes of the copy of the line that it works on.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Ambiente.h"
#include "data/AlberoDati.h"
#include "records/ScanRecord.h"
#include "setup/RegoleRiga.h"
#include "setup/TabellaScan.h"

namespace orvane {

/// How a cell of the grid opens.
enum class AperturaCella {
    Niente,
    Testo,    ///< `TBCella`
    Elenco,   ///< `CBXCella`
    Finestra, ///< `ScanTabForm`
    Ridisegna ///< the column is shown afresh and nothing opens
};
AperturaCella ApriCellaScanTab(ColonnaScan colonna, size_t indice, int ancillaryKind);

enum class Cornice {
    FRMStep,
    FRMAutoStep,
    FRMFrequenciesTable,
    FRMDetector,
    FRMHoldTime,
    FRMHoldTimeSD,
    FRMMargin,
    FRMCustomLimits,
    FRMCustomLimitsDSD,
    FRMMsgBoxIniziale,
    FRMAncillary,
    NumCornici
};
inline constexpr size_t kNumCornici = static_cast<size_t>(Cornice::NumCornici);
/// Whether the window has this frame when it is opened from `colonna`.
bool ApreCornice(ColonnaScan colonna, Cornice cornice);

/// A window that is open: it edits `riga`; the line in the table stays until `ChiudiModulo`.
struct ModuloScan {
    const AlberoDati& albero; ///< limits and frequency tables, by name
    ColonnaScan colonna = ColonnaScan::Numero;
    int ancillaryKind = 0;
    ScanLine riga = {};
    ScanLine originale = {};            ///< the line as it is stored
    UnitaPasso unita = UnitaPasso::kHz; ///< of `TBStep`
};
/// Opens the window on a line.
ModuloScan ApriModulo(const AlberoDati& albero, ColonnaScan colonna, int ancillaryKind,
                      const ScanLine& riga);

struct StatoCampo {
    bool visibile = false;
    bool abilitato = true;
    bool avviso = false; ///< drawn in the warning colour
};
struct StatoCornice {
    bool visibile = false;
    bool avviso = false;
    std::string titolo = {};
};
/// A box of `FRMAncillary`; its place in the list is what `ModificaAncillary` takes.
struct VoceAncillary {
    std::string_view nome; ///< trimmed: "N", "L1", "V"
    bool accesa = false;
};
/// All that the window shows.
struct VistaModulo {
    std::array<StatoCornice, kNumCornici> cornici = {};
    StatoCampo OPTStep; ///< the group of the two ways to step
    StatoCampo TBStep;
    StatoCampo CHKSmart;
    StatoCampo TBMargin;
    StatoCampo CHKLimits;
    StatoCampo ComboBoxLimits;
    StatoCampo CHKLimitsDSD;
    StatoCampo ComboBoxLimitsDSD;
    bool detectorUnico = false; ///< `OPTDetector` behaves as a group of which one is on
    std::string testoStep;      ///< of `TBStep`, in `ModuloScan::unita`
    std::vector<VoceAncillary> ancillary;

    const StatoCornice& Di(Cornice c) const { return cornici[static_cast<size_t>(c)]; }
};
VistaModulo VistaDelModulo(const ModuloScan& modulo);

/// The selections that a line has with this kind, in order; none for 0 and 5.
std::vector<VoceAncillary> VociAncillary(const ScanLine& riga, int ancillaryKind);

/// Whether a pair names a limit that no Smart line can use; on or off.
bool LimiteLineareScelto(const ModuloScan& modulo, CoppiaLimite coppia);
/// A line without Smart whose limit keeps Smart out.
bool LimiteVietaSmart(const ModuloScan& modulo);

// Edits. A refusal comes back as the box that the caller shows; the copy is then as the rule
// leaves it, and the window shows it afresh.

/// `OPTDetector`. A second detector of a Smart line brings its limit in, which may be refused.
std::optional<Riquadro> ScegliDetector(ModuloScan& modulo, DetectorKind detector, bool acceso);
/// `CHKSmart`.
std::optional<Riquadro> ScegliSmart(ModuloScan& modulo, bool acceso);
/// `ComboBoxLimits`, `CHKLimits` and the pair of the second limit.
std::optional<Riquadro> ScegliLimite(ModuloScan& modulo, CoppiaLimite coppia,
                                     std::string_view nome);
std::optional<Riquadro> AccendiLimite(ModuloScan& modulo, CoppiaLimite coppia, bool acceso);
/// `CBXFileStep`. A table that is not there is refused, and "NONE" takes its place.
std::optional<Riquadro> ScegliFreqTable(ModuloScan& modulo, std::string_view nome);
/// The same of the name that the line has, where it steps by a table: once the window is up, and
/// when `OPTStep` goes to 1.
std::optional<Riquadro> ControllaFreqTable(ModuloScan& modulo);
/// `TBStep`, in the unit that the window shows; and another unit for the same step.
void ModificaTBStep(ModuloScan& modulo, std::string_view testo);

/// `TBMsgBoxIniziale`: a text that is typed is also shown, and one that is cleared no longer.
void ScriviPrompt(ModuloScan& modulo, std::string_view testo);

/// What `CBXFileStep` and the two lists of limits offer: "NONE", then the files' base names.
std::vector<std::string> ElencoFreqTable(const AlberoDati& albero);
std::vector<std::string> CompilaCBXLimiti(const AlberoDati& albero);

/// Closing: the box that keeps the window open, or nothing once `destinazione` has the values of
/// the frames that were open. The caller then runs `AggiornaRigaScanTab` and saves the panel.
std::optional<Riquadro> ChiudiModulo(const ModuloScan& modulo, ScanLine& destinazione);

} // namespace orvane
