"""Pictures of a stored measure by the real program: each format, and the ways in which none comes."""

import struct

from comune import Esegui, ProvaStrada, ScanLine, ScanRecord

SETUP = bytes(5094)

# words behind the measure: what standard error must say
SBAGLIATE = [
    ([], "--out wants a file that ends in"),
    (["--out", "a.tif"], "--out wants a file that ends in"),
    (["--out", "a.png", "--size", "900"], "--size wants WIDTHxHEIGHT"),
    (["--out", "a.png", "--size", "199x400"], "--size wants WIDTHxHEIGHT"),
    (["--out", "a.png", "--dark", "--print"], "one of --print, --dark and --light"),
    (["--out", "a.png", "--peaks", "101"], "--peaks wants a number up to 100"),
    (["--out", "a.png", "--dynamics", "90"], "--dynamics wants"),
    (["--out", "a.png", "--reference", "1.5"], "--reference wants whole dB"),
    (["--out", "a.png", "--from", "0"], "--from wants a frequency"),
    (["--out", "a.png", "--from", "4", "--to", "4"], "--from must lie below --to"),
    (["--out", "a.png", "--detector", "P", "--detector", "Q"], "M has no QPeak"),
]


class ProvaPicture(ProvaStrada):
    def setUp(self):
        super().setUp()
        misura = self.dati / "Sweep" / "M"
        misura.mkdir(parents=True)
        (misura / "M.KSH").write_bytes(ScanRecord(ScanLine(1, 5, 2, 1)) + SETUP)
        (misura / "M.RS0").write_bytes(
            b"".join(struct.pack("<6h", v, *[-20000] * 5) for v in (3000, 6000, 3000, 2000, 1000))
        )

    def test_formati(self):
        """Each: name, first bytes, and the size as the file tells it."""
        casi = {
            "a.PNG": (b"\x89PNG\r\n", lambda b: struct.unpack(">II", b[16:24])),
            "a.bmp": (b"BM", lambda b: struct.unpack("<II", b[18:26])),
            "a.jpeg": (b"\xff\xd8\xff", None),
            "a.svg": (b"<?xml", None),
        }
        for nome, (inizio, misure) in casi.items():
            with self.subTest(nome=nome):
                file = self.dati / nome
                esito = self.Riesce("picture", "M", "--out", str(file), "--size", "640x400",
                                    "--peaks", "2")  # fmt: skip
                self.assertEqual((esito.out, esito.err), ("", ""))
                byte = file.read_bytes()
                self.assertTrue(byte.startswith(inizio), byte[:20])
                if misure:
                    self.assertEqual(misure(byte), (640, 400))
                if nome == "a.bmp":
                    self.assertEqual(struct.unpack("<H", byte[28:30]), (24,))
        # The words of the picture stand in its drawing, the settings among them.
        disegno = (self.dati / "a.svg").read_text()
        for parole in ("dBm", "Start [MHz]", "Courier New"):
            self.assertIn(parole, disegno)
        self.Riesce("picture", "M", "--out", str(self.dati / "a.svg"), "--no-settings")
        self.assertNotIn("Start [MHz]", (self.dati / "a.svg").read_text())
        # The reference is the top of the axis: from -20 dBm down, each 20 dB by 0 dBuV.
        self.assertNotIn("-27 dBm", disegno)
        self.Riesce("picture", "M", "--out", str(self.dati / "a.svg"), "--reference", "-20")
        disegno = (self.dati / "a.svg").read_text()
        self.assertIn("-27 dBm", disegno)
        self.assertNotIn(">-7 dBm", disegno)

    def test_rifiuti(self):
        prima = sorted(self.dati.rglob("*"))
        for parole, dice in SBAGLIATE:
            with self.subTest(parole=parole):
                esito = self.Orvane("picture", "M", *parole)
                self.assertEqual(esito.codice, 2, str(esito))
                self.assertIn(dice, esito.err)
        esito = self.Orvane("picture", "Missing", "--out", str(self.dati / "a.png"))
        self.assertEqual(esito.codice, 4, str(esito))
        # A directory that is none, and one in the file's place.
        dove = self.dati / "there.png"
        dove.mkdir()
        for file in (self.dati / "none" / "a.png", dove):
            esito = self.Orvane("picture", "M", "--out", str(file))
            self.assertEqual(esito.codice, 4, str(esito))
            self.assertIn(f"Cannot open file {file}", esito.err)
        self.assertEqual(sorted(self.dati.rglob("*")), sorted([*prima, dove]))


if __name__ == "__main__":
    Esegui()
