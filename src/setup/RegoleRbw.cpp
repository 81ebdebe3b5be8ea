// Which filters and detectors a receiver has in the range of a line, and which go together.
#include <algorithm>

#include "base/Interruttori.h"
#include "base/Testo.h"
#include "setup/RegoleScan.h"

namespace orvane {
namespace {

constexpr int kRicevitore = 1;
constexpr int kRadiata = 2;
constexpr double kConfineAB = 0.15; // MHz
constexpr double kFineQPeak = 1000;

enum RbwId { k1MHz = 0, k120kHz = 1, k9kHz = 2, k200Hz = 3, k1kHz = 10 };
enum RbwIdMil { kPrimaMil = 12, k100HzMil = 14, kUltimaMil = 15 };

bool Mil(int rbwId) {
    return rbwId >= kPrimaMil && rbwId <= kUltimaMil;
}

enum CodiceRbw {
    kBene,
    kNonDisponibile,
    kNonAdatta,
    kQPeakNonDisponibile,
    kQPeakNonAdatto,
    kDetectorNonAdatti,
    kDetectorNonAdattoRbw,
    kNumCodici
};
// By code; that of 5 follows the names of detectors.
constexpr std::array<std::string_view, kNumCodici> kParole = {
    "",
    "RBW not available",
    "RBW not suitable",
    "Qpeak detector not available with this setup",
    "Qpeak detector not suitable with this setup",
    " detector not suitable with this setup",
    "Detector not suitable with selected RBW"};

/// What the rules see of one line.
struct RigaRbw {
    const ScanLine& riga;
    const ReceiverModel& modello;
    std::string_view rigaComando;
    int id = 0; ///< range by `DetIDMacLocRBWScanTab`

    bool Ha(DetectorKind detector) const {
        return riga.Detector[static_cast<size_t>(detector)] == 1;
    }
    bool HaMediati() const { return Ha(DetectorKind::RmsAvg) || Ha(DetectorKind::CAvg); }
};

CodiceRbw Regola3360(const RigaRbw& x) {
    const ReceiverModel& m = x.modello;
    if (!m.Is3360)
        return kBene;
    const int rbw = x.riga.RbwId;
    const bool conSuffisso = m.Is3360_01 || m.Is3360_02 || m.Is3360_03;
    const bool manca = (rbw == k1MHz && !m.Is3360_03) || (rbw == k9kHz && x.id == kRadiata) ||
                       ((rbw == k200Hz || rbw == k1kHz) && !conSuffisso) || Mil(rbw) ||
                       (rbw == k120kHz && x.id == kRicevitore);
    return manca ? kNonDisponibile : kBene;
}

/// The fast front-end has no narrow Mil filters.
CodiceRbw RegolaFrontEnd(const RigaRbw& x) {
    const int16_t tipo = x.modello.TipoFrontEnd;
    const bool veloce = tipo == 3 || (tipo == 2 && x.modello.Is5520F);
    const bool manca = veloce && x.riga.RbwId >= k100HzMil && x.riga.RbwId <= kUltimaMil &&
                       !Acceso(x.rigaComando, interruttore::kNoCMilFrFast);
    return manca ? kNonDisponibile : kBene;
}

CodiceRbw Regola1kHz(const RigaRbw& x) {
    const ReceiverModel& m = x.modello;
    const bool haFiltro = m.Is5520F || m.Is3360_01 || m.Is3360_02 || m.Is3360_03;
    return x.riga.RbwId == k1kHz && !haFiltro && m.TipoFrontEnd != 1 ? kNonDisponibile : kBene;
}

CodiceRbw RegolaRadiata(const RigaRbw& x) {
    if (x.id != kRadiata)
        return kBene;
    const int rbw = x.riga.RbwId;
    if (rbw == k200Hz || Mil(rbw))
        return kNonDisponibile;
    // A line that ends at 1000 MHz exactly counts as above it.
    const bool sopra = x.riga.Start >= kFineQPeak || x.riga.Stop >= kFineQPeak;
    if (x.Ha(DetectorKind::QPeak) && (sopra || rbw != k120kHz))
        return kQPeakNonAdatto;
    return x.HaMediati() && rbw != k120kHz ? kDetectorNonAdattoRbw : kBene;
}

bool NonPerMil(size_t detector) {
    const auto quale = static_cast<DetectorKind>(detector);
    return quale != DetectorKind::Peak && quale != DetectorKind::Rms && quale != DetectorKind::Avg;
}

std::string NomiNonPerMil(const ScanLine& riga) {
    std::vector<std::string> nomi;
    for (size_t d = 0; d < kNumDetector; ++d)
        if (riga.Detector[d] == 1 && NonPerMil(d))
            nomi.emplace_back(kNomiDetector[d]);
    return Unisci(nomi, ", ");
}

/// The one filter that QPeak has in the bands A and B; none for a span over both.
bool QPeakAdatto(const ScanLine& riga) {
    if (riga.Start < kConfineAB)
        return riga.Stop <= kConfineAB && riga.RbwId == k200Hz;
    return riga.Stop <= kGammaRicevitore.massimo && riga.RbwId == k9kHz;
}

CodiceRbw RegolaRicevitore(const RigaRbw& x) {
    if (x.id != kRicevitore)
        return kBene;
    const int rbw = x.riga.RbwId;
    if (rbw == k1MHz || rbw == k120kHz || (Mil(rbw) && !x.modello.ConFiltriMil))
        return kNonDisponibile;
    if (Mil(rbw) && !NomiNonPerMil(x.riga).empty())
        return kDetectorNonAdatti;
    if (x.Ha(DetectorKind::QPeak) && !QPeakAdatto(x.riga))
        return kQPeakNonAdatto;
    return x.HaMediati() && rbw != k9kHz && rbw != k200Hz ? kNonAdatta : kBene;
}

constexpr CodiceRbw (*kRegole[])(const RigaRbw&) = {Regola3360, RegolaFrontEnd, Regola1kHz,
                                                    RegolaRadiata, RegolaRicevitore};

CodiceRbw EsaminaRiga(const RigaRbw& x) {
    for (const auto regola : kRegole)
        if (const CodiceRbw codice = regola(x); codice != kBene)
            return codice;
    return kBene;
}

std::string Parole(CodiceRbw codice, const ScanLine& riga) {
    const std::string nomi = codice == kDetectorNonAdatti ? NomiNonPerMil(riga) : "";
    return nomi + std::string(kParole[codice]);
}

/// The range that the rules take a line for: its own. Where one instrument does not have all
/// ranges, a line without one of its own (across 30 MHz, or beyond all units) is taken for the
/// range in which the first line starts.
int DetIDDellaRiga(const ContestoControlli& c, const ScanLine& riga, const ScanLine& prima) {
    const int id = DetIDMacLocRBWScanTab(c.modello, riga.Start, riga.Stop);
    if (id != 0 || HaCondottoERadiato(c.modello))
        return id;
    // The first line must not decide for a line that another unit can sweep: a table of conducted
    // and radiated lines goes on after Yes, and each line then asks for its unit.
    return prima.Start < kGammaRicevitore.massimo ? kRicevitore : kRadiata;
}

} // namespace

int DetIDMacLocRBWScanTab(const ReceiverModel& modello, double startMhz, double stopMhz,
                          int idReceiver, int idLocal) {
    if (kGammaRicevitore.Contiene(startMhz, stopMhz))
        return idReceiver;
    return GammaRadiata(modello).Contiene(startMhz, stopMhz) ? idLocal : 0;
}

Segnalazioni ControllaRBWScanTab(const ContestoControlli& c) {
    const ScanLine* prima = nullptr;
    for (size_t i = 0; i < c.tabella.size(); ++i) {
        const ScanLine& riga = c.tabella[i];
        if (riga.Start == 0)
            continue;
        prima = prima ? prima : &riga;
        // With a Mast-Table the line's pre-scan detectors, which belong to the settings of the
        // positioners, pass the same rules behind its own, marked on the Ancillary cell.
        const CodiceRbw codice = EsaminaRiga({.riga = riga,
                                              .modello = c.modello,
                                              .rigaComando = c.rigaComando,
                                              .id = DetIDDellaRiga(c, riga, *prima)});
        if (codice != kBene)
            return {{.celle = {{i, ColonnaScan::Rbw}},
                     .riquadro = {.testo = Parole(codice, riga), .icona = Icona::Esclamazione},
                     .codice = codice}};
    }
    return {};
}

} // namespace orvane
