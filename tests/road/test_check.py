"""The look at a scan table before a run, over receivers of two families: what is found, in which
order, and that nothing is touched. The expectations are stated line by line, apart from the program's
own rules."""

import json

from comune import Esegui, InParallelo, ProvaStrada, ScanLine, ScanRecord
from peer import Peer

IDENTIFICA = ("#ASBK*", "#?IDN*", "#?BCD*", "#?MIL*", "#?CRA*", "#?S/N*", "#?3PR*", "#?CO6*")
START, STOP, TENUTA, ATT = "Start [MHz]", "Stop [MHz]", "Hold Time", "Min Att"


def Banda(start, stop, rbw, passo, detector=(0,), **campi):
    return ScanLine(start, stop, passo, rbw, detector, **campi)


class ProvaCheck(ProvaStrada):
    def Esamina(self, dati, modello, *righe, opzioni=(), risposta=None, regole=None):
        pannelli = dati / "Panels"
        pannelli.mkdir(exist_ok=True)
        (pannelli / "T.EST").write_bytes(ScanRecord(*righe))
        prima = {p: p.read_bytes() for p in dati.rglob("*") if p.is_file()}
        with Peer(modello, regole=regole or {}) as peer:
            esito = self.Orvane("--json", "check", "--scan", "T", *opzioni, peer=peer, dati=dati,
                                risposta=risposta)  # fmt: skip
        self.assertIn(esito.codice, (0, 1), str(esito))
        # Nothing is written, and nothing said but the questions of who is there.
        self.assertEqual({p: p.read_bytes() for p in dati.rglob("*") if p.is_file()}, prima)
        self.assertEqual([c for c in peer.comandi if c not in IDENTIFICA], [])
        documento = json.loads(esito.out)
        self.assertEqual(documento["refused"], esito.codice == 1)
        return documento, esito

    def test_famiglie(self):
        """Each: receiver, lines, answer; then check, cells and outcome of every finding, in order."""
        senza_sel = {"PreSel": 0}
        casi = {
            "a table in order": ("5520", [Banda(0.15, 30, 2, 0.005, (0, 1, 3))], None, []),
            # Attenuation of 40 dB is too much here, and a turned span leaves no step.
            "5520": ("5520", [Banda(0.15, 30, 2, 0.005, MinAtt=4), Banda(40, 30, 1, 0.1)], None, [
                (7, [], "asked"),
                (8, [(2, START), (2, STOP)], "stop"),
                (14, [(2, START), (2, STOP)], "stop"),
                (16, [(1, ATT)], "stop")]),
            "3360": ("3360/01", [Banda(0.15, 1, 2, 0.005, (1,), **senza_sel),
                                 Banda(0.5, 2, 2, 0.005, (0, 5), HoldTime=1000, **senza_sel)], "yes", [
                (17, [(1, START), (1, STOP), (2, START), (2, STOP)], "asked"),
                (33, [(1, TENUTA)], "corrected")]),
        }  # fmt: skip

        def Corpo(nome):
            modello, righe, risposta, attesi = casi[nome]
            dati = self.Sottocartella(nome.replace(" ", "-"))
            documento, esito = self.Esamina(dati, modello, *righe, risposta=risposta)
            trovati = [(f["check"], [(c["line"], c["column"]) for c in f["cells"]], f["outcome"])
                       for f in documento["findings"]]  # fmt: skip
            self.assertEqual(trovati, attesi, str(esito))
            ferme = [f for f in documento["findings"] if f["refuses"]]
            self.assertEqual(bool(ferme), documento["refused"])

        InParallelo(self, casi, Corpo)

    def test_risposte(self):
        """A question is answered as the command line says, and the answer decides."""
        righe = [Banda(0.15, 1, 2, 0.005), Banda(0.5, 2, 2, 0.005)]
        for risposta, codice in ((None, 1), ("no", 1), ("yes", 0)):
            documento, esito = self.Esamina(self.dati, "5520", *righe, risposta=risposta)
            self.assertEqual(esito.codice, codice)
            self.assertEqual([f.get("answer") for f in documento["findings"]], [risposta or "no"])
            self.assertEqual(documento["findings"][0]["words"],
                             "Warning: Overlapping frequencies.\nDo you want to continue?")  # fmt: skip

    def test_nome(self):
        """With a name the measure's place is looked at too, and left as it is."""
        (self.dati / "Sweep" / "M").mkdir(parents=True)
        riga = Banda(0.15, 30, 2, 0.005)
        for risposta, nome in ((None, None), ("yes", "M_000")):
            documento, _ = self.Esamina(self.dati, "5520", riga, risposta=risposta,
                                        opzioni=("--name", "M"))  # fmt: skip
            self.assertEqual(documento.get("measure"), nome)
            self.assertEqual(documento["refused"], nome is None)

    def test_righe_di_testo(self):
        """Without JSON: check, name, line, column, words, outcome by tabs, and the verdict."""
        self.Tabella("T", "--band B --min-att 50")
        with Peer("5520") as peer:
            esito = self.Orvane("check", "--scan", "T", peer=peer)
        self.assertEqual(esito.codice, 1, str(esito))
        self.assertEqual(esito.out, "16\tControllaMinAttMax\t1\tMin Att\tKRV 5520 Max Attenuation is "
                                    "35 dB. Cannot set Min Att\tstop\nrefused\n")  # fmt: skip
        for parole, codice in ((("check",), 2), (("check", "--scan", "Absent"), 4),
                               (("check", "--scan", "T", "--name", "a.b"), 2)):  # fmt: skip
            self.assertEqual(self.Orvane(*parole).codice, codice)


if __name__ == "__main__":
    Esegui()
