// The picture of a measure out of the window: into a file or the clipboard, for paper.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "graph/Quadro.h"

class QWidget;

namespace orvane {

/// What is on show, and the lines under it.
struct ImmagineMisura {
    const ContenutoQuadro& quadro;
    const SetupRecord& setup;
    CampoMhz campo;
    std::vector<std::string> blocco;
};

/// `MNUSaveImage`: asks for a file, beginning where the last picture went. False when nothing was
/// written: the user left the dialog, or after the box.
bool SalvaImmagine(QWidget* padre, Scrivania& s, const ImmagineMisura& immagine);
/// False, with the old file as it was, after the box "Cannot open file " and the path.
bool ScriviImmagine(const Scrivania& s, const ImmagineMisura& immagine,
                    const std::filesystem::path& file);
/// `MNUSsaveClipboard`.
void CopiaImmagine(const Scrivania& s, const ImmagineMisura& immagine);

} // namespace orvane
