// Limits, factors and frequency tables as documents.
#pragma once

#include "data/ModificaTabella.h"
#include "report/ConvertiTestoInPDFRTF.h"

namespace orvane {

/// Writes the lines that "As Text" writes, as PDF or RTF where the path's extension says so. False
/// after a box that names the file, which is then as it was.
bool SalvaTabellaCome(Scrivania& s, const ContenutoTabella& tabella, const std::string& nome,
                      const std::filesystem::path& percorso, VistaAttesa& vista);

} // namespace orvane
