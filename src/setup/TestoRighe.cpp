// Lines of the scan table on the clipboard.
#include <algorithm>
#include <optional>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "setup/CampiRiga.h"
#include "setup/RegoleRiga.h"
#include "setup/RigheScan.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

using Celle = std::vector<std::string>;
using Colonne = std::vector<const CampoRiga*>; ///< by place; null: a column that nobody knows

constexpr size_t kMaxErrori = 20;

// Inside a cell a tab or a line's end would end the cell.
std::string Proteggi(std::string_view testo) {
    std::string cella = Sostituisci(testo, "\\", "\\\\");
    cella = Sostituisci(Sostituisci(cella, "\t", "\\t"), "\r", "\\r");
    return Sostituisci(cella, "\n", "\\n");
}

std::string TogliProtezione(std::string_view cella) {
    std::string testo;
    for (size_t i = 0; i < cella.size(); ++i) {
        const char segue = i + 1 < cella.size() ? cella[i + 1] : '\0';
        const bool coppia = cella[i] == '\\' && std::string_view("\\trn").find(segue) < 4;
        if (!coppia) {
            testo += cella[i];
            continue;
        }
        testo += segue == 't' ? '\t' : segue == 'r' ? '\r' : segue == 'n' ? '\n' : '\\';
        ++i;
    }
    return testo;
}

Celle CelleDellaRiga(std::string_view riga) {
    Celle celle = Dividi(riga, '\t');
    for (std::string& cella : celle)
        cella = TogliProtezione(Rifila(cella));
    return celle;
}

/// The columns that a row of headings names; empty where the row is none.
Colonne LeggiTitoli(const Celle& celle) {
    Colonne colonne;
    bool alcuno = false;
    for (const std::string& cella : celle) {
        const CampoRiga* trovato = nullptr;
        for (const CampoRiga& campo : TabellaCampiRiga())
            if (UgualiSenzaMaiuscole(campo.titolo, cella))
                trovato = &campo;
        alcuno = alcuno || trovato;
        colonne.push_back(trovato);
    }
    return alcuno ? colonne : Colonne{};
}

Colonne ColonneInOrdine() {
    Colonne colonne;
    for (const CampoRiga& campo : TabellaCampiRiga())
        colonne.push_back(&campo);
    return colonne;
}

std::string CellaDi(const Colonne& colonne, const Celle& celle, const CampoRiga& campo) {
    const auto posto = std::find(colonne.begin(), colonne.end(), &campo) - colonne.begin();
    return static_cast<size_t>(posto) < celle.size() ? celle[static_cast<size_t>(posto)] : "";
}

/// One row; empty without start and stop, which make a line.
std::optional<ScanLine> LeggiRiga(const Colonne& colonne, const Celle& celle, int ancillaryKind,
                                  const std::string& dove, std::vector<std::string>& errori) {
    const auto campi = TabellaCampiRiga();
    ScanLine riga;
    for (size_t i = 0; i < 2; ++i)
        if (!campi[i].leggi(riga, CellaDi(colonne, celle, campi[i]), ancillaryKind)) {
            errori.push_back(dove + "no line without " + std::string(campi[i].titolo));
            return std::nullopt;
        }
    ImpostaLineaDefault(riga, ancillaryKind);
    riga.RbwId = DetRBWDefault(riga.Start, riga.Stop);
    for (const CampoRiga& campo : campi.subspan(2)) {
        const std::string cella = CellaDi(colonne, celle, campo);
        if (!cella.empty() && !campo.leggi(riga, cella, ancillaryKind))
            errori.push_back(dove + std::string(campo.titolo) + " wants " +
                             std::string(campo.vuole) + ", not \"" + cella + "\"");
    }
    AggiornaStepAuto(riga);
    return riga;
}

} // namespace

std::string TestoDelleRighe(std::span<const ScanLine> righe) {
    Celle titoli;
    for (const CampoRiga& campo : TabellaCampiRiga())
        titoli.emplace_back(campo.titolo);
    std::string testo = Unisci(titoli, "\t") + "\n";
    for (const ScanLine& riga : righe) {
        Celle celle;
        for (const CampoRiga& campo : TabellaCampiRiga())
            celle.push_back(Proteggi(campo.testo(riga)));
        testo += Unisci(celle, "\t") + "\n";
    }
    return testo;
}

RigheLette LeggiRighe(std::string_view testo, int ancillaryKind) {
    RigheLette lette;
    Colonne colonne;
    long long numero = 0;
    for (const std::string& riga : Dividi(testo, '\n')) {
        ++numero;
        if (RifilaControlli(riga).empty())
            continue;
        const Celle celle = CelleDellaRiga(Sostituisci(riga, "\r", ""));
        const bool prima = colonne.empty();
        const Colonne titoli = prima ? LeggiTitoli(celle) : Colonne{};
        if (prima)
            colonne = titoli.empty() ? ColonneInOrdine() : titoli;
        if (!titoli.empty())
            continue;
        if (lette.righe.size() >= kMaxScanLine || lette.errori.size() >= kMaxErrori) {
            lette.errori.push_back("row " + TestoIntero(numero) + " and what follows are left out");
            break;
        }
        const std::string dove = "row " + TestoIntero(numero) + ": ";
        if (const auto letta = LeggiRiga(colonne, celle, ancillaryKind, dove, lette.errori))
            lette.righe.push_back(*letta);
    }
    return lette;
}

} // namespace orvane
