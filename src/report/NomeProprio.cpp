#include "report/NomeProprio.h"

#include <chrono>
#include <cstdio>
#include <string>
#include <system_error>

#include "data/FileProvvisorio.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

constexpr int kMassimoTentativi = 1000;
// No report takes that long.
constexpr std::chrono::hours kResto{1};

fs::path Tentativo(const fs::path& voluto, int quale) {
    if (quale == 0)
        return voluto;
    fs::path nome = voluto.stem();
    nome += "~" + std::to_string(quale);
    nome += voluto.extension();
    return fs::path(voluto).replace_filename(nome);
}

bool StessoFile(const fs::path& a, const fs::path& b) {
    std::error_code errore;
    return fs::weakly_canonical(a, errore) == fs::weakly_canonical(b, errore);
}

void CancellaResto(const fs::path& percorso) {
    std::error_code errore;
    const auto scritto = fs::last_write_time(percorso, errore);
    if (!errore && fs::file_time_type::clock::now() - scritto > kResto)
        fs::remove(percorso, errore);
}

} // namespace

fs::path NomeProprio(const fs::path& voluto, const fs::path& eccetto) {
    std::error_code errore;
    for (int i = 0; i < kMassimoTentativi; ++i) {
        const fs::path nome = Tentativo(voluto, i);
        if (!eccetto.empty() && StessoFile(nome, eccetto))
            continue;
        CancellaResto(nome);
        if (FileC(std::fopen(nome.string().c_str(), "wbx")))
            return nome;
        if (!fs::exists(nome, errore))
            break; // the directory itself refuses
    }
    return voluto;
}

} // namespace orvane
