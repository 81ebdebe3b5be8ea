// Paths as records and messages hold them, with backslashes. Text only: none touches the disk.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// The path without its extension, trimmed. The last "." divides, wherever it stands.
std::string RimuoviEstensione(std::string_view percorso);
/// The bare name: without extension and without what stands before the last "\" or ":".
std::string EstraiNomeFile(std::string_view percorso);
/// Up to and with the last "\" or ":" of the path without extension; empty if it has none.
std::string EstraiPercorso(std::string_view percorso);
/// At most three characters behind the last ".", trimmed; empty where the "." is the first
/// character or absent.
std::string EstraiEstensione(std::string_view percorso);

/// The name itself, or "Untitled" where it holds a character that a measure's or a panel's name
/// may not hold: . , + [ ] \ / | = * ^ : ; < > ? and the double quote.
std::string ControllaNomeMisura(std::string_view nome);

} // namespace orvane
