#include "ui/ColonnaComuni.h"

#include <algorithm>

#include "data/Cartelle.h"
#include "data/Panels.h"

namespace orvane {
namespace {

constexpr StatoControllo kInCorsa = {false, "The receiver keeps its settings while a sweep runs"};

bool MuoveLaScala(ParComune quale) {
    constexpr std::array kScala = {ParComune::Attenuatore, ParComune::Dinamica, ParComune::RefLevel,
                                   ParComune::Unita, ParComune::AntennaGX2207};
    return std::ranges::find(kScala, quale) != kScala.end();
}

} // namespace

ColonnaComuni::ColonnaComuni(Scrivania& scrivania, QWidget* padre)
    : QScrollArea(padre),
      scrivania_(scrivania), scrittura_{.scrivania = scrivania,
                                        .scritto = [this](ParComune quale) { Scritto(quale); }},
      interno_(new QWidget(this)), frontEnd_(new FrmFrontEnd(scrittura_, interno_)),
      livello_(new FrmLivello(scrittura_, interno_)),
      limiti_(new FrmTabelle(kGenereLimiti, scrittura_, interno_)),
      fattori_(new FrmTabelle(kGenereFattori, scrittura_, interno_)),
      ancillary_(new FrmAncillary(scrittura_, interno_)),
      generatore_(new FrmGenerator(scrittura_, interno_)) {
    setObjectName(QStringLiteral("SSTabComuni"));
    setAccessibleName(tr("Settings"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* colonna = new QVBoxLayout(interno_);
    colonna->setContentsMargins(14, 14, 14, 14);
    colonna->setSpacing(16);
    for (QWidget* gruppo : std::initializer_list<QWidget*>{frontEnd_, livello_, limiti_, fattori_,
                                                           ancillary_, generatore_})
        colonna->addWidget(gruppo);
    colonna->addStretch(1);
    setWidget(interno_);
    viewport()->setBackgroundRole(QPalette::Window);
    interno_->setBackgroundRole(QPalette::Window);
    connect(&file_, &QFileSystemWatcher::directoryChanged, this, [this] {
        Sorveglia();
        CaricaTabelle();
    });
}

/// The directories of the tables; while they are not there, the one that they will be made in.
void ColonnaComuni::Sorveglia() {
    for (const std::string_view percorso :
         {std::string_view(), cartella::kLimits, cartella::kFactors})
        file_.addPath(QString::fromStdString(scrivania_.albero.Host(percorso).string()));
}

void ColonnaComuni::CaricaTabelle() {
    limiti_->Carica();
    fattori_->Carica();
}

/// Before any receiver was met the record stays as it is: a list may only be the wrong one.
RegoleComuni ColonnaComuni::Regole() {
    const CasoComuni caso = {
        .scheda = scheda_,
        .filtri = {.modalita = modoVivo_, .rigaComando = scrivania_.ambiente.RigaComando()}};
    if (!modello_.FwTesto.empty())
        return ControllaParComuni(scrivania_.setup, modello_, caso);
    RegoleComuni regole = DeterminaRegoleComuni(scrivania_.setup, modello_, caso);
    const int tenuta = scrivania_.setup.Attenuator;
    if (regole.attenuatori[regole.rigaAtt] != tenuta)
        regole.rigaAtt =
            static_cast<size_t>(regole.attenuatori.insert(regole.attenuatori.end(), tenuta) -
                                regole.attenuatori.begin());
    return regole;
}

void ColonnaComuni::Carica() {
    const RegoleComuni regole = Regole();
    frontEnd_->Carica(regole);
    livello_->Carica(scheda_);
    CaricaTabelle();
    Sorveglia();
    ancillary_->Carica();
    generatore_->Carica(regole.generatore, ImpostaModelCaps(modello_)[1]);
    if (!inCorsa_)
        return;
    frontEnd_->Blocca(kInCorsa, filtroEAtt_);
    ancillary_->Blocca(kInCorsa);
    generatore_->Blocca(kInCorsa);
}

void ColonnaComuni::Segui(const ReceiverModel& modello, Modalita scheda) {
    if (modello == modello_ && scheda == scheda_)
        return;
    modello_ = modello;
    scheda_ = scheda;
    if (scheda == Modalita::Analyzer || scheda == Modalita::Manual)
        modoVivo_ = scheda;
    const int16_t prima = scrivania_.setup.Attenuator;
    Carica();
    if (scrivania_.setup.Attenuator != prima)
        Q_EMIT ScalaCambiata();
}

void ColonnaComuni::Abilita(bool si, bool filtroEAtt) {
    inCorsa_ = !si;
    filtroEAtt_ = filtroEAtt;
    Carica();
}

void ColonnaComuni::Scritto(ParComune quale) {
    const int16_t prima = scrivania_.setup.Attenuator;
    Carica();
    SalvaPanelEAM(scrivania_, kPannelloEAM);
    if (MuoveLaScala(quale) || scrivania_.setup.Attenuator != prima)
        Q_EMIT ScalaCambiata();
    if (quale == ParComune::LineSwitch)
        Q_EMIT AncillaryCambiato();
    Q_EMIT Cambiato(quale);
}

} // namespace orvane
