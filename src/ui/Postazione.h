// Every record of the console made once and wired: what a program and a test of the windows share.
#pragma once

#include <filesystem>

#include "console/Console.h"
#include "platform/qt/AmbienteQt.h"
#include "ui/MainForm.h"

namespace orvane {

/// The order of the members is the order of making; the window comes before what it speaks to, and
/// is given it by `Collega`.
struct Postazione {
    Postazione(AmbienteQt& ambienteQt, const std::filesystem::path& dati, const Vettori& vettori);

    /// Loads the data; the link is the panel's then, until something else chooses it.
    void Carica();
    /// Shows the window and enters the first mode.
    void Mostra();

    AmbienteQt& ambiente;
    StatoProtocollo protocollo;
    LogTraffico log;
    Porta porta;
    Scrivania scrivania;
    ScanRecord scan;
    StatoCorsa statoCorsa;
    StatoConsole statoConsole;
    MainForm finestra;
    Ricevitore ricevitore;
    Corsa corsa;
    Console console;
};

} // namespace orvane
