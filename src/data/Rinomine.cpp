#include "data/Rinomine.h"

#include "base/Percorsi.h"
#include "data/Incompiute.h"
#include "data/Misure.h"
#include "data/NomiDisco.h"

namespace orvane {
namespace {

/// The name that a header or trace of measure `da` takes in measure `a`; empty for a file that
/// keeps its own. A pass has a suffix behind the measure's name: "m-L1.RS0", "m^R.RS0".
std::string NomeNuovo(const std::string& file, const std::string& da, const std::string& a) {
    const std::string base = RimuoviEstensione(file);
    const std::string estensione = file.substr(file.rfind('.') + 1);
    const std::string genere = ChiaveNome(estensione);
    if (!ChiaveNome(base).starts_with(ChiaveNome(da)))
        return {};
    const std::string resto = base.substr(da.size());
    const bool passata = resto.starts_with('-') || resto.starts_with('^');
    const bool header = genere == "KSH" && resto.empty();
    const bool traccia = genere.starts_with("RS") && (resto.empty() || passata);
    return header || traccia ? a + resto + "." + estensione : std::string();
}

} // namespace

bool CatenaRinomine::Rinomina(const std::string& da, const std::string& a) {
    if (!albero_.Rinomina(da, a)) {
        guasto_ = da;
        return false;
    }
    fatte_.emplace_back(da, a);
    return true;
}

bool CatenaRinomine::RinominaMisura(const std::string& da, const std::string& a) {
    const std::string cartella = CartellaMisura(da);
    if (MisuraInCorso(albero_, da)) {
        guasto_ = cartella;
        return false;
    }
    for (const std::string& file : albero_.ElencaFile(cartella, "")) {
        const std::string nuovo = NomeNuovo(file, da, a);
        if (!nuovo.empty() && !Rinomina(cartella + file, cartella + nuovo))
            return false;
    }
    // The directory comes last: while it has its old name, its files are found by either of theirs.
    return Rinomina(cartella, CartellaMisura(a));
}

void CatenaRinomine::Annulla() {
    for (; !fatte_.empty(); fatte_.pop_back())
        albero_.Rinomina(fatte_.back().second, fatte_.back().first);
}

} // namespace orvane
