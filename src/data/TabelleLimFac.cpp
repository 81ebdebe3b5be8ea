#include "data/TabelleLimFac.h"
#include "data/NomiTabelle.h"

#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/Avvisi.h"
#include "data/Cartelle.h"
#include "data/ControllaTabelle.h"
#include "data/FileRecord.h"
#include "data/NomiDisco.h"

namespace orvane {
namespace {

std::string_view CartellaSlot(int slot) {
    return slot < kPrimoFattore ? cartella::kLimits : cartella::kFactors;
}

std::string ConCartella(std::string_view percorso, int slot) {
    const bool nudo = percorso.find_first_of("\\/") == std::string_view::npos;
    return std::string(nudo ? CartellaSlot(slot) : "") + std::string(percorso);
}

/// A file of the earlier format gets today's length, with all that it held.
void ConvertiFile(const Scrivania& s, const std::string& percorso, std::vector<uint8_t>& dati) {
    dati = ScriviRecord(LeggiLimFac(dati));
    if (!s.albero.Salva(percorso, dati))
        AvvisaScrittura(s, percorso);
}

} // namespace

std::string PercorsoLimite(std::string_view nome) {
    return std::string(cartella::kLimits) + std::string(nome) + ".5SL";
}

std::string PercorsoFattore(std::string_view nome) {
    return std::string(cartella::kFactors) + std::string(nome) + ".5SC";
}

LimFacRecord LeggiLimFac(std::span<const uint8_t> dati) {
    LimFacRecord tabella;
    LeggiRecord(dati, tabella);
    if (dati.size() == kByteLimFacVecchio)
        tabella.LastSegment = 0; // what an older program meant by it is not known
    return tabella;
}

bool CaricaLimFac(Scrivania& s, TabelleLimFac& tabelle, std::string_view nome, int slot,
                  LunghezzaErrata modo) {
    LimFacRecord& dove = tabelle.slot.at(static_cast<size_t>(slot));
    dove = {};
    const std::string percorso = ConCartella(nome, slot);
    s.albero.AssicuraCartella(CartellaSlot(slot));
    if (!NominaTabella(EstraiNomeFile(percorso)) || !s.albero.Esiste(percorso))
        return false;
    auto dati = s.albero.Leggi(percorso, kByteLimFac + 1);
    if (!dati)
        return AvvisaLettura(s, percorso);
    if (dati->size() == kByteLimFacVecchio)
        ConvertiFile(s, percorso, *dati);
    if (!ControllaLunghezza(s, percorso, dati->size(), kByteLimFac, modo))
        return false;
    dove = LeggiLimFac(*dati);
    AvvisaTabellaRiparata(s, percorso, ControllaLimFac(dove));
    return true;
}

bool CaricaFactorSlot(Scrivania& s, TabelleLimFac& tabelle, std::string_view nome, int slot) {
    if (!NomeTabellaAmmesso(nome)) {
        tabelle.slot.at(static_cast<size_t>(slot)) = {};
        return false;
    }
    return CaricaLimFac(s, tabelle, PercorsoFattore(nome), slot);
}

bool SalvaLimFac(const Scrivania& s, const TabelleLimFac& tabelle, std::string_view nome,
                 int slot) {
    s.albero.AssicuraCartella(CartellaSlot(slot));
    return SalvaFileRecord(s, ConCartella(nome, slot), tabelle.slot.at(static_cast<size_t>(slot)));
}

std::vector<std::string> CompilaCBXLimits(const AlberoDati& albero) {
    return VociTabelle(albero, cartella::kLimits, "5SL");
}

} // namespace orvane
