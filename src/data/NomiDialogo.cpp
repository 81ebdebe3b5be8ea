#include "data/NomiDialogo.h"

#include <algorithm>

#include "base/Percorsi.h"

namespace orvane {
namespace {

// The room that the limit leaves for "." and the extension. The cut leaves none.
constexpr int kPuntoEdEstensione = 4;

bool InizioCarattere(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

int NumeroCaratteri(std::string_view utf8) {
    return static_cast<int>(std::count_if(utf8.begin(), utf8.end(), InizioCarattere));
}

std::string PrimiCaratteri(std::string_view utf8, int quanti) {
    size_t fine = 0;
    for (int visti = 0; fine < utf8.size(); ++fine)
        if (InizioCarattere(utf8[fine]) && ++visti > quanti)
            break;
    return std::string(utf8.substr(0, fine));
}

void Avvisa(Ambiente& ambiente, std::string titolo, std::string testo) {
    ambiente.Mostra({.testo = std::move(testo),
                     .icona = Icona::Esclamazione,
                     .pulsanti = Pulsanti::Ok,
                     .titolo = std::move(titolo)});
}

} // namespace

bool ControllaNomeDialogo(Ambiente& ambiente, std::string_view nome) {
    if (nome.find('+') == std::string_view::npos)
        return true;
    Avvisa(ambiente, {}, "Not valid name\r" + EstraiNomeFile(nome));
    return false;
}

std::string ControllaLunghezzaNome(Ambiente& ambiente, std::string_view nome, int limite,
                                   ModoDialogo modo) {
    const std::string base = EstraiNomeFile(nome);
    if (NumeroCaratteri(base) <= limite - kPuntoEdEstensione)
        return std::string(nome);
    if (modo == ModoDialogo::Carica) {
        Avvisa(ambiente, "5520UT OPEN FILE", "File name too long");
        return {};
    }
    const std::string tagliato = PrimiCaratteri(base, limite);
    // The misspelling is the text as users know it.
    Avvisa(ambiente, "5520UT SAVE FILE", "The name as been shortened in\r" + tagliato);
    const std::string estensione = EstraiEstensione(nome);
    return EstraiPercorso(nome) + tagliato + (estensione.empty() ? "" : "." + estensione);
}

} // namespace orvane
