// What is typed at the terminal, line by line, without waiting for it.
#pragma once

#include <optional>
#include <string>

namespace orvane {

class Tastiera {
public:
    /// Somebody can read what is asked and type an answer: input and messages are a terminal's.
    static bool Presente();
    /// The next whole line without its end; empty where none has come. An input that has ended
    /// gives empty lines.
    std::optional<std::string> LeggiRiga();
    /// What was typed so far counts no more.
    void Dimentica();

private:
    std::string letti_;
};

} // namespace orvane
