#include "platform/PseudoTerminale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace orvane {
namespace {

std::string NomeServo(int padrone) {
    std::array<char, 128> nome = {};
    if (grantpt(padrone) != 0 || unlockpt(padrone) != 0 ||
        ptsname_r(padrone, nome.data(), nome.size()) != 0)
        return {};
    return nome.data();
}

bool RendiCruda(int linea) {
    termios modi = {};
    if (tcgetattr(linea, &modi) != 0)
        return false;
    cfmakeraw(&modi);
    return tcsetattr(linea, TCSANOW, &modi) == 0;
}

void ChiudiDescrittore(int& descrittore) {
    if (descrittore >= 0)
        close(std::exchange(descrittore, -1));
}

} // namespace

PseudoTerminale::PseudoTerminale() {
    padrone_ = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (padrone_ < 0)
        return;
    const std::string nome = NomeServo(padrone_);
    if (!nome.empty())
        guardiano_ = open(nome.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (guardiano_ >= 0 && RendiCruda(guardiano_))
        percorso_ = nome;
    else
        Stacca();
}

PseudoTerminale::~PseudoTerminale() {
    Stacca();
}

void PseudoTerminale::Attendi(double secondi, bool ancheScrivere) {
    // A client that died leaves its mark of exclusive use on the line that the guardian keeps up.
    if (guardiano_ >= 0)
        ioctl(guardiano_, TIOCNXCL);
    const auto eventi = static_cast<short>(ancheScrivere ? POLLIN | POLLOUT : POLLIN);
    pollfd occhio = {.fd = padrone_, .events = eventi, .revents = 0};
    const double millisecondi = std::ceil(std::clamp(secondi, 0.0, 3600.0) * 1000);
    poll(&occhio, 1, static_cast<int>(millisecondi));
}

size_t PseudoTerminale::Leggi(std::span<uint8_t> dove) {
    const ssize_t n = read(padrone_, dove.data(), dove.size());
    return n > 0 ? static_cast<size_t>(n) : 0;
}

size_t PseudoTerminale::Scrivi(std::span<const uint8_t> dati) {
    const ssize_t n = write(padrone_, dati.data(), dati.size());
    return n > 0 ? static_cast<size_t>(n) : 0;
}

void PseudoTerminale::Stacca() {
    ChiudiDescrittore(padrone_);
    ChiudiDescrittore(guardiano_);
}

} // namespace orvane
