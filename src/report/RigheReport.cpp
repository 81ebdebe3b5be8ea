#include "report/RigheReport.h"

#include <algorithm>
#include <cmath>

#include "data/Interpolazione.h"
#include "records/ImpostazioniReport.h"
#include "records/Unita.h"

namespace orvane {
namespace {

constexpr int kAncillaryMastTable = 5;
// Levels and limits are whole hundredths of a dB, but held as floats.
constexpr float kMinimaDifferenza = 0.001f;

/// Level and limit in the unit on display. A level in the unit is the one in dBµV plus
/// `UnitOffset`; both take the same sign, so that their distance is that in dBµV in every unit.
float InUnita(int16_t cent, float UnitOffset) {
    return static_cast<float>(cent / 100.0 + static_cast<double>(UnitOffset));
}

float FrequenzaHz(double mhz) {
    return static_cast<float>(mhz * 1e6);
}

/// From the first frequency on, and below the last one.
bool DentroTabella(const LimFacRecord& fattore, float hz) {
    const auto fine = std::find(fattore.Freq.begin(), fattore.Freq.end(), 0.0f);
    return fine != fattore.Freq.begin() && fattore.Freq[0] <= hz && hz < *std::prev(fine);
}

void MettiFattori(std::array<FattoreRep, kNumFattori>& celle, RaccoltaReport& r, float hz) {
    for (const size_t t : r.fattori) {
        LimFacRecord& tabella = r.tabelle.slot[kPrimoFattore + t];
        celle[t].Valid = DentroTabella(tabella, hz);
        celle[t].Value =
            celle[t].Valid ? static_cast<float>(ValoreFattore(tabella, hz) / 100.0) : 0;
    }
}

/// The row that a frequency has: the last one, or a new one.
template <class Riga> Riga& RigaDellaFrequenza(std::vector<Riga>& righe, double mhz) {
    if (righe.empty() || !StessaFrequenza(righe.back().Freq, mhz))
        righe.push_back({});
    return righe.back();
}

template <class Riga>
void MettiPunto(Riga& riga, RaccoltaReport& r, const CampioneTraccia& punto, ReportModel& model) {
    riga.Freq = punto.freqMhz;
    riga.Mast = punto.mast;
    riga.Table = punto.table;
    MettiFattori(riga.Factor, r, FrequenzaHz(punto.freqMhz));
    model.ReportMeasureName = r.fonte.misura.nome;
}

int16_t LimiteAllaFrequenza(const RaccoltaReport& r, size_t slot, double mhz) {
    return ValoreLimite(r.tabelle, FrequenzaHz(mhz), kPrimoLimite + static_cast<int>(slot));
}

} // namespace

ReportModel ReportDaPannello(const EnvRecord& env, TipoReport tipo) {
    ReportModel model;
    model.ReportDetector = ReportDetector(env);
    model.ReportDetectorLim1 = ReportDetectorLim1(env);
    model.ReportDetectorLim2 = ReportDetectorLim2(env);
    model.ReportMargin = LimitaMargine(ReportMargin(env));
    model.tipo = tipo;
    return model;
}

float LimitaMargine(double dB) {
    if (!std::isfinite(dB))
        return 0;
    return std::clamp(static_cast<float>(dB), -kMargineMassimo, kMargineMassimo);
}

bool LimiteAttivo(const SetupRecord& setup, size_t slot) {
    return slot < kLimitiReport && setup.LimitOn[slot] == 1;
}

std::vector<size_t> LimitiAttivi(const SetupRecord& setup) {
    std::vector<size_t> attivi;
    for (size_t i = 0; i < kLimitiReport; ++i)
        if (LimiteAttivo(setup, i))
            attivi.push_back(i);
    return attivi;
}

std::vector<size_t> FattoriAttivi(const SetupRecord& setup) {
    std::vector<size_t> attivi;
    for (size_t t = 0; t < kNumFattori; ++t)
        if (setup.FactorOn[t] == 1)
            attivi.push_back(t);
    return attivi;
}

bool HaDatiMast(const MisuraAperta& misura) {
    return AncillaryDi(misura.header.Setup) == kAncillaryMastTable &&
           std::any_of(misura.traccia->begin(), misura.traccia->end(), [](const auto& c) {
               return c.mast != kNessunaPosizione || c.table != kNessunaPosizione;
           });
}

bool NessunLimite(float valore, float offset) {
    return valore >= InUnita(kNessunValore, offset);
}

bool ColpisceLimite(float limite, float livello, float margine, bool invertita) {
    return invertita ? limite + margine >= livello - kMinimaDifferenza
                     : limite - margine <= livello + kMinimaDifferenza;
}

RaccoltaReport::RaccoltaReport(const FonteReport& da)
    : fonte(da), UnitOffset(ImpostaUnita(da.setup.UnitId)), limiti(LimitiAttivi(da.setup)),
      fattori(FattoriAttivi(da.setup)), tabelle(da.misura.tabelle) {}

void ConfrontaPuntoLimitiRep(ReportModel& model, RaccoltaReport& r, const CampioneTraccia& punto,
                             int16_t livelloCent) {
    std::array<float, kPostiLimite> valori{};
    const float livello = InUnita(livelloCent, r.UnitOffset);
    bool colpito = false;
    for (size_t i = 0; i < r.limiti.size(); ++i) {
        valori[i] = InUnita(LimiteAllaFrequenza(r, r.limiti[i], punto.freqMhz), r.UnitOffset);
        // Whatever the margin, nothing is near a limit that has no value here.
        colpito |= !NessunLimite(valori[i], r.UnitOffset) &&
                   ColpisceLimite(valori[i], livello, model.ReportMargin, r.fonte.invertita);
    }
    if (!colpito)
        return;
    FreqLevLimRep& riga = RigaDellaFrequenza(model.ArrFreqLevLimRep, punto.freqMhz);
    riga.Level = livello;
    riga.Limit = valori;
    MettiPunto(riga, r, punto, model);
}

void ConfrontaPuntoLimitiRepDSD(ReportModel& model, RaccoltaReport& r, const CampioneTraccia& punto,
                                int16_t livelloCent, size_t DetectorIndex) {
    auto& righe = model.ArrFreqLevLimRepDSD;
    if (righe.empty() || !StessaFrequenza(righe.back().Freq, punto.freqMhz)) {
        FreqLevLimRepDSD nuova;
        nuova.Level.fill(kNessunLivelloRep);
        bool esiste = false;
        for (const size_t i : r.limiti) {
            const int16_t limite = LimiteAllaFrequenza(r, i, punto.freqMhz);
            nuova.Limit[i] = InUnita(limite, r.UnitOffset);
            esiste |= limite < kNessunValore;
        }
        if (!esiste)
            return;
        MettiPunto(nuova, r, punto, model);
        righe.push_back(nuova);
    }
    righe.back().Level[DetectorIndex] = InUnita(livelloCent, r.UnitOffset);
}

void RaccogliRigheRep(ReportModel& model, const FonteReport& fonte) {
    RaccoltaReport raccolta(fonte);
    model.ArrFreqLevLimRep.clear();
    model.ArrFreqLevLimRepDSD.clear();
    model.ReportMeasureName = fonte.misura.nome;
    model.tagliato = false;
    for (const CampioneTraccia& punto : *fonte.misura.traccia)
        for (size_t d = 0; d < kNumDetector; ++d) {
            if (punto.livello[d] <= kNessunLivello)
                continue;
            if (model.tipo != TipoReport::UnDetector)
                ConfrontaPuntoLimitiRepDSD(model, raccolta, punto, punto.livello[d], d);
            else if (static_cast<int16_t>(d) == model.ReportDetector)
                ConfrontaPuntoLimitiRep(model, raccolta, punto, punto.livello[d]);
        }
}

void ControllaDetFreqLevLimRep(ReportModel& model, const FonteReport& fonte) {
    if (model.ArrFreqLevLimRep.empty())
        RaccogliRigheRep(model, fonte);
}

void ControllaDetFreqLevLimRepDSD(ReportModel& model, const FonteReport& fonte) {
    if (model.ArrFreqLevLimRepDSD.empty())
        RaccogliRigheRep(model, fonte);
}

int UBoundArrFreqLevLimRep(const ReportModel& model) {
    return static_cast<int>(model.ArrFreqLevLimRep.size()) - 1;
}

int UBoundArrFreqLevLimRepDSD(const ReportModel& model) {
    return static_cast<int>(model.ArrFreqLevLimRepDSD.size()) - 1;
}

} // namespace orvane
