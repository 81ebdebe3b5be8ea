// Renames that belong together: all of them happen, or none.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "data/AlberoDati.h"

namespace orvane {

/// Keeps what was renamed, in order, and takes it back where the chain ends without `Conferma`.
class CatenaRinomine {
public:
    explicit CatenaRinomine(const AlberoDati& albero) : albero_(albero) {}
    ~CatenaRinomine() { Annulla(); }
    CatenaRinomine(const CatenaRinomine&) = delete;
    CatenaRinomine& operator=(const CatenaRinomine&) = delete;

    /// False when it failed; `Guasto` then tells the path that stayed.
    bool Rinomina(const std::string& da, const std::string& a);
    /// The directory of a measure with its header and traces. Files below it and positions keep
    /// their names.
    bool RinominaMisura(const std::string& da, const std::string& a);
    void Conferma() { fatte_.clear(); }
    /// Back to the names at the start, the last rename first.
    void Annulla();

    const std::string& Guasto() const { return guasto_; }

private:
    const AlberoDati& albero_;
    std::vector<std::pair<std::string, std::string>> fatte_;
    std::string guasto_;
};

} // namespace orvane
