// `FrmAspect`: style, sizes and lines of the console, tried out while they are chosen.
#pragma once

#include <vector>

#include <QDialog>
#include <QFormLayout>
#include <QLabel>

#include "data/Scrivania.h"
#include "records/Aspetto.h"
#include "ui/AnteprimaGrafico.h"

namespace orvane {

struct RigaAspetto;

class FrmAspect : public QDialog {
    Q_OBJECT
public:
    /// `stileFisso`: the style that the program was started with in place of the chosen one; empty
    /// for none.
    FrmAspect(Scrivania& scrivania, const QString& stileFisso, QWidget* padre);

    void accept() override;
    /// Cancel, Escape and the closed window alike.
    void reject() override;

Q_SIGNALS:
    /// The record holds other values, at once.
    void Cambiato();

private:
    struct Controllo {
        const RigaAspetto* riga;
        QWidget* oggetto;
        QLabel* valore; ///< beside a slider
    };
    QWidget* CreaModulo(const QString& stileFisso);
    void AggiungiRiga(QFormLayout& modulo, const RigaAspetto& riga);
    QWidget* CreaLista(const RigaAspetto& riga);
    QWidget* CreaCursore(const RigaAspetto& riga, QLabel* valore);
    void Imposta(int Aspetto::*campo, int valore);
    void Applica();
    void MostraValori();
    void RimettiPosto();

    Scrivania& scrivania_;
    EnvRecord prima_;
    Aspetto aspetto_;
    std::vector<Controllo> controlli_;
    AnteprimaGrafico* anteprima_;
};

} // namespace orvane
