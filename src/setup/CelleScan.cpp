#include <algorithm>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "setup/RegoleRiga.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

constexpr std::string_view kPuntini = "...";
constexpr size_t kLarghezzaStep = 12; // characters of a table's name that fit the column

constexpr std::array<std::string_view, static_cast<size_t>(ColonnaScan::NumColonne)> kTitoli = {
    "",    "Start\n[MHz]", "Stop\n[MHz]", "Step",    "Detector",     "Hold Time",
    "RBW", "Min Att",      "Pre Amp",     "Pre Sel", "Prompt start", "Ancillary"};

// A cell shows the one-letter names of lines and polarisations two wide.
constexpr std::array<std::string_view, 4> kCelleLinee = {"N ", "L1", "L2", "L3"};
constexpr std::array<std::string_view, 2> kCelleAntenna = {"V ", "H "};

std::string TestoFreq(double mhz) {
    return mhz == 0 ? "" : TestoDaNumero(mhz);
}

/// Cut between characters, never inside one.
std::string Taglia(std::string_view testo, size_t lunghezza) {
    while (lunghezza > 0 && (static_cast<unsigned char>(testo[lunghezza]) & 0xC0) == 0x80)
        --lunghezza;
    return std::string(testo.substr(0, lunghezza));
}

std::string TestoStep(const ScanLine& riga) {
    if (riga.StepMode == 1) {
        if (riga.FreqTable.empty())
            return std::string(kPuntini);
        return riga.FreqTable.size() <= kLarghezzaStep
                   ? riga.FreqTable
                   : Taglia(riga.FreqTable, kLarghezzaStep - 2) + "..";
    }
    if (riga.AutoStep == 1)
        return "AUTO";
    return TestoPassoConUnita(riga.Step);
}

std::string TestoDetector(const ScanLine& riga) {
    std::string testo = riga.Smart == 1 ? "S " : "";
    for (const char lettera : LettereDetector(riga))
        testo += {lettera, ' '};
    return testo;
}

std::string TestoRbw(const ScanLine& riga) {
    const bool valido = riga.RbwId >= 0 && riga.RbwId < kNumRbw;
    return valido ? std::string(TabellaRbw()[static_cast<size_t>(riga.RbwId)].testo) : "";
}

std::string TestoMinAtt(const ScanLine& riga) {
    const bool valido = riga.MinAtt >= 0 && static_cast<size_t>(riga.MinAtt) < kMinAttDb.size();
    return valido ? TestoIntero(kMinAttDb[static_cast<size_t>(riga.MinAtt)]) + " dB" : "";
}

std::string OnOff(int16_t acceso) {
    return acceso ? "ON" : "OFF";
}

/// The first line of the prompt: the view cuts it to its width.
std::string TestoPrompt(const ScanLine& riga) {
    if (riga.PromptOn != 1)
        return std::string(kPuntini);
    return riga.Prompt.substr(0, riga.Prompt.find_first_of("\r\n"));
}

std::string NomiAccesi(std::span<const int16_t> flag, std::span<const std::string_view> nomi) {
    std::vector<std::string> accesi;
    for (size_t i = 0; i < flag.size(); ++i)
        if (flag[i] == 1)
            accesi.emplace_back(nomi[i]);
    return accesi.empty() ? std::string(kPuntini) : Unisci(accesi, ", ");
}

std::string TestoAncillary(const ScanLine& riga, int ancillaryKind) {
    switch (ancillaryKind) {
    case 1:
    case 2:
    case 6:
        return NomiAccesi(riga.LineSwitch, kCelleLinee);
    case 3:
        return NomiAccesi(riga.Antenna, kCelleAntenna);
    case 4:
        return NomiAccesi(riga.LineSwitch, kNomiUscite);
    case 5:
        return "Table - Mast";
    default:
        return std::string(kPuntini);
    }
}

/// A frequency as typed; what is no number counts as 0, and so does a negative one.
double LeggiFreq(std::string_view testo) {
    return std::max(ValoreIniziale(Rifila(testo)), 0.0);
}

template <size_t N> bool ScriviIndice(int16_t& campo, int id) {
    if (id < 0 || id >= static_cast<int>(N))
        return false;
    campo = static_cast<int16_t>(id);
    return true;
}

/// Index of a detector by its long name; `kNumDetector` for none.
size_t TrovaNomeDetector(std::string_view nome) {
    const auto trovato =
        std::find_if(kNomiDetector.begin(), kNomiDetector.end(),
                     [nome](const char* uno) { return UgualiSenzaMaiuscole(uno, nome); });
    return static_cast<size_t>(trovato - kNomiDetector.begin());
}

bool AccendiLettere(std::string_view lettere, std::array<int16_t, kNumDetector>& flag) {
    for (const char lettera : Maiuscolo(lettere)) {
        const auto trovata = std::find(kLettereDetector.begin(), kLettereDetector.end(), lettera);
        if (trovata == kLettereDetector.end())
            return false;
        flag[static_cast<size_t>(trovata - kLettereDetector.begin())] = 1;
    }
    return !lettere.empty();
}

} // namespace

std::string_view TitoloColonna(ColonnaScan colonna) {
    return kTitoli[static_cast<size_t>(colonna)];
}

std::string TestoCella(const ScanLine& riga, ColonnaScan colonna, int ancillaryKind) {
    switch (colonna) {
    case ColonnaScan::Start:
        return TestoFreq(riga.Start);
    case ColonnaScan::Stop:
        return TestoFreq(riga.Stop);
    case ColonnaScan::Step:
        return TestoStep(riga);
    case ColonnaScan::Detector:
        return TestoDetector(riga);
    case ColonnaScan::HoldTime:
        return riga.HoldTime == 0 ? "Lowest" : TestoDaNumero(riga.HoldTime);
    case ColonnaScan::Rbw:
        return TestoRbw(riga);
    case ColonnaScan::MinAtt:
        return TestoMinAtt(riga);
    case ColonnaScan::PreAmp:
        return OnOff(riga.PreAmp);
    case ColonnaScan::PreSel:
        return OnOff(riga.PreSel);
    case ColonnaScan::Prompt:
        return TestoPrompt(riga);
    case ColonnaScan::Ancillary:
        return TestoAncillary(riga, ancillaryKind);
    case ColonnaScan::Numero: // the line does not know its own number
    case ColonnaScan::NumColonne:
        break;
    }
    return {};
}

void ScriviCellaScanLine(ScanLine& riga, ColonnaScan colonna, std::string_view testo, int id) {
    bool ricalcola = false;
    switch (colonna) {
    case ColonnaScan::Start:
        riga.Start = LeggiFreq(testo);
        ricalcola = true;
        break;
    case ColonnaScan::Stop:
        riga.Stop = LeggiFreq(testo);
        ricalcola = true;
        break;
    case ColonnaScan::Rbw:
        ricalcola = id >= 0 && id < kNumRbw && !TabellaRbw()[static_cast<size_t>(id)].Separatore();
        if (ricalcola)
            riga.RbwId = static_cast<int16_t>(id);
        break;
    case ColonnaScan::MinAtt:
        ScriviIndice<kMinAttDb.size()>(riga.MinAtt, id);
        break;
    case ColonnaScan::PreAmp:
        ScriviIndice<2>(riga.PreAmp, id);
        break;
    case ColonnaScan::PreSel:
        ScriviIndice<2>(riga.PreSel, id);
        break;
    default: // the other columns have the settings window
        break;
    }
    if (ricalcola && riga.AutoStep == 1)
        riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
}

std::string LettereDetector(const ScanLine& riga) {
    std::string lettere;
    for (size_t d = 0; d < kNumDetector; ++d)
        if (riga.Detector[d] == 1)
            lettere += kLettereDetector[d];
    return lettere;
}

std::optional<std::array<int16_t, kNumDetector>> LeggiDetector(std::string_view testo) {
    std::array<int16_t, kNumDetector> flag{};
    for (const std::string& pezzo : Dividi(testo, ',')) {
        const std::string voce = Rifila(pezzo);
        if (const size_t d = TrovaNomeDetector(voce); d < kNumDetector)
            flag[d] = 1;
        else if (!AccendiLettere(voce, flag))
            return std::nullopt;
    }
    return flag;
}

} // namespace orvane
