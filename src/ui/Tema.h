// The one table of colours of the windows, and how the application takes it on.
#pragma once

#include <QApplication>
#include <QColor>
#include <QPalette>

namespace orvane {

/// What a colour is for. Traces, limits and grid lines are not here: those come from `EnvRecord`.
enum class Ruolo {
    Finestra,
    Campo,      ///< inside of lists, edits and check boxes
    Bordo,      ///< hair lines between panels
    BordoCampo, ///< around edits and buttons
    Testo,
    Tenue, ///< captions, units, what is less important
    Spento,
    Accento,
    SuAccento, ///< text on it
    Scelta,    ///< the current row of a list
    Sorvolo,   ///< under the mouse
    Grafico,   ///< ground of the picture
    Velo,      ///< ground of what lies over the picture
    Stop,
    SuStop,
    Errore, ///< a cell that a check refused
    Bene,
    StrisciaViva, ///< the two colours of the error banner
    StrisciaPallida,
    NumRuoli
};

QColor Tinta(bool scura, Ruolo ruolo);
/// By the lightness of the palette's window: whoever paints asks with what it paints on.
QColor Tinta(const QPalette& tavolozza, Ruolo ruolo);
bool TavolozzaScura(const QPalette& tavolozza);

enum class StileChiesto { Sistema, Chiaro, Scuro };
/// Style, palette and font of the whole application; may be called again, with windows open.
void ApplicaTema(QApplication& applicazione, StileChiesto stile);

/// Makes a label speak in the colour of a role, whichever style is on.
void ImpostaRuoloTesto(QWidget& oggetto, Ruolo ruolo);

} // namespace orvane
