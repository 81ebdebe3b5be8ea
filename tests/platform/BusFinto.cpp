#include "platform/BusFinto.h"

#include <algorithm>

namespace orvane::prova {

BusFinto*& Bus() {
    static BusFinto* bus = nullptr;
    return bus;
}

void BusFinto::Ricevi(const std::string& testo) {
    Arrivo arrivo;
    for (size_t da = 0; da == 0 || da < testo.size(); da += pacchetto - 2) {
        arrivo.grezzi.insert(arrivo.grezzi.end(), {0x01, 0x60});
        const std::string parte = testo.substr(da, pacchetto - 2);
        arrivo.grezzi.insert(arrivo.grezzi.end(), parte.begin(), parte.end());
    }
    arrivi.push_back(std::move(arrivo));
}

int BusFinto::Riferimenti() const {
    int tutti = 0;
    for (const libusb_device& d : dispositivi)
        tutti += d.riferimenti;
    return tutti;
}

int BusFinto::Chiama(const std::string& cosa) {
    chiamate.push_back(cosa);
    return staccato ? -1 : 0;
}

} // namespace orvane::prova

using orvane::prova::Arrivo;
using orvane::prova::Bus;

namespace {

void Ritorna(libusb_transfer* transfer, const Arrivo& arrivo) {
    const auto posto = static_cast<size_t>(transfer->length);
    transfer->actual_length = static_cast<int>(std::min(arrivo.grezzi.size(), posto));
    std::copy_n(arrivo.grezzi.begin(), transfer->actual_length, transfer->buffer);
    transfer->status = arrivo.grezzi.size() > posto ? LIBUSB_TRANSFER_OVERFLOW : arrivo.stato;
    transfer->callback(transfer);
}

} // namespace

extern "C" {

ftdi_context* ftdi_new() {
    Bus()->ftdi.usb_ctx = &Bus()->contesto;
    Bus()->ftdi.out_ep = 0x81;
    return Bus()->installato ? &Bus()->ftdi : nullptr;
}
void ftdi_free(ftdi_context*) {
    Bus()->Chiama("free");
}
int ftdi_usb_open_dev(ftdi_context* ftdi, libusb_device* dev) {
    if (!dev->permesso)
        return -4;
    ftdi->max_packet_size = Bus()->pacchetto;
    return Bus()->Chiama("open " + dev->descrizione);
}
int ftdi_usb_close(ftdi_context*) {
    return Bus()->Chiama("close");
}
int ftdi_set_latency_timer(ftdi_context*, unsigned char ms) {
    return Bus()->Chiama("latency " + std::to_string(ms));
}
int ftdi_setflowctrl(ftdi_context*, int flow) {
    return Bus()->Chiama("flow " + std::to_string(flow));
}
int ftdi_setdtr_rts(ftdi_context*, int dtr, int rts) {
    return Bus()->Chiama("dtr " + std::to_string(dtr) + " rts " + std::to_string(rts));
}
int ftdi_set_baudrate(ftdi_context*, int baud) {
    return Bus()->Chiama("baud " + std::to_string(baud));
}
int ftdi_set_line_property(ftdi_context*, ftdi_bits_type bits, ftdi_stopbits_type stop,
                           ftdi_parity_type parity) {
    return Bus()->Chiama("line " + std::to_string(bits) + " " + std::to_string(stop) + " " +
                         std::to_string(parity));
}
int ftdi_write_data_set_chunksize(ftdi_context*, unsigned size) {
    return Bus()->Chiama("chunk " + std::to_string(size));
}
int ftdi_write_data(ftdi_context*, const unsigned char* data, int size) {
    if (Bus()->staccato)
        return -19;
    const int n = std::min(size, Bus()->scrittiAlPiu);
    Bus()->scritti.insert(Bus()->scritti.end(), data, data + n);
    return n;
}
int ftdi_tcioflush(ftdi_context*) {
    return Bus()->Chiama("flush");
}

ssize_t libusb_get_device_list(libusb_context*, libusb_device*** list) {
    if (!Bus()->elencabile)
        return LIBUSB_ERROR_NO_MEM;
    auto& tutti = Bus()->dispositivi;
    *list = new libusb_device*[tutti.size() + 1]();
    for (size_t i = 0; i < tutti.size(); ++i)
        (*list)[i] = libusb_ref_device(&tutti[i]);
    return static_cast<ssize_t>(tutti.size());
}
void libusb_free_device_list(libusb_device** list, int unref) {
    for (libusb_device** uno = list; unref != 0 && *uno != nullptr; ++uno)
        libusb_unref_device(*uno);
    delete[] list;
}
libusb_device* libusb_ref_device(libusb_device* dev) {
    ++dev->riferimenti;
    return dev;
}
void libusb_unref_device(libusb_device* dev) {
    --dev->riferimenti;
}
int libusb_get_device_descriptor(libusb_device* dev, libusb_device_descriptor* desc) {
    desc->idVendor = dev->venditore;
    desc->iProduct = 2;
    return 0;
}
int libusb_open(libusb_device* dev, libusb_device_handle** handle) {
    if (!dev->permesso)
        return LIBUSB_ERROR_ACCESS;
    *handle = new libusb_device_handle{dev};
    Bus()->aperti.push_back(*handle);
    return 0;
}
void libusb_close(libusb_device_handle* handle) {
    std::erase(Bus()->aperti, handle);
    delete handle;
}
int libusb_get_string_descriptor_ascii(libusb_device_handle* handle, uint8_t index,
                                       unsigned char* data, int length) {
    const std::string& testo = handle->dispositivo->descrizione;
    if (index != 2)
        return LIBUSB_ERROR_NOT_FOUND;
    const size_t n = std::min(testo.size(), static_cast<size_t>(length - 1));
    std::copy_n(testo.begin(), n, data);
    data[n] = 0;
    return static_cast<int>(n);
}

libusb_transfer* libusb_alloc_transfer(int) {
    return new libusb_transfer();
}
void libusb_free_transfer(libusb_transfer* transfer) {
    delete transfer;
}
int libusb_submit_transfer(libusb_transfer* transfer) {
    if (Bus()->staccato)
        return LIBUSB_ERROR_NO_DEVICE;
    if (Bus()->inVolo.size() >= Bus()->prestito)
        return LIBUSB_ERROR_NO_MEM;
    Bus()->inVolo.push_back(transfer);
    return 0;
}
int libusb_cancel_transfer(libusb_transfer* transfer) {
    transfer->status = LIBUSB_TRANSFER_CANCELLED;
    return 0;
}
/// As the library does: a limited number of them in one call, cancelled ones included.
int libusb_handle_events_timeout_completed(libusb_context*, timeval*, int*) {
    for (int quanti = 0; quanti < 25 && !Bus()->inVolo.empty(); ++quanti) {
        libusb_transfer* transfer = Bus()->inVolo.front();
        const bool ritirato = transfer->status == LIBUSB_TRANSFER_CANCELLED;
        if (!ritirato && Bus()->arrivi.empty() && !Bus()->staccato)
            break;
        Arrivo arrivo;
        if (ritirato)
            arrivo.stato = LIBUSB_TRANSFER_CANCELLED;
        else if (Bus()->arrivi.empty())
            arrivo.stato = LIBUSB_TRANSFER_NO_DEVICE;
        else {
            arrivo = Bus()->arrivi.front();
            Bus()->arrivi.pop_front();
        }
        Bus()->inVolo.pop_front();
        Ritorna(transfer, arrivo);
    }
    return 0;
}
}
