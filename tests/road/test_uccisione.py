"""Killed at any moment: what lies on disk is whole steps of what was sent, and known to be incomplete.

usage: test_uccisione.py BINDIR [MOMENTS]"""

import json
import os
import random
import signal
import subprocess
import sys
import time
from collections import Counter
from contextlib import contextmanager

from comune import Esegui, InParallelo, Passi, PROGRAMMI, ProvaStrada, SWEEP
from peer import Flusso, LivelloPlausibile, Peer

MOMENTI = int(sys.argv[2]) if len(sys.argv) > 2 else 10
PASSI = 5971  # of band B
BLOCCO = 512  # bytes that the peer sends at a time
DURATA = 3.0  # seconds that a run takes here, or somewhat more


def NonLetti(percorso):
    """Bytes that still lie in the line when the program is gone."""
    fd = os.open(percorso, os.O_RDONLY | os.O_NOCTTY | os.O_NONBLOCK)
    letti = 0
    try:
        while pezzo := os.read(fd, 65536):
            letti += len(pezzo)
    except BlockingIOError:
        pass
    os.close(fd)
    return letti


@contextmanager
def Simulatore():
    """The simulated receiver at line speed, as an object with a `percorso`."""
    processo = subprocess.Popen([PROGRAMMI / "orvane-simulator", "--speed", "line"],
                                stdout=subprocess.PIPE, text=True)  # fmt: skip
    try:
        processo.percorso = processo.stdout.readline().strip()
        yield processo
    finally:
        processo.terminate()
        processo.wait()
        processo.stdout.close()


class ProvaUccisione(ProvaStrada):
    def setUp(self):
        super().setUp()
        self.Tabella("T", "--band B --detector P,Q")
        self.Riesce("--link", "sim:5520", "sweep", "--scan", "T", "--name", "Whole")
        self.intera = self.FileMisura("Whole", "RS0").read_bytes()
        self.trovate = Counter()

    def Uccidi(self, dati, quando, peer):
        corsa = self.Avvia(*SWEEP, peer=peer, dati=dati)
        time.sleep(quando)
        os.kill(corsa.processo.pid, signal.SIGKILL)  # one that has ended is still a zombie
        self.assertIn(corsa.Attendi().codice, (-9, 0))

    def Mandati(self, peer):
        """What the peer has sent, and how much of it the program had read."""
        peer.fermo = True
        time.sleep(0.05)
        campioni = bytes(peer.campioni[0]) if peer.campioni else b""
        return campioni, len(campioni) - NonLetti(peer.percorso)

    def Voce(self, dati):
        voci = json.loads(self.Riesce("--json", "archive", dati=dati).out)
        return next((v for v in voci if v["name"] == "M"), None)

    def Controlla(self, dati, mandati):
        """How many steps are there. None: killed ahead of the first file."""
        rs, ksh = (self.FileMisura("M", e, dati) for e in ("RS0", "KSH"))
        byte = rs.read_bytes() if rs.exists() else b""
        self.assertEqual((len(byte) % 12, byte), (0, mandati[: len(byte)]))
        voce = self.Voce(dati)
        if not ksh.exists():
            # Ahead of the mark the directory may be there, with nothing in it.
            vuota = not any(f.name != ".salva-0" for f in rs.parent.glob("*"))
            self.assertEqual((byte, vuota or voce["incomplete"]), (b"", True))
            return None
        self.assertEqual(ksh.stat().st_size, 17770)
        self.assertTrue(voce["readable"])
        if len(byte) < PASSI * 12:
            self.assertTrue(voce["incomplete"])
        righe = self.Riesce("trace", "M", dati=dati).out.splitlines()
        self.assertEqual(len(righe) - 1, len(byte) // 12)
        return len(byte) // 12

    def ContaMomento(self, passi):
        nome = "ahead of the files" if passi is None else "no step yet" if passi == 0 else \
            "some steps" if passi < PASSI else "all steps"  # fmt: skip
        self.trovate[nome] += 1

    def ColPeer(self, dati, quando):
        with Peer(flussi=[Flusso(LivelloPlausibile, pezzi=BLOCCO, pausa=0.03)]) as peer:
            self.Uccidi(dati, quando, peer)
            campioni, letti = self.Mandati(peer)
        passi = self.Controlla(dati, Passi(campioni, [0, 1]))
        # Nothing that was read is lost but for the block that was being worked on.
        self.assertGreaterEqual((passi or 0) * 4, letti - 2 * BLOCCO)
        self.ContaMomento(passi)

    def ColSimulatore(self, dati, quando):
        with Simulatore() as simulatore:
            self.Uccidi(dati, quando, simulatore)
        self.ContaMomento(self.Controlla(dati, self.intera))

    def test_momenti(self):
        caso = random.Random()
        casi = [(i, round(caso.uniform(0, DURATA), 3)) for i in range(MOMENTI)]

        def Corpo(voce):
            i, quando = voce
            dati = self.Sottocartella(f"d{i}")
            self.Tabella("T", "--band B --detector P,Q", dati=dati)
            (self.ColPeer if i % 2 else self.ColSimulatore)(dati, quando)
            # The next run stands beside what is left, whatever that is.
            self.Riesce("--link", "sim:5520", "sweep", "--scan", "T", "--name", "Next", dati=dati)
            self.assertEqual(self.FileMisura("Next", "RS0", dati).read_bytes(), self.intera)

        InParallelo(self, casi, Corpo)
        print(dict(self.trovate), file=sys.stderr)
        self.assertEqual(sum(self.trovate.values()), MOMENTI)


if __name__ == "__main__":
    Esegui()
