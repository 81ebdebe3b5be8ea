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

    /// The table anew; the row stays where its sample is still in it.
    void Mostra(TabellaPicchi tabella, bool conMisura);
    void ImpostaQuanti(int quanti);
    int Quanti() const { return quanti_->value(); }
    /// `ShowPictMouseHP`, and the marker: the row of this sample; none where it is no peak's.
    void Evidenzia(qulonglong indice);
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

private:
    QWidget* CreaTesta();
    void Riempi();
    void DisponiColonne();

    TabellaPicchi tabella_;
    QLabel* righe_ = nullptr;
    QSpinBox* quanti_ = nullptr;
    QPushButton* tabFreq_ = nullptr;
    QTableWidget* griglia_ = nullptr;
    QLabel* vuota_ = nullptr;
};

} // namespace orvane
