// The frames of the settings window: each group builds those that its column opens and keeps them
// in step with the rules.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QVBoxLayout>

#include "setup/ModuloScan.h"
#include "ui/Moduli.h"
#include "ui/Testi.h"

namespace orvane {

/// What the groups build on.
struct PiantaModulo {
    ModuloScan& modulo;
    QWidget* finestra;
    QVBoxLayout* colonna;
    /// To be called after each edit, with what refused it.
    std::function<void(const std::optional<Riquadro>&)> cambiato = {};
    /// Return in a text that would keep it.
    std::function<void()> conferma = {};
    /// Each writes into its controls what the rules say.
    std::vector<std::function<void(const VistaModulo&)>> specchi = {};
};

void CreaRiquadriPasso(PiantaModulo& pianta);
void CreaRiquadriDetector(PiantaModulo& pianta);
void CreaRiquadriLimiti(PiantaModulo& pianta);
void CreaRiquadriRiga(PiantaModulo& pianta);

// For the groups alone.

/// A frame with its heading, below the others; null where the column does not open it. A letter of
/// the heading is the key to `campo`, its first control.
QWidget* CreaCornice(PiantaModulo& pianta, Cornice quale, const char* nome, QLayout* interno,
                     QWidget* campo = nullptr, QChar lettera = {});
/// A text that is committed when it is left: `scrivi` takes it, `leggi` gives what became of it.
QLineEdit* CreaTesto(PiantaModulo& pianta, const char* nome, const QString& accessibile,
                     std::function<void(const std::string&)> scrivi,
                     std::function<QString(const VistaModulo&)> leggi);
/// A list of names; the chosen one is found whatever its case.
QComboBox* CreaElencoNomi(PiantaModulo& pianta, const char* nome, const QString& accessibile,
                          const std::vector<std::string>& nomi);
void ScegliNome(QComboBox& elenco, const std::string& nome);
/// Shows a control as the rules have it.
void Mostra(QWidget& controllo, const StatoCampo& stato);
/// Paints it in the warning colour, or in its own.
void Avvisa(QWidget& controllo, bool avviso);

} // namespace orvane
