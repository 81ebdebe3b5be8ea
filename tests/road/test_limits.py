"""Limits and factors by the command line program, against the same curves computed here."""

import json
import math
import random
import struct
from pathlib import Path

from comune import Curva, Esegui, f32, ProvaStrada, Valore

SHIPPED = Path(__file__).resolve().parents[2] / "share/orvane/Limits"


def next_to(value, places):
    bits = struct.unpack("<I", struct.pack("<f", value))[0]
    return struct.unpack("<f", struct.pack("<I", bits + places))[0]


def linear(hz):
    return hz


class Limits(ProvaStrada):
    def orvane(self, *words, status=0, options=()):
        done = self.Orvane(*options, *map(str, words))
        self.assertEqual(done.codice, status, str(done))
        return done

    def values(self, kind, name, frequencies):
        """The words of `value`, in pieces that a command line holds."""
        words = []
        for start in range(0, len(frequencies), 2000):
            piece = [repr(f) for f in frequencies[start : start + 2000]]
            words += self.orvane(kind, "value", name, *piece).out.split()
        return words

    def probes(self, points, rng, count):
        probes = [f for point in points for f in (next_to(point[0], n) for n in (-1, 0, 1))]
        low, high = math.log(points[0][0] / 2), math.log(points[-1][0] * 2)
        return probes + [f32(math.exp(rng.uniform(low, high))) for _ in range(count)]

    def put(self, folder, name, data):
        (self.dati / folder).mkdir(exist_ok=True)
        (self.dati / folder / name).write_bytes(data)

    def test_random_curves(self):
        rng = random.Random(5520)
        for number in range(6):
            count = rng.choice([2, 5, 40, 201])
            freq = sorted(f32(math.exp(rng.uniform(math.log(9e3), math.log(18e9)))) for _ in range(count))
            for i in range(3, count, 7):
                freq[i] = freq[i - 1]  # vertical steps
            points = [(f, rng.randint(-20000, 16000)) for f in freq]
            lin = number % 2
            data = Curva(points, lin, segmento=rng.randint(-32768, 32767))
            self.put("Limits", "R.5SL", data)
            self.put("Factors", "R.5SC", data)
            probes = self.probes(points, rng, 1500)
            axis = linear if lin == 1 else math.log
            expected = [Valore(points, f, axis) for f in probes]
            self.assertEqual(self.values("limit", "R", probes),
                             ["none" if v is None or v == 16383 else str(v) for v in expected])
            expected = [Valore(points, f, linear) for f in probes]
            self.assertEqual(self.values("factor", "R", probes), [str(v or 0) for v in expected])

    def test_shipped_library(self):
        self.orvane("limit", "library")
        made, shipped = ({p.name: p.read_bytes() for p in folder.iterdir()}
                         for folder in (self.dati / "Limits", SHIPPED))  # fmt: skip
        self.assertEqual(made, shipped, "make it afresh with `orvane --data share/orvane limit library`")

    def test_library_keeps_what_is_there(self):
        self.put("Limits", "CISPR 15 mains QP.5SL", b"own")
        said = self.orvane("limit", "library").out
        self.assertIn("kept\tCISPR 15 mains QP\n", said)
        self.assertEqual(said.count("written\t"), 15)
        self.assertEqual((self.dati / "Limits/CISPR 15 mains QP.5SL").read_bytes(), b"own")

    def test_text_and_back(self):
        text = self.dati / "points.txt"
        text.write_bytes(b"0,5 56\r\n0.15;66\r\nnonsense\r\n30\t60,5\r\n")
        done = self.orvane("limit", "import", "Mine", text, "--unit", "dBuV/m", "--title", "My limit")
        self.assertIn("Line File: 3.", done.err)
        document = json.loads(self.orvane("limit", "show", "Mine", options=("--json",)).out)
        self.assertEqual(document["title"], "My limit")
        self.assertEqual(document["unit"], "dB\u00b5V/m")
        self.assertEqual(document["points"][2], {"frequency_mhz": 30, "level": 60.5})
        out = self.dati / "out.txt"
        (self.dati / "Header.TXT").write_bytes(b"Lab\r\n")
        self.orvane("limit", "export", "Mine", out)
        self.assertEqual(out.read_bytes(), b"Lab\r\n\r\nMy limit\r\n0.15\t66.00\r\n0.5\t56.00\r\n30\t60.50\r\n")
        self.orvane("table", "import", "F", text, "--mast")
        self.assertEqual((self.dati / "Mast-Table/F.FTM").stat().st_size, 2828)
        self.assertIn("30\t60.50\t---\t---\n", self.orvane("table", "show", "F", "--mast").out)
        self.orvane("table", "show", "F", status=4)
        self.assertEqual(self.orvane("limit", "list").out, "Mine\n")
        self.orvane("limit", "import", "X", self.dati / "absent.txt", status=4)
        self.orvane("limit", "import", "X", self.dati / "Header.TXT", status=1)  # no points
        # Damaged points are told.
        self.put("Limits", "Bad.5SL", Curva([(3e6, 3), (float("nan"), 9), (1e6, 1)]))
        shown = self.orvane("limit", "show", "Bad")
        self.assertIn("damaged points", shown.err)
        self.assertTrue(shown.out.endswith("1\t0.01\n3\t0.03\n"), shown.out)
        # An existing table is replaced only on a Yes.
        before = (self.dati / "Limits/Mine.5SL").read_bytes()
        self.orvane("limit", "import", "Mine", text, status=1)
        self.assertEqual((self.dati / "Limits/Mine.5SL").read_bytes(), before)
        self.orvane("limit", "import", "Mine", text, options=("--answer", "yes"))
        self.assertNotEqual((self.dati / "Limits/Mine.5SL").read_bytes(), before)


if __name__ == "__main__":
    Esegui()
