#include "console/Console.h"

#include "base/Percorsi.h"
#include "base/Versione.h"
#include "console/Titolo.h"
#include "data/ControllaRecord.h"
#include "data/Panels.h"

namespace orvane {
namespace {

/// `InitForm`: the environment first, since the look of everything follows from it.
void CaricaAmbiente(Scrivania& s, std::vector<std::string>& avvisi) {
    CaricaPanelEPN(s, kPannelloEPN);
    if (ControllaParStand(s.env))
        avvisi.push_back("Untitled.EPN held damaged values; they were repaired");
    LeggiDatiSetup(s);
}

/// The panel named in the environment where it exists, else the nameless one.
void CaricaSetup(Scrivania& s, std::vector<std::string>& avvisi) {
    if (!s.albero.Esiste(s.env.SetupPanelPath))
        s.env.SetupPanelPath = kPannelloEAM;
    CaricaPanelEAM(s, s.env.SetupPanelPath);
    if (ControllaSetup(s.setup))
        avvisi.push_back(EstraiNomeFile(s.env.SetupPanelPath) +
                         ".EAM held damaged values; they were repaired");
}

void CaricaTabella(Scrivania& s, ScanRecord& scan, std::vector<std::string>& avvisi) {
    if (!s.albero.Esiste(s.env.ScanPanelPath))
        s.env.ScanPanelPath = PercorsoPannello("Untitled", "EST");
    CaricaPanelEST(s, s.env.ScanPanelPath, scan);
    if (ControllaScan(scan))
        avvisi.push_back(EstraiNomeFile(s.env.ScanPanelPath) +
                         ".EST held damaged values; they were repaired");
}

} // namespace

const std::array<std::string, 7>& TabelleUnita() {
    static const std::array<std::string, 7> unita = {"dBm",    "dBµV",   "dBµA", "dBpW",
                                                     "dBµV/m", "dBµA/m", "dBpT"};
    return unita;
}

std::vector<std::string> AvviaDati(Scrivania& s, LinkPort& link, ScanRecord& scan) {
    std::vector<std::string> avvisi;
    CaricaAmbiente(s, avvisi);
    link.TipoLink = s.env.LinkKind;
    link.NumeroCom = s.env.LinkPort;
    CaricaSetup(s, avvisi);
    CaricaTabella(s, scan, avvisi);
    CaricaPathPTH(s);
    return avvisi;
}

void AvviaInLettura(Scrivania& s, LinkPort& link, bool linkScelto) {
    ApplicaEnv(s.env, false);
    s.setup = SetupDefault();
    if (s.albero.Esiste(kPannelloEPN)) {
        CaricaPanelEPN(s, kPannelloEPN);
        ControllaParStand(s.env);
    }
    if (s.albero.Esiste(kPannelloEAM)) {
        CaricaPanelEAM(s, kPannelloEAM);
        ControllaSetup(s.setup);
    }
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
