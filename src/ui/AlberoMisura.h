// `TreeViewFileSweep`: the sub-measures of the measure on show.
#pragma once

#include <vector>

#include <QTreeWidget>

#include "console/AlberoSubMisure.h"

namespace orvane {

class AlberoMisura : public QTreeWidget {
    Q_OBJECT
public:
    explicit AlberoMisura(QWidget* padre);
    /// The rows as they are, and the one on show.
    void Mostra(const std::vector<NodoSubMisura>& nodi, size_t scelto);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {60, sizeHint().height()}; }

Q_SIGNALS:
    /// `ClickTreeViewFileSweep`, by mouse or key: a row that is no heading.
    void NodoScelto(qulonglong nodo);
};

} // namespace orvane
