#include "sweep/Progresso.h"

#include <gtest/gtest.h>

#include "aiuto/AmbienteProva.h"

namespace orvane {
namespace {

ScanLine Riga(double start, double stop, double passo, float holdMs) {
    ScanLine riga;
    riga.Start = start;
    riga.Stop = stop;
    riga.Step = passo;
    riga.HoldTime = holdMs;
    return riga;
}

TEST(Progresso, MeasuresTheTimeLeftAndWeighsSlowLines) {
    prova::AmbienteProva ambiente;
    // 101 steps of 9.9 ms and 101 of 0 ms: the first line is 99 % of the work.
    ScanTable tabella;
    tabella[0] = Riga(1, 2, 0.01, 9.8f);
    tabella[1] = Riga(2, 3, 0.01, 0);
    Progresso progresso(ambiente, tabella);
    progresso.IniziaRiga(0);
    EXPECT_LT(progresso.Adesso().restanoS, 0) << "nothing is known yet";
    ambiente.ora += 10;
    progresso.Aggiungi(50);
    const Avanzamento meta = progresso.Adesso();
    EXPECT_NEAR(meta.frazione, 0.49, 0.005);
    EXPECT_NEAR(meta.restanoS, 10.4, 0.3);
    EXPECT_EQ(meta.passiRiga, 50);
    EXPECT_EQ(meta.totaleRiga, 101);
    ambiente.ora += 1000;
    progresso.AggiungiPausa(1000);
    EXPECT_EQ(progresso.Adesso().trascorsiS, 1010);
    EXPECT_NEAR(progresso.Adesso().restanoS, meta.restanoS, 1e-6) << "a pause is no slowness";
    progresso.FineRiga();
    EXPECT_NEAR(progresso.Adesso().frazione, 0.99, 0.001);
    progresso.IniziaRiga(1);
    progresso.Aggiungi(500);
    EXPECT_EQ(progresso.Adesso().frazione, 1.0) << "more steps than foreseen";
}

TEST(Progresso, CountsThePassesOfALine) {
    prova::AmbienteProva ambiente;
    ScanTable tabella;
    tabella[0] = Riga(1, 2, 0.01, 1);
    tabella[0].LineSwitch = {1, 1, 0, 0};
    tabella[1] = Riga(2, 3, 0.01, 1);
    tabella[1].LineSwitch = {0, 0, 1, 1};
    Progresso progresso(ambiente, tabella, 2);
    progresso.IniziaRiga(0);
    progresso.Aggiungi(101);
    progresso.IniziaPassata(1, "L1");
    const Avanzamento seconda = progresso.Adesso();
    EXPECT_NEAR(seconda.frazione, 0.25, 1e-9);
    EXPECT_EQ(seconda.passiRiga, 0);
    EXPECT_EQ(seconda.passata, 1);
    EXPECT_EQ(seconda.numPassate, 2);
    EXPECT_EQ(seconda.nomePassata, "L1");
    progresso.Aggiungi(300);
    EXPECT_NEAR(progresso.Adesso().frazione, 0.5, 1e-9) << "more steps than foreseen";
    progresso.FineRiga();
    progresso.IniziaRiga(1);
    EXPECT_NEAR(progresso.Adesso().frazione, 0.5, 1e-9);
}

TEST(Progresso, FollowsTheStepThatAReceiverAnnounces) {
    prova::AmbienteProva ambiente;
    ScanTable tabella;
    tabella[0] = Riga(1, 2, 0.01, 1);
    Progresso progresso(ambiente, tabella);
    progresso.IniziaRiga(0);
    progresso.CorreggiRiga(201);
    progresso.Aggiungi(201);
    EXPECT_EQ(progresso.Adesso().totaleRiga, 201);
    EXPECT_NEAR(progresso.Adesso().frazione, 1.0, 1e-9);
}

} // namespace
} // namespace orvane
