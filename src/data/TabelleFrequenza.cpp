#include "data/TabelleFrequenza.h"

#include "data/Cartelle.h"
#include "data/ControllaTabelle.h"
#include "data/FileRecord.h"

namespace orvane {
namespace {

FreqTable5SF SenzaPosizioni(const FrequencyTable& tabella) {
    FreqTable5SF semplice;
    for (size_t i = 0; i < kMaxFreqTable; ++i)
        semplice.Elementi[i] = {tabella.Elementi[i].Freq, tabella.Elementi[i].Level};
    return semplice;
}

} // namespace

std::string_view CartellaFreqTab(FormaFreqTab forma) {
    return forma == FormaFreqTab::Semplice ? cartella::kTable : cartella::kMastTable;
}

std::string_view EstensioneFreqTab(FormaFreqTab forma) {
    return forma == FormaFreqTab::Semplice ? "5SF" : "FTM";
}

FrequencyTable LeggiFreqTab(FormaFreqTab forma, std::span<const uint8_t> dati) {
    FrequencyTable tabella;
    if (forma == FormaFreqTab::MastTable) {
        LeggiRecord(dati, tabella);
        return tabella;
    }
    FreqTable5SF semplice;
    LeggiRecord(dati, semplice);
    for (size_t i = 0; i < kMaxFreqTable; ++i)
        tabella.Elementi[i] = {.Freq = semplice.Elementi[i].Freq,
                               .Level = semplice.Elementi[i].Level,
                               .Mast = kNessunaPosizione,
                               .Table = kNessunaPosizione};
    return tabella;
}

bool CaricaFreqTab(Scrivania& s, FormaFreqTab forma, std::string_view percorso,
                   FrequencyTable& tabella, LunghezzaErrata modo) {
    if (!s.albero.Esiste(percorso))
        return SalvaFreqTab(s, forma, percorso, tabella);
    const size_t attesa = forma == FormaFreqTab::Semplice ? kByte5SF : kByteFTM;
    const auto dati = LeggiFileTabella(s, percorso, attesa, modo);
    if (!dati)
        return false;
    tabella = LeggiFreqTab(forma, *dati);
    AvvisaTabellaRiparata(s, percorso, ControllaFrequencyTable(tabella));
    return true;
}

bool SalvaFreqTab(const Scrivania& s, FormaFreqTab forma, std::string_view percorso,
                  const FrequencyTable& tabella) {
    s.albero.AssicuraCartella(CartellaFreqTab(forma));
    return forma == FormaFreqTab::Semplice ? SalvaFileRecord(s, percorso, SenzaPosizioni(tabella))
                                           : SalvaFileRecord(s, percorso, tabella);
}

} // namespace orvane
