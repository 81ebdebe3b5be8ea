// The edits of the table editor, each one step of undo.
#include <algorithm>

#include <QApplication>
#include <QClipboard>

#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "data/Panels.h"
#include "ui/FrmTableLimFacFT.h"
#include "ui/Testi.h"

namespace orvane {

void FrmTableLimFacFT::Applica(ContenutoTabella c) {
    modifica_.Applica(std::move(c));
    MostraContenuto();
}

void FrmTableLimFacFT::Conferma() {
    griglia_->ChiudiCella();
    if (titolo_)
        CambiaTitolo();
}

void FrmTableLimFacFT::CambiaTitolo() {
    if (!titolo_->isModified())
        return;
    ContenutoTabella c = Copia();
    c.titolo = Rifila(DaAnsi(InAnsi(S(titolo_->text())))); // as the file will hold it
    Applica(std::move(c));
}

void FrmTableLimFacFT::CambiaUnita(int unita) {
    Conferma();
    ContenutoTabella c = Copia();
    c.unitId = static_cast<int16_t>(unita);
    Applica(std::move(c));
    console_.scrivania.setup.TableUnitId = static_cast<int16_t>(unita);
    // Over a stored measure the user's own settings wait for their return.
    if (console_.stato.archivio.attivo)
        console_.stato.archivio.SetupBackup.TableUnitId = static_cast<int16_t>(unita);
    SalvaPanelEAM(console_.scrivania, kPannelloEAM);
}

void FrmTableLimFacFT::Annulla() {
    Conferma();
    if (modifica_.Annulla())
        MostraContenuto();
}

void FrmTableLimFacFT::Ripristina() {
    Conferma();
    if (modifica_.Ripristina())
        MostraContenuto();
}

void FrmTableLimFacFT::RimuoviScelte() {
    Conferma();
    const std::vector<size_t> righe = griglia_->RigheScelte();
    ContenutoTabella c = Copia();
    for (auto riga = righe.rbegin(); riga != righe.rend(); ++riga)
        RimuoviRighe(c, *riga, 1);
    Applica(std::move(c));
    TornaAllaGriglia();
    if (!righe.empty())
        griglia_->VaiA(static_cast<int>(righe.front()), 0);
}

void FrmTableLimFacFT::SvuotaScelte() {
    QModelIndexList celle = griglia_->selectionModel()->selectedIndexes();
    // From the last back: a row without frequency moves behind the others.
    std::sort(celle.begin(), celle.end(), [](const auto& a, const auto& b) { return b < a; });
    ContenutoTabella c = Copia();
    for (const QModelIndex& cella : celle)
        if (auto riga = static_cast<size_t>(cella.row()); riga < c.righe.size())
            ScriviCella(c, riga, static_cast<ColonnaTabella>(cella.column()), {});
    Applica(std::move(c));
}

void FrmTableLimFacFT::CopiaScelte() {
    QApplication::clipboard()->setText(
        Q(CopiaRighe(modifica_.Contenuto(), griglia_->RigheScelte())));
}

void FrmTableLimFacFT::Incolla() {
    const QModelIndex qui = griglia_->currentIndex();
    ContenutoTabella c = Copia();
    const EsitoImporto esito = IncollaColonne(
        c, S(QApplication::clipboard()->text()), static_cast<size_t>(std::max(0, qui.row())),
        static_cast<ColonnaTabella>(std::max(0, qui.column())));
    RaccontaImporto(std::move(c), esito);
}

} // namespace orvane
