// The table editor and the load and save window as a user drives them: by keys.
#include <fstream>

#include <QClipboard>

#include "Banco.h"
#include "data/FileTabelle.h"
#include "data/LibreriaLimiti.h"
#include "ui/FrmLoadSave.h"
#include "ui/FrmTableLimFacFT.h"
#include "ui/Testi.h"

using namespace orvane;
using namespace orvane::prova;

class Tabelle : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco_ = std::make_unique<Banco>(); }
    void cleanup() { banco_.reset(); }
    void StradaASolaTastiera();
    void TerzaFrequenzaUgualeRifiutata();
    void LaRigaSegueLaSuaFrequenza();
    void TastiSulleCelleScelte();
    void IncollaUnPasso();
    void UnitaResta();
    void ImportaERacconta();
    void PosizioniDelMast();
    void ChiudereChiede();
    void TastiRifiutatiNelNome();
    void RifiutiDelSalvare();
    void CancellareUnaTabellaInUso();
    void CaricamentoNelRicevitore();
    void CaricamentoFermato();
    void CaricamentoSoloALinkLibero();
    void LibreriaDueVolte();

private:
    void ApriEditor(const char* voce = "MNUMakeLimits");
    void ApriEditorSu(const char* nome);
    /// Opens the current cell, types over it and presses Return.
    void Scrivi(const char* testo);
    void Vai(int riga, int colonna) { griglia_->VaiA(riga, colonna); }
    QString Cella(int riga, int colonna) {
        return griglia_->model()->index(riga, colonna).data().toString();
    }
    const ContenutoTabella& Contenuto() { return editor_->Modifica().Contenuto(); }
    /// What is to be done in the next load and save window that has this control.
    void NellaFinestra(const char* controllo, std::function<void(FrmLoadSave&)> cosa);
    /// As a window manager does once a dialog above it has closed.
    static void Attiva(QWidget& finestra) {
        finestra.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&finestra));
    }
    void Tasto(Qt::Key tasto, Qt::KeyboardModifiers con = {}) {
        Attiva(*editor_);
        QTest::keyClick(griglia_, tasto, con);
        QTest::qWait(1);
    }

    std::unique_ptr<Banco> banco_;
    QPointer<FrmTableLimFacFT> editor_;
    TabFreqTable* griglia_ = nullptr;
};

void Tabelle::ApriEditor(const char* voce) {
    banco_->Voce(voce)->trigger();
    editor_ = banco_->Trova<FrmTableLimFacFT>("FrmTableLimFacFT");
    QVERIFY(editor_);
    griglia_ = editor_->findChild<TabFreqTable*>();
    QVERIFY(QTest::qWaitForWindowExposed(editor_));
}

void Tabelle::ApriEditorSu(const char* nome) {
    InstallaLibreria(banco_->posto->scrivania);
    auto* editor =
        new FrmTableLimFacFT(banco_->posto->console, TableKind::Limite,
                             "Limits\\" + std::string(nome) + ".5SL", &banco_->Finestra());
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
    editor_ = editor;
    griglia_ = editor->findChild<TabFreqTable*>();
    QTRY_VERIFY(!Contenuto().righe.empty());
}

void Tabelle::Scrivi(const char* testo) {
    QTest::keyClick(griglia_, Qt::Key_Return);
    auto* cella = griglia_->findChild<QLineEdit*>(QStringLiteral("TBCella"));
    QVERIFY(cella);
    QTest::keyClicks(cella, QLatin1String(testo));
    QTest::keyClick(cella, Qt::Key_Return);
    QTRY_VERIFY(!griglia_->findChild<QLineEdit*>(QStringLiteral("TBCella")));
}

void Tabelle::NellaFinestra(const char* controllo, std::function<void(FrmLoadSave&)> cosa) {
    auto* attesa = new QTimer(banco_.get());
    connect(attesa, &QTimer::timeout, this, [attesa, cosa, controllo] {
        auto* finestra = qobject_cast<FrmLoadSave*>(QApplication::activeModalWidget());
        if (!finestra || !finestra->findChild<QWidget*>(QLatin1String(controllo)))
            return;
        attesa->deleteLater();
        attesa->stop();
        cosa(*finestra);
    });
    attesa->start(10);
}

void Tabelle::StradaASolaTastiera() {
    ApriEditor();
    // Return goes on by itself: frequency, level, the next new row.
    for (const char* testo : {"30", "60", "0.15", "66", "0,5", "56,5", "0.5", "60"})
        Scrivi(testo);
    const ContenutoTabella scritta = Contenuto();
    QCOMPARE(scritta.righe.size(), size_t{4});
    QCOMPARE(Cella(1, 1), QStringLiteral("56.50"));
    QCOMPARE(Cella(2, 1), QStringLiteral("60.00")); // a step keeps the order of its rows
    QVERIFY(editor_->windowTitle().startsWith(QStringLiteral("Limits: ")));
    int passi = 0;
    while (editor_->Modifica().PuoAnnullare() && ++passi)
        Tasto(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(passi, 8);
    QVERIFY(Contenuto().righe.empty() && !editor_->isWindowModified());
    for (int i = 0; i < passi; ++i)
        Tasto(i % 2 ? Qt::Key_Y : Qt::Key_Z,
              i % 2 ? Qt::ControlModifier : Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Contenuto(), scritta);
    // What is being typed belongs to what is saved.
    QTest::keyClicks(editor_->findChild<QLineEdit*>(QStringLiteral("TBTitleFT")),
                     QStringLiteral("Lamp"));
    NellaFinestra("TBSave", [](FrmLoadSave& f) {
        QCOMPARE(f.windowTitle(), QStringLiteral("Save Limit As"));
        auto* nome = f.findChild<QLineEdit*>(QStringLiteral("TBSave"));
        QTest::keyClicks(nome, QStringLiteral("Mine"));
        QTest::keyClick(nome, Qt::Key_Return);
    });
    Tasto(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!editor_->isWindowModified());
    Tasto(Qt::Key_Escape);
    QTRY_VERIFY(!editor_);
    ApriEditor();
    NellaFinestra("CmdLoad", [](FrmLoadSave& f) {
        QCOMPARE(f.windowTitle(), QStringLiteral("Load Limit"));
        QTest::keyClick(f.findChild<QWidget*>(QStringLiteral("FileList")), Qt::Key_Return);
    });
    Tasto(Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(Contenuto().righe, scritta.righe);
    QCOMPARE(Contenuto().titolo, std::string("Lamp"));
    QCOMPARE(editor_->windowTitle(), QStringLiteral("Limits: Mine[*]"));
    QVERIFY(banco_->riquadri.isEmpty());
}

void Tabelle::TerzaFrequenzaUgualeRifiutata() {
    struct Caso {
        const char* voce;
        int ammesse;
        const char* riquadro;
    };
    for (const Caso& caso : {Caso{"MNUMakeLimits", 2, "No more then two frequencies allowed"},
                             Caso{"MNUMakeFactors", 1, "Frequency already present"},
                             Caso{"MNUMakeTabFreq", 1, "Frequency already present"}}) {
        ApriEditor(caso.voce);
        for (int i = 0; i < caso.ammesse; ++i) {
            Scrivi("30");
            Scrivi("1");
        }
        Scrivi("30.0");
        QTRY_COMPARE(banco_->riquadri, QStringList{QLatin1String(caso.riquadro)});
        QCOMPARE(Contenuto().righe.size(), static_cast<size_t>(caso.ammesse));
        QCOMPARE(griglia_->currentIndex().column(), 0);
        banco_->riquadri.clear();
        banco_->risposte = {QMessageBox::No, QMessageBox::Yes};
        Tasto(Qt::Key_Escape);
        QTRY_VERIFY(!editor_);
        banco_->riquadri.clear();
    }
}

void Tabelle::LaRigaSegueLaSuaFrequenza() {
    ApriEditorSu("CISPR 32 B mains QP");
    Vai(0, 0);
    Scrivi("10");
    const int riga = 4; // behind 0.5 and the two at 5 MHz, before 30
    QCOMPARE(Cella(riga - 1, 0), QStringLiteral("10"));
    QCOMPARE(griglia_->currentIndex().row(), riga - 1);
    QCOMPARE(griglia_->currentIndex().column(), 1);
    Scrivi("x");
    QTRY_COMPARE(banco_->riquadri, QStringList{QStringLiteral("Not valid value")});
    QCOMPARE(Cella(riga - 1, 1), QStringLiteral("66.00"));
}

void Tabelle::TastiSulleCelleScelte() {
    ApriEditorSu("CISPR 32 A mains QP");
    const ContenutoTabella intera = Contenuto();
    Vai(0, 1);
    Tasto(Qt::Key_Delete);
    QVERIFY(!Contenuto().righe[0].livelloCent);
    QCOMPARE(ControllaRigaCompFreqTab(Contenuto()), intera.righe.size() - 1);
    Tasto(Qt::Key_Z, Qt::ControlModifier);
    Vai(1, 0);
    griglia_->selectionModel()->select(griglia_->model()->index(2, 0), QItemSelectionModel::Select);
    Tasto(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("0.5\t79.00\r\n0.5\t73.00\r\n"));
    Tasto(Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(Contenuto().righe.size(), intera.righe.size() - 2);
    Tasto(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Contenuto(), intera);
}

void Tabelle::IncollaUnPasso() {
    ApriEditor();
    QApplication::clipboard()->setText(
        QStringLiteral("MHz\tdB\n0,15\t66\n30;60\n0.5\t56,5\n0.5\t1\n0.5\t2\n"));
    Tasto(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(banco_->riquadri, QStringList{QStringLiteral("Line File: 1.\nNot valid value")});
    QCOMPARE(Contenuto().righe.size(), size_t{4});
    QCOMPARE(Cella(1, 1), QStringLiteral("56.50"));
    Tasto(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(Contenuto().righe.empty());
}

void Tabelle::UnitaResta() {
    ApriEditorSu("CISPR 32 A mains QP");
    auto* unita = editor_->findChild<QComboBox*>(QStringLiteral("CBXUMTableLim"));
    const int16_t prima = *Contenuto().righe[0].livelloCent;
    Q_EMIT unita->activated(0); // dBm
    QCOMPARE(*Contenuto().righe[0].livelloCent, prima);
    QCOMPARE(Cella(0, 1), QStringLiteral("-28.00"));
    Vai(0, 1);
    Scrivi("-27");
    QCOMPARE(int{*Contenuto().righe[0].livelloCent}, prima + 100);
    delete editor_;
    banco_->Scheda(Modalita::Sweep);
    banco_->posto->scrivania.setup.TableUnitId = 1;
    QVERIFY(CaricaPanelEAM(banco_->posto->scrivania, kPannelloEAM));
    QCOMPARE(int{banco_->posto->scrivania.setup.TableUnitId}, 0);
}

void Tabelle::ImportaERacconta() {
    ApriEditor("MNUMakeTabFreq");
    const auto file = banco_->cartella.Percorso() / "points.txt";
    std::ofstream(file, std::ios::binary) << "Frequencies\r\n100\r\n0,5 12\r\n";
    editor_->ImportaFile(file);
    QCOMPARE(banco_->riquadri, QStringList{QStringLiteral("Line File: 1.\nNot valid value")});
    QCOMPARE(Cella(0, 0), QStringLiteral("0.5"));
    QCOMPARE(Cella(1, 1), QStringLiteral(".00"));
    editor_->ImportaFile(banco_->cartella.Percorso() / "none.txt");
    QVERIFY(banco_->riquadri.back().startsWith(QStringLiteral("Cannot open file ")));
}

void Tabelle::PosizioniDelMast() {
    ApriEditor("MNUMakeTabFreqMast");
    QVERIFY(editor_->windowTitle().startsWith(QStringLiteral("Frequency Mast Table: ")));
    for (const char* testo : {"30", "1", "150", "90", "60"})
        Scrivi(testo);
    QCOMPARE(Cella(0, 3), QStringLiteral("090"));
    QCOMPARE(Cella(1, 2), QStringLiteral("---"));
    QVERIFY(!editor_->findChild<QWidget*>(QStringLiteral("CMBStoreCFL")));
}

void Tabelle::ChiudereChiede() {
    ApriEditor();
    Scrivi("30");
    Tasto(Qt::Key_Escape); // closing the boxes loses nothing
    QVERIFY(editor_ && editor_->isVisible());
    QCOMPARE(banco_->riquadri.size(), 2);
    banco_->risposte = {QMessageBox::Yes};
    NellaFinestra("TBSave", [](FrmLoadSave& f) { f.reject(); });
    editor_->close();
    QVERIFY(editor_ && editor_->isVisible());
    banco_->risposte = {QMessageBox::No, QMessageBox::Yes};
    editor_->close();
    QTRY_VERIFY(!editor_);
}

void Tabelle::TastiRifiutatiNelNome() {
    FrmLoadSave finestra(banco_->posto->console, RichiestaTabella(TableKind::Limite),
                         FrmLoadSave::Modo::Salva, QStringLiteral("Save Limit As"), nullptr);
    finestra.show();
    auto* nome = finestra.findChild<QLineEdit*>(QStringLiteral("TBSave"));
    QTest::keyClicks(nome, QStringLiteral("a.,+[]\\/|=*^:;<>?\"b-1 (2)"));
    QCOMPARE(nome->text(), QStringLiteral("ab-1 (2)"));
}

void Tabelle::RifiutiDelSalvare() {
    InstallaLibreria(banco_->posto->scrivania);
    FrmLoadSave finestra(banco_->posto->console, RichiestaTabella(TableKind::Limite),
                         FrmLoadSave::Modo::Salva, QStringLiteral("Save Limit As"), nullptr);
    finestra.show();
    for (const char* nome : {"", "none"}) {
        finestra.ImpostaNome(QLatin1String(nome));
        finestra.accept();
        QCOMPARE(banco_->riquadri.back(), QStringLiteral("File name not valid"));
    }
    finestra.ImpostaNome(QStringLiteral("CISPR 32 A mains QP"));
    finestra.accept();
    QCOMPARE(banco_->riquadri.back(), QStringLiteral("CISPR 32 A mains QP exists already.\n"
                                                     "Do you want to replace it?"));
    QVERIFY(finestra.isVisible() && finestra.Percorso().empty());
    banco_->risposte = {QMessageBox::Yes};
    finestra.accept();
    QVERIFY(!finestra.isVisible());
    QCOMPARE(finestra.Percorso(), std::string("Limits\\CISPR 32 A mains QP.5SL"));
    FrmLoadSave dopo(banco_->posto->console, RichiestaTabella(TableKind::Limite),
                     FrmLoadSave::Modo::Carica, QStringLiteral("Load Limit"), nullptr);
    QCOMPARE(dopo.findChild<QListWidget*>()->currentItem()->text(),
             QStringLiteral("CISPR 32 A mains QP"));
}

void Tabelle::CancellareUnaTabellaInUso() {
    InstallaLibreria(banco_->posto->scrivania);
    banco_->posto->scrivania.setup.LimitName[1] = "CISPR 15 mains QP";
    FrmLoadSave finestra(banco_->posto->console, RichiestaTabella(TableKind::Limite),
                         FrmLoadSave::Modo::Carica, QStringLiteral("Load Limit"), nullptr);
    finestra.MostraAnteprime(TableKind::Limite);
    finestra.show();
    auto* lista = finestra.findChild<QListWidget*>(QStringLiteral("FileList"));
    lista->setFocus();
    const int quante = lista->count();
    for (const char* nome : {"CISPR 15 mains QP", "CISPR 15 mains AV"}) {
        lista->setCurrentItem(lista->findItems(QLatin1String(nome), Qt::MatchExactly).at(0));
        QVERIFY(finestra.findChild<QLabel*>(QStringLiteral("LBTitolo"))
                    ->text()
                    .startsWith(QStringLiteral("CISPR 15 lighting")));
        banco_->risposte = {QMessageBox::Yes};
        Attiva(finestra);
        QTest::keyClick(lista, Qt::Key_Delete);
    }
    QCOMPARE(banco_->riquadri, (QStringList{QStringLiteral("Delete CISPR 15 mains QP"),
                                            QStringLiteral("Cannot be deleted"),
                                            QStringLiteral("Delete CISPR 15 mains AV")}));
    QCOMPARE(lista->count(), quante - 1);
}

void Tabelle::CaricamentoNelRicevitore() {
    ApriEditorSu("CISPR 32 B mains QP");
    Vai(0, 1);
    Scrivi("66.5");
    // Unsaved rows first: the save window leads on.
    banco_->risposte = {QMessageBox::Yes, QMessageBox::Yes};
    NellaFinestra("TBSave", [this](FrmLoadSave& f) {
        QCOMPARE(f.findChild<QPushButton*>(QStringLiteral("CmdSave"))->text(),
                 QStringLiteral("Continue"));
        NellaFinestra("TBNameStoreCFL", [](FrmLoadSave& g) {
            auto* nome = g.findChild<QLineEdit*>(QStringLiteral("TBNameStoreCFL"));
            QCOMPARE(nome->text(), QStringLiteral("CISPR 32 B mains QP"));
            nome->setText(QStringLiteral("Mains B"));
            g.findChild<QComboBox*>(QStringLiteral("CBXPositionCFL"))->setCurrentIndex(2);
            QTest::keyClick(nome, Qt::Key_Return);
        });
        f.accept();
    });
    editor_->findChild<QPushButton*>(QStringLiteral("CMBStoreCFL"))->click();
    const auto& comandi = banco_->simulato.Comandi();
    QCOMPARE(comandi.front(), std::string("#SLIW0,150e3;66.5*"));
    QCOMPARE(comandi.back(), std::string("#SLIC 3,Mains B*"));
    QCOMPARE(comandi.size(), Contenuto().righe.size() + 1);
    QVERIFY(!banco_->posto->porta.Aperta());
    QCOMPARE(banco_->riquadri.back(), QStringLiteral("Successfully stored as \n3 Mains B Limit"));
}

void Tabelle::CaricamentoFermato() {
    ApriEditorSu("CISPR 32 B mains QP");
    std::string errore;
    banco_->simulato.Aggiungi(*LeggiCapriccio("mute:SLIW2", errore));
    QString esito;
    NellaFinestra("TBNameStoreCFL", [&](FrmLoadSave& f) {
        auto* nome = f.findChild<QLineEdit*>(QStringLiteral("TBNameStoreCFL"));
        nome->setText(QStringLiteral("X"));
        auto* ferma = f.findChild<QPushButton*>(QStringLiteral("CMBStop"));
        // Once two points are out and the third waits for its reply.
        auto* avanzamento = f.findChild<QProgressBar*>(QStringLiteral("PBStoreCFLOn5520"));
        QTimer guarda;
        connect(&guarda, &QTimer::timeout, &f, [&] {
            if (avanzamento->value() == 2 && ferma->isVisible())
                QTest::keyClick(ferma, Qt::Key_Escape);
        });
        guarda.start(5);
        QTest::keyClick(nome, Qt::Key_Return);
        QVERIFY(f.isVisible() && !ferma->isVisible());
        esito = f.findChild<QLabel*>(QStringLiteral("LBEsito"))->text();
        f.reject();
    });
    editor_->findChild<QPushButton*>(QStringLiteral("CMBStoreCFL"))->click();
    QVERIFY(esito.startsWith(QStringLiteral("Stopped")));
    QVERIFY(banco_->riquadri.isEmpty());
    QVERIFY(banco_->simulato.Tabella("LIC", 1).empty());
}

void Tabelle::CaricamentoSoloALinkLibero() {
    banco_->Scheda(Modalita::Manual);
    QTRY_VERIFY(banco_->posto->porta.Aperta());
    ApriEditorSu("CISPR 32 B mains QP");
    banco_->simulato.DimenticaComandi();
    editor_->findChild<QPushButton*>(QStringLiteral("CMBStoreCFL"))->click();
    QCOMPARE(banco_->riquadri,
             QStringList{QStringLiteral("The link is in use\nLeave the mode first")});
    QVERIFY(banco_->simulato.Comandi().empty() && banco_->posto->porta.Aperta());
}

void Tabelle::LibreriaDueVolte() {
    banco_->Voce("MNUInstallLimits")->trigger();
    banco_->Voce("MNUInstallLimits")->trigger();
    QCOMPARE(banco_->riquadri.size(), 2);
    QVERIFY(banco_->riquadri[0].startsWith(QStringLiteral("Copied:")));
    QVERIFY(banco_->riquadri[1].startsWith(QStringLiteral("Already there, left alone:")));
    QVERIFY(!banco_->riquadri[1].contains(QStringLiteral("Copied")));
}

QTEST_MAIN(Tabelle)
#include "tabelle.moc"
