#include "setup/StoriaScan.h"

#include <utility>

#include "data/Panels.h"

namespace orvane {
namespace {

bool Uguali(const ScanTable& a, const ScanTable& b) {
    return ConfrontaScanTab(ScanRecord{.Righe = a}, ScanRecord{.Righe = b});
}

} // namespace

bool StoriaScan::Registra(const ScanTable& tabella) {
    if (Uguali(tabella, ora_))
        return false;
    prima_.push_back(std::exchange(ora_, tabella));
    if (prima_.size() > kMaxPassiStoria)
        prima_.pop_front();
    dopo_.clear();
    return true;
}

std::optional<ScanTable> StoriaScan::Annulla() {
    if (prima_.empty())
        return std::nullopt;
    dopo_.push_back(std::exchange(ora_, std::move(prima_.back())));
    prima_.pop_back();
    return ora_;
}

std::optional<ScanTable> StoriaScan::Ripeti() {
    if (dopo_.empty())
        return std::nullopt;
    prima_.push_back(std::exchange(ora_, std::move(dopo_.back())));
    dopo_.pop_back();
    return ora_;
}

void StoriaScan::Ricomincia(const ScanTable& tabella) {
    ora_ = tabella;
    prima_.clear();
    dopo_.clear();
}

} // namespace orvane
