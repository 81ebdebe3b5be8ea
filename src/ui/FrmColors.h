// `FrmColors`: the colours of grid, labels, traces and marks, tried out while they are chosen.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <QDialog>
#include <QRadioButton>
#include <QTableWidget>

#include "data/CaricaSalva.h"
#include "data/Scrivania.h"
#include "records/NomiColori.h"
#include "ui/AnteprimaGrafico.h"
#include "ui/EditorColore.h"

namespace orvane {

/// Asks for a colour set to load, or to save to; empty where the user turned back.
using ScegliColori = std::function<std::optional<std::string>(bool salva)>;

class FrmColors : public QDialog {
    Q_OBJECT
public:
    FrmColors(Scrivania& scrivania, ScegliColori scegli, QWidget* padre);

    void accept() override;
    /// Cancel, Escape and the closed window alike: the whole environment is put back, since a
    /// loaded set changes all of it.
    void reject() override;

Q_SIGNALS:
    /// The record holds other values, at once.
    void Cambiato();

private:
    QWidget* CreaTabella();
    QWidget* CreaLato();
    QLayout* CreaPulsanti();
    void RiempiTabella();
    void MostraCella();
    /// The entry of a cell; empty for headings, and for what has no print colour.
    std::optional<size_t> Entrata(const QTableWidgetItem* cella) const;
    void Imposta(int32_t colore);
    void Carica();
    void Salva();
    void Ridipingi();

    Scrivania& scrivania_;
    EnvRecord prima_;
    ScegliColori scegli_;
    QTableWidget* tabella_ = nullptr;
    EditorColore* editor_ = nullptr;
    AnteprimaGrafico* anteprima_ = nullptr;
    QLabel* titolo_ = nullptr;
    QRadioButton* schermo_ = nullptr;
    QRadioButton* stampa_ = nullptr;
};

} // namespace orvane
