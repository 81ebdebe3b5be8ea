// `FrmReportDSD`: the reports of two detectors, each against a limit of its own.
#pragma once

#include "ui/FinestraReport.h"

namespace orvane {

class FrmReportDSD : public FinestraReport {
    Q_OBJECT
public:
    /// `ReportFullStyle`: both detectors in every row.
    FrmReportDSD(Scrivania& scrivania, const MisuraAperta& misura, bool ReportFullStyle,
                 ChiediTabella chiediTabella, QWidget* padre);
};

} // namespace orvane
