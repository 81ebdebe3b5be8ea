// The text form of a simulated receiver: model and what follows it.
#include <charconv>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "simulator/ModelliSimulati.h"
#include "simulator/RicevitoreSimulato.h"

namespace orvane {
namespace {

bool ApplicaFirmware(std::string_view valore, OpzioniSimulatore& opzioni, std::string& errore) {
    const auto numero = LeggiNumero(valore);
    if (!numero || *numero <= 0 || valore.find(' ') != std::string_view::npos) {
        errore = "firmware \"" + std::string(valore) + "\" is no version such as 2.15";
        return false;
    }
    opzioni.firmware = Sostituisci(valore, ",", ".");
    return true;
}

template <class Numero>
bool ApplicaIntero(std::string_view nome, std::string_view valore, Numero& numero,
                   std::string& errore) {
    Numero letto = 0;
    const auto esito = std::from_chars(valore.data(), valore.data() + valore.size(), letto);
    if (esito.ec != std::errc{} || esito.ptr != valore.data() + valore.size()) {
        errore = std::string(nome) + " \"" + std::string(valore) + "\" is no whole number";
        return false;
    }
    numero = letto;
    return true;
}

bool ApplicaVelocita(std::string_view valore, OpzioniSimulatore& opzioni, std::string& errore) {
    if (valore == "line")
        opzioni.byteAlSecondo = kByteAlSecondoLinea;
    else if (valore == "full")
        opzioni.byteAlSecondo = 0;
    else {
        errore = "speed \"" + std::string(valore) + "\" is neither line nor full";
        return false;
    }
    return true;
}

bool ApplicaParola(std::string_view parola, OpzioniSimulatore& opzioni, std::string& errore) {
    const auto uguale = parola.find('=');
    const std::string chiave = Rifila(parola.substr(0, uguale));
    const std::string valore =
        uguale == std::string_view::npos ? std::string() : Rifila(parola.substr(uguale + 1));
    if (chiave == "fw")
        return ApplicaFirmware(valore, opzioni, errore);
    if (chiave == "seed")
        return ApplicaIntero("seed", valore, opzioni.seme, errore);
    if (chiave == "port")
        return ApplicaIntero("port", valore, opzioni.userPort, errore);
    if (chiave == "speed")
        return ApplicaVelocita(valore, opzioni, errore);
    errore = "unknown word \"" + std::string(parola) + "\": fw=, seed=, speed= or port= expected";
    return false;
}

bool ApplicaModello(const std::string& nome, OpzioniSimulatore& opzioni, std::string& errore) {
    if (nome.empty())
        return true;
    const ModelloSimulato* modello = TrovaModello(nome);
    if (!modello) {
        errore = "unknown model \"" + nome + "\"; known are " + Unisci(ModelliSimulati(), ", ");
        return false;
    }
    opzioni.modello = modello->nome;
    return true;
}

} // namespace

std::optional<OpzioniSimulatore> LeggiOpzioniSimulatore(std::string_view testo,
                                                        std::string& errore) {
    OpzioniSimulatore opzioni;
    const std::vector<std::string> parole = Dividi(testo, ',');
    if (!ApplicaModello(Rifila(parole.front()), opzioni, errore))
        return std::nullopt;
    for (size_t i = 1; i < parole.size(); ++i)
        if (!ApplicaParola(parole[i], opzioni, errore))
            return std::nullopt;
    return opzioni;
}

} // namespace orvane
