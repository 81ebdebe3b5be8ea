#include <algorithm>
#include <chrono>
#include <ctime>

#include "data/Cartelle.h"
#include "data/ControllaRecord.h"
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

/// What the trace files of one directory tell.
struct FileTraccia {
    fs::file_time_type prima = fs::file_time_type::max();
    fs::file_time_type ultima = fs::file_time_type::min();
    long long passi = 0;
    bool Nessuno() const { return ultima < prima; }
};

/// "<anything>.RS<digit>"
bool EstensioneRS(const fs::path& file) {
    const std::string chiave = ChiaveNome(Utf8DaPath(file.extension()));
    return chiave.size() == 4 && chiave.starts_with(".RS") && chiave[3] >= '0' && chiave[3] <= '9';
}

FileTraccia RaccogliTracce(const fs::path& cartella) {
    FileTraccia tracce;
    std::error_code errore;
    for (fs::directory_iterator voce(cartella, errore), fine; !errore && voce != fine;
         voce.increment(errore)) {
        std::error_code qui;
        if (!EstensioneRS(voce->path()) || !voce->is_regular_file(qui))
            continue;
        const auto lunghezza = voce->file_size(qui);
        const auto ora = voce->last_write_time(qui);
        if (qui)
            continue;
        tracce.passi += static_cast<long long>(lunghezza / kByteCampione);
        tracce.prima = std::min(tracce.prima, ora);
        tracce.ultima = std::max(tracce.ultima, ora);
    }
    return tracce;
}

void LeggiHeader(const Scrivania& s, VoceArchivio& voce) {
    SweepHeader header;
    const auto dati =
        s.albero.Leggi(TrovaKSH(s.albero, voce.nome), DimensioneSuDisco<SweepHeader>());
    voce.leggibile = dati && LeggiRecord(*dati, header);
    if (!voce.leggibile)
        return;
    ControllaScan(header.Scan);
    std::array<bool, kNumDetector> inUso{};
    for (const ScanLine& riga : header.Scan.Righe) {
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
FileTraccia TracceDellaMisura(const Scrivania& s, std::string_view misura) {
    const FileTraccia accanto = RaccogliTracce(s.albero.Host(CartellaMisura(misura)));
    return accanto.Nessuno() ? RaccogliTracce(s.albero.Host(CartellaSubMisure(misura))) : accanto;
}

DateMisura Date(const FileTraccia& tracce) {
    return tracce.Nessuno() ? DateMisura{}
                            : DateMisura{TestoData(tracce.prima), TestoData(tracce.ultima)};
}

} // namespace

DateMisura DataMisura(const Scrivania& s, std::string_view misura) {
    return Date(TracceDellaMisura(s, misura));
}

std::vector<VoceArchivio> ElencaMisure(const Scrivania& s) {
    std::vector<VoceArchivio> voci;
    for (std::string& nome : s.albero.ElencaCartelle(cartella::kSweep)) {
        VoceArchivio& voce = voci.emplace_back();
        voce.nome = std::move(nome);
        LeggiHeader(s, voce);
        voce.incompiuta = MisuraIncompiuta(s.albero, voce.nome);
        const FileTraccia tracce = TracceDellaMisura(s, voce.nome);
        voce.passi = tracce.passi;
        const DateMisura date = Date(tracce);
        voce.prima = date.prima;
        voce.ultima = date.ultima;
    }
    return voci;
}

} // namespace orvane
