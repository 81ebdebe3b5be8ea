// The words behind a verb: positions, options with a value, flags.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

class Argomenti {
public:
    /// `conValore` and `bandiere` name the options that the verb knows, without their dashes.
    Argomenti(std::span<const std::string> parole, std::set<std::string> conValore,
              std::set<std::string> bandiere = {});

    /// What is wrong with the words; empty when nothing is.
    const std::string& Errore() const { return errore_; }
    const std::vector<std::string>& Posizioni() const { return posizioni_; }
    /// The last one, of an option that was given more than once.
    std::optional<std::string> Opzione(const std::string& nome) const;
    /// All of them, in their order.
    std::vector<std::string> Tutte(const std::string& nome) const;
    bool Bandiera(const std::string& nome) const { return accese_.contains(nome); }

private:
    std::vector<std::string> posizioni_;
    std::map<std::string, std::vector<std::string>> opzioni_;
    std::set<std::string> accese_;
    std::string errore_;
};

} // namespace orvane
