#include "ui/MenuConsole.h"

#include <algorithm>

#include <QAction>
#include <QActionGroup>
#include <QMenu>

namespace orvane {
namespace {

constexpr auto kNessuna = AzioneMenu::Nessuna;
constexpr auto kSegno = AzioneMenu::Segno;

constexpr VoceMenu kSeparatore(const char* menu) {
    return {menu, nullptr, nullptr, nullptr, kNessuna, nullptr, nullptr, false};
}
constexpr VoceMenu kDopo(const char* menu, const char* nome, const char* testo) {
    return {menu, nullptr, nome, testo, kNessuna, nullptr, nullptr, true};
}
constexpr VoceMenu kTabelle(const char* nome, const char* testo, AzioneMenu azione) {
    return {"Make", nullptr, nome, testo, azione, nullptr, nullptr, false};
}
constexpr VoceMenu kMarca(const char* nome, const char* testo, int16_t SetupRecord::*segno) {
    return {"Options", nullptr, nome, testo, kSegno, segno, nullptr, false};
}
/// A window that opens from the main window; `delModo` until a mode allows it.
constexpr VoceMenu kFinestra(const char* menu, const char* nome, const char* testo,
                             AzioneMenu azione, bool delModo) {
    return {menu, nullptr, nome, testo, azione, nullptr, nullptr, delModo};
}
/// On the measure on show.
constexpr VoceMenu kMisura(const char* menu, const char* nome, const char* testo, AzioneMenu azione,
                           const char* scorciatoia) {
    return {menu, nullptr, nome, testo, azione, nullptr, scorciatoia, true};
}
/// In "Auto Save Report".
constexpr VoceMenu kAuto(const char* nome, const char* testo, AzioneMenu azione) {
    return {"Report", "MNUAutoSaveReport", nome, testo, azione, nullptr, nullptr, true};
}
constexpr VoceMenu kSeparatoreAuto = {
    "Report", "MNUAutoSaveReport", nullptr, nullptr, kNessuna, nullptr, nullptr, false};
/// A mark whose effect belongs to what is not there yet.
constexpr VoceMenu kMarcaSpenta(const char* nome, const char* testo, int16_t SetupRecord::*segno) {
    return {"Options", nullptr, nome, testo, kNessuna, segno, nullptr, false};
}

using S = SetupRecord;
constexpr VoceMenu kMenu[] = {
    kFinestra("File", "MNUOpenPanel", "Open Panel…", AzioneMenu::ApriPannello, true),
    kFinestra("File", "MNUSavePanel", "Save Panel", AzioneMenu::SalvaPannello, true),
    kFinestra("File", "MNUSaveAs", "Save Panel As…", AzioneMenu::SalvaPannelloCome, true),
    kSeparatore("File"),
    kDopo("File", "MNURetrieve", "Retrieve…"),
    kSeparatore("File"),
    kMisura("File", "MNUSaveImage", "Save Image…", AzioneMenu::SalvaImmagine, "Ctrl+Shift+S"),
    kMisura("File", "MNUSsaveClipboard", "Copy Image to Clipboard", AzioneMenu::CopiaImmagine,
            "Ctrl+Shift+C"),
    kSeparatore("File"),
    {"File", nullptr, "CMBExit", "Exit", AzioneMenu::Esci, nullptr, "Ctrl+Q", false},
    kTabelle("MNUMakeLimits", "Limits…", AzioneMenu::Limiti),
    kTabelle("MNUMakeFactors", "Conversion Factors…", AzioneMenu::Fattori),
    kTabelle("MNUMakeTabFreq", "Frequency Table…", AzioneMenu::TabFreq),
    kTabelle("MNUMakeTabFreqMast", "Frequency Mast Table…", AzioneMenu::TabFreqMast),
    kDopo("Make", "MNUMakeTabSubRange", "Sub Range Table…"),
    kSeparatore("Make"),
    kTabelle("MNUInstallLimits", "Install Limit Library…", AzioneMenu::Libreria),
    kMisura("Report", "MNUReport0", "Report 1 detector 2 limits", AzioneMenu::Report1, "Ctrl+R"),
    kMisura("Report", "MNUReport1", "Report 2 detectors 2 limits", AzioneMenu::Report2, nullptr),
    kMisura("Report", "MNUReport2", "Report 2 full detectors 2 limits", AzioneMenu::Report2Full,
            nullptr),
    kSeparatore("Report"),
    kFinestra("Report", "mnuHeaderTitle", "Header Title…", AzioneMenu::Intestazione, true),
    kFinestra("Report", "mnuTestComment", "Test Comment…", AzioneMenu::Commento, true),
    kSeparatore("Report"),
    kAuto("MNUAutoSaveRep0", "None", AzioneMenu::AutoNessuno),
    kAuto("MNUAutoSaveRep1", "Text", AzioneMenu::AutoTesto),
    kAuto("MNUAutoSaveRep2", "PDF", AzioneMenu::AutoPdf),
    kAuto("MNUAutoSaveRep3", "RTF", AzioneMenu::AutoRtf),
    kSeparatoreAuto,
    kAuto("MNUAutoSaveKind0", "1 detector 2 limits", AzioneMenu::AutoUno),
    kAuto("MNUAutoSaveKind1", "2 detectors 2 limits", AzioneMenu::AutoDue),
    kAuto("MNUAutoSaveKind2", "2 full detectors 2 limits", AzioneMenu::AutoDueInteri),
    kSeparatoreAuto,
    kAuto("MNUAutoSaveHeader", "Header text", AzioneMenu::AutoIntestazione),
    kAuto("MNUAutoSaveSummary", "Summary", AzioneMenu::AutoRiassunto),
    kMisura("View", "CHKShowHighestPeaks", "Highest Peaks", AzioneMenu::PicchiAlti, "F6"),
    kSeparatore("View"),
    kMisura("View", "MNUZoomMarkers", "Zoom Between Markers", AzioneMenu::ZoomMarker, "F7"),
    kMisura("View", "MNUZoomWhole", "Whole Span", AzioneMenu::ZoomTutto, "F8"),
    kMisura("View", "MNUZoomBack", "Zoom Back", AzioneMenu::ZoomIndietro, "Shift+F7"),
    kMisura("View", "MNUZoomForward", "Zoom Forward", AzioneMenu::ZoomAvanti, "Shift+F8"),
    kSeparatore("View"),
    kMisura("View", "MNUNextMeasure", "Next Measure", AzioneMenu::MisuraDopo, "Ctrl+Down"),
    kMisura("View", "MNUPreviousMeasure", "Previous Measure", AzioneMenu::MisuraPrima, "Ctrl+Up"),
    kMisura("View", "MNUCompareMeasure", "Compare With…", AzioneMenu::Confronta, nullptr),
    kMisura("View", "MNUOverlayMeasure", "Overlay…", AzioneMenu::Sovrapponi, nullptr),
    {"Tools", nullptr, "MNURemoteLink", "Remote Link…", AzioneMenu::RemoteLink, nullptr, "Ctrl+L",
     false},
    kSeparatore("Tools"),
    kDopo("Tools", "MNUWaterfall", "Waterfall…"),
    kDopo("Tools", "MNUCorrel", "Correlation…"),
    kMarca("MNUOverwriteWarning", "Overwrite Warning", &S::OverwriteWarning),
    kMarca("MNUorderForDate", "Order For Date", &S::OrderForDate),
    kMarca("MNUCheckSweepArchiveSize", "Check Sweep Archive Size", &S::CheckSweepArchiveSize),
    kSeparatore("Options"),
    kMarca("MNUSymbolOnPeaks", "Symbol On Peaks", &S::SymbolOnPeaks),
    kMarcaSpenta("MNUGX2207FFTSwept", "GX2207 FFT Swept", &S::GX2207FFTSwept),
    kMarca("MNUZoomModeA", "Zoom Mode A", &S::ZoomModeA),
    kMarca("MNUZoomModeB", "Zoom Mode B", &S::ZoomModeB),
    kSeparatore("Options"),
    kFinestra("Options", "MNUAspect", "Aspect…", AzioneMenu::Aspetto, false),
    kFinestra("Options", "MNUColors", "Colours…", AzioneMenu::Colori, false),
    {"Help", nullptr, "MNUAbout", "About Orvane Console", AzioneMenu::Guida, nullptr, nullptr,
     false},
};

constexpr const char* kNomiMenu[][2] = {
    {"File", "MNUFile"},   {"Make", "MNUMake"},       {"Report", "MNUReport"}, {"View", "MNUView"},
    {"Tools", "MNUTools"}, {"Options", "MNUOptions"}, {"Help", "MNUHelp"},
};
constexpr const char* kSottoMenu[][2] = {{"Auto Save Report", "MNUAutoSaveReport"}};

QMenu* TrovaSotto(QMenu& menu, const char* nome) {
    if (auto* trovato = menu.findChild<QMenu*>(QLatin1String(nome), Qt::FindDirectChildrenOnly))
        return trovato;
    const auto* voce = std::find_if(std::begin(kSottoMenu), std::end(kSottoMenu), [nome](auto& v) {
        return QLatin1String(v[1]) == QLatin1String(nome);
    });
    QMenu* sotto = menu.addMenu(QLatin1String((*voce)[0]));
    sotto->setObjectName(QLatin1String(nome));
    return sotto;
}

void Collega(QAction* azione, const VoceMenu& voce, const AzioniMenu& azioni) {
    switch (voce.azione) {
    case AzioneMenu::Nessuna:
        azione->setEnabled(false);
        azione->setToolTip(QStringLiteral("Not part of this release"));
        return;
    case AzioneMenu::Segno:
        QObject::connect(azione, &QAction::toggled,
                         [f = azioni.segno, segno = voce.segno](bool si) { f(segno, si); });
        return;
    case AzioneMenu::RemoteLink:
        QObject::connect(azione, &QAction::triggered, azioni.remoteLink);
        return;
    case AzioneMenu::Esci:
        QObject::connect(azione, &QAction::triggered, azioni.esci);
        return;
    case AzioneMenu::Guida:
        QObject::connect(azione, &QAction::triggered, azioni.guida);
        return;
    case AzioneMenu::Limiti:
    case AzioneMenu::Fattori:
    case AzioneMenu::TabFreq:
    case AzioneMenu::TabFreqMast:
    case AzioneMenu::Libreria:
        QObject::connect(azione, &QAction::triggered,
                         [f = azioni.tabelle, quale = voce.azione] { f(quale); });
        return;
    default:
        QObject::connect(azione, &QAction::triggered,
                         [f = azioni.finestra, quale = voce.azione] { f(quale); });
        return;
    }
}

/// Marks of which one is on.
struct GruppoMarche {
    AzioneMenu prima;
    AzioneMenu ultima;
    const char* nome;
};
constexpr GruppoMarche kGruppi[] = {
    {AzioneMenu::AutoNessuno, AzioneMenu::AutoRtf, "MNUAutoSaveRep"},
    {AzioneMenu::AutoUno, AzioneMenu::AutoDueInteri, "MNUAutoSaveKind"},
};

void AggiungiAlGruppo(QMenu& menu, QAction* azione, AzioneMenu quale) {
    for (const GruppoMarche& gruppo : kGruppi) {
        if (quale < gruppo.prima || quale > gruppo.ultima)
            continue;
        auto* marche = menu.findChild<QActionGroup*>(QLatin1String(gruppo.nome));
        if (!marche) {
            marche = new QActionGroup(&menu);
            marche->setObjectName(QLatin1String(gruppo.nome));
        }
        marche->addAction(azione);
    }
}

void AggiungiVoce(QMenu& menu, const VoceMenu& voce, const AzioniMenu& azioni) {
    QMenu& dove = voce.sotto ? *TrovaSotto(menu, voce.sotto) : menu;
    if (!voce.nome) {
        dove.addSeparator();
        return;
    }
    QAction* azione = dove.addAction(QString::fromUtf8(voce.testo));
    azione->setObjectName(QLatin1String(voce.nome));
    azione->setCheckable(voce.segno != nullptr || voce.azione == AzioneMenu::PicchiAlti ||
                         voce.azione >= AzioneMenu::AutoNessuno);
    AggiungiAlGruppo(dove, azione, voce.azione);
    if (voce.scorciatoia)
        azione->setShortcut(QKeySequence(QLatin1String(voce.scorciatoia)));
    Collega(azione, voce, azioni);
}

QAction* Azione(const QMenuBar& barra, const char* nome) {
    return barra.findChild<QAction*>(QLatin1String(nome));
}

} // namespace

void CreaMenu(QMenuBar& barra, const AzioniMenu& azioni) {
    for (const auto& [testo, nome] : kNomiMenu) {
        QMenu* menu = barra.addMenu(QStringLiteral("&") + QLatin1String(testo));
        menu->setObjectName(QLatin1String(nome));
        menu->setToolTipsVisible(true);
        for (const VoceMenu& voce : kMenu)
            if (QLatin1String(voce.menu) == QLatin1String(testo))
                AggiungiVoce(*menu, voce, azioni);
    }
}

void AggiornaSegni(const QMenuBar& barra, const SetupRecord& setup) {
    for (const VoceMenu& voce : kMenu) {
        if (!voce.segno)
            continue;
        QAction* azione = Azione(barra, voce.nome);
        const QSignalBlocker zitta(azione);
        azione->setChecked(setup.*voce.segno != 0);
    }
}

void DisabilitaVociModo(const QMenuBar& barra) {
    for (const VoceMenu& voce : kMenu)
        if (voce.delModo)
            Azione(barra, voce.nome)->setEnabled(false);
}

void AbilitaVociPannello(const QMenuBar& barra) {
    for (const VoceMenu& voce : kMenu)
        if (voce.delModo && voce.azione >= AzioneMenu::ApriPannello)
            Azione(barra, voce.nome)->setEnabled(true);
}

void AbilitaVociMisura(const QMenuBar& barra, const VociMisura& voci) {
    struct Voce {
        const char* nome;
        bool VociMisura::*quando;
    };
    constexpr Voce kVoci[] = {
        {"MNUSaveImage", &VociMisura::immagine},      {"MNUSsaveClipboard", &VociMisura::immagine},
        {"CHKShowHighestPeaks", &VociMisura::picchi}, {"MNUSymbolOnPeaks", &VociMisura::simboli},
        {"MNUZoomMarkers", &VociMisura::immagine},    {"MNUZoomWhole", &VociMisura::immagine},
        {"MNUZoomBack", &VociMisura::immagine},       {"MNUZoomForward", &VociMisura::immagine},
        {"MNUNextMeasure", &VociMisura::archivio},    {"MNUPreviousMeasure", &VociMisura::archivio},
        {"MNUCompareMeasure", &VociMisura::archivio}, {"MNUOverlayMeasure", &VociMisura::archivio},
        {"MNUReport0", &VociMisura::immagine},        {"MNUReport1", &VociMisura::immagine},
        {"MNUReport2", &VociMisura::immagine},
    };
    for (const Voce& voce : kVoci)
        Azione(barra, voce.nome)->setEnabled(voci.*voce.quando);
}

void SegnaPicchi(const QMenuBar& barra, bool si) {
    QAction* azione = Azione(barra, "CHKShowHighestPeaks");
    const QSignalBlocker zitta(azione);
    azione->setChecked(si);
}

void SegnaAutoReport(const QMenuBar& barra, const SegniAutoReport& segni) {
    // Names end in the number that the record holds.
    const auto segna = [&barra](const char* nome, int quanti, int scelto) {
        for (int i = 0; i < quanti; ++i)
            barra.findChild<QAction*>(QLatin1String(nome) + QString::number(i))
                ->setChecked(i == scelto);
    };
    segna("MNUAutoSaveRep", 4, segni.modo);
    segna("MNUAutoSaveKind", 3, segni.tipo);
    Azione(barra, "MNUAutoSaveHeader")->setChecked(segni.intestazione);
    Azione(barra, "MNUAutoSaveSummary")->setChecked(segni.riassunto);
}

} // namespace orvane
