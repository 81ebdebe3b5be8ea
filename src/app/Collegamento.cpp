#include "app/Collegamento.h"

#include <cmath>

#include "base/Numeri.h"
#include "base/Testo.h"

namespace orvane {
namespace {

/// The text behind `testa`, where the text begins with it.
std::optional<std::string_view> Dopo(std::string_view testo, std::string_view testa) {
    if (!testo.starts_with(testa))
        return std::nullopt;
    return testo.substr(testa.size());
}

} // namespace

Collegamento::Collegamento(const Ambiente& ambiente, SorvegliaLink& sorveglia,
                           const std::filesystem::path& dataRoot)
    : ambiente_(ambiente), sorveglia_(sorveglia), seriale_(sorveglia), usb_(sorveglia),
      porte_(dataRoot / "Ports") {}

Vettori Collegamento::VettoriPorta() {
    return {.seriale = &seriale_, .usb = &usb_, .catalogo = &porte_};
}

std::string Collegamento::Applica(std::string_view link, Porta& porta) {
    if (link.empty())
        return {};
    if (link == "usb") {
        porta.link.TipoLink = 1;
        return {};
    }
    if (const auto numero = Dopo(link, "com:")) {
        const auto com = LeggiNumero(*numero);
        if (!com || *com < 1 || *com > 999 || *com != std::trunc(*com))
            return "com: wants a port number, as in com:3";
        porta.link.TipoLink = 0;
        porta.link.NumeroCom = static_cast<int16_t>(*com);
        return {};
    }
    if (const auto percorso = Dopo(link, "tty:")) {
        porta.fisso = LinkFisso{&seriale_, std::string(*percorso), std::string(*percorso)};
        return percorso->empty() ? "tty: wants a path, as in tty:/dev/ttyUSB0" : std::string();
    }
    if (link == "sim" || link.starts_with("sim:") || link.starts_with("sim,"))
        return ApplicaSimulatore(link.substr(link.starts_with("sim:") ? 4 : 3), porta);
    return "unknown link \"" + std::string(link) + "\": sim, usb, com:N or tty:PATH";
}

std::string Collegamento::ApplicaSimulatore(std::string_view opzioni, Porta& porta) {
    std::string errore;
    const auto lette = LeggiOpzioniSimulatore(opzioni, errore);
    if (!lette)
        return errore;
    simulato_ = std::make_unique<RicevitoreSimulato>(*lette);
    flussoSimulato_ = std::make_unique<FlussoSimulato>(ambiente_, *simulato_);
    // Nothing of the system's can tell the pump that a receiver in memory speaks.
    sorveglia_.senzaAvviso = true;
    porta.fisso = LinkFisso{flussoSimulato_.get(), lette->modello, "simulated " + lette->modello};
    return {};
}

} // namespace orvane
