#include "ui/ModelloScan.h"

#include <QFont>

#include "base/Numeri.h"
#include "setup/ModificaTabella.h"
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

ModelloScan::ModelloScan(ScanTable& tabella, bool modificabile, QObject* padre)
    : QAbstractTableModel(padre), tabella_(tabella), modificabile_(modificabile) {
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
        return Q(TestoCella(riga, colonna, kAncillaryKind));
    case Qt::EditRole:
        if (colonna == ColonnaScan::HoldTime)
            return Q(TestoDaNumero(riga.HoldTime));
        return data(indice, Qt::DisplayRole);
    case Qt::ToolTipRole: // what the column is too narrow for
        return data(indice, Qt::DisplayRole);
    case Qt::UserRole:
        return Errata(indice);
    case Qt::FontRole:
        if (Errata(indice)) {
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
    const ColonnaScan colonna = Colonna(indice);
    const bool frequenza = colonna == ColonnaScan::Start || colonna == ColonnaScan::Stop;
    const bool scelta = colonna == ColonnaScan::HoldTime || !ElencoCella(colonna).isEmpty();
    if (frequenza || (scelta && RigaCompleta(Riga(indice.row()))))
        bandiere |= Qt::ItemIsEditable;
    return bandiere;
}

bool ModelloScan::setData(const QModelIndex& indice, const QVariant& valore, int ruolo) {
    if (ruolo != Qt::EditRole || !(flags(indice) & Qt::ItemIsEditable))
        return false;
    const auto riga = static_cast<size_t>(indice.row());
    const ColonnaScan colonna = Colonna(indice);
    if (colonna == ColonnaScan::HoldTime)
        ModificaHoldTime(tabella_[riga], S(valore.toString()));
    else
        ModificaCella(tabella_, riga, colonna, S(valore.toString()), valore.toInt(),
                      kAncillaryKind);
    errate_[riga][static_cast<size_t>(colonna)] = false;
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
    if (righe_ > 0)
        Q_EMIT dataChanged(index(0, 0), index(righe_ - 1, columnCount() - 1));
}

void ModelloScan::EvidenziaErrore(int riga, ColonnaScan colonna, bool errata) {
    if (riga < 0 || riga >= static_cast<int>(kMaxScanLine))
        return;
    errate_[static_cast<size_t>(riga)][static_cast<size_t>(colonna)] = errata;
    const QModelIndex cella = index(riga, static_cast<int>(colonna));
    if (cella.isValid())
        Q_EMIT dataChanged(cella, cella);
}

void ModelloScan::ImpostaModificabile(bool si) {
    modificabile_ = si;
    Aggiorna();
}

bool ModelloScan::Errata(const QModelIndex& indice) const {
    return errate_[static_cast<size_t>(indice.row())][static_cast<size_t>(indice.column())];
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
