#include "ui/ModelloTabella.h"

#include <algorithm>

#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr const char* kAiutoColonna[] = {
    "Frequency in MHz; point or comma",
    "Level in the unit of the table; point or comma",
    "Height of the mast in cm, 0 to 999",
    "Angle of the turntable in degrees, 0 to 999",
};

} // namespace

ModelloTabella::ModelloTabella(ModificaTabella& modifica, QObject* padre)
    : QAbstractTableModel(padre), modifica_(modifica) {
    Aggiorna();
}

int ModelloTabella::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : righe_;
}

int ModelloTabella::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : NumeroColonneTabella(Contenuto().kind);
}

QVariant ModelloTabella::data(const QModelIndex& indice, int ruolo) const {
    const auto riga = static_cast<size_t>(indice.row());
    switch (ruolo) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return Q(TestoCella(Contenuto(), riga, static_cast<ColonnaTabella>(indice.column())));
    case Qt::UserRole:
        return riga < Contenuto().righe.size() && !RigaCompletaTabella(Contenuto().righe[riga]);
    default:
        return {};
    }
}

QVariant ModelloTabella::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
    if (verso == Qt::Vertical)
        return ruolo == Qt::DisplayRole ? QVariant(sezione + 1) : QVariant();
    if (sezione < 0 || sezione >= columnCount())
        return {};
    if (ruolo == Qt::DisplayRole)
        return Q(TitoloColonnaTabella(Contenuto(), static_cast<ColonnaTabella>(sezione)));
    if (ruolo == Qt::ToolTipRole)
        return tr(kAiutoColonna[sezione]);
    if (ruolo == Qt::TextAlignmentRole)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags ModelloTabella::flags(const QModelIndex&) const {
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable;
}

bool ModelloTabella::setData(const QModelIndex& indice, const QVariant& valore, int ruolo) {
    if (ruolo != Qt::EditRole || !indice.isValid())
        return false;
    ContenutoTabella c = Contenuto();
    const bool nuova =
        indice.row() == static_cast<int>(c.righe.size()) || indice.row() == rigaNuova_;
    auto riga = static_cast<size_t>(indice.row());
    const EsitoModifica esito =
        ScriviCella(c, riga, static_cast<ColonnaTabella>(indice.column()), S(valore.toString()));
    modifica_.Applica(std::move(c));
    scritta_ = Scritta{static_cast<int>(riga), esito == EsitoModifica::Fatta};
    Q_EMIT Modificata();
    rigaNuova_ = nuova && scritta_->accettata ? scritta_->riga : -1;
    if (esito != EsitoModifica::Fatta)
        Q_EMIT Rifiutata(static_cast<int>(esito));
    return true;
}

void ModelloTabella::Aggiorna() {
    rigaNuova_ = -1;
    const size_t inUso = Contenuto().righe.size();
    const int volute = static_cast<int>(std::min(inUso + 1, CapienzaTabella(Contenuto().kind)));
    if (volute > righe_) {
        beginInsertRows({}, righe_, volute - 1);
        righe_ = volute;
        endInsertRows();
    } else if (volute < righe_) {
        beginRemoveRows({}, volute, righe_ - 1);
        righe_ = volute;
        endRemoveRows();
    }
    Q_EMIT dataChanged(index(0, 0), index(righe_ - 1, columnCount() - 1));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

} // namespace orvane
