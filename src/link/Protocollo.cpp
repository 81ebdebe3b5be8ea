// Sending a command and waiting for what it brings.
#include "link/Protocollo.h"

#include <algorithm>

#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "base/Testo.h"

namespace orvane {
namespace {

constexpr double kSilenzioLento = 3.0;
constexpr double kSilenzioScarto = 2.0;
constexpr double kSilenzioBlocco = 0.3;
constexpr double kTempoCaricamento = 0.3;
constexpr int kTentativiCaricamento = 3;
constexpr double kPausaLetturaFallita = 0.01;
constexpr size_t kMaxLettura = 65536;
constexpr size_t kMaxRiga = 65536;       ///< no reply is that long
constexpr size_t kMaxRisposte = 1 << 20; ///< nor all those of an upload
constexpr std::string_view kFineRiga = "\r\n";

using Byte = std::vector<uint8_t>;

std::string InTesto(std::span<const uint8_t> dati) {
    return DaAnsi({reinterpret_cast<const char*>(dati.data()), dati.size()});
}

Byte InByte(std::string_view testo) {
    return {testo.begin(), testo.end()};
}

/// Appends what is waiting, at most `quanti` bytes; whether any came.
bool RaccogliByte(Ricevitore& r, Byte& dove, size_t quanti = kMaxLettura) {
    const size_t pronti = std::min({r.porta.ByteInCoda(), quanti, kMaxLettura});
    if (pronti == 0)
        return false;
    const Byte letti = r.porta.LeggiPorta(pronti);
    dove.insert(dove.end(), letti.begin(), letti.end());
    // Bytes that are announced and cannot be read would wake the pump for ever.
    if (letti.empty())
        r.ambiente.ElaboraEventi(kPausaLetturaFallita, Veglia::Eventi);
    return !letti.empty();
}

/// Gathers bytes until `basta` says so; false when the link has first been silent for `silenzio`,
/// or the user gave up.
template <class Basta>
bool RaccogliFinche(Ricevitore& r, Byte& dove, double silenzio, const Basta& basta) {
    Scadenza fine(r.ambiente, silenzio);
    r.ambiente.ElaboraEventi(0, Veglia::EventiELink);
    while (true) {
        if (RaccogliByte(r, dove))
            fine.Rinnova(silenzio);
        if (basta())
            return true;
        if (fine.Passata() || r.stato.AbbandonaComandi)
            return false;
        r.ambiente.ElaboraEventi(fine.Rimane(), Veglia::EventiELink);
    }
}

/// A serial link is asked what it has not sent yet. False when it cannot tell.
bool ControllaArretrato(Ricevitore& r) {
    if (!r.porta.Seriale())
        return true;
    const auto arretrato = r.porta.Arretrato();
    if (arretrato.value_or(0) > 0)
        r.ambiente.Mostra(
            {.testo = "Un recoverable comm port " + TestoIntero(r.porta.link.NumeroCom),
             .icona = Icona::Esclamazione});
    return arretrato.has_value();
}

void Annota(Ricevitore& r, const std::string& risposta) {
    r.stato.ultimaRisposta = risposta;
    r.stato.rispostaDaRegistrare = true;
}

/// The first line of what arrives before the deadline, with its CR; "Error" without one. A user who
/// gives up meanwhile is not kept waiting.
std::string AttendiRiga(Ricevitore& r, double tempoMax) {
    const bool giaAbbandonato = r.stato.AbbandonaComandi;
    const Scadenza fine(r.ambiente, tempoMax);
    Byte ricevuto;
    r.ambiente.ElaboraEventi(0, Veglia::EventiELink);
    while (true) {
        RaccogliByte(r, ricevuto);
        if (const int32_t p = CercaSequenza(ricevuto, kFineRiga); p > 0) {
            const std::string riga = InTesto(std::span(ricevuto).first(static_cast<size_t>(p)));
            Annota(r, riga);
            return riga;
        }
        // Of what is no reply only a CR at the end may still matter.
        if (ricevuto.size() > kMaxRiga)
            ricevuto.erase(ricevuto.begin(), ricevuto.end() - 1);
        if (fine.Passata() || r.stato.AbbandonaComandi != giaAbbandonato)
            break;
        r.ambiente.ElaboraEventi(fine.Rimane(), Veglia::EventiELink);
    }
    Annota(r, InTesto(ricevuto));
    return std::string(kErrore);
}

} // namespace

bool RifiutaInVolo(Ricevitore& r, std::string_view comando) {
    if (r.stato.inVolo)
        r.ambiente.SegnalaDifetto("command " + std::string(comando) + " while " +
                                  r.stato.comandoInVolo + " is in flight");
    return r.stato.inVolo;
}

std::string InviaComando(Ricevitore& r, double tempoMax, std::string_view comando,
                         bool svuotaPrima) {
    if (RifiutaInVolo(r, comando))
        return std::string(kErrore);
    const GuardiaVolo guardia(r.stato, comando);
    if (svuotaPrima)
        r.porta.SvuotaRicezione();
    if (!ControllaArretrato(r)) {
        // A closed port is as slow to say so as a silent receiver: retries must not race.
        Attendi(r.ambiente, tempoMax);
        Annota(r, {});
        return std::string(kErrore);
    }
    if (const auto fissa = RisposteFisse(comando); r.modello.Is3360 && !fissa.empty()) {
        r.ambiente.ElaboraEventi(0, Veglia::Eventi);
        return std::string(fissa);
    }
    r.porta.ScriviPorta(comando);
    return AttendiRiga(r, tempoMax);
}

std::string InviaComandoLento(Ricevitore& r, std::string_view chiave, std::string_view comando) {
    if (RifiutaInVolo(r, comando))
        return {};
    const GuardiaVolo guardia(r.stato, comando);
    r.porta.ScriviPorta(comando);
    Byte coda;
    const bool trovata = RaccogliFinche(r, coda, kSilenzioLento, [&] {
        const auto p = static_cast<size_t>(CercaSequenza(coda, chiave));
        // What stands before the key is of no use; of the rest, only as much as may begin one.
        const size_t via = p > 0 ? p - 1 : coda.size() - std::min(coda.size(), chiave.size());
        coda.erase(coda.begin(), coda.begin() + static_cast<std::ptrdiff_t>(via));
        return p > 0;
    });
    const std::string risposta = trovata ? InTesto(coda) : std::string();
    Annota(r, risposta);
    if (!trovata)
        RaccogliFinche(r, coda, kSilenzioScarto, [&] {
            coda.clear();
            return false;
        });
    return risposta;
}

std::vector<uint8_t> LeggiBloccoFisso(Ricevitore& r, size_t quanti, std::string_view comando) {
    if (RifiutaInVolo(r, comando))
        return {};
    const GuardiaVolo guardia(r.stato, comando);
    r.porta.SvuotaRicezione();
    if (!ControllaArretrato(r))
        return InByte(kErrore);
    r.porta.ScriviPorta(comando);
    Byte blocco;
    const bool intero =
        RaccogliFinche(r, blocco, kSilenzioBlocco, [&] { return blocco.size() >= quanti; });
    if (!intero)
        return InByte(kErrore);
    blocco.resize(quanti);
    return blocco;
}

std::string LeggiFinoASilenzio(Ricevitore& r) {
    if (RifiutaInVolo(r, "(reading)"))
        return {};
    const GuardiaVolo guardia(r.stato, "(reading)");
    Byte tutto;
    RaccogliFinche(r, tutto, kSilenzioBlocco, [&] { return tutto.size() >= kMaxRisposte; });
    const std::string testo = InTesto(tutto);
    r.log.Risposta(r.stato, testo, false);
    return testo;
}

std::string InviaRigaCaricamento(Ricevitore& r, std::string_view comando, std::string_view attesa) {
    if (RifiutaInVolo(r, comando))
        return std::string(kErrore);
    std::string risposta;
    for (int tentativo = 0; tentativo < kTentativiCaricamento; ++tentativo) {
        risposta = InviaComando(r, kTempoCaricamento, comando, true);
        if (Contiene(risposta, attesa) && Contiene(risposta, "OK"))
            break;
        RegistraFallita(r);
        if (r.stato.AbbandonaComandi)
            break;
    }
    return risposta;
}

bool InviaGrezzo(Ricevitore& r, std::string_view comando) {
    return !RifiutaInVolo(r, comando) && r.porta.ScriviPorta(comando);
}

int32_t CercaSequenza(std::span<const uint8_t> buffer, std::string_view testo) {
    const auto qui = std::search(buffer.begin(), buffer.end(), testo.begin(), testo.end(),
                                 [](uint8_t a, char b) { return a == static_cast<uint8_t>(b); });
    return qui == buffer.end() ? 0 : static_cast<int32_t>(qui - buffer.begin()) + 1;
}

} // namespace orvane
