"""What a scan table makes the console say, listed without saying it: pass by pass, by the networks
and antennas of the set-up."""

import json

from comune import Campo, Esegui, GENERATORE, PRIMA, ProvaStrada, ScanLine, ScanRecord, Testo
from peer import Peer

IDENTIFICA = ("#?IDN*", "#?BCD*", "#?MIL*", "#?CRA*", "#?3PR*")
CORSA = PRIMA + GENERATORE
INGRESSO = ["#SSTP*", "#S3PRC*"]
COMANDO = "#SSFD 150000;30000000;5000;P;10;6;10;OFF;ON;0*"


class ProvaCommand(ProvaStrada):
    def Prepara(self, collegato, *righe):
        setup = bytearray(5094)
        Campo(setup, 3000, "h", collegato)
        pannelli = self.dati / "Panels"
        pannelli.mkdir(exist_ok=True)
        (pannelli / "Untitled.EAM").write_bytes(setup)
        (pannelli / "T.EST").write_bytes(ScanRecord(*righe))

    def test_passate(self):
        """The passes of a line without selections, and what switches each; the receiver is asked who
        it is, and told nothing."""
        passate = {1: [("L1", ["#SUPP0*"], ""), ("L2", ["#SUPP4*"], "")],
                   3: [("V", [], "Switch antenna to Vertical"),
                       ("H", [], "Switch antenna to Horizontal")]}  # fmt: skip
        for collegato, attese in passate.items():
            self.Prepara(collegato, ScanLine(0.15, 30, 0.005, 2, HoldTime=10))
            with Peer("K3X low") as peer:
                esito = self.Riesce("--json", "command", "--scan", "T", peer=peer)
            self.assertEqual([c for c in peer.comandi if c not in IDENTIFICA], [])
            documento = json.loads(esito.out)
            self.assertEqual(documento["run"], CORSA)
            self.assertEqual(
                [(p["line"], p["pass"], p["commands"], p["prompt"]) for p in documento["passes"]],
                [(1, nome, comandi + INGRESSO + [COMANDO], chiede) for nome, comandi, chiede in attese])  # fmt: skip

    def test_unita_a_mano(self):
        """Each line behind the words for the unit that it needs, and as that unit takes it."""
        self.Prepara(0, ScanLine(0.15, 30, 0.005, 2, HoldTime=10), ScanLine(30, 300, 0.1, 1),
                     ScanLine(6000, 18000, 0.25, 0), ScanLine(1, 2, 0.005, 2))  # fmt: skip
        with Peer("5520") as peer:
            esito = self.Orvane("command", "--scan", "T", peer=peer)
        accendi = ("[box] Switch OFF 5520. Switch ON the extension unit ({}), wait a couple of seconds, "
                   "then switch back ON 5520 and click OK.")  # fmt: skip
        self.assertEqual(esito.out.split("\n"), [
            "run", *CORSA, "line 1", COMANDO,
            "line 2", accendi.format("5540 or 5570"),
            "#SSFD 30000000;300000000;100000;P;0;10;10;OFF;ON;0*",
            "line 3", accendi.format("5590"),
            "#SSFD 6000000000;18000000000;250000;P;0;9;10;OFF;OFF;0*",
            "line 4", "[box] Switch OFF 5520 and 5590 Then switch back ON 5520 only and click OK.",
            "#SSFD 1000000;2000000;5000;P;0;6;10;OFF;ON;0*", ""], str(esito))  # fmt: skip

    def test_corretto(self):
        """What the checks of a run would put right is as they would leave it."""
        riga = ScanLine(0.15, 30, 0.005, 2, (1,), HoldTime=10, AutoStep=0)
        for modello, tenuta in (("5520", 10), ("5520F", 500)):
            self.Prepara(0, riga)
            eam = bytearray(5094)
            Campo(eam, 2540, "h", 1)  # pulse limiter
            (self.dati / "Panels" / "Untitled.EAM").write_bytes(eam)
            with Peer(modello) as peer:
                righe = self.Riesce("command", "--scan", "T", peer=peer).out.split("\n")
            self.assertIn("#SPLMOFF*", righe)
            self.assertEqual([r.split(";")[4] for r in righe if "#SSFD" in r], [str(tenuta)])
            self.assertEqual((self.dati / "Panels" / "Untitled.EAM").read_bytes(), bytes(eam))

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
