#include "ui/PezziColonna.h"

#include "link/ElencoAtt.h"
#include "ui/Moduli.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

// A widget that is a row, and the tool tip of a control that is enabled.
constexpr const char* kRiga = "riga";
constexpr const char* kAiuto = "aiuto";

QWidget* RigaDi(QWidget* controllo) {
    QWidget* padre = controllo->parentWidget();
    return padre && padre->property(kRiga).toBool() ? padre : controllo;
}

} // namespace

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
    AggiungiRiga(etichetta, controllo);
}

void GruppoColonna::AggiungiRiga(QWidget* didascalia, QWidget* controllo) {
    auto* pezzo = new QWidget(this);
    pezzo->setProperty(kRiga, true);
    auto* riga = new QHBoxLayout(pezzo);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->addWidget(didascalia, 9);
    riga->addWidget(controllo, 11);
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

QComboBox* GruppoColonna::CreaLista(const QString& nome, const QString& accessibile,
                                    const QString& aiuto) {
    auto* lista = Nomina(new QComboBox(this), nome, accessibile, aiuto);
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
