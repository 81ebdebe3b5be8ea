// The vocabulary of setters: each one's text, banner words and reply tests as a row of a table, and
// one small function that fills in its arguments and sends it.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "link/Protocollo.h"

namespace orvane {

enum class Impostazione {
    BWIF,
    PreselAn,
    PreselMa,
    PreAmpAn,
    PreAmpMa,
    PulseLim,
    AttAn,
    AttMa,
    MinAtt,
    Dinamica,
    Volume,
    Demodulatore,
    RFOut,
    Tracking,
    LivelloTG,
    FrequenzaTG,
    HoldTimeAn,
    HoldTimeMa,
    DetectorAn,
    FrequenzaAn,
    FrequenzaMa,
    FiltroGX2207,
    IngressoGX2207,
    TrackingGX2207,
    Condotto,
    Radiato,
    CondottoOem,
    RadiatoOem,
    QDSW3,
    Lisn,
    Lisn3360,
    NomeLimite,
    NomeFattore,
    RigaLimite,
    RigaLimiteSweep,
    RigaFattore,
    RigaLimiteDSD,
    FineLimite,
    FineFattore,
    Margine,
    RigaTabFreq,
    DisabilitaCF,
    Break,
    StopSweep,
    AbortSweep,
    Swept,
    FFT,
    NumImpostazioni
};

/// Text is "#" + `testa` + arguments + "*".
struct VoceImpostazione {
    Impostazione quale;
    std::string_view testa;
    std::string_view descrizione;
    std::string_view risposta0;
    std::string_view risposta1;
    bool inSerie = false; ///< one of many in a row: sent without a drain before it
};
std::span<const VoceImpostazione> TabellaImpostazioni();
/// The command of a row with its arguments filled in.
ReceiverCommand Componi(Impostazione quale, std::string_view argomenti);

/// A setter that is still to be sent.
struct ComandoPronto {
    Impostazione quale;
    std::string argomenti = {};
    bool operator==(const ComandoPronto&) const = default;
};
/// Sends them in order, each until the receiver has accepted it. False: the user gave up.
bool InviaInOrdine(Ricevitore& r, std::span<const ComandoPronto> comandi);

/// Frequency in MHz as the wire has it: the number of kHz, then "e3".
std::string FrequenzaHz(double mhz);
std::string_view OnOff(bool acceso);

// Setters. Each sends one command and returns when the receiver has accepted it or
// `AbbandonaComandi` is set.
void ImpostaBWIF(Ricevitore& r, int id);
void ImpostaPreselAn(Ricevitore& r, bool acceso); ///< not sent with the 5590 in charge
void ImpostaPreselMa(Ricevitore& r, bool acceso); ///< likewise
void ImpostaPreAmpAn(Ricevitore& r, bool acceso);
void ImpostaPreAmpMa(Ricevitore& r, bool acceso);
void ImpostaPulseLim(Ricevitore& r, bool acceso);
void ImpostaAttAn(Ricevitore& r, int dB); ///< -1 for AUTO
void ImpostaAttMa(Ricevitore& r, int dB);
void ImpostaMinAtt(Ricevitore& r, int dB);
void ImpostaDinamica(Ricevitore& r, int dinamica, int riferimento);
void ImpostaVolume(Ricevitore& r, int volume);
enum class Demodulazione { Spenta, Accesa, AM, FM };
void ImpostaDemodulatore(Ricevitore& r, Demodulazione modo);
void ImpostaRFOut(Ricevitore& r, bool acceso);
void ImpostaTracking(Ricevitore& r, bool acceso);
void ImpostaLivelloTG(Ricevitore& r, double livello);
void ImpostaFrequenzaTG(Ricevitore& r, double mhz);
void ImpostaHoldTimeAn(Ricevitore& r, double valore);
void ImpostaHoldTimeMa(Ricevitore& r, double valore);
void ImpostaDetectorAn(Ricevitore& r, int id);
void ImpostaFrequenzaAn(Ricevitore& r, double startMhz, double stopMhz);
void ImpostaFrequenzaMa(Ricevitore& r, double mhz);
void ImpostaFiltroGX2207(Ricevitore& r, bool acceso);
void ImpostaIngressoGX2207(Ricevitore& r, bool altaImpedenza);
void ImpostaTrackingGX2207(Ricevitore& r, int modo); ///< 0, 1 or 2
void ImpostaCondotto(Ricevitore& r); ///< by model: #S3PRC*, or #SCO6C* where it is not set yet
void ImpostaRadiato(Ricevitore& r);
void DisabilitaCF(Ricevitore& r);
void ImpostaBreak(Ricevitore& r);
void StopSweep(Ricevitore& r);
void AbortSweep(Ricevitore& r);

} // namespace orvane
