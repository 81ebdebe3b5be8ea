// The desktop console: options, records, link, main window.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <QApplication>
#include <QMessageBox>

#include "app/Collegamento.h"
#include "ui/InitForm.h"
#include "ui/Postazione.h"
#include "ui/Tema.h"

namespace {

using namespace orvane;

constexpr const char* kUso =
    "usage: orvane-console [--data DIR] [--link LINK] [--style light|dark] [SWITCHES]\n"
    "  LINK: sim[:MODEL][,fw=X.YZ][,seed=N][,speed=line|full][,port=N], usb, com:N or\n"
    "        tty:PATH\n";

struct Opzioni {
    std::filesystem::path dati = std::filesystem::current_path();
    std::string link;
    StileChiesto stile = StileChiesto::Sistema;
    std::string rigaComando; ///< all the rest, for the documented switches
    std::string errore;
    bool aiuto = false;
};

std::string ImpostaStile(const std::string& valore, StileChiesto& stile) {
    if (valore != "light" && valore != "dark")
        return "--style wants light or dark";
    stile = valore == "dark" ? StileChiesto::Scuro : StileChiesto::Chiaro;
    return {};
}

std::string Imposta(const std::string& nome, const std::string& valore, Opzioni& o) {
    if (nome == "--data")
        o.dati = std::filesystem::absolute(valore);
    else if (nome == "--link")
        o.link = valore;
    else
        return ImpostaStile(valore, o.stile);
    return {};
}

Opzioni LeggiOpzioni(const std::vector<std::string>& parole) {
    Opzioni o;
    for (size_t i = 0; i < parole.size(); ++i) {
        const std::string& parola = parole[i];
        const bool conValore = parola == "--data" || parola == "--link" || parola == "--style";
        if (parola == "--help" || parola == "-h")
            o.aiuto = true;
        else if (conValore && i + 1 == parole.size())
            o.errore = parola + " wants a value";
        else if (conValore)
            o.errore += Imposta(parola, parole[++i], o);
        else if (parola.starts_with("--"))
            o.errore = "unknown option " + parola;
        else
            o.rigaComando += (o.rigaComando.empty() ? "" : " ") + parola;
    }
    std::error_code errore;
    if (o.errore.empty() && !std::filesystem::is_directory(o.dati, errore))
        o.errore = "no directory " + o.dati.string();
    return o;
}

int Rifiuta(const std::string& motivo) {
    std::fprintf(stderr, "orvane-console: %s\n%s", motivo.c_str(), kUso);
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    const Opzioni opzioni = LeggiOpzioni({argv + std::min(argc, 1), argv + argc});
    if (opzioni.aiuto)
        return std::fputs(kUso, stdout), 0;
    if (!opzioni.errore.empty())
        return Rifiuta(opzioni.errore);
    // Qt gets no options of ours: it would take --style for its own.
    int soloNome = std::min(argc, 1);
    QApplication applicazione(soloNome, argv);
    QApplication::setApplicationName(QStringLiteral("orvane-console"));
    QApplication::setQuitOnLastWindowClosed(false);
    ApplicaTema(applicazione, opzioni.stile);

    SorvegliaLink sorveglia;
    AmbienteQt ambiente(sorveglia, opzioni.rigaComando);
    Collegamento collegamento(ambiente, sorveglia, opzioni.dati);
    InitForm inizio;
    inizio.show();
    QApplication::processEvents();

    Postazione postazione(ambiente, opzioni.dati, collegamento.VettoriPorta());
    if (opzioni.stile != StileChiesto::Sistema)
        postazione.finestra.FissaStile(opzioni.stile == StileChiesto::Scuro
                                           ? QStringLiteral("dark")
                                           : QStringLiteral("light"));
    postazione.Carica();
    if (const auto motivo = collegamento.Applica(opzioni.link, postazione.porta); !motivo.empty())
        return Rifiuta(motivo);
    // A quit is only noted: the loop ends once every handler has returned to it.
    QObject::connect(&postazione.finestra, &MainForm::Terminata, &applicazione,
                     &QApplication::quit);
    postazione.Mostra();
    inizio.close();
    return QApplication::exec();
}
