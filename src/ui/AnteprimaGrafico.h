// A small picture with invented traces, in the colours and the aspect of a record being edited.
#pragma once

#include <QWidget>

#include "graph/Superficie.h"
#include "records/SetupRecord.h"
#include "ui/DisegnoQuadro.h"

namespace orvane {

class AnteprimaGrafico : public QWidget {
    Q_OBJECT
public:
    /// Reads the record at each repaint.
    AnteprimaGrafico(const EnvRecord& env, QWidget* padre);

    /// As on paper, with the print colours.
    void ImpostaStampa(bool stampa);

    QSize sizeHint() const override { return {460, 300}; }
    QSize minimumSizeHint() const override { return {320, 220}; }

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    void DisegnaContenuto(Superficie& superficie, const ModoQuadro& modo, const ScalaGrafico& scala,
                          const RiquadroGriglia& griglia, double altezzaTesto);

    const EnvRecord& env_;
    SetupRecord setup_;
    bool stampa_ = false;
};

} // namespace orvane
