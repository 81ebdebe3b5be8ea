// The receiver as a whole: commands come in byte by byte, each is answered or misbehaves.
#include "simulator/RicevitoreSimulato.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/PaginaCodici.h"
#include "simulator/Capricci.h"
#include "simulator/Memoria.h"
#include "simulator/SweepSimulato.h"
#include "simulator/Uscita.h"
#include "simulator/Vocabolario.h"

namespace orvane {
namespace {

using Tipo = Capriccio::Tipo;

constexpr size_t kComandoMassimo = 400;

MemoriaSimulata MemoriaIniziale(const OpzioniSimulatore& opzioni) {
    MemoriaSimulata memoria;
    memoria.modello = TrovaModello(opzioni.modello);
    if (!memoria.modello)
        memoria.modello = TrovaModello("5520");
    memoria.firmware =
        opzioni.firmware.empty() ? std::string(memoria.modello->firmware) : opzioni.firmware;
    memoria.seme = opzioni.seme;
    memoria.userPort = opzioni.userPort;
    return memoria;
}

/// A name in an upload may hold a "#"; anywhere else one begins a new command.
bool PuoContenereDiesis(std::string_view iniziato) {
    constexpr std::array<std::string_view, 3> kConNome = {"#SLIC", "#SLIE", "#SCFE"};
    return std::ranges::any_of(kConNome,
                               [&](std::string_view testa) { return iniziato.starts_with(testa); });
}

std::string ConFineRiga(std::string testo) {
    return testo.ends_with('\n') ? testo : testo + "\r\n";
}

/// Pause and resume are carried out without a word.
bool EPausa(const ComandoRicevuto& parti) {
    return parti.classe == 'A' && (parti.nome == "SPA" || parti.nome == "SRE");
}

std::string RispostaErrore(const ComandoRicevuto& parti, const Capriccio& capriccio) {
    if (EPausa(parti))
        return "SERR";
    if (parti.nome == "SFD" && capriccio.numero > 0)
        return "SFD=ERR " + std::to_string(capriccio.numero);
    return parti.nome + "=ERR";
}

/// How a reply leaves.
struct Consegna {
    double ritardoS = 0;
    bool spezzata = false;
};

} // namespace

struct RicevitoreSimulato::Interno {
    explicit Interno(const OpzioniSimulatore& o)
        : opzioni(o), memoria(MemoriaIniziale(o)), uscita(o.byteAlSecondo), sorte(o.seme) {}

    void Byte(char c, double adesso);
    void Esegui(const std::string& comando, double adesso);
    void EseguiBene(const std::string& comando, const Consegna& consegna, double adesso);
    void EseguiMale(const Capriccio& capriccio, const ComandoRicevuto& parti, double adesso);
    void AvviaFlusso(const std::string& comando, const ComandoRicevuto& parti,
                     const Consegna& consegna, double adesso);
    void Invia(const std::string& testo, const Consegna& consegna, double adesso);
    std::string Spazzatura();
    void Taglia();

    OpzioniSimulatore opzioni;
    MemoriaSimulata memoria;
    Uscita uscita;
    ListaCapricci capricci;
    std::mt19937 sorte;
    std::string iniziato; ///< a command of which the end has not come
    std::vector<std::string> comandi;
    unsigned tagli = 0;
    bool scollegato = false;
    std::optional<uint64_t> scollegaA; ///< bytes of the running sweep
};

void RicevitoreSimulato::Interno::Byte(char c, double adesso) {
    if (c == '#' && !PuoContenereDiesis(iniziato))
        iniziato.clear();
    else if (iniziato.empty())
        return;
    iniziato += c;
    if (c == '*') {
        comandi.push_back(DaAnsi(std::exchange(iniziato, {})));
        Esegui(std::string(comandi.back()), adesso);
    } else if (iniziato.size() > kComandoMassimo) {
        iniziato.clear();
    }
}

void RicevitoreSimulato::Interno::Esegui(const std::string& comando, double adesso) {
    const auto capriccio = capricci.PerRisposta(comando);
    if (!capriccio)
        return EseguiBene(comando, {}, adesso);
    if (capriccio->tipo == Tipo::Tardi || capriccio->tipo == Tipo::Spezzato)
        return EseguiBene(
            comando,
            {.ritardoS = capriccio->secondi, .spezzata = capriccio->tipo == Tipo::Spezzato},
            adesso);
    EseguiMale(*capriccio, DividiComando(comando), adesso);
}

void RicevitoreSimulato::Interno::EseguiMale(const Capriccio& capriccio,
                                             const ComandoRicevuto& parti, double adesso) {
    switch (capriccio.tipo) {
    case Tipo::Rifiuto:
        return Invia(parti.nome + "=N/A\r\n", {}, adesso);
    case Tipo::Errore: {
        const std::string risposta = RispostaErrore(parti, capriccio) + "\r\n";
        // A refused pause or resume is told in the midst of whatever runs.
        return EPausa(parti) ? uscita.Interrompi(risposta, adesso) : Invia(risposta, {}, adesso);
    }
    case Tipo::Spazzatura:
        return Invia(Spazzatura(), {}, adesso);
    case Tipo::Testo:
        return Invia(InAnsi(ConFineRiga(capriccio.testo)), {}, adesso);
    case Tipo::Scollegato:
        scollegato = true;
        return;
    case Tipo::Muto: // the command goes unheard
    case Tipo::Tardi:
    case Tipo::Spezzato:
    case Tipo::StreamMuto:
        return;
    }
}

void RicevitoreSimulato::Interno::EseguiBene(const std::string& comando, const Consegna& consegna,
                                             double adesso) {
    const ComandoRicevuto parti = DividiComando(comando);
    if (EPausa(parti))
        return parti.nome == "SPA" ? uscita.Sospendi(adesso) : uscita.Riprendi(adesso);
    const bool abbandona = parti.classe == 'A' && parti.nome == "SBK";
    const bool ferma = parti.classe == 'S' && parti.nome == "STP";
    if (abbandona || ferma) {
        Taglia();
        return Invia(parti.nome + "=OK\r\n", consegna, adesso);
    }
    if (parti.classe == 'S' && (parti.nome == "SFD" || parti.nome == "AGO"))
        return AvviaFlusso(comando, parti, consegna, adesso);
    Invia(InAnsi(Rispondi(memoria, parti)) + "\r\n", consegna, adesso);
}

void RicevitoreSimulato::Interno::AvviaFlusso(const std::string& comando,
                                              const ComandoRicevuto& parti,
                                              const Consegna& consegna, double adesso) {
    SweepAvviato sweep;
    if (parti.nome == "SFD")
        sweep = AvviaSweep(memoria, parti.valore);
    else
        sweep.flusso = AvviaAnalyzer(memoria);
    if (!sweep.flusso)
        return Invia("SFD=ERR " + std::to_string(sweep.errore) + "\r\n", consegna, adesso);

    // A new sweep ends the one that runs.
    if (uscita.FlussoInCorso())
        Taglia();
    scollegaA.reset();
    std::optional<uint64_t> limite;
    if (const auto capriccio = capricci.PerFlusso(comando)) {
        limite = capriccio->numero;
        if (capriccio->tipo == Tipo::Scollegato)
            scollegaA = limite;
    }
    Invia(parti.nome + "=OK\r\n", consegna, adesso);
    uscita.AccodaFlusso(std::move(sweep.flusso), limite, adesso);
}

void RicevitoreSimulato::Interno::Invia(const std::string& testo, const Consegna& consegna,
                                        double adesso) {
    const size_t meta = consegna.spezzata ? testo.size() / 2 : 0;
    uscita.Accoda(testo.substr(0, meta), adesso);
    uscita.Accoda(testo.substr(meta), adesso + consegna.ritardoS);
}

/// Nothing of it is a line end or a part of a reply.
std::string RicevitoreSimulato::Interno::Spazzatura() {
    std::string testo;
    for (int i = 0; i < 24; ++i)
        testo += static_cast<char>(0x80 + sorte() % 0x80);
    return testo;
}

void RicevitoreSimulato::Interno::Taglia() {
    uscita.Svuota();
    scollegaA.reset();
    ++tagli;
}

RicevitoreSimulato::RicevitoreSimulato(const OpzioniSimulatore& opzioni)
    : io_(std::make_unique<Interno>(opzioni)) {}

RicevitoreSimulato::~RicevitoreSimulato() = default;

void RicevitoreSimulato::Riceve(std::span<const uint8_t> dati, double adesso) {
    for (const uint8_t byte : dati)
        if (!io_->scollegato)
            io_->Byte(static_cast<char>(byte), adesso);
}

size_t RicevitoreSimulato::Da(std::span<uint8_t> dove, double adesso) {
    if (io_->scollegato)
        return 0;
    const size_t n = io_->uscita.Prendi(dove, adesso);
    if (io_->scollegaA && io_->uscita.PresiDalFlusso() >= *io_->scollegaA)
        io_->scollegato = true;
    return n;
}

size_t RicevitoreSimulato::Pronti(double adesso) {
    return io_->scollegato ? 0 : io_->uscita.Pronti(adesso);
}

std::optional<double> RicevitoreSimulato::ProssimoByte(double adesso) {
    return io_->scollegato ? std::nullopt : io_->uscita.ProssimoByte(adesso);
}

bool RicevitoreSimulato::Scollegato() const {
    return io_->scollegato;
}

void RicevitoreSimulato::Ricollega() {
    io_->memoria = MemoriaIniziale(io_->opzioni);
    io_->uscita = Uscita(io_->opzioni.byteAlSecondo);
    io_->iniziato.clear();
    io_->scollegaA.reset();
    io_->scollegato = false;
}

void RicevitoreSimulato::Aggiungi(const Capriccio& capriccio) {
    if (capriccio.tipo == Tipo::Scollegato && capriccio.numero == 0 && capriccio.comando.empty())
        io_->scollegato = true;
    else
        io_->capricci.Aggiungi(capriccio);
}

void RicevitoreSimulato::Scorda() {
    io_->capricci.Scorda();
}

const std::vector<std::string>& RicevitoreSimulato::Comandi() const {
    return io_->comandi;
}

void RicevitoreSimulato::DimenticaComandi() {
    io_->comandi.clear();
}

std::string RicevitoreSimulato::Valore(std::string_view nome) const {
    return ValoreOppure(io_->memoria, nome, "");
}

std::vector<std::string> RicevitoreSimulato::Tabella(std::string_view nome, int slot) const {
    const auto& tabelle = io_->memoria.tabelle;
    const auto kind = tabelle.find(nome);
    if (kind == tabelle.end() || !kind->second.contains(slot))
        return {};
    const TabellaCaricata& tabella = kind->second.at(slot);
    std::vector<std::string> testi = {tabella.nome};
    testi.insert(testi.end(), tabella.righe.begin(), tabella.righe.end());
    return testi;
}

unsigned RicevitoreSimulato::Tagli() const {
    return io_->tagli;
}

void RicevitoreSimulato::ImpostaUserPort(int valore) {
    io_->memoria.userPort = valore;
}

void RicevitoreSimulato::ImpostaBatteria(std::string livello, double volt, bool inCarica) {
    io_->memoria.batteria = {std::move(livello), volt, inCarica};
}

} // namespace orvane
