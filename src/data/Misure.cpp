#include "data/Misure.h"

#include <cassert>

#include "base/Interruttori.h"
#include "base/Numeri.h"
#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/Avvisi.h"
#include "data/Cartelle.h"
#include "data/ControllaRecord.h"
#include "data/FileRecord.h"
#include "data/Incompiute.h"
#include "data/NomiDisco.h"

namespace orvane {
namespace {

void CopiaTabella(const Scrivania& s, std::string_view cartella, const std::string& nome,
                  std::string_view estensione, const std::string& meta) {
    if (!NomeTabellaAmmesso(nome))
        return;
    const std::string file = nome + "." + std::string(estensione);
    const std::string da = std::string(cartella) + file;
    if (s.albero.Esiste(da))
        s.albero.Copia(da, meta + file);
}

/// An empty directory inside the measure; `nome` and the path have a trailing backslash.
std::string RifaiCartella(const Scrivania& s, std::string_view misura, std::string_view nome) {
    const std::string percorso = CartellaMisura(misura) + std::string(nome);
    s.albero.CancellaCartella(percorso);
    s.albero.AssicuraCartella(percorso);
    return percorso;
}

bool MisuraScrivibile(std::string_view misura) {
    const bool ammesso = NomeMisuraAmmesso(std::string(misura));
    assert(ammesso); // the name of a run has passed `ControlNameMeasProfiloB`
    return ammesso;
}

/// Header, traces and positions of one directory, into the other copy of the tree.
bool CopiaFileMisura(const AlberoDati& albero, const std::string& cartella) {
    const std::string meta = std::string(cartella::kCopyFC) + cartella;
    albero.AssicuraCartella(meta);
    bool bene = true;
    for (const std::string& file : albero.ElencaFile(cartella, "")) {
        const std::string genere = ChiaveNome(EstraiEstensione(file));
        if (genere == "KSH" || genere.starts_with("RS") || genere.starts_with("TM"))
            bene = albero.Copia(cartella + file, meta + file) && bene;
    }
    return bene;
}

/// What is there of the measure before its header is written again.
void CopiaFC(const Scrivania& s, std::string_view percorsoKSH) {
    const std::string& riga = s.ambiente.RigaComando();
    const bool chiesta =
        Acceso(riga, interruttore::kSetFCSweep) && Acceso(riga, interruttore::kSaveSetFCSweep);
    if (!chiesta || !s.albero.Esiste(percorsoKSH))
        return;
    const std::string relativo =
        s.albero.PercorsoIntero(percorsoKSH).substr(s.albero.DataRoot().size());
    const std::string cartella = EstraiPercorso(relativo);
    const bool bene = CopiaFileMisura(s.albero, cartella) &&
                      CopiaFileMisura(s.albero, cartella + std::string(cartella::kSubMeasure));
    if (!bene)
        AvvisaScrittura(s, std::string(cartella::kCopyFC) + cartella);
}

/// The only header of a directory; empty without one, and with several.
std::string UnicoHeader(const AlberoDati& albero, const std::string& cartella) {
    const std::vector<std::string> header = albero.ElencaFile(cartella, "KSH");
    return header.size() == 1 ? header[0] : std::string();
}

} // namespace

std::string CartellaMisura(std::string_view misura) {
    return std::string(cartella::kSweep) + std::string(misura) + "\\";
}

std::string CartellaSubMisure(std::string_view misura) {
    return CartellaMisura(misura) + std::string(cartella::kSubMeasure);
}

std::string PercorsoKSH(std::string_view misura) {
    return CartellaMisura(misura) + std::string(misura) + ".KSH";
}

std::string PercorsoRS(std::string_view misura, std::string_view base, int riga) {
    return CartellaMisura(misura) + std::string(base) + ".RS" + TestoIntero(riga);
}

std::string BaseMisura(const AlberoDati& albero, std::string_view misura) {
    if (albero.Esiste(PercorsoKSH(misura)))
        return std::string(misura);
    const std::string header = UnicoHeader(albero, CartellaMisura(misura));
    return header.empty() ? std::string(misura) : RimuoviEstensione(header);
}

std::string TrovaKSH(const AlberoDati& albero, std::string_view misura) {
    return CartellaMisura(misura) + BaseMisura(albero, misura) + ".KSH";
}

std::string DirMisuraCorrente(Scrivania& s) {
    const std::string percorso = Rifila(s.env.SweepPath);
    const std::string nome = EstraiNomeFile(percorso);
    if (!nome.empty() && s.albero.SiElenca(CartellaMisura(nome)))
        return "\\" + nome;
    // Only name and extension: the directory is left out, as it always was.
    s.env.SweepPath = "Untitled." + EstraiEstensione(percorso);
    return "\\" + EstraiNomeFile(s.env.SweepPath);
}

bool SalvaHeaderSweep(Scrivania& s, std::string_view percorso, const ScanRecord& scan,
                      const SetupRecord& setup) {
    s.albero.AssicuraCartella(cartella::kSweep);
    s.albero.AssicuraCartella(EstraiPercorso(percorso));
    CopiaFC(s, percorso);
    return SalvaFileRecord(s, percorso, SweepHeader{scan, setup});
}

bool CaricaHeaderSweep(Scrivania& s, std::string_view percorso, ScanRecord& scan,
                       SetupRecord& setup) {
    std::string presente(percorso);
    if (!s.albero.Esiste(presente)) {
        const std::string cartella = EstraiPercorso(percorso);
        const std::string altro = UnicoHeader(s.albero, cartella);
        if (altro.empty()) {
            scan = {};
            return SalvaHeaderSweep(s, percorso, scan, setup);
        }
        presente = cartella + altro;
    }
    SweepHeader header{std::move(scan), std::move(setup)};
    const bool letto = LeggiFileRecord(s, presente, header);
    scan = std::move(header.Scan);
    setup = std::move(header.Setup);
    ControllaScan(scan);
    ControllaSetup(setup);
    return letto;
}

void PreparaCartellaMisura(Scrivania& s, std::string_view misura) {
    if (!MisuraScrivibile(misura))
        return;
    const std::string cartella = CartellaMisura(misura);
    const std::string segno = PercorsoSegnoCorsa(misura);
    for (const std::string& file : s.albero.ElencaFile(cartella, ""))
        if (cartella + file != segno)
            s.albero.Cancella(cartella + file);
    RifaiCartella(s, misura, cartella::kSubMeasure);
}

void CopiaFileLimSweep(Scrivania& s, std::string_view misura, const ScanTable& tabella) {
    if (!MisuraScrivibile(misura))
        return;
    const std::string meta = RifaiCartella(s, misura, cartella::kLimits);
    for (const ScanLine& riga : tabella) {
        if (riga.Start == 0)
            continue;
        if (riga.LimitOn == 1)
            CopiaTabella(s, cartella::kLimits, riga.Limit, "5SL", meta);
        if (riga.LimitDSDOn == 1)
            CopiaTabella(s, cartella::kLimits, riga.LimitDSD, "5SL", meta);
    }
}

void CopiaFileFacSweep(Scrivania& s, std::string_view misura) {
    if (!MisuraScrivibile(misura))
        return;
    const std::string meta = RifaiCartella(s, misura, cartella::kFactors);
    for (size_t i = 0; i < s.setup.FactorOn.size(); ++i)
        if (s.setup.FactorOn[i] == 1)
            CopiaTabella(s, cartella::kFactors, s.setup.FactorName[i], "5SC", meta);
}

} // namespace orvane
