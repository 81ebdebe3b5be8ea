// What the settings window of a scan line shows.
#include <algorithm>
#include <span>

#include "setup/ModuloScan.h"

namespace orvane {
namespace {

/// The columns that open the window, each with its frames; Hold Time opens those of Detector.
struct CorniciDiColonna {
    ColonnaScan colonna;
    std::vector<Cornice> cornici;
};
const std::array<CorniciDiColonna, 4>& TabellaCornici() {
    using enum Cornice;
    static const std::array<CorniciDiColonna, 4> tabella = {{
        {ColonnaScan::Step, {FRMStep, FRMAutoStep, FRMFrequenciesTable}},
        {ColonnaScan::Detector,
         {FRMDetector, FRMHoldTime, FRMHoldTimeSD, FRMMargin, FRMCustomLimits, FRMCustomLimitsDSD}},
        {ColonnaScan::Prompt, {FRMMsgBoxIniziale}},
        {ColonnaScan::Ancillary, {FRMAncillary}},
    }};
    return tabella;
}

/// What of the Detector column has to do with Smart.
bool DiSmart(Cornice cornice) {
    return cornice == Cornice::FRMHoldTimeSD || cornice == Cornice::FRMMargin ||
           cornice == Cornice::FRMCustomLimits || cornice == Cornice::FRMCustomLimitsDSD;
}

/// `ControllaSD_ST_MT` and the rule of each frame, for a frame that the column has.
bool MostraCornice(const ModuloScan& modulo, Cornice cornice) {
    const bool smart = modulo.riga.Smart == 1;
    switch (cornice) {
    case Cornice::FRMStep:
    case Cornice::FRMAutoStep:
        return modulo.riga.StepMode == 0;
    case Cornice::FRMFrequenciesTable:
        return modulo.riga.StepMode == 1;
    case Cornice::FRMMargin:
        return smart || modulo.ancillaryKind != kAncillaryMastTable;
    case Cornice::FRMCustomLimits: // else the limit that keeps Smart out could not be changed
        return smart || (modulo.ancillaryKind != kAncillaryMastTable && LimiteVietaSmart(modulo));
    case Cornice::FRMHoldTimeSD:
    case Cornice::FRMCustomLimitsDSD:
        return smart;
    default:
        return true;
    }
}

/// Name of the first or second detector in use.
std::string NomeDetectorInUso(const ScanLine& riga, size_t quale) {
    for (size_t d = 0; d < kNumDetector; ++d)
        if (riga.Detector[d] == 1 && quale-- == 0)
            return kNomiDetector[d];
    return {};
}

// Of two Smart detectors the first has `HoldTime` and `Limit`, the second `HoldTimeSD` and
// `LimitDSD`.
std::string TitoloHold(const ScanLine& riga, bool secondo) {
    if (ControllaCondizioniDSDScanTab(riga))
        return "Hold Time " + NomeDetectorInUso(riga, secondo ? 1 : 0) + " (ms)";
    return secondo ? "Peak Scan Hold Time (ms)" : "Hold Time (ms)";
}

std::string TitoloLimiti(const ScanLine& riga, bool secondo) {
    if (ControllaCondizioniDSDScanTab(riga))
        return "Limits " + NomeDetectorInUso(riga, secondo ? 1 : 0);
    return secondo ? "Limits of a second detector" : "Limits";
}

std::string TitoloCornice(const ScanLine& riga, Cornice cornice) {
    switch (cornice) {
    case Cornice::FRMStep:
        return riga.AutoStep == 1 ? "Step " + TestoPassoConUnita(riga.Step) : "Step";
    case Cornice::FRMAutoStep:
        return "Auto Step";
    case Cornice::FRMFrequenciesTable:
        return "Frequencies Table";
    case Cornice::FRMDetector:
        return "Detector";
    case Cornice::FRMHoldTime:
    case Cornice::FRMHoldTimeSD:
        return TitoloHold(riga, cornice == Cornice::FRMHoldTimeSD);
    case Cornice::FRMMargin:
        return "Margin (dB)";
    case Cornice::FRMCustomLimits:
    case Cornice::FRMCustomLimitsDSD:
        return TitoloLimiti(riga, cornice == Cornice::FRMCustomLimitsDSD);
    case Cornice::FRMMsgBoxIniziale:
        return "Prompt start";
    case Cornice::FRMAncillary:
        return "Ancillary";
    case Cornice::NumCornici:
        break;
    }
    return {};
}

/// The pair of a limit: in the warning colour where the line must have it and has not.
StatoCampo StatoLimite(const ModuloScan& modulo, CoppiaLimite coppia, bool visibile) {
    const bool chiesto = modulo.riga.Smart == 1 && (coppia == CoppiaLimite::Prima ||
                                                    ControllaCondizioniDSDScanTab(modulo.riga));
    const bool mastTable = modulo.ancillaryKind == kAncillaryMastTable;
    return {.visibile = visibile,
            .abilitato = chiesto || coppia == CoppiaLimite::Prima,
            .avviso = mastTable || (chiesto && !LimiteScelto(modulo.riga, coppia))};
}

void ImpostaControlli(const ModuloScan& modulo, VistaModulo& vista) {
    const bool smart = modulo.riga.Smart == 1;
    const bool mastTable = modulo.ancillaryKind == kAncillaryMastTable;
    vista.OPTStep.visibile = modulo.colonna == ColonnaScan::Step;
    vista.TBStep = {.visibile = vista.Di(Cornice::FRMStep).visibile,
                    .abilitato = modulo.riga.AutoStep == 0};
    vista.CHKSmart = {.visibile = vista.Di(Cornice::FRMDetector).visibile && (smart || !mastTable),
                      .abilitato = !LimiteVietaSmart(modulo),
                      .avviso = mastTable && smart};
    vista.TBMargin = {.visibile = vista.Di(Cornice::FRMMargin).visibile,
                      .abilitato = smart,
                      .avviso = mastTable && smart};
    vista.CHKLimits = vista.ComboBoxLimits =
        StatoLimite(modulo, CoppiaLimite::Prima, vista.Di(Cornice::FRMCustomLimits).visibile);
    vista.CHKLimitsDSD = vista.ComboBoxLimitsDSD =
        StatoLimite(modulo, CoppiaLimite::DSD, vista.Di(Cornice::FRMCustomLimitsDSD).visibile);
    vista.detectorUnico = mastTable;
}

std::vector<VoceAncillary> Voci(std::span<const std::string_view> nomi,
                                std::span<const int16_t> flag) {
    std::vector<VoceAncillary> voci;
    for (size_t i = 0; i < nomi.size(); ++i)
        voci.push_back({nomi[i], flag[i] == 1});
    return voci;
}

} // namespace

AperturaCella ApriCellaScanTab(ColonnaScan colonna, size_t indice, int ancillaryKind) {
    switch (colonna) {
    case ColonnaScan::Start:
    case ColonnaScan::Stop:
        return AperturaCella::Testo;
    case ColonnaScan::Rbw:
    case ColonnaScan::MinAtt:
    case ColonnaScan::PreAmp:
    case ColonnaScan::PreSel:
        return AperturaCella::Elenco;
    case ColonnaScan::Ancillary: // positioners serve a table of one line
        return ancillaryKind == kAncillaryMastTable && indice > 0 ? AperturaCella::Ridisegna
                                                                  : AperturaCella::Finestra;
    case ColonnaScan::Step:
    case ColonnaScan::Detector:
    case ColonnaScan::HoldTime:
    case ColonnaScan::Prompt:
        return AperturaCella::Finestra;
    case ColonnaScan::Numero:
    case ColonnaScan::NumColonne:
        break;
    }
    return AperturaCella::Niente;
}

bool ApreCornice(ColonnaScan colonna, Cornice cornice) {
    const ColonnaScan chiesta = colonna == ColonnaScan::HoldTime ? ColonnaScan::Detector : colonna;
    for (const CorniciDiColonna& voce : TabellaCornici())
        if (voce.colonna == chiesta)
            return std::find(voce.cornici.begin(), voce.cornici.end(), cornice) !=
                   voce.cornici.end();
    return false;
}

VistaModulo VistaDelModulo(const ModuloScan& modulo) {
    VistaModulo vista;
    const bool avvisoSmart = modulo.ancillaryKind == kAncillaryMastTable && modulo.riga.Smart == 1;
    for (size_t i = 0; i < kNumCornici; ++i) {
        const auto cornice = static_cast<Cornice>(i);
        vista.cornici[i] = {.visibile = ApreCornice(modulo.colonna, cornice) &&
                                        MostraCornice(modulo, cornice),
                            .avviso = avvisoSmart && DiSmart(cornice),
                            .titolo = TitoloCornice(modulo.riga, cornice)};
    }
    ImpostaControlli(modulo, vista);
    vista.testoStep = TestoPasso(modulo.riga.Step, modulo.unita);
    vista.ancillary = VociAncillary(modulo.riga, modulo.ancillaryKind);
    return vista;
}

std::vector<VoceAncillary> VociAncillary(const ScanLine& riga, int ancillaryKind) {
    const std::span linee(riga.LineSwitch);
    switch (ancillaryKind) {
    case 1:
    case 6:
        return Voci(std::span(kNomiLinee).subspan(1, 2), linee.subspan(1, 2));
    case 2:
        return Voci(kNomiLinee, linee);
    case 3:
        return Voci(kNomiAntenne, riga.Antenna);
    case 4:
        return Voci(kNomiUscite, linee);
    default:
        return {};
    }
}

} // namespace orvane
