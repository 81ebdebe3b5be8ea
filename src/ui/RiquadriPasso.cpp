// `FRMStep`, `FRMAutoStep`, `FRMFrequenciesTable`: how a line goes through its span.
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>

#include "ui/RiquadriScan.h"

namespace orvane {
namespace {

void CreaModi(PiantaModulo& pianta) {
    auto* riga = new QHBoxLayout;
    riga->setSpacing(18);
    auto* gruppo = new QButtonGroup(pianta.finestra);
    gruppo->setObjectName(QStringLiteral("OPTStep"));
    int modo = 0;
    for (const QString& testo : {QObject::tr("&By step"), QObject::tr("From a frequency &table")}) {
        auto* scelta = new QRadioButton(testo, pianta.finestra);
        scelta->setObjectName(QStringLiteral("OPTStep%1").arg(modo));
        gruppo->addButton(scelta, modo++);
        riga->addWidget(scelta);
        pianta.specchi.emplace_back(
            [scelta](const VistaModulo& vista) { Mostra(*scelta, vista.OPTStep); });
    }
    riga->addStretch(1);
    pianta.colonna->addLayout(riga);
    QObject::connect(gruppo, &QButtonGroup::idClicked, gruppo, [&pianta](int quale) {
        ModificaStepMode(pianta.modulo.riga, quale);
        pianta.cambiato(ControllaFreqTable(pianta.modulo));
    });
    pianta.specchi.emplace_back([&pianta, gruppo](const VistaModulo&) {
        if (auto* scelta = gruppo->button(pianta.modulo.riga.StepMode == 1 ? 1 : 0))
            scelta->setChecked(true);
    });
}

void CreaAutoStep(PiantaModulo& pianta) {
    auto* automatico = new QCheckBox(QObject::tr("&Automatic, by the RBW"), pianta.finestra);
    Nomina(automatico, QStringLiteral("CHKAutoStep"), QObject::tr("Automatic step"));
    auto* riga = new QHBoxLayout;
    riga->addWidget(automatico);
    CreaCornice(pianta, Cornice::FRMAutoStep, "FRMAutoStep", riga);
    QObject::connect(automatico, &QCheckBox::clicked, automatico, [&pianta](bool acceso) {
        ModificaAutoStep(pianta.modulo.riga, acceso);
        pianta.cambiato(std::nullopt);
    });
    pianta.specchi.emplace_back([&pianta, automatico](const VistaModulo&) {
        automatico->setChecked(pianta.modulo.riga.AutoStep == 1);
    });
}

void CreaStep(PiantaModulo& pianta) {
    auto* passo = CreaTesto(
        pianta, "TBStep", QObject::tr("Step"),
        [&pianta](const std::string& testo) { ModificaTBStep(pianta.modulo, testo); },
        [](const VistaModulo& vista) { return Q(vista.testoStep); });
    auto* unita = Nomina(new QComboBox(pianta.finestra), QStringLiteral("CBXUnitaStep"),
                         QObject::tr("Unit of the step"));
    for (const VoceUnitaPasso& voce : kUnitaPasso)
        unita->addItem(Q(voce.testo));
    QObject::connect(unita, &QComboBox::activated, unita, [&pianta](int quale) {
        pianta.modulo.unita = static_cast<UnitaPasso>(quale);
        pianta.cambiato(std::nullopt);
    });
    auto* riga = new QHBoxLayout;
    riga->addWidget(passo);
    riga->addWidget(unita);
    riga->addStretch(1);
    CreaCornice(pianta, Cornice::FRMStep, "FRMStep", riga, passo, QLatin1Char('S'));
    pianta.specchi.emplace_back([&pianta, passo, unita](const VistaModulo& vista) {
        Mostra(*passo, vista.TBStep);
        unita->setCurrentIndex(static_cast<int>(pianta.modulo.unita));
    });
}

void CreaTabella(PiantaModulo& pianta) {
    auto* tabella = CreaElencoNomi(pianta, "CBXFileStep", QObject::tr("Frequency table"),
                                   ElencoFreqTable(pianta.modulo.albero));
    QObject::connect(tabella, &QComboBox::textActivated, tabella, [&pianta](const QString& nome) {
        pianta.cambiato(ScegliFreqTable(pianta.modulo, S(nome)));
    });
    auto* passi = CreaTesto(
        pianta, "TBNumStepFT", QObject::tr("Steps between two entries, at most 49"),
        [&pianta](const std::string& testo) { ModificaNumStepFT(pianta.modulo.riga, testo); },
        [&pianta](const VistaModulo&) { return QString::number(pianta.modulo.riga.NumStepFT); });
    auto* didascalia = CreaDidascalia(QObject::tr("Steps between two &entries"), pianta.finestra);
    didascalia->setBuddy(passi);
    auto* interno = new QVBoxLayout;
    interno->setSpacing(5);
    interno->addWidget(tabella);
    interno->addSpacing(8);
    interno->addWidget(didascalia);
    interno->addWidget(passi);
    CreaCornice(pianta, Cornice::FRMFrequenciesTable, "FRMFrequenciesTable", interno, tabella,
                QLatin1Char('F'));
    pianta.specchi.emplace_back([&pianta, tabella](const VistaModulo&) {
        ScegliNome(*tabella, pianta.modulo.riga.FreqTable);
    });
}

} // namespace

void CreaRiquadriPasso(PiantaModulo& pianta) {
    if (!ApreCornice(pianta.modulo.colonna, Cornice::FRMStep))
        return;
    CreaModi(pianta);
    CreaAutoStep(pianta);
    CreaStep(pianta);
    CreaTabella(pianta);
}

} // namespace orvane
