// The picture of a stored measure under mouse and keys: markers, zoom, peaks, badges.
#include <QSignalSpy>
#include <QtTest>

#include "platform/qt/SuperficieQt.h"
#include "records/ColoriGrafico.h"
#include "ui/LBMultiMK.h"
#include "ui/LBVerdetto.h"
#include "ui/MainPict.h"
#include "ui/SBZoomSweep.h"
#include "ui/Tema.h"

using namespace orvane;

namespace {

constexpr size_t kCampioni = 101;
constexpr size_t kBuco = 40;
/// Peaks, highest first.
constexpr size_t kPicchi[] = {30, 70, 10};

/// 1 to 11 MHz in steps of 0.1; Peak and Avg, with one gap and three peaks.
MisuraAperta Misura() {
    auto traccia = std::make_shared<SweepTrace>();
    for (size_t i = 0; i < kCampioni; ++i) {
        CampioneTraccia c{.freqMhz = 1 + 0.1 * double(i), .stacco = i == 0};
        c.livello.fill(kNessunLivello);
        c.livello[0] = 2000;
        c.livello[3] = i == kBuco ? int16_t{kNessunLivello} : int16_t{1500};
        traccia->push_back(c);
    }
    for (size_t i = 0; i < std::size(kPicchi); ++i)
        (*traccia)[kPicchi[i]].livello[0] = static_cast<int16_t>(5000 - 500 * int(i));
    MisuraAperta misura{.nome = "Lamp", .base = "Lamp"};
    misura.traccia = traccia;
    misura.detector = {true, false, false, true, false, false};
    misura.startMhz = 1;
    misura.stopMhz = 11;
    misura.leggibile = true;
    misura.header.Setup.UnitId = 1;
    misura.header.Scan.Righe[0].Start = 1;
    misura.header.Scan.Righe[0].Step = 0.1;
    return misura;
}

/// The picture in a window of its own.
struct Cavalletto {
    explicit Cavalletto(bool mostra = true) {
        env.GraphColors = kColoriDefault;
        setup.UnitId = 1;
        quadro.resize(900, 480);
        quadro.show();
        if (mostra)
            quadro.MostraQuadro(Contenuto(), false);
    }
    ContenutoQuadro Contenuto() const {
        ContenutoQuadro c = ComponiQuadro(Misura(), setup, env);
        c.picchi[0] = TrovaPicchi(*c.misura.traccia, DetectorKind::Peak, 10);
        return c;
    }
    const auto& Marker() const { return quadro.Quadro().marcatori.indice; }
    QPoint Posto(size_t indice) const {
        return {qRound(*quadro.PostoX(Misura().traccia->at(indice).freqMhz)), 400};
    }
    void Trascina(QPoint da, QPoint a, Qt::KeyboardModifiers con = {}) {
        QTest::mousePress(&quadro, Qt::LeftButton, con, da);
        QMouseEvent mossa(QEvent::MouseMove, a, quadro.mapToGlobal(a), Qt::NoButton, Qt::LeftButton,
                          con);
        QApplication::sendEvent(&quadro, &mossa);
        QTest::mouseRelease(&quadro, Qt::LeftButton, con, a);
    }
    void Rotella(QPoint dove, int angolo, Qt::KeyboardModifiers con = {}) {
        QWheelEvent giro(dove, quadro.mapToGlobal(dove), {}, {0, angolo}, Qt::NoButton, con,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&quadro, &giro);
    }
    bool Ingrandito() const { return quadro.CampoMostrato() != CampoMhz{1, 11}; }

    EnvRecord env;
    SetupRecord setup;
    MainPict quadro{env, setup, nullptr};
};

} // namespace

class QuadroUi : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void NuovaMisuraMetteIlMarker();
    void TastiMuovonoIlMarker();
    void ClicEMaiusc();
    void TrascinareSecondoIlModo_data();
    void TrascinareSecondoIlModo();
    void RotellaSecondoIlModo_data();
    void RotellaSecondoIlModo();
    void ZoomConStoria();
    void BarraMuoveLaFinestra();
    void SimboloSceltoMuoveIlMarker();
    void LetturaConBuco();
    void LetturaDellePassate();
    void LetturaLasciaINomi();
    void BadgeVannoAlPeggiore();
    void LimitiSottoUnaCorsa();
    void ColoriLeggibili();
};

void QuadroUi::NuovaMisuraMetteIlMarker() {
    Cavalletto c;
    QCOMPARE(c.Marker()[0], std::optional<size_t>(0));
    QVERIFY(!c.Marker()[1]);
    c.quadro.MuoviMarker(0, 50);
    c.quadro.MuoviMarker(0, kCampioni); // beyond the trace
    c.quadro.MuoviMarker(1, 60);
    c.quadro.OKZoomMK();
    QVERIFY(c.Ingrandito());
    // The same measure with every other sample: the frequencies stay.
    ContenutoQuadro rada = c.Contenuto();
    auto traccia = std::make_shared<SweepTrace>();
    for (size_t i = 0; i < kCampioni; i += 2)
        traccia->push_back((*rada.misura.traccia)[i]);
    rada.misura.traccia = traccia;
    c.quadro.MostraQuadro(rada, true);
    QCOMPARE(c.Marker()[0], std::optional<size_t>(25));
    QCOMPARE(c.Marker()[1], std::optional<size_t>(30));
    QVERIFY(c.Ingrandito());
    c.quadro.MostraQuadro(c.Contenuto(), false);
    QVERIFY(!c.Ingrandito() && !c.Marker()[1]);
    c.quadro.IniziaTraccia(1, 30);
    QVERIFY(!c.quadro.HaMisura() && c.quadro.Quadro().strati.empty());
}

void QuadroUi::TastiMuovonoIlMarker() {
    Cavalletto c;
    const struct {
        Qt::Key tasto;
        Qt::KeyboardModifiers con;
        size_t atteso;
    } casi[] = {{Qt::Key_Left, {}, 0},
                {Qt::Key_Right, {}, 1},
                {Qt::Key_Right, Qt::ShiftModifier, 11},
                {Qt::Key_Left, Qt::ControlModifier, kPicchi[2]},
                {Qt::Key_Left, Qt::ControlModifier, kPicchi[2]}, // none further
                {Qt::Key_Right, Qt::ControlModifier, kPicchi[0]},
                {Qt::Key_End, {}, kCampioni - 1},
                {Qt::Key_Right, Qt::ShiftModifier, kCampioni - 1},
                {Qt::Key_P, {}, kPicchi[0]},
                {Qt::Key_N, {}, kPicchi[1]},
                {Qt::Key_Home, {}, 0}};
    for (const auto& caso : casi) {
        QTest::keyClick(&c.quadro, caso.tasto, caso.con);
        QCOMPARE(c.Marker()[0], std::optional(caso.atteso));
    }
    QTest::keyClick(&c.quadro, Qt::Key_D); // the keys move the delta marker from here
    QTest::keyClick(&c.quadro, Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(c.Marker()[0], std::optional<size_t>(0));
    QCOMPARE(c.Marker()[1], std::optional<size_t>(10));
    QVERIFY(c.quadro.accessibleDescription().contains(QStringLiteral("delta 1")));
    QTest::keyClick(&c.quadro, Qt::Key_Escape);
    QVERIFY(!c.Marker()[0] && !c.Marker()[1]);
    QVERIFY(c.quadro.accessibleDescription().isEmpty());
}

void QuadroUi::ClicEMaiusc() {
    Cavalletto c;
    QSignalSpy mosso(&c.quadro, &MainPict::MarkerMosso);
    QTest::mouseClick(&c.quadro, Qt::LeftButton, {}, c.Posto(60));
    QTest::mouseClick(&c.quadro, Qt::LeftButton, Qt::ShiftModifier, c.Posto(20));
    QCOMPARE(c.Marker()[0], std::optional<size_t>(60));
    QCOMPARE(c.Marker()[1], std::optional<size_t>(20));
    QCOMPARE(mosso.size(), 2);
    c.Trascina(c.Posto(20), c.Posto(25)); // by its line
    QCOMPARE(c.Marker()[1], std::optional<size_t>(25));
    QVERIFY(!c.Ingrandito());
}

void QuadroUi::TrascinareSecondoIlModo_data() {
    QTest::addColumn<bool>("modoA");
    QTest::addColumn<bool>("ctrl");
    QTest::addColumn<int>("pixel");
    QTest::addColumn<bool>("ingrandisce");
    QTest::newRow("box") << false << false << 150 << true;
    QTest::newRow("at the threshold") << false << false << kMinimoZoomPixel << true;
    QTest::newRow("below it: a click") << false << false << kMinimoZoomPixel - 1 << false;
    QTest::newRow("Ctrl") << false << true << 150 << false;
    QTest::newRow("mode A") << true << false << 150 << false;
    QTest::newRow("mode A, Ctrl") << true << true << 150 << true;
}

void QuadroUi::TrascinareSecondoIlModo() {
    QFETCH(bool, modoA);
    QFETCH(bool, ctrl);
    QFETCH(int, pixel);
    QFETCH(bool, ingrandisce);
    Cavalletto c;
    c.setup.ZoomModeA = modoA ? -1 : 0;
    const QPoint da = c.Posto(50);
    c.Trascina(da, da - QPoint(pixel, 0), ctrl ? Qt::ControlModifier : Qt::NoModifier);
    QCOMPARE(c.Ingrandito(), ingrandisce);
    QCOMPARE(c.Marker()[0] == std::optional<size_t>(0), ingrandisce);
}

void QuadroUi::RotellaSecondoIlModo_data() {
    QTest::addColumn<bool>("modoB");
    QTest::addColumn<Qt::KeyboardModifiers>("con");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("misure");
    QTest::newRow("wheel") << false << Qt::KeyboardModifiers() << 1 << 0;
    QTest::newRow("Shift") << false << Qt::KeyboardModifiers(Qt::ShiftModifier) << 0 << 0;
    QTest::newRow("Ctrl") << false << Qt::KeyboardModifiers(Qt::ControlModifier) << 0 << 1;
    QTest::newRow("mode B") << true << Qt::KeyboardModifiers() << 0 << 0;
    QTest::newRow("mode B, Shift") << true << Qt::KeyboardModifiers(Qt::ShiftModifier) << 1 << 0;
}

void QuadroUi::RotellaSecondoIlModo() {
    QFETCH(bool, modoB);
    QFETCH(Qt::KeyboardModifiers, con);
    QFETCH(int, zoom);
    QFETCH(int, misure);
    Cavalletto c;
    c.setup.ZoomModeB = modoB ? -1 : 0;
    QSignalSpy cambiato(&c.quadro, &MainPict::ZoomCambiato);
    QSignalSpy successiva(&c.quadro, &MainPict::MisuraSuccessiva);
    c.Rotella(c.Posto(50), 60, con); // half a step each
    c.Rotella(c.Posto(50), 60, con);
    QCOMPARE(cambiato.size(), zoom);
    QCOMPARE(successiva.size(), misure);
    QVERIFY(misure == 0 || successiva[0][0].toInt() == -1);
    c.quadro.SpegniRotella();
    c.Rotella(c.Posto(50), 120, con);
    QCOMPARE(cambiato.size() + successiva.size(), zoom + misure);
}

void QuadroUi::ZoomConStoria() {
    Cavalletto c;
    c.quadro.MuoviMarker(0, 80);
    c.quadro.OKZoomMK(); // one marker alone is no span
    QVERIFY(!c.Ingrandito());
    c.quadro.MuoviMarker(1, 20);
    QTest::keyClick(&c.quadro, Qt::Key_Z);
    QCOMPARE(c.quadro.CampoMostrato(), (CampoMhz{3, 9}));
    QTest::keyClick(&c.quadro, Qt::Key_Backspace);
    QVERIFY(!c.Ingrandito());
    QTest::keyClick(&c.quadro, Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(c.quadro.CampoMostrato(), (CampoMhz{3, 9}));
    QTest::keyClick(&c.quadro, Qt::Key_0);
    QVERIFY(!c.Ingrandito());
    QTest::keyClick(&c.quadro, Qt::Key_Plus, Qt::ShiftModifier);
    QVERIFY(c.Ingrandito() && c.quadro.PostoX(9));
}

void QuadroUi::BarraMuoveLaFinestra() {
    Cavalletto c;
    auto* barra = c.quadro.findChild<SBZoomSweep*>();
    QVERIFY(!barra->isVisible());
    c.quadro.MuoviMarker(0, 10);
    c.quadro.MuoviMarker(1, 30);
    c.quadro.OKZoomMK();
    QVERIFY(barra->isVisible());
    const int larga = barra->pageStep();
    barra->setValue(barra->maximum());
    QCOMPARE(c.quadro.CampoMostrato().stop, 11.0);
    QVERIFY(std::abs(barra->pageStep() - larga) <= 1);
    c.quadro.MuoviMarker(0, 5); // takes the window along
    QVERIFY(c.quadro.PostoX(1.5));
    c.quadro.CancelZoomMK();
    QVERIFY(!barra->isVisible());
}

void QuadroUi::SimboloSceltoMuoveIlMarker() {
    Cavalletto c;
    QSignalSpy scelto(&c.quadro, &MainPict::PiccoScelto);
    int y = 0;
    while (c.quadro.LivelloA(y) > 50)
        ++y;
    QTest::mouseClick(&c.quadro, Qt::LeftButton, {}, {c.Posto(kPicchi[0]).x(), y - 3});
    QCOMPARE(scelto.size(), 1);
    QCOMPARE(scelto[0][1].toULongLong(), qulonglong{kPicchi[0]});
    QCOMPARE(c.Marker()[0], std::optional<size_t>(kPicchi[0]));
}

void QuadroUi::LetturaConBuco() {
    Cavalletto c;
    c.quadro.MuoviMarker(0, kBuco);
    auto* lettura = c.quadro.findChild<LBMultiMK*>();
    QVERIFY(lettura->isVisible());
    QCOMPARE(lettura->accessibleName(), QStringLiteral("5.0 MHz, Peak 20.00, Avg ---"));
    const int x = c.Posto(kBuco).x();
    QVERIFY(x < lettura->geometry().left() || x > lettura->geometry().right());
    c.quadro.LasciaQuadro();
    QVERIFY(!lettura->isVisible());
}

/// Each pass by its name; with a delta marker the highest of them, which alone has a difference.
void QuadroUi::LetturaDellePassate() {
    Cavalletto c;
    ContenutoQuadro quadro = c.Contenuto();
    StratoQuadro strato = quadro.strati.front();
    strato.traccia = std::make_shared<SweepTrace>(*strato.traccia);
    quadro.strati.clear();
    for (const char* nome : {"L1", "Kitchen appliance"})
        quadro.strati.emplace_back(strato).nome = nome;
    quadro.marcatori.indice[0] = kPicchi[0];
    const auto nomi = [&] {
        QStringList righe;
        for (const RigaLettura& riga : RigheMarker(quadro, c.setup, c.quadro.palette()))
            righe << riga.nome;
        return righe.mid(1).join(QLatin1Char(';'));
    };
    QCOMPARE(nomi(), QStringLiteral("L1 Peak;L1 Avg;Kitchen appliance Peak;Kitchen appliance Avg"));
    quadro.marcatori.indice[1] = kPicchi[1];
    QCOMPARE(nomi(), QStringLiteral("Peak;Avg"));
    QVERIFY(
        TestoStatoMarker(quadro, c.setup).endsWith(QStringLiteral("Peak 50.00   Avg 15.00 dBµV")));
}

void QuadroUi::LetturaLasciaINomi() {
    LBMultiMK lettura(nullptr);
    lettura.Mostra({{QStringLiteral("4.0 MHz"), {}, {}, Qt::black}});
    const QRectF campo(0, 0, 800, 400);
    lettura.Posiziona({.campo = campo});
    QCOMPARE(lettura.pos(), QPoint(0, 0));
    const QRectF nome(20, 4, 200, 14);
    lettura.Posiziona({.campo = campo, .nomi = {nome}});
    QVERIFY(!nome.intersects(lettura.geometry()) && lettura.isVisibleTo(nullptr));
    lettura.Posiziona({.campo = QRectF(0, 0, 800, 10)}); // lower than the reading
    QVERIFY(lettura.isHidden());
}

void QuadroUi::BadgeVannoAlPeggiore() {
    Cavalletto c;
    VerdettoLimite male{.slot = 0,
                        .limite = "B",
                        .detector = DetectorKind::QPeak,
                        .freqMhz = 8,
                        .livelloCent = 5120,
                        .limiteCent = 5000,
                        .indice = 70,
                        .oltre = 3,
                        .giudizio = Giudizio::Fail};
    VerdettoLimite nulla{.slot = 1, .limite = "C", .detector = DetectorKind::Avg};
    c.quadro.ImpostaVerdetto({{male, nulla}, Giudizio::Fail});
    auto* badge = c.quadro.findChild<LBVerdetto*>(QStringLiteral("LBVerdetto0"));
    QCOMPARE(badge->text(), QStringLiteral("QP  +1.20 dB at 8.0 MHz"));
    QVERIFY(badge->accessibleName().contains(QStringLiteral("B: FAIL")));
    QVERIFY(!c.quadro.findChild<LBVerdetto*>(QStringLiteral("LBVerdetto1"))->isEnabled());
    badge->click();
    QCOMPARE(c.Marker()[0], std::optional<size_t>(70));
}

void QuadroUi::LimitiSottoUnaCorsa() {
    Cavalletto c(false);
    c.quadro.IniziaTraccia(1, 11);
    const auto conta = [&] {
        int punti = 0;
        const QImage immagine = c.quadro.grab().toImage();
        for (int y = 0; y < immagine.height(); ++y)
            punti += immagine.pixelColor(immagine.width() / 2, y) == QColor(10, 200, 30);
        return punti;
    };
    QCOMPARE(conta(), 0);
    LimiteQuadro limite{.colore = Rgb(10, 200, 30)};
    limite.limite.Freq = {1e6f, 12e6f};
    limite.limite.Value = {4000, 4000};
    c.quadro.ImpostaLimiti({limite});
    QVERIFY(conta() > 0);
}

void QuadroUi::ColoriLeggibili() {
    for (const QColor fondo : {Tinta(true, Ruolo::Velo), Tinta(false, Ruolo::Velo)})
        for (const int32_t colore : kColoriDefault) {
            const QColor c = ColoreLeggibile(ColoreQt(colore), fondo);
            QVERIFY(std::abs(qGray(c.rgb()) - qGray(fondo.rgb())) > 60);
        }
    const QColor arancio(244, 151, 23); // is left alone where it can be read
    QCOMPARE(ColoreLeggibile(arancio, Tinta(true, Ruolo::Velo)), arancio);
}

QTEST_MAIN(QuadroUi)
#include "quadro.moc"
