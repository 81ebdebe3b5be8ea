"""Each fault at each moment of a sweep: before the acknowledgement, in the header, in mid-sample, in
the end mark, behind it. The run ends as documented, files are whole, and the next run works."""

import os
import random
import struct

from comune import BREVE, Esegui, InParallelo, Passi, ProvaStrada, SWEEP
from peer import Flusso, Misurati, Peer

TESTA = struct.pack("<f", 10000.0) + bytes(28)
DATI = Flusso().Campioni(101, [0])
ROBACCIA = random.Random(3).randbytes(400).replace(b"\r", b"").replace(b"S", b"")
OK, FINE = b"SFD=OK\r\n", b"SFD_END"
TACE, CHIUDE = (), ("chiudi",)


class Copione(Flusso):
    """A stream word for word."""

    def __init__(self, *pezzi):
        super().__init__()
        self._pezzi = pezzi

    def Pezzi(self, comando):
        for pezzo in self._pezzi:
            if pezzo == "chiudi":
                yield 0.3  # behind what has gone out before
            yield pezzo


def A(dati):
    return Misurati(dati)


# Moment: what has come by then, and how many steps that makes.
MOMENTI = {
    "before the acknowledgement": ((b"SFD",), 0),
    "in the header": ((OK, TESTA[:10]), 0),
    "in mid-sample": ((OK, TESTA, A(DATI[:81])), 40),
    "in the end mark": ((OK, TESTA, A(DATI), FINE[:5]), 101),
}
GUASTI = {"silence": TACE, "unplugged": CHIUDE}
# What is no header, no mark, no reply: pieces of the stream, status, steps.
ALTRI = {
    "refusal": ((b"SFD=N/A\r\n",), 3, 0),
    "error without a number": ((b"SFD=ERR\r\n",), 3, 0),
    "error with a number of none": ((b"SFD=ERR 99\r\n",), 3, 0),
    "garbage, then the sweep": ((ROBACCIA + b"\r\n", OK, TESTA, A(DATI), FINE), 0, 101),
    "step of no number": ((OK, b"\xff\xff\xff\xff" + TESTA[4:], A(DATI), FINE), 0, 101),
    "negative step": ((OK, struct.pack("<f", -5e3) + TESTA[4:], A(DATI), FINE), 0, 101),
    "step out of all bounds": ((OK, struct.pack("<f", 3e38) + TESTA[4:], A(DATI), FINE), 0, 101),
    "error among the samples": ((OK, TESTA, A(DATI[:80]), A(b"SFD=ERR 5\r\n"), FINE), 0, 45),
    "end in mid-sample": ((OK, TESTA, A(DATI[:81]), FINE), 0, 40),
    "end in the header": ((OK, TESTA[:10], FINE), 3, 0),
    "a mark that is none, then one": ((OK, TESTA, A(DATI), A(b"SFD_EN"), FINE), 0, 104),
    "no sample at all": ((OK, TESTA, FINE), 0, 0),
    "garbage behind the mark": ((OK, TESTA, A(DATI), FINE, ROBACCIA), 0, 101),
    "error in the header": ((OK, TESTA[:10], b"SFD=ERR 5\r\n"), 3, 0),
    "garbage for a header": ((OK, ROBACCIA[:32], A(DATI), FINE), 0, 101),
    "refusal among the samples": ((OK, TESTA, A(DATI[:80]), A(b"SERR\r\n"), FINE), 0, 43),
    "garbage in the mark": ((OK, TESTA, A(DATI), A(b"SFD_" + ROBACCIA[:20]), FINE), 0, 113),
    "error in the mark": ((OK, TESTA, A(DATI), A(b"SFD_SFD=ERR 5\r\n"), FINE), 0, 108),
    "error behind the mark": ((OK, TESTA, A(DATI), FINE, b"SFD=ERR 5\r\n"), 0, 101),
    "refusal behind the mark": ((OK, TESTA, A(DATI), FINE, b"SERR\r\n"), 0, 101),
    # Nothing need be asked behind the mark: the run may be over before it would notice.
    "unplugged behind the mark": ((OK, TESTA, A(DATI), FINE, "chiudi"), (0, 3), 101),
}
CASI = {(guasto, momento): (prima + poi, 3, passi) for guasto, poi in GUASTI.items()
        for momento, (prima, passi) in MOMENTI.items()}  # fmt: skip
CASI |= {(guasto, ""): caso for guasto, caso in ALTRI.items()}

# Bytes that a file may have: what cannot be written then, in the order of a run.
DISCO = {"panel": 1000, "header": 17000, "trace": 17770}


class ProvaMomenti(ProvaStrada):
    def Prossima(self, dati, hz=10000.0):
        """The fault leaves nothing behind that keeps the next run from its end."""
        with Peer("5520F", flussi=[Flusso(intestazione=hz)]) as peer:
            self.Riesce("sweep", "--scan", "T", "--name", "Next", peer=peer, dati=dati)
        self.assertEqual(self.FileMisura("Next", "RS0", dati).read_bytes(),
                         Passi(peer.campioni[0], [0]))  # fmt: skip

    def test_flusso(self):
        def Corpo(caso):
            pezzi, codice, passi = CASI[caso]
            dati = self.Sottocartella("d%d" % list(CASI).index(caso))
            self.Tabella("T", BREVE, dati=dati)
            with Peer("5520F", flussi=[Copione(*pezzi)]) as peer:
                esito = self.Orvane(*SWEEP, peer=peer, dati=dati, pazienza=0.5)
            codici = codice if isinstance(codice, tuple) else (codice,)
            self.assertIn(esito.codice, codici, str(esito))
            rs = self.FileMisura("M", "RS0", dati).read_bytes()
            self.assertEqual((len(rs) / 12, rs), (passi, Passi(peer.campioni[0], [0])[: len(rs)]))
            self.assertEqual(self.FileMisura("M", "KSH", dati).stat().st_size, 17770)
            self.assertNotIn("incomplete", self.Riesce("archive", dati=dati).out)
            self.Prossima(dati)

        InParallelo(self, CASI, Corpo)

    def test_disco_pieno(self):
        """Told with the file's name, status 4; what is there of the trace is whole steps."""

        def Corpo(dove):
            dati = self.Sottocartella(dove)
            self.Tabella("T", BREVE.replace("0.01", "0.0005"), dati=dati)  # 2001 steps
            limite = f"--fsize={DISCO[dove]}"
            with Peer("5520F", flussi=[Flusso(intestazione=500.0)]) as peer:
                esito = self.Orvane(*SWEEP, peer=peer, dati=dati, senza_segnali=True,
                                    davanti=["prlimit", limite])  # fmt: skip
            self.assertEqual(esito.codice, 4, str(esito))
            self.assertIn("cannot write", esito.err)
            rs = self.FileMisura("M", "RS0", dati)
            byte = rs.read_bytes() if rs.exists() else b""
            self.assertEqual(len(byte) % 12, 0)
            self.assertEqual(byte != b"", dove == "trace")
            if dove == "trace":  # in the middle of a step
                self.assertRegex(esito.err, r"\[box\] Cannot save file .*M\.RS0 -> OK")
            if byte:
                self.assertEqual(byte, Passi(peer.campioni[0], [0])[: len(byte)])
            self.Prossima(dati, 500.0)

        InParallelo(self, DISCO, Corpo)

    def test_sola_lettura_nel_mezzo(self):
        """The measure's directory becomes one where nothing can be made, while samples come: the trace
        is whole, and the header, which cannot be written again, is that of the start."""
        self.Tabella("T", BREVE)
        nessuno = 65534 if os.geteuid() == 0 else None
        for percorso in (self.dati, *self.dati.rglob("*")):
            os.chown(percorso, nessuno or -1, -1)
        with Peer("5520F", flussi=[Flusso(intestazione=10000.0, pezzi=4, pausa=0.02)]) as peer:
            os.chmod(peer.percorso, 0o666)
            corsa = self.Avvia(*SWEEP, peer=peer, utente=nessuno)
            self.assertTrue(peer.Aspetta(lambda: peer.campioni and len(peer.campioni[0]) > 8))
            (self.dati / "Sweep" / "M").chmod(0o555)
            esito = corsa.Attendi()
        self.assertEqual(esito.codice, 4, str(esito))
        self.assertIn("M.KSH", esito.err)
        (self.dati / "Sweep" / "M").chmod(0o755)
        self.assertEqual(self.FileMisura("M", "RS0").read_bytes(), Passi(peer.campioni[0], [0]))
        self.assertEqual(self.FileMisura("M", "KSH").stat().st_size, 17770)
        self.assertIn("incomplete", self.Riesce("archive").out)
        self.Prossima(self.dati)


if __name__ == "__main__":
    Esegui()
