// The step rules of the scan table.
#include <algorithm>

#include "setup/RegoleScan.h"

namespace orvane {
namespace {

struct ErroreStep {
    std::string_view testo;
    bool span = false; ///< the span is at fault, not the step
};
// By code.
constexpr std::array<ErroreStep, 4> kErrori = {{
    {""},
    {"   *** Step Error ***\r        Too small step"},
    {"   *** Step Error ***\r        Too big step"},
    {"   *** Start/Stop Frequency Error ***\r            Too small Span", true},
}};

Segnalazione Descrivi(size_t riga, int codice) {
    const ErroreStep& errore = kErrori[static_cast<size_t>(codice)];
    Segnalazione trovata{
        .riquadro = {.testo = std::string(errore.testo), .icona = Icona::Esclamazione},
        .codice = codice};
    if (errore.span)
        trovata.celle = {{riga, ColonnaScan::Start}, {riga, ColonnaScan::Stop}};
    else
        trovata.celle = {{riga, ColonnaScan::Step}};
    return trovata;
}

bool TroppoLungo(const ScanLine& riga) {
    return riga.Start != 0 && riga.Step > kStepMaxK3XK6X;
}

} // namespace

int DetErroreStep(const ScanLine& riga) {
    const auto s = static_cast<float>(riga.Step);
    const auto w = static_cast<float>(riga.Stop - riga.Start);
    const int rbw = std::clamp<int>(riga.RbwId, 0, kNumRbw - 1);
    const auto a = static_cast<float>(TabellaRbw()[static_cast<size_t>(rbw)].passoAuto / 100);
    if (s == 0)
        return 0;
    if (s <= a)
        return 1;
    if (w / 2 < s)
        return 2 * a > w ? 3 : 2;
    return w / 1000000 >= s ? 1 : 0;
}

void RicalcolaPassiAuto(ScanTable& tabella) {
    for (ScanLine& riga : tabella)
        if (riga.Start != 0 && riga.AutoStep == 1)
            riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
}

Segnalazioni ControlloStepScanTab(const ContestoControlli& c) {
    ScanTable tabella = c.tabella;
    RicalcolaPassiAuto(tabella);
    for (size_t i = 0; i < tabella.size(); ++i) {
        const int codice = tabella[i].Start != 0 ? DetErroreStep(tabella[i]) : 0;
        if (codice != 0)
            return {Descrivi(i, codice)};
    }
    return {};
}

Segnalazioni ControlloStepScanTabK3XK6X(const ContestoControlli& c) {
    if (!HaCondottoERadiato(c.modello) && !c.modello.IsK0X)
        return {};
    Segnalazione trovata{.esito = EsitoControllo::Corregge,
                         .riquadro = {.testo = "Too high Step (Highest 400 kHz)\r      Step will "
                                               "be set to 400 kHz",
                                      .icona = Icona::Esclamazione}};
    for (size_t i = 0; i < c.tabella.size(); ++i)
        if (TroppoLungo(c.tabella[i]))
            trovata.celle.push_back({i, ColonnaScan::Step});
    return trovata.celle.empty() ? Segnalazioni{} : Segnalazioni{trovata};
}

void LimitaPassi(ScanTable& tabella) {
    for (ScanLine& riga : tabella)
        if (TroppoLungo(riga))
            riga.Step = kStepMaxK3XK6X;
}

} // namespace orvane
