#include "platform/Interruzioni.h"

#include <algorithm>
#include <cmath>
#include <ctime>

namespace orvane {
namespace {

// A handler reaches nothing but these.
volatile std::sig_atomic_t arrivate = 0;
volatile std::sig_atomic_t servite = 0;
volatile std::sig_atomic_t ultima = SIGINT;

constexpr int kTroppe = 3;

void Conta(int segnale) {
    ultima = segnale;
    arrivate = arrivate + 1;
    if (arrivate - servite < kTroppe)
        return;
    std::signal(segnale, SIG_DFL);
    std::raise(segnale);
}

timespec TempoDa(double secondi) {
    const double intero = std::floor(secondi);
    return {.tv_sec = static_cast<time_t>(intero),
            .tv_nsec = static_cast<long>((secondi - intero) * 1e9)};
}

} // namespace

Interruzioni::Interruzioni() {
    arrivate = 0;
    servite = 0;
    struct sigaction azione = {};
    azione.sa_handler = Conta; // without SA_RESTART: a sleep ends
    sigemptyset(&azione.sa_mask);
    sigaction(SIGINT, &azione, &primaInt_);
    sigaction(SIGTERM, &azione, &primaTerm_);
}

Interruzioni::~Interruzioni() {
    sigaction(SIGINT, &primaInt_, nullptr);
    sigaction(SIGTERM, &primaTerm_, nullptr);
}

int Interruzioni::DaServire() const {
    return arrivate - servite;
}

int Interruzioni::Prendi() {
    servite = servite + 1;
    return servite;
}

void Interruzioni::Termina() const {
    const int segnale = ultima;
    std::signal(segnale, SIG_DFL);
    std::raise(segnale);
}

bool Interruzioni::Dormi(pollfd& occhio, double secondi) const {
    // Held back from here on, a signal that comes between the look and the sleep ends the sleep.
    sigset_t trattieni;
    sigset_t prima;
    sigemptyset(&trattieni);
    sigaddset(&trattieni, SIGINT);
    sigaddset(&trattieni, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &trattieni, &prima);
    int pronti = 0;
    if (DaServire() == 0) {
        const timespec tempo = TempoDa(std::clamp(secondi, 0.0, 3600.0));
        pronti = ppoll(&occhio, 1, &tempo, &prima);
    }
    pthread_sigmask(SIG_SETMASK, &prima, nullptr);
    return pronti > 0;
}

} // namespace orvane
