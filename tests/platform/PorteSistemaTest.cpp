#include <gtest/gtest.h>

#include <fstream>

#include "aiuto/CartellaProva.h"
#include "platform/PorteSistema.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

/// A machine's device tree, as far as serial devices are listed from it.
struct Macchina {
    prova::CartellaProva cartella;
    fs::path ports = cartella.Percorso() / "Ports";
    fs::path dev = cartella.Percorso() / "dev";
    fs::path sys = cartella.Percorso() / "sys";

    Macchina() {
        for (const fs::path& p : {ports, dev, sys / "class" / "tty"})
            fs::create_directories(p);
    }
    static void Scrivi(const fs::path& file, const std::string& testo) {
        fs::create_directories(file.parent_path());
        std::ofstream(file) << testo;
    }
    void Dispositivo(const std::string& nome) { Scrivi(dev / nome, ""); }
    /// A UART that the kernel has a name for; `tipo` 0 where nothing answers there.
    void Uart(const std::string& nome, const std::string& tipo, bool conDriver = true) {
        Dispositivo(nome);
        const fs::path voce = sys / "class" / "tty" / nome;
        Scrivi(voce / "type", tipo + "\n");
        fs::create_directories(voce / "device");
        if (conDriver)
            fs::create_directories(voce / "device" / "driver");
    }
    /// An adapter with its product text, and its port `sotto` it.
    void Usb(const std::string& nome, const std::string& prodotto, const std::string& sotto) {
        Dispositivo(nome);
        const fs::path apparecchio = sys / "devices" / ("usb-" + nome);
        Scrivi(apparecchio / "product", prodotto);
        const fs::path porta = apparecchio / sotto;
        fs::create_directories(porta);
        fs::create_directories(sys / "class" / "tty" / nome);
        fs::create_directory_symlink(porta, sys / "class" / "tty" / nome / "device");
    }
    void Legame(const std::string& nome, const fs::path& dove) {
        fs::create_symlink(dove, ports / nome);
    }
    std::vector<std::string> Elenca() {
        std::vector<std::string> righe;
        for (const PortaCom& p : PorteSistema(ports, dev, sys).Elenca())
            righe.push_back(
                p.nome + " = " +
                fs::path(p.dispositivo).lexically_relative(cartella.Percorso()).string());
        return righe;
    }
};

using Righe = std::vector<std::string>;

TEST(PorteSistema, ListsTheKindsInOrderAndEachByNumber) {
    Macchina m;
    for (const char* nome : {"ttyUSB10", "ttyUSB2", "rfcomm0", "ttyACM0", "tty1", "ttyS", "ttyUSB",
                             "ttyUSBx", "null", "ttyprintk"})
        m.Dispositivo(nome);
    m.Uart("ttyS0", "4");
    m.Uart("ttyS1", "0"); // UARTs that are only names
    m.Uart("ttyS2", "4", false);
    m.Dispositivo("ttyS3");
    EXPECT_EQ(
        m.Elenca(),
        (Righe{"Communications Port (COM1) = dev/ttyS0", "USB Serial Port (COM2) = dev/ttyUSB2",
               "USB Serial Port (COM3) = dev/ttyUSB10", "USB Modem Port (ACM) (COM4) = dev/ttyACM0",
               "Standard Serial over Bluetooth link (COM5) = dev/rfcomm0"}));
}

TEST(PorteSistema, LinksWinTheirNumbersFromTheDevices) {
    Macchina m;
    m.Uart("ttyS0", "4");
    m.Uart("ttyS1", "4");
    m.Dispositivo("ttyUSB0");
    m.Legame("COM1", "../dev/ttyUSB0");
    m.Legame("com4", "/dev/pts/77");
    // The one that lost its own number does not take another's.
    EXPECT_EQ(
        m.Elenca(),
        (Righe{"USB Serial Port (COM1) = Ports/COM1", "Serial Port (COM4) = Ports/com4",
               "Communications Port (COM3) = dev/ttyS0", "Communications Port (COM2) = dev/ttyS1",
               "USB Serial Port (COM5) = dev/ttyUSB0"}));
}

TEST(PorteSistema, LinksAreTakenByNameInAnyCaseFrom1To99) {
    Macchina m;
    m.Legame("COM99", "x");
    m.Legame("Com7", "x");
    m.Legame("COM12", "x");
    for (const char* nome : {"COM0", "COM01", "COM100", "COM", "COM1x", "COM-1", "XCOM1", "COM 1"})
        m.Legame(nome, "x");
    Macchina::Scrivi(m.ports / "COM3", "a file is no port");
    fs::create_directory(m.ports / "COM4");
    EXPECT_EQ(m.Elenca(),
              (Righe{"Serial Port (COM7) = Ports/Com7", "Serial Port (COM12) = Ports/COM12",
                     "Serial Port (COM99) = Ports/COM99"}));
}

TEST(PorteSistema, ALinkIsNamedAfterWhatItPointsTo) {
    Macchina m;
    m.Usb("ttyUSB0", "  FT232R USB UART \n", "1-1:1.0/ttyUSB0");
    m.Usb("ttyUSB2", "Cable (COM9)\n", "1-1:1.0/ttyUSB2"); // would be taken for a number
    m.Usb("ttyACM0", "KRV 3360\n", "1-1:1.0");
    m.Scrivi(m.dev / "serial" / "x", "");
    fs::create_symlink("../ttyUSB0", m.dev / "serial" / "by-name");
    m.Legame("COM1", "../dev/serial/by-name");
    m.Legame("COM2", "/dev/rfcomm3"); // not bound yet
    EXPECT_EQ(m.Elenca(),
              (Righe{"FT232R USB UART (COM1) = Ports/COM1",
                     "Standard Serial over Bluetooth link (COM2) = Ports/COM2",
                     "FT232R USB UART (COM3) = dev/ttyUSB0", "USB Serial Port (COM4) = dev/ttyUSB2",
                     "KRV 3360 (COM5) = dev/ttyACM0"}));
}

} // namespace
} // namespace orvane
