// `FRMCustomLimits`, `FRMCustomLimitsDSD`: the limits that a line itself is measured against.
#include <QHBoxLayout>

#include "ui/RiquadriScan.h"

namespace orvane {
namespace {

/// One of the two pairs of a check box and a list.
struct VoceCoppia {
    CoppiaLimite coppia;
    Cornice cornice;
    const char* nomeCornice;
    const char* nomeCasella;
    const char* nomeElenco;
    const char* usa;
    char lettera;
    StatoCampo VistaModulo::*casella;
    StatoCampo VistaModulo::*elenco;
};
constexpr VoceCoppia kCoppie[] = {
    {CoppiaLimite::Prima, Cornice::FRMCustomLimits, "FRMCustomLimits", "CHKLimits",
     "ComboBoxLimits", "&Use", 'L', &VistaModulo::CHKLimits, &VistaModulo::ComboBoxLimits},
    {CoppiaLimite::DSD, Cornice::FRMCustomLimitsDSD, "FRMCustomLimitsDSD", "CHKLimitsDSD",
     "ComboBoxLimitsDSD", "Us&e", 'I', &VistaModulo::CHKLimitsDSD, &VistaModulo::ComboBoxLimitsDSD},
};

void CreaCoppia(PiantaModulo& pianta, const VoceCoppia& voce) {
    auto* casella = Nomina(new QCheckBox(QObject::tr(voce.usa), pianta.finestra),
                           QLatin1String(voce.nomeCasella), QObject::tr("The limit applies"),
                           QObject::tr("The limit applies"));
    auto* elenco = CreaElencoNomi(pianta, voce.nomeElenco, QObject::tr("Limit"),
                                  CompilaCBXLimiti(pianta.modulo.albero));
    QObject::connect(casella, &QCheckBox::clicked, casella, [&pianta, &voce](bool acceso) {
        pianta.cambiato(AccendiLimite(pianta.modulo, voce.coppia, acceso));
    });
    QObject::connect(elenco, &QComboBox::textActivated, elenco,
                     [&pianta, &voce](const QString& nome) {
                         pianta.cambiato(ScegliLimite(pianta.modulo, voce.coppia, S(nome)));
                     });
    auto* riga = new QHBoxLayout;
    riga->setSpacing(12);
    riga->addWidget(casella);
    riga->addWidget(elenco, 1);
    CreaCornice(pianta, voce.cornice, voce.nomeCornice, riga, elenco, QLatin1Char(voce.lettera));
    pianta.specchi.emplace_back([&pianta, &voce, casella, elenco](const VistaModulo& vista) {
        Mostra(*casella, vista.*voce.casella);
        Mostra(*elenco, vista.*voce.elenco);
        casella->setChecked(LimiteAcceso(pianta.modulo.riga, voce.coppia) == 1);
        ScegliNome(*elenco, NomeLimite(pianta.modulo.riga, voce.coppia));
    });
}

} // namespace

void CreaRiquadriLimiti(PiantaModulo& pianta) {
    for (const VoceCoppia& voce : kCoppie)
        if (ApreCornice(pianta.modulo.colonna, voce.cornice))
            CreaCoppia(pianta, voce);
}

} // namespace orvane
