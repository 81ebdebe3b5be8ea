// The upload part of `FrmLoadSave`: name and position in the receiver, progress, stop.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>

#include "console/Memorizza.h"

namespace orvane {

class PannelloStore : public QWidget, public VistaCaricamento {
    Q_OBJECT
public:
    PannelloStore(Console& console, ContenutoTabella tabella, const QString& nome, QWidget* padre);

    void Avvia();
    void Ferma();
    bool InCorso() const { return inCorso_; }

    void ImpostaAvanzamento(size_t fatti, size_t totale) override;
    void NascondiAvanzamento() override;

Q_SIGNALS:
    void Memorizzata();
    void Chiudi();

private:
    QWidget* CreaModulo(const QString& nome);
    QLayout* CreaPulsanti();
    void MostraFase(bool inCorso);
    QString Parole(EsitoCaricamento esito) const;

    Console& console_;
    ContenutoTabella tabella_;
    bool inCorso_ = false;
    QLineEdit* nome_ = nullptr;
    QComboBox* posizione_ = nullptr;
    QProgressBar* avanzamento_ = nullptr;
    QLabel* esito_ = nullptr;
    QPushButton* avvia_ = nullptr;
    QPushButton* ferma_ = nullptr;
    QPushButton* esci_ = nullptr;
};

} // namespace orvane
