// The binary stream of a sweep: acknowledgement, header of the 5520F, level samples, end mark.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "link/LinkPort.h"
#include "link/Livelli.h"
#include "records/SampleRecord.h"

namespace orvane {

/// Words of the parameter that an "SFD=ERR n" names; empty for an unknown number.
std::string_view ParoleErroreSweep(int codice);

/// Step that a 5520F announces, from Hz to MHz, with its rounding: 8 decimals below 10 Hz, 7 below
/// 100 Hz, 6 above.
double ArrotondaPasso5520F(float hz);

/// Reads a pass's stream out of the accumulation buffer, as far as it has come. Bytes may be split
/// anywhere.
class LettoreFlusso {
public:
    enum class Stato {
        Riscontro,    ///< waiting for the line that acknowledges
        Intestazione, ///< waiting for the 32 bytes of the 5520F
        Campioni,
        Finito,   ///< the end mark was seen
        Rifiutato ///< "SFD=ERR", or an acknowledgement of another form
    };

    /// `detector`: flags of the detectors on the wire; at least one.
    LettoreFlusso(const std::array<int16_t, kNumDetector>& detector, bool con5520F);

    /// Takes what it can from `dati`, consumes it, and hands whole steps to `passi`, in blocks that
    /// live only for the call. No allocation once the first block has been seen.
    Stato Avanza(Accumulo& dati, const std::function<void(std::span<const SampleRecord>)>& passi);

    Stato StatoAttuale() const { return stato_; }
    /// Step announced by a 5520F, MHz.
    std::optional<double> PassoAnnunciato() const { return passo_; }
    /// Number behind "ERR" of a refusal; 0 when there is none.
    int CodiceErrore() const { return codiceErrore_; }
    /// The acknowledgement as it came, for messages.
    const std::string& Riscontro() const { return riscontro_; }

private:
    bool LeggiRiscontro(Accumulo& dati);
    void LeggiIntestazione(Accumulo& dati);
    void LeggiCampioni(Accumulo& dati,
                       const std::function<void(std::span<const SampleRecord>)>& passi);

    std::vector<int> quali_; ///< `DetectorKind` of each sample of a step
    bool con5520F_;
    Stato stato_ = Stato::Riscontro;
    std::optional<double> passo_;
    int codiceErrore_ = 0;
    std::string riscontro_;
    std::vector<SampleRecord> blocco_;
};

} // namespace orvane
