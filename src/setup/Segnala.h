// Small pieces from which the checks before a run make their findings.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "setup/Controlli.h"

namespace orvane {

inline Riquadro Esclamazione(std::string testo) {
    return {.testo = std::move(testo), .icona = Icona::Esclamazione};
}
inline Riquadro Informazione(std::string testo) {
    return {.testo = std::move(testo), .icona = Icona::Informazione};
}
inline Riquadro DomandaSiNo(std::string testo) {
    return {.testo = std::move(testo), .icona = Icona::Domanda, .pulsanti = Pulsanti::SiNo};
}

using CheRiga = std::function<bool(const ScanLine&)>;
/// These cells of each line in use for which `vale` holds.
std::vector<CellaErrata> CelleDove(const ScanTable& tabella,
                                   std::initializer_list<ColonnaScan> colonne, const CheRiga& vale);
/// Whether `vale` holds for a line in use.
bool UnaRiga(const ScanTable& tabella, const CheRiga& vale);
/// One finding for these cells; none where there are no cells.
Segnalazioni SeCiSono(std::vector<CellaErrata> celle, EsitoControllo esito, Riquadro riquadro);
/// One finding without cells, where `vale`.
Segnalazioni Se(bool vale, EsitoControllo esito, Riquadro riquadro = {});

/// The 18 GHz unit is in charge.
inline bool Con5590(const ReceiverModel& modello) {
    return modello.EstensioneAttiva && !modello.HaK3XK6X && modello.ModelloOEM == 0 &&
           modello.UnitaEstensione == 2;
}

/// A Smart line with two detectors.
bool RigaDoppioSmart(const ScanLine& riga);

} // namespace orvane
