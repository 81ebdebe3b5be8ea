// `FrmReport`: the report of one detector against the two limits.
#pragma once

#include "ui/FinestraReport.h"

namespace orvane {

class FrmReport : public FinestraReport {
    Q_OBJECT
public:
    FrmReport(Scrivania& scrivania, const MisuraAperta& misura, ChiediTabella chiediTabella,
              QWidget* padre);
};

} // namespace orvane
