// What goes in and out of the table editor: files, text, receiver.
#include <QFileDialog>

#include "data/CaricaSalva.h"
#include "data/FileTabelle.h"
#include "data/NomiDisco.h"
#include "report/SalvaTabella.h"
#include "ui/AttesaFile.h"
#include "ui/FrmLoadSave.h"
#include "ui/FrmTableLimFacFT.h"
#include "ui/Testi.h"

namespace orvane {

void FrmTableLimFacFT::RaccontaImporto(ContenutoTabella c, const EsitoImporto& esito) {
    Applica(std::move(c));
    QString parole = tr("Taken: %1").arg(esito.aggiunti);
    if (esito.doppi > 0)
        parole += tr(", already present: %1").arg(esito.doppi);
    Messaggio(parole);
    AvvisaImporto(console_.scrivania.ambiente, esito, modifica_.Contenuto().kind);
}

void FrmTableLimFacFT::ImportaTesto() {
    Conferma();
    const RichiestaFile richiesta = RichiestaTabella(modifica_.Contenuto().kind);
    console_.scrivania.albero.AssicuraCartella(richiesta.cartella);
    const QString file = QFileDialog::getOpenFileName(
        this, tr("Open from Text"),
        Q(Utf8DaPath(console_.scrivania.albero.Host(richiesta.cartella))),
        tr("Text files (*.TXT *.txt *.csv);;All files (*)"));
    if (!file.isEmpty())
        ImportaFile(PathDaUtf8(S(file)));
}

void FrmTableLimFacFT::ImportaFile(const std::filesystem::path& file) {
    const auto testo = LeggiFileTesto(file);
    if (!testo) {
        console_.scrivania.ambiente.Mostra(
            {.testo = "Cannot open file " + Utf8DaPath(file), .icona = Icona::Esclamazione});
        return;
    }
    ContenutoTabella c = Copia();
    const EsitoImporto esito = orvane::ImportaTesto(c, *testo);
    RaccontaImporto(std::move(c), esito);
}

void FrmTableLimFacFT::SalvaCome(const QString& titolo, const QString& genere,
                                 const QString& estensione) {
    Conferma();
    const RichiestaFile richiesta = RichiestaTabella(modifica_.Contenuto().kind);
    console_.scrivania.albero.AssicuraCartella(richiesta.cartella);
    QFileDialog dialogo(
        this, titolo, Q(Utf8DaPath(console_.scrivania.albero.Host(richiesta.cartella))),
        QStringLiteral("%1 (*.%2 *.%3)").arg(genere, estensione, estensione.toLower()));
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setDefaultSuffix(estensione);
    dialogo.selectFile(NomeTabella() + QLatin1Char('.') + estensione);
    if (dialogo.exec() != QDialog::Accepted)
        return;
    const QString file = dialogo.selectedFiles().constFirst();
    AttesaFile attesa(this);
    if (SalvaTabellaCome(console_.scrivania, modifica_.Contenuto(), S(NomeTabella()),
                         PathDaUtf8(S(file)), attesa))
        Messaggio(tr("Written to %1").arg(file));
}

bool FrmTableLimFacFT::Apri(FrmLoadSave& finestra) {
    const bool accettata = finestra.exec() == QDialog::Accepted;
    // A box that closed with the dialog leaves some window managers without a window to go to.
    activateWindow();
    TornaAllaGriglia();
    return accettata;
}

void FrmTableLimFacFT::Carica() {
    if (!LasciaTabella())
        return;
    const TableKind kind = modifica_.Contenuto().kind;
    const RichiestaFile richiesta = RichiestaTabella(kind);
    FrmLoadSave finestra(console_, richiesta, FrmLoadSave::Modo::Carica,
                         Q(TitoloCaricaSalva(richiesta, false)), this);
    finestra.MostraAnteprime(kind);
    if (Apri(finestra))
        CaricaDa(finestra.Percorso());
}

void FrmTableLimFacFT::CaricaDa(const std::string& percorso) {
    Scrivania& s = console_.scrivania;
    const size_t avvisi = s.avvisi.size();
    const auto c = CaricaTabella(s, modifica_.Contenuto(), percorso);
    QStringList riparazioni;
    for (size_t i = avvisi; i < s.avvisi.size(); ++i)
        riparazioni << Q(s.avvisi[i]);
    s.avvisi.resize(avvisi);
    if (!c)
        return;
    modifica_ = ModificaTabella(*c);
    percorso_ = percorso;
    MostraContenuto();
    Messaggio(riparazioni.join(QStringLiteral("; ")));
    griglia_->VaiA(0, 0);
    TornaAllaGriglia();
}

/// False when the user did not save after all.
bool FrmTableLimFacFT::Salva(bool continua) {
    Conferma();
    const ContenutoTabella& c = modifica_.Contenuto();
    const RichiestaFile richiesta = RichiestaTabella(c.kind);
    FrmLoadSave finestra(console_, richiesta, FrmLoadSave::Modo::Salva,
                         Q(TitoloCaricaSalva(richiesta, true)), this);
    finestra.MostraAnteprime(c.kind);
    finestra.ImpostaNome(percorso_.empty() ? QString() : NomeTabella());
    if (continua)
        finestra.ImpostaContinua();
    if (!Apri(finestra) || !SalvaTabella(console_.scrivania, c, finestra.Percorso()))
        return false;
    percorso_ = finestra.Percorso();
    modifica_.SegnaSalvato();
    MostraContenuto();
    Messaggio(tr("Saved"));
    Q_EMIT Salvata(Q(percorso_));
    return true;
}

/// Asks about rows that would be lost. Closing a box loses nothing: only a plain word does.
bool FrmTableLimFacFT::LasciaTabella() {
    Conferma();
    if (!modifica_.DaSalvare())
        return true;
    const auto chiedi = [this](const std::string& testo) {
        return console_.scrivania.ambiente.Mostra(
                   {.testo = testo, .icona = Icona::Domanda, .pulsanti = Pulsanti::SiNo}) ==
               Risposta::Si;
    };
    if (chiedi("The table has been changed.\rDo you want to save it?"))
        return Salva(false);
    return chiedi("Leave without saving?\rThe changes are lost.");
}

void FrmTableLimFacFT::CaricaNelRicevitore() {
    Conferma();
    Ambiente& ambiente = console_.scrivania.ambiente;
    if (const std::string motivo = LinkOccupato(console_); !motivo.empty()) {
        ambiente.Mostra({.testo = motivo, .icona = Icona::Esclamazione});
        return;
    }
    if (modifica_.DaSalvare() &&
        ambiente.Mostra({.testo = "The table has been changed.\r"
                                  "Do you want to save it first?",
                         .icona = Icona::Domanda,
                         .pulsanti = Pulsanti::SiNo}) == Risposta::Si &&
        !Salva(true))
        return;
    FrmLoadSave finestra(console_, modifica_.Contenuto(),
                         percorso_.empty() ? QString() : NomeTabella(), this);
    if (Apri(finestra))
        Messaggio(tr("Stored in the receiver"));
}

void FrmTableLimFacFT::reject() {
    if (LasciaTabella())
        QDialog::reject();
}

} // namespace orvane
