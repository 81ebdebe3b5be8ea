#include "data/RegolaNomi.h"

#include <unordered_set>
#include <vector>

#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/Avvisi.h"
#include "data/Cartelle.h"
#include "data/NomiDisco.h"
#include "data/Rinomine.h"

namespace orvane {
namespace {

constexpr int kMassimiCandidati = 1000;

/// What bears the names: measures, or scan tables.
struct Genere {
    std::string_view parola; ///< in front of the name in the boxes
    std::string_view estensione;
    std::vector<std::string> (*elenca)(const AlberoDati&);
    bool (*sposta)(CatenaRinomine&, const std::string& da, const std::string& a);
};

std::string PercorsoEST(const std::string& nome) {
    return std::string(cartella::kPanels) + nome + ".EST";
}

constexpr Genere kMisure = {
    .parola = "Sweep ",
    .estensione = "KSH",
    .elenca = [](const AlberoDati& albero) { return albero.ElencaCartelle(cartella::kSweep); },
    .sposta = [](CatenaRinomine& catena, const std::string& da,
                 const std::string& a) { return catena.RinominaMisura(da, a); }};

constexpr Genere kTabelleScan = {
    .parola = "Scan Table ",
    .estensione = "EST",
    .elenca =
        [](const AlberoDati& albero) {
            std::vector<std::string> nomi = albero.ElencaFile(cartella::kPanels, "EST");
            for (std::string& nome : nomi)
                nome = RimuoviEstensione(nome);
            return nomi;
        },
    .sposta =
        [](CatenaRinomine& catena, const std::string& da, const std::string& a) {
            return catena.Rinomina(PercorsoEST(da), PercorsoEST(a));
        }};

/// What the user wrote, or a path, as a bare name.
std::string NomeNudo(std::string_view nome, std::string_view estensione) {
    const bool percorso = nome.find('\\') != std::string_view::npos ||
                          UgualiSenzaMaiuscole(EstraiEstensione(nome), estensione);
    return percorso ? EstraiNomeFile(nome) : Rifila(nome);
}

bool Chiedi(const Scrivania& s, const std::string& testo) {
    return s.ambiente.Mostra(
               {.testo = testo, .icona = Icona::Esclamazione, .pulsanti = Pulsanti::SiNo}) ==
           Risposta::Si;
}

/// The name, or empty after the box for one that is none.
std::string NomeRichiesto(const Scrivania& s, std::string_view nome, const Genere& genere) {
    std::string nudo = NomeNudo(nome, genere.estensione);
    if (NomeMisuraAmmesso(nudo) && NellaPagina(nudo))
        return nudo;
    s.ambiente.Mostra({.testo = "Not valid name\r" + nudo,
                       .icona = Icona::Esclamazione,
                       .pulsanti = Pulsanti::Ok});
    return {};
}

class Presenti {
public:
    Presenti(const Scrivania& s, const Genere& genere) {
        for (const std::string& nome : genere.elenca(s.albero))
            chiavi_.insert(ChiaveNome(Rifila(nome)));
    }
    bool Ha(const std::string& nome) const { return chiavi_.contains(ChiaveNome(nome)); }

private:
    std::unordered_set<std::string> chiavi_;
};

std::string Candidato(const std::string& nome, int numero) {
    return nome + "_" + TestoIntero(numero, 3);
}

/// The first number from 0 that nothing bears; `kMassimiCandidati` if all are taken.
int NumeroLibero(const std::string& nome, const Presenti& presenti) {
    int numero = 0;
    while (numero < kMassimiCandidati && presenti.Ha(Candidato(nome, numero)))
        ++numero;
    return numero;
}

bool ChiediSostituire(const Scrivania& s, const std::string& nome) {
    return !s.setup.OverwriteWarning || Chiedi(s, nome + " already exists.\rReplace it to?");
}

bool ChiediRinominare(const Scrivania& s, const Genere& genere, const std::string& nome,
                      const std::string& candidato) {
    return s.setup.OverwriteWarning &&
           Chiedi(s, std::string(genere.parola) + nome + " already exists.\rRename in " +
                         candidato + "?");
}

bool ChiediCoprire(const Scrivania& s) {
    return !s.setup.OverwriteWarning || Chiedi(s, "Replace it?");
}

/// From the highest number to the lowest, so that each finds its new name free; then the name
/// itself.
bool Scala(const Scrivania& s, const Genere& genere, const std::string& nome, int libero) {
    CatenaRinomine catena(s.albero);
    bool bene = true;
    for (int numero = libero - 1; numero >= 0 && bene; --numero)
        bene = genere.sposta(catena, Candidato(nome, numero), Candidato(nome, numero + 1));
    bene = bene && genere.sposta(catena, nome, Candidato(nome, 0));
    if (bene)
        catena.Conferma();
    else
        catena.Annulla();
    return bene || AvvisaScrittura(s, catena.Guasto());
}

bool ProfiloA(const Scrivania& s, std::string_view nome, const Genere& genere) {
    const std::string nudo = NomeRichiesto(s, nome, genere);
    if (nudo.empty())
        return false;
    const Presenti presenti(s, genere);
    if (!presenti.Ha(nudo))
        return true;
    const int libero = NumeroLibero(nudo, presenti);
    if (libero == kMassimiCandidati)
        return ChiediSostituire(s, nudo);
    // The question names the first number, whether it is free or becomes so.
    if (ChiediRinominare(s, genere, nudo, Candidato(nudo, 0)))
        return Scala(s, genere, nudo, libero);
    return ChiediCoprire(s);
}

std::string ProfiloB(const Scrivania& s, std::string_view nome, const Genere& genere) {
    const std::string nudo = NomeRichiesto(s, nome, genere);
    if (nudo.empty())
        return {};
    const Presenti presenti(s, genere);
    if (!presenti.Ha(nudo))
        return nudo;
    const int libero = NumeroLibero(nudo, presenti);
    if (libero == kMassimiCandidati)
        return ChiediSostituire(s, nudo) ? nudo : "";
    if (ChiediRinominare(s, genere, nudo, Candidato(nudo, libero)))
        return Candidato(nudo, libero);
    return ChiediCoprire(s) ? nudo : "";
}

} // namespace

bool ControlNameMeasProfiloA(Scrivania& s, std::string_view nome) {
    return ProfiloA(s, nome, kMisure);
}

std::string ControlNameMeasProfiloB(Scrivania& s, std::string_view nome) {
    return ProfiloB(s, nome, kMisure);
}

bool RedoProfiloA(Scrivania& s, std::string_view nome) {
    return ProfiloA(s, nome, kTabelleScan);
}

std::string RedoProfiloB(Scrivania& s, std::string_view nome) {
    return ProfiloB(s, nome, kTabelleScan);
}

bool NomeMisuraAmmesso(const std::string& nome) {
    return !nome.empty() && nome.find('\0') == std::string::npos &&
           ControllaNomeMisura(nome) == nome;
}

} // namespace orvane
