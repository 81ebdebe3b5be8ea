// The measures of the archive as a list: names at once, everything else read when it is looked at.
#pragma once

#include <vector>

#include <QAbstractListModel>
#include <QTimer>

#include "data/Misure.h"

namespace orvane {

class ModelloArchivio : public QAbstractListModel {
    Q_OBJECT
public:
    ModelloArchivio(const Scrivania& scrivania, QObject* padre);

    /// These measures, in this order; what was known of any is forgotten.
    void Elenca(const std::vector<std::string>& nomi);
    /// Shows those whose name, dates or comment hold the text, whatever its case.
    void Filtra(const QString& cercato);
    /// All measures, whatever is searched.
    int Quante() const { return static_cast<int>(voci_.size()); }
    /// Row of a name, whatever its case; -1 where it is not shown.
    int Riga(const std::string& nome) const;
    std::string Nome(int riga) const;

    int rowCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int ruolo) const override;

Q_SIGNALS:
    /// The rows are others than before.
    void Rinnovata();

private:
    struct Voce {
        VoceArchivio dati;
        bool letta = false;
        bool trovata = true;
    };
    const Voce& Letta(size_t quale) const;
    bool Contiene(size_t quale) const;
    void Cerca(int ms);
    void Mostra();

    const Scrivania& scrivania_;
    mutable std::vector<Voce> voci_; ///< a row is read by whoever asks first
    std::vector<size_t> visibili_;
    QString cercato_;
    size_t prossima_ = 0; ///< the first that the search has not looked at
    QTimer ricerca_;
};

} // namespace orvane
