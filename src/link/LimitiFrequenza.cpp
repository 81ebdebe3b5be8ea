#include "link/LimitiFrequenza.h"

#include <algorithm>
#include <array>

#include "link/Comandi.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

constexpr double kConfineSuMhz = 30.1;
constexpr double kConfineGiuMhz = 28.0;
constexpr double kPausaDopoStop = 0.1;
// By `GammaK3X`.
constexpr std::array<const char*, 2> kDomande = {"Switch to conducted", "Switch to radiated"};

void FermaRicevitore(Ricevitore& r) {
    InviaGrezzo(r, "#SSTP*");
    Attendi(r.ambiente, kPausaDopoStop);
    r.porta.SvuotaRicezione();
}

void ImpostaGammaModello(Ricevitore& r, bool radiata) {
    r.modello.ModoK3X = radiata ? 2 : 1;
    r.modello.EstensioneAttiva = radiata;
    r.caps = ImpostaModelCaps(r.modello);
}

} // namespace

std::optional<GammaK3X> PassaggioGamma(const ReceiverModel& modello, const CampoFrequenza& voluto) {
    if (!HaCondottoERadiato(modello))
        return std::nullopt;
    if (modello.ModoK3X == 1 && voluto.stopMhz > kConfineSuMhz)
        return GammaK3X::Radiata;
    if (modello.ModoK3X == 2 && voluto.startMhz < kConfineGiuMhz)
        return GammaK3X::Condotta;
    return std::nullopt;
}

bool CambiaGamma(ComuniVivi& c, GammaK3X gamma, Modalita modalita) {
    Ricevitore& r = c.r;
    const Risposta risposta = r.ambiente.Mostra({.testo = kDomande[static_cast<size_t>(gamma)],
                                                 .icona = Icona::Domanda,
                                                 .pulsanti = Pulsanti::OkAnnulla});
    if (risposta != Risposta::Ok)
        return false;
    const bool radiata = gamma == GammaK3X::Radiata;
    FermaRicevitore(r);
    ImpostaGammaModello(r, radiata);
    radiata ? ImpostaRadiato(r) : ImpostaCondotto(r);
    if (!r.stato.AbbandonaComandi)
        LeggiModello(r, modalita, r.modello.ModoK3X);
    if (r.stato.AbbandonaComandi)
        return false;
    c.vista.RiempiLineSwitch();
    return true;
}

CampoFrequenza DeterminaLimFStartFStopAn5570(const ModelCaps& caps, const CampoFrequenza& voluto) {
    return {.startMhz = std::clamp(voluto.startMhz, caps.FMinAn, caps.FMaxAn),
            .stopMhz = std::clamp(voluto.stopMhz, caps.FMinAn, caps.FMaxAn)};
}

std::optional<CampoFrequenza> DeterminaLimFStartFStopAnK3X(ComuniVivi& c,
                                                           const CampoFrequenza& voluto) {
    const auto passaggio = PassaggioGamma(c.r.modello, voluto);
    if (passaggio && !CambiaGamma(c, *passaggio, Modalita::Analyzer))
        return std::nullopt;
    return DeterminaLimFStartFStopAn5570(c.r.caps[0], voluto);
}

std::optional<double> DeterminaLimFreqMaK3X3360(ComuniVivi& c, double mhz) {
    const auto passaggio = PassaggioGamma(c.r.modello, {.startMhz = mhz, .stopMhz = mhz});
    if (passaggio && !CambiaGamma(c, *passaggio, Modalita::Manual))
        return std::nullopt;
    return std::clamp(mhz, c.r.caps[1].FMinMa, c.r.caps[1].FMaxMa);
}

} // namespace orvane
