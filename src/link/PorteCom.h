// COM numbers: which serial devices there are, and what a port's friendly name tells of it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// A serial device as the user chooses it.
struct PortaCom {
    std::string nome;        ///< friendly name, with "(COMn)" in it
    std::string dispositivo; ///< what the serial carrier opens
};

/// The seam to the machine's list of serial devices, in its order; of two with the same number the
/// first decides.
struct CatalogoPorte {
    virtual ~CatalogoPorte() = default;
    virtual std::vector<PortaCom> Elenca() = 0;
};

/// The number behind "(COM" in a friendly name; empty where there is none.
std::optional<int> DeterminaNumComSel(std::string_view nome);
/// Index of the first entry with this number, -1 if there is none.
int TrovaIDComSelezionata(const std::vector<PortaCom>& porte, int numeroCom);
/// Whether the first entry with this number has "Bluetooth" in its name, in any case of letters.
bool RilevaBluetooth(const std::vector<PortaCom>& porte, int numeroCom);
/// The one character behind "COMM=" of the upper-cased command line, by its numeric value: only
/// ports 1 to 9 can be forced this way. Empty without the switch.
std::optional<int> ComForzata(std::string_view rigaComando);

} // namespace orvane
