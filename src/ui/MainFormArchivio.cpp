// What the main window does about the archive and the measure on show.
#include <algorithm>

#include <QInputDialog>
#include <QMenuBar>

#include "data/CaricaSalva.h"
#include "data/FileTabelle.h"
#include "data/Panels.h"
#include "graph/BloccoImpostazioni.h"
#include "records/ImpostazioniReport.h"
#include "ui/MainForm.h"
#include "ui/SalvaImmagine.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// Settings of the column that change what is read of a measure.
bool CambiaLettura(ParComune quale) {
    return quale == ParComune::Limite || quale == ParComune::Fattore || quale == ParComune::Unita;
}

QString ParoleMisura(const StatoArchivio& a) {
    const SetupRecord& setup = a.misura.header.Setup;
    QStringList parole = {Q(TitoloArchivio(a)), Q(a.misura.date.ultima)};
    if (!setup.ModelText.empty())
        parole
            << QStringLiteral("%1 FW %2").arg(Q(setup.ModelText), TestoFirmware(setup.FwRelease));
    parole.removeAll(QString());
    return parole.join(QStringLiteral(" · "));
}

QString InvitoMisura(const StatoArchivio& a) {
    const QString nome = Q(a.misura.nome);
    if (nome.isEmpty())
        return QObject::tr("No measure is open");
    if (!a.misura.leggibile)
        return QObject::tr("%1 cannot be read").arg(nome);
    return a.misura.traccia->empty() ? QObject::tr("%1 holds no samples").arg(nome) : QString();
}

} // namespace

StatoArchivio& MainForm::InVista() {
    return console_->stato.modalita == Modalita::Sweep ? dopoCorsa_ : console_->stato.archivio;
}

void MainForm::CollegaArchivio() {
    attesa_.setSingleShot(true);
    attesa_.setInterval(60);
    connect(archivio_, &PannelloArchivio::MisuraScelta, &attesa_, qOverload<>(&QTimer::start));
    connect(&attesa_, &QTimer::timeout, this, [this] { ApriMisuraScelta(Q(archivio_->Scelta())); });
    connect(archivio_, &PannelloArchivio::DetectorCambiato, this, [this](int detector) {
        if (ScegliDetectorArchivio(scrivania_, InVista(), detector))
            MostraInVista(true);
    });
    // Queued: the tree and the list are made anew by what follows.
    connect(
        archivio_, &PannelloArchivio::NodoScelto, this,
        [this](qulonglong nodo) {
            if (ClickTreeViewFileSweep(scrivania_, InVista(), nodo))
                MostraInVista(true);
        },
        Qt::QueuedConnection);
    connect(
        archivio_, &PannelloArchivio::SovrappostaAccesa, this,
        [this](Sovrapposte::Genere genere, const QString& nome, bool si) {
            regia_->Accendi(genere, S(nome), si);
            MostraInVista(true);
        },
        Qt::QueuedConnection);
    connect(archivio_, &PannelloArchivio::SovrappostaTolta, this, &MainForm::TogliStrato,
            Qt::QueuedConnection);
    connect(archivio_, &PannelloArchivio::Chiesta, this, &MainForm::Chiesta);
    connect(archivio_, &PannelloArchivio::RinnovoChiesto, this, &MainForm::RinnovaElenco);
    PannelloVerdetto& verdetto = archivio_->Verdetto();
    connect(&verdetto, &PannelloVerdetto::Scelto, this, [this](int slot, int detector) {
        CambiaPreferenza([=](SetupRecord& setup) {
            setup.VerdictDetector[static_cast<size_t>(slot)] = static_cast<int16_t>(detector);
        });
        MostraInVista(true);
    });
    connect(&verdetto, &PannelloVerdetto::Incertezza, this, [this](float dB) {
        CambiaPreferenza([dB](SetupRecord& setup) { setup.MeasUncertainty = dB; });
        MostraInVista(true);
    });
    connect(&verdetto, &PannelloVerdetto::Rifiutata, stato_, &RigaStato::MostraMessaggio);
}

void MainForm::CollegaQuadro() {
    PannelloPicchi& picchi = piedeArchivio_->Picchi();
    connect(&picchi, &PannelloPicchi::Scelto, this,
            [this](qulonglong indice) { quadro_->MuoviMarker(0, indice); });
    connect(&picchi, &PannelloPicchi::QuantiCambiati, this, &MainForm::CambiaNumPicchi);
    connect(&picchi, &PannelloPicchi::TabellaFrequenze, this, &MainForm::SalvaTabellaPicchi);
    connect(&picchi, &PannelloPicchi::ReportChiesto, this,
            [this] { ApriReport(AzioneMenu::Report1); });
    connect(piedeArchivio_, &PiedeArchivio::PaginaScelta, this,
            [this](PiedeArchivio::Pagina p) { MostraPicchi(p == PiedeArchivio::Pagina::Picchi); });
    connect(quadro_, &MainPict::MarkerMosso, this, [&picchi](int quale, qulonglong indice) {
        if (quale == 0)
            picchi.Evidenzia(indice);
    });
    connect(quadro_, &MainPict::PiccoScelto, this,
            [&picchi](int, qulonglong indice) { picchi.Evidenzia(indice); });
    connect(quadro_, &MainPict::PiccoSorvolato, &picchi, &PannelloPicchi::ShowPictMouseHP);
    connect(quadro_, &MainPict::LetturaCambiata, stato_, &RigaStato::MostraMarker);
    connect(quadro_, &MainPict::SintonizzaManuale, this, &MainForm::SintonizzaManuale);
    connect(quadro_, &MainPict::MisuraSuccessiva, this, [this](int verso) {
        if (console_->stato.modalita == Modalita::SweepsArchive)
            archivio_->Passo(verso);
    });
}

void MainForm::EntraArchivio() {
    MostraPannelli(true, false, false);
    AbilitaVociPannello(*menuBar());
    const StatoArchivio& a = console_->stato.archivio;
    archivio_->MostraElenco(a.elenco);
    archivio_->Scegli(a.misura.nome);
    attesa_.stop();
    comuni_->Carica();
    MostraPicchi(conPicchi_);
}

void MainForm::EntraSweep() {
    MostraPannelli(false, true, false);
    AbilitaVociPannello(*menuBar());
    dopoCorsa_ = {};
    regia_->Togli();
    quadro_->MostraDetector({true, true, true, true, true, true});
    quadro_->ImpostaInvito(tr("The sweep is drawn here while it runs"));
    sweep_->Carica();
    stato_->CancellaBarre();
    quadro_->IniziaTraccia(0, 0);
    MostraAsseTabella();
    PreparaCurveCorsa(scan_.Righe);
    MostraVociMisura();
}

void MainForm::ApriMisuraScelta(const QString& nome) {
    StatoArchivio& a = console_->stato.archivio;
    if (!a.attivo)
        return;
    const EsitoMostra esito = VisualizzaDatiSweepata(scrivania_, a, S(nome));
    if (esito.elencoCambiato)
        archivio_->MostraElenco(a.elenco);
    archivio_->Scegli(a.misura.nome);
    attesa_.stop();
    comuni_->Carica();
    MostraInVista(false);
}

/// The list follows the disk; a measure on show that is gone gives way to the next.
void MainForm::RinnovaElenco() {
    StatoArchivio& a = console_->stato.archivio;
    if (!a.attivo)
        return;
    const std::string prima = a.misura.nome;
    const bool stessa = RinnovaArchivio(scrivania_, a).mostrata == prima;
    archivio_->MostraElenco(a.elenco);
    archivio_->Scegli(a.misura.nome);
    if (!stessa)
        comuni_->Carica();
    MostraInVista(stessa);
}

/// Picture and everything beside it, by what is open.
void MainForm::MostraInVista(bool tieni) {
    const StatoArchivio& a = InVista();
    quadro_->ImpostaInvito(console_->stato.modalita == Modalita::Sweep
                               ? tr("The sweep is drawn here while it runs")
                               : InvitoMisura(a));
    if (console_->stato.modalita != Modalita::Sweep || a.Mostrata())
        regia_->Mostra(a, tieni);
    if (a.attivo) {
        archivio_->MostraMisura(a, *regia_);
        piedeArchivio_->MostraRighe(a.Mostrata() ? a.misura.header.Scan.Righe : ScanTable{},
                                    a.misura.header.Setup);
        stato_->MostraMessaggio(ParoleMisura(a));
    }
    MostraVociMisura();
}

void MainForm::MostraVociMisura() {
    const StatoArchivio& a = InVista();
    const AbilitazioniArchivio abilita = ControllaAbilitazioniArchivio(a);
    const bool ferma = !console_->corsa.stato.SweepInCorso;
    AbilitaVociMisura(*menuBar(), {.immagine = ferma && a.Mostrata() && quadro_->HaMisura(),
                                   .picchi = ferma && abilita.CHKShowHighestPeaks,
                                   .simboli = abilita.MNUSymbolOnPeaks,
                                   .archivio = a.attivo && a.Mostrata()});
}

/// A setting of the column that the measure on show is read by.
void MainForm::SeguiColonna(ParComune quale) {
    if (!CambiaLettura(quale))
        return;
    StatoArchivio& a = InVista();
    if (console_->corsa.stato.SweepInCorso) {
        quadro_->ImpostaLimiti(LimitiDellaCorsa(scrivania_, scan_.Righe));
        return;
    }
    if (!a.Mostrata()) {
        if (console_->stato.modalita == Modalita::Sweep)
            PreparaCurveCorsa(scan_.Righe);
        return;
    }
    RinnovaTabelle(scrivania_, a);
    MostraInVista(true);
}

void MainForm::Chiesta(AzioneMisura azione, const QString& nome) {
    if (azione == AzioneMisura::Cancella)
        return Elimina(nome);
    if (azione == AzioneMisura::Confronta)
        return ConfrontaCon(nome);
    if (azione == AzioneMisura::Sovrapponi)
        return SovrapponiA(nome);
    if (S(nome) != console_->stato.archivio.misura.nome)
        ApriMisuraScelta(nome);
    RedoDaMeasureAScanTab(*console_);
}

/// One of the other measures; empty where the user turns back.
QString MainForm::ChiediMisura(const QString& titolo) {
    const StatoArchivio& a = console_->stato.archivio;
    QStringList nomi;
    for (const std::string& nome : a.elenco)
        if (nome != a.misura.nome)
            nomi << Q(nome);
    if (nomi.isEmpty()) {
        stato_->MostraMessaggio(tr("There is no other measure"));
        return {};
    }
    bool si = false;
    const QString nome = QInputDialog::getItem(this, titolo, tr("Measure"), nomi, 0, false, &si);
    return si ? nome : QString();
}

void MainForm::ConfrontaCon(const QString& nome) {
    StatoArchivio& a = console_->stato.archivio;
    const QString altra = S(nome) == a.misura.nome ? ChiediMisura(tr("Compare With")) : nome;
    if (altra.isEmpty() || !ScegliRiferimento(scrivania_, a, S(altra)))
        return;
    regia_->Accendi(Sovrapposte::Genere::Riferimento, S(altra), true);
    regia_->Accendi(Sovrapposte::Genere::Differenza, S(altra), false);
    MostraInVista(true);
}

void MainForm::SovrapponiA(const QString& nome) {
    StatoArchivio& a = console_->stato.archivio;
    const QString altra = S(nome) == a.misura.nome ? ChiediMisura(tr("Overlay")) : nome;
    if (altra.isEmpty() || !SovrapponiMisura(scrivania_, a, S(altra)))
        return;
    regia_->Accendi(Sovrapposte::Genere::Misura, S(altra), true);
    MostraInVista(true);
}

void MainForm::TogliStrato(Sovrapposte::Genere genere, const QString& nome) {
    StatoArchivio& a = console_->stato.archivio;
    if (genere == Sovrapposte::Genere::Misura)
        TogliSovrapposta(a, S(nome));
    else
        TogliRiferimento(a);
    MostraInVista(true);
}

void MainForm::Elimina(const QString& nome) {
    StatoArchivio& a = console_->stato.archivio;
    const bool mostrata = S(nome) == a.misura.nome;
    if (!EliminaMisura(scrivania_, a, S(nome)))
        return;
    archivio_->MostraElenco(a.elenco);
    archivio_->Scegli(a.misura.nome);
    attesa_.stop();
    comuni_->Carica();
    MostraInVista(!mostrata);
}

/// A setting of the user's own: it outlives the look at a measure.
void MainForm::CambiaPreferenza(const std::function<void(SetupRecord&)>& scrivi) {
    scrivi(scrivania_.setup);
    if (console_->stato.archivio.attivo)
        scrivi(console_->stato.archivio.SetupBackup);
    SalvaPanelEAM(scrivania_, kPannelloEAM);
}

/// `CHKShowHighestPeaks`. In the Sweep tab the scan table takes the panel's place.
void MainForm::MostraPicchi(bool si) {
    conPicchi_ = si;
    SegnaPicchi(*menuBar(), si);
    regia_->MostraPicchi(si);
    const bool sweep = console_->stato.modalita == Modalita::Sweep;
    piedeArchivio_->MostraPagina(si || sweep ? PiedeArchivio::Pagina::Picchi
                                             : PiedeArchivio::Pagina::Righe);
    if (sweep)
        piede_->setCurrentWidget(si ? static_cast<QWidget*>(piedeArchivio_) : sweep_);
    MostraInVista(true);
}

void MainForm::CambiaNumPicchi(int quanti) {
    scrivania_.env.ReportList[voce_report::kNumPicchi] = static_cast<int16_t>(quanti);
    SalvaPanelEPN(scrivania_, kPannelloEPN);
    MostraInVista(true);
}

/// `MNUMakeTabFreq` from the list of peaks.
void MainForm::SalvaTabellaPicchi() {
    ContenutoTabella tabella{.kind = TableKind::Frequenze};
    for (const RigaPicco& riga : piedeArchivio_->Picchi().Tabella().righe)
        InserisciPunto(tabella, {.freqMhz = riga.freqMhz});
    const RichiestaFile richiesta = RichiestaTabella(TableKind::Frequenze);
    const auto percorso =
        ScegliFile(richiesta, true, Q(TitoloCaricaSalva(richiesta, true)), InVista().misura.nome);
    if (percorso && SalvaTabella(scrivania_, tabella, *percorso))
        stato_->MostraMessaggio(tr("Frequency table written: %1").arg(Q(*percorso)));
}

void MainForm::AzioneQuadro(AzioneMenu azione) {
    switch (azione) {
    case AzioneMenu::SalvaImmagine:
    case AzioneMenu::CopiaImmagine:
        return PortaFuori(azione);
    case AzioneMenu::PicchiAlti:
        return MostraPicchi(!conPicchi_);
    case AzioneMenu::ZoomMarker:
        return quadro_->OKZoomMK();
    case AzioneMenu::ZoomTutto:
        return quadro_->CancelZoomMK();
    case AzioneMenu::ZoomIndietro:
        return quadro_->ZoomIndietro();
    case AzioneMenu::ZoomAvanti:
        return quadro_->ZoomAvanti();
    case AzioneMenu::MisuraDopo:
        return archivio_->Passo(1);
    case AzioneMenu::MisuraPrima:
        return archivio_->Passo(-1);
    case AzioneMenu::Confronta:
        return ConfrontaCon(Q(InVista().misura.nome));
    case AzioneMenu::Sovrapponi:
        return SovrapponiA(Q(InVista().misura.nome));
    default:
        return;
    }
}

/// The picture, as it is on show, to a file or the clipboard.
void MainForm::PortaFuori(AzioneMenu azione) {
    const ContenutoQuadro quadro = quadro_->Quadro();
    const ImmagineMisura immagine{.quadro = quadro,
                                  .setup = scrivania_.setup,
                                  .campo = quadro_->CampoMostrato(),
                                  .blocco =
                                      BloccoImpostazioni(scrivania_, quadro, scrivania_.setup)};
    if (azione == AzioneMenu::SalvaImmagine) {
        if (SalvaImmagine(this, scrivania_, immagine))
            stato_->MostraMessaggio(tr("Picture written"));
        return;
    }
    CopiaImmagine(scrivania_, immagine);
    stato_->MostraMessaggio(tr("Picture copied"));
}

/// "Tune Manual @": the frequency is the user's, and not the measure's.
void MainForm::SintonizzaManuale(double mhz) {
    CambiaPreferenza([mhz](SetupRecord& setup) { setup.FreqMa = mhz; });
    ClickSSTabMode(*console_, Modalita::Manual);
}

/// The columns of a run give way to the measure that it has written.
void MainForm::MostraCorsaFinita(const std::string& misura) {
    if (console_->stato.modalita != Modalita::Sweep)
        return;
    ApriDopoCorsa(scrivania_, dopoCorsa_, misura);
    if (dopoCorsa_.misura.traccia->empty())
        dopoCorsa_ = {};
    MostraInVista(false);
}

void MainForm::PreparaCurveCorsa(const ScanTable& tabella) {
    setupCorsa_ = scrivania_.setup;
    CaricaTabelleMisura(scrivania_, {}, setupCorsa_, tabelleCorsa_);
    quadro_->ImpostaLimiti(LimitiDellaCorsa(scrivania_, tabella));
}

void MainForm::LasciaMisura() {
    dopoCorsa_ = {};
    regia_->Togli();
    if (piede_->currentWidget() == piedeArchivio_)
        piede_->setCurrentWidget(sweep_);
    MostraVociMisura();
}

} // namespace orvane
