#include "base/Testo.h"

#include <algorithm>

namespace orvane {
namespace {

std::string RifilaDi(std::string_view testo, std::string_view via) {
    const auto primo = testo.find_first_not_of(via);
    if (primo == std::string_view::npos)
        return {};
    return std::string(testo.substr(primo, testo.find_last_not_of(via) - primo + 1));
}

char MaiuscoloAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace

std::string Rifila(std::string_view testo) {
    return RifilaDi(testo, " ");
}

std::string RifilaControlli(std::string_view testo) {
    return RifilaDi(testo, std::string_view(" \r\n\t\0", 5));
}

std::string Maiuscolo(std::string_view testo) {
    std::string su(testo);
    std::transform(su.begin(), su.end(), su.begin(), MaiuscoloAscii);
    return su;
}

bool Contiene(std::string_view testo, std::string_view cercato) {
    return testo.find(cercato) != std::string_view::npos;
}

bool ContieneSenzaMaiuscole(std::string_view testo, std::string_view cercato) {
    return Contiene(Maiuscolo(testo), Maiuscolo(cercato));
}

bool UgualiSenzaMaiuscole(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return MaiuscoloAscii(x) == MaiuscoloAscii(y); });
}

std::string Sostituisci(std::string_view testo, std::string_view che, std::string_view con) {
    std::string esito;
    size_t da = 0;
    for (size_t qui; (qui = testo.find(che, da)) != std::string_view::npos; da = qui + che.size()) {
        esito.append(testo, da, qui - da);
        esito.append(con);
    }
    return esito.append(testo, da);
}

std::vector<std::string> Dividi(std::string_view testo, char separatore) {
    std::vector<std::string> pezzi;
    size_t da = 0;
    for (size_t qui; (qui = testo.find(separatore, da)) != std::string_view::npos; da = qui + 1)
        pezzi.emplace_back(testo.substr(da, qui - da));
    pezzi.emplace_back(testo.substr(da));
    return pezzi;
}

std::string Unisci(const std::vector<std::string>& pezzi, std::string_view separatore) {
    std::string esito;
    for (size_t i = 0; i < pezzi.size(); ++i) {
        if (i > 0)
            esito.append(separatore);
        esito.append(pezzi[i]);
    }
    return esito;
}

std::string Fra(std::string_view testo, std::string_view da, std::string_view a) {
    const auto inizio = testo.find(da);
    if (inizio == std::string_view::npos)
        return {};
    testo.remove_prefix(inizio + da.size());
    return std::string(testo.substr(0, testo.find(a)));
}

std::string Dietro(std::string_view testo, std::string_view chiave) {
    const auto qui = testo.find(chiave);
    if (qui == std::string_view::npos)
        return {};
    return RifilaControlli(testo.substr(qui + chiave.size()));
}

} // namespace orvane
