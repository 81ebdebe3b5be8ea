// Ctrl-C and SIGTERM as a count that the pump looks at, and a sleep that they end.
#pragma once

#include <csignal>

#include <poll.h>

namespace orvane {

/// While one exists, the two signals are counted instead of ending the process; the third that
/// nobody has served ends it all the same. At most one at a time.
class Interruzioni {
public:
    Interruzioni();
    ~Interruzioni();
    Interruzioni(const Interruzioni&) = delete;
    Interruzioni& operator=(const Interruzioni&) = delete;

    /// How many have come and were not yet taken.
    int DaServire() const;
    /// Takes one; which one it is, from 1 on. Only while `DaServire` is not 0.
    int Prendi();
    /// Ends the process by the last one, as if nobody had counted.
    void Termina() const;
    /// Sleeps until the descriptor reports something, `secondi` have gone, or a signal comes; not
    /// at all where one waits to be served. A negative descriptor is none. Whether it reported.
    bool Dormi(pollfd& occhio, double secondi) const;

private:
    struct sigaction primaInt_ = {};
    struct sigaction primaTerm_ = {};
};

} // namespace orvane
