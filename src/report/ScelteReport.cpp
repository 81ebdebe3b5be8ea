#include "report/ScelteReport.h"

#include <algorithm>
#include <array>

#include "base/Numeri.h"
#include "data/Panels.h"
#include "records/ImpostazioniReport.h"

namespace orvane {
namespace {

struct CampoDetector {
    RuoloDetector ruolo;
    int16_t ReportModel::*model;
    int16_t EnvRecord::*env;
};
constexpr std::array kCampi = {
    CampoDetector{RuoloDetector::Report, &ReportModel::ReportDetector, &EnvRecord::ReportFlag},
    CampoDetector{RuoloDetector::Lim1, &ReportModel::ReportDetectorLim1, &EnvRecord::ReportMode1},
    CampoDetector{RuoloDetector::Lim2, &ReportModel::ReportDetectorLim2, &EnvRecord::ReportMode2},
};

const CampoDetector& Campo(RuoloDetector ruolo) {
    return kCampi.at(static_cast<size_t>(ruolo));
}

} // namespace

ReportModel ReportDellaMisura(const EnvRecord& env, TipoReport tipo, const MisuraAperta& misura) {
    ReportModel model = ReportDaPannello(env, tipo);
    const auto primo = std::ranges::find(misura.detector, true);
    for (const CampoDetector& campo : kCampi) {
        int16_t& detector = model.*campo.model;
        if (primo != misura.detector.end() && !misura.detector[static_cast<size_t>(detector)])
            detector = static_cast<int16_t>(primo - misura.detector.begin());
    }
    return model;
}

int16_t DetectorReport(const ReportModel& model, RuoloDetector ruolo) {
    return model.*Campo(ruolo).model;
}

void ScegliDetectorReport(Scrivania& s, ReportModel& model, RuoloDetector ruolo, int16_t detector) {
    model.*Campo(ruolo).model = detector;
    s.env.*Campo(ruolo).env = detector;
    SalvaPanelEPN(s, kPannelloEPN);
}

void ScegliMargineReport(Scrivania& s, ReportModel& model, std::string_view testo) {
    const double dB = LeggiNumero(testo).value_or(0);
    model.ReportMargin = LimitaMargine(static_cast<float>(dB));
    ReportMargin(s.env) = model.ReportMargin;
    SalvaPanelEPN(s, kPannelloEPN);
}

void ScegliVoceReport(Scrivania& s, size_t voce, int16_t valore) {
    s.env.ReportList.at(voce) = valore;
    SalvaPanelEPN(s, kPannelloEPN);
}

} // namespace orvane
