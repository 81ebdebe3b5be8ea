// The archive from list to picture: choose, marker, peaks, limit, overlay, redo, delete.
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QTableWidget>
#include <QTreeWidget>

#include "Banco.h"
#include "data/LibreriaLimiti.h"
#include "ui/Testi.h"

using namespace orvane;
using namespace orvane::prova;

class ArchivioUi : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void StradaIntera();
    void IncertezzaAccettaVirgolaERifiutaIlResto_data();
    void IncertezzaAccettaVirgolaERifiutaIlResto();
    void RotellaCercaECancella();
};

namespace {

/// Short measures of these names, made by runs; then the archive.
void Misure(Banco& banco, const QStringList& nomi) {
    banco.Scheda(Modalita::Sweep);
    banco.RigaCorta();
    for (const QString& nome : nomi) {
        banco.Trova<QLineEdit>("TBMisura")->setText(nome);
        QTest::mouseClick(banco.Trova<QPushButton>("CMBExecuteSweep"), Qt::LeftButton);
    }
}

QString Nome(const QListView& lista) {
    return lista.currentIndex().data().toString();
}

} // namespace

void ArchivioUi::StradaIntera() {
    Banco banco;
    InstallaLibreria(banco.posto->scrivania);
    Misure(banco, {QStringLiteral("Lamp")});
    auto* quadro = banco.Trova<MainPict>("MainPict");
    QVERIFY(quadro->HaMisura()); // the run's columns have given way to the measure
    QVERIFY(banco.Voce("CHKShowHighestPeaks")->isEnabled());
    const size_t campioni = quadro->Quadro().misura.traccia->size();
    banco.Scheda(Modalita::SweepsArchive);
    QCOMPARE(quadro->Quadro().misura.traccia->size(), campioni);
    QVERIFY(banco.posto->scrivania.NoSaveSetup);
    auto* picchi = banco.Trova<QTableWidget>("GridHighestPeaks");
    QVERIFY(picchi->rowCount() > 0 && picchi->rowCount() <= 10);
    picchi->setCurrentCell(0, 1);
    const auto marker = quadro->Quadro().marcatori.indice[0];
    QVERIFY(marker);
    QTest::keyClick(quadro, Qt::Key_Right);
    QCOMPARE(*quadro->Quadro().marcatori.indice[0], *marker + 1);
    QVERIFY(quadro->Quadro().verdetto.limiti.empty());
    const int colonne = picchi->columnCount();
    auto* limite = banco.Trova<QComboBox>("CBXLimits1");
    limite->setCurrentText(QStringLiteral("CISPR 32 B mains QP"));
    Q_EMIT limite->textActivated(limite->currentText());
    QCOMPARE(quadro->Quadro().verdetto.limiti.size(), size_t{1});
    QCOMPARE(picchi->columnCount(), colonne + 2);
    QCOMPARE(*quadro->Quadro().marcatori.indice[0], *marker + 1);
    banco.Scheda(Modalita::Sweep); // what the view had on is not the user's
    QVERIFY(!banco.posto->scrivania.NoSaveSetup);
    QVERIFY(banco.posto->scrivania.setup.LimitName[0] != "CISPR 32 B mains QP");
    QVERIFY(!banco.Voce("MNUSaveImage")->isEnabled());
}

void ArchivioUi::IncertezzaAccettaVirgolaERifiutaIlResto_data() {
    QTest::addColumn<QString>("testo");
    QTest::addColumn<float>("attesa");
    QTest::newRow("comma") << QStringLiteral("2,5") << 2.5f;
    QTest::newRow("point") << QStringLiteral("2.5") << 2.5f;
    QTest::newRow("negative") << QStringLiteral("-1") << 0.f;
    QTest::newRow("words") << QStringLiteral("two") << 0.f;
}

void ArchivioUi::IncertezzaAccettaVirgolaERifiutaIlResto() {
    QFETCH(QString, testo);
    QFETCH(float, attesa);
    Banco banco;
    auto* campo = banco.Trova<QLineEdit>("TBMeasUncertainty");
    campo->setText(testo);
    Q_EMIT campo->editingFinished();
    QCOMPARE(banco.posto->scrivania.setup.MeasUncertainty, attesa);
    QCOMPARE(banco.posto->statoConsole.archivio.SetupBackup.MeasUncertainty, attesa);
}

void ArchivioUi::RotellaCercaECancella() {
    Banco banco;
    Misure(banco, {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    banco.Scheda(Modalita::SweepsArchive);
    auto* lista = banco.Trova<QListView>("CBXSweepsArchive");
    auto* quadro = banco.Trova<MainPict>("MainPict");
    QCOMPARE(lista->model()->rowCount(), 3);
    lista->setCurrentIndex(lista->model()->index(0, 0));
    QTRY_COMPARE(Q(quadro->Quadro().misura.nome), Nome(*lista));
    QWheelEvent giu({5, 5}, lista->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(lista->viewport(), &giu);
    QCOMPARE(lista->currentIndex().row(), 1);
    QTRY_COMPARE(Q(quadro->Quadro().misura.nome), Nome(*lista));
    const QString via = Nome(*lista);
    QTest::keyClick(lista, Qt::Key_Delete); // the careful answer: Cancel
    QCOMPARE(lista->model()->rowCount(), 3);
    banco.risposte = {QMessageBox::Ok};
    QTest::keyClick(lista, Qt::Key_Delete);
    QVERIFY(banco.riquadri.back().contains(
        QStringLiteral("Are you sure you want to delete %1 ?").arg(via)));
    QCOMPARE(lista->model()->rowCount(), 2);
    QVERIFY(Nome(*lista) != via && !Nome(*lista).isEmpty());
    QCOMPARE(Q(quadro->Quadro().misura.nome), Nome(*lista));
}

QTEST_MAIN(ArchivioUi)
#include "archivio.moc"
