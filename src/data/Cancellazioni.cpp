#include "data/Cancellazioni.h"

#include "base/Percorsi.h"
#include "data/CaricaSalva.h"
#include "data/Cartelle.h"
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

/// What the running console writes to all the time.
bool PannelloCorrente(std::string_view percorso) {
    const auto stesso = [&](std::string_view altro) {
        return ChiaveNome(EstraiNomeFile(percorso)) == ChiaveNome(EstraiNomeFile(altro)) &&
               ChiaveNome(EstraiEstensione(percorso)) == ChiaveNome(EstraiEstensione(altro));
    };
    return stesso(kPannelloEAM) || stesso(kPannelloEPN) || stesso(kPannelloPTH);
}

bool TabellaInUso(const Scrivania& s, const ScanRecord& scan, std::string_view percorso) {
    const RichiestaFile richiesta{.cartella = EstraiPercorso(percorso),
                                  .estensione = ChiaveNome(EstraiEstensione(percorso)),
                                  .gruppo = {}};
    return PannelloCorrente(percorso) ||
           NomeInUso(s, richiesta, EstraiNomeFile(percorso), scan.Righe);
}

} // namespace

bool CancellaMisura(Scrivania& s, const std::string& nome) {
    if (!NomeMisuraAmmesso(nome) || !Conferma(s, nome))
        return false;
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

} // namespace orvane
