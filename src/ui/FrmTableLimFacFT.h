// `FrmTableLimFacFT`: the editor of limits, factors and frequency tables.
#pragma once

#include <filesystem>
#include <string>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "console/Console.h"
#include "data/ImportaTesto.h"
#include "data/ModificaTabella.h"
#include "ui/QuadroTabella.h"
#include "ui/TabFreqTable.h"

namespace orvane {

class FrmLoadSave;

class FrmTableLimFacFT : public QDialog {
    Q_OBJECT
public:
    /// `daCaricare`: path of a table to load as soon as the window stands; empty for none.
    FrmTableLimFacFT(Console& console, TableKind kind, std::string daCaricare, QWidget* padre);

    /// The chosen text file of `CMBLoadFromTXTFT`: one step of undo.
    void ImportaFile(const std::filesystem::path& file);
    const ModificaTabella& Modifica() const { return modifica_; }

    /// Exit, Escape and the closed window alike: unsaved rows are asked about.
    void reject() override;

Q_SIGNALS:
    /// A table went to this path: whoever shows it reads it again.
    void Salvata(const QString& percorso);

private:
    QLayout* CreaBarraFile();
    QLayout* CreaIntestazione(); ///< limits and factors only: the others have no title
    void AggiungiUnita(QHBoxLayout& riga);
    QWidget* CreaCentro();
    QLayout* CreaPiede();
    void CreaScorciatoie();
    void CollegaGriglia();

    /// An edit as one step of undo.
    void Applica(ContenutoTabella c);
    ContenutoTabella Copia() const { return modifica_.Contenuto(); }
    void MostraContenuto();
    void MostraQuadro();
    void Messaggio(const QString& testo);
    /// What is still open in a cell or in the title becomes part of the table.
    void Conferma();
    void TornaAllaGriglia();

    void CambiaTitolo();
    void CambiaUnita(int unita);
    void Annulla();
    void Ripristina();
    void RimuoviScelte();
    void SvuotaScelte();
    void CopiaScelte();
    void Incolla();
    void RaccontaImporto(ContenutoTabella c, const EsitoImporto& esito);

    /// True when the user has not cancelled.
    bool Apri(FrmLoadSave& finestra);
    bool LasciaTabella();
    void Carica();
    void CaricaDa(const std::string& percorso);
    bool Salva(bool continua);
    void SalvaTesto() { SalvaCome(tr("Save as Text"), tr("Text files"), QStringLiteral("TXT")); }
    void SalvaPDF() { SalvaCome(tr("Save As PDF"), tr("PDF files"), QStringLiteral("PDF")); }
    void SalvaRTF() { SalvaCome(tr("Save As RTF"), tr("RTF files"), QStringLiteral("RTF")); }
    void SalvaCome(const QString& titolo, const QString& genere, const QString& estensione);
    void ImportaTesto();
    void CaricaNelRicevitore();
    QString NomeTabella() const;

    Console& console_;
    ModificaTabella modifica_;
    std::string percorso_; ///< of the open table; empty for one that is new
    std::string daCaricare_;

    TabFreqTable* griglia_ = nullptr;
    QuadroTabella* quadro_ = nullptr;
    QLineEdit* titolo_ = nullptr; ///< null for frequency tables, whose files have none
    QComboBox* unita_ = nullptr;
    QCheckBox* lineare_ = nullptr; ///< limits only
    QLabel* stato_ = nullptr;
    QPushButton* rimuovi_ = nullptr;
    QPushButton* annulla_ = nullptr;
    QPushButton* ripristina_ = nullptr;
    QTimer timerAutoOpen_;
};

} // namespace orvane
