// The picture as its calls: which lines and texts, where, in which pen.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <set>

#include "aiuto/SuperficieRegistra.h"
#include "graph/Grafico.h"

namespace orvane {
namespace {

using prova::SuperficieRegistra;

constexpr int32_t kPunteggiata = Rgb(1, 1, 1);
constexpr int32_t kSub = Rgb(3, 3, 3);
constexpr int32_t kPrincipale = Rgb(5, 5, 5);

/// A grid on a recorded picture: 0 to 90 dB from 150 kHz to 30 MHz unless told otherwise.
struct Quadro {
    SuperficieRegistra superficie;
    EnvRecord env;
    TintaGrafico tinta{.sfondo = Rgb(9, 9, 9), .scritte = Rgb(8, 8, 8)};
    RiquadroGriglia dove;
    ScalaGrafico scala;

    explicit Quadro(double start = 0.15, double stop = 30, bool logaritmica = true, int unitId = 1,
                    double larghezza = 1100, double altezza = 540)
        : superficie(larghezza, altezza) {
        for (int i = 0; i < 50; ++i)
            env.GraphColors[static_cast<size_t>(i)] = Rgb(i + 1, i + 1, i + 1);
        SetupRecord setup;
        setup.DinamicaId = 1;
        setup.RefLevel = -10;
        setup.UnitId = static_cast<int16_t>(unitId);
        dove = DisponiGriglia(superficie, tinta);
        scala = SetScaleGraph(setup, start, stop, logaritmica, dove.larghezza, 0);
    }
    void Griglia(size_t unitId = 1) {
        Grid(superficie, scala, dove, env, tinta);
        const auto unita = TabellaUnitaGrafico()[unitId].testo;
        GridLabel(superficie, scala, dove, tinta, unita);
    }
    ColonneTraccia Colonne() const {
        return ColonneTraccia(scala.start, scala.stop, static_cast<int>(dove.larghezza),
                              scala.logaritmica);
    }
    size_t Disegna(const ColonneTraccia& traccia) {
        return DisegnaTraccia(superficie, scala, dove, traccia, Penna{.colore = Rgb(7, 0, 0)});
    }
    /// The topmost line of each level, and of each column.
    std::map<double, Penna> Orizzontali() const { return Linee(&Punto::y); }
    std::map<double, Penna> Verticali() const { return Linee(&Punto::x); }
    std::map<double, Penna> Linee(double Punto::*fissa) const {
        std::map<double, Penna> per;
        for (const auto& linea : superficie.linee)
            if (linea.da.*fissa == linea.a.*fissa)
                per[linea.da.*fissa] = linea.penna;
        return per;
    }
    std::set<std::string> Testi(Ancora ancora) const {
        std::set<std::string> testi;
        for (const auto& testo : superficie.testi)
            if (testo.ancora == ancora)
                testi.insert(testo.testo);
        return testi;
    }
};

/// Lines of 20 dB, 10 dB and 5 dB are told apart, counted from 0 dBuV whatever the unit.
TEST(Griglia, LivelliGenereEColore) {
    const std::tuple<size_t, int, std::string, std::string> casi[] = {
        {0, 10700, "-27 dBm", "-97"},
        {1, 0, "20 dB\xC2\xB5V", "10"},
        {2, 3400,
         "6 dB\xC2\xB5"
         "A",
         "-4"},
        {3, 1700, "23 dBpW", "13"},
        {4, 0, "20 dB\xC2\xB5V/m", "10"},
        {5, 5150,
         "-11.5 dB\xC2\xB5"
         "A/m",
         "-1.5"},
        {6, 4950, "10.5 dBpT", "0.5"}};
    for (const auto& [unitId, offset, principale20, sub10] : casi) {
        Quadro q(0.15, 30, true, static_cast<int>(unitId));
        q.Griglia(unitId);
        EXPECT_EQ(q.superficie.rettangoli.at(0).colore, q.tinta.sfondo);
        const auto righe = q.Orizzontali();
        EXPECT_GE(righe.size(), 19u);
        for (const auto& [livello, penna] : righe) {
            const int passo = static_cast<int>(livello) + offset;
            if (livello == q.scala.basso || livello == q.scala.alto)
                continue; // the frame
            SCOPED_TRACE(livello);
            const bool principale = passo % 2000 == 0;
            const bool sub = !principale && passo % 1000 == 0;
            EXPECT_EQ(passo % 500, 0);
            EXPECT_EQ(penna.colore, principale ? kPrincipale : sub ? kSub : kPunteggiata);
            EXPECT_EQ(penna.tratto, principale || sub ? Tratto::Pieno : Tratto::Punteggiato);
            EXPECT_EQ(penna.larghezza, 1);
        }
        EXPECT_TRUE(q.Testi(Ancora::DestraMezzo).contains(principale20)) << principale20;
        EXPECT_TRUE(q.Testi(Ancora::DestraMezzo).contains(sub10)) << sub10;
    }
}

TEST(Griglia, DecadiPrincipaliELeAltreSub) {
    Quadro q;
    q.Griglia();
    const auto verticali = q.Verticali();
    EXPECT_EQ(verticali.size(), 21u); // both ends, 0.2 to 0.9, 1 to 9, 10 and 20
    for (const double f : {1.0, 10.0})
        EXPECT_EQ(verticali.at(FreqToX(q.scala, f)).colore, kPrincipale);
    for (const double f : {0.2, 0.9, 3.0, 20.0})
        EXPECT_EQ(verticali.at(FreqToX(q.scala, f)).colore, kSub);
}

TEST(Griglia, StampaSempreContinuaLarghezzaDue) {
    Quadro q;
    q.tinta.PrintColors = true;
    q.Griglia();
    std::set<int32_t> colori;
    for (const auto& linea : q.superficie.linee) {
        EXPECT_EQ(linea.penna.tratto, Tratto::Pieno);
        EXPECT_EQ(linea.penna.larghezza, 2);
        colori.insert(linea.penna.colore);
    }
    EXPECT_EQ(colori, (std::set<int32_t>{Rgb(2, 2, 2), Rgb(4, 4, 4), Rgb(6, 6, 6)}));
}

TEST(Scritte, NumeriEUnita) {
    Quadro q;
    q.Griglia();
    EXPECT_EQ(
        q.Testi(Ancora::DestraMezzo),
        (std::set<std::string>{"0 dB\xC2\xB5V", "10", "20 dB\xC2\xB5V", "30", "40 dB\xC2\xB5V",
                               "50", "60 dB\xC2\xB5V", "70", "80 dB\xC2\xB5V", "90"}));
    EXPECT_EQ(q.Testi(Ancora::CentroAlto),
              (std::set<std::string>{"200 k", "500 k", "1 M", "2 M", "5 M", "10 M", "20 M"}));
    EXPECT_EQ(q.Testi(Ancora::DestraAlto), std::set<std::string>{"Hz"});
    for (const auto& testo : q.superficie.testi) {
        EXPECT_EQ(testo.colore, q.tinta.scritte);
        if (testo.testo == "90") { // 0.2 dB under the frame
            EXPECT_EQ(testo.dove.y, 8980);
        }
    }
}

TEST(Scritte, DoveNonCiStannoNonSiToccano) {
    for (const double larghezza : {120.0, 180.0, 260.0, 400.0}) {
        Quadro q(0.00001, 18000, true, 1, larghezza, 90);
        q.Griglia();
        std::map<double, double> frequenze; // left to right end, in pixels
        std::map<double, double> livelli;
        for (const auto& testo : q.superficie.testi) {
            const Punto p = q.superficie.Pixel(testo.dove);
            const Punto grande = q.superficie.DimensioneTesto(testo.testo, 11);
            if (testo.ancora == Ancora::CentroAlto)
                frequenze[p.x - grande.x / 2] = p.x + grande.x / 2;
            if (testo.ancora == Ancora::DestraMezzo)
                livelli[p.y - grande.y / 2] = p.y + grande.y / 2;
        }
        for (const auto* fila : {&frequenze, &livelli}) {
            ASSERT_FALSE(fila->empty());
            for (auto i = fila->begin(), j = std::next(i); j != fila->end(); ++i, ++j)
                EXPECT_LT(i->second, j->first + 1.5) << larghezza;
        }
    }
}

TEST(Traccia, IlVuotoAlzaLaPenna) {
    Quadro q(10, 20, false);
    ColonneTraccia traccia = q.Colonne();
    for (double f = 10; f <= 20; f += 0.125)
        traccia.Aggiungi(f, f > 12 && f < 14 ? kNessunLivello : int16_t{2500});
    traccia.Interrompi();
    q.Disegna(traccia);
    ASSERT_EQ(q.superficie.spezzate.size(), 2u);
    const auto x = [&](double f) { return FreqToX(q.scala, f); };
    EXPECT_NEAR(q.superficie.spezzate[0].punti.back().x, x(12), 1);
    EXPECT_NEAR(q.superficie.spezzate[1].punti.front().x, x(14), 1);
}

TEST(Traccia, LaLineaProsegueFinoAllaCornice) {
    Quadro q(10, 11, false);
    ColonneTraccia traccia = q.Colonne();
    traccia.Aggiungi(9, 1000);
    traccia.Aggiungi(12, 4000);
    q.Disegna(traccia);
    ASSERT_EQ(q.superficie.spezzate.size(), 1u);
    const auto& punti = q.superficie.spezzate[0].punti;
    EXPECT_NEAR(punti.front().x, -q.dove.larghezza, 1e-6);
    EXPECT_NEAR(punti.back().x, 2 * q.dove.larghezza, 1e-6);
}

TEST(Traccia, TrecentomilaCampioniTengonoLaPunta) {
    Quadro q;
    ColonneTraccia traccia = q.Colonne();
    constexpr int kCampioni = 300000;
    constexpr double kPasso = (30 - 0.15) / (kCampioni - 1);
    for (int k = 0; k < kCampioni; ++k)
        traccia.Aggiungi(0.15 + k * kPasso, static_cast<int16_t>(k == 271828   ? 8765
                                                                 : k == 123456 ? 12
                                                                               : 2000 + k % 97));
    const size_t punti = q.Disegna(traccia);
    ASSERT_EQ(q.superficie.spezzate.size(), 1u);
    EXPECT_LE(punti, 4 * static_cast<size_t>(traccia.Quante()));
    EXPECT_EQ(punti, q.superficie.spezzate[0].punti.size());
    std::map<double, double> dove; // level to x
    for (const Punto& p : q.superficie.spezzate[0].punti)
        dove[p.y] = p.x;
    ASSERT_TRUE(dove.contains(8765) && dove.contains(12));
    EXPECT_NEAR(dove[8765], FreqToX(q.scala, 0.15 + 271828 * kPasso), 1);
    EXPECT_NEAR(dove[12], FreqToX(q.scala, 0.15 + 123456 * kPasso), 1);
}

/// Columns as far as no gap divides them, joined to each other, with the line through the empty
/// ones.
TEST(Traccia, FitteAColonne) {
    Quadro q(10, 20, false);
    q.superficie.prendeColonne = true;
    ColonneTraccia traccia = q.Colonne();
    traccia.Aggiungi(11, 1000);
    for (int k = 0; k < 10000; ++k)
        traccia.Aggiungi(12 + k * 1e-4, static_cast<int16_t>(k % 50));
    traccia.Aggiungi(14, 2000);
    traccia.Aggiungi(15, kNessunLivello);
    for (int k = 0; k < 10000; ++k)
        traccia.Aggiungi(16 + k * 1e-4, 500);
    q.Disegna(traccia);
    ASSERT_EQ(q.superficie.colonne.size(), 2u);
    const auto& prime = q.superficie.colonne[0];
    const double mhz = q.dove.larghezza / 10; // columns to a MHz
    EXPECT_NEAR(prime.sinistra, FreqToX(q.scala, 11), 1);
    EXPECT_NEAR(static_cast<double>(prime.colonne.size()), 3 * mhz, 2);
    for (size_t i = 1; i < prime.colonne.size(); ++i)
        EXPECT_NEAR(prime.colonne[i].entra, prime.colonne[i - 1].esce, 1e-6);
    EXPECT_NEAR(prime.colonne[static_cast<size_t>(mhz / 2)].massimo, 500, 15);
    EXPECT_EQ(prime.colonne[static_cast<size_t>(mhz) + 20].massimo, 49);
    EXPECT_EQ(prime.colonne.back().massimo, 2000);
    EXPECT_TRUE(q.superficie.spezzate.empty());
}

TEST(Traccia, RadeALinea) {
    Quadro q(10, 20, false);
    q.superficie.prendeColonne = true;
    ColonneTraccia traccia = q.Colonne();
    for (const double mhz : {11.0, 12.0, 14.0, 16.0})
        traccia.Aggiungi(mhz, static_cast<int16_t>(100 * mhz));
    q.Disegna(traccia);
    EXPECT_TRUE(q.superficie.colonne.empty());
    ASSERT_EQ(q.superficie.spezzate.size(), 1u);
    EXPECT_EQ(q.superficie.spezzate[0].punti.size(), 4u);
}

TEST(Degenere, NullaSiFermaONuoce) {
    const double nonNumero = std::numeric_limits<double>::quiet_NaN();
    const std::pair<double, double> assi[] = {{30, 1}, {1, 1}, {0, 30}, {nonNumero, 30}};
    for (const auto& [start, stop] : assi) {
        Quadro q(start, stop);
        q.Griglia();
        EXPECT_EQ(q.Orizzontali().size(), 19u);
        EXPECT_EQ(q.Verticali().size(), 2u); // the frame alone
        EXPECT_TRUE(q.Testi(Ancora::CentroAlto).empty());
        ColonneTraccia traccia = q.Colonne();
        traccia.Aggiungi(1, 100);
        EXPECT_EQ(q.Disegna(traccia), 0u);
    }
}

TEST(Degenere, SenzaPostoOSenzaRango) {
    for (const double lato : {0.0, 1.0, 30.0}) {
        Quadro q(0.15, 30, true, 1, lato, lato);
        q.Griglia();
        EXPECT_EQ(q.Disegna(q.Colonne()), 0u);
        EXPECT_TRUE(q.superficie.linee.empty() && q.superficie.testi.empty());
    }
    for (const double basso : {std::numeric_limits<double>::quiet_NaN(), 9000.0, 1e300}) {
        Quadro q;
        q.scala.basso = basso;
        q.Griglia();
        EXPECT_TRUE(q.superficie.linee.empty() && q.superficie.testi.empty());
    }
    Quadro vuoto;
    EXPECT_EQ(vuoto.Disegna(vuoto.Colonne()), 0u);
    EXPECT_TRUE(vuoto.superficie.spezzate.empty());
}

TEST(Griglia, AsseLineareInDieciParti) {
    Quadro q(88, 108, false);
    q.Griglia();
    EXPECT_EQ(q.Verticali().size(), 11u);
    const auto scritte = q.Testi(Ancora::CentroAlto);
    EXPECT_EQ(scritte.size(), 11u);
    EXPECT_TRUE(scritte.contains("88 M") && scritte.contains("98 M") && scritte.contains("108 M"));
}

TEST(Traccia, UnCampioneSoloSiVedeNellUnitaInVigore) {
    Quadro q(0.15, 30, true, 5);
    ColonneTraccia traccia = q.Colonne();
    traccia.Aggiungi(1, 6000);
    EXPECT_EQ(q.Disegna(traccia), 2u);
    ASSERT_EQ(q.superficie.spezzate.size(), 1u);
    const auto& punti = q.superficie.spezzate[0].punti;
    EXPECT_NEAR(punti[1].x - punti[0].x, 1, 1e-9);
    EXPECT_EQ(punti[0].y, 6000 - 5150);
}

} // namespace
} // namespace orvane
