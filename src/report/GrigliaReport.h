// The grid of a report as data: its columns with their headings, and its rows as texts.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "records/FreqTableRecord.h"
#include "report/FormatiReport.h"
#include "report/ReportModel.h"

namespace orvane {

enum class GenereColonna { Numero, Frequenza, Livello, Limite, Delta, Mast, Table, Fattore };

struct ColonnaReport {
    GenereColonna genere = GenereColonna::Numero;
    /// Detector of a level, slot of a limit or of its delta, number of a factor.
    size_t quale = 0;
    std::string titolo = {}; ///< "Frequency", a detector, "Limit", ...
    std::string nome = {};   ///< of the limit or factor, whole
    std::string unita = {};  ///< without its brackets
    /// The heading of the grid: lines parted by CR, the name cut to the column.
    std::string intestazione = {};
    int larghezza = 0; ///< 1440 to the inch
};

/// `LBColorLim`: a bar of a limit's colour over its heading; 1440 to the inch.
struct BarraLimite {
    static constexpr int kLarghezza = 600;
    static constexpr int kAltezza = 200;
    bool visibile = false;
    int sinistra = 0; ///< from the left edge of the grid
    int32_t colore = 0;
};

inline constexpr int kAltezzaTestata = 500; ///< of row 0, 1440 to the inch
inline constexpr int kAltezzaRigaRep = 315;

struct RigaGriglia {
    double freqMhz = 0;
    float livello = kNessunLivelloRep; ///< of the first level column, in the display unit
    int16_t mast = kNessunaPosizione;
    int16_t table = kNessunaPosizione;
    std::vector<std::string> celle; ///< one a column
};

struct GrigliaReport {
    TipoReport tipo = TipoReport::UnDetector;
    std::vector<ColonnaReport> colonne;
    std::array<BarraLimite, kLimitiReport> LBColorLim{};
    std::vector<RigaGriglia> righe;
    std::string didascalia; ///< caption of the window
    bool tagliata = false;  ///< by a cancel: red, and not to be saved
};

/// Name of the limit in a slot; empty where the grid has no column of it.
std::string NomeDelLimite(const GrigliaReport& griglia, size_t slot);

/// Column headings and bars for what `fonte` has on; no rows. `misura` gives widths of texts, 1440
/// to the inch; without it names stay whole.
GrigliaReport ImpostaGridReport1Det(const ReportModel& model, const FonteReport& fonte,
                                    const MisuraTesto& misura = {});
GrigliaReport ImpostaGridReport2Det(const ReportModel& model, const FonteReport& fonte,
                                    const MisuraTesto& misura = {});
GrigliaReport ImpostaGridReport2DetFull(const ReportModel& model, const FonteReport& fonte,
                                        const MisuraTesto& misura = {});
/// The one of the model's kind.
GrigliaReport ImpostaGridReport(const ReportModel& model, const FonteReport& fonte,
                                const MisuraTesto& misura = {});

/// Told while rows are put in, at most ten times a second: rows done, and all of them.
using AvanzaReport = std::function<void(size_t fatte, size_t tutte)>;

/// Fill the rows from the model's array, collected first where that is empty. Events are served at
/// each turn of `avanza`; `ReportCancelRequested` ends the fill, and the rows so far stand, marked
/// `tagliata`.
void CompilaReport1Det(GrigliaReport& griglia, ReportModel& model, const FonteReport& fonte,
                       Ambiente& ambiente, const AvanzaReport& avanza = {});
void CompilaReport2Det(GrigliaReport& griglia, ReportModel& model, const FonteReport& fonte,
                       Ambiente& ambiente, const AvanzaReport& avanza = {});
void CompilaReport2DetFull(GrigliaReport& griglia, ReportModel& model, const FonteReport& fonte,
                           Ambiente& ambiente, const AvanzaReport& avanza = {});
/// The one of the model's kind.
void CompilaReport(GrigliaReport& griglia, ReportModel& model, const FonteReport& fonte,
                   Ambiente& ambiente, const AvanzaReport& avanza = {});

/// The frequencies of the rows in their order, with level in dBµV and position, as far as a table
/// has room. False in `intera` when rows were left out.
FrequencyTable TabellaDaGriglia(const GrigliaReport& griglia, const FonteReport& fonte,
                                bool& intera);

} // namespace orvane
