#include "ui/FrmGenerator.h"

#include <algorithm>

#include <QSignalBlocker>

#include "base/Numeri.h"
#include "ui/Moduli.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// The generator's own range, dBuV.
constexpr double kMinLivello = 0;
constexpr double kMaxLivello = 90;

/// The number in front of a unit that may stand behind it or not.
std::optional<double> NumeroConUnita(const QString& testo) {
    const auto fine = std::ranges::find_if(testo, [](QChar c) { return c.isLetter(); });
    return LeggiNumero(S(testo.left(fine - testo.begin())));
}

} // namespace

FrmGenerator::FrmGenerator(ScritturaComuni& scrittura, QWidget* padre)
    : GruppoColonna(QStringLiteral("FRMGenerator"), tr("Generator"), padre), scrittura_(scrittura) {
    SetupRecord& setup = scrittura.scrivania.setup;
    rfOut_ = AggiungiCasella("OptRFOut", tr("RF out"), tr("Output of the generator"));
    tracking_ = AggiungiCasella("OptTracking", tr("Tracking"),
                                tr("The generator follows the receiver's frequency"));
    livello_ = AggiungiNumero("TBLevel", tr("Level"), tr("Generator level"),
                              tr("Level of the generator in dBµV, 0 to 90; point or comma"));
    frequenza_ =
        AggiungiNumero("TBTGFreq", tr("Frequency"), tr("Generator frequency"),
                       tr("Frequency of the generator in MHz, without tracking; point or comma"));
    connect(rfOut_, &QCheckBox::toggled, this, [this, &setup](bool si) {
        setup.RFOut = si ? 1 : 0;
        scrittura_.scritto(ParComune::RFOut);
    });
    connect(tracking_, &QCheckBox::toggled, this, [this, &setup](bool si) {
        setup.TGOn = si ? 1 : 0;
        scrittura_.scritto(ParComune::Tracking);
    });
    connect(livello_, &QLineEdit::editingFinished, this, [this] {
        Scrivi(livello_, &SetupRecord::TGLevel, kMinLivello, kMaxLivello, ParComune::Livello);
    });
    connect(frequenza_, &QLineEdit::editingFinished, this, [this] {
        Scrivi(frequenza_, &SetupRecord::TGFreq, minimoMhz_, massimoMhz_, ParComune::TGFrequenza);
    });
}

QLineEdit* FrmGenerator::AggiungiNumero(const char* nome, const QString& testo,
                                        const QString& accessibile, const QString& aiuto) {
    auto* campo = Nomina(new QLineEdit(this), QLatin1String(nome), accessibile, aiuto);
    campo->setProperty("aiuto", aiuto);
    AggiungiRiga(testo, campo);
    return campo;
}

/// A text that is no number leaves the value as it was.
void FrmGenerator::Scrivi(QLineEdit* campo, double SetupRecord::*dove, double minimo,
                          double massimo, ParComune quale) {
    const auto numero = NumeroConUnita(campo->text());
    if (!numero || !campo->isModified())
        return MostraNumeri();
    scrittura_.scrivania.setup.*dove = std::clamp(*numero, minimo, massimo);
    scrittura_.scritto(quale);
}

void FrmGenerator::MostraNumeri() {
    const SetupRecord& setup = scrittura_.scrivania.setup;
    livello_->setText(Q(TestoDaNumero(setup.TGLevel)) + QStringLiteral(" dBµV"));
    frequenza_->setText(Q(TestoDaNumero(setup.TGFreq)) + QStringLiteral(" MHz"));
}

void FrmGenerator::Carica(const StatoGeneratore& stato, const ModelCaps& caps) {
    const SetupRecord& setup = scrittura_.scrivania.setup;
    minimoMhz_ = caps.FMinMa;
    massimoMhz_ = caps.FMaxMa;
    const QSignalBlocker zittoRF(rfOut_);
    const QSignalBlocker zittoTracking(tracking_);
    rfOut_->setChecked(setup.RFOut != 0);
    tracking_->setChecked(setup.TGOn != 0);
    MostraNumeri();
    if (!stato.invariato)
        ultimo_ = stato.stato;
    Blocca(ultimo_);
}

void FrmGenerator::Blocca(const StatoControllo& perche) {
    for (QWidget* controllo :
         std::initializer_list<QWidget*>{rfOut_, tracking_, livello_, frequenza_})
        ApplicaStato(controllo, perche);
}

} // namespace orvane
