// What follows from the model where no whole identification shows it: names and limits.
#include <gtest/gtest.h>

#include "link/ReceiverModel.h"

namespace orvane {
namespace {

using M = ReceiverModel;

TEST(NomeModello, WhatStandsBeforeWhat) {
    const std::pair<M, std::string> casi[] = {
        {{.EstensioneAttiva = true}, "5540"},
        {{.TipoFrontEnd = 2}, "5/GX2207"},
        {{.Is5520F = true, .TipoFrontEnd = 3}, "FGX2207"},
        {{.Is5520F = true}, "F5520"},
        {{.Is60OEM = true, .HaK3XK6X = true}, "OEM"},
        {{.HaK3XK6X = true, .EstensioneAttiva = true}, "5520/K3X"}};
    for (const auto& [modello, nome] : casi) {
        EXPECT_EQ(NomeModello(modello, false), nome);
        EXPECT_EQ(NomeModello(modello, true), nome == "5/GX2207" ? "GX2207" : nome);
    }
}

TEST(ImpostaModelCaps, EachLimitOfBothModes) {
    struct Caso {
        M modello;
        double minimo;
        double massimo;
        double risoluzione = 0.000001;
    };
    for (const Caso& caso :
         {Caso{M{}, 0.00001, 30.1},
          Caso{M{.UnitaEstensione = 2, .EstensioneAttiva = true}, 6000.001, 18000},
          Caso{M{.Is5520F = true, .TipoFrontEnd = 3}, 0.009, 30.1},
          Caso{M{.TipoFrontEnd = 2, .EstensioneAttiva = true}, 0.009, 30.1},
          Caso{M{.Is3360 = true, .Is3360_03 = true, .ModoK3X = 1}, 0.009, 30.1, 0.009},
          Caso{M{.Is3360 = true, .Is3360_03 = true, .ModoK3X = 2}, 28, 3000},
          Caso{M{.Is3360 = true, .Is3360_02 = true, .ModoK3X = 2}, 28, 1000},
          Caso{M{.Is60OEM = true, .HaK3XK6X = true, .ModoK3X = 2}, 28, 6000},
          Caso{M{.ModelloOEM = 2, .ModoK3X = 1, .FMinLink = 25}, 0.00001, 30.1},
          Caso{M{.ModelloOEM = 2, .ModoK3X = 2}, 30, 6000},
          Caso{M{.ModelloOEM = 3, .ModoK3X = 2, .FMinLink = 25, .FMaxLink = 6020}, 25, 6020}}) {
        for (const ModelCaps& caps : ImpostaModelCaps(caso.modello)) {
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
