#include "ui/RegiaMisura.h"

#include <algorithm>
#include <cmath>

#include <QColor>

#include "base/Testo.h"
#include "data/Interpolazione.h"
#include "graph/Confronto.h"
#include "records/ColoriGrafico.h"
#include "records/ImpostazioniReport.h"

namespace orvane {
namespace {

/// How far the colours of a pass are turned from those of the first, degrees of hue.
constexpr std::array kGiroPassata = {0, 200, 100, 290};

/// The same for the measures laid over it.
constexpr std::array kGiroSopra = {130, 240, 60, 330, 170, 270};

int32_t Gira(int32_t colore, int gradi) {
    const QColor c(colore & 0xFF, colore >> 8 & 0xFF, colore >> 16 & 0xFF);
    const QColor g =
        QColor::fromHsv((std::max(0, c.hue()) + gradi) % 360, c.saturation(), c.value());
    return gradi == 0 ? colore : Rgb(g.red(), g.green(), g.blue());
}

std::array<bool, kNumDetector> Mostrati(const MisuraAperta& misura, int detector) {
    std::array<bool, kNumDetector> mostrati = misura.detector;
    for (size_t d = 0; d < kNumDetector; ++d)
        mostrati[d] = mostrati[d] && (detector < 0 || static_cast<size_t>(detector) == d);
    return mostrati;
}

StratoQuadro ComponiStrato(const MisuraAperta& misura, int detector, const EnvRecord& env) {
    StratoQuadro strato{.traccia = misura.traccia, .detector = Mostrati(misura, detector)};
    for (size_t d = 0; d < kNumDetector; ++d)
        strato.colori[d] = ColoreTraccia(env, static_cast<DetectorKind>(d));
    return strato;
}

/// The passes of a measure that are traces of their own, as "L1" of "<measure>-L1"; one that was
/// renamed keeps its former name in theirs.
std::vector<const NodoSubMisura*> Passate(const StatoArchivio& aperta) {
    std::vector<const NodoSubMisura*> passate;
    for (const NodoSubMisura& nodo : aperta.albero)
        if (!nodo.gruppo && nodo.prefisso.empty() && nodo.file.ends_with("-" + Rifila(nodo.testo)))
            passate.push_back(&nodo);
    return passate;
}

DetectorKind PrimoDetector(const MisuraAperta& misura) {
    const auto primo = std::ranges::find(misura.detector, true);
    return primo == misura.detector.end()
               ? DetectorKind::Peak
               : static_cast<DetectorKind>(primo - misura.detector.begin());
}

} // namespace

/// A measure that is compared stands before its reference. The whole of one with several passes is
/// shown as its passes, each in a turn of the colours; markers and verdict read the highest of
/// them.
std::vector<StratoQuadro> RegiaMisura::StratiPropri(const StatoArchivio& aperta) const {
    if (aperta.riferimento && Accesa(Sovrapposte::Genere::Riferimento, aperta.riferimento->nome))
        return StratiConfronto(aperta.misura, *aperta.riferimento, aperta.detector, s_.env);
    const auto passate = Passate(aperta);
    const bool intera = aperta.nodo == 0 && passate.size() > 1;
    std::vector<StratoQuadro> strati;
    for (size_t i = 0; intera && i < passate.size(); ++i)
        strati.push_back(StratoPassata(aperta, *passate[i], i));
    if (intera)
        return strati;
    StratoQuadro proprio = ComponiStrato(aperta.misura, aperta.detector, s_.env);
    proprio.nome = aperta.misura.nome;
    return {proprio};
}

StratoQuadro RegiaMisura::StratoPassata(const StatoArchivio& aperta, const NodoSubMisura& nodo,
                                        size_t quale) const {
    MisuraAperta passata = aperta.misura;
    passata.base = nodo.file;
    CaricaTracciaMisura(s_, passata, s_.setup, aperta.DetectorScelto());
    StratoQuadro strato = ComponiStrato(passata, aperta.detector, s_.env);
    strato.nome = nodo.testo;
    for (int32_t& colore : strato.colori)
        colore = Gira(colore, kGiroPassata[quale % kGiroPassata.size()]);
    return strato;
}

std::vector<StratoQuadro> RegiaMisura::StratiSopra(const StatoArchivio& aperta) const {
    std::vector<StratoQuadro> strati;
    if (aperta.riferimento && Accesa(Sovrapposte::Genere::Differenza, aperta.riferimento->nome))
        strati.push_back(StratoDifferenza(aperta, s_.env, s_.setup.UnitId));
    for (size_t i = 0; i < aperta.sovrapposte.size(); ++i)
        if (Accesa(Sovrapposte::Genere::Misura, aperta.sovrapposte[i].nome))
            strati.push_back(StratoSopra(aperta, i, s_.env));
    return strati;
}

void RegiaMisura::Mostra(const StatoArchivio& aperta, bool tieni) {
    if (!aperta.Mostrata())
        return Togli();
    ContenutoQuadro contenuto = ComponiQuadro(aperta.misura, s_.setup, s_.env);
    AggiungiLimitiRighe(s_, contenuto);
    contenuto.strati = StratiPropri(aperta);
    std::ranges::move(StratiSopra(aperta), std::back_inserter(contenuto.strati));
    MostraTabellaPicchi(aperta, contenuto);
    scena_.verdetto.MostraEsito(contenuto.verdetto, true);
    const bool stesso =
        tieni && scena_.quadro.HaMisura() &&
        scena_.quadro.Quadro().misura.traccia->size() == contenuto.misura.traccia->size();
    scena_.quadro.MostraQuadro(std::move(contenuto), stesso);
}

void RegiaMisura::MostraTabellaPicchi(const StatoArchivio& aperta,
                                      ContenutoQuadro& contenuto) const {
    const DetectorKind detector = aperta.DetectorScelto().value_or(PrimoDetector(aperta.misura));
    std::vector<Picco> picchi = TrovaPicchi(*aperta.misura.traccia, detector, NumPicchi(s_.env));
    scena_.picchi.Mostra(ComponiTabellaPicchi(aperta.misura, s_.setup, picchi), true);
    if (conPicchi_ && s_.setup.SymbolOnPeaks != 0)
        contenuto.picchi[static_cast<size_t>(detector)] = std::move(picchi);
}

void RegiaMisura::Togli() {
    scena_.picchi.Mostra({}, false);
    scena_.verdetto.MostraEsito({}, false);
    if (scena_.quadro.HaMisura())
        scena_.quadro.LasciaQuadro();
}

void RegiaMisura::Accendi(Sovrapposte::Genere genere, const std::string& nome, bool si) {
    if (si)
        spente_.erase({genere, nome});
    else
        spente_.insert({genere, nome});
}

bool RegiaMisura::Accesa(Sovrapposte::Genere genere, const std::string& nome) const {
    return !spente_.contains({genere, nome});
}

StratoQuadro StratoSopra(const StatoArchivio& aperta, size_t quale, const EnvRecord& env) {
    StratoQuadro strato = StratoSovrapposto(aperta.sovrapposte[quale], quale, aperta.detector, env);
    strato.colori.fill(
        Gira(ColoreTraccia(env, DetectorKind::Peak), kGiroSopra[quale % kGiroSopra.size()]));
    return strato;
}

std::vector<LimiteQuadro> LimitiDellaCorsa(Scrivania& s, const ScanTable& tabella) {
    MisuraAperta corsa;
    corsa.header.Scan.Righe = tabella;
    CampoDellaTabella(tabella, corsa.startMhz, corsa.stopMhz);
    CaricaTabelleMisura(s, {}, s.setup, corsa.tabelle);
    ContenutoQuadro contenuto = ComponiQuadro(corsa, s.setup, s.env);
    AggiungiLimitiRighe(s, contenuto);
    return contenuto.limiti;
}

void ApriDopoCorsa(Scrivania& s, StatoArchivio& aperta, const std::string& nome) {
    aperta = {};
    aperta.misura = ApriMisura(s, nome);
    if (!aperta.Mostrata())
        return;
    CaricaTabelleMisura(s, nome, s.setup, aperta.misura.tabelle);
    CaricaTracciaMisura(s, aperta.misura, s.setup);
    aperta.albero = CreaAlberoSubMisure(LeggiContestoNodi(s, nome));
}

StratoQuadro StratoDifferenza(const StatoArchivio& aperta, const EnvRecord& env, int unitId) {
    auto traccia = std::make_shared<SweepTrace>(aperta.differenza);
    const int giu = static_cast<int>(std::lround(ImpostaUnita(unitId) * 100));
    for (CampioneTraccia& c : *traccia)
        AggiungiFattori(c.livello, -giu);
    StratoQuadro strato{.traccia = std::move(traccia),
                        .detector = Mostrati(aperta.misura, aperta.detector),
                        .nome = "Difference"};
    strato.colori.fill(env.GraphColors[colore::kPicchi]);
    return strato;
}

} // namespace orvane
