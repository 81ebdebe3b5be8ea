#include "setup/ModuloScan.h"

#include "base/Numeri.h"
#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/Cartelle.h"
#include "data/NomiTabelle.h"
#include "setup/Controlli.h"
#include "setup/ModificaTabella.h"

namespace orvane {
namespace {

bool EsisteFreqTable(const AlberoDati& albero, std::string_view nome) {
    return albero.Esiste(std::string(cartella::kTable) + std::string(nome) + ".5SF");
}

/// A Smart line takes no linear limit: the pair returns to what is stored, and goes off.
std::optional<Riquadro> ControllaLimLin(ModuloScan& modulo, CoppiaLimite coppia) {
    if (modulo.riga.Smart != 1 || !LimiteLineareScelto(modulo, coppia))
        return std::nullopt;
    NomeLimite(modulo.riga, coppia) = NomeLimite(modulo.originale, coppia);
    LimiteAcceso(modulo.riga, coppia) = 0;
    return RiquadroLimiteLineare();
}

} // namespace

bool LimiteLineareScelto(const ModuloScan& modulo, CoppiaLimite coppia) {
    const std::string& nome =
        coppia == CoppiaLimite::Prima ? modulo.riga.Limit : modulo.riga.LimitDSD;
    return NominaTabella(nome) && LimiteLineare(LimiteDaNome(modulo.albero, nome));
}

bool LimiteVietaSmart(const ModuloScan& modulo) {
    return modulo.riga.Smart == 0 && modulo.riga.LimitOn == 1 &&
           LimiteLineareScelto(modulo, CoppiaLimite::Prima);
}

ModuloScan ApriModulo(const AlberoDati& albero, ColonnaScan colonna, int ancillaryKind,
                      const ScanLine& riga) {
    ModuloScan modulo{.albero = albero,
                      .colonna = colonna,
                      .ancillaryKind = ancillaryKind,
                      .riga = riga,
                      .originale = riga};
    AggiornaStepAuto(modulo.riga);
    modulo.unita = UnitaDelPasso(modulo.riga.Step);
    return modulo;
}

std::optional<Riquadro> ScegliDetector(ModuloScan& modulo, DetectorKind detector, bool acceso) {
    CambiaDetector(modulo.riga, detector, acceso, modulo.ancillaryKind);
    const bool due = ControllaCondizioniDSDScanTab(modulo.riga) && modulo.riga.LimitDSDOn == 1;
    return due ? ControllaLimLin(modulo, CoppiaLimite::DSD) : std::nullopt;
}

std::optional<Riquadro> ScegliSmart(ModuloScan& modulo, bool acceso) {
    if (acceso && LimiteVietaSmart(modulo))
        return RiquadroLimiteLineare();
    ModificaSmart(modulo.riga, acceso);
    return std::nullopt;
}

std::optional<Riquadro> ScegliLimite(ModuloScan& modulo, CoppiaLimite coppia,
                                     std::string_view nome) {
    NomeLimite(modulo.riga, coppia) = nome.empty() ? kNessunaTabella : nome;
    return ControllaLimLin(modulo, coppia);
}

std::optional<Riquadro> AccendiLimite(ModuloScan& modulo, CoppiaLimite coppia, bool acceso) {
    LimiteAcceso(modulo.riga, coppia) = acceso ? 1 : 0;
    return acceso ? ControllaLimLin(modulo, coppia) : std::nullopt;
}

std::optional<Riquadro> ScegliFreqTable(ModuloScan& modulo, std::string_view nome) {
    const std::string chiesta(nome);
    const bool nessuna = !NominaTabella(nome);
    const bool trovata = !nessuna && EsisteFreqTable(modulo.albero, nome);
    modulo.riga.FreqTable = trovata ? chiesta : std::string(kNessunaTabella);
    if (nessuna || trovata)
        return std::nullopt;
    return Riquadro{.testo = "Frequency table " + chiesta + "  not found",
                    .icona = Icona::Esclamazione};
}

std::optional<Riquadro> ControllaFreqTable(ModuloScan& modulo) {
    if (modulo.riga.StepMode != 1)
        return std::nullopt;
    return ScegliFreqTable(modulo, std::string(modulo.riga.FreqTable));
}

void ModificaTBStep(ModuloScan& modulo, std::string_view testo) {
    if (modulo.riga.AutoStep == 0)
        ModificaStep(modulo.riga, testo, modulo.unita);
}

void ScriviPrompt(ModuloScan& modulo, std::string_view testo) {
    ModificaPrompt(modulo.riga, testo);
    modulo.riga.PromptOn = modulo.riga.Prompt.empty() ? 0 : 1;
}

std::vector<std::string> ElencoFreqTable(const AlberoDati& albero) {
    return VociTabelle(albero, cartella::kTable, "5SF");
}

std::vector<std::string> CompilaCBXLimiti(const AlberoDati& albero) {
    return VociTabelle(albero, cartella::kLimits, "5SL");
}

std::optional<Riquadro> ChiudiModulo(const ModuloScan& modulo, ScanLine& destinazione) {
    // From another column the user could not choose the limit that is asked for.
    const bool conSmart = ApreCornice(modulo.colonna, Cornice::FRMCustomLimits);
    if (conSmart && modulo.riga.Smart == 1 && !ControllaSelLimSD(modulo.riga))
        return RiquadroLimiteMancante();
    destinazione = modulo.riga;
    return std::nullopt;
}

} // namespace orvane
