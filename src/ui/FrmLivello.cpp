#include "ui/FrmLivello.h"

#include <cmath>

#include "graph/Scala.h"
#include "graph/UnitaGrafico.h"
#include "link/Dinamica.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kMaxRiferimento = 60;
constexpr int kPassoRiferimento = 10;

/// The last unit of the table is dBm to the graph.
int UnitaMostrata(const SetupRecord& setup) {
    return setup.UnitId == kUnitaGrafico ? 0 : std::clamp<int>(setup.UnitId, 0, kUnitaGrafico - 1);
}

} // namespace

FrmLivello::FrmLivello(ScritturaComuni& scrittura, QWidget* padre)
    : GruppoColonna(QStringLiteral("FRMLivello"), tr("Level"), padre), scrittura_(scrittura),
      unita_(AggiungiLista("CBXUnitaDiMisura", tr("Unit"), tr("Unit of all levels"))),
      riferimento_(
          AggiungiLista("CBXRefLevel", tr("Reference"), tr("Level at the top of the picture"))),
      dinamica_(AggiungiLista("CBXDinamica", tr("Dynamics"), tr("Vertical range"))) {
    SetupRecord& setup = scrittura_.scrivania.setup;
    for (int i = 0; i < kUnitaGrafico; ++i)
        unita_->addItem(Q(VoceUnitaGrafico(i)));
    for (const int dB : kDinamicaTable)
        dinamica_->addItem(TestoDb(dB));
    connect(unita_, &QComboBox::activated, this, [this, &setup](int unita) {
        if (CambiaUnita(scrittura_.scrivania.ambiente, setup, scheda_, unita))
            scrittura_.scritto(ParComune::Unita);
        else
            Carica(scheda_);
    });
    connect(riferimento_, &QComboBox::activated, this, [this, &setup] {
        setup.RefLevel = static_cast<int16_t>(riferimento_->currentData().toInt());
        scrittura_.scritto(ParComune::RefLevel);
    });
    connect(dinamica_, &QComboBox::activated, this, [this, &setup](int id) {
        setup.DinamicaId = static_cast<int16_t>(id);
        scrittura_.scritto(ParComune::Dinamica);
    });
}

/// Entries tell the level that stands at the top of the picture, not the bare offset.
void FrmLivello::RiempiRiferimento() {
    SetupRecord prova = scrittura_.scrivania.setup;
    const int ora = prova.RefLevel;
    riferimento_->clear();
    const auto aggiungi = [&](int riferimento) {
        prova.RefLevel = static_cast<int16_t>(riferimento);
        const ScalaGrafico scala = SetScaleGraph(prova, 0.15, 30, true, 1000, 0);
        riferimento_->addItem(QStringLiteral("%1 %2")
                                  .arg(std::lround(scala.alto / 100))
                                  .arg(unita_->currentText().trimmed()),
                              riferimento);
    };
    if (std::abs(ora) > kMaxRiferimento || ora % kPassoRiferimento != 0)
        aggiungi(ora);
    for (int dB = kMaxRiferimento; dB >= -kMaxRiferimento; dB -= kPassoRiferimento)
        aggiungi(dB);
    riferimento_->setCurrentIndex(riferimento_->findData(ora));
}

void FrmLivello::Carica(Modalita scheda) {
    scheda_ = scheda;
    const SetupRecord& setup = scrittura_.scrivania.setup;
    unita_->setCurrentIndex(UnitaMostrata(setup));
    RiempiRiferimento();
    const int ultima = static_cast<int>(kDinamicaTable.size()) - 1;
    dinamica_->setCurrentIndex(std::clamp<int>(setup.DinamicaId, 0, ultima));
}

} // namespace orvane
