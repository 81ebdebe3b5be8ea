// The commands that the 3360 family lacks, and what is taken for their replies.
#include <array>

#include "base/Testo.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

struct RispostaFissa {
    std::string_view chiave;
    std::string_view risposta; ///< empty: the command goes out
};

// The first row whose key occurs in the command decides.
constexpr std::array<RispostaFissa, 33> kRisposteFisse = {{
    {"?BAT", "---"},    {"?MIL", "MIL=N/A"}, {"?MPA", ""},         {"?MPS", ""},
    {"?PLM", ""},       {"?FSF", ""},        {"?FSA", "---"},      {"?TGS", ""},
    {"?TGT", ""},       {"?TGF", ""},        {"?TGL", ""},         {"?BCD", "BCD=Off "},
    {"?APA", ""},       {"?APS", "APS=***"}, {"?SPA", ""},         {"?SPS", ""},
    {"?DPY", ""},       {"?CKR", "---"},     {"SDIS", "DIS=OK"},   {"SMPA", "MPA=OK"},
    {"SMPS", "MPS=OK"}, {"SPLM", "PLM =OK"}, {"STGS", "TGS =OK"},  {"STGT", "TGT =OK"},
    {"STGF", "TGF=OK"}, {"STGL", "TGL=OK"},  {"SAPA", "APA=OK"},   {"SAPS", "APS=OK"},
    {"SSPA", "SPA=OK"}, {"SSPS", "SPS=OK"},  {"SLII", "SLII =OK"}, {"SLIC", "SLIC =OK"},
    {"SSDO", "SDO=OK"},
}};

} // namespace

std::string_view RisposteFisse(std::string_view comando) {
    for (const RispostaFissa& riga : kRisposteFisse)
        if (Contiene(comando, riga.chiave))
            return riga.risposta;
    return {};
}

} // namespace orvane
