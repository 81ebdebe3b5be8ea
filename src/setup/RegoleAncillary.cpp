// Whether the lines of the scan table suit what is attached, and their repair.
#include <algorithm>
#include <span>

#include "base/Testo.h"
#include "setup/RegoleScan.h"

namespace orvane {
namespace {

enum Commutatore : size_t { kN, kL1, kL2, kL3 };
constexpr int kNienteAttaccato = 0;
constexpr int kReteADueLinee = 1;
constexpr int kReteAQuattroLinee = 2;
constexpr int kAntenna = 3;
constexpr int kScatola = 4;
constexpr int kMastTable = 5;
constexpr int kReteInterna = 6;

constexpr std::string_view kSenzaNomi = "...";
constexpr std::string_view kNomeMastTable = "Table - Mast";

/// Searched in capitals, so that no name is found in the words of another text.
struct Nome {
    std::string_view testo;
    bool linea = false;
    bool antenna = false;
    bool scatola = false;
};
constexpr Nome kNomi[] = {
    {.testo = "N", .linea = true},   {.testo = "L1", .linea = true},
    {.testo = "L2", .linea = true},  {.testo = "L3", .linea = true},
    {.testo = "V", .antenna = true}, {.testo = "H", .antenna = true},
    {.testo = "W", .scatola = true}, {.testo = "X", .scatola = true},
    {.testo = "Y", .scatola = true}, {.testo = "Z", .scatola = true},
};

bool Estraneo(const Nome& nome, int ancillaryKind) {
    switch (ancillaryKind) {
    case kAntenna:
        return !nome.antenna;
    case kScatola:
        return !nome.scatola;
    case kMastTable:
        return true;
    default:
        return !nome.linea;
    }
}

bool HaNomiEstranei(std::string_view cella, int ancillaryKind) {
    if (ancillaryKind != kMastTable && Contiene(cella, kNomeMastTable))
        return true;
    return std::any_of(std::begin(kNomi), std::end(kNomi), [&](const Nome& nome) {
        return Estraneo(nome, ancillaryKind) && Contiene(cella, nome.testo);
    });
}

bool SoloL1eL2(std::string_view cella) {
    return std::all_of(std::begin(kNomi), std::end(kNomi), [&](const Nome& nome) {
        const bool voluto = nome.testo == "L1" || nome.testo == "L2";
        return Contiene(cella, nome.testo) == voluto;
    });
}

/// What the cell of a line shows. A line keeps flags and no text: where it has nothing selected
/// under the kind in force, its cell still has the names of the kind that it was made for, since
/// no one has chosen others. With nothing attached there is nothing to choose, and no name.
std::string CellaDellaRiga(const ScanLine& riga, int ancillaryKind, bool insertionLoss) {
    if (ancillaryKind == kNienteAttaccato && !insertionLoss)
        return std::string(kSenzaNomi);
    const bool comeLinee = insertionLoss || ancillaryKind == kMastTable;
    for (const int kind :
         {comeLinee ? kReteAQuattroLinee : ancillaryKind, kReteAQuattroLinee, kAntenna})
        if (std::string cella = TestoCella(riga, ColonnaScan::Ancillary, kind); cella != kSenzaNomi)
            return cella;
    return std::string(kSenzaNomi);
}

bool Nessuno(std::span<const int16_t> flag) {
    return std::all_of(flag.begin(), flag.end(), [](int16_t uno) { return uno == 0; });
}

/// What the kind itself asks of the selections, whatever the cell shows.
bool SelezioneErrata(const ScanLine& riga, int ancillaryKind) {
    switch (ancillaryKind) {
    case kReteADueLinee:
    case kReteInterna:
        return riga.LineSwitch[kN] != 0 || riga.LineSwitch[kL3] != 0;
    case kAntenna:
        return Nessuno(riga.Antenna);
    default:
        return false;
    }
}

struct EsameRiga {
    bool bene = true;
    bool segno = false;
};

EsameRiga EsaminaRiga(const ScanLine& riga, int ancillaryKind, bool insertionLoss) {
    const std::string cella = CellaDellaRiga(riga, ancillaryKind, insertionLoss);
    const bool estranea = insertionLoss ? !SoloL1eL2(cella) : HaNomiEstranei(cella, ancillaryKind);
    const bool errata = SelezioneErrata(riga, ancillaryKind);
    // Two-line networks and no network at all take the mark of a foreign name away again.
    const bool cancella = ancillaryKind == kNienteAttaccato || ancillaryKind == kReteADueLinee ||
                          ancillaryKind == kReteInterna;
    return {.bene = !estranea && (insertionLoss || !errata),
            .segno = errata || (estranea && !cancella)};
}

void ImpostaDueLinee(ScanLine& riga) {
    riga.LineSwitch = {0, 1, 1, 0};
}

void CorreggiRiga(ScanLine& riga, int ancillaryKind) {
    switch (ancillaryKind) {
    case kReteADueLinee:
    case kReteInterna:
        if (riga.LineSwitch[kL1] == 0 && riga.LineSwitch[kL2] == 0)
            riga.LineSwitch[kL1] = riga.LineSwitch[kL2] = 1;
        riga.LineSwitch[kN] = riga.LineSwitch[kL3] = 0;
        break;
    case kReteAQuattroLinee:
    case kScatola:
        if (Nessuno(riga.LineSwitch))
            riga.LineSwitch.fill(1);
        break;
    case kAntenna:
        if (Nessuno(riga.Antenna))
            riga.Antenna.fill(1);
        break;
    case kMastTable:
        riga.Antenna.fill(0);
        [[fallthrough]];
    default:
        riga.LineSwitch.fill(0);
    }
}

} // namespace

Segnalazioni ControllaLineScanTab(const ContestoControlli& c) {
    const int kind = AncillaryDi(c.setup);
    Segnalazione trovata{
        .esito = EsitoControllo::Chiede,
        .riquadro = {.testo = "Ancillary settings does not match.\r      Press yes to adjust them",
                     .icona = Icona::Domanda,
                     .pulsanti = Pulsanti::SiNo}};
    bool bene = true;
    for (size_t i = 0; i < c.tabella.size(); ++i) {
        if (c.tabella[i].Start == 0)
            continue;
        const EsameRiga esame = EsaminaRiga(c.tabella[i], kind, c.setup.InsLossOn != 0);
        bene = bene && esame.bene;
        if (esame.segno)
            trovata.celle.push_back({i, ColonnaScan::Ancillary});
    }
    return bene ? Segnalazioni{} : Segnalazioni{trovata};
}

void CorreggiLineScanTab(ScanTable& tabella, int ancillaryKind, bool insertionLoss) {
    for (ScanLine& riga : tabella) {
        if (riga.Start == 0)
            continue;
        if (insertionLoss)
            ImpostaDueLinee(riga);
        else
            CorreggiRiga(riga, ancillaryKind);
    }
}

} // namespace orvane
