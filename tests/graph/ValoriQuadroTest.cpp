// Grid, labels and trace points on the recorded picture, in every unit, against values that were
// computed apart from this program.
#include <gtest/gtest.h>

#include <map>

#include "aiuto/SuperficieRegistra.h"
#include "graph/Grafico.h"

namespace orvane {
namespace {

using prova::SuperficieRegistra;

struct Atteso {
    int unitId, refLevel, dinamicaId, attenuator;
    double start, stop;
    std::string livelli;   ///< labels from the bottom up
    std::string frequenze; ///< labels with the column of their line, from the left
    size_t orizzontali, verticali;
    int sommaColonne; ///< of all vertical lines but the frame
    double freqMhz;   ///< a sample of the trace, and its pixel
    int16_t livello;
    Punto pixel;
};

const Atteso kAttesi[] = {
    {0,
     -20,
     2,
     10,
     0.009,
     0.15,
     "-107 dBm|-97|-87 dBm|-77|-67 dBm|-57|-47 dBm|-37|-27 dBm|-17|-7 dBm|",
     "10 k@37|20 k@278|50 k@598|100 k@840|",
     22,
     11,
     5635,
     0.047765,
     6434,
     {683.983, 209.316}},
    {1,
     0,
     1,
     0,
     0.15,
     30,
     "10|20 dBµV|30|40 dBµV|50|60 dBµV|70|80 dBµV|90|100 dBµV|",
     "200 k@53|500 k@223|1 M@351|2 M@480|5 M@649|10 M@778|20 M@906|",
     19,
     20,
     9967,
     2.757716,
     6734,
     {641.078, 197.275}},
    {2,
     5,
     0,
     0,
     30,
     1000,
     "-24|-14 dBµA|-4|6 dBµA|16|26 dBµA|36|",
     "50 M@143|100 M@337|200 M@531|500 M@787|1 G@981|",
     14,
     17,
     8830,
     225.166605,
     5634,
     {665.899, 178.354}},
    {3,
     0,
     6,
     20,
     1000,
     18000,
     "13|23 dBpW|33|43 dBpW|53|63 dBpW|73|83 dBpW|93|103 dBpW|113|123 dBpW|133|143 dBpW|153|"
     "163 dBpW|173|183 dBpW|193|",
     "1 G@0|2 G@235|5 G@546|10 G@782|",
     38,
     10,
     5127,
     5515.432893,
     13434,
     {681.547, 232.130}},
    {4,
     -15,
     1,
     0,
     30,
     1000,
     "0 dBµV/m|10|20 dBµV/m|30|40 dBµV/m|50|60 dBµV/m|70|80 dBµV/m|",
     "50 M@143|100 M@337|200 M@531|500 M@787|1 G@981|",
     19,
     17,
     8830,
     225.166605,
     5234,
     {665.899, 197.275}},
    {5,
     -30,
     3,
     5,
     0.15,
     30,
     "-51.5 dBµA/m|-41.5|-31.5 dBµA/m|-21.5|-11.5 dBµA/m|-1.5|8.5 dBµA/m|18.5|28.5 dBµA/m|38.5|"
     "48.5 dBµA/m|58.5|68.5 dBµA/m|",
     "200 k@53|500 k@223|1 M@351|2 M@480|5 M@649|10 M@778|20 M@906|",
     26,
     20,
     9967,
     2.757716,
     7384,
     {641.078, 217.652}},
    {6,
     10,
     1,
     40,
     0.009,
     30,
     "20.5|30.5 dBpT|40.5|50.5 dBpT|60.5|70.5 dBpT|80.5|90.5 dBpT|100.5|",
     "10 k@13|20 k@97|50 k@207|100 k@291|200 k@375|500 k@486|1 M@570|2 M@653|5 M@764|10 M@848|"
     "20 M@932|",
     18,
     31,
     15267,
     0.6755,
     12684,
     {624.229, 197.275}}};

std::string Scritte(const SuperficieRegistra& superficie, Ancora ancora) {
    std::map<double, std::string> testi;
    for (const auto& t : superficie.testi)
        if (t.ancora == ancora && ancora == Ancora::DestraMezzo)
            testi[t.dove.y] = t.testo + "|";
        else if (t.ancora == ancora)
            testi[t.dove.x] = t.testo + "@" + std::to_string(static_cast<int>(t.dove.x)) + "|";
    std::string insieme;
    for (const auto& [posto, testo] : testi)
        insieme += testo;
    return insieme;
}

TEST(ValoriQuadro, LineeScritteEPuntiInOgniUnita) {
    for (const Atteso& a : kAttesi) {
        SCOPED_TRACE(a.unitId);
        SuperficieRegistra superficie;
        const TintaGrafico tinta;
        const RiquadroGriglia dove = DisponiGriglia(superficie, tinta);
        SetupRecord setup;
        setup.UnitId = static_cast<int16_t>(a.unitId);
        setup.RefLevel = static_cast<int16_t>(a.refLevel);
        setup.DinamicaId = static_cast<int16_t>(a.dinamicaId);
        setup.Attenuator = static_cast<int16_t>(a.attenuator);
        const ScalaGrafico scala = SetScaleGraph(setup, a.start, a.stop, true, dove.larghezza, 0);
        Grid(superficie, scala, dove, EnvRecord{}, tinta);
        GridLabel(superficie, scala, dove, tinta,
                  TabellaUnitaGrafico()[static_cast<size_t>(a.unitId)].testo);
        EXPECT_EQ(Scritte(superficie, Ancora::DestraMezzo), a.livelli);
        EXPECT_EQ(Scritte(superficie, Ancora::CentroAlto), a.frequenze);
        // Behind the four lines of the frame, whatever their order.
        EXPECT_EQ(superficie.linee.size(), 4 + a.orizzontali + a.verticali);
        double somma = 0;
        for (const auto& linea : superficie.linee)
            somma += linea.da.x == linea.a.x ? linea.da.x : 0;
        EXPECT_EQ(somma - dove.larghezza, a.sommaColonne);
        ColonneTraccia traccia(a.start, a.stop, static_cast<int>(dove.larghezza), true);
        traccia.Aggiungi(a.freqMhz, a.livello);
        DisegnaTraccia(superficie, scala, dove, traccia, Penna{});
        ASSERT_EQ(superficie.spezzate.size(), 1u);
        const Punto pixel = superficie.Pixel(superficie.spezzate[0].punti[0]);
        EXPECT_NEAR(pixel.x, a.pixel.x, 1);
        EXPECT_NEAR(pixel.y, a.pixel.y, 0.01);
    }
}

} // namespace
} // namespace orvane
