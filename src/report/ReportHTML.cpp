#include "report/ReportHTML.h"

#include <algorithm>

#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "report/ModelloHtml.h"
#include "report/TestoReport.h"

namespace orvane {
namespace {

std::string Elemento(std::string_view nome, std::string_view testo, std::string_view classe = "") {
    const std::string apre =
        std::string(nome) + (classe.empty() ? "" : " class=\"" + std::string(classe) + "\"");
    return "<" + apre + ">" + TestoHtml(testo) + "</" + std::string(nome) + ">";
}

const char* ClasseGiudizio(Giudizio giudizio) {
    switch (giudizio) {
    case Giudizio::Pass:
        return "verdict pass";
    case Giudizio::Fail:
        return "verdict fail";
    case Giudizio::Inconclusive:
        return "verdict inconclusive";
    case Giudizio::Nessuno:
        break;
    }
    return "verdict";
}

std::string RigaPunto(const PuntoPeggiore& p) {
    std::string html = "<tr><td class=\"text\">" +
                       Elemento("span", TestoGiudizio(p.giudizio), ClasseGiudizio(p.giudizio)) +
                       "</td>" + Elemento("td", p.limite, "text") +
                       Elemento("td", p.detector, "text");
    for (const std::string& cella :
         {p.freqMhz, p.livello, p.valore, p.delta, TestoIntero(static_cast<long long>(p.oltre))})
        html += Elemento("td", cella);
    return html + "</tr>\n";
}

std::string SezioneRiassunto(const Riassunto& r) {
    std::string html = "<section class=\"summary\">\n<h2>Summary</h2>\n<p>Verdict: " +
                       Elemento("span", TestoGiudizio(r.giudizio), ClasseGiudizio(r.giudizio)) +
                       "</p>\n";
    for (const VoceRiassunto& voce : r.voci)
        html += Elemento("p", voce.etichetta + ": " + voce.testo) + "\n";
    if (!r.punti.empty()) {
        html += "<table>\n<caption>Worst point of each limit</caption>\n<thead><tr>";
        for (const char* testa : {"Verdict", "Limit", "Detector"})
            html += Elemento("th", testa, "text");
        for (const std::string& testa :
             {std::string("Frequency [MHz]"), "Level [" + r.unita + "]", "Limit [" + r.unita + "]",
              std::string("Delta [dB]"), std::string("Samples above")})
            html += Elemento("th", testa);
        html += "</tr></thead>\n<tbody>\n";
        for (const PuntoPeggiore& p : r.punti)
            html += RigaPunto(p);
        html += "</tbody>\n</table>\n";
    }
    return html + "</section>\n";
}

std::string Testa(const ColonnaReport& colonna) {
    std::string testo = TestoHtml(colonna.titolo.empty() ? "No." : colonna.titolo);
    if (!colonna.nome.empty())
        testo += "<br>" + TestoHtml(colonna.nome);
    if (!colonna.unita.empty())
        testo += "<br>[" + TestoHtml(colonna.unita) + "]";
    // No button element: what one holds is missing where a printer repeats the head.
    return "<th scope=\"col\"><span role=\"button\" tabindex=\"0\">" + testo + "</span></th>";
}

bool OltreLimite(const ColonnaReport& colonna, const std::string& cella) {
    return colonna.genere == GenereColonna::Delta && LeggiNumero(cella).value_or(0) > 0;
}

std::string TabellaRighe(const GrigliaReport& griglia) {
    std::string html = "<table id=\"rows\">\n<thead><tr>";
    for (const ColonnaReport& colonna : griglia.colonne)
        html += Testa(colonna);
    html += "</tr></thead>\n<tbody>\n";
    for (const RigaGriglia& riga : griglia.righe) {
        html += "<tr>";
        for (size_t c = 0; c < riga.celle.size(); ++c)
            html += Elemento("td", Rifila(riga.celle[c]),
                             OltreLimite(griglia.colonne[c], riga.celle[c]) ? "over" : "");
        html += "</tr>\n";
    }
    return html + "</tbody>\n</table>\n";
}

} // namespace

std::string TestoHtml(std::string_view testo) {
    // There and back through the page takes out whatever is no valid UTF-8; no report has more.
    std::string html;
    for (const char c : DaAnsi(InAnsi(testo)))
        switch (c) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '"':
            html += "&quot;";
            break;
        case '\'':
            html += "&#39;";
            break;
        default:
            html += static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\t' ? '?' : c;
        }
    return html;
}

std::string Base64(std::span<const uint8_t> byte) {
    constexpr std::string_view kAlfabeto =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string testo;
    testo.reserve((byte.size() + 2) / 3 * 4);
    for (size_t i = 0; i < byte.size(); i += 3) {
        const auto terna = byte.subspan(i, std::min<size_t>(3, byte.size() - i));
        uint32_t bit = 0;
        for (size_t k = 0; k < 3; ++k)
            bit = bit << 8 | (k < terna.size() ? terna[k] : 0u);
        for (size_t k = 0; k < 4; ++k)
            testo += k <= terna.size() ? kAlfabeto[bit >> (18 - 6 * k) & 0x3F] : '=';
    }
    return testo;
}

std::string ReportHtml(const GrigliaReport& griglia, const ReportModel& model,
                       const MisuraAperta& misura, const ParteHtml& parte) {
    std::string html = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n" +
                       Elemento("title", "Report " + misura.nome) + "\n<style>" +
                       std::string(kStileHtml) + "</style>\n</head>\n<body>\n";
    if (!parte.intestazione.empty())
        html +=
            Elemento("pre", "\n" + parte.intestazione) + "\n"; // its first line end is not shown
    html += Elemento("h1", TitoloReport(misura)) + "\n";
    for (const std::string& riga : RigheDati(model, misura))
        html += Elemento("p", riga) + "\n";
    if (parte.riassunto)
        html += SezioneRiassunto(*parte.riassunto);
    if (!parte.png.empty())
        html += "<figure><img alt=\"Graph of the measure\" src=\"data:image/png;base64," +
                Base64(parte.png) + "\"></figure>\n";
    html += TabellaRighe(griglia);
    return html + "<script>" + std::string(kOrdinaHtml) + "</script>\n</body>\n</html>\n";
}

} // namespace orvane
