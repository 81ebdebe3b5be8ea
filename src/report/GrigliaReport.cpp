#include "report/GrigliaReport.h"

#include <algorithm>
#include <cmath>

#include "base/Testo.h"
#include "records/ColoriGrafico.h"
#include "report/RigheReport.h"

namespace orvane {
namespace {

/// Widths in 1440 to the inch.
struct AspettoColonna {
    GenereColonna genere;
    const char* titolo;
    const char* intestazione; ///< first line in the grid
    const char* unita;
    int larghezza;
};
constexpr std::array kAspetto = {
    AspettoColonna{GenereColonna::Numero, "", "", "", 500},
    AspettoColonna{GenereColonna::Frequenza, "Frequency", "Frequency", "MHz", 1200},
    AspettoColonna{GenereColonna::Livello, "", "", "", 1000},
    AspettoColonna{GenereColonna::Limite, "Limit", "Limit", "", 0},
    AspettoColonna{GenereColonna::Delta, "Delta", "Delta", "dB", 1000},
    AspettoColonna{GenereColonna::Mast, "Mast", "Mast ", "cm", 1200},
    AspettoColonna{GenereColonna::Table, "Table", "Table ", "Deg", 1200},
    AspettoColonna{GenereColonna::Fattore, "Factor", "Factor", "dB", 0},
};
constexpr int kMargineNome = 100;
constexpr int kMassimaLarghezzaNome = 2000;
constexpr int kInizioBarra = 1300;
constexpr size_t kLarghezzaUnita = 6;

/// Puts columns together, one after the other.
struct Compositore {
    const FonteReport& fonte;
    const MisuraTesto& misura;
    GrigliaReport griglia;

    ColonnaReport& Colonna(GenereColonna genere, size_t quale = 0) {
        const AspettoColonna& aspetto = kAspetto[static_cast<size_t>(genere)];
        ColonnaReport colonna{.genere = genere,
                              .quale = quale,
                              .titolo = aspetto.titolo,
                              .unita = aspetto.unita,
                              .larghezza = aspetto.larghezza};
        if (!colonna.unita.empty())
            colonna.intestazione = std::string(aspetto.intestazione) + "\r[" + colonna.unita + "]";
        griglia.colonne.push_back(std::move(colonna));
        return griglia.colonne.back();
    }
    void Livello(int16_t detector) {
        ColonnaReport& c = Colonna(GenereColonna::Livello, static_cast<size_t>(detector));
        c.titolo = kNomiDetector.at(c.quale);
        c.unita = TestoUnita(fonte.setup.UnitId);
        c.intestazione = c.titolo + "\r[" + c.unita + "]";
    }
    /// Name and width of a column that bears the name of a table.
    void Nomina(ColonnaReport& c, const std::string& nome) {
        c.nome = Rifila(nome);
        const double larga = misura ? misura(c.nome) : 0;
        c.larghezza =
            std::min(static_cast<int>(std::ceil(larga)) + kMargineNome, kMassimaLarghezzaNome);
        const std::string mostrato =
            misura ? TagliaTestoWidth(c.nome, kMassimaLarghezzaNome, misura) : c.nome;
        c.intestazione = c.titolo + "\r" + mostrato + " [" + c.unita + "]";
    }
    void Limite(size_t slot) {
        int prima = 0;
        for (const ColonnaReport& c : griglia.colonne)
            prima += c.larghezza;
        griglia.LBColorLim[slot] = {.visibile = true,
                                    .sinistra = kInizioBarra + prima,
                                    .colore = fonte.env.GraphColors.at(colore::kLimiti + slot)};
        ColonnaReport& c = Colonna(GenereColonna::Limite, slot);
        c.unita = TestoUnita(fonte.setup.UnitId);
        Nomina(c, fonte.setup.LimitName[slot]);
        Colonna(GenereColonna::Delta, slot);
    }
    void Inizio(TipoReport tipo) {
        griglia.tipo = tipo;
        Colonna(GenereColonna::Numero);
        Colonna(GenereColonna::Frequenza);
    }
    void PosizioniEFattori() {
        if (HaDatiMast(fonte.misura)) {
            Colonna(GenereColonna::Mast);
            Colonna(GenereColonna::Table);
        }
        for (const size_t t : FattoriAttivi(fonte.setup))
            Nomina(Colonna(GenereColonna::Fattore, t), fonte.setup.FactorName[t]);
    }
    GrigliaReport Fine(const std::string& misurata) {
        std::string unita = Riempi(TestoUnita(fonte.setup.UnitId), kLarghezzaUnita);
        if (!unita.ends_with(' '))
            unita += ' ';
        griglia.didascalia = (misurata.empty() ? "" : misurata + " ") + unita + "Report ";
        return std::move(griglia);
    }
};

int16_t DetectorDelloSlot(const ReportModel& model, size_t slot) {
    return slot == 0 ? model.ReportDetectorLim1 : model.ReportDetectorLim2;
}

} // namespace

std::string NomeDelLimite(const GrigliaReport& griglia, size_t slot) {
    for (const ColonnaReport& colonna : griglia.colonne)
        if (colonna.genere == GenereColonna::Limite && colonna.quale == slot)
            return colonna.nome;
    return {};
}

GrigliaReport ImpostaGridReport1Det(const ReportModel& model, const FonteReport& fonte,
                                    const MisuraTesto& misura) {
    Compositore c{.fonte = fonte, .misura = misura, .griglia = {}};
    c.Inizio(TipoReport::UnDetector);
    c.Livello(model.ReportDetector);
    for (const size_t slot : LimitiAttivi(fonte.setup))
        c.Limite(slot);
    c.PosizioniEFattori();
    return c.Fine(model.ReportMeasureName);
}

GrigliaReport ImpostaGridReport2Det(const ReportModel& model, const FonteReport& fonte,
                                    const MisuraTesto& misura) {
    Compositore c{.fonte = fonte, .misura = misura, .griglia = {}};
    c.Inizio(TipoReport::DueDetector);
    const std::vector<size_t> attivi = LimitiAttivi(fonte.setup);
    // One level column for both: the second detector's only where the second limit is alone.
    c.Livello(DetectorDelloSlot(model, attivi.empty() ? 0 : attivi.front()));
    for (const size_t slot : attivi)
        c.Limite(slot);
    c.PosizioniEFattori();
    return c.Fine(model.ReportMeasureName);
}

GrigliaReport ImpostaGridReport2DetFull(const ReportModel& model, const FonteReport& fonte,
                                        const MisuraTesto& misura) {
    Compositore c{.fonte = fonte, .misura = misura, .griglia = {}};
    c.Inizio(TipoReport::DueDetectorFull);
    for (size_t slot = 0; slot < kLimitiReport; ++slot) {
        c.Livello(DetectorDelloSlot(model, slot));
        if (LimiteAttivo(fonte.setup, slot))
            c.Limite(slot);
    }
    c.PosizioniEFattori();
    return c.Fine(model.ReportMeasureName);
}

GrigliaReport ImpostaGridReport(const ReportModel& model, const FonteReport& fonte,
                                const MisuraTesto& misura) {
    switch (model.tipo) {
    case TipoReport::UnDetector:
        break;
    case TipoReport::DueDetector:
        return ImpostaGridReport2Det(model, fonte, misura);
    case TipoReport::DueDetectorFull:
        return ImpostaGridReport2DetFull(model, fonte, misura);
    }
    return ImpostaGridReport1Det(model, fonte, misura);
}

} // namespace orvane
