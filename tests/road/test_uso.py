"""Wrong use of the command line: status, words, and nothing written."""

import struct

from comune import Esegui, ProvaStrada

# words of the command line: status, what standard error must say
CASI = [
    ([], 2, "wants a verb"),
    (["dance"], 2, 'unknown verb "dance"'),
    (["--answer", "maybe", "archive"], 2, "--answer wants yes or no"),
    (["--patience", "long", "archive"], 2, "--patience wants seconds"),
    (["--link", "smoke", "identify"], 2, 'unknown link "smoke"'),
    (["--link", "com:0", "identify"], 2, "com: wants a port number"),
    (["--link", "tty:", "identify"], 2, "tty: wants a path"),
    (["--link", "sim:toaster", "identify"], 2, "toaster"),
    (["identify", "now"], 2, "takes no further words"),
    (["archive", "all"], 2, "unknown word"),
    (["ports", "all"], 2, "takes no further words"),
    (["scan", "paint", "X"], 2, "move, copy or clear?"),
    (["scan", "show"], 2, "wants the name of a scan table"),
    (["scan", "show", "Missing"], 4, "there is no scan table Panels\\Missing.EST"),
    (["scan", "add", "X"], 2, "wants --band, or --start below --stop"),
    (["scan", "add", "X", "--band", "Z"], 2, 'unknown band "Z"'),
    (["scan", "add", "X", "--start", "2", "--stop", "1"], 2, "--start below --stop"),
    (["scan", "add", "X", "--start", "0.15", "--stop", "inf"], 2, "--stop"),
    (["scan", "add", "X", "--band", "B", "--rbw", "7 kHz"], 2, "--rbw wants a filter"),
    (["scan", "add", "X", "--band", "B", "--detector", "P,Z"], 2, "--detector wants"),
    (["scan", "add", "X", "--band", "B", "--min-att", "15"], 2, "--min-att wants"),
    (["scan", "add", "X", "--band", "B", "--step", "0"], 2, "--step"),
    (["scan", "add", "X", "--band", "B", "--preamp", "maybe"], 2, "--preamp wants on or off"),
    (["scan", "add", "../up", "--band", "B"], 2, "is no name for a scan table"),
    (["sweep"], 2, "wants --scan NAME"),
    (["sweep", "--scan", "Missing"], 4, "there is no scan table"),
    (["sweep", "--scan", "../X"], 2, "is no valid name"),
    (["sweep", "--scan", "X", "--name", "a.b"], 2, "is no valid name"),
    (["sweep", "--scan", "X", "--timer", "0"], 2, "--timer wants seconds"),
    (["sweep", "--scan", "X", "--timer", "1.5"], 2, "--timer wants whole seconds"),
    (["sweep", "--scan", "X", "--trigger", "2"], 2, "--trigger wants 0 or 1"),
    (["sweep", "--scan", "X", "--timer", "3", "--trigger", "1"], 2, "exclude each other"),
    (["sweep", "--scan", "X", "--pause-for", "3"], 2, "--pause-for wants --pause-after"),
    (["sweep", "--scan", "X", "--pause-after", "3"], 2, "wants --pause-for where there is no terminal"),
    (["sweep", "--scan", "X", "--pause-after", "nan", "--pause-for", "1"], 2, "wants seconds"),
]


class ProvaUso(ProvaStrada):
    def test_uso_errato(self):
        for parole, codice, dice in CASI:
            with self.subTest(parole=parole):
                esito = self.Orvane(*parole)
                self.assertEqual(esito.codice, codice, str(esito))
                self.assertIn(dice, esito.err)
                self.assertEqual(esito.out, "")
        # Not one of them has left anything behind.
        self.assertEqual(list(self.dati.iterdir()), [])
        self.assertEqual(self.Orvane("archive", dati=self.dati / "none").codice, 4)
        self.assertIn("\n  identify ", self.Riesce("--help").out)

    def test_link_simulato(self):
        """Words of the simulated receiver stand behind a model, or without one."""
        casi = {
            "sim": ("5520", "SIM0000001"), "sim:K6X": ("5520/K6X", "SIM0000001"),
            "sim,seed=7": ("5520", "SIM0000007"), "sim:,seed=7": ("5520", "SIM0000007"),
            "sim:5520+5570,fw=1.50,seed=3": ("5570", "SIM0000003"),
        }  # fmt: skip
        for link, (modello, seriale) in casi.items():
            with self.subTest(link=link):
                righe = self.Riesce("--link", link, "identify").out.splitlines()
                self.assertEqual(righe[0], "model: " + modello)
                self.assertEqual(righe[2], "serial: " + seriale)

    def test_undici_righe(self):
        self.Tabella("Ten", *["--band B"] * 10)
        esito = self.Orvane("scan", "add", "Ten", "--band", "B")
        self.assertEqual(esito.codice, 2)
        self.assertIn("a scan table holds ten lines at most", esito.err)
        self.assertEqual(len(self.Riesce("scan", "show", "Ten").out.splitlines()), 10)

    def test_tabelle(self):
        """A composite band brings its rows, a table is listed, cleared and found in any case."""
        self.Tabella("Cond", "/TIMELOG --band a+b /INFOMOD --detector q,p")  # switches anywhere
        righe = self.Riesce("scan", "show", "cond").out.splitlines()
        self.assertEqual([r.split("\t")[1:3] for r in righe], [["0.009", "0.15"], ["0.15", "30"]])
        self.assertTrue(all("P Q" in r for r in righe), righe)
        self.assertEqual(self.Riesce("scan", "list").out, "Cond\n")
        self.assertEqual((self.dati / "Panels" / "Cond.EST").stat().st_size, 12676)
        self.Riesce("scan", "clear", "Cond")
        self.assertEqual(self.Riesce("scan", "show", "Cond").out, "")

    def test_nomi_con_spazi(self):
        """Blanks around a name are not part of it, and nothing but blanks is no name."""
        self.Tabella(" Due parole ", "--start 0.15 --stop 0.65")
        self.assertEqual(self.Riesce("scan", "list").out, "Due parole\n")
        self.Riesce("scan", "show", "Due parole")
        self.Riesce("--link", "sim", "sweep", "--scan", "Due parole ", "--name", " Mäß 1")
        self.assertGreater(len(self.Riesce("trace", "Mäß 1 ").out.splitlines()), 100)
        for nome in ("   ", "a\nb", "a/b", ".."):
            self.assertEqual(self.Orvane("scan", "add", nome, "--band", "B").codice, 2, nome)

    def test_radice_nuova(self):
        """Where no panel says anything the link is USB, also behind a run over another one."""
        self.Tabella("T", "--start 0.15 --stop 0.65")
        for _ in range(2):
            esito = self.Orvane("identify")
            self.assertEqual(esito.codice, 3, str(esito))
            self.assertIn("USB", esito.err)
            self.Riesce("--link", "sim", "--answer", "yes", "sweep", "--scan", "T")
        env = (self.dati / "Panels" / "Untitled.EPN").read_bytes()
        self.assertEqual(struct.unpack_from("<2h", env, 234), (1, 1))


if __name__ == "__main__":
    Esegui()
