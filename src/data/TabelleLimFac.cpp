#include "data/TabelleLimFac.h"

#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/Avvisi.h"
#include "data/Cartelle.h"
#include "data/ControllaTabelle.h"
#include "data/FileRecord.h"
#include "data/NomiDisco.h"

namespace orvane {
namespace {

constexpr std::string_view kNessuno = "NONE";

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
    if (UgualiSenzaMaiuscole(EstraiNomeFile(percorso), kNessuno) || !s.albero.Esiste(percorso))
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

std::vector<std::string> NomiTabelle(const Scrivania& s, std::string_view cartella,
                                     std::string_view estensione) {
    std::vector<std::string> nomi;
    for (const std::string& file : s.albero.ElencaFile(cartella, estensione))
        nomi.push_back(RimuoviEstensione(file));
    return nomi;
}

std::vector<std::string> CompilaCBXLimits(const Scrivania& s) {
    std::vector<std::string> voci = NomiTabelle(s, cartella::kLimits, "5SL");
    voci.insert(voci.begin(), std::string(kNessuno));
    return voci;
}

} // namespace orvane
