// `LSTErrori`: what the checks find in the scan table, a row a finding.
#pragma once

#include <QTreeWidget>

#include "setup/Controlli.h"

namespace orvane {

class ElencoRiscontri : public QTreeWidget {
    Q_OBJECT
public:
    explicit ElencoRiscontri(QWidget* padre);

    /// Hides itself where there is none.
    void Mostra(Segnalazioni riscontri);
    /// As high as its rows need, a few at most.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// A finding was chosen by mouse or key.
    void Scelto(int riga, ColonnaScan colonna);

private:
    void Aggiungi(const Segnalazione& riscontro);
    int RigaAlta() const;
    void Scegli(const QTreeWidgetItem* voce);
};

} // namespace orvane
