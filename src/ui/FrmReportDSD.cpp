#include "ui/FrmReportDSD.h"

namespace orvane {
namespace {

constexpr GruppoDetector kGruppi[] = {
    {"FRMDetectors1L", "OptDetector1L", "Limit 1", RuoloDetector::Lim1},
    {"FRMDetectors2L", "OptDetector2L", "Limit 2", RuoloDetector::Lim2}};

} // namespace

FrmReportDSD::FrmReportDSD(Scrivania& scrivania, const MisuraAperta& misura, bool ReportFullStyle,
                           ChiediTabella chiediTabella, QWidget* padre)
    : FinestraReport(scrivania, misura,
                     ReportFullStyle ? TipoReport::DueDetectorFull : TipoReport::DueDetector,
                     kGruppi, std::move(chiediTabella), padre) {
    setObjectName(QStringLiteral("FrmReportDSD"));
}

} // namespace orvane
