#include <algorithm>
#include <cmath>

#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "report/EscapePDF.h"
#include "report/clsPDFCreator.h"

namespace orvane {
namespace {

constexpr double kGradi = 3.141592 / 180;
constexpr int kFlagCorsivo = 64;
constexpr std::array<std::string_view, 4> kStili = {"", ",Bold", ",Italic", ",BoldItalic"};

std::string NomeBase(std::string_view font, int stile) {
    std::string nome = InAnsi(Sostituisci(font, " ", ""));
    if (stile >= 0 && static_cast<size_t>(stile) < kStili.size())
        nome += kStili[static_cast<size_t>(stile)];
    return nome;
}

std::string Descrittore(const MetricaFont& metrica, const std::string& nome, bool corsivo) {
    std::string riquadro;
    for (const int lato : metrica.riquadro)
        riquadro += (riquadro.empty() ? "" : " ") + TestoIntero(lato);
    return "<<\r/Type /FontDescriptor\r/FontName /" + nome + "\r/Flags " +
           TestoIntero(metrica.flags | (corsivo ? kFlagCorsivo : 0)) + "\r/FontBBox [" + riquadro +
           "]\r/ItalicAngle " + FormatNumber(corsivo ? metrica.angoloCorsivo : 0, 1) +
           "\r/Ascent " + TestoIntero(metrica.ascent) + "\r/Descent " +
           TestoIntero(metrica.descent) + "\r/CapHeight " + TestoIntero(metrica.capHeight) +
           "\r/XHeight " + TestoIntero(metrica.xHeight) + "\r/StemV " + TestoIntero(metrica.stemV) +
           "\r/StemH " + TestoIntero(metrica.stemH) + "\r>>";
}

bool SoloAscii(std::string_view testo) {
    return std::all_of(testo.begin(), testo.end(), [](char c) { return (c & 0x80) == 0; });
}

} // namespace

bool clsPDFCreator::LoadFontStandard(std::string_view nome, std::string_view font, int stile) {
    if (!Libero())
        return false;
    const std::string id = TestoIntero(NewObject());
    const std::string risorsa = InAnsi(nome);
    WriteLine("<< /Type /Font \r/Subtype /Type1 \r/Name /" + risorsa + "\r/BaseFont /" +
              NomeBase(font, stile) + "\r/Encoding /WinAnsiEncoding >>");
    EndObj();
    FontRes_ += "/" + risorsa + " " + id + " 0 R ";
    famiglie_.insert_or_assign(std::string(nome), FamigliaDaNome(font));
    return true;
}

bool clsPDFCreator::LoadFont(std::string_view nome, std::string_view font, int stile) {
    if (!Libero())
        return false;
    const MetricaFont& metrica = Metrica(FamigliaDaNome(font));
    const std::string base = NomeBase(font, stile);
    const std::string risorsa = InAnsi(nome);
    const int id = NewObject();
    std::string larghezze;
    for (const int larghezza : metrica.larghezze)
        larghezze += (larghezze.empty() ? "" : " ") + TestoIntero(larghezza);
    WriteLine("<< /Type /Font \r/Subtype /TrueType \r/Name /" + risorsa + "\r/BaseFont /" + base +
              "\r/FirstChar " + TestoIntero(kPrimoCarattere) + "\r/LastChar " +
              TestoIntero(kUltimoCarattere) + "\r/FontDescriptor " + TestoIntero(id + 1) +
              " 0 R\r/Encoding /WinAnsiEncoding\r/Widths [" + larghezze + "] >>");
    EndObj();
    NewObject();
    WriteLine(Descrittore(metrica, base, stile == 2 || stile == 3));
    EndObj();
    FontRes_ += "/" + risorsa + " " + TestoIntero(id) + " 0 R ";
    famiglie_.insert_or_assign(std::string(nome), FamigliaDaNome(font));
    return true;
}

FamigliaFont clsPDFCreator::Famiglia(std::string_view font) const {
    const auto caricato = famiglie_.find(font);
    return caricato == famiglie_.end() ? FamigliaDaNome(font) : caricato->second;
}

float clsPDFCreator::Length(std::string_view testo, std::string_view font, float dimensione) const {
    const int somma = LarghezzaTesto(Famiglia(font), InAnsi(testo));
    return FromPoints(somma / 1000.0 * dimensione * HorizScale_ / 100);
}

void clsPDFCreator::DrawText(float x, float y, std::string_view testo, std::string_view font,
                             float dimensione, AllineaPdf allinea, float rotazione) {
    if (!inFlusso_)
        return;
    if (allinea != AllineaPdf::Sinistra)
        x -= Length(testo, font, dimensione) / (allinea == AllineaPdf::Centro ? 2.0f : 1.0f);
    std::string& riga = riga_;
    riga = "BT\r\n/";
    riga += SoloAscii(font) ? font : std::string_view(InAnsi(font));
    riga += ' ';
    AccodaNumero(riga, dimensione, 2);
    riga += " Tf\r\n";
    if (rotazione != 0) {
        const double seno = std::sin(rotazione * kGradi), coseno = std::cos(rotazione * kGradi);
        for (const double v : {coseno, seno, -seno, coseno}) {
            AccodaNumero(riga, v, 3);
            riga += ' ';
        }
    }
    AccodaNumero(riga, ToPoints(x), 3);
    riga += ' ';
    AccodaNumero(riga, ToPoints(y), 3);
    riga += rotazione == 0 ? " Td\r\n(" : " Tm\r\n(";
    if (SoloAscii(testo))
        AccodaEscape(testo, riga);
    else
        AccodaEscape(InAnsi(testo), riga);
    riga += ") Tj\r\nET\r\n";
    Contenuto(riga);
}

void clsPDFCreator::SetTextHorizontalScaling(float valore) {
    HorizScale_ = valore;
    Operatore(valore, "Tz");
}

} // namespace orvane
