// The command line program: makes every record once, wires it to the machine, and runs one verb.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include <unistd.h>

#include "app/Collegamento.h"
#include "app/FabbricaDifferita.h"
#include "base/Interruttori.h"
#include "base/Numeri.h"
#include "base/Testo.h"
#include "base/Versione.h"
#include "link/LogTraffico.h"
#include "platform/AmbienteTerminale.h"
#include "platform/PresaFile.h"
#include "platform/Sincronizza.h"
#include "platform/Tastiera.h"
#include "verbs/Verbo.h"

namespace {

using namespace orvane;

struct Opzioni {
    std::filesystem::path dati = std::filesystem::current_path();
    std::string link;
    std::optional<bool> rispostaSi;
    bool json = false;
    bool aiuto = false;
    double pazienzaS = 30; ///< how long the error banner may stand; 0 for ever
    std::string verbo;
    std::vector<std::string> parole;
    std::string errore;
};

void StampaAiuto(std::ostream& uscita) {
    uscita << kNomeProgramma << " " << RelSoftware() << "\n\n"
           << "usage: orvane [--data DIR] [--link LINK] [--answer yes|no] [--json]\n"
           << "              [--patience S] VERB ...\n\n"
           << "LINK: sim[:MODEL][,fw=X.YZ][,seed=N][,speed=line|full][,port=N], usb, com:N or\n"
           << "      tty:PATH\n\n";
    for (const VoceVerbo& voce : TabellaVerbi())
        uscita << "  " << voce.nome << " " << voce.uso << "\n      " << voce.aiuto << "\n";
    uscita << "\nexit status: 0 done, 1 refused or a verdict other than PASS, 2 wrong use,\n"
           << "             3 link or receiver, 4 file, 5 stopped\n";
}

/// Takes one option with its value; false when it is none that the program knows.
bool PrendiOpzione(Opzioni& o, const std::string& nome, const std::string& valore) {
    if (nome == "--data") {
        o.dati = valore;
    } else if (nome == "--link") {
        o.link = valore;
    } else if (nome == "--answer") {
        o.rispostaSi = valore == "yes";
        if (valore != "yes" && valore != "no")
            o.errore = "--answer wants yes or no";
    } else if (nome == "--patience") {
        const auto secondi = LeggiNumero(valore);
        o.pazienzaS = secondi.value_or(0);
        if (!secondi || *secondi < 0)
            o.errore = "--patience wants seconds";
    } else {
        return false;
    }
    return true;
}

/// Switches such as "/LOGCOMANDI" are looked for in the whole text; as words they are passed over.
/// Any other word with a slash may be a path.
bool Interruttore(const std::string& parola) {
    return std::find(interruttore::kTutti.begin(), interruttore::kTutti.end(), parola) !=
               interruttore::kTutti.end() ||
           Maiuscolo(parola).starts_with("COMM=");
}

Opzioni LeggiRiga(const std::vector<std::string>& parole) {
    Opzioni o;
    for (size_t i = 0; i < parole.size() && o.errore.empty(); ++i) {
        const std::string& parola = parole[i];
        if (Interruttore(parola))
            continue;
        if (parola == "--json")
            o.json = true;
        else if (parola == "--help" || parola == "-h")
            o.aiuto = true;
        else if (!o.verbo.empty())
            o.parole.push_back(parola);
        else if (!parola.starts_with("-"))
            o.verbo = parola;
        else if (i + 1 >= parole.size())
            o.errore = parola + " wants a value";
        else if (!PrendiOpzione(o, parola, parole[++i]))
            o.errore = "unknown option " + parola;
    }
    return o;
}

int Esegui(const Opzioni& o, const VoceVerbo& verbo, const std::string& rigaComando) {
    SorvegliaLink sorveglia;
    AmbienteTerminale ambiente(sorveglia, rigaComando, o.rispostaSi);
    Scrivania scrivania{.ambiente = ambiente,
                        .albero = AlberoDati(o.dati, Sincronizza, {PrendiFile, FilePreso})};
    StatoProtocollo stato;
    LogTraffico log(ambiente, o.dati);
    Collegamento collegamento(ambiente, sorveglia, o.dati);
    Porta porta(ambiente, stato, log, collegamento.VettoriPorta());
    if (const std::string errore = collegamento.Applica(o.link, porta); !errore.empty()) {
        std::cerr << "orvane: " << errore << "\n";
        return kUsoErrato;
    }
    VistaTerminale vista(ambiente, std::cerr, isatty(STDERR_FILENO) != 0, o.json);
    Tastiera tastiera;
    ambiente.primaDelRiquadro = [&vista] { vista.FineRiga(); };
    ambiente.dopoIlRiquadro = [&vista](const std::string& testo, const char* risposta) {
        vista.MostraRisposta(testo, risposta);
    };
    if (Tastiera::Presente())
        ambiente.tastiera = &tastiera;
    Ricevitore ricevitore{ambiente, stato, log, porta, vista};
    StatoCorsa corsa;
    bool interrotto = false;
    FabbricaDifferita fabbrica;
    Banco banco{.scrivania = scrivania,
                .ricevitore = ricevitore,
                .corsa = corsa,
                .vista = vista,
                .catalogo = collegamento.Catalogo(),
                .linkScelto = !o.link.empty(),
                .interrotto = interrotto,
                .dati = std::cout,
                .messaggi = std::cerr,
                .json = o.json,
                .fabbrica = &fabbrica};
    if (ambiente.tastiera)
        banco.tastiera = {.invio = [&tastiera] { return tastiera.LeggiRiga().has_value(); },
                          .dimentica = [&tastiera] { tastiera.Dimentica(); }};
    ambiente.alInterrompi = [&](int quante) {
        interrotto = true;
        // The first asks a run to stop, which ends it in good order; the next gives everything up.
        if (corsa.SweepInCorso && quante == 1)
            ChiediStop(corsa);
        else
            stato.AbbandonaComandi = true;
    };
    ambiente.alGiro = [&] {
        if (banco.alGiro)
            banco.alGiro();
        // While the banner stands a command repeats itself for ever: a Stop would never come to it.
        const double daS = vista.StrisciaDaS();
        if (daS > 0 && (corsa.StopRichiesto || (o.pazienzaS > 0 && daS > o.pazienzaS)))
            stato.AbbandonaComandi = true;
    };
    const int esito = verbo.esegui(banco, o.parole);
    std::cout.flush();
    return std::cout ? esito : kGuastoFile;
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> parole(argv + 1, argv + argc);
    const Opzioni o = LeggiRiga(parole);
    if (o.aiuto) {
        StampaAiuto(std::cout);
        return kFatto;
    }
    const VoceVerbo* verbo = TrovaVerbo(o.verbo);
    if (!o.errore.empty() || !verbo) {
        std::cerr << "orvane: "
                  << (!o.errore.empty() ? o.errore
                      : o.verbo.empty() ? "wants a verb"
                                        : "unknown verb \"" + o.verbo + "\"")
                  << "\n";
        StampaAiuto(std::cerr);
        return kUsoErrato;
    }
    std::error_code errore;
    if (!std::filesystem::is_directory(o.dati, errore)) {
        std::cerr << "orvane: there is no directory " << o.dati.string() << "\n";
        return kGuastoFile;
    }
    if (std::filesystem::directory_iterator(o.dati, errore); errore) {
        std::cerr << "orvane: cannot read the directory " << o.dati.string() << "\n";
        return kGuastoFile;
    }
    return Esegui(o, *verbo, Unisci(parole, " "));
}
