#include "sweep/FlussoSweep.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cmath>
#include <cstring>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "records/Visite.h"

namespace orvane {
namespace {

constexpr std::string_view kFineSweep = "SFD_END";
constexpr size_t kByteIntestazione = 32;
constexpr size_t kMaxRiscontro = 4096;

constexpr std::array<std::string_view, 9> kParoleErrore = {"",
                                                           "set start or stop freq.",
                                                           "set step freq.",
                                                           "set detector",
                                                           "set Hold Time",
                                                           "set RBW",
                                                           "set MinAtt",
                                                           "set Preamp.",
                                                           "set Presel."};

std::string_view ComeTesto(std::span<const uint8_t> dati) {
    return {reinterpret_cast<const char*>(dati.data()), dati.size()};
}

/// Where the end mark begins; npos when it is not there as a whole. Looks only at its first letter
/// until one is met: samples hardly ever hold it.
size_t TrovaFine(std::string_view dati) {
    size_t da = 0;
    while (da + kFineSweep.size() <= dati.size()) {
        const void* lettera = std::memchr(dati.data() + da, kFineSweep[0], dati.size() - da);
        if (!lettera)
            break;
        da = static_cast<size_t>(static_cast<const char*>(lettera) - dati.data());
        if (dati.substr(da, kFineSweep.size()) == kFineSweep)
            return da;
        ++da;
    }
    return std::string_view::npos;
}

/// How many bytes at the end could be the beginning of the end mark, and so are no samples yet.
size_t CodaSospesa(std::string_view dati) {
    for (size_t n = std::min(kFineSweep.size() - 1, dati.size()); n > 0; --n)
        if (dati.substr(dati.size() - n) == kFineSweep.substr(0, n))
            return n;
    return 0;
}

} // namespace

std::string_view ParoleErroreSweep(int codice) {
    const bool noto = codice > 0 && codice < static_cast<int>(kParoleErrore.size());
    return noto ? kParoleErrore[static_cast<size_t>(codice)] : std::string_view();
}

double ArrotondaPasso5520F(float hz) {
    const double scala = hz < 10 ? 1e8 : hz < 100 ? 1e7 : 1e6;
    return std::round(static_cast<double>(hz) / 1e6 * scala) / scala;
}

LettoreFlusso::LettoreFlusso(const std::array<int16_t, kNumDetector>& detector, bool con5520F)
    : con5520F_(con5520F) {
    for (size_t d = 0; d < kNumDetector; ++d)
        if (detector[d] != 0)
            quali_.push_back(static_cast<int>(d));
    assert(!quali_.empty());
}

LettoreFlusso::Stato
LettoreFlusso::Avanza(Accumulo& dati,
                      const std::function<void(std::span<const SampleRecord>)>& passi) {
    while (stato_ == Stato::Riscontro && LeggiRiscontro(dati)) {
    }
    if (stato_ == Stato::Intestazione)
        LeggiIntestazione(dati);
    if (stato_ == Stato::Campioni)
        LeggiCampioni(dati, passi);
    return stato_;
}

/// Takes one line; false while none is whole. A line of another command's is passed over.
bool LettoreFlusso::LeggiRiscontro(Accumulo& dati) {
    const std::string_view testo = ComeTesto(dati.Dati());
    const auto fine = testo.find("\r\n");
    if (fine == std::string_view::npos) {
        // No line is that long: of what is none, only a CR at the end may still matter.
        if (testo.size() > kMaxRiscontro)
            dati.Consuma(testo.size() - 1);
        return false;
    }
    const std::string riga(testo.substr(0, fine));
    dati.Consuma(fine + 2);
    if (!Contiene(riga, "SFD"))
        return true;
    riscontro_ = riga;
    if (Contiene(riga, "OK")) {
        stato_ = con5520F_ ? Stato::Intestazione : Stato::Campioni;
    } else {
        stato_ = Stato::Rifiutato;
        codiceErrore_ =
            static_cast<int>(std::clamp(ValoreIniziale(Dietro(riga, "ERR")), 0.0, 1000.0));
    }
    return true;
}

void LettoreFlusso::LeggiIntestazione(Accumulo& dati) {
    if (dati.Quanti() < kByteIntestazione)
        return;
    const auto hz = std::bit_cast<float>(LeggiLittle<uint32_t>(dati.Dati().data()));
    if (std::isfinite(hz) && ArrotondaPasso5520F(hz) > 0)
        passo_ = ArrotondaPasso5520F(hz);
    dati.Consuma(kByteIntestazione);
    stato_ = Stato::Campioni;
}

void LettoreFlusso::LeggiCampioni(Accumulo& dati,
                                  const std::function<void(std::span<const SampleRecord>)>& passi) {
    const std::string_view testo = ComeTesto(dati.Dati());
    const size_t fine = TrovaFine(testo);
    const bool finito = fine != std::string_view::npos;
    const size_t utili = finito ? fine : testo.size() - CodaSospesa(testo);
    const size_t interi = PassiInteri(utili, quali_.size());
    blocco_.resize(interi);
    DecodificaPassi(dati.Dati(), quali_, blocco_);
    if (interi > 0)
        passi(blocco_);
    if (finito) {
        // Behind the mark comes nothing of the sweep, and a part-step before it is no step.
        dati.Azzera();
        stato_ = Stato::Finito;
    } else {
        dati.Consuma(interi * kByteLivello * quali_.size());
    }
}

} // namespace orvane
