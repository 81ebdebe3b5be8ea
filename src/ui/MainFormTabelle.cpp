// The table editor and the starter library, from the menu.
#include "data/LibreriaLimiti.h"
#include "ui/FrmTableLimFacFT.h"
#include "ui/MainForm.h"
#include "ui/MenuConsole.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

struct VoceTabelle {
    AzioneMenu azione;
    TableKind kind;
};
constexpr VoceTabelle kTabelle[] = {
    {AzioneMenu::Limiti, TableKind::Limite},
    {AzioneMenu::Fattori, TableKind::Fattore},
    {AzioneMenu::TabFreq, TableKind::Frequenze},
    {AzioneMenu::TabFreqMast, TableKind::FrequenzeMast},
};

std::string Riga(const char* cosa, const std::vector<std::string>& nomi) {
    std::string testo;
    for (const std::string& nome : nomi)
        testo += "\r    " + nome;
    return nomi.empty() ? testo : cosa + testo + "\r\r";
}

std::string RaccontoLibreria(const std::vector<EsitoLibreria>& esiti) {
    std::vector<std::string> scritti;
    std::vector<std::string> presenti;
    std::vector<std::string> falliti;
    for (const EsitoLibreria& e : esiti)
        (e.scritto ? scritti : e.presente ? presenti : falliti).push_back(e.nome);
    return Riga("Copied:", scritti) + Riga("Already there, left alone:", presenti) +
           Riga("Could not be written:", falliti) +
           "Check each limit against the standard in force before you judge by it.";
}

} // namespace

void MainForm::ApriTabelle(AzioneMenu azione) {
    if (azione == AzioneMenu::Libreria) {
        scrivania_.ambiente.Mostra({.testo = RaccontoLibreria(InstallaLibreria(scrivania_)),
                                    .icona = Icona::Informazione,
                                    .titolo = "Limit Library"});
        return;
    }
    if (console_->corsa.stato.SweepInCorso)
        return stato_->MostraMessaggio(tr("Tables are edited when the sweep has ended"));
    for (const VoceTabelle& voce : kTabelle)
        if (voce.azione == azione) {
            // Not a loop of its own: a live mode goes on behind it.
            auto* editor = new FrmTableLimFacFT(*console_, voce.kind, {}, this);
            editor->setAttribute(Qt::WA_DeleteOnClose);
            // A box that closed with the editor leaves some window managers without one to go to.
            connect(editor, &QDialog::finished, this, &MainForm::activateWindow);
            editor->open();
        }
}

} // namespace orvane
