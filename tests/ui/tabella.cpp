// The scan table as a whole: a conducted set-up by keys alone, undo, lines, findings, bands.
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QTreeWidget>

#include "Banco.h"
#include "data/LibreriaLimiti.h"
#include "setup/ModificaTabella.h"

using namespace orvane;
using namespace orvane::prova;

class Tabella : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { banco_.reset(); }
    void CondottaDaTastiera();
    void SmartChiedeIlLimite();
    void AnnullaERipeti();
    void RigheIntere();
    void RiscontriPortanoAllaCella();
    void SegniDellaCorsa();
    void Bande();

private:
    ScanTable& Righe() { return banco_->posto->scan.Righe; }
    QModelIndex Cella(int riga, ColonnaScan colonna) {
        return griglia_->model()->index(riga, static_cast<int>(colonna));
    }
    QDialog* Modulo() { return griglia_->findChild<QDialog*>(QStringLiteral("ScanTabForm")); }
    /// A key goes where the focus is, as the user's does.
    void Premi(Qt::Key tasto, Qt::KeyboardModifiers con = {}) {
        QWidget* fuoco = QApplication::focusWidget();
        QTest::keyClick(fuoco ? fuoco : griglia_, tasto, con);
        QTest::qWait(1);
    }
    /// A box by its letter: the button answers a moment after the key.
    void Spunta(const char* nome, Qt::Key lettera) {
        Premi(lettera, Qt::AltModifier);
        QTRY_VERIFY(Modulo()->findChild<QCheckBox*>(QLatin1String(nome))->isChecked());
    }
    void Digita(const char* testo) {
        for (; *testo; ++testo)
            QTest::keyClick(QApplication::focusWidget(), *testo);
    }

    std::unique_ptr<Banco> banco_;
    QTableView* griglia_ = nullptr;
};

void Tabella::init() {
    banco_ = std::make_unique<Banco>();
    InstallaLibreria(banco_->posto->scrivania);
    banco_->Scheda(Modalita::Sweep);
    banco_->posto->scrivania.setup.AncillaryKind = 1;
    griglia_ = banco_->Trova<QTableView>("GridScanTab");
    QVERIFY(QTest::qWaitForWindowActive(&banco_->Finestra()));
    griglia_->setFocus();
}

/// CISPR 32 class B at the mains: two network lines, Smart over Peak and QPeak, a limit for each.
void Tabella::CondottaDaTastiera() {
    Digita("0.15");
    Premi(Qt::Key_Return);
    Digita("30");
    Premi(Qt::Key_Return);
    QTRY_COMPARE(griglia_->currentIndex(), Cella(0, ColonnaScan::Step));
    Premi(Qt::Key_Right);
    Premi(Qt::Key_Return);
    QVERIFY(QTest::qWaitForWindowActive(Modulo()));
    Spunta("CHKSmart", Qt::Key_S);
    Spunta("OPTDetector1", Qt::Key_Q);
    for (const Qt::Key elenco : {Qt::Key_L, Qt::Key_I}) {
        Premi(elenco, Qt::AltModifier);
        auto* limiti = qobject_cast<QComboBox*>(QApplication::focusWidget());
        QVERIFY(limiti);
        for (int i = limiti->findText(QStringLiteral("CISPR 32 B mains QP")); i > 0; --i)
            Premi(Qt::Key_Down);
    }
    Spunta("CHKLimits", Qt::Key_U);
    Spunta("CHKLimitsDSD", Qt::Key_E);
    Premi(Qt::Key_H, Qt::AltModifier);
    Digita("1000");
    Premi(Qt::Key_Return);
    QTRY_VERIFY(!Modulo());
    QTRY_COMPARE(griglia_->currentIndex(), Cella(0, ColonnaScan::HoldTime));

    ScanRecord letto;
    Scrivania& s = banco_->posto->scrivania;
    QVERIFY(CaricaPanelEST(s, s.env.ScanPanelPath, letto));
    const ScanLine& riga = letto.Righe[0];
    QCOMPARE(riga.Stop, 30.0);
    QCOMPARE(LettereDetector(riga), std::string("PQ"));
    QCOMPARE(riga.Smart, int16_t{1});
    QCOMPARE(riga.HoldTime, 1000.0f);
    QCOMPARE(riga.Limit + "|" + riga.LimitDSD,
             std::string("CISPR 32 B mains QP|CISPR 32 B mains QP"));
    QCOMPARE(riga.LimitOn + riga.LimitDSDOn, 2);
    QCOMPARE(Cella(0, ColonnaScan::Ancillary).data().toString(), QStringLiteral("L1, L2"));
    QVERIFY(banco_->Trova<QLabel>("LBRiassunto")->text().contains(QStringLiteral("2 lines")));
    QVERIFY(banco_->riquadri.isEmpty());
}

void Tabella::SmartChiedeIlLimite() {
    banco_->Banda("B");
    griglia_->setCurrentIndex(Cella(0, ColonnaScan::Detector));
    Premi(Qt::Key_Return);
    QVERIFY(QTest::qWaitForWindowActive(Modulo()));
    Spunta("CHKSmart", Qt::Key_S);
    Premi(Qt::Key_Return);
    QCOMPARE(banco_->riquadri.size(), 1);
    QVERIFY(banco_->riquadri.front().startsWith(QStringLiteral("Smart detector must have")));
    // Still open, the focus where it was.
    QVERIFY(Modulo());
    QCOMPARE(Modulo()->focusWidget()->objectName(), QStringLiteral("CHKSmart"));
    QTest::keyClick(Modulo(), Qt::Key_Escape);
    QTRY_VERIFY(!Modulo());
    QCOMPARE(Righe()[0].Smart, int16_t{0});
}

void Tabella::AnnullaERipeti() {
    banco_->Banda("C+D+E");
    griglia_->setFocus();
    griglia_->setCurrentIndex(Cella(0, ColonnaScan::Start));
    Premi(Qt::Key_Delete);
    QCOMPARE(Righe()[0].Start, 1000.0);
    Premi(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Righe()[0].Start, 30.0);
    Premi(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(RigheInUso(Righe()), size_t{0});
    Premi(Qt::Key_Y, Qt::ControlModifier);
    Premi(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(RigheInUso(Righe()), size_t{1});
    // Another table on the desk: nothing leads back into this one.
    QTest::mouseClick(banco_->Trova<QPushButton>("CMBNewScanTab"), Qt::LeftButton);
    QVERIFY(!banco_->Trova<QAction>("MNUUndo")->isEnabled());
}

void Tabella::RigheIntere() {
    banco_->Banda("A+B");
    griglia_->setFocus();
    griglia_->setCurrentIndex(Cella(0, ColonnaScan::Start));
    Premi(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(Righe()[0].Start, 0.15);
    Premi(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(RigheInUso(Righe()), size_t{3});
    Premi(Qt::Key_Up);
    Premi(Qt::Key_Down, Qt::ShiftModifier);
    Premi(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(RigheInUso(Righe()), size_t{1});
    QCOMPARE(QApplication::clipboard()->text().count(QLatin1Char('\n')), 3);
    Premi(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(RigheInUso(Righe()), size_t{3});
    QCOMPARE(Righe()[0].Start, 0.15);
    QApplication::clipboard()->setText(QStringLiteral("no lines"));
    Premi(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(RigheInUso(Righe()), size_t{3});
    QCOMPARE(banco_->riquadri.size(), 1);
}

void Tabella::RiscontriPortanoAllaCella() {
    auto* elenco = banco_->Trova<QTreeWidget>("LSTErrori");
    banco_->Banda("B");
    QTest::qWait(250);
    QVERIFY(!elenco->isVisible());
    Righe()[0].RbwId = 0;
    banco_->Finestra().AggiornaGriglia();
    QTRY_COMPARE(elenco->topLevelItemCount(), 1);
    QVERIFY(elenco->isVisible());
    QCOMPARE(elenco->topLevelItem(0)->text(2), QStringLiteral("RBW not available"));
    const QModelIndex cella = Cella(0, ColonnaScan::Rbw);
    QVERIFY(cella.data(Qt::UserRole).toBool());
    QCOMPARE(cella.data(Qt::ToolTipRole).toString(), QStringLiteral("RBW not available"));
    Q_EMIT elenco->itemClicked(elenco->topLevelItem(0), 0);
    QCOMPARE(griglia_->currentIndex(), cella);
    QVERIFY(griglia_->hasFocus());
    Righe()[0].RbwId = 2;
    banco_->Finestra().AggiornaGriglia();
    QTRY_VERIFY(!elenco->isVisible());
    QVERIFY(!cella.data(Qt::UserRole).toBool());
}

/// They stay through other edits, and go with an edit of their own cell.
void Tabella::SegniDellaCorsa() {
    banco_->Banda("B");
    for (const auto colonna : {ColonnaScan::Start, ColonnaScan::MinAtt})
        banco_->Finestra().EvidenziaCella(0, colonna, true);
    griglia_->model()->setData(Cella(0, ColonnaScan::MinAtt), 2);
    QVERIFY(!Cella(0, ColonnaScan::MinAtt).data(Qt::UserRole).toBool());
    QVERIFY(Cella(0, ColonnaScan::Start).data(Qt::UserRole).toBool());
}

void Tabella::Bande() {
    banco_->Banda("B");
    griglia_->setCurrentIndex(Cella(0, ColonnaScan::Start));
    Premi(Qt::Key_B, Qt::ControlModifier);
    auto* bande = banco_->Trova<QDialog>("FRMTDScanTab");
    QTRY_VERIFY(bande->isVisible());
    auto* elenco = bande->findChild<QComboBox*>(QStringLiteral("CBXBanda"));
    auto* inserisci = bande->findChild<QPushButton*>(QStringLiteral("CMBInsert"));
    elenco->lineEdit()->selectAll();
    QTest::keyClicks(elenco->lineEdit(), QStringLiteral("c+d+"));
    QVERIFY(!inserisci->isEnabled());
    QTest::keyClicks(elenco->lineEdit(), QStringLiteral("e"));
    QCOMPARE(elenco->currentText(), QStringLiteral("C+D+E"));
    QCOMPARE(inserisci->text(), QStringLiteral("Insert band C+D+E before row 1"));
    inserisci->click();
    QCOMPARE(RigheInUso(Righe()), size_t{3});
    QCOMPARE(Righe()[2].Start, 0.15);
    // The arrow goes over the separator.
    QTest::keyClick(elenco, Qt::Key_Down);
    QCOMPARE(elenco->currentText(), QStringLiteral("30Hz_to_1kHz"));
    banco_->risposte = {QMessageBox::Yes};
    bande->findChild<QPushButton*>(QStringLiteral("CMBClearTab"))->click();
    QCOMPARE(RigheInUso(Righe()), size_t{0});
}

QTEST_MAIN(Tabella)
#include "tabella.moc"
