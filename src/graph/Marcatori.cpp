#include "graph/Marcatori.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/Interpolazione.h"
#include "data/NomiTabelle.h"
#include "graph/Verdetto.h"

namespace orvane {
namespace {

constexpr const char* kSenzaValore = "---";
constexpr int kMassimiDecimali = 6;
constexpr int kCifreInPiu = 3;
constexpr size_t kLimitiMostrati = 2;

bool HaPasso(double passoMhz) {
    return std::isfinite(passoMhz) && passoMhz > 0;
}

/// Decimals that a multiple of the step needs, as far as a hertz.
int Decimali(double passoMhz) {
    constexpr double kTolleranza = 1e-6; // of a unit of the last decimal
    if (!HaPasso(passoMhz))
        return kMassimiDecimali;
    double scalato = passoMhz;
    for (int d = 0; d < kMassimiDecimali; ++d, scalato *= 10)
        if (scalato >= 1 - kTolleranza && std::abs(scalato - std::round(scalato)) < kTolleranza)
            return d;
    return kMassimiDecimali;
}

std::string TestoDb(double cent) {
    return TestoFisso(cent / 100, 2);
}

double FreqHz(const CampioneTraccia& campione) {
    return campione.freqMhz * 1e6;
}

std::string TestoDistanza(const CampioneTraccia& campione, DetectorKind detector,
                          const LimFacRecord& limite) {
    const int16_t livello = campione.livello[static_cast<size_t>(detector)];
    const int16_t valore = ValoreLimite(limite, static_cast<float>(FreqHz(campione)));
    if (livello <= kNessunLivello || valore == kNessunValore)
        return kSenzaValore;
    return (livello > valore ? "+" : "") + TestoDb(livello - valore);
}

void LeggiFattori(const MisuraAperta& misura, const SetupRecord& setup,
                  const CampioneTraccia& campione, LetturaMarker& lettura) {
    TabelleLimFac tabelle = misura.tabelle; // the look-up keeps its place in them
    const auto hz = static_cast<float>(FreqHz(campione));
    const auto valori = VisualizzaValoreFact(tabelle, setup, hz);
    for (size_t t = 0; t < valori.size(); ++t)
        if (valori[t])
            lettura.fattori.emplace_back(Rifila(setup.FactorName[t]), TestoDb(*valori[t]));
    if (const auto somma = SommaValoreFact(tabelle, setup, hz))
        lettura.sommaFattori = TestoDb(*somma);
}

/// A ring around a place, as wide as it is high on the picture.
void DisegnaAnello(Superficie& superficie, Punto centro, Punto pixel, const Penna& penna) {
    constexpr double kRaggioPixel = 4;
    constexpr size_t kLati = 16;
    std::array<Punto, kLati + 1> punti;
    for (size_t i = 0; i < punti.size(); ++i) {
        const double angolo = 2 * std::numbers::pi * static_cast<double>(i) / kLati;
        punti[i] = {centro.x + kRaggioPixel * pixel.x * std::cos(angolo),
                    centro.y + kRaggioPixel * pixel.y * std::sin(angolo)};
    }
    superficie.Spezzata(punti, {.colore = penna.colore, .larghezza = penna.larghezza});
}

/// Inside the grid, on the side of the line that has room.
void ScriviNumero(Superficie& superficie, const ScalaGrafico& scala, Punto cima, Punto pixel,
                  const std::string& testo, const Penna& penna, double altezza) {
    constexpr double kDistanzaPixel = 3;
    const double serve = (superficie.DimensioneTesto(testo, altezza).x + kDistanzaPixel) * pixel.x;
    const bool aDestra = cima.x + serve <= scala.larghezzaPixel;
    const double scarto = (aDestra ? kDistanzaPixel : -kDistanzaPixel) * pixel.x;
    superficie.Testo({cima.x + scarto, cima.y}, aDestra ? Ancora::SinistraAlto : Ancora::DestraAlto,
                     testo, penna.colore, altezza);
}

} // namespace

std::optional<size_t> CampioneVicino(const SweepTrace& traccia, double freqMhz) {
    if (traccia.empty())
        return std::nullopt;
    const auto sopra = std::ranges::lower_bound(traccia, freqMhz, {}, &CampioneTraccia::freqMhz);
    const auto i = static_cast<size_t>(sopra - traccia.begin());
    if (i == 0)
        return 0;
    if (i == traccia.size() || freqMhz - traccia[i - 1].freqMhz <= traccia[i].freqMhz - freqMhz)
        return i - 1;
    return i;
}

std::optional<size_t> MoveMarker(const SweepTrace& traccia, const ScalaGrafico& scala, double x) {
    const double freq =
        std::clamp(XToFreq(scala, std::clamp(x, 0.0, scala.larghezzaPixel)),
                   std::min(scala.start, scala.stop), std::max(scala.start, scala.stop));
    const auto vicino = CampioneVicino(traccia, freq);
    const auto sullAsse = [&](size_t i) {
        return i < traccia.size() && traccia[i].freqMhz >= scala.start &&
               traccia[i].freqMhz <= scala.stop;
    };
    if (vicino && !sullAsse(*vicino))
        for (const size_t accanto : {*vicino + 1, *vicino - 1})
            if (sullAsse(accanto))
                return accanto;
    return vicino;
}

std::string DetFormatoVal(double mhz, double passoMhz) {
    int decimali = Decimali(passoMhz);
    std::string testo = TestoFisso(mhz, decimali);
    for (int i = 0; i < kCifreInPiu && ValoreIniziale(testo) == 0; ++i)
        testo = TestoFisso(mhz, ++decimali);
    return testo;
}

double PassoTraccia(const MisuraAperta& misura, size_t indice) {
    if (indice >= misura.traccia->size())
        return 0;
    const CampioneTraccia& campione = (*misura.traccia)[indice];
    const ScanLine& riga = misura.header.Scan.Righe.at(static_cast<size_t>(campione.riga));
    if (riga.StepMode != 0 || !HaPasso(riga.Step))
        return campione.freqMhz;
    return Decimali(riga.Start) > Decimali(riga.Step) ? riga.Start : riga.Step;
}

LetturaMarker LeggiMarker(const MisuraAperta& misura, const SetupRecord& setup, size_t indice) {
    if (indice >= misura.traccia->size())
        return {};
    const CampioneTraccia& campione = (*misura.traccia)[indice];
    const double offsetCent = static_cast<double>(ImpostaUnita(setup.UnitId)) * 100;
    LetturaMarker lettura;
    lettura.frequenza = DetFormatoVal(campione.freqMhz, PassoTraccia(misura, indice)) + " MHz";
    for (size_t d = 0; d < kNumDetector; ++d)
        if (misura.detector[d])
            lettura.livelli.push_back(
                {static_cast<DetectorKind>(d), campione.livello[d] <= kNessunLivello
                                                   ? kSenzaValore
                                                   : TestoDb(campione.livello[d] + offsetCent)});
    LeggiFattori(misura, setup, campione, lettura);
    for (size_t slot = 0; slot < kLimitiMostrati; ++slot) {
        if (setup.LimitOn[slot] == 0 || !NominaTabella(setup.LimitName[slot]))
            continue;
        const LimFacRecord& limite = misura.tabelle.slot[kPrimoLimite + slot];
        const auto detector = DetectorDelLimite(setup.VerdictDetector[slot], setup.LimitName[slot],
                                                limite, misura.detector);
        lettura.distanze.push_back(
            {static_cast<int>(slot), detector, TestoDistanza(campione, detector, limite)});
    }
    return lettura;
}

LetturaDelta LeggiDelta(const MisuraAperta& misura, size_t da, size_t a) {
    if (std::max(da, a) >= misura.traccia->size())
        return {};
    const CampioneTraccia& primo = (*misura.traccia)[da];
    const CampioneTraccia& secondo = (*misura.traccia)[a];
    const double passoDa = PassoTraccia(misura, da);
    const double passoA = PassoTraccia(misura, a);
    LetturaDelta lettura;
    lettura.frequenza = DetFormatoVal(secondo.freqMhz - primo.freqMhz,
                                      Decimali(passoDa) > Decimali(passoA) ? passoDa : passoA) +
                        " MHz";
    for (size_t d = 0; d < kNumDetector; ++d) {
        if (!misura.detector[d])
            continue;
        const bool assente =
            primo.livello[d] <= kNessunLivello || secondo.livello[d] <= kNessunLivello;
        lettura.livelli.push_back(
            {static_cast<DetectorKind>(d),
             assente ? kSenzaValore : TestoDb(secondo.livello[d] - primo.livello[d])});
    }
    return lettura;
}

void DisegnaMarkerSweep(Superficie& superficie, const ScalaGrafico& scala,
                        const RiquadroGriglia& dove, const MisuraAperta& misura,
                        const std::array<bool, kNumDetector>& mostrati, size_t indice, int numero,
                        const Penna& penna, double altezzaTesto) {
    if (indice >= misura.traccia->size() || !ImpostaCoordinate(superficie, scala, dove))
        return;
    const CampioneTraccia& campione = (*misura.traccia)[indice];
    const auto x = PosizioneX(scala, campione.freqMhz);
    if (!x || *x < 0 || *x > scala.larghezzaPixel)
        return;
    const Punto pixel = {scala.larghezzaPixel / dove.larghezza,
                         (scala.alto - scala.basso) / dove.altezza};
    Penna linea = penna;
    if (numero > 1)
        linea.tratto = Tratto::Tratteggiato;
    superficie.Ritaglio({0, scala.alto}, {scala.larghezzaPixel, scala.basso});
    superficie.Linea({*x, scala.alto}, {*x, scala.basso}, linea);
    for (size_t d = 0; d < kNumDetector; ++d) {
        const double y = campione.livello[d] + scala.UnitOffset * 100;
        if (mostrati[d] && campione.livello[d] > kNessunLivello && y >= scala.basso &&
            y <= scala.alto)
            DisegnaAnello(superficie, {*x, y}, pixel, penna);
    }
    ScriviNumero(superficie, scala, {*x, scala.alto}, pixel, TestoIntero(numero), penna,
                 altezzaTesto);
    superficie.FineRitaglio();
}

} // namespace orvane
