#include "data/Intestazione.h"

#include "data/FileTesto.h"

namespace orvane {
namespace {

constexpr std::string_view kModello = "\n"
                                      "   ************  Header Text ***************\n"
                                      "Report issuing date : --/--/----  (dd/mm/yyyy)\n"
                                      "Temperature         : --- °C\n"
                                      "Humidity            : ---  %\n"
                                      "\n"
                                      "EUT\n"
                                      "-----------------\n"
                                      "Manufacturer        :\n"
                                      "Model               :\n"
                                      "S/N                 :\n"
                                      "Notes               :\n"
                                      "\n"
                                      "Testing Company\n"
                                      "-----------------\n"
                                      "Address             :\n"
                                      "Tel./Fax            :\n"
                                      "E-mail              :\n"
                                      "Web site            :\n"
                                      "\n"
                                      "Operator            :\n"
                                      "\n"
                                      "Receiver Details\n"
                                      "-----------------\n"
                                      "Model               :\n"
                                      "Brand               :\n"
                                      "S/N                 :\n"
                                      "Last Calibration    :\n"
                                      "\n"
                                      "Ancillary Details\n"
                                      "-----------------\n"
                                      "Model               :\n"
                                      "Brand               :\n"
                                      "S/N                 :\n"
                                      "Last Calibration    :\n"
                                      "\n"
                                      "   ************  End of Header ***************\n";

} // namespace

std::optional<std::string> CaricaHeader(const Scrivania& s) {
    if (!s.albero.Esiste(kFileHeader) && !SalvaTesto(s, kFileHeader, kModello))
        return std::nullopt;
    return CaricaTesto(s, kFileHeader);
}

} // namespace orvane
