#include "ui/Testi.h"

#include <cmath>

#include "base/Numeri.h"

namespace orvane {

QString TestoDurata(double secondi) {
    const auto interi = static_cast<long long>(std::floor(secondi < 0 ? 0 : secondi));
    const QString resto =
        QStringLiteral("%1:%2").arg(interi / 60 % 60).arg(interi % 60, 2, 10, QLatin1Char('0'));
    return interi < 3600 ? resto
                         : QStringLiteral("%1:%2")
                               .arg(interi / 3600)
                               .arg(resto.rightJustified(5, QLatin1Char('0')));
}

QString TestoPunti(size_t quanti) {
    return quanti == 1 ? QStringLiteral("1 point") : QStringLiteral("%1 points").arg(quanti);
}

QString TestoFrequenza(double mhz) {
    const int decimali = mhz < 0.01 ? 6 : mhz < 1 ? 5 : mhz < 100 ? 4 : 3;
    return Q(TestoFisso(mhz, decimali)) + QStringLiteral(" MHz");
}

QString TestoFirmware(std::string_view firmware) {
    return Q(firmware).section(QLatin1Char(' '), 0, 0);
}

} // namespace orvane
