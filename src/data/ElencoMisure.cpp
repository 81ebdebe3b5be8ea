#include <algorithm>
#include <chrono>
#include <ctime>
#include <optional>

#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "data/Cartelle.h"
#include "data/ControllaRecord.h"
#include "data/FileTesto.h"
#include "data/Incompiute.h"
#include "data/Misure.h"
#include "data/NomiDisco.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

/// "dd/mm/yyyy hh:mm:ss" in local time.
std::string TestoData(fs::file_time_type ora) {
    const auto sistema = std::chrono::file_clock::to_sys(ora);
    const std::time_t secondi = std::chrono::system_clock::to_time_t(
        std::chrono::time_point_cast<std::chrono::system_clock::duration>(sistema));
    const std::tm* locale = std::localtime(&secondi);
    char testo[32] = "";
    if (locale)
        std::strftime(testo, sizeof testo, "%d/%m/%Y %H:%M:%S", locale);
    return testo;
}

constexpr size_t kMassimoCommento = 1 << 20;
constexpr std::string_view kSegnoCorsa = "RUNNING.RUN";

/// "<anything>.RS<digit>", by the key of its name.
bool EstensioneRS(std::string_view chiave) {
    if (chiave.size() < 4)
        return false;
    const std::string_view coda = chiave.substr(chiave.size() - 4);
    return coda.starts_with(".RS") && coda[3] >= '0' && coda[3] <= '9';
}

/// What the files of one directory tell, by one walk.
struct FileMisura {
    fs::file_time_type prima = fs::file_time_type::max();
    fs::file_time_type ultima = fs::file_time_type::min();
    long long passi = 0;
    std::vector<std::string> header; ///< names of the KSH files
    bool segnata = false;            ///< as under way
    bool SenzaTracce() const { return ultima < prima; }
};

void PrendiTraccia(FileMisura& file, const fs::directory_entry& voce) {
    std::error_code errore;
    const auto lunghezza = voce.file_size(errore);
    const auto ora = voce.last_write_time(errore);
    if (errore)
        return;
    file.passi += static_cast<long long>(lunghezza / kByteCampione);
    file.prima = std::min(file.prima, ora);
    file.ultima = std::max(file.ultima, ora);
}

FileMisura RaccogliFile(const fs::path& cartella) {
    FileMisura file;
    std::error_code errore;
    for (fs::directory_iterator voce(cartella, errore), fine; !errore && voce != fine;
         voce.increment(errore)) {
        std::error_code qui;
        if (!voce->is_regular_file(qui))
            continue;
        const std::string nome = Utf8DaPath(voce->path().filename());
        const std::string chiave = ChiaveNome(nome);
        if (EstensioneRS(chiave))
            PrendiTraccia(file, *voce);
        else if (chiave.ends_with(".KSH"))
            file.header.push_back(nome);
        else if (chiave == kSegnoCorsa)
            file.segnata = true;
    }
    return file;
}

/// The header that the measure goes by: its own, or the only one.
std::string SceltaHeader(const FileMisura& file, const std::string& misura) {
    const std::string proprio = ChiaveNome(misura) + ".KSH";
    for (const std::string& nome : file.header)
        if (ChiaveNome(nome) == proprio)
            return nome;
    return file.header.size() == 1 ? file.header[0] : std::string();
}

std::optional<SweepHeader> LeggiHeader(const Scrivania& s, const FileMisura& file,
                                       const std::string& misura) {
    const std::string nome = SceltaHeader(file, misura);
    if (nome.empty())
        return std::nullopt;
    const auto dati =
        s.albero.Leggi(CartellaMisura(misura) + nome, DimensioneSuDisco<SweepHeader>());
    SweepHeader header;
    if (!dati || !LeggiRecord(*dati, header))
        return std::nullopt;
    ControllaScan(header.Scan);
    return header;
}

/// Scan lines in use, and the letters of their detectors.
void RiassumiTabella(const ScanTable& tabella, VoceArchivio& voce) {
    std::array<bool, kNumDetector> inUso{};
    for (const ScanLine& riga : tabella) {
        if (riga.Start == 0)
            continue;
        ++voce.righe;
        for (size_t d = 0; d < kNumDetector; ++d)
            inUso[d] = inUso[d] || riga.Detector[d] != 0;
    }
    for (size_t d = 0; d < kNumDetector; ++d)
        if (inUso[d])
            voce.detector += kLettereDetector[d];
}

/// The first directory that has any trace file counts.
FileMisura FileDellaMisura(const Scrivania& s, std::string_view misura) {
    FileMisura file = RaccogliFile(s.albero.Host(CartellaMisura(misura)));
    if (!file.SenzaTracce())
        return file;
    const FileMisura sotto = RaccogliFile(s.albero.Host(CartellaSubMisure(misura)));
    file.prima = sotto.prima;
    file.ultima = sotto.ultima;
    file.passi = sotto.passi;
    return file;
}

DateMisura Date(const FileMisura& tracce) {
    return tracce.SenzaTracce() ? DateMisura{}
                                : DateMisura{TestoData(tracce.prima), TestoData(tracce.ultima)};
}

} // namespace

DateMisura DataMisura(const Scrivania& s, std::string_view misura) {
    return Date(FileDellaMisura(s, misura));
}

VoceArchivio LeggiVoce(const Scrivania& s, const std::string& nome) {
    const FileMisura file = FileDellaMisura(s, nome);
    const DateMisura date = Date(file);
    const bool inCorso = file.segnata && MisuraInCorso(s.albero, nome);
    VoceArchivio voce{.nome = nome,
                      .prima = date.prima,
                      .ultima = date.ultima,
                      .passi = file.passi,
                      .incompiuta = file.segnata && !inCorso,
                      .inCorso = inCorso};
    if (const auto header = LeggiHeader(s, file, nome)) {
        voce.leggibile = true;
        RiassumiTabella(header->Scan.Righe, voce);
    }
    return voce;
}

std::vector<VoceArchivio> ElencaMisure(const Scrivania& s) {
    std::vector<VoceArchivio> voci;
    for (const std::string& nome : ElencaNomiMisure(s, OrdineArchivio::PerNome))
        voci.push_back(LeggiVoce(s, nome));
    return voci;
}

std::vector<std::string> ElencaNomiMisure(const Scrivania& s, OrdineArchivio ordine) {
    std::vector<std::string> nomi = s.albero.ElencaCartelle(cartella::kSweep);
    if (ordine == OrdineArchivio::PerNome)
        return nomi;
    std::vector<std::pair<fs::file_time_type, std::string>> conData;
    for (std::string& nome : nomi) {
        const auto ultima = FileDellaMisura(s, nome).ultima;
        conData.emplace_back(ultima, std::move(nome));
    }
    std::stable_sort(conData.begin(), conData.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::ranges::transform(conData, nomi.begin(),
                           [](auto& voce) { return std::move(voce.second); });
    return nomi;
}

bool MisuraContiene(const Scrivania& s, const std::string& nome, std::string_view cercato) {
    const std::string chiave = ChiaveNome(cercato);
    if (Contiene(ChiaveNome(nome), chiave))
        return true;
    const FileMisura file = FileDellaMisura(s, nome);
    const auto header = LeggiHeader(s, file, nome);
    if (header && Contiene(ChiaveNome(header->Scan.ScanComment), chiave))
        return true;
    // Read without a box: one that cannot be loaded is no hit.
    const auto commento = s.albero.Leggi(PercorsoCommento(nome), kMassimoCommento);
    return commento &&
           Contiene(ChiaveNome(DaAnsi(std::string(commento->begin(), commento->end()))), chiave);
}

} // namespace orvane
