#include "link/LogTraffico.h"

#include <fstream>
#include <system_error>

#include "base/Interruttori.h"
#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "link/StatoProtocollo.h"

namespace orvane {
namespace {

constexpr const char* kFileComandi = "LOGCOMANDI.TXT";
constexpr const char* kFileRisposte = "LOGRISP.TXT";
constexpr const char* kFileEntrambi = "LOGCR.TXT";
constexpr const char* kFileSweep = "LOGSWEEP.BIN";
constexpr std::string_view kSeparatore = "----------------------------";

/// The file of a kind of line: its own switch goes before the one for both.
const char* FileDi(const std::string& riga, std::string_view proprio, const char* file) {
    if (Acceso(riga, proprio))
        return file;
    return Acceso(riga, interruttore::kLogComRisp) ? kFileEntrambi : nullptr;
}

std::string InRiga(std::string_view risposta) {
    return Rifila(Sostituisci(Sostituisci(risposta, "\r", " "), "\n", " "));
}

} // namespace

LogTraffico::LogTraffico(const Ambiente& ambiente, std::filesystem::path cartella)
    : ambiente_(ambiente), cartella_(std::move(cartella)) {
    const std::string& riga = ambiente.RigaComando();
    fileComandi_ = FileDi(riga, interruttore::kLogComandi, kFileComandi);
    fileRisposte_ = FileDi(riga, interruttore::kLogRisposte, kFileRisposte);
    conOra_ = Acceso(riga, interruttore::kTimeLog);
    sweep_ = Acceso(riga, interruttore::kLogSweep);
}

void LogTraffico::Comando(StatoProtocollo& stato, std::string_view comando) {
    // A reply that nobody judged still belongs in front of the next command.
    if (stato.rispostaDaRegistrare)
        Risposta(stato, stato.ultimaRisposta, false);
    Riga(fileComandi_, stato, Ora() + std::string(comando));
}

void LogTraffico::Risposta(StatoProtocollo& stato, std::string_view risposta, bool fallita) {
    stato.rispostaDaRegistrare = false;
    Riga(fileRisposte_, stato,
         "\t\t" + InRiga(risposta) + (fallita ? "***" : "") + Ora() + etichetta);
}

void LogTraffico::InizioSweep(std::string_view comando) {
    if (sweep_)
        Accoda(kFileSweep, InAnsi(comando) + "\r\n\r\n");
}

void LogTraffico::BloccoSweep(std::span<const uint8_t> blocco) {
    if (sweep_)
        Accoda(kFileSweep, {reinterpret_cast<const char*>(blocco.data()), blocco.size()});
}

void LogTraffico::Riga(const char* file, StatoProtocollo& stato, const std::string& riga) {
    if (!file)
        return;
    if (stato.SeparaLog)
        Accoda(file, std::string(kSeparatore) + "\r\n");
    stato.SeparaLog = false;
    Accoda(file, InAnsi(riga) + "\r\n");
}

void LogTraffico::Accoda(const char* file, std::string_view dati) {
    const bool nuovo = iniziati_.insert(file).second;
    std::ofstream uscita(cartella_ / file,
                         std::ios::binary | (nuovo ? std::ios::trunc : std::ios::app));
    uscita.write(dati.data(), static_cast<std::streamsize>(dati.size()));
}

std::string LogTraffico::Ora() const {
    if (!conOra_)
        return {};
    std::string ora = "\t";
    return ora.append(TestoFisso(ambiente_.Calendario().secondiDelGiorno, 2)).append("\t");
}

} // namespace orvane
