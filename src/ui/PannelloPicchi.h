// "Highest Peaks": the table of the highest peaks of the measure on show.
#pragma once

#include <vector>

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QWidget>

#include "graph/RighePicchi.h"

namespace orvane {

class PannelloPicchi : public QWidget {
    Q_OBJECT
public:
    explicit PannelloPicchi(QWidget* padre);

    /// How many rows, and the buttons: one row, for whoever shows the panel.
    QWidget* Testa() const { return testa_; }
    /// The table anew; the row stays where its sample is still in it.
    void Mostra(TabellaPicchi tabella, bool conMisura);
    void ImpostaQuanti(int quanti);
    int Quanti() const { return quanti_->value(); }
    /// The row of the marker's sample is the current one; none where it is no peak's.
    void Evidenzia(qulonglong indice);
    /// The row of the sample whose symbol the pointer is on, in a tint of its own.
    void ShowPictMouseHP(qulonglong indice);
    /// Text size of the tables, per cent.
    void ScalaTesto(int percento);
    const TabellaPicchi& Tabella() const { return tabella_; }

Q_SIGNALS:
    /// `TBNumOFPeaks`.
    void QuantiCambiati(int quanti);
    /// A row was chosen: the sample of its peak.
    void Scelto(qulonglong indice);
    /// `MNUMakeTabFreq` from the list.
    void ReportChiesto();
    void TabellaFrequenze();

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    QWidget* CreaTesta();
    void Riempi();
    void DisponiColonne();
    int Riga(qulonglong indice) const;
    void Sorvola(int riga);

    TabellaPicchi tabella_;
    QWidget* testa_ = nullptr;
    QLabel* righe_ = nullptr;
    QSpinBox* quanti_ = nullptr;
    QPushButton* tabFreq_ = nullptr;
    QPushButton* report_ = nullptr;
    QTableWidget* griglia_ = nullptr;
    QLabel* vuota_ = nullptr;
    int sorvolata_ = -1; ///< the row under the pointer, here or on the picture
};

} // namespace orvane
