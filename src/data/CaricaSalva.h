// What the load and save window decides, apart from the window.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/ModificaTabella.h"
#include "data/Scrivania.h"
#include "records/ScanRecord.h"

namespace orvane {

/// What `FrmLoadSave` was opened for.
struct RichiestaFile {
    std::string cartella;   ///< with a trailing backslash
    std::string estensione; ///< without its dot
    std::string gruppo;     ///< "Limit", "Factor", "Table"
    /// Longest name that a record holds.
    int lunghezza = 60;
};
RichiestaFile RichiestaTabella(TableKind kind);
/// "Load Limit", "Save Factor As": the title of the window.
std::string TitoloCaricaSalva(const RichiestaFile& richiesta, bool salva);

// The path that was decided on; empty after a refusal or the user's No, when the window stays.

/// `CmdLoad`.
std::optional<std::string> CmdLoad(const Scrivania& s, const RichiestaFile& richiesta,
                                   std::string_view nome);
/// `CmdSave`: refuses names that are none, shortens long ones, asks before a file is replaced.
std::optional<std::string> CmdSave(const Scrivania& s, const RichiestaFile& richiesta,
                                   std::string_view nome);
/// `CMBDelete`: asks, and deletes unless the scan table or the panel names the file. True when it
/// is gone.
bool CMBDelete(const Scrivania& s, const RichiestaFile& richiesta, std::string_view nome,
               const ScanRecord& scan);

/// The path that was chosen last in such a window, by the PTH file; any text where that is damaged.
std::string UltimoPercorso(Scrivania& s);
void RicordaPercorso(Scrivania& s, const std::string& percorso);

} // namespace orvane
