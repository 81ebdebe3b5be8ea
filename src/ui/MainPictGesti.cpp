// What mouse and keys do on the picture.
#include <algorithm>
#include <cmath>

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
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
constexpr int kPassoLungo = 10;
/// Peaks that the keys walk.
constexpr int kPicchiTasti = 200;
/// Eighths of a degree of one step of the wheel.
constexpr int kScattoRotella = 120;
/// Part of the zoom window by which the wheel moves it.
constexpr double kParteScorri = 0.1;

} // namespace

struct MainPict::Comando {
    Qt::Key tasto;
    Qt::KeyboardModifiers con;
    void (*esegui)(MainPict&);
    const char* voce; ///< in the context menu; null for keys alone
    bool separa = false;
};

std::span<const MainPict::Comando> MainPict::Comandi() {
    using M = MainPict;
    static constexpr Qt::KeyboardModifiers kSolo = Qt::NoModifier;
    static const std::array kComandi = {
        Comando{Qt::Key_P, kSolo, [](M& m) { m.VaiAlPicco(VersoPicco::PiuAlto); },
                QT_TR_NOOP("Highest Peak")},
        Comando{Qt::Key_N, kSolo, [](M& m) { m.VaiAlPicco(VersoPicco::Prossimo); },
                QT_TR_NOOP("Next Lower Peak")},
        Comando{Qt::Key_Left, Qt::ControlModifier, [](M& m) { m.VaiAlPicco(VersoPicco::Sinistra); },
                QT_TR_NOOP("Peak to the Left")},
        Comando{Qt::Key_Right, Qt::ControlModifier, [](M& m) { m.VaiAlPicco(VersoPicco::Destra); },
                QT_TR_NOOP("Peak to the Right")},
        Comando{Qt::Key_D, kSolo, [](M& m) { m.CommutaDelta(); },
                QT_TR_NOOP("Delta Marker On/Off")},
        Comando{Qt::Key_Escape, kSolo, [](M& m) { m.TogliMarkerTutti(); },
                QT_TR_NOOP("Remove Markers")},
        Comando{Qt::Key_Z, kSolo, [](M& m) { m.OKZoomMK(); },
                QT_TR_NOOP("Zoom Between the Markers"), true},
        Comando{Qt::Key_Plus, kSolo, [](M& m) { m.ZoomAlMarker(1); }, QT_TR_NOOP("Zoom In")},
        Comando{Qt::Key_Minus, kSolo, [](M& m) { m.ZoomAlMarker(-1); }, QT_TR_NOOP("Zoom Out")},
        Comando{Qt::Key_Backspace, kSolo, [](M& m) { m.ZoomIndietro(); }, QT_TR_NOOP("Zoom Back")},
        Comando{Qt::Key_Right, Qt::AltModifier, [](M& m) { m.ZoomAvanti(); },
                QT_TR_NOOP("Zoom Forward")},
        Comando{Qt::Key_0, kSolo, [](M& m) { m.CancelZoomMK(); }, QT_TR_NOOP("Whole Span")},
        Comando{Qt::Key_Left, Qt::AltModifier, [](M& m) { m.ZoomIndietro(); }, nullptr},
        Comando{Qt::Key_Left, kSolo, [](M& m) { m.MuoviDi(-1); }, nullptr},
        Comando{Qt::Key_Right, kSolo, [](M& m) { m.MuoviDi(1); }, nullptr},
        Comando{Qt::Key_Left, Qt::ShiftModifier, [](M& m) { m.MuoviDi(-kPassoLungo); }, nullptr},
        Comando{Qt::Key_Right, Qt::ShiftModifier, [](M& m) { m.MuoviDi(kPassoLungo); }, nullptr},
        Comando{Qt::Key_Home, kSolo, [](M& m) { m.TrascinaMarker(m.Griglia().left()); }, nullptr},
        Comando{Qt::Key_End, kSolo, [](M& m) { m.TrascinaMarker(m.Griglia().right()); }, nullptr},
    };
    return kComandi;
}

bool MainPict::event(QEvent* evento) {
    if (evento->type() != QEvent::ToolTip)
        return QWidget::event(evento);
    const auto* aiuto = static_cast<QHelpEvent*>(evento);
    const auto picco = PiccoSotto(aiuto->pos());
    if (picco)
        QToolTip::showText(
            aiuto->globalPos(),
            TestoPicco(Traccia(), picco->detector,
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
        AggiornaLettura();
        return update();
    }
    const auto picco = gesto_ == Gesto::Nessuno ? PiccoSotto(dove) : std::nullopt;
    if (picco.has_value() != sorvolato_.has_value() ||
        (picco && (picco->detector != sorvolato_->detector || picco->quale != sorvolato_->quale))) {
        sorvolato_ = picco;
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
    sorvolato_.reset();
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

void MainPict::keyPressEvent(QKeyEvent* evento) {
    if (!haMisura_)
        return QWidget::keyPressEvent(evento);
    const int tasto = evento->key();
    Qt::KeyboardModifiers con = evento->modifiers() & ~Qt::KeypadModifier;
    // Where + needs Shift it is the same key.
    if (tasto == Qt::Key_Plus || tasto == Qt::Key_Minus)
        con &= ~Qt::ShiftModifier;
    const auto comandi = Comandi();
    const auto comando = std::ranges::find_if(
        comandi, [&](const Comando& c) { return c.tasto == tasto && c.con == con; });
    if (comando == comandi.end())
        return QWidget::keyPressEvent(evento);
    comando->esegui(*this);
}

void MainPict::MuoviDi(int campioni) {
    if (Traccia().empty())
        return;
    const auto qui = contenuto_.marcatori.indice[attivo_];
    const auto ultimo = static_cast<ptrdiff_t>(Traccia().size()) - 1;
    const ptrdiff_t posto = qui ? static_cast<ptrdiff_t>(*qui) + campioni : 0;
    MuoviMarker(static_cast<int>(attivo_),
                static_cast<size_t>(std::clamp<ptrdiff_t>(posto, 0, ultimo)));
}

/// Of the first detector on show.
const std::vector<Picco>& MainPict::PicchiTasti() {
    if (!picchiTasti_) {
        const auto quali = DetectorMisura();
        const auto primo = std::ranges::find(quali, true);
        picchiTasti_.emplace();
        if (primo != quali.end())
            *picchiTasti_ = TrovaPicchi(Traccia(), static_cast<DetectorKind>(primo - quali.begin()),
                                        kPicchiTasti);
    }
    return *picchiTasti_;
}

void MainPict::VaiAlPicco(VersoPicco verso) {
    const size_t qui = contenuto_.marcatori.indice[attivo_].value_or(0);
    if (const auto picco = PiccoDaTastiera(PicchiTasti(), qui, verso))
        MuoviMarker(static_cast<int>(attivo_), *picco);
}

/// The delta marker starts where the marker is, and the keys move it from there.
void MainPict::CommutaDelta() {
    if (contenuto_.marcatori.indice[1])
        return TogliMarker(1);
    if (const auto qui = contenuto_.marcatori.indice[0]) {
        attivo_ = 1;
        MuoviMarker(1, *qui);
    }
}

void MainPict::TogliMarkerTutti() {
    if (gesto_ == Gesto::Riquadro) {
        gesto_ = Gesto::Nessuno;
        return update();
    }
    TogliMarker(1);
    TogliMarker(0);
}

void MainPict::ZoomAlMarker(int scatti) {
    const CampoMhz vista = zoom_.Vista();
    double attorno = std::sqrt(vista.start * vista.stop);
    const auto qui = contenuto_.marcatori.indice[attivo_];
    if (qui && *qui < Traccia().size())
        if (const double mhz = Traccia()[*qui].freqMhz; mhz >= vista.start && mhz <= vista.stop)
            attorno = mhz;
    DopoZoom(zoom_.Rotella(attorno, scatti));
}

void MainPict::contextMenuEvent(QContextMenuEvent* evento) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("MenuQuadro"));
    const bool daMouse = evento->reason() == QContextMenuEvent::Mouse;
    std::optional<size_t> qui = contenuto_.marcatori.indice[attivo_];
    if (daMouse && haMisura_)
        qui = CampioneA(evento->pos().x());
    if (haMisura_ && qui && daMouse) {
        menu.addAction(tr("Marker Here"), this, [this, qui] {
            attivo_ = 0;
            MuoviMarker(0, *qui);
        });
        menu.addAction(tr("Delta Marker Here\tShift+Click"), this, [this, qui] {
            attivo_ = 1;
            MuoviMarker(1, *qui);
        });
        menu.addSeparator();
    }
    for (const Comando& comando : haMisura_ ? Comandi() : std::span<const Comando>{}) {
        if (!comando.voce)
            continue;
        if (comando.separa)
            menu.addSeparator();
        const QString tasti =
            QKeySequence(static_cast<int>(comando.tasto) | static_cast<int>(comando.con.toInt()))
                .toString(QKeySequence::NativeText);
        menu.addAction(tr(comando.voce) + QLatin1Char('\t') + tasti, this,
                       [this, &comando] { comando.esegui(*this); });
    }
    const double mhz = haMisura_ && qui && *qui < Traccia().size() ? Traccia()[*qui].freqMhz
                       : puntataX_ >= 0                            ? XToFreq(scala_, puntataX_)
                                                                   : 0;
    if (mhz > 0) {
        menu.addSeparator();
        const QString testo =
            haMisura_ && qui ? FrequenzaCampione(Traccia(), *qui) : TestoFrequenza(mhz);
        menu.addAction(QStringLiteral("Tune Manual @") + testo, this,
                       [this, mhz] { Q_EMIT SintonizzaManuale(mhz); });
    }
    if (!menu.isEmpty())
        menu.exec(evento->globalPos());
}

} // namespace orvane
