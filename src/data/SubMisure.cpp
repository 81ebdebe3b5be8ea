#include "data/SubMisure.h"

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_set>

#include "base/Numeri.h"
#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/Cartelle.h"
#include "data/Misure.h"
#include "data/NomiDisco.h"

namespace orvane {
namespace {

constexpr std::string_view kInviluppo = "Envelope";
/// Third of the titles of an Insertion Loss measure: "Reference", "Measure", "Difference".
constexpr std::string_view kTerzoTitolo = "Difference";
constexpr std::string_view kSegnoWorst = "W_";
constexpr size_t kCifrePosizione = 3;

struct PrefissiFase {
    FaseMastTable fase;
    std::string_view mast;
    std::string_view table;
    std::string_view titolo; ///< in front of the position
};
constexpr std::array kPrefissi = {PrefissiFase{FaseMastTable::PreScan, "PSM", "PST", ""},
                                  PrefissiFase{FaseMastTable::Measure, "MEM", "MET", "Measure "}};

struct TitoloFisso {
    std::string_view nome;
    std::string_view titolo;
};
constexpr std::array kTitoliFissi = {
    TitoloFisso{submisura::kMisura, "Measure"}, TitoloFisso{submisura::kInviluppo, "Envelope"},
    TitoloFisso{submisura::kPosizioni, ""}, TitoloFisso{submisura::kPosizioniInv, ""}};

/// The number behind a prefix at the start of `testo`; moves `testo` behind it.
std::optional<int> PrendiNumero(std::string_view& testo, std::string_view prefisso, size_t cifre) {
    if (!testo.starts_with(prefisso) || testo.size() < prefisso.size() + cifre)
        return std::nullopt;
    int numero = 0;
    for (const char c : testo.substr(prefisso.size(), cifre)) {
        if (c < '0' || c > '9')
            return std::nullopt;
        numero = 10 * numero + (c - '0');
    }
    testo.remove_prefix(prefisso.size() + cifre);
    return numero;
}

std::string TitoloPosizione(int mast, int table, PrioritaAssi priorita) {
    const std::string m = "Mast: " + TestoIntero(mast) + " cm";
    const std::string t = "Table: " + TestoIntero(table) + " Deg";
    return priorita == PrioritaAssi::Mast ? m + "   " + t : t + "   " + m;
}

/// The two numbers of a position, whichever stands first.
std::optional<std::string> TitoloPosizione(std::string_view nome, const PrefissiFase& fase,
                                           PrioritaAssi priorita) {
    std::string_view resto = nome;
    auto mast = PrendiNumero(resto, fase.mast, kCifrePosizione);
    const auto table = PrendiNumero(resto, fase.table, kCifrePosizione);
    if (!mast)
        mast = PrendiNumero(resto, fase.mast, kCifrePosizione);
    if (!mast || !table || !resto.empty())
        return std::nullopt;
    return std::string(fase.titolo) + TitoloPosizione(*mast, *table, priorita);
}

/// Title of a name without a worst number.
std::string TitoloSemplice(std::string_view nome, PrioritaAssi priorita) {
    const std::string chiave = Maiuscolo(nome);
    for (const TitoloFisso& fisso : kTitoliFissi)
        if (chiave == fisso.nome)
            return std::string(fisso.titolo);
    for (const PrefissiFase& fase : kPrefissi)
        if (auto titolo = TitoloPosizione(chiave, fase, priorita))
            return *titolo;
    return std::string(nome);
}

/// The digit of the scan line of a trace file; empty for any other file. Only the last character
/// of the extension counts.
std::optional<char> CifraTraccia(const std::string& file) {
    const std::string estensione = ChiaveNome(file.substr(file.rfind('.') + 1));
    const char ultima = estensione.empty() ? ' ' : estensione.back();
    if (!estensione.starts_with("RS") || ultima < '0' || ultima > '9')
        return std::nullopt;
    return ultima;
}

bool PrimaSenzaMaiuscole(const std::string& a, const std::string& b) {
    return ChiaveNome(a) < ChiaveNome(b);
}

} // namespace

std::string BasePosizione(FaseMastTable fase, int mast, int table, PrioritaAssi priorita) {
    const PrefissiFase& prefissi = kPrefissi[static_cast<size_t>(fase)];
    const std::string m = std::string(prefissi.mast) + TestoIntero(mast, kCifrePosizione);
    const std::string t = std::string(prefissi.table) + TestoIntero(table, kCifrePosizione);
    return priorita == PrioritaAssi::Mast ? m + t : t + m;
}

std::string BaseWorst(std::string_view prefisso, int numero) {
    const std::string worst = std::string(kSegnoWorst) + TestoIntero(numero, 2);
    return prefisso.empty() ? worst : std::string(prefisso) + "-" + worst;
}

std::string NomeSubMisuraEsteso(std::string_view file, PrioritaAssi priorita) {
    const std::string nome = EstraiNomeFile(file);
    const auto trattino = nome.rfind('-');
    const bool conPrefisso = trattino != std::string::npos;
    const std::string coda = Maiuscolo(conPrefisso ? nome.substr(trattino + 1) : nome);
    std::string_view resto = coda;
    const auto numero = PrendiNumero(resto, kSegnoWorst, 2);
    if (!numero || !resto.empty())
        return TitoloSemplice(nome, priorita);
    const std::string davanti =
        conPrefisso ? TitoloSemplice(nome.substr(0, trattino), priorita) : std::string();
    return davanti + (davanti.empty() ? "" : " ") + "Worst: " + TestoIntero(*numero);
}

bool ControllaMEASMT(const Scrivania& s, std::string_view misura) {
    const auto file = s.albero.ElencaFile(CartellaSubMisure(misura), "");
    return std::any_of(file.begin(), file.end(), [](const std::string& nome) {
        return Maiuscolo(RimuoviEstensione(nome)) == submisura::kMisura;
    });
}

std::vector<std::string> ElencaSubMisure(const Scrivania& s, bool conInviluppo,
                                         std::string_view misura, bool insertionLoss) {
    std::vector<std::string> nomi;
    std::unordered_set<std::string> chiavi;
    for (const std::string& file : s.albero.ElencaFile(CartellaSubMisure(misura), "")) {
        const std::string nome = RimuoviEstensione(file);
        if (CifraTraccia(file) && chiavi.insert(ChiaveNome(nome)).second)
            nomi.push_back(nome);
    }
    if (nomi.empty())
        return {""};
    const bool unaSola = nomi.size() == 1;
    if (conInviluppo && chiavi.insert(ChiaveNome(kInviluppo)).second)
        nomi.emplace_back(kInviluppo);
    std::stable_sort(nomi.begin(), nomi.end(), PrimaSenzaMaiuscole);
    if (conInviluppo && unaSola && nomi.front() != kInviluppo)
        std::swap(nomi.front(), nomi.back());
    if (insertionLoss)
        nomi.front() = kTerzoTitolo;
    return nomi;
}

} // namespace orvane
