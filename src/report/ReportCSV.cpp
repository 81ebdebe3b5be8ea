#include "report/ReportCSV.h"

#include <algorithm>

#include "base/Testo.h"

namespace orvane {
namespace {

constexpr std::string_view kFineRiga = "\r\n";

std::string Campo(const std::string& testo, char separatore) {
    const bool nudo = testo.find_first_of(std::string("\"\r\n") + separatore) == testo.npos &&
                      Rifila(testo) == testo;
    return nudo ? testo : "\"" + Sostituisci(testo, "\"", "\"\"") + "\"";
}

/// "Limit NAME [unit]"
std::string Testata(const ColonnaReport& colonna, const GrigliaReport& griglia) {
    std::string nome = colonna.nome;
    if (colonna.genere == GenereColonna::Delta)
        nome = NomeDelLimite(griglia, colonna.quale);
    return colonna.titolo + (nome.empty() ? "" : " " + nome) + " [" + colonna.unita + "]";
}

std::string Valore(const std::string& cella, char decimale) {
    std::string valore = Rifila(cella);
    if (valore == kCellaVuota)
        return {};
    std::ranges::replace(valore, '.', decimale);
    return valore;
}

} // namespace

std::string ReportCsv(const GrigliaReport& griglia, const FormaCsv& forma) {
    std::string testo;
    const auto accoda = [&](const std::string& campo, bool prima) {
        testo += (prima ? "" : std::string(1, forma.separatore)) + Campo(campo, forma.separatore);
    };
    // The first column only numbers the rows.
    for (size_t c = 1; c < griglia.colonne.size(); ++c)
        accoda(Testata(griglia.colonne[c], griglia), c == 1);
    testo += kFineRiga;
    for (const RigaGriglia& riga : griglia.righe) {
        for (size_t c = 1; c < riga.celle.size(); ++c)
            accoda(Valore(riga.celle[c], forma.decimale), c == 1);
        testo += kFineRiga;
    }
    return testo;
}

} // namespace orvane
