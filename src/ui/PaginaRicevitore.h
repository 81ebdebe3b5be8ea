// The page of the live modes: what the receiver told of itself.
#pragma once

#include <QFormLayout>
#include <QLabel>
#include <QWidget>

#include "link/Identificazione.h"
#include "link/ReceiverModel.h"

namespace orvane {

class PaginaRicevitore : public QWidget {
    Q_OBJECT
public:
    explicit PaginaRicevitore(QWidget* padre);

    void Mostra(Modalita modalita, const ReceiverModel& modello, const std::string& link,
                const std::string& batteria);

private:
    QLabel* titolo_;
    QLabel* nota_;
    QFormLayout* righe_;
};

/// The words of a tab of `SSTabMode`.
QString TestoModalita(Modalita modalita);

} // namespace orvane
