// How the controls look: flat, rounded, sharp at any scale, in the colours of `Tema`.
#pragma once

#include <QProxyStyle>

namespace orvane {

/// A dynamic property of a button: "accento" or "stop" fills it with that colour.
inline constexpr const char* kProprietaRuolo = "ruolo";

/// Over Fusion. Holds no colours: each paint asks the palette it was given whether it is dark.
class StileConsole : public QProxyStyle {
public:
    StileConsole();

    void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opzione, QPainter* p,
                       const QWidget* oggetto) const override;
    void drawControl(ControlElement elemento, const QStyleOption* opzione, QPainter* p,
                     const QWidget* oggetto) const override;
    void drawComplexControl(ComplexControl controllo, const QStyleOptionComplex* opzione,
                            QPainter* p, const QWidget* oggetto) const override;
    QRect subControlRect(ComplexControl controllo, const QStyleOptionComplex* opzione,
                         SubControl parte, const QWidget* oggetto) const override;
    QRect subElementRect(SubElement elemento, const QStyleOption* opzione,
                         const QWidget* oggetto) const override;
    QSize sizeFromContents(ContentsType tipo, const QStyleOption* opzione, const QSize& misura,
                           const QWidget* oggetto) const override;
    int pixelMetric(PixelMetric metrica, const QStyleOption* opzione,
                    const QWidget* oggetto) const override;
    int styleHint(StyleHint indizio, const QStyleOption* opzione, const QWidget* oggetto,
                  QStyleHintReturn* dati) const override;
};

} // namespace orvane
