// The simulated receiver as a program: a pseudo terminal that answers like the instrument.
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Testo.h"
#include "platform/PseudoTerminale.h"
#include "simulator/RicevitoreSimulato.h"

namespace {

using namespace orvane;

constexpr double kAttesaMassima = 0.5; ///< seconds until a signal is noticed at the latest
constexpr double kPassoLinea = 0.002;  ///< seconds between two turns at line speed
constexpr double kDistacco = 2;        ///< seconds that a pulled adapter stays away
constexpr size_t kBlocco = 65536;

volatile std::sig_atomic_t fermato = 0;
void AlSegnale(int) {
    fermato = 1;
}

struct Argomenti {
    OpzioniSimulatore opzioni;
    std::vector<Capriccio> capricci;
    std::string collegamento;
    bool verboso = false;
    bool aiuto = false;
};

void StampaAiuto() {
    std::printf(
        "usage: orvane-simulator [--model M] [--fw X.YZ] [--seed N] [--speed line|full]\n"
        "                        [--port N] [--misbehave TEXT]... [--link-as PATH] [--verbose]\n\n"
        "Opens a pseudo terminal, prints its path and serves it as a receiver until it is\n"
        "told to end.\n\n"
        "models: %s\n"
        "misbehaviours: mute, refuse, garbage (:COMMAND), late, split (:COMMAND=SECONDS),\n"
        "  error (:COMMAND=NUMBER), text (:COMMAND=TEXT), silent, unplug (:BYTES);\n"
        "  xN behind the kind limits it to N times, as in mutex2:?IDN\n",
        Unisci(ModelliSimulati(), " ").c_str());
}

/// Words of the options record, as its text form names them.
std::string_view ParolaOpzione(std::string_view argomento) {
    if (argomento == "--fw")
        return "fw=";
    if (argomento == "--seed")
        return "seed=";
    if (argomento == "--port")
        return "port=";
    return argomento == "--speed" ? "speed=" : "";
}

/// One option with its value; false with the reason in `errore`.
bool Applica(std::string_view nome, const std::string& valore, std::string& testoOpzioni,
             Argomenti& argomenti, std::string& errore) {
    if (nome == "--model") {
        testoOpzioni.insert(0, valore);
    } else if (const auto parola = ParolaOpzione(nome); !parola.empty()) {
        testoOpzioni.append(",").append(parola).append(valore);
    } else if (nome == "--link-as") {
        argomenti.collegamento = valore;
    } else if (nome == "--misbehave") {
        const auto capriccio = LeggiCapriccio(valore, errore);
        if (capriccio)
            argomenti.capricci.push_back(*capriccio);
        return capriccio.has_value();
    } else {
        errore = "unknown option " + std::string(nome);
        return false;
    }
    return true;
}

std::optional<Argomenti> LeggiArgomenti(std::span<char*> parole, std::string& errore) {
    Argomenti argomenti;
    std::string testoOpzioni;
    for (size_t i = 1; i < parole.size(); ++i) {
        const std::string_view nome = parole[i];
        if (nome == "--help" || nome == "-h") {
            argomenti.aiuto = true;
        } else if (nome == "--verbose") {
            argomenti.verboso = true;
        } else if (i + 1 == parole.size()) {
            errore = nome.starts_with("--") ? std::string(nome) + " needs a value"
                                            : "unknown option " + std::string(nome);
            return std::nullopt;
        } else if (!Applica(nome, parole[++i], testoOpzioni, argomenti, errore)) {
            return std::nullopt;
        }
    }
    const auto opzioni = LeggiOpzioniSimulatore(testoOpzioni, errore);
    if (!opzioni)
        return std::nullopt;
    argomenti.opzioni = *opzioni;
    return argomenti;
}

double Adesso() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

/// A symbolic link to the terminal, gone with the program. It replaces one that was left behind,
/// but nothing else.
class Collegamento {
public:
    explicit Collegamento(std::string percorso) : percorso_(std::move(percorso)) {}
    ~Collegamento() { Togli(); }
    Collegamento(const Collegamento&) = delete;
    Collegamento& operator=(const Collegamento&) = delete;

    bool Punta(const std::string& terminale) {
        if (percorso_.empty())
            return true;
        Togli();
        std::error_code errore;
        if (std::filesystem::is_symlink(percorso_, errore))
            std::filesystem::remove(percorso_, errore);
        std::filesystem::create_symlink(terminale, percorso_, errore);
        if (errore)
            std::fprintf(stderr, "orvane-simulator: cannot make the link %s: %s\n",
                         percorso_.c_str(), errore.message().c_str());
        fatto_ = !errore;
        return fatto_;
    }
    void Togli() {
        std::error_code errore;
        if (fatto_)
            std::filesystem::remove(percorso_, errore);
        fatto_ = false;
    }

private:
    std::string percorso_;
    bool fatto_ = false;
};

/// Carries bytes between the terminal and the receiver.
class Servizio {
public:
    Servizio(RicevitoreSimulato& ricevitore, const Argomenti& argomenti)
        : ricevitore_(ricevitore), verboso_(argomenti.verboso),
          attesaMinima_(argomenti.opzioni.byteAlSecondo > 0 ? kPassoLinea : 0), blocco_(kBlocco) {}

    /// One turn: what came in, what goes out, and a wait for more of either.
    void Gira(PseudoTerminale& terminale) {
        Ascolta(terminale);
        Parla(terminale);
        if (!ricevitore_.Scollegato())
            terminale.Attendi(Attesa(), InViaggio());
    }

private:
    bool InViaggio() const { return spediti_ < presi_; }

    void Ascolta(PseudoTerminale& terminale) {
        uint8_t arrivati[4096];
        const unsigned tagli = ricevitore_.Tagli();
        const size_t quanti = terminale.Leggi(arrivati);
        ricevitore_.Riceve({arrivati, quanti}, Adesso());
        // What an abort drops is dropped on its way too.
        if (ricevitore_.Tagli() != tagli)
            spediti_ = presi_ = 0;
        if (verboso_)
            for (const std::string& comando : ricevitore_.Comandi())
                std::fprintf(stderr, "%s\n", comando.c_str());
        ricevitore_.DimenticaComandi();
    }

    void Parla(PseudoTerminale& terminale) {
        if (!InViaggio()) {
            spediti_ = 0;
            presi_ = ricevitore_.Da(blocco_, Adesso());
        }
        if (InViaggio())
            spediti_ += terminale.Scrivi(std::span(blocco_).subspan(spediti_, presi_ - spediti_));
    }

    double Attesa() {
        if (InViaggio())
            return kAttesaMassima;
        const double adesso = Adesso();
        const double prossimo = ricevitore_.ProssimoByte(adesso).value_or(adesso + kAttesaMassima);
        return std::clamp(prossimo - adesso, attesaMinima_, kAttesaMassima);
    }

    RicevitoreSimulato& ricevitore_;
    bool verboso_;
    double attesaMinima_;
    std::vector<uint8_t> blocco_; ///< on its way to the terminal from `spediti_` to `presi_`
    size_t presi_ = 0;
    size_t spediti_ = 0;
};

/// Serves one terminal until the end, or until the receiver's link goes dead; then keeps away for
/// as long as an adapter is out. False: there is no terminal or no link to it.
bool Servi(RicevitoreSimulato& ricevitore, Collegamento& collegamento, const Argomenti& argomenti) {
    PseudoTerminale terminale;
    if (terminale.Percorso().empty()) {
        std::fprintf(stderr, "orvane-simulator: no pseudo terminal to be had\n");
        return false;
    }
    if (!collegamento.Punta(terminale.Percorso()))
        return false;
    std::printf("%s\n", terminale.Percorso().c_str());
    std::fflush(stdout);
    Servizio servizio(ricevitore, argomenti);
    while (!fermato && !ricevitore.Scollegato())
        servizio.Gira(terminale);
    collegamento.Togli();
    terminale.Stacca();
    if (!fermato) {
        std::fprintf(stderr, "unplugged\n");
        terminale.Attendi(kDistacco, false);
        ricevitore.Ricollega();
    }
    return true;
}

} // namespace

int main(int quanti, char** parole) {
    std::string errore;
    const auto argomenti = LeggiArgomenti({parole, static_cast<size_t>(quanti)}, errore);
    if (!argomenti) {
        std::fprintf(stderr, "orvane-simulator: %s\n", errore.c_str());
        return 2;
    }
    if (argomenti->aiuto) {
        StampaAiuto();
        return 0;
    }
    std::signal(SIGTERM, AlSegnale);
    std::signal(SIGINT, AlSegnale);
    RicevitoreSimulato ricevitore(argomenti->opzioni);
    for (const Capriccio& capriccio : argomenti->capricci)
        ricevitore.Aggiungi(capriccio);
    Collegamento collegamento(argomenti->collegamento);
    while (!fermato)
        if (!Servi(ricevitore, collegamento, *argomenti))
            return 1;
    return 0;
}
