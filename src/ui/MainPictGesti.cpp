// What the mouse does on the picture, and what the picture says to it.
#include <algorithm>
#include <cmath>

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

#include "ui/MainPict.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// A marker is taken hold of from this far, logical pixels.
constexpr double kPresaMarker = 5;
constexpr double kPresaPicco = 9;
/// Eighths of a degree of one step of the wheel.
constexpr int kScattoRotella = 120;
/// Part of the zoom window by which the wheel moves it.
constexpr double kParteScorri = 0.1;

} // namespace

bool MainPict::event(QEvent* evento) {
    if (evento->type() != QEvent::ToolTip)
        return QWidget::event(evento);
    const auto* aiuto = static_cast<QHelpEvent*>(evento);
    const auto picco = PiccoSotto(aiuto->pos());
    if (picco)
        QToolTip::showText(
            aiuto->globalPos(),
            TestoPicco(contenuto_.misura, picco->detector,
                       contenuto_.picchi[static_cast<size_t>(picco->detector)][picco->quale],
                       setup_),
            this);
    else
        QToolTip::hideText();
    return true;
}

void MainPict::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    DrawGrid();
}

void MainPict::changeEvent(QEvent* evento) {
    if (evento->type() == QEvent::PaletteChange || evento->type() == QEvent::FontChange ||
        evento->type() == QEvent::StyleChange)
        DrawGrid();
    QWidget::changeEvent(evento);
}

void MainPict::focusInEvent(QFocusEvent* evento) {
    QWidget::focusInEvent(evento);
    update();
}

void MainPict::focusOutEvent(QFocusEvent* evento) {
    QWidget::focusOutEvent(evento);
    update();
}

std::optional<size_t> MainPict::CampioneA(double x) const {
    return MoveMarker(Traccia(), scala_, x * Rapporto() - griglia_.sinistra);
}

/// -1 where there is none.
int MainPict::MarkerVicino(double x) const {
    for (size_t i = 0; i < contenuto_.marcatori.indice.size(); ++i) {
        const auto indice = contenuto_.marcatori.indice[i];
        if (!indice || *indice >= Traccia().size())
            continue;
        if (const auto qui = PostoX(Traccia()[*indice].freqMhz);
            qui && std::abs(*qui - x) <= kPresaMarker)
            return static_cast<int>(i);
    }
    return -1;
}

std::optional<PiccoTrovato> MainPict::PiccoSotto(QPointF dove) const {
    if (!haMisura_)
        return std::nullopt;
    const double r = Rapporto();
    return TrovaPicco(contenuto_.picchi, scala_, griglia_,
                      {dove.x() * r - griglia_.sinistra, LivelloA(dove.y()) * 100},
                      kPresaPicco * r);
}

void MainPict::ScegliPicco(const PiccoTrovato& trovato) {
    const auto d = static_cast<size_t>(trovato.detector);
    const size_t indice = contenuto_.picchi[d][trovato.quale].indice;
    attivo_ = 0;
    MuoviMarker(0, indice);
    Q_EMIT PiccoScelto(static_cast<int>(d), indice);
}

void MainPict::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() != Qt::LeftButton || !haMisura_)
        return QWidget::mousePressEvent(evento);
    const double x = evento->position().x();
    inizioX_ = oraX_ = std::clamp(x, Griglia().left(), Griglia().right());
    const bool delta = evento->modifiers().testFlag(Qt::ShiftModifier);
    if (const auto picco = PiccoSotto(evento->position()); picco && !delta)
        return ScegliPicco(*picco);
    const int preso = delta ? 1 : MarkerVicino(x);
    gesto_ = preso >= 0 ? Gesto::Marker : Gesto::Clic;
    if (preso >= 0)
        attivo_ = static_cast<size_t>(preso);
    if (delta)
        TrascinaMarker(x);
}

void MainPict::TrascinaMarker(double x) {
    if (const auto indice = haMisura_ ? CampioneA(x) : std::nullopt)
        MuoviMarker(static_cast<int>(attivo_), *indice);
}

void MainPict::mouseMoveEvent(QMouseEvent* evento) {
    const QPointF dove = evento->position();
    const QRectF griglia = Griglia();
    oraX_ = std::clamp(dove.x(), griglia.left(), griglia.right());
    if (gesto_ == Gesto::Clic && std::abs(oraX_ - inizioX_) >= kMinimoZoomPixel) {
        // With `ZoomModeA` a plain drag pulls the marker, and Ctrl draws the box.
        const bool conCtrl = evento->modifiers().testFlag(Qt::ControlModifier);
        gesto_ = conCtrl == (setup_.ZoomModeA != 0) ? Gesto::Riquadro : Gesto::Marker;
        if (gesto_ == Gesto::Marker)
            attivo_ = 0;
    }
    if (gesto_ == Gesto::Marker)
        TrascinaMarker(oraX_);
    if (gesto_ == Gesto::Riquadro)
        update();
    Sorvola(dove);
}

/// Pointer, symbols under it and the shape of the cursor.
void MainPict::Sorvola(QPointF dove) {
    const double x = dove.x() * Rapporto() - griglia_.sinistra;
    if (x < 0 || x > griglia_.larghezza)
        return leaveEvent(nullptr);
    puntataX_ = x;
    Q_EMIT Puntata(XToFreq(scala_, x), LivelloA(dove.y()));
    if (!haMisura_) {
        if (!ridisegno_.isActive())
            ridisegno_.start();
        return;
    }
    const auto picco = gesto_ == Gesto::Nessuno ? PiccoSotto(dove) : std::nullopt;
    if (picco.has_value() != sorvolato_.has_value() ||
        (picco && (picco->detector != sorvolato_->detector || picco->quale != sorvolato_->quale))) {
        sorvolato_ = picco;
        Q_EMIT PiccoSorvolato(
            picco ? contenuto_.picchi[static_cast<size_t>(picco->detector)][picco->quale].indice
                  : kNessunPicco);
        update();
    }
    setCursor(picco                         ? Qt::PointingHandCursor
              : MarkerVicino(dove.x()) >= 0 ? Qt::SizeHorCursor
                                            : Qt::ArrowCursor);
}

void MainPict::mouseReleaseEvent(QMouseEvent* evento) {
    if (evento->button() != Qt::LeftButton)
        return;
    const Gesto gesto = std::exchange(gesto_, Gesto::Nessuno);
    if (gesto == Gesto::Clic) {
        attivo_ = 0;
        TrascinaMarker(inizioX_);
    }
    if (gesto != Gesto::Riquadro)
        return;
    update();
    if (std::abs(oraX_ - inizioX_) >= kMinimoZoomPixel) {
        const auto mhz = [this](double x) {
            return XToFreq(scala_, x * Rapporto() - griglia_.sinistra);
        };
        DopoZoom(zoom_.Ingrandisci(mhz(inizioX_), mhz(oraX_)));
    }
}

void MainPict::leaveEvent(QEvent*) {
    puntataX_ = -1;
    if (std::exchange(sorvolato_, std::nullopt))
        Q_EMIT PiccoSorvolato(kNessunPicco);
    Q_EMIT PuntataPersa();
    if (!haMisura_)
        AggiornaLettura();
    update();
}

void MainPict::wheelEvent(QWheelEvent* evento) {
    if (!rotella_)
        return evento->ignore();
    // With Alt the wheel reports its steps as sideways.
    const QPoint angolo = evento->angleDelta();
    avanzoRotella_ += angolo.y() != 0 ? angolo.y() : angolo.x();
    const int scatti = avanzoRotella_ / kScattoRotella;
    avanzoRotella_ -= scatti * kScattoRotella;
    if (scatti == 0)
        return;
    if (evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) {
        Q_EMIT MisuraSuccessiva(scatti > 0 ? -1 : 1);
        return;
    }
    if (!haMisura_)
        return;
    // With `ZoomModeB` the plain wheel moves the window, and Shift zooms.
    const bool conShift = evento->modifiers().testFlag(Qt::ShiftModifier);
    if (conShift == (setup_.ZoomModeB != 0))
        DopoZoom(zoom_.Rotella(
            XToFreq(scala_, std::clamp(evento->position().x() * Rapporto() - griglia_.sinistra, 0.0,
                                       griglia_.larghezza)),
            scatti));
    else
        ScorriVista(-scatti);
}

void MainPict::ScorriVista(int scatti) {
    const ZoomSweep::Barra barra = zoom_.StatoBarra();
    const int passo = scatti * std::max(1, static_cast<int>(barra.larghezza * kParteScorri));
    DopoZoom(zoom_.Scorri(
        std::clamp(barra.posto + passo, 0, std::max(0, kPassiBarraZoom - barra.larghezza))));
}

} // namespace orvane
