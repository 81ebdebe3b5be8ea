// The stream of the Analyzer: recorded bytes, split anywhere, believed or refused.
#include "live/FlussoAnalyzer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

#include "aiuto/BancoLink.h"
#include "simulator/Banco.h"

namespace orvane::prova {
namespace {

const std::string kRiscontro = "AGO=OK\r\n";
/// 30 to 30.1 MHz in steps of 25 kHz, reference 96 dB; 0x55 where nothing is read.
const std::string kTesta("\x55\x55\x55\x55\x55\x55\x55\x55"
                         "\xC0\xE1\xE4\x4B" // 30 000 000 Hz
                         "\x10\xA5\xE5\x4B" // 30 100 000
                         "\x00\x50\xC3\x46" // 25 000
                         "\x55\x55\x55\x55\x55\x55"
                         "\x60\x00" // 96
                         "\x55\x55\x55\x55\x55\x55\x55\x55\x55\x55"
                         "\x55\x55\x55\x55\x55\x55\x55\x55\x55\x55",
                         48);
const std::string kPunti("\x10\x27\xFF\xFF\xFE\xFF\x00\x80\xFF\x7F", 10);
const std::vector<int16_t> kLivelli = {10000, 0, -1, -32767, 32767};
constexpr int16_t kVuoto = -32000;

const ReceiverModel k5520;
const ModelCaps kCaps = ImpostaModelCaps(k5520)[0];

void Metti(Accumulo& dati, std::string_view byte) {
    const auto dove = dati.Spazio(byte.size());
    std::ranges::copy(byte, dove.begin());
    dati.Aggiunti(byte.size());
}

std::string Testa(float start, float stop, float step, uint8_t riferimento) {
    std::string testa = kTesta;
    const float valori[] = {start, stop, step};
    for (size_t i = 0; i < 3; ++i)
        ScriviLittle(reinterpret_cast<uint8_t*>(&testa[8 + 4 * i]),
                     std::bit_cast<uint32_t>(valori[i]));
    testa[26] = static_cast<char>(riferimento);
    return testa;
}

TEST(LettoreAnalyzer, GivesTheSameSweepWhereverTheBytesAreSplit) {
    const std::string stream = "\x01\x02"
                               "AGO=SAGO=OK\r" +
                               kRiscontro + kTesta + kPunti + "more";
    const size_t daUltimo = stream.size() - 4;
    for (size_t taglio = 0; taglio <= daUltimo; ++taglio) {
        LettoreAnalyzer lettore(k5520, kCaps);
        Accumulo dati;
        std::vector<int16_t> traccia(7, kVuoto);
        lettore.Inizia();
        for (const auto& pezzo : {stream.substr(0, taglio), stream.substr(taglio)}) {
            Metti(dati, pezzo);
            if (lettore.LeggiIntestazione(dati) > 0)
                lettore.UpDateSweep(dati, traccia);
        }
        ASSERT_EQ(lettore.Punti(), 5u) << taglio;
        ASSERT_TRUE(lettore.Completo()) << taglio;
        EXPECT_EQ(lettore.Intestazione(),
                  (IntestazioneAnalyzer{
                      .Start = 30, .Stop = 30.1, .Step = 0.025, .riferimentoCent = 9600}));
        EXPECT_EQ(std::vector<int16_t>(traccia.begin(), traccia.begin() + 5), kLivelli) << taglio;
        EXPECT_EQ(traccia[5], kVuoto) << "what comes behind the last point is not of the sweep";
        EXPECT_EQ(dati.Quanti(), 4u);
    }
}

TEST(LettoreAnalyzer, WaitsForTheFirstByteBehindTheHeaderAndForWholePoints) {
    LettoreAnalyzer lettore(k5520, kCaps);
    Accumulo dati;
    std::vector<int16_t> traccia(5, kVuoto);
    EXPECT_EQ(lettore.UpDateSweep(dati, traccia), -1) << "no header";
    lettore.Inizia();
    Metti(dati, kRiscontro + kTesta);
    EXPECT_EQ(lettore.LeggiIntestazione(dati), 0u);
    Metti(dati, kPunti.substr(0, 1));
    EXPECT_EQ(lettore.LeggiIntestazione(dati), 5u);
    EXPECT_EQ(lettore.UpDateSweep(dati, traccia), -2) << "half a point";
    EXPECT_EQ(lettore.UpDateSweep(dati, std::span(traccia).first(4)), -1) << "no room";
    Metti(dati, kPunti.substr(1, 4));
    EXPECT_EQ(lettore.UpDateSweep(dati, traccia), 2);
    EXPECT_EQ(lettore.UpDateSweep(dati, traccia), -2);
    EXPECT_FALSE(lettore.Completo());
    Metti(dati, kPunti.substr(5));
    EXPECT_EQ(lettore.UpDateSweep(dati, traccia), 5);
    EXPECT_EQ(traccia, kLivelli);
    EXPECT_EQ(lettore.UpDateSweep(dati, traccia), 5) << "nothing more to wait for";
    lettore.Inizia();
    EXPECT_EQ(lettore.UpDateSweep(dati, traccia), -1) << "a sweep that is asked for has no points";
}

TEST(LettoreAnalyzer, DropsARefusedHeaderWithItsBufferAndAwaitsTheNext) {
    LettoreAnalyzer lettore(k5520, kCaps);
    Accumulo dati;
    lettore.Inizia();
    Metti(dati, kRiscontro + Testa(30e6f, 30.2e6f, 25e3f, 96) + kPunti);
    EXPECT_EQ(lettore.LeggiIntestazione(dati), 0u);
    EXPECT_EQ(dati.Quanti(), 0u);
    Metti(dati, kPunti + kTesta + kPunti);
    EXPECT_EQ(lettore.LeggiIntestazione(dati), 0u) << "samples of the refused one are no header";
    Metti(dati, kRiscontro + kTesta + kPunti);
    EXPECT_EQ(lettore.LeggiIntestazione(dati), 5u);
}

TEST(ChkDataSweep, BelievesOnlyWhatTheReceiverCanSweep) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const struct {
        float start, stop, step;
        bool accettata;
    } casi[] = {
        {10, 30.1e6f, 1e3f, true},
        {9, 30.1e6f, 1e3f, false},
        {10, 30100002, 1e3f, false},
        {1e6f, 2e6f, 1e6f, true},
        {1e6f, 2e6f, 1000002, false},
        {2e6f, 1e6f, 1e3f, false},
        {0, 0, 0, false},
        {1e6f, 1e6f, 0, false},
        {1e6f, 2e6f, -1e3f, false},
        {10000000, 11000999, 1, true},
        {10000000, 11001000, 1, false},
        {nan, 2e6f, 1e3f, false},
        {1e6f, nan, 1e3f, false},
        {1e6f, 2e6f, nan, false},
        {1e6f, std::numeric_limits<float>::infinity(), 1e3f, false},
    };
    for (const auto& caso : casi) {
        LettoreAnalyzer lettore(k5520, kCaps);
        Accumulo dati;
        Metti(dati, kRiscontro + Testa(caso.start, caso.stop, caso.step, 100) + "x");
        EXPECT_EQ(lettore.LeggiIntestazione(dati) > 0, caso.accettata)
            << caso.start << " " << caso.stop << " " << caso.step;
    }
}

TEST(ChkDataSweep, TheRasterOfTheReferenceGoesByTheModel) {
    const struct {
        const char* nome;
        ReceiverModel modello;
        int32_t divisore;
    } casi[] = {
        {"5520", {}, 200},
        {"5520F", {.Is5520F = true}, 200},
        {"5520/K3X", {.HaK3XK6X = true, .ModoK3X = 1}, 500},
        {"5520/K0X", {.IsK0X = true, .HaK3XK6X = true, .ModoK3X = 1}, 500},
        {"3360", {.Is3360 = true, .HaK3XK6X = true}, 500},
        {"5520/K6X", {.IsK6X = true, .HaK3XK6X = true, .ModoK3X = 1}, 200},
        {"60 OEM", {.Is60OEM = true, .HaK3XK6X = true, .ModoK3X = 1}, 200},
        {"OEM", {.ModelloOEM = 1, .HaK3XK6X = true}, 200},
    };
    for (const auto& caso : casi) {
        const ModelCaps caps = ImpostaModelCaps(caso.modello)[0];
        for (const int32_t cento : {0, 9500, 9600, 10000, 9700, -500, -200}) {
            const IntestazioneAnalyzer testa{
                .Start = 1, .Stop = 2, .Step = 0.01, .riferimentoCent = cento};
            EXPECT_EQ(ChkDataSweep(testa, caso.modello, caps), cento % caso.divisore == 0)
                << caso.nome << " " << cento;
        }
    }
}

TEST(IntestazioneAnalyzer, TheGridTakesTheReferenceInWholeFives) {
    const std::pair<int32_t, int32_t> casi[] = {
        {0, 0}, {200, 0}, {300, 500}, {9700, 9500}, {9800, 10000}, {10200, 10000}, {14500, 14500}};
    for (const auto& [riferimento, griglia] : casi)
        EXPECT_EQ(RiferimentoGriglia(riferimento), griglia) << riferimento;
}

TEST(FormattaSSSSweep, LeavesTheDigitsThatWereMeant) {
    const std::pair<float, double> casi[] = {{6000001000.0f, 6000.001},
                                             {29999998.0f, 29.999998},
                                             {12345.67f, 0.01234567},
                                             {0.1f, 1e-7},
                                             {18e9f, 18000},
                                             {0.0f, 0}};
    for (const auto& [hz, mhz] : casi) {
        IntestazioneAnalyzer testa{
            .Start = double{hz} / 1e6, .Stop = double{hz} / 1e6, .Step = double{hz} / 1e6};
        FormattaSSSSweep(testa);
        EXPECT_DOUBLE_EQ(testa.Start, mhz);
        EXPECT_DOUBLE_EQ(testa.Stop, mhz);
        EXPECT_DOUBLE_EQ(testa.Step, mhz);
    }
}

TEST(LettoreAnalyzer, CountsThePointsThatTheReceiverSends) {
    for (const char* campo : {"10,30100000", "150000,30000000", "9000,150000", "1e6,1.001e6"}) {
        Banco banco;
        const std::string stream = banco.Chiedi("#SAFF" + std::string(campo) + "*#SAGO*");
        LettoreAnalyzer lettore(k5520, kCaps);
        Accumulo dati;
        Metti(dati, stream);
        const size_t punti = lettore.LeggiIntestazione(dati);
        ASSERT_GT(punti, 0u) << campo;
        std::vector<int16_t> traccia(punti);
        std::string resto;
        while (!(resto = banco.Prendi()).empty())
            Metti(dati, resto);
        EXPECT_EQ(lettore.UpDateSweep(dati, traccia), static_cast<int>(punti)) << campo;
        EXPECT_EQ(dati.Quanti(), 0u) << campo;
    }
}

TEST(Get5520Header, AsksOnceAndWaitsAsLongAsTheHoldTimeAllows) {
    BancoAperto b;
    LettoreAnalyzer lettore(b.r.modello, kCaps);
    EXPECT_EQ(Get5520Header(b.r, lettore, 250), 0u);
    EXPECT_NEAR(b.Trascorsi(), 3, 1e-9);
    b.peer.alComando = [&](const std::string&) {
        b.peer.Rispondi(kRiscontro + kTesta, 0.2);
        b.peer.Rispondi(kPunti, 2.9);
    };
    b.inizio = b.ambiente.ora;
    EXPECT_EQ(Get5520Header(b.r, lettore, 250), 5u);
    EXPECT_NEAR(b.Trascorsi(), 2.9, 1e-9);
    EXPECT_EQ(b.peer.scritti, Testi(2, "#SAGO*"));
    std::vector<int16_t> traccia(5);
    EXPECT_EQ(lettore.UpDateSweep(b.porta.accumulo, traccia), 5);
    EXPECT_EQ(traccia, kLivelli);

    b.peer.alComando = {};
    b.ambiente.Fra(0.5, [&] { b.stato.AbbandonaComandi = true; });
    b.inizio = b.ambiente.ora;
    EXPECT_EQ(Get5520Header(b.r, lettore, 250), 0u);
    EXPECT_NEAR(b.Trascorsi(), 0.5, 1e-9);
    b.stato.AbbandonaComandi = false;
    b.peer.guasto = true;
    EXPECT_EQ(Get5520Header(b.r, lettore, 250), 0u) << "the device is gone";
}

} // namespace
} // namespace orvane::prova
