// The scan grid as a user edits it: keys, lists, detectors, bands, panels.
#include <QCheckBox>
#include <QDialog>
#include <QMenu>

#include "Banco.h"
#include "setup/ModificaTabella.h"

using namespace orvane;
using namespace orvane::prova;

class Griglia : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { banco_.reset(); }
    void UnaRigaNuovaPrendeIPredefiniti();
    void VirgolaEPunto();
    void InvioVaAvanti();
    void ElencoRbwCambiaIlPasso();
    void DetectorAlmenoUno();
    void HoldTime_data();
    void HoldTime();
    void CancCancellaLaRiga();
    void CtrlNonAllargaLaScelta();
    void BandaComposta();
    void TabellaPiena();
    void PannelliSiScelgonoESiCancellano();
    void CelleSegnate();

private:
    const ScanLine& Riga(int i) { return banco_->posto->scan.Righe[static_cast<size_t>(i)]; }
    QModelIndex Cella(int riga, ColonnaScan colonna) {
        return griglia_->model()->index(riga, static_cast<int>(colonna));
    }
    /// Opens a cell, types over it and presses Return.
    void Scrivi(int riga, ColonnaScan colonna, const char* testo);
    void ScegliElenco(int riga, ColonnaScan colonna, int voce);
    /// Opens the settings window over a cell.
    QDialog* Modulo(int riga, ColonnaScan colonna);

    std::unique_ptr<Banco> banco_;
    QTableView* griglia_ = nullptr;
};

void Griglia::init() {
    banco_ = std::make_unique<Banco>();
    banco_->Scheda(Modalita::Sweep);
    griglia_ = banco_->Trova<QTableView>("GridScanTab");
    griglia_->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&banco_->Finestra()));
}

void Griglia::Scrivi(int riga, ColonnaScan colonna, const char* testo) {
    griglia_->setCurrentIndex(Cella(riga, colonna));
    QTest::keyClick(griglia_, Qt::Key_Return);
    auto* cella = griglia_->findChild<QLineEdit*>(QStringLiteral("TBCella"));
    QVERIFY(cella);
    QTest::keyClicks(cella, QLatin1String(testo));
    const QPointer<QLineEdit> questa = cella;
    QTest::keyClick(cella, Qt::Key_Return);
    QTRY_VERIFY(!questa);
}

void Griglia::ScegliElenco(int riga, ColonnaScan colonna, int voce) {
    griglia_->setCurrentIndex(Cella(riga, colonna));
    QTest::keyClick(griglia_, Qt::Key_Return);
    auto* elenco = griglia_->findChild<QComboBox*>(QStringLiteral("CBXCella"));
    QVERIFY(elenco);
    elenco->setCurrentIndex(voce);
    Q_EMIT elenco->activated(voce);
    QTRY_VERIFY(!griglia_->findChild<QComboBox*>(QStringLiteral("CBXCella")));
}

QDialog* Griglia::Modulo(int riga, ColonnaScan colonna) {
    griglia_->setCurrentIndex(Cella(riga, colonna));
    QTest::keyClick(griglia_, Qt::Key_Return);
    return griglia_->findChild<QDialog*>(QStringLiteral("ScanTabForm"));
}

void Griglia::UnaRigaNuovaPrendeIPredefiniti() {
    QCOMPARE(griglia_->model()->rowCount(), 1);
    Scrivi(0, ColonnaScan::Start, "0.15");
    QCOMPARE(Cella(0, ColonnaScan::Detector).data().toString(), QString());
    Scrivi(0, ColonnaScan::Stop, "30");
    QCOMPARE(Cella(0, ColonnaScan::Detector).data().toString().trimmed(), QStringLiteral("P"));
    QCOMPARE(Cella(0, ColonnaScan::Rbw).data().toString(), QStringLiteral("9 kHz"));
    QCOMPARE(Cella(0, ColonnaScan::Step).data().toString(), QStringLiteral("AUTO"));
    QCOMPARE(Riga(0).Step, 0.005);
    QCOMPARE(griglia_->model()->rowCount(), 2);
    // Saved at once, without a further step.
    ScanRecord letto;
    Scrivania& s = banco_->posto->scrivania;
    QVERIFY(CaricaPanelEST(s, s.env.ScanPanelPath, letto));
    QCOMPARE(letto.Righe[0].Stop, 30.0);
}

void Griglia::VirgolaEPunto() {
    Scrivi(0, ColonnaScan::Start, "0,15");
    QCOMPARE(Riga(0).Start, 0.15);
}

void Griglia::InvioVaAvanti() {
    Scrivi(0, ColonnaScan::Start, "0.15");
    QTRY_COMPARE(griglia_->currentIndex(), Cella(0, ColonnaScan::Stop));
    QTest::keyClick(griglia_, Qt::Key_Left);
    QTRY_COMPARE(griglia_->currentIndex(), Cella(0, ColonnaScan::Start));
}

void Griglia::ElencoRbwCambiaIlPasso() {
    banco_->Banda("B");
    ScegliElenco(0, ColonnaScan::Rbw, 8);
    QCOMPARE(Riga(0).RbwId, int16_t{8});
    QCOMPARE(Riga(0).Step, 0.0025);
    ScegliElenco(0, ColonnaScan::MinAtt, 3);
    QCOMPARE(Cella(0, ColonnaScan::MinAtt).data().toString(), QStringLiteral("30 dB"));
}

/// The window works on a copy: Escape leaves the line, Return keeps and goes on.
void Griglia::DetectorAlmenoUno() {
    banco_->Banda("B");
    for (const Qt::Key tasto : {Qt::Key_Escape, Qt::Key_Return}) {
        QPointer<QDialog> modulo = Modulo(0, ColonnaScan::Detector);
        QVERIFY(modulo && modulo->isVisible());
        auto* qpeak = modulo->findChild<QCheckBox*>(QStringLiteral("OPTDetector1"));
        qpeak->click();
        modulo->findChild<QCheckBox*>(QStringLiteral("OPTDetector0"))->click();
        qpeak->click();
        QVERIFY(qpeak->isChecked());
        QTest::keyClick(modulo, tasto);
        QTRY_VERIFY(!modulo);
        QCOMPARE(LettereDetector(Riga(0)), std::string(tasto == Qt::Key_Escape ? "P" : "Q"));
    }
    QCOMPARE(griglia_->currentIndex(), Cella(0, ColonnaScan::HoldTime));
}

void Griglia::HoldTime_data() {
    QTest::addColumn<QString>("testo");
    QTest::addColumn<double>("ms");
    QTest::addColumn<QString>("mostrato");
    QTest::newRow("plain") << "20" << 20.0 << "20";
    QTest::newRow("comma") << "1,5" << 1.5 << "1.5";
    QTest::newRow("sign") << "-5" << 5.0 << "5";
    QTest::newRow("limit") << "40000" << 30000.0 << "30000";
    QTest::newRow("zero") << "0" << 0.0 << "Lowest";
    QTest::newRow("word") << "abc" << 0.0 << "Lowest";
}

void Griglia::HoldTime() {
    QFETCH(QString, testo);
    QFETCH(double, ms);
    QFETCH(QString, mostrato);
    banco_->Banda("B");
    // Typed over the cell: the window opens with the first letter in its text.
    griglia_->setCurrentIndex(Cella(0, ColonnaScan::HoldTime));
    QTest::keyClick(griglia_, testo.front().toLatin1());
    QPointer<QDialog> modulo = griglia_->findChild<QDialog*>(QStringLiteral("ScanTabForm"));
    QVERIFY(modulo);
    auto* hold = modulo->findChild<QLineEdit*>(QStringLiteral("TBHoldTime"));
    QTest::keyClicks(hold, testo.mid(1));
    QTest::keyClick(hold, Qt::Key_Return);
    QTRY_VERIFY(!modulo);
    QCOMPARE(static_cast<double>(Riga(0).HoldTime), ms);
    QCOMPARE(Cella(0, ColonnaScan::HoldTime).data().toString(), mostrato);
}

/// The keys stop at the first cell; a copy made with Ctrl down is chosen next, and nothing besides.
void Griglia::CtrlNonAllargaLaScelta() {
    Scrivi(0, ColonnaScan::Start, "1");
    Scrivi(0, ColonnaScan::Stop, "2");
    griglia_->setCurrentIndex(Cella(0, ColonnaScan::Rbw));
    griglia_->setFocus();
    for (const auto tasto : {Qt::Key_Home, Qt::Key_Left}) {
        QTest::keyClick(griglia_, tasto);
        QCOMPARE(griglia_->currentIndex(), Cella(0, ColonnaScan::Start));
    }
    QTest::keyClick(griglia_, Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(Riga(1).Start, 1.0);
    QCOMPARE(griglia_->selectionModel()->selectedIndexes(),
             QModelIndexList{Cella(1, ColonnaScan::Start)});
}

void Griglia::CancCancellaLaRiga() {
    banco_->Banda("A+B");
    QCOMPARE(griglia_->model()->rowCount(), 3);
    griglia_->setCurrentIndex(Cella(0, ColonnaScan::Start));
    QTest::keyClick(griglia_, Qt::Key_Delete);
    QCOMPARE(griglia_->model()->rowCount(), 2);
    QCOMPARE(Riga(0).Start, 0.15);
}

void Griglia::BandaComposta() {
    banco_->Banda("C+D+E");
    QCOMPARE(RigheInUso(banco_->posto->scan.Righe), size_t{2});
    QCOMPARE(Riga(0).Stop, 1000.0);
    QCOMPARE(Riga(1).Start, 1000.0);
    QCOMPARE(Riga(1).HoldTime, 0.0f);
}

void Griglia::TabellaPiena() {
    for (int i = 0; i < 9; ++i)
        banco_->Banda("B");
    banco_->Banda("A+B");
    QCOMPARE(RigheInUso(banco_->posto->scan.Righe), size_t{9});
    QCOMPARE(banco_->riquadri.size(), 1);
    banco_->Banda("B");
    QCOMPARE(griglia_->model()->rowCount(), 10);
}

void Griglia::PannelliSiScelgonoESiCancellano() {
    banco_->Banda("B");
    auto* tabelle = banco_->Trova<QComboBox>("CBXScanTab");
    QTest::mouseClick(banco_->Trova<QPushButton>("CMBNewScanTab"), Qt::LeftButton);
    QCOMPARE(RigheInUso(banco_->posto->scan.Righe), size_t{0});
    const QString nuova = tabelle->currentText();
    tabelle->lineEdit()->setText(QStringLiteral("CISPR"));
    QTest::keyClick(tabelle->lineEdit(), Qt::Key_Return);
    QCOMPARE(tabelle->currentText(), QStringLiteral("CISPR"));
    banco_->risposte = {QMessageBox::Yes};
    QTest::mouseClick(banco_->Trova<QPushButton>("CMBDeleteScanTab"), Qt::LeftButton);
    QCOMPARE(banco_->riquadri,
             QStringList{QStringLiteral("Are you sure you want to delete CISPR ?")});
    QCOMPARE(tabelle->findText(QStringLiteral("CISPR")), -1);
    QVERIFY(tabelle->findText(nuova) >= 0);
    const int prima = tabelle->findText(QStringLiteral("Untitled"));
    QVERIFY(prima >= 0);
    tabelle->setCurrentIndex(prima);
    Q_EMIT tabelle->textActivated(QStringLiteral("Untitled"));
    QCOMPARE(RigheInUso(banco_->posto->scan.Righe), size_t{1});
}

void Griglia::CelleSegnate() {
    banco_->Banda("B");
    banco_->Finestra().EvidenziaCella(0, ColonnaScan::Rbw, true);
    QVERIFY(Cella(0, ColonnaScan::Rbw).data(Qt::UserRole).toBool());
    QVERIFY(!Cella(0, ColonnaScan::Start).data(Qt::UserRole).toBool());
    banco_->Finestra().EvidenziaCella(0, ColonnaScan::Rbw, false);
    QVERIFY(!Cella(0, ColonnaScan::Rbw).data(Qt::UserRole).toBool());
}

QTEST_MAIN(Griglia)
#include "griglia.moc"
