#!/usr/bin/env python3
"""Processor time of the console's window while a sweep of two detectors comes at 115200 baud and is
drawn, with a limit and two factors on: the simulated receiver on a pseudo terminal, a virtual screen.

usage: finestra.py BINDIR [SECONDS]     needs Xvfb and xdotool"""

import os
import struct
import subprocess
import sys
import tempfile
import time
from contextlib import ExitStack
from pathlib import Path

PROGRAMMI = Path(sys.argv[1]).resolve()
SECONDI = float(sys.argv[2]) if len(sys.argv) > 2 else 60
SCHERMO = "1500x950x24"
LIMITE = "CISPR 32 B mains QP"
FATTORI = ("LISN", "Cable")
# Offsets of the panel: factor names, then their flags.
NOMI_FATTORI, FATTORI_ACCESI = 2562, 2982
RIGA = "--band B --detector P,Q --rbw 9kHz --step "
PASSO = 0.0001  # 298501 steps: more than a hundred seconds


def Orvane(dati, *parole):
    subprocess.run([PROGRAMMI / "orvane", "--data", dati, *parole], check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)  # fmt: skip


def Prepara(dati):
    """A data root as the console leaves it, with limit and factors on."""
    Orvane(dati, "scan", "add", "T", "--start", "1", "--stop", "2", "--step", "0.1")
    Orvane(dati, "--link", "sim:5520", "sweep", "--scan", "T", "--name", "First")
    Orvane(dati, "limit", "library")
    Orvane(dati, "scan", "clear", "T")
    Orvane(dati, "scan", "add", "T", *RIGA.split(), str(PASSO), "--limit", LIMITE)
    pannello = dati / "Panels" / "Untitled.EAM"
    byte = bytearray(pannello.read_bytes())
    for i, nome in enumerate(FATTORI):
        testo = dati / f"{nome}.txt"
        punti = ((0.009, 10 + i), (0.15, 8), (1, 9.5), (10, 10), (30, 12), (40, 12))
        testo.write_text("".join(f"{mhz}\t{db}\n" for mhz, db in punti))
        Orvane(dati, "factor", "import", nome, testo)
        byte[NOMI_FATTORI + 60 * i : NOMI_FATTORI + 60 * (i + 1)] = nome.encode().ljust(60)
        struct.pack_into("<h", byte, FATTORI_ACCESI + 2 * i, 1)
    pannello.write_bytes(byte)


def Processo(pila, parole, **altro):
    """A program that ends with the stack."""
    processo = subprocess.Popen(parole, stderr=subprocess.DEVNULL, **altro)
    pila.callback(processo.wait)
    pila.callback(processo.terminate)
    return processo


def Schermo(pila):
    """The name of a virtual screen of its own."""
    leggi, scrivi = os.pipe()
    Processo(pila, ["Xvfb", "-displayfd", str(scrivi), "-screen", "0", SCHERMO], pass_fds=[scrivi])
    os.close(scrivi)
    with os.fdopen(leggi) as detto:
        return ":" + detto.readline().strip()


def Consumo(pid):
    """Seconds of user and of system time so far."""
    campi = Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return [int(x) / os.sysconf("SC_CLK_TCK") for x in campi[11:13]]


def Passi(dati):
    return sum(f.stat().st_size // 12 for f in dati.glob("Sweep/Untitled/*.RS0"))


def Aspetta(quando, cosa, secondi=60):
    fine = time.monotonic() + secondi
    while not quando():
        if time.monotonic() > fine:
            sys.exit(f"no {cosa}")
        time.sleep(0.1)


def main():
    with ExitStack() as pila:
        dati = Path(pila.enter_context(tempfile.TemporaryDirectory()))
        Prepara(dati)
        simulatore = Processo(pila, [PROGRAMMI / "orvane-simulator", "--speed", "line"],
                              stdout=subprocess.PIPE, text=True)  # fmt: skip
        percorso = simulatore.stdout.readline().strip()
        ambiente = {**os.environ, "DISPLAY": Schermo(pila), "QT_QPA_PLATFORM": "xcb"}
        console = Processo(pila, [PROGRAMMI / "orvane-console", "--data", dati, "--link",
                                  "tty:" + percorso, "--style", "dark"], env=ambiente)  # fmt: skip
        tasti = ["xdotool", "search", "--sync", "--onlyvisible", "--pid", str(console.pid), "--name", ".+"]
        subprocess.run([*tasti, "windowsize", "1500", "950", "windowfocus", "--sync", "key", "ctrl+2", "F5"],
                       env=ambiente, check=True, timeout=60)  # fmt: skip
        Aspetta(lambda: Passi(dati) > 0, "sweep")
        prima, passi, inizio = Consumo(console.pid), Passi(dati), time.monotonic()
        time.sleep(SECONDI)
        utente, sistema = (b - a for a, b in zip(prima, Consumo(console.pid)))
        durata, arrivati = time.monotonic() - inizio, Passi(dati) - passi
    print(f"window at 115200 baud, {arrivati / durata:.0f} steps of 2 detectors a second: "
          f"{utente:.2f} s user, {sistema:.2f} s system in {durata:.1f} s, "
          f"{(utente + sistema) / durata:.1%} of one core")  # fmt: skip


if __name__ == "__main__":
    main()
