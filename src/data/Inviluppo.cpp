#include "data/Inviluppo.h"

#include <algorithm>
#include <limits>

#include "base/Numeri.h"
#include "data/Avvisi.h"
#include "data/Cartelle.h"
#include "data/Misure.h"
#include "data/SubMisure.h"

namespace orvane {
namespace {

constexpr double kMai = std::numeric_limits<double>::infinity();

/// Levels that are none count alike.
int16_t Valore(int16_t livello) {
    return std::max(livello, kNessunLivello);
}

/// A trace on its way into the envelope.
struct Corsia {
    const SweepTrace* traccia;
    size_t k = 0;

    double Mhz() const { return k < traccia->size() ? (*traccia)[k].freqMhz : kMai; }
    const CampioneTraccia& Qui() const { return (*traccia)[k]; }
    /// Its line comes from the sample before and goes on to this one.
    bool Continua() const { return k > 0 && k < traccia->size() && !Qui().stacco; }
};

double PiuBassa(const std::vector<Corsia>& corsie) {
    double mhz = kMai;
    for (const Corsia& corsia : corsie)
        mhz = std::min(mhz, corsia.Mhz());
    return mhz;
}

/// The best sample of one frequency; moves the traces that have it behind it.
CampioneTraccia Migliore(std::vector<Corsia>& corsie, double mhz, size_t detector,
                         SweepTrace* coperti) {
    const CampioneTraccia* migliore = nullptr;
    for (Corsia& corsia : corsie) {
        if (corsia.Mhz() != mhz && !StessaFrequenza(corsia.Mhz(), mhz))
            continue;
        const CampioneTraccia* altro = &corsia.Qui();
        ++corsia.k;
        if (!migliore || Valore(altro->livello[detector]) > Valore(migliore->livello[detector]))
            std::swap(migliore, altro);
        if (coperti && altro)
            NotaCoperto(*coperti, *migliore, *altro);
    }
    return *migliore;
}

/// The positions that a name tells, for the traces whose samples have none.
PositionRecord PosizioneDaNome(const std::string& base) {
    const std::string titolo = NomeSubMisuraEsteso(base, PrioritaAssi::Mast);
    const auto dietro = [&](std::string_view chiave) {
        const auto dove = titolo.find(chiave);
        return dove == std::string::npos
                   ? kNessunaPosizione
                   : static_cast<int16_t>(ValoreIniziale(titolo.substr(dove + chiave.size())));
    };
    return {dietro("Mast: "), dietro("Table: ")};
}

std::string PercorsoSub(const std::string& misura, std::string_view base, std::string_view genere,
                        int riga) {
    return CartellaSubMisure(misura) + std::string(base) + "." + std::string(genere) +
           TestoIntero(riga);
}

bool SalvaRiga(const Scrivania& s, const std::string& misura, int numero, const RigaInviluppo& riga,
               std::span<const std::string> posizioni) {
    std::vector<uint8_t> byte;
    for (const size_t quale : riga.quale) {
        const auto record = ScriviRecord(PosizioneDaNome(posizioni[quale]));
        byte.insert(byte.end(), record.begin(), record.end());
    }
    const std::string tm = PercorsoSub(misura, submisura::kPosizioniInv, "TM", numero);
    const std::string rs = PercorsoSub(misura, submisura::kInviluppo, "RS", numero);
    if (!s.albero.Salva(tm, byte))
        return AvvisaScrittura(s, tm);
    return SalvaTraccia(s, rs, riga.passi) || AvvisaScrittura(s, rs);
}

} // namespace

SweepTrace InviluppoTracce(std::span<const std::shared_ptr<const SweepTrace>> tracce,
                           DetectorKind detector, SweepTrace* coperti) {
    std::vector<Corsia> corsie;
    for (const auto& traccia : tracce)
        corsie.push_back({traccia.get()});
    SweepTrace inviluppo;
    for (double mhz = PiuBassa(corsie); mhz != kMai; mhz = PiuBassa(corsie)) {
        const bool continua =
            std::ranges::any_of(corsie, [](const Corsia& corsia) { return corsia.Continua(); });
        inviluppo.push_back(Migliore(corsie, mhz, static_cast<size_t>(detector), coperti));
        inviluppo.back().stacco = !continua;
    }
    return inviluppo;
}

RigaInviluppo InviluppoRiga(std::span<const std::vector<SampleRecord>> righe,
                            DetectorKind detector) {
    const auto d = static_cast<size_t>(detector);
    RigaInviluppo inviluppo;
    for (size_t i = 0; i < righe.size(); ++i)
        for (size_t k = 0; k < righe[i].size(); ++k) {
            const SampleRecord& questo = righe[i][k];
            if (k >= inviluppo.passi.size()) {
                inviluppo.passi.push_back(questo);
                inviluppo.quale.push_back(i);
            } else if (Valore(questo.Livello[d]) > Valore(inviluppo.passi[k].Livello[d])) {
                inviluppo.passi[k] = questo;
                inviluppo.quale[k] = i;
            }
        }
    return inviluppo;
}

bool SalvaInviluppoPosizioni(const Scrivania& s, const std::string& misura,
                             std::span<const std::string> posizioni, DetectorKind detector) {
    for (int numero = 0; numero < static_cast<int>(kMaxScanLine); ++numero) {
        std::vector<std::vector<SampleRecord>> righe;
        for (const std::string& posizione : posizioni)
            righe.push_back(LeggiTraccia(s, PercorsoSub(misura, posizione, "RS", numero)));
        const RigaInviluppo riga = InviluppoRiga(righe, detector);
        if (!riga.passi.empty() && !SalvaRiga(s, misura, numero, riga, posizioni))
            return false;
    }
    return true;
}

} // namespace orvane
