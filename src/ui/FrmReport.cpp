#include "ui/FrmReport.h"

namespace orvane {
namespace {

constexpr GruppoDetector kGruppi[] = {
    {"FRMDetectors", "OPTDetector", "Detector", RuoloDetector::Report}};

} // namespace

FrmReport::FrmReport(Scrivania& scrivania, const MisuraAperta& misura, ChiediTabella chiediTabella,
                     QWidget* padre)
    : FinestraReport(scrivania, misura, TipoReport::UnDetector, kGruppi, std::move(chiediTabella),
                     padre) {
    setObjectName(QStringLiteral("FrmReport"));
}

} // namespace orvane
