#!/usr/bin/env python3
"""How soon a Stop and a Pause act, phase by phase: seconds from the signal to the receiver hearing of
it, and to the end of the program.

usage: prontezza.py BINDIR [TURNS]"""

import os
import signal
import sys
import tempfile
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "road"))
from comune import Corsa  # noqa: E402
from peer import Flusso, LivelloPlausibile, Peer  # noqa: E402

GIRI = int(sys.argv[2]) if len(sys.argv) > 2 else 5
LENTO = {"pezzi": 20, "pausa": 0.01, "tieni": True}


def Arrivato(comando):
    return lambda peer: any(c.startswith(comando) for c in peer.comandi)


def Campioni(peer):
    return peer.campioni and len(peer.campioni[-1]) > 200


# Phase: rules of the peer, its stream, further words, when the phase has been reached.
FASI = {
    "identification, silent": ({"?IDN": None}, {}, [], Arrivato("#?IDN")),
    "controls, silent": ({"SCFA": None}, {}, [], Arrivato("#SCFA")),
    "wait for the timer": ({}, {}, ["--timer", "600"], Arrivato("#SCFA")),
    "wait for the trigger": ({}, {}, ["--trigger", "1"], Arrivato("#?UPP")),
    "trigger, silent": ({"?UPP": None}, {}, ["--trigger", "1"], Arrivato("#?UPP")),
    "preparation, silent": ({"SDIS": None}, {}, [], Arrivato("#SDIS")),
    "line, battery silent": ({"?BAT": None}, {}, [], Arrivato("#?BAT")),
    "line, waiting to send": ({}, LENTO, [], Arrivato("#?BAT")),
    "sweep, command just sent": ({}, LENTO, [], Arrivato("#SSFD")),
    "sweep, no acknowledgement": ({}, {"riscontro": b""}, [], Arrivato("#SSFD")),
    "sweep, samples": ({}, LENTO, [], Campioni),
    "sweep, full speed": ({}, {"tieni": True, "passi": 20000}, [], Campioni),
    "sweep, silent in mid-sample": ({}, {"taglia": 401}, [], Campioni),
    "pausing": ({}, LENTO, ["--pause-after", "0", "--pause-for", "60"], Arrivato("#ASPA")),
    "pause refused": ({"ASPA": "SERR"}, LENTO, ["--pause-after", "0", "--pause-for", "60"],
                      Arrivato("#ASPA")),
    "in pause": ({}, LENTO, ["--pause-after", "0", "--pause-for", "60"],
                 lambda p: p.fermo and p.comandi[-1] == "#?BAT*"),
    "in pause, battery silent": (
        {"?BAT": ["BAT=FULL,12,4;0", None]}, LENTO, ["--pause-after", "0", "--pause-for", "60"],
        lambda p: p.comandi.count("#?BAT*") > 1),
    "sweep, then mute": ({"ASBK": ["SBK=OK", None], "?BAT": ["BAT=FULL,12,4;0", None]}, LENTO, [],
                         Campioni),
    "sweep, then battery silent": ({"?BAT": ["BAT=FULL,12,4;0", None]}, LENTO, [], Campioni),
    "end of the line, silent": ({"?UHT": None}, {}, [], Arrivato("#?UHT")),
}  # fmt: skip


def Aspetta(quando, secondi=20.0):
    fine = time.monotonic() + secondi
    while not quando():
        if time.monotonic() > fine:
            raise AssertionError("the phase was not reached")
        time.sleep(0.001)


def Tabella(dati):
    Corsa(["--data", dati, "scan", "add", "T", "--band", "B"]).Attendi()


def Lancia(dati, peer, *altre):
    return Corsa(["--data", dati, "--link", "tty:" + peer.percorso, "sweep", "--scan", "T",
                  "--name", "M", *altre])  # fmt: skip


def DopoStop(fase, ritardo):
    """Seconds to the first #ASBK* behind the signal, None without one, and to the end."""
    regole, flusso, parole, arrivata = FASI[fase]
    regole = {k: list(v) if isinstance(v, list) else v for k, v in regole.items()}  # worked off
    with tempfile.TemporaryDirectory() as dati:
        Tabella(dati)
        with Peer(regole=regole, flussi=[Flusso(LivelloPlausibile, **flusso)]) as peer:
            corsa = Lancia(dati, peer, *parole)
            Aspetta(lambda: arrivata(peer))
            time.sleep(ritardo)
            quando = time.monotonic()
            os.kill(corsa.processo.pid, signal.SIGINT)
            esito = corsa.Attendi()
            fine = time.monotonic() - quando
            tempi = [t - quando for t, c in zip(peer.tempi, peer.comandi) if c == "#ASBK*"]
    dopo = [t for t in tempi if t > 0]
    return (dopo[0] if dopo else None), fine, esito.codice


def DopoPausa(dopo):
    """Seconds from when a pause is due, `dopo` behind the first samples, to #ASPA*."""
    with tempfile.TemporaryDirectory() as dati:
        Tabella(dati)
        with Peer(flussi=[Flusso(LivelloPlausibile, pezzi=100, pausa=0.01)]) as peer:
            corsa = Lancia(dati, peer, "--pause-after", str(dopo), "--pause-for", "0.1")
            Aspetta(lambda: Arrivato("#SSFD")(peer) and peer.campioni[0])
            inizio = time.monotonic()
            corsa.Attendi()
            return peer.tempi[peer.comandi.index("#ASPA*")] - inizio - dopo


def main():
    for fase in FASI:
        giri = [DopoStop(fase, 0.23 * giro / GIRI) for giro in range(GIRI)]
        sentiti = [a for a, _, _ in giri if a is not None]
        sentito = f"{max(sentiti):.2f} s" if sentiti else "not sent"
        print(f"stop, {fase}: heard {sentito}, ended {max(f for _, f, _ in giri):.2f} s, "
              f"status {sorted({c for _, _, c in giri})}", flush=True)  # fmt: skip
    # The first samples are looked at 0.2 s behind the command: the pause counts from there.
    print(f"pause, due 1 s behind the first samples: heard {max(DopoPausa(1) for _ in range(GIRI)):.2f} s")


if __name__ == "__main__":
    main()
