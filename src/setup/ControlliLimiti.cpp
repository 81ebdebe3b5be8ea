// Checks of limits and factors: of the smart detectors, their number, and the unit on display.
#include <algorithm>
#include <set>

#include "base/Testo.h"
#include "data/Interpolazione.h"
#include "data/LimitiSmart.h"
#include "data/NomiTabelle.h"
#include "records/Unita.h"
#include "setup/ElencoControlli.h"
#include "setup/FattoriSweep.h"
#include "setup/Segnala.h"

namespace orvane::prevolo {
namespace {

constexpr size_t kMaxLimiti = 5;

/// Name of a limit that is switched on; empty for "NONE".
std::string NomeAttivo(int16_t acceso, const std::string& nome) {
    return acceso == 1 && NominaTabella(nome) ? Rifila(nome) : std::string();
}

struct LimitiDellaRiga {
    std::string primo;
    std::string secondo; ///< of the Double Smart Detector
};

LimitiDellaRiga LimitiAttivi(const ScanLine& riga) {
    return {NomeAttivo(riga.LimitOn, riga.Limit), NomeAttivo(riga.LimitDSDOn, riga.LimitDSD)};
}

bool LimitiMancanti(const ScanLine& riga) {
    const LimitiDellaRiga limiti = LimitiAttivi(riga);
    return limiti.primo.empty() || (RigaDoppioSmart(riga) && limiti.secondo.empty());
}

/// Whether `vale` holds for a limit that a Smart line is compared with.
template <class Vale> bool UnLimiteSmart(C c, const ScanLine& riga, Vale vale) {
    if (riga.Smart != 1)
        return false;
    const LimitiDellaRiga limiti = LimitiAttivi(riga);
    return (!limiti.primo.empty() && vale(LimiteDaNome(c.albero, limiti.primo))) ||
           (RigaDoppioSmart(riga) && !limiti.secondo.empty() &&
            vale(LimiteDaNome(c.albero, limiti.secondo)));
}

EsitoLimiteSD GiudicaRiga(C c, const ScanLine& riga) {
    const LimitiDellaRiga nomi = LimitiAttivi(riga);
    const LimFacRecord limite = LimiteDaNome(c.albero, nomi.primo);
    if (!RigaDoppioSmart(riga))
        return GiudicaLimiteSD(limite);
    const LimFacRecord secondo = LimiteDaNome(c.albero, nomi.secondo);
    return GiudicaLimiteSD(limite, &secondo);
}

const VoceUnita& UnitaDi(int unitId) {
    const auto& tabella = TabellaUnitaGrafico();
    return tabella[static_cast<size_t>(
        std::clamp(unitId, 0, static_cast<int>(tabella.size()) - 1))];
}

/// An active factor is one that is on and has a curve: a missing file yields nothing.
bool ConFattore(C c) {
    const auto fattori = FattoriInUso(c.albero, c.setup);
    return std::any_of(fattori.begin(), fattori.end(),
                       [](const FactorTable& f) { return NumeroPunti(f) > 0; });
}

Riquadro UnitaSenzaFattore(const VoceUnita& unita) {
    return Esclamazione("          The selected Unit " + unita.testo +
                        "\rShould have an active Conversion Factor");
}

bool ChiedeFattore(int unitId) {
    return UnitaDi(unitId).chiedeFattore;
}

/// Lines whose smart detector is compared with a limit in a field unit.
Segnalazioni LimitiInUnitaDiCampo(C c) {
    int unita = 1;
    auto celle = CelleDove(c.tabella, {ColonnaScan::Detector}, [&](const ScanLine& riga) {
        return UnLimiteSmart(c, riga, [&](const LimFacRecord& limite) {
            if (!ChiedeFattore(limite.UnitId))
                return false;
            unita = limite.UnitId;
            return true;
        });
    });
    if (celle.empty() || ConFattore(c))
        return {};
    return SeCiSono(std::move(celle), EsitoControllo::Ferma, UnitaSenzaFattore(UnitaDi(unita)));
}

} // namespace

// A line without its limit is left to `ControllaLimitiConSDeDSD`, which has the words for it.
Segnalazioni ControlloNMaxPuntiLimSD(C c) {
    Segnalazioni trovate;
    for (size_t i = 0; i < RigheInUso(c.tabella); ++i) {
        const ScanLine& riga = c.tabella[i];
        if (riga.Smart != 1 || LimitiMancanti(riga))
            continue;
        const EsitoLimiteSD esito = GiudicaRiga(c, riga);
        if (esito != EsitoLimiteSD::Buono)
            trovate.push_back({.celle = {{i, ColonnaScan::Detector}},
                               .riquadro = Esclamazione(TestoLimiteSD(esito))});
    }
    return trovate;
}

Segnalazioni ControllaNumeroLimiti(C c) {
    std::set<std::string> limiti;
    for (const ScanLine& riga : c.tabella) {
        if (riga.Start == 0)
            continue;
        const LimitiDellaRiga nomi = LimitiAttivi(riga);
        limiti.insert(Maiuscolo(nomi.primo));
        limiti.insert(Maiuscolo(nomi.secondo));
    }
    limiti.erase("");
    return Se(limiti.size() > kMaxLimiti, EsitoControllo::Chiede,
              DomandaSiNo(" More than 5 limits\rProceed anyway?"));
}

Segnalazioni ControllaLimitiConSDeDSD(C c) {
    return SeCiSono(
        CelleDove(c.tabella, {ColonnaScan::Detector},
                  [](const ScanLine& riga) { return riga.Smart == 1 && LimitiMancanti(riga); }),
        EsitoControllo::Ferma, Esclamazione("Smart detector must have\ra Limit (enabled)"));
}

Segnalazioni ControllaLimLinSD(C c) {
    return SeCiSono(CelleDove(c.tabella, {ColonnaScan::Detector},
                              [&](const ScanLine& riga) {
                                  return UnLimiteSmart(c, riga, [](const LimFacRecord& limite) {
                                      return limite.LinFreq == 1;
                                  });
                              }),
                    EsitoControllo::Ferma,
                    Esclamazione("Linear limit not suitable with smart detector"));
}

// The factors hold for all lines alike, and offsets between units are constant: a field unit is
// yielded exactly where a factor is active. What asks for one is the unit on display, and for a
// Smart line, which the receiver compares itself, the unit in which its limit was entered.
Segnalazioni ControlladBpTFCSweep(C c) {
    if (ChiedeFattore(c.setup.UnitId))
        return Se(!ConFattore(c), EsitoControllo::Ferma,
                  UnitaSenzaFattore(UnitaDi(c.setup.UnitId)));
    return LimitiInUnitaDiCampo(c);
}

} // namespace orvane::prevolo
