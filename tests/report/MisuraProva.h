// A small measure in memory, with its limits and factors, for tests of reports.
#pragma once

#include <cmath>
#include <initializer_list>
#include <utility>

#include "report/ReportModel.h"

namespace orvane::prova {

struct PuntoCurva {
    float hz;
    double dB;
};

inline LimFacRecord Curva(std::initializer_list<PuntoCurva> punti) {
    LimFacRecord curva;
    size_t i = 0;
    for (const PuntoCurva& p : punti) {
        curva.Freq[i] = p.hz;
        curva.Value[i++] = static_cast<int16_t>(std::lround(p.dB * 100));
    }
    return curva;
}

/// dB in dBµV of one detector; the others were not measured.
inline CampioneTraccia Campione(double mhz, double dB, DetectorKind detector = DetectorKind::Peak) {
    CampioneTraccia c{.freqMhz = mhz};
    c.livello.fill(kNessunLivello);
    c.livello[static_cast<size_t>(detector)] = static_cast<int16_t>(std::lround(dB * 100));
    return c;
}

struct BancoReport {
    MisuraAperta misura{.nome = "Motor", .base = "Motor"};
    SetupRecord setup{.UnitId = 1};
    EnvRecord env;

    void Traccia(SweepTrace traccia) {
        misura.traccia = std::make_shared<SweepTrace>(std::move(traccia));
    }
    void Limite(size_t slot, const std::string& nome, std::initializer_list<PuntoCurva> punti) {
        setup.LimitOn[slot] = 1;
        setup.LimitName[slot] = nome;
        misura.tabelle.slot[kPrimoLimite + slot] = Curva(punti);
    }
    void Fattore(size_t quale, const std::string& nome, std::initializer_list<PuntoCurva> punti) {
        setup.FactorOn[quale] = 1;
        setup.FactorName[quale] = nome;
        misura.tabelle.slot[kPrimoFattore + quale] = Curva(punti);
    }
    FonteReport Fonte(bool invertita = false) const {
        return {.misura = misura, .setup = setup, .env = env, .invertita = invertita};
    }
};

} // namespace orvane::prova
