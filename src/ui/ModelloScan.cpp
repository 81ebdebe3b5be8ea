#include "ui/ModelloScan.h"

#include <QFont>

#include "setup/ModificaTabella.h"
#include "setup/ModuloScan.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

ColonnaScan Colonna(const QModelIndex& indice) {
    return static_cast<ColonnaScan>(indice.column());
}

constexpr const char* kAiutoColonna[] = {
    "Scan line",
    "Start frequency in MHz; point or comma",
    "Stop frequency in MHz; point or comma",
    "Step; AUTO follows from the RBW",
    "Detectors: Peak, QPeak, Rms, Avg, Rms-Avg (N), C-Avg",
    "Measuring time of a step in ms; 0 is the lowest",
    "Resolution bandwidth",
    "Minimum attenuation",
    "Preamplifier",
    "Preselector",
    "Text shown before the line runs",
    "Network, antenna or positioner of the line",
};

} // namespace

ModelloScan::ModelloScan(ScanTable& tabella, const SetupRecord& setup, bool modificabile,
                         QObject* padre)
    : QAbstractTableModel(padre), tabella_(tabella), setup_(setup), modificabile_(modificabile) {
    Aggiorna();
}

int ModelloScan::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : righe_;
}

int ModelloScan::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : static_cast<int>(ColonnaScan::NumColonne);
}

QVariant ModelloScan::data(const QModelIndex& indice, int ruolo) const {
    const ScanLine& riga = Riga(indice.row());
    const ColonnaScan colonna = Colonna(indice);
    switch (ruolo) {
    case Qt::DisplayRole:
        if (colonna == ColonnaScan::Numero)
            return QString::number(indice.row() + 1);
        if ((riga.Start == 0 && colonna == ColonnaScan::Start) ||
            (riga.Stop == 0 && colonna == ColonnaScan::Stop) ||
            (!RigaCompleta(riga) && colonna > ColonnaScan::Stop))
            return QString();
        return Q(TestoCella(riga, colonna, Ancillary()));
    case Qt::EditRole:
        return data(indice, Qt::DisplayRole);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return Aiuto(indice);
    case kRuoloErrata:
        return Del(indice).corsa || !Del(indice).perche.isEmpty();
    case Qt::FontRole:
        if (data(indice, kRuoloErrata).toBool()) {
            QFont carattere;
            carattere.setBold(true);
            return carattere;
        }
        return {};
    default:
        return {};
    }
}

QVariant ModelloScan::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
    if (verso != Qt::Horizontal || sezione < 0 || sezione >= columnCount())
        return {};
    if (ruolo == Qt::DisplayRole)
        return Q(TitoloColonna(static_cast<ColonnaScan>(sezione)));
    if (ruolo == Qt::ToolTipRole)
        return tr(kAiutoColonna[sezione]);
    if (ruolo == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags ModelloScan::flags(const QModelIndex& indice) const {
    Qt::ItemFlags bandiere = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (!modificabile_ || !indice.isValid())
        return bandiere;
    const bool scelta = !ElencoCella(Colonna(indice)).isEmpty();
    if (InTesto(indice) || (scelta && RigaCompleta(Riga(indice.row()))))
        bandiere |= Qt::ItemIsEditable;
    return bandiere;
}

bool ModelloScan::setData(const QModelIndex& indice, const QVariant& valore, int ruolo) {
    if (ruolo != Qt::EditRole || !(flags(indice) & Qt::ItemIsEditable))
        return false;
    const auto riga = static_cast<size_t>(indice.row());
    const ColonnaScan colonna = Colonna(indice);
    ModificaCella(tabella_, riga, colonna, S(valore.toString()), valore.toInt(), Ancillary());
    DimenticaSegno(indice.row(), colonna);
    Aggiorna();
    Q_EMIT Modificata();
    return true;
}

void ModelloScan::Aggiorna() {
    const size_t inUso = RigheInUso(tabella_);
    const int volute = static_cast<int>(modificabile_ ? std::min(inUso + 1, kMaxScanLine) : inUso);
    if (volute > righe_) {
        beginInsertRows({}, righe_, volute - 1);
        righe_ = volute;
        endInsertRows();
    } else if (volute < righe_) {
        beginRemoveRows({}, volute, righe_ - 1);
        righe_ = volute;
        endRemoveRows();
    }
    TuttoCambiato();
}

void ModelloScan::TuttoCambiato() {
    if (righe_ > 0)
        Q_EMIT dataChanged(index(0, 0), index(righe_ - 1, columnCount() - 1));
}

void ModelloScan::EvidenziaErrore(int riga, ColonnaScan colonna, bool errata) {
    if (riga < 0 || riga >= static_cast<int>(kMaxScanLine))
        return;
    Del(static_cast<size_t>(riga), colonna).corsa = errata;
    const QModelIndex cella = index(riga, static_cast<int>(colonna));
    if (cella.isValid())
        Q_EMIT dataChanged(cella, cella);
}

void ModelloScan::ImpostaModificabile(bool si) {
    modificabile_ = si;
    Aggiorna();
}

void ModelloScan::DimenticaSegno(int riga, ColonnaScan colonna) {
    EvidenziaErrore(riga, colonna, false);
}

void ModelloScan::DimenticaSegni() {
    for (auto& riga : segni_)
        for (Segno& segno : riga)
            segno.corsa = false;
    TuttoCambiato();
}

void ModelloScan::MostraRiscontri(const Segnalazioni& riscontri) {
    for (auto& riga : segni_)
        for (Segno& segno : riga)
            segno.perche.clear();
    for (const Segnalazione& riscontro : riscontri)
        for (const CellaErrata& cella : riscontro.celle) {
            QString& perche = Del(cella.riga, cella.colonna).perche;
            perche +=
                (perche.isEmpty() ? QString() : QStringLiteral("\n")) + ParoleRiscontro(riscontro);
        }
    TuttoCambiato();
}

const ModelloScan::Segno& ModelloScan::Del(const QModelIndex& indice) const {
    return segni_[static_cast<size_t>(indice.row())][static_cast<size_t>(indice.column())];
}

/// Why the cell is marked; else what the column may be too narrow for.
QString ModelloScan::Aiuto(const QModelIndex& indice) const {
    const Segno& segno = Del(indice);
    if (!segno.perche.isEmpty())
        return segno.perche;
    if (segno.corsa)
        return tr("The last run was refused because of this cell");
    return data(indice, Qt::DisplayRole).toString();
}

bool ModelloScan::ConModulo(const QModelIndex& cella) const {
    return modificabile_ && cella.isValid() && RigaCompleta(Riga(cella.row())) &&
           ApriCellaScanTab(Colonna(cella), static_cast<size_t>(cella.row()), Ancillary()) ==
               AperturaCella::Finestra;
}

bool ModelloScan::InTesto(const QModelIndex& cella) {
    return Colonna(cella) == ColonnaScan::Start || Colonna(cella) == ColonnaScan::Stop;
}

// The boxes center their words with blanks.
QString ParoleRiscontro(const Segnalazione& riscontro) {
    return Q(riscontro.riquadro.testo).simplified();
}

QStringList ElencoCella(ColonnaScan colonna) {
    QStringList voci;
    switch (colonna) {
    case ColonnaScan::Rbw:
        for (const VoceRbw& voce : TabellaRbw())
            voci << (voce.Separatore() ? QString() : Q(voce.testo));
        return voci;
    case ColonnaScan::MinAtt:
        for (const int dB : kMinAttDb)
            voci << QStringLiteral("%1 dB").arg(dB);
        return voci;
    case ColonnaScan::PreAmp:
    case ColonnaScan::PreSel:
        return {QStringLiteral("OFF"), QStringLiteral("ON")};
    default:
        return {};
    }
}

int SceltaCella(const ScanLine& riga, ColonnaScan colonna) {
    switch (colonna) {
    case ColonnaScan::Rbw:
        return riga.RbwId;
    case ColonnaScan::MinAtt:
        return riga.MinAtt;
    case ColonnaScan::PreAmp:
        return riga.PreAmp;
    case ColonnaScan::PreSel:
        return riga.PreSel;
    default:
        return -1;
    }
}

} // namespace orvane
