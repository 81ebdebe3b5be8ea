#include "setup/ModuloScan.h"

#include "base/Numeri.h"
#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/Cartelle.h"
#include "setup/Controlli.h"
#include "setup/ModificaTabella.h"

namespace orvane {
namespace {

constexpr std::string_view kNessuno = "NONE";
constexpr int kMastTable = 5;

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

bool EsisteFreqTable(const AlberoDati& albero, std::string_view nome) {
    return albero.Esiste(std::string(cartella::kTable) + std::string(nome) + ".5SF");
}

std::vector<std::string> NessunoENomi(const AlberoDati& albero, std::string_view dove,
                                      std::string_view estensione) {
    std::vector<std::string> voci = {std::string(kNessuno)};
    for (const std::string& file : albero.ElencaFile(dove, estensione))
        voci.push_back(RimuoviEstensione(file));
    return voci;
}

bool Lineare(const ModuloScan& modulo, CoppiaLimite coppia) {
    const std::string& nome =
        coppia == CoppiaLimite::Prima ? modulo.riga.Limit : modulo.riga.LimitDSD;
    return !nome.empty() && !UgualiSenzaMaiuscole(nome, kNessuno) &&
           LimiteLineare(LimiteDaNome(modulo.albero, nome));
}

/// A line without Smart whose limit keeps Smart out.
bool LimiteVietaSmart(const ModuloScan& modulo) {
    return modulo.riga.Smart == 0 && modulo.riga.LimitOn == 1 &&
           Lineare(modulo, CoppiaLimite::Prima);
}

/// A Smart line takes no linear limit: the pair returns to what is stored, and goes off.
std::optional<Riquadro> ControllaLimLin(ModuloScan& modulo, CoppiaLimite coppia) {
    if (modulo.riga.Smart != 1 || !Lineare(modulo, coppia))
        return std::nullopt;
    NomeLimite(modulo.riga, coppia) = NomeLimite(modulo.originale, coppia);
    LimiteAcceso(modulo.riga, coppia) = 0;
    return RiquadroLimiteLineare();
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
        return smart || modulo.ancillaryKind != kMastTable;
    case Cornice::FRMCustomLimits: // else the limit that keeps Smart out could not be changed
        return smart || (modulo.ancillaryKind != kMastTable && LimiteVietaSmart(modulo));
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
StatoControllo StatoLimite(const ModuloScan& modulo, CoppiaLimite coppia, bool visibile) {
    const bool chiesto = modulo.riga.Smart == 1 && (coppia == CoppiaLimite::Prima ||
                                                    ControllaCondizioniDSDScanTab(modulo.riga));
    const bool mastTable = modulo.ancillaryKind == kMastTable;
    return {.visibile = visibile,
            .abilitato = chiesto || coppia == CoppiaLimite::Prima,
            .avviso = mastTable || (chiesto && !LimiteScelto(modulo.riga, coppia))};
}

void ImpostaControlli(const ModuloScan& modulo, VistaModulo& vista) {
    const bool smart = modulo.riga.Smart == 1;
    const bool mastTable = modulo.ancillaryKind == kMastTable;
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
        return ancillaryKind == kMastTable && indice > 0 ? AperturaCella::Ridisegna
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

ModuloScan ApriModulo(const AlberoDati& albero, ColonnaScan colonna, int ancillaryKind,
                      const ScanLine& riga) {
    ModuloScan modulo{.albero = albero,
                      .colonna = colonna,
                      .ancillaryKind = ancillaryKind,
                      .riga = riga,
                      .originale = riga,
                      .unita = UnitaDelPasso(riga.Step)};
    AggiornaStepAuto(modulo.riga);
    return modulo;
}

VistaModulo VistaDelModulo(const ModuloScan& modulo) {
    VistaModulo vista;
    const bool avvisoSmart = modulo.ancillaryKind == kMastTable && modulo.riga.Smart == 1;
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

std::optional<Riquadro> ScegliDetector(ModuloScan& modulo, DetectorKind detector, bool acceso) {
    CambiaDetector(modulo.riga, detector, acceso, modulo.ancillaryKind);
    const bool due = ControllaCondizioniDSDScanTab(modulo.riga) && modulo.riga.LimitDSDOn == 1;
    return due ? ControllaLimLin(modulo, CoppiaLimite::DSD) : std::nullopt;
}

std::optional<Riquadro> ScegliSmart(ModuloScan& modulo, bool acceso) {
    if (acceso && LimiteVietaSmart(modulo))
        return RiquadroLimiteLineare();
    ModificaSmart(modulo.riga, acceso);
    return std::nullopt;
}

std::optional<Riquadro> ScegliLimite(ModuloScan& modulo, CoppiaLimite coppia,
                                     std::string_view nome) {
    NomeLimite(modulo.riga, coppia) = nome.empty() ? kNessuno : nome;
    return ControllaLimLin(modulo, coppia);
}

std::optional<Riquadro> AccendiLimite(ModuloScan& modulo, CoppiaLimite coppia, bool acceso) {
    LimiteAcceso(modulo.riga, coppia) = acceso ? 1 : 0;
    return acceso ? ControllaLimLin(modulo, coppia) : std::nullopt;
}

std::optional<Riquadro> ScegliFreqTable(ModuloScan& modulo, std::string_view nome) {
    const std::string chiesta(nome);
    const bool nessuna = nome.empty() || UgualiSenzaMaiuscole(nome, kNessuno);
    const bool trovata = !nessuna && EsisteFreqTable(modulo.albero, nome);
    modulo.riga.FreqTable = trovata ? chiesta : std::string(kNessuno);
    if (nessuna || trovata)
        return std::nullopt;
    return Riquadro{.testo = "Frequency table " + chiesta + "  not found",
                    .icona = Icona::Esclamazione};
}

std::optional<Riquadro> ControllaFreqTable(ModuloScan& modulo) {
    if (modulo.riga.StepMode != 1)
        return std::nullopt;
    return ScegliFreqTable(modulo, std::string(modulo.riga.FreqTable));
}

void ModificaTBStep(ModuloScan& modulo, std::string_view testo) {
    if (modulo.riga.AutoStep == 0)
        ModificaStep(modulo.riga, testo, modulo.unita);
}

std::vector<std::string> ElencoFreqTable(const AlberoDati& albero) {
    return NessunoENomi(albero, cartella::kTable, "5SF");
}

std::vector<std::string> CompilaCBXLimiti(const AlberoDati& albero) {
    return NessunoENomi(albero, cartella::kLimits, "5SL");
}

std::optional<Riquadro> ChiudiModulo(const ModuloScan& modulo, ScanLine& destinazione) {
    // From another column the user could not choose the limit that is asked for.
    const bool conSmart = ApreCornice(modulo.colonna, Cornice::FRMCustomLimits);
    if (conSmart && modulo.riga.Smart == 1 && !ControllaSelLimSD(modulo.riga))
        return RiquadroLimiteMancante();
    destinazione = modulo.riga;
    return std::nullopt;
}

} // namespace orvane
