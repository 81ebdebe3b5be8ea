#include "verbs/Argomenti.h"

namespace orvane {

Argomenti::Argomenti(std::span<const std::string> parole, std::set<std::string> conValore,
                     std::set<std::string> bandiere) {
    for (size_t i = 0; i < parole.size() && errore_.empty(); ++i) {
        if (!parole[i].starts_with("--")) {
            posizioni_.push_back(parole[i]);
            continue;
        }
        const std::string nome = parole[i].substr(2);
        if (bandiere.contains(nome))
            accese_.insert(nome);
        else if (!conValore.contains(nome))
            errore_ = "unknown option " + parole[i];
        else if (++i == parole.size())
            errore_ = "--" + nome + " wants a value";
        else
            opzioni_[nome].push_back(parole[i]);
    }
}

std::optional<std::string> Argomenti::Opzione(const std::string& nome) const {
    const auto voce = opzioni_.find(nome);
    return voce == opzioni_.end() ? std::nullopt : std::optional(voce->second.back());
}

std::vector<std::string> Argomenti::Tutte(const std::string& nome) const {
    const auto voce = opzioni_.find(nome);
    return voce == opzioni_.end() ? std::vector<std::string>() : voce->second;
}

} // namespace orvane
