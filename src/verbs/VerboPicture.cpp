#include <algorithm>
#include <cmath>
#include <ostream>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "console/CambioUnita.h"
#include "data/FileFuori.h"
#include "data/NomiDisco.h"
#include "data/Panels.h"
#include "graph/BloccoImpostazioni.h"
#include "link/Dinamica.h"
#include "records/ImpostazioniReport.h"
#include "setup/TabellaScan.h"
#include "verbs/MisuraDaOpzioni.h"

namespace orvane {
namespace {

constexpr int kLarghezza = 1600;
constexpr int kAltezza = 900;
// Pixels. Below, nothing can be read; above, a picture takes gigabytes.
constexpr int kMinimoLato = 200;
constexpr int kMassimoLato = 16000;
constexpr int kMassimoRiferimento = 300; ///< dB, either way

enum class Aspettato { Carta, Scuro, Chiaro };

/// What the options say, apart from the measure.
struct RichiestaQuadro {
    std::string file;
    FormatoImmagine formato = FormatoImmagine::Png;
    int larghezza = kLarghezza;
    int altezza = kAltezza;
    std::optional<std::array<int16_t, kNumDetector>> detector;
    std::optional<double> daMhz;
    std::optional<double> aMhz;
    std::optional<int16_t> riferimento;
    std::optional<int16_t> dinamicaId;
    int picchi = 0;
    Aspettato aspetto = Aspettato::Carta;
    std::string errore;
};

/// A whole number within its range.
std::optional<int> LeggiIntero(const std::string& testo, int minimo, int massimo) {
    const auto numero = LeggiNumero(testo);
    if (!numero || !(*numero >= minimo && *numero <= massimo) || *numero != std::floor(*numero))
        return std::nullopt;
    return static_cast<int>(*numero);
}

void LeggiFile(RichiestaQuadro& r, const Argomenti& argomenti) {
    const auto formato = FormatoDaPercorso(argomenti.Opzione("out").value_or(""));
    if (!formato)
        r.errore = "--out wants a file that ends in .bmp, .png, .jpg or .svg";
    r.file = argomenti.Opzione("out").value_or("");
    r.formato = formato.value_or(r.formato);
}

void LeggiMisure(RichiestaQuadro& r, const Argomenti& argomenti) {
    const auto testo = argomenti.Opzione("size");
    if (!testo)
        return;
    const auto lati = Dividi(Maiuscolo(*testo), 'X');
    const auto lato = [&](size_t i) {
        return lati.size() == 2 ? LeggiIntero(lati[i], kMinimoLato, kMassimoLato) : std::nullopt;
    };
    if (!lato(0) || !lato(1))
        r.errore = "--size wants WIDTHxHEIGHT in pixels, " + TestoIntero(kMinimoLato) + " to " +
                   TestoIntero(kMassimoLato);
    r.larghezza = lato(0).value_or(r.larghezza);
    r.altezza = lato(1).value_or(r.altezza);
}

void LeggiDetectorMostrati(RichiestaQuadro& r, const Argomenti& argomenti) {
    for (const std::string& testo : argomenti.Tutte("detector")) {
        const auto letti = LeggiDetector(testo);
        if (!letti) {
            r.errore = "unknown detector: P, Q, R, A, N, C";
            return;
        }
        if (!r.detector)
            r.detector.emplace();
        for (size_t d = 0; d < kNumDetector; ++d)
            (*r.detector)[d] |= (*letti)[d];
    }
}

std::optional<double> LeggiMhz(RichiestaQuadro& r, const Argomenti& argomenti, const char* nome) {
    const auto testo = argomenti.Opzione(nome);
    const auto mhz = testo ? LeggiNumero(*testo) : std::nullopt;
    if (testo && !(mhz && *mhz > 0))
        r.errore = "--" + std::string(nome) + " wants a frequency in MHz";
    return mhz;
}

/// By its place in the list, or by its dB.
std::optional<int16_t> LeggiDinamica(const std::string& testo) {
    constexpr int kUltima = static_cast<int>(kDinamicaTable.size()) - 1;
    const auto numero = LeggiIntero(testo, 0, kDinamicaTable.back());
    if (numero && *numero <= kUltima)
        return static_cast<int16_t>(*numero);
    const auto trovata = std::ranges::find(kDinamicaTable, numero.value_or(-1));
    if (trovata == kDinamicaTable.end())
        return std::nullopt;
    return static_cast<int16_t>(trovata - kDinamicaTable.begin());
}

void LeggiScala(RichiestaQuadro& r, const Argomenti& argomenti) {
    r.daMhz = LeggiMhz(r, argomenti, "from");
    r.aMhz = LeggiMhz(r, argomenti, "to");
    if (const auto testo = argomenti.Opzione("reference")) {
        const auto dB = LeggiIntero(*testo, -kMassimoRiferimento, kMassimoRiferimento);
        if (!dB)
            r.errore = "--reference wants whole dB, -300 to 300";
        r.riferimento = static_cast<int16_t>(dB.value_or(0));
    }
    if (const auto testo = argomenti.Opzione("dynamics")) {
        r.dinamicaId = LeggiDinamica(*testo);
        if (!r.dinamicaId)
            r.errore = "--dynamics wants 0 to 6, or one of 80, 100, 120, 140, 160, 180, 200 dB";
    }
}

void LeggiPicchi(RichiestaQuadro& r, const Argomenti& argomenti) {
    const auto testo = argomenti.Opzione("peaks");
    const auto quanti = testo ? LeggiIntero(*testo, 0, kMaxPicchi) : std::optional(0);
    if (!quanti)
        r.errore = "--peaks wants a number up to " + TestoIntero(kMaxPicchi);
    r.picchi = quanti.value_or(0);
}

void LeggiAspettoChiesto(RichiestaQuadro& r, const Argomenti& argomenti) {
    const int quanti =
        argomenti.Bandiera("print") + argomenti.Bandiera("dark") + argomenti.Bandiera("light");
    if (quanti > 1)
        r.errore = "one of --print, --dark and --light";
    if (argomenti.Bandiera("dark"))
        r.aspetto = Aspettato::Scuro;
    if (argomenti.Bandiera("light"))
        r.aspetto = Aspettato::Chiaro;
}

RichiestaQuadro LeggiRichiesta(const Argomenti& argomenti) {
    RichiestaQuadro r;
    LeggiAspettoChiesto(r, argomenti);
    LeggiPicchi(r, argomenti);
    LeggiScala(r, argomenti);
    LeggiMisure(r, argomenti);
    LeggiDetectorMostrati(r, argomenti);
    LeggiFile(r, argomenti);
    if (!argomenti.Errore().empty())
        r.errore = argomenti.Errore();
    return r;
}

/// Dynamics, and the level at the top as the unit reads it; without one, a unit that is not the
/// measure's keeps the trace in its place.
void ImpostaScala(const RichiestaQuadro& r, const SetupRecord& misurato, SetupRecord& setup) {
    setup.RefLevel = RiferimentoInUnita(misurato, static_cast<int>(setup.UnitId));
    setup.DinamicaId = r.dinamicaId.value_or(setup.DinamicaId);
    if (!r.riferimento)
        return;
    setup.RefLevel = 0;
    const double cima = SetScaleGraph(setup, 1, 2, true, 1, 0).alto / 100;
    setup.RefLevel = static_cast<int16_t>(*r.riferimento - std::lround(cima));
}

/// The first detector that was asked for and not measured, or none.
std::optional<size_t> ScegliDetector(const RichiestaQuadro& r, StratoQuadro& strato) {
    for (size_t d = 0; r.detector && d < kNumDetector; ++d) {
        if ((*r.detector)[d] != 0 && !strato.detector[d])
            return d;
        strato.detector[d] = (*r.detector)[d] != 0;
    }
    return std::nullopt;
}

void CercaPicchi(ContenutoQuadro& quadro, CampoMhz campo, int quanti) {
    for (size_t d = 0; d < kNumDetector && quanti > 0; ++d)
        if (quadro.strati[0].detector[d])
            quadro.picchi[d] = TrovaPicchi(*quadro.misura.traccia, static_cast<DetectorKind>(d),
                                           quanti, campo.start, campo.stop);
}

StileQuadro StileChiesto(const RichiestaQuadro& r, const EnvRecord& env) {
    const double testo = AltezzaTestoQuadro(r.larghezza, r.altezza);
    return r.aspetto == Aspettato::Carta ? StileStampa(env, testo)
                                         : StileSchermo(env, r.aspetto == Aspettato::Scuro, testo);
}

EsitoVerbo Scrivi(Banco& banco, const RichiestaQuadro& r, const ContenutoQuadro& quadro,
                  const SetupRecord& setup, CampoMhz campo, const StileQuadro& stile) {
    const EnvRecord& env = banco.scrivania.env;
    const auto dati = banco.fabbrica
                          ? banco.fabbrica->Dipingi(r.larghezza, r.altezza, r.formato,
                                                    [&](Superficie& superficie) {
                                                        DisegnaQuadro(superficie, quadro, setup,
                                                                      env, campo, stile);
                                                    })
                          : std::vector<uint8_t>();
    if (dati.empty())
        return Guasto(banco, kGuastoFile, "the picture cannot be made: " + r.file);
    if (!SalvaFuori(PathDaUtf8(r.file), dati))
        return Guasto(banco, kGuastoFile, "Cannot open file " + r.file);
    return kFatto;
}

} // namespace

EsitoVerbo VerboPicture(Banco& banco, Parole parole) {
    const Argomenti argomenti(
        parole, OpzioniMisura({"out", "size", "from", "to", "reference", "dynamics", "peaks"}),
        {"print", "dark", "light", "no-settings"});
    const RichiestaQuadro r = LeggiRichiesta(argomenti);
    if (!r.errore.empty())
        return UsoErrato(banco, "picture", r.errore);
    MisuraChiesta chiesta;
    if (const EsitoVerbo esito =
            ApriDaOpzioni(banco, "picture", argomenti, Partenza::ComeMisurata, chiesta);
        esito != kFatto)
        return esito;
    Scrivania& s = banco.scrivania;
    CaricaEnvCheCe(s);
    SetupRecord& setup = chiesta.setup;
    ImpostaScala(r, chiesta.misura.header.Setup, setup);
    ContenutoQuadro quadro = ComponiQuadro(chiesta.misura, setup, s.env);
    if (argomenti.Tutte("limit").empty())
        AggiungiLimitiRighe(s, quadro);
    if (const auto assente = ScegliDetector(r, quadro.strati[0]))
        return Guasto(banco, kUsoErrato,
                      chiesta.misura.nome + " has no " + kNomiDetector[*assente]);
    const CampoMhz campo{r.daMhz.value_or(quadro.intero.start),
                         r.aMhz.value_or(quadro.intero.stop)};
    if (!(campo.start < campo.stop) && quadro.intero.start < quadro.intero.stop)
        return UsoErrato(banco, "picture", "--from must lie below --to");
    CercaPicchi(quadro, campo, r.picchi);
    StileQuadro stile = StileChiesto(r, s.env);
    if (!argomenti.Bandiera("no-settings"))
        stile.blocco = BloccoImpostazioni(s, quadro, setup);
    return Scrivi(banco, r, quadro, setup, campo, stile);
}

} // namespace orvane
