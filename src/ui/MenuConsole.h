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
    Report1,
    Report2,
    Report2Full,
    // Windows of the main window's own.
    ApriPannello,
    SalvaPannello,
    SalvaPannelloCome,
    Intestazione,
    Commento,
    Aspetto,
    Colori,
    // The report behind each sweep: as what, of which kind, and what goes into every report.
    AutoNessuno,
    AutoTesto,
    AutoPdf,
    AutoRtf,
    AutoUno,
    AutoDue,
    AutoDueInteri,
    AutoIntestazione,
    AutoRiassunto
};

struct VoceMenu {
    const char* menu;  ///< which menu it is in
    const char* sotto; ///< and which menu of that one, by its name in `kSottoMenu`; null for none
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

/// What the marks of "Auto Save Report" show.
struct SegniAutoReport {
    int modo = 0; ///< `AutoReportMode`
    int tipo = 0;
    bool intestazione = true;
    bool riassunto = false;
};
void SegnaAutoReport(const QMenuBar& barra, const SegniAutoReport& segni);

} // namespace orvane
