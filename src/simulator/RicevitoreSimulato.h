// A receiver that exists only in memory: it takes the bytes that a console writes and gives the
// bytes that a receiver would answer, with its sweeps, its memory and its faults.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// Which receiver to be, and how to behave. See `LeggiOpzioniSimulatore` for the text form.
struct OpzioniSimulatore {
    std::string modello = "5520"; ///< a name of `ModelliSimulati`
    std::string firmware = {};    ///< "2.15"; empty for the model's usual one
    uint32_t seme = 1;
    /// Bytes a second that leave the receiver; 0 as fast as the reader takes them.
    double byteAlSecondo = 0;
    int userPort = 0; ///< what the user port reads until a command sets it
};
inline constexpr double kByteAlSecondoLinea = 11520; ///< 115200 baud, ten bits a byte

/// Names accepted by `--model`, in the order that a help text lists them.
std::vector<std::string> ModelliSimulati();
/// "MODEL[,fw=X.YZ][,seed=N][,speed=line|full][,port=N]"; empty with an unknown word, which
/// `errore` then tells.
std::optional<OpzioniSimulatore> LeggiOpzioniSimulatore(std::string_view testo,
                                                        std::string& errore);

/// A misbehaviour, for the commands that hold `comando` (empty: all), `volte` times (-1: for ever).
struct Capriccio {
    enum class Tipo {
        Muto,     ///< the command goes unheard: nothing done, no reply
        Tardi,    ///< the reply comes after `secondi`
        Spezzato, ///< the reply comes in two pieces, `secondi` apart
        Rifiuto,  ///< XXX=N/A
        /// XXX=ERR; for a sweep "SFD=ERR n" with `numero`; for pause and resume "SERR".
        Errore,
        Spazzatura, ///< bytes that mean nothing in place of the reply
        Testo,      ///< `testo` in place of the reply; CR LF is added where it has no line end
        StreamMuto, ///< a sweep falls silent after `numero` bytes behind its acknowledgement
        /// The link goes dead after `numero` bytes of a sweep; with 0 when the command comes, and
        /// without a command at once.
        Scollegato
    };
    Tipo tipo = Tipo::Muto;
    std::string comando = {};
    int volte = -1;
    double secondi = 0;
    int numero = 0;
    std::string testo = {};
};
/// "mute:?IDN", "late:SRBW=0.5", "split:...", "refuse:...", "error:SSFD=5", "garbage:...",
/// "text:?DET=...", "silent:1000", "unplug:1000"; an "xN" behind the kind ("mutex2:...") limits it
/// to N times. Empty with an unknown kind or a bad value, which `errore` then tells.
std::optional<Capriccio> LeggiCapriccio(std::string_view testo, std::string& errore);

class RicevitoreSimulato {
public:
    explicit RicevitoreSimulato(const OpzioniSimulatore& opzioni);
    ~RicevitoreSimulato();
    RicevitoreSimulato(const RicevitoreSimulato&) = delete;
    RicevitoreSimulato& operator=(const RicevitoreSimulato&) = delete;

    /// Bytes from the console, at a moment of the monotonic clock.
    void Riceve(std::span<const uint8_t> dati, double adesso);
    /// Takes up to `dove.size()` of the bytes that have left the receiver by `adesso`.
    size_t Da(std::span<uint8_t> dove, double adesso);
    /// How many bytes could be taken now; a running sweep counts with at most 64 KiB.
    size_t Pronti(double adesso);
    /// When the next byte is due; empty when nothing is under way.
    std::optional<double> ProssimoByte(double adesso);
    /// The link to the receiver is dead.
    bool Scollegato() const;
    /// Plugs a receiver that went dead in again, as it is after power-up.
    void Ricollega();

    void Aggiungi(const Capriccio& capriccio);
    void Scorda(); ///< drops all misbehaviours

    /// Every whole command that arrived, in order, since the last `DimenticaComandi`.
    const std::vector<std::string>& Comandi() const;
    void DimenticaComandi();
    /// What a setter left behind, by the three letters of its name; empty if it never came.
    std::string Valore(std::string_view nome) const;
    /// A table that was uploaded and closed by "LIC", "CFE" or "LIE" under a slot (0: custom): its
    /// name, then its rows without their ordinals. Empty if there is none.
    std::vector<std::string> Tabella(std::string_view nome, int slot) const;
    /// How often what was under way has been dropped by an abort, a stop or a new sweep: a carrier
    /// that holds bytes on the way drops them too.
    unsigned Tagli() const;
    /// User port and battery, as a test sets them.
    void ImpostaUserPort(int valore);
    void ImpostaBatteria(std::string livello, double volt, bool inCarica);

private:
    struct Interno;
    std::unique_ptr<Interno> io_;
};

/// Level of the simulated spectrum in hundredths of a dB in dBuV, for `DetectorKind` 0 to 5.
/// The same for the same seed, frequency and settings: Peak at or above QPeak at or above Rms-Avg,
/// Rms, Avg, C-Avg.
struct CondizioniSpettro {
    double rbwHz = 9000;
    int attDb = 10;
    bool preAmp = false;
    uint32_t seme = 1;
    int rete = 0; ///< code of the network line that is switched to the input
};
int16_t LivelloSimulato(double freqMhz, int detector, const CondizioniSpettro& condizioni);

} // namespace orvane
