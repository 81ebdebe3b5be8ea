#include "report/TestoReport.h"

#include <algorithm>
#include <iterator>

#include "base/Numeri.h"
#include "base/Testo.h"

namespace orvane {
namespace {

constexpr std::array<const char*, 3> kSeparatori = {"\t", ";", ","};
constexpr size_t kTestaNome = 9;

/// The three lines over a column.
struct Testata {
    std::string titolo;
    std::string nome;
    std::string unita;
};

std::string Riga(const std::vector<std::string>& celle, const std::string& separatore) {
    std::string riga;
    for (const std::string& cella : celle)
        riga += Riempi(cella, kLarghezzaCella) + separatore;
    return riga;
}

void AccodaTestate(std::vector<std::string>& righe, const std::vector<Testata>& testate,
                   const std::string& separatore) {
    std::array<std::vector<std::string>, 3> celle;
    for (const Testata& t : testate) {
        celle[0].push_back(t.titolo);
        celle[1].push_back(TagliaNomeCella(t.nome));
        celle[2].push_back("[" + t.unita + "]");
    }
    righe.emplace_back();
    for (const auto& riga : celle)
        righe.push_back(Riga(riga, separatore));
    righe.emplace_back();
}

} // namespace

std::string ColumnSeparator(int ExportMode) {
    const bool nota = ExportMode >= 0 && ExportMode < static_cast<int>(kSeparatori.size());
    return kSeparatori[nota ? static_cast<size_t>(ExportMode) : 0];
}

std::string TagliaNomeCella(std::string_view nome) {
    const std::string pulito = Rifila(nome);
    return NumeroCaratteri(pulito) <= kLarghezzaCella ? pulito
                                                      : PrimiCaratteri(pulito, kTestaNome) + "..";
}

std::string TestoDate(const MisuraAperta& misura) {
    const DateMisura& date = misura.date;
    return date.ultima == date.prima ? date.prima : date.prima + " - " + date.ultima;
}

std::string TitoloReport(const MisuraAperta& misura) {
    const bool parte = !misura.base.empty() && misura.base != misura.nome;
    return misura.nome + (parte ? " (" + misura.base + ") " : " ") + TestoDate(misura);
}

std::vector<std::string> RigheDati(const ReportModel& model, const MisuraAperta& misura) {
    const SetupRecord& run = misura.header.Setup;
    std::vector<std::string> righe;
    // Both fields are 30 characters wide on disk: longer than their labels whatever they hold.
    if (const std::string sw = RifilaControlli(run.SwRelease); !sw.empty())
        righe.push_back("Rel. SW " + sw);
    if (const std::string fw = RifilaControlli(run.FwRelease); !fw.empty())
        righe.push_back("Rel. FW " + fw);
    const std::string modello = RifilaControlli(run.ModelText);
    const std::string serie = RifilaControlli(run.SerialA + run.SerialB);
    if (!modello.empty() && !serie.empty())
        righe.push_back(modello + "   S/N: " + serie);
    righe.push_back("Margin: " + TestoDaNumero(model.ReportMargin) + " dB");
    return righe;
}

std::vector<std::string> TestoReport(const GrigliaReport& griglia, const ReportModel& model,
                                     const MisuraAperta& misura, const std::string& separatore,
                                     const std::vector<std::string>& davanti,
                                     const std::vector<std::string>& riassunto) {
    std::vector<std::string> righe = davanti;
    righe.push_back(TitoloReport(misura));
    std::ranges::copy(RigheDati(model, misura), std::back_inserter(righe));
    if (!riassunto.empty())
        righe.emplace_back();
    std::ranges::copy(riassunto, std::back_inserter(righe));
    std::vector<Testata> testate;
    for (const ColonnaReport& c : griglia.colonne)
        if (c.genere != GenereColonna::Numero)
            testate.push_back({c.titolo, c.nome, c.unita});
    AccodaTestate(righe, testate, separatore);
    for (const RigaGriglia& riga : griglia.righe)
        righe.push_back(Riga({riga.celle.begin() + 1, riga.celle.end()}, separatore));
    return righe;
}

} // namespace orvane
