#!/usr/bin/env python3
"""Limits and factors by the command line program, against the same curves computed here.

Usage: test_limits.py DIR, where DIR holds the programs.
"""
import json
import math
import pathlib
import random
import struct
import subprocess
import sys
import tempfile
import unittest

PROGRAMS = pathlib.Path(sys.argv.pop(1) if len(sys.argv) > 1 else "build/release/bin").resolve()
SHIPPED = pathlib.Path(__file__).resolve().parents[2] / "share/orvane/Limits"


def f32(value):
    return struct.unpack("<f", struct.pack("<f", value))[0]


def next_to(value, places):
    bits = struct.unpack("<I", struct.pack("<f", value))[0]
    return struct.unpack("<f", struct.pack("<I", bits + places))[0]


def record(points, lin=0, hint=0, title=b""):
    """The bytes of a 5SL or 5SC file."""
    freq = [f for f, _ in points] + [0.0] * (202 - len(points))
    value = [v for _, v in points] + [0] * (201 - len(points))
    data = struct.pack("<202f201hh", *freq, *value, hint) + title.ljust(50)
    return data + struct.pack("<hh", lin, 1) + bytes(706)


def points_of(data):
    freq = struct.unpack_from("<202f", data, 0)
    value = struct.unpack_from("<201h", data, 808)
    return [(freq[i], value[i]) for i in range(201) if freq[i] != 0], struct.unpack_from("<h", data, 1262)[0]


def value(points, hz, axis):
    """Segments are closed below and open above; None where the curve has no value."""
    hz = f32(hz)
    for (f0, v0), (f1, v1) in zip(points, points[1:]):
        if f0 <= hz < f1:
            a = f32((v1 - v0) / (axis(f1) - axis(f0)))
            b = f32(v1 - a * axis(f1))
            return max(-32768, min(32767, round(a * axis(hz) + b)))
    return None


def linear(hz):
    return hz


class Limits(unittest.TestCase):
    def setUp(self):
        self.home = tempfile.TemporaryDirectory()
        self.data = pathlib.Path(self.home.name)
        self.addCleanup(self.home.cleanup)

    def orvane(self, *words, status=0, options=()):
        done = subprocess.run(
            [PROGRAMS / "orvane", "--data", self.data, *options, *map(str, words)],
            capture_output=True, encoding="utf-8", timeout=120)
        self.assertEqual(done.returncode, status, done.stderr)
        return done

    def values(self, kind, name, frequencies):
        """The words of `value`, in pieces that a command line holds."""
        words = []
        for start in range(0, len(frequencies), 2000):
            piece = [repr(f) for f in frequencies[start : start + 2000]]
            words += self.orvane(kind, "value", name, *piece).stdout.split()
        return words

    def probes(self, points, rng, count):
        probes = [f for point in points for f in (next_to(point[0], n) for n in (-1, 0, 1))]
        low, high = math.log(points[0][0] / 2), math.log(points[-1][0] * 2)
        return probes + [f32(math.exp(rng.uniform(low, high))) for _ in range(count)]

    def put(self, folder, name, data):
        (self.data / folder).mkdir(exist_ok=True)
        (self.data / folder / name).write_bytes(data)

    def test_random_curves(self):
        rng = random.Random(5520)
        for number in range(6):
            count = rng.choice([2, 5, 40, 201])
            freq = sorted(f32(math.exp(rng.uniform(math.log(9e3), math.log(18e9)))) for _ in range(count))
            for i in range(3, count, 7):
                freq[i] = freq[i - 1]  # vertical steps
            points = [(f, rng.randint(-20000, 16000)) for f in freq]
            lin = number % 2
            data = record(points, lin, hint=rng.randint(-32768, 32767))
            self.put("Limits", "R.5SL", data)
            self.put("Factors", "R.5SC", data)
            probes = self.probes(points, rng, 1500)
            axis = linear if lin == 1 else math.log
            expected = [value(points, f, axis) for f in probes]
            self.assertEqual(self.values("limit", "R", probes),
                             ["none" if v is None or v == 16383 else str(v) for v in expected])
            expected = [value(points, f, linear) for f in probes]
            self.assertEqual(self.values("factor", "R", probes), [str(v or 0) for v in expected])

    def test_shipped_library(self):
        self.orvane("limit", "library")
        made = sorted(p.name for p in (self.data / "Limits").iterdir())
        self.assertEqual(made, sorted(p.name for p in SHIPPED.iterdir()))
        rng = random.Random(1)
        for name in made:
            data = (self.data / "Limits" / name).read_bytes()
            self.assertEqual(data, (SHIPPED / name).read_bytes(),
                             "make it afresh with `orvane --data share/orvane limit library`")
            points, lin = points_of(data)
            probes = self.probes(points, rng, 200)
            self.assertEqual(self.values("limit", name[:-4], probes),
                             ["none" if v is None else str(v)
                              for v in (value(points, f, math.log) for f in probes)])

    def test_library_keeps_what_is_there(self):
        self.put("Limits", "CISPR 15 mains QP.5SL", b"own")
        said = self.orvane("limit", "library").stdout
        self.assertIn("kept\tCISPR 15 mains QP\n", said)
        self.assertEqual(said.count("written\t"), 15)
        self.assertEqual((self.data / "Limits/CISPR 15 mains QP.5SL").read_bytes(), b"own")

    def test_text_and_back(self):
        text = self.data / "points.txt"
        text.write_bytes(b"0,5 56\r\n0.15;66\r\nnonsense\r\n30\t60,5\r\n")
        done = self.orvane("limit", "import", "Mine", text, "--unit", "dBuV/m", "--title", "My limit")
        self.assertIn("Line File: 3.", done.stderr)
        document = json.loads(self.orvane("limit", "show", "Mine", options=("--json",)).stdout)
        self.assertEqual(document["title"], "My limit")
        self.assertEqual(document["unit"], "dB\u00b5V/m")
        self.assertEqual(document["points"][2], {"frequency_mhz": 30, "level": 60.5})
        out = self.data / "out.txt"
        (self.data / "Header.TXT").write_bytes(b"Lab\r\n")
        self.orvane("limit", "export", "Mine", out)
        self.assertEqual(out.read_bytes(), b"Lab\r\n\r\nMy limit\r\n0.15\t66.00\r\n0.5\t56.00\r\n30\t60.50\r\n")
        self.orvane("table", "import", "F", text, "--mast")
        self.assertEqual((self.data / "Mast-Table/F.FTM").stat().st_size, 2828)
        self.assertIn("30\t60.50\t---\t---\n", self.orvane("table", "show", "F", "--mast").stdout)
        self.orvane("table", "show", "F", status=4)
        self.assertEqual(self.orvane("limit", "list").stdout, "Mine\n")
        self.orvane("limit", "import", "X", self.data / "absent.txt", status=4)
        self.orvane("limit", "import", "X", self.data / "Header.TXT", status=1)  # no points
        # Damaged points are told.
        self.put("Limits", "Bad.5SL", record([(3e6, 3), (float("nan"), 9), (1e6, 1)]))
        shown = self.orvane("limit", "show", "Bad")
        self.assertIn("damaged points", shown.stderr)
        self.assertTrue(shown.stdout.endswith("1\t0.01\n3\t0.03\n"), shown.stdout)
        # An existing table is replaced only on a Yes.
        before = (self.data / "Limits/Mine.5SL").read_bytes()
        self.orvane("limit", "import", "Mine", text, status=1)
        self.assertEqual((self.data / "Limits/Mine.5SL").read_bytes(), before)
        self.orvane("limit", "import", "Mine", text, options=("--answer", "yes"))
        self.assertNotEqual((self.data / "Limits/Mine.5SL").read_bytes(), before)


if __name__ == "__main__":
    unittest.main()
