// The traces that the archive has on show: of a sub-measure, an envelope, a reference, others laid
// over.
#include <algorithm>

#include "console/Archivio.h"
#include "data/Inviluppo.h"
#include "data/NomiDisco.h"
#include "graph/Confronto.h"

namespace orvane {
namespace {

DetectorKind DetectorInviluppo(const MisuraAperta& misura, std::optional<DetectorKind> scelto) {
    const auto primo = std::ranges::find(misura.detector, true);
    const auto indice = primo == misura.detector.end() ? 0 : primo - misura.detector.begin();
    return scelto.value_or(static_cast<DetectorKind>(indice));
}

/// The trace of `base`, from its files, or made from the others where it is an envelope that no
/// file holds.
void CaricaTracciaNodo(Scrivania& s, MisuraAperta& misura, const ContestoNodi& contesto,
                       const SetupRecord& setup, std::optional<DetectorKind> detector) {
    if (misura.vista == ViewMode::Inviluppo && !contesto.Ha(submisura::kInviluppo))
        CaricaInviluppo(s, misura, setup, PosizioniMastTable(contesto), detector);
    else if (misura.base == kBaseInviluppo && !contesto.Ha(kBaseInviluppo))
        CaricaInviluppo(s, misura, setup, PassateDellaMisura(contesto), detector);
    else
        CaricaTracciaMisura(s, misura, setup, detector);
}

/// The envelope of the positions is kept in the measure; where it cannot be, after the box, it is
/// shown all the same.
void ConservaInviluppo(Scrivania& s, StatoArchivio& a) {
    if (a.misura.vista != ViewMode::Inviluppo || a.contesto.Ha(submisura::kInviluppo))
        return;
    const auto posizioni = PosizioniMastTable(a.contesto);
    if (SalvaInviluppoPosizioni(s, a.misura.nome, posizioni,
                                DetectorInviluppo(a.misura, a.DetectorScelto())))
        a.contesto = LeggiContestoNodi(s, a.misura.nome, a.contesto.insertionLoss);
}

/// The reference shows the sub-measure that bears the title of the chosen one; its own trace where
/// it has none.
void CaricaRiferimento(Scrivania& s, StatoArchivio& a) {
    MisuraAperta& misura = *a.riferimento;
    const ContestoNodi contesto =
        LeggiContestoNodi(s, misura.nome, misura.header.Setup.InsLossOn != 0);
    misura.base = misura.nome;
    misura.vista = ViewMode::Normale;
    const bool propria = a.nodo >= a.albero.size() || a.misura.base == a.misura.nome;
    for (const NodoSubMisura& nodo : CreaAlberoSubMisure(contesto))
        if (!propria && nodo.testo == a.albero[a.nodo].testo &&
            nodo.profondita == a.albero[a.nodo].profondita && !nodo.gruppo) {
            const FileDaNodo file = NomeFileDaNodo(contesto, nodo);
            misura.base = file.base;
            misura.vista = file.vista;
            break;
        }
    CaricaTracciaNodo(s, misura, contesto, misura.header.Setup, a.DetectorScelto());
    a.differenza = DifferenzaTracce(*a.misura.traccia, *misura.traccia);
}

} // namespace

void CaricaInviluppo(Scrivania& s, MisuraAperta& misura, const SetupRecord& setup,
                     std::span<const std::string> basi, std::optional<DetectorKind> detector) {
    const DetectorKind quale = DetectorInviluppo(misura, detector);
    std::vector<std::shared_ptr<const SweepTrace>> tracce;
    SweepTrace coperti;
    MisuraAperta una = misura;
    una.vista = ViewMode::Normale;
    for (const std::string& base : basi) {
        una.base = base;
        CaricaTracciaMisura(s, una, setup, quale);
        tracce.push_back(una.traccia);
        coperti.insert(coperti.end(), una.coperti->begin(), una.coperti->end());
    }
    misura.traccia = std::make_shared<SweepTrace>(InviluppoTracce(tracce, quale, &coperti));
    std::ranges::stable_sort(coperti, {}, &CampioneTraccia::freqMhz);
    misura.coperti = std::make_shared<SweepTrace>(std::move(coperti));
}

void CaricaTracceArchivio(Scrivania& s, StatoArchivio& a) {
    ConservaInviluppo(s, a);
    CaricaTracciaNodo(s, a.misura, a.contesto, s.setup, a.DetectorScelto());
    if (a.riferimento)
        CaricaRiferimento(s, a);
}

bool ScegliDetectorArchivio(Scrivania& s, StatoArchivio& a, int detector) {
    const bool noto = detector == kTuttiDetector ||
                      (detector >= 0 && static_cast<size_t>(detector) < kNumDetector &&
                       a.misura.detector[static_cast<size_t>(detector)]);
    if (!a.Mostrata() || !noto)
        return false;
    a.detector = detector;
    for (MisuraAperta& altra : a.sovrapposte)
        CaricaTracciaMisura(s, altra, altra.header.Setup, a.DetectorScelto());
    CaricaTracceArchivio(s, a);
    return true;
}

bool ScegliRiferimento(Scrivania& s, StatoArchivio& a, const std::string& nome) {
    if (!a.Mostrata())
        return false;
    MisuraAperta riferimento = ApriIntestazione(s, nome);
    if (!riferimento.leggibile)
        return false;
    if (!Comparabili(a.misura.header.Scan, riferimento.header.Scan)) {
        s.ambiente.Mostra({.testo = std::string(kNonComparabile), .icona = Icona::Esclamazione});
        return false;
    }
    CaricaTabelleMisura(s, nome, riferimento.header.Setup, riferimento.tabelle);
    a.riferimento = std::move(riferimento);
    CaricaRiferimento(s, a);
    return true;
}

void TogliRiferimento(StatoArchivio& a) {
    a.riferimento.reset();
    a.differenza.clear();
}

bool SovrapponiMisura(Scrivania& s, StatoArchivio& a, const std::string& nome) {
    if (!a.Mostrata() || ChiaveNome(nome) == ChiaveNome(a.misura.nome))
        return false;
    MisuraAperta misura = ApriMisura(s, nome);
    if (!misura.leggibile)
        return false;
    if (a.DetectorScelto())
        CaricaTracciaMisura(s, misura, misura.header.Setup, a.DetectorScelto());
    TogliSovrapposta(a, nome);
    a.sovrapposte.push_back(std::move(misura));
    return true;
}

void TogliSovrapposta(StatoArchivio& a, const std::string& nome) {
    std::erase_if(a.sovrapposte,
                  [&](const MisuraAperta& m) { return ChiaveNome(m.nome) == ChiaveNome(nome); });
}

} // namespace orvane
