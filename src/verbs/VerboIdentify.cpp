#include <array>
#include <ostream>
#include <utility>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "console/Console.h"
#include "link/Comandi.h"
#include "link/Identificazione.h"
#include "link/Interrogazioni.h"
#include "verbs/Json.h"
#include "verbs/Verbo.h"

namespace orvane {
namespace {

using Voci = std::array<std::pair<const char*, std::string>, 8>;

std::string NomeEstensione(const ReceiverModel& m) {
    constexpr std::array<const char*, 3> kUnita = {"5540", "5570", "5590"};
    if (!m.EstensioneAttiva || m.HaK3XK6X || m.ModelloOEM != 0)
        return "none";
    return kUnita[static_cast<size_t>(m.UnitaEstensione)];
}

Voci Descrivi(const Ricevitore& r) {
    const ReceiverModel& m = r.modello;
    const auto siNo = [](bool si) { return std::string(si ? "yes" : "no"); };
    return {{{"model", NomeModello(m, false)},
             {"firmware", m.FwTesto},
             {"serial", m.SerialNumber},
             {"extension", NomeEstensione(m)},
             {"mil", siNo(m.ConFiltriMil)},
             {"rmsavg", siNo(m.ConRmsAvg)},
             {"fmin", TestoDaNumero(r.caps[0].FMinAn)},
             {"fmax", TestoDaNumero(r.caps[0].FMaxAn)}}};
}

void Stampa(Banco& banco, const Voci& voci) {
    if (!banco.json) {
        for (const auto& [nome, valore] : voci)
            banco.dati << nome << ": " << valore << "\n";
        return;
    }
    Json json;
    json.Oggetto();
    for (const auto& [nome, valore] : voci) {
        const auto numero = LeggiNumero(valore);
        const bool frequenza = std::string_view(nome).starts_with('f') && nome[1] == 'm';
        if (frequenza && numero)
            json.Coppia(nome, *numero);
        else if (valore == "yes" || valore == "no")
            json.Coppia(nome, valore == "yes");
        else
            json.Coppia(nome, valore);
    }
    banco.dati << json.Chiudi().Documento() << "\n";
}

/// The order in which every mode begins: whatever the receiver was doing is ended first.
void Identifica(Ricevitore& r) {
    AbortSweep(r);
    if (!r.stato.AbbandonaComandi)
        LeggiModello(r, Modalita::Sweep, 1);
    if (!r.stato.AbbandonaComandi)
        r.modello.SerialNumber = LeggiSerialNumber(r);
}

} // namespace

EsitoVerbo VerboIdentify(Banco& banco, Parole parole) {
    if (!parole.empty())
        return UsoErrato(banco, "identify", "takes no further words");
    Ricevitore& r = banco.ricevitore;
    AvviaInLettura(banco.scrivania, r.porta.link, banco.linkScelto);
    if (!r.porta.ApriPorta(true))
        return Guasto(banco, kGuastoLink,
                      r.porta.link.motivo.empty() ? "the link cannot be opened"
                                                  : r.porta.link.motivo);
    Identifica(r);
    r.porta.ChiudiPorta();
    if (r.stato.AbbandonaComandi || r.modello.FwTesto == "---")
        return Guasto(banco, EsitoDelLink(banco),
                      banco.interrotto ? "stopped" : "no receiver answered");
    Stampa(banco, Descrivi(r));
    return kFatto;
}

EsitoVerbo VerboPorts(Banco& banco, Parole parole) {
    if (!parole.empty())
        return UsoErrato(banco, "ports", "takes no further words");
    Json json;
    json.Lista();
    for (const PortaCom& porta : banco.catalogo.Elenca()) {
        json.Oggetto().Coppia("name", porta.nome).Coppia("device", porta.dispositivo).Chiudi();
        if (!banco.json)
            banco.dati << porta.nome << "  " << porta.dispositivo << "\n";
    }
    if (banco.json)
        banco.dati << json.Chiudi().Documento() << "\n";
    return kFatto;
}

} // namespace orvane
