#include "report/SalvaTabella.h"

#include "base/Testo.h"
#include "data/FileFuori.h"
#include "data/FileTesto.h"
#include "data/ImportaTesto.h"
#include "data/NomiDisco.h"
#include "report/FormatiReport.h"
#include "report/NomeProprio.h"
#include "report/SalvaReport.h"

namespace orvane {
namespace {

constexpr size_t kLarghezzaColonna = 16;

/// On a sheet a tab has no width: columns stand under each other by blanks.
std::string Incolonna(const std::string& testo) {
    std::string righe;
    for (const std::string& riga : Dividi(testo, '\n')) {
        std::string piena;
        for (const std::string& cella : Dividi(riga, '\t'))
            piena = Riempi(piena, (piena.size() + kLarghezzaColonna - 1) / kLarghezzaColonna *
                                      kLarghezzaColonna) +
                    cella;
        righe += piena + "\n";
    }
    righe.pop_back();
    return righe;
}

} // namespace

bool SalvaTabellaCome(Scrivania& s, const ContenutoTabella& tabella, const std::string& nome,
                      const std::filesystem::path& percorso, VistaAttesa& vista) {
    const auto formato = FormatoReportDaPercorso(percorso);
    if (formato != FormatoReport::Pdf && formato != FormatoReport::Rtf)
        return SalvaComeTesto(s, percorso, tabella);
    // The layout prints the header itself.
    const std::string righe = Incolonna(TestoTabella(tabella, ""));
    RichiestaDocumento r{.TablePath =
                             NomeProprio(std::filesystem::path(percorso).replace_extension("TPT")),
                         .HeaderPath = s.albero.Host(kFileHeader),
                         .Title = nome,
                         .OutPath = percorso};
    if (!SalvaFuori(r.TablePath, {reinterpret_cast<const uint8_t*>(righe.data()), righe.size()})) {
        std::error_code errore;
        std::filesystem::remove(r.TablePath, errore);
        s.ambiente.Mostra(
            {.testo = "Cannot open file " + Utf8DaPath(percorso), .icona = Icona::Esclamazione});
        return false;
    }
    const EsitoDocumento esito = ConvertiTestoInPDFRTF(s, vista, r);
    if (esito != EsitoDocumento::Fatto && esito != EsitoDocumento::Occupato)
        s.ambiente.Mostra({.testo = TestoEsito(esito, r), .icona = Icona::Esclamazione});
    return esito == EsitoDocumento::Fatto;
}

} // namespace orvane
