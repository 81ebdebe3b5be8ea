#include "data/ModificaTabella.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "records/FreqTableRecord.h"
#include "records/LimFacRecord.h"
#include "records/Unita.h"

namespace orvane {
namespace {

constexpr size_t kPassiAnnullabili = 200;
constexpr double kPosizioneMassima = 999; // three digits
constexpr double kCentPerDb = 100;

struct VoceKind {
    std::string_view titolo;
    size_t capienza;
    size_t uguali; ///< how often a frequency may stand
};
constexpr size_t kCapienzaLimFac = std::tuple_size_v<decltype(LimFacRecord::Value)>;
constexpr std::array<VoceKind, kNumTableKind> kKind = {{
    {.titolo = "Limits: ", .capienza = kCapienzaLimFac, .uguali = 2},
    {.titolo = "Factors: ", .capienza = kCapienzaLimFac, .uguali = 1},
    {.titolo = "Frequency Table: ", .capienza = kMaxFreqTable, .uguali = 1},
    {.titolo = "Frequency Mast Table: ", .capienza = kMaxFreqTable, .uguali = 1},
}};

const VoceKind& Voce(TableKind kind) {
    return kKind.at(static_cast<size_t>(kind));
}

/// A frequency as the file will hold it: two that the file cannot tell apart are one.
double Chiave(TableKind kind, double mhz) {
    return LimiteOFattore(kind) ? static_cast<double>(HzDaMhz(mhz)) : mhz;
}

bool FrequenzaAmmessa(TableKind kind, double mhz) {
    const double chiave = Chiave(kind, mhz);
    return std::isfinite(chiave) && chiave > 0;
}

size_t QuanteUguali(const ContenutoTabella& c, double mhz) {
    const double chiave = Chiave(c.kind, mhz);
    return static_cast<size_t>(std::count_if(c.righe.begin(), c.righe.end(), [&](const auto& r) {
        return r.freqMhz && Chiave(c.kind, *r.freqMhz) == chiave;
    }));
}

/// Behind all rows at or below its frequency; without one, behind all rows.
size_t Posto(const ContenutoTabella& c, const RigaTabella& riga) {
    if (!riga.freqMhz)
        return c.righe.size();
    const double chiave = Chiave(c.kind, *riga.freqMhz);
    const auto dopo = std::find_if(c.righe.begin(), c.righe.end(), [&](const auto& r) {
        return !r.freqMhz || Chiave(c.kind, *r.freqMhz) > chiave;
    });
    return static_cast<size_t>(dopo - c.righe.begin());
}

size_t Colloca(ContenutoTabella& c, const RigaTabella& riga) {
    const size_t posto = Posto(c, riga);
    c.righe.insert(c.righe.begin() + static_cast<std::ptrdiff_t>(posto), riga);
    return posto;
}

void LivelloPredefinito(TableKind kind, RigaTabella& riga) {
    if (!LimiteOFattore(kind) && riga.freqMhz && !riga.livelloCent)
        riga.livelloCent = int16_t{0};
}

EsitoModifica TroppoSpesso(TableKind kind) {
    return kind == TableKind::Limite ? EsitoModifica::TroppeUguali : EsitoModifica::GiaPresente;
}

/// Sets the frequency of a row that has been taken out of the list.
EsitoModifica CambiaFrequenza(const ContenutoTabella& c, RigaTabella& riga,
                              std::string_view testo) {
    const auto mhz = LeggiNumero(testo);
    if (!mhz || !FrequenzaAmmessa(c.kind, *mhz))
        return EsitoModifica::NonValida;
    if (QuanteUguali(c, *mhz) >= Voce(c.kind).uguali) {
        riga.freqMhz.reset();
        return TroppoSpesso(c.kind);
    }
    riga.freqMhz = mhz;
    LivelloPredefinito(c.kind, riga);
    return EsitoModifica::Fatta;
}

EsitoModifica ScriviFrequenza(ContenutoTabella& c, size_t& riga, std::string_view testo) {
    const auto mhz = LeggiNumero(testo);
    // A row that keeps its frequency keeps its place: the two rows of a step have an order.
    if (mhz && c.righe[riga].freqMhz &&
        Chiave(c.kind, *c.righe[riga].freqMhz) == Chiave(c.kind, *mhz)) {
        c.righe[riga].freqMhz = mhz;
        return EsitoModifica::Fatta;
    }
    RigaTabella mossa = c.righe[riga];
    ContenutoTabella altre = c;
    RimuoviRighe(altre, riga, 1);
    const EsitoModifica esito = CambiaFrequenza(altre, mossa, testo);
    if (esito == EsitoModifica::NonValida)
        return esito;
    c = std::move(altre);
    riga = Colloca(c, mossa);
    return esito;
}

EsitoModifica ScriviLivello(const ContenutoTabella& c, RigaTabella& riga, std::string_view testo) {
    const auto valore = LeggiNumero(testo);
    if (!valore)
        return EsitoModifica::NonValida;
    const double cent =
        std::round((*valore - static_cast<double>(ImpostaUnita(c.unitId))) * kCentPerDb);
    if (!(std::abs(cent) <= std::numeric_limits<int16_t>::max()))
        return EsitoModifica::NonValida;
    riga.livelloCent = static_cast<int16_t>(cent);
    return EsitoModifica::Fatta;
}

EsitoModifica ScriviPosizione(std::optional<int16_t>& posizione, std::string_view testo) {
    const auto valore = LeggiNumero(testo);
    if (!valore || *valore < 0 || *valore > kPosizioneMassima || *valore != std::floor(*valore))
        return EsitoModifica::NonValida;
    posizione = static_cast<int16_t>(*valore);
    return EsitoModifica::Fatta;
}

void SvuotaCella(ContenutoTabella& c, size_t& riga, ColonnaTabella colonna) {
    RigaTabella svuotata = c.righe[riga];
    switch (colonna) {
    case ColonnaTabella::Frequenza:
        svuotata.freqMhz.reset();
        RimuoviRighe(c, riga, 1);
        riga = Colloca(c, svuotata);
        return;
    case ColonnaTabella::Livello:
        svuotata.livelloCent.reset();
        break;
    case ColonnaTabella::Mast:
        svuotata.mastCm.reset();
        break;
    case ColonnaTabella::Table:
        svuotata.tableGradi.reset();
        break;
    }
    c.righe[riga] = svuotata;
}

EsitoModifica ScriviInRiga(ContenutoTabella& c, size_t& riga, ColonnaTabella colonna,
                           std::string_view testo) {
    switch (colonna) {
    case ColonnaTabella::Frequenza:
        return ScriviFrequenza(c, riga, testo);
    case ColonnaTabella::Livello:
        return ScriviLivello(c, c.righe[riga], testo);
    case ColonnaTabella::Mast:
        return ScriviPosizione(c.righe[riga].mastCm, testo);
    case ColonnaTabella::Table:
        break;
    }
    return ScriviPosizione(c.righe[riga].tableGradi, testo);
}

/// The format ".00": two decimals, and no zero before the point.
std::string TestoLivello(double valore) {
    std::string testo = TestoFisso(valore, 2);
    const size_t segno = testo.starts_with('-') ? 1 : 0;
    if (testo.compare(segno, 2, "0.") == 0)
        testo.erase(segno, 1);
    return testo == "-.00" ? ".00" : testo;
}

std::string TestoPosizione(const std::optional<int16_t>& posizione) {
    return posizione ? TestoIntero(*posizione, 3) : "---";
}

} // namespace

bool LimiteOFattore(TableKind kind) {
    return kind == TableKind::Limite || kind == TableKind::Fattore;
}

std::string_view TitoloFinestraTabella(TableKind kind) {
    return Voce(kind).titolo;
}

size_t CapienzaTabella(TableKind kind) {
    return Voce(kind).capienza;
}

void AvvisaModifica(Ambiente& ambiente, EsitoModifica esito, TableKind kind) {
    const auto mostra = [&](const std::string& testo) {
        ambiente.Mostra({.testo = testo, .icona = Icona::Esclamazione});
    };
    switch (esito) {
    case EsitoModifica::Fatta:
        return;
    case EsitoModifica::NonValida:
        return mostra("Not valid value");
    case EsitoModifica::TroppeUguali:
        return mostra("No more then two frequencies allowed"); // the spelling users know
    case EsitoModifica::GiaPresente:
        return mostra("Frequency already present");
    case EsitoModifica::Piena:
        return mostra("Too many frequencies\rMax " +
                      TestoIntero(static_cast<long long>(CapienzaTabella(kind))) + " frequencies");
    }
}

float HzDaMhz(double mhz) {
    return static_cast<float>(mhz * 1e6);
}

double DecimaleBreve(float hz) {
    char testo[32];
    const auto fine = std::to_chars(testo, testo + sizeof testo, hz, std::chars_format::scientific);
    double decimale = 0;
    std::from_chars(testo, fine.ptr, decimale);
    return decimale;
}

EsitoModifica InserisciPunto(ContenutoTabella& c, const RigaTabella& punto) {
    if (!punto.freqMhz || !FrequenzaAmmessa(c.kind, *punto.freqMhz))
        return EsitoModifica::NonValida;
    if (QuanteUguali(c, *punto.freqMhz) >= Voce(c.kind).uguali)
        return TroppoSpesso(c.kind);
    if (c.righe.size() >= CapienzaTabella(c.kind))
        return EsitoModifica::Piena;
    RigaTabella riga = punto;
    LivelloPredefinito(c.kind, riga);
    Colloca(c, riga);
    return EsitoModifica::Fatta;
}

EsitoModifica ScriviCella(ContenutoTabella& c, size_t& riga, ColonnaTabella colonna,
                          std::string_view testo) {
    const bool vuota = RifilaControlli(testo).empty() || RifilaControlli(testo) == "---";
    const bool nuova = riga >= c.righe.size();
    if (nuova && vuota)
        return EsitoModifica::Fatta;
    if (nuova && c.righe.size() >= CapienzaTabella(c.kind))
        return EsitoModifica::Piena;
    if (nuova) {
        riga = c.righe.size();
        c.righe.emplace_back();
    }
    EsitoModifica esito = EsitoModifica::Fatta;
    if (vuota)
        SvuotaCella(c, riga, colonna);
    else
        esito = ScriviInRiga(c, riga, colonna, testo);
    if (c.righe[riga] == RigaTabella{})
        RimuoviRighe(c, riga, 1);
    return esito;
}

std::string TestoCella(const ContenutoTabella& c, size_t riga, ColonnaTabella colonna) {
    if (riga >= c.righe.size())
        return {};
    const RigaTabella& r = c.righe[riga];
    switch (colonna) {
    case ColonnaTabella::Frequenza:
        return r.freqMhz ? TestoDaNumero(*r.freqMhz) : "";
    case ColonnaTabella::Livello:
        return r.livelloCent ? TestoLivello(*r.livelloCent / kCentPerDb +
                                            static_cast<double>(ImpostaUnita(c.unitId)))
                             : "";
    case ColonnaTabella::Mast:
        return TestoPosizione(r.mastCm);
    case ColonnaTabella::Table:
        break;
    }
    return TestoPosizione(r.tableGradi);
}

std::string TitoloColonnaTabella(const ContenutoTabella& c, ColonnaTabella colonna) {
    const bool conPosizioni = c.kind == TableKind::FrequenzeMast;
    switch (colonna) {
    case ColonnaTabella::Frequenza:
        return "Frequency MHz";
    case ColonnaTabella::Livello:
        return (LimiteOFattore(c.kind) ? "Level " : "Level") +
               TabellaUnitaGrafico()[static_cast<size_t>(std::clamp<int>(c.unitId, 0, 7))].testo;
    case ColonnaTabella::Mast:
        return conPosizioni ? "Mast cm" : "";
    case ColonnaTabella::Table:
        break;
    }
    return conPosizioni ? "Table Deg" : "";
}

int NumeroColonneTabella(TableKind kind) {
    return kind == TableKind::FrequenzeMast ? 4 : 2;
}

void RimuoviRighe(ContenutoTabella& c, size_t da, size_t quante) {
    const size_t inizio = std::min(da, c.righe.size());
    const size_t fine = inizio + std::min(quante, c.righe.size() - inizio);
    c.righe.erase(c.righe.begin() + static_cast<std::ptrdiff_t>(inizio),
                  c.righe.begin() + static_cast<std::ptrdiff_t>(fine));
}

bool RigaCompletaTabella(const RigaTabella& riga) {
    return riga.freqMhz && riga.livelloCent;
}

size_t ControllaRigaCompFreqTab(const ContenutoTabella& c) {
    return static_cast<size_t>(std::count_if(c.righe.begin(), c.righe.end(), RigaCompletaTabella));
}

void ModificaTabella::Applica(ContenutoTabella nuovo) {
    if (nuovo == contenuto_)
        return;
    if (prima_.size() == kPassiAnnullabili)
        prima_.erase(prima_.begin());
    prima_.push_back(std::move(contenuto_));
    dopo_.clear();
    contenuto_ = std::move(nuovo);
}

bool ModificaTabella::Annulla() {
    if (prima_.empty())
        return false;
    dopo_.push_back(std::move(contenuto_));
    contenuto_ = std::move(prima_.back());
    prima_.pop_back();
    return true;
}

bool ModificaTabella::Ripristina() {
    if (dopo_.empty())
        return false;
    prima_.push_back(std::move(contenuto_));
    contenuto_ = std::move(dopo_.back());
    dopo_.pop_back();
    return true;
}

} // namespace orvane
