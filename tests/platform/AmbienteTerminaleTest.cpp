#include <gtest/gtest.h>

#include <csignal>
#include <ctime>

#include <sys/resource.h>

#include "platform/AmbienteTerminale.h"
#include "platform/Linea.h"

namespace orvane {
namespace {

using prova::Byte;
using prova::Disturbo;
using prova::Linea;

constexpr double kALungo = 30;

double TempoDiProcessore() {
    rusage uso = {};
    getrusage(RUSAGE_SELF, &uso);
    return static_cast<double>(uso.ru_utime.tv_sec + uso.ru_stime.tv_sec) +
           static_cast<double>(uso.ru_utime.tv_usec + uso.ru_stime.tv_usec) / 1e6;
}

/// Share of a processor that half a second of waiting for the link takes.
double QuotaDiAttesa(Ambiente& ambiente, double passoS) {
    const double inizio = ambiente.Adesso();
    const double usato = TempoDiProcessore();
    const Scadenza fine(ambiente, 0.5);
    while (!fine.Passata())
        ambiente.ElaboraEventi(std::min(passoS, fine.Rimane()), Veglia::EventiELink);
    return (TempoDiProcessore() - usato) / (ambiente.Adesso() - inizio);
}

TEST(AmbienteTerminale, ABoxIsALineWithItsAnswer) {
    using enum Pulsanti;
    const std::tuple<const char*, Pulsanti, std::optional<bool>, Risposta, const char*> casi[] = {
        {"Over?", SiNo, {}, Risposta::No, "Over? -> No"},
        {"Over?", SiNo, false, Risposta::No, "Over? -> No"},
        {"Over?", SiNo, true, Risposta::Si, "Over? -> Yes"},
        {"Go on", OkAnnulla, {}, Risposta::Annulla, "Go on -> Cancel"},
        {"Go on", OkAnnulla, true, Risposta::Ok, "Go on -> OK"},
        {"Again", RiprovaAnnulla, false, Risposta::Annulla, "Again -> Cancel"},
        {"Again", RiprovaAnnulla, true, Risposta::Riprova, "Again -> Retry"},
        {"Done", Ok, false, Risposta::Ok, "Done -> OK"},
        {"No X\ron the bus.\r", Ok, {}, Risposta::Ok, "No X on the bus. -> OK"},
        {"one\r\n\r\ntwo", Ok, {}, Risposta::Ok, "one two -> OK"},
        {"dB\xC2\xB5V \x1B[2J\x7F.", Ok, {}, Risposta::Ok, "dB\xC2\xB5V  [2J . -> OK"}};
    for (const auto& [testo, pulsanti, risposta, attesa, riga] : casi) {
        SorvegliaLink sorveglia;
        AmbienteTerminale ambiente(sorveglia, "", risposta);
        testing::internal::CaptureStderr();
        EXPECT_EQ(ambiente.Mostra({.testo = testo, .pulsanti = pulsanti}), attesa);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "[box] " + std::string(riga) + "\n");
    }
    SorvegliaLink sorveglia;
    AmbienteTerminale ambiente(sorveglia, "", {});
    testing::internal::CaptureStderr();
    ambiente.Mostra({.testo = "Not as\rexpected", .titolo = "Loading C:\\T.5SL"});
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "[box] Loading C:\\T.5SL: Not as expected -> OK\n");
}

TEST(AmbienteTerminale, TheCalendarIsTheLocalOne) {
    setenv("TZ", "XXX-5:45", 1); // no other zone of a test machine has this one
    tzset();
    const std::time_t adesso = std::time(nullptr);
    const OraCalendario ora = OraLocale();
    unsetenv("TZ");
    tzset();
    std::tm campi = {};
    campi.tm_year = ora.anno - 1900;
    campi.tm_mon = ora.mese - 1;
    campi.tm_mday = ora.giorno;
    const double lassu = static_cast<double>(timegm(&campi)) + ora.secondiDelGiorno;
    EXPECT_NEAR(lassu - 5.75 * 3600, static_cast<double>(adesso), 60);
}

TEST(AmbienteTerminale, BytesOfTheLinkEndAWaitForThem) {
    Linea l;
    ASSERT_EQ(l.Apri(), EsitoApertura::Aperto);
    AmbienteTerminale ambiente(l.sorveglia, "", std::nullopt);
    Disturbo disturbo([&] { l.pseudo.Scrivi(Byte("SFD=OK\r\n")); });
    ambiente.ElaboraEventi(kALungo, Veglia::EventiELink);
    EXPECT_TRUE(disturbo.SonoSveglio());
    EXPECT_EQ(l.ArrivatiAllaPorta(8), Byte("SFD=OK\r\n"));
}

TEST(AmbienteTerminale, ASilentLineCostsNoProcessorTime) {
    Linea l;
    ASSERT_EQ(l.Apri(), EsitoApertura::Aperto);
    AmbienteTerminale ambiente(l.sorveglia, "", std::nullopt);
    EXPECT_LT(QuotaDiAttesa(ambiente, kALungo), 0.2);
    l.sorveglia.senzaAvviso = true;
    EXPECT_LT(QuotaDiAttesa(ambiente, kALungo), 0.2) << "a carrier that has to be looked at";
    l.sorveglia.senzaAvviso = false;
    l.pseudo.Stacca();
    EXPECT_LT(QuotaDiAttesa(ambiente, kALungo), 0.2) << "a device that vanished";
}

TEST(AmbienteTerminale, CtrlCEndsAWaitAndIsServedOnce) {
    SorvegliaLink sorveglia;
    AmbienteTerminale ambiente(sorveglia, "", std::nullopt);
    std::vector<int> viste;
    ambiente.alInterrompi = [&](int quante) { viste.push_back(quante); };
    const pid_t io = getpid();
    for (const int segnale : {SIGINT, SIGTERM}) {
        Disturbo disturbo([&] { kill(io, segnale); });
        ambiente.ElaboraEventi(kALungo, Veglia::Eventi);
        EXPECT_TRUE(disturbo.SonoSveglio()) << segnale;
    }
    ambiente.ElaboraEventi(0, Veglia::Eventi);
    EXPECT_EQ(viste, (std::vector{1, 2}));
}

TEST(AmbienteTerminale, CtrlCBeforeTheWaitLetsNoneBegin) {
    SorvegliaLink sorveglia;
    AmbienteTerminale ambiente(sorveglia, "", std::nullopt);
    int viste = 0;
    ambiente.alInterrompi = [&](int quante) { viste = quante; };
    Disturbo disturbo([] {});
    raise(SIGINT);
    raise(SIGINT);
    EXPECT_EQ(viste, 0) << "served in the pump, not in the handler";
    ambiente.ElaboraEventi(kALungo, Veglia::EventiELink);
    EXPECT_EQ(viste, 2);
    EXPECT_TRUE(disturbo.SonoSveglio());
}

TEST(AmbienteTerminale, CtrlCOfAProgramThatDoesNotListenEndsIt) {
    SorvegliaLink sorveglia;
    EXPECT_EXIT(
        {
            AmbienteTerminale ambiente(sorveglia, "", std::nullopt);
            raise(SIGTERM);
            ambiente.ElaboraEventi(0, Veglia::Eventi);
        },
        testing::KilledBySignal(SIGTERM), "");
    EXPECT_EXIT(
        {
            AmbienteTerminale ambiente(sorveglia, "", std::nullopt);
            ambiente.alInterrompi = [](int) {};
            for (int i = 0; i < 3; ++i)
                raise(SIGINT); // and the pump is never reached
        },
        testing::KilledBySignal(SIGINT), "");
}

TEST(AmbienteTerminale, TheClocksTurnComesDuringALongWaitAndNeverInsideItself) {
    SorvegliaLink sorveglia;
    AmbienteTerminale ambiente(sorveglia, "", std::nullopt);
    int giri = 0;
    ambiente.alGiro = [&] {
        ++giri;
        ambiente.ElaboraEventi(0, Veglia::Eventi);
    };
    ambiente.ElaboraEventi(0, Veglia::Eventi);
    EXPECT_EQ(giri, 1);
    Disturbo disturbo([] {});
    ambiente.ElaboraEventi(kALungo, Veglia::Eventi);
    EXPECT_EQ(giri, 2);
    EXPECT_TRUE(disturbo.SonoSveglio());
}

TEST(AmbienteTerminale, ReportsAFaultOfItsOwn) {
    SorvegliaLink sorveglia;
    AmbienteTerminale ambiente(sorveglia, "orvane /LOGCOMANDI", std::nullopt);
    EXPECT_EQ(ambiente.RigaComando(), "orvane /LOGCOMANDI");
    testing::internal::CaptureStderr();
    ambiente.SegnalaDifetto("a send\ninside a send");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "internal fault: a send inside a send\n");
}

} // namespace
} // namespace orvane
