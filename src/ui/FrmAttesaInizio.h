// The small window over the picture while a run waits for its start: bar, words and a way out.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace orvane {

class FrmAttesaInizio : public QFrame {
    Q_OBJECT
public:
    /// `nome`: of the frame; its bar is `PBTimerSweep` or `PBTriggerSweep`.
    FrmAttesaInizio(const QString& nome, const QString& nomeBarra, const QString& titolo,
                    QWidget* padre);

    /// `fatto` of `totale`; without a total the bar only moves.
    void Mostra(const QString& testo, int fatto = 0, int totale = 0);

Q_SIGNALS:
    void Ferma();

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    QLabel* testo_;
    QProgressBar* barra_;
    QPushButton* ferma_;
};

} // namespace orvane
