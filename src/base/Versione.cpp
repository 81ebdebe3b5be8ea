#include "base/Versione.h"

#include "base/Numeri.h"

namespace orvane {
namespace {

constexpr int kMaggiore = 1;
constexpr int kMinore = 0;
constexpr int kRevisione = 0;

} // namespace

std::string RelSoftware() {
    return "Rel. " + TestoIntero(kMaggiore) + "." + TestoIntero(kMinore) + "." +
           TestoIntero(kRevisione, 2) + " (January 2019)";
}

} // namespace orvane
