// `orvane archive` with the words that change the archive.
#include <array>
#include <ostream>

#include "console/Archivio.h"
#include "data/Cancellazioni.h"
#include "data/Incompiute.h"
#include "verbs/Argomenti.h"
#include "verbs/Json.h"
#include "verbs/ParoleArchivio.h"

namespace orvane {
namespace {

constexpr std::array kParole = {
    ParolaArchivio{"show", ArchivioShow},         ParolaArchivio{"accept", ArchivioAccept},
    ParolaArchivio{"delete", ArchivioDelete},     ParolaArchivio{"rename", ArchivioRename},
    ParolaArchivio{"redo", ArchivioRedo},         ParolaArchivio{"difference", ArchivioDifference},
    ParolaArchivio{"envelope", ArchivioEnvelope},
};

/// One line, or one member.
void Stampa(Banco& banco, std::string_view nome, std::string_view valore) {
    if (banco.json)
        banco.dati << Json().Oggetto().Coppia(nome, valore).Chiudi().Documento() << "\n";
    else
        banco.dati << valore << "\n";
}

/// What follows stores the environment, and asks as the panel has it.
void CaricaPannelli(Banco& banco) {
    AvviaInLettura(banco.scrivania, banco.ricevitore.porta.link, banco.linkScelto);
}

} // namespace

std::span<const ParolaArchivio> ParoleArchivio() {
    return kParole;
}

std::optional<std::string> MisuraDaParola(Banco& banco, const std::string& parola,
                                          EsitoVerbo& esito) {
    const auto misura = NomeDaParola(parola);
    esito = kFatto;
    if (!misura)
        esito = UsoErrato(banco, "archive", "\"" + parola + "\" is no valid name");
    else if (!banco.scrivania.albero.EsisteCartella(CartellaMisura(*misura)))
        esito = Guasto(banco, kGuastoFile, "there is no measure " + CartellaMisura(*misura));
    return esito == kFatto ? misura : std::nullopt;
}

/// The measure stands as it is: it no longer counts as cut off.
EsitoVerbo ArchivioAccept(Banco& banco, Parole parole) {
    if (parole.size() != 1)
        return UsoErrato(banco, "archive", "accept wants one MEASURE");
    EsitoVerbo esito = kFatto;
    const auto misura = MisuraDaParola(banco, parole[0], esito);
    if (!misura)
        return esito;
    const AlberoDati& albero = banco.scrivania.albero;
    if (MisuraInCorso(albero, *misura))
        return Guasto(banco, kGuastoFile, *misura + " is being measured");
    if (MisuraIncompiuta(albero, *misura) && !TogliSegnoCorsa(albero, *misura))
        return Guasto(banco, kGuastoFile, "cannot delete " + PercorsoSegnoCorsa(*misura));
    return kFatto;
}

/// Each with its question; the first that stays ends it.
EsitoVerbo ArchivioDelete(Banco& banco, Parole parole) {
    if (parole.empty())
        return UsoErrato(banco, "archive", "delete wants a MEASURE, or several");
    std::vector<std::string> misure;
    for (const std::string& parola : parole) {
        EsitoVerbo esito = kFatto;
        const auto misura = MisuraDaParola(banco, parola, esito);
        if (!misura)
            return esito;
        misure.push_back(*misura);
    }
    CaricaPannelli(banco);
    for (const std::string& misura : misure) {
        const auto voce = LeggiVoce(banco.scrivania, misura);
        if (CancellaMisura(banco.scrivania, misura))
            continue;
        const auto resta = LeggiVoce(banco.scrivania, misura);
        // A No leaves everything as it was; a failure has taken what it could.
        const bool intatta = resta.leggibile == voce.leggibile && resta.passi == voce.passi;
        return intatta ? kRifiutato : kGuastoFile;
    }
    return kFatto;
}

EsitoVerbo ArchivioRename(Banco& banco, Parole parole) {
    if (parole.size() != 2)
        return UsoErrato(banco, "archive", "rename wants a MEASURE and its new NAME");
    EsitoVerbo esito = kFatto;
    const auto misura = MisuraDaParola(banco, parole[0], esito);
    const auto nuovo = NomeDaParola(parole[1]);
    if (!misura)
        return esito;
    if (!nuovo)
        return UsoErrato(banco, "archive", "\"" + parole[1] + "\" is no valid name");
    if (banco.scrivania.albero.EsisteCartella(CartellaMisura(*nuovo)))
        return Guasto(banco, kRifiutato, "there is a measure " + *nuovo);
    CaricaPannelli(banco);
    return RinominaMisura(banco.scrivania, *misura, *nuovo) ? kFatto : kGuastoFile;
}

EsitoVerbo ArchivioRedo(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, {"name"});
    if (!argomenti.Errore().empty() || argomenti.Posizioni().size() != 1)
        return UsoErrato(banco, "archive",
                         argomenti.Errore().empty() ? "redo wants one MEASURE"
                                                    : argomenti.Errore());
    EsitoVerbo esito = kFatto;
    const auto misura = MisuraDaParola(banco, argomenti.Posizioni()[0], esito);
    if (!misura)
        return esito;
    const auto nome = NomeDaParola(argomenti.Opzione("name").value_or(*misura));
    if (!nome)
        return UsoErrato(banco, "archive", "the name of the scan table is no valid name");
    const MisuraAperta aperta = ApriIntestazione(banco.scrivania, *misura);
    if (!aperta.leggibile)
        return kGuastoFile;
    CaricaPannelli(banco);
    ScanRecord scan;
    const auto percorso = RedoTabella(banco.scrivania, aperta.header.Scan, *nome, scan);
    if (!percorso)
        return kRifiutato;
    Stampa(banco, "scan", *percorso);
    return kFatto;
}

} // namespace orvane
