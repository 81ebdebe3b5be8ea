#include "ui/LettureQuadro.h"

#include <algorithm>
#include <cmath>

#include <QCoreApplication>

#include "base/Numeri.h"
#include "platform/qt/SuperficieQt.h"
#include "records/Unita.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// Ratio of luminances at which small text can be read.
constexpr double kContrasto = 4.5;
constexpr int kPassiContrasto = 20;

/// From the light of a screen's channel to its share of the luminance.
double Lineare(float canale) {
    const double c = static_cast<double>(canale);
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double Luminanza(const QColor& c) {
    return 0.2126 * Lineare(c.redF()) + 0.7152 * Lineare(c.greenF()) + 0.0722 * Lineare(c.blueF());
}

double Contrasto(const QColor& a, const QColor& b) {
    const auto [bassa, alta] = std::minmax({Luminanza(a), Luminanza(b)});
    return (alta + 0.05) / (bassa + 0.05);
}

QString Tr(const char* testo) {
    return QCoreApplication::translate("LettureQuadro", testo);
}

/// A name among other words.
QString NomeCorto(const std::string& nome) {
    constexpr qsizetype kLettere = 18;
    const QString testo = Q(nome);
    return testo.size() <= kLettere ? testo : testo.first(kLettere - 1) + QStringLiteral("…");
}

/// Fills the rows of one reading; the colours are made readable on the ground of the panel.
class Compilatore {
public:
    Compilatore(const ContenutoQuadro& contenuto, const QPalette& tavolozza)
        : contenuto_(contenuto), fondo_(Tinta(tavolozza, Ruolo::Velo)),
          testo_(Tinta(tavolozza, Ruolo::Testo)), tenue_(Tinta(tavolozza, Ruolo::Tenue)) {}

    void Titolo(const QString& frequenza, const QString& delta) {
        righe.push_back({frequenza, {}, delta, testo_});
    }
    void Livelli(const LetturaMarker& lettura, const LetturaDelta* delta) {
        for (const auto& livello : lettura.livelli) {
            const auto d = static_cast<size_t>(livello.detector);
            if (Mostrato(0, d))
                righe.push_back({QLatin1String(kNomiDetector[d]), Q(livello.testo),
                                 delta ? TestoDelta(*delta, livello.detector) : QString(),
                                 Colore(0, d)});
        }
    }
    /// What the other measures, or the passes, have at this frequency.
    void AltriStrati(size_t dal, double freqMhz, double unitOffset) {
        for (size_t i = dal; i < contenuto_.strati.size(); ++i) {
            const StratoQuadro& strato = contenuto_.strati[i];
            const auto vicino = CampioneVicino(*strato.traccia, freqMhz);
            for (size_t d = 0; vicino && d < kNumDetector; ++d)
                if (const int16_t livello = (*strato.traccia)[*vicino].livello[d];
                    Mostrato(i, d) && livello > kNessunLivello)
                    righe.push_back({NomeCorto(strato.nome) + QLatin1Char(' ') +
                                         QLatin1String(kNomiDetector[d]),
                                     Q(TestoFisso(livello / 100.0 + unitOffset, 2)),
                                     {},
                                     Colore(i, d)});
        }
    }
    void Fattori(const LetturaMarker& lettura) {
        for (const auto& [nome, valore] : lettura.fattori)
            righe.push_back({Q(nome), Q(valore) + QStringLiteral(" dB"), {}, tenue_});
        if (lettura.sommaFattori)
            righe.push_back({Tr("Sum of factors"),
                             Q(*lettura.sommaFattori) + QStringLiteral(" dB"),
                             {},
                             tenue_});
    }
    void Distanze(const LetturaMarker& lettura) {
        for (const auto& distanza : lettura.distanze) {
            // A limit that is on without a table says nothing.
            if (std::ranges::find(contenuto_.limiti, distanza.slot, &LimiteQuadro::slot) ==
                contenuto_.limiti.end())
                continue;
            righe.push_back(
                {Tr("%1 to limit %2")
                     .arg(QLatin1String(kNomiDetector[static_cast<size_t>(distanza.detector)]))
                     .arg(distanza.slot + 1),
                 Q(distanza.testo) + QStringLiteral(" dB"),
                 {},
                 ColoreLimite(distanza.slot)});
        }
    }

    std::vector<RigaLettura> righe;

private:
    bool Mostrato(size_t strato, size_t d) const {
        return strato < contenuto_.strati.size() && contenuto_.strati[strato].detector[d];
    }
    QColor Colore(size_t strato, size_t d) const {
        return ColoreLeggibile(ColoreQt(contenuto_.strati[strato].colori[d]), fondo_);
    }
    QColor ColoreLimite(int slot) const {
        const auto limite = std::ranges::find(contenuto_.limiti, slot, &LimiteQuadro::slot);
        return limite == contenuto_.limiti.end()
                   ? tenue_
                   : ColoreLeggibile(ColoreQt(limite->colore), fondo_);
    }
    static QString TestoDelta(const LetturaDelta& delta, DetectorKind detector) {
        const auto livello =
            std::ranges::find(delta.livelli, detector, &LetturaMarker::Livello::detector);
        return livello == delta.livelli.end() ? QString()
                                              : QStringLiteral("Δ ") + Q(livello->testo);
    }

    const ContenutoQuadro& contenuto_;
    QColor fondo_;
    QColor testo_;
    QColor tenue_;
};

} // namespace

QColor ColoreLeggibile(const QColor& colore, const QColor& fondo) {
    const double verso = Luminanza(fondo) < 0.18 ? 1 : 0;
    QColor c(colore.rgb());
    for (int i = 1; i <= kPassiContrasto && Contrasto(c, fondo) < kContrasto; ++i) {
        const double parte = double(i) / kPassiContrasto;
        const auto mescola = [&](float canale) {
            return static_cast<float>(double(canale) * (1 - parte) + verso * parte);
        };
        c = QColor::fromRgbF(mescola(colore.redF()), mescola(colore.greenF()),
                             mescola(colore.blueF()));
    }
    return c;
}

std::vector<RigaLettura> RigheMarker(const ContenutoQuadro& contenuto, const SetupRecord& setup,
                                     const QPalette& tavolozza) {
    const SweepTrace& traccia = *contenuto.misura.traccia;
    const auto [primo, secondo] = contenuto.marcatori.indice;
    const auto qui = primo ? primo : secondo;
    if (!qui || *qui >= traccia.size() || (secondo && *secondo >= traccia.size()))
        return {};
    const LetturaMarker lettura = LeggiMarker(contenuto.misura, setup, *qui);
    std::optional<LetturaDelta> delta;
    if (primo && secondo)
        delta = LeggiDelta(contenuto.misura, *primo, *secondo);
    Compilatore c(contenuto, tavolozza);
    c.Titolo(Q(lettura.frequenza), delta ? QStringLiteral("Δ ") + Q(delta->frequenza) : QString());
    // Passes say more than the highest of them, which alone has a difference.
    const bool passate =
        !contenuto.strati.empty() && contenuto.strati.front().traccia != contenuto.misura.traccia;
    if (!passate || delta)
        c.Livelli(lettura, delta ? &*delta : nullptr);
    if (!passate || !delta)
        c.AltriStrati(passate ? 0 : 1, traccia[*qui].freqMhz,
                      static_cast<double>(ImpostaUnita(setup.UnitId)));
    c.Fattori(lettura);
    c.Distanze(lettura);
    return std::move(c.righe);
}

QString TestoRighe(const std::vector<RigaLettura>& righe) {
    QStringList pezzi;
    for (const RigaLettura& riga : righe) {
        QStringList parole{riga.nome, riga.valore, riga.delta};
        parole.removeAll(QString());
        pezzi << parole.join(QLatin1Char(' '));
    }
    return pezzi.join(QStringLiteral(", ")).replace(QStringLiteral("Δ"), Tr("delta"));
}

QString TestoStatoMarker(const ContenutoQuadro& contenuto, const SetupRecord& setup) {
    const auto [primo, secondo] = contenuto.marcatori.indice;
    const auto qui = primo ? primo : secondo;
    if (!qui || *qui >= contenuto.misura.traccia->size() || contenuto.strati.empty())
        return {};
    const LetturaMarker lettura = LeggiMarker(contenuto.misura, setup, *qui);
    QStringList pezzi = {Q(lettura.frequenza)};
    for (const auto& livello : lettura.livelli)
        if (const auto d = static_cast<size_t>(livello.detector);
            contenuto.strati.front().detector[d])
            pezzi << QLatin1String(kNomiDetector[d]) + QLatin1Char(' ') + Q(livello.testo);
    const auto unita = static_cast<size_t>(std::clamp<int>(setup.UnitId, 0, 7));
    return pezzi.join(QStringLiteral("   ")) + QLatin1Char(' ') +
           Q(TabellaUnitaGrafico()[unita].testo);
}

QString FrequenzaCampione(const MisuraAperta& misura, size_t indice) {
    return Q(LeggiMarker(misura, {}, indice).frequenza);
}

QString TestoPicco(const MisuraAperta& misura, DetectorKind detector, const Picco& picco,
                   const SetupRecord& setup) {
    const auto unita = static_cast<size_t>(std::clamp<int>(setup.UnitId, 0, 7));
    const double livello =
        picco.livelloCent / 100.0 + static_cast<double>(ImpostaUnita(setup.UnitId));
    return Tr("%1 %2 %3 at %4")
        .arg(QLatin1String(kNomiDetector[static_cast<size_t>(detector)]), Q(TestoFisso(livello, 2)),
             Q(TabellaUnitaGrafico()[unita].testo),
             picco.indice < misura.traccia->size() ? FrequenzaCampione(misura, picco.indice)
                                                   : TestoFrequenza(picco.freqMhz));
}

void DisegnaLegenda(QPainter& p, const QRectF& riga, const std::vector<VoceLegenda>& voci,
                    const QPalette& tavolozza) {
    if (voci.size() < 2)
        return;
    constexpr double kCampione = 18;
    constexpr double kStacco = 6; ///< between the samples and the name
    constexpr double kFra = 20;
    const QFontMetricsF metrica(p.font());
    const double posto = (riga.width() + kFra) / double(voci.size()) - kCampione - kStacco - kFra;
    p.setRenderHint(QPainter::Antialiasing);
    double x = riga.left();
    for (const VoceLegenda& voce : voci) {
        // Up to six thin samples, spread over the height of the name.
        const double passo = riga.height() / double(voce.colori.size() + 1);
        double y = riga.top();
        for (const QColor& colore : voce.colori) {
            y += passo;
            p.setPen(QPen(colore, 2));
            p.drawLine(QPointF(x, y), QPointF(x + kCampione, y));
        }
        x += kCampione + kStacco;
        const QString nome = metrica.elidedText(voce.nome, Qt::ElideRight, posto);
        const double largo = metrica.horizontalAdvance(nome);
        p.setPen(Tinta(tavolozza, voce.viva ? Ruolo::Testo : Ruolo::Tenue));
        p.drawText(QRectF(x, riga.top(), largo + 1, riga.height()),
                   Qt::AlignVCenter | Qt::TextDontClip, nome);
        x += largo + kFra;
    }
}

} // namespace orvane
