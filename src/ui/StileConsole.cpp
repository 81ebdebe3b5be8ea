#include "ui/StileConsole.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <QWidget>

#include "ui/Tema.h"

namespace orvane {
namespace {

constexpr double kRaggio = 4;
constexpr int kMargineCampo = 4;

bool Acceso(const QStyleOption& o) {
    return o.state & QStyle::State_Enabled;
}
bool Fuoco(const QStyleOption& o) {
    return o.state & QStyle::State_HasFocus && Acceso(o);
}

void Arrotondato(QPainter& p, const QRectF& dove, const QColor& fondo, const QColor& bordo,
                 double raggio = kRaggio) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(bordo.isValid() ? QPen(bordo, 1) : QPen(Qt::NoPen));
    p.setBrush(fondo);
    p.drawRoundedRect(dove.adjusted(0.5, 0.5, -0.5, -0.5), raggio, raggio);
    p.restore();
}

void Campo(QPainter& p, const QStyleOption& o) {
    const Ruolo bordo = Fuoco(o) ? Ruolo::Accento : Acceso(o) ? Ruolo::BordoCampo : Ruolo::Bordo;
    Arrotondato(p, o.rect, Tinta(o.palette, Acceso(o) ? Ruolo::Campo : Ruolo::Finestra),
                Tinta(o.palette, bordo));
}

/// Fill and border of a button by what it is for.
struct Vestito {
    Ruolo fondo;
    Ruolo bordo;
    Ruolo testo;
};

Vestito VestitoPulsante(const QStyleOption& o, const QWidget* oggetto) {
    const QString ruolo = oggetto ? oggetto->property(kProprietaRuolo).toString() : QString();
    if (!Acceso(o))
        return {Ruolo::Finestra, Ruolo::Bordo, Ruolo::Spento};
    if (ruolo == QLatin1String("accento"))
        return {Ruolo::Accento, Ruolo::Accento, Ruolo::SuAccento};
    if (ruolo == QLatin1String("stop"))
        return {Ruolo::Stop, Ruolo::Stop, Ruolo::SuStop};
    const bool sopra = o.state & QStyle::State_MouseOver;
    return {sopra ? Ruolo::Sorvolo : Ruolo::Campo, Ruolo::BordoCampo, Ruolo::Testo};
}

void Pulsante(QPainter& p, const QStyleOption& o, const QWidget* oggetto) {
    const Vestito vestito = VestitoPulsante(o, oggetto);
    QColor fondo = Tinta(o.palette, vestito.fondo);
    if (o.state & QStyle::State_Sunken)
        fondo = fondo.darker(112);
    const bool anello = Fuoco(o);
    Arrotondato(p, o.rect, fondo, Tinta(o.palette, anello ? Ruolo::Testo : vestito.bordo));
}

void Spunta(QPainter& p, const QRectF& r, const QColor& colore) {
    QPainterPath segno;
    segno.moveTo(r.x() + r.width() * 0.26, r.y() + r.height() * 0.53);
    segno.lineTo(r.x() + r.width() * 0.43, r.y() + r.height() * 0.70);
    segno.lineTo(r.x() + r.width() * 0.74, r.y() + r.height() * 0.33);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(colore, r.width() * 0.13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(segno);
    p.restore();
}

void Casella(QPainter& p, const QStyleOption& o, bool tonda) {
    const QRectF r = o.rect;
    const double raggio = tonda ? r.width() / 2 : 3;
    const bool scelta = o.state & QStyle::State_On;
    const Ruolo pieno = Acceso(o) ? Ruolo::Accento : Ruolo::BordoCampo;
    const Ruolo bordo = Fuoco(o) ? Ruolo::Accento : Acceso(o) ? Ruolo::BordoCampo : Ruolo::Bordo;
    Arrotondato(p, r, Tinta(o.palette, scelta ? pieno : Ruolo::Campo),
                Tinta(o.palette, scelta && !Fuoco(o) ? pieno : bordo), raggio);
    if (scelta && !tonda)
        Spunta(p, r, Tinta(o.palette, Acceso(o) ? Ruolo::SuAccento : Ruolo::Finestra));
    if (scelta && tonda)
        Arrotondato(p, r.adjusted(4, 4, -4, -4), Tinta(o.palette, Ruolo::SuAccento), QColor(), 8);
}

void Freccia(QPainter& p, const QRectF& dove, const QColor& colore) {
    const QPointF c = dove.center();
    QPainterPath segno;
    segno.moveTo(c + QPointF(-4, -2));
    segno.lineTo(c + QPointF(0, 2));
    segno.lineTo(c + QPointF(4, -2));
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(colore, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(segno);
    p.restore();
}

void Linguetta(QPainter& p, const QStyleOption& o) {
    const QRect r = o.rect.adjusted(1, 1, -1, -1);
    const bool scelta = o.state & QStyle::State_Selected;
    if (scelta)
        Arrotondato(p, r, Tinta(o.palette, Ruolo::Accento), QColor(), 5);
    else if (o.state & QStyle::State_MouseOver && Acceso(o))
        Arrotondato(p, r, Tinta(o.palette, Ruolo::Sorvolo), QColor(), 5);
    if (Fuoco(o) && o.state & QStyle::State_KeyboardFocusChange)
        Arrotondato(p, r, QColor(Qt::transparent), Tinta(o.palette, Ruolo::Testo), 5);
}

void TestoLinguetta(QPainter& p, const QStyleOptionTab& o) {
    const bool scelta = o.state & QStyle::State_Selected;
    const Ruolo ruolo = scelta ? Ruolo::SuAccento : Acceso(o) ? Ruolo::Tenue : Ruolo::Spento;
    QFont carattere = p.font();
    carattere.setWeight(scelta ? QFont::DemiBold : QFont::Medium);
    p.save();
    p.setFont(carattere);
    p.setPen(Tinta(o.palette, ruolo));
    p.drawText(o.rect, Qt::AlignCenter | Qt::TextShowMnemonic, o.text);
    p.restore();
}

void Intestazione(QPainter& p, const QStyleOption& o) {
    p.fillRect(o.rect, Tinta(o.palette, Ruolo::Finestra));
    p.fillRect(QRect(o.rect.left(), o.rect.bottom(), o.rect.width(), 1),
               Tinta(o.palette, Ruolo::Bordo));
}

void Avanzamento(QPainter& p, const QStyleOptionProgressBar& o) {
    const double alto = 6;
    const QRectF solco(o.rect.x(), o.rect.center().y() - alto / 2 + 0.5, o.rect.width(), alto);
    Arrotondato(p, solco, Tinta(o.palette, Ruolo::Bordo), QColor(), alto / 2);
    const double quota = double(o.progress - o.minimum) / qMax(1, o.maximum - o.minimum);
    if (quota <= 0)
        return;
    QRectF pieno = solco;
    pieno.setWidth(qMax(alto, solco.width() * qMin(1.0, quota)));
    Arrotondato(p, pieno, Tinta(o.palette, Ruolo::Accento), QColor(), alto / 2);
}

/// Across only: a groove, filled up to a round grip.
void Cursore(QPainter& p, const QStyleOptionSlider& o, const QRectF& presa) {
    constexpr double kAlto = 4;
    const double lato = qMin(presa.width(), presa.height());
    QRectF grana(0, 0, lato, lato);
    grana.moveCenter(presa.center());
    const QRectF solco(o.rect.x(), grana.center().y() - kAlto / 2, o.rect.width(), kAlto);
    Arrotondato(p, solco, Tinta(o.palette, Ruolo::BordoCampo), QColor(), kAlto / 2);
    const QColor colore = Tinta(o.palette, Acceso(o) ? Ruolo::Accento : Ruolo::Spento);
    QRectF pieno = solco;
    pieno.setRight(grana.center().x());
    Arrotondato(p, pieno, colore, QColor(), kAlto / 2);
    Arrotondato(p, grana, colore, Fuoco(o) ? Tinta(o.palette, Ruolo::Testo) : QColor(), lato / 2);
}

} // namespace

StileConsole::StileConsole() : QProxyStyle(QStringLiteral("Fusion")) {}

void StileConsole::drawPrimitive(PrimitiveElement elemento, const QStyleOption* o, QPainter* p,
                                 const QWidget* oggetto) const {
    switch (elemento) {
    case PE_PanelButtonCommand:
    case PE_PanelButtonTool:
        return Pulsante(*p, *o, oggetto);
    case PE_PanelLineEdit:
        if (const auto* cornice = qstyleoption_cast<const QStyleOptionFrame*>(o))
            if (cornice->lineWidth > 0)
                return Campo(*p, *o);
        return;
    case PE_FrameMenu:
    case PE_Frame:
        p->setPen(Tinta(o->palette, Ruolo::BordoCampo));
        p->setBrush(Qt::NoBrush);
        p->drawRect(o->rect.adjusted(0, 0, -1, -1));
        return;
    case PE_FrameLineEdit:
    case PE_FrameFocusRect:
    case PE_FrameStatusBarItem:
    case PE_FrameTabBarBase:
    case PE_IndicatorHeaderArrow:
        return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return Casella(*p, *o, false);
    case PE_IndicatorRadioButton:
        return Casella(*p, *o, true);
    case PE_IndicatorMenuCheckMark:
        return Spunta(*p, o->rect, o->palette.color(QPalette::Text));
    default:
        return QProxyStyle::drawPrimitive(elemento, o, p, oggetto);
    }
}

void StileConsole::drawControl(ControlElement elemento, const QStyleOption* o, QPainter* p,
                               const QWidget* oggetto) const {
    switch (elemento) {
    case CE_TabBarTabShape:
        return Linguetta(*p, *o);
    case CE_TabBarTabLabel:
        if (const auto* linguetta = qstyleoption_cast<const QStyleOptionTab*>(o))
            return TestoLinguetta(*p, *linguetta);
        break;
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
        return Intestazione(*p, *o);
    case CE_Splitter:
        p->fillRect(o->rect, Tinta(o->palette, Ruolo::Bordo));
        return;
    case CE_ProgressBarGroove:
    case CE_ProgressBarLabel:
        return;
    case CE_ProgressBarContents:
        if (const auto* barra = qstyleoption_cast<const QStyleOptionProgressBar*>(o))
            return Avanzamento(*p, *barra);
        break;
    case CE_PushButtonLabel:
        if (const auto* pulsante = qstyleoption_cast<const QStyleOptionButton*>(o)) {
            QStyleOptionButton vestito = *pulsante;
            vestito.palette.setColor(QPalette::ButtonText,
                                     Tinta(o->palette, VestitoPulsante(*o, oggetto).testo));
            return QProxyStyle::drawControl(elemento, &vestito, p, oggetto);
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(elemento, o, p, oggetto);
}

void StileConsole::drawComplexControl(ComplexControl controllo, const QStyleOptionComplex* o,
                                      QPainter* p, const QWidget* oggetto) const {
    if (controllo == CC_ComboBox) {
        const auto* lista = qstyleoption_cast<const QStyleOptionComboBox*>(o);
        if (lista && lista->frame)
            Campo(*p, *o);
        const Ruolo ruolo = Acceso(*o) ? Ruolo::Tenue : Ruolo::Spento;
        return Freccia(*p, subControlRect(controllo, o, SC_ComboBoxArrow, oggetto),
                       Tinta(o->palette, ruolo));
    }
    if (const auto* cursore = qstyleoption_cast<const QStyleOptionSlider*>(o);
        controllo == CC_Slider && cursore && cursore->orientation == Qt::Horizontal)
        return Cursore(*p, *cursore, subControlRect(controllo, o, SC_SliderHandle, oggetto));
    if (controllo == CC_ScrollBar) {
        p->fillRect(o->rect, Tinta(o->palette, Ruolo::Finestra));
        const QRect presa = subControlRect(controllo, o, SC_ScrollBarSlider, oggetto);
        const bool viva = o->state & State_MouseOver;
        return Arrotondato(*p, QRectF(presa).adjusted(2, 2, -2, -2),
                           Tinta(o->palette, Fuoco(*o) ? Ruolo::Accento
                                             : viva    ? Ruolo::Spento
                                                       : Ruolo::BordoCampo),
                           QColor(), 3);
    }
    QProxyStyle::drawComplexControl(controllo, o, p, oggetto);
}

QRect StileConsole::subControlRect(ComplexControl controllo, const QStyleOptionComplex* o,
                                   SubControl parte, const QWidget* oggetto) const {
    const auto* barra = qstyleoption_cast<const QStyleOptionSlider*>(o);
    if (controllo != CC_ScrollBar || !barra)
        return QProxyStyle::subControlRect(controllo, o, parte, oggetto);
    const bool coricata = barra->orientation == Qt::Horizontal;
    const int lungo = coricata ? o->rect.width() : o->rect.height();
    const int corsa = qMax(1, barra->maximum - barra->minimum + barra->pageStep);
    const int presa = qBound(24, int(qint64(lungo) * barra->pageStep / corsa), qMax(24, lungo));
    const int inizio = sliderPositionFromValue(barra->minimum, barra->maximum,
                                               barra->sliderPosition, lungo - presa);
    const auto tratto = [&](int da, int quanto) {
        return coricata ? QRect(o->rect.x() + da, o->rect.y(), quanto, o->rect.height())
                        : QRect(o->rect.x(), o->rect.y() + da, o->rect.width(), quanto);
    };
    switch (parte) {
    case SC_ScrollBarSlider:
        return tratto(inizio, presa);
    case SC_ScrollBarSubPage:
        return tratto(0, inizio);
    case SC_ScrollBarAddPage:
        return tratto(inizio + presa, lungo - inizio - presa);
    case SC_ScrollBarGroove:
        return o->rect;
    default:
        return {};
    }
}

QRect StileConsole::subElementRect(SubElement elemento, const QStyleOption* o,
                                   const QWidget* oggetto) const {
    const QRect dove = QProxyStyle::subElementRect(elemento, o, oggetto);
    const auto* cornice = qstyleoption_cast<const QStyleOptionFrame*>(o);
    // Editors over a cell, and those inside a list, have no frame of their own.
    const bool campo = elemento == SE_LineEditContents && cornice && cornice->lineWidth > 0;
    return campo ? dove.adjusted(kMargineCampo, 0, -kMargineCampo, 0) : dove;
}

QSize StileConsole::sizeFromContents(ContentsType tipo, const QStyleOption* o, const QSize& misura,
                                     const QWidget* oggetto) const {
    QSize esito = QProxyStyle::sizeFromContents(tipo, o, misura, oggetto);
    const int riga = o ? o->fontMetrics.height() : 16;
    switch (tipo) {
    case CT_ComboBox:
    case CT_LineEdit:
        esito.setHeight(riga + 9);
        break;
    case CT_PushButton:
        esito.setHeight(riga + 12);
        esito.rwidth() = qMax(esito.width(), misura.width() + 28);
        break;
    case CT_TabBarTab:
        return {misura.width() + 12, riga + 14};
    case CT_MenuBarItem:
        return {misura.width() + 14, riga + 9};
    case CT_ItemViewItem:
        // Only the lists that drop down: grids and lists of measures set their own rows.
        if (oggetto && oggetto->inherits("QComboBoxListView"))
            esito.setHeight(qMax(esito.height(), riga + 8));
        break;
    case CT_ProgressBar:
        esito.setHeight(10);
        break;
    default:
        break;
    }
    return esito;
}

int StileConsole::pixelMetric(PixelMetric metrica, const QStyleOption* o,
                              const QWidget* oggetto) const {
    switch (metrica) {
    case PM_ScrollBarExtent:
        return 11;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 15;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 8;
    case PM_HeaderMargin:
        return 9;
    case PM_SplitterWidth:
        return 1;
    case PM_MenuBarPanelWidth:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_TabBarTabShiftVertical:
    case PM_TabBarBaseOverlap:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metrica, o, oggetto);
    }
}

int StileConsole::styleHint(StyleHint indizio, const QStyleOption* o, const QWidget* oggetto,
                            QStyleHintReturn* dati) const {
    switch (indizio) {
    case SH_ComboBox_Popup:
    case SH_UnderlineShortcut:
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_ScrollBar_LeftClickAbsolutePosition:
        return 1;
    default:
        return QProxyStyle::styleHint(indizio, o, oggetto, dati);
    }
}

} // namespace orvane
