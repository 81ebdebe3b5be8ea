#include "verbs/Verbo.h"

#include <algorithm>
#include <array>
#include <ostream>

#include "base/Percorsi.h"
#include "base/Testo.h"

namespace orvane {
namespace {

constexpr std::array kVerbi = {
    VoceVerbo{"identify", "", "who the receiver is, one `key: value` a line", VerboIdentify},
    VoceVerbo{"ports", "", "the serial ports of this machine, with their COM numbers", VerboPorts},
    VoceVerbo{"scan",
              "list | show NAME | clear NAME | remove NAME LINE | copy NAME LINE\n"
              "        | move NAME LINE TO | add NAME (--band B | --start MHZ --stop MHZ) ...\n"
              "        | insert NAME LINE (--band B | --start MHZ --stop MHZ) ...\n"
              "        | set NAME LINE ... with [--start MHZ] [--stop MHZ] [--rbw TEXT]\n"
              "        [--step MHZ] [--auto-step on|off] [--table NAME|none] [--steps-between N]\n"
              "        [--detector P,Q,...] [--hold MS] [--smart on|off] [--peak-hold MS]\n"
              "        [--margin DB] [--limit NAME|none] [--limit-dsd NAME|none] [--min-att DB]\n"
              "        [--preamp on|off] [--presel on|off] [--prompt TEXT] [--lines L1,L2]\n"
              "        [--antenna V,H]; all with [--ancillary N]",
              "scan tables", VerboScan},
    VoceVerbo{"check", "--scan NAME [--name MEASURE]",
              "what the checks before a run find in a scan table; nothing is changed", VerboCheck},
    VoceVerbo{"sweep",
              "--scan NAME [--name MEASURE] [--timer S | --trigger 0|1]\n"
              "        [--pause-after S [--pause-for S]]",
              "the run of a scan table, with progress on standard error; Ctrl-C is Stop, a second\n"
              "      one gives the receiver up",
              VerboSweep},
    VoceVerbo{"command", "--scan NAME",
              "what a scan table makes the console send, without sending it", VerboCommand},
    VoceVerbo{"archive",
              "[list] [--search TEXT] | show MEASURE | accept MEASURE | delete MEASURE ...\n"
              "        | rename MEASURE NAME | redo MEASURE [--name EST]\n"
              "        | difference MEASURE REFERENCE [--detector D]\n"
              "        | envelope MEASURE [--detector D] [--factors]",
              "the measures; accept takes the mark of a run that was cut off, redo makes a scan\n"
              "      table of a measure, difference and envelope print CSV",
              VerboArchive},
    VoceVerbo{"trace",
              "MEASURE [--detector D] [--sub NAME] [--unit U] [--factors | --factor F ...]\n"
              "        [--limit A ...]",
              "a stored trace as CSV: frequency_mhz,level_db,line", VerboTrace},
    VoceVerbo{"peaks",
              "MEASURE [--detector D] [--sub NAME] [--count N] [--excursion DB] [--from MHZ]\n"
              "        [--to MHZ] [--unit U] [--factor F ...] [--limit A ...] [--save-table NAME]",
              "the highest peaks of a stored trace as CSV", VerboPeaks},
    VoceVerbo{"verdict",
              "MEASURE [--sub NAME] [--limit A[:D] ...] [--factor F ...] [--uncertainty DB]\n"
              "        [--unit U]",
              "PASS, FAIL or INCONCLUSIVE for each limit, and for all of them; status 0 for PASS",
              VerboVerdict},
    VoceVerbo{"picture",
              "MEASURE --out FILE [--size WxH] [--sub NAME] [--detector D] ... [--unit U]\n"
              "        [--limit NAME[:D]] ... [--factor NAME] ... [--from MHZ] [--to MHZ]\n"
              "        [--reference DB] [--dynamics N|DB] [--peaks N] [--print|--dark|--light]\n"
              "        [--no-settings]",
              "a stored measure as a picture: BMP, PNG, JPG or SVG by the file's extension",
              VerboPicture},
    VoceVerbo{"report",
              "MEASURE --out F [--kind 1det|2det|2full] [--detector D] [--detector2 D]\n"
              "        [--margin DB] [--limit A]... [--factor F]... [--unit U] [--sub NAME]\n"
              "        [--header] [--summary] [--separator comma|semicolon|tab]\n"
              "        [--decimal point|comma] [--paper portrait|landscape] [--save-table NAME]",
              "what comes near a limit, as TXT, PDF, RTF, CSV or HTML by the name of F",
              VerboReport},
    VoceVerbo{
        "panel", "list | show [NAME|PATH]",
        "settings field by field, with their places: EAM, or by extension EPN, EST, PTH, COL,\n"
        "      KSH",
        VerboPanel},
    VoceVerbo{"limit",
              "list | show NAME | value NAME HZ ... | export NAME FILE | library\n"
              "        | import NAME FILE [--unit U] [--title T] [--lin]\n"
              "        | store NAME --slot N [--name TEXT]",
              "limit tables; `value` in hundredths of a dB, `library` copies the starter limits",
              VerboLimit},
    VoceVerbo{
        "factor",
        "list | show NAME | value NAME HZ ... | export NAME FILE\n"
        "        | import NAME FILE [--unit U] [--title T] | store NAME --slot N [--name TEXT]",
        "factor tables", VerboFactor},
    VoceVerbo{
        "table",
        "list | show NAME | export NAME FILE | import NAME FILE [--unit U]; all with [--mast]",
        "frequency tables, with --mast those with positions", VerboTable},
};

} // namespace

std::span<const VoceVerbo> TabellaVerbi() {
    return kVerbi;
}

const VoceVerbo* TrovaVerbo(std::string_view nome) {
    const auto voce = std::find_if(kVerbi.begin(), kVerbi.end(),
                                   [&](const VoceVerbo& v) { return v.nome == nome; });
    return voce == kVerbi.end() ? nullptr : &*voce;
}

std::optional<std::string> NomeDaParola(std::string_view parola) {
    const std::string nome = Rifila(parola);
    const bool controlli =
        std::any_of(nome.begin(), nome.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; });
    if (nome.empty() || controlli || ControllaNomeMisura(nome) != nome)
        return std::nullopt;
    return nome;
}

std::string ParoleInRiga(std::string_view testo) {
    std::string riga;
    for (const std::string& pezzo : Dividi(testo, '\r')) {
        const std::string pulito = Rifila(pezzo);
        if (!riga.empty() && !pulito.empty())
            riga += ' ';
        riga += pulito;
    }
    return riga;
}

EsitoVerbo UsoErrato(Banco& banco, std::string_view verbo, std::string_view perche) {
    banco.messaggi << "orvane " << verbo << ": " << perche << "\n";
    if (const VoceVerbo* voce = TrovaVerbo(verbo))
        banco.messaggi << "usage: orvane " << voce->nome << " " << voce->uso << "\n";
    return kUsoErrato;
}

EsitoVerbo Guasto(Banco& banco, EsitoVerbo esito, std::string_view perche) {
    banco.vista.FineRiga();
    banco.messaggi << "orvane: " << perche << "\n";
    return esito;
}

EsitoVerbo EsitoDelLink(const Banco& banco) {
    return banco.interrotto ? kFermato : kGuastoLink;
}

} // namespace orvane
