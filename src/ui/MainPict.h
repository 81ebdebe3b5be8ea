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
#include "graph/Quadro.h"
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

    /// A stored measure takes the place of a run's traces. `tieni`: the same measure, changed;
    /// zoom and markers stay. Otherwise the whole is on show, with the markers of `contenuto`, or
    /// else marker 0 at the first sample.
    void MostraQuadro(ContenutoQuadro contenuto, bool tieni);
    /// Back to the traces of a run; there are none yet.
    void LasciaQuadro();
    bool HaMisura() const { return haMisura_; }
    /// Of the measure on show, with the markers where they are.
    const ContenutoQuadro& Quadro() const { return contenuto_; }
    /// The span on show, of a measure or a run.
    CampoMhz CampoMostrato() const;
    /// To a sample of the trace; one that it does not have is ignored.
    void MuoviMarker(int quale, size_t indice);
    void TogliMarker(int quale);
    /// Symbols on the trace; empty lists for none.
    void ImpostaPicchi(PicchiMisura picchi);
    /// Under the traces of a run too.
    void ImpostaLimiti(std::vector<LimiteQuadro> limiti);
    void ImpostaVerdetto(Verdetto verdetto);
    /// Zooms between the two markers.
    void OKZoomMK();
    /// The whole span.
    void CancelZoomMK();
    void ZoomIndietro();
    void ZoomAvanti();
    /// The wheel does nothing over the picture.
    void SpegniRotella() { rotella_ = false; }

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
    void MarkerMosso(int quale, qulonglong indice);
    /// "Tune Manual @" of the context menu.
    void SintonizzaManuale(double mhz);
    void ZoomCambiato();
    /// A symbol was clicked; its marker has moved.
    void PiccoScelto(int detector, qulonglong indice);
    /// `InterceptMousewheelSelMeas`: the next measure of the archive (1) or the one before (-1).
    void MisuraSuccessiva(int verso);

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
    void RiempiTracce();
    void Ingrandisci(CampoMhz vista);
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
    ContenutoQuadro contenuto_;
    CampoMhz vista_; ///< of the measure on show
    bool haMisura_ = false;
    bool rotella_ = true;
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
