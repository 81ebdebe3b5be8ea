#include "data/AlberoDati.h"

#include <algorithm>
#include <cstdio>
#include <system_error>

#include "base/Testo.h"
#include "data/FileProvvisorio.h"
#include "data/NomiDisco.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

/// Longer than any file system allows, so that nothing can be found or made under it.
constexpr size_t kLunghezzaImpossibile = 300;

std::string ConBackslash(std::string_view percorso) {
    return Sostituisci(percorso, "/", "\\");
}

template <class Azione> void PerOgniVoce(const fs::path& cartella, Azione azione) {
    std::error_code errore;
    for (fs::directory_iterator voce(cartella, errore), fine; !errore && voce != fine;
         voce.increment(errore))
        azione(*voce);
}

/// The entry of a directory that goes by this name in some case; the first of several. Without
/// one, the name as wished.
fs::path TrovaVoce(const fs::path& cartella, const std::string& nome) {
    const fs::path esatto = cartella / PathDaUtf8(nome);
    std::error_code errore;
    if (fs::exists(fs::symlink_status(esatto, errore)))
        return esatto;
    const std::string chiave = ChiaveNome(nome);
    fs::path trovato;
    PerOgniVoce(cartella, [&](const fs::directory_entry& voce) {
        if (ChiaveNome(Utf8DaPath(voce.path().filename())) == chiave &&
            (trovato.empty() || voce.path() < trovato))
            trovato = voce.path();
    });
    return trovato.empty() ? esatto : trovato;
}

/// A blank behind the dots would be dropped by some hosts: such a part counts as "..".
bool PartePericolosa(const std::string& parte) {
    return Rifila(parte) == ".." || parte.find(':') != std::string::npos ||
           parte.find('\0') != std::string::npos;
}

std::vector<std::string> Ordinati(std::vector<std::string> nomi) {
    std::vector<std::pair<std::string, std::string>> chiavi;
    for (std::string& nome : nomi)
        chiavi.emplace_back(ChiaveNome(nome), std::move(nome));
    std::sort(chiavi.begin(), chiavi.end());
    nomi.clear();
    for (auto& [chiave, nome] : chiavi)
        nomi.push_back(std::move(nome));
    return nomi;
}

bool HaEstensione(const std::string& nome, std::string_view estensione) {
    if (estensione.empty())
        return true;
    const auto punto = nome.rfind('.');
    return punto != std::string::npos &&
           ChiaveNome(std::string_view(nome).substr(punto + 1)) == ChiaveNome(estensione);
}

std::optional<std::vector<uint8_t>> LeggiTutto(std::FILE* file, size_t quanti) {
    std::vector<uint8_t> dati(quanti);
    if (quanti > 0)
        dati.resize(std::fread(dati.data(), 1, quanti, file));
    if (std::ferror(file))
        return std::nullopt;
    return dati;
}

} // namespace

AlberoDati::AlberoDati(fs::path radice, Sincronia sincronia, PreseFile prese)
    : sincronia_(std::move(sincronia)), prese_(std::move(prese)) {
    std::error_code errore;
    radice_ = fs::absolute(radice, errore).lexically_normal();
    dataRoot_ = ConBackslash(Utf8DaPath(radice_));
    if (!dataRoot_.ends_with('\\'))
        dataRoot_ += '\\';
}

std::optional<std::string> AlberoDati::Relativo(std::string_view percorso) const {
    const std::string testo = ConBackslash(percorso);
    const std::string chiave = ChiaveNome(testo);
    const std::string radice = ChiaveNome(dataRoot_);
    std::string relativo = testo;
    if (chiave.starts_with(radice))
        relativo = testo.substr(radice.size());
    else if (chiave + '\\' == radice)
        relativo.clear();
    else if (testo.starts_with('\\'))
        return std::nullopt;
    for (const std::string& parte : Dividi(relativo, '\\'))
        if (PartePericolosa(parte))
            return std::nullopt;
    return relativo;
}

fs::path AlberoDati::Host(std::string_view percorso) const {
    const auto relativo = Relativo(percorso);
    if (!relativo)
        return radice_ / std::string(kLunghezzaImpossibile, '?');
    fs::path qui = radice_;
    for (const std::string& parte : Dividi(*relativo, '\\'))
        if (!parte.empty() && parte != ".")
            qui = TrovaVoce(qui, parte);
    return qui;
}

std::string AlberoDati::PercorsoIntero(std::string_view percorso) const {
    const auto relativo = Relativo(percorso);
    return relativo ? dataRoot_ + *relativo : ConBackslash(percorso);
}

bool AlberoDati::Esiste(std::string_view percorso) const {
    std::error_code errore;
    const fs::file_status stato = fs::status(Host(percorso), errore);
    return fs::exists(stato) && !fs::is_directory(stato);
}

bool AlberoDati::EsisteCartella(std::string_view percorso) const {
    std::error_code errore;
    return fs::is_directory(Host(percorso), errore);
}

bool AlberoDati::SiElenca(std::string_view percorso) const {
    const auto relativo = Relativo(percorso);
    if (!relativo || relativo->find_first_of("*?\"<>|") != std::string::npos)
        return false;
    std::error_code errore;
    const fs::directory_iterator elenco(Host(percorso), errore);
    return !errore || errore == std::errc::no_such_file_or_directory;
}

void AlberoDati::AssicuraCartella(std::string_view percorso) const {
    const fs::path host = Host(percorso);
    std::error_code errore;
    if (!fs::create_directories(host, errore) || !sincronia_)
        return;
    // Each of the names on the way may be new.
    for (fs::path qui = host; qui != radice_ && qui.has_relative_path(); qui = qui.parent_path())
        Sincronizza(qui.parent_path());
}

std::optional<std::vector<uint8_t>> AlberoDati::Leggi(std::string_view percorso,
                                                      size_t alPiu) const {
    const fs::path host = Host(percorso);
    std::error_code errore;
    // A pipe or a device in the tree would block the reader for ever.
    if (!fs::is_regular_file(host, errore))
        return std::nullopt;
    const auto lunghezza = fs::file_size(host, errore);
    if (errore)
        return std::nullopt;
    const FileC file(std::fopen(host.string().c_str(), "rb"));
    if (!file)
        return std::nullopt;
    return LeggiTutto(file.get(), static_cast<size_t>(std::min<uintmax_t>(lunghezza, alPiu)));
}

bool AlberoDati::Salva(std::string_view percorso, std::span<const uint8_t> dati) const {
    if (!Relativo(percorso))
        return false;
    const fs::path host = Host(percorso);
    FileProvvisorio nuovo(host.parent_path());
    return nuovo.Scrivi(dati) && nuovo.Chiudi() && Consegna(nuovo, host);
}

bool AlberoDati::Consegna(FileProvvisorio& nuovo, const fs::path& host) const {
    if (!Sincronizza(nuovo.Percorso()) || !nuovo.Sostituisce(host))
        return false;
    // Without this the new name may be lost, and the old file is back: whole in either case.
    Sincronizza(host.parent_path());
    return true;
}

bool AlberoDati::Copia(std::string_view da, std::string_view a) const {
    if (!Relativo(a) || !Esiste(da))
        return false;
    const fs::path origine = Host(da);
    const fs::path host = Host(a);
    FileProvvisorio nuovo(host.parent_path());
    std::error_code errore;
    return nuovo.Chiudi() &&
           fs::copy_file(origine, nuovo.Percorso(), fs::copy_options::overwrite_existing, errore) &&
           Consegna(nuovo, host);
}

bool AlberoDati::Cancella(std::string_view percorso) const {
    const fs::path host = Host(percorso);
    std::error_code errore;
    if (fs::is_directory(fs::symlink_status(host, errore)))
        return false;
    fs::remove(host, errore);
    return !fs::exists(fs::symlink_status(host, errore));
}

void AlberoDati::CancellaCartella(std::string_view percorso) const {
    const fs::path host = Host(percorso);
    std::error_code errore;
    if (host != radice_ && fs::is_directory(host, errore))
        fs::remove_all(host, errore);
}

bool AlberoDati::CancellaCartellaVuota(std::string_view percorso) const {
    const fs::path host = Host(percorso);
    std::error_code errore;
    if (host == radice_ || !fs::is_directory(host, errore))
        return !fs::exists(fs::symlink_status(host, errore));
    fs::remove(host, errore);
    return !errore;
}

bool AlberoDati::Rinomina(std::string_view da, std::string_view a) const {
    const fs::path origine = Host(da);
    const fs::path meta = Host(a);
    std::error_code errore;
    if (!Relativo(da) || !Relativo(a) || origine == radice_ ||
        fs::exists(fs::symlink_status(meta, errore)))
        return false;
    fs::rename(origine, meta, errore);
    if (errore)
        return false;
    Sincronizza(meta.parent_path());
    if (origine.parent_path() != meta.parent_path())
        Sincronizza(origine.parent_path());
    return true;
}

Presa AlberoDati::Prendi(std::string_view percorso) const {
    return prese_.prendi && Esiste(percorso) ? prese_.prendi(Host(percorso)) : nullptr;
}

bool AlberoDati::InMano(std::string_view percorso) const {
    return prese_.presa && Esiste(percorso) && prese_.presa(Host(percorso));
}

std::vector<std::string> AlberoDati::ElencaFile(std::string_view cartella,
                                                std::string_view estensione) const {
    if (estensione.starts_with('.'))
        estensione.remove_prefix(1);
    std::vector<std::string> nomi;
    PerOgniVoce(Host(cartella), [&](const fs::directory_entry& voce) {
        std::error_code errore;
        std::string nome = Utf8DaPath(voce.path().filename());
        if (voce.is_regular_file(errore) && HaEstensione(nome, estensione) &&
            !nome.starts_with(FileProvvisorio::kPrefisso))
            nomi.push_back(std::move(nome));
    });
    return Ordinati(std::move(nomi));
}

std::vector<std::string> AlberoDati::ElencaCartelle(std::string_view cartella) const {
    std::vector<std::string> nomi;
    PerOgniVoce(Host(cartella), [&](const fs::directory_entry& voce) {
        std::error_code errore;
        if (voce.is_directory(errore))
            nomi.push_back(Utf8DaPath(voce.path().filename()));
    });
    return Ordinati(std::move(nomi));
}

} // namespace orvane
