// The layers of the picture: the grid, limits and traces over it, and what is painted on top.
#include <algorithm>
#include <cmath>

#include <QPainter>

#include "graph/Limiti.h"
#include "platform/qt/SuperficieQt.h"
#include "records/ColoriGrafico.h"
#include "ui/LBMultiMK.h"
#include "ui/LBVerdetto.h"
#include "ui/MainPict.h"
#include "ui/SBZoomSweep.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// Limits are a little heavier than traces.
constexpr double kPesoLimiti = 1.5;
/// Side of a peak's symbol, logical pixels.
constexpr double kLatoSimbolo = 9;
/// Between the edge of the grid and what lies over it.
constexpr double kOrlo = 10;
constexpr double kFraBadge = 6;

} // namespace

ModoQuadro MainPict::Modo() const {
    return {
        .env = env_, .aspetto = LeggiAspetto(env_), .tavolozza = palette(), .rapporto = Rapporto()};
}

QFont MainPict::CarattereLettura() const {
    QFont carattere = font();
    carattere.setPointSizeF(carattere.pointSizeF() * LeggiAspetto(env_).testoGrafico / 100);
    return carattere;
}

/// Device pixels of the picture, without the scroll bar under it.
QSize MainPict::PuntiQuadro() const {
    const int barra = zoom_.ZoomOn() && haMisura_ ? barra_->sizeHint().height() : 0;
    const QSizeF misura = QSizeF(width(), height() - barra) * Rapporto();
    return {std::max(1, qRound(misura.width())), std::max(1, qRound(misura.height()))};
}

QRectF MainPict::Griglia() const {
    const double r = Rapporto();
    return {griglia_.sinistra / r, griglia_.alto / r, griglia_.larghezza / r, griglia_.altezza / r};
}

RiquadroGriglia MainPict::GrigliaLogica() const {
    const QRectF g = Griglia();
    return {.sinistra = g.left(), .alto = g.top(), .larghezza = g.width(), .altezza = g.height()};
}

void MainPict::Riscala() {
    const QSize punti = PuntiQuadro();
    if (sfondo_.size() != punti)
        sfondo_ = QImage(punti, QImage::Format_RGB32);
    sfondoValido_ = false;
    QPainter p(&sfondo_);
    p.setFont(font());
    SuperficieQt superficie(p, punti.width(), punti.height());
    griglia_ = DisponiGriglia(superficie, TinteQuadro(Modo(), font()));
    const CampoMhz campo = CampoMostrato();
    scala_ = SetScaleGraph(setup_, campo.start, campo.stop, true, griglia_.larghezza, 0);
    tracce_.ImpostaLarghezza(std::max(1, static_cast<int>(griglia_.larghezza)));
}

/// Scroll bar under the graph, badges top right, and the reading where it hides no marker.
void MainPict::DisponiFigli() {
    const QRectF griglia = Griglia();
    const int alta = barra_->sizeHint().height();
    barra_->Segui(zoom_);
    barra_->setGeometry(qRound(griglia.left()), height() - alta, qRound(griglia.width()), alta);
    barra_->setVisible(haMisura_ && zoom_.ZoomOn());
    double y = griglia.top() + kOrlo;
    QRectF occupato;
    for (LBVerdetto* badge : badge_) {
        badge->setFont(CarattereLettura());
        badge->resize(badge->sizeHint());
        badge->move(qRound(griglia.right() - kOrlo) - badge->width(), qRound(y));
        occupato |= QRectF(badge->geometry());
        y += badge->height() + kFraBadge;
    }
    std::vector<double> evita;
    if (!haMisura_ && puntataX_ >= 0)
        evita.push_back(griglia.left() + puntataX_ / Rapporto());
    for (const auto& indice : contenuto_.marcatori.indice)
        if (indice && *indice < Traccia().size())
            if (const auto x = PostoX(Traccia()[*indice].freqMhz))
                evita.push_back(*x);
    lettura_->Posiziona({.campo = griglia.adjusted(kOrlo, kOrlo, -kOrlo, -kOrlo),
                         .evita = std::move(evita),
                         .occupato = occupato,
                         .nomi = nomiLimiti_,
                         .sotto = [this](const QRectF& parte) { return TracceSotto(parte); }});
}

/// How much of the measure's traces lies in a part of the picture, logical pixels in a square.
double MainPict::TracceSotto(const QRectF& parte) {
    if (!haMisura_)
        return 0;
    misurate_.Vista(CampoMostrato(), std::max(1, static_cast<int>(griglia_.larghezza)));
    double area = 0;
    for (size_t i = 0; i < contenuto_.strati.size(); ++i)
        for (size_t d = 0; d < kNumDetector; ++d)
            if (const ColonneTraccia* traccia = misurate_.Traccia(i, d); traccia && mostrati_[d])
                area += AreaSotto(*traccia, parte);
    return area;
}

double MainPict::AreaSotto(const ColonneTraccia& traccia, const QRectF& parte) const {
    const auto colonna = [&](double x) {
        return std::clamp(static_cast<int>(x * Rapporto() - griglia_.sinistra), 0,
                          traccia.Quante());
    };
    // In levels, so that a column costs a comparison or two.
    const double alPixel = (scala_.alto - scala_.basso) / std::max(1.0, Griglia().height());
    const auto livello = [&](double y) {
        return scala_.alto - (y - Griglia().top()) * alPixel - scala_.UnitOffset * 100;
    };
    const double alto = livello(parte.top());
    const double basso = livello(parte.bottom());
    double area = 0;
    const int fine = colonna(parte.right());
    for (int k = colonna(parte.left()); k < fine; ++k)
        if (const auto& c = traccia.Colonna(k); !c.vuota)
            area += std::max(0.0, std::min<double>(c.massimo, alto) -
                                      std::max(c.minimo - alPixel, basso));
    return area / alPixel / Rapporto();
}

void MainPict::DisegnaSfondo() {
    QPainter p(&sfondo_);
    p.setFont(font());
    const ModoQuadro modo = Modo();
    const int unita = std::clamp<int>(setup_.UnitId, 0, 7);
    DisegnaGrigliaQuadro(p, sfondo_.size(), modo, TinteQuadro(modo, font()), scala_, griglia_,
                         TabellaUnitaGrafico()[size_t(unita)].testo);
    sfondoValido_ = true;
    stratoValido_ = false;
}

void MainPict::DisegnaStratoTracce() {
    strato_ = sfondo_.copy();
    QPainter p(&strato_);
    p.setFont(font());
    {
        SuperficieQt superficie(p, strato_.width(), strato_.height());
        p.setRenderHint(QPainter::Antialiasing, Modo().aspetto.lisce != 0);
        if (haMisura_)
            DisegnaTracceMisura(superficie);
        else
            DisegnaTracceCorsa(superficie);
        p.setRenderHint(QPainter::Antialiasing);
        DisegnaLimiti(superficie);
        ScriviNomiLimiti(superficie);
        DisegnaSimboli(superficie);
    }
    p.scale(Rapporto(), Rapporto());
    p.setFont(CarattereLettura());
    const QRectF griglia = Griglia();
    DisegnaLegenda(p, {griglia.left(), 0, griglia.width(), griglia.top()}, VociLegenda(),
                   palette());
    stratoValido_ = true;
}

void MainPict::DisegnaLimiti(Superficie& superficie) {
    for (const LimiteQuadro& limite : contenuto_.limiti) {
        Penna penna = PennaTraccia(Modo(), limite.colore);
        penna.larghezza *= kPesoLimiti;
        DisegnaLimite(superficie, scala_, griglia_, limite.limite, limite.soloFra, penna);
    }
}

/// Over the traces, and off the badges. The reading then keeps off the names.
void MainPict::ScriviNomiLimiti(Superficie& superficie) {
    const double r = Rapporto();
    const size_t primi = badge_.size();
    std::vector<RettangoloTesto> occupati;
    for (const LBVerdetto* badge : badge_) {
        const QRect b = badge->geometry();
        occupati.push_back({b.left() * r, b.top() * r, b.right() * r, b.bottom() * r});
    }
    const QColor fondo = Tinta(palette(), Ruolo::Grafico);
    for (const LimiteQuadro& limite : contenuto_.limiti) {
        const QColor c = ColoreLeggibile(ColoreQt(limite.colore), fondo);
        ScriviNomeLimite(superficie, scala_, griglia_, limite.limite, limite.nome,
                         Rgb(c.red(), c.green(), c.blue()),
                         TinteQuadro(Modo(), font()).altezzaTesto, occupati, {},
                         Rgb(fondo.red(), fondo.green(), fondo.blue()));
    }
    std::vector<QRectF> nomi;
    for (const RettangoloTesto& o : std::span(occupati).subspan(primi))
        nomi.emplace_back(QPointF(o.sinistra, o.alto) / r, QPointF(o.destra, o.basso) / r);
    if (std::exchange(nomiLimiti_, nomi) != nomi)
        QMetaObject::invokeMethod(this, &MainPict::DisponiFigli, Qt::QueuedConnection);
}

void MainPict::DisegnaTracceCorsa(Superficie& superficie) {
    const ModoQuadro modo = Modo();
    for (const TraccePassate::Strato* strato : tracce_.DaDisegnare())
        // Peak lies highest: it is drawn first, so that it hides none of the others.
        for (size_t d = 0; d < kNumDetector; ++d) {
            const ColonneTraccia* traccia = strato->deposito.Traccia(static_cast<DetectorKind>(d));
            if (!traccia || !mostrati_[d])
                continue;
            const QColor c = ColoreStrato(*strato, d);
            DisegnaTraccia(superficie, scala_, griglia_, *traccia,
                           PennaTraccia(modo, Rgb(c.red(), c.green(), c.blue())));
        }
}

/// The measure's own trace last, over the others.
void MainPict::DisegnaTracceMisura(Superficie& superficie) {
    const ModoQuadro modo = Modo();
    misurate_.Vista(CampoMostrato(), std::max(1, static_cast<int>(griglia_.larghezza)));
    for (size_t i = contenuto_.strati.size(); i-- > 0;)
        for (size_t d = 0; d < kNumDetector; ++d)
            if (const ColonneTraccia* traccia = misurate_.Traccia(i, d); traccia && mostrati_[d])
                DisegnaTraccia(superficie, scala_, griglia_, *traccia,
                               PennaTraccia(modo, contenuto_.strati[i].colori[d]));
}

void MainPict::DisegnaSimboli(Superficie& superficie) {
    if (haMisura_ && !contenuto_.strati.empty())
        DisegnaPicchi(superficie, scala_, griglia_, contenuto_.picchi,
                      contenuto_.strati.front().colori, kLatoSimbolo * Rapporto());
}

QColor MainPict::ColoreStrato(const TraccePassate::Strato& strato, size_t detector) const {
    return tracce_.Sfumata(strato,
                           ColoreQt(ColoreTraccia(env_, static_cast<DetectorKind>(detector))),
                           Tinta(palette(), Ruolo::Grafico));
}

/// Passes of a run, or the measures on show, each with the shades of its detectors.
std::vector<VoceLegenda> MainPict::VociLegenda() const {
    std::vector<VoceLegenda> voci;
    for (const StratoQuadro& strato : contenuto_.strati) {
        VoceLegenda voce{.nome = Q(strato.nome)};
        for (size_t d = 0; d < kNumDetector; ++d)
            if (strato.detector[d] && mostrati_[d])
                voce.colori.push_back(ColoreQt(strato.colori[d]));
        voci.push_back(std::move(voce));
    }
    if (haMisura_)
        return voci;
    for (const TraccePassate::Strato* strato : tracce_.Visibili()) {
        VoceLegenda voce{.nome = strato->nome, .viva = &strato->deposito == &Deposito()};
        for (size_t d = 0; d < kNumDetector; ++d)
            if (strato->deposito.Traccia(static_cast<DetectorKind>(d)) && mostrati_[d])
                voce.colori.push_back(ColoreStrato(*strato, d));
        voci.push_back(std::move(voce));
    }
    return voci;
}

void MainPict::DisegnaMarker(QPainter& p) {
    p.setFont(CarattereLettura());
    SuperficieQt superficie(p, width(), sfondo_.height() / Rapporto());
    const QColor fondo = Tinta(palette(), Ruolo::Grafico);
    for (size_t i = contenuto_.marcatori.indice.size(); i-- > 0;) {
        const auto indice = contenuto_.marcatori.indice[i];
        if (!indice || *indice >= Traccia().size())
            continue;
        const QColor c = ColoreLeggibile(ColoreQt(env_.GraphColors[colore::kMarcatori + i]), fondo);
        DisegnaMarkerSweep(
            superficie, scala_, GrigliaLogica(), contenuto_.misura, DetectorMisura(), *indice,
            static_cast<int>(i) + 1,
            {.colore = Rgb(c.red(), c.green(), c.blue()), .larghezza = i == attivo_ ? 1.5 : 1},
            TinteQuadro(Modo(), font()).altezzaTesto / Rapporto());
    }
}

/// Height in the picture of a level of the axis, hundredths of a dB.
double MainPict::AltezzaDi(double cent) const {
    const double parte = (scala_.alto - cent) / std::max(1.0, scala_.alto - scala_.basso);
    return Griglia().top() + parte * Griglia().height();
}

/// A ring round the symbol under the pointer.
void MainPict::DisegnaSorvolo(QPainter& p) {
    if (!sorvolato_)
        return;
    const auto d = static_cast<size_t>(sorvolato_->detector);
    if (sorvolato_->quale >= contenuto_.picchi[d].size())
        return;
    const Picco& picco = contenuto_.picchi[d][sorvolato_->quale];
    const auto x = PostoX(picco.freqMhz);
    if (!x)
        return;
    const QPointF cima(*x, AltezzaDi(picco.livelloCent + scala_.UnitOffset * 100));
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Tinta(palette(), Ruolo::Accento), 2));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(cima - QPointF(0, kLatoSimbolo / 2), kLatoSimbolo, kLatoSimbolo);
}

/// Of a run: the line that the reading belongs to.
void MainPict::DisegnaPuntatore(QPainter& p) {
    if (haMisura_ || puntataX_ < 0 || tracce_.Vuoto())
        return;
    const double x = Griglia().left() + puntataX_ / Rapporto();
    p.setPen(QPen(Tinta(palette(), Ruolo::Tenue), 1, Qt::DashLine));
    p.drawLine(QPointF(x, Griglia().top()), QPointF(x, Griglia().bottom()));
}

void MainPict::DisegnaRiquadroZoom(QPainter& p) {
    if (gesto_ != Gesto::Riquadro)
        return;
    const QRectF griglia = Griglia();
    const auto [a, b] = std::minmax({inizioX_, oraX_});
    const QRectF riquadro(a, griglia.top(), b - a, griglia.height());
    QColor tinta = ColoreQt(env_.GraphColors[colore::kZoom]);
    p.setPen(QPen(tinta, 1));
    tinta.setAlphaF(0.16f);
    p.setBrush(tinta);
    p.drawRect(riquadro);
    p.setFont(CarattereLettura());
    ScriviEtichettaZoom(p, a, Qt::AlignRight);
    ScriviEtichettaZoom(p, b, Qt::AlignLeft);
}

/// The frequency at an edge of the zoom box, outside of it where the grid has room.
void MainPict::ScriviEtichettaZoom(QPainter& p, double x, Qt::Alignment lato) {
    const QRectF griglia = Griglia();
    const QFontMetricsF metrica(p.font());
    const QString testo = TestoFrequenza(XToFreq(scala_, x * Rapporto() - griglia_.sinistra));
    QRectF posto(0, griglia.bottom() - metrica.height() - 16, metrica.horizontalAdvance(testo) + 14,
                 metrica.height() + 6);
    posto.moveLeft(lato == Qt::AlignRight ? x - posto.width() - 4 : x + 4);
    posto.moveLeft(std::clamp(posto.left(), griglia.left() + 2,
                              std::max(griglia.left() + 2, griglia.right() - posto.width() - 2)));
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Tinta(palette(), Ruolo::BordoCampo), 1));
    p.setBrush(Tinta(palette(), Ruolo::Velo));
    p.drawRoundedRect(posto, 4, 4);
    p.setPen(Tinta(palette(), Ruolo::Testo));
    p.drawText(posto, Qt::AlignCenter, testo);
}

void MainPict::DisegnaInvito(QPainter& p) {
    const bool vuoto = haMisura_ ? Traccia().empty() : tracce_.Vuoto();
    if (invito_.isEmpty() || !vuoto)
        return;
    p.setFont(font());
    p.setPen(Tinta(palette(), Ruolo::Tenue));
    p.drawText(rect().adjusted(60, 0, -30, 0), Qt::AlignCenter | Qt::TextWordWrap, invito_);
}

void MainPict::DisegnaFuoco(QPainter& p) {
    if (!hasFocus())
        return;
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Tinta(palette(), Ruolo::Accento), 2));
    const double alto = sfondo_.height() / Rapporto();
    p.drawRect(QRectF(0, 0, width(), alto).adjusted(1, 1, -1, -1));
}

void MainPict::paintEvent(QPaintEvent* evento) {
    if (sfondo_.size() != PuntiQuadro()) {
        Riscala();
        QMetaObject::invokeMethod(this, &MainPict::DisponiFigli, Qt::QueuedConnection);
    }
    if (!sfondoValido_)
        DisegnaSfondo();
    if (!stratoValido_)
        DisegnaStratoTracce();
    QPainter p(this);
    const double r = Rapporto();
    if (const int alto = static_cast<int>(sfondo_.height() / r); alto < height())
        p.fillRect(0, alto, width(), height() - alto, Tinta(palette(), Ruolo::Finestra));
    p.save();
    p.setClipRect(evento->rect());
    p.scale(1 / r, 1 / r);
    p.drawImage(0, 0, strato_);
    p.restore();
    DisegnaMarker(p);
    DisegnaSorvolo(p);
    DisegnaPuntatore(p);
    DisegnaRiquadroZoom(p);
    DisegnaInvito(p);
    DisegnaFuoco(p);
}

} // namespace orvane
