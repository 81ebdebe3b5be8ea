#include "platform/qt/FabbricaQt.h"

#include <QBuffer>
#include <QByteArray>
#include <QPainter>
#include <QSvgGenerator>

#include "base/Versione.h"
#include "platform/qt/SuperficieQt.h"

namespace orvane {
namespace {

constexpr int kQualitaJpg = 92;
/// Logical dots an inch of a screen: a drawing has as many units as a picture has pixels.
constexpr int kPuntiPollice = 96;

const char* NomeQt(FormatoImmagine formato) {
    switch (formato) {
    case FormatoImmagine::Bmp:
        return "BMP";
    case FormatoImmagine::Jpg:
        return "JPG";
    default:
        return "PNG";
    }
}

void Disegna(QPaintDevice& dove, int larghezza, int altezza,
             const std::function<void(Superficie&)>& disegna) {
    QPainter painter(&dove);
    SuperficieQt superficie(painter, larghezza, altezza);
    disegna(superficie);
}

bool InPixel(QIODevice& file, int larghezza, int altezza, FormatoImmagine formato,
             const std::function<void(Superficie&)>& disegna) {
    const QImage immagine = DipingiImmagine(larghezza, altezza, disegna);
    return !immagine.isNull() && immagine.save(&file, NomeQt(formato),
                                               formato == FormatoImmagine::Jpg ? kQualitaJpg : -1);
}

bool InLinee(QIODevice& file, int larghezza, int altezza,
             const std::function<void(Superficie&)>& disegna) {
    QSvgGenerator disegno;
    disegno.setOutputDevice(&file);
    disegno.setTitle(QLatin1String(kNomeProgramma));
    disegno.setDescription(QString());
    disegno.setSize({larghezza, altezza});
    disegno.setViewBox(QRect(0, 0, larghezza, altezza));
    disegno.setResolution(kPuntiPollice);
    Disegna(disegno, larghezza, altezza, disegna);
    return true;
}

} // namespace

QImage DipingiImmagine(int larghezza, int altezza,
                       const std::function<void(Superficie&)>& disegna) {
    QImage immagine(larghezza, altezza, QImage::Format_RGB32);
    if (immagine.isNull())
        return immagine;
    immagine.fill(Qt::white);
    Disegna(immagine, larghezza, altezza, disegna);
    return immagine;
}

std::vector<uint8_t> FabbricaQt::Dipingi(int larghezza, int altezza, FormatoImmagine formato,
                                         const std::function<void(Superficie&)>& disegna) {
    if (larghezza <= 0 || altezza <= 0)
        return {};
    QByteArray dati;
    QBuffer file(&dati);
    file.open(QIODevice::WriteOnly);
    const bool fatto = formato == FormatoImmagine::Svg
                           ? InLinee(file, larghezza, altezza, disegna)
                           : InPixel(file, larghezza, altezza, formato, disegna);
    file.close();
    return fatto ? std::vector<uint8_t>(dati.begin(), dati.end()) : std::vector<uint8_t>();
}

} // namespace orvane
