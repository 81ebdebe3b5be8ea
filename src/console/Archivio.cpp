#include "console/Archivio.h"

#include <algorithm>
#include <tuple>

#include "base/Numeri.h"
#include "base/Percorsi.h"
#include "console/CambioUnita.h"
#include "data/Cartelle.h"
#include "data/NomiDisco.h"
#include "data/Panels.h"
#include "graph/Confronto.h"

namespace orvane {
namespace {

/// What a viewer has set for himself and no measure changes.
constexpr auto kCampiVista = std::tuple{
    &SetupRecord::LimitOn, &SetupRecord::GraphStart, &SetupRecord::GraphStop,
    &SetupRecord::GraphFlag, &SetupRecord::ScaleAn, &SetupRecord::Coupled, &SetupRecord::MaxHold,
    &SetupRecord::KeepTrace, &SetupRecord::ParAn,
    // Manual
    &SetupRecord::FreqMa, &SetupRecord::SpanMa, &SetupRecord::VolumeMa, &SetupRecord::ParMa1,
    &SetupRecord::ManualOld, &SetupRecord::HoldTimeMa, &SetupRecord::MaxHoldMa,
    &SetupRecord::MaxHoldInf, &SetupRecord::ParMa2, &SetupRecord::ManualLevel,
    // front end
    &SetupRecord::BWIFText, &SetupRecord::BWIFId, &SetupRecord::MinAtt, &SetupRecord::Attenuator,
    &SetupRecord::PreSel, &SetupRecord::PreAmp, &SetupRecord::DinamicaId, &SetupRecord::RefLevel,
    &SetupRecord::UnitId,
    // the flags from `OverwriteWarning` on
    &SetupRecord::OverwriteWarning, &SetupRecord::OrderForDate, &SetupRecord::SymbolOnPeaks,
    &SetupRecord::TableUnitId, &SetupRecord::GX2207FFTSwept, &SetupRecord::CheckSweepArchiveSize,
    &SetupRecord::ZoomModeA, &SetupRecord::ZoomModeB, &SetupRecord::AutoReportMode,
    &SetupRecord::MeasUncertainty, &SetupRecord::VerdictDetector,
    // Sub Range
    &SetupRecord::Riserva3826};

/// The measure's set-up behind the viewer's own fields; without one, the operator's.
void ImpostaSetup(Scrivania& s, const SetupRecord& base) {
    SetupRecord nuovo = base;
    CopiaCampiVista(s.setup, nuovo);
    s.setup = std::move(nuovo);
}

/// Without a box where it cannot be written: an archive that is only to be read would show one at
/// each measure.
void ImpostaSweepPath(Scrivania& s, const std::string& percorso) {
    if (s.env.SweepPath == percorso)
        return;
    s.env.SweepPath = percorso;
    s.albero.AssicuraCartella(cartella::kPanels);
    s.albero.Salva(kPannelloEPN, ScriviRecord(s.env));
}

void Svuota(Scrivania& s, StatoArchivio& a) {
    a.misura = {};
    a.contesto = {};
    a.albero.clear();
    a.nodo = 0;
    a.ViewWorstMode = 0;
    TogliRiferimento(a);
    ImpostaSetup(s, a.SetupBackup);
}

/// What is shown first: the measure itself, of a Mast-Table measure its final trace.
size_t PrimoNodo(const std::vector<NodoSubMisura>& albero) {
    const auto finale = std::ranges::find_if(
        albero, [](const NodoSubMisura& n) { return n.file == submisura::kMisura; });
    const auto primo =
        finale != albero.end()
            ? finale
            : std::ranges::find_if(albero, [](const NodoSubMisura& n) { return !n.gruppo; });
    return primo == albero.end() ? 0 : static_cast<size_t>(primo - albero.begin());
}

/// The node's files become the ones on show; the trace is not read.
void ScegliNodo(StatoArchivio& a, size_t nodo) {
    a.nodo = nodo;
    const FileDaNodo file = NomeFileDaNodo(a.contesto, a.albero[nodo]);
    a.misura.base = file.base;
    a.misura.vista = file.vista;
}

void ApriLeggibile(Scrivania& s, StatoArchivio& a) {
    ImpostaSetup(s, a.misura.header.Setup);
    a.ViewWorstMode = a.misura.header.Scan.WorstMode;
    if (a.detector >= 0 && !a.misura.detector[static_cast<size_t>(a.detector)])
        a.detector = kTuttiDetector;
    if (a.riferimento && !Comparabili(a.misura.header.Scan, a.riferimento->header.Scan))
        TogliRiferimento(a);
    TogliSovrapposta(a, a.misura.nome);
    CaricaTabelleMisura(s, a.misura.nome, s.setup, a.misura.tabelle);
    a.contesto = LeggiContestoNodi(s, a.misura.nome, a.misura.header.Setup.InsLossOn != 0);
    a.albero = CreaAlberoSubMisure(a.contesto);
    if (a.albero.empty())
        return;
    ScegliNodo(a, PrimoNodo(a.albero));
    CaricaTracceArchivio(s, a);
}

void Apri(Scrivania& s, StatoArchivio& a, const std::string& nome) {
    MisuraAperta misura = ApriIntestazione(s, nome);
    if (!misura.leggibile)
        Svuota(s, a);
    a.misura = std::move(misura);
    if (a.misura.leggibile)
        ApriLeggibile(s, a);
    ImpostaSweepPath(s, PercorsoKSH(nome));
}

bool HaHeader(const Scrivania& s, const std::string& nome) {
    return s.albero.Esiste(TrovaKSH(s.albero, nome));
}

/// Where a measure without header leads: onwards in the direction in which the list was walked,
/// else back.
std::string ProssimaConHeader(const Scrivania& s, const StatoArchivio& a, const std::string& nome) {
    const auto posto = [&](const std::string& quale) {
        return std::ranges::find_if(
                   a.elenco,
                   [&](const std::string& n) { return ChiaveNome(n) == ChiaveNome(quale); }) -
               a.elenco.begin();
    };
    const auto quanti = static_cast<long>(a.elenco.size());
    const long qui = posto(nome) < quanti ? posto(nome) : -1;
    const long da = posto(a.misura.nome);
    const int verso = da < quanti && da > qui ? -1 : 1;
    for (const int passo : {verso, -verso})
        for (long i = qui + passo; i >= 0 && i < quanti; i += passo)
            if (HaHeader(s, a.elenco[static_cast<size_t>(i)]))
                return a.elenco[static_cast<size_t>(i)];
    return {};
}

} // namespace

void CopiaCampiVista(const SetupRecord& da, SetupRecord& a) {
    std::apply([&](auto... campo) { ((a.*campo = da.*campo), ...); }, kCampiVista);
}

void AttivaSweepsArchive(Scrivania& s, StatoArchivio& a) {
    if (!a.attivo)
        a.SetupBackup = s.setup;
    a.attivo = true;
    s.NoSaveSetup = true;
    ElencaArchivio(s, a);
    if (a.elenco.empty()) {
        Svuota(s, a);
        return ImpostaSweepPath(s, "Untitled.EST");
    }
    const std::string ultima = EstraiNomeFile(s.env.SweepPath);
    const auto trovata = std::ranges::find_if(
        a.elenco, [&](const std::string& n) { return ChiaveNome(n) == ChiaveNome(ultima); });
    VisualizzaDatiSweepata(s, a, trovata == a.elenco.end() ? a.elenco.front() : *trovata);
}

void LasciaSweepsArchive(Scrivania& s, StatoArchivio& a) {
    if (!a.attivo)
        return;
    s.setup = a.SetupBackup;
    s.NoSaveSetup = false;
    a = {};
    SalvaPanelEAM(s, kPannelloEAM);
}

EsitoMostra VisualizzaDatiSweepata(Scrivania& s, StatoArchivio& a, const std::string& nome) {
    if (!a.attivo)
        return {};
    EsitoMostra esito{.mostrata = nome};
    if (!nome.empty() && !HaHeader(s, nome)) {
        esito.mostrata = ProssimaConHeader(s, a, nome);
        ElencaArchivio(s, a);
        esito.elencoCambiato = true;
    }
    if (esito.mostrata.empty())
        Svuota(s, a);
    else
        Apri(s, a, esito.mostrata);
    if (a.elenco.empty())
        ImpostaSweepPath(s, "Untitled.EST");
    return esito;
}

EsitoMostra RinnovaArchivio(Scrivania& s, StatoArchivio& a) {
    // By the list as it was: it alone tells what stood beside a measure that is gone.
    if (a.attivo && !a.misura.nome.empty() && !HaHeader(s, a.misura.nome))
        return VisualizzaDatiSweepata(s, a, a.misura.nome);
    if (a.attivo)
        ElencaArchivio(s, a);
    return {.mostrata = a.misura.nome, .elencoCambiato = a.attivo};
}

bool ClickTreeViewFileSweep(Scrivania& s, StatoArchivio& a, size_t nodo) {
    if (!a.Mostrata() || nodo >= a.albero.size() || a.albero[nodo].gruppo)
        return false;
    ScegliNodo(a, nodo);
    CaricaTracceArchivio(s, a);
    return true;
}

bool CambiaUnitaArchivio(Scrivania& s, StatoArchivio& a, int unitId) {
    if (!CambiaUnita(s, unitId))
        return false;
    if (a.Mostrata())
        CaricaTracceArchivio(s, a);
    return true;
}

void RinnovaTabelle(Scrivania& s, StatoArchivio& a) {
    if (!a.Mostrata())
        return;
    CaricaTabelleMisura(s, a.misura.nome, s.setup, a.misura.tabelle);
    CaricaTracceArchivio(s, a);
}

std::string TitoloArchivio(const StatoArchivio& a) {
    if (a.misura.nome.empty())
        return {};
    const SetupRecord& setup = a.misura.header.Setup;
    std::string titolo = a.misura.nome;
    if (a.misura.leggibile && setup.InsLossOn != 0)
        titolo += setup.InsLossRef > 0
                      ? "  Insertion Loss (Tolerance: " + TestoDaNumero(setup.InsLossRef) + " dB)"
                      : "  Insertion Loss";
    if (a.nodo >= a.albero.size() || a.albero[a.nodo].testo == a.misura.nome)
        return titolo;
    const NodoSubMisura& nodo = a.albero[a.nodo];
    const auto worst = NumeroWorst(nodo);
    if (!worst)
        return titolo + "  " + nodo.testo;
    const std::string prefisso = NomeSubMisuraEsteso(nodo.prefisso, a.contesto.priorita);
    return titolo + (prefisso.empty() ? "" : "  " + prefisso) +
           TitoloWorst(a.ViewWorstMode, *worst);
}

AbilitazioniArchivio ControllaAbilitazioniArchivio(const StatoArchivio& a) {
    const bool si = a.Mostrata();
    const bool fisso =
        a.misura.vista == ViewMode::MastTable && std::ranges::count(a.misura.detector, true) < 2;
    const bool scelta = si && a.misura.vista != ViewMode::Inviluppo && !fisso;
    return {.CHKShowHighestPeaks = si,
            .MNUMakeTabFreq = si,
            .MNUMakeTabSubRange = si,
            .MNUSymbolOnPeaks = si,
            .FRMMultiMarker = si,
            .TBNumOFPeaks = si,
            .CMBFileTable = scelta,
            .CBXDetectorMeasSweep = scelta,
            .CHKLock = si};
}

} // namespace orvane
