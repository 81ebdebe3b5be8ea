// Pieces that the groups of the settings column are made of, and what they share.
#pragma once

#include <functional>
#include <span>

#include <QCheckBox>
#include <QComboBox>
#include <QVBoxLayout>

#include "data/Scrivania.h"
#include "link/RegoleComuni.h"

namespace orvane {

/// Where the groups write, and whom they tell: the column saves the panel and shows what follows.
struct ScritturaComuni {
    Scrivania& scrivania;
    std::function<void(ParComune)> scritto;
};

/// A group with its heading; its rows go into the layout.
class GruppoColonna : public QWidget {
    Q_OBJECT
public:
    GruppoColonna(const QString& nome, const QString& titolo, QWidget* padre);

protected:
    /// A caption with its control, halves of the column.
    void AggiungiRiga(const QString& didascalia, QWidget* controllo);
    /// A control in the caption's place too, such as a box that switches the other.
    void AggiungiRiga(QWidget* didascalia, QWidget* controllo);
    QCheckBox* AggiungiCasella(const char* nome, const QString& testo, const QString& aiuto);
    QComboBox* AggiungiLista(const char* nome, const QString& testo, const QString& aiuto);
    /// A list that stands in no row yet.
    QComboBox* CreaLista(const QString& nome, const QString& accessibile, const QString& aiuto);

private:
    QVBoxLayout* colonna_;
};

/// Enables a control with its row; the tool tip tells why not, or what it is for again.
void ApplicaStato(QWidget* controllo, const StatoControllo& stato);
/// Shows or hides a control with its row.
void MostraRiga(QWidget* controllo, bool si);
/// Fills a list anew where it has changed, and selects a row.
void RiempiLista(QComboBox& lista, const QStringList& voci, size_t riga);
QString TestoDb(int dB);

} // namespace orvane
