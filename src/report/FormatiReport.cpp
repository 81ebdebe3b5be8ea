#include "report/FormatiReport.h"

#include <algorithm>
#include <cmath>

#include "base/Numeri.h"
#include "records/SampleRecord.h"
#include "records/Unita.h"

namespace orvane {
namespace {

constexpr double kOttoDecimali = 1e8;
constexpr size_t kMassimeCifre = 7;
constexpr size_t kLarghezzaLivello = 7;

size_t CifreIntere(double mhz) {
    size_t cifre = 1;
    for (double soglia = 10; mhz >= soglia && cifre < kMassimeCifre; soglia *= 10)
        ++cifre;
    return cifre;
}

/// Bytes of the character that begins the text.
size_t ByteCarattere(std::string_view utf8) {
    size_t byte = 1;
    while (byte < utf8.size() && (static_cast<unsigned char>(utf8[byte]) & 0xC0) == 0x80)
        ++byte;
    return byte;
}

} // namespace

double FrequenzaRep(double mhz) {
    return std::round(mhz * kOttoDecimali) / kOttoDecimali;
}

std::string FormattaFreqRep(double mhz, double massimaMhz) {
    const double tonda = FrequenzaRep(mhz);
    const size_t voluti = CifreIntere(massimaMhz);
    const size_t cifre = CifreIntere(tonda);
    return std::string(voluti > cifre ? voluti - cifre : 0, ' ') + TestoDaNumero(tonda);
}

std::string FormattaLivelloRep(float livello) {
    std::string testo = TestoFisso(livello, 2);
    if (testo == "-0.00")
        testo = "0.00";
    const size_t mancano = testo.size() < kLarghezzaLivello ? kLarghezzaLivello - testo.size() : 0;
    return std::string(std::max<size_t>(mancano, livello > 0 ? 1 : 0), ' ') + testo;
}

std::string FormattaIntRep(int valore) {
    return "   " + TestoIntero(valore, valore < 0 ? 4 : 3);
}

std::string FormattaPosizioneRep(int16_t posizione) {
    return posizione == kNessunaPosizione ? std::string(kCellaVuota) : FormattaIntRep(posizione);
}

std::string TestoUnita(int unitId) {
    const auto& tabella = TabellaUnitaGrafico();
    const bool nota = unitId >= 0 && unitId < static_cast<int>(tabella.size());
    return tabella[static_cast<size_t>(nota ? unitId : 1)].testo;
}

std::string TagliaTestoWidth(const std::string& nome, double limite, const MisuraTesto& misura) {
    if (misura(nome) <= limite)
        return nome;
    std::string_view resto = nome;
    std::string testa;
    double larghezza = 0;
    while (!resto.empty()) {
        const std::string_view carattere = resto.substr(0, ByteCarattere(resto));
        larghezza += misura(carattere);
        if (larghezza > limite)
            break;
        testa += carattere;
        resto.remove_prefix(carattere.size());
    }
    return testa + "...";
}

size_t NumeroCaratteri(std::string_view utf8) {
    size_t quanti = 0;
    for (; !utf8.empty(); ++quanti)
        utf8.remove_prefix(ByteCarattere(utf8));
    return quanti;
}

std::string PrimiCaratteri(std::string_view utf8, size_t quanti) {
    size_t byte = 0;
    while (quanti-- > 0 && byte < utf8.size())
        byte += ByteCarattere(utf8.substr(byte));
    return std::string(utf8.substr(0, byte));
}

std::string Riempi(std::string_view utf8, size_t larghezza) {
    const size_t presenti = NumeroCaratteri(utf8);
    return std::string(utf8) + std::string(presenti < larghezza ? larghezza - presenti : 0, ' ');
}

} // namespace orvane
