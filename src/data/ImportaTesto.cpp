#include "data/ImportaTesto.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <system_error>

#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "data/FileFuori.h"
#include "data/FileProvvisorio.h"
#include "data/FileTesto.h"
#include "data/NomiDisco.h"

namespace orvane {
namespace {

constexpr size_t kRigheElencate = 15;
constexpr size_t kFileMassimo = 4 << 20;
constexpr std::array kColonne = {ColonnaTabella::Frequenza, ColonnaTabella::Livello,
                                 ColonnaTabella::Mast, ColonnaTabella::Table};

std::vector<std::string> Righe(std::string_view testo) {
    auto righe = Dividi(Sostituisci(Sostituisci(testo, "\r\n", "\n"), "\r", "\n"), '\n');
    if (righe.back().empty())
        righe.pop_back(); // the end of the last line begins no further one
    return righe;
}

/// Cuts the first field off.
std::string PrimoCampo(std::string& riga) {
    const size_t fine = TrovaSepValueTabTXT(riga).value_or(riga.size());
    std::string campo = riga.substr(0, fine);
    riga = RifilaControlli(std::string_view(riga).substr(std::min(fine + 1, riga.size())));
    return campo;
}

/// The fields of a line in the order of the columns. The rest behind the frequency is the level;
/// only where positions follow is it divided further.
std::vector<std::string> CampiDellaRiga(TableKind kind, std::string riga) {
    riga = RifilaControlli(riga);
    std::vector<std::string> campi = {PrimoCampo(riga)};
    while (!riga.empty() && kind == TableKind::FrequenzeMast && campi.size() + 1 < kColonne.size())
        campi.push_back(PrimoCampo(riga));
    if (!riga.empty())
        campi.push_back(riga);
    return campi;
}

/// The row that a line's fields make, by the rules of typed cells; empty where one is no value.
std::optional<RigaTabella> PuntoDaCampi(const ContenutoTabella& c,
                                        const std::vector<std::string>& campi) {
    ContenutoTabella sola{.kind = c.kind, .unitId = c.unitId};
    size_t riga = 0;
    for (size_t i = 0; i < campi.size() && i < kColonne.size(); ++i)
        if (ScriviCella(sola, riga, kColonne[i], campi[i]) != EsitoModifica::Fatta)
            return std::nullopt;
    if (sola.righe.size() != 1 || !RigaCompletaTabella(sola.righe[0]))
        return std::nullopt;
    return sola.righe[0];
}

void Annota(EsitoImporto& esito, EsitoModifica quale, size_t numeroRiga) {
    switch (quale) {
    case EsitoModifica::Fatta:
        ++esito.aggiunti;
        break;
    case EsitoModifica::NonValida:
        if (esito.nonValide.size() <= kRigheElencate)
            esito.nonValide.push_back(numeroRiga);
        break;
    case EsitoModifica::TroppeUguali:
    case EsitoModifica::GiaPresente:
        ++esito.doppi;
        break;
    case EsitoModifica::Piena:
        esito.piena = true;
        break;
    }
}

EsitoModifica AggiungiRiga(ContenutoTabella& c, const std::vector<std::string>& campi) {
    const auto punto = PuntoDaCampi(c, campi);
    return punto ? InserisciPunto(c, *punto) : EsitoModifica::NonValida;
}

/// Fills cells of one row that is there; all of them or none.
EsitoModifica RiempiRiga(ContenutoTabella& c, size_t riga, size_t colonna,
                         const std::vector<std::string>& campi) {
    if (riga >= c.righe.size())
        return EsitoModifica::NonValida;
    ContenutoTabella prova = c;
    for (const std::string& campo : campi) {
        if (colonna == kColonne.size())
            break;
        if (ScriviCella(prova, riga, kColonne[colonna++], campo) != EsitoModifica::Fatta)
            return EsitoModifica::NonValida;
    }
    c = std::move(prova);
    return EsitoModifica::Fatta;
}

/// Each line as it stands, and an empty one below the last.
std::string TestoHeader(std::string_view header) {
    std::string testo;
    const auto righe = Righe(header);
    for (const std::string& riga : righe)
        testo += riga + "\r\n";
    return !righe.empty() && !righe.back().empty() ? testo + "\r\n" : testo;
}

} // namespace

std::optional<size_t> TrovaSepValueTabTXT(std::string_view riga) {
    for (const char separatore : {' ', '\t', ';', ':'})
        if (const auto qui = riga.find(separatore); qui != std::string_view::npos)
            return qui;
    return std::nullopt;
}

EsitoImporto ImportaTesto(ContenutoTabella& c, std::string_view testo) {
    EsitoImporto esito;
    size_t numero = 0;
    for (const std::string& riga : Righe(testo)) {
        Annota(esito, AggiungiRiga(c, CampiDellaRiga(c.kind, riga)), ++numero);
        if (esito.piena)
            break;
    }
    return esito;
}

EsitoImporto IncollaColonne(ContenutoTabella& c, std::string_view testo, size_t riga,
                            ColonnaTabella colonna) {
    EsitoImporto esito;
    size_t numero = 0;
    for (const std::string& linea : Righe(testo)) {
        ++numero;
        if (RifilaControlli(linea).empty())
            continue;
        const auto campi = Dividi(linea, Contiene(linea, "\t") ? '\t' : ';');
        const bool nuova = colonna == ColonnaTabella::Frequenza;
        Annota(esito,
               nuova ? AggiungiRiga(c, campi)
                     : RiempiRiga(c, riga++, static_cast<size_t>(colonna), campi),
               numero);
        if (esito.piena)
            break;
    }
    return esito;
}

void AvvisaImporto(Ambiente& ambiente, const EsitoImporto& esito, TableKind kind) {
    if (esito.piena)
        AvvisaModifica(ambiente, EsitoModifica::Piena, kind);
    if (esito.nonValide.empty())
        return;
    std::vector<std::string> numeri;
    for (size_t i = 0; i < std::min(esito.nonValide.size(), kRigheElencate); ++i)
        numeri.push_back(TestoIntero(static_cast<long long>(esito.nonValide[i])));
    const std::string altre = esito.nonValide.size() > kRigheElencate ? "..." : "";
    ambiente.Mostra({.testo = "Line File: " + Unisci(numeri, ", ") + altre + ".\rNot valid value",
                     .icona = Icona::Esclamazione});
}

std::optional<std::string> LeggiFileTesto(const std::filesystem::path& file) {
    std::error_code errore;
    if (!std::filesystem::is_regular_file(file, errore))
        return std::nullopt;
    const FileC aperto(std::fopen(file.string().c_str(), "rb"));
    if (!aperto)
        return std::nullopt;
    std::string testo(kFileMassimo, '\0');
    testo.resize(std::fread(testo.data(), 1, testo.size(), aperto.get()));
    if (std::ferror(aperto.get()))
        return std::nullopt;
    return testo;
}

std::string CopiaRighe(const ContenutoTabella& c, std::span<const size_t> righe) {
    std::string testo;
    for (const size_t riga : righe) {
        for (int i = 0; i < NumeroColonneTabella(c.kind); ++i)
            testo += (i > 0 ? "\t" : "") + TestoCella(c, riga, static_cast<ColonnaTabella>(i));
        testo += "\r\n";
    }
    return testo;
}

std::string TestoTabella(const ContenutoTabella& c, std::string_view header) {
    std::vector<size_t> complete;
    for (size_t riga = 0; riga < c.righe.size(); ++riga)
        if (RigaCompletaTabella(c.righe[riga]))
            complete.push_back(riga);
    return TestoHeader(header) + InAnsi(c.titolo) + "\r\n" + CopiaRighe(c, complete);
}

bool SalvaComeTesto(const Scrivania& s, const std::filesystem::path& file,
                    const ContenutoTabella& c) {
    const auto header = s.albero.Leggi(kFileHeader).value_or(std::vector<uint8_t>{});
    const std::string testo = TestoTabella(c, std::string(header.begin(), header.end()));
    if (SalvaFuori(file, std::vector<uint8_t>(testo.begin(), testo.end())))
        return true;
    std::error_code errore;
    s.ambiente.Mostra(
        {.testo = "Cannot open file " + Utf8DaPath(std::filesystem::absolute(file, errore)),
         .icona = Icona::Esclamazione});
    return false;
}

} // namespace orvane
