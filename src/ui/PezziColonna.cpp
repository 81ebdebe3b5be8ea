#include "ui/PezziColonna.h"

#include <QStylePainter>

#include "link/ElencoAtt.h"
#include "ui/Moduli.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

// A widget that is a row, and the tool tip of a control that is enabled.
constexpr const char* kRiga = "riga";
constexpr const char* kAiuto = "aiuto";
// Of the column's width.
constexpr int kParti = 20;
constexpr int kPartiDidascalia = 9;
constexpr int kPartiCasella = 4;

QWidget* RigaDi(QWidget* controllo) {
    QWidget* padre = controllo->parentWidget();
    return padre && padre->property(kRiga).toBool() ? padre : controllo;
}

} // namespace

void ListaColonna::Segna(bool manca) {
    manca_ = manca;
    update();
}

void ListaColonna::paintEvent(QPaintEvent*) {
    QStylePainter p(this);
    QStyleOptionComboBox o;
    initStyleOption(&o);
    p.drawComplexControl(QStyle::CC_ComboBox, o);
    const int largo =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &o, QStyle::SC_ComboBoxEditField, this)
            .width();
    o.currentText = fontMetrics().elidedText(o.currentText, Qt::ElideRight, largo - 2);
    if (manca_ && isEnabled())
        for (const auto ruolo : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
            o.palette.setColor(ruolo, Tinta(palette(), Ruolo::Errore));
    p.drawControl(QStyle::CE_ComboBoxLabel, o);
}

GruppoColonna::GruppoColonna(const QString& nome, const QString& titolo, QWidget* padre)
    : QWidget(padre), colonna_(new QVBoxLayout(this)) {
    setObjectName(nome);
    colonna_->setContentsMargins(0, 0, 0, 0);
    colonna_->setSpacing(7);
    colonna_->addWidget(CreaTitoletto(titolo, this));
}

void GruppoColonna::AggiungiRiga(const QString& didascalia, QWidget* controllo) {
    auto* etichetta = new QLabel(didascalia, this);
    etichetta->setBuddy(controllo);
    AggiungiRiga(etichetta, controllo, kPartiDidascalia);
}

void GruppoColonna::AggiungiRiga(QCheckBox* casella, QWidget* controllo) {
    AggiungiRiga(casella, controllo, kPartiCasella);
}

void GruppoColonna::AggiungiRiga(QWidget* sinistra, QWidget* destra, int parti) {
    auto* pezzo = new QWidget(this);
    pezzo->setProperty(kRiga, true);
    auto* riga = new QHBoxLayout(pezzo);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->addWidget(sinistra, parti);
    riga->addWidget(destra, kParti - parti);
    colonna_->addWidget(pezzo);
}

QCheckBox* GruppoColonna::AggiungiCasella(const char* nome, const QString& testo,
                                          const QString& aiuto) {
    auto* casella = Nomina(new QCheckBox(testo, this), QLatin1String(nome), testo, aiuto);
    casella->setProperty(kAiuto, aiuto);
    colonna_->addWidget(casella);
    return casella;
}

QComboBox* GruppoColonna::AggiungiLista(const char* nome, const QString& testo,
                                        const QString& aiuto) {
    QComboBox* lista = CreaLista(QLatin1String(nome), testo, aiuto);
    AggiungiRiga(testo, lista);
    return lista;
}

ListaColonna* GruppoColonna::CreaLista(const QString& nome, const QString& accessibile,
                                       const QString& aiuto) {
    auto* lista = Nomina(new ListaColonna(this), nome, accessibile, aiuto);
    lista->setProperty(kAiuto, aiuto);
    lista->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    lista->setMinimumContentsLength(9);
    return lista;
}

void ApplicaStato(QWidget* controllo, const StatoControllo& stato) {
    RigaDi(controllo)->setEnabled(stato.abilitato);
    const QString aiuto = controllo->property(kAiuto).toString();
    controllo->setToolTip(stato.abilitato ? aiuto : Q(stato.perche));
}

void MostraRiga(QWidget* controllo, bool si) {
    RigaDi(controllo)->setVisible(si);
}

void RiempiLista(QComboBox& lista, const QStringList& voci, size_t riga) {
    QStringList ora;
    for (int i = 0; i < lista.count(); ++i)
        ora << lista.itemText(i);
    if (ora != voci) {
        lista.clear();
        lista.addItems(voci);
    }
    lista.setCurrentIndex(static_cast<int>(riga));
}

QString TestoDb(int dB) {
    return dB == kAttAuto ? QStringLiteral("AUTO") : QStringLiteral("%1 dB").arg(dB);
}

} // namespace orvane
