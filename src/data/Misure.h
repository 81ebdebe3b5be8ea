// Measures on disk: their files, headers and copies, and the list of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/RegolaNomi.h"
#include "data/Scrivania.h"
#include "data/Traccia.h"
#include "records/SweepHeader.h"

namespace orvane {

/// "Sweep\<misura>\"
std::string CartellaMisura(std::string_view misura);
/// "Sweep\<misura>\Sub_Measure\"
std::string CartellaSubMisure(std::string_view misura);
/// "Sweep\<misura>\<misura>.KSH"
std::string PercorsoKSH(std::string_view misura);
/// "Sweep\<misura>\<base>.RS<riga>"; `base` is the measure's name or the name of a pass.
std::string PercorsoRS(std::string_view misura, std::string_view base, int riga);

/// The name that header and traces of a measure bear: its own, or the one of the only header in its
/// directory, which a rename of the directory alone, or one cut off half way, has left behind.
std::string BaseMisura(const AlberoDati& albero, std::string_view misura);
/// Path of the header by that name.
std::string TrovaKSH(const AlberoDati& albero, std::string_view misura);

/// "\" and the name of the current measure, `SweepPath`. A path whose directory could not even be
/// listed is replaced by "Untitled" with its old extension first.
std::string DirMisuraCorrente(Scrivania& s);

/// False, after the box "Cannot open file " + path, when the header cannot be written. One that is
/// written again is first copied to "COPYFC\" with the traces that are there, on the switches
/// /SETFCSWEEP and /SAVESETFCSWEEP together.
bool SalvaHeaderSweep(Scrivania& s, std::string_view percorso, const ScanRecord& scan,
                      const SetupRecord& setup);
/// Reads the two records; absent, it is created from a cleared `ScanRecord`. False after the box
/// "Failed loading" + path; the records then keep what was read so far.
bool CaricaHeaderSweep(Scrivania& s, std::string_view percorso, ScanRecord& scan,
                       SetupRecord& setup);

/// Empties the measure's directory, but for the mark of its run, and makes it and "Sub_Measure\"
/// afresh.
void PreparaCartellaMisura(Scrivania& s, std::string_view misura);
/// Copies of the limits and factors in use into the measure.
void CopiaFileLimSweep(Scrivania& s, std::string_view misura, const ScanTable& tabella);
void CopiaFileFacSweep(Scrivania& s, std::string_view misura);

/// Times of a measure's trace files, "dd/mm/yyyy hh:mm:ss"; empty without any. The first of its
/// directory and "Sub_Measure\" that has trace files counts.
struct DateMisura {
    std::string prima;
    std::string ultima;
};
DateMisura DataMisura(const Scrivania& s, std::string_view misura);

/// A row of the archive list.
struct VoceArchivio {
    std::string nome;
    std::string prima;  ///< "dd/mm/yyyy hh:mm:ss" of the earliest trace file; empty without one
    std::string ultima; ///< of the latest
    int righe = 0;      ///< scan lines in use
    long long passi = 0;
    bool leggibile = false;  ///< the header is there and whole
    bool incompiuta = false; ///< its run was cut off
    bool inCorso = false;    ///< its run is on, in this process or another
    std::string detector;    ///< letters of all detectors in use
};
std::vector<VoceArchivio> ElencaMisure(const Scrivania& s);
/// One row; of a directory that is gone, or holds no header, a row that is not `leggibile`.
VoceArchivio LeggiVoce(const Scrivania& s, const std::string& nome);

enum class OrdineArchivio { PerNome, PerData };
/// The names alone, at once: without regard to case, or by the last trace file, the latest first.
std::vector<std::string> ElencaNomiMisure(const Scrivania& s, OrdineArchivio ordine);

/// Whether what an engineer wrote about a measure contains these words, in any case: its name, the
/// comment of its scan table, its "Test Comment.TXT". Reads the files when asked.
bool MisuraContiene(const Scrivania& s, const std::string& nome, std::string_view cercato);

} // namespace orvane
