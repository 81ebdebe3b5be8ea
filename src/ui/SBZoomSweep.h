// `SBZoomSweep`: the scroll bar that moves the zoom window along the frequency axis.
#pragma once

#include <QScrollBar>

#include "graph/Zoom.h"

namespace orvane {

class SBZoomSweep : public QScrollBar {
    Q_OBJECT
public:
    explicit SBZoomSweep(QWidget* padre);

    /// The thumb becomes the window; tells nobody.
    void Segui(const ZoomSweep& zoom);
};

} // namespace orvane
