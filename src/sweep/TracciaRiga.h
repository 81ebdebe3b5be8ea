// The trace files of a scan line: one a pass, and the line's own.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/Traccia.h"

namespace orvane {

/// A line without passes has its own file alone. With passes each has a file in "Sub_Measure\", and
/// the line's own holds, step by step and detector by detector, the highest of them.
class TracciaRiga {
public:
    TracciaRiga(const Scrivania& s, std::string misura, int riga);

    /// `testo`: "-L1", "-V"; empty for a plain pass. False where a file cannot be made.
    bool IniziaPassata(std::string_view testo);
    /// To disk at once. False where it cannot be written.
    bool Scrivi(std::span<const SampleRecord> passi);
    /// Closes the pass, however it ended, and brings the line's own file up to date.
    bool FinePassata();

    /// Name of the file of the pass, and the path that the last failure was about.
    const std::string& Base() const { return base_; }
    const std::string& Percorso() const { return percorso_; }

private:
    bool Apri(ScrittoreTraccia& scrittore, std::string percorso);
    bool Accoda(ScrittoreTraccia& scrittore, const std::string& percorso,
                std::span<const SampleRecord> passi);
    void Fondi(std::span<const SampleRecord> passi);

    const Scrivania& s_;
    std::string misura_;
    int riga_;
    std::string base_;
    std::string percorso_;
    std::string percorsoPassata_;
    ScrittoreTraccia propria_;
    ScrittoreTraccia passata_;
    std::vector<SampleRecord> alti_; ///< of the passes so far; unused without passes
    size_t passo_ = 0;
    int passate_ = 0;
    bool conPassate_ = false;
};

} // namespace orvane
