#include "ui/PaginaRicevitore.h"

#include <array>

#include <QVBoxLayout>

#include "base/Numeri.h"
#include "ui/Moduli.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr std::array<const char*, 3> kEstensioni = {"none or 5540", "5570", "5590"};

QString SiNo(bool si) {
    return si ? QStringLiteral("yes") : QStringLiteral("no");
}

QString Estensione(const ReceiverModel& m) {
    if (!m.EstensioneAttiva)
        return QStringLiteral("not in charge");
    const auto unita = static_cast<size_t>(m.UnitaEstensione);
    return unita < kEstensioni.size() ? QLatin1String(kEstensioni[unita]) : QString();
}

QString Gamma(const ReceiverModel& m) {
    if (m.FMinLink < 0 || m.FMaxLink <= 0)
        return {};
    return QStringLiteral("%1 to %2 MHz")
        .arg(Q(TestoDaNumero(m.FMinLink)), Q(TestoDaNumero(m.FMaxLink)));
}

} // namespace

QString TestoModalita(Modalita modalita) {
    constexpr std::array<const char*, 5> kNomi = {"Sweeps Archive", "Sweep", "Analyzer", "Manual",
                                                  "Click"};
    return QLatin1String(kNomi[static_cast<size_t>(modalita)]);
}

PaginaRicevitore::PaginaRicevitore(QWidget* padre)
    : QWidget(padre), titolo_(new QLabel(this)), nota_(CreaDidascalia(QString(), this)),
      righe_(new QFormLayout) {
    setObjectName(QStringLiteral("FRMRicevitore"));
    QFont grande = titolo_->font();
    grande.setPointSizeF(grande.pointSizeF() * 1.7);
    grande.setWeight(QFont::DemiBold);
    titolo_->setFont(grande);
    titolo_->setObjectName(QStringLiteral("LBRicevitore"));
    nota_->setObjectName(QStringLiteral("LBNota"));
    nota_->setWordWrap(true);
    righe_->setHorizontalSpacing(36);
    righe_->setVerticalSpacing(9);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(44, 40, 44, 40);
    colonna->setSpacing(14);
    colonna->addWidget(titolo_);
    colonna->addLayout(righe_);
    colonna->addSpacing(10);
    colonna->addWidget(nota_);
    colonna->addStretch(1);
}

void PaginaRicevitore::Mostra(Modalita modalita, const ReceiverModel& modello,
                              const std::string& link, const std::string& batteria) {
    titolo_->setText(tr("Receiver"));
    const std::array<std::pair<QString, QString>, 9> fatti = {{
        {tr("Model"), Q(NomeModello(modello, false))},
        {tr("Firmware"), Q(modello.FwTesto)},
        {tr("Serial number"), Q(modello.SerialNumber)},
        {tr("Link"), Q(link)},
        {tr("Extension unit"), Estensione(modello)},
        {tr("Range"), Gamma(modello)},
        {tr("Mil filters"), SiNo(modello.ConFiltriMil)},
        {tr("Rms-Avg detector"), SiNo(modello.ConRmsAvg)},
        {tr("Battery"), Q(batteria)},
    }};
    while (righe_->rowCount() > 0)
        righe_->removeRow(0);
    for (const auto& [nome, valore] : fatti) {
        if (valore.isEmpty())
            continue;
        auto* testo = new QLabel(valore, this);
        testo->setTextInteractionFlags(Qt::TextSelectableByMouse);
        testo->setAccessibleName(nome);
        righe_->addRow(CreaDidascalia(nome, this), testo);
    }
    nota_->setText(tr("Connected and identified. Live measurement in the %1 mode is not part of "
                      "this release yet; sweeps run in the Sweep tab.")
                       .arg(TestoModalita(modalita)));
}

} // namespace orvane
