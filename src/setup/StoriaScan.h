// Undo and redo over the whole scan table, a step for each edit of the user.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <vector>

#include "records/ScanRecord.h"

namespace orvane {

inline constexpr size_t kMaxPassiStoria = 200;

class StoriaScan {
public:
    explicit StoriaScan(const ScanTable& tabella) : ora_(tabella) {}

    /// Notes the table after an edit of the user; true if it was one. What was undone is forgotten.
    /// What a run corrects in `StepOriginal` is no edit.
    bool Registra(const ScanTable& tabella);
    /// The table before the last edit, or after the one that was undone last; empty where there
    /// is none. The caller puts it in its place and saves the panel.
    std::optional<ScanTable> Annulla();
    std::optional<ScanTable> Ripeti();
    bool PuoAnnullare() const { return !prima_.empty(); }
    bool PuoRipetere() const { return !dopo_.empty(); }
    /// Another panel is on the desk: no step leads back to the old one.
    void Ricomincia(const ScanTable& tabella);

private:
    ScanTable ora_;
    std::deque<ScanTable> prima_;
    std::vector<ScanTable> dopo_;
};

} // namespace orvane
