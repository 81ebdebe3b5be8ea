#include "graph/Verdetto.h"

#include <algorithm>
#include <cmath>

#include "base/Testo.h"
#include "data/Interpolazione.h"
#include "data/NomiTabelle.h"

namespace orvane {
namespace {

constexpr size_t kLimitiMostrati = 2;
constexpr double kMassimoDb = 1e6;

/// A word of titles, in upper case, and the detector that it speaks of.
struct VoceParola {
    std::string_view parola;
    DetectorKind detector;
};
constexpr std::array kParole = {
    VoceParola{"QP", DetectorKind::QPeak},
    VoceParola{"QUASI", DetectorKind::QPeak},
    VoceParola{"QPEAK", DetectorKind::QPeak},
    VoceParola{"AV", DetectorKind::Avg},
    VoceParola{"AVG", DetectorKind::Avg},
    VoceParola{"AVERAGE", DetectorKind::Avg},
    VoceParola{"PK", DetectorKind::Peak},
    VoceParola{"PEAK", DetectorKind::Peak},
    VoceParola{"RMS", DetectorKind::Rms},
    VoceParola{"RMS-AV", DetectorKind::RmsAvg},
    VoceParola{"RMS-AVG", DetectorKind::RmsAvg},
    VoceParola{"RMS-AVERAGE", DetectorKind::RmsAvg},
    VoceParola{"CISPR-AV", DetectorKind::CAvg},
    VoceParola{"CISPR-AVG", DetectorKind::CAvg},
    VoceParola{"CISPR-AVERAGE", DetectorKind::CAvg},
    VoceParola{"C-AVG", DetectorKind::CAvg},
};

/// The detectors that read at or above one, the nearest first.
using Scaletta = std::array<std::optional<DetectorKind>, 5>;
constexpr std::array<Scaletta, kNumDetector> kAlDiSopra = {{
    {},
    {DetectorKind::Peak},
    {DetectorKind::QPeak, DetectorKind::Peak},
    {DetectorKind::CAvg, DetectorKind::RmsAvg, DetectorKind::Rms, DetectorKind::QPeak,
     DetectorKind::Peak},
    {DetectorKind::Rms, DetectorKind::QPeak, DetectorKind::Peak},
    {DetectorKind::RmsAvg, DetectorKind::QPeak, DetectorKind::Peak},
}};

bool Alfanumerico(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) > 127;
}

/// Where a word stands on its own in a text, both in upper case.
size_t TrovaParola(std::string_view testo, std::string_view parola) {
    for (size_t i = testo.find(parola); i != std::string_view::npos;
         i = testo.find(parola, i + 1)) {
        const size_t dietro = i + parola.size();
        if ((i == 0 || !Alfanumerico(testo[i - 1])) &&
            (dietro == testo.size() || !Alfanumerico(testo[dietro])))
            return i;
    }
    return std::string_view::npos;
}

/// By the first word in a text that speaks of a detector, the longer one where two begin alike.
std::optional<DetectorKind> DetectorDaParole(const std::string& testo) {
    const std::string maiuscolo = Maiuscolo(testo);
    const VoceParola* prima = nullptr;
    size_t posto = std::string::npos;
    for (const VoceParola& voce : kParole) {
        const size_t i = TrovaParola(maiuscolo, voce.parola);
        if (i < posto || (prima && i == posto && voce.parola.size() > prima->parola.size())) {
            posto = i;
            prima = &voce;
        }
    }
    return prima ? std::optional(prima->detector) : std::nullopt;
}

std::optional<DetectorKind> DetectorVoluto(int scelto, const std::string& nome,
                                           const LimFacRecord& limite) {
    if (scelto >= 1 && scelto <= static_cast<int>(kNumDetector))
        return static_cast<DetectorKind>(scelto - 1);
    const auto dalTitolo = DetectorDaParole(limite.Title);
    return dalTitolo ? dalTitolo : DetectorDaParole(nome);
}

/// A limit read at rising frequencies: the look-up begins where the one before ended.
class LetturaLimite {
public:
    explicit LetturaLimite(const LimFacRecord& limite)
        : limite_(limite), punti_(NumeroPunti(limite)) {
        limite_.LastSegment = 1;
    }
    int16_t A(float hz) {
        auto i = static_cast<size_t>(limite_.LastSegment);
        while (i + 1 < punti_ && hz >= limite_.Freq[i])
            ++i;
        limite_.LastSegment = static_cast<int16_t>(i);
        return ValoreLimite(limite_, hz);
    }

private:
    LimFacRecord limite_;
    size_t punti_;
};

int DistanzaCent(const VerdettoLimite& v) {
    return v.livelloCent - v.limiteCent;
}

/// The levels of a detector, in the order of the trace, hidden ones included.
class LetturaLivelli {
public:
    LetturaLivelli(const MisuraAperta& misura, DetectorKind detector)
        : misura_(misura), d_(static_cast<size_t>(detector)) {}
    int16_t Prossimo(const CampioneTraccia& campione) {
        const SweepTrace& coperti = *misura_.coperti;
        int16_t livello = campione.livello[d_];
        for (; k_ < coperti.size(); ++k_) {
            const bool qui = StessaFrequenza(coperti[k_].freqMhz, campione.freqMhz);
            if (!qui && coperti[k_].freqMhz > campione.freqMhz)
                break;
            if (qui)
                livello = std::max(livello, coperti[k_].livello[d_]);
        }
        return livello;
    }

private:
    const MisuraAperta& misura_;
    size_t d_;
    size_t k_ = 0;
};

/// Fills in the worst sample, and how many lie above.
bool CercaPeggiore(const MisuraAperta& misura, const LimFacRecord& limite, VerdettoLimite& v) {
    const SweepTrace& traccia = *misura.traccia;
    LetturaLivelli livelli(misura, v.detector);
    LetturaLimite lettura(limite);
    bool trovato = false;
    for (size_t i = 0; i < traccia.size(); ++i) {
        const int16_t livello = livelli.Prossimo(traccia[i]);
        if (livello <= kNessunLivello)
            continue;
        const int16_t valore = lettura.A(static_cast<float>(traccia[i].freqMhz * 1e6));
        if (valore == kNessunValore)
            continue;
        v.oltre += livello > valore;
        if (trovato && livello - valore <= DistanzaCent(v))
            continue;
        trovato = true;
        v.freqMhz = traccia[i].freqMhz;
        v.livelloCent = livello;
        v.limiteCent = valore;
        v.indice = i;
    }
    return trovato;
}

} // namespace

const char* TestoGiudizio(Giudizio giudizio) {
    constexpr std::array<const char*, 4> kTesti = {"---", "PASS", "INCONCLUSIVE", "FAIL"};
    return kTesti[static_cast<size_t>(giudizio)];
}

DetectorKind DetectorDelLimite(int scelto, const std::string& nome, const LimFacRecord& limite,
                               const std::array<bool, kNumDetector>& misurati) {
    const auto voluto = DetectorVoluto(scelto, nome, limite);
    if (!voluto) {
        const auto primo = std::ranges::find(misurati, true);
        return static_cast<DetectorKind>(primo == misurati.end() ? 0 : primo - misurati.begin());
    }
    if (misurati[static_cast<size_t>(*voluto)])
        return *voluto;
    for (const auto& sopra : kAlDiSopra[static_cast<size_t>(*voluto)])
        if (sopra && misurati[static_cast<size_t>(*sopra)])
            return *sopra;
    return *voluto;
}

Giudizio Giudica(double deltaDb, double incertezzaDb) {
    // In thousandths: the uncertainty comes in single precision, and its edge is an exact one.
    const auto millesimi = [](double db) {
        return std::llround(std::clamp(db, -kMassimoDb, kMassimoDb) * 1000);
    };
    const long long delta = millesimi(deltaDb);
    if (incertezzaDb > 0 && std::abs(delta) < millesimi(incertezzaDb))
        return Giudizio::Inconclusive;
    return delta > 0 ? Giudizio::Fail : Giudizio::Pass;
}

Verdetto CalcolaVerdetto(const MisuraAperta& misura, const SetupRecord& setup) {
    Verdetto verdetto;
    for (size_t slot = 0; slot < kLimitiMostrati; ++slot) {
        if (setup.LimitOn[slot] == 0 || !NominaTabella(setup.LimitName[slot]))
            continue;
        const LimFacRecord& limite = misura.tabelle.slot[kPrimoLimite + slot];
        VerdettoLimite v{.slot = static_cast<int>(slot), .limite = Rifila(setup.LimitName[slot])};
        v.detector =
            DetectorDelLimite(setup.VerdictDetector[slot], v.limite, limite, misura.detector);
        if (CercaPeggiore(misura, limite, v))
            v.giudizio = Giudica(v.Delta(), static_cast<double>(setup.MeasUncertainty));
        verdetto.insieme = std::max(verdetto.insieme, v.giudizio);
        verdetto.limiti.push_back(std::move(v));
    }
    return verdetto;
}

} // namespace orvane
