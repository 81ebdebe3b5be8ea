#include "data/Panels.h"
#include "data/NomiTabelle.h"

#include <vector>

#include "base/Testo.h"
#include "data/Avvisi.h"
#include "data/Cartelle.h"
#include "data/FileRecord.h"
#include "records/ColoriGrafico.h"

namespace orvane {
namespace {

constexpr std::string_view kFileSetup = "Orvane Console.DAT";

/// The record of a console that has no EPN yet.
EnvRecord EnvDefault() {
    EnvRecord env;
    env.LinkKind = 1;
    env.LinkPort = 1;
    env.WaterfallScale = {0, 400};
    ApplicaEnv(env, false);
    ControllaParStand(env); // names the panels
    return env;
}

/// An older release kept the Manual level as an integer; that field stays as it is.
void ApplicaManualOld(SetupRecord& setup) {
    if (setup.ManualLevel == 0 && setup.ManualOld != 0)
        setup.ManualLevel = setup.ManualOld;
}

void AvvisaRiparato(Scrivania& s, std::string_view percorso, bool cambiato) {
    if (cambiato)
        s.avvisi.push_back(std::string(percorso) + " held damaged values; they were repaired");
}

/// The current panel goes by `percorso`, on disk too.
bool SegnaPannelloCorrente(Scrivania& s, const std::string& percorso) {
    s.env.SetupPanelPath = percorso;
    return SalvaPanelEPN(s, kPannelloEPN);
}

/// Without what tells of the grid or of the last run.
std::vector<uint8_t> SoloTabella(ScanRecord scan) {
    scan.GridRow = scan.GridCol = 0;
    for (ScanLine& riga : scan.Righe)
        riga.StepOriginal = 0;
    return ScriviRecord(scan);
}

} // namespace

std::string PercorsoPannello(std::string_view nome, std::string_view estensione) {
    return std::string(cartella::kPanels) + std::string(nome) + "." + std::string(estensione);
}

bool CaricaPanelEPN(Scrivania& s, std::string_view percorso) {
    s.albero.AssicuraCartella(cartella::kPanels);
    if (!s.albero.Esiste(percorso)) {
        s.env = EnvDefault();
        return SalvaPanelEPN(s, percorso);
    }
    const bool letto = LeggiFileRecord(s, percorso, s.env);
    AvvisaRiparato(s, percorso, ControllaParStand(s.env));
    ApplicaEnv(s.env, true);
    return letto;
}

void CaricaEnvCheCe(Scrivania& s) {
    s.env = EnvDefault();
    if (s.albero.Esiste(kPannelloEPN))
        CaricaPanelEPN(s, kPannelloEPN);
}

bool SalvaPanelEPN(Scrivania& s, std::string_view percorso) {
    s.albero.AssicuraCartella(cartella::kPanels);
    return SalvaFileRecord(s, percorso, s.env);
}

bool CaricaPanelEAM(Scrivania& s, std::string_view percorso) {
    s.albero.AssicuraCartella(cartella::kPanels);
    if (!s.albero.Esiste(percorso)) {
        s.setup = SetupDefault();
        return SalvaPanelEAM(s, percorso);
    }
    const bool letto = LeggiFileRecord(s, percorso, s.setup);
    AvvisaRiparato(s, percorso, ControllaSetup(s.setup));
    ApplicaManualOld(s.setup);
    return letto;
}

bool SalvaPanelEAM(Scrivania& s, std::string_view percorso) {
    if (s.NoSaveSetup)
        return true;
    s.albero.AssicuraCartella(cartella::kPanels);
    return SalvaFileRecord(s, percorso, s.setup);
}

bool CaricaPanelEST(Scrivania& s, std::string_view percorso, ScanRecord& scan) {
    s.albero.AssicuraCartella(cartella::kPanels);
    if (!s.albero.Esiste(percorso)) {
        scan = {};
        return SalvaPanelEST(s, percorso, scan);
    }
    const bool letto = LeggiFileRecord(s, percorso, scan);
    AvvisaRiparato(s, percorso, ControllaScan(scan));
    return letto;
}

bool SalvaPanelEST(Scrivania& s, std::string_view percorso, const ScanRecord& scan) {
    s.albero.AssicuraCartella(cartella::kPanels);
    return SalvaFileRecord(s, percorso, scan);
}

bool CaricaPathPTH(Scrivania& s) {
    s.albero.AssicuraCartella(cartella::kPanels);
    if (s.albero.Esiste(kPannelloPTH))
        return LeggiFileRecord(s, kPannelloPTH, s.path);
    s.path = {};
    return SalvaPathPTH(s);
}

bool SalvaPathPTH(Scrivania& s) {
    s.albero.AssicuraCartella(cartella::kPanels);
    return SalvaFileRecord(s, kPannelloPTH, s.path);
}

bool CaricaPannelloCome(Scrivania& s, const std::string& percorso) {
    if (s.NoSaveSetup || !CaricaPanelEAM(s, percorso))
        return false;
    if (!s.albero.Copia(percorso, kPannelloEAM))
        return AvvisaScrittura(s, kPannelloEAM);
    return SegnaPannelloCorrente(s, percorso);
}

bool SalvaPannelloCome(Scrivania& s, const std::string& percorso) {
    if (s.NoSaveSetup || !SalvaPanelEAM(s, percorso) || !CaricaPanelEAM(s, percorso))
        return false;
    return SalvaPanelEAM(s, kPannelloEAM) && SegnaPannelloCorrente(s, percorso);
}

bool ConfrontaScanTab(const ScanRecord& a, const ScanRecord& b) {
    return SoloTabella(a) == SoloTabella(b);
}

void ApplicaEnv(EnvRecord& env, bool caricato) {
    if (!caricato)
        ImpostaColoriDefault(env);
}

void ImpostaColoriDefault(EnvRecord& env) {
    env.GraphColors = kColoriDefault;
}

SetupRecord SetupDefault() {
    SetupRecord setup;
    setup.DetectorAn.fill(1);
    setup.OverwriteWarning = -1;
    setup.OrderForDate = -1;
    setup.GraphFlag = 1;
    setup.UnitId = 1;
    setup.TableUnitId = 1;
    setup.GX2207FFTSwept = 0;
    setup.CheckSweepArchiveSize = -1;
    setup.InsLossRef = 2.0f;
    setup.LimitName.fill(std::string(kNessunaTabella));
    setup.FactorName.fill(std::string(kNessunaTabella));
    return setup;
}

void LeggiDatiSetup(Scrivania& s) {
    s.RigaSetup.clear();
    const auto dati = s.albero.Leggi(kFileSetup);
    if (!dati)
        return;
    std::string_view testo(reinterpret_cast<const char*>(dati->data()), dati->size());
    if (testo.ends_with('\n')) // the end of the last line begins no further one
        testo.remove_suffix(1);
    testo = testo.substr(testo.rfind('\n') + 1);
    if (testo.ends_with('\r'))
        testo.remove_suffix(1);
    s.RigaSetup = DaAnsi(testo);
}

} // namespace orvane
