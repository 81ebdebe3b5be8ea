// `MainPict`: the picture of the console. A grid that is kept, limits and traces over it as a
// second layer, and on top, painted each time: markers, the zoom box and what lies under the
// pointer.
#pragma once

#include <array>
#include <span>
#include <vector>

#include <QImage>
#include <QTimer>
#include <QWidget>

#include "graph/Grafico.h"
#include "graph/Quadro.h"
#include "graph/Scala.h"
#include "records/EnvRecord.h"
#include "records/SetupRecord.h"
#include "ui/DisegnoQuadro.h"
#include "ui/LettureQuadro.h"
#include "ui/TracceMisura.h"
#include "ui/TraccePassate.h"

class QMenu;

namespace orvane {

/// No sample has this index.
inline constexpr qulonglong kNessunPicco = ~0ULL;

class LBMultiMK;
class LBVerdetto;
class SBZoomSweep;

class MainPict : public QWidget {
    Q_OBJECT
public:
    MainPict(const EnvRecord& env, const SetupRecord& setup, QWidget* padre);

    /// The axis spans these frequencies (MHz); what was drawn is gone, a measure too. 0 and 0: an
    /// empty axis.
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
    /// To a sample of the trace, which the zoom window then shows; one that it does not have is
    /// ignored.
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
    /// Place of a frequency in the picture; empty outside the span on show.
    std::optional<double> PostoX(double mhz) const;

    QSize sizeHint() const override { return {900, 480}; }
    QSize minimumSizeHint() const override { return {360, 180}; }

Q_SIGNALS:
    /// The pointer stands over this frequency (MHz) and level (dB, display unit).
    void Puntata(double mhz, double livello);
    void PuntataPersa();
    void MarkerMosso(int quale, qulonglong indice);
    /// What is read at the marker, in one line; empty without one.
    void LetturaCambiata(const QString& testo);
    /// "Tune Manual @" of the context menu.
    void SintonizzaManuale(double mhz);
    void ZoomCambiato();
    /// A symbol was clicked; its marker has moved.
    void PiccoScelto(int detector, qulonglong indice);
    /// The pointer has come upon a symbol, or has left it: then `kNessunPicco`.
    void PiccoSorvolato(qulonglong indice);
    /// `InterceptMousewheelSelMeas`: the next measure of the archive (1) or the one before (-1).
    void MisuraSuccessiva(int verso);

protected:
    bool event(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void leaveEvent(QEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

private:
    /// What the left button is doing.
    enum class Gesto { Nessuno, Clic, Marker, Riquadro };
    /// A key and entry of the context menu.
    struct Comando;
    static std::span<const Comando> Comandi();

    double Rapporto() const { return devicePixelRatioF(); }
    ModoQuadro Modo() const;
    QFont CarattereLettura() const;
    QSize PuntiQuadro() const;
    QRectF Griglia() const;
    RiquadroGriglia GrigliaLogica() const;
    const SweepTrace& Traccia() const { return *contenuto_.misura.traccia; }
    /// Detectors of the measure that are drawn.
    std::array<bool, kNumDetector> DetectorMisura() const;
    void SvuotaMisura();
    void RipigliaMarker(const Marcatori& prima, const SweepTrace& tracciaPrima);

    void Riscala();
    void DisponiFigli();
    double TracceSotto(const QRectF& parte);
    double AreaSotto(const ColonneTraccia& traccia, const QRectF& parte) const;
    double AltezzaDi(double cent) const;
    void InvalidaTracce();
    void DisegnaSfondo();
    void DisegnaStratoTracce();
    void DisegnaLimiti(Superficie& superficie);
    void ScriviNomiLimiti(Superficie& superficie);
    void DisegnaTracceCorsa(Superficie& superficie);
    void DisegnaTracceMisura(Superficie& superficie);
    void DisegnaSimboli(Superficie& superficie);
    QColor ColoreStrato(const TraccePassate::Strato& strato, size_t detector) const;
    std::vector<VoceLegenda> VociLegenda() const;
    void DisegnaMarker(QPainter& p);
    void DisegnaSorvolo(QPainter& p);
    void DisegnaPuntatore(QPainter& p);
    void DisegnaRiquadroZoom(QPainter& p);
    void DisegnaInvito(QPainter& p);
    void DisegnaFuoco(QPainter& p);
    void ScriviEtichettaZoom(QPainter& p, double x, Qt::Alignment lato);

    void CreaBadge();
    void AggiornaLettura();
    std::vector<RigaLettura> LettureCorsa(double mhz) const;
    void AggiornaColonna(double x);
    void SegnaMarker(size_t quale);
    void PortaInVista(double mhz);
    void DopoZoom(bool cambiato);

    std::optional<size_t> CampioneA(double x) const;
    int MarkerVicino(double x) const;
    std::optional<PiccoTrovato> PiccoSotto(QPointF dove) const;
    void ScegliPicco(const PiccoTrovato& trovato);
    void TrascinaMarker(double x);
    void Sorvola(QPointF dove);
    void MuoviDi(int campioni);
    void VaiAlPicco(VersoPicco verso);
    void CommutaDelta();
    void TogliMarkerTutti();
    void ZoomAlMarker(int scatti);
    void ScorriVista(int scatti);
    const std::vector<Picco>& PicchiTasti();
    void VociMarker(QMenu& menu, size_t indice);
    void VociComandi(QMenu& menu);

    const EnvRecord& env_;
    const SetupRecord& setup_;
    TraccePassate tracce_;
    ContenutoQuadro contenuto_;
    TracceMisura misurate_;
    ZoomSweep zoom_;
    bool haMisura_ = false;
    std::array<bool, kNumDetector> mostrati_{};
    std::optional<std::vector<Picco>> picchiTasti_; ///< those that the keys walk, once asked for

    ScalaGrafico scala_;
    RiquadroGriglia griglia_; ///< in device pixels
    QImage sfondo_;
    QImage strato_; ///< the background with limits and traces
    bool sfondoValido_ = false;
    bool stratoValido_ = false;
    QTimer ridisegno_; ///< gathers the repaints of a run
    QString invito_;

    LBMultiMK* lettura_;
    SBZoomSweep* barra_;
    std::vector<LBVerdetto*> badge_;
    std::vector<QRectF> nomiLimiti_; ///< where the names of the limits stand, as drawn last

    bool rotella_ = true;
    int avanzoRotella_ = 0; ///< eighths of a degree that are no step yet
    double puntataX_ = -1;  ///< device pixels from the left of the grid; -1 without a pointer
    Gesto gesto_ = Gesto::Nessuno;
    double inizioX_ = 0; ///< logical pixels
    double oraX_ = 0;
    size_t attivo_ = 0; ///< the marker that the keys move
    std::optional<PiccoTrovato> sorvolato_;
};

} // namespace orvane
