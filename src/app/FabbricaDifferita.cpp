#include "app/FabbricaDifferita.h"

#include <filesystem>
#include <iostream>

#include <dlfcn.h>

namespace orvane {
namespace {

namespace fs = std::filesystem;

constexpr const char* kModulo = "orvane-pictures.so";

fs::path PercorsoModulo() {
    std::error_code errore;
    const fs::path qui = fs::read_symlink("/proc/self/exe", errore).parent_path();
    const fs::path accanto = qui / kModulo;
    return fs::exists(accanto, errore) ? accanto : qui.parent_path() / "lib/orvane" / kModulo;
}

/// The module stays loaded: Qt does not survive being taken out.
std::unique_ptr<FabbricaQuadri> CaricaFabbrica() {
    void* modulo = dlopen(PercorsoModulo().c_str(), RTLD_NOW | RTLD_LOCAL);
    using Crea = FabbricaQuadri*();
    auto* crea = modulo ? reinterpret_cast<Crea*>(dlsym(modulo, "CreaFabbricaQuadri")) : nullptr;
    if (!crea) {
        std::cerr << "orvane: no pictures: " << dlerror() << "\n";
        return nullptr;
    }
    return std::unique_ptr<FabbricaQuadri>(crea());
}

} // namespace

std::vector<uint8_t> FabbricaDifferita::Dipingi(int larghezza, int altezza, FormatoImmagine formato,
                                                const std::function<void(Superficie&)>& disegna) {
    if (!fabbrica_)
        fabbrica_ = CaricaFabbrica();
    return fabbrica_ ? fabbrica_->Dipingi(larghezza, altezza, formato, disegna)
                     : std::vector<uint8_t>();
}

} // namespace orvane
