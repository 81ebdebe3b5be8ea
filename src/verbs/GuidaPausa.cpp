#include "verbs/GuidaPausa.h"

namespace orvane {

void GuidaPausa::Chiedi() {
    piano_.dopoS.reset();
    // Only an Enter from here on ends the pause, and none that comes behind the word of it is lost.
    if (tastiera_)
        tastiera_.dimentica();
    if (vista_.PuoPausare())
        ChiediPausa(stato_);
    else
        vista_.MostraMessaggioBreve("This receiver cannot pause", 0);
}

void GuidaPausa::Gira() {
    if (piano_.dopoS && vista_.DatiDaS().value_or(-1) >= *piano_.dopoS &&
        stato_.fase == FaseCorsa::Misura && stato_.PausaRichiesta == 0)
        return Chiedi();
    if (stato_.fase != FaseCorsa::Pausa) {
        inPausaDa_.reset();
        return;
    }
    if (!inPausaDa_)
        inPausaDa_ = ambiente_.Adesso();
    const bool tempo = piano_.perS && ambiente_.Adesso() - *inPausaDa_ >= *piano_.perS;
    if (tempo || (tastiera_ && tastiera_.invio()))
        ChiediPausa(stato_);
}

} // namespace orvane
