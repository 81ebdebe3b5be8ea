// The table editor apart from any window: rows, the rules of their cells, and the way back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Ambiente.h"

namespace orvane {

enum class TableKind : int16_t { Limite, Fattore, Frequenze, FrequenzeMast };
inline constexpr int kNumTableKind = 4;

bool LimiteOFattore(TableKind kind);
/// "Limits: ", "Factors: ", ...: how the caption of the window begins.
std::string_view TitoloFinestraTabella(TableKind kind);
/// Rows that the file of a table has room for. A limit or a factor has no level for its 202nd.
size_t CapienzaTabella(TableKind kind);

struct RigaTabella {
    std::optional<double> freqMhz = {};
    std::optional<int16_t> livelloCent = {}; ///< hundredths of a dB in dBµV, whatever the unit
    std::optional<int16_t> mastCm = {};
    std::optional<int16_t> tableGradi = {};
    bool operator==(const RigaTabella&) const = default;
};

/// What is open in the editor. Rows with a frequency rise, those without follow.
struct ContenutoTabella {
    TableKind kind = TableKind::Limite;
    std::vector<RigaTabella> righe = {};
    std::string titolo = {};
    int16_t unitId = 1;   ///< unit of the texts of levels
    bool linFreq = false; ///< straight on a linear axis; limits only
    bool operator==(const ContenutoTabella&) const = default;
};

enum class ColonnaTabella { Frequenza, Livello, Mast, Table };
/// How many of them a kind has.
int NumeroColonneTabella(TableKind kind);

enum class EsitoModifica {
    Fatta,
    NonValida,    ///< the text is no value for this cell, which keeps its own
    TroppeUguali, ///< the third time of a frequency in a limit: the cell has been cleared
    GiaPresente,  ///< likewise in the other kinds, the second time
    Piena         ///< no room for a further row
};
/// The box of an outcome; none for `Fatta`.
void AvvisaModifica(Ambiente& ambiente, EsitoModifica esito, TableKind kind);

/// Hz of a frequency as a limit or factor holds it.
float HzDaMhz(double mhz);
/// The decimal that a stored frequency was typed as: the shortest one that gives it, in Hz.
double DecimaleBreve(float hz);

/// Puts a row at its place; the path of typed and of imported rows alike. A new frequency of a
/// frequency table without a level gets the level 0.
EsitoModifica InserisciPunto(ContenutoTabella& c, const RigaTabella& punto);

/// Commits the text of one cell; `riga` may be one past the last, for a new row, and becomes the
/// place where the row has moved to. An empty text clears the cell. Comma or point.
EsitoModifica ScriviCella(ContenutoTabella& c, size_t& riga, ColonnaTabella colonna,
                          std::string_view testo);
/// The cell as the grid shows it: shortest frequency, level ".00", position "000" or "---".
std::string TestoCella(const ContenutoTabella& c, size_t riga, ColonnaTabella colonna);
/// The heading of a column; empty for one that this kind does not have.
std::string TitoloColonnaTabella(const ContenutoTabella& c, ColonnaTabella colonna);
/// `CMBRemoveRowTab`: `quante` rows from `da` on, as far as there are any.
void RimuoviRighe(ContenutoTabella& c, size_t da, size_t quante);

bool RigaCompletaTabella(const RigaTabella& riga);
/// How many rows have frequency and level: those that are saved.
size_t ControllaRigaCompFreqTab(const ContenutoTabella& c);

/// The open table with the way back and forth. An edit is made on a copy of the contents and
/// handed in whole: one step of the user, one step of undo.
class ModificaTabella {
public:
    explicit ModificaTabella(TableKind kind) : contenuto_{.kind = kind}, salvato_(contenuto_) {}
    /// A table as it was loaded; nothing to undo.
    explicit ModificaTabella(ContenutoTabella caricato)
        : contenuto_(std::move(caricato)), salvato_(contenuto_) {}

    const ContenutoTabella& Contenuto() const { return contenuto_; }
    /// No step where nothing changed.
    void Applica(ContenutoTabella nuovo);

    bool Annulla();    ///< false with nothing to undo
    bool Ripristina(); ///< false with nothing undone
    bool PuoAnnullare() const { return !prima_.empty(); }
    bool PuoRipristinare() const { return !dopo_.empty(); }

    /// Whether closing would lose something: since the load or the last `SegnaSalvato`.
    bool DaSalvare() const { return contenuto_ != salvato_; }
    void SegnaSalvato() { salvato_ = contenuto_; }

private:
    ContenutoTabella contenuto_;
    ContenutoTabella salvato_;
    std::vector<ContenutoTabella> prima_;
    std::vector<ContenutoTabella> dopo_;
};

} // namespace orvane
