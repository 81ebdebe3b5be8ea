#include "link/ImpLocali.h"

#include <algorithm>
#include <array>

#include "link/Comandi.h"
#include "link/Dinamica.h"
#include "link/ElencoAtt.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

bool Manual(Modalita modalita) {
    return modalita == Modalita::Manual;
}

int16_t Flag(bool acceso) {
    return acceso ? 1 : 0;
}

CasoFiltri CasoDi(const ComuniVivi& c, Modalita modalita) {
    return {.modalita = modalita, .rigaComando = c.r.ambiente.RigaComando()};
}

RegoleComuni RegoleDi(const ComuniVivi& c, Modalita modalita) {
    return DeterminaRegoleComuni(c.setup, c.r.modello,
                                 {.scheda = modalita, .filtri = CasoDi(c, modalita)});
}

bool Abbandonata(const ComuniVivi& c) {
    return c.r.stato.AbbandonaComandi;
}

void InviaDinamica(ComuniVivi& c) {
    const Dinamica d = CalcolaDinamica(c.r.modello, c.setup);
    ImpostaDinamica(c.r, d.dinamica, d.riferimento);
}

/// The generator of a front-end: off, or by the input in use.
int ModoTrackingGX2207(const SetupRecord& setup) {
    if (setup.RFOut == 0)
        return 0;
    return setup.AltaImpedenza != 0 ? 1 : 2;
}

void InviaRFOut(ComuniVivi& c) {
    ImpostaRFOut(c.r, c.setup.RFOut != 0);
    if (c.r.modello.TipoFrontEnd >= 1)
        ImpostaTrackingGX2207(c.r, ModoTrackingGX2207(c.setup));
}

/// What follows from a generator that is there.
void InviaGeneratore(ComuniVivi& c, void (*invia)(ComuniVivi&)) {
    if (!Abbandonata(c) && HaGeneratore(c.r.modello))
        invia(c);
}

void InviaLivello(ComuniVivi& c) {
    ImpostaLivelloTG(c.r, c.setup.TGLevel);
}
void InviaTracking(ComuniVivi& c) {
    ImpostaTracking(c.r, c.setup.TGOn != 0);
}
void InviaTGFrequenza(ComuniVivi& c) {
    ImpostaFrequenzaTG(c.r, c.setup.TGFreq);
}

void InviaGruppoGeneratore(ComuniVivi& c) {
    InviaRFOut(c);
    for (const auto invia : {InviaLivello, InviaTGFrequenza, InviaTracking})
        InviaGeneratore(c, invia);
}

/// Line switch, then the input of a front-end.
void InviaIngresso(ComuniVivi& c) {
    c.vista.InviaLineSwitch();
    if (c.r.modello.TipoFrontEnd == 0 || Abbandonata(c))
        return;
    ImpostaIngressoGX2207(c.r, c.setup.AltaImpedenza != 0);
    if (!Abbandonata(c))
        ImpostaFiltroGX2207(c.r, c.setup.FiltroHP150 != 0);
}

void InviaFrequenza(ComuniVivi& c, Modalita modalita) {
    if (Manual(modalita))
        ImpostaFrequenzaMa(c.r, c.setup.FreqMa);
    else
        ImpostaFrequenzaAn(c.r, c.setup.GraphStart, c.setup.GraphStop);
}

void InviaAtt(ComuniVivi& c, Modalita modalita) {
    const int dB = c.setup.Attenuator;
    Manual(modalita) ? ImpostaAttMa(c.r, dB) : ImpostaAttAn(c.r, dB);
}

void InviaPresel(ComuniVivi& c, Modalita modalita) {
    const bool acceso = c.setup.PreSel != 0;
    Manual(modalita) ? ImpostaPreselMa(c.r, acceso) : ImpostaPreselAn(c.r, acceso);
}

void InviaPreAmp(ComuniVivi& c, Modalita modalita) {
    const bool acceso = c.setup.PreAmp != 0;
    Manual(modalita) ? ImpostaPreAmpMa(c.r, acceso) : ImpostaPreAmpAn(c.r, acceso);
}

int MinAttInUso(const SetupRecord& setup) {
    const int ultima = static_cast<int>(kMinAttDb.size()) - 1;
    return kMinAttDb[static_cast<size_t>(std::clamp<int>(setup.MinAtt, 0, ultima))];
}

void RileggiFiltro(ComuniVivi& c, ListaFiltri filtri, Modalita modalita) {
    const auto inUso = Abbandonata(c) ? std::nullopt : LeggiFiltro(c.r);
    if (!inUso)
        return MostraErrore(c.r, "---", false);
    if (const auto filtro = MostraFiltroInUso(filtri, *inUso, modalita))
        c.vista.MostraFiltro(*filtro);
}

void InviaFiltro(ComuniVivi& c, Modalita modalita) {
    const RegoleComuni regole = RegoleDi(c, modalita);
    ImpostaBWIF(c.r, regole.filtri[regole.rigaFiltro].id);
    RileggiFiltro(c, regole.filtri, modalita);
}

// What a model has switched off is not sent: it would refuse, and the setter would go on trying.
constexpr VoceInvio kOrdine[] = {
    {ParComune::LineSwitch, [](ComuniVivi& c, Modalita) { InviaIngresso(c); }},
    {ParComune::Frequenza, InviaFrequenza},
    {ParComune::BWIF, InviaFiltro},
    {ParComune::Attenuatore, InviaAtt},
    {ParComune::MinAtt, [](ComuniVivi& c, Modalita) { ImpostaMinAtt(c.r, MinAttInUso(c.setup)); }},
    {ParComune::Dinamica, [](ComuniVivi& c, Modalita) { InviaDinamica(c); }},
    {ParComune::Presel,
     [](ComuniVivi& c, Modalita m) {
         if (RegoleDi(c, m).preselettore.abilitato)
             InviaPresel(c, m);
     }},
    {ParComune::PreAmp,
     [](ComuniVivi& c, Modalita m) {
         if (RegoleDi(c, m).preAmp.abilitato)
             InviaPreAmp(c, m);
     }},
    {ParComune::PulseLim,
     [](ComuniVivi& c, Modalita m) {
         if (RegoleDi(c, m).pulseLimiter.abilitato)
             ImpostaPulseLim(c.r, c.setup.PulseLim != 0);
     }},
    {ParComune::RFOut, [](ComuniVivi& c, Modalita) { InviaGruppoGeneratore(c); }},
};

void LimitaFrequenze(ComuniVivi& c, Modalita modalita) {
    SetupRecord& setup = c.setup;
    if (Manual(modalita)) {
        const auto mhz = DeterminaLimFreqMaK3X3360(c, setup.FreqMa);
        setup.FreqMa = mhz.value_or(setup.FreqMa);
        return;
    }
    const auto campo = DeterminaLimFStartFStopAnK3X(c, {setup.GraphStart, setup.GraphStop});
    setup.GraphStart = campo ? campo->startMhz : setup.GraphStart;
    setup.GraphStop = campo ? campo->stopMhz : setup.GraphStop;
}

} // namespace

void ImpLocaliBWIF(ComuniVivi& c, Modalita modalita, size_t riga) {
    const ListaFiltri filtri = ElencoBW(c.r.modello, CasoDi(c, modalita));
    riga = std::min(riga, filtri.size() - 1);
    c.setup.BWIFId = static_cast<int16_t>(riga);
    c.setup.BWIFText = filtri[riga].nome;
    ImpostaBWIF(c.r, filtri[riga].id);
    RileggiFiltro(c, filtri, modalita);
}

void ImpLocaliAtt(ComuniVivi& c, Modalita modalita, int dB) {
    c.setup.Attenuator = static_cast<int16_t>(dB);
    InviaAtt(c, modalita);
    c.vista.RidisegnaScala();
}

void ImpLocaliPresel(ComuniVivi& c, Modalita modalita, bool acceso) {
    c.setup.PreSel = Flag(acceso);
    InviaPresel(c, modalita);
    c.vista.MostraComuni();
}

void ImpLocaliPreAmp(ComuniVivi& c, Modalita modalita, bool acceso) {
    c.setup.PreAmp = Flag(acceso);
    InviaPreAmp(c, modalita);
    c.vista.MostraComuni();
}

void ImpLocaliMinAttAn(ComuniVivi& c, int riga) {
    c.setup.MinAtt = static_cast<int16_t>(riga);
    ImpostaMinAtt(c.r, MinAttInUso(c.setup));
    c.vista.MostraComuni();
}

void ImpLocaliRLDynAn(ComuniVivi& c, int dinamicaId, int refLevel) {
    c.setup.DinamicaId = static_cast<int16_t>(dinamicaId);
    c.setup.RefLevel = static_cast<int16_t>(refLevel);
    InviaDinamica(c);
    c.vista.RidisegnaScala();
}

void SetDinRefLevPAPLAn(ComuniVivi& c) {
    InviaDinamica(c);
}

void ImpLocaliPulseLimAn(ComuniVivi& c, bool acceso) {
    c.setup.PulseLim = Flag(acceso);
    ImpostaPulseLim(c.r, acceso);
    c.vista.MostraComuni();
}

void ImpLocaliRFOutAn(ComuniVivi& c, bool acceso) {
    c.setup.RFOut = Flag(acceso);
    InviaRFOut(c);
    c.vista.MostraComuni();
}

void ImpLocaliLivelloAn(ComuniVivi& c, double livello) {
    c.setup.TGLevel = livello;
    InviaGeneratore(c, InviaLivello);
    c.vista.MostraComuni();
}

void ImpLocaliTrackingAn(ComuniVivi& c, bool acceso) {
    c.setup.TGOn = Flag(acceso);
    InviaGeneratore(c, InviaTracking);
    c.vista.MostraComuni();
}

void ImpLocaliTGFreqenzaAn(ComuniVivi& c, double mhz) {
    c.setup.TGFreq = mhz;
    InviaGeneratore(c, InviaTGFrequenza);
    c.vista.MostraComuni();
}

void ImpLocaliAntennaGX2207An(ComuniVivi& c, bool antenna, bool altaImpedenza) {
    c.setup.AntennaGX2207 = Flag(antenna);
    c.setup.AltaImpedenza = Flag(altaImpedenza);
    ImpostaIngressoGX2207(c.r, altaImpedenza);
    c.vista.MostraComuni();
}

void ImpLocaliFiltroGX2207An(ComuniVivi& c, bool acceso) {
    c.setup.FiltroHP150 = Flag(acceso);
    ImpostaFiltroGX2207(c.r, acceso);
    c.vista.MostraComuni();
}

void ImpLocaliFreqStartStopAn(ComuniVivi& c, const CampoFrequenza& voluto) {
    const auto campo = DeterminaLimFStartFStopAnK3X(c, voluto);
    if (campo) {
        c.setup.GraphStart = campo->startMhz;
        c.setup.GraphStop = campo->stopMhz;
        ImpostaFrequenzaAn(c.r, campo->startMhz, campo->stopMhz);
    }
    c.vista.RidisegnaScala();
}

void ImpLocaliFrequenzaMa(ComuniVivi& c, double mhz) {
    const auto limitata = DeterminaLimFreqMaK3X3360(c, mhz);
    if (limitata) {
        c.setup.FreqMa = *limitata;
        ImpostaFrequenzaMa(c.r, *limitata);
    }
    c.vista.MostraComuni();
}

void ControllaPreSelAn(ComuniVivi& c) {
    const ReceiverModel& m = c.r.modello;
    const bool fisso = m.EstensioneAttiva && m.UnitaEstensione == 2;
    if (HaCondottoERadiato(m) || fisso || m.TipoFrontEnd >= 1)
        return;
    const std::string stato = LeggiPreselettore(c.r);
    if (!stato.empty())
        c.setup.PreSel = Flag(stato != "OFF");
}

RegoleComuni ControllaParComuni(ComuniVivi& c, const CasoComuni& caso) {
    ControllaPreSelAn(c);
    if (!Abbandonata(c))
        LimitaFrequenze(c, caso.filtri.modalita);
    const RegoleComuni regole = ControllaParComuni(c.setup, c.r.modello, caso);
    c.vista.MostraComuni();
    return regole;
}

std::span<const VoceInvio> OrdineInvio() {
    return kOrdine;
}

void InviaParComuni(ComuniVivi& c, Modalita modalita) {
    for (const VoceInvio& voce : kOrdine)
        if (!Abbandonata(c))
            voce.invia(c, modalita);
}

} // namespace orvane
