// What the event pump watches for the link: the descriptor that has bytes when the receiver speaks.
#pragma once

namespace orvane {

/// Carriers set it when they open and clear it when they close; the pumps read it.
struct SorvegliaLink {
    int descrittore = -1;     ///< -1: none to wait on
    bool senzaAvviso = false; ///< an open carrier that cannot wake the pump: look every few ms
};
/// Longest sleep while `senzaAvviso` holds, in seconds.
inline constexpr double kSguardoS = 0.005;

} // namespace orvane
