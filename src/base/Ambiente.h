// The console's idea of its environment: clock, calendar, event pump, modal boxes, command line.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// Local calendar time, as logs and file lists print it.
struct OraCalendario {
    int anno = 1970;
    int mese = 1;   ///< 1 to 12
    int giorno = 1; ///< 1 to 31
    double secondiDelGiorno = 0;
};

enum class Icona { Nessuna, Informazione, Esclamazione, Domanda, Stop };
enum class Pulsanti { Ok, OkAnnulla, SiNo, RiprovaAnnulla };
enum class Risposta { Ok, Annulla, Si, No, Riprova };

/// A modal box. Lines of `testo` are joined by CR.
struct Riquadro {
    std::string testo;
    Icona icona = Icona::Nessuna;
    Pulsanti pulsanti = Pulsanti::Ok;
    std::string titolo = {};
};

/// What ends a sleep in the pump early, besides a user's event.
enum class Veglia {
    Eventi,      ///< only the user: for plain waits
    EventiELink, ///< the link too: for waits that read what arrives
};

/// The seam to clock, desktop and terminal. One thread only: every call comes from it.
struct Ambiente {
    virtual ~Ambiente() = default;

    /// Monotonic seconds from an arbitrary start.
    virtual double Adesso() const = 0;
    virtual OraCalendario Calendario() const = 0;

    /// Serves pending events; with nothing to do, sleeps until an event comes, the link has bytes
    /// (where `veglia` asks for it) or `alPiuS` seconds have gone. 0 never sleeps. May return
    /// early.
    virtual void ElaboraEventi(double alPiuS, Veglia veglia) = 0;

    /// Shows a modal box and waits for its answer.
    virtual Risposta Mostra(const Riquadro& riquadro) = 0;

    /// The whole command line as one text, searched by substring.
    virtual const std::string& RigaComando() const = 0;

    /// A broken rule of the program itself, such as a send inside a send. Tests fail on it.
    virtual void SegnalaDifetto(std::string_view testo) = 0;
};

/// A moment after which waiting ends.
class Scadenza {
public:
    Scadenza(const Ambiente& ambiente, double secondi)
        : ambiente_(ambiente), quando_(ambiente.Adesso() + secondi) {}
    bool Passata() const { return ambiente_.Adesso() >= quando_; }
    /// Seconds left, never negative.
    double Rimane() const {
        const double resto = quando_ - ambiente_.Adesso();
        return resto > 0 ? resto : 0;
    }
    void Rinnova(double secondi) { quando_ = ambiente_.Adesso() + secondi; }

private:
    const Ambiente& ambiente_;
    double quando_;
};

/// Waits `secondi`, pumping events. Bytes from the link do not shorten it.
void Attendi(Ambiente& ambiente, double secondi);

} // namespace orvane
