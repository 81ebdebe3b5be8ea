// Limits or conversion factors in use: a row a slot, with the names that lie on disk.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/PezziColonna.h"

namespace orvane {

/// What tells limits and factors apart.
struct GenereTabelle {
    const char* nome;
    const char* titolo;
    const char* casella; ///< object names, with the slot's number behind them
    const char* lista;
    const char* aiuto;
    std::string_view cartella;
    std::string_view estensione;
    ParComune codice;
    size_t slot;
};
extern const GenereTabelle kGenereLimiti;
extern const GenereTabelle kGenereFattori;

class FrmTabelle : public GruppoColonna {
    Q_OBJECT
public:
    FrmTabelle(const GenereTabelle& genere, ScritturaComuni& scrittura, QWidget* padre);
    /// Slots and names as they are now, on disk and in the record. Of many slots those in use are
    /// shown, and the next.
    void Carica();

private:
    struct Riga {
        QCheckBox* acceso = nullptr;
        ListaColonna* lista = nullptr;
    };
    void CreaRiga(size_t slot);
    void CreaSomma();
    void CaricaRiga(size_t slot, const QStringList& nomi);
    void Scegli(size_t slot, const QString& nome);
    bool NellaMisura(const std::string& nome) const;
    std::string& Nome(size_t slot) const;
    int16_t& Acceso(size_t slot) const;

    const GenereTabelle& genere_;
    ScritturaComuni& scrittura_;
    std::vector<Riga> righe_;
    QCheckBox* somma_ = nullptr; ///< factors only
};

} // namespace orvane
