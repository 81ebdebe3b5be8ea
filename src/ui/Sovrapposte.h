// The measures that lie over the one on show, each with a box, and what is compared with them.
#pragma once

#include <vector>

#include <QColor>
#include <QListWidget>

namespace orvane {

class Sovrapposte : public QListWidget {
    Q_OBJECT
public:
    /// What a row stands for.
    enum class Genere { Misura, Riferimento, Differenza };
    struct Voce {
        Genere genere = Genere::Misura;
        QString nome;  ///< of the measure
        QString testo; ///< as it reads
        QColor colore;
        bool accesa = true;
    };
    explicit Sovrapposte(QWidget* padre);
    void Mostra(const std::vector<Voce>& voci);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {60, sizeHint().height()}; }

Q_SIGNALS:
    void Accesa(orvane::Sovrapposte::Genere genere, const QString& nome, bool si);
    /// The user takes it away.
    void Tolta(orvane::Sovrapposte::Genere genere, const QString& nome);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

private:
    void Togli(const QListWidgetItem* voce);
};

} // namespace orvane
