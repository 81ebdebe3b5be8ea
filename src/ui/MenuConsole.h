// The menu bar of the main window, as a table.
#pragma once

#include <functional>

#include <QMenuBar>

#include "records/SetupRecord.h"

namespace orvane {

enum class AzioneMenu {
    Nessuna,
    Segno,
    RemoteLink,
    Esci,
    Guida,
    Limiti,
    Fattori,
    TabFreq,
    TabFreqMast,
    Libreria,
    // Of the measure on show.
    SalvaImmagine,
    CopiaImmagine,
    PicchiAlti,
    ZoomMarker,
    ZoomTutto,
    ZoomIndietro,
    ZoomAvanti,
    MisuraDopo,
    MisuraPrima,
    Confronta,
    Sovrapponi,
    // Windows of the main window's own.
    ApriPannello,
    SalvaPannello,
    SalvaPannelloCome,
    Intestazione,
    Commento,
    Aspetto,
    Colori
};

struct VoceMenu {
    const char* menu;  ///< which menu it is in
    const char* sotto; ///< and which menu of that one; null for none
    const char* nome;  ///< object name; null for a separator
    const char* testo;
    AzioneMenu azione;           ///< `Nessuna`: present, and disabled
    int16_t SetupRecord::*segno; ///< the flag that a check mark shows, -1 on
    const char* scorciatoia;
    bool delModo; ///< `DisabilitaMenu` switches it off
};

/// What the entries do.
struct AzioniMenu {
    std::function<void(int16_t SetupRecord::*, bool)> segno;
    std::function<void()> remoteLink;
    std::function<void()> esci;
    std::function<void()> guida;
    std::function<void(AzioneMenu)> tabelle;  ///< `Limiti` to `Libreria`
    std::function<void(AzioneMenu)> finestra; ///< all others
};

void CreaMenu(QMenuBar& barra, const AzioniMenu& azioni);
/// The check marks follow the record.
void AggiornaSegni(const QMenuBar& barra, const SetupRecord& setup);
/// Switches off what a mode must enable.
void DisabilitaVociModo(const QMenuBar& barra);
/// Panels and texts, in the modes that let them be edited.
void AbilitaVociPannello(const QMenuBar& barra);
/// What works on the measure on show.
struct VociMisura {
    bool immagine = false; ///< picture as a file, zoom
    bool picchi = false;   ///< `CHKShowHighestPeaks`
    bool simboli = false;  ///< `MNUSymbolOnPeaks`
    bool archivio = false; ///< next and previous, comparison
};
void AbilitaVociMisura(const QMenuBar& barra, const VociMisura& voci);
/// The mark of `CHKShowHighestPeaks`.
void SegnaPicchi(const QMenuBar& barra, bool si);

} // namespace orvane
