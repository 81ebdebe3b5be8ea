// The scan table as rows and columns: what the cells show, and which of them a check refused.
#pragma once

#include <array>

#include <QAbstractTableModel>

#include "records/ScanRecord.h"
#include "records/SetupRecord.h"
#include "setup/Controlli.h"
#include "setup/TabellaScan.h"

namespace orvane {

/// Roles of a cell beside Qt's own.
inline constexpr int kRuoloErrata = Qt::UserRole; ///< a run or a finding marks it

class ModelloScan : public QAbstractTableModel {
    Q_OBJECT
public:
    /// `modificabile`: shows one row more than there are lines, and takes edits. The ancillary
    /// that the last column speaks of is the set-up's.
    ModelloScan(ScanTable& tabella, const SetupRecord& setup, bool modificabile, QObject* padre);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int ruolo) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;
    /// Texts for Start, Stop and Hold Time; the entry's number for the lists.
    bool setData(const QModelIndex& indice, const QVariant& valore, int ruolo) override;

    /// The table behind has changed.
    void Aggiorna();
    /// A mark of a run: stays until the next run clears it or the cell is edited.
    void EvidenziaErrore(int riga, ColonnaScan colonna, bool errata);
    /// Drops the marks of the last run: of a cell that was edited, or all of them where lines
    /// moved.
    void DimenticaSegno(int riga, ColonnaScan colonna);
    void DimenticaSegni();
    /// Marks the cells that findings name, in place of those of the findings before.
    void MostraRiscontri(const Segnalazioni& riscontri);
    void ImpostaModificabile(bool si);
    bool Modificabile() const { return modificabile_; }
    ScanTable& Tabella() { return tabella_; }
    const ScanLine& Riga(int i) const { return tabella_[static_cast<size_t>(i)]; }
    int Ancillary() const { return AncillaryDi(setup_); }
    /// Whether the settings window opens over the cell.
    bool ConModulo(const QModelIndex& cella) const;
    /// Whether `TBCella` is what edits the cell.
    static bool InTesto(const QModelIndex& cella);

Q_SIGNALS:
    /// A cell was committed: the panel is to be saved.
    void Modificata();

private:
    struct Segno {
        bool corsa = false; ///< marked by the last run
        QString perche;     ///< what the findings say, a line each
    };

    Segno& Del(size_t riga, ColonnaScan colonna) {
        return segni_[riga][static_cast<size_t>(colonna)];
    }
    const Segno& Del(const QModelIndex& indice) const;
    QString Aiuto(const QModelIndex& indice) const;
    void TuttoCambiato();

    ScanTable& tabella_;
    const SetupRecord& setup_;
    bool modificabile_;
    int righe_ = 0;
    std::array<std::array<Segno, static_cast<size_t>(ColonnaScan::NumColonne)>, kMaxScanLine>
        segni_{};
};

/// The words of a finding in one line.
QString ParoleRiscontro(const Segnalazione& riscontro);
/// Entries of the drop-down list of a cell; empty where the cell has none.
QStringList ElencoCella(ColonnaScan colonna);
/// The entry that a line has now.
int SceltaCella(const ScanLine& riga, ColonnaScan colonna);

} // namespace orvane
