// `FrmLoadSave`: the common window to load, save and delete files of a kind, and to upload a table.
#pragma once

#include <optional>
#include <string>

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "console/Console.h"
#include "data/CaricaSalva.h"
#include "ui/PannelloStore.h"
#include "ui/QuadroTabella.h"

namespace orvane {

class FrmLoadSave : public QDialog {
    Q_OBJECT
public:
    enum class Modo { Carica, Salva };

    FrmLoadSave(Console& console, const RichiestaFile& richiesta, Modo modo, const QString& titolo,
                QWidget* padre);
    /// The upload of a limit or factor; `nome` is proposed.
    FrmLoadSave(Console& console, const ContenutoTabella& tabella, const QString& nome,
                QWidget* padre);

    /// Shows what is in the chosen file, a table of this kind.
    void MostraAnteprime(TableKind kind);
    void ImpostaNome(const QString& nome);
    /// The Save button reads "Continue": the upload goes on behind it.
    void ImpostaContinua();

    /// The chosen path, once the window has closed; empty for a cancel.
    const std::string& Percorso() const { return percorso_; }

    /// `CmdLoad` or `CmdSave`; the window stays after a refusal.
    void accept() override;
    /// An upload under way is stopped, and the window stays.
    void reject() override;

private:
    QWidget* CreaElenco();
    QWidget* CreaAnteprima();
    QLayout* CreaPulsanti();
    void Elenca();
    void ScegliUltimo();
    void Scegli(const QString& nome);
    void SegnaUguale(const QString& nome);
    void Cancella();
    void Anteprima();
    QString Nome() const;

    Console& console_;
    RichiestaFile richiesta_;
    Modo modo_ = Modo::Carica;
    std::string percorso_;
    std::optional<TableKind> kind_;

    QListWidget* lista_ = nullptr;
    QLineEdit* nome_ = nullptr; ///< null when loading
    QPushButton* esegui_ = nullptr;
    QPushButton* cancella_ = nullptr;
    QWidget* anteprima_ = nullptr;
    QLabel* titolo_ = nullptr;
    QLabel* dettagli_ = nullptr;
    QuadroTabella* quadro_ = nullptr;
    PannelloStore* store_ = nullptr;
};

} // namespace orvane
