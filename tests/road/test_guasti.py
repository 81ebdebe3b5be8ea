"""What goes wrong in the field: a receiver that refuses, falls silent or goes away, the user who
stops, disks and panels at fault. The program says so, ends as documented, and the files are whole."""

import random
import struct
import time

from comune import BREVE, Esegui, InParallelo, Passi, ProvaStrada, ScanLine, ScanRecord, SWEEP
from peer import Flusso, Peer


class ProvaGuasti(ProvaStrada):
    def Sweep(self, dati=None, **opzioni):
        return self.Orvane(*SWEEP, dati=dati, **opzioni)

    def MisuraIntera(self, campioni, detector, dati=None, nome="M"):
        """The header is whole, and the trace is a run of whole steps of what was sent."""
        self.assertEqual(self.FileMisura(nome, "KSH", dati).stat().st_size, 17770)
        rs = self.FileMisura(nome, "RS0", dati).read_bytes()
        self.assertEqual(len(rs) % 12, 0)
        self.assertEqual(rs, Passi(campioni, detector)[: len(rs)])
        return len(rs) // 12

    def test_silenzio_prima_dei_dati(self):
        """In each phase: the words of what was asked, status 3, and next to no processor time."""
        casi = {"SCFA": "Disabling conv factor", "SDIS": "Dynamics - Ref Level",
                "?BAT": "Read battery", "?UHT": "Read Hold Time"}  # fmt: skip

        def Corpo(comando):
            dati = self.Sottocartella(comando)
            self.Tabella("T", BREVE, dati=dati)
            with Peer(regole={comando: None}) as peer:
                esito = self.Sweep(dati, peer=peer, pazienza=0.5)
            self.assertEqual(esito.codice, 3, str(esito))
            self.assertIn(f"Error {casi[comando]}\n", esito.err)
            self.assertGreaterEqual(len([c for c in peer.comandi if c[1:5] == comando]), 4)
            self.assertLess(esito.processore, 0.1 * esito.secondi)
            if comando == "?UHT":  # all data had come
                self.assertEqual(self.MisuraIntera(peer.campioni[0], [0], dati), 101)

        InParallelo(self, casi, Corpo)

    def test_dati_senza_fine(self):
        """More steps than the line has: all are kept, and the run ends with the mark."""
        self.Tabella("T", BREVE)
        with Peer(flussi=[Flusso(passi=500)]) as peer:
            esito = self.Sweep(peer=peer)
        self.assertEqual(esito.codice, 0, str(esito))
        self.assertEqual(self.MisuraIntera(peer.campioni[0], [0]), 500)

    def test_ctrl_c(self):
        """Stop: the receiver is told, the measure stands and can be shown."""
        self.Tabella("T", "--band B --detector P,Q")
        with Peer(flussi=[Flusso(tieni=True, pezzi=101, pausa=0.01)]) as peer:
            corsa = self.Avvia(*SWEEP, peer=peer)
            self.assertTrue(peer.Aspetta(lambda: peer.campioni and len(peer.campioni[0]) > 4000))
            corsa.Segnala()
            esito = corsa.Attendi()
        self.assertGreater(self.MisuraIntera(peer.campioni[0], [0, 1]), 500)
        self.assertEqual(esito.codice, 5, str(esito))
        self.assertIn("stopped", esito.err)
        self.assertEqual(esito.out, f"{self.dati}/Sweep/M\n")
        dopo = peer.comandi[[c[:5] for c in peer.comandi].index("#SSFD") + 1 :]
        self.assertEqual(dopo[0], "#ASBK*")
        self.assertGreater(len(self.Riesce("trace", "M").out.splitlines()), 500)
        self.assertIn("M\t", self.Riesce("archive").out)

    def test_fermata_mentre_tace(self):
        """The receiver does not answer and the user wants out, twice: that ends it soon."""
        self.Tabella("T", BREVE)
        with Peer(regole={"SDIS": None}) as peer:
            corsa = self.Avvia(*SWEEP, peer=peer)
            self.assertTrue(peer.Aspetta(lambda: any(c.startswith("#SDIS") for c in peer.comandi)))
            corsa.Segnala()
            time.sleep(0.2)
            corsa.Segnala()
            esito = corsa.Attendi()
        self.assertEqual(esito.codice, 5, str(esito))
        self.assertFalse((self.dati / "Sweep" / "M" / "M.RS0").exists())

    def test_disco_pieno_per_le_uscite(self):
        """Standard output that takes nothing is a failure of a file too."""
        self.Tabella("T", BREVE)
        with open("/dev/full", "w") as pieno:
            self.assertEqual(self.Orvane("scan", "show", "T", uscita=pieno).codice, 4)

    def test_pannelli_rovinati(self):
        """EPN and EAM of every wrong length, and of random bytes: no crash; a run runs, or is refused
        for what a random set-up asks of the receiver."""
        caso = random.Random(11)
        casi = [(n, caso.randbytes(n)) for n in (0, 1, 235, 2095, 2096, 5093, 5094, 20000)]
        casi += [("zeros", bytes(5094)), ("ones", b"\xff" * 5094)]

        def Corpo(voce):
            nome, byte = voce
            dati = self.Sottocartella(f"{nome}".replace(" ", "-"))
            self.Tabella("T", BREVE, dati=dati)
            for file in ("Untitled.EPN", "Untitled.EAM", "Untitled.PTH"):
                (dati / "Panels" / file).write_bytes(byte)
            with Peer() as peer:
                esito = self.Sweep(dati, peer=peer, risposta="yes")
            if esito.codice == 1 and len(byte) > 2542:
                self.assertIn("orvane: refused: ", esito.err)
            else:
                self.assertEqual(esito.codice, 0, str(esito))
                rs = self.FileMisura("M", "RS0", dati).read_bytes()
                self.assertEqual(rs, Passi(peer.campioni[0], [0]))
            for file, intero in (("EPN", 2096), ("EAM", 5094)):
                detto = f"Untitled.{file} -> OK" in esito.err
                self.assertEqual(detto, len(byte) < intero, esito.err)

        InParallelo(self, casi, Corpo)

    def test_tabelle_rovinate(self):
        """A scan table torn at any length, or of random bytes, is refused or repaired, never worse."""
        caso = random.Random(13)
        buona = ScanRecord(ScanLine(0.15, 1.15, 0.01, 2, AutoStep=0))
        casi = [(n, buona[:n]) for n in (0, 1200, 12675)]
        casi += [(f"seed {i}", caso.randbytes(12676)) for i in range(4)]
        for campo in (float("nan"), 1e300):
            rotta = bytearray(buona)
            struct.pack_into("<d", rotta, 12, campo)
            struct.pack_into("<d", rotta, 24, 5e-324)
            casi.append((str(campo), bytes(rotta)))

        def Corpo(voce):
            nome, byte = voce
            dati = self.Sottocartella(f"{nome}".replace(" ", "-"))
            (dati / "Panels").mkdir()
            (dati / "Panels" / "T.EST").write_bytes(byte)
            mostra = self.Orvane("scan", "show", "T", dati=dati)
            self.assertEqual(mostra.codice, 4 if len(byte) < 12676 else 0, str(mostra))
            with Peer(flussi=[Flusso(passi=5)]) as peer:
                esito = self.Sweep(dati, peer=peer, pazienza=0.5)
            self.assertIn(esito.codice, (4,) if len(byte) < 12676 else (0, 1), str(esito))

        InParallelo(self, casi, Corpo)

    def test_misure_rovinate(self):
        """Headers and traces torn anywhere: the archive lists them, the trace says what is wrong."""
        self.Tabella("T", BREVE)
        with Peer() as peer:
            self.Riesce(*SWEEP, peer=peer)
        ksh, rs = self.FileMisura("M", "KSH"), self.FileMisura("M", "RS0")
        header, traccia = ksh.read_bytes(), rs.read_bytes()
        for n in (0, 12676, 17769):
            with self.subTest(lunghezza=n):
                ksh.write_bytes(header[:n])
                esito = self.Orvane("trace", "M")
                self.assertEqual(esito.codice, 4, str(esito))
                self.assertRegex(esito.err, r"Failed loading.*M\.KSH")
                self.assertIn("header damaged", self.Riesce("archive").out)
        ksh.write_bytes(header)
        for n in (0, 11, 12, len(traccia) - 1):
            with self.subTest(traccia=n):
                rs.write_bytes(traccia[:n])
                righe = self.Riesce("trace", "M").out.splitlines()
                self.assertEqual(len(righe) - 1, n // 12)
                self.assertIn(f"\t{n // 12} steps", self.Riesce("archive").out)


if __name__ == "__main__":
    Esegui()
