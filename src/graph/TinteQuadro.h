// The colours of a picture that no panel holds: its grounds on screen and paper, and the badges.
#pragma once

#include "graph/Verdetto.h"
#include "records/EnvRecord.h"

namespace orvane {

inline constexpr int32_t kFondoChiaro = Rgb(255, 255, 255);
inline constexpr int32_t kFondoScuro = Rgb(15, 20, 26);
/// Words on them.
inline constexpr int32_t kScrittaChiara = Rgb(29, 39, 51);
inline constexpr int32_t kScrittaScura = Rgb(232, 237, 243);
inline constexpr int32_t kCarta = Rgb(255, 255, 255);
inline constexpr int32_t kInchiostro = Rgb(0, 0, 0);

struct TintaInsegna {
    int32_t fondo = 0;
    int32_t testo = 0;
};
/// By `Giudizio`. Light, middle and dark in this order stay apart without colours too.
inline constexpr std::array<TintaInsegna, 4> kTinteGiudizio = {{
    {Rgb(208, 213, 219), kInchiostro},
    {Rgb(22, 128, 66), kCarta},
    {Rgb(255, 191, 0), kInchiostro},
    {Rgb(190, 24, 40), kCarta},
}};
constexpr const TintaInsegna& TintaGiudizio(Giudizio giudizio) {
    return kTinteGiudizio[static_cast<size_t>(giudizio)];
}

} // namespace orvane
