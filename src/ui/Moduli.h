// Small pieces that several panels are made of: captioned rows, headings, chips.
#pragma once

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace orvane {

/// A heading above a group of controls.
QLabel* CreaTitoletto(const QString& testo, QWidget* padre);
/// A label that is less important than what it stands beside.
QLabel* CreaDidascalia(const QString& testo, QWidget* padre);
QPushButton* CreaPulsante(const QString& nome, const QString& testo, const QString& aiuto,
                          QWidget* padre);
/// Gives a control its documented name, its accessible name and its tool tip.
template <class Oggetto>
Oggetto* Nomina(Oggetto* oggetto, const QString& nome, const QString& accessibile,
                const QString& aiuto = {}) {
    oggetto->setObjectName(nome);
    oggetto->setAccessibleName(accessibile);
    oggetto->setToolTip(aiuto);
    return oggetto;
}
/// A hair line across a panel.
QWidget* CreaFilo(QWidget* padre);

/// A rounded label at the right of the mode tabs; a dot in front of it tells of life.
class Etichetta : public QLabel {
public:
    Etichetta(const QString& nome, const QString& accessibile, QWidget* padre);
    /// An empty text hides it.
    void Mostra(const QString& testo, bool conPunto = false);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    bool punto_ = false;
};

} // namespace orvane
