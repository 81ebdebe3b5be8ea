#include "ui/ElencoRiscontri.h"

#include <algorithm>

#include <QHeaderView>

#include "ui/IconeScan.h"
#include "ui/ModelloScan.h"
#include "ui/Moduli.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kRigheMassime = 3;
constexpr int kRuoloRiga = Qt::UserRole;
constexpr int kRuoloColonna = Qt::UserRole + 1;

struct ParolaEsito {
    EsitoControllo esito;
    const char* testo;
    int posto; ///< in the list, the worst first
};
constexpr ParolaEsito kEsiti[] = {{EsitoControllo::Ferma, "stops the run", 0},
                                  {EsitoControllo::Corregge, "is corrected", 2},
                                  {EsitoControllo::Chiede, "asks", 1}};

/// Room beside the text of a column; the first one has the sign too.
constexpr std::pair<int, int> kAria[] = {{0, 40}, {1, 20}, {3, 16}};

QString NomeColonna(ColonnaScan colonna) {
    return Q(TitoloColonna(colonna)).section(QLatin1Char('\n'), 0, 0);
}

/// The columns that a finding names, each once.
QString Colonne(const Segnalazione& riscontro) {
    QStringList nomi;
    for (const CellaErrata& cella : riscontro.celle)
        if (const QString nome = NomeColonna(cella.colonna); !nomi.contains(nome))
            nomi << nome;
    return nomi.join(QStringLiteral(", "));
}

/// The lines that a finding names, each once; all of them where it names none.
QString Righe(const Segnalazione& riscontro) {
    QStringList numeri;
    for (const CellaErrata& cella : riscontro.celle)
        if (const QString numero = QString::number(cella.riga + 1); !numeri.contains(numero))
            numeri << numero;
    if (numeri.isEmpty() && riscontro.riga)
        numeri << QString::number(*riscontro.riga + 1);
    return numeri.isEmpty() ? QObject::tr("all")
                            : QObject::tr("line %1").arg(numeri.join(QStringLiteral(", ")));
}

} // namespace

ElencoRiscontri::ElencoRiscontri(QWidget* padre) : QTreeWidget(padre) {
    Nomina(this, QStringLiteral("LSTErrori"), tr("Findings of the checks"),
           tr("A click goes to the cell"));
    setColumnCount(4);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setFrameShape(QFrame::NoFrame);
    setIconSize({14, 14});
    viewport()->setBackgroundRole(QPalette::Window);
    header()->setStretchLastSection(false);
    for (const int colonna : {0, 1, 3})
        header()->setSectionResizeMode(colonna, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(2, QHeaderView::Stretch);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QTreeWidget::itemClicked, this, &ElencoRiscontri::Scegli);
    connect(this, &QTreeWidget::itemActivated, this, &ElencoRiscontri::Scegli);
    hide();
}

void ElencoRiscontri::Mostra(Segnalazioni riscontri) {
    clear();
    std::stable_sort(riscontri.begin(), riscontri.end(),
                     [](const Segnalazione& a, const Segnalazione& b) {
                         return kEsiti[static_cast<size_t>(a.esito)].posto <
                                kEsiti[static_cast<size_t>(b.esito)].posto;
                     });
    for (const Segnalazione& riscontro : riscontri)
        Aggiungi(riscontro);
    setVisible(topLevelItemCount() > 0);
    updateGeometry();
}

void ElencoRiscontri::Aggiungi(const Segnalazione& riscontro) {
    const QString parole = ParoleRiscontro(riscontro);
    auto* voce =
        new QTreeWidgetItem(this, {Righe(riscontro), Colonne(riscontro), parole,
                                   tr(kEsiti[static_cast<size_t>(riscontro.esito)].testo)});
    voce->setIcon(0, IconaScan(SegnoScan::Avviso));
    for (const auto& [colonna, aria] : kAria)
        voce->setSizeHint(
            colonna,
            QSize(fontMetrics().horizontalAdvance(voce->text(colonna)) + aria, RigaAlta()));
    voce->setForeground(3, palette().placeholderText());
    const bool cella = !riscontro.celle.empty();
    voce->setData(
        0, kRuoloRiga,
        static_cast<int>(cella ? riscontro.celle.front().riga : riscontro.riga.value_or(0)));
    voce->setData(0, kRuoloColonna,
                  static_cast<int>(cella ? riscontro.celle.front().colonna : ColonnaScan::Start));
}

QSize ElencoRiscontri::sizeHint() const {
    return {QTreeWidget::sizeHint().width(),
            RigaAlta() * std::min(topLevelItemCount(), kRigheMassime)};
}

int ElencoRiscontri::RigaAlta() const {
    return fontMetrics().height() + 7;
}

void ElencoRiscontri::Scegli(const QTreeWidgetItem* voce) {
    Q_EMIT Scelto(voce->data(0, kRuoloRiga).toInt(),
                  static_cast<ColonnaScan>(voce->data(0, kRuoloColonna).toInt()));
}

} // namespace orvane
