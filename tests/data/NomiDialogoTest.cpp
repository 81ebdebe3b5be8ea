// Names typed into file dialogs.
#include "data/NomiDialogo.h"

#include "aiuto/AmbienteProva.h"

namespace orvane::prova {
namespace {

TEST(NomiDialogoTest, TheLengthIsMeasuredFourShortOfTheLimitButCutAtIt) {
    const std::string a(6, 'a');
    const std::string accenti = "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9"; // six letters
    // A name, the limit, what comes of it, and the name in the box; empty for none.
    const std::tuple<std::string, int, std::string, std::string> casi[] = {
        {a + ".EST", 10, a + ".EST", ""},
        {a + "b.EST", 10, a + "b.EST", a + "b"}, // one too long, and not yet cut
        {a + a + ".EST", 10, a + "aaaa.EST", a + "aaaa"},
        {"Panels\\" + a + a + ".EST", 10, "Panels\\" + a + "aaaa.EST", a + "aaaa"},
        {a + a, 10, a + "aaaa", a + "aaaa"},
        {accenti + ".EST", 10, accenti + ".EST", ""},
        {accenti + ".EST", 5, accenti.substr(0, 10) + ".EST", accenti.substr(0, 10)},
        {std::string(300, 'x') + ".EAM", 60, std::string(60, 'x') + ".EAM", std::string(60, 'x')},
    };
    for (const auto& [nome, limite, esito, detto] : casi) {
        AmbienteProva ambiente;
        EXPECT_EQ(ControllaLunghezzaNome(ambiente, nome, limite, ModoDialogo::Salva), esito);
        ASSERT_EQ(ambiente.riquadri.size(), detto.empty() ? 0u : 1u) << nome;
        for (const Riquadro& riquadro : ambiente.riquadri)
            EXPECT_EQ(riquadro.testo, "The name as been shortened in\r" + detto);
    }
}

} // namespace
} // namespace orvane::prova
