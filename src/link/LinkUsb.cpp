// The USB side of the link: finding the receiver on the bus, opening, draining, closing.
#include "base/Testo.h"
#include "link/LinkPort.h"

namespace orvane {
namespace {

constexpr uint32_t kBaud = 115200;
constexpr uint32_t kTrasferimentoIngresso = 320;
constexpr uint32_t kTrasferimentoUscita = 4096;
constexpr int kTentativi = 4;
constexpr double kSilenzioSvuota = 0.05;
constexpr std::string_view kNomeRicevitore = "5520 / 5540";

bool Riuscito(StatoUsb stato) {
    return stato == 0u;
}

/// What a listing of the bus came to.
struct Ricerca {
    bool conDriver = true;
    std::string trovato;   ///< the literal that matched
    std::string altroNome; ///< the first device of some other name
};

void Esamina(const std::string& descrizione, const NomiUsb& nomi, Ricerca& ricerca) {
    for (const std::string& nome : nomi.nomi)
        if (ContieneSenzaMaiuscole(descrizione, nome)) {
            ricerca.trovato = nome;
            return;
        }
    if (ricerca.altroNome.empty())
        ricerca.altroNome = descrizione.substr(0, descrizione.find('\0'));
}

Ricerca CercaSulBus(DriverUsb& usb, const NomiUsb& nomi) {
    Ricerca ricerca;
    uint32_t quanti = 0;
    const StatoUsb stato = usb.ListaNumero(quanti);
    ricerca.conDriver = stato.has_value();
    for (uint32_t i = 0; Riuscito(stato) && i < quanti && ricerca.trovato.empty(); ++i) {
        std::string descrizione;
        const StatoUsb letta = usb.ListaDescrizione(i, descrizione);
        if (!letta)
            break;
        if (Riuscito(letta))
            Esamina(descrizione, nomi, ricerca);
    }
    return ricerca;
}

std::string TestoNonTrovato(const std::string& altroNome) {
    std::string testo = "Cannot find " + std::string(kNomeRicevitore) + "\r on the USB bus.\r";
    if (!altroNome.empty())
        testo += "(Found a device named ''" + altroNome + "'')";
    return testo;
}

} // namespace

NomiUsb NomiUsb::Oem() {
    return {{"60 OEM", "5520 / 5540", "USB <-> Serial", "FT232R USB UART", "60 OEM", "OEM T4470K",
             "OEM VSD3"}};
}

bool Porta::ApriUsb(bool mostraErrori) {
    ChiudiPorta();
    if (link.UsbNonDisponibile)
        return false;
    const std::string descrizione = TrovaDispositivoUsb(mostraErrori);
    if (descrizione.empty())
        return false;
    DriverUsb& usb = *vettori_.usb;
    const bool aperta = Riuscito(usb.Apri(descrizione, handleUsb_)) &&
                        Riuscito(usb.ImpostaBaud(handleUsb_, kBaud)) &&
                        Riuscito(usb.ImpostaCaratteristiche(handleUsb_, 8, 0, 0));
    if (!aperta) {
        AbbandonaUsb();
        ErroreUsb(mostraErrori, "Cannot open USB " + std::string(kNomeRicevitore));
        return false;
    }
    usb.ImpostaTrasferimenti(handleUsb_, kTrasferimentoIngresso, kTrasferimentoUscita);
    aperto_ = Aperto::Usb;
    return true;
}

/// Lets go of a handle that was opened and could not be set up.
void Porta::AbbandonaUsb() {
    if (handleUsb_ != kHandleUsbChiuso)
        vettori_.usb->Chiudi(handleUsb_);
    handleUsb_ = kHandleUsbChiuso;
}

std::string Porta::TrovaDispositivoUsb(bool mostraErrori) {
    Ricerca ricerca;
    for (int tentativo = 0; tentativo < kTentativi; ++tentativo) {
        link.PortaNonDisponibile = false;
        link.UsbNonDisponibile = false;
        ricerca = CercaSulBus(*vettori_.usb, nomiUsb);
        if (!ricerca.conDriver) {
            // No box: the missing driver has its own, once a run.
            link.UsbNonDisponibile = true;
            link.motivo = "USB driver not installed";
            return {};
        }
        if (!ricerca.trovato.empty())
            return ricerca.trovato;
    }
    ErroreUsb(mostraErrori, TestoNonTrovato(ricerca.altroNome));
    return {};
}

void Porta::ErroreUsb(bool mostraErrori, const std::string& testo) {
    if (!mostraErrori) {
        link.motivo = Rifila(Sostituisci(testo, "\r", " "));
        return;
    }
    ambiente_.Mostra({.testo = testo, .icona = Icona::Stop});
    link.UsbNonDisponibile = true;
}

bool Porta::ChiudiUsb() {
    if (aperto_ == Aperto::Usb)
        aperto_ = Aperto::Niente;
    if (!vettori_.usb->Installato()) {
        handleUsb_ = kHandleUsbChiuso;
        return false;
    }
    const StatoUsb stato = vettori_.usb->Chiudi(handleUsb_);
    handleUsb_ = kHandleUsbChiuso;
    if (stato)
        return *stato == 0;
    link.UsbNonDisponibile = true;
    if (!link.DriverUsbSegnalato) {
        link.DriverUsbSegnalato = true;
        ambiente_.Mostra({.testo = "Impossible to find FTD2XX.dll\rPlease install USB Driver",
                          .icona = Icona::Esclamazione});
    }
    return false;
}

bool Porta::ScriviUsb(std::span<const uint8_t> dati) {
    if (handleUsb_ == kHandleUsbChiuso && !ApriPorta(false))
        return false;
    size_t scritti = 0;
    return Riuscito(vettori_.usb->Scrivi(handleUsb_, dati, scritti));
}

size_t Porta::InCodaUsb() {
    size_t quanti = 0;
    return Riuscito(vettori_.usb->InCoda(handleUsb_, quanti)) ? quanti : 0;
}

bool Porta::LeggiUsb(std::span<uint8_t> dove, size_t& letti) {
    return Riuscito(vettori_.usb->Leggi(handleUsb_, dove, letti));
}

void Porta::SvuotaUsb() {
    Scadenza silenzio(ambiente_, kSilenzioSvuota);
    do {
        if (ByteInCoda() > 0) {
            if (!Riuscito(vettori_.usb->Svuota(handleUsb_)))
                return;
            silenzio.Rinnova(kSilenzioSvuota);
        }
        ambiente_.ElaboraEventi(silenzio.Rimane(), Veglia::EventiELink);
    } while (!stato_.AbbandonaComandi && !silenzio.Passata());
}

} // namespace orvane
