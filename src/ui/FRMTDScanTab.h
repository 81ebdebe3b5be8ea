// `FRMTDScanTab`: the band picker. It stays open beside the grid, and works on the grid's row.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "base/Ambiente.h"
#include "ui/GridScanTab.h"

namespace orvane {

class FRMTDScanTab : public QDialog {
    Q_OBJECT
public:
    FRMTDScanTab(Ambiente& ambiente, GridScanTab& griglia, QWidget* padre);

    /// The table on the desk, for the question before it is cleared.
    void ImpostaTabella(const std::string& nome) { nomeTabella_ = nome; }
    /// Table, row or run have changed: captions follow.
    void Aggiorna();

Q_SIGNALS:
    /// The table was changed: it is to be saved and shown.
    void Modificata();

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    void CreaBande();
    QPushButton* CreaComando(const char* nome, void (FRMTDScanTab::*cosa)());
    int Banda() const;
    size_t Riga() const;
    void ScriviBanda();
    void Imposta();
    void Inserisci();
    void Togli();
    void Svuota();

    Ambiente& ambiente_;
    GridScanTab& griglia_;
    std::string nomeTabella_;
    QComboBox* bande_;
    QLabel* righe_;
    QPushButton* imposta_;
    QPushButton* inserisci_;
    QPushButton* togli_;
    QPushButton* svuota_;
};

} // namespace orvane
