#include "graph/BloccoImpostazioni.h"

#include <algorithm>
#include <cctype>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/FileTesto.h"
#include "data/NomiTabelle.h"
#include "data/SubMisure.h"
#include "setup/RegoleRiga.h"
#include "setup/TabellaScan.h"
#include "setup/TipiAncillary.h"

namespace orvane {
namespace {

constexpr size_t kFraColonne = 2; ///< blanks
constexpr size_t kTabulazione = 4;
constexpr std::string_view kRientro = "    ";

std::string DetectorDellaRiga(const ScanLine& riga) {
    std::string testo = riga.Smart == 1 ? "Smart" : "";
    for (size_t d = 0; d < kNumDetector; ++d)
        if (riga.Detector[d] != 0)
            testo += (testo.empty() ? "" : " ") + std::string(kNomiDetector[d]);
    return testo;
}
std::string StepDellaRiga(const ScanLine& riga) {
    return riga.StepMode == 1 ? TestoCella(riga, ColonnaScan::Step, 0)
                              : TestoPassoConUnita(riga.Step);
}
std::string HoldDellaRiga(const ScanLine& riga) {
    return TestoCella(riga, ColonnaScan::HoldTime, 0) + (riga.HoldTime == 0 ? "" : " ms");
}
template <ColonnaScan colonna> std::string Cella(const ScanLine& riga) {
    return TestoCella(riga, colonna, 0);
}

struct ColonnaBlocco {
    const char* titolo;
    std::string (*cella)(const ScanLine&);
};
constexpr std::array<ColonnaBlocco, 9> kColonne = {{
    {"Start [MHz]", Cella<ColonnaScan::Start>},
    {"Stop [MHz]", Cella<ColonnaScan::Stop>},
    {"Step", StepDellaRiga},
    {"RBW", Cella<ColonnaScan::Rbw>},
    {"Detector", DetectorDellaRiga},
    {"Hold Time", HoldDellaRiga},
    {"Min Att", Cella<ColonnaScan::MinAtt>},
    {"Pre Amp", Cella<ColonnaScan::PreAmp>},
    {"Pre Sel", Cella<ColonnaScan::PreSel>},
}};
using RigaBlocco = std::array<std::string, kColonne.size()>;

void AggiungiBande(const ScanTable& tabella, std::vector<std::string>& blocco) {
    std::vector<RigaBlocco> righe(1);
    for (size_t c = 0; c < kColonne.size(); ++c)
        righe[0][c] = kColonne[c].titolo;
    for (const ScanLine& riga : tabella)
        if (riga.Start != 0) {
            righe.emplace_back();
            for (size_t c = 0; c < kColonne.size(); ++c)
                righe.back()[c] = Rifila(kColonne[c].cella(riga));
        }
    const size_t prima = blocco.size();
    blocco.resize(prima + righe.size());
    for (size_t c = 0; c < kColonne.size(); ++c) {
        size_t larga = 0;
        for (const RigaBlocco& riga : righe)
            larga = std::max(larga, riga[c].size());
        for (size_t i = 0; i < righe.size(); ++i)
            blocco[prima + i] +=
                righe[i][c] + std::string(larga - righe[i][c].size() + kFraColonne, ' ');
    }
    for (std::string& riga : blocco)
        riga.erase(riga.find_last_not_of(' ') + 1);
}

void AggiungiIngresso(const SetupRecord& setup, std::vector<std::string>& blocco) {
    if (setup.PulseLim == 1)
        blocco.push_back("Pulse Limiter ON");
    blocco.push_back("Ancillary = " + std::string(TipoAncillary(AncillaryDi(setup)).testo));
}

/// Of a list of worst values the entry on show is named.
void AggiungiWorst(const MisuraAperta& misura, std::vector<std::string>& blocco) {
    const ScanRecord& scan = misura.header.Scan;
    if (scan.WorstMode == 0)
        return;
    const std::string numero = "Nr. of Worst = " + TestoIntero(scan.NumWorst);
    const std::string titolo = NomeSubMisuraEsteso(misura.base, PrioritaAssi::Mast);
    const bool scelto = misura.base != misura.nome && titolo != misura.base;
    blocco.push_back(scelto ? titolo + " (" + numero + ")" : numero);
}

/// The pass where it is not the measure's own trace, and the detectors that are drawn.
void AggiungiTraccia(const ContenutoQuadro& quadro, std::vector<std::string>& blocco) {
    std::string testo = "Trace";
    if (quadro.misura.base != quadro.misura.nome)
        testo += " " + quadro.misura.base;
    for (size_t d = 0; d < kNumDetector; ++d)
        if (!quadro.strati.empty() && quadro.strati[0].detector[d])
            testo += " " + std::string(kNomiDetector[d]);
    if (testo != "Trace")
        blocco.push_back(testo);
}

void AggiungiElenco(const char* titolo, const std::vector<std::string>& nomi,
                    std::vector<std::string>& blocco) {
    if (!nomi.empty())
        blocco.push_back(titolo);
    for (const std::string& nome : nomi)
        blocco.push_back(std::string(kRientro) + nome);
}

std::vector<std::string> NomiLimiti(const ContenutoQuadro& quadro) {
    std::vector<std::string> nomi;
    for (const LimiteQuadro& l : quadro.limiti)
        if (!l.nome.empty())
            nomi.push_back(l.nome);
    return nomi;
}

std::vector<std::string> NomiFattori(const SetupRecord& setup) {
    std::vector<std::string> nomi;
    for (size_t i = 0; i < kNumFattori; ++i)
        if (setup.FactorOn[i] == 1 && NominaTabella(setup.FactorName[i]))
            nomi.push_back(Rifila(setup.FactorName[i]));
    return nomi;
}

/// Control characters have no width in a picture.
std::string InStampa(const std::string& riga) {
    std::string testo;
    for (const char c : riga)
        if (c == '\t')
            testo.append(kTabulazione - testo.size() % kTabulazione, ' ');
        else if (static_cast<unsigned char>(c) >= ' ')
            testo += c;
    return testo;
}

void AggiungiCommento(const Scrivania& s, const std::string& misura,
                      std::vector<std::string>& blocco) {
    const std::string testo =
        RifilaControlli(CaricaTesto(s, PercorsoCommento(misura)).value_or(""));
    if (!testo.empty())
        for (const std::string& riga : Dividi(testo, '\n'))
            blocco.push_back(InStampa(riga));
}

} // namespace

std::vector<std::string> BloccoImpostazioni(const Scrivania& s, const ContenutoQuadro& quadro,
                                            const SetupRecord& setup) {
    const SweepHeader& header = quadro.misura.header;
    std::vector<std::string> blocco;
    AggiungiBande(header.Scan.Righe, blocco);
    AggiungiIngresso(header.Setup, blocco);
    AggiungiWorst(quadro.misura, blocco);
    AggiungiTraccia(quadro, blocco);
    AggiungiElenco("  Limits:", NomiLimiti(quadro), blocco);
    AggiungiElenco("  Factors:", NomiFattori(setup), blocco);
    AggiungiCommento(s, quadro.misura.nome, blocco);
    // What a Mast-Table measure says of its positioners and its two steps goes here, at the end.
    return blocco;
}

} // namespace orvane
