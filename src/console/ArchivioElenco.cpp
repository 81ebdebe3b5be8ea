// The list of the archive: its order, its neighbours, what is deleted from it and made anew.
#include <algorithm>

#include "base/Percorsi.h"
#include "console/Archivio.h"
#include "data/Avvisi.h"
#include "data/Cancellazioni.h"
#include "data/Incompiute.h"
#include "data/NomiDisco.h"
#include "data/Panels.h"
#include "data/Rinomine.h"

namespace orvane {
namespace {

/// Index of a name in the list; empty for none.
std::optional<size_t> Posto(const StatoArchivio& a, const std::string& nome) {
    const auto voce = std::ranges::find_if(
        a.elenco, [&](const std::string& n) { return ChiaveNome(n) == ChiaveNome(nome); });
    if (nome.empty() || voce == a.elenco.end())
        return std::nullopt;
    return static_cast<size_t>(voce - a.elenco.begin());
}

/// What leads to a measure that is no more.
void Dimentica(StatoArchivio& a, const std::string& nome) {
    if (a.riferimento && ChiaveNome(a.riferimento->nome) == ChiaveNome(nome))
        TogliRiferimento(a);
    TogliSovrapposta(a, nome);
}

} // namespace

int ElencaArchivio(Scrivania& s, StatoArchivio& a) {
    a.elenco = ElencaNomiMisure(s, s.setup.OrderForDate != 0 ? OrdineArchivio::PerData
                                                             : OrdineArchivio::PerNome);
    return static_cast<int>(a.elenco.size());
}

std::string MisuraVicina(const StatoArchivio& a, const std::string& nome) {
    const auto posto = Posto(a, nome);
    if (!posto || a.elenco.size() < 2)
        return {};
    return a.elenco[*posto + 1 < a.elenco.size() ? *posto + 1 : *posto - 1];
}

std::string MisuraAccanto(const StatoArchivio& a, int passi) {
    if (a.elenco.empty())
        return {};
    const auto posto = Posto(a, a.misura.nome);
    if (!posto)
        return a.elenco.front();
    const long ultimo = static_cast<long>(a.elenco.size()) - 1;
    return a.elenco[static_cast<size_t>(
        std::clamp<long>(static_cast<long>(*posto) + passi, 0, ultimo))];
}

std::optional<EsitoMostra> EliminaMisura(Scrivania& s, StatoArchivio& a, const std::string& nome) {
    const std::string vicina = MisuraVicina(a, nome);
    const bool aveva = s.albero.Esiste(TrovaKSH(s.albero, nome));
    const bool andata = CancellaMisura(s, nome);
    if (!andata && s.albero.Esiste(TrovaKSH(s.albero, nome)) == aveva)
        return std::nullopt;
    Dimentica(a, nome);
    ElencaArchivio(s, a);
    EsitoMostra esito{.mostrata = a.misura.nome, .elencoCambiato = true};
    if (a.misura.nome.empty() || ChiaveNome(a.misura.nome) == ChiaveNome(nome))
        esito.mostrata = VisualizzaDatiSweepata(s, a, vicina).mostrata;
    return esito;
}

bool RinominaMisura(Scrivania& s, const std::string& da, const std::string& a) {
    const auto rifiuta = [&](std::string testo) {
        s.ambiente.Mostra({.testo = std::move(testo), .icona = Icona::Esclamazione});
        return false;
    };
    if (!NomeMisuraAmmesso(a))
        return rifiuta("Not valid name\r" + a);
    if (s.albero.EsisteCartella(CartellaMisura(a)))
        return rifiuta("Sweep " + a + " already exists.");
    if (MisuraInCorso(s.albero, da))
        return rifiuta("Sweep " + da + " is being measured");
    CatenaRinomine catena(s.albero);
    if (!catena.RinominaMisura(da, a))
        return AvvisaScrittura(s, catena.Guasto());
    catena.Conferma();
    if (ChiaveNome(EstraiNomeFile(s.env.SweepPath)) == ChiaveNome(da)) {
        s.env.SweepPath = PercorsoKSH(a);
        SalvaPanelEPN(s, kPannelloEPN);
    }
    return true;
}

std::optional<std::string> RedoTabella(Scrivania& s, const ScanRecord& dellaMisura,
                                       const std::string& nome, ScanRecord& scan) {
    const std::string deciso = RedoProfiloB(s, nome);
    if (deciso.empty())
        return std::nullopt;
    const std::string percorso = PercorsoPannello(deciso, "EST");
    if (!SalvaPanelEST(s, percorso, dellaMisura))
        return std::nullopt;
    scan = dellaMisura;
    s.env.ScanPanelPath = percorso;
    SalvaPanelEPN(s, kPannelloEPN);
    return percorso;
}

bool RedoDaMeasureAScanTab(Console& c, const std::string& nome) {
    const MisuraAperta& misura = c.stato.archivio.misura;
    if (!c.stato.archivio.Mostrata())
        return false;
    const std::string come = nome.empty() ? misura.nome : nome;
    if (!RedoTabella(c.scrivania, misura.header.Scan, come, c.scan))
        return false;
    ClickSSTabMode(c, Modalita::Sweep);
    return true;
}

} // namespace orvane
