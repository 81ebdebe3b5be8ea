// The status line: frequency and level at the left, the run's progress at the right.
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

#include "sweep/Corsa.h"

namespace orvane {

class RigaStato : public QWidget {
    Q_OBJECT
public:
    explicit RigaStato(QWidget* padre);

    /// `LBFreqTrc`: MHz, and dB in the display unit.
    void MostraFreqLivello(double mhz, double livello, const QString& unita);
    /// What stands in its place while the pointer is elsewhere: the reading at the marker.
    void MostraMarker(const QString& lettura);
    void NascondiFreqLivello() { freq_->setText(marker_); }
    void MostraMessaggio(const QString& testo);
    /// "<line>: " and what its pass goes through.
    void MostraPassata(const QString& etichetta) { etichetta_ = etichetta; }
    void MostraAvanzamento(const Avanzamento& avanzamento);
    /// `CancellaBarMete`.
    void CancellaBarre();

private:
    QString etichetta_;
    QString marker_;
    QLabel* freq_;
    QLabel* messaggio_;
    QLabel* passata_;
    QProgressBar* barra_;
    QLabel* tempo_;
};

} // namespace orvane
