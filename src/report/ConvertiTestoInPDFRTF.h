// A compiled report, as text in a file, laid out as PDF or RTF with its header and its picture.
#pragma once

#include <filesystem>
#include <string>

#include "data/Scrivania.h"
#include "report/FileReport.h"

namespace orvane {

/// What the converter shows while it works: a small window, or nothing.
struct VistaAttesa {
    virtual ~VistaAttesa() = default;
    /// "Creating File ...", its two lines joined by CR; the pointer of the main window is busy.
    virtual void MostraAttesa(const std::string& testo) = 0;
    virtual void ChiudiAttesa() = 0;
};

/// "Creating File " and the name of the file, "..." and "Please wait" behind it.
std::string TestoAttesa(const std::filesystem::path& file);

/// Paths are the host's; texts in UTF-8.
struct RichiestaDocumento {
    std::filesystem::path TablePath = {};  ///< "TPT": the report's lines, in Windows-1252
    std::filesystem::path ImagePath = {};  ///< "TPI": the picture as BMP; empty for none
    std::filesystem::path HeaderPath = {}; ///< "Header.TXT"; need not exist
    bool HeaderOn = true;                  ///< title and header text on the first page
    std::string Title = {};                ///< the measure's name
    std::string Name = {};                 ///< title of the document; empty for the file's name
    CarattereFoglio carattere = {};
    double Ratio = 0;                   ///< height over width of the picture; 0 for its own
    std::filesystem::path OutPath = {}; ///< what the user chose; its extension decides
};

enum class EsitoDocumento {
    Fatto,
    SenzaImmagine,   ///< done, but the picture could not be read and was left out
    AltraEstensione, ///< neither PDF nor RTF: nothing done
    Occupato,        ///< the target cannot be written; a box has told
    TabellaIllegibile,
    NonScritto, ///< no room, no permission: an old target is as it was
};

/// What went wrong, for a message with the path; empty for `Fatto`.
std::string TestoEsito(EsitoDocumento esito, const RichiestaDocumento& richiesta);

/// Writes the document as "Untitled.pdf" ("Untitled.rtf") in `DataRoot`, or where another run is at
/// it as "Untitled~1.pdf", and then puts a copy in the place of `OutPath`. In the end the files of
/// table and picture are deleted, whatever happened.
EsitoDocumento ConvertiTestoInPDFRTF(const Scrivania& s, VistaAttesa& vista,
                                     const RichiestaDocumento& richiesta);

} // namespace orvane
