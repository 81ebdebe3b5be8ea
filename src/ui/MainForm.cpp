#include "ui/MainForm.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

#include "base/Interruttori.h"
#include "base/Versione.h"
#include "data/Panels.h"
#include "link/Protocollo.h"
#include "records/ImpostazioniReport.h"
#include "setup/EsameTabella.h"
#include "ui/FrmRemoteLink.h"
#include "ui/InitForm.h"
#include "ui/Tema.h"
#include "ui/Testi.h"
#include "ui/VociArchivio.h"

namespace orvane {
namespace {

constexpr int kTimerTaskMs = 50;
constexpr int kSchede = 5;

} // namespace

MainForm::MainForm(Scrivania& scrivania, ScanRecord& scan) : scrivania_(scrivania), scan_(scan) {
    setObjectName(QStringLiteral("MainForm"));
    setWindowIcon(IconaProgramma());
    CreaMenu(*menuBar(), {.segno = [this](auto segno, bool si) { CambiaSegno(segno, si); },
                          .remoteLink = [this] { ApriFrmRemoteLink(); },
                          .esci = [this] { close(); },
                          .guida = [this] { MostraGuida(); },
                          .tabelle = [this](AzioneMenu azione) { ApriTabelle(azione); },
                          .finestra = [this](AzioneMenu azione) { ApriFinestra(azione); }});
    CreaFinestra();
    CreaScorciatoie();
    CollegaPannelli();
    timerTask_.setObjectName(QStringLiteral("TimerTask"));
    timerTask_.setSingleShot(true);
    timerTask_.setInterval(kTimerTaskMs);
    connect(&timerTask_, &QTimer::timeout, this, [this] { TimerTask_Timer(*console_); });
    resize(1440, 900);
}

void MainForm::Collega(Console& console, CatalogoPorte& catalogo) {
    console_ = &console;
    catalogo_ = &catalogo;
    sweep_->ImpostaEsame([this] {
        const Ricevitore& r = console_->ricevitore;
        return EsaminaTabella({.tabella = scan_.Righe,
                               .modello = r.modello,
                               .caps = r.caps,
                               .setup = scrivania_.setup,
                               .albero = scrivania_.albero,
                               .rigaComando = scrivania_.ambiente.RigaComando()});
    });
}

void MainForm::CreaFinestra() {
    auto* centro = new QWidget(this);
    auto* colonna = new QVBoxLayout(centro);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    stato_ = new RigaStato(centro);
    colonna->addWidget(CreaFilo(centro));
    colonna->addWidget(CreaBarraModi());
    colonna->addWidget(CreaFilo(centro));
    colonna->addWidget(CreaCentro(), 1);
    colonna->addWidget(CreaFilo(centro));
    colonna->addWidget(stato_);
    setCentralWidget(centro);
}

QWidget* MainForm::CreaBarraModi() {
    auto* barra = new QWidget(this);
    schede_ = new QTabBar(barra);
    Nomina(schede_, QStringLiteral("SSTabMode"), tr("Modes"), {});
    schede_->setDrawBase(false);
    schede_->setExpanding(false);
    for (int i = 0; i < kSchede; ++i) {
        schede_->addTab(TestoModalita(static_cast<Modalita>(i)));
        schede_->setTabToolTip(i, QStringLiteral("Ctrl+%1").arg(i + 1));
    }
    chipModello_ = new Etichetta(QStringLiteral("LBModello"), tr("Receiver"), barra);
    chipLink_ = new Etichetta(QStringLiteral("LBLink"), tr("Link"), barra);
    chipBatteria_ = new Etichetta(QStringLiteral("LBBatteria"), tr("Battery"), barra);
    auto* riga = new QHBoxLayout(barra);
    riga->setContentsMargins(10, 6, 12, 6);
    riga->setSpacing(8);
    riga->addWidget(schede_);
    riga->addStretch(1);
    riga->addWidget(chipModello_);
    riga->addWidget(chipLink_);
    riga->addWidget(chipBatteria_);
    return barra;
}

QWidget* MainForm::CreaCentro() {
    auto* centro = new QSplitter(Qt::Horizontal, this);
    centro->setObjectName(QStringLiteral("SplitCentro"));
    centro->setChildrenCollapsible(false);
    archivio_ = new PannelloArchivio(scrivania_, centro);
    auto* mezzo = new QWidget(centro);
    pagine_ = new QStackedWidget(mezzo);
    auto* conPiede = new QSplitter(Qt::Vertical, pagine_);
    conPiede->setObjectName(QStringLiteral("SplitPiede"));
    conPiede->setChildrenCollapsible(false);
    quadro_ = new MainPict(scrivania_.env, scrivania_.setup, conPiede);
    if (Acceso(scrivania_.ambiente.RigaComando(), interruttore::kNoWheel))
        quadro_->SpegniRotella();
    piede_ = new QStackedWidget(conPiede);
    sweep_ = new PannelloSweep(scrivania_, scan_, piede_);
    piedeArchivio_ = new PiedeArchivio(piede_);
    piede_->addWidget(sweep_);
    piede_->addWidget(piedeArchivio_);
    conPiede->addWidget(quadro_);
    conPiede->addWidget(piede_);
    conPiede->setStretchFactor(0, 3);
    conPiede->setStretchFactor(1, 1);
    conPiede->setSizes({500, 310});
    ricevitore_ = new PaginaRicevitore(pagine_);
    pagine_->addWidget(conPiede);
    pagine_->addWidget(ricevitore_);
    striscia_ = new Striscia(mezzo);
    auto* pila = new QGridLayout(mezzo);
    pila->setContentsMargins(0, 0, 0, 0);
    pila->addWidget(pagine_, 0, 0);
    auto* sopra = new QVBoxLayout;
    sopra->setContentsMargins(60, 14, 30, 0);
    sopra->addWidget(striscia_);
    sopra->addStretch(1);
    pila->addLayout(sopra, 0, 0);
    CreaAvvisiQuadro();
    comuni_ = new ColonnaComuni(scrivania_, centro);
    const int m = fontMetrics().averageCharWidth();
    archivio_->setMinimumWidth(28 * m);
    comuni_->setMinimumWidth(33 * m);
    centro->addWidget(archivio_);
    centro->addWidget(mezzo);
    centro->addWidget(comuni_);
    centro->setStretchFactor(1, 1);
    centro->setSizes({38 * m, 200 * m, 38 * m});
    regia_ = std::make_unique<RegiaMisura>(scrivania_,
                                           RegiaMisura::Scena{.quadro = *quadro_,
                                                              .picchi = piedeArchivio_->Picchi(),
                                                              .verdetto = archivio_->Verdetto()});
    return centro;
}

void MainForm::CreaScorciatoie() {
    for (int i = 0; i < kSchede; ++i) {
        auto* tasti = new QShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(i + 1)), this);
        connect(tasti, &QShortcut::activated, this, [this, i] {
            if (schede_->isEnabled())
                ClickScheda(i);
        });
    }
}

void MainForm::CollegaPannelli() {
    connect(schede_, &QTabBar::currentChanged, this, &MainForm::ClickScheda);
    connect(sweep_, &PannelloSweep::Esegui, this, &MainForm::Esegui);
    connect(sweep_, &PannelloSweep::Pausa, this, &MainForm::Pausa);
    connect(sweep_, &PannelloSweep::TabellaCambiata, this, &MainForm::MostraAsseTabella);
    connect(comuni_, &ColonnaComuni::ScalaCambiata, quadro_, &MainPict::DrawGrid);
    connect(comuni_, &ColonnaComuni::AncillaryCambiato, sweep_, &PannelloSweep::CambiaAncillary);
    connect(comuni_, &ColonnaComuni::Cambiato, this, [this](ParComune quale) {
        ChiediCambio(console_->corsa.stato, {quale, comuni_->ModoVivo()});
        SeguiColonna(quale);
    });
    CollegaArchivio();
    CollegaQuadro();
    for (const auto* divisore : findChildren<QSplitter*>())
        connect(divisore, &QSplitter::splitterMoved, &attesaMisure_, qOverload<>(&QTimer::start));
    attesaMisure_.setSingleShot(true);
    attesaMisure_.setInterval(400);
    connect(&attesaMisure_, &QTimer::timeout, this, &MainForm::SalvaMisurePannelli);
    connect(quadro_, &MainPict::Puntata, this, [this](double mhz, double livello) {
        if (!console_->corsa.stato.SweepInCorso)
            stato_->MostraFreqLivello(mhz, livello, Unita());
    });
    connect(quadro_, &MainPict::PuntataPersa, this, [this] {
        if (!console_->corsa.stato.SweepInCorso)
            stato_->NascondiFreqLivello();
    });
    connect(striscia_, &Striscia::Lampo, this, [this] { TimerError_Timer(console_->ricevitore); });
    connect(striscia_, &Striscia::Abbandona, this, [this] { ClickCMBAbort(*console_); });
}

void MainForm::Carica() {
    AggiornaSegni(*menuBar(), scrivania_.setup);
    SegnaMenuReport();
    comuni_->Carica();
    sweep_->Carica();
    piedeArchivio_->Picchi().ImpostaQuanti(NumPicchi(scrivania_.env));
    ApplicaAspetto();
    AggiornaEtichette();
}

void MainForm::MostraAvvisi(const std::vector<std::string>& avvisi) {
    QStringList righe;
    for (const auto& avviso : avvisi)
        righe << Q(avviso);
    if (const QString nomi = NomiIncompiute(scrivania_.albero); !nomi.isEmpty())
        righe << tr("Incomplete measures: %1").arg(nomi);
    if (!righe.isEmpty())
        stato_->MostraMessaggio(righe.join(QStringLiteral("; ")));
}

void MainForm::ClickScheda(int scheda) {
    const auto nuova = static_cast<Modalita>(scheda);
    ClickSSTabMode(*console_, nuova);
    // Where something is under way the change comes later: until then the old tab is the one shown.
    MostraScheda(console_->stato.modalita);
}

void MainForm::CambiaSegno(int16_t SetupRecord::*segno, bool si) {
    CambiaPreferenza([segno, si](SetupRecord& setup) { setup.*segno = si ? -1 : 0; });
    if (segno == &SetupRecord::OrderForDate)
        RinnovaElenco();
    if (segno == &SetupRecord::SymbolOnPeaks)
        MostraInVista(true);
}

QString MainForm::DescrizioneLink() const {
    const Porta& porta = console_->ricevitore.porta;
    if (porta.fisso)
        return Q(porta.fisso->descrizione);
    return porta.link.TipoLink == 1 ? tr("USB") : tr("COM %1").arg(porta.link.NumeroCom);
}

void MainForm::ApriFrmRemoteLink() {
    Porta& porta = console_->ricevitore.porta;
    if (porta.Aperta() || console_->corsa.stato.SweepInCorso)
        return stato_->MostraMessaggio(tr("The link is in use; leave the mode first"));
    FrmRemoteLink finestra(scrivania_, porta.link, *catalogo_,
                           porta.fisso ? Q(porta.fisso->descrizione) : QString(), this);
    connect(&finestra, &FrmRemoteLink::Cambiato, this, &MainForm::AggiornaEtichette);
    finestra.exec();
}

void MainForm::MostraGuida() {
    QFile licenze(QStringLiteral(":/orvane/licenze.txt"));
    licenze.open(QIODevice::ReadOnly);
    QMessageBox scatola(this);
    scatola.setObjectName(QStringLiteral("FrmAbout"));
    scatola.setWindowTitle(tr("About"));
    scatola.setIconPixmap(windowIcon().pixmap(QSize(64, 64), devicePixelRatioF()));
    scatola.setText(QStringLiteral("%1\n%2").arg(QLatin1String(kNomeProgramma), Q(RelSoftware())));
    scatola.setInformativeText(QString::fromUtf8(licenze.readAll()));
    scatola.exec();
}

void MainForm::closeEvent(QCloseEvent* evento) {
    evento->ignore();
    ChiediUscita(*console_);
}

} // namespace orvane
