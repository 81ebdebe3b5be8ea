#include "setup/CommutatoriSweep.h"

#include <algorithm>
#include <array>
#include <span>

#include "base/Numeri.h"
#include "setup/RegoleScan.h"

namespace orvane {
namespace {

using Tipo = PassataSweep::Tipo;

enum Ancillary { kNiente, kDueLinee, kQuattroLinee, kAntenna, kQDSW3, kMastTable, kReteInterna };

constexpr std::array<std::string_view, 4> kLinee = {"N", "L1", "L2", "L3"};
constexpr std::array<std::string_view, 4> kLineeQDSW3 = {"W", "X", "Y", "Z"};
struct Polarizzazione {
    std::string_view nome;
    std::string_view parola;
};
constexpr std::array<Polarizzazione, 2> kPolarizzazioni = {
    {{"V", "Vertical"}, {"H", "Horizontal"}}};
constexpr int kNessunCodice = -1;

std::string_view NomeLinea(int ancillaryKind, int whichLine) {
    return (ancillaryKind == kQDSW3 ? kLineeQDSW3 : kLinee).at(static_cast<size_t>(whichLine));
}

Impostazione Commutatore(int ancillaryKind) {
    if (ancillaryKind == kQDSW3)
        return Impostazione::QDSW3;
    return ancillaryKind == kReteInterna ? Impostazione::Lisn3360 : Impostazione::Lisn;
}

void AggiungiPassate(std::vector<PassataSweep>& passate, Tipo tipo, std::span<const int16_t> flag) {
    for (size_t i = 0; i < flag.size(); ++i)
        if (flag[i] == 1)
            passate.push_back({.tipo = tipo, .quale = static_cast<int>(i)});
}

bool Esegui(Ricevitore& r, Commutazione commutazione, std::string& testo) {
    if (!commutazione.riquadro.testo.empty())
        r.ambiente.Mostra(commutazione.riquadro);
    testo = std::move(commutazione.testo);
    return !commutazione.comando || InviaInOrdine(r, {&*commutazione.comando, 1});
}

} // namespace

void SelLineParaSweep(ScanTable& tabella, const SetupRecord& setup) {
    CorreggiLineScanTab(tabella, AncillaryDi(setup), setup.InsLossOn != 0);
}

std::vector<PassataSweep> PassateDellaRiga(const ScanLine& riga, int ancillaryKind) {
    std::vector<PassataSweep> passate;
    if (ancillaryKind == kAntenna)
        AggiungiPassate(passate, Tipo::Antenna, riga.Antenna);
    else if (ancillaryKind != kMastTable)
        AggiungiPassate(passate, Tipo::Linea, riga.LineSwitch);
    if (passate.empty())
        passate.emplace_back();
    return passate;
}

std::string_view NomePassata(const PassataSweep& passata, int ancillaryKind) {
    switch (passata.tipo) {
    case Tipo::Linea:
        return NomeLinea(ancillaryKind, passata.quale);
    case Tipo::Antenna:
        return kPolarizzazioni.at(static_cast<size_t>(passata.quale)).nome;
    case Tipo::Semplice:
        break;
    }
    return {};
}

int GetLisnCode(int ancillaryKind, int whichLine) {
    // By N, L1, L2, L3; the two-line network hangs on other pins of the port.
    constexpr std::array<int, 4> kDiretto = {0, 1, 2, 3};
    constexpr std::array<int, 4> kDue = {kNessunCodice, 0, 4, kNessunCodice};
    constexpr std::array<int, 4> kInterna = {0, 1, 2, 0};
    const auto linea = static_cast<size_t>(whichLine);
    switch (ancillaryKind) {
    case kDueLinee:
        return kDue.at(linea);
    case kQuattroLinee:
    case kQDSW3:
        return kDiretto.at(linea);
    case kReteInterna:
        return kInterna.at(linea);
    default:
        return kNessunCodice;
    }
}

Commutazione ComponiKRVLisn(const ScanLine& riga, int ancillaryKind, int whichLine) {
    const std::string nome(NomeLinea(ancillaryKind, whichLine));
    Commutazione commutazione{.testo = "-" + nome, .riquadro = {}, .comando = {}};
    if (ancillaryKind == kNiente) {
        commutazione.riquadro = {.testo = "Connect Line " + nome, .icona = Icona::Informazione};
        return commutazione;
    }
    const int codice = GetLisnCode(ancillaryKind, whichLine);
    if (riga.LineSwitch.at(static_cast<size_t>(whichLine)) == 1 && codice != kNessunCodice)
        commutazione.comando = {Commutatore(ancillaryKind), TestoIntero(codice)};
    return commutazione;
}

Commutazione ComponiKRVVH(int whichPol) {
    const Polarizzazione& p = kPolarizzazioni.at(static_cast<size_t>(whichPol));
    return {.testo = std::string("-").append(p.nome),
            .riquadro = {.testo = std::string("Switch antenna to ").append(p.parola),
                         .icona = Icona::Informazione},
            .comando = {}};
}

Commutazione ComponiCommutazione(const ScanLine& riga, int ancillaryKind,
                                 const PassataSweep& passata) {
    switch (passata.tipo) {
    case Tipo::Linea:
        return ComponiKRVLisn(riga, ancillaryKind, passata.quale);
    case Tipo::Antenna:
        return ComponiKRVVH(passata.quale);
    case Tipo::Semplice:
        break;
    }
    return {};
}

bool DeterminaEImpostaKRVLisn(Ricevitore& r, const ScanLine& riga, int ancillaryKind, int whichLine,
                              std::string& testo) {
    return Esegui(r, ComponiKRVLisn(riga, ancillaryKind, whichLine), testo);
}

bool DeterminaEImpostaKRVVH(Ricevitore& r, int whichPol, std::string& testo) {
    return Esegui(r, ComponiKRVVH(whichPol), testo);
}

} // namespace orvane
