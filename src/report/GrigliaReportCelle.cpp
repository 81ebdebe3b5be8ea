#include <algorithm>
#include <cmath>

#include "base/Ambiente.h"
#include "records/Unita.h"
#include "report/GrigliaReport.h"
#include "report/RigheReport.h"

namespace orvane {
namespace {

constexpr double kGiroS = 0.1;

/// What the cells of one row are made from, whatever the kind of report.
struct PuntoReport {
    const std::array<float, kNumDetector>& livelli;
    const std::array<float, kPostiLimite>& limiti; ///< by slot
    const std::array<FattoreRep, kNumFattori>& fattori;
    double freqMhz;
    int16_t mast;
    int16_t table;
    std::array<bool, kLimitiReport> conDelta; ///< slots whose delta is shown
    std::array<size_t, kLimitiReport> detector;
};

std::string CellaLivello(float livello) {
    return livello <= kNessunLivelloRep ? std::string(kCellaVuota) : FormattaLivelloRep(livello);
}

std::string CellaFattore(const FattoreRep& fattore) {
    return fattore.Valid ? FormattaLivelloRep(fattore.Value) : std::string(kCellaVuota);
}

/// The limit's value where it has one and its detector was measured.
std::string CellaLimite(const PuntoReport& p, size_t slot, float offset) {
    const bool vuota =
        NessunLimite(p.limiti[slot], offset) || p.livelli[p.detector[slot]] <= kNessunLivelloRep;
    return vuota ? std::string(kCellaVuota) : FormattaLivelloRep(p.limiti[slot]);
}

std::string CellaDelta(const PuntoReport& p, size_t slot, float offset) {
    if (!p.conDelta[slot] || CellaLimite(p, slot, offset) == kCellaVuota)
        return std::string(kCellaVuota);
    return FormattaLivelloRep(p.livelli[p.detector[slot]] - p.limiti[slot]);
}

std::string Cella(const ColonnaReport& colonna, const PuntoReport& p, size_t numero, float offset,
                  double massimaMhz) {
    switch (colonna.genere) {
    case GenereColonna::Numero:
        return std::to_string(numero);
    case GenereColonna::Frequenza:
        return FormattaFreqRep(p.freqMhz, massimaMhz);
    case GenereColonna::Livello:
        return CellaLivello(p.livelli[colonna.quale]);
    case GenereColonna::Limite:
        return CellaLimite(p, colonna.quale, offset);
    case GenereColonna::Delta:
        return CellaDelta(p, colonna.quale, offset);
    case GenereColonna::Mast:
        return FormattaPosizioneRep(p.mast);
    case GenereColonna::Table:
        return FormattaPosizioneRep(p.table);
    case GenereColonna::Fattore:
        return CellaFattore(p.fattori[colonna.quale]);
    }
    return {};
}

void Accoda(GrigliaReport& griglia, const PuntoReport& p, float offset, double massimaMhz) {
    RigaGriglia riga{.freqMhz = p.freqMhz, .mast = p.mast, .table = p.table};
    for (const ColonnaReport& colonna : griglia.colonne) {
        riga.celle.push_back(Cella(colonna, p, griglia.righe.size() + 1, offset, massimaMhz));
        if (colonna.genere == GenereColonna::Livello && riga.livello <= kNessunLivelloRep)
            riga.livello = p.livelli[colonna.quale];
    }
    griglia.righe.push_back(std::move(riga));
}

/// Serves events and tells how far the fill is, ten times a second. False once it is to end.
class Passo {
public:
    Passo(Ambiente& ambiente, const ReportModel& model, const AvanzaReport& avanza, size_t tutte)
        : ambiente_(ambiente), model_(model), avanza_(avanza), tutte_(tutte),
          giro_(ambiente, kGiroS) {}
    bool Continua(size_t fatte) {
        if (!giro_.Passata())
            return true;
        giro_.Rinnova(kGiroS);
        if (avanza_)
            avanza_(fatte, tutte_);
        ambiente_.ElaboraEventi(0, Veglia::Eventi);
        return !model_.ReportCancelRequested;
    }

private:
    Ambiente& ambiente_;
    const ReportModel& model_;
    const AvanzaReport& avanza_;
    size_t tutte_;
    Scadenza giro_;
};

/// Goes over an array with `metti`, and keeps the flags of a fill.
template <class Riga, class Metti>
void RiempiGriglia(GrigliaReport& griglia, ReportModel& model, const std::vector<Riga>& righe,
                   Ambiente& ambiente, const AvanzaReport& avanza, Metti metti) {
    double massima = 0;
    for (const Riga& riga : righe)
        massima = std::max(massima, FrequenzaRep(riga.Freq));
    griglia.righe.clear();
    model.ReportCompiling = true;
    Passo passo(ambiente, model, avanza, righe.size());
    size_t fatte = 0;
    for (; fatte < righe.size() && passo.Continua(fatte); ++fatte)
        metti(righe[fatte], massima);
    model.tagliato = griglia.tagliata = fatte < righe.size();
    model.ReportCompiling = false;
    model.ReportCancelRequested = false;
}

/// Slots as they stand: the array of the one-detector report has the limits that are on alone.
std::array<float, kPostiLimite> LimitiPerSlot(const FreqLevLimRep& riga,
                                              const std::vector<size_t>& attivi) {
    std::array<float, kPostiLimite> limiti{};
    for (size_t i = 0; i < attivi.size(); ++i)
        limiti[attivi[i]] = riga.Limit[i];
    return limiti;
}

void CompilaDSD(GrigliaReport& griglia, ReportModel& model, const FonteReport& fonte,
                Ambiente& ambiente, const AvanzaReport& avanza) {
    ControllaDetFreqLevLimRepDSD(model, fonte);
    const float offset = ImpostaUnita(fonte.setup.UnitId);
    const std::array<size_t, kLimitiReport> detector = {
        static_cast<size_t>(model.ReportDetectorLim1),
        static_cast<size_t>(model.ReportDetectorLim2)};
    const auto metti = [&](const FreqLevLimRepDSD& riga, double massima) {
        std::array<bool, kLimitiReport> colpiti{};
        for (const size_t i : LimitiAttivi(fonte.setup)) {
            const float livello = riga.Level[detector[i]];
            colpiti[i] =
                !NessunLimite(riga.Limit[i], offset) && livello > kNessunLivelloRep &&
                ColpisceLimite(riga.Limit[i], livello, model.ReportMargin, fonte.invertita);
        }
        if (colpiti[0] || colpiti[1])
            Accoda(griglia,
                   {riga.Level, riga.Limit, riga.Factor, riga.Freq, riga.Mast, riga.Table, colpiti,
                    detector},
                   offset, massima);
    };
    RiempiGriglia(griglia, model, model.ArrFreqLevLimRepDSD, ambiente, avanza, metti);
}

} // namespace

void CompilaReport1Det(GrigliaReport& griglia, ReportModel& model, const FonteReport& fonte,
                       Ambiente& ambiente, const AvanzaReport& avanza) {
    ControllaDetFreqLevLimRep(model, fonte);
    const float offset = ImpostaUnita(fonte.setup.UnitId);
    const std::vector<size_t> attivi = LimitiAttivi(fonte.setup);
    const auto quale = static_cast<size_t>(model.ReportDetector);
    const auto metti = [&](const FreqLevLimRep& riga, double massima) {
        std::array<float, kNumDetector> livelli{};
        livelli[quale] = riga.Level;
        const auto limiti = LimitiPerSlot(riga, attivi);
        // A row is there for one limit or the other; both deltas are shown.
        Accoda(griglia,
               {livelli,
                limiti,
                riga.Factor,
                riga.Freq,
                riga.Mast,
                riga.Table,
                {true, true},
                {quale, quale}},
               offset, massima);
    };
    RiempiGriglia(griglia, model, model.ArrFreqLevLimRep, ambiente, avanza, metti);
}

void CompilaReport2Det(GrigliaReport& griglia, ReportModel& model, const FonteReport& fonte,
                       Ambiente& ambiente, const AvanzaReport& avanza) {
    CompilaDSD(griglia, model, fonte, ambiente, avanza);
}

void CompilaReport2DetFull(GrigliaReport& griglia, ReportModel& model, const FonteReport& fonte,
                           Ambiente& ambiente, const AvanzaReport& avanza) {
    CompilaDSD(griglia, model, fonte, ambiente, avanza);
}

void CompilaReport(GrigliaReport& griglia, ReportModel& model, const FonteReport& fonte,
                   Ambiente& ambiente, const AvanzaReport& avanza) {
    if (model.tipo == TipoReport::UnDetector)
        CompilaReport1Det(griglia, model, fonte, ambiente, avanza);
    else
        CompilaDSD(griglia, model, fonte, ambiente, avanza);
}

FrequencyTable TabellaDaGriglia(const GrigliaReport& griglia, const FonteReport& fonte,
                                bool& intera) {
    FrequencyTable tabella;
    const float offset = ImpostaUnita(fonte.setup.UnitId);
    intera = griglia.righe.size() <= kMaxFreqTable;
    for (size_t i = 0; i < std::min(griglia.righe.size(), kMaxFreqTable); ++i) {
        const RigaGriglia& riga = griglia.righe[i];
        const bool muta = riga.livello <= kNessunLivelloRep;
        tabella.Elementi[i] = {
            .Freq = FrequenzaRep(riga.freqMhz),
            .Level = static_cast<int16_t>(muta ? 0 : std::lround((riga.livello - offset) * 100)),
            .Mast = riga.mast,
            .Table = riga.table};
    }
    return tabella;
}

} // namespace orvane
