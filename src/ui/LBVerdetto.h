// The badges of the verdict over the picture: a limit each, with its worst distance.
#pragma once

#include <QAbstractButton>

#include "graph/Verdetto.h"

namespace orvane {

/// "QP −4.70 dB at 0.195 MHz"; a click is for going there.
class LBVerdetto : public QAbstractButton {
    Q_OBJECT
public:
    /// `frequenza` as it is to be read, with its unit.
    LBVerdetto(const VerdettoLimite& verdetto, const QString& frequenza, QWidget* padre);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    QColor Colore() const;

    Giudizio giudizio_;
};

} // namespace orvane
