// The traces of a run on the picture, pass by pass: the one under way in its full colours, the
// others in quieter shades.
#pragma once

#include <vector>

#include <QColor>
#include <QString>

#include "ui/DepositoTracce.h"

namespace orvane {

class TraccePassate {
public:
    struct Strato {
        DepositoTracce deposito;
        QString nome; ///< "L1", "V"; empty where there are no passes
    };

    /// One pass without a name, empty, on this axis in MHz.
    void Inizia(double startMhz, double stopMhz);
    /// What is added from here on belongs to this pass, from 0, whichever line it is of.
    void Scegli(int passata, const QString& nome);
    void ImpostaLarghezza(int colonne);

    DepositoTracce& Corrente() { return strati_[corrente_].deposito; }
    const DepositoTracce& Corrente() const { return strati_[corrente_].deposito; }
    bool Vuoto() const;
    /// In the order in which they are drawn: the current one last, over the others.
    std::vector<const Strato*> DaDisegnare() const;
    /// In the order of the passes, without those that show nothing.
    std::vector<const Strato*> Visibili() const;
    /// Colour of a pass on this ground: each of the quieter ones has a shade of its own.
    QColor Sfumata(const Strato& strato, const QColor& colore, const QColor& fondo) const;

private:
    size_t Indice(const Strato& strato) const {
        return static_cast<size_t>(&strato - strati_.data());
    }

    std::vector<Strato> strati_ = std::vector<Strato>(1);
    size_t corrente_ = 0;
    int colonne_ = 800;
};

} // namespace orvane
