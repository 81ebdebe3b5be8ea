// The rules of the scan table: each code, each family of models, and the values at the edges.
#include <gtest/gtest.h>

#include "aiuto/BancoLink.h"
#include "setup/RegoleScan.h"

namespace orvane {
namespace {

using namespace prova;
using Celle = std::vector<CellaErrata>;
using enum ColonnaScan;
using enum DetectorKind;

ReceiverModel K3X() {
    return {.HaK3XK6X = true, .ModoK3X = 1};
}
ReceiverModel Oem(int16_t quale) {
    return {.Is5520F = true, .ModelloOEM = quale, .ModoK3X = 1};
}
ReceiverModel Modello3360(bool ReceiverModel::*variante) {
    ReceiverModel m{.Is3360 = true, .HaK3XK6X = true, .ModoK3X = 1};
    if (variante)
        m.*variante = true;
    return m;
}
ReceiverModel ConUnita(int16_t quale) {
    return {.UnitaEstensione = quale, .EstensioneAttiva = true};
}

/// A set-up for the rules to look at.
struct Tavolo {
    explicit Tavolo(ReceiverModel m = {}) : modello(std::move(m)) {}
    explicit Tavolo(std::vector<ScanLine> righe, ReceiverModel m = {}) : modello(std::move(m)) {
        std::copy(righe.begin(), righe.end(), tabella.begin());
    }
    ContestoControlli C() const { return {tabella, modello, caps, setup, albero, rigaComando}; }

    ScanTable tabella{};
    ReceiverModel modello;
    std::array<ModelCaps, 2> caps{};
    SetupRecord setup{};
    CartellaProva cartella{};
    AlberoDati albero{cartella.Percorso()};
    std::string_view rigaComando{};
};

/// Both frequency cells of some lines.
Celle Frequenze(std::initializer_list<size_t> righe) {
    Celle celle;
    for (const size_t riga : righe)
        celle.insert(celle.end(), {{riga, Start}, {riga, Stop}});
    return celle;
}

ScanLine Span(double start, double stop) {
    return {.Start = start, .Stop = stop, .Detector = {1}};
}

enum class Esame { Passa, Trovato, Segnato };

/// Flags as digits: "0110" of the lines, then "11" of the polarisations.
ScanLine ConFlag(const std::string& flag) {
    ScanLine riga = Span(0.15, 30);
    for (size_t i = 0; i < 4; ++i)
        riga.LineSwitch[i] = flag[i] == '1';
    for (size_t i = 0; i < 2; ++i)
        riga.Antenna[i] = flag[5 + i] == '1';
    return riga;
}

TEST(RegoleScan, TheSelectionsOfALineSuitWhatIsAttachedOrAreRepaired) {
    using enum Esame;
    struct {
        const char* caso;
        int16_t kind;
        int16_t insLoss;
        const char* flag;
        Esame esame;
        const char* dopo; ///< the repair
    } const casi[] = {
        {"nothing attached", 0, 0, "1111 11", Passa, "0000 11"},
        {"two lines", 1, 0, "0110 11", Passa, "0110 11"},
        {"one of them", 6, 0, "0010 00", Passa, "0010 00"},
        {"two lines with N", 1, 0, "1100 00", Segnato, "0100 00"},
        {"two lines with L3", 6, 0, "0001 00", Segnato, "0110 00"},
        {"two lines after an antenna", 1, 0, "0000 10", Trovato, "0110 10"},
        {"four lines after an antenna", 2, 0, "0000 01", Segnato, "1111 01"},
        {"antenna", 3, 0, "0110 01", Passa, "0110 01"},
        {"antenna after a network", 3, 0, "0110 00", Segnato, "0110 11"},
        {"antenna, nothing selected", 3, 0, "0000 00", Segnato, "0000 11"},
        {"switch box", 4, 0, "1000 11", Passa, "1000 11"},
        {"switch box after an antenna", 4, 0, "0000 10", Segnato, "1111 10"},
        {"Mast-Table", 5, 0, "0000 00", Passa, "0000 00"},
        {"Mast-Table after a network", 5, 0, "0100 00", Segnato, "0000 00"},
        {"Mast-Table after an antenna", 5, 0, "0000 01", Segnato, "0000 00"},
        {"Insertion Loss", 2, 1, "0110 00", Passa, "0110 00"},
        {"Insertion Loss, one line", 2, 1, "0100 00", Segnato, "0110 00"},
        {"Insertion Loss, a line too many", 2, 1, "1110 00", Segnato, "0110 00"},
        {"Insertion Loss, network unmarked", 1, 1, "0100 00", Trovato, "0110 00"},
        {"Insertion Loss, antenna", 3, 1, "0000 11", Segnato, "0110 11"},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.caso);
        Tavolo t({ConFlag(caso.flag)});
        t.setup.AncillaryKind = caso.kind;
        t.setup.InsLossOn = caso.insLoss;
        const Segnalazioni trovate = ControllaLineScanTab(t.C());
        EXPECT_EQ(trovate.empty(), caso.esame == Passa);
        if (!trovate.empty()) {
            EXPECT_EQ(trovate[0].celle, caso.esame == Segnato ? Celle({{0, Ancillary}}) : Celle{});
            EXPECT_EQ(trovate[0].esito, EsitoControllo::Chiede);
            EXPECT_EQ(trovate[0].riquadro.testo,
                      "Ancillary settings does not match.\r      Press yes to adjust them");
        }
        CorreggiLineScanTab(t.tabella, caso.kind, caso.insLoss);
        EXPECT_EQ(t.tabella[0].LineSwitch, ConFlag(caso.dopo).LineSwitch);
        EXPECT_EQ(t.tabella[0].Antenna, ConFlag(caso.dopo).Antenna);
        EXPECT_EQ(t.tabella[1].LineSwitch, ScanLine{}.LineSwitch) << "not in use";
        EXPECT_TRUE(ControllaLineScanTab(t.C()).empty()) << "asked again behind the repair";
    }
}

TEST(RegoleScan, ConductedAndRadiatedLinesInOneTableAreAsked) {
    const ScanLine condotta = Span(0.15, 30);
    const ScanLine radiata = Span(30, 1000);
    struct {
        std::vector<ScanLine> righe;
        ReceiverModel modello;
        bool chiede;
    } const casi[] = {
        {{condotta, condotta}, {}, false},    {{radiata, radiata}, {}, false},
        {{condotta, radiata}, {}, true},      {{condotta, radiata}, ConUnita(1), true},
        {{Span(20, 40)}, {}, true},           {{condotta, radiata}, K3X(), false},
        {{condotta, radiata}, Oem(3), false},
    };
    for (const auto& caso : casi)
        EXPECT_EQ(!ControllaCondRadScanTab(Tavolo(caso.righe, caso.modello).C()).empty(),
                  caso.chiede);
}

struct CasoFrequenze {
    const char* caso;
    ReceiverModel modello;
    ScanLine riga;
    int codice = 0;
    const char* testo = "";
    Celle celle = {};
};

void ProvaFrequenze(const CasoFrequenze& caso, bool chiede) {
    SCOPED_TRACE(caso.caso);
    const Tavolo t({caso.riga}, caso.modello);
    const Segnalazioni trovate = ControllaFstartFstopScanTab(t.C(), chiede, 0, 0);
    ASSERT_EQ(trovate.size(), caso.codice != 0 ? 1u : 0u);
    if (trovate.empty())
        return;
    EXPECT_EQ(trovate[0].codice, caso.codice);
    EXPECT_EQ(trovate[0].riquadro.testo, caso.testo);
    EXPECT_EQ(trovate[0].celle, caso.celle);
    EXPECT_EQ(trovate[0].esito, chiede ? EsitoControllo::Chiede : EsitoControllo::Ferma);
}

TEST(RegoleScan, TheFrequenciesOfALineLieInARangeOfTheModel) {
    const Celle entrambe = Frequenze({0});
    const char* errore = "Start/Stop Frequency Error";
    const ReceiverModel frontEnd{.TipoFrontEnd = 1};
    const ReceiverModel k0x{.IsK0X = true, .HaK3XK6X = true, .ModoK3X = 2};
    const ReceiverModel n3360 = Modello3360(nullptr);
    const ReceiverModel n3360_01 = Modello3360(&ReceiverModel::Is3360_01);
    ReceiverModel conLink = Oem(3);
    conLink.FMinLink = 25;
    conLink.FMaxLink = 6020;
    const CasoFrequenze casi[] = {
        {"equal", {}, Span(1, 1), 1, errore, entrambe},
        {"no stop", {}, Span(1, 0), 1, errore, entrambe},
        {"the whole low range", {}, Span(0.00001, 30)},
        {"below it", {}, Span(0.000009, 30), 1, errore, entrambe},
        {"with a front-end", frontEnd, Span(0.009, 30)},
        {"below it with a front-end", frontEnd, Span(0.0089, 30), 1, errore, entrambe},
        {"radiated with a front-end", frontEnd, Span(30, 1000), 1, errore, entrambe},
        {"across the border", {}, Span(29, 31), 1, errore, entrambe},
        {"a unit can be switched on", {}, Span(30, 3000)},
        {"the 5570 too", {}, Span(30, 6000)},
        {"the 5590 too", ConUnita(2), Span(6000, 18000)},
        {"no unit sweeps both", {}, Span(5000, 7000), 1, errore, entrambe},
        {"above all units", {}, Span(6000, 18000.1), 1, errore, entrambe},
        {"another unit in charge", ConUnita(0), Span(6000, 18000)},
        {"K3X", K3X(), Span(28, 3000)},
        {"above the K3X", K3X(), Span(30, 3001), 1, errore, entrambe},
        {"18 GHz with a K3X", K3X(), Span(6000, 18000), 1, errore, entrambe},
        {"above the K0X", k0x, Span(30, 301), 1, errore, entrambe},
        {"what the link has told", conLink, Span(25, 6020)},
        {"beyond it", conLink, Span(25, 6021), 1, errore, entrambe},
        {"3360", n3360, Span(0.15, 30)},
        {"3360 too low", n3360, Span(0.149, 30), 2, "Start Frequency Error", {{0, Start}}},
        {"3360/01", n3360_01, Span(0.009, 30)},
        {"3360 across the border", n3360, Span(20, 100), 2, "Start Frequency Error", {{0, Start}}},
        {"3360 too high", n3360, Span(30, 1001), 2, "Stop Frequency Error", {{0, Stop}}},
        {"3360 at both ends", n3360, Span(20, 1001), 2, errore, entrambe},
    };
    for (const CasoFrequenze& caso : casi)
        ProvaFrequenze(caso, false);
}

TEST(RegoleScan, AskedForOneLineTheUnitInChargeMustSweepIt) {
    const Celle entrambe = Frequenze({0});
    const auto box = [](const std::string& nome) {
        return "*** KRV " + nome + " Connected ***\r  This span cannot be swept";
    };
    const std::string b20 = box("5520"), b40 = box("5540"), b70 = box("5570"), b90 = box("5590");
    const CasoFrequenze casi[] = {
        {"receiver", {}, Span(0.15, 30)},
        {"receiver, radiated line", {}, Span(30, 1000), 1, b20.c_str(), entrambe},
        {"5540, conducted line", ConUnita(0), Span(0.15, 30), 1, b40.c_str(), entrambe},
        {"5540", ConUnita(0), Span(30, 3000)},
        {"5540, too high", ConUnita(0), Span(30, 3001), 1, b40.c_str(), entrambe},
        {"5570", ConUnita(1), Span(30, 6000)},
        {"5570, too high", ConUnita(1), Span(6000, 7000), 1, b70.c_str(), entrambe},
        {"5590", ConUnita(2), Span(6000, 18000)},
        {"5590, too low", ConUnita(2), Span(30, 1000), 1, b90.c_str(), entrambe},
        {"switched by command", K3X(), Span(30, 1000)},
    };
    for (const CasoFrequenze& caso : casi)
        ProvaFrequenze(caso, true);
}

TEST(RegoleScan, AskedForATableItsLinesBelongToOneRange) {
    const Tavolo t({Span(0.15, 30), Span(30, 1000), Span(0.15, 1)});
    const Segnalazioni trovate = ControllaFstartFstopScanTab(t.C(), true, 0, 9);
    ASSERT_EQ(trovate.size(), 2u);
    EXPECT_EQ(trovate[0].riquadro.pulsanti, Pulsanti::Ok);
    EXPECT_EQ(trovate[0].celle, Frequenze({1}));
    EXPECT_EQ(trovate[1].codice, kFreqErrata);
    EXPECT_EQ(trovate[1].celle, Frequenze({1, 2}));
    EXPECT_TRUE(ControllaFstartFstopScanTab(t.C(), false, 0, 9).empty());
}

TEST(RegoleScan, TheRangeOfALine) {
    struct {
        ReceiverModel modello;
        double start, stop;
        int id;
    } const casi[] = {{{}, 0.00001, 30, 1}, {{}, 0.000009, 30, 0}, {{}, 30, 18000, 2},
                      {{}, 29, 31, 0},      {K3X(), 28, 3000, 2},  {K3X(), 28, 30, 1},
                      {K3X(), 28, 3001, 0}, {Oem(1), 28, 6000, 2}};
    for (const auto& caso : casi)
        EXPECT_EQ(DetIDMacLocRBWScanTab(caso.modello, caso.start, caso.stop), caso.id)
            << caso.start << " to " << caso.stop;
    EXPECT_EQ(DetIDMacLocRBWScanTab({}, 1, 2, 7, 8), 7);
    EXPECT_EQ(DetIDMacLocRBWScanTab({}, 31, 32, 7, 8), 8);
}

// By code; 3 has no rule.
constexpr const char* kParoleRbw[] = {"",
                                      "RBW not available",
                                      "RBW not suitable",
                                      "",
                                      "Qpeak detector not suitable with this setup",
                                      "QPeak, Rms-Avg detector not suitable with this setup",
                                      "Detector not suitable with selected RBW"};

struct CasoRbw {
    const char* caso;
    ReceiverModel modello;
    ScanLine riga;
    std::vector<int16_t> refusi; ///< `RbwId` that are refused, of all 14
    int codice;
};

ScanLine Con(ScanLine riga, std::initializer_list<DetectorKind> detector) {
    riga.Detector = {};
    for (const DetectorKind uno : detector)
        riga.Detector[static_cast<size_t>(uno)] = 1;
    return riga;
}

TEST(RegoleScan, TheFiltersThatAModelDoesNotHave) {
    const ScanLine b = Span(0.15, 30);
    const ScanLine c = Span(30, 300);
    ReceiverModel mil{.ConFiltriMil = true};
    ReceiverModel veloce{.Is5520F = true, .TipoFrontEnd = 3, .ConFiltriMil = true};
    ReceiverModel collegata = veloce;
    collegata.TipoFrontEnd = 2;
    ReceiverModel lenta{.TipoFrontEnd = 2, .ConFiltriMil = true};
    ReceiverModel gx{.TipoFrontEnd = 1, .ConFiltriMil = true};
    const ScanLine aeB = Con(Span(0.1, 30), {QPeak});
    const ScanLine d = Con(Span(300, 1000), {QPeak});
    const CasoRbw casi[] = {
        {"plain", {}, b, {0, 1, 10, 12, 13, 14, 15}, 1},
        {"plain, radiated", {}, c, {3, 10, 12, 13, 14, 15}, 1},
        {"Mil", mil, b, {0, 1, 10}, 1},
        {"GX2207F", veloce, b, {0, 1, 14, 15}, 1},
        {"5520F with a front-end", collegata, b, {0, 1, 14, 15}, 1},
        {"5520 with a front-end", lenta, b, {0, 1, 10}, 1},
        {"GX2207", gx, b, {0, 1}, 1},
        {"K3X, radiated", K3X(), c, {3, 10, 12, 13, 14, 15}, 1},
        {"5520F", Oem(1), b, {0, 1, 12, 13, 14, 15}, 1},
        {"5520F, radiated", Oem(1), c, {3, 12, 13, 14, 15}, 1},
        {"3360", Modello3360(nullptr), b, {0, 1, 3, 10, 12, 13, 14, 15}, 1},
        {"3360, radiated", Modello3360(nullptr), c, {0, 2, 3, 10, 12, 13, 14, 15}, 1},
        {"3360/00", Modello3360(&ReceiverModel::Is3360_00), b, {0, 1, 3, 10, 12, 13, 14, 15}, 1},
        {"3360/01", Modello3360(&ReceiverModel::Is3360_01), b, {0, 1, 12, 13, 14, 15}, 1},
        {"3360/02", Modello3360(&ReceiverModel::Is3360_02), c, {0, 2, 3, 12, 13, 14, 15}, 1},
        {"3360/03", Modello3360(&ReceiverModel::Is3360_03), c, {2, 3, 12, 13, 14, 15}, 1},
        {"QPeak in A", mil, Con(Span(0.009, 0.15), {QPeak}), {2, 5, 6, 7, 8, 9}, 4},
        {"QPeak in B", mil, Con(b, {QPeak}), {3, 5, 6, 7, 8, 9}, 4},
        {"QPeak in A+B", mil, aeB, {2, 3, 5, 6, 7, 8, 9}, 4},
        {"QPeak in C", {}, Con(c, {QPeak}), {0, 2, 5, 6, 7, 8, 9}, 4},
        {"QPeak to 1 GHz", {}, d, {0, 1, 2, 5, 6, 7, 8, 9}, 4},
        {"with Mil", mil, Con(b, {QPeak, Rms, RmsAvg}), {12, 13, 14, 15}, 5},
        {"Peak, Rms and Avg with Mil", mil, Con(b, {Peak, Rms, Avg}), {}, 5},
        {"Rms-Avg in B", {}, Con(b, {RmsAvg}), {5, 6, 7, 8, 9}, 2},
        {"C-Avg in C", {}, Con(c, {CAvg}), {0, 2, 5, 6, 7, 8, 9}, 6},
    };
    for (const CasoRbw& caso : casi) {
        SCOPED_TRACE(caso.caso);
        Tavolo t({caso.riga}, caso.modello);
        std::vector<int16_t> trovati;
        for (int16_t id = 0; id < kNumRbw; ++id) {
            t.tabella[0].RbwId = id;
            const Segnalazioni trovate = ControllaRBWScanTab(t.C());
            if (TabellaRbw()[static_cast<size_t>(id)].Separatore() || trovate.empty() ||
                trovate[0].codice != caso.codice)
                continue;
            EXPECT_EQ(trovate[0].celle, (Celle{{0, Rbw}}));
            EXPECT_EQ(trovate[0].riquadro.testo, kParoleRbw[caso.codice]);
            trovati.push_back(id);
        }
        EXPECT_EQ(trovati, caso.refusi);
    }
}

TEST(RegoleScan, ASwitchLetsTheNarrowMilFiltersThrough) {
    ScanLine riga = Span(0.15, 30);
    riga.RbwId = 15;
    Tavolo t({riga}, {.Is5520F = true, .TipoFrontEnd = 3, .ConFiltriMil = true});
    EXPECT_FALSE(ControllaRBWScanTab(t.C()).empty());
    t.rigaComando = "orvane-console /NOCMILFRFAST";
    EXPECT_TRUE(ControllaRBWScanTab(t.C()).empty());
}

TEST(RegoleScan, ALineWithoutARangeOfItsOwnTakesThatOfTheFirst) {
    ScanLine b = Span(0.15, 30);
    b.RbwId = 2;
    ScanLine c = Span(30, 300);
    c.RbwId = 1;
    ScanLine oltre = Span(29, 31);
    oltre.RbwId = 1;
    ScanLine girata = Span(300, 30);
    girata.RbwId = 1;
    const ReceiverModel frontEnd{.TipoFrontEnd = 1};
    struct {
        const char* nome;
        std::vector<ScanLine> righe;
        ReceiverModel modello;
        Celle errate;
    } const casi[] = {
        {"each asks for its unit", {b, c}, {}, {}},
        {"in either order", {c, b}, ConUnita(1), {}},
        {"on one instrument", {b, c}, K3X(), {}},
        {"turned round", {b, girata}, {}, {}},
        {"across 30 MHz behind a conducted line", {b, oltre}, {}, {{1, Rbw}}},
        {"the same with a front-end", {b, oltre}, frontEnd, {{1, Rbw}}},
        {"behind a radiated line", {c, oltre}, {}, {}},
        {"on one instrument no rule knows it", {b, oltre}, K3X(), {}},
    };
    for (const auto& caso : casi) {
        const Segnalazioni trovate = ControllaRBWScanTab(Tavolo(caso.righe, caso.modello).C());
        EXPECT_EQ(trovate.empty() ? Celle{} : trovate[0].celle, caso.errate) << caso.nome;
    }
}

TEST(RegoleScan, OverlapsAreMarkedOnBothLinesAndTouchingSpansAreNone) {
    const Tavolo t({Span(0.15, 30), Span(29, 40), Span(40, 50), Span(60, 70), Span(61, 62)});
    const Segnalazioni trovate = ControllaSovrapposizioniFreq(t.C());
    ASSERT_EQ(trovate.size(), 1u);
    EXPECT_EQ(trovate[0].esito, EsitoControllo::Chiede);
    EXPECT_EQ(trovate[0].celle, Frequenze({0, 1, 3, 4}));
    EXPECT_TRUE(ControllaSovrapposizioniFreq(Tavolo({Span(1, 30), Span(30, 40)}).C()).empty());
}

TEST(RegoleScan, StepRulesCompareInSinglePrecision) {
    struct {
        const char* caso;
        double span, step;
        int16_t rbwId;
        int codice;
    } const casi[] = {
        {"no step", 10, 0, 2, 0},
        {"a hundredth of the automatic step", 10, 0.00005, 2, 1},
        {"equal but for bits that single precision drops", 10, 0.000050000000001, 2, 1},
        {"just above it", 10, 0.0000501, 2, 0},
        {"half the span", 10, 5, 2, 0},
        {"more than half of it", 10, 5.01, 2, 2},
        {"more than half, within single precision", 10, 5.0000000001, 2, 0},
        {"a span of twice a hundredth", 0.0001, 0.001, 2, 2},
        {"a shorter span", 0.00009, 0.001, 2, 3},
        {"a millionth of the span", 17000, 0.017, 10, 1},
        {"more than a millionth", 17000, 0.0171, 10, 0},
    };
    for (const auto& caso : casi)
        // From 0 the span is its own number, without the last bits of a difference.
        EXPECT_EQ(
            DetErroreStep({.Start = 0, .Stop = caso.span, .Step = caso.step, .RbwId = caso.rbwId}),
            caso.codice)
            << caso.caso;
}

TEST(RegoleScan, TheFirstLineThatBreaksTheStepRulesIsTheFinding) {
    ScanLine bene{.Start = 0.15, .Stop = 30, .AutoStep = 1, .Step = 99, .RbwId = 2};
    ScanLine grande{.Start = 1, .Stop = 2, .Step = 0.6, .RbwId = 2};
    ScanLine stretta{.Start = 1, .Stop = 1.00005, .AutoStep = 1, .RbwId = 2};
    Tavolo t({bene, grande, stretta});
    Segnalazioni trovate = ControlloStepScanTab(t.C());
    ASSERT_EQ(trovate.size(), 1u);
    EXPECT_EQ(trovate[0].codice, 2);
    EXPECT_EQ(trovate[0].celle, (Celle{{1, Step}}));
    EXPECT_EQ(trovate[0].riquadro.testo, "   *** Step Error ***\r        Too big step");
    t.tabella[1] = bene;
    trovate = ControlloStepScanTab(t.C());
    ASSERT_EQ(trovate.size(), 1u);
    EXPECT_EQ(trovate[0].codice, 3);
    EXPECT_EQ(trovate[0].celle, Frequenze({2}));
    EXPECT_EQ(t.tabella[0].Step, 99) << "a check changes nothing";
    RicalcolaPassiAuto(t.tabella);
    EXPECT_EQ(t.tabella[0].Step, 0.005);
}

TEST(RegoleScan, StepsOverFourHundredKilohertzAreCut) {
    ScanLine lungo{.Start = 30, .Stop = 1000, .Step = 0.5};
    ScanLine giusto{.Start = 30, .Stop = 1000, .Step = 0.4};
    for (const ReceiverModel& m : {K3X(), Oem(2), Modello3360(nullptr)}) {
        Tavolo t({giusto, lungo}, m);
        const Segnalazioni trovate = ControlloStepScanTabK3XK6X(t.C());
        ASSERT_EQ(trovate.size(), 1u);
        EXPECT_EQ(trovate[0].esito, EsitoControllo::Corregge);
        EXPECT_EQ(trovate[0].celle, (Celle{{1, Step}}));
        LimitaPassi(t.tabella);
        EXPECT_EQ(t.tabella[1].Step, 0.4);
        EXPECT_TRUE(ControlloStepScanTabK3XK6X(t.C()).empty());
    }
    EXPECT_TRUE(ControlloStepScanTabK3XK6X(Tavolo({lungo}, ConUnita(1)).C()).empty());
}

TEST(RegoleScan, TheUnitThatALineNeeds) {
    using enum UnitaRichiesta;
    constexpr std::optional<UnitaRichiesta> kNulla;
    struct {
        ReceiverModel modello;
        double start, stop;
        std::optional<UnitaRichiesta> unita;
    } const casi[] = {
        {{}, 0.15, 30, kNulla},
        {ConUnita(1), 0.15, 30, SoloRicevitore},
        {{}, 30, 3000, Estesa},
        {{}, 30, 3000.1, Estesa6GHz},
        {{}, 30, 6000, Estesa6GHz},
        {{}, 6000, 18000, Estesa18GHz},
        {{}, 5999, 18000, kNulla},
        {ConUnita(0), 30, 3000, kNulla},
        {ConUnita(0), 30, 6000, Estesa6GHz},
        {ConUnita(0), 6000, 18000, Estesa18GHz},
        {ConUnita(1), 30, 3000, kNulla},
        {ConUnita(1), 30, 6000, kNulla},
        {ConUnita(1), 6000, 18000, Estesa18GHz},
        {ConUnita(2), 30, 3000, Estesa},
        {ConUnita(2), 30, 6000, Estesa6GHz},
        {ConUnita(2), 6000, 18000, kNulla},
        {K3X(), 30, 3000, kNulla},
    };
    for (const auto& caso : casi)
        EXPECT_EQ(UnitaPerRiga(caso.modello, caso.start, caso.stop), caso.unita)
            << caso.modello.UnitaEstensione << ": " << caso.start << " to " << caso.stop;
}

/// A line that needs a unit, and a receiver that says by `#?BCD*` which one it works with.
struct BancoUnita : BancoAperto {
    BancoUnita() { t.tabella[0] = Span(30, 3000); }
    void Collega(const std::string& bcd) {
        peer.RispondiDa({{"#?IDN*", "IDN=5520-FW - 1.0 x\r\n"}, {"#?BCD*", bcd + "\r\n"}});
    }
    bool Esegui() {
        return ControlloRigaPerRigaST(
            r, {t.tabella, r.modello, r.caps, t.setup, t.albero}, 0,
            [this](const Celle& celle) { segni.push_back(celle.size()); });
    }
    Tavolo t;
    std::vector<size_t> segni;
};

const std::string kAccendi = TestoCambioUnita(UnitaRichiesta::Estesa, "");
const std::string kNonVa = "*** KRV 5520 Connected ***\r  This span cannot be swept";

TEST(RigaPerRiga, TheUnitIsAskedForWhereItDoesNotFitAndIdentified) {
    BancoUnita b;
    b.r.modello = ConUnita(1);
    EXPECT_TRUE(b.Esegui());
    EXPECT_EQ(b.Riquadri(), Testi{});
    EXPECT_EQ(b.peer.scritti, Testi{});
    b.r.modello = {};
    b.Collega("BCD=ON;5570");
    EXPECT_TRUE(b.Esegui());
    EXPECT_EQ(b.Riquadri(), Testi{kAccendi});
    EXPECT_EQ(b.peer.scritti, (Testi{"#?IDN*", "#?BCD*"}));
    EXPECT_EQ(b.segni, std::vector<size_t>{0});
}

TEST(RigaPerRiga, RetryMeetsTheReceiverAgainAndCancelEndsTheRun) {
    BancoUnita b;
    b.Collega("BCD=OFF");
    b.ambiente.risposte = {Risposta::Ok, Risposta::Riprova, Risposta::Annulla};
    EXPECT_FALSE(b.Esegui());
    EXPECT_EQ(b.Riquadri(), (Testi{kAccendi, kNonVa, kNonVa}));
    EXPECT_EQ(b.peer.scritti, (Testi{"#?IDN*", "#?BCD*", "#?IDN*", "#?BCD*"}));
    EXPECT_EQ(b.segni, (std::vector<size_t>{2, 2}));
    EXPECT_FALSE(b.stato.AbbandonaComandi) << "the run's own stop follows, and may send";
}

} // namespace
} // namespace orvane
