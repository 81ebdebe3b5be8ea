// Traces and positions of any bytes, under scan lines of any numbers: the trace is in order, no
// longer than its files, and no level comes from nowhere.
#include <algorithm>
#include <cmath>

#include "Scrivania.h"
#include "data/Misure.h"

namespace orvane::prova {
namespace {

/// Takes the input piece by piece; zeros behind its end.
class Pezzi {
public:
    explicit Pezzi(std::span<const uint8_t> byte) : byte_(byte) {}
    std::span<const uint8_t> Prendi(size_t quanti) {
        const auto pezzo = byte_.first(std::min(quanti, byte_.size()));
        byte_ = byte_.subspan(pezzo.size());
        return pezzo;
    }
    uint8_t Uno() {
        const auto pezzo = Prendi(1);
        return pezzo.empty() ? 0 : pezzo[0];
    }
    double Reale() {
        uint8_t otto[8] = {};
        std::ranges::copy(Prendi(8), otto);
        return std::bit_cast<double>(LeggiLittle<uint64_t>(otto));
    }

private:
    std::span<const uint8_t> byte_;
};

constexpr int kRighe = 3;

size_t MettiRiga(const ScrivaniaFuzz& f, Pezzi& pezzi, ScanLine& riga, int n) {
    const uint8_t forma = pezzi.Uno();
    // Sane numbers make lines meet; the others may be anything.
    riga.Start = forma & 1 ? pezzi.Reale() : 1 + pezzi.Uno() * 0.1;
    riga.Step = forma & 2 ? pezzi.Reale() : 0.1;
    riga.StepMode = forma & 4 ? 1 : 0;
    const auto rs = pezzi.Prendi(pezzi.Uno());
    f.Metti("Sweep/m/m.RS" + std::to_string(n), rs);
    if (forma & 8)
        f.Metti("Sweep/m/m.TM" + std::to_string(n), pezzi.Prendi(pezzi.Uno()));
    return rs.size() / kByteCampione;
}

void Prova(ScrivaniaFuzz& f, Pezzi pezzi) {
    ScanTable tabella;
    const uint8_t scelta = pezzi.Uno();
    f.ambiente.riga = scelta & 128 ? "/RSCOMP" : "";
    size_t passi = 0;
    for (int n = 0; n < kRighe; ++n)
        passi += MettiRiga(f, pezzi, tabella[static_cast<size_t>(n)], n);
    const OpzioniTraccia opzioni{
        .vista = static_cast<ViewMode>(1 + scelta % 3),
        .frequenza = [&](const ScanLine&, size_t) { return std::optional(pezzi.Reale()); }};
    const SweepTrace traccia = CreaTracciaSweep(
        f.s, "m", "m", tabella, static_cast<DetectorKind>(scelta % kNumDetector), opzioni);
    Pretendi(traccia.size() <= passi);
    for (size_t i = 0; i < traccia.size(); ++i) {
        Pretendi(std::isfinite(traccia[i].freqMhz) && traccia[i].riga < kRighe);
        // The same frequency may keep the winner's last bits.
        Pretendi(i == 0 || traccia[i].freqMhz - traccia[i - 1].freqMhz > -1e-9);
    }
}

} // namespace
} // namespace orvane::prova

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    using namespace orvane::prova;
    static ScrivaniaFuzz fissa;
    const auto cartella = fissa.cartella.Percorso() / "Sweep" / "m";
    std::filesystem::remove_all(cartella);
    std::filesystem::create_directories(cartella);
    Prova(fissa, Pezzi({dati, quanti}));
    return 0;
}
