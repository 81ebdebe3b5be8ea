#include "data/CaricaSalva.h"
#include "data/NomiTabelle.h"

#include <algorithm>

#include "base/PaginaCodici.h"
#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/Cancellazioni.h"
#include "data/Cartelle.h"
#include "data/NomiDialogo.h"
#include "data/NomiDisco.h"
#include "data/Panels.h"

namespace orvane {
namespace {

constexpr size_t kPercorsoComune = 2;

Risposta Chiedi(const Scrivania& s, const std::string& testo) {
    return s.ambiente.Mostra(
        {.testo = testo, .icona = Icona::Esclamazione, .pulsanti = Pulsanti::SiNo});
}

void Avvisa(const Scrivania& s, const std::string& testo) {
    s.ambiente.Mostra({.testo = testo, .icona = Icona::Esclamazione});
}

/// What the user wrote, without the extension of this kind of file.
std::string NomeNudo(const RichiestaFile& richiesta, std::string_view nome) {
    const std::string testo = Rifila(nome);
    return UgualiSenzaMaiuscole(EstraiEstensione(testo), richiesta.estensione)
               ? RimuoviEstensione(testo)
               : testo;
}

bool NomeDaSalvare(const std::string& nome) {
    const auto controllo = [](char c) { return static_cast<unsigned char>(c) < 0x20; };
    // A record could not name a file with letters from outside the code page.
    return NomeTabellaAmmesso(nome) && NominaTabella(nome) && NellaPagina(nome) &&
           ControllaNomeMisura(nome) == nome && std::none_of(nome.begin(), nome.end(), controllo);
}

std::nullopt_t RifiutaNome(const Scrivania& s) {
    Avvisa(s, "File name not valid");
    return std::nullopt;
}

std::string Percorso(const RichiestaFile& richiesta, const std::string& nome) {
    return richiesta.cartella + nome + "." + richiesta.estensione;
}

} // namespace

RichiestaFile RichiestaTabella(TableKind kind) {
    switch (kind) {
    case TableKind::Limite:
        return {.cartella = std::string(cartella::kLimits), .estensione = "5SL", .gruppo = "Limit"};
    case TableKind::Fattore:
        return {
            .cartella = std::string(cartella::kFactors), .estensione = "5SC", .gruppo = "Factor"};
    case TableKind::Frequenze:
        return {.cartella = std::string(cartella::kTable), .estensione = "5SF", .gruppo = "Table"};
    case TableKind::FrequenzeMast:
        break;
    }
    return {.cartella = std::string(cartella::kMastTable), .estensione = "FTM", .gruppo = "Table"};
}

std::string TitoloCaricaSalva(const RichiestaFile& richiesta, bool salva) {
    return salva ? "Save " + richiesta.gruppo + " As" : "Load " + richiesta.gruppo;
}

std::optional<std::string> CmdLoad(const Scrivania& s, const RichiestaFile& richiesta,
                                   std::string_view nome) {
    const std::string nudo = NomeNudo(richiesta, nome);
    if (!NomeTabellaAmmesso(nudo))
        return RifiutaNome(s);
    const std::string percorso = Percorso(richiesta, nudo);
    if (!ControllaNomeDialogo(s.ambiente, percorso) ||
        ControllaLunghezzaNome(s.ambiente, percorso, richiesta.lunghezza, ModoDialogo::Carica)
            .empty())
        return std::nullopt;
    return percorso;
}

std::optional<std::string> CmdSave(const Scrivania& s, const RichiestaFile& richiesta,
                                   std::string_view nome) {
    const std::string nudo = NomeNudo(richiesta, nome);
    if (!NomeDaSalvare(nudo))
        return RifiutaNome(s);
    const std::string percorso = ControllaLunghezzaNome(s.ambiente, Percorso(richiesta, nudo),
                                                        richiesta.lunghezza, ModoDialogo::Salva);
    if (s.albero.Esiste(percorso) &&
        Chiedi(s, EstraiNomeFile(percorso) + " exists already.\rDo you want to replace it?") !=
            Risposta::Si)
        return std::nullopt;
    return percorso;
}

bool CMBDelete(const Scrivania& s, const RichiestaFile& richiesta, std::string_view nome,
               const ScanRecord& scan) {
    const std::string nudo = NomeNudo(richiesta, nome);
    const std::string percorso = Percorso(richiesta, nudo);
    const bool ammesso = NomeTabellaAmmesso(nudo);
    if (ammesso && !s.albero.Esiste(percorso))
        return true;
    if (ammesso && Chiedi(s, "Delete " + nudo) != Risposta::Si)
        return false;
    if (ammesso && !TabellaInUso(s, scan, percorso) && s.albero.Cancella(percorso))
        return true;
    Avvisa(s, "Cannot be deleted");
    return false;
}

std::string UltimoPercorso(Scrivania& s) {
    CaricaPathPTH(s);
    return s.path.Percorsi[kPercorsoComune];
}

void RicordaPercorso(Scrivania& s, const std::string& percorso) {
    s.path.Percorsi[kPercorsoComune] = percorso;
    SalvaPathPTH(s);
}

} // namespace orvane
