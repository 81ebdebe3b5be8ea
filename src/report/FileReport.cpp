#include "report/FileReport.h"

#include <algorithm>
#include <cstdio>
#include <system_error>

#include "data/NomiDisco.h"
#include "report/RigheFile.h"
#include "report/clsPDFCreator.h"

namespace orvane {
namespace {

/// Whether a byte begins a character.
bool Inizio(char byte) {
    return (byte & 0xC0) != 0x80;
}

/// Bytes of the first `quanti` characters; npos where the text has no more than these.
size_t ByteDi(std::string_view testo, size_t quanti) {
    for (size_t i = 0; i < testo.size(); ++i)
        if (Inizio(testo[i]) && quanti-- == 0)
            return i;
    return std::string_view::npos;
}

} // namespace

CarattereFoglio DetDimCaratEOrientMeasurePDF(int colonne) {
    if (colonne <= 6)
        return {10.0f, kFoglioVerticale};
    return {8.0f, colonne <= 8 ? kFoglioVerticale : kFoglioOrizzontale};
}

float DetDimCarattereTabella(int colonne) {
    return colonne < 8 ? 10.0f : colonne == 8 ? 7.0f : 4.5f;
}

CarattereFoglio DetCarattereEOrientazione(bool orizzontale, bool datiMast) {
    if (orizzontale)
        return {8.0f, kFoglioOrizzontale};
    return {datiMast ? 8.0f : 10.0f, kFoglioVerticale};
}

bool ControllaFilePDFAperto(Ambiente& ambiente, std::filesystem::path& percorso) {
    if (percorso.empty())
        percorso = NomeInventatoPdf(ambiente);
    std::error_code errore;
    const bool nuovo = !std::filesystem::exists(percorso, errore);
    const bool siApre = FileC(std::fopen(percorso.string().c_str(), "ab")) != nullptr;
    if (nuovo && siApre)
        std::filesystem::remove(percorso, errore);
    if (!siApre)
        ambiente.Mostra(
            {.testo = Utf8DaPath(percorso) + " Is already open", .icona = Icona::Esclamazione});
    return siApre;
}

bool StampaFileHeader(const std::filesystem::path& header, std::string& canale) {
    std::error_code errore;
    if (!std::filesystem::exists(header, errore))
        return true;
    RigheFile righe(header);
    bool vuota = true;
    while (const auto riga = righe.Prossima()) {
        canale += *riga + "\n";
        vuota = riga->empty();
    }
    if (!vuota)
        canale += "\n";
    return righe.Aperto() && !righe.Interrotto();
}

std::vector<std::string> SpezzaRigaHeader(std::string_view riga, size_t massimo) {
    std::vector<std::string> pezzi;
    for (size_t limite; (limite = ByteDi(riga, massimo)) != std::string_view::npos;) {
        const size_t testo = riga.find_first_not_of(' ');
        size_t taglio = riga.rfind(' ', limite);
        const bool diviso = taglio != std::string_view::npos && testo < taglio;
        if (!diviso)
            taglio = limite;
        pezzi.emplace_back(riga.substr(0, taglio));
        riga.remove_prefix(diviso ? taglio + 1 : taglio);
    }
    pezzi.emplace_back(riga);
    return pezzi;
}

} // namespace orvane
