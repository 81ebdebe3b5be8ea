// Columns of a dense trace in the pixels of an image, beside the polyline that they stand for.
#include <QImage>
#include <QPainter>
#include <QTest>
#include <cmath>

#include "graph/Grafico.h"
#include "platform/qt/ColonneImmagine.h"
#include "platform/qt/SuperficieQt.h"

using namespace orvane;

namespace {

constexpr int kLargo = 400;
constexpr int kAlto = 200;
constexpr int32_t kBianco = Rgb(255, 255, 255);

ColonneTraccia Fitta(double ampiezza) {
    ColonneTraccia traccia(1, 2, kLargo, false);
    for (int k = 0; k <= 40000; ++k) {
        const double onda = 4500 + ampiezza * std::sin(k * 0.0004) + 25 * std::sin(k * 1.7);
        traccia.Aggiungi(1 + k / 40000.0, static_cast<int16_t>(onda));
    }
    return traccia;
}
ScalaGrafico Scala() {
    SetupRecord setup;
    setup.DinamicaId = 1;
    setup.RefLevel = -10;
    return SetScaleGraph(setup, 1, 2, false, kLargo, 0);
}

QImage Dipingi(QImage::Format formato, const ColonneTraccia& traccia, double larghezza,
               bool liscia) {
    QImage immagine(kLargo, kAlto, formato);
    immagine.fill(Qt::black);
    QPainter painter(&immagine);
    SuperficieQt superficie(painter, kLargo, kAlto);
    painter.setRenderHint(QPainter::Antialiasing, liscia);
    DisegnaTraccia(superficie, Scala(), {.larghezza = kLargo, .altezza = kAlto}, traccia,
                   {.colore = kBianco, .larghezza = larghezza});
    return immagine;
}

/// Middle and height of what is lit in a column.
std::pair<double, double> Luce(const QImage& immagine, int x) {
    double somma = 0, momento = 0;
    for (int y = 0; y < kAlto; ++y) {
        const double luce = qRed(immagine.pixel(x, y)) / 255.0;
        somma += luce;
        momento += luce * (y + 0.5);
    }
    return {momento / somma, somma};
}

} // namespace

class superficie : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void columnsLieWhereThePolylineLies_data() {
        QTest::addColumn<double>("larghezza");
        QTest::addColumn<bool>("liscia");
        for (const double larghezza : {1.0, 2.0, 3.0})
            for (const bool liscia : {true, false})
                QTest::addRow("%g %d", larghezza, liscia) << larghezza << liscia;
    }
    void columnsLieWhereThePolylineLies() {
        QFETCH(double, larghezza);
        QFETCH(bool, liscia);
        for (const double ampiezza : {0.0, 800.0, 3000.0}) {
            const ColonneTraccia traccia = Fitta(ampiezza);
            const QImage colonne = Dipingi(QImage::Format_RGB32, traccia, larghezza, liscia);
            const QImage linee = Dipingi(QImage::Format_RGB888, traccia, larghezza, liscia);
            for (int x = 4; x < kLargo - 4; ++x) {
                const auto [mezzo, alta] = Luce(colonne, x);
                const auto [attesa, altaAttesa] = Luce(linee, x);
                QVERIFY2(std::abs(mezzo - attesa) < 1.1, qPrintable(QString::number(x)));
                QVERIFY2(alta > 0.6 * altaAttesa - 0.6 && alta < 1.35 * altaAttesa + 2.1,
                         qPrintable(QString::number(x)));
            }
        }
    }
    /// Thinner than a pixel and between two rows: each gets its share, and no more light in all.
    void endsAreSmooth() {
        QImage immagine(1, 10, QImage::Format_ARGB32_Premultiplied);
        immagine.fill(0);
        const ColonnaPixel colonna{.alto = 4.25, .basso = 4.25, .entra = 4.25, .esce = 4.25};
        DipingiColonne(immagine, immagine.rect(), 0, {&colonna, 1}, qRgb(255, 255, 255), 1, true);
        QCOMPARE(qAlpha(immagine.pixel(0, 3)), 63);
        QCOMPARE(qAlpha(immagine.pixel(0, 4)), 191);
        QCOMPARE(qAlpha(immagine.pixel(0, 5)), 0);
    }
    void nothingOutsideTheClip() {
        QImage immagine(60, 60, QImage::Format_RGB32);
        immagine.fill(Qt::black);
        const std::vector<ColonnaPixel> alte(100,
                                             {.alto = -1e9, .basso = 1e9, .entra = 0, .esce = 30});
        DipingiColonne(immagine, {10, 20, 30, 15}, -20, alte, qRgb(255, 255, 255), 3, true);
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 60; ++x)
                QCOMPARE(qRed(immagine.pixel(x, y)),
                         QRect(10, 20, 30, 15).contains(x, y) ? 255 : 0);
    }
    void wherePixelsAreNotItsOwnItDeclines() {
        const std::vector<TrattoColonna> colonne(20);
        const auto prende = [&](double scala, double velo, QImage::Format formato) {
            QImage immagine(100, 100, formato);
            QPainter painter(&immagine);
            painter.scale(scala, scala);
            painter.setOpacity(velo);
            SuperficieQt quadro(painter, 100 / scala, 100 / scala);
            quadro.Scala(0, 0, 100 / scala, 100 / scala);
            return quadro.Colonne(0, 1, colonne, {});
        };
        QVERIFY(prende(1, 1, QImage::Format_RGB32));
        QVERIFY(!prende(2, 1, QImage::Format_RGB32));
        QVERIFY(!prende(1, 0.5, QImage::Format_RGB32));
        QVERIFY(!prende(1, 1, QImage::Format_RGB888));
    }
};

QTEST_MAIN(superficie)
#include "superficie.moc"
