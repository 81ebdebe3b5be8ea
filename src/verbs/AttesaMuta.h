// A document in the making shows nothing on a terminal.
#pragma once

#include "report/ConvertiTestoInPDFRTF.h"

namespace orvane {

struct AttesaMuta : VistaAttesa {
    void MostraAttesa(const std::string&) override {}
    void ChiudiAttesa() override {}
};

} // namespace orvane
