// The picture of a table beside its rows.
#pragma once

#include <optional>

#include <QWidget>

#include "data/ModificaTabella.h"
#include "records/EnvRecord.h"

namespace orvane {

class QuadroTabella : public QWidget {
public:
    QuadroTabella(const EnvRecord& env, QWidget* padre);

    /// `riga` is marked.
    void Mostra(const ContenutoTabella& c, std::optional<size_t> riga = {});
    QSize sizeHint() const override { return {460, 320}; }
    QSize minimumSizeHint() const override { return {200, 140}; }

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    const EnvRecord& env_;
    ContenutoTabella contenuto_;
    std::optional<size_t> riga_;
};

} // namespace orvane
