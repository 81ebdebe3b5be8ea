#!/usr/bin/env python3
"""Rate of a full-speed run of ten lines from a pseudo terminal to its trace files, in MB of wire bytes
a second, beside a plain reader of the same line; the best of three turns, taken alternately.

usage: portata.py BINDIR"""

import os
import subprocess
import sys
import tempfile
import threading
import time
import tty
from pathlib import Path

BLOCCO = 1 << 16
RIGHE = 10
PASSI = 298501  # 0.15 to 30 MHz by 100 Hz
MemoriaBlocco = memoryview(bytes((i * 7 + 3) & 0x7F for i in range(BLOCCO)))
RISPOSTE = {"?IDN": "IDN=5520-FW - 2.20 12/03/18", "?BCD": "BCD=OFF", "?MIL": "MIL=OK",
            "?CRA": "CRA=OK", "?S/N": "S/N=1", "?BAT": "BAT=FULL;0", "?UHT": "UHT=",
            "ASBK": "SBK=OK"}  # fmt: skip


class Linea:
    """A pseudo terminal whose far end writes as fast as the near end reads."""

    def __init__(self):
        self.padrone, self.guardiano = os.openpty()
        tty.setraw(self.guardiano)
        self.percorso = os.ttyname(self.guardiano)
        self.byte, self.secondi = 0, 0.0

    def Chiudi(self):
        os.close(self.padrone)
        os.close(self.guardiano)

    @property
    def portata(self):
        return self.byte / self.secondi / 1e6

    def Manda(self, quanti):
        """`quanti` bytes of samples in large prebuilt blocks. The clock starts behind the first: until
        then the reader may still be in the pause that every sweep command is followed by."""
        restano, inizio = quanti, None
        while restano > 0:
            restano -= os.write(self.padrone, MemoriaBlocco[: min(restano, BLOCCO)])
            if inizio is None:
                inizio, misurati = time.monotonic(), restano
        self.byte += misurati
        self.secondi += time.monotonic() - inizio

    def Servi(self, quanti):
        """Answers like a receiver until all sweeps have been sent."""
        entrata, righe = b"", 0
        while True:
            entrata += os.read(self.padrone, 4096)
            while b"*" in entrata:
                comando, entrata = entrata.split(b"*", 1)
                testo = comando.decode().lstrip("#")
                if testo.startswith("SSFD"):
                    os.write(self.padrone, b"SFD=OK\r\n")
                    self.Manda(quanti)
                    os.write(self.padrone, b"SFD_END")
                else:
                    risposta = RISPOSTE.get(testo[:4], testo[1:4] + "=OK")
                    os.write(self.padrone, risposta.encode() + b"\r\n")
                righe += testo.startswith("?UHT")
                if righe == RIGHE:
                    return


def MisuraProgramma(programma, detector):
    linea = Linea()
    with tempfile.TemporaryDirectory() as dati:
        base = [programma, "--data", dati, "--answer", "yes", "--link", "tty:" + linea.percorso]
        for _ in range(RIGHE):
            subprocess.run([*base, "scan", "add", "T", "--start", "0.15", "--stop", "30", "--step",
                            "0.0001", "--detector", ",".join(detector)], check=True)  # fmt: skip
        quanti = PASSI * 2 * len(detector)
        filo = threading.Thread(target=linea.Servi, args=(quanti,), daemon=True)
        filo.start()
        corsa = subprocess.Popen([*base, "sweep", "--scan", "T", "--name", "M"],
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)  # fmt: skip
        _, stato, uso = os.wait4(corsa.pid, 0)
        corsa.returncode = os.waitstatus_to_exitcode(stato)
        filo.join(5)
        scritti = [f.stat().st_size // 12 for f in Path(dati).glob("Sweep/M/M.RS?")]
    if stato != 0 or scritti != [PASSI] * RIGHE:
        sys.exit(f"the run failed: status {corsa.returncode}, steps {scritti}")
    linea.Chiudi()
    return linea.portata, uso


def MisuraLettore(byte):
    """A child that only reads the line and throws away what comes."""
    linea = Linea()
    figlio = os.fork()
    if figlio == 0:
        fd, letti = os.open(linea.percorso, os.O_RDWR | os.O_NOCTTY), 0
        while letti < byte:
            letti += len(os.read(fd, 65536))
        os._exit(0)
    linea.Manda(byte)
    os.waitpid(figlio, 0)
    linea.Chiudi()
    return linea.portata


def main():
    programma = Path(sys.argv[1]) / "orvane"
    for detector in (["P"], ["P", "Q"], list("PQRANC")):
        byte = RIGHE * PASSI * 2 * len(detector)
        giri = [(*MisuraProgramma(programma, detector), MisuraLettore(byte)) for _ in range(3)]
        portata, uso, _ = max(giri, key=lambda giro: giro[0])
        nudo = max(giro[2] for giro in giri)
        print(f"{len(detector)} detectors, {RIGHE} lines of {PASSI} steps: {portata:.0f} MB/s to file, "
              f"{nudo:.0f} MB/s by a plain reader ({portata / nudo:.0%}); "
              f"{uso.ru_utime:.2f} s user, {uso.ru_stime:.2f} s system")  # fmt: skip


if __name__ == "__main__":
    main()
