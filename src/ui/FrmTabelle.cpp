#include "ui/FrmTabelle.h"

#include <QSignalBlocker>

#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/Cartelle.h"
#include "data/Misure.h"
#include "data/NomiTabelle.h"
#include "data/TabelleLimFac.h"
#include "ui/Moduli.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr size_t kMinimoVisibili = 2;
constexpr const char* kSenzaTabella = "Choose a table first";

/// The row of a name; a table that is gone keeps its name, at the end.
size_t RigaDelNome(QStringList& nomi, const std::string& nome) {
    if (!NominaTabella(nome))
        return 0;
    for (qsizetype i = 1; i < nomi.size(); ++i)
        if (nomi[i].compare(Q(nome), Qt::CaseInsensitive) == 0)
            return static_cast<size_t>(i);
    nomi << Q(nome);
    return static_cast<size_t>(nomi.size() - 1);
}

} // namespace

const GenereTabelle kGenereLimiti = {.nome = "FRMLimits",
                                     .titolo = "Limits",
                                     .casella = "ChkLimit",
                                     .lista = "CBXLimits",
                                     .aiuto = "Limit to compare with, of the directory Limits",
                                     .cartella = cartella::kLimits,
                                     .estensione = "5SL",
                                     .codice = ParComune::Limite,
                                     .slot = 2};
const GenereTabelle kGenereFattori = {.nome = "FRMFactors",
                                      .titolo = "Conversion factors",
                                      .casella = "ChkFact",
                                      .lista = "ComboFact",
                                      .aiuto = "Factor in use, of the directory Factors",
                                      .cartella = cartella::kFactors,
                                      .estensione = "5SC",
                                      .codice = ParComune::Fattore,
                                      .slot = kNumFattori};

FrmTabelle::FrmTabelle(const GenereTabelle& genere, ScritturaComuni& scrittura, QWidget* padre)
    : GruppoColonna(QLatin1String(genere.nome), tr(genere.titolo), padre), genere_(genere),
      scrittura_(scrittura) {
    for (size_t slot = 0; slot < genere.slot; ++slot)
        CreaRiga(slot);
    if (genere.codice == ParComune::Fattore)
        CreaSomma();
}

void FrmTabelle::CreaRiga(size_t slot) {
    const QString numero = QString::number(slot + 1);
    const QString titolo = tr(genere_.titolo) + QLatin1Char(' ') + numero;
    Riga riga;
    riga.acceso = Nomina(new QCheckBox(numero, this), QLatin1String(genere_.casella) + numero,
                         titolo + tr(", in use"));
    riga.lista = CreaLista(QLatin1String(genere_.lista) + numero, titolo, tr(genere_.aiuto));
    AggiungiRiga(riga.acceso, riga.lista);
    connect(riga.acceso, &QCheckBox::toggled, this, [this, slot](bool si) {
        Acceso(slot) = si ? 1 : 0;
        scrittura_.scritto(genere_.codice);
    });
    connect(riga.lista, &QComboBox::textActivated, this,
            [this, slot](const QString& nome) { Scegli(slot, nome); });
    righe_.push_back(riga);
}

void FrmTabelle::CreaSomma() {
    somma_ = AggiungiCasella("ChkSommaFact", tr("Show the sum"),
                             tr("Shows the sum of the factors in use beside each of them"));
    connect(somma_, &QCheckBox::toggled, this, [this](bool si) {
        scrittura_.scrivania.setup.SommaFact = si ? 1 : 0;
        scrittura_.scritto(genere_.codice);
    });
}

std::string& FrmTabelle::Nome(size_t slot) const {
    SetupRecord& setup = scrittura_.scrivania.setup;
    return genere_.codice == ParComune::Limite ? setup.LimitName[slot] : setup.FactorName[slot];
}

int16_t& FrmTabelle::Acceso(size_t slot) const {
    SetupRecord& setup = scrittura_.scrivania.setup;
    return genere_.codice == ParComune::Limite ? setup.LimitOn[slot] : setup.FactorOn[slot];
}

/// What is chosen is in use.
void FrmTabelle::Scegli(size_t slot, const QString& nome) {
    Nome(slot) = S(nome);
    Acceso(slot) = !NominaTabella(Nome(slot)) ? 0 : 1;
    scrittura_.scritto(genere_.codice);
}

/// While a measure is on show its own copies count.
bool FrmTabelle::NellaMisura(const std::string& nome) const {
    const Scrivania& s = scrittura_.scrivania;
    return s.NoSaveSetup &&
           s.albero.Esiste(CartellaMisura(RimuoviEstensione(EstraiNomeFile(s.env.SweepPath))) +
                           std::string(genere_.cartella) + nome + "." +
                           std::string(genere_.estensione));
}

void FrmTabelle::CaricaRiga(size_t slot, const QStringList& nomi) {
    const Riga& riga = righe_[slot];
    QStringList voci = nomi;
    const size_t quale = RigaDelNome(voci, Nome(slot));
    RiempiLista(*riga.lista, voci, quale);
    const bool manca = static_cast<qsizetype>(quale) >= nomi.size() && !NellaMisura(Nome(slot));
    riga.lista->Segna(manca);
    riga.lista->setToolTip(manca       ? tr("%1 is not on disk").arg(Q(Nome(slot)))
                           : quale > 0 ? Q(Nome(slot))
                                       : tr(genere_.aiuto));
    const QSignalBlocker zitta(riga.acceso);
    riga.acceso->setChecked(Acceso(slot) != 0 && quale > 0);
    riga.acceso->setEnabled(quale > 0);
    riga.acceso->setToolTip(quale > 0 ? QString() : tr(kSenzaTabella));
}

void FrmTabelle::Carica() {
    QStringList nomi;
    for (const std::string& nome :
         VociTabelle(scrittura_.scrivania.albero, genere_.cartella, genere_.estensione))
        nomi << Q(nome);
    size_t visibili = kMinimoVisibili;
    for (size_t slot = 0; slot < righe_.size(); ++slot) {
        CaricaRiga(slot, nomi);
        if (NominaTabella(Nome(slot)))
            visibili = std::max(visibili, slot + 2);
    }
    for (size_t slot = 0; slot < righe_.size(); ++slot)
        MostraRiga(righe_[slot].lista, slot < visibili);
    if (!somma_)
        return;
    const QSignalBlocker zitta(somma_);
    somma_->setChecked(scrittura_.scrivania.setup.SommaFact != 0);
}

} // namespace orvane
