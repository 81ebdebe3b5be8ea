#include "report/CreaFileRTF.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "data/NomiDisco.h"
#include "report/LeggiBMP.h"
#include "report/RigheFile.h"
#include "report/ScriviPNG.h"

namespace orvane {
namespace {

/// Lengths in twentieths of a point. The margins leave room for 90 characters of 10 points.
struct FoglioRTF {
    int larghezza, altezza;
    int immagineLarga, immagineAlta; ///< at most
    std::string_view verso;
};
constexpr int kMargine = 500;
constexpr double kPassoTab = 8 * 0.6 * 20; ///< eight characters, for each point of their size
constexpr FoglioRTF kVerticale = {11906, 16838, 10205, 14740, ""};
constexpr FoglioRTF kOrizzontale = {16838, 11906, 15024, 10000, "\\landscape"};

const FoglioRTF& Foglio(const RichiestaDocumento& r) {
    return r.carattere.ReportPaper == kFoglioOrizzontale ? kOrizzontale : kVerticale;
}

/// The character at the head of a valid UTF-8 text.
uint32_t Punto(std::string_view carattere) {
    const auto primo = static_cast<uint8_t>(carattere[0]);
    uint32_t punto = carattere.size() == 1 ? primo : primo & (0x7Fu >> carattere.size());
    for (const char c : carattere.substr(1))
        punto = punto << 6 | (static_cast<uint8_t>(c) & 0x3F);
    return punto;
}

std::string Unita(uint32_t unita) {
    return "\\u" + TestoIntero(static_cast<int16_t>(unita)) + "?";
}

std::string FuoriPagina(uint32_t punto) {
    if (punto < 0x10000)
        return Unita(punto);
    return Unita(0xD800 + ((punto - 0x10000) >> 10)) + Unita(0xDC00 + (punto & 0x3FF));
}

void AccodaEsadecimale(std::string& testo, uint8_t byte) {
    constexpr std::string_view kCifre = "0123456789abcdef";
    testo += kCifre[byte >> 4];
    testo += kCifre[byte & 15];
}

void AccodaAscii(std::string& testo, char c) {
    if (c == '\\' || c == '{' || c == '}')
        testo += '\\';
    if (c == '\t')
        testo += "\\tab ";
    else if (c >= ' ')
        testo += c;
}

std::string Apertura(const RichiestaDocumento& r) {
    const FoglioRTF& foglio = Foglio(r);
    const std::string margine = TestoIntero(kMargine);
    const std::string titolo = r.Name.empty() ? Utf8DaPath(r.OutPath.filename()) : r.Name;
    return "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl{\\f0\\fmodern\\fprq1\\fcharset0 "
           "Courier New;}}\r\n{\\info{\\title " +
           EscapeRTF(titolo) + "}}\r\n\\paperw" + TestoIntero(foglio.larghezza) + "\\paperh" +
           TestoIntero(foglio.altezza) + std::string(foglio.verso) + "\\margl" + margine +
           "\\margr" + margine + "\\margt" + margine + "\\margb" + margine + "\\deftab" +
           TestoIntero(static_cast<int>(r.carattere.ReportFontSize * kPassoTab)) +
           "\r\n\\pard\\plain\\f0\\fs" +
           TestoIntero(static_cast<int>(r.carattere.ReportFontSize * 2)) + "\r\n";
}

std::string RigaRTF(std::string_view riga) {
    return EscapeRTF(riga) + "\\par\r\n";
}

/// With a free line above and below; empty where the picture cannot be read.
std::string Immagine(const RichiestaDocumento& r) {
    const auto pixel = LeggiFileBMP(r.ImagePath);
    if (!pixel)
        return {};
    const double ratio =
        r.Ratio > 0 ? r.Ratio : static_cast<double>(pixel->altezza) / pixel->larghezza;
    const FoglioRTF& foglio = Foglio(r);
    const double larga = std::min<double>(foglio.immagineLarga, foglio.immagineAlta / ratio);
    std::string testo = "\\par\r\n{\\pict\\pngblip\\picw" + TestoIntero(pixel->larghezza) +
                        "\\pich" + TestoIntero(pixel->altezza) + "\\picwgoal" +
                        TestoIntero(static_cast<int>(larga)) + "\\pichgoal" +
                        TestoIntero(static_cast<int>(larga * ratio)) + "\r\n";
    const std::vector<uint8_t> png = InPNG(*pixel);
    for (size_t i = 0; i < png.size(); ++i) {
        AccodaEsadecimale(testo, png[i]);
        if (i % 64 == 63)
            testo += "\r\n";
    }
    return testo + "}\\par\\par\r\n";
}

/// Remembers that a write failed.
class FileTestoRTF {
public:
    explicit FileTestoRTF(const std::filesystem::path& percorso)
        : file_(std::fopen(percorso.string().c_str(), "wb")), intero_(file_ != nullptr) {}
    void Scrivi(std::string_view byte) {
        intero_ = intero_ && std::fwrite(byte.data(), 1, byte.size(), file_.get()) == byte.size();
    }
    bool Chiudi() {
        const bool chiuso = file_ && std::fclose(file_.release()) == 0;
        return chiuso && intero_;
    }

private:
    FileC file_;
    bool intero_;
};

void ScriviHeader(FileTestoRTF& file, const RichiestaDocumento& r) {
    file.Scrivi(RigaRTF("KRV ZELVAR REPORT: " + r.Title) + RigaRTF(""));
    RigheFile header(r.HeaderPath);
    while (const auto riga = header.Prossima())
        file.Scrivi(RigaRTF(*riga));
}

} // namespace

std::string EscapeRTF(std::string_view utf8) {
    std::string testo;
    while (!utf8.empty()) {
        size_t lungo = 1;
        while (lungo < utf8.size() && (utf8[lungo] & 0xC0) == 0x80)
            ++lungo;
        const std::string_view carattere = utf8.substr(0, lungo);
        utf8.remove_prefix(lungo);
        const std::string ansi = InAnsi(carattere);
        if (lungo == 1 && (carattere[0] & 0x80) == 0)
            AccodaAscii(testo, carattere[0]);
        else if (ansi.size() == 1 && ansi != "?") {
            testo += "\\'";
            AccodaEsadecimale(testo, static_cast<uint8_t>(ansi[0]));
        } else
            testo += ansi.size() == 1 && lungo > 1 ? FuoriPagina(Punto(carattere)) : ansi;
    }
    return testo;
}

EsitoDocumento CreaFileRTF(const RichiestaDocumento& r, const std::filesystem::path& percorso) {
    RigheFile tabella(r.TablePath);
    if (!tabella.Aperto())
        return EsitoDocumento::TabellaIllegibile;
    FileTestoRTF file(percorso);
    file.Scrivi(Apertura(r));
    if (r.HeaderOn)
        ScriviHeader(file, r);
    const std::string immagine = r.ImagePath.empty() ? std::string() : Immagine(r);
    file.Scrivi(immagine);
    // Cells have their width already: a tab between them is one blank.
    while (const auto riga = tabella.Prossima())
        file.Scrivi(RigaRTF(Sostituisci(*riga, "\t", " ")));
    file.Scrivi("}\r\n");
    if (!file.Chiudi())
        return EsitoDocumento::NonScritto;
    if (tabella.Interrotto())
        return EsitoDocumento::TabellaIllegibile;
    const bool manca = immagine.empty() && !r.ImagePath.empty();
    return manca ? EsitoDocumento::SenzaImmagine : EsitoDocumento::Fatto;
}

} // namespace orvane
