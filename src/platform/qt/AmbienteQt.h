// The environment of the windows: Qt's event loop as the pump, message boxes as modal boxes.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/Ambiente.h"
#include "platform/SorvegliaLink.h"

class QWidget;

namespace orvane {

class AmbienteQt : public Ambiente {
public:
    AmbienteQt(const SorvegliaLink& sorveglia, std::string rigaComando);
    ~AmbienteQt() override;

    double Adesso() const override;
    OraCalendario Calendario() const override;
    /// With `alPiuS` 0 it serves events at most every 3 ms, so that a busy stream may call it as
    /// often as it likes.
    void ElaboraEventi(double alPiuS, Veglia veglia) override;
    /// A message box named "Riquadro"; closing it gives the careful answer.
    Risposta Mostra(const Riquadro& riquadro) override;
    const std::string& RigaComando() const override { return rigaComando_; }
    /// Told on standard error.
    void SegnalaDifetto(std::string_view testo) override;

    /// Over which window boxes come up; null for none.
    QWidget* finestra = nullptr;
    /// Where a broken rule of the program goes in place of standard error.
    std::function<void(std::string_view)> alDifetto;

private:
    struct Interno;

    const SorvegliaLink& sorveglia_;
    std::string rigaComando_;
    std::unique_ptr<Interno> io_;
};

} // namespace orvane
