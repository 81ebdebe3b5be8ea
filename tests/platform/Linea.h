// A serial line for tests: a pseudo terminal, the carrier that opens it, and a second process that
// acts from outside.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/PortaSeriale.h"
#include "platform/PseudoTerminale.h"

namespace orvane::prova {

inline std::vector<uint8_t> Byte(std::string_view testo) {
    return {testo.begin(), testo.end()};
}

struct Linea {
    PseudoTerminale pseudo;
    SorvegliaLink sorveglia;
    PortaSeriale porta{sorveglia};

    EsitoApertura Apri() { return porta.Apri(pseudo.Percorso()); }

    /// What comes out at the master's end, `n` bytes or as many as come before the line is silent.
    std::vector<uint8_t> ArrivatiAlPadrone(size_t n) {
        return Raccogli(n, [&](std::span<uint8_t> dove) {
            pseudo.Attendi(2, false);
            return pseudo.Leggi(dove);
        });
    }
    /// Likewise at the carrier's end.
    std::vector<uint8_t> ArrivatiAllaPorta(size_t n) {
        return Raccogli(n, [&](std::span<uint8_t> dove) {
            pollfd occhio = {.fd = sorveglia.descrittore, .events = POLLIN, .revents = 0};
            poll(&occhio, 1, 2000);
            return porta.Leggi(dove).value_or(0);
        });
    }

private:
    static std::vector<uint8_t> Raccogli(size_t n,
                                         const std::function<size_t(std::span<uint8_t>)>& leggi) {
        std::vector<uint8_t> raccolti(n);
        size_t quanti = 0;
        while (quanti < n) {
            const size_t nuovi = leggi(std::span(raccolti).subspan(quanti));
            if (nuovi == 0)
                break;
            quanti += nuovi;
        }
        raccolti.resize(quanti);
        return raccolti;
    }
};

/// Exit status of a child process that does `cosa` and ends with its result.
inline int EsitoAltrove(const std::function<int()>& cosa) {
    const pid_t figlio = fork();
    if (figlio == 0)
        _exit(cosa());
    int stato = 0;
    waitpid(figlio, &stato, 0);
    return WIFEXITED(stato) ? WEXITSTATUS(stato) : -1;
}

/// A process that does something once this one has gone to sleep, and then wants to hear from it.
/// What would have slept on is known by its silence, not by a clock of the test.
class Disturbo {
public:
    explicit Disturbo(const std::function<void()>& cosa) {
        if (pipe(canale_) != 0)
            return;
        figlio_ = fork();
        if (figlio_ != 0)
            return;
        close(canale_[1]);
        usleep(50'000);
        cosa();
        pollfd occhio = {.fd = canale_[0], .events = POLLIN, .revents = 0};
        _exit(poll(&occhio, 1, 5000) == 1 ? 0 : 1);
    }
    Disturbo(const Disturbo&) = delete;
    Disturbo& operator=(const Disturbo&) = delete;
    ~Disturbo() {
        close(canale_[0]);
        close(canale_[1]);
    }
    /// Tells that this process is awake; whether the other one was still there to hear it.
    bool SonoSveglio() {
        int stato = -1;
        const bool detto = write(canale_[1], "!", 1) == 1;
        waitpid(figlio_, &stato, 0);
        return detto && WIFEXITED(stato) && WEXITSTATUS(stato) == 0;
    }

private:
    int canale_[2] = {-1, -1};
    pid_t figlio_ = -1;
};

} // namespace orvane::prova
