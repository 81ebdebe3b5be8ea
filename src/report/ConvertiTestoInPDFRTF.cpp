#include "report/ConvertiTestoInPDFRTF.h"

#include <array>
#include <cstdio>
#include <system_error>

#include "base/Testo.h"
#include "data/FileProvvisorio.h"
#include "report/CreaFilePDF.h"
#include "report/CreaFileRTF.h"

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
    const fs::path provvisorio = s.albero.Radice() / (pdf ? "Untitled.pdf" : "Untitled.rtf");
    std::error_code errore;
    const bool proprioQuello =
        fs::weakly_canonical(r.OutPath, errore) == fs::weakly_canonical(provvisorio, errore);
    const CancellaAllaFine resto{proprioQuello ? fs::path() : provvisorio};
    const EsitoDocumento esito = pdf ? CreaFilePDF(s, r, provvisorio) : CreaFileRTF(r, provvisorio);
    if (!Riuscito(esito) || proprioQuello)
        return esito;
    return CopiaSopra(provvisorio, r.OutPath) ? esito : EsitoDocumento::NonScritto;
}

} // namespace

std::string TestoEsito(EsitoDocumento esito, const RichiestaDocumento& r) {
    switch (esito) {
    case EsitoDocumento::Fatto:
        return {};
    case EsitoDocumento::SenzaImmagine:
        return "Failed loading " + r.ImagePath.string() + "\rThe report has no picture";
    case EsitoDocumento::AltraEstensione:
        return r.OutPath.string() + " is neither PDF nor RTF";
    case EsitoDocumento::Occupato:
        return r.OutPath.string() + " Is already open";
    case EsitoDocumento::TabellaIllegibile:
        return "Failed loading " + r.TablePath.string();
    case EsitoDocumento::NonScritto:
        break;
    }
    return "Cannot open file " + r.OutPath.string();
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
    vista.MostraAttesa("Creating File " + r.OutPath.filename().string() + "...\rPlease wait");
    s.ambiente.ElaboraEventi(0, Veglia::Eventi); // so that it is drawn
    const EsitoDocumento esito = CreaECopia(s, r, pdf);
    vista.ChiudiAttesa();
    return esito;
}

} // namespace orvane
