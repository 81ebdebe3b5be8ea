#include "ui/SBZoomSweep.h"

#include <algorithm>

#include <QSignalBlocker>

namespace orvane {
namespace {

/// An arrow key or button moves the window by this part of its width.
constexpr int kParteFreccia = 10;

} // namespace

SBZoomSweep::SBZoomSweep(QWidget* padre) : QScrollBar(Qt::Horizontal, padre) {
    setObjectName(QStringLiteral("SBZoomSweep"));
    setAccessibleName(tr("Zoom window"));
    setToolTip(tr("Moves the zoom window along the frequency axis"));
    setFocusPolicy(Qt::StrongFocus);
    hide();
}

void SBZoomSweep::Segui(const ZoomSweep& zoom) {
    const QSignalBlocker zitta(this);
    const ZoomSweep::Barra stato = zoom.StatoBarra();
    setRange(0, std::max(0, kPassiBarraZoom - stato.larghezza));
    setPageStep(std::max(1, stato.larghezza));
    setSingleStep(std::max(1, stato.larghezza / kParteFreccia));
    setValue(stato.posto);
}

} // namespace orvane
