// What the aspect bytes of the environment mean: how the console looks, apart from its colours.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "records/EnvRecord.h"

namespace orvane {

enum class StileAspetto { Sistema, Chiaro, Scuro };
/// Lines of the grid that are drawn; the frame is always there.
enum class LineeVisibili { Tutte, Principali, Nessuna };

struct Aspetto {
    int stile = 0;              ///< a `StileAspetto`
    int testoGrafico = 100;     ///< per cent, numbers and readings in the picture
    int testoTabelle = 100;     ///< per cent, scan tables
    int spessoreTracce = 10;    ///< tenths of a pixel
    int linee = 0;              ///< a `LineeVisibili`
    int opacitaGriglia = 35;    ///< per cent, on the screen
    int lisce = 1;              ///< 1: edges of traces are smoothed
    int larghezzaArchivio = 38; ///< in mean letters
    int larghezzaComuni = 38;   ///< in mean letters
    int altezzaPiede = 31;      ///< per cent of what lies beneath the tabs

    StileAspetto Stile() const { return static_cast<StileAspetto>(stile); }
    LineeVisibili Linee() const { return static_cast<LineeVisibili>(linee); }
    bool operator==(const Aspetto&) const = default;
};

struct CampoAspetto {
    int Aspetto::*campo;
    size_t posto; ///< of its i16 in `LookValues`
    int minimo;
    int massimo;
};
/// The last bytes of `LookValues`, behind a mark; all before them is kept as it is.
inline constexpr size_t kPostoMarcaAspetto = 136;
inline constexpr std::array<CampoAspetto, 10> kCampiAspetto = {{
    {&Aspetto::stile, 140, 0, 2},
    {&Aspetto::testoGrafico, 142, 70, 200},
    {&Aspetto::testoTabelle, 144, 70, 200},
    {&Aspetto::spessoreTracce, 146, 5, 50},
    {&Aspetto::linee, 148, 0, 2},
    {&Aspetto::opacitaGriglia, 150, 10, 100},
    {&Aspetto::lisce, 152, 0, 1},
    {&Aspetto::larghezzaArchivio, 154, 28, 90},
    {&Aspetto::larghezzaComuni, 156, 33, 90},
    {&Aspetto::altezzaPiede, 158, 10, 70},
}};
const CampoAspetto& CampoDi(int Aspetto::*campo);

/// Without the mark everything is at its default, whatever the bytes hold; with it, each value that
/// is out of its range is.
Aspetto LeggiAspetto(const EnvRecord& env);
/// Values are pulled into their ranges.
void ScriviAspetto(EnvRecord& env, const Aspetto& aspetto);

/// Where the aspect window stood last, in `Window1`.
struct PostoFinestra {
    int x = 0;
    int y = 0;
    int larghezza = 0;
    int altezza = 0;
    bool operator==(const PostoFinestra&) const = default;
};
/// Empty where none was stored.
std::optional<PostoFinestra> LeggiPostoFinestra(const EnvRecord& env);
void ScriviPostoFinestra(EnvRecord& env, const PostoFinestra& posto);

/// Copies only what the aspect window owns.
void CopiaAspetto(const EnvRecord& da, EnvRecord& a);

} // namespace orvane
