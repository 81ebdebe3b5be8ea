#include "platform/Tastiera.h"

#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace orvane {

bool Tastiera::Presente() {
    return isatty(STDIN_FILENO) != 0 && isatty(STDERR_FILENO) != 0;
}

std::optional<std::string> Tastiera::LeggiRiga() {
    pollfd occhio = {.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
    while (letti_.find('\n') == std::string::npos && poll(&occhio, 1, 0) > 0) {
        char pezzo[256];
        const ssize_t quanti = read(STDIN_FILENO, pezzo, sizeof pezzo);
        if (quanti <= 0)
            letti_ += '\n';
        else
            letti_.append(pezzo, static_cast<size_t>(quanti));
    }
    const size_t fine = letti_.find('\n');
    if (fine == std::string::npos)
        return std::nullopt;
    std::string riga = letti_.substr(0, fine);
    letti_.erase(0, fine + 1);
    return riga;
}

void Tastiera::Dimentica() {
    letti_.clear();
    tcflush(STDIN_FILENO, TCIFLUSH);
}

} // namespace orvane
