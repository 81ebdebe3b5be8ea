#include "ui/SceltaFileReport.h"

#include <array>

#include <QFileDialog>

#include "base/PaginaCodici.h"
#include "data/Cartelle.h"
#include "data/NomiDisco.h"
#include "data/Panels.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

/// Of `PathRecord`: where the last report went.
constexpr size_t kPercorsoReport = 4;
constexpr size_t kMassimoPercorso = 300; ///< characters

struct FiltroReport {
    const char* filtro;
    const char* estensione;
};
/// By `FormatoReport`.
constexpr std::array kFiltri = {
    FiltroReport{"Text File (*.TXT *.txt)", "TXT"}, FiltroReport{"PDF File (*.PDF *.pdf)", "PDF"},
    FiltroReport{"RTF File (*.RTF *.rtf)", "RTF"}, FiltroReport{"CSV File (*.CSV *.csv)", "CSV"},
    FiltroReport{"HTML File (*.HTML *.html *.htm)", "HTML"}};

fs::path PrimaCartella(Scrivania& s) {
    CaricaPathPTH(s);
    const fs::path ultima = PathDaUtf8(s.path.Percorsi[kPercorsoReport]);
    std::error_code errore;
    if (ultima.is_absolute() && fs::is_directory(ultima, errore))
        return ultima;
    s.albero.AssicuraCartella(cartella::kSweep);
    return s.albero.Host(cartella::kSweep);
}

} // namespace

std::optional<fs::path> ChiediFileReport(QWidget* padre, Scrivania& s, const std::string& misura,
                                         FormatoReport formato) {
    const FiltroReport& filtro = kFiltri.at(static_cast<size_t>(formato));
    QFileDialog dialogo(padre, Q(TitoloSalvaReport(formato)), Q(Utf8DaPath(PrimaCartella(s))));
    dialogo.setObjectName(QStringLiteral("FrmSalvaReport"));
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setNameFilters({QLatin1String(filtro.filtro)});
    // The dialog asks before a file is replaced only if it knows the whole name.
    dialogo.setDefaultSuffix(QLatin1String(filtro.estensione));
    dialogo.selectFile(Q(NomeReport(misura, formato)));
    if (dialogo.exec() != QDialog::Accepted)
        return std::nullopt;
    fs::path file = PathDaUtf8(S(dialogo.selectedFiles().constFirst()));
    if (FormatoReportDaPercorso(file) != formato)
        file += std::string(".") + filtro.estensione;
    return file;
}

void RicordaFileReport(Scrivania& s, const fs::path& file) {
    const std::string cartella = Utf8DaPath(file.parent_path());
    if (!NellaPagina(cartella) || InAnsi(cartella).size() > kMassimoPercorso)
        return;
    s.path.Percorsi[kPercorsoReport] = cartella;
    SalvaPathPTH(s);
}

} // namespace orvane
