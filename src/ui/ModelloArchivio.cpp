#include "ui/ModelloArchivio.h"

#include <algorithm>

#include <QElapsedTimer>

#include "base/Testo.h"
#include "ui/Testi.h"
#include "ui/VociArchivio.h"

namespace orvane {
namespace {

/// How long the reading of rows may hold the window up: at once, and then portion by portion.
constexpr int kSubitoMs = 40;
constexpr int kPorzioneMs = 8;

} // namespace

ModelloArchivio::ModelloArchivio(const Scrivania& scrivania, QObject* padre)
    : QAbstractListModel(padre), scrivania_(scrivania) {
    lettura_.setInterval(0);
    connect(&lettura_, &QTimer::timeout, this, &ModelloArchivio::LeggiAncora);
}

void ModelloArchivio::Elenca(const std::vector<std::string>& nomi) {
    lettura_.stop();
    voci_.clear();
    for (const std::string& nome : nomi)
        voci_.emplace_back().dati.nome = nome;
    prossima_ = 0;
    QElapsedTimer orologio;
    orologio.start();
    while (prossima_ < voci_.size() && orologio.elapsed() < kSubitoMs)
        Letta(prossima_++);
    if (prossima_ < voci_.size())
        lettura_.start();
    Mostra();
}

/// The search needs every row; the list is there meanwhile.
void ModelloArchivio::LeggiAncora() {
    QElapsedTimer orologio;
    orologio.start();
    while (prossima_ < voci_.size() && orologio.elapsed() < kPorzioneMs)
        Letta(prossima_++);
    if (prossima_ < voci_.size())
        return;
    lettura_.stop();
    if (!cercato_.isEmpty())
        Mostra();
}

const ModelloArchivio::Voce& ModelloArchivio::Letta(size_t quale) const {
    Voce& voce = voci_[quale];
    if (voce.letta)
        return voce;
    voce.dati = LeggiVoce(scrivania_, voce.dati.nome);
    voce.cercabile = TestoCercabile(voce.dati);
    voce.letta = true;
    return voce;
}

bool ModelloArchivio::Trovata(size_t quale) const {
    if (cercato_.isEmpty() || Q(voci_[quale].dati.nome).contains(cercato_, Qt::CaseInsensitive))
        return true;
    return voci_[quale].letta && voci_[quale].cercabile.contains(cercato_, Qt::CaseInsensitive);
}

void ModelloArchivio::Mostra() {
    beginResetModel();
    visibili_.clear();
    for (size_t i = 0; i < voci_.size(); ++i)
        if (Trovata(i))
            visibili_.push_back(i);
    endResetModel();
    Q_EMIT Rinnovata();
}

void ModelloArchivio::Filtra(const QString& cercato) {
    cercato_ = cercato;
    Mostra();
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
