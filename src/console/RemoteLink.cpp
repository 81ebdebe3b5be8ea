#include "console/RemoteLink.h"

#include "base/Numeri.h"
#include "data/Panels.h"

namespace orvane {
namespace {

constexpr std::string_view kCopia = "Panels\\TMP.TMP";

void Applica(const EnvRecord& env, LinkPort& link) {
    link.TipoLink = env.LinkKind;
    link.NumeroCom = env.LinkPort;
}

void Cambia(Scrivania& s, LinkPort& link, int16_t tipo, int16_t numeroCom) {
    s.env.LinkKind = tipo;
    s.env.LinkPort = numeroCom;
    Applica(s.env, link);
    SalvaPanelEPN(s, kPannelloEPN);
}

} // namespace

QuadroRemoteLink ApriRemoteLink(Scrivania& s, const LinkPort& link, CatalogoPorte& catalogo) {
    SalvaPanelEPN(s, kCopia);
    QuadroRemoteLink quadro{.porte = catalogo.Elenca(), .tipoLink = link.TipoLink};
    quadro.scelta = TrovaIDComSelezionata(quadro.porte, link.NumeroCom);
    quadro.testoPorta = quadro.scelta < 0 ? TestoIntero(link.NumeroCom)
                                          : quadro.porte[static_cast<size_t>(quadro.scelta)].nome;
    return quadro;
}

void OptLink(Scrivania& s, LinkPort& link, int16_t tipo) {
    Cambia(s, link, tipo, s.env.LinkPort);
}

void ComboPortDevice(Scrivania& s, LinkPort& link, std::string_view nome) {
    if (const int numero = DeterminaNumComSel(nome).value_or(0); numero >= 1)
        Cambia(s, link, s.env.LinkKind, static_cast<int16_t>(numero));
}

void DefaultRemoteLink(Scrivania& s, LinkPort& link) {
    Cambia(s, link, 1, 1);
}

void ConfermaRemoteLink(Scrivania& s) {
    s.albero.Cancella(kCopia);
}

void RipristinaRemoteLink(Scrivania& s, LinkPort& link) {
    if (const auto copia = s.albero.Leggi(kCopia)) {
        LeggiRecord(*copia, s.env);
        Applica(s.env, link);
        SalvaPanelEPN(s, kPannelloEPN);
    }
    s.albero.Cancella(kCopia);
}

} // namespace orvane
