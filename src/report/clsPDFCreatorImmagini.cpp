#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "report/LeggiBMP.h"
#include "report/clsPDFCreator.h"

namespace orvane {
namespace {

std::string_view Testo(const std::vector<uint8_t>& byte) {
    return {reinterpret_cast<const char*>(byte.data()), byte.size()};
}

bool ConPaletta(const PixelPdf& pixel) {
    return pixel.bit == 1 || pixel.bit == 4 || pixel.bit == 8;
}

/// Whether the picture holds what it says.
bool Intera(const PixelPdf& pixel) {
    if (pixel.larghezza <= 0 || pixel.altezza <= 0 || (pixel.bit != 24 && !ConPaletta(pixel)))
        return false;
    const size_t bit = pixel.bit == 24 && pixel.grigio ? 8 : static_cast<size_t>(pixel.bit);
    const size_t riga = (static_cast<size_t>(pixel.larghezza) * bit + 7) / 8;
    return pixel.dati.size() == riga * static_cast<size_t>(pixel.altezza) &&
           (pixel.bit == 24 || pixel.paletta.size() == size_t{3} << pixel.bit);
}

} // namespace

bool clsPDFCreator::LoadImgFromBMPFile(std::string_view nome, const std::filesystem::path& percorso,
                                       bool grigio) {
    const auto pixel = LeggiFileBMP(percorso, grigio);
    return pixel && LoadImgFromArray(nome, *pixel);
}

std::string clsPDFCreator::DizionarioImmagine(int id, std::string_view nome,
                                              const PixelPdf& pixel) const {
    std::string testo = "<<\r/Type /XObject\r/Subtype /Image\r/Name /" + std::string(nome) +
                        "\r/Width " + TestoIntero(pixel.larghezza) + "\r/Height " +
                        TestoIntero(pixel.altezza) + "\r";
    if (EncodeA85_)
        testo += "/Filter /ASCII85Decode\r";
    if (ConPaletta(pixel))
        testo += "/BitsPerComponent " + TestoIntero(pixel.bit) +
                 "\r/ColorSpace [/Indexed /DeviceRGB " + TestoIntero((1 << pixel.bit) - 1) + " " +
                 TestoIntero(id + 2) + " 0 R]\r";
    else
        testo += std::string("/BitsPerComponent 8\r/ColorSpace /") +
                 (pixel.grigio ? "DeviceGray\r" : "DeviceRGB\r");
    return testo + "/Length " + TestoIntero(id + 1) + " 0 R\r>>";
}

bool clsPDFCreator::LoadImgFromArray(std::string_view nome, const PixelPdf& pixel) {
    if (!Libero() || !Intera(pixel))
        return false;
    const std::string risorsa = InAnsi(nome);
    const int id = NewObject();
    WriteLine(DizionarioImmagine(id, risorsa, pixel));
    const std::string codificati = EncodeA85_ ? InAscii85(Testo(pixel.dati)) : std::string();
    const std::string_view dati = EncodeA85_ ? codificati : Testo(pixel.dati);
    // CR alone; a reader would take a first byte LF for the rest of the line end, so that there it
    // is written out.
    PutRaw(dati.starts_with('\n') ? "stream\r\n" : "stream\r");
    PutRaw(dati);
    PutRaw("\r\n");
    WriteLine("endstream");
    EndObj();
    NewObject();
    WriteLine(TestoIntero(static_cast<long long>(dati.size())));
    EndObj();
    if (ConPaletta(pixel))
        ScriviPaletta(pixel);
    ImageRes_ += "/" + risorsa + " " + TestoIntero(id) + " 0 R ";
    return true;
}

void clsPDFCreator::ScriviPaletta(const PixelPdf& pixel) {
    const std::string paletta = InAscii85(Testo(pixel.paletta));
    NewObject();
    WriteLine("<< /Filter /ASCII85Decode /Length " +
              TestoIntero(static_cast<long long>(paletta.size())) + " >>");
    WriteLine("stream");
    WriteLine(paletta);
    WriteLine("endstream");
    EndObj();
}

void clsPDFCreator::DrawImg(std::string_view nome, float x, float y, float larghezza,
                            float altezza) {
    Contenuto("q\r\n" + FormatNumber(ToPoints(larghezza), 3) + " 0 0 " +
              FormatNumber(ToPoints(altezza), 3) + " " + FormatNumber(ToPoints(x), 3) + " " +
              FormatNumber(ToPoints(y), 3) + " cm\r\n/" + InAnsi(nome) + " Do\r\nQ\r\n");
}

void clsPDFCreator::StartObject(std::string_view nome, float larghezza, float altezza) {
    if (!Libero())
        return;
    const std::string risorsa = InAnsi(nome);
    const int id = NewObject();
    WriteLine("<<\r/Type /XObject\r/Subtype /Form\r/FormType 1\r/Name /" + risorsa +
              "\r/BBox [0 0 " + FormatNumber(ToPoints(larghezza), 3) + " " +
              FormatNumber(ToPoints(altezza), 3) + "]\r/Matrix [1 0 0 1 0 0]\r/Length " +
              TestoIntero(id + 1) + " 0 R >>");
    ApriFlusso();
    FormRes_ += "/" + risorsa + " " + TestoIntero(id) + " 0 R ";
}

void clsPDFCreator::EndObject() {
    if (inFlusso_ && !pagina_)
        ChiudiFlusso();
}

void clsPDFCreator::DrawObject(std::string_view nome) {
    Contenuto("/" + InAnsi(nome) + " Do\r\n");
}

} // namespace orvane
