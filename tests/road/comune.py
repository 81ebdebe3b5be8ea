"""What the road tests share: starting the real programs as a user does, and the bytes that files
must hold, built from the documented layouts alone."""

import os
import resource
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

PROGRAMMI = Path(sys.argv[1] if len(sys.argv) > 1 else "build/release/bin").resolve()
NESSUN_LIVELLO = -20000
BREVE = "--start 0.15 --stop 1.15 --step 0.01"  # 101 steps
SWEEP = ("sweep", "--scan", "T", "--name", "M")
# What a run says to a 5520 by the line's options alone.
IDENTIFICA = ["#ASBK*", "#?IDN*", "#?BCD*", "#?MIL*", "#?CRA*", "#?S/N*"]
PRIMA = ["#SCFA -1*", "#SDIS80;65*", "#SPLMOFF*", "#STGSOFF*"]
GENERATORE = ["#STGL0*", "#STGTOFF*", "#STGF0e3*"]


class Esito:
    """How a program ended: status, both outputs, seconds, and seconds of processor time."""

    def __init__(self, codice, out, err, secondi, processore):
        self.codice, self.out, self.err = codice, out, err
        self.secondi, self.processore = secondi, processore

    def __str__(self):
        return f"status {self.codice}\n--- out\n{self.out}\n--- err\n{self.err}"


class Corsa:
    """A program under way, its outputs going to files."""

    def __init__(self, argomenti, cartella=None, uscita=None, senza_segnali=False, davanti=(),
                 utente=None):  # fmt: skip
        """senza_segnali: a file over its limit is an error of the write, as a full disk is. davanti:
        words of a program that starts this one."""
        self._out, self._err = uscita or tempfile.TemporaryFile(), tempfile.TemporaryFile()
        self._inizio = time.monotonic()
        self.processo = subprocess.Popen(
            [*davanti, PROGRAMMI / "orvane", *argomenti], stdin=subprocess.DEVNULL, stdout=self._out,
            stderr=self._err, cwd=cartella, restore_signals=not senza_segnali, user=utente,
        )  # fmt: skip

    def Segnala(self, segnale=signal.SIGINT):
        os.kill(self.processo.pid, segnale)  # one that has ended is a zombie until it is waited for

    def AspettaDetto(self, testo, secondi=60):
        """Waits until standard output holds this text."""
        fine = time.monotonic() + secondi
        while testo.encode() not in os.pread(self._out.fileno(), 1 << 20, 0):
            if time.monotonic() > fine:
                raise AssertionError(f"never said: {testo}")
            time.sleep(0.01)

    def Attendi(self, secondi=60):
        fine = time.monotonic() + secondi
        pid = self.processo.pid
        while True:
            finito, stato, uso = os.wait4(pid, os.WNOHANG)
            if finito:
                break
            if time.monotonic() > fine:
                self.processo.kill()
                os.wait4(pid, 0)
                self.processo.returncode = -9
                raise AssertionError(f"still running after {secondi} s\n{self._Testo(self._err)}")
            time.sleep(0.005)
        self.processo.returncode = os.waitstatus_to_exitcode(stato)
        return Esito(
            self.processo.returncode, self._Testo(self._out), self._Testo(self._err),
            time.monotonic() - self._inizio, uso.ru_utime + uso.ru_stime,
        )  # fmt: skip

    @staticmethod
    def _Testo(file):
        if not file.readable():
            return ""
        with file:
            file.seek(0)
            return file.read().decode()


class ProvaStrada(unittest.TestCase):
    """A test with a data root of its own."""

    def setUp(self):
        self.dati = Path(tempfile.mkdtemp(prefix="orvane-road-"))
        self.addCleanup(shutil.rmtree, self.dati, ignore_errors=True)

    def Avvia(self, *argomenti, peer=None, dati=None, pazienza=None, risposta=None, **corsa):
        opzioni = ["--data", str(dati or self.dati)]
        if peer:
            opzioni += ["--link", "tty:" + peer.percorso]
        if pazienza is not None:
            opzioni += ["--patience", str(pazienza)]
        if risposta:
            opzioni += ["--answer", risposta]
        return Corsa([*opzioni, *argomenti], **corsa)

    def Orvane(self, *argomenti, secondi=60, **opzioni):
        esito = self.Avvia(*argomenti, **opzioni).Attendi(secondi)
        # A signal of its own making, or the sanitizers', is never a way to end.
        self.assertGreaterEqual(esito.codice, 0, str(esito))
        self.assertNotIn("Sanitizer", esito.err)
        self.assertNotIn("runtime error", esito.err)
        return esito

    def Riesce(self, *argomenti, **opzioni):
        esito = self.Orvane(*argomenti, **opzioni)
        self.assertEqual(esito.codice, 0, str(esito))
        return esito

    def Tabella(self, nome, *righe, dati=None):
        """A scan table by `scan add`, each line a text of options."""
        for riga in righe:
            self.Riesce("scan", "add", nome, *riga.split(), dati=dati)

    def Sottocartella(self, nome):
        cartella = self.dati / nome
        cartella.mkdir()
        return cartella

    def FileMisura(self, nome, estensione, dati=None):
        return (dati or self.dati) / "Sweep" / nome / f"{nome}.{estensione}"


def InParallelo(prova, casi, corpo):
    """Runs the body for each case at the same time; each failure is told by itself."""
    with ThreadPoolExecutor(8) as fila:
        lavori = [(caso, fila.submit(corpo, caso)) for caso in casi]
    for caso, lavoro in lavori:
        with prova.subTest(caso=str(caso)):
            lavoro.result()


def Campo(byte, scarto, formato, *valori):
    struct.pack_into("<" + formato, byte, scarto, *valori)


def Testo(byte, scarto, larghezza, testo):
    byte[scarto : scarto + larghezza] = testo.encode("cp1252").ljust(larghezza)


def ScanLine(start, stop, step, rbw, detector=(0,), **campi):
    """1200 bytes of a scan line: a new line's values where nothing else is said."""
    c = {"PreSel": 1, "PreAmp": 0, "AutoStep": 1, "MinAtt": 1, "HoldTime": 0, "HoldTimeSD": 0,
         "StepOriginal": 0, **campi}  # fmt: skip
    byte = bytearray(1200)
    Campo(byte, 0, "hh", c["PreSel"], c["PreAmp"])
    Campo(byte, 4, "ddhhd", start, stop, 0, c["AutoStep"], step)
    Testo(byte, 32, 60, "NONE")
    Campo(byte, 92, "hff", c["MinAtt"], c["HoldTime"], 0)
    Campo(byte, 112, "6h", *(int(d in detector) for d in range(6)))
    Testo(byte, 328, 60, "NONE")
    Testo(byte, 390, 200, "")
    Campo(byte, 590, "hh", rbw, 0)
    Campo(byte, 598, "f", c["HoldTimeSD"])
    Testo(byte, 604, 60, "NONE")
    Campo(byte, 664, "d", c["StepOriginal"])
    return bytes(byte)


def RigaVuota():
    """A line that is not in use: zeros, and texts of blanks."""
    byte = bytearray(1200)
    for scarto, larghezza in ((32, 60), (328, 60), (390, 200), (604, 60)):
        Testo(byte, scarto, larghezza, "")
    return bytes(byte)


def ScanRecord(*righe):
    """12676 bytes of a scan table."""
    byte = bytearray(12676)
    for i in range(10):
        byte[1200 * i : 1200 * (i + 1)] = righe[i] if i < len(righe) else RigaVuota()
    Testo(byte, 12006, 60, "")
    return bytes(byte)


def f32(x):
    return struct.unpack("<f", struct.pack("<f", x))[0]


def Curva(punti, lineare=0, segmento=0, titolo=b""):
    """1972 bytes of a limit or a factor, from frequencies in Hz and hundredths of a dB."""
    freq = [f for f, _ in punti] + [0.0] * (202 - len(punti))
    valori = [v for _, v in punti] + [0] * (201 - len(punti))
    return struct.pack("<202f201hh50shh706x", *freq, *valori, segmento, titolo.ljust(50), lineare, 1)


def Valore(punti, hz, asse):
    """Segments are closed below and open above; None where the curve has no value."""
    for (f0, v0), (f1, v1) in zip(punti, punti[1:]):
        if f0 <= hz < f1:
            a = f32((v1 - v0) / (asse(f1) - asse(f0)))
            return max(-32768, min(32767, round(a * asse(hz) + f32(v1 - a * asse(f1)))))
    return None


def Passi(campioni, detector):
    """RS file of the bytes that came over the wire: whole steps, twelve bytes each."""
    uscita = bytearray()
    larghezza = 2 * len(detector)
    for i in range(0, len(campioni) - larghezza + 1, larghezza):
        passo = [NESSUN_LIVELLO] * 6
        for d, v in zip(detector, struct.unpack_from(f"<{len(detector)}H", campioni, i)):
            passo[d] = v - 65535 if v > 32767 else v
        uscita += struct.pack("<6h", *passo)
    return bytes(uscita)


def Esegui():
    """Runs the tests of the script; no test run is a failure."""
    # A program that dies must not leave a core file in the middle of the tree.
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    if not (PROGRAMMI / "orvane").exists():
        sys.exit(f"there is no program {PROGRAMMI / 'orvane'}")
    esito = unittest.main(argv=[sys.argv[0]], exit=False, verbosity=2).result
    sys.exit(0 if esito.wasSuccessful() and esito.testsRun > 0 else 1)
