// `FRMDetector`, `FRMHoldTime`, `FRMHoldTimeSD`, `FRMMargin`: what a line measures, and how long.
#include <QGridLayout>
#include <QHBoxLayout>

#include "base/Numeri.h"
#include "setup/ModificaTabella.h"
#include "ui/RiquadriScan.h"

namespace orvane {
namespace {

constexpr int kColonne = 3;

QCheckBox* CreaDetector(PiantaModulo& pianta, size_t d) {
    auto* casella = new QCheckBox(QStringLiteral("%1  (&%2)")
                                      .arg(QLatin1String(kNomiDetector[d]))
                                      .arg(QLatin1Char(kLettereDetector[d])),
                                  pianta.finestra);
    casella->setObjectName(QStringLiteral("OPTDetector%1").arg(d));
    QObject::connect(casella, &QCheckBox::clicked, casella, [&pianta, d](bool acceso) {
        pianta.cambiato(ScegliDetector(pianta.modulo, static_cast<DetectorKind>(d), acceso));
    });
    pianta.specchi.emplace_back([&pianta, casella, d](const VistaModulo&) {
        casella->setChecked(pianta.modulo.riga.Detector[d] == 1);
    });
    return casella;
}

void CreaSmart(PiantaModulo& pianta, QGridLayout& griglia) {
    auto* smart = new QCheckBox(QObject::tr("&Smart detector"), pianta.finestra);
    Nomina(smart, QStringLiteral("CHKSmart"), QObject::tr("Smart detector"),
           QObject::tr("A peak scan first; then only what comes near the limit is measured"));
    griglia.addWidget(smart, static_cast<int>(kNumDetector) / kColonne, 0, 1, kColonne);
    QObject::connect(smart, &QCheckBox::clicked, smart, [&pianta](bool acceso) {
        pianta.cambiato(ScegliSmart(pianta.modulo, acceso));
    });
    pianta.specchi.emplace_back([&pianta, smart](const VistaModulo& vista) {
        Mostra(*smart, vista.CHKSmart);
        smart->setChecked(pianta.modulo.riga.Smart == 1);
    });
}

void CreaGruppo(PiantaModulo& pianta) {
    auto* griglia = new QGridLayout;
    griglia->setHorizontalSpacing(22);
    griglia->setVerticalSpacing(7);
    for (size_t d = 0; d < kNumDetector; ++d)
        griglia->addWidget(CreaDetector(pianta, d), static_cast<int>(d) / kColonne,
                           static_cast<int>(d) % kColonne);
    CreaSmart(pianta, *griglia);
    CreaCornice(pianta, Cornice::FRMDetector, "FRMDetector", griglia);
}

/// A frame with one number in it.
QLineEdit* CreaNumero(PiantaModulo& pianta, Cornice quale, const char* cornice, const char* nome,
                      const QString& accessibile, QChar lettera,
                      void (*scrivi)(ScanLine&, std::string_view), float ScanLine::*campo) {
    auto* testo = CreaTesto(
        pianta, nome, accessibile,
        [&pianta, scrivi](const std::string& t) { scrivi(pianta.modulo.riga, t); },
        [&pianta, campo](const VistaModulo&) {
            return Q(TestoDaNumero(pianta.modulo.riga.*campo));
        });
    auto* riga = new QHBoxLayout;
    riga->addWidget(testo);
    riga->addStretch(1);
    CreaCornice(pianta, quale, cornice, riga, testo, lettera);
    return testo;
}

} // namespace

void CreaRiquadriDetector(PiantaModulo& pianta) {
    if (!ApreCornice(pianta.modulo.colonna, Cornice::FRMDetector))
        return;
    CreaGruppo(pianta);
    auto* hold = CreaNumero(pianta, Cornice::FRMHoldTime, "FRMHoldTime", "TBHoldTime",
                            QObject::tr("Hold time in ms, at most 30000; 0 is the lowest"),
                            QLatin1Char('H'), ModificaHoldTime, &ScanLine::HoldTime);
    hold->setPlaceholderText(QObject::tr("Lowest"));
    CreaNumero(pianta, Cornice::FRMHoldTimeSD, "FRMHoldTimeSD", "TBHoldTimeSD",
               QObject::tr("Hold time of the peak scan in ms, at most 30000; 0 is the lowest"),
               QLatin1Char('k'), ModificaHoldTimeSD, &ScanLine::HoldTimeSD);
    auto* margine = CreaNumero(pianta, Cornice::FRMMargin, "FRMMargin", "TBMargin",
                               QObject::tr("Margin to the limit in dB, -19 to 19"),
                               QLatin1Char('M'), ModificaMargin, &ScanLine::Margin);
    pianta.specchi.emplace_back(
        [margine](const VistaModulo& vista) { Mostra(*margine, vista.TBMargin); });
}

} // namespace orvane
