#include "ui/FrmFrontEnd.h"

#include <QSignalBlocker>

#include "ui/Testi.h"

namespace orvane {
namespace {

int16_t& Campo(ScritturaComuni& scrittura, int16_t SetupRecord::*campo) {
    return scrittura.scrivania.setup.*campo;
}

void Collega(QCheckBox* casella, ScritturaComuni& scrittura, int16_t SetupRecord::*campo,
             ParComune quale) {
    QObject::connect(casella, &QCheckBox::toggled, casella, [&scrittura, campo, quale](bool si) {
        Campo(scrittura, campo) = si ? 1 : 0;
        scrittura.scritto(quale);
    });
}

void Spunta(QCheckBox* casella, int16_t valore) {
    const QSignalBlocker zitta(casella);
    casella->setChecked(valore != 0);
}

} // namespace

FrmFrontEnd::FrmFrontEnd(ScritturaComuni& scrittura, QWidget* padre)
    : GruppoColonna(QStringLiteral("FRMFrontEnd"), tr("Front-end"), padre), scrittura_(scrittura) {
    CreaListe();
    CreaCaselle();
}

void FrmFrontEnd::CreaListe() {
    filtro_ = AggiungiLista("CBXBWIF", tr("BW IF"),
                            tr("Filter of the live modes; in a sweep each line has its own"));
    attenuatore_ = AggiungiLista("CBXAttenuator", tr("Attenuator"),
                                 tr("Attenuation in front of the receiver: moves the scale"));
    minAtt_ = AggiungiLista("CBXMinAtt", tr("Min. att."),
                            tr("Least attenuation that AUTO may take in the live modes"));
    connect(filtro_, &QComboBox::activated, this, [this](int riga) {
        SetupRecord& setup = scrittura_.scrivania.setup;
        setup.BWIFId = static_cast<int16_t>(riga);
        setup.BWIFText = regole_.filtri[static_cast<size_t>(riga)].nome;
        if (regole_.filtroCoupled) // chosen by hand, it no longer follows the span
            setup.Coupled = 0;
        scrittura_.scritto(ParComune::BWIF);
    });
    connect(attenuatore_, &QComboBox::activated, this, [this](int riga) {
        Campo(scrittura_, &SetupRecord::Attenuator) =
            static_cast<int16_t>(regole_.attenuatori[static_cast<size_t>(riga)]);
        scrittura_.scritto(ParComune::Attenuatore);
    });
    connect(minAtt_, &QComboBox::activated, this, [this](int riga) {
        Campo(scrittura_, &SetupRecord::MinAtt) = static_cast<int16_t>(riga);
        scrittura_.scritto(ParComune::MinAtt);
    });
}

void FrmFrontEnd::CreaCaselle() {
    preselettore_ = AggiungiCasella("OptPresel", tr("Preselector"),
                                    tr("Moves the reference level that is sent by 10 dB"));
    preAmp_ = AggiungiCasella("OptPreamp", tr("Preamplifier"),
                              tr("Moves the reference level that is sent"));
    pulseLim_ =
        AggiungiCasella("OptPulseLim", tr("Pulse limiter"), tr("Protects the input from pulses"));
    antenna_ = AggiungiCasella("CHKAntennaGX2207", tr("Rod antenna"),
                               tr("The rod antenna of the GX2207: opens its attenuator"));
    passaAlto_ = AggiungiCasella("CHKFiltroGX2207", tr("HP 150 kHz"),
                                 tr("High-pass of the GX2207 at 150 kHz"));
    altaImpedenza_ = AggiungiCasella("CHKHiZGX2207", tr("HiZ receiver"),
                                     tr("High impedance input of the GX2207"));
    Collega(preselettore_, scrittura_, &SetupRecord::PreSel, ParComune::Presel);
    Collega(preAmp_, scrittura_, &SetupRecord::PreAmp, ParComune::PreAmp);
    Collega(pulseLim_, scrittura_, &SetupRecord::PulseLim, ParComune::PulseLim);
    Collega(antenna_, scrittura_, &SetupRecord::AntennaGX2207, ParComune::AntennaGX2207);
    Collega(passaAlto_, scrittura_, &SetupRecord::FiltroHP150, ParComune::FiltroGX2207);
    Collega(altaImpedenza_, scrittura_, &SetupRecord::AltaImpedenza, ParComune::AntennaGX2207);
}

void FrmFrontEnd::CaricaListe() {
    QStringList filtri;
    for (const VoceFiltro& filtro : regole_.filtri)
        filtri << Q(filtro.nome);
    RiempiLista(*filtro_, filtri, regole_.rigaFiltro);
    QStringList attenuatori;
    for (const int dB : regole_.attenuatori)
        attenuatori << TestoDb(dB);
    RiempiLista(*attenuatore_, attenuatori, regole_.rigaAtt);
    QStringList minAtt;
    for (const int dB : regole_.minAtt)
        minAtt << TestoDb(dB);
    RiempiLista(*minAtt_, minAtt, regole_.rigaMinAtt);
}

void FrmFrontEnd::Carica(const RegoleComuni& regole) {
    regole_ = regole;
    CaricaListe();
    const SetupRecord& setup = scrittura_.scrivania.setup;
    Spunta(preselettore_, setup.PreSel);
    Spunta(preAmp_, setup.PreAmp);
    Spunta(pulseLim_, setup.PulseLim);
    Spunta(antenna_, setup.AntennaGX2207);
    Spunta(passaAlto_, setup.FiltroHP150);
    Spunta(altaImpedenza_, setup.AltaImpedenza);
    for (QCheckBox* casella : {antenna_, passaAlto_, altaImpedenza_}) {
        casella->setVisible(regole.conFrontEnd);
        ApplicaStato(casella, {});
    }
    for (QComboBox* lista : {filtro_, attenuatore_, minAtt_})
        ApplicaStato(lista, {});
    ApplicaStato(preselettore_, regole.preselettore);
    ApplicaStato(preAmp_, regole.preAmp);
    ApplicaStato(pulseLim_, regole.pulseLimiter);
}

void FrmFrontEnd::Blocca(const StatoControllo& perche, bool filtroEAtt) {
    for (QWidget* controllo : std::initializer_list<QWidget*>{
             minAtt_, preselettore_, preAmp_, pulseLim_, antenna_, passaAlto_, altaImpedenza_})
        ApplicaStato(controllo, perche);
    for (QComboBox* lista : {filtro_, attenuatore_})
        ApplicaStato(lista, filtroEAtt ? StatoControllo{} : perche);
}

} // namespace orvane
