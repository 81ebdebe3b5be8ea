// Points and time of a scan table, and how they are said.
#include "setup/StimaDurata.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr double kPassata = 0.5; // s before the first step

TEST(StimaDurataTest, WhatALineTakes) {
    const ScanLine base{
        .Start = 0.15, .Stop = 30, .Step = 0.005, .HoldTime = 0.9f, .Detector = {1}, .RbwId = 2};
    const ScanLine fft{
        .Start = 0.01, .Stop = 0.15, .Step = 5e-5, .HoldTime = 9.9f, .Detector = {1}, .RbwId = 3};
    auto con = [](ScanLine riga, auto cambia) {
        cambia(riga);
        return riga;
    };
    struct {
        const char* cosa;
        ScanLine riga;
        long long punti;
        double secondi;
    } const casi[] = {
        {"hold and a tenth", base, 5971, 5.971},
        {"a second detector is measured beside", con(base, [](ScanLine& r) { r.Detector[1] = 1; }),
         5971, 5.971},
        {"Lowest is two periods of 9 kHz", con(base, [](ScanLine& r) { r.HoldTime = 0; }), 5971,
         5971 * (2.0 / 9 + 0.1) / 1000},
        {"Smart: every point, and one in twenty again",
         con(base, [](ScanLine& r) { r.Smart = 1, r.HoldTimeSD = 1.9f; }), 5971,
         5.971 * 2 + 5.971 * 0.05},
        {"FFT takes a thousand at once", fft, 2801, 0.030},
        {"not with a long peak scan",
         con(fft, [](ScanLine& r) { r.Smart = 1, r.HoldTimeSD = 49.9f, r.HoldTime = 0.9f; }), 2801,
         3 * 0.05 + 2.801 * 0.05},
        {"nor with fifty ms",
         con(fft, [](ScanLine& r) { r.Smart = 1, r.HoldTimeSD = 50, r.HoldTime = 0.9f; }), 2801,
         2801 * 0.0501 + 2.801 * 0.05},
        {"a table without its file", con(base, [](ScanLine& r) { r.StepMode = 1; }), 0, 0},
    };
    for (const auto& caso : casi) {
        const StimaSweep stima = StimaRiga(caso.riga, 0);
        EXPECT_EQ(stima.punti, caso.punti) << caso.cosa;
        EXPECT_NEAR(stima.secondi, kPassata + caso.secondi, 1e-4) << caso.cosa;
    }
}

TEST(StimaDurataTest, PassesByWhatIsAttached) {
    ScanLine riga{
        .Start = 1, .Stop = 2, .Step = 0.5, .LineSwitch = {1, 1, 0, 1}, .Antenna = {1, 1}};
    const std::array<int, 7> passate = {3, 3, 3, 2, 3, 1, 3};
    for (int kind = 0; kind < 7; ++kind)
        EXPECT_EQ(StimaRiga(riga, kind).passate, passate[static_cast<size_t>(kind)]) << kind;
    riga.LineSwitch = {};
    EXPECT_EQ(StimaRiga(riga, 2).passate, 1);
    const StimaSweep una{.punti = 10, .passate = 2, .secondi = 1};
    const StimaSweep altra{.punti = 5, .passate = 1, .secondi = 2};
    EXPECT_EQ(SommaStime(una, una).punti, 20);
    EXPECT_EQ(SommaStime(una, altra).punti, 25);
    EXPECT_EQ(SommaStime(SommaStime(una, altra), una).punti, 45);
    EXPECT_EQ(SommaStime(una, altra).passate, 0);
}

TEST(StimaDurataTest, PointsOfAFrequencyTable) {
    FrequencyTable tabella{};
    tabella.Elementi[0].Freq = 0.1;
    tabella.Elementi[1].Freq = 0.5;
    tabella.Elementi[2].Freq = 30;
    ScanLine riga{.Start = 0.15, .Stop = 30, .StepMode = 1};
    EXPECT_EQ(PuntiDaFreqTable(riga, tabella), 2) << "the table's own";
    riga.NumStepFT = 10;
    EXPECT_EQ(PuntiDaFreqTable(riga, tabella), 21);
    for (size_t i = 0; i < tabella.Elementi.size(); ++i)
        tabella.Elementi[i].Freq = 1 + static_cast<double>(i) * 0.01;
    EXPECT_EQ(PuntiDaFreqTable(riga, tabella), 202);
    riga.Stop = 0.15;
    EXPECT_EQ(PuntiDaFreqTable(riga, tabella), 0);
}

TEST(StimaDurataTest, HowItIsSaid) {
    struct {
        double s;
        const char* testo;
    } const casi[] = {{0.9, "less than 1 s"}, {59.4, "59 s"},          {60, "1 min"},
                      {200, "3 min 20 s"},    {3599.4, "59 min 59 s"}, {3600, "1 h"},
                      {7499, "2 h 5 min"},    {4e6, "1 111 h 7 min"}};
    for (const auto& caso : casi)
        EXPECT_EQ(TestoTempoStimato(caso.s), caso.testo);
    EXPECT_EQ(TestoStima({5971, 2, 200}, 1), "5 971 points × 2 lines · about 3 min 20 s");
    EXPECT_EQ(TestoStima({1, 2, 0.2}, 3), "1 point × 2 polarisations · less than 1 s");
    EXPECT_EQ(TestoStima({1234567, 1, 60}, 0), "1 234 567 points · about 1 min");
    EXPECT_EQ(TestoStima({}, 0), "0 points");
}

} // namespace
} // namespace orvane
