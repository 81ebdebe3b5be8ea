#include "link/Comandi.h"

#include <array>
#include <cmath>

#include "base/Numeri.h"
#include "link/Interrogazioni.h"

namespace orvane {
namespace {

using enum Impostazione;

constexpr size_t kQuante = static_cast<size_t>(NumImpostazioni);
constexpr std::array<VoceImpostazione, kQuante> kImpostazioni = {{
    {BWIF, "SRBW", "set BW IF", "RBW", "OK"},
    {PreselAn, "SAPS", "set Preselector", "APS", "OK"},
    {PreselMa, "SMPS", "set Preselector", "MPS", "OK"},
    {PreAmpAn, "SAPA", "set Preamplifier", "APA", "OK"},
    {PreAmpMa, "SMPA", "set Preamplifier", "MPA", "OK"},
    {PulseLim, "SPLM", "set Pulse Limiter", "PLM", "OK"},
    {AttAn, "SAAT", "set Attenuator", "AAT", "OK"},
    {AttMa, "SMAT", "set Attenuator", "MAT", "OK"},
    {MinAtt, "STAT", "set Min Att", "TAT", "OK"},
    {Dinamica, "SDIS", "Dynamics - Ref Level", "DIS", "OK"},
    {Volume, "SDMV", "Set Volume", "DMV", "OK"},
    {Demodulatore, "SDMD", "Set Switch Demodulator", "DMD", "OK"},
    {RFOut, "STGS", "set RF Out", "TGS", "OK"},
    {Tracking, "STGT", "set Tracking", "TGT", "OK"},
    {LivelloTG, "STGL", "set Level", "TGL", "OK"},
    {FrequenzaTG, "STGF", "set Frequency Tracking", "TGF", "OK"},
    {HoldTimeAn, "SAHT", "set Hold Time", "AHT", "OK"},
    {HoldTimeMa, "SMHT", "set Hold Time", "MHT", "OK"},
    {DetectorAn, "SADT", "set Detector", "ADT", "OK"},
    {FrequenzaAn, "SAFF", "set Frequency", "AFF", "OK"},
    {FrequenzaMa, "SMAF", "set Frequency", "MAF", "OK"},
    {FiltroGX2207, "SIHP", "set HP 150 kHz", "IHP", "OK"},
    {IngressoGX2207, "SMOD", "set input mode GX2207", "MOD", "OK"},
    {TrackingGX2207, "SITG ", "set Tracking GX2207", "ITG", "OK"},
    {Condotto, "S3PRC", "set conducted", "3PR", "OK"},
    {Radiato, "S3PRR", "set radiated", "3PR", "OK"},
    {CondottoOem, "SCO6C", "set conducted", "CO6", ""},
    {RadiatoOem, "SCO6R", "set radiated", "CO6", ""},
    {QDSW3, "SUPP", "Set KRV QDSW3", "UPP", "OK"},
    {Lisn, "SUPP", "Set KRV Lisn", "UPP", "OK"},
    {Lisn3360, "SLSN", "Set KRV Lisn", "LSN", "OK"},
    {NomeLimite, "SLIC ", "Set name Limit", "LIC", "OK"},
    {NomeFattore, "SCFE ", "Set name conv factor", "CFE", "OK"},
    {RigaLimite, "SLIW", "Store Limit", "LIW", "OK", true},
    {RigaLimiteSweep, "SLIW", "Set Custom Limit", "LIW", "OK", true},
    {RigaFattore, "SCFW", "Store Conv Factor", "CFW", "OK", true},
    {RigaLimiteDSD, "SLDW", "Set Custom Limit\rdouble Smart Detector", "LDW", "OK", true},
    {FineLimite, "SLIE", "Set Name Custom Limit", "LIE", "OK"},
    {FineFattore, "SCFE ", "Set name conv factor", "CFE", "OK"},
    {Margine, "SLIM", "Set Margin", "LIM", "OK"},
    {RigaTabFreq, "SSFW ", "Set Frequency Table", "SFW", "OK", true},
    {DisabilitaCF, "SCFA -1", "Disabling conv factor", "CFA", "OK"},
    {Break, "SSTP", "set Break", "STP", "OK"},
    {Impostazione::StopSweep, "SSTP", "Stop Sweep", "STP", "OK"},
    {Impostazione::AbortSweep, "ASBK", "Abort Sweep", "SBK", "="},
    {Swept, "CHGS", "Set Swept", "CHGS=OK", ""},
    // The front-end answers with who it is from now on.
    {FFT, "SOFF", "Set FFT", "GX2207F", ""},
}};

constexpr bool InOrdine() {
    for (size_t i = 0; i < kQuante; ++i)
        if (kImpostazioni[i].quale != static_cast<Impostazione>(i))
            return false;
    return true;
}
static_assert(InOrdine());

const VoceImpostazione& Voce(Impostazione quale) {
    return kImpostazioni[static_cast<size_t>(quale)];
}

void Imposta(Ricevitore& r, Impostazione quale, std::string_view argomenti = {}) {
    InviaImpostazione(r, Componi(quale, argomenti), !Voce(quale).inSerie);
}

/// The 18 GHz unit has a fixed preselector.
bool PreselettoreFisso(const ReceiverModel& modello) {
    return modello.EstensioneAttiva && modello.UnitaEstensione == 2;
}

/// The input of the OEM models is slow to switch: only where it is not as wanted.
void ImpostaGamma(Ricevitore& r, bool radiata, Impostazione comune, Impostazione oem) {
    if (r.modello.ModelloOEM == 0)
        return Imposta(r, comune);
    const auto inUso = LeggiGamma(r, "#?CO6*");
    if (inUso && inUso->radiata != radiata)
        Imposta(r, oem);
}

std::string_view TestoDemodulazione(const ReceiverModel& modello, Demodulazione modo) {
    if (modo == Demodulazione::Spenta)
        return OnOff(false);
    const bool conForme = modello.Is3360 || modello.ModelloOEM != 0;
    if (!conForme || modo == Demodulazione::Accesa)
        return OnOff(true);
    return modo == Demodulazione::AM ? "AM" : "FM";
}

} // namespace

std::span<const VoceImpostazione> TabellaImpostazioni() {
    return kImpostazioni;
}

ReceiverCommand Componi(Impostazione quale, std::string_view argomenti) {
    const VoceImpostazione& voce = Voce(quale);
    std::string comando = "#";
    comando.append(voce.testa).append(argomenti).append("*");
    return {.Comando = comando,
            .Descrizione = std::string(voce.descrizione),
            .Risposta = {std::string(voce.risposta0), std::string(voce.risposta1)}};
}

bool InviaInOrdine(Ricevitore& r, std::span<const ComandoPronto> comandi) {
    for (const ComandoPronto& comando : comandi) {
        if (r.stato.AbbandonaComandi)
            return false;
        Imposta(r, comando.quale, comando.argomenti);
    }
    return !r.stato.AbbandonaComandi;
}

std::string FrequenzaHz(double mhz) {
    // To the thousandth of a hertz: what a product in binary leaves behind it goes.
    return TestoDaNumero(std::round(mhz * 1e9) / 1e6) + "e3";
}

std::string_view OnOff(bool acceso) {
    return acceso ? "ON" : "OFF";
}

void ImpostaBWIF(Ricevitore& r, int id) {
    Imposta(r, BWIF, TestoIntero(id));
}

void ImpostaPreselAn(Ricevitore& r, bool acceso) {
    if (!PreselettoreFisso(r.modello))
        Imposta(r, PreselAn, OnOff(acceso));
}

void ImpostaPreselMa(Ricevitore& r, bool acceso) {
    if (!PreselettoreFisso(r.modello))
        Imposta(r, PreselMa, OnOff(acceso));
}

void ImpostaPreAmpAn(Ricevitore& r, bool acceso) {
    Imposta(r, PreAmpAn, OnOff(acceso));
}

void ImpostaPreAmpMa(Ricevitore& r, bool acceso) {
    Imposta(r, PreAmpMa, OnOff(acceso));
}

void ImpostaPulseLim(Ricevitore& r, bool acceso) {
    Imposta(r, PulseLim, OnOff(acceso));
}

void ImpostaAttAn(Ricevitore& r, int dB) {
    Imposta(r, AttAn, TestoIntero(dB));
}

void ImpostaAttMa(Ricevitore& r, int dB) {
    Imposta(r, AttMa, TestoIntero(dB));
}

void ImpostaMinAtt(Ricevitore& r, int dB) {
    Imposta(r, MinAtt, TestoIntero(dB));
}

void ImpostaDinamica(Ricevitore& r, int dinamica, int riferimento) {
    Imposta(r, Dinamica, TestoIntero(dinamica) + ";" + TestoIntero(riferimento));
}

void ImpostaVolume(Ricevitore& r, int volume) {
    Imposta(r, Volume, TestoIntero(volume));
}

void ImpostaDemodulatore(Ricevitore& r, Demodulazione modo) {
    Imposta(r, Demodulatore, TestoDemodulazione(r.modello, modo));
}

void ImpostaRFOut(Ricevitore& r, bool acceso) {
    Imposta(r, RFOut, OnOff(acceso));
}

void ImpostaTracking(Ricevitore& r, bool acceso) {
    Imposta(r, Tracking, OnOff(acceso));
}

void ImpostaLivelloTG(Ricevitore& r, double livello) {
    Imposta(r, LivelloTG, TestoDaNumero(livello));
}

void ImpostaFrequenzaTG(Ricevitore& r, double mhz) {
    Imposta(r, FrequenzaTG, FrequenzaHz(mhz));
}

void ImpostaHoldTimeAn(Ricevitore& r, double valore) {
    Imposta(r, HoldTimeAn, TestoDaNumero(valore));
}

void ImpostaHoldTimeMa(Ricevitore& r, double valore) {
    Imposta(r, HoldTimeMa, TestoDaNumero(valore));
}

void ImpostaDetectorAn(Ricevitore& r, int id) {
    Imposta(r, DetectorAn, TestoIntero(id));
}

void ImpostaFrequenzaAn(Ricevitore& r, double startMhz, double stopMhz) {
    Imposta(r, FrequenzaAn, FrequenzaHz(startMhz) + "," + FrequenzaHz(stopMhz));
}

void ImpostaFrequenzaMa(Ricevitore& r, double mhz) {
    Imposta(r, FrequenzaMa, FrequenzaHz(mhz));
}

void ImpostaFiltroGX2207(Ricevitore& r, bool acceso) {
    Imposta(r, FiltroGX2207, OnOff(acceso));
}

void ImpostaIngressoGX2207(Ricevitore& r, bool altaImpedenza) {
    Imposta(r, IngressoGX2207, altaImpedenza ? "H" : "A");
}

void ImpostaTrackingGX2207(Ricevitore& r, int modo) {
    Imposta(r, TrackingGX2207, TestoIntero(modo));
}

void ImpostaCondotto(Ricevitore& r) {
    ImpostaGamma(r, false, Condotto, CondottoOem);
}

void ImpostaRadiato(Ricevitore& r) {
    ImpostaGamma(r, true, Radiato, RadiatoOem);
}

void DisabilitaCF(Ricevitore& r) {
    Imposta(r, Impostazione::DisabilitaCF);
}

void ImpostaBreak(Ricevitore& r) {
    Imposta(r, Break);
}

void StopSweep(Ricevitore& r) {
    Imposta(r, Impostazione::StopSweep);
}

void AbortSweep(Ricevitore& r) {
    Imposta(r, Impostazione::AbortSweep);
}

} // namespace orvane
