#include "platform/PortaSeriale.h"

#include <cerrno>
#include <chrono>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace orvane {
namespace {

using Orologio = std::chrono::steady_clock;

/// Longest that a write waits for room in all: the line takes 11 bytes a millisecond.
constexpr std::chrono::milliseconds kAttesaScrittura{1000};

EsitoApertura EsitoDaErrno(int errore) {
    switch (errore) {
    case ENOENT:
    case ENODEV:
    case ENXIO:
        return EsitoApertura::Assente;
    case EBUSY:
        return EsitoApertura::InUso;
    case EACCES:
    case EPERM:
        return EsitoApertura::Vietato;
    default:
        return EsitoApertura::Guasto;
    }
}

/// The mark of the terminal layer does not bind root, and the lock binds only those who ask for
/// it; together they keep everyone out.
bool PrendiPerSe(int descrittore) {
    if (flock(descrittore, LOCK_EX | LOCK_NB) != 0)
        return false;
    ioctl(descrittore, TIOCEXCL);
    return true;
}

bool ImpostaLinea(int descrittore) {
    termios linea = {};
    if (tcgetattr(descrittore, &linea) != 0)
        return false;
    cfmakeraw(&linea);
    linea.c_iflag &= ~static_cast<tcflag_t>(IXON | IXOFF | IXANY);
    linea.c_cflag &= ~static_cast<tcflag_t>(CSTOPB | CRTSCTS);
    linea.c_cflag |= CLOCAL | CREAD;
    linea.c_cc[VMIN] = 0;
    linea.c_cc[VTIME] = 0;
    if (cfsetispeed(&linea, B115200) != 0 || cfsetospeed(&linea, B115200) != 0)
        return false;
    // A success of this call only means that some of the settings were taken.
    return tcsetattr(descrittore, TCSANOW, &linea) == 0 && tcgetattr(descrittore, &linea) == 0 &&
           cfgetospeed(&linea) == B115200 && (linea.c_cflag & CSIZE) == CS8;
}

void AccendiRtsDtr(int descrittore) {
    const int segnali = TIOCM_RTS | TIOCM_DTR;
    ioctl(descrittore, TIOCMBIS, &segnali); // a pseudo terminal has none
}

/// Whether the device behind the descriptor is gone.
bool Caduto(int descrittore) {
    pollfd occhio = {.fd = descrittore, .events = 0, .revents = 0};
    return poll(&occhio, 1, 0) > 0 && (occhio.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}

/// Waits until the descriptor takes bytes again; false when it is too late for that.
bool AttendiPosto(int descrittore, Orologio::time_point fine) {
    const auto resto = std::chrono::ceil<std::chrono::milliseconds>(fine - Orologio::now());
    if (resto.count() <= 0)
        return false;
    pollfd occhio = {.fd = descrittore, .events = POLLOUT, .revents = 0};
    if (poll(&occhio, 1, static_cast<int>(resto.count())) < 0)
        return errno == EINTR;
    return (occhio.revents & (POLLHUP | POLLERR | POLLNVAL)) == 0;
}

std::optional<size_t> Conta(int descrittore, unsigned long domanda) {
    int quanti = 0;
    if (ioctl(descrittore, domanda, &quanti) != 0 || quanti < 0)
        return std::nullopt;
    return static_cast<size_t>(quanti);
}

} // namespace

EsitoApertura PortaSeriale::Apri(const std::string& nome) {
    Chiudi();
    descrittore_ = open(nome.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (descrittore_ < 0)
        return EsitoDaErrno(errno);
    EsitoApertura esito = EsitoApertura::Aperto;
    if (isatty(descrittore_) == 0)
        esito = EsitoApertura::Guasto;
    else if (!PrendiPerSe(descrittore_))
        esito = EsitoApertura::InUso;
    else if (!ImpostaLinea(descrittore_))
        esito = EsitoApertura::Guasto;
    if (esito != EsitoApertura::Aperto) {
        close(std::exchange(descrittore_, -1));
        return esito;
    }
    AccendiRtsDtr(descrittore_);
    Scarta(); // what came while nobody listened
    sorveglia_.descrittore = descrittore_;
    return esito;
}

void PortaSeriale::Chiudi() {
    if (descrittore_ < 0)
        return;
    sorveglia_.descrittore = -1;
    // The mark outlives the descriptor where someone else keeps the line open.
    ioctl(descrittore_, TIOCNXCL);
    close(std::exchange(descrittore_, -1));
}

bool PortaSeriale::Scrivi(std::span<const uint8_t> dati) {
    const auto fine = Orologio::now() + kAttesaScrittura;
    while (!dati.empty()) {
        const ssize_t n = write(descrittore_, dati.data(), dati.size());
        if (n > 0)
            dati = dati.subspan(static_cast<size_t>(n));
        else if (n < 0 && errno != EAGAIN && errno != EINTR)
            return false;
        else if (!AttendiPosto(descrittore_, fine))
            return false;
    }
    return descrittore_ >= 0;
}

std::optional<size_t> PortaSeriale::Leggi(std::span<uint8_t> dove) {
    size_t letti = 0;
    while (letti < dove.size()) {
        const ssize_t n = read(descrittore_, dove.data() + letti, dove.size() - letti);
        if (n > 0)
            letti += static_cast<size_t>(n);
        else if (n < 0 && errno == EINTR)
            continue;
        else if (n < 0 && errno != EAGAIN)
            return letti > 0 ? std::optional(letti) : std::nullopt;
        else
            break;
    }
    // No byte is what a silent line gives, and also one that is no more.
    if (letti == 0 && Caduto(descrittore_))
        return std::nullopt;
    return letti;
}

std::optional<size_t> PortaSeriale::InArrivo() {
    const auto quanti = Conta(descrittore_, FIONREAD);
    if (quanti == 0 && Caduto(descrittore_))
        return std::nullopt;
    return quanti;
}

std::optional<size_t> PortaSeriale::DaSpedire() {
    return Conta(descrittore_, TIOCOUTQ);
}

void PortaSeriale::Scarta() {
    tcflush(descrittore_, TCIFLUSH);
}

} // namespace orvane
