// What follows from the model: its name, its limits, its battery.
#include <gtest/gtest.h>

#include "link/ReceiverModel.h"

namespace orvane {
namespace {

using M = ReceiverModel&;
using Segna = void (*)(ReceiverModel&);

ReceiverModel Fatto(Segna segna) {
    ReceiverModel modello;
    segna(modello);
    return modello;
}

TEST(NomeModello, EachModel) {
    struct Caso {
        Segna segna;
        const char* nome;
        const char* conFrontEnd;
    };
    for (const Caso& caso : {
             Caso{[](M) {}, "5520", "5520"},
             Caso{[](M m) {
                      m.ModelloOEM = 1;
                      m.Is5520F = true;
                  },
                  "5520/60OEM", "5520/60OEM"},
             Caso{[](M m) { m.ModelloOEM = 2; }, "5520/VSD3", "5520/VSD3"},
             Caso{[](M m) { m.ModelloOEM = 3; }, "5520/T4470K", "5520/T4470K"},
             Caso{[](M m) { m.Is3360 = true; }, "3360", "3360"},
             Caso{[](M m) { m.Is3360 = m.Is3360_00 = true; }, "3360/00", "3360/00"},
             Caso{[](M m) { m.Is3360 = m.Is3360_01 = true; }, "3360/01", "3360/01"},
             Caso{[](M m) { m.Is3360 = m.Is3360_02 = true; }, "3360/02", "3360/02"},
             Caso{[](M m) { m.Is3360 = m.Is3360_03 = m.HaK3XK6X = true; }, "3360/03", "3360/03"},
             Caso{[](M m) { m.EstensioneAttiva = true; }, "5540", "5540"},
             Caso{[](M m) {
                      m.EstensioneAttiva = true;
                      m.UnitaEstensione = 1;
                  },
                  "5570", "5570"},
             Caso{[](M m) {
                      m.EstensioneAttiva = true;
                      m.UnitaEstensione = 2;
                  },
                  "5590", "5590"},
             Caso{[](M m) { m.TipoFrontEnd = 1; }, "GX2207", "GX2207"},
             Caso{[](M m) { m.TipoFrontEnd = 2; }, "5/GX2207", "GX2207"},
             Caso{[](M m) {
                      m.TipoFrontEnd = 3;
                      m.Is5520F = true;
                  },
                  "FGX2207", "FGX2207"},
             Caso{[](M m) { m.Is5520F = true; }, "F5520", "F5520"},
             Caso{[](M m) { m.HaK3XK6X = true; }, "5520/K3X", "5520/K3X"},
             Caso{[](M m) { m.HaK3XK6X = m.IsK0X = true; }, "5520/K0X", "5520/K0X"},
             Caso{[](M m) { m.HaK3XK6X = m.IsK6X = true; }, "5520/K6X", "5520/K6X"},
             Caso{[](M m) { m.HaK3XK6X = m.Is60OEM = true; }, "OEM", "OEM"},
             Caso{[](M m) { m.HaK3XK6X = m.EstensioneAttiva = true; }, "5520/K3X", "5520/K3X"},
         }) {
        EXPECT_EQ(NomeModello(Fatto(caso.segna), false), caso.nome);
        EXPECT_EQ(NomeModello(Fatto(caso.segna), true), caso.conFrontEnd);
    }
}

TEST(ImpostaModelCaps, EachModelAndRange) {
    struct Caso {
        Segna segna;
        double minimo;
        double massimo;
        double risoluzione = 0.000001;
    };
    for (const Caso& caso : {
             Caso{[](M) {}, 0.00001, 30.1},
             Caso{[](M m) { m.EstensioneAttiva = true; }, 28, 3000},
             Caso{[](M m) {
                      m.EstensioneAttiva = true;
                      m.UnitaEstensione = 1;
                  },
                  28, 6000},
             Caso{[](M m) {
                      m.EstensioneAttiva = true;
                      m.UnitaEstensione = 2;
                  },
                  6000.001, 18000},
             Caso{[](M m) { m.TipoFrontEnd = 1; }, 0.009, 30.1},
             Caso{[](M m) {
                      m.TipoFrontEnd = 3;
                      m.Is5520F = true;
                  },
                  0.009, 30.1},
             Caso{[](M m) {
                      m.TipoFrontEnd = 2;
                      m.EstensioneAttiva = true;
                  },
                  0.009, 30.1},
             Caso{[](M m) {
                      m.Is3360 = true;
                      m.ModoK3X = 1;
                  },
                  0.15, 30.1, 0.15},
             Caso{[](M m) {
                      m.Is3360 = m.Is3360_00 = true;
                      m.ModoK3X = 1;
                  },
                  0.15, 30.1, 0.15},
             Caso{[](M m) {
                      m.Is3360 = m.Is3360_01 = true;
                      m.ModoK3X = 1;
                  },
                  0.009, 30.1, 0.009},
             Caso{[](M m) {
                      m.Is3360 = m.Is3360_03 = true;
                      m.ModoK3X = 1;
                  },
                  0.009, 30.1, 0.009},
             Caso{[](M m) {
                      m.Is3360 = m.Is3360_03 = true;
                      m.ModoK3X = 2;
                  },
                  28, 3000},
             Caso{[](M m) {
                      m.Is3360 = m.Is3360_02 = true;
                      m.ModoK3X = 2;
                  },
                  28, 1000},
             Caso{[](M m) {
                      m.HaK3XK6X = true;
                      m.ModoK3X = 1;
                  },
                  0.00001, 30.1},
             Caso{[](M m) {
                      m.HaK3XK6X = true;
                      m.ModoK3X = 2;
                  },
                  28, 3000},
             Caso{[](M m) {
                      m.HaK3XK6X = m.IsK0X = true;
                      m.ModoK3X = 2;
                  },
                  28, 300},
             Caso{[](M m) {
                      m.HaK3XK6X = m.IsK6X = true;
                      m.ModoK3X = 2;
                  },
                  28, 6000},
             Caso{[](M m) {
                      m.HaK3XK6X = m.Is60OEM = true;
                      m.ModoK3X = 2;
                  },
                  28, 6000},
             Caso{[](M m) {
                      m.ModelloOEM = 1;
                      m.ModoK3X = 1;
                  },
                  0.00001, 30.1},
             Caso{[](M m) {
                      m.ModelloOEM = 1;
                      m.ModoK3X = 2;
                  },
                  28, 6000},
             Caso{[](M m) {
                      m.ModelloOEM = 2;
                      m.ModoK3X = 1;
                      m.FMinLink = 25;
                  },
                  0.00001, 30.1},
             Caso{[](M m) {
                      m.ModelloOEM = 2;
                      m.ModoK3X = 2;
                  },
                  30, 6000},
             Caso{[](M m) {
                      m.ModelloOEM = 3;
                      m.ModoK3X = 2;
                      m.FMinLink = 25;
                      m.FMaxLink = 6020;
                  },
                  25, 6020},
         }) {
        for (const ModelCaps& caps : ImpostaModelCaps(Fatto(caso.segna))) {
            for (const double basso : {caps.FMinAn, caps.FMinMa, caps.FMinScan})
                EXPECT_EQ(basso, caso.minimo);
            for (const double alto : {caps.FMaxAn, caps.FMaxCenter, caps.FMaxMa, caps.FMaxScan})
                EXPECT_EQ(alto, caso.massimo);
            EXPECT_EQ(caps.FRisoluzione, caso.risoluzione);
        }
    }
}

} // namespace
} // namespace orvane
