// `SSTabComuni`: the column of settings at the right of the picture.
#pragma once

#include <functional>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>

#include "data/Scrivania.h"

class QVBoxLayout;

namespace orvane {

class ColonnaComuni : public QScrollArea {
    Q_OBJECT
public:
    ColonnaComuni(Scrivania& scrivania, QWidget* padre);

    /// Shows the record as it is.
    void Carica();
    /// While a run is on, what the receiver was told stays as it is.
    void Abilita(bool si);

Q_SIGNALS:
    /// The scale of the picture is another one.
    void ScalaCambiata();

private:
    void CreaFrontEnd(QVBoxLayout& colonna);
    void CreaLivello(QVBoxLayout& colonna);
    void CreaTabelle(QVBoxLayout& colonna);
    void CreaGeneratore(QVBoxLayout& colonna);
    void RiempiRiferimento();
    void ScriviLivelloTG();
    void SalvaERidisegna();

    Scrivania& scrivania_;
    QWidget* interno_;
    QComboBox* attenuatore_ = nullptr;
    QComboBox* unita_ = nullptr;
    QComboBox* riferimento_ = nullptr;
    QComboBox* dinamica_ = nullptr;
    QCheckBox* tracking_ = nullptr;
    QLineEdit* livelloTG_ = nullptr;
};

} // namespace orvane
