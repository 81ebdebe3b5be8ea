#include "report/clsPDFCreator.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "base/Versione.h"
#include "report/EscapePDF.h"

namespace orvane {
namespace {

constexpr size_t kBuffer = 1 << 16;
constexpr int kPrimoLibero = 4; // page tree and resources, objects 3 and 4, are written last

struct Foglio {
    uint8_t quale;
    float larghezza;
    float altezza;
};
constexpr std::array kFogli = {Foglio{0, 595.2f, 842.0f}, Foglio{1, 842.0f, 1190.5f},
                               Foglio{2, 612.0f, 792.0f}, Foglio{3, 612.0f, 864.0f},
                               Foglio{4, 842.0f, 595.2f}};

std::string Ora(const OraCalendario& ora) {
    const auto secondi = static_cast<int>(ora.secondiDelGiorno);
    return TestoIntero(secondi / 3600, 2) + TestoIntero(secondi / 60 % 60, 2) +
           TestoIntero(secondi % 60, 2);
}

} // namespace

std::string NomeInventatoPdf(const Ambiente& ambiente) {
    const OraCalendario ora = ambiente.Calendario();
    const int caso = static_cast<int>(std::fmod(ambiente.Adesso() * 1000, 10));
    const long long numero =
        static_cast<long long>(ValoreIniziale(TestoIntero(ora.giorno) + Ora(ora))) * 10 + caso;
    std::array<char, 24> esadecimale{};
    std::snprintf(esadecimale.data(), esadecimale.size(), "~%llX.pdf",
                  static_cast<unsigned long long>(numero));
    return esadecimale.data();
}

void AccodaNumero(std::string& testo, double valore, int cifre) {
    constexpr std::array<double, 7> kPotenze = {1, 10, 100, 1e3, 1e4, 1e5, 1e6};
    const double scala = kPotenze[static_cast<size_t>(cifre)];
    const double scalato = std::nearbyint(valore * scala);
    if (!(std::abs(scalato) < 1e15)) {
        testo += std::isfinite(valore) ? TestoFisso(valore, 0) : "0";
        return;
    }
    auto intero = static_cast<long long>(std::abs(scalato));
    std::array<char, 24> cifra{};
    size_t i = cifra.size();
    bool inizio = false; // zeros at the end are not written
    for (int k = 0; k < cifre; ++k, intero /= 10) {
        inizio = inizio || intero % 10 != 0;
        if (inizio)
            cifra[--i] = static_cast<char>('0' + intero % 10);
    }
    if (inizio)
        cifra[--i] = '.';
    do {
        cifra[--i] = static_cast<char>('0' + intero % 10);
    } while ((intero /= 10) > 0);
    if (scalato < 0)
        cifra[--i] = '-';
    testo.append(&cifra[i], cifra.size() - i);
}

std::string FormatNumber(double valore, int cifre) {
    std::string testo;
    AccodaNumero(testo, valore, cifre);
    return testo;
}

double clsPDFCreator::ToPoints(float valore) const {
    switch (ScaleMode_) {
    case 0:
        return valore;
    case 1:
        return valore * 72.0;
    case 2:
        return valore * 72.0 / 25.4;
    case 3:
        return valore * 72.0 / 2.54;
    default:
        return 0;
    }
}

float clsPDFCreator::FromPoints(double punti) const {
    const double uno = ToPoints(1);
    return uno == 0 ? 0 : static_cast<float>(punti / uno);
}

void clsPDFCreator::PaperWidth(float valore) {
    PaperKind_ = 255;
    PaperW_ = InPunti(valore);
}

void clsPDFCreator::PaperHeight(float valore) {
    PaperKind_ = 255;
    PaperH_ = InPunti(valore);
}

void clsPDFCreator::PaperSize(uint8_t quale) {
    for (const Foglio& foglio : kFogli)
        if (foglio.quale == quale) {
            PaperKind_ = quale;
            PaperW_ = foglio.larghezza;
            PaperH_ = foglio.altezza;
        }
}

bool clsPDFCreator::InitPDFFile(std::filesystem::path& percorso) {
    if (file_)
        ClosePDFFile();
    if (percorso.empty())
        percorso = std::filesystem::path(NomeInventatoPdf(ambiente_));
    file_.reset(std::fopen(percorso.string().c_str(), "wb"));
    if (!file_)
        return false;
    std::setvbuf(file_.get(), nullptr, _IONBF, 0); // `buffer_` is the buffer
    for (std::string* testo : {&Kids_, &FontRes_, &ImageRes_, &FormRes_, &buffer_})
        testo->clear();
    XRef_.clear();
    famiglie_.clear();
    PageCount_ = LastObj_ = ResourcesObj_ = PagesObj_ = 0;
    posizione_ = 0;
    fallito_ = inFlusso_ = pagina_ = false;
    WriteLine("%PDF-1.3");
    ScriviInformazioni();
    ScriviCatalogo();
    LastObj_ = kPrimoLibero;
    return true;
}

void clsPDFCreator::ScriviInformazioni() {
    const OraCalendario ora = ambiente_.Calendario();
    const std::string nome = kNomeProgramma;
    NewObject();
    // Two blanks behind /Creator, and the same zone wherever it is written.
    WriteLine("<<\r/Title (" + EscapeText(InAnsi(Title_)) + ")\r/Author (" + nome +
              ")\r/Creator  (" + nome + ")\r/Producer (" + nome +
              ")\r/CreationDate (D:" + TestoIntero(ora.anno, 4) + TestoIntero(ora.mese, 2) +
              TestoIntero(ora.giorno, 2) + Ora(ora) + "+01'00')\r>>");
    EndObj();
}

void clsPDFCreator::ScriviCatalogo() {
    NewObject();
    WriteLine("<<\r/Type /Catalog\r/Pages 3 0 R\r/PageLayout /OneColumn\r/PageMode /UseNone\r"
              "/Lang (it) \r/ViewerPreferences << /HideToolbar false /DisplayDocTitle true "
              "/HideWindowUI false >>\r>>");
    EndObj();
}

bool clsPDFCreator::ClosePDFFile() {
    if (!file_)
        return false;
    if (inFlusso_)
        ChiudiFlusso();
    ScriviRisorse();
    ScriviPagine();
    ScriviRiferimenti();
    Svuota();
    fallito_ |= std::fclose(file_.release()) != 0;
    return !fallito_;
}

void clsPDFCreator::ScriviRisorse() {
    ResourcesObj_ = 4;
    NewObject(ResourcesObj_);
    std::string testo = "<<\r";
    if (!FontRes_.empty())
        testo += "/Font <<" + FontRes_ + ">>\r";
    testo += "/ProcSet [/PDF /Text";
    if (!ImageRes_.empty())
        testo += " /ImageB /ImageC /ImageI";
    testo += " ]\r";
    if (!ImageRes_.empty() || !FormRes_.empty())
        testo += "/XObject <<" + ImageRes_ + FormRes_ + ">>\r";
    WriteLine(testo + ">>");
    EndObj();
}

void clsPDFCreator::ScriviPagine() {
    PagesObj_ = 3;
    NewObject(PagesObj_);
    const std::string margine = FormatNumber(MarginPt_, 3);
    WriteLine("<<\r/Type /Pages\r/Count " + TestoIntero(PageCount_) + "\r/MediaBox [0 0 " +
              FormatNumber(PaperW_, 3) + " " + FormatNumber(PaperH_, 3) + "]\r/CropBox [" +
              margine + " " + margine + " " + FormatNumber(PaperW_ - MarginPt_, 3) + " " +
              FormatNumber(PaperH_ - MarginPt_, 3) + "]\r" +
              (Orientation_ == 1 ? "/Rotate 90\r" : "") + "/Kids [" + Kids_ +
              " ]\r/Resources 4 0 R\r>>");
    EndObj();
}

void clsPDFCreator::ScriviRiferimenti() {
    const uint64_t inizio = posizione_; // a position that counts from one, minus one
    WriteLine("xref");
    WriteLine("0 " + TestoIntero(LastObj_ + 1));
    WriteLine("0000000000 65535 f");
    for (size_t id = 1; id < XRef_.size(); ++id)
        WriteLine(XRef_[id]);
    // The last number, not the count: readers mend it, and every document has it so.
    WriteLine("trailer\r<<\r/Size " + TestoIntero(LastObj_) + "\r/Info 1 0 R\r/Root 2 0 R\r>>");
    WriteLine("startxref\r" + TestoIntero(static_cast<long long>(inizio)));
    WriteLine("%%EOF\r");
}

int clsPDFCreator::NewObject(int id) {
    if (id == 0)
        id = ++LastObj_;
    if (XRef_.size() <= static_cast<size_t>(id))
        XRef_.resize(static_cast<size_t>(id) + 1, "0000000000 00000 n");
    XRef_[static_cast<size_t>(id)] =
        TestoIntero(static_cast<long long>(posizione_), 10) + " 00000 n";
    WriteLine(TestoIntero(id) + " 0 obj");
    return id;
}

void clsPDFCreator::WriteLine(std::string_view testo) {
    PutRaw(testo);
    PutRaw("\r\n");
}

void clsPDFCreator::PutRaw(std::string_view byte) {
    posizione_ += byte.size();
    buffer_ += byte;
    if (buffer_.size() >= kBuffer)
        Svuota();
}

void clsPDFCreator::Svuota() {
    fallito_ |= std::fwrite(buffer_.data(), 1, buffer_.size(), file_.get()) != buffer_.size();
    buffer_.clear();
}

int clsPDFCreator::BeginPage() {
    if (!Libero())
        return PageCount_;
    ++PageCount_;
    const int pagina = NewObject();
    const std::string contenuto = TestoIntero(pagina + 1);
    WriteLine("<<\r/Type /Page\r/Parent 3 0 R\r/Contents " + contenuto + " 0 R\r>>");
    EndObj();
    Kids_ += TestoIntero(pagina) + " 0 R ";
    NewObject();
    WriteLine("<< /Length " + TestoIntero(pagina + 2) + " 0 R " +
              (EncodeA85_ ? "/Filter /ASCII85Decode " : "") + ">>");
    ApriFlusso();
    pagina_ = true;
    if (EncodeA85_)
        codifica_.emplace();
    return PageCount_;
}

void clsPDFCreator::EndPage() {
    if (pagina_)
        ChiudiFlusso();
}

void clsPDFCreator::ApriFlusso() {
    WriteLine("stream");
    StreamStart_ = posizione_;
    HorizScale_ = 100;
    inFlusso_ = true;
}

void clsPDFCreator::ChiudiFlusso() {
    if (codifica_) {
        riga_.clear();
        codifica_->Fine(riga_);
        WriteLine(riga_);
        codifica_.reset();
    }
    StreamStart_ = posizione_ - StreamStart_;
    inFlusso_ = pagina_ = false;
    WriteLine("endstream");
    EndObj();
    NewObject();
    WriteLine(TestoIntero(static_cast<long long>(StreamStart_)));
    EndObj();
}

void clsPDFCreator::Contenuto(std::string_view righe) {
    if (!inFlusso_)
        return;
    if (!codifica_)
        return PutRaw(righe);
    std::string codificato;
    codifica_->Aggiungi(righe, codificato);
    PutRaw(codificato);
}

} // namespace orvane
