// `MainPict`: the picture of the console. A grid layer that is kept, traces over it, and a reading
// under the pointer.
#pragma once

#include <array>
#include <span>
#include <vector>

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include "graph/Grafico.h"
#include "graph/Scala.h"
#include "records/EnvRecord.h"
#include "records/SetupRecord.h"
#include "ui/DisegnoQuadro.h"
#include "ui/TraccePassate.h"

namespace orvane {

class MainPict : public QWidget {
    Q_OBJECT
public:
    MainPict(const EnvRecord& env, const SetupRecord& setup, QWidget* padre);

    /// The axis spans these frequencies (MHz); what was drawn is gone. 0 and 0: an empty axis.
    void IniziaTraccia(double startMhz, double stopMhz);
    /// The next samples do not continue those before.
    void InterrompiTraccia() { tracce_.Corrente().Interrompi(); }
    /// The next samples belong to this pass, from 0; the traces of the others grow quieter.
    void ScegliPassata(int passata, const QString& nome);
    void Aggiungi(double freqMhz, const SampleRecord& campione);
    /// Which detectors are drawn.
    void MostraDetector(const std::array<bool, kNumDetector>& quali);
    /// `DrawGrid`: after a change of unit, dynamics, reference, colours or aspect.
    void DrawGrid();
    /// What stands in the middle while there is no trace.
    void ImpostaInvito(const QString& testo);
    /// Of the pass under way.
    const DepositoTracce& Deposito() const { return tracce_.Corrente(); }
    const TraccePassate& Tracce() const { return tracce_; }
    /// Level of the axis at a height of the picture, dB in the display unit.
    double LivelloA(double y) const;

    QSize sizeHint() const override { return {900, 480}; }
    QSize minimumSizeHint() const override { return {360, 180}; }

Q_SIGNALS:
    /// The pointer stands over this frequency (MHz) and level (dB, display unit).
    void Puntata(double mhz, double livello);
    void PuntataPersa();

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void leaveEvent(QEvent* evento) override;

private:
    struct RigaLettura {
        QString testo;
        QColor colore;
    };
    ModoQuadro Modo() const;
    QFont CarattereLettura() const;
    void PreparaScala();
    void DisegnaSfondo();
    void DisegnaTracce(QPainter& p);
    void DisegnaStrato(Superficie& superficie, const TraccePassate::Strato& strato);
    void DisegnaLegenda(QPainter& p);
    QColor ColoreStrato(const TraccePassate::Strato& strato, size_t detector) const;
    std::vector<RigaLettura> Letture(double mhz) const;
    QRectF Griglia() const;
    void DisegnaLettura(QPainter& p);
    void DisegnaInvito(QPainter& p);
    double Rapporto() const { return devicePixelRatioF(); }

    const EnvRecord& env_;
    const SetupRecord& setup_;
    TraccePassate tracce_;
    std::array<bool, kNumDetector> mostrati_{};
    ScalaGrafico scala_;
    RiquadroGriglia griglia_; ///< in device pixels
    QPixmap sfondo_;
    bool sfondoValido_ = false;
    QTimer ridisegno_; ///< gathers the repaints of a run
    QString invito_;
    double puntataX_ = -1; ///< device pixels from the left of the grid; -1 without a pointer
};

} // namespace orvane
