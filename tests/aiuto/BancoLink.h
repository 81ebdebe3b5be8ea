// The link on a bench: a scripted peer or a scripted USB driver, and a window that notes the
// banner.
#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "aiuto/AmbienteProva.h"
#include "aiuto/CartellaProva.h"
#include "aiuto/DriverUsbProva.h"
#include "aiuto/PeerProva.h"
#include "link/LogTraffico.h"
#include "link/Ricevitore.h"

namespace orvane::prova {

struct CatalogoProva : CatalogoPorte {
    std::vector<PortaCom> porte = {{"Serial adapter (COM1)", "/dev/one"},
                                   {"Serial adapter (COM7)", "/dev/seven"},
                                   {"Standard bLuEtOoTh port (COM9)", "/dev/rfcomm0"}};
    std::vector<PortaCom> Elenca() override { return porte; }
};

struct FinestraProva : VistaErrore {
    std::vector<std::string> fatti;

    void MostraStriscia(const std::string& testo) override { fatti.push_back("mostra " + testo); }
    void NascondiStriscia() override { fatti.push_back("nascondi"); }
    void ColoraStriscia(bool scambiata) override {
        fatti.push_back(scambiata ? "scambiata" : "diritta");
    }
    void AbilitaSSTabMode() override { fatti.push_back("abilita"); }
    size_t Quanti(const std::string& fatto) const {
        return static_cast<size_t>(std::count(fatti.begin(), fatti.end(), fatto));
    }
};

/// Which carrier the environment's pump listens to is the one made last.
struct BancoBase {
    explicit BancoBase(std::string riga) { ambiente.riga = std::move(riga); }

    std::string File(const std::string& nome) const {
        std::ifstream file(cartella.Percorso() / nome, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    double Trascorsi() const { return ambiente.ora - inizio; }
    std::vector<std::string> Riquadri() const { return ambiente.Testi(); }

    CartellaProva cartella;
    AmbienteProva ambiente;
    double inizio = ambiente.ora;
    StatoProtocollo stato;
    FinestraProva finestra;
    CatalogoProva catalogo;
};

/// A serial link, COM7 unless told otherwise, closed at first.
struct BancoSeriale : BancoBase {
    explicit BancoSeriale(std::string riga = {}) : BancoBase(std::move(riga)) {
        porta.link.TipoLink = 0;
        porta.link.NumeroCom = 7;
    }
    DriverUsbProva usb{ambiente};
    PeerProva peer{ambiente};
    LogTraffico log{ambiente, cartella.Percorso()};
    Porta porta{ambiente, stato, log, Vettori{&peer, &usb, &catalogo}};
    Ricevitore r{ambiente, stato, log, porta, finestra};
};

/// The same, open.
struct BancoAperto : BancoSeriale {
    explicit BancoAperto(std::string riga = {}) : BancoSeriale(std::move(riga)) {
        porta.ApriPorta(true);
    }
};

/// A USB link, closed at first.
struct BancoUsb : BancoBase {
    explicit BancoUsb(std::string riga = {}) : BancoBase(std::move(riga)) {}
    PeerProva peer{ambiente};
    DriverUsbProva usb{ambiente};
    LogTraffico log{ambiente, cartella.Percorso()};
    Porta porta{ambiente, stato, log, Vettori{&peer, &usb, &catalogo}};
    Ricevitore r{ambiente, stato, log, porta, finestra};
};

using Testi = std::vector<std::string>;

} // namespace orvane::prova
