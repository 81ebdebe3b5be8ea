#include "data/Traccia.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "base/Interruttori.h"
#include "base/Numeri.h"
#include "data/Misure.h"
#include "data/SubMisure.h"

namespace orvane {
namespace {

constexpr double kStessaFrequenzaMhz = 1e-9;
constexpr double kMai = std::numeric_limits<double>::infinity();
using Byte = std::vector<uint8_t>;

/// A line as it lies on disk; samples are decoded one by one, on their way into the trace.
struct RigaLetta {
    Byte campioni;
    Byte posizioni;                ///< empty where the line has no TM file
    std::vector<double> frequenze; ///< ascending; empty for a line by step
    double start = 0;
    double step = 0;
    int16_t numero = 0;
    size_t quanti = 0;
    size_t k = 0;              ///< next sample
    double prossimaMhz = kMai; ///< its frequency

    void Vai(size_t passo) {
        k = passo;
        if (k >= quanti)
            prossimaMhz = kMai;
        else
            prossimaMhz = frequenze.empty() ? start + static_cast<double>(k) * step : frequenze[k];
    }
    CampioneTraccia Prendi() {
        CampioneTraccia campione{.freqMhz = prossimaMhz, .riga = numero};
        const uint8_t* da = campioni.data() + k * kByteCampione;
        for (int16_t& livello : campione.livello) {
            livello = static_cast<int16_t>(LeggiLittle<uint16_t>(da));
            da += sizeof livello;
        }
        if (!posizioni.empty()) {
            const uint8_t* dove = posizioni.data() + k * kBytePosizione;
            campione.mast = static_cast<int16_t>(LeggiLittle<uint16_t>(dove));
            campione.table = static_cast<int16_t>(LeggiLittle<uint16_t>(dove + 2));
        }
        Vai(k + 1);
        return campione;
    }
};

/// The trace file of a line: beside the header, under the name that the header bears, or below.
std::string TrovaRS(const AlberoDati& albero, std::string_view misura, std::string_view base,
                    int riga) {
    const std::string accanto = PercorsoRS(misura, base, riga);
    if (albero.Esiste(accanto))
        return accanto;
    if (base == misura) {
        const std::string altrove = PercorsoRS(misura, BaseMisura(albero, misura), riga);
        if (albero.Esiste(altrove))
            return altrove;
    }
    return PercorsoRS(misura, "Sub_Measure\\" + std::string(base), riga);
}

/// The TM file that goes with a trace file, in the same directory.
std::string PercorsoTM(const std::string& percorsoRS, ViewMode vista) {
    const std::string cifra(1, percorsoRS.back());
    const std::string cartella = percorsoRS.substr(0, percorsoRS.rfind('\\') + 1);
    if (vista == ViewMode::MastTable)
        return cartella + std::string(submisura::kPosizioni) + ".TM" + cifra;
    if (vista == ViewMode::Inviluppo)
        return cartella + std::string(submisura::kPosizioniInv) + ".TM" + cifra;
    return percorsoRS.substr(0, percorsoRS.rfind('.')) + ".TM" + cifra;
}

/// Puts records of one size into an order.
Byte Riordinati(const Byte& record, size_t byteRecord, const std::vector<size_t>& ordine) {
    Byte nuovi;
    for (const size_t i : ordine)
        nuovi.insert(nuovi.end(), record.begin() + static_cast<long>(i * byteRecord),
                     record.begin() + static_cast<long>((i + 1) * byteRecord));
    return nuovi;
}

/// Frequencies of a line from a table: as many as it has, and in their order.
void PrendiFrequenze(RigaLetta& r, const ScanLine& riga, const OpzioniTraccia& opzioni) {
    std::vector<double> lette;
    for (size_t k = 0; k < r.quanti; ++k) {
        const auto freq = opzioni.frequenza ? opzioni.frequenza(riga, k) : std::nullopt;
        if (!freq || !std::isfinite(*freq))
            break;
        lette.push_back(*freq);
    }
    r.quanti = lette.size();
    std::vector<size_t> ordine(lette.size());
    std::iota(ordine.begin(), ordine.end(), size_t{0});
    std::stable_sort(ordine.begin(), ordine.end(),
                     [&](size_t a, size_t b) { return lette[a] < lette[b]; });
    for (const size_t i : ordine)
        r.frequenze.push_back(lette[i]);
    r.campioni = Riordinati(r.campioni, kByteCampione, ordine);
    if (!r.posizioni.empty())
        r.posizioni = Riordinati(r.posizioni, kBytePosizione, ordine);
}

bool HaFrequenze(const ScanLine& riga) {
    if (riga.Start == 0 || !std::isfinite(riga.Start))
        return false;
    return riga.StepMode != 0 || (riga.Step > 0 && std::isfinite(riga.Step));
}

RigaLetta LeggiRiga(const AlberoDati& albero, const std::string& percorsoRS, const ScanLine& riga,
                    int numero, const OpzioniTraccia& opzioni) {
    RigaLetta r{.campioni = albero.Leggi(percorsoRS).value_or(Byte{}),
                .start = riga.Start,
                .step = riga.Step,
                .numero = static_cast<int16_t>(numero)};
    r.quanti = r.campioni.size() / kByteCampione;
    const std::string percorsoTM = PercorsoTM(percorsoRS, opzioni.vista);
    if (r.quanti > 0 && albero.Esiste(percorsoTM)) {
        r.posizioni = albero.Leggi(percorsoTM).value_or(Byte{});
        r.quanti = std::min(r.quanti, r.posizioni.size() / kBytePosizione);
    }
    if (riga.StepMode != 0)
        PrendiFrequenze(r, riga, opzioni);
    r.Vai(0);
    return r;
}

std::vector<RigaLetta> LeggiRighe(const AlberoDati& albero, std::string_view misura,
                                  std::string_view base, const ScanTable& tabella,
                                  const OpzioniTraccia& opzioni) {
    std::vector<RigaLetta> righe;
    for (size_t n = 0; n < tabella.size(); ++n) {
        if (!HaFrequenze(tabella[n]))
            continue;
        const int numero = static_cast<int>(n);
        righe.push_back(
            LeggiRiga(albero, TrovaRS(albero, misura, base, numero), tabella[n], numero, opzioni));
    }
    return righe;
}

/// Whether a sample takes the place of the one that its frequency has: the higher value of the
/// detector, and on a tie the earlier line. No value never wins.
bool Vince(const CampioneTraccia& nuovo, const CampioneTraccia& presente, size_t detector) {
    const int16_t a = std::max(nuovo.livello[detector], kNessunLivello);
    const int16_t b = std::max(presente.livello[detector], kNessunLivello);
    return a != b ? a > b : nuovo.riga < presente.riga;
}

/// How the samples of one frequency become one.
struct Fusione {
    size_t detector = 0;
    bool fondi = true;
    SweepTrace* coperti = nullptr;

    void Aggiungi(CampioneTraccia& presente, CampioneTraccia nuovo) const {
        if (Vince(nuovo, presente, detector))
            std::swap(nuovo, presente);
        if (coperti)
            NotaCoperto(*coperti, presente, nuovo);
    }
};

/// The samples of a line that stand before `finoMhz`, onto the end of the trace.
void Accoda(SweepTrace& traccia, RigaLetta& riga, double finoMhz, const Fusione& fusione) {
    do {
        const CampioneTraccia nuovo = riga.Prendi();
        if (!fusione.fondi || traccia.empty() ||
            !StessaFrequenza(traccia.back().freqMhz, nuovo.freqMhz))
            traccia.push_back(nuovo);
        else
            fusione.Aggiungi(traccia.back(), nuovo);
    } while (riga.prossimaMhz < finoMhz);
}

/// All lines in the order of frequency, each sample looked at once: the line that is behind the
/// others gives its samples up to the next one's.
SweepTrace Fondi(std::vector<RigaLetta>& righe, const Fusione& fusione) {
    size_t quanti = 0;
    for (const RigaLetta& riga : righe)
        quanti += riga.quanti;
    SweepTrace traccia;
    traccia.reserve(quanti);
    // Beside each other: where many lines meet, looking at them is the greater part of the work.
    std::array<double, kMaxScanLine> teste{};
    for (size_t i = 0; i < righe.size(); ++i)
        teste[i] = righe[i].prossimaMhz;
    while (true) {
        size_t prima = 0;
        double primaMhz = kMai;
        double secondaMhz = kMai;
        for (size_t i = 0; i < righe.size(); ++i) {
            if (teste[i] < primaMhz) {
                secondaMhz = primaMhz;
                primaMhz = teste[i];
                prima = i;
            } else if (teste[i] < secondaMhz) {
                secondaMhz = teste[i];
            }
        }
        if (primaMhz == kMai)
            return traccia;
        Accoda(traccia, righe[prima], secondaMhz, fusione);
        teste[prima] = righe[prima].prossimaMhz;
    }
}

/// Marks where a trace begins anew: between samples of two lines that do not adjoin.
void SegnaStacchi(SweepTrace& traccia, const ScanTable& tabella) {
    for (size_t i = 0; i < traccia.size(); ++i) {
        CampioneTraccia& c = traccia[i];
        if (i > 0 && c.riga == traccia[i - 1].riga)
            continue;
        const double passo = i == 0
                                 ? 0
                                 : std::max(tabella[static_cast<size_t>(c.riga)].Step,
                                            tabella[static_cast<size_t>(traccia[i - 1].riga)].Step);
        c.stacco = i == 0 || c.freqMhz - traccia[i - 1].freqMhz > 2 * passo;
    }
}

} // namespace

std::vector<SampleRecord> LeggiTraccia(const Scrivania& s, std::string_view percorso) {
    const auto dati = s.albero.Leggi(percorso);
    if (!dati)
        return {};
    std::vector<SampleRecord> passi(dati->size() / kByteCampione);
    const uint8_t* da = dati->data();
    for (SampleRecord& passo : passi)
        for (int16_t& livello : passo.Livello) {
            livello = static_cast<int16_t>(LeggiLittle<uint16_t>(da));
            da += sizeof livello;
        }
    return passi;
}

bool StessaFrequenza(double aMhz, double bMhz) {
    return std::abs(aMhz - bMhz) < kStessaFrequenzaMhz;
}

void NotaCoperto(SweepTrace& coperti, const CampioneTraccia& vincitore,
                 const CampioneTraccia& perdente) {
    const bool aperto =
        !coperti.empty() && StessaFrequenza(coperti.back().freqMhz, vincitore.freqMhz);
    bool copre = aperto;
    for (size_t d = 0; d < kNumDetector; ++d)
        copre |= perdente.livello[d] > std::max(vincitore.livello[d], kNessunLivello);
    if (!copre)
        return;
    if (!aperto)
        coperti.push_back(vincitore);
    for (size_t d = 0; d < kNumDetector; ++d)
        coperti.back().livello[d] =
            std::max({coperti.back().livello[d], vincitore.livello[d], perdente.livello[d]});
}

SweepTrace CreaTracciaSweep(const Scrivania& s, std::string_view misura, std::string_view base,
                            const ScanTable& tabella, DetectorKind detector,
                            const OpzioniTraccia& opzioni) {
    const bool MergeTrace = !Acceso(s.ambiente.RigaComando(), interruttore::kRsComp);
    std::vector<RigaLetta> righe = LeggiRighe(s.albero, misura, base, tabella, opzioni);
    SweepTrace traccia = Fondi(righe, {static_cast<size_t>(detector), MergeTrace, opzioni.coperti});
    SegnaStacchi(traccia, tabella);
    return traccia;
}

} // namespace orvane
