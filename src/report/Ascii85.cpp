#include "report/Ascii85.h"

namespace orvane {
namespace {

void AccodaGruppo(const std::array<uint8_t, 4>& gruppo, size_t byte, std::string& uscita) {
    uint32_t valore = 0;
    for (const uint8_t b : gruppo)
        valore = valore << 8 | b;
    if (valore == 0 && byte == 4) {
        uscita += 'z';
        return;
    }
    std::array<char, 5> cifre{};
    for (size_t i = cifre.size(); i-- > 0; valore /= 85)
        cifre[i] = static_cast<char>('!' + valore % 85);
    uscita.append(cifre.data(), byte + 1);
}

} // namespace

void CodificaA85::Aggiungi(std::string_view byte, std::string& uscita) {
    for (const char c : byte) {
        gruppo_[quanti_++] = static_cast<uint8_t>(c);
        if (quanti_ == gruppo_.size()) {
            AccodaGruppo(gruppo_, quanti_, uscita);
            quanti_ = 0;
        }
    }
}

void CodificaA85::Fine(std::string& uscita) {
    if (quanti_ > 0) {
        for (size_t i = quanti_; i < gruppo_.size(); ++i)
            gruppo_[i] = 0;
        AccodaGruppo(gruppo_, quanti_, uscita);
    }
    quanti_ = 0;
    uscita += "~>";
}

std::string InAscii85(std::string_view byte) {
    std::string uscita;
    CodificaA85 codifica;
    codifica.Aggiungi(byte, uscita);
    codifica.Fine(uscita);
    return uscita;
}

} // namespace orvane
