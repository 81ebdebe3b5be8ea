"""Reports of a measure that is written here byte for byte, against texts that are computed here from
the documented layouts and rules alone."""

import math
import os
import random
import struct
import time
from html.parser import HTMLParser

from comune import (Campo, Curva, Esegui, f32, NESSUN_LIVELLO, ProvaStrada, ScanLine, ScanRecord,
                    Testo, Valore)  # fmt: skip

NOMI = ["Peak", "QPeak", "Rms", "Avg", "Rms-Avg", "C-Avg"]
UNITA = {"dBm": -10700, "dBµV": 0, "dBµA": -3400, "dBpW": -1700, "dBµV/m": 0, "dBµA/m": -5150,
         "dBpT": -4950}  # fmt: skip
LIMITI = {
    "QP mains": [(0.5e6, 6600), (5e6, 5600), (5e6, 6000), (31e6, 6000)],
    "A long limit name": [(0.15e6, 5000), (31e6, 5000)],
    "Short": [(1e6, 4000), (2e6, 7000)],
}
FATTORI = {"Lisn": [(0.15e6, 1000), (5e6, 1150), (20e6, 900), (32e6, 1000)],
           "Cable loss dB": [(1e6, 50), (10e6, 120), (12e6, 130)]}  # fmt: skip
SOLO = "Short"
LETTO = time.mktime((2026, 5, 17, 14, 3, 9, 0, 0, -1))


def Numero(cent):
    return "---" if cent is None else f"{'-' * (cent < 0)}{abs(cent) // 100}.{abs(cent) % 100:02}".rjust(7)


class Misura:
    """Two lines that overlap, Peak and Avg; the level of a sample is its own, so that rows tell. With
    positions each sample has a mast and a table, and the second limit alone is on."""

    def __init__(self, seme, posizioni=False):
        caso = random.Random(seme)
        self.righe, self.posizioni = [], posizioni
        for start, stop, step in ((0.15, 3, 0.05), (2, 30, 0.25)):
            campioni = []
            for k in range(int((stop - start) / step) + 1):
                passo = [NESSUN_LIVELLO] * 6 + [100 + k % 301, k % 360]
                passo[0] = caso.randint(3500, 7500)
                passo[3] = passo[0] - caso.randint(0, 1500) if caso.random() < 0.9 else NESSUN_LIVELLO
                campioni.append((start + k * step, passo))
            self.righe.append((start, stop, step, campioni))
        # Exactly at a limit and at a margin below, and a hundredth of a dB short of both.
        for linea, k, detector, cent in ((1, 40, 0, 6000), (1, 41, 0, 5999), (0, 20, 3, 5450),
                                         (0, 21, 3, 5449)):  # fmt: skip
            self.righe[linea][3][k][1][detector] = cent

    def Scrivi(self, cartella):
        (cartella / "Limits").mkdir(parents=True)
        (cartella / "Factors").mkdir()
        setup = bytearray(5094)
        for scarto, larghezza, testo in ((4226, 30, "1.0 (May 2026)"), (4256, 30, "2.15"), (4286, 10, "ABC"),
                                         (4308, 12, "5520")):  # fmt: skip
            Testo(setup, scarto, larghezza, testo)
        Campo(setup, 2998, "h", 1)
        if self.posizioni:
            Campo(setup, 1310, "h", 1)
            Testo(setup, 1388, 60, SOLO)
            Campo(setup, 3000, "h", 5)
        linee = [ScanLine(*r[:3], 2, (0, 3)) for r in self.righe]
        nome = cartella.name
        (cartella / f"{nome}.KSH").write_bytes(ScanRecord(*linee) + setup)
        for i, riga in enumerate(self.righe):
            rs = cartella / f"{nome}.RS{i}"
            rs.write_bytes(b"".join(struct.pack("<6h", *p[:6]) for _, p in riga[3]))
            if self.posizioni:
                tm = b"".join(struct.pack("<2h", *p[6:]) for _, p in riga[3])
                (cartella / f"{nome}.TM{i}").write_bytes(tm)
            os.utime(rs, (LETTO + i, LETTO + i))
        for sotto, estensione, tabelle in (("Limits", "5SL", LIMITI), ("Factors", "5SC", FATTORI)):
            for nome, punti in tabelle.items():
                (cartella / sotto / f"{nome}.{estensione}").write_bytes(Curva(punti))

    def Traccia(self, detector):
        """One sample a frequency: the higher value of the detector, on a tie the earlier line."""
        punti = {}
        for _, _, _, campioni in self.righe:
            for mhz, passo in campioni:
                chiave = round(mhz, 9)
                if chiave not in punti or passo[detector] > punti[chiave][1][detector]:
                    punti[chiave] = (mhz, passo)
        return [punti[k] for k in sorted(punti)]


class Report:
    """The rows that a report must have."""

    def __init__(self, misura, tipo, detector, margine, limiti, fattori, unita):
        self.margine, self.unita, off = margine, unita, UNITA[unita]
        self.nome = "Tower" if misura.posizioni else "Motor"
        d1, d2 = detector
        # A limit that is alone is held against the detector of the second one.
        del_limite = [d1, d1 if tipo == "1det" else d2][-len(limiti) :]
        self.righe = []
        for mhz, passo in misura.Traccia(d1):
            hz = f32(mhz * 1e6)
            correzione = [Valore(FATTORI[f], hz, lambda x: x) for f in fattori]
            somma = sum(v or 0 for v in correzione)
            livello = [None if v <= NESSUN_LIVELLO else v + somma for v in passo[:6]]
            valori = [Valore(LIMITI[n], hz, math.log) for n in limiti]
            contro = [livello[d] for d in del_limite]
            vicini = [v is not None and m is not None and v - margine * 100 <= m + 1e-6
                      for v, m in zip(valori, contro)]
            if not any(vicini):
                continue
            coppie = []
            for v, m, vicino in zip(valori, contro, vicini):
                vuota = v is None or m is None
                delta = None if vuota or not (vicino or tipo == "1det") else m - v
                coppie.append([None if vuota else v + off, delta])
            if tipo == "2full":
                mostrati = [None if livello[d] is None else livello[d] + off for d in detector]
                coppie = [()] * (2 - len(coppie)) + coppie
                celle = [c for m, coppia in zip(mostrati, coppie) for c in (m, *coppia)]
            else:
                primo = None if contro[0] is None else contro[0] + off
                celle = [primo, *(c for coppia in coppie for c in coppia)]
            dove = [f"   {p:03}" for p in passo[6:] if misura.posizioni]
            self.righe.append((mhz, [Numero(c) for c in celle] + dove + [Numero(c) for c in correzione]))
        teste = [("Frequency", "", "MHz")]
        if tipo != "2full":
            teste.append((NOMI[del_limite[0]], "", unita))
        for i, nome in enumerate([None] * (2 - len(limiti)) + limiti if tipo == "2full" else limiti):
            if tipo == "2full":
                teste.append((NOMI[detector[i]], "", unita))
            if nome:
                teste += [("Limit", nome, unita), ("Delta", "", "dB")]
        if misura.posizioni:
            teste += [("Mast", "", "cm"), ("Table", "", "Deg")]
        self.teste = teste + [("Factor", nome, "dB") for nome in fattori]

    def Frequenza(self, mhz):
        cifre = [len(str(int(f))) for f in (max(r[0] for r in self.righe), mhz)]
        testo = repr(round(mhz, 8)).removesuffix(".0")
        return " " * (cifre[0] - cifre[1]) + testo

    def Testo(self):
        def Riga(celle):
            return "".join(c.ljust(11) + "\t" for c in celle)

        ore = [time.strftime("%d/%m/%Y %H:%M:%S", time.localtime(LETTO + i)) for i in (0, 1)]
        corti = [n if len(n) <= 11 else n[:9] + ".." for _, n, _ in self.teste]
        return [
            self.nome + " " + " - ".join(ore), "Rel. SW 1.0 (May 2026)", "Rel. FW 2.15", "5520   S/N: ABC",
            f"Margin: {self.margine:g} dB", "", Riga(t for t, _, _ in self.teste), Riga(corti),
            Riga(f"[{u}]" for _, _, u in self.teste), "",
            *(Riga([self.Frequenza(mhz), *celle]) for mhz, celle in self.righe)]  # fmt: skip


class Tabella(HTMLParser):
    """The cells of the table of rows; every element must be closed in its turn."""

    def __init__(self):
        super().__init__()
        self.aperti, self.righe, self.dentro = [], [], False

    def handle_starttag(self, nome, attributi):
        if nome not in ("meta", "br", "img"):
            self.aperti.append(nome)
        self.dentro |= ("id", "rows") in attributi
        if nome == "tr" and self.dentro:
            self.righe.append([])

    def handle_endtag(self, nome):
        assert self.aperti.pop() == nome, nome

    def handle_data(self, testo):
        if self.dentro and self.aperti and self.aperti[-1] == "td":
            self.righe[-1].append(testo)


CASI = [
    # kind, detectors, margin, limits, factors, unit
    ("1det", "PA", 0, ["QP mains"], [], "dBµV"),
    ("1det", "PA", 6, ["QP mains", "A long limit name"], ["Lisn", "Cable loss dB"], "dBµV"),
    ("1det", "AP", -4.5, ["A long limit name", "Short"], [], "dBm"),
    ("1det", "PA", 999, ["Short"], ["Cable loss dB"], "dBµA/m"),
    ("2det", "PA", 3.1, ["QP mains", "A long limit name"], ["Lisn"], "dBpW"),
    ("2det", "PA", 999, ["Short", "QP mains"], [], "dBµV"),
    ("2full", "PA", 0, ["QP mains", "Short"], ["Lisn", "Cable loss dB"], "dBpT"),
]
CASI_POSIZIONI = [(tipo, "PA", margine, [SOLO], ["Lisn"], "dBµV")
                  for tipo, margine in (("1det", -2), ("2det", 3), ("2full", 999))]  # fmt: skip


class Reports(ProvaStrada):
    def setUp(self):
        super().setUp()
        self.misura = Misura(7)
        self.misura.Scrivi(self.dati / "Sweep" / "Motor")
        self.torre = Misura(8, posizioni=True)
        self.torre.Scrivi(self.dati / "Sweep" / "Tower")

    def Report(self, caso, out, *altro):
        misura = self.torre if caso in CASI_POSIZIONI else self.misura
        tipo, lettere, margine, limiti, fattori, unita = caso
        parole = ["--kind", tipo, "--detector", lettere[0], "--detector2", lettere[1],
                  "--margin", str(margine), "--unit", unita]  # fmt: skip
        for opzione, nomi in (("--limit", [] if misura.posizioni else limiti), ("--factor", fattori)):
            for nome in nomi:
                parole += [opzione, nome]
        detector = ["PQRANC".index(c) for c in lettere]
        atteso = Report(misura, tipo, detector, margine, limiti, fattori, unita)
        self.Riesce("report", atteso.nome, "--out", str(self.dati / out), *parole, *altro)
        return (self.dati / out).read_bytes(), atteso

    def test_text_line_by_line(self):
        righe = 0
        for caso in CASI + CASI_POSIZIONI:
            with self.subTest(caso=caso):
                byte, atteso = self.Report(caso, "r.txt")
                self.assertEqual(byte.decode("cp1252").split("\r\n"), [*atteso.Testo(), ""])
                righe += len(atteso.righe)
        self.assertGreater(righe, 200)

    def test_same_cells_elsewhere(self):
        def Nudi(celle, vuota):
            return [c.strip().replace("---", vuota) for c in celle]

        for caso in (CASI[1], CASI[-1]):
            byte, atteso = self.Report(caso, "r.csv", "--separator", "semicolon", "--decimal", "comma")
            letti = [r.split(";") for r in byte.decode("cp1252").split("\r\n")[1:-1]]
            tutte = [[atteso.Frequenza(mhz), *celle] for mhz, celle in atteso.righe]
            self.assertEqual(letti, [[c.replace(".", ",") for c in Nudi(r, "")] for r in tutte])
            byte, atteso = self.Report(caso, "r.html", "--summary")
            html = Tabella()
            html.feed(byte.decode("utf-8"))
            html.close()
            self.assertEqual(html.aperti, [])
            numerate = [[str(i), *Nudi(r, "---")] for i, r in enumerate(tutte, 1)]
            self.assertEqual(html.righe[1:], numerate)

    def test_rows_as_a_frequency_table(self):
        _, atteso = self.Report(CASI[0], "r.txt", "--save-table", "Spots")
        byte = (self.dati / "Table" / "Spots.5SF").read_bytes()
        letti = [struct.unpack_from("<dh", byte, 10 * i) for i in range(202)]
        righe = [(round(mhz, 8), round(float(celle[0]) * 100)) for mhz, celle in atteso.righe]
        self.assertEqual(letti, righe + [(0, 0)] * (202 - len(righe)))

    def test_refusals(self):
        for codice, parole in ((2, ["--out", "r.doc"]), (2, []), (2, ["--out", "r.txt", "--kind", "3"]),
                               (1, ["--out", "r.txt", "--detector", "C"]),
                               (4, ["--out", "r.txt", "--limit", "None such"]),
                               (4, ["--out", str(self.dati / "no" / "r.txt"), "--limit", "Short"])):  # fmt: skip
            esito = self.Orvane("report", "Motor", *parole)
            self.assertEqual(esito.codice, codice, str(esito))
            self.assertFalse((self.dati / "r.txt").exists())


if __name__ == "__main__":
    Esegui()
