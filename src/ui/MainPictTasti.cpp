// Keys and context menu of the picture: one table for both.
#include <algorithm>
#include <cmath>

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

#include "ui/MainPict.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kPassoLungo = 10;
/// Peaks that the keys walk.
constexpr int kPicchiTasti = 200;

} // namespace

struct MainPict::Comando {
    Qt::Key tasto;
    Qt::KeyboardModifiers con;
    void (*esegui)(MainPict&);
    const char* voce = nullptr; ///< in the context menu; null for keys alone
    bool (*vale)(const MainPict&) = nullptr;
    bool separa = false;
};

std::span<const MainPict::Comando> MainPict::Comandi() {
    using M = MainPict;
    constexpr Qt::KeyboardModifiers kSolo = Qt::NoModifier;
    constexpr auto kMarker = [](const M& m) { return m.contenuto_.marcatori != Marcatori{}; };
    constexpr auto kDue = [](const M& m) {
        return m.contenuto_.marcatori.indice[0] && m.contenuto_.marcatori.indice[1];
    };
    constexpr auto kZoom = [](const M& m) { return m.zoom_.ZoomOn(); };
    constexpr auto kIndietro = [](const M& m) { return m.zoom_.PuoIndietro(); };
    constexpr auto kAvanti = [](const M& m) { return m.zoom_.PuoAvanti(); };
    static const std::array kComandi = {
        Comando{Qt::Key_P, kSolo, [](M& m) { m.VaiAlPicco(VersoPicco::PiuAlto); },
                QT_TR_NOOP("Highest Peak")},
        Comando{Qt::Key_N, kSolo, [](M& m) { m.VaiAlPicco(VersoPicco::Prossimo); },
                QT_TR_NOOP("Next Lower Peak")},
        Comando{Qt::Key_N, Qt::ShiftModifier, [](M& m) { m.VaiAlPicco(VersoPicco::Superiore); },
                QT_TR_NOOP("Next Higher Peak")},
        Comando{Qt::Key_Left, Qt::ControlModifier, [](M& m) { m.VaiAlPicco(VersoPicco::Sinistra); },
                QT_TR_NOOP("Peak to the Left")},
        Comando{Qt::Key_Right, Qt::ControlModifier, [](M& m) { m.VaiAlPicco(VersoPicco::Destra); },
                QT_TR_NOOP("Peak to the Right")},
        Comando{Qt::Key_D, kSolo, [](M& m) { m.CommutaDelta(); }, QT_TR_NOOP("Delta Marker On/Off"),
                kMarker},
        Comando{Qt::Key_Escape, kSolo, [](M& m) { m.TogliMarkerTutti(); },
                QT_TR_NOOP("Remove Markers"), kMarker},
        Comando{Qt::Key_Z, kSolo, [](M& m) { m.OKZoomMK(); },
                QT_TR_NOOP("Zoom Between the Markers"), kDue, true},
        Comando{Qt::Key_Plus, kSolo, [](M& m) { m.ZoomAlMarker(1); }, QT_TR_NOOP("Zoom In")},
        Comando{Qt::Key_Minus, kSolo, [](M& m) { m.ZoomAlMarker(-1); }, QT_TR_NOOP("Zoom Out"),
                kZoom},
        Comando{Qt::Key_Backspace, kSolo, [](M& m) { m.ZoomIndietro(); }, QT_TR_NOOP("Zoom Back"),
                kIndietro},
        Comando{Qt::Key_Right, Qt::AltModifier, [](M& m) { m.ZoomAvanti(); },
                QT_TR_NOOP("Zoom Forward"), kAvanti},
        Comando{Qt::Key_0, kSolo, [](M& m) { m.CancelZoomMK(); }, QT_TR_NOOP("Whole Span"), kZoom},
        Comando{Qt::Key_Left, Qt::AltModifier, [](M& m) { m.ZoomIndietro(); }},
        Comando{Qt::Key_Left, kSolo, [](M& m) { m.MuoviDi(-1); }},
        Comando{Qt::Key_Right, kSolo, [](M& m) { m.MuoviDi(1); }},
        Comando{Qt::Key_Left, Qt::ShiftModifier, [](M& m) { m.MuoviDi(-kPassoLungo); }},
        Comando{Qt::Key_Right, Qt::ShiftModifier, [](M& m) { m.MuoviDi(kPassoLungo); }},
        Comando{Qt::Key_Home, kSolo, [](M& m) { m.TrascinaMarker(m.Griglia().left()); }},
        Comando{Qt::Key_End, kSolo, [](M& m) { m.TrascinaMarker(m.Griglia().right()); }},
    };
    return kComandi;
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

/// First the zoom box that is being drawn.
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

void MainPict::VociMarker(QMenu& menu, size_t indice) {
    const auto metti = [this, indice](size_t quale) {
        attivo_ = quale;
        MuoviMarker(static_cast<int>(quale), indice);
    };
    menu.addAction(tr("Marker Here"), this, [metti] { metti(0); });
    menu.addAction(tr("Delta Marker Here") + QStringLiteral("\tShift+Click"), this,
                   [metti] { metti(1); });
    menu.addSeparator();
}

void MainPict::VociComandi(QMenu& menu) {
    for (const Comando& comando : Comandi()) {
        if (!comando.voce)
            continue;
        if (comando.separa)
            menu.addSeparator();
        const int tasti = static_cast<int>(comando.tasto) | static_cast<int>(comando.con.toInt());
        QAction* voce = menu.addAction(tr(comando.voce) + QLatin1Char('\t') +
                                           QKeySequence(tasti).toString(QKeySequence::NativeText),
                                       this, [this, &comando] { comando.esegui(*this); });
        voce->setEnabled(!comando.vale || comando.vale(*this));
    }
    menu.addSeparator();
}

/// The sample under the pointer, or the marker's where the menu was asked for with a key.
void MainPict::contextMenuEvent(QContextMenuEvent* evento) {
    const bool daMouse = evento->reason() == QContextMenuEvent::Mouse;
    const size_t nessuno = Traccia().size();
    const size_t qui = daMouse && haMisura_
                           ? CampioneA(evento->pos().x()).value_or(nessuno)
                           : contenuto_.marcatori.indice[attivo_].value_or(nessuno);
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("MenuQuadro"));
    if (qui < nessuno && daMouse)
        VociMarker(menu, qui);
    if (haMisura_)
        VociComandi(menu);
    const double mhz = qui < nessuno    ? Traccia()[qui].freqMhz
                       : puntataX_ >= 0 ? XToFreq(scala_, puntataX_)
                                        : 0;
    const QString testo =
        qui < nessuno ? FrequenzaCampione(contenuto_.misura, qui) : TestoFrequenza(mhz);
    if (mhz > 0)
        menu.addAction(QStringLiteral("Tune Manual @") + testo, this,
                       [this, mhz] { Q_EMIT SintonizzaManuale(mhz); });
    if (!menu.isEmpty())
        menu.exec(evento->globalPos());
}

} // namespace orvane
