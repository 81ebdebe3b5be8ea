// From an open measure to what shows it: picture, highest peaks, verdict. The archive and the end
// of a run share it.
#pragma once

#include <set>
#include <string>

#include "console/Archivio.h"
#include "ui/MainPict.h"
#include "ui/PannelloPicchi.h"
#include "ui/PannelloVerdetto.h"
#include "ui/Sovrapposte.h"

namespace orvane {

class RegiaMisura {
public:
    struct Scena {
        MainPict& quadro;
        PannelloPicchi& picchi;
        PannelloVerdetto& verdetto;
    };
    RegiaMisura(Scrivania& scrivania, Scena scena) : s_(scrivania), scena_(scena) {}

    /// What is open goes to the picture, by the set-up as it is now. `tieni`: the same measure,
    /// changed; zoom and markers stay.
    void Mostra(const StatoArchivio& aperta, bool tieni);
    /// Nothing is on show.
    void Togli();
    /// `CHKShowHighestPeaks` and the list of what is switched off among the layers.
    void MostraPicchi(bool si) { conPicchi_ = si; }
    void Accendi(Sovrapposte::Genere genere, const std::string& nome, bool si);
    bool Accesa(Sovrapposte::Genere genere, const std::string& nome) const;

private:
    std::vector<StratoQuadro> StratiPropri(const StatoArchivio& aperta) const;
    std::vector<StratoQuadro> StratiSopra(const StatoArchivio& aperta) const;
    StratoQuadro StratoPassata(const StatoArchivio& aperta, const NodoSubMisura& nodo,
                               size_t quale) const;
    void MostraTabellaPicchi(const StatoArchivio& aperta, ContenutoQuadro& contenuto) const;

    Scrivania& s_;
    Scena scena_;
    bool conPicchi_ = true;
    std::set<std::pair<Sovrapposte::Genere, std::string>> spente_;
};

/// Limits that are drawn under the traces of a run of this table, by the set-up.
std::vector<LimiteQuadro> LimitiDellaCorsa(Scrivania& s, const ScanTable& tabella);
/// A measure that a run has ended with, opened with all its passes and without touching the set-up.
void ApriDopoCorsa(Scrivania& s, StatoArchivio& aperta, const std::string& nome);
/// A measure laid over the one on show, in a colour of its own.
StratoQuadro StratoSopra(const StatoArchivio& aperta, size_t quale, const EnvRecord& env);
/// The trace of the difference as it lies on the axis: its 0 dB at the label 0 of the unit.
StratoQuadro StratoDifferenza(const StatoArchivio& aperta, const EnvRecord& env, int unitId);

} // namespace orvane
