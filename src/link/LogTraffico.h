// The four logs of the traffic with the receiver, switched on from the command line.
#pragma once

#include <cstdint>
#include <filesystem>
#include <set>
#include <span>
#include <string>
#include <string_view>

#include "base/Ambiente.h"

namespace orvane {

struct StatoProtocollo;

/// Each file is deleted at the first write of a run; each line opens and closes it. A log that
/// cannot be written is silently left out: it must never disturb a measurement.
class LogTraffico {
public:
    /// Which logs are on follows from the environment's command line. `cartella` is the data root.
    LogTraffico(const Ambiente& ambiente, std::filesystem::path cartella);

    void Comando(StatoProtocollo& stato, std::string_view comando);
    /// `fallita` puts the "***" marker behind the reply.
    void Risposta(StatoProtocollo& stato, std::string_view risposta, bool fallita);

    /// LOGSWEEP.BIN: the command of a sweep, then each block as it was read.
    void InizioSweep(std::string_view comando);
    void BloccoSweep(std::span<const uint8_t> blocco);

    /// Label put behind replies by the Mast-Table measurement.
    std::string etichetta;

private:
    void Riga(const char* file, StatoProtocollo& stato, const std::string& riga);
    void Accoda(const char* file, std::string_view dati);
    std::string Ora() const;

    const Ambiente& ambiente_;
    std::filesystem::path cartella_;
    const char* fileComandi_ = nullptr;
    const char* fileRisposte_ = nullptr;
    bool conOra_ = false;
    bool sweep_ = false;
    std::set<std::string> iniziati_;
};

} // namespace orvane
