#include "ui/ModelloArchivio.h"

#include <QElapsedTimer>

#include "base/Testo.h"
#include "ui/Testi.h"
#include "ui/VociArchivio.h"

namespace orvane {
namespace {

/// How long a search may hold the window up: at once, and then portion by portion.
constexpr int kSubitoMs = 40;
constexpr int kPorzioneMs = 8;

} // namespace

ModelloArchivio::ModelloArchivio(const Scrivania& scrivania, QObject* padre)
    : QAbstractListModel(padre), scrivania_(scrivania) {
    ricerca_.setInterval(0);
    connect(&ricerca_, &QTimer::timeout, this, [this] { Cerca(kPorzioneMs); });
}

void ModelloArchivio::Elenca(const std::vector<std::string>& nomi) {
    voci_.clear();
    for (const std::string& nome : nomi)
        voci_.emplace_back().dati.nome = nome;
    Filtra(cercato_);
}

void ModelloArchivio::Filtra(const QString& cercato) {
    cercato_ = cercato;
    for (Voce& voce : voci_)
        voce.trovata = cercato_.isEmpty();
    prossima_ = cercato_.isEmpty() ? voci_.size() : 0;
    Cerca(kSubitoMs);
}

/// Goes on where it was, and shows what it has found.
void ModelloArchivio::Cerca(int ms) {
    QElapsedTimer orologio;
    orologio.start();
    for (; prossima_ < voci_.size() && orologio.elapsed() < ms; ++prossima_)
        voci_[prossima_].trovata = Contiene(prossima_);
    if (prossima_ < voci_.size())
        ricerca_.start();
    else
        ricerca_.stop();
    Mostra();
}

const ModelloArchivio::Voce& ModelloArchivio::Letta(size_t quale) const {
    Voce& voce = voci_[quale];
    if (!voce.letta)
        voce.dati = LeggiVoce(scrivania_, voce.dati.nome);
    voce.letta = true;
    return voce;
}

bool ModelloArchivio::Contiene(size_t quale) const {
    return Q(voci_[quale].dati.nome).contains(cercato_, Qt::CaseInsensitive) ||
           TestoCercabile(Letta(quale).dati).contains(cercato_, Qt::CaseInsensitive) ||
           MisuraContiene(scrivania_, voci_[quale].dati.nome, S(cercato_));
}

void ModelloArchivio::Mostra() {
    std::vector<size_t> ora;
    for (size_t i = 0; i < voci_.size(); ++i)
        if (voci_[i].trovata)
            ora.push_back(i);
    beginResetModel();
    visibili_ = std::move(ora);
    endResetModel();
    Q_EMIT Rinnovata();
}

int ModelloArchivio::Riga(const std::string& nome) const {
    for (size_t i = 0; i < visibili_.size(); ++i)
        if (UgualiSenzaMaiuscole(voci_[visibili_[i]].dati.nome, nome))
            return static_cast<int>(i);
    return -1;
}

std::string ModelloArchivio::Nome(int riga) const {
    return riga < 0 || riga >= rowCount() ? std::string()
                                          : voci_[visibili_[size_t(riga)]].dati.nome;
}

int ModelloArchivio::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : static_cast<int>(visibili_.size());
}

QVariant ModelloArchivio::data(const QModelIndex& indice, int ruolo) const {
    if (!indice.isValid() || indice.row() >= rowCount())
        return {};
    const size_t quale = visibili_[size_t(indice.row())];
    // The name needs no reading: a jump through the list by letters stays quick.
    if (ruolo == Qt::DisplayRole || ruolo == VoceMisura::Nome)
        return Q(voci_[quale].dati.nome);
    return DatoVoce(Letta(quale).dati, ruolo);
}

} // namespace orvane
