#include "setup/PreVolo.h"

#include "data/Panels.h"
#include "link/Comandi.h"
#include "link/Identificazione.h"
#include "link/Interrogazioni.h"
#include "setup/CatenaControlli.h"

namespace orvane {
namespace {

constexpr int kMastTable = 5;

int RunKindDi(int chiesto, const SetupRecord& setup) {
    return chiesto == 0 && AncillaryDi(setup) == kMastTable ? kConMastTable : chiesto;
}

ContestoControlli ContestoDi(const PreVolo& p) {
    return {.tabella = p.scan.Righe,
            .modello = p.ricevitore.modello,
            .caps = p.ricevitore.caps,
            .setup = p.scrivania.setup,
            .albero = p.scrivania.albero,
            .rigaComando = p.ricevitore.ambiente.RigaComando(),
            .runKind = RunKindDi(p.runKind, p.scrivania.setup)};
}

void CancellaSegni(PreVolo& p) {
    for (int riga = 0; riga < static_cast<int>(kMaxScanLine); ++riga)
        for (int colonna = 0; colonna < static_cast<int>(ColonnaScan::NumColonne); ++colonna)
            p.vista.EvidenziaCella(riga, static_cast<ColonnaScan>(colonna), false);
}

bool Ripara(const VoceControllo& voce, const Segnalazione& s, ScanTable& tabella,
            SetupRecord& setup) {
    if (voce.correggi)
        voce.correggi(tabella, setup, s);
    if (voce.correggiSetup)
        voce.correggiSetup(setup);
    return voce.correggi || voce.correggiSetup;
}

/// A repair of the table that was told is stored at once; what nobody is told of follows from the
/// table as the user wrote it.
void RiparaESalva(PreVolo& p, const VoceControllo& voce, const Segnalazione& s) {
    Scrivania& scrivania = p.scrivania;
    if (!Ripara(voce, s, p.scan.Righe, scrivania.setup))
        return;
    if (voce.correggi && !s.riquadro.testo.empty())
        SalvaPanelEST(scrivania, scrivania.env.ScanPanelPath, p.scan);
    if (voce.correggiSetup)
        SalvaPanelEAM(scrivania, kPannelloEAM);
    p.vista.AggiornaGriglia();
}

bool Positiva(Risposta risposta) {
    return risposta == Risposta::Si || risposta == Risposta::Ok;
}

/// Marks, tells or asks, repairs. False: the run stops here.
bool Applica(PreVolo& p, const VoceControllo& voce, const Segnalazione& s) {
    for (const CellaErrata& cella : s.celle)
        p.vista.EvidenziaCella(static_cast<int>(cella.riga), cella.colonna, true);
    const bool positiva =
        s.riquadro.testo.empty() || Positiva(p.ricevitore.ambiente.Mostra(s.riquadro));
    if (s.esito == EsitoControllo::Ferma)
        return false;
    if (s.esito == EsitoControllo::Chiede && !positiva)
        return s.noProsegue;
    RiparaESalva(p, voce, s);
    return true;
}

/// All that makes the check stop is shown; behind a No nothing more is asked.
bool Esamina(PreVolo& p, const VoceControllo& voce) {
    bool bene = true;
    for (const Segnalazione& s : voce.esamina(ContestoDi(p))) {
        if (Applica(p, voce, s))
            continue;
        bene = false;
        if (s.esito == EsitoControllo::Chiede)
            break;
    }
    return bene;
}

bool Esegui(PreVolo& p, const VoceControllo& voce) {
    const bool bene = voce.agisci ? voce.agisci(p) : Esamina(p, voce);
    return bene && !p.ricevitore.stato.AbbandonaComandi;
}

std::vector<Riscontro> EsaminaECorreggi(const ContestoControlli& contesto, const Rispondi& rispondi,
                                        ScanCorretto& copia) {
    const ContestoControlli c{.tabella = copia.tabella,
                              .modello = contesto.modello,
                              .caps = contesto.caps,
                              .setup = copia.setup,
                              .albero = contesto.albero,
                              .rigaComando = contesto.rigaComando,
                              .runKind = RunKindDi(contesto.runKind, copia.setup)};
    std::vector<Riscontro> riscontri;
    for (const VoceControllo& voce : CatenaControlli()) {
        if (!voce.esamina)
            continue;
        for (Segnalazione& s : voce.esamina(c)) {
            Riscontro trovato{voce.numero, voce.nome, voce.motivo, std::move(s)};
            const Segnalazione& cosa = trovato.segnalazione;
            if (cosa.esito == EsitoControllo::Chiede && rispondi)
                trovato.risposta = rispondi(cosa);
            if (cosa.esito == EsitoControllo::Corregge || trovato.risposta == true)
                trovato.corretto = Ripara(voce, cosa, copia.tabella, copia.setup);
            riscontri.push_back(std::move(trovato));
        }
    }
    return riscontri;
}

} // namespace

bool RiconosciRicevitore(Ricevitore& r, std::string& motivo) {
    if (!r.porta.ApriPorta(true)) {
        motivo = r.porta.link.motivo;
        return false;
    }
    AbortSweep(r);
    if (r.stato.AbbandonaComandi)
        return false;
    // Freshly: the operator may have swapped units since the last run.
    LeggiModello(r, Modalita::Sweep, 1);
    if (!r.stato.AbbandonaComandi)
        r.modello.SerialNumber = LeggiSerialNumber(r);
    return !r.stato.AbbandonaComandi;
}

bool ControlliSweep(PreVolo& p) {
    CancellaSegni(p);
    if (!RiconosciRicevitore(p.ricevitore, p.motivo))
        return false;
    p.vista.MostraModello();
    for (const VoceControllo& voce : CatenaControlli()) {
        if (!Esegui(p, voce)) {
            p.motivo = "refused: " + std::string(voce.motivo);
            return false;
        }
    }
    return true;
}

bool Rifiuta(const Riscontro& riscontro) {
    const Segnalazione& s = riscontro.segnalazione;
    return s.esito == EsitoControllo::Ferma ||
           (s.esito == EsitoControllo::Chiede && riscontro.risposta == false && !s.noProsegue);
}

std::vector<Riscontro> EsaminaScan(const ContestoControlli& contesto, const Rispondi& rispondi) {
    ScanCorretto copia{contesto.tabella, contesto.setup};
    return EsaminaECorreggi(contesto, rispondi, copia);
}

ScanCorretto CorreggiScan(const ContestoControlli& contesto, const Rispondi& rispondi) {
    ScanCorretto copia{contesto.tabella, contesto.setup};
    EsaminaECorreggi(contesto, rispondi, copia);
    return copia;
}

} // namespace orvane
