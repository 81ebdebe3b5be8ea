// Panels: records read and written whole, at every change, by temporary file and rename.
#pragma once

#include <string>
#include <string_view>

#include "data/ControllaRecord.h"
#include "data/Scrivania.h"
#include "records/ScanRecord.h"

namespace orvane {

inline constexpr std::string_view kPannelloEPN = "Panels\\Untitled.EPN";
inline constexpr std::string_view kPannelloEAM = "Panels\\Untitled.EAM";
inline constexpr std::string_view kPannelloEST = "Panels\\Untitled.EST";
inline constexpr std::string_view kPannelloPTH = "Panels\\Untitled.PTH";
inline constexpr std::string_view kColoriCOL = "Color.COL"; ///< default of a colour set
inline constexpr std::string_view kSweepUntitled = "Sweep\\Untitled\\Untitled.KSH";

/// Path of a panel by its bare name: "Panels\<nome>.<estensione>".
std::string PercorsoPannello(std::string_view nome, std::string_view estensione);

// Loading: an absent file is written with the defaults and is no failure; a short or unreadable
// one shows "Failed loading" and the path, keeps what was read, and gives false. Saving: a failure
// shows "Cannot open file " and the path, and the old file stays. What was loaded has been made
// harmless by the checks of `data/ControllaRecord.h`; a file in order is taken as it stands.
bool CaricaPanelEPN(Scrivania& s, std::string_view percorso);
bool SalvaPanelEPN(Scrivania& s, std::string_view percorso);
/// The running EPN where there is one, or the defaults; nothing is written.
void CaricaEnvCheCe(Scrivania& s);
bool CaricaPanelEAM(Scrivania& s, std::string_view percorso);
bool SalvaPanelEAM(Scrivania& s, std::string_view percorso); ///< nothing with `NoSaveSetup`
bool CaricaPanelEST(Scrivania& s, std::string_view percorso, ScanRecord& scan);
bool SalvaPanelEST(Scrivania& s, std::string_view percorso, const ScanRecord& scan);
bool CaricaPathPTH(Scrivania& s);
bool SalvaPathPTH(Scrivania& s);

// The steps behind "Load Panels As" and "Save Panels As", once the user has chosen a path. False,
// with everything as it was on disk, when a file could not be read or written (after its box), and
// while `NoSaveSetup` is on.

/// The chosen panel becomes the running one: its path, its record, and a copy as "Untitled.EAM".
bool CaricaPannelloCome(Scrivania& s, const std::string& percorso);
/// The running panel goes to the chosen file and runs on from what was written there.
bool SalvaPannelloCome(Scrivania& s, const std::string& percorso);

/// Whether two scan tables would measure the same: every field but the selected cell and the step
/// that a run corrected.
bool ConfrontaScanTab(const ScanRecord& a, const ScanRecord& b);

/// `caricato` false sets the default colours first.
void ApplicaEnv(EnvRecord& env, bool caricato);
void ImpostaColoriDefault(EnvRecord& env);
/// The record of a console that has no EAM yet.
SetupRecord SetupDefault();
/// The last line of "Orvane Console.DAT"; empty without the file.
void LeggiDatiSetup(Scrivania& s);

} // namespace orvane
