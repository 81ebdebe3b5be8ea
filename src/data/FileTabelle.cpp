#include "data/FileTabelle.h"

#include "data/ControllaTabelle.h"
#include "data/ConversioneTabella.h"
#include "data/TabelleFrequenza.h"
#include "data/TabelleLimFac.h"

namespace orvane {

int SlotDiKind(TableKind kind) {
    return kind == TableKind::Fattore ? kPrimoFattore : kPrimoLimite;
}

std::optional<ContenutoTabella> CaricaTabella(Scrivania& s, const ContenutoTabella& attuale,
                                              std::string_view percorso) {
    const TableKind kind = attuale.kind;
    if (LimiteOFattore(kind)) {
        TabelleLimFac tabelle;
        const int slot = SlotDiKind(kind);
        if (!CaricaLimFac(s, tabelle, percorso, slot))
            return std::nullopt;
        return DaLimFac(tabelle.slot[static_cast<size_t>(slot)], kind);
    }
    FrequencyTable tabella = InFrequencyTable(attuale);
    if (!CaricaFreqTab(s, FormaDiKind(kind), percorso, tabella))
        return std::nullopt;
    ContenutoTabella c = DaFrequencyTable(tabella, kind);
    c.unitId = attuale.unitId;
    return c;
}

bool SalvaTabella(const Scrivania& s, const ContenutoTabella& c, std::string_view percorso) {
    if (!LimiteOFattore(c.kind))
        return SalvaFreqTab(s, FormaDiKind(c.kind), percorso, InFrequencyTable(c));
    TabelleLimFac tabelle;
    const int slot = SlotDiKind(c.kind);
    tabelle.slot[static_cast<size_t>(slot)] = InLimFac(c);
    return SalvaLimFac(s, tabelle, percorso, slot);
}

std::optional<ContenutoTabella> AnteprimaTabella(const Scrivania& s, TableKind kind,
                                                 std::string_view percorso) {
    const auto dati = s.albero.Leggi(percorso, kByteFTM);
    if (!dati)
        return std::nullopt;
    if (LimiteOFattore(kind)) {
        LimFacRecord tabella = LeggiLimFac(*dati);
        ControllaLimFac(tabella);
        return DaLimFac(tabella, kind);
    }
    FrequencyTable tabella = LeggiFreqTab(FormaDiKind(kind), *dati);
    ControllaFrequencyTable(tabella);
    return DaFrequencyTable(tabella, kind);
}

} // namespace orvane
