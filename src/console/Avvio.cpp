#include "console/Console.h"

#include "data/Panels.h"

namespace orvane {
namespace {

/// `InitForm`: the environment first, since the look of everything follows from it.
void CaricaAmbiente(Scrivania& s) {
    CaricaPanelEPN(s, kPannelloEPN);
    LeggiDatiSetup(s);
}

/// The panel named in the environment where it exists, else the nameless one.
void CaricaSetup(Scrivania& s) {
    if (!s.albero.Esiste(s.env.SetupPanelPath))
        s.env.SetupPanelPath = kPannelloEAM;
    CaricaPanelEAM(s, s.env.SetupPanelPath);
}

void CaricaTabella(Scrivania& s, ScanRecord& scan) {
    if (!s.albero.Esiste(s.env.ScanPanelPath))
        s.env.ScanPanelPath = PercorsoPannello("Untitled", "EST");
    CaricaPanelEST(s, s.env.ScanPanelPath, scan);
}

} // namespace

const std::array<std::string, 7>& TabelleUnita() {
    static const std::array<std::string, 7> unita = {"dBm",    "dBµV",   "dBµA", "dBpW",
                                                     "dBµV/m", "dBµA/m", "dBpT"};
    return unita;
}

void AvviaDati(Scrivania& s, LinkPort& link, ScanRecord& scan) {
    CaricaAmbiente(s);
    link.TipoLink = s.env.LinkKind;
    link.NumeroCom = s.env.LinkPort;
    CaricaSetup(s);
    CaricaTabella(s, scan);
    CaricaPathPTH(s);
}

void AvviaInLettura(Scrivania& s, LinkPort& link, bool linkScelto) {
    CaricaEnvCheCe(s);
    s.setup = SetupDefault();
    if (s.albero.Esiste(kPannelloEAM))
        CaricaPanelEAM(s, kPannelloEAM);
    if (linkScelto)
        return;
    link.TipoLink = s.env.LinkKind;
    link.NumeroCom = s.env.LinkPort;
}

void VisualizzazioneIniziale(Console& c) {
    c.stato.ModoPrecedente = static_cast<int16_t>(c.stato.modalita);
    SalvaPanelEPN(c.scrivania, kPannelloEPN);
    c.vista.DisabilitaMenu();
    AttivaModalita(c, c.stato.modalita);
}

} // namespace orvane
