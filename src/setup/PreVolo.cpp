#include "setup/PreVolo.h"

#include <algorithm>
#include <array>

#include "base/Interruttori.h"
#include "data/Misure.h"
#include "data/Panels.h"
#include "link/Comandi.h"
#include "link/Identificazione.h"
#include "link/Interrogazioni.h"

namespace orvane {
namespace {

void Avverti(PreVolo& p, std::string testo) {
    p.ricevitore.ambiente.Mostra({.testo = std::move(testo), .icona = Icona::Esclamazione});
}

void Segna(PreVolo& p, size_t riga, ColonnaScan colonna) {
    p.vista.EvidenziaCella(static_cast<int>(riga), colonna, true);
}

bool RiordinaTabella(PreVolo& p) {
    CompattaScanTable(p.scan.Righe);
    p.vista.AggiornaGriglia();
    return RigheInUso(p.scan.Righe) > 0;
}

/// A span turned round, or one that the unit in charge does not reach. Models with both inputs are
/// switched line by line, so that only the first rule holds for them.
bool ErroreDiFrequenza(const ScanLine& riga, const Ricevitore& r) {
    if (!(riga.Start < riga.Stop))
        return true;
    return !HaCondottoERadiato(r.modello) &&
           (riga.Start < r.caps[0].FMinScan || riga.Stop > r.caps[0].FMaxScan);
}

bool ControllaFstartFstopScanTab(PreVolo& p) {
    bool bene = true;
    for (size_t i = 0; i < RigheInUso(p.scan.Righe); ++i) {
        if (!ErroreDiFrequenza(p.scan.Righe[i], p.ricevitore))
            continue;
        Segna(p, i, ColonnaScan::Start);
        Segna(p, i, ColonnaScan::Stop);
        bene = false;
    }
    if (bene)
        return true;
    Avverti(p, "Start/Stop Frequency Error");
    return Acceso(p.ricevitore.ambiente.RigaComando(), interruttore::kNoContFreq);
}

bool ControllaDetRMSAVGScanTab(PreVolo& p) {
    if (p.ricevitore.modello.ConRmsAvg)
        return true;
    for (size_t i = 0; i < RigheInUso(p.scan.Righe); ++i) {
        if (p.scan.Righe[i].Detector[static_cast<size_t>(DetectorKind::RmsAvg)] == 0)
            continue;
        Segna(p, i, ColonnaScan::Detector);
        Avverti(p, "Rms-Avg Detector not available");
        return false;
    }
    return true;
}

bool CopiaPassi(PreVolo& p) {
    for (ScanLine& riga : p.scan.Righe)
        riga.StepOriginal = riga.Step;
    return true;
}

struct ParoleErroreDiPasso {
    const char* testo;
    bool campo; ///< the span is at fault, not the step
};
constexpr std::array<ParoleErroreDiPasso, 4> kErroriDiPasso = {{
    {"", false},
    {"   *** Step Error ***\r        Too small step", false},
    {"   *** Step Error ***\r        Too big step", false},
    {"   *** Start/Stop Frequency Error ***\r            Too small Span", true},
}};

bool ControlloStepScanTab(PreVolo& p) {
    for (size_t i = 0; i < RigheInUso(p.scan.Righe); ++i) {
        ScanLine& riga = p.scan.Righe[i];
        if (riga.AutoStep == 1)
            riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
        const int codice = ControllaPassoDellaRiga(riga);
        if (codice == 0)
            continue;
        const auto& errore = kErroriDiPasso[static_cast<size_t>(codice)];
        Segna(p, i, errore.campo ? ColonnaScan::Start : ColonnaScan::Step);
        if (errore.campo)
            Segna(p, i, ColonnaScan::Stop);
        Avverti(p, errore.testo);
        return false;
    }
    return true;
}

bool ImpostaCFSweep(PreVolo& p) {
    DisabilitaCF(p.ricevitore);
    return !p.ricevitore.stato.AbbandonaComandi;
}

bool RisolviNomeMisura(PreVolo& p) {
    p.misura = ControlNameMeasProfiloB(p.scrivania, p.misura);
    return !p.misura.empty();
}

struct VoceControllo {
    std::string_view nome;
    bool (*esegui)(PreVolo&);
    std::string_view motivo; ///< what is said of a run that it stopped
};

// The chain, in order: later checks rely on what earlier ones have repaired.
constexpr std::array kCatena = {
    VoceControllo{"table tidy", RiordinaTabella, "the scan table has no line in use"},
    VoceControllo{"ControllaFstartFstopScanTab", ControllaFstartFstopScanTab,
                  "start or stop frequency of a line"},
    VoceControllo{"ControllaDetRMSAVGScanTab", ControllaDetRMSAVGScanTab,
                  "a detector that this receiver does not have"},
    VoceControllo{"step copy", CopiaPassi, ""},
    VoceControllo{"ControlloStepScanTab", ControlloStepScanTab, "the step of a line"},
    VoceControllo{"ImpostaCFSweep", ImpostaCFSweep, "the conversion factors were not accepted"},
    VoceControllo{"ControlNameMeasProfiloB", RisolviNomeMisura,
                  "the measure exists and is not to be replaced"},
};

void CancellaSegni(PreVolo& p) {
    for (int riga = 0; riga < static_cast<int>(kMaxScanLine); ++riga)
        for (int colonna = 0; colonna < static_cast<int>(ColonnaScan::NumColonne); ++colonna)
            p.vista.EvidenziaCella(riga, static_cast<ColonnaScan>(colonna), false);
}

/// Who the receiver is, freshly: the operator may have swapped units since the last run.
bool Riconosci(PreVolo& p) {
    Ricevitore& r = p.ricevitore;
    if (!r.porta.ApriPorta(true)) {
        p.motivo = r.porta.link.motivo;
        return false;
    }
    AbortSweep(r);
    if (r.stato.AbbandonaComandi)
        return false;
    LeggiModello(r, Modalita::Sweep, 1);
    if (!r.stato.AbbandonaComandi)
        r.modello.SerialNumber = LeggiSerialNumber(r);
    p.vista.MostraModello();
    return !r.stato.AbbandonaComandi;
}

} // namespace

int ControllaPassoDellaRiga(const ScanLine& riga) {
    const auto s = static_cast<float>(riga.Step);
    const auto w = static_cast<float>(riga.Stop - riga.Start);
    const int rbw = std::clamp<int>(riga.RbwId, 0, kNumRbw - 1);
    const auto a = static_cast<float>(TabellaRbw()[static_cast<size_t>(rbw)].passoAuto / 100);
    if (s == 0)
        return 0;
    if (s <= a)
        return 1;
    if (w / 2 < s)
        return 2 * a > w ? 3 : 2;
    return w / 1000000 >= s ? 1 : 0;
}

bool ControlliSweep(PreVolo& p) {
    CancellaSegni(p);
    if (!Riconosci(p))
        return false;
    for (const VoceControllo& controllo : kCatena) {
        if (!controllo.esegui(p)) {
            p.motivo = "refused: " + std::string(controllo.motivo);
            return false;
        }
    }
    return true;
}

} // namespace orvane
