// Which spans a receiver can sweep, and how the spans of a table lie to each other.
#include <algorithm>

#include "setup/RegoleScan.h"

namespace orvane {
namespace {

constexpr double kMinimoMhz = 0.00001;
constexpr double kMinimoFrontEndMhz = 0.009;
constexpr double kMassimoRicevitoreMhz = 30;
constexpr double kInizioRadiatoMhz = 30;

// By `UnitaEstensione`. The first one that holds a span is the one that it needs.
constexpr std::array<GammaMhz, 3> kGammeUnita = {{{30, 3000}, {30, 6000}, {6000, 18000}}};

/// The range of a model that switches by itself; its own record stays as it is.
GammaMhz GammaPropria(ReceiverModel modello, bool alta) {
    modello.ModoK3X = alta ? 2 : 1;
    modello.EstensioneAttiva = alta;
    const ModelCaps caps = ImpostaModelCaps(modello)[0];
    return {caps.FMinScan, caps.FMaxScan};
}

GammaMhz GammaDelModello(const ReceiverModel& modello) {
    if (HaCondottoERadiato(modello))
        return GammaPropria(modello, true);
    const bool conUnita = HaUnitaAMano(modello);
    return {kInizioRadiatoMhz, conUnita ? kGammeUnita.back().massimo : kInizioRadiatoMhz};
}

bool InGammaRicevitore(const ReceiverModel& modello, const ScanLine& riga) {
    const double minimo = modello.TipoFrontEnd >= 1 ? kMinimoFrontEndMhz : kMinimoMhz;
    return GammaMhz{minimo, kMassimoRicevitoreMhz}.Contiene(riga.Start, riga.Stop);
}

/// One unit has to sweep the whole of a span.
bool InGammaRadiata(const ReceiverModel& modello, const ScanLine& riga) {
    if (!HaUnitaAMano(modello))
        return GammaRadiata(modello).Contiene(riga.Start, riga.Stop);
    return std::any_of(kGammeUnita.begin(), kGammeUnita.end(), [&](const GammaMhz& gamma) {
        return gamma.Contiene(riga.Start, riga.Stop);
    });
}

struct EsameFrequenze {
    const ContestoControlli& c;
    bool chiede = false;
    bool unaSola = false;
    int stato = -1; ///< the range of the lines so far: negative none, 1 the receiver's, 2 radiated
    Segnalazioni trovate = {};
};

Segnalazione Errore(int codice, const char* testo) {
    return {.riquadro = {.testo = testo, .icona = Icona::Esclamazione}, .codice = codice};
}

Segnalazione SpanErrato() {
    return Errore(kFreqErrata, "Start/Stop Frequency Error");
}

/// Of one line the answer is the result: Retry or Cancel.
Segnalazione UnitaErrata(const EsameFrequenze& e) {
    return {.esito = e.unaSola ? EsitoControllo::Chiede : EsitoControllo::Ferma,
            .riquadro = {.testo = "*** KRV " + NomeModello(e.c.modello, false) +
                                  " Connected ***\r  This span cannot be swept",
                         .icona = Icona::Esclamazione,
                         .pulsanti = e.unaSola ? Pulsanti::RiprovaAnnulla : Pulsanti::Ok},
            .codice = kFreqErrata};
}

constexpr std::initializer_list<ColonnaScan> kStart = {ColonnaScan::Start};
constexpr std::initializer_list<ColonnaScan> kStop = {ColonnaScan::Stop};
constexpr std::initializer_list<ColonnaScan> kEntrambe = {ColonnaScan::Start, ColonnaScan::Stop};

void Aggiungi(EsameFrequenze& e, size_t riga, std::initializer_list<ColonnaScan> colonne,
              const Segnalazione& errore) {
    auto qui = std::find_if(e.trovate.begin(), e.trovate.end(), [&](const Segnalazione& una) {
        return una.codice == errore.codice && una.riquadro.testo == errore.riquadro.testo;
    });
    if (qui == e.trovate.end())
        qui = e.trovate.insert(qui, errore);
    for (const ColonnaScan colonna : colonne)
        qui->celle.push_back({riga, colonna});
}

/// Lines of one table belong to one range, as long as the user has to switch between them.
void ConfrontaStato(EsameFrequenze& e, size_t indice, int gamma) {
    if (e.stato >= 0 && e.stato != gamma && e.chiede && HaUnitaAMano(e.c.modello))
        Aggiungi(e, indice, kEntrambe, SpanErrato());
    e.stato = gamma;
}

void EsaminaCondotto(EsameFrequenze& e, size_t indice) {
    const ReceiverModel& m = e.c.modello;
    if (m.Is3360 && e.c.tabella[indice].Start < GammaPropria(m, false).minimo)
        Aggiungi(e, indice, kStart, Errore(kFreqFuoriGamma, "Start Frequency Error"));
    if (e.chiede && HaUnitaAMano(m) && m.EstensioneAttiva)
        Aggiungi(e, indice, kEntrambe, UnitaErrata(e));
    ConfrontaStato(e, indice, 1);
}

void EsaminaRadiato(EsameFrequenze& e, size_t indice) {
    const ReceiverModel& m = e.c.modello;
    const ScanLine& riga = e.c.tabella[indice];
    const bool aMano = e.chiede && HaUnitaAMano(m);
    const auto unita = static_cast<size_t>(std::clamp<int>(m.UnitaEstensione, 0, 2));
    const bool fuori = e.unaSola && !kGammeUnita[unita].Contiene(riga.Start, riga.Stop);
    if (aMano && (!m.EstensioneAttiva || fuori))
        Aggiungi(e, indice, kEntrambe, UnitaErrata(e));
    ConfrontaStato(e, indice, 2);
}

void EsaminaFuoriGamma(EsameFrequenze& e, size_t indice) {
    if (!e.c.modello.Is3360) {
        e.stato = -1;
        Aggiungi(e, indice, kEntrambe, SpanErrato());
        return;
    }
    const GammaMhz gamma = GammaRadiata(e.c.modello);
    const bool sotto = e.c.tabella[indice].Start < gamma.minimo;
    const bool sopra = e.c.tabella[indice].Stop > gamma.massimo;
    if (sotto && sopra)
        Aggiungi(e, indice, kEntrambe, Errore(kFreqFuoriGamma, "Start/Stop Frequency Error"));
    else if (sotto)
        Aggiungi(e, indice, kStart, Errore(kFreqFuoriGamma, "Start Frequency Error"));
    else
        Aggiungi(e, indice, kStop, Errore(kFreqFuoriGamma, "Stop Frequency Error"));
}

void EsaminaRiga(EsameFrequenze& e, size_t indice) {
    const ScanLine& riga = e.c.tabella[indice];
    if (!(riga.Start < riga.Stop))
        Aggiungi(e, indice, kEntrambe, SpanErrato());
    else if (InGammaRicevitore(e.c.modello, riga))
        EsaminaCondotto(e, indice);
    else if (InGammaRadiata(e.c.modello, riga))
        EsaminaRadiato(e, indice);
    else
        EsaminaFuoriGamma(e, indice);
}

bool SiSovrappone(const ScanTable& tabella, size_t j) {
    for (size_t i = 0; i < tabella.size(); ++i)
        if (i != j && tabella[i].Start != 0 && tabella[j].Start < tabella[i].Stop &&
            tabella[j].Stop > tabella[i].Start)
            return true;
    return false;
}

} // namespace

bool HaUnitaAMano(const ReceiverModel& modello) {
    return !HaCondottoERadiato(modello) && modello.TipoFrontEnd == 0;
}

GammaMhz GammaRadiata(const ReceiverModel& modello) {
    GammaMhz gamma = GammaDelModello(modello);
    if (modello.FMinLink != -1)
        gamma.minimo = modello.FMinLink;
    if (modello.FMaxLink != -1)
        gamma.massimo = modello.FMaxLink;
    return gamma;
}

Segnalazioni ControllaCondRadScanTab(const ContestoControlli& c) {
    if (HaCondottoERadiato(c.modello))
        return {};
    const double confine = GammaRadiata(c.modello).minimo;
    size_t righe = 0;
    size_t condotte = 0;
    size_t radiate = 0;
    for (const ScanLine& riga : c.tabella) {
        if (riga.Start == 0)
            continue;
        ++righe;
        if (riga.Start <= confine && riga.Stop <= confine)
            ++condotte;
        else if (riga.Start >= confine && riga.Stop >= confine)
            ++radiate;
    }
    if (condotte == righe || radiate == righe)
        return {};
    return {{.esito = EsitoControllo::Chiede,
             .riquadro = {.testo = "Scan tab with range conducted and range radiated; Proceed "
                                   "anyway?",
                          .icona = Icona::Domanda,
                          .pulsanti = Pulsanti::SiNo}}};
}

Segnalazioni ControllaFstartFstopScanTab(const ContestoControlli& c, bool chiede, size_t prima,
                                         size_t ultima) {
    EsameFrequenze e{.c = c, .chiede = chiede, .unaSola = prima == ultima};
    for (size_t i = prima; i <= ultima && i < c.tabella.size(); ++i)
        if (c.tabella[i].Start != 0)
            EsaminaRiga(e, i);
    return e.trovate;
}

Segnalazioni ControllaSovrapposizioniFreq(const ContestoControlli& c) {
    Segnalazione trovata{
        .esito = EsitoControllo::Chiede,
        .riquadro = {.testo = "Warning: Overlapping frequencies.\rDo you want to continue?",
                     .icona = Icona::Domanda,
                     .pulsanti = Pulsanti::SiNo}};
    for (size_t j = 0; j < c.tabella.size(); ++j)
        if (c.tabella[j].Start != 0 && SiSovrappone(c.tabella, j))
            for (const ColonnaScan colonna : kEntrambe)
                trovata.celle.push_back({j, colonna});
    return trovata.celle.empty() ? Segnalazioni{} : Segnalazioni{trovata};
}

} // namespace orvane
