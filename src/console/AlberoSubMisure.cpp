#include "console/AlberoSubMisure.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/NomiDisco.h"

namespace orvane {
namespace {

using Nodi = std::vector<NodoSubMisura>;

constexpr std::string_view kWorst = "Worst: ";
constexpr std::string_view kInviluppoMisura = "Measure Envelope";
constexpr std::string_view kInviluppoPreScan = "Pre Scan Envelope";
constexpr std::string_view kMisura = "Measure";

/// The passes of an Insertion Loss measure, in the order of the tree.
struct SuffissoInsLoss {
    std::string_view suffisso;
    std::string_view titolo;
};
constexpr std::array kSuffissiInsLoss = {
    SuffissoInsLoss{"^R", "Reference"}, SuffissoInsLoss{"^M", "Measure"},
    SuffissoInsLoss{"^D", "Difference"}, SuffissoInsLoss{"^E", "Envelope"}};

bool StessoFile(std::string_view a, std::string_view b) {
    return ChiaveNome(a) == ChiaveNome(b);
}

struct Worst {
    std::string prefisso;
    int numero = 0;
};
/// "W_01", or "<prefix>-W_01".
std::optional<Worst> SpezzaWorst(const std::string& base) {
    constexpr size_t kLungo = 4;
    if (base.size() < kLungo)
        return std::nullopt;
    const std::string coda = Maiuscolo(base.substr(base.size() - kLungo));
    const auto cifra = [](char c) { return c >= '0' && c <= '9'; };
    if (!coda.starts_with("W_") || !cifra(coda[2]) || !cifra(coda[3]))
        return std::nullopt;
    const int numero = (coda[2] - '0') * 10 + (coda[3] - '0');
    if (base.size() == kLungo)
        return Worst{.numero = numero};
    if (base[base.size() - kLungo - 1] != '-')
        return std::nullopt;
    return Worst{base.substr(0, base.size() - kLungo - 1), numero};
}

/// A position's name; which of the two steps it belongs to.
std::optional<FaseMastTable> FasePosizione(const std::string& base) {
    const std::string chiave = Maiuscolo(base);
    const bool lunga = chiave.size() == 12;
    if (lunga && (chiave.starts_with("PSM") || chiave.starts_with("PST")))
        return FaseMastTable::PreScan;
    if (lunga && (chiave.starts_with("MEM") || chiave.starts_with("MET")))
        return FaseMastTable::Measure;
    return std::nullopt;
}

/// The worst lists of one base, below its node.
void AppendiWorst(Nodi& nodi, const ContestoNodi& c, std::string_view prefisso, int profondita) {
    for (const std::string& file : c.file)
        if (const auto worst = SpezzaWorst(file); worst && StessoFile(worst->prefisso, prefisso))
            nodi.push_back({.testo = std::string(kWorst) + TestoIntero(worst->numero),
                            .profondita = profondita,
                            .prefisso = worst->prefisso,
                            .file = file});
}

/// A trace with its worst lists.
void AppendiTraccia(Nodi& nodi, const ContestoNodi& c, NodoSubMisura nodo) {
    const std::string file = nodo.file;
    const int sotto = nodo.profondita + 1;
    nodi.push_back(std::move(nodo));
    AppendiWorst(nodi, c, file, sotto);
}

/// What the names of all passes have in front of their last "-". It is the name that the measure
/// had when it ran, which a rename leaves in them; empty where they differ.
std::string TestaComune(const std::vector<std::string>& passate) {
    std::optional<std::string> testa;
    for (const std::string& file : passate) {
        const auto trattino = file.rfind('-');
        const std::string questa = trattino == std::string::npos ? "" : file.substr(0, trattino);
        if (testa && !StessoFile(*testa, questa))
            return {};
        testa = questa;
    }
    return testa.value_or("");
}

/// "L1" of "<measure>-L1".
std::string TitoloPassata(const std::string& testa, const std::string& file) {
    return testa.empty() ? file : file.substr(testa.size() + 1);
}

bool DiInsLoss(const std::string& file) {
    return std::ranges::any_of(kSuffissiInsLoss, [&](const SuffissoInsLoss& s) {
        return Maiuscolo(file).ends_with(s.suffisso);
    });
}

void AppendiInsLoss(Nodi& nodi, const ContestoNodi& c) {
    for (const SuffissoInsLoss& s : kSuffissiInsLoss)
        for (const std::string& file : c.file)
            if (Maiuscolo(file).ends_with(s.suffisso))
                nodi.push_back({.testo = std::string(s.titolo), .profondita = 1, .file = file});
}

/// What worst lists belong to that has no trace of its own: a heading for each.
void AppendiWorstOrfani(Nodi& nodi, const ContestoNodi& c) {
    std::vector<std::string> visti;
    for (const std::string& file : c.file) {
        const auto worst = SpezzaWorst(file);
        if (!worst || worst->prefisso.empty() || StessoFile(worst->prefisso, c.misura) ||
            c.Ha(worst->prefisso) || std::ranges::count(visti, ChiaveNome(worst->prefisso)) > 0)
            continue;
        visti.push_back(ChiaveNome(worst->prefisso));
        nodi.push_back({.testo = NomeSubMisuraEsteso(worst->prefisso, c.priorita),
                        .profondita = 1,
                        .gruppo = true});
        AppendiWorst(nodi, c, worst->prefisso, 2);
    }
}

Nodi AlberoSemplice(const ContestoNodi& c) {
    Nodi nodi{{.testo = c.misura, .file = c.misura}};
    AppendiWorst(nodi, c, "", 1);
    AppendiWorst(nodi, c, c.misura, 1);
    if (c.insertionLoss)
        AppendiInsLoss(nodi, c);
    const size_t prima = nodi.size();
    const std::vector<std::string> passate = PassateDellaMisura(c);
    const std::string testa = TestaComune(passate);
    for (const std::string& file : passate)
        AppendiTraccia(nodi, c,
                       {.testo = TitoloPassata(testa, file), .profondita = 1, .file = file});
    if (passate.size() > 1 || c.Ha(kBaseInviluppo))
        nodi.insert(nodi.begin() + static_cast<long>(prima),
                    {.testo = std::string(kBaseInviluppo), .profondita = 1});
    AppendiWorstOrfani(nodi, c);
    return nodi;
}

void AppendiPosizioni(Nodi& nodi, const ContestoNodi& c, FaseMastTable fase) {
    for (const std::string& file : c.file) {
        if (FasePosizione(file) != fase)
            continue;
        std::string testo = NomeSubMisuraEsteso(file, c.priorita);
        if (fase == FaseMastTable::Measure && testo.starts_with(kMisura))
            testo = testo.substr(kMisura.size() + 1);
        AppendiTraccia(nodi, c, {.testo = testo, .profondita = 1, .fase = fase, .file = file});
    }
}

bool HaPosizioni(const ContestoNodi& c, FaseMastTable fase) {
    return std::ranges::any_of(c.file,
                               [&](const std::string& f) { return FasePosizione(f) == fase; });
}

Nodi AlberoMastTable(const ContestoNodi& c) {
    Nodi nodi;
    const bool preScan = HaPosizioni(c, FaseMastTable::PreScan);
    if (preScan) {
        nodi.push_back({.testo = "Pre Scan", .gruppo = true, .fase = FaseMastTable::PreScan});
        AppendiPosizioni(nodi, c, FaseMastTable::PreScan);
    }
    const bool misura = c.Ha(submisura::kMisura);
    if (misura || HaPosizioni(c, FaseMastTable::Measure)) {
        nodi.push_back({.testo = std::string(kMisura),
                        .gruppo = !misura,
                        .file = std::string(misura ? submisura::kMisura : "")});
        AppendiWorst(nodi, c, submisura::kMisura, 1);
        AppendiPosizioni(nodi, c, FaseMastTable::Measure);
    }
    if (c.Ha(submisura::kInviluppo) || !PosizioniMastTable(c).empty()) {
        nodi.push_back({.testo = std::string(kBaseInviluppo), .gruppo = true});
        nodi.push_back({.testo = std::string(preScan ? kInviluppoPreScan : kInviluppoMisura),
                        .profondita = 1});
    }
    return nodi;
}

/// The number behind "Mast: " or its short form "M. "; 0 without one.
int NumeroDietro(std::string_view testo, std::string_view lunga, std::string_view corta) {
    for (const std::string_view chiave : {lunga, corta})
        if (const auto dove = testo.find(chiave); dove != std::string_view::npos)
            return static_cast<int>(ValoreIniziale(testo.substr(dove + chiave.size())));
    return 0;
}

bool TestoPosizione(std::string_view testo) {
    return std::ranges::any_of(std::array<std::string_view, 4>{"Mast: ", "Table: ", "M. ", "T. "},
                               [&](std::string_view chiave) { return Contiene(testo, chiave); });
}

FileDaNodo FilePosizione(const ContestoNodi& c, const NodoSubMisura& nodo) {
    const FaseMastTable fase = nodo.testo.starts_with(kMisura) ? FaseMastTable::Measure : nodo.fase;
    const std::string base = BasePosizione(fase, NumeroDietro(nodo.testo, "Mast: ", "M. "),
                                           NumeroDietro(nodo.testo, "Table: ", "T. "), c.priorita);
    // A file may name its axes the other way round than its neighbours.
    return {nodo.file.empty() || c.Ha(base) ? base : nodo.file};
}

} // namespace

bool ContestoNodi::Ha(std::string_view base_) const {
    return std::ranges::any_of(file, [&](const std::string& f) { return StessoFile(f, base_); });
}

ContestoNodi LeggiContestoNodi(const Scrivania& s, const std::string& misura, bool insertionLoss) {
    ContestoNodi c{.misura = misura,
                   .file = ElencaSubMisure(s, false, misura),
                   .insertionLoss = insertionLoss};
    if (c.file.size() == 1 && c.file[0].empty())
        c.file.clear();
    c.mastTable = ControllaMEASMT(s, misura) || !PosizioniMastTable(c).empty();
    for (const std::string& file : c.file)
        if (FasePosizione(file) && Maiuscolo(file)[2] == 'T')
            c.priorita = PrioritaAssi::Table;
    return c;
}

std::vector<std::string> PosizioniMastTable(const ContestoNodi& c) {
    const FaseMastTable fase =
        HaPosizioni(c, FaseMastTable::PreScan) ? FaseMastTable::PreScan : FaseMastTable::Measure;
    std::vector<std::string> posizioni;
    std::ranges::copy_if(c.file, std::back_inserter(posizioni),
                         [&](const std::string& f) { return FasePosizione(f) == fase; });
    return posizioni;
}

std::vector<std::string> PassateDellaMisura(const ContestoNodi& c) {
    std::vector<std::string> passate;
    std::ranges::copy_if(c.file, std::back_inserter(passate), [&](const std::string& f) {
        return !SpezzaWorst(f) && !StessoFile(f, kBaseInviluppo) &&
               !(c.insertionLoss && DiInsLoss(f));
    });
    return passate;
}

std::vector<NodoSubMisura> CreaAlberoSubMisure(const ContestoNodi& c) {
    return c.mastTable ? AlberoMastTable(c) : AlberoSemplice(c);
}

FileDaNodo NomeFileDaNodo(const ContestoNodi& c, const NodoSubMisura& nodo) {
    if (nodo.gruppo)
        return {};
    if (nodo.testo == kInviluppoMisura || nodo.testo == kInviluppoPreScan)
        return {std::string(submisura::kInviluppo), ViewMode::Inviluppo};
    const bool propria = nodo.profondita == 0 && nodo.file == c.misura;
    if (propria || (c.insertionLoss && !nodo.file.empty()))
        return {nodo.file};
    if (nodo.testo == kMisura)
        return {std::string(submisura::kMisura), ViewMode::MastTable};
    if (nodo.testo == kBaseInviluppo)
        return {std::string(kBaseInviluppo)};
    if (const auto numero = NumeroWorst(nodo))
        return {BaseWorst(nodo.prefisso, *numero)};
    if (TestoPosizione(nodo.testo))
        return FilePosizione(c, nodo);
    const std::string& nome = nodo.file.empty() ? nodo.testo : nodo.file;
    const std::string peggiore = BaseWorst(nome, 1);
    return {c.Ha(peggiore) ? peggiore : nome};
}

std::optional<int> NumeroWorst(const NodoSubMisura& nodo) {
    if (!nodo.testo.starts_with(kWorst))
        return std::nullopt;
    return static_cast<int>(ValoreIniziale(nodo.testo.substr(kWorst.size())));
}

std::string TitoloWorst(int viewWorstMode, int numero) {
    return viewWorstMode == 1 || viewWorstMode == 2 ? " Worst: " + TestoIntero(numero)
                                                    : std::string();
}

} // namespace orvane
