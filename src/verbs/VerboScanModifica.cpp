#include "verbs/VerboScanModifica.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/ControllaRecord.h"
#include "data/Panels.h"
#include "setup/ModificaTabella.h"
#include "setup/RigheScan.h"
#include "setup/TabellaScan.h"
#include "verbs/OpzioniRiga.h"

namespace orvane {
namespace {

/// What a change works with.
struct Cambio {
    Banco& banco;
    const Argomenti& argomenti;
    int ancillaryKind = 0;
    ScanTable& tabella;
};
using Righe = std::vector<ScanLine>;

EsitoVerbo Errore(const Cambio& c, const std::string& perche) {
    return UsoErrato(c.banco, "scan", perche);
}

/// The line that a word names, from 1; what is no line in use is told.
std::optional<size_t> LeggiLinea(const Cambio& c, size_t posizione) {
    const auto& parole = c.argomenti.Posizioni();
    const size_t usate = RigheInUso(c.tabella);
    const auto numero = posizione < parole.size() ? LeggiNumero(parole[posizione]) : std::nullopt;
    const auto riga = static_cast<size_t>(std::clamp(numero.value_or(0), 0.0, 1e6));
    if (numero && static_cast<double>(riga) == *numero && riga >= 1 && riga <= usate)
        return riga - 1;
    Errore(c, "wants a line from 1 to " + TestoIntero(static_cast<long long>(usate)));
    return std::nullopt;
}

/// Lines of a band, with those that a composite one brings along.
Righe RigheDellaBanda(int indice, int ancillaryKind) {
    ScanTable vuota{};
    AggiungiBanda(vuota, TabellaBande()[static_cast<size_t>(indice)], ancillaryKind);
    return {vuota.begin(), vuota.begin() + static_cast<std::ptrdiff_t>(RigheInUso(vuota))};
}

/// A line of its own: start and stop come with the other options, the filter from their middle.
Righe RigaDaFrequenze(const Cambio& c) {
    const auto mhz = [&](const char* opzione) {
        return ValoreIniziale(c.argomenti.Opzione(opzione).value_or(""));
    };
    ScanLine riga;
    ImpostaLineaDefault(riga, c.ancillaryKind);
    riga.RbwId = DetRBWDefault(mhz("start"), mhz("stop"));
    return {riga};
}

/// The lines that the options describe; empty after what is wrong with them was told.
std::optional<Righe> RigheNuove(const Cambio& c, EsitoVerbo& esito) {
    Righe righe;
    const auto banda = c.argomenti.Opzione("band");
    if (banda && TrovaBanda(*banda) < 0) {
        esito = Errore(c, "unknown band \"" + *banda + "\"");
        return std::nullopt;
    }
    if (!banda && (!c.argomenti.Opzione("start") || !c.argomenti.Opzione("stop"))) {
        esito = Errore(c, "wants --band, or --start below --stop, in MHz");
        return std::nullopt;
    }
    righe = banda ? RigheDellaBanda(TrovaBanda(*banda), c.ancillaryKind) : RigaDaFrequenze(c);
    for (ScanLine& riga : righe)
        if (esito = ApplicaOpzioniRiga(c.banco, c.argomenti, c.ancillaryKind, riga);
            esito != kFatto)
            return std::nullopt;
    return righe;
}

EsitoVerbo InserisciPrima(Cambio& c, size_t qui) {
    EsitoVerbo esito = kFatto;
    const auto righe = RigheNuove(c, esito);
    if (!righe)
        return esito;
    return InserisciRighe(c.tabella, qui, *righe)
               ? kFatto
               : Errore(c, "a scan table holds ten lines at most");
}

EsitoVerbo Aggiungi(Cambio& c) {
    return InserisciPrima(c, c.tabella.size());
}

EsitoVerbo Inserisci(Cambio& c) {
    const auto linea = LeggiLinea(c, 2);
    return linea ? InserisciPrima(c, *linea) : kUsoErrato;
}

EsitoVerbo Imposta(Cambio& c) {
    const auto linea = LeggiLinea(c, 2);
    if (!linea)
        return kUsoErrato;
    if (c.argomenti.Opzione("band"))
        return Errore(c, "--band makes lines: use add or insert");
    ScanLine riga = c.tabella[*linea];
    const EsitoVerbo esito = ApplicaOpzioniRiga(c.banco, c.argomenti, c.ancillaryKind, riga);
    if (esito == kFatto)
        c.tabella[*linea] = riga;
    return esito;
}

EsitoVerbo Togli(Cambio& c) {
    const auto linea = LeggiLinea(c, 2);
    if (linea)
        CancellaRiga(c.tabella, *linea);
    return linea ? kFatto : kUsoErrato;
}

EsitoVerbo Sposta(Cambio& c) {
    const auto da = LeggiLinea(c, 2);
    const auto a = da ? LeggiLinea(c, 3) : std::nullopt;
    if (a)
        SpostaRiga(c.tabella, *da, *a);
    return a ? kFatto : kUsoErrato;
}

EsitoVerbo Copia(Cambio& c) {
    const auto linea = LeggiLinea(c, 2);
    if (!linea)
        return kUsoErrato;
    return DuplicaRiga(c.tabella, *linea) ? kFatto
                                          : Errore(c, "a scan table holds ten lines at most");
}

struct VoceModifica {
    std::string_view parola;
    size_t numeri; ///< line numbers behind the name of the table
    bool nuova;    ///< makes a table that is not there
    EsitoVerbo (*esegui)(Cambio&);
};
constexpr std::array kModifiche = {
    VoceModifica{"add", 0, true, Aggiungi}, VoceModifica{"insert", 1, false, Inserisci},
    VoceModifica{"set", 1, false, Imposta}, VoceModifica{"remove", 1, false, Togli},
    VoceModifica{"move", 2, false, Sposta}, VoceModifica{"copy", 1, false, Copia},
};

const VoceModifica* Trova(std::string_view parola) {
    for (const VoceModifica& voce : kModifiche)
        if (voce.parola == parola)
            return &voce;
    return nullptr;
}

} // namespace

EsitoVerbo CaricaTabellaScan(Banco& banco, const std::string& nome, ScanRecord& scan) {
    const std::string percorso = PercorsoPannello(nome, "EST");
    if (!banco.scrivania.albero.Esiste(percorso))
        return Guasto(banco, kGuastoFile, "there is no scan table " + percorso);
    if (!CaricaPanelEST(banco.scrivania, percorso, scan))
        return kGuastoFile;
    ControllaScan(scan);
    CompattaScanTable(scan.Righe);
    return kFatto;
}

EsitoVerbo SalvaTabellaScan(Banco& banco, const std::string& nome, const ScanRecord& scan) {
    return SalvaPanelEST(banco.scrivania, PercorsoPannello(nome, "EST"), scan) ? kFatto
                                                                               : kGuastoFile;
}

bool ModificaLineeScan(std::string_view parola) {
    return Trova(parola) != nullptr;
}

EsitoVerbo EseguiModificaScan(Banco& banco, const std::string& nome, const Argomenti& argomenti,
                              int ancillaryKind) {
    const VoceModifica& voce = *Trova(argomenti.Posizioni()[0]);
    if (argomenti.Posizioni().size() > 2 + voce.numeri)
        return UsoErrato(banco, "scan", "too many words behind " + std::string(voce.parola));
    ScanRecord scan;
    if (!voce.nuova || banco.scrivania.albero.Esiste(PercorsoPannello(nome, "EST")))
        if (const auto esito = CaricaTabellaScan(banco, nome, scan); esito != kFatto)
            return esito;
    Cambio cambio{.banco = banco,
                  .argomenti = argomenti,
                  .ancillaryKind = ancillaryKind,
                  .tabella = scan.Righe};
    const EsitoVerbo esito = voce.esegui(cambio);
    return esito == kFatto ? SalvaTabellaScan(banco, nome, scan) : esito;
}

} // namespace orvane
