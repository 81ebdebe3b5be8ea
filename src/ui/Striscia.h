// `FRMErrore`: the blinking error banner over the top of the picture, with the way out.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace orvane {

class Striscia : public QFrame {
    Q_OBJECT
public:
    explicit Striscia(QWidget* padre);

    void Mostra(const QString& testo);
    void Nascondi();
    /// The two documented colours, in front and behind, or exchanged.
    void Colora(bool scambiata);

Q_SIGNALS:
    void Abbandona(); ///< `CMBAbort`
    void Lampo();     ///< `TimerError`

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    QColor fondo_;
    QLabel* testo_;
    QPushButton* abbandona_;
    QTimer lampo_;
};

} // namespace orvane
