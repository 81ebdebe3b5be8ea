// The vocabulary of queries: each one's text, banner words and the reading of its reply.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "link/Ricevitore.h"

namespace orvane {

/// The filter in use: `RBW=AUTO <id>` or `RBW=MAN <id>`.
struct FiltroInUso {
    bool automatico = false;
    int id = 0;
};
/// Charge of the battery as the receiver tells it.
struct Batteria {
    std::string livello;
    std::string tensione; ///< empty when not told, or below 2 V
    int16_t carica = 0;   ///< 1 while charging
};
/// Conducted or radiated input, with the limits that come with it.
struct GammaInUso {
    bool radiata = false;
    std::optional<float> fMinMhz;
    std::optional<float> fMaxMhz;
};

// Readings of a reply, apart from any link. Empty: the reply counts as failed.
std::optional<FiltroInUso> LeggiRispostaRBW(std::string_view risposta);
std::optional<int> LeggiRispostaMAT(std::string_view risposta);
std::optional<Batteria> LeggiRispostaBAT(std::string_view risposta);
std::optional<GammaInUso> LeggiRispostaGamma(std::string_view risposta);
/// N/A gives false, OK true; `nome` is "MIL" or "CRA".
std::optional<bool> LeggiRispostaAbilitazione(std::string_view risposta, std::string_view nome);

// Queries. An empty value: the user gave up, or what the contract says.
std::string LeggiSerialNumber(Ricevitore& r); ///< empty where no "S/N=" came
std::optional<bool> LeggiFiltriMil(Ricevitore& r);
std::optional<bool> LeggiRmsAvg(Ricevitore& r);
std::optional<int> LeggiUserPort(Ricevitore& r);
std::string LeggiHoldTime(Ricevitore& r);
std::string LeggiPreselettore(Ricevitore& r); ///< upper case
std::optional<FiltroInUso> LeggiFiltro(Ricevitore& r);
std::optional<int> LeggiAttenuatore(Ricevitore& r); ///< dB
std::optional<GammaInUso> LeggiGamma(Ricevitore& r, std::string_view query);
/// Only on models with a battery; empty otherwise.
std::optional<Batteria> LeggiBatteria(Ricevitore& r);

} // namespace orvane
