"""What a scan table makes the console say, listed without saying it: pass by pass, by the networks
and antennas of the set-up."""

import json

from comune import Campo, Esegui, ProvaStrada, ScanLine, ScanRecord, Testo
from peer import Peer

IDENTIFICA = ("#?IDN*", "#?BCD*", "#?MIL*", "#?CRA*", "#?3PR*")
CORSA = ["#SCFA -1*", "#SDIS80;65*", "#SPLMOFF*", "#STGSOFF*", "#STGL0*", "#STGTOFF*", "#STGF0e3*"]
INGRESSO = ["#SSTP*", "#S3PRC*"]
COMANDO = "#SSFD 150000;30000000;5000;P;10;6;10;OFF;ON;0*"


class ProvaCommand(ProvaStrada):
    def Prepara(self, collegato, riga):
        setup = bytearray(5094)
        Campo(setup, 3000, "h", collegato)
        pannelli = self.dati / "Panels"
        pannelli.mkdir(exist_ok=True)
        (pannelli / "Untitled.EAM").write_bytes(setup)
        (pannelli / "T.EST").write_bytes(ScanRecord(riga))

    def test_passate(self):
        """By what is attached: the passes of a line without selections, and what switches each."""
        passate = {
            0: [("", [])],
            1: [("L1", ["#SUPP0*"]), ("L2", ["#SUPP4*"])],
            3: [("V", []), ("H", [])],
            4: [(nome, [f"#SUPP{i}*"]) for i, nome in enumerate("WXYZ")],
            6: [("L1", ["#SLSN1*"]), ("L2", ["#SLSN2*"])],
        }
        for collegato, attese in passate.items():
            self.Prepara(collegato, ScanLine(0.15, 30, 0.005, 2, HoldTime=10))
            with Peer("K3X low") as peer:
                esito = self.Orvane("--json", "command", "--scan", "T", peer=peer)
            self.assertEqual(esito.codice, 0, str(esito))
            # The receiver is asked who it is, and told nothing.
            self.assertEqual([c for c in peer.comandi if c not in IDENTIFICA], [])
            documento = json.loads(esito.out)
            self.assertEqual(documento["run"], CORSA)
            self.assertEqual(
                [(p["line"], p["pass"], p["commands"]) for p in documento["passes"]],
                [(1, nome, comandi + INGRESSO + [COMANDO]) for nome, comandi in attese])  # fmt: skip
            chiesti = [p["prompt"] for p in documento["passes"]]
            self.assertEqual(
                chiesti, ["Switch antenna to Vertical", "Switch antenna to Horizontal"]
                if collegato == 3 else [""] * len(attese))  # fmt: skip

    def test_testo_e_rifiuti(self):
        riga = bytearray(ScanLine(0.15, 30, 0.005, 2, HoldTime=10))
        self.Prepara(0, riga)
        with Peer("K3X low") as peer:
            self.assertEqual(self.Orvane("command", "--scan", "T", peer=peer).out.split("\n"),
                             ["run", *CORSA, "line 1", *INGRESSO, COMANDO, ""])  # fmt: skip
        Campo(riga, 20, "h", 1)
        Testo(riga, 32, 60, "Spots")
        self.Prepara(0, riga)
        with Peer("K3X low") as peer:
            esito = self.Orvane("command", "--scan", "T", peer=peer)
        self.assertEqual(esito.codice, 1, str(esito))
        self.assertIn("[box] Frequency table Spots  NOT FOUND", esito.err)
        for parole, codice in ((("command",), 2), (("command", "--scan", "Absent"), 4)):
            self.assertEqual(self.Orvane(*parole).codice, codice)


if __name__ == "__main__":
    Esegui()
