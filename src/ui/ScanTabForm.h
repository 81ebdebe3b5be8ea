// `ScanTabForm`: the settings window of a scan line, with the frames of the column that it opens
// over. It edits a copy; the line gets it when the window closes.
#pragma once

#include <QDialog>

#include "ui/RiquadriScan.h"

namespace orvane {

class ScanTabForm : public QDialog {
    Q_OBJECT
public:
    /// `linea` must stay where it is while the window is open.
    ScanTabForm(Ambiente& ambiente, const AlberoDati& albero, ColonnaScan colonna, int riga,
                int ancillaryKind, ScanLine& linea, QWidget* padre);

    /// Comes up below the cell, or above it where there is no room; `digitato` begins the entry.
    void ApriVicino(const QRect& cella, const QString& digitato);

public Q_SLOTS:
    /// Closes and gives the values to the line; stays open where a rule wants more.
    void accept() override;

protected:
    void showEvent(QShowEvent* evento) override;
    /// The window's own close button is no way to give up.
    void closeEvent(QCloseEvent* evento) override;

private:
    QLayout* CreaPulsanti();
    void Digita(const QString& digitato);
    void Cambiato(const std::optional<Riquadro>& rifiuto);
    void Specchia();
    /// The first control that can be used.
    QWidget* Primo() const;

    Ambiente& ambiente_;
    ScanLine& linea_;
    ModuloScan modulo_;
    PiantaModulo pianta_;
    bool mostrata_ = false;
};

} // namespace orvane
