// `GridReport`: the rows of a report in a table, with the limits' colours over their headings.
#pragma once

#include <array>

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QTableView>

#include "report/GrigliaReport.h"

namespace orvane {

/// Shows a grid that lives elsewhere. Without rows there is one empty one.
class ModelloReport : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// `griglia` stays where it is until the next one is shown; null for none.
    void Mostra(const GrigliaReport* griglia);
    const GrigliaReport* Griglia() const { return griglia_; }

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int ruolo) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

private:
    const GrigliaReport* griglia_ = nullptr;
};

class GrigliaReportQt : public QTableView {
    Q_OBJECT
public:
    explicit GrigliaReportQt(QWidget* padre);

    /// Null: empty, until the next one.
    void Mostra(const GrigliaReport* griglia);
    /// Widths of texts as the heading shows them, 1440 to the inch.
    MisuraTesto Misura() const;
    /// What all columns need, pixels.
    int LarghezzaColonne() const;

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void DisponiColonne();
    void DisponiBarre();
    void Copia() const;

    ModelloReport* modello_;
    std::array<QFrame*, kLimitiReport> LBColorLim_{};
};

} // namespace orvane
