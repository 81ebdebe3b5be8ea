// One colour by its three parts or as six hexadecimal digits.
#pragma once

#include <array>
#include <cstdint>

#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QWidget>

namespace orvane {

/// A rounded square of one colour, or of two: the one that was and the one that is.
void DisegnaCampione(QPainter& p, const QRectF& dove, int32_t prima, int32_t ora);

class EditorColore : public QWidget {
    Q_OBJECT
public:
    explicit EditorColore(QWidget* padre);

    /// `prima`: the colour to compare with.
    void Mostra(int32_t colore, int32_t prima);

Q_SIGNALS:
    /// The user chose another colour.
    void Scelto(int32_t colore);

private:
    void Scrivi(int32_t colore);
    void LeggiTesto();

    std::array<QSlider*, 3> cursori_{};
    std::array<QLabel*, 3> valori_{};
    QLineEdit* testo_;
    QWidget* campione_;
    int32_t colore_ = 0;
};

} // namespace orvane
