// Misbehaviours: their text form, and the one that a command meets.
#include "simulator/Capricci.h"

#include <algorithm>
#include <cmath>

#include "base/Numeri.h"
#include "base/Testo.h"

namespace orvane {
namespace {

using Tipo = Capriccio::Tipo;

/// What stands behind the colon.
enum class Argomento {
    Comando,        ///< COMMAND
    ComandoSecondi, ///< COMMAND=SECONDS
    ComandoNumero,  ///< COMMAND=NUMBER
    ComandoTesto,   ///< COMMAND=TEXT
    Byte            ///< COUNT
};

struct VoceCapriccio {
    std::string_view parola;
    Tipo tipo;
    Argomento argomento;
    double predefinito; ///< seconds, where none are given
};
constexpr VoceCapriccio kVoci[] = {
    {"mute", Tipo::Muto, Argomento::Comando, 0},
    {"late", Tipo::Tardi, Argomento::ComandoSecondi, 1},
    {"split", Tipo::Spezzato, Argomento::ComandoSecondi, 0.2},
    {"refuse", Tipo::Rifiuto, Argomento::Comando, 0},
    {"error", Tipo::Errore, Argomento::ComandoNumero, 0},
    {"garbage", Tipo::Spazzatura, Argomento::Comando, 0},
    {"text", Tipo::Testo, Argomento::ComandoTesto, 0},
    {"silent", Tipo::StreamMuto, Argomento::Byte, 0},
    {"unplug", Tipo::Scollegato, Argomento::Byte, 0},
};

const VoceCapriccio* TrovaVoce(std::string_view parola) {
    const auto voce = std::ranges::find(kVoci, parola, &VoceCapriccio::parola);
    return voce == std::end(kVoci) ? nullptr : voce;
}

/// Cuts "x3" off the end of the kind; -1 where it has none.
int StaccaVolte(std::string& parola) {
    const auto x = parola.rfind('x');
    if (x == std::string::npos || x == 0)
        return -1;
    const auto volte = LeggiNumero(std::string_view(parola).substr(x + 1));
    if (!volte || *volte < 1 || *volte > 1e6 || *volte != std::floor(*volte))
        return -1;
    parola = Rifila(parola.substr(0, x));
    return static_cast<int>(*volte);
}

std::optional<int> LeggiConteggio(std::string_view testo) {
    const auto numero = LeggiNumero(testo);
    if (!numero || *numero < 0 || *numero > 2e9 || *numero != std::floor(*numero))
        return std::nullopt;
    return static_cast<int>(*numero);
}

/// Fills in the part behind the "=", or all of it where the kind takes a bare count.
bool LeggiValore(const VoceCapriccio& voce, const std::string& valore, Capriccio& capriccio) {
    if (voce.argomento == Argomento::ComandoTesto) {
        capriccio.testo = valore;
        return true;
    }
    if (voce.argomento == Argomento::ComandoSecondi) {
        const auto secondi = LeggiNumero(valore);
        capriccio.secondi = secondi.value_or(0);
        return secondi && *secondi >= 0;
    }
    const auto numero = LeggiConteggio(valore);
    capriccio.numero = numero.value_or(0);
    return numero && voce.argomento != Argomento::Comando;
}

bool LeggiArgomento(const VoceCapriccio& voce, std::string_view testo, Capriccio& capriccio) {
    capriccio.secondi = voce.predefinito;
    if (voce.argomento == Argomento::Byte)
        return Rifila(testo).empty() || LeggiValore(voce, std::string(testo), capriccio);
    const auto uguale = testo.find('=');
    capriccio.comando = Rifila(testo.substr(0, uguale));
    return uguale == std::string_view::npos ||
           LeggiValore(voce, std::string(testo.substr(uguale + 1)), capriccio);
}

} // namespace

std::optional<Capriccio> LeggiCapriccio(std::string_view testo, std::string& errore) {
    const auto duePunti = testo.find(':');
    std::string parola = Rifila(testo.substr(0, duePunti));
    Capriccio capriccio;
    capriccio.volte = StaccaVolte(parola);
    const VoceCapriccio* voce = TrovaVoce(parola);
    if (!voce) {
        errore = "unknown misbehaviour \"" + parola + "\"";
        return std::nullopt;
    }
    capriccio.tipo = voce->tipo;
    const std::string_view resto =
        duePunti == std::string_view::npos ? std::string_view() : testo.substr(duePunti + 1);
    if (!LeggiArgomento(*voce, resto, capriccio)) {
        errore = "misbehaviour \"" + std::string(testo) + "\": bad value";
        return std::nullopt;
    }
    return capriccio;
}

bool RiguardaFlusso(const Capriccio& capriccio) {
    return capriccio.tipo == Tipo::StreamMuto ||
           (capriccio.tipo == Tipo::Scollegato && capriccio.numero > 0);
}

template <class Prova>
std::optional<Capriccio> ListaCapricci::Prendi(std::string_view comando, Prova prova) {
    for (Capriccio& c : lista_) {
        if (c.volte == 0 || !prova(c) || !Contiene(comando, c.comando))
            continue;
        if (c.volte > 0)
            --c.volte;
        return c;
    }
    return std::nullopt;
}

std::optional<Capriccio> ListaCapricci::PerRisposta(std::string_view comando) {
    return Prendi(comando, [](const Capriccio& c) { return !RiguardaFlusso(c); });
}

std::optional<Capriccio> ListaCapricci::PerFlusso(std::string_view comando) {
    return Prendi(comando, RiguardaFlusso);
}

} // namespace orvane
