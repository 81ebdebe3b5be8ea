// The picture of a measure out of the window: file, clipboard, and a file that cannot be written.
#include <fstream>

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>

#include "Banco.h"
#include "graph/BloccoImpostazioni.h"
#include "ui/SalvaImmagine.h"
#include "ui/Testi.h"

using namespace orvane;
using namespace orvane::prova;

class ImmagineUi : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void DialogoScriveERicorda();
    void GuastoSiDice();
    void AppuntiPortanoLImmagine();

private:
    /// The saving dialog answers with this name.
    static void Scegli(const QString& file) {
        QTimer::singleShot(0, qApp, [file] {
            auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialogo);
            dialogo->selectFile(file);
            dialogo->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        });
    }
};

void ImmagineUi::DialogoScriveERicorda() {
    Banco banco;
    Scrivania& s = banco.posto->scrivania;
    ContenutoQuadro quadro{.intero = {1, 5}};
    quadro.misura.nome = "M";
    const ImmagineMisura immagine{quadro, s.setup, quadro.intero, {"a line"}};
    const QString file = Q(banco.cartella.Percorso().string()) + "/Picture.jpg";
    Scegli(file);
    QVERIFY(SalvaImmagine(&banco.posto->finestra, s, immagine));
    QCOMPARE(QImage(file, "JPG").size(), QSize(1600, 900));
    Scrivania riletta{.ambiente = banco.ambiente, .albero = s.albero};
    QVERIFY(CaricaPathPTH(riletta));
    QCOMPARE(Q(riletta.path.Percorsi[3]), file);
}

void ImmagineUi::GuastoSiDice() {
    Banco banco;
    Scrivania& s = banco.posto->scrivania;
    const ContenutoQuadro quadro;
    const ImmagineMisura immagine{quadro, s.setup, {}, {}};
    const auto prima = banco.riquadri.size();
    QVERIFY(!ScriviImmagine(s, immagine, banco.cartella.Percorso() / "none" / "a.png"));
    QCOMPARE(banco.riquadri.size(), prima + 1);
}

void ImmagineUi::AppuntiPortanoLImmagine() {
    Banco banco;
    Scrivania& s = banco.posto->scrivania;
    const ContenutoQuadro quadro;
    CopiaImmagine(s, {quadro, s.setup, {}, {}});
    QCOMPARE(QApplication::clipboard()->image().size(), QSize(1600, 900));
}

QTEST_MAIN(ImmagineUi)
#include "immagine.moc"
