#include "data/CaricaSalva.h"

#include <algorithm>

#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/NomiDialogo.h"
#include "data/NomiDisco.h"

namespace orvane {
namespace {

constexpr std::string_view kNessuno = "NONE";

Risposta Chiedi(const Scrivania& s, const std::string& testo) {
    return s.ambiente.Mostra(
        {.testo = testo, .icona = Icona::Esclamazione, .pulsanti = Pulsanti::SiNo});
}

void Avvisa(const Scrivania& s, const std::string& testo) {
    s.ambiente.Mostra({.testo = testo, .icona = Icona::Esclamazione});
}

bool StessoNome(std::string_view a, std::string_view b) {
    return ChiaveNome(Rifila(a)) == ChiaveNome(Rifila(b));
}

/// What the user wrote, without the extension of this kind of file.
std::string NomeNudo(const RichiestaFile& richiesta, std::string_view nome) {
    const std::string testo = Rifila(nome);
    return UgualiSenzaMaiuscole(EstraiEstensione(testo), richiesta.estensione)
               ? RimuoviEstensione(testo)
               : testo;
}

std::string File(const RichiestaFile& richiesta, const std::string& nome) {
    return nome + "." + richiesta.estensione;
}

/// The name once it is no longer than a record holds; empty after the box that refuses it.
std::string ControllaLunghezza(const Scrivania& s, const RichiestaFile& richiesta,
                               const std::string& nome, ModoDialogo modo) {
    return RimuoviEstensione(ControllaLunghezzaNome(s.ambiente, File(richiesta, nome),
                                                    static_cast<int>(richiesta.lunghezza), modo));
}

bool NomeAmmesso(const std::string& nome) {
    return NomeTabellaAmmesso(nome) && !UgualiSenzaMaiuscole(nome, kNessuno) &&
           ControllaNomeMisura(nome) == nome;
}

std::string ConEstensione(const RichiestaFile& richiesta, const std::string& nome) {
    return nome + "." + richiesta.estensione;
}

std::string Percorso(const RichiestaFile& richiesta, const std::string& nome) {
    return richiesta.cartella + File(richiesta, nome);
}

bool UsatoDallaRiga(const ScanLine& riga, const std::string& estensione, std::string_view nome) {
    if (riga.Start == 0)
        return false;
    if (estensione == "5SL")
        return StessoNome(riga.Limit, nome) || StessoNome(riga.LimitDSD, nome);
    return estensione == "5SF" && StessoNome(riga.FreqTable, nome);
}

bool UsatoDalPannello(const Scrivania& s, const std::string& estensione, std::string_view nome) {
    const auto usato = [&](const std::string& altro) { return StessoNome(altro, nome); };
    if (estensione == "5SL")
        return std::any_of(s.setup.LimitName.begin(), s.setup.LimitName.end(), usato);
    if (estensione == "5SC")
        return std::any_of(s.setup.FactorName.begin(), s.setup.FactorName.end(), usato);
    if (estensione == "EAM")
        return usato(EstraiNomeFile(s.env.SetupPanelPath));
    return estensione == "EST" && usato(EstraiNomeFile(s.env.ScanPanelPath));
}

} // namespace

RichiestaFile RichiestaTabella(TableKind kind) {
    switch (kind) {
    case TableKind::Limite:
        return {.cartella = "Limits\\", .estensione = "5SL", .gruppo = "Limit"};
    case TableKind::Fattore:
        return {.cartella = "Factors\\", .estensione = "5SC", .gruppo = "Factor"};
    case TableKind::Frequenze:
        return {.cartella = "Table\\", .estensione = "5SF", .gruppo = "Table"};
    case TableKind::FrequenzeMast:
        break;
    }
    return {.cartella = "Mast-Table\\", .estensione = "FTM", .gruppo = "Table"};
}

std::string TitoloCaricaSalva(const RichiestaFile& richiesta, bool salva) {
    return salva ? "Save " + richiesta.gruppo + " As" : "Load " + richiesta.gruppo;
}

std::optional<std::string> CmdLoad(const Scrivania& s, const RichiestaFile& richiesta,
                                   std::string_view nome) {
    const std::string nudo = NomeNudo(richiesta, nome);
    if (!ControllaNomeDialogo(s.ambiente, File(richiesta, nudo)) ||
        ControllaLunghezza(s, richiesta, nudo, ModoDialogo::Carica).empty())
        return std::nullopt;
    return NomeTabellaAmmesso(nudo) ? std::optional(Percorso(richiesta, nudo)) : std::nullopt;
}

std::optional<std::string> CmdSave(const Scrivania& s, const RichiestaFile& richiesta,
                                   std::string_view nome) {
    std::string nudo = NomeNudo(richiesta, nome);
    if (!NomeSalvabile(nudo)) {
        Avvisa(s, "File name not valid");
        return std::nullopt;
    }
    nudo = ControllaLunghezza(s, richiesta, nudo, ModoDialogo::Salva);
    const std::string percorso = Percorso(richiesta, nudo);
    if (s.albero.Esiste(percorso) &&
        Chiedi(s, nudo + " exists already.\rDo you want to replace it?") != Risposta::Si)
        return std::nullopt;
    return percorso;
}

bool NomeInUso(const Scrivania& s, const RichiestaFile& richiesta, std::string_view nome,
               const ScanTable& tabella) {
    return UsatoDalPannello(s, richiesta.estensione, nome) ||
           std::any_of(tabella.begin(), tabella.end(), [&](const ScanLine& riga) {
               return UsatoDallaRiga(riga, richiesta.estensione, nome);
           });
}

bool CMBDelete(const Scrivania& s, const RichiestaFile& richiesta, std::string_view nome,
               const ScanTable& tabella) {
    const std::string nudo = NomeNudo(richiesta, nome);
    const std::string percorso = Percorso(richiesta, nudo);
    if (!NomeTabellaAmmesso(nudo) || !s.albero.Esiste(percorso))
        return false;
    if (Chiedi(s, "Delete " + nudo) != Risposta::Si)
        return false;
    if (!NomeInUso(s, richiesta, nudo, tabella) && s.albero.Cancella(percorso))
        return true;
    Avvisa(s, "Cannot be deleted");
    return false;
}

} // namespace orvane
