#include "data/Cancellazioni.h"

#include <algorithm>
#include <array>

#include "base/Percorsi.h"
#include "data/Cartelle.h"
#include "data/Incompiute.h"
#include "data/Misure.h"
#include "data/NomiDisco.h"
#include "data/Panels.h"

namespace orvane {
namespace {

bool Conferma(const Scrivania& s, const std::string& nome) {
    return s.ambiente.Mostra({.testo = "Are you sure you want to delete " + nome + " ?",
                              .icona = Icona::Domanda,
                              .pulsanti = Pulsanti::OkAnnulla}) == Risposta::Ok;
}

bool Rifiuta(const Scrivania& s) {
    s.ambiente.Mostra({.testo = "Cannot be deleted", .icona = Icona::Esclamazione});
    return false;
}

void SvuotaECancella(const AlberoDati& albero, const std::string& cartella) {
    for (const std::string& file : albero.ElencaFile(cartella, ""))
        albero.Cancella(cartella + file);
    albero.CancellaCartellaVuota(cartella);
}

bool StessoNome(const std::string& a, std::string_view b) {
    return ChiaveNome(a) == ChiaveNome(b);
}

bool InRiga(const ScanRecord& scan, const std::string& nome,
            std::initializer_list<std::string ScanLine::*> campi) {
    return std::any_of(scan.Righe.begin(), scan.Righe.end(), [&](const ScanLine& riga) {
        return riga.Start != 0 && std::any_of(campi.begin(), campi.end(), [&](auto campo) {
                   return StessoNome(riga.*campo, nome);
               });
    });
}

template <size_t N> bool InPosto(const std::array<std::string, N>& posti, const std::string& nome) {
    return std::any_of(posti.begin(), posti.end(),
                       [&](const std::string& posto) { return StessoNome(posto, nome); });
}

} // namespace

bool CancellaMisura(Scrivania& s, const std::string& nome) {
    if (!NomeMisuraAmmesso(nome) || !Conferma(s, nome))
        return false;
    if (MisuraInCorso(s.albero, nome))
        return Rifiuta(s);
    const std::string cartella = CartellaMisura(nome);
    SvuotaECancella(s.albero, CartellaSubMisure(nome));
    SvuotaECancella(s.albero, cartella + std::string(cartella::kFactors));
    SvuotaECancella(s.albero, cartella + std::string(cartella::kLimits));
    SvuotaECancella(s.albero, cartella);
    if (s.albero.ElencaCartelle(cartella::kSweep).empty()) {
        // The extension is a scan table's: this is how an empty archive is known.
        s.env.SweepPath = "Untitled.EST";
        SalvaPanelEPN(s, kPannelloEPN);
    }
    return !s.albero.EsisteCartella(cartella) || Rifiuta(s);
}

bool CancellaTabella(Scrivania& s, const ScanRecord& scan, std::string_view percorso) {
    if (!Conferma(s, EstraiNomeFile(percorso)))
        return false;
    return (!TabellaInUso(s, scan, percorso) && s.albero.Cancella(percorso)) || Rifiuta(s);
}

bool TabellaInUso(const Scrivania& s, const ScanRecord& scan, std::string_view percorso) {
    const std::string nome = EstraiNomeFile(percorso);
    const std::string genere = ChiaveNome(EstraiEstensione(percorso));
    if (genere == "5SL")
        return InRiga(scan, nome, {&ScanLine::Limit, &ScanLine::LimitDSD}) ||
               InPosto(s.setup.LimitName, nome);
    if (genere == "5SC")
        return InPosto(s.setup.FactorName, nome);
    if (genere == "5SF")
        return InRiga(scan, nome, {&ScanLine::FreqTable});
    if (genere == "EST")
        return StessoNome(EstraiNomeFile(s.env.ScanPanelPath), nome);
    if (genere == "EAM")
        return StessoNome(EstraiNomeFile(s.env.SetupPanelPath), nome) ||
               StessoNome(EstraiNomeFile(kPannelloEAM), nome);
    return genere == "EPN" || genere == "PTH";
}

} // namespace orvane
