#include "report/CatturaImmagine.h"

#include <cmath>

#include "base/Interruttori.h"
#include "graph/BloccoImpostazioni.h"
#include "graph/Quadro.h"

namespace orvane {
namespace {

constexpr int kLarghezza = 1600;
constexpr int kAltezza = 1000;
constexpr double kRiduzione = 0.975;

int Ridotto(int pixel, bool ridotta) {
    return ridotta ? static_cast<int>(std::lround(pixel * kRiduzione)) : pixel;
}

} // namespace

std::vector<uint8_t> CatturaImmagineMisura(const Scrivania& s, const FonteReport& fonte,
                                           FabbricaQuadri* fabbrica, FormatoImmagine formato,
                                           bool ridotta) {
    const std::string& riga = s.ambiente.RigaComando();
    const bool piccola = ridotta && !Acceso(riga, interruttore::kNoRidimgRtf);
    const int larghezza = Ridotto(kLarghezza, piccola);
    const int altezza = Ridotto(kAltezza, piccola);
    if (!fabbrica)
        return {};
    ContenutoQuadro contenuto = ComponiQuadro(fonte.misura, fonte.setup, fonte.env);
    AggiungiLimitiRighe(s, contenuto);
    StileQuadro stile = StileStampa(fonte.env, AltezzaTestoQuadro(larghezza, altezza));
    stile.marcatori = Acceso(riga, interruttore::kPrintMarkerSweep);
    stile.blocco = BloccoImpostazioni(s, contenuto, fonte.setup);
    return fabbrica->Dipingi(larghezza, altezza, formato, [&](Superficie& superficie) {
        DisegnaQuadro(superficie, contenuto, fonte.setup, fonte.env, contenuto.intero, stile);
    });
}

} // namespace orvane
