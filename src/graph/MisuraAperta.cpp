#include "graph/MisuraAperta.h"

#include <algorithm>

#include "base/Testo.h"
#include "data/ControllaRecord.h"
#include "data/ControllaTabelle.h"
#include "data/Interpolazione.h"
#include "data/NomiTabelle.h"
#include "setup/ListaFrequenze.h"

namespace orvane {
namespace {

constexpr size_t kLimitiMostrati = 2;

/// Reads the header without touching the running records. A damaged one is told.
bool LeggiHeader(Scrivania& s, const std::string& nome, SweepHeader& header) {
    const std::string percorso = TrovaKSH(s.albero, nome);
    const auto dati = s.albero.Leggi(percorso);
    if (dati && LeggiRecord(*dati, header))
        return true;
    s.ambiente.Mostra({.testo = "Failed loading" + s.albero.DataRoot() + percorso});
    return false;
}

} // namespace

LimFacRecord CercaTabella(const Scrivania& s, const std::string& misura,
                          const std::string& locale) {
    LimFacRecord tabella;
    for (const std::string& percorso : {CartellaMisura(misura) + locale, locale}) {
        if (misura.empty() && percorso != locale)
            continue;
        const auto dati = s.albero.Leggi(percorso);
        if (!dati)
            continue;
        tabella = LeggiLimFac(*dati);
        ControllaLimFac(tabella);
        break;
    }
    return tabella;
}

void CampoDellaTabella(const ScanTable& tabella, double& startMhz, double& stopMhz) {
    startMhz = stopMhz = 0;
    for (const ScanLine& riga : tabella) {
        if (riga.Start == 0 || !(riga.Start < riga.Stop))
            continue;
        startMhz = startMhz == 0 ? riga.Start : std::min(startMhz, riga.Start);
        stopMhz = std::max(stopMhz, riga.Stop);
    }
}

void CaricaTabelleMisura(Scrivania& s, const std::string& misura, const SetupRecord& setup,
                         TabelleLimFac& tabelle) {
    tabelle = {};
    for (size_t i = 0; i < kLimitiMostrati; ++i)
        if (NominaTabella(setup.LimitName[i]))
            tabelle.slot[kPrimoLimite + i] =
                CercaTabella(s, misura, PercorsoLimite(Rifila(setup.LimitName[i])));
    for (size_t i = 0; i < kNumFattori; ++i)
        if (NominaTabella(setup.FactorName[i]))
            tabelle.slot[kPrimoFattore + i] =
                CercaTabella(s, misura, PercorsoFattore(Rifila(setup.FactorName[i])));
}

void AggiungiFattori(std::span<int16_t> livelli, int sommaCent) {
    constexpr int kMassimo = 32767;
    for (int16_t& livello : livelli)
        if (livello > kNessunLivello)
            livello =
                static_cast<int16_t>(std::clamp(livello + sommaCent, kNessunLivello + 1, kMassimo));
}

void ApplicaFattori(SweepTrace& traccia, TabelleLimFac& tabelle, const SetupRecord& setup) {
    if (std::ranges::none_of(setup.FactorOn, [](int16_t acceso) { return acceso == 1; }))
        return;
    for (CampioneTraccia& c : traccia)
        AggiungiFattori(c.livello,
                        SommaFattori(tabelle, setup, static_cast<float>(c.freqMhz * 1e6)));
}

void CaricaTracciaMisura(Scrivania& s, MisuraAperta& misura, const SetupRecord& setup,
                         std::optional<DetectorKind> detector) {
    const auto primo = std::find(misura.detector.begin(), misura.detector.end(), true);
    auto traccia = std::make_shared<SweepTrace>();
    auto coperti = std::make_shared<SweepTrace>();
    if (primo != misura.detector.end())
        *traccia = CreaTracciaSweep(
            s, misura.nome, misura.base, misura.header.Scan.Righe,
            detector.value_or(static_cast<DetectorKind>(primo - misura.detector.begin())),
            {.vista = misura.vista,
             .coperti = coperti.get(),
             .frequenza = FrequenzeDaTabella(s.albero)});
    ApplicaFattori(*traccia, misura.tabelle, setup);
    ApplicaFattori(*coperti, misura.tabelle, setup);
    misura.traccia = std::move(traccia);
    misura.coperti = std::move(coperti);
}

MisuraAperta ApriIntestazione(Scrivania& s, const std::string& nome) {
    MisuraAperta misura{.nome = nome, .base = nome};
    misura.leggibile = LeggiHeader(s, nome, misura.header);
    if (!misura.leggibile)
        return misura;
    ControllaScan(misura.header.Scan);
    ControllaSetup(misura.header.Setup);
    CampoDellaTabella(misura.header.Scan.Righe, misura.startMhz, misura.stopMhz);
    for (const ScanLine& riga : misura.header.Scan.Righe)
        for (size_t d = 0; d < kNumDetector; ++d)
            misura.detector[d] |= riga.Start != 0 && riga.Detector[d] != 0;
    misura.date = DataMisura(s, nome);
    return misura;
}

MisuraAperta ApriMisura(Scrivania& s, const std::string& nome) {
    MisuraAperta misura = ApriIntestazione(s, nome);
    if (!misura.leggibile)
        return misura;
    CaricaTabelleMisura(s, nome, misura.header.Setup, misura.tabelle);
    CaricaTracciaMisura(s, misura, misura.header.Setup);
    return misura;
}

} // namespace orvane
