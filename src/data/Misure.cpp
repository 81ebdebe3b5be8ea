#include "data/Misure.h"

#include <cassert>
#include <unordered_set>

#include "base/Numeri.h"
#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/ControllaRecord.h"
#include "data/FileRecord.h"
#include "data/NomiDisco.h"

namespace orvane {
namespace {

constexpr std::string_view kCartellaSweep = "Sweep";
constexpr int kMassimiCandidati = 1000;

/// What the user wrote, or a path of a header, as a bare name.
std::string NomeNudo(std::string_view nome) {
    const bool percorso = nome.find('\\') != std::string_view::npos ||
                          UgualiSenzaMaiuscole(EstraiEstensione(nome), "KSH");
    return percorso ? EstraiNomeFile(nome) : Rifila(nome);
}

bool NomeMisuraAmmesso(const std::string& nome) {
    return !nome.empty() && nome.find('\0') == std::string::npos &&
           ControllaNomeMisura(nome) == nome;
}

bool Chiedi(const Scrivania& s, const std::string& testo) {
    return s.ambiente.Mostra(
               {.testo = testo, .icona = Icona::Esclamazione, .pulsanti = Pulsanti::SiNo}) ==
           Risposta::Si;
}

/// The first of <nome>_000 to <nome>_999 that no directory bears; empty if all do.
std::string CandidatoLibero(const std::string& nome,
                            const std::unordered_set<std::string>& presenti) {
    for (int i = 0; i < kMassimiCandidati; ++i) {
        std::string candidato = nome + "_" + TestoIntero(i, 3);
        if (!presenti.contains(ChiaveNome(candidato)))
            return candidato;
    }
    return {};
}

std::string ScegliNomeOccupato(const Scrivania& s, const std::string& nome,
                               const std::string& candidato) {
    if (!s.setup.OverwriteWarning)
        return nome;
    if (candidato.empty())
        return Chiedi(s, nome + " already exists.\rReplace it to?") ? nome : "";
    if (Chiedi(s, "Sweep " + nome + " already exists.\rRename in " + candidato + "?"))
        return candidato;
    return Chiedi(s, "Replace it?") ? nome : "";
}

void CopiaTabella(const Scrivania& s, std::string_view cartella, const std::string& nome,
                  std::string_view estensione, const std::string& meta) {
    if (!NomeTabellaAmmesso(nome))
        return;
    const std::string file = nome + "." + std::string(estensione);
    const std::string da = std::string(cartella) + "\\" + file;
    if (s.albero.Esiste(da))
        s.albero.Copia(da, meta + file);
}

/// An empty directory inside the measure, by its path with a trailing backslash.
std::string RifaiCartella(const Scrivania& s, std::string_view misura, std::string_view nome) {
    const std::string percorso = CartellaMisura(misura) + std::string(nome) + "\\";
    s.albero.CancellaCartella(percorso);
    s.albero.AssicuraCartella(percorso);
    return percorso;
}

bool MisuraScrivibile(std::string_view misura) {
    const bool ammesso = NomeMisuraAmmesso(std::string(misura));
    assert(ammesso); // the name of a run has passed `ControlNameMeasProfiloB`
    return ammesso;
}

} // namespace

std::string CartellaMisura(std::string_view misura) {
    return std::string(kCartellaSweep) + "\\" + std::string(misura) + "\\";
}

std::string PercorsoKSH(std::string_view misura) {
    return CartellaMisura(misura) + std::string(misura) + ".KSH";
}

std::string PercorsoRS(std::string_view misura, std::string_view base, int riga) {
    return CartellaMisura(misura) + std::string(base) + ".RS" + TestoIntero(riga);
}

std::string ControlNameMeasProfiloB(Scrivania& s, std::string_view nome) {
    const std::string nudo = NomeNudo(nome);
    if (!NomeMisuraAmmesso(nudo)) {
        s.ambiente.Mostra({.testo = "Not valid name\r" + nudo,
                           .icona = Icona::Esclamazione,
                           .pulsanti = Pulsanti::Ok});
        return {};
    }
    std::unordered_set<std::string> presenti;
    for (const std::string& cartella : s.albero.ElencaCartelle(kCartellaSweep))
        presenti.insert(ChiaveNome(Rifila(cartella)));
    if (!presenti.contains(ChiaveNome(nudo)))
        return nudo;
    return ScegliNomeOccupato(s, nudo, CandidatoLibero(nudo, presenti));
}

bool SalvaHeaderSweep(Scrivania& s, std::string_view percorso, const ScanRecord& scan,
                      const SetupRecord& setup) {
    s.albero.AssicuraCartella(kCartellaSweep);
    s.albero.AssicuraCartella(EstraiPercorso(percorso));
    return SalvaFileRecord(s, percorso, SweepHeader{scan, setup});
}

bool CaricaHeaderSweep(Scrivania& s, std::string_view percorso, ScanRecord& scan,
                       SetupRecord& setup) {
    if (!s.albero.Esiste(percorso)) {
        scan = {};
        return SalvaHeaderSweep(s, percorso, scan, setup);
    }
    SweepHeader header{std::move(scan), std::move(setup)};
    const bool letto = LeggiFileRecord(s, percorso, header);
    scan = std::move(header.Scan);
    setup = std::move(header.Setup);
    ControllaScan(scan);
    ControllaSetup(setup);
    return letto;
}

void PreparaCartellaMisura(Scrivania& s, std::string_view misura) {
    if (!MisuraScrivibile(misura))
        return;
    const std::string cartella = CartellaMisura(misura);
    for (const std::string& file : s.albero.ElencaFile(cartella, ""))
        s.albero.Cancella(cartella + file);
    RifaiCartella(s, misura, "Sub_Measure");
}

void CopiaFileLimSweep(Scrivania& s, std::string_view misura, const ScanTable& tabella) {
    if (!MisuraScrivibile(misura))
        return;
    const std::string meta = RifaiCartella(s, misura, "Limits");
    for (const ScanLine& riga : tabella) {
        if (riga.Start == 0)
            continue;
        if (riga.LimitOn == 1)
            CopiaTabella(s, "Limits", riga.Limit, "5SL", meta);
        if (riga.LimitDSDOn == 1)
            CopiaTabella(s, "Limits", riga.LimitDSD, "5SL", meta);
    }
}

void CopiaFileFacSweep(Scrivania& s, std::string_view misura) {
    if (!MisuraScrivibile(misura))
        return;
    const std::string meta = RifaiCartella(s, misura, "Factors");
    for (size_t i = 0; i < s.setup.FactorOn.size(); ++i)
        if (s.setup.FactorOn[i] == 1)
            CopiaTabella(s, "Factors", s.setup.FactorName[i], "5SC", meta);
}

} // namespace orvane
