#include "data/FileTesto.h"

#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "data/Avvisi.h"
#include "data/Misure.h"

namespace orvane {
namespace {

constexpr std::string_view kFileCommento = "Test Comment.TXT";
constexpr size_t kMassimoByte = 1 << 20;

} // namespace

std::string PercorsoCommento(std::string_view misura) {
    return (misura.empty() ? std::string() : CartellaMisura(misura)) + std::string(kFileCommento);
}

std::optional<std::string> CaricaTesto(const Scrivania& s, std::string_view percorso) {
    if (!s.albero.Esiste(percorso))
        return std::string();
    const auto dati = s.albero.Leggi(percorso, kMassimoByte + 1);
    if (!dati || dati->size() > kMassimoByte) {
        AvvisaLettura(s, percorso);
        return std::nullopt;
    }
    const std::string testo = DaAnsi({reinterpret_cast<const char*>(dati->data()), dati->size()});
    return Sostituisci(Sostituisci(testo, "\r\n", "\n"), "\r", "\n");
}

bool SalvaTesto(const Scrivania& s, std::string_view percorso, std::string_view testo) {
    const std::string righe = Sostituisci(Sostituisci(testo, "\r\n", "\n"), "\n", "\r\n");
    const std::string byte = InAnsi(righe);
    if (byte.size() > kMassimoByte) {
        s.ambiente.Mostra(
            {.testo = "The text is too long\rMax " + TestoIntero(kMassimoByte) + " characters",
             .icona = Icona::Esclamazione});
        return false;
    }
    return s.albero.Salva(percorso, {reinterpret_cast<const uint8_t*>(byte.data()), byte.size()}) ||
           AvvisaScrittura(s, percorso);
}

} // namespace orvane
