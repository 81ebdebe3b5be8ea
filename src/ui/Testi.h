// Text between the core and Qt: UTF-8 on one side, QString on the other.
#pragma once

#include <string>
#include <string_view>

#include <QString>

namespace orvane {

inline QString Q(std::string_view testo) {
    return QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size()));
}
inline std::string S(const QString& testo) {
    return testo.toStdString();
}
/// Seconds as "2:04", hours in front where there are any.
QString TestoDurata(double secondi);
/// "1 point", "4 points".
QString TestoPunti(size_t quanti);
/// A frequency as a reader wants it: "0.512 MHz".
QString TestoFrequenza(double mhz);

/// The version alone: behind it a receiver's firmware text has its date.
QString TestoFirmware(std::string_view firmware);

} // namespace orvane
