// The six operations of the link, and the serial carriers behind them.
#include "link/LinkPort.h"

#include <algorithm>

#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "link/LogTraffico.h"

namespace orvane {
namespace {

constexpr double kAttesaRiapertura = 0.5;

/// Why a serial device did not open, in the words of the status line.
std::string Motivo(const std::string& nome, EsitoApertura esito) {
    switch (esito) {
    case EsitoApertura::Aperto:
        return {};
    case EsitoApertura::InUso:
        return nome + " in use";
    case EsitoApertura::Assente:
        return nome + " not Available: no such device";
    case EsitoApertura::Vietato:
        return nome + " not Available: permission denied";
    case EsitoApertura::Guasto:
        break;
    }
    return nome + " not Available";
}

std::string NomeCom(int numero) {
    return "COM Port COM" + TestoIntero(numero);
}

std::span<const uint8_t> InByte(const std::string& testo) {
    return {reinterpret_cast<const uint8_t*>(testo.data()), testo.size()};
}

EsitoApertura ApriNumero(const Vettori& vettori, int numero) {
    const auto porte = vettori.catalogo->Elenca();
    const int quale = TrovaIDComSelezionata(porte, numero);
    if (quale < 0)
        return EsitoApertura::Assente;
    return vettori.seriale->Apri(porte[static_cast<size_t>(quale)].dispositivo);
}

} // namespace

std::span<uint8_t> Accumulo::Spazio(size_t n) {
    if (inizio_ == fine_)
        inizio_ = fine_ = 0;
    // The rest moves to the front only when it is no longer than what has been used up before it:
    // so no byte moves more than once for each byte that passes through.
    if (byte_.size() - fine_ < n && inizio_ > 0 && Quanti() <= inizio_) {
        const size_t resto = Quanti();
        std::copy_n(byte_.data() + inizio_, resto, byte_.data());
        inizio_ = 0;
        fine_ = resto;
    }
    if (byte_.size() - fine_ < n)
        byte_.resize(std::max(2 * byte_.size(), fine_ + n));
    return std::span(byte_).subspan(fine_, n);
}

Porta::Porta(Ambiente& ambiente, StatoProtocollo& stato, LogTraffico& log, Vettori vettori)
    : ambiente_(ambiente), stato_(stato), log_(log), vettori_(vettori) {}

bool Porta::ApriPorta(bool mostraErrori) {
    ChiudiAltro();
    link.PortaNonDisponibile = false;
    link.UsbNonDisponibile = false;
    link.motivo.clear();
    if (fisso)
        return ApriFisso();
    if (link.TipoLink == 1)
        return ApriUsb(mostraErrori);
    link.IsBluetooth = RilevaBluetooth(vettori_.catalogo->Elenca(), link.NumeroCom);
    return link.IsBluetooth ? ApriBluetooth() : ApriCom();
}

bool Porta::ApriCom() {
    const int numero = ComForzata(ambiente_.RigaComando()).value_or(link.NumeroCom);
    return EsitoSeriale(Aperto::Com, NomeCom(numero), ApriNumero(vettori_, numero));
}

bool Porta::ApriFisso() {
    return EsitoSeriale(Aperto::Fisso, fisso->descrizione, fisso->flusso->Apri(fisso->nome));
}

bool Porta::EsitoSeriale(Aperto quale, const std::string& nome, EsitoApertura esito) {
    aperto_ = esito == EsitoApertura::Aperto ? quale : Aperto::Niente;
    link.PortaNonDisponibile = aperto_ == Aperto::Niente;
    link.motivo = Motivo(nome, esito);
    return aperto_ == quale;
}

bool Porta::ApriBluetooth() {
    if (ApriNumero(vettori_, link.NumeroCom) == EsitoApertura::Aperto) {
        aperto_ = Aperto::Bluetooth;
        return true;
    }
    ambiente_.Mostra({.testo = "COMM PORT " + TestoIntero(link.NumeroCom) + " not Available"});
    link.PortaNonDisponibile = true;
    return false;
}

/// The link stays chosen even where the port does not come back yet: the next failure tries again.
void Porta::RiapriBluetooth() {
    vettori_.seriale->Chiudi();
    ApriNumero(vettori_, link.NumeroCom);
    Attendi(ambiente_, kAttesaRiapertura);
}

/// Closes what is open; the USB handle only when the link is no longer the USB one, since its own
/// close has more to say.
void Porta::ChiudiAltro() {
    if (FlussoByte* flusso = Flusso()) {
        flusso->Chiudi();
        aperto_ = Aperto::Niente;
    }
    if (aperto_ == Aperto::Usb && (fisso || link.TipoLink != 1))
        ChiudiUsb();
}

bool Porta::ChiudiPorta() {
    ChiudiAltro();
    link.PortaNonDisponibile = false;
    link.UsbNonDisponibile = false;
    return fisso || link.TipoLink != 1 || ChiudiUsb();
}

bool Porta::ScriviPorta(std::string_view comando) {
    log_.Comando(stato_, comando);
    const std::string ansi = InAnsi(comando);
    if (!fisso && link.TipoLink == 1)
        return ScriviUsb(InByte(ansi));
    FlussoByte* flusso = Flusso();
    if (!flusso)
        return false;
    if (ansi.empty() || flusso->Scrivi(InByte(ansi)))
        return true;
    if (aperto_ == Aperto::Bluetooth)
        RiapriBluetooth();
    return false;
}

size_t Porta::ByteInCoda() {
    if (aperto_ == Aperto::Usb)
        return InCodaUsb();
    FlussoByte* flusso = Flusso();
    if (!flusso)
        return 0;
    const auto quanti = flusso->InArrivo();
    if (!quanti && aperto_ != Aperto::Bluetooth) {
        flusso->Chiudi();
        aperto_ = Aperto::Niente;
    }
    return quanti.value_or(0);
}

std::vector<uint8_t> Porta::LeggiPorta(size_t n) {
    std::vector<uint8_t> dati(n);
    if (n == 0)
        return dati;
    size_t letti = 0;
    // The driver's own count is not looked at: a read that succeeds gives all that was asked for.
    if (aperto_ == Aperto::Usb)
        letti = LeggiUsb(dati, letti) ? n : 0;
    else
        letti = LeggiSeriale(dati);
    dati.resize(letti);
    return dati;
}

size_t Porta::LeggiInAccumulo(size_t n) {
    if (n == 0)
        return 0;
    const std::span<uint8_t> dove = accumulo.Spazio(n);
    size_t letti = 0;
    if (aperto_ == Aperto::Usb)
        letti = LeggiUsb(dove, letti) ? std::min(letti, n) : 0;
    else
        letti = LeggiSeriale(dove);
    accumulo.Aggiunti(letti);
    return letti;
}

size_t Porta::LeggiSeriale(std::span<uint8_t> dove) {
    FlussoByte* flusso = Flusso();
    const auto letti = flusso ? flusso->Leggi(dove) : 0;
    if (!letti && aperto_ == Aperto::Bluetooth)
        RiapriBluetooth();
    return std::min(letti.value_or(0), dove.size());
}

void Porta::SvuotaRicezione() {
    if (aperto_ == Aperto::Usb)
        SvuotaUsb();
    else if (FlussoByte* flusso = Flusso())
        flusso->Scarta();
    accumulo.Azzera();
}

bool Porta::Aperta() const {
    const FlussoByte* flusso = Flusso();
    return aperto_ == Aperto::Usb || (flusso && flusso->Aperto());
}

bool Porta::Seriale() const {
    return fisso || link.TipoLink != 1;
}

std::optional<size_t> Porta::Arretrato() {
    FlussoByte* flusso = Flusso();
    const auto arretrato = flusso ? flusso->DaSpedire() : std::nullopt;
    if (arretrato || aperto_ != Aperto::Bluetooth)
        return arretrato;
    RiapriBluetooth();
    return flusso->DaSpedire();
}

std::string Porta::NomePorta() const {
    if (fisso)
        return fisso->descrizione;
    return link.TipoLink == 1 ? "USB 5520 / 5540" : NomeCom(link.NumeroCom);
}

std::string Porta::Descrizione() const {
    if (fisso)
        return " (" + fisso->descrizione + ")";
    if (link.TipoLink == 1)
        return " (USB)";
    return " (COM" + TestoIntero(link.NumeroCom) + (link.IsBluetooth ? " Bluetooth)" : ")");
}

FlussoByte* Porta::Flusso() const {
    switch (aperto_) {
    case Aperto::Com:
    case Aperto::Bluetooth:
        return vettori_.seriale;
    case Aperto::Fisso:
        return fisso ? fisso->flusso : nullptr;
    case Aperto::Niente:
    case Aperto::Usb:
        break;
    }
    return nullptr;
}

} // namespace orvane
