// What the report windows share: the grid and its filling, margin and detectors, and the ways out
// to a file.
#pragma once

#include <functional>
#include <span>

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include "report/GrigliaReport.h"
#include "report/SalvaReport.h"
#include "report/ScelteReport.h"
#include "ui/GrigliaReportQt.h"

namespace orvane {

/// A group of options that chooses one of the report's detectors.
struct GruppoDetector {
    const char* riquadro; ///< object name of the group
    const char* opzione;  ///< and of its options, an index of `DetectorKind` behind it
    const char* titolo;
    RuoloDetector ruolo;
};

/// Asks for the path of a frequency table, with the title "Save Frequency Table As".
using ChiediTabella = std::function<std::optional<std::string>()>;

class FinestraReport : public QDialog {
    Q_OBJECT
public:
    /// Of the measure as it is now on show, with the limits, factors and unit that are set now.
    FinestraReport(Scrivania& scrivania, const MisuraAperta& misura, TipoReport tipo,
                   std::span<const GruppoDetector> gruppi, ChiediTabella chiediTabella,
                   QWidget* padre);

    /// During the filling it is cancelled first, and the window goes when it has ended.
    void reject() override;

protected:
    void showEvent(QShowEvent* evento) override;

private:
    QWidget* CreaColonna(std::span<const GruppoDetector> gruppi);
    QWidget* CreaGruppo(const GruppoDetector& gruppo);
    QWidget* CreaMargine();
    QWidget* CreaDocumento();
    QWidget* CreaCsv();
    QCheckBox* CreaScelta(const char* nome, const QString& testo, const QString& aiuto, size_t voce,
                          bool acceso, int16_t siVale);
    QPushButton* CreaUscita(const char* nome, const QString& testo, const QString& aiuto,
                            std::function<void()> cosa);
    QLayout* CreaSalvataggi();
    QLayout* CreaPiede();

    void Compila();
    void MostraCompilazione(bool si);
    void AdattaFinestraReport();
    void CambiaMargine();
    void SegnaMargine(const QString& testo);
    void Esci();
    void Salva(FormatoReport formato);
    void SalvaFreqTab();
    void Anteprima();
    ReportPronto Pronto() const { return {griglia_, model_, fonte_}; }

    Scrivania& scrivania_;
    MisuraAperta misura_;
    SetupRecord setup_;
    FonteReport fonte_;
    ReportModel model_;
    GrigliaReport griglia_;
    ChiediTabella chiediTabella_;
    bool attivata_ = false; ///< the first filling has begun

    QWidget* colonna_ = nullptr; ///< everything that is set
    GrigliaReportQt* GridReport_ = nullptr;
    QProgressBar* PBReport_ = nullptr;
    QLineEdit* TBMargin_ = nullptr;
    QLabel* sospeso_ = nullptr; ///< a margin was typed and not entered
    QLabel* nota_ = nullptr;
    std::vector<QPushButton*> salva_; ///< with the preview: off for a table cut short
    QPushButton* CMBContinue_ = nullptr;
    QPushButton* CMBExit_ = nullptr;
};

} // namespace orvane
