"""A run that waits, pauses and is cut off, told as events for scripts."""

import json
import os
import select
import signal
import subprocess
import time

from comune import BREVE, Esegui, Passi, PROGRAMMI, ProvaStrada, SWEEP
from peer import Flusso, Peer


class ProvaCorsa(ProvaStrada):
    def setUp(self):
        super().setUp()
        self.Tabella("T", BREVE)

    def Parole(self, *altre):
        return ["--json", *SWEEP, *altre]

    @staticmethod
    def Eventi(esito):
        """Every line of standard output is an object of its own."""
        return [json.loads(riga) for riga in esito.out.splitlines()]

    def test_eventi(self):
        """The phases in their order, the pass, all steps, and the end with the exit status."""
        with Peer() as peer:
            esito = self.Riesce(*self.Parole(), peer=peer)
        eventi = self.Eventi(esito)
        fasi = [e["phase"] for e in eventi if e["event"] == "phase"]
        attese = ["checks", "wait", "preparation", "line", "sweep", "line", "idle"]
        self.assertEqual(fasi, attese)
        passata = next(e for e in eventi if e["event"] == "pass")
        self.assertEqual((passata["line"], passata["pass"], passata["trace"]), (1, "", "M"))
        ultimo = [e for e in eventi if e["event"] == "progress"][-1]
        self.assertEqual((ultimo["steps"], ultimo["steps_of"], ultimo["fraction"]), (101, 101, 1))
        livelli = [e for e in eventi if e["event"] == "level"]
        self.assertTrue(all(0.15 <= e["frequency_mhz"] <= 1.15 for e in livelli) and livelli)
        self.assertEqual(eventi[-1], {"event": "end", "status": 0, "measure": "M",
                                      "folder": f"{self.dati}/Sweep/M"})  # fmt: skip
        with Peer() as peer:
            esito = self.Orvane(*self.Parole(), peer=peer)
        eventi = self.Eventi(esito)
        riquadri = [e for e in eventi if e["event"] == "box"]
        self.assertEqual([r["answer"] for r in riquadri], ["No", "No"])
        self.assertEqual((esito.codice, eventi[-1]["event"], eventi[-1]["status"]), (1, "end", 1))

    def test_pausa(self):
        """The stream stands still for as long as it was asked to; not a step is lost."""
        with Peer(flussi=[Flusso(pezzi=4, pausa=0.05)]) as peer:
            esito = self.Riesce(*self.Parole("--pause-after", "0.2", "--pause-for", "1"), peer=peer)
        pausa, ripresa = (peer.comandi.index(c) for c in ("#ASPA*", "#ASRE*"))
        self.assertLess(pausa, ripresa)
        self.assertGreaterEqual(peer.tempi[ripresa] - peer.tempi[pausa], 1)
        fasi = [e["phase"] for e in self.Eventi(esito) if e["event"] == "phase"]
        dove = fasi.index("pause")
        self.assertEqual(fasi[dove - 1 : dove + 2], ["sweep", "pause", "sweep"])
        self.assertEqual(self.FileMisura("M", "RS0").read_bytes(), Passi(peer.campioni[0], [0]))
        self.assertEqual(self.FileMisura("M", "RS0").stat().st_size, 101 * 12)

    def test_timer(self):
        """The countdown goes by seconds; a stop in it leaves no file."""
        with Peer() as peer:
            esito = self.Riesce(*self.Parole("--timer", "2"), peer=peer)
            eventi = self.Eventi(esito)
            conto = [e["left_s"] for e in eventi if e["event"] == "timer"]
            self.assertEqual([s for s in conto if s > 0], [2, 1])
            parole = ["--json", "sweep", "--scan", "T", "--name", "N", "--timer", "600"]
            da = len(peer.comandi)
            corsa = self.Avvia(*parole, peer=peer)
            corsa.AspettaDetto('"left_s":599')
            corsa.Segnala()
            esito = corsa.Attendi()
        self.assertEqual(esito.codice, 5, str(esito))
        self.assertFalse((self.dati / "Sweep" / "N").exists())
        self.assertFalse([c for c in peer.comandi[da:] if c.startswith("#SSFD")])

    def test_trigger(self):
        """The port is read until it says 0, and each reading is told."""
        letture = ["UPP=1"] * 3 + ["UPP=0"]
        with Peer(regole={"?UPP": letture}) as peer:
            esito = self.Riesce(*self.Parole("--trigger", "0"), peer=peer)
        visti = [e for e in self.Eventi(esito) if e["event"] == "trigger"]
        self.assertEqual((visti[0]["user_port"], visti[-1]["user_port"]), (1, 0))
        self.assertTrue(all(e["wanted"] == 0 for e in visti))

    def test_domande_al_terminale(self):
        """Where somebody sits, a prompt waits for Enter, and so does a pause without an end."""
        self.Riesce("scan", "set", "T", "1", "--prompt", "Turn the lamp on")
        padrone, terminale = os.openpty()
        self.addCleanup(os.close, padrone)
        detto = b""

        def Leggi(parole):
            nonlocal detto
            fine = time.monotonic() + 60
            while parole not in detto and time.monotonic() < fine:
                if select.select([padrone], [], [], 0.1)[0]:
                    detto += os.read(padrone, 4096)
            self.assertIn(parole, detto)
            detto = detto.split(parole, 1)[1]

        with Peer(flussi=[Flusso(pezzi=4, pausa=0.05)]) as peer:
            processo = subprocess.Popen(
                [PROGRAMMI / "orvane", "--data", self.dati, "--link", "tty:" + peer.percorso,
                 *SWEEP, "--pause-after", "0.2"],
                stdin=terminale, stdout=subprocess.DEVNULL, stderr=terminale,
            )  # fmt: skip
            os.close(terminale)
            Leggi(b"Turn the lamp on (Enter)")
            time.sleep(0.3)
            self.assertFalse([c for c in peer.comandi if c.startswith("#SSFD")])
            os.write(padrone, b"\n")
            Leggi(b"[box] Turn the lamp on -> OK")
            Leggi(b"paused")
            self.assertTrue(peer.fermo)
            os.write(padrone, b"\n")
            Leggi(b"resumed")
            self.assertEqual(processo.wait(60), 0)
        self.assertEqual(self.FileMisura("M", "RS0").stat().st_size, 101 * 12)

    def test_fine_brusca(self):
        """Killed in mid-sweep: whole steps, a header that loads, and a mark until it is accepted."""
        with Peer(flussi=[Flusso(pezzi=4, pausa=0.02)]) as peer:
            corsa = self.Avvia(*SWEEP, peer=peer)
            self.assertTrue(peer.Aspetta(lambda: peer.campioni and len(peer.campioni[0]) > 100))
            self.assertTrue(self.Riesce("archive").out.endswith("\trunning\n"))
            for parole in (("delete", "M"), ("rename", "M", "N"), ("accept", "M")):
                self.assertNotEqual(self.Orvane("archive", *parole, risposta="yes").codice, 0)
            corsa.Segnala(signal.SIGKILL)
            self.assertEqual(corsa.Attendi().codice, -9)
        rs = self.FileMisura("M", "RS0").read_bytes()
        self.assertEqual((len(rs) % 12, rs), (0, Passi(peer.campioni[0], [0])[: len(rs)]))
        righe = self.Riesce("trace", "M").out.splitlines()
        self.assertEqual(len(righe) - 1, len(rs) // 12)

        def Voce():
            voce = json.loads(self.Riesce("--json", "archive").out)[0]
            return voce["readable"], voce["incomplete"]

        self.assertEqual(Voce(), (True, True))
        self.assertTrue(self.Riesce("archive").out.endswith("\tincomplete\n"))
        self.Riesce("archive", "accept", "M")
        self.assertEqual(Voce(), (True, False))
        self.assertEqual(self.FileMisura("M", "RS0").read_bytes(), rs)
        self.assertEqual(self.Orvane("archive", "accept", "N").codice, 4)


if __name__ == "__main__":
    Esegui()
