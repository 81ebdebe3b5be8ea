// The link: which carrier is chosen, its state, and the six operations that all the rest sees.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Ambiente.h"
#include "link/DriverUsb.h"
#include "link/FlussoByte.h"
#include "link/PorteCom.h"
#include "link/StatoProtocollo.h"

namespace orvane {

class LogTraffico;

/// Link settings and run-time state of the link.
struct LinkPort {
    int16_t TipoLink = 1;  ///< 0 serial, 1 USB
    int16_t NumeroCom = 1; ///< 1 or more
    bool IsBluetooth = false;
    bool PortaNonDisponibile = false; ///< the last serial open failed
    bool UsbNonDisponibile = false;   ///< the last USB open failed, or there is no driver
    bool DriverUsbSegnalato = false;  ///< the missing driver has been told once
    std::string motivo = {};          ///< why the last open failed, in words, where no box told it
};

/// A stream that takes the place of the chosen link: the receiver in memory, or a device by path.
struct LinkFisso {
    FlussoByte* flusso = nullptr;
    std::string nome;        ///< what `flusso` opens by
    std::string descrizione; ///< how the window names it
};

/// What the platform lends to the port. None may be null.
struct Vettori {
    FlussoByte* seriale = nullptr;
    DriverUsb* usb = nullptr;
    CatalogoPorte* catalogo = nullptr;
};

/// Bytes received and not yet used, read at the front and filled at the back.
class Accumulo {
public:
    std::span<const uint8_t> Dati() const {
        return std::span(byte_).subspan(inizio_, fine_ - inizio_);
    }
    size_t Quanti() const { return fine_ - inizio_; }
    /// Room for `n` more bytes; to be followed by `Aggiunti` with those that came.
    std::span<uint8_t> Spazio(size_t n);
    void Aggiunti(size_t n) { fine_ += n; }
    void Consuma(size_t n) { inizio_ += n; }
    void Azzera() { inizio_ = fine_ = 0; }

private:
    std::vector<uint8_t> byte_;
    size_t inizio_ = 0;
    size_t fine_ = 0;
};

/// Names under which a receiver is looked for on the USB bus, in the order of the tests. The
/// literal that matches is also what the device is opened by.
struct NomiUsb {
    std::vector<std::string> nomi = {"5520 / 5540", "USB <-> Serial", "FT232R USB UART",
                                     "KRV 3360"};
    static NomiUsb Oem();
};

class Porta {
public:
    Porta(Ambiente& ambiente, StatoProtocollo& stato, LogTraffico& log, Vettori vettori);

    LinkPort link;
    NomiUsb nomiUsb;
    /// When set, every open goes there and `link` is not looked at.
    std::optional<LinkFisso> fisso;
    /// The shared accumulation buffer; reset by `SvuotaRicezione`.
    Accumulo accumulo;

    /// Closes whatever was open and opens the selected carrier. `mostraErrori` decides only about
    /// the boxes of a USB failure.
    bool ApriPorta(bool mostraErrori);
    bool ChiudiPorta();
    /// Logs the command, then writes it, one byte a character and nothing behind it.
    bool ScriviPorta(std::string_view comando);
    /// Received bytes waiting; 0 on any failure or while closed.
    size_t ByteInCoda();
    /// Up to `n` bytes; empty on failure, and at once for 0.
    std::vector<uint8_t> LeggiPorta(size_t n);
    /// Appends up to `n` waiting bytes to `accumulo`, without a copy in between; how many came.
    size_t LeggiInAccumulo(size_t n);
    void SvuotaRicezione();

    bool Aperta() const;
    /// Whether the transmit backlog is worth a look: serial links only.
    bool Seriale() const;
    /// Bytes written and not yet sent; empty when that cannot be read.
    std::optional<size_t> Arretrato();
    /// "COM Port COM3", "USB 5520 / 5540", or what stands in their place.
    std::string NomePorta() const;
    /// " (USB)", or the COM number with " Bluetooth" where it applies.
    std::string Descrizione() const;

private:
    enum class Aperto { Niente, Com, Bluetooth, Usb, Fisso };

    bool ApriCom();
    bool ApriFisso();
    bool EsitoSeriale(Aperto quale, const std::string& nome, EsitoApertura esito);
    bool ApriBluetooth();
    void RiapriBluetooth();
    void ChiudiAltro();
    size_t LeggiSeriale(std::span<uint8_t> dove);
    FlussoByte* Flusso() const;

    bool ApriUsb(bool mostraErrori);
    void AbbandonaUsb();
    std::string TrovaDispositivoUsb(bool mostraErrori);
    void ErroreUsb(bool mostraErrori, const std::string& testo);
    bool ChiudiUsb();
    bool ScriviUsb(std::span<const uint8_t> dati);
    size_t InCodaUsb();
    bool LeggiUsb(std::span<uint8_t> dove, size_t& letti);
    void SvuotaUsb();

    Ambiente& ambiente_;
    StatoProtocollo& stato_;
    LogTraffico& log_;
    Vettori vettori_;
    Aperto aperto_ = Aperto::Niente;
    HandleUsb handleUsb_ = kHandleUsbChiuso;
};

} // namespace orvane
