// The open table as rows and columns: one row more than there are points, for the next one.
#pragma once

#include <optional>

#include <QAbstractTableModel>

#include "data/ModificaTabella.h"

namespace orvane {

class ModelloTabella : public QAbstractTableModel {
    Q_OBJECT
public:
    ModelloTabella(ModificaTabella& modifica, QObject* padre);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    /// `Qt::UserRole`: the row lacks its frequency or its level, and would not be saved.
    QVariant data(const QModelIndex& indice, int ruolo) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;
    bool setData(const QModelIndex& indice, const QVariant& valore, int ruolo) override;

    /// The table behind has changed.
    void Aggiorna();
    const ContenutoTabella& Contenuto() const { return modifica_.Contenuto(); }

    /// What the last commit came to, told once: the row's place now, and whether it was taken.
    struct Scritta {
        int riga = 0;
        bool accettata = true;
    };
    std::optional<Scritta> PrendiScritta() { return std::exchange(scritta_, std::nullopt); }
    /// The row that was typed last into the empty one at the end, wherever it stands now; -1 once
    /// something else has been changed.
    int RigaNuova() const { return rigaNuova_; }

Q_SIGNALS:
    /// A cell was committed.
    void Modificata();
    /// The value was none, or the frequency was there already: its box is due.
    void Rifiutata(int esito);

private:
    ModificaTabella& modifica_;
    int righe_ = 0;
    int rigaNuova_ = -1;
    std::optional<Scritta> scritta_;
};

} // namespace orvane
