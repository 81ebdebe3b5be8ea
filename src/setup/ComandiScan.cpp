#include "setup/ComandiScan.h"

#include <span>
#include <utility>

#include "link/Comandi.h"
#include "link/Identificazione.h"
#include "setup/ComandoSweep.h"
#include "setup/CommutatoriSweep.h"
#include "setup/FattoriSweep.h"
#include "setup/FrontEndSweep.h"
#include "setup/LimitiSweep.h"
#include "setup/RegoleScan.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

using Testi = std::vector<std::string>;

void Aggiungi(Testi& testi, std::span<const ComandoPronto> comandi) {
    for (const ComandoPronto& c : comandi)
        testi.push_back(Componi(c.quale, c.argomenti).Comando);
}
void Aggiungi(Testi& testi, const ComandoPronto& comando) {
    Aggiungi(testi, {&comando, 1});
}

/// The receiver while the table runs, as far as it decides what is sent.
struct Svolto {
    ReceiverModel modello;
    LimiteRicevitore limite = {};
    bool radiata = false; ///< the input in use, on the models with two
};

/// False, with the objection kept, where there is one.
bool Senza(const Riquadro& obiezione, ScanComposto& composto) {
    if (!obiezione.testo.empty())
        composto.obiezioni.push_back(obiezione);
    return obiezione.testo.empty();
}

bool ComponiLimiteEMargine(const AlberoDati& albero, const ScanLine& riga, Svolto& svolto,
                           Testi& testi, ScanComposto& composto) {
    if (const auto nomi = DetImpostazioneLimite(riga, svolto.limite)) {
        const LimiteComposto limite = ComponiLimite(albero, *nomi);
        if (!Senza(limite.obiezione, composto))
            return false;
        Aggiungi(testi, limite.comandi);
        svolto.limite.nomi = *nomi;
    }
    if (const auto margine = DetImpostazioneMargine(riga, svolto.limite)) {
        Aggiungi(testi, ComponiMargine(*margine));
        svolto.limite.margine = margine;
    }
    return true;
}

/// The receiver as it will answer; of the units that fit a line, the smallest.
void Accendi(ReceiverModel& modello, UnitaRichiesta unita) {
    modello.EstensioneAttiva = unita != UnitaRichiesta::SoloRicevitore;
    modello.UnitaEstensione = unita == UnitaRichiesta::Estesa6GHz    ? 1
                              : unita == UnitaRichiesta::Estesa18GHz ? 2
                                                                     : 0;
}

/// What the operator is asked to switch ahead of a line; without text: nothing.
Riquadro CambiaUnita(const ScanLine& riga, Svolto& svolto) {
    const auto unita = UnitaPerRiga(svolto.modello, riga.Start, riga.Stop);
    if (!unita)
        return {};
    Riquadro riquadro = {.testo = TestoCambioUnita(*unita, NomeModello(svolto.modello, false)),
                         .icona = Icona::Informazione};
    Accendi(svolto.modello, *unita);
    // It comes back from off, and has neither limit nor margin.
    svolto.limite = {};
    return riquadro;
}

void ComponiIngresso(const ScanLine& riga, Svolto& svolto, Testi& testi) {
    if (!HaCondottoERadiato(svolto.modello))
        return;
    const bool oem = svolto.modello.ModelloOEM != 0;
    const bool radiata = VaAlRadiato(riga);
    Aggiungi(testi, {Impostazione::StopSweep});
    // The input of the OEM models is asked for first, and only changed.
    if (oem)
        testi.emplace_back("#?CO6*");
    if (oem && radiata != svolto.radiata)
        Aggiungi(testi, {radiata ? Impostazione::RadiatoOem : Impostazione::CondottoOem});
    if (!oem)
        Aggiungi(testi, {radiata ? Impostazione::Radiato : Impostazione::Condotto});
    svolto.radiata = radiata;
}

bool ComponiPassata(Scrivania& s, const ScanLine& riga, Svolto& svolto, Testi& testi,
                    ScanComposto& composto) {
    if (!ComponiLimiteEMargine(s.albero, riga, svolto, testi, composto))
        return false;
    const ComandoSweep comando = PreparaComandoSweep(s, svolto.modello, riga);
    Aggiungi(testi, comando.elenco);
    if (!Senza(comando.obiezione, composto) || !comando.Inviabile())
        return false;
    if (HaGeneratore(svolto.modello) && s.setup.TGOn != 0)
        Aggiungi(testi, {Impostazione::Tracking, std::string(OnOff(true))});
    ComponiIngresso(riga, svolto, testi);
    testi.push_back(comando.testo);
    return true;
}

bool ComponiCorsa(const Scrivania& s, const ReceiverModel& modello, const ScanTable& tabella,
                  ScanComposto& composto) {
    Aggiungi(composto.corsa, {Impostazione::DisabilitaCF});
    const auto fattori = FattoriInUso(s.albero, s.setup);
    const auto punti = UnisciFattori(fattori);
    if (!Senza(ObiezioneAiFattori(fattori, punti.size()), composto))
        return false;
    Aggiungi(composto.corsa, ComponiCFSweep(punti));
    if (const auto modo = ModoGX2207(modello, tabella))
        Aggiungi(composto.corsa, {*modo});
    Aggiungi(composto.corsa, ComponiImpostazioniCorsa(modello, s.setup));
    Aggiungi(composto.corsa, ComponiFiltroAntennaGX2207(modello, s.setup));
    return true;
}

ScanComposto ComponiTutti(Scrivania& s, const ReceiverModel& modello, const ScanTable& tabella) {
    ScanComposto composto;
    if (!ComponiCorsa(s, modello, tabella, composto))
        return composto;
    const int kind = AncillaryDi(s.setup);
    Svolto svolto{.modello = modello, .radiata = modello.ModoK3X == 2};
    for (size_t i = 0; i < RigheInUso(tabella); ++i) {
        const ScanLine& riga = tabella[i];
        Riquadro unita = CambiaUnita(riga, svolto);
        for (const PassataSweep& passata : PassateDellaRiga(riga, kind)) {
            const Commutazione commutazione = ComponiCommutazione(riga, kind, passata);
            PassataComposta& nuova = composto.passate.emplace_back(
                PassataComposta{.riga = i,
                                .nome = std::string(NomePassata(passata, kind)),
                                .unita = std::exchange(unita, {}),
                                .riquadro = commutazione.riquadro});
            if (commutazione.comando)
                Aggiungi(nuova.comandi, *commutazione.comando);
            if (!ComponiPassata(s, riga, svolto, nuova.comandi, composto))
                return composto;
        }
    }
    composto.intero = true;
    return composto;
}

/// What the 3360 family lacks is answered without a word to the receiver.
void TogliRisposteFisse(Testi& testi) {
    std::erase_if(testi,
                  [](const std::string& comando) { return !RisposteFisse(comando).empty(); });
}

} // namespace

ScanComposto ComponiScan(Scrivania& s, const ReceiverModel& modello, const ScanTable& tabella) {
    ScanComposto composto = ComponiTutti(s, modello, tabella);
    if (!modello.Is3360)
        return composto;
    TogliRisposteFisse(composto.corsa);
    for (PassataComposta& passata : composto.passate)
        TogliRisposteFisse(passata.comandi);
    return composto;
}

} // namespace orvane
