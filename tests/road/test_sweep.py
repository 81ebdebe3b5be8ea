"""The first sweep as a user runs it: what the receiver is told, in order, and what lies on disk
afterwards, byte by byte."""

import random
import re
import struct

from comune import (BREVE, Campo, Esegui, GENERATORE, IDENTIFICA, InParallelo, Passi, PRIMA,
                    ProvaStrada, ScanLine, ScanRecord, SWEEP, Testo)  # fmt: skip
from peer import Flusso, LivelloPlausibile, Peer


def Linea(comando):
    return ["#?BAT*", comando, "#?UHT*"]


def SetupRecord(seme):
    """An EAM file: valid values in the named fields, anything at all in the others."""
    caso = random.Random(seme)
    byte = bytearray(caso.randbytes(5094))
    Campo(byte, 0, "ddhf2f4h", 0.15, 30, 1, 2.5, 1, -2, 1, 0, 1, 0)
    Campo(byte, 642, "dfhhhhhhh", 10.7, 3, 5, 7, 9, 11, 13, 1, 17)
    Campo(byte, 866, "f", 41.5)
    Testo(byte, 1270, 20, "9 kHz CISPR")
    Campo(byte, 1290, "5h4h10h", 6, 1, 10, 0, 0, 1, 0, 1, 0, 1, *[0] * 9)
    for i in range(10):
        Testo(byte, 1328 + 60 * i, 60, ("Limit %d" % i) if i < 3 else "NONE")
    Campo(byte, 2534, "3h", 1, 2, 90)
    Campo(byte, 2540, "hdhdh", 0, -10.5, 0, 12.5, 1)
    for i in range(7):
        Testo(byte, 2562 + 60 * i, 60, "NONE")
    Campo(byte, 2982, "7hhh5h", *[0] * 7, 0, 1, *[0] * 5)
    Campo(byte, 3610, "hhhhhhhh", -1, -1, 0, 1, 0, -1, 0, 0)  # menu marks among them
    Campo(byte, 3626, "hfhh", 2, 3.5, 0, 4)
    Testo(byte, 3664, 60, "Biconical")
    Campo(byte, 3822, "f", 2.0)
    byte[4924:] = bytes(170)
    return byte


def ConRicevitore(setup, versione, fw="2.20 12/03/18", seriale="KR-0042", modello="5520"):
    """The same record as a run leaves it: who measured, and with what."""
    byte = bytearray(setup)
    Testo(byte, 4226, 30, versione)
    Testo(byte, 4256, 30, fw)
    Testo(byte, 4286, 10, seriale[:10])
    Testo(byte, 4296, 10, seriale[10:])
    Testo(byte, 4308, 12, modello)
    return byte


class ProvaSweep(ProvaStrada):
    def Versione(self):
        return re.search(r"Rel\. (\d+\.\d+\.\d\d .*)", self.Riesce("--help").out).group(1)

    def test_prima_misura(self):
        """From the empty directory to the trace: commands in order, header and trace by their bytes."""
        self.Riesce("scan", "add", "Band B", "--band", "B", "--detector", "P,Q")
        with Peer() as peer:
            esito = self.Riesce("sweep", "--scan", "Band B", "--name", "First", peer=peer)
        comando = "#SSFD 150000;30000000;5000;PQ;1.9;6;10;OFF;ON;0*"
        self.assertEqual(peer.comandi, IDENTIFICA + PRIMA + GENERATORE + Linea(comando))
        self.assertEqual(peer.estranei, b"")
        self.assertEqual(esito.out, f"{self.dati}/Sweep/First\n")
        self.assertIn("measure First\n", esito.err)
        rs = self.FileMisura("First", "RS0").read_bytes()
        self.assertEqual(len(rs), 5971 * 12)
        self.assertEqual(rs, Passi(peer.campioni[0], [0, 1]))
        ksh = self.FileMisura("First", "KSH").read_bytes()
        self.assertEqual(len(ksh), 17770)
        riga = ScanLine(0.15, 30, 0.005, 2, (0, 1), HoldTime=1.9, StepOriginal=0.005)
        self.assertEqual(ksh[:12676], ScanRecord(riga))
        # The header's second half is the running panel.
        self.assertEqual(ksh[12676:], (self.dati / "Panels" / "Untitled.EAM").read_bytes())
        self.assertEqual(sorted(p.name for p in (self.dati / "Sweep").iterdir()), ["First"])
        nomi = sorted(p.name for p in (self.dati / "Sweep" / "First").iterdir())
        self.assertEqual(nomi, ["Factors", "First.KSH", "First.RS0", "Limits", "Sub_Measure"])

    def test_header_byte_per_byte(self):
        """Panels written by another hand: every byte of them is in the header, named or not."""
        caso = random.Random(7)
        righe = []
        for start, stop, rbw in ((0.15, 0.65, 2), (0.5, 1.0, 2)):
            riga = bytearray(ScanLine(start, stop, 0.01, rbw, (0, 3), AutoStep=0, HoldTime=20,
                                      MinAtt=3, PreAmp=1, PreSel=0, HoldTimeSD=62))  # fmt: skip
            riga[124:326] = caso.randbytes(202)
            riga[672:1200] = caso.randbytes(528)
            Testo(riga, 390, 200, "Switch cables \u00b5")
            righe.append(riga)
        est = bytearray(ScanRecord(*righe))
        est[12070:] = caso.randbytes(12676 - 12070)
        Campo(est, 12000, "hi", 2, 6)
        Testo(est, 12006, 60, "Comment")
        setup = SetupRecord(7)
        pannelli = self.Sottocartella("Panels")
        (pannelli / "Two.EST").write_bytes(est)
        (pannelli / "Untitled.EAM").write_bytes(setup)
        with Peer("5570", regole={"?S/N": "S/N=0123456789AB", "?UHT": "UHT=25"}) as peer:
            # Lines in the receiver's own range, and the unit in charge: only the switch lets it go.
            self.Riesce("/NOCONTFREQ", "sweep", "--scan", "Two", "--name", "Two", peer=peer,
                        risposta="yes")  # fmt: skip
        for riga in range(2):
            # The hold time that the receiver used, and the step as the table had it.
            Campo(est, 1200 * riga + 94, "f", 25)
            Campo(est, 1200 * riga + 664, "d", 0.01)
        atteso = est + ConRicevitore(setup, self.Versione(), seriale="0123456789", modello="5570")
        ksh = self.FileMisura("Two", "KSH").read_bytes()
        diversi = [i for i, (a, b) in enumerate(zip(ksh, atteso)) if a != b]
        self.assertEqual((len(ksh), diversi), (17770, []))
        # The reference follows the wide range and its preamplifier; generator values are the panel's.
        self.assertIn("#SDIS120;125*", peer.comandi)
        for comando in ("#STGL-10.5*", "#STGTON*", "#STGF12500e3*"):
            self.assertIn(comando, peer.comandi)
        comandi = [c for c in peer.comandi if c.startswith("#SSFD")]
        self.assertEqual(comandi, ["#SSFD 150000;650000;10000;PA;20;12;30;ON;OFF;0*",
                                   "#SSFD 500000;1000000;10000;PA;20;12;30;ON;OFF;0*"])  # fmt: skip

    def test_due_linee(self):
        """Two overlapping lines: a command and a file each; the trace takes the higher level."""
        self.Tabella("T", f"{BREVE} --detector P,A", "--start 0.65 --stop 1.65 --step 0.01")
        with Peer(flussi=[Flusso(LivelloPlausibile), Flusso(lambda k, d: 4000 + 30 * k)]) as peer:
            self.Riesce(*SWEEP, peer=peer, risposta="yes")
        inizio = peer.comandi.index("#?BAT*")
        attesi = Linea("#SSFD 150000;1150000;10000;PA;0;6;10;OFF;ON;0*")
        attesi += Linea("#SSFD 650000;1650000;10000;P;0;6;10;OFF;ON;0*")
        self.assertEqual(peer.comandi[inizio:], attesi)
        self.assertEqual(self.FileMisura("M", "RS0").read_bytes(), Passi(peer.campioni[0], [0, 3]))
        self.assertEqual(self.FileMisura("M", "RS1").read_bytes(), Passi(peer.campioni[1], [0]))
        attesa = {}
        for riga, start in ((1, 15), (2, 65)):
            livello = LivelloPlausibile if riga == 1 else lambda k, d: 4000 + 30 * k
            for k in range(101):
                nuovo = (livello(k, 0) / 100, riga)
                if start + k not in attesa or attesa[start + k][0] < nuovo[0]:
                    attesa[start + k] = nuovo
        righe = self.Riesce("trace", "M").out.splitlines()
        self.assertEqual(righe[0], "frequency_mhz,level_db,line")
        letta = {}
        for riga in righe[1:]:
            f, livello, linea = riga.split(",")
            letta[round(float(f) * 100)] = (float(livello), int(linea))
        self.assertEqual(letta, attesa)
        self.assertEqual(len(righe) - 1, 151)
        medie = self.Riesce("trace", "M", "--detector", "A").out.splitlines()[1:]
        self.assertEqual([float(r.split(",")[1]) for r in medie],
                         [LivelloPlausibile(k, 3) / 100 for k in range(101)])  # fmt: skip
        self.assertEqual(self.Riesce("trace", "M", "--detector", "Q").out, righe[0] + "\n")
        voce = self.Riesce("archive").out.rstrip("\n").split("\t")
        self.assertRegex(voce[1], r"^\d\d/\d\d/20\d\d \d\d:\d\d:\d\d$")
        self.assertEqual([voce[0], *voce[2:]], ["M", "2 lines", "202 steps", "PA"])

    def test_header_5520F(self):
        """A fast model may step otherwise than it was told: the header of the measure says so."""
        self.Tabella("T", BREVE)
        with Peer("5520F", flussi=[Flusso(intestazione=12500.0, passi=81)]) as peer:
            self.Riesce(*SWEEP, peer=peer)
        # Told to keep its step, since the line does not leave it to the receiver.
        self.assertIn("#SSFDS 150000;1150000;10000;P;0;6;10;OFF;ON;0*", peer.comandi)
        ksh = self.FileMisura("M", "KSH").read_bytes()
        self.assertEqual(struct.unpack_from("<d", ksh, 24)[0], 0.0125)
        self.assertEqual(struct.unpack_from("<d", ksh, 664)[0], 0.01)
        self.assertEqual(self.FileMisura("M", "RS0").read_bytes(), Passi(peer.campioni[0], [0]))
        trovate = [float(r.split(",")[0]) for r in self.Riesce("trace", "M").out.splitlines()[1:]]
        self.assertAlmostEqual(trovate[1] - trovate[0], 0.0125, 9)
        self.assertAlmostEqual(trovate[-1], 1.15, 9)
        # The scan table keeps what the user wrote.
        est = (self.dati / "Panels" / "T.EST").read_bytes()
        self.assertEqual(struct.unpack_from("<d", est, 24)[0], 0.01)

    def test_flussi_spezzati(self):
        """However the stream is torn, the file holds the same."""
        flussi = {
            "mark torn after each byte": Flusso(tagli_fine=(1, 2, 3, 4, 5, 6)),
            "every odd level": Flusso(livello=lambda k, d: (0x7FFF, 0x8000, 0xFFFE, 0xFFFF)[k % 4]),
            "every byte by itself": Flusso(),
        }  # fmt: skip

        def Corpo(nome):
            dati = self.Sottocartella(nome.replace(" ", "-"))
            self.Tabella("T", f"{BREVE} --detector P,Q", dati=dati)
            with Peer(flussi=[flussi[nome]], spezza=nome == "every byte by itself") as peer:
                self.Riesce(*SWEEP, peer=peer, dati=dati)
            rs = self.FileMisura("M", "RS0", dati).read_bytes()
            self.assertEqual(len(rs), 101 * 12)
            self.assertEqual(rs, Passi(peer.campioni[0], [0, 1]))

        InParallelo(self, flussi, Corpo)

    def test_rifiuto_dei_controlli(self):
        """The checks before a run refuse with their words; no file of the measure is made."""
        self.Tabella("T", "--band B --detector N")
        with Peer(regole={"?CRA": "CRA=N/A"}) as peer:
            esito = self.Orvane(*SWEEP, peer=peer)
        self.assertEqual(esito.codice, 1, str(esito))
        self.assertIn("Rms-Avg Detector not available", esito.err)
        self.assertIn("line 1: ", esito.err)
        self.assertFalse((self.dati / "Sweep" / "M").exists())
        self.assertFalse([c for c in peer.comandi if c.startswith("#SSFD")])


if __name__ == "__main__":
    Esegui()
