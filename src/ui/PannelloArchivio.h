// The panel of the Sweeps Archive: the list of measures, and what is known of the chosen one.
#pragma once

#include <QComboBox>
#include <QFileSystemWatcher>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include "console/Archivio.h"
#include "ui/AlberoMisura.h"
#include "ui/ElencoMisure.h"
#include "ui/ModelloArchivio.h"
#include "ui/PannelloVerdetto.h"
#include "ui/RegiaMisura.h"
#include "ui/Sovrapposte.h"

namespace orvane {

/// What the menu of a measure offers.
enum class AzioneMisura { Redo, Cancella, Confronta, Sovrapponi };

class PannelloArchivio : public QWidget {
    Q_OBJECT
public:
    PannelloArchivio(const Scrivania& scrivania, QWidget* padre);

    /// The list anew, in this order; the choice stays. What is told of incomplete runs follows.
    void MostraElenco(const std::vector<std::string>& nomi);
    /// Makes a measure the current one, in silence; false where the list does not show it.
    bool Scegli(const std::string& nome);
    std::string Scelta() const { return scelta_; }
    /// One row on, or back.
    void Passo(int verso);
    /// Tree, detectors, overlays and facts of the measure on show.
    void MostraMisura(const StatoArchivio& archivio, const RegiaMisura& regia);
    /// -1: all.
    int DetectorScelto() const;
    PannelloVerdetto& Verdetto() { return *verdetto_; }

Q_SIGNALS:
    /// The user wants another measure.
    void MisuraScelta(const QString& nome);
    void DetectorCambiato(int detector);
    void NodoScelto(qulonglong nodo);
    void Chiesta(orvane::AzioneMisura azione, const QString& nome);
    void SovrappostaAccesa(orvane::Sovrapposte::Genere genere, const QString& nome, bool si);
    void SovrappostaTolta(orvane::Sovrapposte::Genere genere, const QString& nome);
    /// The disk has changed, or the user asks.
    void RinnovoChiesto();

private:
    void CreaAvviso();
    void CreaElenco();
    QWidget* CreaDettagli();
    void Sorveglia();
    void MostraIncompiute();
    void Accetta();
    void ApriMenu(const QModelIndex& riga, const QPoint& dove);
    void MostraDetector(const StatoArchivio& archivio);
    void MostraSovrapposte(const StatoArchivio& archivio, const RegiaMisura& regia);
    void ScriviDettagli(const MisuraAperta& misura);

    const Scrivania& scrivania_;
    std::string scelta_;
    std::string mostrata_; ///< what the details are of
    QFileSystemWatcher file_;
    QTimer rinnovo_; ///< gathers what happens on disk
    QWidget* avviso_ = nullptr;
    QLabel* testoAvviso_ = nullptr;
    QPushButton* accetta_ = nullptr;
    QLineEdit* cerca_ = nullptr;
    ModelloArchivio* modello_ = nullptr;
    ElencoMisure* lista_ = nullptr;
    QLabel* vuota_ = nullptr;
    AlberoMisura* albero_ = nullptr;
    QComboBox* detector_ = nullptr;
    QLabel* titoloSovrapposte_ = nullptr;
    Sovrapposte* sovrapposte_ = nullptr;
    PannelloVerdetto* verdetto_ = nullptr;
    QLabel* dettagli_ = nullptr;
};

} // namespace orvane
