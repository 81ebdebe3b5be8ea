#include "ui/SalvaImmagine.h"

#include <array>

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>

#include "base/Interruttori.h"
#include "base/PaginaCodici.h"
#include "data/FileFuori.h"
#include "data/NomiDisco.h"
#include "data/Panels.h"
#include "platform/qt/FabbricaQt.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// Of a picture, pixels: sharp across a page.
constexpr int kLarghezza = 1600;
constexpr int kAltezza = 900;
/// Of `PathRecord`: where the last picture went.
constexpr size_t kPercorsoImmagini = 3;
constexpr size_t kMassimoPercorso = 300; ///< characters

struct VoceFiltroImmagine {
    const char* filtro;
    const char* estensione;
};
constexpr std::array<VoceFiltroImmagine, 4> kFiltri = {{
    {"PNG (*.png *.PNG)", "png"},
    {"JPG (*.jpg *.JPG *.jpeg)", "jpg"},
    {"BMP (*.bmp *.BMP)", "bmp"},
    {"SVG (*.svg *.SVG)", "svg"},
}};

StileQuadro Stile(const Scrivania& s, const ImmagineMisura& immagine) {
    StileQuadro stile = StileStampa(s.env, AltezzaTestoQuadro(kLarghezza, kAltezza));
    stile.marcatori = Acceso(s.ambiente.RigaComando(), interruttore::kPrintMarkerSweep);
    stile.blocco = immagine.blocco;
    return stile;
}

std::function<void(Superficie&)> Disegno(const Scrivania& s, const ImmagineMisura& immagine) {
    return [&s, &immagine, stile = Stile(s, immagine)](Superficie& superficie) {
        DisegnaQuadro(superficie, immagine.quadro, immagine.setup, s.env, immagine.campo, stile);
    };
}

/// Where the dialog begins: beside the last picture, or in the measures' directory.
QString PrimoFile(Scrivania& s, const std::string& misura) {
    CaricaPathPTH(s);
    const std::filesystem::path ultimo = PathDaUtf8(s.path.Percorsi[kPercorsoImmagini]);
    std::error_code errore;
    const bool buono =
        ultimo.is_absolute() && std::filesystem::is_directory(ultimo.parent_path(), errore);
    const std::filesystem::path cartella = buono ? ultimo.parent_path() : s.albero.Radice();
    const std::string estensione =
        buono && FormatoDaPercorso(Utf8DaPath(ultimo)) ? Utf8DaPath(ultimo.extension()) : ".png";
    return Q(Utf8DaPath(cartella / PathDaUtf8(misura + estensione)));
}

void Ricorda(Scrivania& s, const std::string& file) {
    if (!NellaPagina(file) || InAnsi(file).size() > kMassimoPercorso)
        return;
    s.path.Percorsi[kPercorsoImmagini] = file;
    SalvaPathPTH(s);
}

const VoceFiltroImmagine& FiltroDi(const QString& filtro) {
    for (const VoceFiltroImmagine& voce : kFiltri)
        if (filtro == QLatin1String(voce.filtro))
            return voce;
    return kFiltri[0];
}

/// The filter that goes with a file's extension.
QString FiltroDelFile(const QString& file) {
    const auto formato = FormatoDaPercorso(S(file));
    for (const VoceFiltroImmagine& voce : kFiltri)
        if (formato == FormatoDaPercorso(std::string(".") + voce.estensione))
            return QLatin1String(voce.filtro);
    return QLatin1String(kFiltri[0].filtro);
}

/// Empty when the user leaves. A name whose extension is no picture's gets that of the filter.
QString ChiediFile(QWidget* padre, const QString& primo) {
    QFileDialog dialogo(padre, QFileDialog::tr("Save Image"), QString());
    QStringList filtri;
    for (const VoceFiltroImmagine& voce : kFiltri)
        filtri << QLatin1String(voce.filtro);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setNameFilters(filtri);
    dialogo.selectNameFilter(FiltroDelFile(primo));
    // The dialog asks before a file is replaced only if it knows the whole name.
    const auto suffisso = [&dialogo](const QString& filtro) {
        dialogo.setDefaultSuffix(QLatin1String(FiltroDi(filtro).estensione));
    };
    suffisso(dialogo.selectedNameFilter());
    QObject::connect(&dialogo, &QFileDialog::filterSelected, &dialogo, suffisso);
    dialogo.selectFile(primo);
    if (dialogo.exec() != QDialog::Accepted)
        return {};
    const QString file = dialogo.selectedFiles().constFirst();
    return FormatoDaPercorso(S(file))
               ? file
               : file + QLatin1Char('.') +
                     QLatin1String(FiltroDi(dialogo.selectedNameFilter()).estensione);
}

} // namespace

bool ScriviImmagine(const Scrivania& s, const ImmagineMisura& immagine,
                    const std::filesystem::path& file) {
    const auto formato = FormatoDaPercorso(Utf8DaPath(file));
    const auto dati =
        formato ? FabbricaQt().Dipingi(kLarghezza, kAltezza, *formato, Disegno(s, immagine))
                : std::vector<uint8_t>();
    if (!dati.empty() && SalvaFuori(file, dati))
        return true;
    s.ambiente.Mostra(
        {.testo = "Cannot open file " + Utf8DaPath(file), .icona = Icona::Esclamazione});
    return false;
}

bool SalvaImmagine(QWidget* padre, Scrivania& s, const ImmagineMisura& immagine) {
    const QString file = ChiediFile(padre, PrimoFile(s, immagine.quadro.misura.nome));
    if (file.isEmpty() || !ScriviImmagine(s, immagine, PathDaUtf8(S(file))))
        return false;
    Ricorda(s, S(file));
    return true;
}

void CopiaImmagine(const Scrivania& s, const ImmagineMisura& immagine) {
    QApplication::clipboard()->setImage(
        DipingiImmagine(kLarghezza, kAltezza, Disegno(s, immagine)));
}

} // namespace orvane
