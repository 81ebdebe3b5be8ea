// Zoom along the frequency axis: the span on show within the whole, with a way back and forward.
#pragma once

#include <optional>
#include <vector>

namespace orvane {

/// Frequencies in MHz, start below stop.
struct CampoMhz {
    double start = 0;
    double stop = 0;
    bool operator==(const CampoMhz&) const = default;
};

/// A box drawn with the mouse counts from this many pixels on.
inline constexpr int kMinimoZoomPixel = 6;
/// What one step of the wheel leaves of the span, on the axis' own scale.
inline constexpr double kFattoreRotella = 0.8;
/// Steps of the scroll bar across the whole span.
inline constexpr int kPassiBarraZoom = 10000;

class ZoomSweep {
public:
    /// A new measure: the whole is on show, and nothing to go back to.
    void Inizia(CampoMhz intero, bool logaritmico = true);

    const CampoMhz& Intero() const { return intero_; }
    const CampoMhz& Vista() const { return vista_; }
    bool ZoomOn() const { return vista_ != intero_; }

    /// Two frequencies in either order, pulled into the whole. False, and nothing changed, for a
    /// span of no width.
    bool Ingrandisci(double aMhz, double bMhz);
    /// Around a frequency that keeps its place in the picture; `scatti` steps of the wheel,
    /// positive to go nearer. Steps that follow each other are one entry of the history.
    bool Rotella(double attornoMhz, int scatti);
    /// `CancelZoomMK`: the whole.
    bool Tutto();
    bool Indietro();
    bool Avanti();
    bool PuoIndietro() const { return qui_ > 0; }
    bool PuoAvanti() const { return qui_ + 1 < storia_.size(); }

    /// `SBZoomSweep`: position and width of the window in steps of `kPassiBarraZoom`.
    struct Barra {
        int posto = 0;
        int larghezza = kPassiBarraZoom;
    };
    Barra StatoBarra() const;
    /// The window moves to this position and keeps its width; no entry of the history.
    bool Scorri(int posto);

private:
    bool Registra(CampoMhz nuova);

    CampoMhz intero_;
    CampoMhz vista_;
    bool logaritmico_ = true;
    std::vector<CampoMhz> storia_;
    size_t qui_ = 0;
    bool rotella_ = false; ///< the last entry was made by the wheel
};

} // namespace orvane
