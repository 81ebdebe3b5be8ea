#!/usr/bin/env python3
"""What a run weighs: peak memory of a short line against one of nearly a million steps, and processor
time of a line that comes at 115200 baud, all from the simulated receiver on a pseudo terminal.

usage: peso.py BINDIR"""

import os
import subprocess
import sys
import tempfile
from pathlib import Path

PROGRAMMI = Path(sys.argv[1])


def Misura(riga, velocita):
    """Seconds, seconds of processor time, peak memory in MB and steps of a run of one line."""
    simulatore = subprocess.Popen(
        [PROGRAMMI / "orvane-simulator", "--speed", velocita], stdout=subprocess.PIPE, text=True
    )
    percorso = simulatore.stdout.readline().strip()
    with tempfile.TemporaryDirectory() as dati:
        base = [PROGRAMMI / "orvane", "--data", dati, "--link", "tty:" + percorso]
        subprocess.run([*base, "scan", "add", "T", *riga.split()], check=True)
        inizio = os.times().elapsed
        corsa = subprocess.Popen([*base, "sweep", "--scan", "T", "--name", "M"],
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)  # fmt: skip
        _, stato, uso = os.wait4(corsa.pid, 0)
        corsa.returncode = os.waitstatus_to_exitcode(stato)
        secondi = os.times().elapsed - inizio
        passi = (Path(dati) / "Sweep/M/M.RS0").stat().st_size // 12
    simulatore.terminate()
    simulatore.wait()
    if stato != 0:
        sys.exit(f"the run failed: status {corsa.returncode}")
    return secondi, uso.ru_utime + uso.ru_stime, uso.ru_maxrss / 1024, passi


def main():
    larga = "--start 0.15 --stop 30 --rbw 200Hz --detector P --step "
    for passo in ("0.003", "0.00003"):
        secondi, processore, memoria, passi = Misura(larga + passo, "full")
        print(f"{passi} steps: peak {memoria:.1f} MB, {processore:.2f} s of processor in {secondi:.1f} s")
    secondi, processore, memoria, passi = Misura("--band B --detector P,Q,A --step 0.001", "line")
    print(f"115200 baud, {passi} steps of 3 detectors: {processore:.3f} s of processor in "
          f"{secondi:.1f} s, {processore / secondi:.2%} of one core")  # fmt: skip


if __name__ == "__main__":
    main()
