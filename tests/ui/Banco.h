// The console on its windows with a simulated receiver under it: what every test here begins with.
#pragma once

#include <deque>
#include <memory>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include "aiuto/CartellaProva.h"
#include "data/Panels.h"
#include "setup/TabellaScan.h"
#include "simulator/FlussoSimulato.h"
#include "ui/Postazione.h"
#include "ui/Tema.h"

namespace orvane::prova {

/// Two ports by name, one of them over Bluetooth.
struct CatalogoProva : CatalogoPorte {
    std::vector<PortaCom> porte = {{"Serial Port (COM3)", "/dev/null"},
                                   {"Standard Serial over Bluetooth link (COM7)", "/dev/null"}};
    std::vector<PortaCom> Elenca() override { return porte; }
};

/// Never reached: the simulated receiver takes the place of every link.
struct NienteUsb : DriverUsb {
    bool Installato() override { return false; }
    StatoUsb ListaNumero(uint32_t&) override { return StatoUsb{}; }
    StatoUsb ListaDescrizione(uint32_t, std::string&) override { return StatoUsb{}; }
    StatoUsb Apri(const std::string&, HandleUsb&) override { return StatoUsb{}; }
    StatoUsb ImpostaBaud(HandleUsb, uint32_t) override { return StatoUsb{}; }
    StatoUsb ImpostaCaratteristiche(HandleUsb, int, int, int) override { return StatoUsb{}; }
    StatoUsb ImpostaTrasferimenti(HandleUsb, uint32_t, uint32_t) override { return StatoUsb{}; }
    StatoUsb Scrivi(HandleUsb, std::span<const uint8_t>, size_t&) override { return StatoUsb{}; }
    StatoUsb Leggi(HandleUsb, std::span<uint8_t>, size_t&) override { return StatoUsb{}; }
    StatoUsb InCoda(HandleUsb, size_t&) override { return StatoUsb{}; }
    StatoUsb Svuota(HandleUsb) override { return StatoUsb{}; }
    StatoUsb Chiudi(HandleUsb) override { return StatoUsb{}; }
};

class Banco : public QObject {
public:
    explicit Banco(const OpzioniSimulatore& opzioni = {})
        : simulato(opzioni), ambiente(sorveglia, {}), flusso(ambiente, simulato) {
        sorveglia.senzaAvviso = true;
        ambiente.alDifetto = [this](std::string_view testo) { difetti.emplace_back(testo); };
        Rispondi();
        Apri();
    }
    ~Banco() override { posto.reset(); }

    /// Makes the console, as a start of the program does.
    void Apri() {
        posto = std::make_unique<Postazione>(
            ambiente, cartella.Percorso(),
            Vettori{.seriale = &flusso, .usb = &usb, .catalogo = &catalogo});
        posto->Carica();
        posto->porta.fisso = LinkFisso{&flusso, "sim", "simulated 5520"};
        connect(&posto->finestra, &MainForm::Terminata, this, [this] { spento = true; });
        posto->Mostra();
    }
    MainForm& Finestra() { return posto->finestra; }
    template <class T> T* Trova(const char* nome) {
        return posto->finestra.findChild<T*>(QLatin1String(nome));
    }
    QAction* Voce(const char* nome) { return Trova<QAction>(nome); }
    void Scheda(Modalita modalita) {
        Trova<QTabBar>("SSTabMode")->setCurrentIndex(static_cast<int>(modalita));
    }
    /// A click that runs inside the pump of whatever is under way, as a user's does.
    void Fra(int ms, std::function<void()> cosa) { QTimer::singleShot(ms, this, std::move(cosa)); }
    /// Once, as soon as `caso` holds, from the pump.
    void Quando(std::function<bool()> caso, std::function<void()> cosa) {
        auto* guarda = new QTimer(this);
        connect(guarda, &QTimer::timeout, this, [guarda, caso, cosa] {
            if (!caso())
                return;
            guarda->stop();
            cosa();
        });
        guarda->start(10);
    }
    void Banda(const char* nome) { QVERIFY(AggiungiLaBanda(nome)); }
    bool AggiungiLaBanda(const char* nome) {
        for (QAction* voce : Trova<QPushButton>("CMBAddBanda")->menu()->actions())
            if (voce->text() == QLatin1String(nome)) {
                voce->trigger();
                return true;
            }
        return false;
    }
    /// A line of few steps, so that a run is short.
    void RigaCorta(double start = 0.15, double stop = 0.65) {
        ScanLine& riga = posto->scan.Righe[0];
        ImpostaLineaDefault(riga, 0);
        riga.Start = start;
        riga.Stop = stop;
        riga.RbwId = 2;
        riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
        posto->finestra.AggiornaGriglia();
    }

    CartellaProva cartella;
    RicevitoreSimulato simulato;
    SorvegliaLink sorveglia;
    AmbienteQt ambiente;
    FlussoSimulato flusso;
    NienteUsb usb;
    CatalogoProva catalogo;
    std::unique_ptr<Postazione> posto;
    std::vector<std::string> difetti;
    /// Buttons for the boxes to come, in order; without one the careful answer is pressed.
    std::deque<QMessageBox::StandardButton> risposte;
    QStringList riquadri;
    bool spento = false; ///< the process was asked to end

private:
    void Rispondi() {
        auto* orologio = new QTimer(this);
        connect(orologio, &QTimer::timeout, this, [this] {
            auto* scatola = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!scatola || scatola->objectName() != QLatin1String("Riquadro"))
                return;
            riquadri << scatola->text();
            QAbstractButton* pulsante = scatola->escapeButton();
            if (!risposte.empty()) {
                pulsante = scatola->button(risposte.front());
                risposte.pop_front();
            }
            if (!pulsante)
                pulsante = scatola->buttons().constFirst();
            pulsante->click();
        });
        orologio->start(20);
    }
};

} // namespace orvane::prova
