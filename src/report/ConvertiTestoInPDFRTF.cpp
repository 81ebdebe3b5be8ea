#include "report/ConvertiTestoInPDFRTF.h"

#include <array>
#include <cstdio>
#include <system_error>

#include "base/Testo.h"
#include "data/FileProvvisorio.h"
#include "data/NomiDisco.h"
#include "report/CreaFilePDF.h"
#include "report/CreaFileRTF.h"
#include "report/NomeProprio.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

/// Deletes a file at the end of a scope.
struct CancellaAllaFine {
    fs::path percorso;
    ~CancellaAllaFine() {
        std::error_code errore;
        if (!percorso.empty())
            fs::remove(percorso, errore);
    }
};

/// Puts a copy in the target's place; a copy that fails leaves the old file.
bool CopiaSopra(const fs::path& da, const fs::path& a) {
    const FileC fonte(std::fopen(da.string().c_str(), "rb"));
    FileProvvisorio copia(a.has_parent_path() ? a.parent_path() : fs::path("."));
    std::array<uint8_t, 1 << 15> byte{};
    size_t letti = 0;
    while (fonte && (letti = std::fread(byte.data(), 1, byte.size(), fonte.get())) > 0)
        if (!copia.Scrivi({byte.data(), letti}))
            return false;
    return fonte && std::ferror(fonte.get()) == 0 && copia.Chiudi() && copia.Sostituisce(a);
}

bool Riuscito(EsitoDocumento esito) {
    return esito == EsitoDocumento::Fatto || esito == EsitoDocumento::SenzaImmagine;
}

EsitoDocumento CreaECopia(const Scrivania& s, const RichiestaDocumento& r, bool pdf) {
    // Never the target itself, which a failure would tear.
    const CancellaAllaFine resto{
        NomeProprio(s.albero.Radice() / (pdf ? "Untitled.pdf" : "Untitled.rtf"), r.OutPath)};
    const EsitoDocumento esito =
        pdf ? CreaFilePDF(s, r, resto.percorso) : CreaFileRTF(r, resto.percorso);
    if (!Riuscito(esito))
        return esito;
    return CopiaSopra(resto.percorso, r.OutPath) ? esito : EsitoDocumento::NonScritto;
}

} // namespace

std::string TestoAttesa(const fs::path& file) {
    return "Creating File " + Utf8DaPath(file.filename()) + "...\rPlease wait";
}

std::string TestoEsito(EsitoDocumento esito, const RichiestaDocumento& r) {
    switch (esito) {
    case EsitoDocumento::Fatto:
        return {};
    case EsitoDocumento::SenzaImmagine:
        return "Failed loading" + Utf8DaPath(r.ImagePath) + "\rThe report has no picture";
    case EsitoDocumento::AltraEstensione:
        return Utf8DaPath(r.OutPath) + " is neither PDF nor RTF";
    case EsitoDocumento::Occupato:
        return Utf8DaPath(r.OutPath) + " Is already open";
    case EsitoDocumento::TabellaIllegibile:
        return "Failed loading" + Utf8DaPath(r.TablePath);
    case EsitoDocumento::NonScritto:
        break;
    }
    return "Cannot open file " + Utf8DaPath(r.OutPath);
}

EsitoDocumento ConvertiTestoInPDFRTF(const Scrivania& s, VistaAttesa& vista,
                                     const RichiestaDocumento& r) {
    const std::string estensione = Maiuscolo(r.OutPath.extension().string());
    const bool pdf = estensione == ".PDF";
    if (!pdf && estensione != ".RTF")
        return EsitoDocumento::AltraEstensione;
    const CancellaAllaFine tabella{r.TablePath}, immagine{r.ImagePath};
    fs::path scelto = r.OutPath;
    if (pdf && !ControllaFilePDFAperto(s.ambiente, scelto))
        return EsitoDocumento::Occupato;
    vista.MostraAttesa(TestoAttesa(r.OutPath));
    s.ambiente.ElaboraEventi(0, Veglia::Eventi); // so that it is drawn
    const EsitoDocumento esito = CreaECopia(s, r, pdf);
    vista.ChiudiAttesa();
    return esito;
}

} // namespace orvane
