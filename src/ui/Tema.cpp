#include "ui/Tema.h"

#include <array>

#include <QFontDatabase>
#include <QStyleFactory>
#include <QToolTip>
#include <QWidget>

#include "graph/TinteQuadro.h"
#include "ui/StileConsole.h"

namespace orvane {
namespace {

/// Of a label: the role that it speaks in. Of the application: whether the system's look is dark.
constexpr const char* kProprietaTesto = "ruoloTesto";
constexpr const char* kProprietaSistema = "sistemaScuro";

struct VoceTinta {
    Ruolo ruolo;
    QRgb chiara;
    QRgb scura;
};

constexpr QRgb Opaco(int32_t colore) {
    return qRgb(colore & 0xFF, colore >> 8 & 0xFF, colore >> 16 & 0xFF);
}

constexpr std::array<VoceTinta, static_cast<size_t>(Ruolo::NumRuoli)> kTinte = {{
    {Ruolo::Finestra, 0xFFFFFFFF, 0xFF1E252E},
    {Ruolo::Campo, 0xFFF7F9FB, 0xFF141A20},
    {Ruolo::Bordo, 0xFFDDE3EA, 0xFF2C3540},
    {Ruolo::BordoCampo, 0xFFC9D2DC, 0xFF38424F},
    {Ruolo::Testo, Opaco(kScrittaChiara), Opaco(kScrittaScura)},
    {Ruolo::Tenue, 0xFF5B6675, 0xFF98A4B3},
    {Ruolo::Spento, 0xFF9AA5B1, 0xFF626E7C},
    {Ruolo::Accento, 0xFF1F6FEB, 0xFF3B82F6},
    {Ruolo::SuAccento, 0xFFFFFFFF, 0xFFFFFFFF},
    {Ruolo::Scelta, 0xFFE6EFFC, 0xFF24303D},
    {Ruolo::Sorvolo, 0xFFEEF2F7, 0xFF283240},
    {Ruolo::Grafico, Opaco(kFondoChiaro), Opaco(kFondoScuro)},
    {Ruolo::Velo, 0xF0F7F9FB, 0xE61B232B},
    {Ruolo::Stop, 0xFFD92D3A, 0xFFFF5A5F},
    {Ruolo::SuStop, 0xFFFFFFFF, 0xFF2A0A0C},
    {Ruolo::Errore, 0xFFD92D3A, 0xFFFF6B70},
    {Ruolo::Bene, 0xFF1A8F4C, 0xFF22C55E},
    {Ruolo::StrisciaViva, 0xFFFF0000, 0xFFFF0000},
    {Ruolo::StrisciaPallida, 0xFFFFC0C0, 0xFFFFC0C0},
}};

constexpr bool InOrdine() {
    for (size_t i = 0; i < kTinte.size(); ++i)
        if (kTinte[i].ruolo != static_cast<Ruolo>(i))
            return false;
    return true;
}
static_assert(InOrdine());

struct VoceTavolozza {
    QPalette::ColorRole posto;
    Ruolo ruolo;
    Ruolo spento;
};

constexpr std::array<VoceTavolozza, 16> kTavolozza = {{
    {QPalette::Window, Ruolo::Finestra, Ruolo::Finestra},
    {QPalette::WindowText, Ruolo::Testo, Ruolo::Spento},
    {QPalette::Base, Ruolo::Campo, Ruolo::Finestra},
    {QPalette::AlternateBase, Ruolo::Finestra, Ruolo::Finestra},
    {QPalette::Text, Ruolo::Testo, Ruolo::Spento},
    {QPalette::PlaceholderText, Ruolo::Tenue, Ruolo::Spento},
    {QPalette::Button, Ruolo::Finestra, Ruolo::Finestra},
    {QPalette::ButtonText, Ruolo::Testo, Ruolo::Spento},
    {QPalette::BrightText, Ruolo::Errore, Ruolo::Spento},
    {QPalette::Highlight, Ruolo::Accento, Ruolo::Scelta},
    {QPalette::HighlightedText, Ruolo::SuAccento, Ruolo::Spento},
    {QPalette::ToolTipBase, Ruolo::Campo, Ruolo::Campo},
    {QPalette::ToolTipText, Ruolo::Testo, Ruolo::Testo},
    {QPalette::Link, Ruolo::Accento, Ruolo::Spento},
    {QPalette::Mid, Ruolo::Bordo, Ruolo::Bordo},
    {QPalette::Dark, Ruolo::BordoCampo, Ruolo::Bordo},
}};

QPalette Tavolozza(bool scura) {
    QPalette tavolozza(Tinta(scura, Ruolo::Finestra));
    for (const auto& voce : kTavolozza) {
        tavolozza.setColor(voce.posto, Tinta(scura, voce.ruolo));
        tavolozza.setColor(QPalette::Disabled, voce.posto, Tinta(scura, voce.spento));
    }
    return tavolozza;
}

/// Qt 6.4 does not tell the system's colour scheme; the palette that it starts with does.
bool SistemaScuro(QApplication& applicazione) {
    if (!applicazione.property(kProprietaSistema).isValid())
        applicazione.setProperty(kProprietaSistema, TavolozzaScura(applicazione.palette()));
    return applicazione.property(kProprietaSistema).toBool();
}

bool Scuro(QApplication& applicazione, StileChiesto stile) {
    const bool sistema = SistemaScuro(applicazione);
    return stile == StileChiesto::Sistema ? sistema : stile == StileChiesto::Scuro;
}

void RidipingiRuoli() {
    for (QWidget* oggetto : QApplication::allWidgets())
        if (const QVariant ruolo = oggetto->property(kProprietaTesto); ruolo.isValid())
            ImpostaRuoloTesto(*oggetto, static_cast<Ruolo>(ruolo.toInt()));
}

void ImpostaCarattere(QApplication& applicazione) {
    QFont carattere = applicazione.font();
    if (QFontDatabase::families().contains(QStringLiteral("Inter")))
        carattere = QFont(QStringLiteral("Inter"));
    carattere.setPointSizeF(9.75);
    applicazione.setFont(carattere);
}

} // namespace

QColor Tinta(bool scura, Ruolo ruolo) {
    const VoceTinta& voce = kTinte[static_cast<size_t>(ruolo)];
    return QColor::fromRgba(scura ? voce.scura : voce.chiara);
}

QColor Tinta(const QPalette& tavolozza, Ruolo ruolo) {
    return Tinta(TavolozzaScura(tavolozza), ruolo);
}

bool TavolozzaScura(const QPalette& tavolozza) {
    return tavolozza.color(QPalette::Active, QPalette::Window).lightness() < 128;
}

void ApplicaTema(QApplication& applicazione, StileChiesto stile) {
    const bool scuro = Scuro(applicazione, stile);
    if (!dynamic_cast<StileConsole*>(QApplication::style())) {
        applicazione.setStyle(new StileConsole);
        ImpostaCarattere(applicazione);
    }
    applicazione.setPalette(Tavolozza(scuro));
    QToolTip::setPalette(Tavolozza(scuro));
    RidipingiRuoli();
}

void ImpostaRuoloTesto(QWidget& oggetto, Ruolo ruolo) {
    oggetto.setProperty(kProprietaTesto, static_cast<int>(ruolo));
    // The parts that are not the role's stay free to follow the application.
    const QPalette fondo = QApplication::palette();
    QPalette tavolozza;
    tavolozza.setColor(QPalette::WindowText, Tinta(fondo, ruolo));
    tavolozza.setColor(QPalette::Text, Tinta(fondo, ruolo));
    oggetto.setPalette(tavolozza);
}

} // namespace orvane
