// A desk over a private directory, with what tests of files ask for again and again.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include <csignal>
#include <sys/resource.h>

#include "aiuto/AmbienteProva.h"
#include "aiuto/CartellaProva.h"
#include "data/Scrivania.h"
#include "records/Visite.h"

namespace orvane::prova {

struct ProvaDati : ::testing::Test {
    CartellaProva cartella;
    AmbienteProva ambiente;
    Scrivania s{.ambiente = ambiente, .albero = AlberoDati(cartella.Percorso())};

    std::filesystem::path Host(const std::string& relativo) const {
        return cartella.Percorso() / relativo;
    }
    void Metti(const std::string& relativo, const std::string& byte) const {
        std::filesystem::create_directories(Host(relativo).parent_path());
        std::ofstream(Host(relativo), std::ios::binary) << byte;
    }
    void Metti(const std::string& relativo, const std::vector<uint8_t>& byte) const {
        Metti(relativo, std::string(byte.begin(), byte.end()));
    }
    std::string Prendi(const std::string& relativo) const {
        std::ifstream file(Host(relativo), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }
    /// Every name in a directory of the host, temporary files too.
    std::vector<std::string> Nomi(const std::string& relativo) const {
        std::vector<std::string> nomi;
        for (const auto& voce : std::filesystem::directory_iterator(Host(relativo)))
            nomi.push_back(voce.path().filename().string());
        std::sort(nomi.begin(), nomi.end());
        return nomi;
    }
    /// The only box so far, which is taken away.
    std::string Riquadro() {
        if (ambiente.riquadri.size() != 1)
            return "boxes: " + std::to_string(ambiente.riquadri.size());
        const std::string testo = ambiente.riquadri[0].testo;
        ambiente.riquadri.clear();
        return testo;
    }
};

/// While it lives no file can grow beyond `byte`: a disk that is full in the middle of a write.
class DiscoPieno {
public:
    explicit DiscoPieno(rlim_t byte) : segnale_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &prima_);
        const rlimit stretto{byte, prima_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &stretto);
    }
    ~DiscoPieno() {
        setrlimit(RLIMIT_FSIZE, &prima_);
        std::signal(SIGXFSZ, segnale_);
    }
    DiscoPieno(const DiscoPieno&) = delete;
    DiscoPieno& operator=(const DiscoPieno&) = delete;

private:
    void (*segnale_)(int);
    rlimit prima_{};
};

/// A record of random bytes, the same for the same seed.
inline std::vector<uint8_t> ByteCasuali(size_t quanti, unsigned seme) {
    std::mt19937 caso(seme);
    std::vector<uint8_t> byte(quanti);
    for (uint8_t& b : byte)
        b = static_cast<uint8_t>(caso());
    return byte;
}

} // namespace orvane::prova
