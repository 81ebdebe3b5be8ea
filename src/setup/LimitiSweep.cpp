#include "setup/LimitiSweep.h"

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/CaricamentoTabelle.h"
#include "data/Interpolazione.h"
#include "data/LimitiSmart.h"
#include "setup/Controlli.h"
#include "setup/Segnala.h"

namespace orvane {
namespace {

std::string Ordinale(size_t i) {
    return TestoIntero(static_cast<long long>(i)) + ",";
}

std::vector<ComandoPronto> RigheSingole(const LimitTable& limite) {
    std::vector<ComandoPronto> comandi;
    for (size_t i = 0; i < NumeroPunti(limite); ++i)
        comandi.push_back({Impostazione::RigaLimiteSweep,
                           Ordinale(i) + TestoPunto(limite.Freq[i], limite.Value[i])});
    return comandi;
}

std::vector<ComandoPronto> RigheDoppie(const std::vector<PuntoDSD>& punti) {
    std::vector<ComandoPronto> comandi;
    for (const PuntoDSD& punto : punti)
        comandi.push_back({Impostazione::RigaLimiteDSD,
                           Ordinale(comandi.size()) + TestoPunto(punto.freqHz, punto.livello1) +
                               "," + TestoDaNumero(punto.livello2 / 100.0)});
    return comandi;
}

} // namespace

std::optional<NomiLimite> DetImpostazioneLimite(const ScanLine& riga, const LimiteRicevitore& ha) {
    if (riga.Smart != 1 || riga.LimitOn != 1)
        return std::nullopt;
    NomiLimite nomi{.limite = Rifila(riga.Limit)};
    if (RigaDoppioSmart(riga) && riga.LimitDSDOn == 1)
        nomi.dsd = Rifila(riga.LimitDSD);
    return nomi == ha.nomi ? std::nullopt : std::optional(nomi);
}

std::optional<float> DetImpostazioneMargine(const ScanLine& riga, const LimiteRicevitore& ha) {
    // No margin is sent too where an earlier line, or an earlier run, may have left one.
    if (riga.Smart != 1 || riga.Margin == ha.margine)
        return std::nullopt;
    return riga.Margin;
}

LimiteComposto ComponiLimite(const AlberoDati& albero, const NomiLimite& nomi) {
    const LimitTable limite = LimiteDaNome(albero, nomi.limite);
    const bool doppio = !nomi.dsd.empty();
    const LimitTable dsd = doppio ? LimiteDaNome(albero, nomi.dsd) : LimitTable{};
    const EsitoLimiteSD esito = GiudicaLimiteSD(limite, doppio ? &dsd : nullptr);
    if (esito != EsitoLimiteSD::Buono)
        return {.comandi = {},
                .obiezione = {.testo = TestoLimiteSD(esito), .icona = Icona::Esclamazione}};
    LimiteComposto composto{.comandi = doppio ? RigheDoppie(*CreaElencoFreqLimDSD(limite, dsd))
                                              : RigheSingole(limite),
                            .obiezione = {}};
    composto.comandi.push_back({Impostazione::FineLimite, nomi.limite});
    return composto;
}

ComandoPronto ComponiMargine(float dB) {
    return {Impostazione::Margine, TestoDaNumero(dB)};
}

bool ImpostaLimitiSweep(Ricevitore& r, const AlberoDati& albero, const ScanLine& riga,
                        LimiteRicevitore& ha) {
    const auto nomi = DetImpostazioneLimite(riga, ha);
    if (!nomi)
        return true;
    const LimiteComposto composto = ComponiLimite(albero, *nomi);
    if (!composto.obiezione.testo.empty()) {
        r.ambiente.Mostra(composto.obiezione);
        return false;
    }
    ha.nomi = {};
    if (!InviaInOrdine(r, composto.comandi))
        return false;
    ha.nomi = *nomi;
    return true;
}

bool ImpostaMargineSweep(Ricevitore& r, const ScanLine& riga, LimiteRicevitore& ha) {
    const auto margine = DetImpostazioneMargine(riga, ha);
    if (!margine)
        return true;
    const ComandoPronto comando = ComponiMargine(*margine);
    if (!InviaInOrdine(r, {&comando, 1}))
        return false;
    ha.margine = *margine;
    return true;
}

} // namespace orvane
