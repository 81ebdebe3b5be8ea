// `MainForm`: the main window. It shows what the procedures say, writes the user's edits into the
// records, and calls the procedures; it decides nothing.
#pragma once

#include <functional>
#include <memory>

#include <QMainWindow>
#include <QStackedWidget>
#include <QTabBar>
#include <QTimer>

#include "console/Console.h"
#include "data/CaricaSalva.h"
#include "records/Aspetto.h"
#include "ui/ColonnaComuni.h"
#include "ui/FrmAttesaInizio.h"
#include "ui/GridScanTab.h"
#include "ui/MainPict.h"
#include "ui/MenuConsole.h"
#include "ui/Moduli.h"
#include "ui/PaginaRicevitore.h"
#include "ui/PannelloArchivio.h"
#include "ui/PannelloSweep.h"
#include "ui/PiedeArchivio.h"
#include "ui/RegiaMisura.h"
#include "ui/RigaStato.h"
#include "ui/Striscia.h"

namespace orvane {

class MainForm : public QMainWindow, public VistaConsole, public VistaCorsa, public VistaErrore {
    Q_OBJECT
public:
    MainForm(Scrivania& scrivania, ScanRecord& scan);

    /// To be called once, before anything is shown.
    void Collega(Console& console, CatalogoPorte& catalogo);
    /// The style of this session, "light" or "dark", whatever the record says.
    void FissaStile(const QString& stile) { stileFisso_ = stile; }
    /// Shows the loaded records.
    void Carica();
    /// What was repaired at the start, told once the window stands.
    void MostraAvvisi(const std::vector<std::string>& avvisi);

    // VistaConsole
    void MostraTitolo(const std::string& titolo) override;
    void MostraScheda(Modalita modalita) override;
    void DisabilitaMenu() override;
    void EntraArchivio() override;
    void EntraSweep() override;
    void EntraModoVivo(Modalita modalita) override;
    void PulisciQuadro() override;
    void ChiudiFinestreAusiliarie() override;
    void AbilitaTimerTask() override;
    void TerminaProcesso() override;
    void MostraStato(const std::string& testo) override;

    // VistaCorsa
    void MostraFase(FaseCorsa fase) override;
    void IniziaTraccia(const ScanTable& tabella, const std::string& misura) override;
    void IniziaPassata(const PassataInCorso& passata) override;
    void AggiungiPassi(const ScanLine& riga, double freqMhz, double passoMhz,
                       std::span<const SampleRecord> passi) override;
    void MostraFreqLivello(double freqMhz, int16_t livelloCent) override;
    void MostraAvanzamento(const Avanzamento& avanzamento) override;
    void MostraBatteria(const std::string& livello) override;
    void MostraAttesaTimer(int restanoS, int totaleS) override;
    void MostraAttesaTrigger(int16_t modo, int userPort) override;
    void NascondiAttesaInizio() override;
    void MostraCMBPausa(bool visibile) override;
    void AbilitaTastiCorsa(bool abilitati) override;
    void MostraMessaggioBreve(const std::string& testo, int ms) override;
    void AggiornaGriglia() override;
    void EvidenziaCella(int riga, ColonnaScan colonna, bool errata) override;
    void MostraModello() override;

    // VistaErrore
    void MostraStriscia(const std::string& testo) override;
    void NascondiStriscia() override;
    void ColoraStriscia(bool scambiata) override;
    void AbilitaSSTabMode() override;

Q_SIGNALS:
    /// The process is to end; comes from the main loop, outside the handler that asked for it.
    void Terminata();

protected:
    void closeEvent(QCloseEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    void CreaFinestra();
    QWidget* CreaBarraModi();
    QWidget* CreaCentro();
    void CreaScorciatoie();
    void CollegaPannelli();
    void MostraPannelli(bool archivio, bool sweep, bool vivo);
    void ClickScheda(int scheda);
    void Esegui();
    void Pausa();
    void AbilitaDisabilitaControlli();
    void CreaAvvisiQuadro();
    void MostraEsito(EsitoCorsa esito);

    // The archive, and the measure that a run has ended with.
    StatoArchivio& InVista();
    void CollegaArchivio();
    void CollegaQuadro();
    void ApriMisuraScelta(const QString& nome);
    void RinnovaElenco();
    void MostraInVista(bool tieni);
    void MostraVociMisura();
    void SeguiColonna(ParComune quale);
    void Chiesta(AzioneMisura azione, const QString& nome);
    void ConfrontaCon(const QString& nome);
    void SovrapponiA(const QString& nome);
    QString ChiediMisura(const QString& titolo);
    void Elimina(const QString& nome);
    void TogliStrato(Sovrapposte::Genere genere, const QString& nome);
    void CambiaPreferenza(const std::function<void(SetupRecord&)>& scrivi);
    void MostraPicchi(bool si);
    void CambiaNumPicchi(int quanti);
    void SalvaTabellaPicchi();
    void AzioneQuadro(AzioneMenu azione);
    void PortaFuori(AzioneMenu azione);
    void SintonizzaManuale(double mhz);
    void MostraCorsaFinita(const std::string& misura);
    void PreparaCurveCorsa(const ScanTable& tabella);
    void LasciaMisura();

    void AggiornaEtichette();
    void MostraAsseTabella();
    void CambiaSegno(int16_t SetupRecord::*segno, bool si);
    void ApriFrmRemoteLink();
    void MostraGuida();
    void ApriTabelle(AzioneMenu azione);
    void ApriFinestra(AzioneMenu azione);
    void AbilitaVociFerme(bool ferma);
    void ApriFrmAspect();
    void ApriFrmColors();
    void ApplicaAspetto();
    void DisponiPannelli();
    void SalvaMisurePannelli();
    bool PannelliLiberi();
    void ApriPannello();
    void SalvaPannello(bool chiedi);
    void MostraPannello();
    std::optional<std::string> ScegliFile(const RichiestaFile& richiesta, bool salva,
                                          const QString& titolo, const std::string& nome);
    void ApriTesto(const std::string& percorso, const QString& titolo,
                   const std::optional<std::string>& testo);
    void ApriCommento();
    void ApriReport(AzioneMenu azione);
    void ScegliAutoReport(AzioneMenu azione);
    void SegnaMenuReport();
    QString AutoReport(const std::string& misura);
    QString DescrizioneLink() const;
    QString Unita() const;

    Scrivania& scrivania_;
    ScanRecord& scan_;
    Console* console_ = nullptr;
    CatalogoPorte* catalogo_ = nullptr;

    QTabBar* schede_ = nullptr;
    Etichetta* chipModello_ = nullptr;
    Etichetta* chipLink_ = nullptr;
    Etichetta* chipBatteria_ = nullptr;
    PannelloArchivio* archivio_ = nullptr;
    QStackedWidget* pagine_ = nullptr; ///< the picture with its foot, or the receiver
    MainPict* quadro_ = nullptr;
    Striscia* striscia_ = nullptr;
    FrmAttesaInizio* attesaTimer_ = nullptr;
    FrmAttesaInizio* attesaTrigger_ = nullptr;
    QLabel* messaggioBreve_ = nullptr;
    QTimer scadenzaMessaggio_;
    QStackedWidget* piede_ = nullptr; ///< the panel of the mode
    PannelloSweep* sweep_ = nullptr;
    PiedeArchivio* piedeArchivio_ = nullptr;
    PaginaRicevitore* ricevitore_ = nullptr;
    ColonnaComuni* comuni_ = nullptr;
    RigaStato* stato_ = nullptr;
    QTimer timerTask_;
    QTimer attesaMisure_; ///< gathers the moves of a border between panels
    QTimer attesa_;       ///< gathers quick moves through the archive list

    Aspetto aspetto_; ///< as the window shows it
    QString stileFisso_;
    std::unique_ptr<RegiaMisura> regia_;
    StatoArchivio dopoCorsa_;    ///< what the Sweep tab shows of the run that has ended
    TabelleLimFac tabelleCorsa_; ///< factors of the run that is on...
    SetupRecord setupCorsa_;     ///< ...and which of them it began with
    bool conPicchi_ = true;      ///< `CHKShowHighestPeaks`
    double stopRigaMhz_ = 0;     ///< where the last line drawn has ended
    QStringList passate_;        ///< names of the passes of this run, in the order of their first
    bool riceveTasti_ = true;    ///< false while the receiver is asked to pause
    std::string batteria_;
    std::string nomeCorsa_; ///< the measure that the picture of the Sweep tab belongs to
};

} // namespace orvane
