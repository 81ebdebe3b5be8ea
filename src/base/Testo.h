// Text as the console handles it: trimming, case, search, lists.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// Without blanks at both ends.
std::string Rifila(std::string_view testo);
/// Without blanks, CR, LF, TAB and NUL at both ends.
std::string RifilaControlli(std::string_view testo);
/// Upper case of the ASCII letters; bytes of other characters stay as they are.
std::string Maiuscolo(std::string_view testo);
bool Contiene(std::string_view testo, std::string_view cercato);
bool ContieneSenzaMaiuscole(std::string_view testo, std::string_view cercato);
bool UgualiSenzaMaiuscole(std::string_view a, std::string_view b);
std::string Sostituisci(std::string_view testo, std::string_view che, std::string_view con);
/// The pieces between the separators; one piece more than there are separators.
std::vector<std::string> Dividi(std::string_view testo, char separatore);
std::string Unisci(const std::vector<std::string>& pezzi, std::string_view separatore);

/// The text between the first `da` and the next `a` behind it; to the end where `a` is absent,
/// empty where `da` is.
std::string Fra(std::string_view testo, std::string_view da, std::string_view a);
/// The text behind the first `chiave`, trimmed of blanks and control characters.
std::string Dietro(std::string_view testo, std::string_view chiave);

} // namespace orvane
