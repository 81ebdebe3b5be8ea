"""Each kind of run, word for word: all that the receiver hears from identification to end, the boxes,
and every file of the measure by its bytes."""

import struct

from comune import (Campo, Esegui, GENERATORE, IDENTIFICA, InParallelo, NESSUN_LIVELLO, Passi,
                    PRIMA, ProvaStrada, SWEEP)  # fmt: skip
from peer import Flusso, LivelloPlausibile, Peer

RIGA = "--start 0.15 --stop 1.15 --step 0.01 --hold 10"  # 101 steps
RIGA_K3X = "--start 30 --stop 31 --step 0.01 --hold 10 --presel off --rbw 120kHz"
RIGA_5590 = "--start 7000 --stop 7001 --step 0.01 --hold 10"
SMART = RIGA + " --smart on --margin 6 --limit QP"
IDENTIFICA_K3X = [*IDENTIFICA[:3], "#?3PR*", *IDENTIFICA[3:]]
LIMITE = ["#SLIW0,150e3;66*", "#SLIW1,30000e3;56*", "#SLIEQP*", "#SLIM6*"]
TABELLA = ["#SSFW 0,150000*", "#SSFW 1,575000*", "#SSFW 2,1000000*", "#SSFW 3,1075000*",
           "#SSFW 4,1150000*"]


def Sfd(detector="P", step=10000, hold=10, dopo="6;10;OFF;ON;0", da="150000;1150000", s=""):
    return f"#SSFD{s} {da};{step};{detector};{hold};{dopo}*"


def Linea(comando, prima=(), batteria=("#?BAT*",)):
    return [*prima, *batteria, comando, "#?UHT*"]


class Genere:
    """A kind of run: the line, who answers, what is attached, and what must come of it."""

    def __init__(self, riga, attesi, modello="5520", collegato=0, detector=(0,), passate=("",),
                 boxes=(), opzioni=(), passi=None, hz=None, regole=None):  # fmt: skip
        self.riga, self.attesi, self.modello, self.collegato = riga, attesi, modello, collegato
        self.detector, self.passate, self.boxes = detector, passate, boxes
        self.opzioni, self.regole = opzioni, regole
        self.flusso = {"passi": passi, "intestazione": hz}


def Comune(*linee, prima=IDENTIFICA):
    return [*prima, *PRIMA, *GENERATORE, *(c for linea in linee for c in linea)]


FATTI_5520F = ["#ASBK*", "#?IDN*", "#?CO6*", "#?MIL*", "#?CRA*", "#?S/N*"]
K3X = {"dopo": "10;10;OFF;OFF;0", "da": "30000000;31000000"}
GENERI = {
    "plain": Genere(RIGA, Comune(Linea(Sfd()))),
    "smart": Genere(SMART + " --detector Q", Comune(Linea(Sfd("SQ"), LIMITE)), detector=(1,)),
    "double smart": Genere(
        SMART + " --detector Q,A --limit-dsd AV --peak-hold 100",
        Comune(Linea(Sfd("SQA", dopo="6;10;OFF;ON;100"),
                     ["#SLDW0,150e3;66,56*", "#SLDW1,30000e3;56,46*", "#SLIEQP*", "#SLIM6*"])),
        detector=(1, 3)),
    "table": Genere(RIGA + " --table Spots --steps-between 2",
                    Comune(Linea(Sfd(step=0), TABELLA)), passi=5),
    "two networks": Genere(
        RIGA + " --lines L1,L2 --prompt Lamp",
        Comune(Linea(Sfd(), ["#SUPP0*"]), Linea(Sfd(), ["#SUPP4*"])), collegato=1,
        passate=("-L1", "-L2"), boxes=("Lamp (L1)", "Lamp (L2)")),
    "antenna": Genere(
        RIGA_K3X + " --antenna V,H --prompt Mast",
        Comune(*2 * [Linea(Sfd(**K3X), batteria=("#?BAT*", "#SSTP*", "#S3PRR*"))], prima=IDENTIFICA_K3X),
        modello="K3X low", collegato=3, passate=("-V", "-H"),
        boxes=("Mast (V)", "Switch antenna to Vertical", "Mast (H)", "Switch antenna to Horizontal")),
    "timer": Genere(RIGA, Comune(Linea(Sfd())), opzioni=("--timer", "1")),
    "trigger": Genere(
        RIGA, [*IDENTIFICA, PRIMA[0], *3 * ["#?UPP*"], *PRIMA[1:], *GENERATORE, *Linea(Sfd())],
        opzioni=("--trigger", "1"), regole={"?UPP": ["UPP=0", "UPP=0", "UPP=1"]}),
    "K3X": Genere(RIGA_K3X, Comune(Linea(Sfd(**K3X), batteria=("#?BAT*", "#SSTP*", "#S3PRR*")),
                               prima=IDENTIFICA_K3X), modello="K3X low"),
    "3360/01": Genere(  # what it lacks never reaches the line
        RIGA + " --presel off",
        ["#ASBK*", "#?IDN*", "#?3PR*", "#?CRA*", "#?S/N*", PRIMA[0],
         *Linea(Sfd(dopo="6;10;OFF;OFF;0"), ["#SSTP*", "#S3PRC*"], ())], modello="3360/01"),
    "5590": Genere(RIGA_5590, Comune(Linea(Sfd(dopo="9;10;OFF;OFF;0", da="7000000000;7001000000"))),
                   modello="5590"),
    "5520F": Genere(RIGA, [*FATTI_5520F, *PRIMA, "#SSTP*", "#?CO6*", Sfd(s="S"), "#?UHT*"],
                    modello="5520F", hz=10000.0),
    "GX2207F": Genere(
        RIGA, [*IDENTIFICA, PRIMA[0], "#CHGS*", *IDENTIFICA[1:5], *PRIMA[1:], "#SIHPOFF*", "#SMODA*",
               "#SITG 0*", *Linea(Sfd(s="S"))], modello="GX2207F", hz=10000.0),
}  # fmt: skip


def PiuAlti(*tracce):
    """Step by step the highest level of each detector."""
    return b"".join(
        struct.pack("<6h", *(max(v) for v in zip(*(struct.unpack_from("<6h", t, i) for t in tracce))))
        for i in range(0, len(tracce[0]), 12)
    )


def SenzaRipetizioni(comandi):
    """On a machine with much else to do a reply may come too late, and is asked for again."""
    return [c for c, prima in zip(comandi, [None, *comandi]) if c != prima]


class ProvaGeneri(ProvaStrada):
    def Prepara(self, dati, genere):
        for nome, su in (("QP", 66), ("AV", 56)):
            testo = dati / "points.txt"
            testo.write_text(f"0.15 {su}\n30 {su - 10}\n")
            self.Riesce("limit", "import", nome, str(testo), dati=dati)
        testo.write_text("1\n2\n")
        self.Riesce("table", "import", "Spots", str(testo), dati=dati)
        setup = bytearray(5094)
        Campo(setup, 3000, "h", genere.collegato)
        (dati / "Panels").mkdir(exist_ok=True)
        (dati / "Panels" / "Untitled.EAM").write_bytes(setup)
        self.Tabella("T", genere.riga + f" --ancillary {genere.collegato}", dati=dati)

    def File(self, dati, genere, campioni):
        """Every trace file of the measure, and none besides."""
        cartella = dati / "Sweep" / "M"
        tracce = [Passi(c, genere.detector) for c in campioni]
        attesi = {"M.RS0": PiuAlti(*tracce)}
        if genere.passate != ("",):
            attesi |= {f"Sub_Measure/M{p}.RS0": t for p, t in zip(genere.passate, tracce)}
        trovati = {str(f.relative_to(cartella)): f.read_bytes() for f in cartella.rglob("*.RS*")}
        self.assertEqual(trovati, attesi)
        self.assertNotEqual(set(tracce[0]), set(struct.pack("<h", NESSUN_LIVELLO)))
        ksh = (cartella / "M.KSH").read_bytes()
        self.assertEqual(ksh[12676:], (dati / "Panels" / "Untitled.EAM").read_bytes())
        self.assertEqual(struct.unpack_from("<d", ksh, 24)[0], 0.01)

    def test_generi(self):
        def Corpo(nome):
            genere = GENERI[nome]
            dati = self.Sottocartella(nome.replace(" ", "-").replace("/", "-"))
            self.Prepara(dati, genere)
            flussi = [Flusso(lambda k, d, n=n: LivelloPlausibile(k * n + n, d), **genere.flusso)
                      for n in range(1, len(genere.passate) + 1)]  # fmt: skip
            with Peer(genere.modello, flussi=flussi, regole=genere.regole) as peer:
                esito = self.Riesce(*SWEEP, *genere.opzioni, peer=peer, dati=dati)
            self.assertEqual(SenzaRipetizioni(peer.comandi), SenzaRipetizioni(genere.attesi))
            self.assertEqual(len(peer.campioni), len(genere.passate))
            boxes = [r for r in esito.err.splitlines() if r.startswith("[box] ")]
            self.assertEqual(boxes, [f"[box] {b} -> OK" for b in genere.boxes])
            self.File(dati, genere, peer.campioni)

        InParallelo(self, GENERI, Corpo)


if __name__ == "__main__":
    Esegui()
