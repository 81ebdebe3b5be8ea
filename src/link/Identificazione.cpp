// Who answers: the identification text, then the questions that complete the model.
#include "link/Identificazione.h"

#include <algorithm>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "link/Interrogazioni.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

constexpr int kTentativiIDN = 3;
constexpr std::string_view kSenzaFirmware = "---";
constexpr double kPausaBCD = 0.5;

struct FormaIDN {
    std::string_view forma;
    void (*segna)(ReceiverModel&);
};

using M = ReceiverModel&;

// In the order in which a reply is tried against them.
constexpr FormaIDN kForme[] = {
    {"IDN=5520-FW -", [](M) {}},
    {"IDN=5520/K3X -", [](M) {}},
    {"IDN=5520/K0X -", [](M m) { m.IsK0X = true; }},
    {"IDN=5520F-FW -",
     [](M m) {
         m.Is5520F = true;
         m.ModelloOEM = 1;
     }},
    {"IDN=VSD3",
     [](M m) {
         m.Is5520F = true;
         m.ModelloOEM = 2;
     }},
    {"IDN=T4470K",
     [](M m) {
         m.Is5520F = true;
         m.ModelloOEM = 3;
     }},
    {"IDN=3360/00-FW -", [](M m) { m.Is3360 = m.HaK3XK6X = m.Is3360_00 = true; }},
    {"IDN=3360/01-FW -", [](M m) { m.Is3360 = m.HaK3XK6X = m.Is3360_01 = true; }},
    {"IDN=3360/02-FW -", [](M m) { m.Is3360 = m.HaK3XK6X = m.Is3360_02 = true; }},
    {"IDN=3360/03-FW -", [](M m) { m.Is3360 = m.HaK3XK6X = m.Is3360_03 = true; }},
    {"IDN=3360-FW -", [](M m) { m.Is3360 = m.HaK3XK6X = true; }},
    {"IDN=5520/K6X -", [](M m) { m.IsK6X = m.HaK3XK6X = true; }},
    {"IDN=60 OEM -", [](M m) { m.Is60OEM = m.HaK3XK6X = true; }},
    {"IDN=GX2207-FW -", [](M m) { m.TipoFrontEnd = 1; }},
    {"IDN=TB05-FW -", [](M m) { m.TipoFrontEnd = 1; }},
    {"IDN=GX2207F-FW -",
     [](M m) {
         m.TipoFrontEnd = 3;
         m.Is5520F = true;
     }},
};

/// Clears what an identification text sets; what the later questions add stays.
void AzzeraModello(ReceiverModel& m) {
    m.IsK0X = m.Is5520F = m.Is3360 = m.IsK6X = m.Is60OEM = m.HaK3XK6X = false;
    m.Is3360_00 = m.Is3360_01 = m.Is3360_02 = m.Is3360_03 = false;
    m.ModelloOEM = m.TipoFrontEnd = 0;
}

void AzzeraEstensione(ReceiverModel& m) {
    m.EstensioneAttiva = false;
    m.UnitaEstensione = 0;
    m.ModoK3X = 0;
    m.FMinLink = m.FMaxLink = -1;
}

/// The first line of what follows the form, trimmed.
std::string TestoFirmware(std::string_view resto) {
    const std::string pulito = Rifila(resto);
    return RifilaControlli(pulito.substr(0, pulito.find_first_of("\r\n")));
}

/// `#?BCD*` says whether an extension unit, or the high range, is in charge, and which.
bool LeggiRispostaBCD(std::string_view risposta, ReceiverModel& m) {
    const std::string testo = Maiuscolo(risposta);
    const bool spenta = Contiene(testo, "OFF");
    if (!spenta && !Contiene(testo, "ON"))
        return false;
    const bool gammeProprie =
        Contiene(testo, "K3X") || Contiene(testo, "K6X") || Contiene(testo, "OEM");
    if (!spenta && !gammeProprie && (Contiene(testo, "TB05") || Contiene(testo, "GX2207"))) {
        m.TipoFrontEnd = 2;
        return true;
    }
    m.HaK3XK6X = gammeProprie;
    m.ModoK3X = !gammeProprie ? 0 : spenta ? 1 : 2;
    m.EstensioneAttiva = !spenta;
    if (!spenta && !gammeProprie)
        m.UnitaEstensione = Contiene(testo, "5570") ? 1 : Contiene(testo, "5590") ? 2 : 0;
    return true;
}

bool LeggiUnita(Ricevitore& r) {
    if (r.modello.Is3360 || r.modello.ModelloOEM != 0)
        return true;
    Attendi(r.ambiente, kPausaBCD);
    if (r.stato.AbbandonaComandi)
        return false;
    return Interroga(r, "#?BCD*", "Read signal analyzer", [&](const std::string& risposta) {
        return LeggiRispostaBCD(risposta, r.modello);
    });
}

/// The reply only has to arrive: its text gives way to a fixed one, `LNK=1;25, 6020;(5570)`.
bool LeggiLink(Ricevitore& r) {
    const bool arrivata = Interroga(r, "#?LNK*", "Read Link", [](const std::string& risposta) {
        const auto primo = risposta.find(';');
        const auto virgola = risposta.find(',', primo);
        return primo != std::string::npos && virgola != std::string::npos &&
               risposta.find(';', virgola) != std::string::npos;
    });
    if (arrivata) {
        r.modello.FMinLink = 25;
        r.modello.FMaxLink = 6020;
    }
    return arrivata;
}

bool ChiediGamma(Ricevitore& r) {
    ReceiverModel& m = r.modello;
    if (m.ModelloOEM >= 2 && !LeggiLink(r))
        return false;
    const auto gamma = LeggiGamma(r, m.ModelloOEM != 0 ? "#?CO6*" : "#?3PR*");
    if (!gamma)
        return false;
    m.ModoK3X = gamma->radiata ? 2 : 1;
    m.FMinLink = gamma->fMinMhz.value_or(m.FMinLink);
    m.FMaxLink = gamma->fMaxMhz.value_or(m.FMaxLink);
    return true;
}

/// The range of the models that have two: in a live mode the one last chosen, since the mode sets
/// the receiver to it; in the others the receiver's own. A model whose range `#?BCD*` has told is
/// asked again only outside the live modes.
bool LeggiGammaInUso(Ricevitore& r, Modalita modalita, int sorgente) {
    ReceiverModel& m = r.modello;
    if (!HaCondottoERadiato(m))
        return true;
    const bool viva = modalita == Modalita::Analyzer || modalita == Modalita::Manual;
    if (viva && (m.Is3360 || m.ModelloOEM != 0))
        m.ModoK3X = static_cast<int16_t>(std::clamp(sorgente, 1, 2));
    else if (!viva && !ChiediGamma(r))
        return false;
    m.EstensioneAttiva = m.ModoK3X != 1;
    return true;
}

} // namespace

std::string RiconosciIDN(std::string_view risposta, ReceiverModel& modello) {
    AzzeraModello(modello);
    for (const FormaIDN& riga : kForme) {
        const auto qui = risposta.find(riga.forma);
        if (qui == std::string_view::npos)
            continue;
        riga.segna(modello);
        return TestoFirmware(risposta.substr(qui + riga.forma.size()));
    }
    return {};
}

float VersioneFirmware(std::string_view testo) {
    const auto spazio = testo.find(' ');
    if (spazio == std::string_view::npos || spazio == 0)
        return 0;
    return static_cast<float>(ValoreIniziale(testo.substr(0, spazio)));
}

std::string LeggiFirmware(Ricevitore& r) {
    std::string firmware;
    for (int c = 0; c < kTentativiIDN && firmware.empty(); ++c) {
        firmware = RiconosciIDN(InviaComando(r, kTempoRisposta, "#?IDN*", true), r.modello);
        if (!firmware.empty())
            MostraErrore(r, "Reading FW", false);
        else
            RegistraFallita(r);
        if (r.stato.AbbandonaComandi)
            break;
    }
    if (firmware.empty()) {
        AzzeraModello(r.modello);
        MostraErrore(r, "Reading FW", !r.stato.AbbandonaComandi);
        firmware = kSenzaFirmware;
    }
    r.modello.FwTesto = firmware;
    r.modello.FwVersione = VersioneFirmware(firmware);
    return firmware;
}

bool LeggiOpzioni(Ricevitore& r) {
    ReceiverModel& m = r.modello;
    m.ConFiltriMil = false;
    m.ConRmsAvg = true;
    if (m.FwVersione >= firmware::kFiltriMil)
        m.ConFiltriMil = LeggiFiltriMil(r).value_or(false);
    if (!r.stato.AbbandonaComandi && m.FwVersione >= firmware::kRmsAvg)
        m.ConRmsAvg = LeggiRmsAvg(r).value_or(true);
    return !r.stato.AbbandonaComandi;
}

bool LeggiModello(Ricevitore& r, Modalita modalita, int sorgente) {
    LeggiFirmware(r);
    AzzeraEstensione(r.modello);
    const bool completo = !r.stato.AbbandonaComandi && LeggiUnita(r) &&
                          LeggiGammaInUso(r, modalita, sorgente) && LeggiOpzioni(r);
    if (!completo)
        MostraErrore(r, "---", false);
    r.caps = ImpostaModelCaps(r.modello);
    return r.modello.EstensioneAttiva;
}

} // namespace orvane
