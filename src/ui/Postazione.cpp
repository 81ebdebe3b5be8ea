#include "ui/Postazione.h"

#include "platform/PresaFile.h"
#include "platform/Sincronizza.h"

namespace orvane {

Postazione::Postazione(AmbienteQt& ambienteQt, const std::filesystem::path& dati,
                       const Vettori& vettori)
    : ambiente(ambienteQt), log(ambiente, dati),
      porta(ambiente, protocollo, log, vettori), scrivania{.ambiente = ambiente,
                                                           .albero =
                                                               AlberoDati(dati, Sincronizza,
                                                                          {PrendiFile, FilePreso})},
      finestra(scrivania, scan), ricevitore{.ambiente = ambiente,
                                            .stato = protocollo,
                                            .log = log,
                                            .porta = porta,
                                            .finestra = finestra},
      corsa{.scrivania = scrivania,
            .ricevitore = ricevitore,
            .scan = scan,
            .stato = statoCorsa,
            .vista = finestra},
      console{.scrivania = scrivania,
              .ricevitore = ricevitore,
              .scan = scan,
              .corsa = corsa,
              .stato = statoConsole,
              .vista = finestra} {
    ambiente.finestra = &finestra;
    finestra.Collega(console, *vettori.catalogo);
}

void Postazione::Carica() {
    AvviaDati(scrivania, porta.link, scan);
    finestra.Carica();
}

void Postazione::Mostra() {
    finestra.show();
    VisualizzazioneIniziale(console);
    finestra.MostraAvvisi(scrivania.avvisi);
}

} // namespace orvane
