#include "link/Interrogazioni.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

struct VoceQuery {
    std::string_view query;
    std::string_view descrizione;
};

constexpr std::array<VoceQuery, 17> kQuery = {{
    {"#?IDN*", "Reading FW"},
    {"#?BCD*", "Read signal analyzer"},
    {"#?3PR*", "Read signal analyzer"},
    {"#?CO6*", "Read signal analyzer"},
    {"#?LNK*", "Read Link"},
    {"#?S/N*", "Read S/N"},
    {"#?MIL*", "Read Enabling Filtres MIL"},
    {"#?CRA*", "Read Enabling Rms-Avg"},
    {"#?UPP*", "Read User Port"},
    {"#?UHT*", "Read Hold Time"},
    {"#?BAT*", "Read battery"},
    {"#?APS*", "Read Preselector"},
    {"#?RBW *", "Read RBW"}, // the blank belongs to it
    {"#?MAT*", "Read Att"},
    {"#?DET*", "Read Detector"},
    {"#?CKR*", ""},
    {"#?FSA*", ""},
}};

constexpr double kPausaSerialNumber = 0.1;
constexpr size_t kLunghezzaSerialNumber = 10;
constexpr double kTensioneMinima = 2.0;
constexpr int kTentativiPrimaDelloStop = 3;
constexpr double kPausaDopoStop = 0.1;

/// The value of a reply `nome=value`, blanks around the "=" allowed; empty optional for another
/// form.
std::optional<std::string> Valore(std::string_view risposta, std::string_view nome) {
    const auto qui = risposta.find(nome);
    if (qui == std::string_view::npos)
        return std::nullopt;
    const std::string resto = Rifila(risposta.substr(qui + nome.size()));
    if (!resto.starts_with('='))
        return std::nullopt;
    return RifilaControlli(std::string_view(resto).substr(1));
}

std::optional<int> Intero(std::string_view testo) {
    const auto numero = LeggiNumero(testo);
    if (!numero || std::abs(*numero) > 32767 || std::trunc(*numero) != *numero)
        return std::nullopt;
    return static_cast<int>(*numero);
}

/// The charging flag: the single digit at the head of `testo`.
std::optional<int16_t> Cifra(std::string_view testo) {
    const std::string pulito = RifilaControlli(testo);
    if (pulito.empty() || pulito[0] < '0' || pulito[0] > '9')
        return std::nullopt;
    return static_cast<int16_t>(pulito[0] - '0');
}

std::string Tensione(std::string_view testo) {
    const std::string volt = Sostituisci(Rifila(testo), ",", ".");
    return ValoreIniziale(volt) < kTensioneMinima ? std::string() : volt;
}

/// Limits behind "RAD": none at all, or both, each closed by its comma. False when unfinished.
bool LeggiLimiti(std::string_view resto, GammaInUso& gamma) {
    if (!Rifila(resto).starts_with(';'))
        return true;
    const auto pezzi = Dividi(resto.substr(resto.find(';') + 1), ',');
    if (pezzi.size() < 3)
        return false;
    const auto minimo = LeggiNumero(pezzi[0]);
    const auto massimo = LeggiNumero(pezzi[1]);
    if (!minimo || !massimo)
        return false;
    // -1 stands for a limit that is not told.
    if (*minimo != -1)
        gamma.fMinMhz = static_cast<float>(*minimo);
    if (*massimo != -1)
        gamma.fMaxMhz = static_cast<float>(*massimo);
    return true;
}

std::string_view DescrizioneDi(std::string_view query) {
    const auto voce = std::find_if(kQuery.begin(), kQuery.end(),
                                   [&](const VoceQuery& v) { return v.query == query; });
    return voce == kQuery.end() ? std::string_view() : voce->descrizione;
}

/// Asks until `leggi` makes a value of the reply; empty when the user gave up.
template <class Lettura>
auto Chiedi(Ricevitore& r, std::string_view query, const Lettura& leggi,
            const std::function<void(int)>& dopoFallimento = {}) {
    decltype(leggi(std::string_view())) valore;
    Interroga(
        r, query, DescrizioneDi(query),
        [&](const std::string& risposta) { return (valore = leggi(risposta)).has_value(); },
        kTempoRisposta, kTentativiPrimaDelloStop, dopoFallimento);
    return valore;
}

std::string TagliaSerialNumber(std::string_view testo) {
    return DaAnsi(InAnsi(testo).substr(0, kLunghezzaSerialNumber));
}

} // namespace

std::optional<FiltroInUso> LeggiRispostaRBW(std::string_view risposta) {
    const auto valore = Valore(risposta, "RBW");
    if (!valore)
        return std::nullopt;
    const bool automatico = valore->starts_with("AUTO ");
    if (!automatico && !valore->starts_with("MAN "))
        return std::nullopt;
    const auto id = Intero(valore->substr(valore->find(' ')));
    if (!id)
        return std::nullopt;
    return FiltroInUso{.automatico = automatico, .id = *id};
}

std::optional<int> LeggiRispostaMAT(std::string_view risposta) {
    return Intero(Fra(risposta, ";", ";"));
}

std::optional<Batteria> LeggiRispostaBAT(std::string_view risposta) {
    const auto valore = Valore(risposta, "BAT");
    if (!valore)
        return std::nullopt;
    const auto puntoEVirgola = valore->find(';');
    const auto virgola = valore->find(',');
    if (puntoEVirgola == std::string::npos) {
        if (virgola != std::string::npos || valore->empty())
            return std::nullopt;
        return Batteria{.livello = *valore, .tensione = {}, .carica = 1};
    }
    const auto carica = Cifra(valore->substr(puntoEVirgola + 1));
    if (!carica)
        return std::nullopt;
    const std::string prima = valore->substr(0, puntoEVirgola);
    const bool conTensione = virgola < puntoEVirgola;
    return Batteria{.livello = Rifila(prima.substr(0, virgola)),
                    .tensione = conTensione ? Tensione(prima.substr(virgola + 1)) : std::string(),
                    .carica = *carica};
}

std::optional<GammaInUso> LeggiRispostaGamma(std::string_view risposta) {
    if (Contiene(risposta, "CND") || Contiene(risposta, "CON"))
        return GammaInUso{};
    const auto qui = risposta.find("RAD");
    if (qui == std::string_view::npos)
        return std::nullopt;
    GammaInUso gamma;
    gamma.radiata = true;
    if (!LeggiLimiti(risposta.substr(qui + 3), gamma))
        return std::nullopt;
    return gamma;
}

std::optional<bool> LeggiRispostaAbilitazione(std::string_view risposta, std::string_view nome) {
    const auto valore = Valore(risposta, nome);
    if (valore && valore->starts_with("N/A"))
        return false;
    if (valore && valore->starts_with("OK"))
        return true;
    return std::nullopt;
}

std::string LeggiSerialNumber(Ricevitore& r) {
    Attendi(r.ambiente, kPausaSerialNumber);
    r.porta.SvuotaRicezione();
    // A reply without "S/N=" is an answer too: the receiver has none.
    const auto seriale = Chiedi(r, "#?S/N*", [](std::string_view risposta) {
        return std::optional(TagliaSerialNumber(Dietro(risposta, "S/N=")));
    });
    r.modello.SerialNumber = seriale.value_or("");
    return r.modello.SerialNumber;
}

std::optional<bool> LeggiFiltriMil(Ricevitore& r) {
    return Chiedi(r, "#?MIL*",
                  [](std::string_view s) { return LeggiRispostaAbilitazione(s, "MIL"); });
}

std::optional<bool> LeggiRmsAvg(Ricevitore& r) {
    return Chiedi(r, "#?CRA*",
                  [](std::string_view s) { return LeggiRispostaAbilitazione(s, "CRA"); });
}

std::optional<int> LeggiUserPort(Ricevitore& r) {
    return Chiedi(r, "#?UPP*", [](std::string_view s) -> std::optional<int> {
        const auto valore = Valore(s, "UPP");
        return valore ? Intero(*valore) : std::nullopt;
    });
}

std::string LeggiHoldTime(Ricevitore& r) {
    return Chiedi(r, "#?UHT*", [](std::string_view s) { return Valore(s, "UHT"); }).value_or("");
}

std::string LeggiPreselettore(Ricevitore& r) {
    return Maiuscolo(
        Chiedi(r, "#?APS*", [](std::string_view s) { return Valore(s, "APS"); }).value_or(""));
}

std::optional<FiltroInUso> LeggiFiltro(Ricevitore& r) {
    return Chiedi(r, "#?RBW *", LeggiRispostaRBW);
}

std::optional<int> LeggiAttenuatore(Ricevitore& r) {
    return Chiedi(r, "#?MAT*", LeggiRispostaMAT);
}

std::optional<GammaInUso> LeggiGamma(Ricevitore& r, std::string_view query) {
    // A measurement that still runs keeps the receiver from answering: it is stopped.
    return Chiedi(r, query, LeggiRispostaGamma, [&r](int falliti) {
        if (falliti % kTentativiPrimaDelloStop != 0)
            return;
        InviaGrezzo(r, "#SSTP*");
        Attendi(r.ambiente, kPausaDopoStop);
        r.porta.SvuotaRicezione();
    });
}

std::optional<Batteria> LeggiBatteria(Ricevitore& r) {
    if (!HaBatteria(r.modello))
        return std::nullopt;
    return Chiedi(r, "#?BAT*", LeggiRispostaBAT);
}

} // namespace orvane
