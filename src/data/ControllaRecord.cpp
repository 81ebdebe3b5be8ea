#include "data/ControllaRecord.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "base/Percorsi.h"
#include "data/Panels.h"
#include "records/ColoriGrafico.h"

namespace orvane {
namespace {

constexpr int16_t kMassimoI16 = std::numeric_limits<int16_t>::max();
constexpr float kHoldMassimoMs = 30000;
constexpr int32_t kMassimoWorst = 99; // two digits in the name of a worst list entry

/// Sets fields and remembers whether any of them became another.
class Correttore {
public:
    bool Cambiato() const { return cambiato_; }

    template <class T> void Imposta(T& campo, const T& valore) {
        // Not a number is unequal to itself and counts as changed, which it is.
        if (campo == valore)
            return;
        campo = valore;
        cambiato_ = true;
    }
    template <class T> void Limita(T& campo, T da, T a) {
        Imposta(campo, std::clamp(campo, da, a));
    }
    /// Abs, then the range.
    void Assoluto(int16_t& campo, int16_t da = 0, int16_t a = kMassimoI16) {
        const int assoluto = std::abs(static_cast<int>(campo));
        Imposta(campo, static_cast<int16_t>(std::clamp<int>(assoluto, da, a)));
    }
    /// 0 or 1; any other value is true.
    void Flag01(int16_t& campo) { Imposta(campo, static_cast<int16_t>(campo != 0)); }
    /// 0, 1 or -1; any other value becomes `vero`.
    void Flag(int16_t& campo, int16_t vero) {
        if (campo < -1 || campo > 1)
            Imposta(campo, vero);
    }
    template <class T> void Finito(T& campo) {
        if (!std::isfinite(campo))
            Imposta(campo, T{0});
    }
    template <class T> void FinitoIn(T& campo, T da, T a) {
        Finito(campo);
        Limita(campo, da, a);
    }

private:
    bool cambiato_ = false;
};

void ControllaColori(Correttore& c, EnvRecord& env) {
    constexpr int32_t kBianco = Rgb(255, 255, 255);
    for (size_t i = 0; i < kNumColori; ++i) {
        const int64_t assoluto = std::abs(static_cast<int64_t>(env.GraphColors[i]));
        c.Imposta(env.GraphColors[i],
                  assoluto > kBianco ? kColoriDefault[i] : static_cast<int32_t>(assoluto));
    }
}

void ControllaInteri(Correttore& c, EnvRecord& env) {
    for (int16_t& x : env.Window1)
        c.Assoluto(x);
    c.Assoluto(env.AutoStart, 0, 1);
    c.Assoluto(env.LinkKind, 0, 1);
    c.Assoluto(env.LinkPort, 1, kMaxNumeroCom);
    c.Assoluto(env.ScanTabView);
    c.Assoluto(env.ExportMode);
    c.Assoluto(env.ReportFlag);
    c.Assoluto(env.ReportMode1);
    c.Assoluto(env.ReportMode2);
    for (int16_t& x : env.ReportList)
        c.Assoluto(x);
}

void ControllaReali(Correttore& c, EnvRecord& env) {
    c.FinitoIn(env.ReportValue, -999.0f, 999.0f);
    c.FinitoIn(env.WaterfallScale[0], -327.0f, 327.0f);
    // The range is 2 to 400, yet nothing between 255 and 400 is kept: above 255 it is 400 at once.
    float& alto = env.WaterfallScale[1];
    c.Imposta(alto, !std::isfinite(alto) || alto > 255.0f ? 400.0f : std::max(alto, 2.0f));
}

void ControllaPercorso(Correttore& c, std::string& percorso, std::string_view altrimenti) {
    const std::string nome = EstraiNomeFile(percorso);
    const bool buono = percorso.find('\0') == std::string::npos && !nome.empty() &&
                       ControllaNomeMisura(nome) == nome;
    if (!buono)
        c.Imposta(percorso, std::string(altrimenti));
}

void ControllaIndici(Correttore& c, SetupRecord& setup) {
    c.Limita<int16_t>(setup.UnitId, 0, 7);
    c.Limita<int16_t>(setup.TableUnitId, 0, 7);
    c.Limita<int16_t>(setup.DinamicaId, 0, 6);
    c.Limita<int16_t>(setup.MinAtt, 0, 5);
    c.Limita<int16_t>(setup.Mode, 0, 5);
    c.Limita<int16_t>(setup.BWIFId, 0, 99);
    c.Limita<int16_t>(setup.AutoReportMode, 0, 3);
    c.FinitoIn(setup.MeasUncertainty, 0.0f, 99.0f);
    for (int16_t& x : setup.VerdictDetector)
        c.Limita<int16_t>(x, 0, 6);
    for (int16_t& x : setup.DetectorAn)
        c.Limita<int16_t>(x, -1, 5);
}

void ControllaFlag(Correttore& c, SetupRecord& setup) {
    for (int16_t* x : {&setup.Coupled, &setup.MaxHold, &setup.KeepTrace, &setup.MaxHoldInf,
                       &setup.PreSel, &setup.PreAmp, &setup.TGOn, &setup.SommaFact})
        c.Flag(*x, 1);
    for (int16_t& x : setup.LimitOn)
        c.Flag(x, 1);
    for (int16_t& x : setup.FactorOn)
        c.Flag(x, 1);
    // The other marks of the menu stand in ranges that are kept as they are: any value is a flag.
    for (int16_t* x : {&setup.OverwriteWarning, &setup.ZoomModeA})
        c.Flag(*x, -1);
}

/// Ends of the frequency axis: finite, not negative, in order; 0 and 0 where they make no axis.
void ControllaAsse(Correttore& c, SetupRecord& setup) {
    const bool buoni = std::isfinite(setup.GraphStart) && std::isfinite(setup.GraphStop) &&
                       setup.GraphStart >= 0 && setup.GraphStop >= 0;
    if (!buoni) {
        c.Imposta(setup.GraphStart, 0.0);
        c.Imposta(setup.GraphStop, 0.0);
    } else if (setup.GraphStart > setup.GraphStop) {
        const double stop = setup.GraphStart;
        c.Imposta(setup.GraphStart, setup.GraphStop);
        c.Imposta(setup.GraphStop, stop);
    }
}

void ControllaFrequenze(Correttore& c, ScanLine& riga) {
    constexpr double kMassimo = std::numeric_limits<double>::max();
    for (double* x : {&riga.Start, &riga.Stop, &riga.Step, &riga.StepOriginal})
        c.FinitoIn(*x, 0.0, kMassimo);
}

void ControllaRiga(Correttore& c, ScanLine& riga) {
    ControllaFrequenze(c, riga);
    for (int16_t* x : {&riga.PreSel, &riga.PreAmp, &riga.StepMode, &riga.AutoStep, &riga.Smart,
                       &riga.LimitOn, &riga.PromptOn, &riga.LimitDSDOn})
        c.Flag01(*x);
    for (int16_t& x : riga.LineSwitch)
        c.Flag01(x);
    for (int16_t& x : riga.Antenna)
        c.Flag01(x);
    for (int16_t& x : riga.Detector)
        c.Flag01(x);
    const bool nessuno = std::all_of(riga.Detector.begin(), riga.Detector.end(),
                                     [](int16_t acceso) { return acceso == 0; });
    if (riga.Start != 0 && nessuno)
        c.Imposta(riga.Detector[0], int16_t{1});
    c.Limita<int16_t>(riga.MinAtt, 0, 5);
    c.Limita<int16_t>(riga.NumStepFT, 0, 49);
    c.FinitoIn(riga.Margin, -19.0f, 19.0f);
    c.FinitoIn(riga.HoldTime, 0.0f, kHoldMassimoMs);
    c.FinitoIn(riga.HoldTimeSD, 0.0f, kHoldMassimoMs);
    c.Limita<int16_t>(riga.RbwId, 0, 15);
    // The two separators of the list: the filter above them takes their place.
    if (riga.RbwId == 4 || riga.RbwId == 11)
        c.Imposta(riga.RbwId, static_cast<int16_t>(riga.RbwId - 1));
}

} // namespace

bool ControllaParStand(EnvRecord& env) {
    Correttore c;
    ControllaColori(c, env);
    ControllaInteri(c, env);
    ControllaReali(c, env);
    ControllaPercorso(c, env.ScanPanelPath, kPannelloEST);
    ControllaPercorso(c, env.SetupPanelPath, kPannelloEAM);
    ControllaPercorso(c, env.SweepPath, kSweepUntitled);
    return c.Cambiato();
}

bool ControllaSetup(SetupRecord& setup) {
    Correttore c;
    ControllaIndici(c, setup);
    ControllaFlag(c, setup);
    ControllaAsse(c, setup);
    for (float* x : {&setup.HoldTimeAn, &setup.ScaleAn[0], &setup.ScaleAn[1], &setup.SpanMa,
                     &setup.ManualLevel, &setup.InsLossRef})
        c.Finito(*x);
    for (double* x : {&setup.FreqMa, &setup.TGLevel, &setup.TGFreq})
        c.Finito(*x);
    return c.Cambiato();
}

bool ControllaScan(ScanRecord& scan) {
    Correttore c;
    for (ScanLine& riga : scan.Righe)
        ControllaRiga(c, riga);
    // Out of range reads as 0, not as the nearest value.
    if (scan.WorstMode < 0 || scan.WorstMode > 2)
        c.Imposta(scan.WorstMode, int16_t{0});
    c.Limita<int32_t>(scan.NumWorst, 0, kMassimoWorst);
    c.Limita<int16_t>(scan.GridRow, 0, static_cast<int16_t>(kMaxScanLine));
    c.Limita<int16_t>(scan.GridCol, 0, 11);
    return c.Cambiato();
}

} // namespace orvane
