#include "ui/ColonnaComuni.h"

#include <algorithm>
#include <cmath>

#include <QFormLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "base/Numeri.h"
#include "console/CambioUnita.h"
#include "data/Panels.h"
#include "graph/Scala.h"
#include "setup/ComandoSweep.h"
#include "setup/TabellaScan.h"
#include "ui/Moduli.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kUnitaScelte = 7;
constexpr int kMaxAttDb = 55;
constexpr int kPassoAttDb = 5;
constexpr int kMaxRiferimento = 60;
constexpr int kPassoRiferimento = 10;
/// The generator's own range, dBuV.
constexpr double kMinTG = 0;
constexpr double kMaxTG = 90;

/// A control whose rule belongs to a live mode: present, off, and saying so.
struct VoceSpenta {
    const char* nome;
    const char* didascalia;
    const char* testo;
    const char* aiuto;
    bool casella;
};
constexpr const char* kModoVivo = "Needs a live mode; in a sweep each line has its own";
constexpr const char* kDopo = "Not part of this release";
constexpr VoceSpenta kFrontEnd[] = {
    {"CBXBWIF", "BW IF", "By line", kModoVivo, false},
    {"CBXMinAtt", "Min. att.", "By line", kModoVivo, false},
};
constexpr VoceSpenta kCaselle[] = {
    {"OptPresel", "Preselector", "", kModoVivo, true},
    {"OptPreamp", "Preamplifier", "", kModoVivo, true},
    {"OptPulseLim", "Pulse limiter", "", kModoVivo, true},
};
constexpr VoceSpenta kTabelle[] = {
    {"ChkLimit", "Limits", "NONE", kDopo, false},
    {"ChkFact", "Factors", "NONE", kDopo, false},
    {"CBXLisn", "Ancillary", "NONE", kDopo, false},
};

QVBoxLayout* CreaGruppo(QVBoxLayout& colonna, const QString& titolo, QWidget* padre) {
    auto* gruppo = new QVBoxLayout;
    gruppo->setSpacing(7);
    gruppo->addWidget(CreaTitoletto(titolo, padre));
    colonna.addLayout(gruppo);
    return gruppo;
}

/// A caption with its control, halves of the column.
void AggiungiRiga(QVBoxLayout& gruppo, const QString& didascalia, QWidget* controllo,
                  QWidget* padre) {
    auto* riga = new QHBoxLayout;
    auto* etichetta = new QLabel(didascalia, padre);
    etichetta->setBuddy(controllo);
    etichetta->setEnabled(controllo->isEnabled());
    riga->addWidget(etichetta, 9);
    riga->addWidget(controllo, 11);
    gruppo.addLayout(riga);
}

QComboBox* CreaLista(const char* nome, const QString& accessibile, const QString& aiuto,
                     QWidget* padre) {
    auto* lista = Nomina(new QComboBox(padre), QLatin1String(nome), accessibile, aiuto);
    lista->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    lista->setMinimumContentsLength(9);
    return lista;
}

void AggiungiSpenta(QVBoxLayout& gruppo, const VoceSpenta& voce, QWidget* padre) {
    const QString didascalia = QLatin1String(voce.didascalia);
    if (voce.casella) {
        auto* casella = Nomina(new QCheckBox(didascalia, padre), QLatin1String(voce.nome),
                               didascalia, QLatin1String(voce.aiuto));
        casella->setEnabled(false);
        return gruppo.addWidget(casella);
    }
    auto* lista = CreaLista(voce.nome, didascalia, QLatin1String(voce.aiuto), padre);
    lista->addItem(QLatin1String(voce.testo));
    lista->setEnabled(false);
    AggiungiRiga(gruppo, didascalia, lista, padre);
}

/// Selects by data; a value that is not in the list is put in its place.
void Seleziona(QComboBox& lista, int valore, const QString& testo) {
    int qui = lista.findData(valore);
    if (qui < 0) {
        lista.insertItem(0, testo, valore);
        qui = 0;
    }
    lista.setCurrentIndex(qui);
}

} // namespace

ColonnaComuni::ColonnaComuni(Scrivania& scrivania, QWidget* padre)
    : QScrollArea(padre), scrivania_(scrivania), interno_(new QWidget(this)) {
    setObjectName(QStringLiteral("SSTabComuni"));
    setAccessibleName(tr("Settings"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* colonna = new QVBoxLayout(interno_);
    colonna->setContentsMargins(14, 14, 14, 14);
    colonna->setSpacing(16);
    CreaFrontEnd(*colonna);
    CreaLivello(*colonna);
    CreaTabelle(*colonna);
    CreaGeneratore(*colonna);
    colonna->addStretch(1);
    setWidget(interno_);
    viewport()->setBackgroundRole(QPalette::Window);
    interno_->setBackgroundRole(QPalette::Window);
}

void ColonnaComuni::CreaFrontEnd(QVBoxLayout& colonna) {
    auto* gruppo = CreaGruppo(colonna, tr("Front-end"), interno_);
    AggiungiSpenta(*gruppo, kFrontEnd[0], interno_);
    attenuatore_ = CreaLista("CBXAttenuator", tr("Attenuator"),
                             tr("Attenuation in front of the receiver: moves the scale"), interno_);
    for (int dB = 0; dB <= kMaxAttDb; dB += kPassoAttDb)
        attenuatore_->addItem(QStringLiteral("%1 dB").arg(dB), dB);
    AggiungiRiga(*gruppo, tr("Attenuator"), attenuatore_, interno_);
    AggiungiSpenta(*gruppo, kFrontEnd[1], interno_);
    for (const auto& voce : kCaselle)
        AggiungiSpenta(*gruppo, voce, interno_);
    connect(attenuatore_, &QComboBox::activated, this, [this] {
        scrivania_.setup.Attenuator = static_cast<int16_t>(attenuatore_->currentData().toInt());
        SalvaERidisegna();
    });
}

void ColonnaComuni::CreaLivello(QVBoxLayout& colonna) {
    auto* gruppo = CreaGruppo(colonna, tr("Level"), interno_);
    unita_ = CreaLista("CBXUnitaDiMisura", tr("Unit"), tr("Unit of all levels"), interno_);
    riferimento_ =
        CreaLista("CBXRefLevel", tr("Reference"), tr("Level at the top of the picture"), interno_);
    dinamica_ = CreaLista("CBXDinamica", tr("Dynamics"), tr("Vertical range"), interno_);
    for (int i = 0; i < kUnitaScelte; ++i)
        unita_->addItem(Q(TabellaUnitaGrafico()[static_cast<size_t>(i)].testo), i);
    for (size_t i = 0; i < kDinamicaTable.size(); ++i)
        dinamica_->addItem(QStringLiteral("%1 dB").arg(kDinamicaTable[i]), static_cast<int>(i));
    AggiungiRiga(*gruppo, tr("Unit"), unita_, interno_);
    AggiungiRiga(*gruppo, tr("Reference"), riferimento_, interno_);
    AggiungiRiga(*gruppo, tr("Dynamics"), dinamica_, interno_);
    connect(unita_, &QComboBox::activated, this, [this](int unita) {
        CambiaUnita(scrivania_, unita);
        Carica();
        Q_EMIT ScalaCambiata();
    });
    connect(riferimento_, &QComboBox::activated, this, [this] {
        scrivania_.setup.RefLevel = static_cast<int16_t>(riferimento_->currentData().toInt());
        SalvaERidisegna();
    });
    connect(dinamica_, &QComboBox::activated, this, [this](int id) {
        scrivania_.setup.DinamicaId = static_cast<int16_t>(id);
        SalvaERidisegna();
    });
}

void ColonnaComuni::CreaTabelle(QVBoxLayout& colonna) {
    auto* gruppo = CreaGruppo(colonna, tr("Tables"), interno_);
    for (const auto& voce : kTabelle)
        AggiungiSpenta(*gruppo, voce, interno_);
}

void ColonnaComuni::CreaGeneratore(QVBoxLayout& colonna) {
    auto* gruppo = CreaGruppo(colonna, tr("Generator"), interno_);
    AggiungiSpenta(*gruppo, {"OptRFOut", "RF out", "", kModoVivo, true}, interno_);
    tracking_ = Nomina(new QCheckBox(tr("Tracking"), interno_), QStringLiteral("OptTracking"),
                       tr("Tracking generator"),
                       tr("The generator follows the sweep, where the receiver has one"));
    gruppo->addWidget(tracking_);
    livelloTG_ = Nomina(new QLineEdit(interno_), QStringLiteral("TBLevel"), tr("Generator level"),
                        tr("Level of the generator in dBµV; point or comma"));
    AggiungiRiga(*gruppo, tr("Level"), livelloTG_, interno_);
    connect(tracking_, &QCheckBox::toggled, this, [this](bool acceso) {
        scrivania_.setup.TGOn = acceso ? 1 : 0;
        SalvaPanelEAM(scrivania_, kPannelloEAM);
    });
    connect(livelloTG_, &QLineEdit::editingFinished, this, &ColonnaComuni::ScriviLivelloTG);
}

void ColonnaComuni::ScriviLivelloTG() {
    if (const auto livello = LeggiNumero(S(livelloTG_->text()));
        livello && livelloTG_->isModified()) {
        scrivania_.setup.TGLevel = std::clamp(*livello, kMinTG, kMaxTG);
        SalvaPanelEAM(scrivania_, kPannelloEAM);
    }
    Carica();
}

/// Entries tell the level that stands at the top of the picture, not the bare offset.
void ColonnaComuni::RiempiRiferimento() {
    riferimento_->clear();
    SetupRecord prova = scrivania_.setup;
    const auto testo = [&](int riferimento) {
        prova.RefLevel = static_cast<int16_t>(riferimento);
        const ScalaGrafico scala = SetScaleGraph(prova, 0.15, 30, true, 1000, 0);
        return QStringLiteral("%1 %2")
            .arg(std::lround(scala.alto / 100))
            .arg(unita_->currentText());
    };
    for (int dB = kMaxRiferimento; dB >= -kMaxRiferimento; dB -= kPassoRiferimento)
        riferimento_->addItem(testo(dB), dB);
    const int ora = scrivania_.setup.RefLevel;
    Seleziona(*riferimento_, ora, testo(ora));
}

void ColonnaComuni::Carica() {
    const SetupRecord& setup = scrivania_.setup;
    const QSignalBlocker zitto(tracking_);
    const int unita = setup.UnitId == 7 ? 0 : std::clamp<int>(setup.UnitId, 0, kUnitaScelte - 1);
    unita_->setCurrentIndex(unita);
    RiempiRiferimento();
    dinamica_->setCurrentIndex(
        std::clamp<int>(setup.DinamicaId, 0, static_cast<int>(kDinamicaTable.size()) - 1));
    Seleziona(*attenuatore_, setup.Attenuator, QStringLiteral("%1 dB").arg(setup.Attenuator));
    tracking_->setChecked(setup.TGOn != 0);
    livelloTG_->setText(Q(TestoDaNumero(setup.TGLevel)) + QStringLiteral(" dBµV"));
    livelloTG_->setModified(false);
}

void ColonnaComuni::SalvaERidisegna() {
    SalvaPanelEAM(scrivania_, kPannelloEAM);
    Carica();
    Q_EMIT ScalaCambiata();
}

void ColonnaComuni::Abilita(bool si) {
    for (QWidget* controllo : {static_cast<QWidget*>(attenuatore_),
                               static_cast<QWidget*>(tracking_), static_cast<QWidget*>(livelloTG_)})
        controllo->setEnabled(si);
}

} // namespace orvane
