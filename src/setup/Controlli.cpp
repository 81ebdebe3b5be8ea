#include "setup/Controlli.h"

#include "data/ControllaTabelle.h"
#include "data/TabelleLimFac.h"

namespace orvane {
namespace {

LimFacRecord Leggi(const AlberoDati& albero, const std::string& percorso) {
    const auto dati = albero.Leggi(percorso, DimensioneSuDisco<LimFacRecord>());
    LimFacRecord tabella = dati ? LeggiLimFac(*dati) : LimFacRecord{};
    ControllaLimFac(tabella);
    return tabella;
}

} // namespace

LimFacRecord LimiteDaNome(const AlberoDati& albero, std::string_view nome) {
    return Leggi(albero, PercorsoLimite(nome));
}

LimFacRecord FattoreDaNome(const AlberoDati& albero, std::string_view nome) {
    return Leggi(albero, PercorsoFattore(nome));
}

} // namespace orvane
