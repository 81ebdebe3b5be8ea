#include "console/CambioAmbiente.h"

#include "data/Panels.h"

namespace orvane {
namespace {

bool SegueLink(Console& c, const EnvRecord& prima) {
    const EnvRecord& env = c.scrivania.env;
    if (env.LinkKind == prima.LinkKind && env.LinkPort == prima.LinkPort)
        return false;
    LinkPort& link = c.ricevitore.porta.link;
    if (!c.ricevitore.porta.Aperta()) {
        link.TipoLink = env.LinkKind;
        link.NumeroCom = env.LinkPort;
    }
    return true;
}

bool SegueTabella(Console& c, const EnvRecord& prima) {
    Scrivania& s = c.scrivania;
    if (s.env.ScanPanelPath == prima.ScanPanelPath)
        return false;
    if (!s.albero.Esiste(s.env.ScanPanelPath))
        s.env.ScanPanelPath = prima.ScanPanelPath;
    else
        CaricaPanelEST(s, s.env.ScanPanelPath, c.scan);
    return true;
}

bool SeguePannello(Console& c, const EnvRecord& prima) {
    Scrivania& s = c.scrivania;
    const std::string nuovo = s.env.SetupPanelPath;
    if (nuovo == prima.SetupPanelPath)
        return false;
    if (!s.albero.Esiste(nuovo) || !CaricaPannelloCome(s, nuovo))
        s.env.SetupPanelPath = prima.SetupPanelPath;
    return true;
}

} // namespace

bool SeguiAmbiente(Console& c, const EnvRecord& prima) {
    const bool link = SegueLink(c, prima);
    const bool tabella = SegueTabella(c, prima);
    const bool pannello = SeguePannello(c, prima);
    if (link || tabella || pannello)
        SalvaPanelEPN(c.scrivania, kPannelloEPN);
    return link || tabella || pannello;
}

} // namespace orvane
