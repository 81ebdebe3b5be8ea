// A private directory for one test, gone with it.
#pragma once

#include <atomic>
#include <filesystem>
#include <string>

#include <unistd.h>

namespace orvane::prova {

class CartellaProva {
public:
    CartellaProva() {
        static std::atomic<int> quante = 0;
        percorso_ = std::filesystem::temp_directory_path() /
                    ("orvane-test-" + std::to_string(getpid()) + "-" + std::to_string(++quante));
        std::filesystem::create_directories(percorso_);
    }
    ~CartellaProva() {
        std::error_code errore;
        std::filesystem::remove_all(percorso_, errore);
    }
    CartellaProva(const CartellaProva&) = delete;
    CartellaProva& operator=(const CartellaProva&) = delete;

    const std::filesystem::path& Percorso() const { return percorso_; }

private:
    std::filesystem::path percorso_;
};

} // namespace orvane::prova
