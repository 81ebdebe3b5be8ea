// The starter library: every edge of every limit, and its copy into the data tree.
#include <cmath>
#include <map>

#include "ScrivaniaProva.h"
#include "base/PaginaCodici.h"
#include "base/Percorsi.h"
#include "data/Interpolazione.h"
#include "data/LibreriaLimiti.h"
#include "data/LimitiSmart.h"
#include "data/ModificaTabella.h"

namespace orvane::prova {
namespace {

/// A frequency in MHz with the level that the standard gives there, dB.
struct Attesa {
    double mhz;
    double dB;
};
using Attese = std::vector<Attesa>;

// At an edge the lower of the two levels; inside, on the logarithm of the frequency.
const Attese kMainsAQP = {{0.15, 79}, {0.3, 79}, {0.49999, 79}, {0.5, 73}, {30, 73}};
const Attese kMainsAAV = {{0.15, 66}, {0.3, 66}, {0.49999, 66}, {0.5, 60}, {30, 60}};
const Attese kMainsBQP = {{0.15, 66}, {0.2, 63.61},  {0.27386128, 61}, {0.5, 56},
                          {5, 56},    {5.00001, 60}, {30, 60}};
const Attese kMainsBAV = {{0.15, 56}, {0.2, 53.61},  {0.27386128, 51}, {0.5, 46},
                          {5, 46},    {5.00001, 50}, {30, 50}};
const Attese kCispr32A = {{30, 40}, {230, 40}, {230.0001, 47}, {1000, 47}};
const Attese kCispr32B = {{30, 30}, {230, 30}, {230.0001, 37}, {1000, 37}};
const Attese kFcc109A = {{30, 39.1},      {88, 39.1},       {88.0001, 43.5},
                         {216, 43.5},     {216.0001, 46.4}, {960, 46.4},
                         {960.001, 49.5}, {1000, 49.5},     {18000, 49.5}};
const Attese kFcc109B = {{30, 40},       {88, 40},  {88.0001, 43.5}, {216, 43.5},
                         {216.0001, 46}, {960, 46}, {960.001, 54},   {18000, 54}};

const std::map<std::string, Attese, std::less<>> kLibreria = {
    {"CISPR 32 A mains QP", kMainsAQP},        {"CISPR 32 A mains AV", kMainsAAV},
    {"CISPR 32 B mains QP", kMainsBQP},        {"CISPR 32 B mains AV", kMainsBAV},
    {"CISPR 32 A radiated 10m QP", kCispr32A}, {"CISPR 32 B radiated 10m QP", kCispr32B},
    {"CISPR 11 G1 A mains QP", kMainsAQP},     {"CISPR 11 G1 A mains AV", kMainsAAV},
    {"CISPR 15 mains QP", kMainsBQP},          {"CISPR 15 mains AV", kMainsBAV},
    {"FCC 15-107 A mains QP", kMainsAQP},      {"FCC 15-107 A mains AV", kMainsAAV},
    {"FCC 15-107 B mains QP", kMainsBQP},      {"FCC 15-107 B mains AV", kMainsBAV},
    {"FCC 15-109 A radiated 10m", kFcc109A},   {"FCC 15-109 B radiated 3m", kFcc109B},
};

TEST(LibreriaLimiti, HoldsAtEveryEdge) {
    const auto libreria = LibreriaLimiti();
    ASSERT_EQ(libreria.size(), kLibreria.size());
    for (const LimiteLibreria& limite : libreria) {
        const auto voce = kLibreria.find(limite.nome);
        ASSERT_NE(voce, kLibreria.end()) << limite.nome;
        for (const Attesa& a : voce->second)
            EXPECT_EQ(ValoreLimite(limite.tabella, HzDaMhz(a.mhz)), std::lround(a.dB * 100))
                << limite.nome << " at " << a.mhz;
        const float primo = HzDaMhz(voce->second.front().mhz);
        const float ultimo = HzDaMhz(voce->second.back().mhz);
        EXPECT_EQ(ValoreLimite(limite.tabella, std::nextafter(primo, 0.0f)), kNessunValore);
        EXPECT_EQ(ValoreLimite(limite.tabella, std::nextafter(ultimo, 1e20f)), kNessunValore);
    }
}

TEST(LibreriaLimiti, EachTableSuitsItsRecordAndTheReceiver) {
    for (const LimiteLibreria& limite : LibreriaLimiti()) {
        EXPECT_LE(InAnsi(limite.tabella.Title).size(), kLarghezzaTitolo) << limite.nome;
        EXPECT_EQ(ControllaNomeMisura(limite.nome), limite.nome);
        EXPECT_LE(NumeroPunti(limite.tabella), kMaxPuntiLimite) << limite.nome;
        const bool radiato = limite.tabella.Title.find("radiated") != std::string::npos;
        EXPECT_EQ(limite.tabella.UnitId, radiato ? 4 : 1) << limite.nome;
        EXPECT_EQ(limite.tabella.LinFreq, 0);
    }
}

} // namespace
} // namespace orvane::prova
