// A PDF 1.3 file, written to the disk object after object while its caller draws.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Ambiente.h"
#include "data/FileProvvisorio.h"
#include "report/Ascii85.h"
#include "report/MetricheFont.h"

namespace orvane {

/// What becomes of a path, to be added up.
namespace tracciato {
inline constexpr unsigned kRiempi = 1;
inline constexpr unsigned kChiudi = 2;
inline constexpr unsigned kTraccia = 4;
} // namespace tracciato

enum class AllineaPdf { Sinistra, Destra, Centro };

struct PuntoPdf {
    float x = 0;
    float y = 0;
};

/// An ellipse, turned by `rotazione`, and the part of it from `da` to `a`; degrees,
/// counterclockwise.
struct ArcoPdf {
    PuntoPdf centro = {};
    float raggioX = 0;
    float raggioY = 0;
    float rotazione = 0;
    float da = 0;
    float a = 360;
};

/// Pixels as a PDF holds them: rows from the top, each padded to a whole byte.
struct PixelPdf {
    int larghezza = 0;
    int altezza = 0;
    int bit = 24; ///< a pixel: 1, 4, 8 with a palette, 24 without
    std::vector<uint8_t> dati = {};
    std::vector<uint8_t> paletta = {}; ///< red, green, blue of each colour
    bool grigio = false;               ///< with 24: one byte a pixel, a grey
};

/// The name of a document that was given none: "~", a number of the time in hexadecimal, ".pdf".
std::string NomeInventatoPdf(const Ambiente& ambiente);

/// One document. Properties come first, then `InitPDFFile`, fonts and images, then for each page
/// `BeginPage`, drawing, `EndPage`; fonts and images may also come between pages. What does not fit
/// this order writes nothing. Texts are UTF-8 and go out in Windows-1252, "?" for what it lacks.
/// Coordinates are in `ScaleMode`, from the lower left corner; widths of lines and what the
/// `Set...Spacing` take are points. A write that fails is remembered until `ClosePDFFile`.
class clsPDFCreator {
public:
    explicit clsPDFCreator(const Ambiente& ambiente) : ambiente_(ambiente) {}
    clsPDFCreator(const clsPDFCreator&) = delete;
    clsPDFCreator& operator=(const clsPDFCreator&) = delete;

    /// Streams of pages and images in ASCII85; takes effect at the next one.
    void EncodeASCII85(bool si) { EncodeA85_ = si; }
    void Margin(float valore) { MarginPt_ = InPunti(valore); }
    void PaperWidth(float valore);
    void PaperHeight(float valore);
    int Pages() const { return PageCount_; }
    /// 0 points, 1 inches, 2 millimetres, 3 centimetres; with any other every size is 0.
    void ScaleMode(int valore) { ScaleMode_ = valore; }
    /// 0 A4, 1 A3, 2 Letter, 3 612 x 864 points, 4 A4 landscape; any other leaves the size.
    void PaperSize(uint8_t quale);
    /// 1 turns every page by 90 degrees, in addition to the size.
    void Orientation(int valore) { Orientation_ = valore; }
    void Title(std::string_view testo) { Title_ = testo; }

    /// Begins the file, over an old one; an open one is finished first. An empty path is replaced
    /// with a made-up name in the working directory. False when the file cannot be opened.
    bool InitPDFFile(std::filesystem::path& percorso);
    /// Finishes the file, with a page left open. False without a file, and when any write failed.
    bool ClosePDFFile();
    int BeginPage();
    void EndPage();

    void SetWordSpacing(float valore) { Operatore(valore, "Tw"); }
    void SetCharSpacing(float valore) { Operatore(valore, "Tc"); }
    /// Percent.
    void SetTextHorizontalScaling(float valore);
    /// 0 fill, 1 stroke, 2 both, 3 invisible.
    void SetTextRenderingMode(int modo) { Operatore(static_cast<float>(modo), "Tr"); }
    /// `font`: the name it was loaded under. `dimensione` in points, `rotazione` in degrees.
    void DrawText(float x, float y, std::string_view testo, std::string_view font, float dimensione,
                  AllineaPdf allinea = AllineaPdf::Sinistra, float rotazione = 0);
    /// Width of a text in `ScaleMode`. `font`: a loaded name or a family.
    float Length(std::string_view testo, std::string_view font, float dimensione) const;

    /// From -255 to 0 a grey, its value negated; any other is packed, red in the low byte.
    void SetColorStroke(int32_t colore) { Colore(colore, "RG", "G"); }
    void SetColorFill(int32_t colore) { Colore(colore, "rg", "g"); }
    void SetDash(std::span<const float> tratti);
    void SetLineWidth(float valore) { Operatore(valore, "w"); }
    void SetLineCap(int valore) { Operatore(static_cast<float>(valore), "J"); }
    void SetLineJoin(int valore) { Operatore(static_cast<float>(valore), "j"); }
    void SetMiterLimit(float valore) { Operatore(valore, "M"); }
    void MoveTo(float x, float y) { Punti({{x, y}}, "m"); }
    void LineTo(float x, float y) { Punti({{x, y}}, "l"); }
    void Curve(PuntoPdf primo, PuntoPdf secondo, PuntoPdf fine);
    /// `opzioni` of `tracciato`. A corner radius is at most half of the shorter side.
    void Rectangle(float x, float y, float larghezza, float altezza,
                   unsigned opzioni = tracciato::kTraccia, float raggio = 0);
    void DrawCircle(PuntoPdf centro, float raggio, unsigned opzioni = tracciato::kTraccia);
    void Arc(const ArcoPdf& arco, unsigned opzioni = tracciato::kTraccia);

    /// A BMP of 1, 4, 8 or 24 bits a pixel, uncompressed; any other file loads nothing.
    bool LoadImgFromBMPFile(std::string_view nome, const std::filesystem::path& percorso,
                            bool grigio = false);
    bool LoadImgFromArray(std::string_view nome, const PixelPdf& pixel);
    void DrawImg(std::string_view nome, float x, float y, float larghezza, float altezza);
    /// `stile`: 1 bold, 2 italic, 3 both.
    bool LoadFontStandard(std::string_view nome, std::string_view font, int stile);
    bool LoadFont(std::string_view nome, std::string_view font, int stile);
    /// What is drawn up to `EndObject` is placed by `DrawObject`, as often as needed.
    void StartObject(std::string_view nome, float larghezza, float altezza);
    void EndObject();
    void DrawObject(std::string_view nome);

private:
    int NewObject(int id = 0);
    void EndObj() { WriteLine("endobj"); }
    void WriteLine(std::string_view testo);
    void PutRaw(std::string_view byte);
    void Svuota();
    /// Lines of the open stream, each with its line end.
    void Contenuto(std::string_view righe);
    void PathPaint(unsigned opzioni);
    void Operatore(float valore, std::string_view operatore);
    void Punti(std::initializer_list<PuntoPdf> punti, std::string_view operatore);
    void Colore(int32_t colore, std::string_view rgb, std::string_view grigio);
    double ToPoints(float valore) const;
    float FromPoints(double punti) const;
    float InPunti(float valore) const { return static_cast<float>(ToPoints(valore)); }
    bool Libero() const { return file_ && !inFlusso_; }
    FamigliaFont Famiglia(std::string_view font) const;

    void ApriFlusso();
    void ChiudiFlusso();
    void ScriviInformazioni();
    void ScriviCatalogo();
    void ScriviRisorse();
    void ScriviPagine();
    void ScriviRiferimenti();
    std::string DizionarioImmagine(int id, std::string_view nome, const PixelPdf& pixel) const;
    void ScriviPaletta(const PixelPdf& pixel);
    void AngoliTondi(const PuntoPdf& basso, const PuntoPdf& alto, float raggio);

    const Ambiente& ambiente_;
    FileC file_;
    std::string Title_ = "(senza titolo)";
    uint8_t PaperKind_ = 0;
    float PaperW_ = 595.2f;
    float PaperH_ = 842.0f;
    int32_t ScaleMode_ = 0;
    int32_t Orientation_ = 0;
    int32_t PageCount_ = 0;
    float MarginPt_ = 0;
    bool EncodeA85_ = false;
    std::string Kids_;
    std::string FontRes_;
    std::string ImageRes_;
    std::string FormRes_;
    int16_t ResourcesObj_ = 0;
    int16_t PagesObj_ = 0;
    int32_t LastObj_ = 0;
    uint64_t StreamStart_ = 0; ///< then the length
    float HorizScale_ = 100;
    std::vector<std::string> XRef_; ///< index: object number; the 18 characters of its line

    std::string buffer_;     ///< what has not gone to the file yet
    std::string riga_;       ///< an operator while it is composed
    uint64_t posizione_ = 0; ///< bytes written, buffer included
    bool fallito_ = false;
    bool inFlusso_ = false;               ///< a page or a form is open
    bool pagina_ = false;                 ///< and it is a page
    std::optional<CodificaA85> codifica_; ///< of the open page
    std::map<std::string, FamigliaFont, std::less<>> famiglie_;
};

/// `valore` rounded to `cifre` decimals (0 to 6), without zeros at the end, behind what `testo`
/// holds.
void AccodaNumero(std::string& testo, double valore, int cifre);
std::string FormatNumber(double valore, int cifre);

} // namespace orvane
