#include "platform/DriverFtdi.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include <ftdi.h>
#include <libusb.h>

#include "base/Testo.h"
#include "platform/LetturaUsb.h"

namespace orvane {
namespace {

constexpr uint16_t kVenditoreFtdi = 0x0403;
constexpr unsigned char kLatenzaMs = 2;
constexpr int kAttesaScritturaMs = 1000;
constexpr size_t kMisuraIngresso = 320;
constexpr size_t kLunghezzaDescrizione = 256;

namespace stato {
constexpr uint32_t kRiuscito = 0;
constexpr uint32_t kHandleErrato = 1;
constexpr uint32_t kNonTrovato = 2;
constexpr uint32_t kNonAperto = 3;
constexpr uint32_t kErroreIo = 4;
constexpr uint32_t kParametroErrato = 6;
} // namespace stato

/// Calls of the library return a negative number for an error.
uint32_t StatoDa(int esito) {
    return esito < 0 ? stato::kErroreIo : stato::kRiuscito;
}

struct LiberaContesto {
    void operator()(ftdi_context* contesto) const { ftdi_free(contesto); }
};
struct LasciaDispositivo {
    void operator()(libusb_device* dispositivo) const { libusb_unref_device(dispositivo); }
};
using Dispositivo = std::unique_ptr<libusb_device, LasciaDispositivo>;

/// Every device of the vendor, in the order of the bus.
std::optional<std::vector<Dispositivo>> CercaDispositivi(libusb_context* contesto) {
    libusb_device** tutti = nullptr;
    const ssize_t quanti = libusb_get_device_list(contesto, &tutti);
    if (quanti < 0)
        return std::nullopt;
    std::vector<Dispositivo> trovati;
    for (libusb_device* uno : std::span(tutti, static_cast<size_t>(quanti))) {
        libusb_device_descriptor scheda = {};
        if (libusb_get_device_descriptor(uno, &scheda) == 0 && scheda.idVendor == kVenditoreFtdi)
            trovati.emplace_back(libusb_ref_device(uno));
    }
    libusb_free_device_list(tutti, 1);
    return trovati;
}

/// What the device calls itself; empty where it may not be asked.
std::optional<std::string> LeggiDescrizione(libusb_device* dispositivo) {
    libusb_device_descriptor scheda = {};
    libusb_device_handle* handle = nullptr;
    if (libusb_get_device_descriptor(dispositivo, &scheda) != 0 ||
        libusb_open(dispositivo, &handle) != 0)
        return std::nullopt;
    std::array<unsigned char, kLunghezzaDescrizione> testo = {};
    const int n = libusb_get_string_descriptor_ascii(handle, scheda.iProduct, testo.data(),
                                                     static_cast<int>(testo.size()));
    libusb_close(handle);
    if (n < 0)
        return std::nullopt;
    return std::string(testo.begin(), testo.begin() + n);
}

/// The device of exactly this description, else the first whose description holds it.
libusb_device* Scegli(const std::vector<Dispositivo>& dispositivi, const std::string& nome) {
    libusb_device* simile = nullptr;
    for (const Dispositivo& uno : dispositivi) {
        const auto descrizione = LeggiDescrizione(uno.get());
        if (!descrizione)
            continue;
        if (*descrizione == nome)
            return uno.get();
        if (simile == nullptr && ContieneSenzaMaiuscole(*descrizione, nome))
            simile = uno.get();
    }
    return simile;
}

} // namespace

/// One device at a time; a new opening has a new handle, so that an old one is not taken for it.
struct DriverFtdi::Interno {
    explicit Interno(SorvegliaLink& s) : sorveglia(s) {}

    SorvegliaLink& sorveglia;
    std::unique_ptr<ftdi_context, LiberaContesto> contesto;
    std::vector<Dispositivo> elenco;
    LetturaUsb lettura;
    size_t misuraIngresso = kMisuraIngresso;
    HandleUsb aperto = kHandleUsbChiuso;
    HandleUsb ultimo = 0;

    bool Pronto();
    bool Vale(HandleUsb handle) const { return handle != kHandleUsbChiuso && handle == aperto; }
    bool Aggiorna();
    void Prepara();
    bool Ascolta();
    int ChiudiDispositivo();
};

bool DriverFtdi::Interno::Pronto() {
    if (!contesto)
        contesto.reset(ftdi_new());
    return contesto != nullptr;
}

bool DriverFtdi::Interno::Aggiorna() {
    auto nuovi = CercaDispositivi(contesto->usb_ctx);
    if (!nuovi)
        return false;
    elenco = std::move(*nuovi);
    return true;
}

/// What every opening wants and no call of the seam asks for. A failure shows in the calls that
/// follow.
void DriverFtdi::Interno::Prepara() {
    contesto->usb_write_timeout = kAttesaScritturaMs;
    ftdi_set_latency_timer(contesto.get(), kLatenzaMs);
    ftdi_setflowctrl(contesto.get(), SIO_DISABLE_FLOW_CTRL);
    ftdi_setdtr_rts(contesto.get(), 1, 1);
}

bool DriverFtdi::Interno::Ascolta() {
    // The library counts endpoints from the chip's side: its `out_ep` is what comes in here.
    return lettura.Avvia({.contesto = contesto->usb_ctx,
                          .dispositivo = contesto->usb_dev,
                          .punto = static_cast<uint8_t>(contesto->out_ep),
                          .pacchetto = contesto->max_packet_size},
                         misuraIngresso);
}

int DriverFtdi::Interno::ChiudiDispositivo() {
    lettura.Ferma();
    lettura.coda.clear();
    aperto = kHandleUsbChiuso;
    sorveglia.senzaAvviso = false;
    return ftdi_usb_close(contesto.get());
}

DriverFtdi::DriverFtdi(SorvegliaLink& sorveglia) : io_(std::make_unique<Interno>(sorveglia)) {}

DriverFtdi::~DriverFtdi() {
    if (io_->aperto != kHandleUsbChiuso)
        io_->ChiudiDispositivo();
}

bool DriverFtdi::Installato() {
    return io_->Pronto();
}

StatoUsb DriverFtdi::ListaNumero(uint32_t& quanti) {
    quanti = 0;
    if (!io_->Pronto())
        return std::nullopt;
    if (!io_->Aggiorna())
        return stato::kErroreIo;
    quanti = static_cast<uint32_t>(io_->elenco.size());
    return stato::kRiuscito;
}

StatoUsb DriverFtdi::ListaDescrizione(uint32_t indice, std::string& descrizione) {
    descrizione.clear();
    if (!io_->Pronto())
        return std::nullopt;
    if (indice >= io_->elenco.size())
        return stato::kNonTrovato;
    auto testo = LeggiDescrizione(io_->elenco[indice].get());
    if (!testo)
        return stato::kNonAperto;
    descrizione = std::move(*testo);
    return stato::kRiuscito;
}

StatoUsb DriverFtdi::Apri(const std::string& descrizione, HandleUsb& handle) {
    handle = kHandleUsbChiuso;
    if (!io_->Pronto())
        return std::nullopt;
    if (io_->aperto != kHandleUsbChiuso)
        io_->ChiudiDispositivo();
    if (!io_->Aggiorna())
        return stato::kErroreIo;
    libusb_device* scelto = Scegli(io_->elenco, descrizione);
    if (scelto == nullptr)
        return stato::kNonTrovato;
    // The kernel's own serial driver is sent away, and called back at the close.
    io_->contesto->module_detach_mode = AUTO_DETACH_REATACH_SIO_MODULE;
    if (ftdi_usb_open_dev(io_->contesto.get(), scelto) < 0)
        return stato::kNonAperto;
    io_->Prepara();
    io_->misuraIngresso = kMisuraIngresso;
    handle = io_->aperto = ++io_->ultimo;
    io_->sorveglia.senzaAvviso = true;
    return stato::kRiuscito;
}

StatoUsb DriverFtdi::ImpostaBaud(HandleUsb handle, uint32_t baud) {
    if (!io_->Pronto())
        return std::nullopt;
    if (!io_->Vale(handle))
        return stato::kHandleErrato;
    return StatoDa(ftdi_set_baudrate(io_->contesto.get(), static_cast<int>(baud)));
}

StatoUsb DriverFtdi::ImpostaCaratteristiche(HandleUsb handle, int bitDati, int bitStop,
                                            int parita) {
    if (!io_->Pronto())
        return std::nullopt;
    if (!io_->Vale(handle))
        return stato::kHandleErrato;
    if (bitDati < 7 || bitDati > 8 || bitStop < 0 || bitStop > 2 || parita < 0 || parita > 4)
        return stato::kParametroErrato;
    return StatoDa(ftdi_set_line_property(io_->contesto.get(), static_cast<ftdi_bits_type>(bitDati),
                                          static_cast<ftdi_stopbits_type>(bitStop),
                                          static_cast<ftdi_parity_type>(parita)));
}

StatoUsb DriverFtdi::ImpostaTrasferimenti(HandleUsb handle, uint32_t ingresso, uint32_t uscita) {
    if (!io_->Pronto())
        return std::nullopt;
    if (!io_->Vale(handle))
        return stato::kHandleErrato;
    io_->lettura.Ferma();
    io_->misuraIngresso = ingresso;
    if (!io_->Ascolta())
        return stato::kErroreIo;
    return StatoDa(ftdi_write_data_set_chunksize(io_->contesto.get(), uscita));
}

StatoUsb DriverFtdi::Scrivi(HandleUsb handle, std::span<const uint8_t> dati, size_t& scritti) {
    scritti = 0;
    if (!io_->Pronto())
        return std::nullopt;
    if (!io_->Vale(handle))
        return stato::kHandleErrato;
    const int n = ftdi_write_data(io_->contesto.get(), dati.data(), static_cast<int>(dati.size()));
    scritti = static_cast<size_t>(std::max(n, 0));
    return scritti == dati.size() ? stato::kRiuscito : stato::kErroreIo;
}

StatoUsb DriverFtdi::Leggi(HandleUsb handle, std::span<uint8_t> dove, size_t& letti) {
    letti = 0;
    size_t pronti = 0;
    const StatoUsb esito = InCoda(handle, pronti);
    // What came before the device failed is still good.
    if (pronti == 0 && esito != stato::kRiuscito)
        return esito;
    auto& coda = io_->lettura.coda;
    letti = std::min(dove.size(), coda.size());
    const auto fine = coda.begin() + static_cast<std::ptrdiff_t>(letti);
    std::copy(coda.begin(), fine, dove.begin());
    coda.erase(coda.begin(), fine);
    return stato::kRiuscito;
}

StatoUsb DriverFtdi::InCoda(HandleUsb handle, size_t& quanti) {
    quanti = 0;
    if (!io_->Pronto())
        return std::nullopt;
    if (!io_->Vale(handle))
        return stato::kHandleErrato;
    const bool viva = io_->Ascolta() && io_->lettura.Raccogli();
    quanti = io_->lettura.coda.size();
    return viva || quanti > 0 ? stato::kRiuscito : stato::kErroreIo;
}

StatoUsb DriverFtdi::Svuota(HandleUsb handle) {
    size_t quanti = 0;
    if (const StatoUsb esito = InCoda(handle, quanti); esito != stato::kRiuscito)
        return esito;
    const int esito = ftdi_tcioflush(io_->contesto.get());
    io_->lettura.Raccogli();
    io_->lettura.coda.clear();
    return StatoDa(esito);
}

StatoUsb DriverFtdi::Chiudi(HandleUsb handle) {
    if (!io_->Pronto())
        return std::nullopt;
    if (!io_->Vale(handle))
        return stato::kHandleErrato;
    return StatoDa(io_->ChiudiDispositivo());
}

} // namespace orvane
