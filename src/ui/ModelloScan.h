// The scan table as rows and columns: what the cells show, and which of them a check refused.
#pragma once

#include <array>

#include <QAbstractTableModel>

#include "records/ScanRecord.h"
#include "setup/TabellaScan.h"

namespace orvane {

/// The one ancillary that this release drives: none.
inline constexpr int kAncillaryKind = 0;

class ModelloScan : public QAbstractTableModel {
    Q_OBJECT
public:
    /// `modificabile`: shows one row more than there are lines, and takes edits.
    ModelloScan(ScanTable& tabella, bool modificabile, QObject* padre);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int ruolo) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;
    /// Texts for Start, Stop and Hold Time; the entry's number for the lists.
    bool setData(const QModelIndex& indice, const QVariant& valore, int ruolo) override;

    /// The table behind has changed.
    void Aggiorna();
    void EvidenziaErrore(int riga, ColonnaScan colonna, bool errata);
    void ImpostaModificabile(bool si);
    bool Modificabile() const { return modificabile_; }
    ScanTable& Tabella() { return tabella_; }
    const ScanLine& Riga(int i) const { return tabella_[static_cast<size_t>(i)]; }

Q_SIGNALS:
    /// A cell was committed: the panel is to be saved.
    void Modificata();

private:
    bool Errata(const QModelIndex& indice) const;

    ScanTable& tabella_;
    bool modificabile_;
    int righe_ = 0;
    std::array<std::array<bool, static_cast<size_t>(ColonnaScan::NumColonne)>, kMaxScanLine>
        errate_{};
};

/// Entries of the drop-down list of a cell; empty where the cell has none.
QStringList ElencoCella(ColonnaScan colonna);
/// The entry that a line has now.
int SceltaCella(const ScanLine& riga, ColonnaScan colonna);

} // namespace orvane
