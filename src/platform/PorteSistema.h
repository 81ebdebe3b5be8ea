// COM numbers on this platform: an ordered list of the machine's serial devices, in which links in
// the folder `Ports` of the data root win.
#pragma once

#include <filesystem>

#include "link/PorteCom.h"

namespace orvane {

class PorteSistema : public CatalogoPorte {
public:
    /// `ports`: the folder that may hold links COM1..COM99. `dev` and `sys` are the roots of the
    /// device tree, other than "/" only in tests.
    explicit PorteSistema(std::filesystem::path ports, std::filesystem::path dev = "/dev",
                          std::filesystem::path sys = "/sys")
        : ports_(std::move(ports)), dev_(std::move(dev)), sys_(std::move(sys)) {}

    std::vector<PortaCom> Elenca() override;

private:
    std::filesystem::path ports_;
    std::filesystem::path dev_;
    std::filesystem::path sys_;
};

} // namespace orvane
