// Filters by model and mode, their numbers on the wire, and the lists of attenuations.
#include <gtest/gtest.h>

#include "base/Testo.h"
#include "link/Dinamica.h"
#include "link/ElencoAtt.h"
#include "link/ElencoBW.h"

namespace orvane {
namespace {

using enum Modalita;

std::string Ids(ListaFiltri filtri) {
    std::vector<std::string> pezzi;
    for (const VoceFiltro& filtro : filtri)
        pezzi.push_back(std::to_string(filtro.id));
    return Unisci(pezzi, " ");
}

const ReceiverModel kMil = {.ConFiltriMil = true};
const ReceiverModel kMilF = {.Is5520F = true, .ConFiltriMil = true};
const ReceiverModel k3360Largo = {.Is3360 = true, .EstensioneAttiva = true};

TEST(ElencoBW, EachModelHasItsFilters) {
    const struct {
        ReceiverModel modello;
        const char* manual; ///< numbers; 0 is "AUTO CISPR", and Analyzer lacks it
    } casi[] = {
        {{.EstensioneAttiva = true}, "0 9 1 2 3 4 5 10 12"},
        {k3360Largo, "0 1 2 3 4 5 10 7"},
        {{.Is3360 = true, .Is3360_03 = true, .EstensioneAttiva = true}, "0 9 1 2 3 4 5 10 12"},
        {{.Is3360 = true, .Is3360_00 = true}, "0 1 2 3 4 5 6"},
        {{.Is3360 = true, .Is3360_02 = true}, "0 1 2 3 4 5 8 6 7"},
        {{}, "0 1 2 3 4 5 6 7"},
        {{.TipoFrontEnd = 2}, "0 1 2 3 4 5 6 7"},
        {{.Is5520F = true}, "0 1 2 3 4 5 8 6 7"},
        {{.TipoFrontEnd = 1}, "0 1 2 3 4 5 8 6 7"},
        {kMil, "0 1 2 3 4 5 6 7 11 22 23"},
        {kMilF, "0 1 2 3 4 5 8 6 7 11 22 23 24"},
        {{.TipoFrontEnd = 1, .ConFiltriMil = true}, "0 1 2 3 4 5 8 6 7 11 22 23 24"},
        // The fast front-ends stop before the narrow Mil filters.
        {{.Is5520F = true, .TipoFrontEnd = 2, .ConFiltriMil = true}, "0 1 2 3 4 5 6 7 11 22"},
        {{.Is5520F = true, .TipoFrontEnd = 3, .ConFiltriMil = true}, "0 1 2 3 4 5 6 7 11 22"},
    };
    for (const auto& caso : casi) {
        const ListaFiltri manual = ElencoBW(caso.modello, {.modalita = Manual});
        EXPECT_EQ(Ids(manual), caso.manual);
        EXPECT_EQ(manual.front().nome, "AUTO CISPR");
        EXPECT_EQ("0 " + Ids(ElencoBW(caso.modello, {})), caso.manual);
        for (size_t i = 0; i < manual.size(); ++i)
            EXPECT_EQ(TrovaRBWSelAM(manual, manual[i].id), i);
    }
    const ReceiverModel veloce = {.Is5520F = true, .TipoFrontEnd = 3, .ConFiltriMil = true};
    EXPECT_EQ(ElencoBW(veloce, {.rigaComando = "x /NOCMILFRFAST"}).back().nome, "10 Hz Mil");
    EXPECT_EQ(Ids(ElencoBW({}, {.modalita = Manual, .demodulatore = true})), "3 4 5 6 11");
    EXPECT_EQ(ElencoBW(kMil, {.modalita = Manual, .demodulatore = true}).size(), 11u);
}

TEST(ElencoBW, AFilterThatTheListLacksIsItsLastRow) {
    EXPECT_EQ(TrovaRBWSelAM(ElencoBW(kMil, {.modalita = Manual}), 24), 10u);
    EXPECT_EQ(TrovaRBWSelAM(ElencoBW(k3360Largo, {}), 12), 6u);
    EXPECT_EQ(TrovaRBWSelAM(ElencoBW(kMil, {}), 0), std::nullopt);
}

TEST(ElencoBW, AStoredChoiceIsFoundAgain) {
    const ListaFiltri semplice = ElencoBW({}, {});
    EXPECT_EQ(RigaFiltro(semplice, "10 Hz Mil", 11), semplice.size() - 1);
    EXPECT_EQ(RigaFiltro(semplice, "", -3), 0u);
    // The lists of the two modes are a row apart: the name decides.
    EXPECT_EQ(RigaFiltro(ElencoBW({}, {.modalita = Manual}), "9 kHz CISPR  ", 5), 6u);
}

TEST(ElencoBW, ACoupledFilterFollowsItsSpan) {
    const struct {
        double span;
        int estesa, stretta, mil, milF;
    } casi[] = {{50.1, 9, 1, 1, 1},     {50, 1, 1, 1, 1},     {20, 2, 2, 2, 2},
                {6, 3, 3, 3, 3},        {2, 4, 4, 4, 4},      {0.6, 5, 5, 5, 5},
                {0.2, 5, 5, 22, 8},     {0.006, 5, 5, 23, 8}, {0.0006, 5, 5, 24, 8},
                {0.00061, 5, 5, 23, 8}, {0, 5, 5, 24, 8}};
    for (const auto& caso : casi) {
        EXPECT_EQ(FiltroCoupled({.EstensioneAttiva = true}, caso.span), caso.estesa) << caso.span;
        EXPECT_EQ(FiltroCoupled({}, caso.span), caso.stretta) << caso.span;
        EXPECT_EQ(FiltroCoupled(kMil, caso.span), caso.mil) << caso.span;
        EXPECT_EQ(FiltroCoupled(kMilF, caso.span), caso.milF) << caso.span;
    }
    EXPECT_EQ(FiltroCoupled(k3360Largo, 51), 1);
    EXPECT_EQ(FiltroCoupled({.Is5520F = true}, 0.1), 8);
}

TEST(ElencoBW, TheCaptionTellsTheFilterInUse) {
    const ListaFiltri filtri = ElencoBW(kMil, {.modalita = Manual});
    const auto automatico = MostraFiltroInUso(filtri, {.automatico = true, .id = 6}, Manual);
    EXPECT_EQ(automatico->riga, 0u);
    EXPECT_EQ(automatico->didascalia, "BW IF 9 kHz CISPR");
    EXPECT_TRUE(automatico->carattereStretto);
    EXPECT_FALSE(automatico->detectorAbilitati);
    const auto manuale = MostraFiltroInUso(filtri, {.id = 22}, Manual);
    EXPECT_EQ(manuale->riga, 9u);
    EXPECT_FALSE(manuale->carattereStretto);
    EXPECT_TRUE(manuale->detectorAbilitati);
    EXPECT_TRUE(MostraFiltroInUso(ElencoBW(kMil, {}), {.id = 6}, Analyzer)->detectorAbilitati);
    EXPECT_FALSE(MostraFiltroInUso(ElencoBW(kMil, {}), {.id = 0}, Analyzer));
}

TEST(ElencoAtt, EachModelEndsSomewhereElse) {
    const struct {
        ReceiverModel modello;
        bool antenna;
        size_t voci;
        int ultima, minAtt;
    } casi[] = {{{}, false, 9, 35, 10},
                {{.Is3360 = true}, false, 9, 35, 10},
                {{.EstensioneAttiva = true}, false, 27, 50, 30},
                {{.UnitaEstensione = 2, .EstensioneAttiva = true}, false, 27, 50, 30},
                {{.HaK3XK6X = true, .ModoK3X = 2}, false, 27, 50, 30},
                {{.TipoFrontEnd = 1}, true, 5, 30, 10},
                {{.TipoFrontEnd = 1}, false, 3, 10, 30},
                {{.Is5520F = true, .TipoFrontEnd = 3}, true, 5, 30, 10},
                {{.TipoFrontEnd = 2}, true, 3, 10, 10}};
    for (const auto& caso : casi) {
        const auto elenco = ElencoAtt(caso.modello, caso.antenna);
        EXPECT_EQ(elenco.size(), caso.voci);
        EXPECT_EQ(elenco.front(), kAttAuto);
        EXPECT_EQ(elenco.back(), caso.ultima);
        EXPECT_EQ(ElencoMinAtt(caso.modello, caso.antenna).back(), caso.minAtt);
    }
    const auto larga = ElencoAtt({.EstensioneAttiva = true}, false);
    EXPECT_EQ(larga[RigaAtt(larga, 15)], 16); // never less than what was asked for
    EXPECT_EQ(larga[RigaAtt(larga, 52)], 50);
    EXPECT_EQ(RigaAtt(larga, kAttAuto), 0u);
}

TEST(DinamicaTest, DynamicsAndReferenceLevel) {
    struct {
        bool estensione;
        int16_t dinamicaId, livello, preAmp, preSel;
        int dinamica, riferimento;
    } const casi[] = {{true, 6, 100, 1, 0, 120, 145}, {true, 6, 101, 1, 0, 120, 145},
                      {true, 1, 80, 0, 1, 100, 115},  {false, 0, 40, 0, 1, 80, 65},
                      {false, 2, 90, 1, 1, 120, 100}, {false, 3, 90, 1, 0, 120, 110},
                      {false, 99, 90, 0, 0, 120, 90}, {false, -1, -300, 0, 0, 80, 65}};
    for (const auto& caso : casi) {
        SetupRecord setup;
        setup.DinamicaId = caso.dinamicaId;
        setup.RefLevel = caso.livello;
        setup.PreAmp = caso.preAmp;
        setup.PreSel = caso.preSel;
        const Dinamica d = CalcolaDinamica({.EstensioneAttiva = caso.estensione}, setup);
        EXPECT_EQ(d.dinamica, caso.dinamica);
        EXPECT_EQ(d.riferimento, caso.riferimento);
    }
}

} // namespace
} // namespace orvane
