// Tables of setters and queries, and the routines that answer them.
#include "simulator/Vocabolario.h"

#include <algorithm>
#include <cmath>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "simulator/RicevitoreSimulato.h"
#include "simulator/Spettro.h"

namespace orvane {
namespace {

/// What may stand behind a setter's name.
enum class Forma {
    OnOff,
    Numero,   ///< from `minimo` to `massimo`
    Intero,   ///< likewise
    Filtro,   ///< 0 or an id of a filter
    CoppiaHz, ///< start,stop
    Dinamica, ///< dynamics;reference
    Scelta,   ///< one of the words in `scelte`
    Libera,   ///< any text
    Riga,     ///< ordinal,data: a row of a table
    Tabella   ///< closes a table: [slot,]name
};

/// Which members of the family know it.
enum class Chi { Tutti, Non3360, GX2207, IngressoK3X, IngressoOem, ConPreselettore, SoloGX2207F };

struct VoceSetter {
    std::string_view nome;
    Forma forma;
    Chi chi = Chi::Tutti;
    double minimo = 0;
    double massimo = 0;
    std::string_view predefinito = "";
    std::string_view scelte = "";   ///< words in blanks, or the rows that a table closes
    std::string_view risposta = ""; ///< where it is not "XXX=OK"
};

constexpr VoceSetter kSetter[] = {
    {.nome = "RBW", .forma = Forma::Filtro, .predefinito = "0"},
    {.nome = "APS", .forma = Forma::OnOff, .chi = Chi::ConPreselettore, .predefinito = "OFF"},
    {.nome = "MPS", .forma = Forma::OnOff, .chi = Chi::ConPreselettore, .predefinito = "OFF"},
    {.nome = "SPS", .forma = Forma::OnOff, .chi = Chi::ConPreselettore, .predefinito = "OFF"},
    {.nome = "APA", .forma = Forma::OnOff, .chi = Chi::Non3360, .predefinito = "OFF"},
    {.nome = "MPA", .forma = Forma::OnOff, .chi = Chi::Non3360, .predefinito = "OFF"},
    {.nome = "SPA", .forma = Forma::OnOff, .chi = Chi::Non3360, .predefinito = "OFF"},
    {.nome = "PLM",
     .forma = Forma::OnOff,
     .chi = Chi::Non3360,
     .predefinito = "OFF",
     .risposta = "PLM =OK"},
    {.nome = "AAT", .forma = Forma::Intero, .minimo = -1, .massimo = 55, .predefinito = "-1"},
    {.nome = "MAT", .forma = Forma::Intero, .minimo = -1, .massimo = 55, .predefinito = "-1"},
    {.nome = "TAT", .forma = Forma::Intero, .minimo = 0, .massimo = 50, .predefinito = "0"},
    {.nome = "DIS", .forma = Forma::Dinamica, .chi = Chi::Non3360, .predefinito = "100;100"},
    {.nome = "DMV", .forma = Forma::Numero, .minimo = -1e6, .massimo = 1e6, .predefinito = "0"},
    {.nome = "DMD", .forma = Forma::Scelta, .predefinito = "OFF", .scelte = " OFF ON AM FM "},
    {.nome = "TGS",
     .forma = Forma::OnOff,
     .chi = Chi::Non3360,
     .predefinito = "OFF",
     .risposta = "TGS =OK"},
    {.nome = "TGT",
     .forma = Forma::OnOff,
     .chi = Chi::Non3360,
     .predefinito = "OFF",
     .risposta = "TGT =OK"},
    {.nome = "TGL",
     .forma = Forma::Numero,
     .chi = Chi::Non3360,
     .minimo = -200,
     .massimo = 200,
     .predefinito = "0"},
    {.nome = "TGF",
     .forma = Forma::Numero,
     .chi = Chi::Non3360,
     .minimo = 0,
     .massimo = 18e9,
     .predefinito = "1000e3"},
    {.nome = "AHT", .forma = Forma::Numero, .minimo = 0, .massimo = 1e6, .predefinito = "0"},
    {.nome = "MHT", .forma = Forma::Numero, .minimo = 0, .massimo = 1e6, .predefinito = "0"},
    {.nome = "ADT", .forma = Forma::Intero, .minimo = 0, .massimo = 5, .predefinito = "0"},
    {.nome = "AFF", .forma = Forma::CoppiaHz},
    {.nome = "MAF", .forma = Forma::Numero, .minimo = 1, .massimo = 18e9},
    {.nome = "IHP", .forma = Forma::OnOff, .chi = Chi::GX2207, .predefinito = "OFF"},
    {.nome = "MOD",
     .forma = Forma::Scelta,
     .chi = Chi::GX2207,
     .predefinito = "H",
     .scelte = " A H "},
    {.nome = "ITG",
     .forma = Forma::Intero,
     .chi = Chi::GX2207,
     .minimo = 0,
     .massimo = 2,
     .predefinito = "0"},
    {.nome = "3PR", .forma = Forma::Scelta, .chi = Chi::IngressoK3X, .scelte = " C R "},
    {.nome = "CO6", .forma = Forma::Scelta, .chi = Chi::IngressoOem, .scelte = " C R "},
    {.nome = "UPP", .forma = Forma::Intero, .minimo = 0, .massimo = 255, .predefinito = "0"},
    {.nome = "LSN", .forma = Forma::Intero, .minimo = 0, .massimo = 255, .predefinito = "0"},
    {.nome = "SDO", .forma = Forma::Libera, .chi = Chi::Non3360},
    {.nome = "LII", .forma = Forma::Libera, .chi = Chi::Non3360, .risposta = "SLII =OK"},
    {.nome = "LIC",
     .forma = Forma::Tabella,
     .chi = Chi::Non3360,
     .scelte = "LIW",
     .risposta = "SLIC =OK"},
    {.nome = "CFE", .forma = Forma::Tabella, .scelte = "CFW"},
    {.nome = "LIE", .forma = Forma::Tabella, .scelte = "LIW LDW"},
    {.nome = "LIW", .forma = Forma::Riga},
    {.nome = "CFW", .forma = Forma::Riga},
    {.nome = "LDW", .forma = Forma::Riga},
    {.nome = "SFW", .forma = Forma::Riga},
    {.nome = "LIM", .forma = Forma::Numero, .minimo = -200, .massimo = 200, .predefinito = "0"},
    {.nome = "CFA", .forma = Forma::Intero, .minimo = -1, .massimo = 99, .predefinito = "-1"},
    // The GX2207F names itself when it goes over to its FFT scan.
    {.nome = "OFF",
     .forma = Forma::Libera,
     .chi = Chi::SoloGX2207F,
     .risposta = "IDN=GX2207F-FW -"},
};

bool Sa(const ModelloSimulato& m, Chi chi) {
    switch (chi) {
    case Chi::Tutti:
        return true;
    case Chi::Non3360:
        return !m.famiglia3360;
    case Chi::GX2207:
        return m.conGX2207;
    case Chi::IngressoK3X:
        return m.ingresso == IngressoSimulato::K3X;
    case Chi::IngressoOem:
        return m.ingresso == IngressoSimulato::Oem;
    case Chi::ConPreselettore:
        return m.conPreselettore && !m.famiglia3360;
    case Chi::SoloGX2207F:
        return m.conGX2207 && m.conIntestazione;
    }
    return false;
}

const VoceSetter* TrovaSetter(const MemoriaSimulata& memoria, std::string_view nome) {
    const auto voce = std::ranges::find(kSetter, nome, &VoceSetter::nome);
    return voce != std::end(kSetter) && Sa(*memoria.modello, voce->chi) ? voce : nullptr;
}

bool NumeroValido(const VoceSetter& voce, std::string_view valore) {
    const auto numero = LeggiNumero(valore);
    if (!numero || *numero < voce.minimo || *numero > voce.massimo)
        return false;
    return voce.forma != Forma::Intero || *numero == std::floor(*numero);
}

bool CoppiaValida(const GammaSimulata& gamma, std::string_view valore) {
    const auto parti = Dividi(valore, ',');
    if (parti.size() != 2)
        return false;
    const auto da = LeggiNumero(parti[0]);
    const auto a = LeggiNumero(parti[1]);
    // Half a hertz of slack: the ends come as text of a product.
    return da && a && *da < *a && *da >= gamma.minHz - 0.5 && *a <= gamma.maxHz + 0.5;
}

bool DinamicaValida(std::string_view valore) {
    const auto parti = Dividi(valore, ';');
    if (parti.size() != 2)
        return false;
    const auto dinamica = LeggiNumero(parti[0]);
    const auto riferimento = LeggiNumero(parti[1]);
    return dinamica && riferimento && *dinamica > 0 && *dinamica <= 120 && *riferimento >= 65 &&
           *riferimento <= 145;
}

bool FiltroValido(std::string_view valore) {
    const auto id = LeggiNumero(valore);
    return id && (*id == 0 || RbwDaCodice(static_cast<int>(*id)) > 0);
}

/// Rows come in order; one that comes again replaces itself, and the first one clears the table.
bool AggiungiRiga(MemoriaSimulata& memoria, const std::string& nome, std::string_view valore) {
    const auto virgola = valore.find(',');
    const auto ordinale = LeggiNumero(valore.substr(0, virgola));
    auto& righe = memoria.righe[nome];
    if (virgola == std::string_view::npos || !ordinale || *ordinale < 0 ||
        *ordinale > static_cast<double>(righe.size()))
        return false;
    righe.resize(static_cast<size_t>(*ordinale));
    righe.push_back(Rifila(valore.substr(virgola + 1)));
    return true;
}

bool ChiudiTabella(MemoriaSimulata& memoria, const VoceSetter& voce, std::string_view valore) {
    TabellaCaricata tabella{.nome = Rifila(valore), .righe = {}};
    int slot = 0;
    if (const auto virgola = valore.find(','); virgola != std::string_view::npos) {
        const auto numero = LeggiNumero(valore.substr(0, virgola));
        if (!numero || *numero < 1 || *numero > 99)
            return false;
        slot = static_cast<int>(*numero);
        tabella.nome = Rifila(valore.substr(virgola + 1));
    }
    for (const std::string& righe : Dividi(voce.scelte, ' '))
        if (auto trovate = memoria.righe.extract(righe); !trovate.empty())
            tabella.righe = std::move(trovate.mapped());
    memoria.tabelle[std::string(voce.nome)][slot] = std::move(tabella);
    return true;
}

bool Accetta(MemoriaSimulata& memoria, const VoceSetter& voce, const std::string& valore) {
    switch (voce.forma) {
    case Forma::OnOff:
        return valore == "ON" || valore == "OFF";
    case Forma::Numero:
    case Forma::Intero:
        return NumeroValido(voce, valore);
    case Forma::Filtro:
        return FiltroValido(valore);
    case Forma::CoppiaHz:
        return CoppiaValida(GammaInCarico(memoria), valore);
    case Forma::Dinamica:
        return DinamicaValida(valore);
    case Forma::Scelta:
        return !valore.empty() && Contiene(voce.scelte, " " + valore + " ");
    case Forma::Libera:
        return true;
    case Forma::Riga:
        return AggiungiRiga(memoria, std::string(voce.nome), valore);
    case Forma::Tabella:
        return ChiudiTabella(memoria, voce, valore);
    }
    return false;
}

/// What a setter changes besides the value that it leaves.
void Applica(MemoriaSimulata& memoria, const ComandoRicevuto& comando) {
    if (comando.nome == "3PR" || comando.nome == "CO6") {
        memoria.radiata = comando.valore == "R";
        // The Analyzer's span belonged to the other input.
        memoria.valori.erase("AFF");
        memoria.valori.erase("MAF");
    } else if (comando.nome == "UPP") {
        memoria.userPort = static_cast<int>(ValoreIniziale(comando.valore));
    } else if (comando.nome == "AHT" || comando.nome == "MHT") {
        const int filtro = static_cast<int>(NumeroOppure(memoria, "RBW", 0));
        memoria.holdInUso = HoldEffettivo(ValoreIniziale(comando.valore),
                                          RbwDaCodice(FiltroPer(memoria, filtro, 1e6)));
    }
}

std::string Imposta(MemoriaSimulata& memoria, const ComandoRicevuto& comando) {
    const VoceSetter* voce = TrovaSetter(memoria, comando.nome);
    if (!voce)
        return comando.nome + "=N/A";
    if (!Accetta(memoria, *voce, comando.valore))
        return comando.nome + "=ERR";
    memoria.valori[comando.nome] = comando.valore;
    Applica(memoria, comando);
    return voce->risposta.empty() ? comando.nome + "=OK" : std::string(voce->risposta);
}

// Queries: the text behind "XXX=", empty where the receiver does not know the query.

std::string Bcd(const MemoriaSimulata& memoria) {
    const ModelloSimulato& m = *memoria.modello;
    if (m.famiglia3360)
        return "";
    const bool acceso = m.ingresso == IngressoSimulato::K3X ? memoria.radiata : m.bcdAcceso;
    std::string testo = acceso ? "ON" : "OFF";
    if (!m.parolaBcd.empty())
        testo.append(";").append(m.parolaBcd);
    return testo;
}

std::string Gamma(const MemoriaSimulata& memoria, IngressoSimulato ingresso,
                  std::string_view condotta) {
    const ModelloSimulato& m = *memoria.modello;
    if (m.ingresso != ingresso)
        return "";
    if (!memoria.radiata)
        return std::string(condotta);
    return "RAD;" + TestoDaNumero(m.alta.minHz / 1e6) + "," + TestoDaNumero(m.alta.maxHz / 1e6) +
           ",";
}
std::string Gamma3PR(const MemoriaSimulata& memoria) {
    return Gamma(memoria, IngressoSimulato::K3X, "CON");
}
std::string GammaCO6(const MemoriaSimulata& memoria) {
    return Gamma(memoria, IngressoSimulato::Oem, "CND");
}

std::string Link(const MemoriaSimulata& memoria) {
    return memoria.modello->conLink ? "1;25, 6020;(5570)\rLNK=2;6020, 18000;(5570)" : "";
}
std::string Seriale(const MemoriaSimulata& memoria) {
    return "SIM" + TestoIntero(memoria.seme % 10000000, 7);
}
std::string FiltriMil(const MemoriaSimulata& memoria) {
    return !memoria.modello->famiglia3360 && VersioneInUso(memoria) >= 1.77 ? "OK" : "";
}
std::string RmsAvg(const MemoriaSimulata& memoria) {
    return VersioneInUso(memoria) >= 2.08 ? "OK" : "";
}
std::string UserPort(const MemoriaSimulata& memoria) {
    return TestoIntero(memoria.userPort);
}
std::string Hold(const MemoriaSimulata& memoria) {
    return memoria.holdInUso;
}
std::string Batteria(const MemoriaSimulata& memoria) {
    const BatteriaSimulata& b = memoria.batteria;
    if (!memoria.modello->conBatteria)
        return "";
    const std::string volt = b.volt > 0 ? std::string(",").append(TestoFisso(b.volt, 2)) : "";
    return b.livello + volt + (b.inCarica ? ";1" : ";0");
}

double FrequenzaManual(const MemoriaSimulata& memoria) {
    return NumeroOppure(memoria, "MAF", GammaInCarico(memoria).minHz);
}
std::string Filtro(const MemoriaSimulata& memoria) {
    const int id = static_cast<int>(NumeroOppure(memoria, "RBW", 0));
    return (id == 0 ? "AUTO " : "MAN ") +
           TestoIntero(FiltroPer(memoria, id, FrequenzaManual(memoria)));
}
std::string Attenuatore(const MemoriaSimulata& memoria) {
    return (NumeroOppure(memoria, "MAT", -1) < 0 ? "AUTO;" : "MAN;") +
           TestoIntero(AttenuatorePer(memoria, "MAT"));
}
std::string Detector(const MemoriaSimulata& memoria) {
    const double hz = FrequenzaManual(memoria);
    const int filtro = FiltroPer(memoria, static_cast<int>(NumeroOppure(memoria, "RBW", 0)), hz);
    const CondizioniSpettro condizioni{.rbwHz = RbwDaCodice(filtro),
                                       .attDb = AttenuatorePer(memoria, "MAT"),
                                       .preAmp = ValoreOppure(memoria, "MPA", "OFF") == "ON",
                                       .seme = memoria.seme,
                                       .rete = ReteInUso(memoria)};
    std::string valori;
    for (int d = 0; d < static_cast<int>(kNumDetector); ++d)
        valori += TestoFisso(LivelloSimulato(hz / 1e6, d, condizioni) / 100.0, 2) + ";";
    return valori;
}

struct VoceDomanda {
    std::string_view nome;
    std::string (*risposta)(const MemoriaSimulata&);
};
constexpr VoceDomanda kDomande[] = {
    {"BCD", Bcd},       {"3PR", Gamma3PR},    {"CO6", GammaCO6}, {"LNK", Link}, {"S/N", Seriale},
    {"MIL", FiltriMil}, {"CRA", RmsAvg},      {"UPP", UserPort}, {"UHT", Hold}, {"BAT", Batteria},
    {"RBW", Filtro},    {"MAT", Attenuatore}, {"DET", Detector},
};

std::string Domanda(const MemoriaSimulata& memoria, const std::string& nome) {
    if (nome == "IDN")
        return std::string(memoria.modello->formaIdn) + " " + memoria.firmware + " 12/03/19";
    std::string valore;
    const auto domanda = std::ranges::find(kDomande, nome, &VoceDomanda::nome);
    if (domanda != std::end(kDomande))
        valore = domanda->risposta(memoria);
    else if (const VoceSetter* voce = TrovaSetter(memoria, nome))
        valore = ValoreOppure(memoria, nome, voce->predefinito);
    return nome + "=" + (valore.empty() ? "N/A" : valore);
}

} // namespace

ComandoRicevuto DividiComando(std::string_view comando) {
    const std::string_view corpo = comando.substr(1, comando.size() - 2);
    if (corpo == "CHGS")
        return {.classe = 'C', .nome = "CHGS", .valore = {}};
    if (corpo.empty())
        return {};
    return {.classe = corpo[0],
            .nome = std::string(corpo.substr(1, 3)),
            .valore = corpo.size() > 4 ? Rifila(corpo.substr(4)) : std::string()};
}

std::string Rispondi(MemoriaSimulata& memoria, const ComandoRicevuto& comando) {
    if (comando.classe == '?')
        return Domanda(memoria, comando.nome);
    if (comando.classe == 'S')
        return Imposta(memoria, comando);
    if (comando.classe == 'C' && Sa(*memoria.modello, Chi::SoloGX2207F))
        return "CHGS=OK";
    return comando.nome + "=N/A";
}

} // namespace orvane
