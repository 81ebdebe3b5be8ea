// Settings and headers of any bytes: the first byte chooses the kind. What was loaded can be saved,
// and comes back from there as it is, with nothing left to repair.
#include <array>

#include "Scrivania.h"
#include "data/Misure.h"
#include "data/Panels.h"

namespace orvane::prova {
namespace {

void PannelloEPN(ScrivaniaFuzz& f, std::span<const uint8_t> byte) {
    f.Metti("Panels/Untitled.EPN", byte);
    CaricaPanelEPN(f.s, kPannelloEPN);
    const auto letto = ScriviRecord(f.s.env);
    Pretendi(SalvaPanelEPN(f.s, kPannelloEPN) && CaricaPanelEPN(f.s, kPannelloEPN));
    Pretendi(ScriviRecord(f.s.env) == letto && !ControllaParStand(f.s.env));
}

void PannelloEAM(ScrivaniaFuzz& f, std::span<const uint8_t> byte) {
    f.Metti("Panels/Untitled.EAM", byte);
    CaricaPanelEAM(f.s, kPannelloEAM);
    const auto letto = ScriviRecord(f.s.setup);
    Pretendi(SalvaPanelEAM(f.s, kPannelloEAM) && CaricaPanelEAM(f.s, kPannelloEAM));
    Pretendi(ScriviRecord(f.s.setup) == letto && !ControllaSetup(f.s.setup));
}

void PannelloEST(ScrivaniaFuzz& f, std::span<const uint8_t> byte) {
    f.Metti("Panels/Untitled.EST", byte);
    ScanRecord scan;
    CaricaPanelEST(f.s, kPannelloEST, scan);
    const auto letto = ScriviRecord(scan);
    Pretendi(SalvaPanelEST(f.s, kPannelloEST, scan) && CaricaPanelEST(f.s, kPannelloEST, scan));
    Pretendi(ScriviRecord(scan) == letto && !ControllaScan(scan));
}

void PercorsiPTH(ScrivaniaFuzz& f, std::span<const uint8_t> byte) {
    f.Metti("Panels/Untitled.PTH", byte);
    CaricaPathPTH(f.s);
    const auto letto = ScriviRecord(f.s.path);
    Pretendi(SalvaPathPTH(f.s) && CaricaPathPTH(f.s) && ScriviRecord(f.s.path) == letto);
    // A path out of a file may lead nowhere, but not out of the tree.
    const std::string radice = f.s.albero.Radice().string() + "/";
    Pretendi((f.s.albero.Host(f.s.path.Percorsi[0]).string() + "/").starts_with(radice));
}

void HeaderKSH(ScrivaniaFuzz& f, std::span<const uint8_t> byte) {
    f.Metti("Sweep/m/m.KSH", byte);
    ElencaMisure(f.s);
    ScanRecord scan;
    SetupRecord setup;
    CaricaHeaderSweep(f.s, PercorsoKSH("m"), scan, setup);
    const auto letto = ScriviRecord(SweepHeader{scan, setup});
    Pretendi(SalvaHeaderSweep(f.s, PercorsoKSH("m"), scan, setup) &&
             CaricaHeaderSweep(f.s, PercorsoKSH("m"), scan, setup));
    Pretendi(ScriviRecord(SweepHeader{scan, setup}) == letto);
}

constexpr std::array kGeneri = {PannelloEPN, PannelloEAM, PannelloEST, PercorsiPTH, HeaderKSH};

} // namespace
} // namespace orvane::prova

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    using namespace orvane::prova;
    static ScrivaniaFuzz fissa;
    fissa.s.albero.AssicuraCartella("Panels");
    fissa.s.albero.AssicuraCartella("Sweep\\m");
    if (quanti == 0)
        return 0;
    fissa.s.env = {};
    fissa.s.setup = {};
    fissa.s.path = {};
    fissa.s.avvisi.clear();
    kGeneri[dati[0] % kGeneri.size()](fissa, {dati + 1, quanti - 1});
    return 0;
}
