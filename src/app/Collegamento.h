// The link as a program makes it: the platform's carriers, the simulated receiver, and what the
// option --link chooses among them.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "base/Ambiente.h"
#include "link/LinkPort.h"
#include "platform/DriverFtdi.h"
#include "platform/PortaSeriale.h"
#include "platform/PorteSistema.h"
#include "platform/SorvegliaLink.h"
#include "simulator/FlussoSimulato.h"

namespace orvane {

class Collegamento {
public:
    Collegamento(const Ambiente& ambiente, SorvegliaLink& sorveglia,
                 const std::filesystem::path& dataRoot);

    Vettori VettoriPorta();
    CatalogoPorte& Catalogo() { return porte_; }

    /// "sim[:MODEL][,fw=X.YZ][,seed=N][,speed=line|full][,port=N]", "usb", "com:N", "tty:PATH"; an
    /// empty text leaves the panel's choice. What is wrong with the text, empty when nothing is.
    std::string Applica(std::string_view link, Porta& porta);

    /// The receiver in memory, for as long as there is one.
    RicevitoreSimulato* Simulato() { return simulato_.get(); }

private:
    std::string ApplicaSimulatore(std::string_view opzioni, Porta& porta);

    const Ambiente& ambiente_;
    SorvegliaLink& sorveglia_;
    PortaSeriale seriale_;
    DriverFtdi usb_;
    PorteSistema porte_;
    std::unique_ptr<RicevitoreSimulato> simulato_;
    std::unique_ptr<FlussoSimulato> flussoSimulato_;
};

} // namespace orvane
