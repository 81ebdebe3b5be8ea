#include "verbs/MisuraDaOpzioni.h"

#include <algorithm>

#include "base/Testo.h"
#include "console/CambioUnita.h"
#include "data/Interpolazione.h"
#include "data/NomiDisco.h"
#include "data/NomiTabelle.h"
#include "data/SubMisure.h"
#include "records/Unita.h"
#include "setup/TabellaScan.h"
#include "verbs/VerboTabelle.h"

namespace orvane {
namespace {

constexpr size_t kLimitiMostrati = 2;
/// Only so many are added to levels.
constexpr size_t kFattoriSommati = 4;
/// The units that a graph can have; the last of the list is the table editor's.
constexpr int16_t kUnitaGrafico = 7;

/// What the options say, before any file is looked at.
struct Richiesta {
    std::string nome;
    std::string base;
    std::optional<int16_t> unita;
    std::optional<DetectorKind> detector;
    bool limitiScelti = false;
    std::vector<std::string> limiti;
    std::vector<int16_t> detectorLimite; ///< as `VerdictDetector`
    bool fattoriScelti = false;
    std::vector<std::string> fattori;
    std::string errore;
};

bool Nessuno(const std::string& nome) {
    return UgualiSenzaMaiuscole(Rifila(nome), kNessunaTabella);
}

void LeggiNomi(Richiesta& r, const Argomenti& argomenti) {
    const auto sub = argomenti.Opzione("sub");
    const auto nome = NomeDaParola(argomenti.Posizioni()[0]);
    const auto base = NomeDaParola(sub.value_or(argomenti.Posizioni()[0]));
    if (!nome || !base)
        r.errore = "MEASURE or NAME is no valid name";
    r.nome = nome.value_or("");
    r.base = base.value_or("");
}

void LeggiScelte(Richiesta& r, const Argomenti& argomenti) {
    if (const auto testo = argomenti.Opzione("detector")) {
        r.detector = PrimoDetector(*testo);
        if (!r.detector)
            r.errore = "unknown detector: P, Q, R, A, N, C";
    }
    if (const auto testo = argomenti.Opzione("unit")) {
        r.unita = LeggiUnita(*testo);
        if (!r.unita || *r.unita >= kUnitaGrafico)
            r.errore = "unknown unit \"" + *testo + "\"";
    }
}

void LeggiLimiti(Richiesta& r, const std::vector<std::string>& testi) {
    r.limitiScelti = !testi.empty();
    for (const std::string& testo : testi) {
        if (Nessuno(testo))
            continue;
        // No file name has a colon.
        const size_t duePunti = testo.rfind(':');
        const auto detector = duePunti == std::string::npos
                                  ? std::nullopt
                                  : PrimoDetector(std::string_view(testo).substr(duePunti + 1));
        if (duePunti != std::string::npos && !detector)
            r.errore = "\"" + testo + "\": unknown detector: P, Q, R, A, N, C";
        r.limiti.push_back(Rifila(std::string_view(testo).substr(0, duePunti)));
        r.detectorLimite.push_back(detector ? static_cast<int16_t>(static_cast<int>(*detector) + 1)
                                            : int16_t{0});
    }
    if (r.limiti.size() > kLimitiMostrati)
        r.errore = "two limits at most";
}

void LeggiFattori(Richiesta& r, const Argomenti& argomenti) {
    const auto testi = argomenti.Tutte("factor");
    r.fattoriScelti = !testi.empty();
    for (const std::string& testo : testi)
        if (!Nessuno(testo))
            r.fattori.push_back(Rifila(testo));
    if (r.fattori.size() > kFattoriSommati)
        r.errore = "four factors at most";
    if (r.fattoriScelti && argomenti.Bandiera("factors"))
        r.errore = "either --factors or --factor";
}

Richiesta LeggiRichiesta(const Argomenti& argomenti, size_t parole) {
    Richiesta r{.errore = argomenti.Errore()};
    if (r.errore.empty() && argomenti.Posizioni().size() != parole)
        r.errore = parole == 1 ? "wants one MEASURE" : "wants a MEASURE and what belongs to it";
    if (!r.errore.empty())
        return r;
    LeggiNomi(r, argomenti);
    LeggiScelte(r, argomenti);
    LeggiLimiti(r, argomenti.Tutte("limit"));
    LeggiFattori(r, argomenti);
    for (const auto& nomi : {r.limiti, r.fattori})
        for (const std::string& nome : nomi)
            if (!NomeTabellaAmmesso(nome))
                r.errore = "\"" + nome + "\" is no valid name";
    return r;
}

/// Names given take the first places; everything else of the kind is off.
template <size_t N>
void Accendi(const std::vector<std::string>& nomi, std::array<std::string, N>& campi,
             std::array<int16_t, N>& accesi) {
    accesi = {};
    for (size_t i = 0; i < nomi.size(); ++i) {
        campi[i] = nomi[i];
        accesi[i] = 1;
    }
}

void Applica(const Richiesta& r, Partenza partenza, bool fattoriDellaMisura, SetupRecord& setup) {
    if (r.limitiScelti || partenza == Partenza::Grezza)
        Accendi(r.limiti, setup.LimitName, setup.LimitOn);
    if (r.limitiScelti)
        setup.VerdictDetector = {};
    std::ranges::copy(r.detectorLimite, setup.VerdictDetector.begin());
    if (r.fattoriScelti || (partenza == Partenza::Grezza && !fattoriDellaMisura))
        Accendi(r.fattori, setup.FactorName, setup.FactorOn);
    if (r.unita || partenza == Partenza::Grezza)
        setup.UnitId = r.unita.value_or(1);
}

std::string PercheAssente(const Banco& banco, const std::string& misura,
                          const std::string& percorso) {
    const AlberoDati& albero = banco.scrivania.albero;
    const bool presente =
        albero.Esiste(percorso) || albero.Esiste(CartellaMisura(misura) + percorso);
    return (presente ? "cannot read " : "there is no table ") + percorso;
}

/// Limits that are on and could not be read: an error for one that was named, off for the others.
EsitoVerbo VerificaLimiti(Banco& banco, const Richiesta& r, MisuraChiesta& chiesta) {
    for (size_t i = 0; i < kLimitiMostrati; ++i) {
        const std::string nome = Rifila(chiesta.setup.LimitName[i]);
        if (chiesta.setup.LimitOn[i] == 0 ||
            NumeroPunti(chiesta.misura.tabelle.slot[kPrimoLimite + i]) > 0)
            continue;
        const std::string perche = PercheAssente(banco, r.nome, PercorsoLimite(nome));
        if (r.limitiScelti)
            return Guasto(banco, kGuastoFile, perche);
        banco.messaggi << "orvane: " << perche << "; the limit is left out\n";
        chiesta.limitiAssenti.push_back(nome);
        chiesta.setup.LimitOn[i] = 0;
    }
    return kFatto;
}

/// Without one of its factors a level would be wrong.
EsitoVerbo VerificaFattori(Banco& banco, const Richiesta& r, const MisuraChiesta& chiesta) {
    for (size_t i = 0; i < kFattoriSommati; ++i)
        if (chiesta.setup.FactorOn[i] == 1 &&
            NumeroPunti(chiesta.misura.tabelle.slot[kPrimoFattore + i]) == 0)
            return Guasto(
                banco, kGuastoFile,
                PercheAssente(banco, r.nome, PercorsoFattore(Rifila(chiesta.setup.FactorName[i]))));
    return kFatto;
}

EsitoVerbo ImpostaUnitaChiesta(Banco& banco, const Richiesta& r, MisuraChiesta& chiesta) {
    SetupRecord& setup = chiesta.setup;
    if (r.unita && !ControlladBpTFC(banco.scrivania.ambiente, setup, *r.unita))
        return kRifiutato;
    const bool accesi =
        std::ranges::any_of(setup.FactorOn, [](int16_t acceso) { return acceso == 1; });
    // Its factors were taken away, and with them its field unit.
    if (!accesi && TabellaUnitaGrafico()[static_cast<size_t>(setup.UnitId)].chiedeFattore)
        setup.UnitId = 1;
    chiesta.nomeUnita = TabellaUnitaGrafico()[static_cast<size_t>(setup.UnitId)].testo;
    chiesta.unitOffset = static_cast<double>(ImpostaUnita(setup.UnitId));
    return kFatto;
}

bool SubMisuraPresente(const AlberoDati& albero, const std::string& misura,
                       const std::string& base) {
    for (int riga = 0; riga < static_cast<int>(kMaxScanLine); ++riga)
        if (albero.Esiste(PercorsoRS(misura, base, riga)) ||
            albero.Esiste(PercorsoRS(misura, "Sub_Measure\\" + base, riga)))
            return true;
    return false;
}

/// Which positions belong to a sub-measure.
ViewMode VistaDi(const std::string& base) {
    if (UgualiSenzaMaiuscole(base, submisura::kMisura))
        return ViewMode::MastTable;
    return UgualiSenzaMaiuscole(base, submisura::kInviluppo) ? ViewMode::Inviluppo
                                                             : ViewMode::Normale;
}

EsitoVerbo Apri(Banco& banco, const Richiesta& r, MisuraAperta& misura) {
    Scrivania& s = banco.scrivania;
    if (!s.albero.Esiste(TrovaKSH(s.albero, r.nome)))
        return Guasto(banco, kGuastoFile, "there is no measure " + PercorsoKSH(r.nome));
    if (r.base != r.nome && !SubMisuraPresente(s.albero, r.nome, r.base))
        return Guasto(banco, kGuastoFile,
                      "there is no sub-measure " + r.base + " in " + CartellaMisura(r.nome));
    misura = ApriMisura(s, r.nome);
    misura.base = r.base;
    misura.vista = r.base == r.nome ? ViewMode::Normale : VistaDi(r.base);
    return misura.leggibile ? kFatto : kGuastoFile;
}

} // namespace

std::optional<DetectorKind> PrimoDetector(std::string_view testo) {
    const auto letti = LeggiDetector(testo);
    for (size_t d = 0; letti && d < kNumDetector; ++d)
        if ((*letti)[d] != 0)
            return static_cast<DetectorKind>(d);
    return std::nullopt;
}

std::set<std::string> OpzioniMisura(std::set<std::string> proprie) {
    proprie.insert({"detector", "sub", "unit", "factor", "limit"});
    return proprie;
}

EsitoVerbo ApriDaOpzioni(Banco& banco, std::string_view verbo, const Argomenti& argomenti,
                         Partenza partenza, MisuraChiesta& chiesta, size_t parole) {
    const Richiesta r = LeggiRichiesta(argomenti, parole);
    if (!r.errore.empty())
        return UsoErrato(banco, verbo, r.errore);
    MisuraAperta& misura = chiesta.misura;
    if (const EsitoVerbo esito = Apri(banco, r, misura); esito != kFatto)
        return esito;
    chiesta.setup = misura.header.Setup;
    Applica(r, partenza, argomenti.Bandiera("factors"), chiesta.setup);
    CaricaTabelleMisura(banco.scrivania, r.nome, chiesta.setup, misura.tabelle);
    EsitoVerbo esito = VerificaLimiti(banco, r, chiesta);
    if (esito == kFatto)
        esito = VerificaFattori(banco, r, chiesta);
    if (esito == kFatto)
        esito = ImpostaUnitaChiesta(banco, r, chiesta);
    if (esito != kFatto)
        return esito;
    const auto primo = std::ranges::find(misura.detector, true);
    chiesta.detector = r.detector.value_or(static_cast<DetectorKind>(
        primo == misura.detector.end() ? 0 : primo - misura.detector.begin()));
    CaricaTracciaMisura(banco.scrivania, misura, chiesta.setup, chiesta.detector);
    return kFatto;
}

} // namespace orvane
