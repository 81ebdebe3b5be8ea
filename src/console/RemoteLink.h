// The rules behind the window `FrmRemoteLink`: which link and which COM port, saved at once, and
// put back when the user cancels.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/Scrivania.h"
#include "link/LinkPort.h"

namespace orvane {

/// What the window shows.
struct QuadroRemoteLink {
    std::vector<PortaCom> porte;
    int scelta = -1;        ///< entry of the current port, -1 when it is not in the list
    std::string testoPorta; ///< what the combo box reads; the plain number when not in the list
    int16_t tipoLink = 1;
};

/// On opening: saves a copy of the environment as "Panels\TMP.TMP" and lists the ports.
QuadroRemoteLink ApriRemoteLink(Scrivania& s, const LinkPort& link, CatalogoPorte& catalogo);
/// `OptLink`: 0 serial, 1 USB; takes effect and is saved at once.
void OptLink(Scrivania& s, LinkPort& link, int16_t tipo);
/// An entry of `ComboPortDevice` was chosen, by its friendly name.
void ComboPortDevice(Scrivania& s, LinkPort& link, std::string_view nome);
/// `CMBDefaultRemoteLinck`: USB and COM 1.
void DefaultRemoteLink(Scrivania& s, LinkPort& link);
/// `CMBOK`: the copy is dropped.
void ConfermaRemoteLink(Scrivania& s);
/// `CMBCancel`, or the window closed: the copy is put back.
void RipristinaRemoteLink(Scrivania& s, LinkPort& link);

/// Labels of the toolbar icon.
inline constexpr std::string_view kIconaSeriale = "Remote|#s_Key19";
inline constexpr std::string_view kIconaUsb = "Remote|#s_Key20";

} // namespace orvane
