// The foot of the scan grid: findings, buttons for whole lines, and what a run would take.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "ui/AzioniScan.h"
#include "ui/ElencoRiscontri.h"

namespace orvane {

class PiedeScan : public QWidget {
    Q_OBJECT
public:
    PiedeScan(const AzioniScan& azioni, QWidget* padre);

    ElencoRiscontri& Riscontri() { return *riscontri_; }
    QPushButton& Bande() { return *bande_; }
    /// `riga` may be empty.
    void MostraStima(const QString& tabella, const QString& riga);

protected:
    void resizeEvent(QResizeEvent* evento) override;

private:
    void ScriviRiga();

    ElencoRiscontri* riscontri_;
    QPushButton* bande_;
    QLabel* riga_;
    QLabel* riassunto_;
    QString testoRiga_; ///< whole, also where there is room for a part of it only
};

} // namespace orvane
