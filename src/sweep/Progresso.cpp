#include "sweep/Progresso.h"

#include <algorithm>

#include "records/FreqTableRecord.h"
#include "setup/CommutatoriSweep.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

// What a step takes besides its hold time: tuning and the way over the link, in ms.
constexpr double kMsPerPasso = 0.1;
// Below this share the speed so far tells nothing yet.
constexpr double kFrazioneMinima = 0.005;

} // namespace

Progresso::Progresso(const Ambiente& ambiente, const ScanTable& tabella, int ancillaryKind)
    : ambiente_(ambiente), inizio_(ambiente.Adesso()) {
    for (size_t i = 0; i < RigheInUso(tabella); ++i) {
        const ScanLine& riga = tabella[i];
        // How many a frequency table has is known when its line is about to run.
        const PesoRiga peso{.passi = riga.StepMode == 1 ? static_cast<long long>(kMaxFreqTable)
                                                        : PassiDellaRiga(riga),
                            .perPasso = std::max<double>(riga.HoldTime, 0) + kMsPerPasso,
                            .passate =
                                static_cast<int>(PassateDellaRiga(riga, ancillaryKind).size())};
        totale_ += peso.Peso() * peso.passate;
        righe_.push_back(peso);
    }
}

void Progresso::IniziaRiga(int riga) {
    finite_ = 0;
    for (int i = 0; i < riga; ++i)
        finite_ += righe_[static_cast<size_t>(i)].Peso() * righe_[static_cast<size_t>(i)].passate;
    riga_ = riga;
    rigaFinita_ = false;
    IniziaPassata(0, {});
}

void Progresso::IniziaPassata(int passata, std::string_view nome) {
    passata_ = passata;
    nomePassata_ = nome;
    passiRiga_ = 0;
}

void Progresso::CorreggiRiga(long long passi) {
    PesoRiga& peso = righe_[static_cast<size_t>(riga_)];
    if (passi <= 0 || peso.passi <= 0)
        return;
    // The line takes the time it was going to take, in other steps.
    peso.perPasso *= static_cast<double>(peso.passi) / static_cast<double>(passi);
    peso.passi = passi;
}

double Progresso::PesoFatto() const {
    const PesoRiga& riga = righe_[static_cast<size_t>(riga_)];
    if (rigaFinita_)
        return riga.Peso() * riga.passate;
    return riga.Peso() * passata_ +
           static_cast<double>(std::min(passiRiga_, riga.passi)) * riga.perPasso;
}

Avanzamento Progresso::Adesso() const {
    Avanzamento ora{.riga = riga_, .numRighe = static_cast<int>(righe_.size())};
    ora.passiRiga = passiRiga_;
    ora.passata = passata_;
    ora.nomePassata = nomePassata_;
    if (!righe_.empty()) {
        ora.totaleRiga = righe_[static_cast<size_t>(riga_)].passi;
        ora.numPassate = righe_[static_cast<size_t>(riga_)].passate;
    }
    ora.trascorsiS = ambiente_.Adesso() - inizio_;
    if (totale_ > 0)
        ora.frazione = std::min(1.0, (finite_ + PesoFatto()) / totale_);
    if (ora.frazione >= kFrazioneMinima)
        ora.restanoS = (ora.trascorsiS - pauseS_) * (1 - ora.frazione) / ora.frazione;
    return ora;
}

} // namespace orvane
