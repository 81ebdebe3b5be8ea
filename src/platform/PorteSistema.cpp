#include "platform/PorteSistema.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>

#include "base/Testo.h"

namespace orvane {
namespace fs = std::filesystem;
namespace {

enum class Specie { Incorporata, Usb, Modem, Bluetooth };

struct TipoDispositivo {
    std::string_view prefisso;
    Specie specie;
    std::string_view nome; ///< friendly name, before its "(COMn)"
};

/// In the order of the list.
constexpr std::array kTipi = {
    TipoDispositivo{"ttyS", Specie::Incorporata, "Communications Port"},
    TipoDispositivo{"ttyUSB", Specie::Usb, "USB Serial Port"},
    TipoDispositivo{"ttyACM", Specie::Modem, "USB Modem Port (ACM)"},
    TipoDispositivo{"rfcomm", Specie::Bluetooth, "Standard Serial over Bluetooth link"},
};
constexpr std::string_view kNomeGenerico = "Serial Port";
constexpr int kUltimoLegame = 99;
constexpr int kUltimoIndice = 9999;

struct Dispositivo {
    const TipoDispositivo* tipo = nullptr;
    int indice = 0;
    int numero = 0; ///< of the COM port; 0 while it has none
    fs::path percorso;
};

/// A whole number up to `kUltimoIndice`, digits from end to end.
std::optional<int> LeggiCifre(std::string_view testo) {
    int valore = 0;
    const char* fine = testo.data() + testo.size();
    const auto [dove, errore] = std::from_chars(testo.data(), fine, valore);
    if (errore != std::errc() || dove != fine || valore < 0 || valore > kUltimoIndice)
        return std::nullopt;
    return valore;
}

/// The names in a folder; none where it cannot be read.
std::vector<std::string> NomiIn(const fs::path& cartella) {
    std::vector<std::string> nomi;
    std::error_code errore;
    for (fs::directory_iterator voce(cartella, errore), fine; !errore && voce != fine;
         voce.increment(errore))
        nomi.push_back(voce->path().filename().string());
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

/// First line of a small text file, trimmed; empty where it cannot be read.
std::string PrimaRiga(const fs::path& file) {
    std::ifstream flusso(file);
    std::string riga;
    std::getline(flusso, riga);
    return RifilaControlli(riga);
}

std::optional<Dispositivo> Riconosci(std::string_view nome) {
    for (const TipoDispositivo& tipo : kTipi) {
        if (!nome.starts_with(tipo.prefisso))
            continue;
        if (const auto indice = LeggiCifre(nome.substr(tipo.prefisso.size())))
            return Dispositivo{.tipo = &tipo, .indice = *indice, .percorso = {}};
    }
    return std::nullopt;
}

/// The kernel keeps names for UARTs that may be there: those without a driver, or of type 0, are
/// not.
bool Esiste(const Dispositivo& dispositivo, const fs::path& voce) {
    if (dispositivo.tipo->specie != Specie::Incorporata)
        return true;
    std::error_code errore;
    return fs::exists(voce / "device" / "driver", errore) && PrimaRiga(voce / "type") != "0";
}

/// The text by which a USB device calls itself: it stands above the interface that the port
/// belongs to.
std::string ProdottoUsb(const fs::path& voce) {
    std::error_code errore;
    fs::path qui = fs::canonical(voce / "device", errore);
    for (int piano = 0; piano < 3 && !errore && qui.has_relative_path(); ++piano) {
        const std::string prodotto = PrimaRiga(qui / "product");
        if (!prodotto.empty())
            return prodotto;
        qui = qui.parent_path();
    }
    return {};
}

std::string NomeAmichevole(const Dispositivo& dispositivo, const fs::path& classe) {
    const Specie specie = dispositivo.tipo->specie;
    if (specie == Specie::Usb || specie == Specie::Modem) {
        const std::string nome =
            std::string(dispositivo.tipo->prefisso) + std::to_string(dispositivo.indice);
        const std::string prodotto = ProdottoUsb(classe / nome);
        // The first "(COM" of a friendly name tells the number.
        if (!prodotto.empty() && !ContieneSenzaMaiuscole(prodotto, "(COM"))
            return prodotto;
    }
    return std::string(dispositivo.tipo->nome);
}

PortaCom FaiPorta(std::string_view nome, int numero, const fs::path& dispositivo) {
    return {.nome = std::string(nome) + " (COM" + std::to_string(numero) + ")",
            .dispositivo = dispositivo.string()};
}

/// COM1 to COM99 in any case of letters.
std::optional<int> NumeroDelLegame(std::string_view nome) {
    if (nome.size() < 4 || !UgualiSenzaMaiuscole(nome.substr(0, 3), "COM") || nome[3] == '0')
        return std::nullopt;
    const auto numero = LeggiCifre(nome.substr(3));
    return numero && *numero <= kUltimoLegame ? numero : std::nullopt;
}

/// The device that a link means. Where it dangles, its own text has to do.
std::optional<Dispositivo> DispositivoDelLegame(const fs::path& legame) {
    std::error_code errore;
    if (const fs::path vero = fs::canonical(legame, errore); !errore)
        if (const auto dispositivo = Riconosci(vero.filename().string()))
            return dispositivo;
    return Riconosci(fs::read_symlink(legame, errore).filename().string());
}

/// By number; of two that differ only in the case of letters the first one.
std::map<int, fs::path> TrovaLegami(const fs::path& ports) {
    std::map<int, fs::path> legami;
    for (const std::string& nome : NomiIn(ports)) {
        const auto numero = NumeroDelLegame(nome);
        std::error_code errore;
        const fs::file_status stato = fs::symlink_status(ports / nome, errore);
        if (numero && (fs::is_symlink(stato) || fs::is_character_file(stato)))
            legami.emplace(*numero, ports / nome);
    }
    return legami;
}

std::vector<Dispositivo> TrovaDispositivi(const fs::path& dev, const fs::path& classe) {
    std::vector<Dispositivo> trovati;
    for (const std::string& nome : NomiIn(dev)) {
        auto dispositivo = Riconosci(nome);
        if (!dispositivo || !Esiste(*dispositivo, classe / nome))
            continue;
        dispositivo->percorso = dev / nome;
        trovati.push_back(*dispositivo);
    }
    std::sort(trovati.begin(), trovati.end(), [](const Dispositivo& a, const Dispositivo& b) {
        return std::pair(a.tipo, a.indice) < std::pair(b.tipo, b.indice);
    });
    return trovati;
}

/// A built-in port keeps the number of old custom, ttyS0 being COM1, unless a link has it; only
/// then the others take what is free, from 1 on.
void AssegnaNumeri(std::vector<Dispositivo>& dispositivi, std::set<int> presi) {
    for (Dispositivo& d : dispositivi)
        if (d.tipo->specie == Specie::Incorporata && presi.insert(d.indice + 1).second)
            d.numero = d.indice + 1;
    int libero = 1;
    for (Dispositivo& d : dispositivi) {
        if (d.numero != 0)
            continue;
        while (!presi.insert(libero).second)
            ++libero;
        d.numero = libero;
    }
}

} // namespace

std::vector<PortaCom> PorteSistema::Elenca() {
    const fs::path classe = sys_ / "class" / "tty";
    std::vector<PortaCom> porte;
    std::set<int> presi;
    for (const auto& [numero, legame] : TrovaLegami(ports_)) {
        const auto dispositivo = DispositivoDelLegame(legame);
        presi.insert(numero);
        porte.push_back(FaiPorta(dispositivo ? NomeAmichevole(*dispositivo, classe)
                                             : std::string(kNomeGenerico),
                                 numero, legame));
    }
    std::vector<Dispositivo> dispositivi = TrovaDispositivi(dev_, classe);
    AssegnaNumeri(dispositivi, std::move(presi));
    for (const Dispositivo& d : dispositivi)
        porte.push_back(FaiPorta(NomeAmichevole(d, classe), d.numero, d.percorso));
    return porte;
}

} // namespace orvane
