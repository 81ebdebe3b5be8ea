"""A receiver on a pseudo terminal, written from the wire's rules alone: it answers like any model of
the family, streams sweeps whose every level is known, keeps all it was told with the time, and
misbehaves on demand."""

import os
import re
import select
import struct
import threading
import time
import tty

CRLF = b"\r\n"
LETTERE = "PQRANC"  # detectors, always in this order on the wire
FIRMWARE = "2.20 12/03/18"

# What each form of receiver says of itself. Queries that are not named get the common reply.
MODELLI = {
    "5520": {"?IDN": "IDN=5520-FW - {fw}", "?BCD": "BCD=OFF"},
    "5540": {"?IDN": "IDN=5520-FW - {fw}", "?BCD": "BCD=ON;5540"},
    "5570": {"?IDN": "IDN=5520-FW - {fw}", "?BCD": "BCD=ON;5570"},
    "5590": {"?IDN": "IDN=5520-FW - {fw}", "?BCD": "BCD=ON;5590"},
    "5520+GX2207": {"?IDN": "IDN=5520-FW - {fw}", "?BCD": "BCD=ON;GX2207"},
    "K3X low": {"?IDN": "IDN=5520/K3X - {fw}", "?BCD": "BCD=OFF;K3X"},
    "5520F": {"?IDN": "IDN=5520F-FW - {fw}", "?CO6": "CO6=CND"},
    "5520F rad": {"?IDN": "IDN=5520F-FW - {fw}", "?CO6": "CO6=RAD;30,6000,"},
    "VSD3": {"?IDN": "IDN=VSD3 {fw}", "?CO6": "CO6=CND"},
    "GX2207F": {"?IDN": "IDN=GX2207F-FW - {fw}", "?BCD": "BCD=OFF"},
    "3360/01": {"?IDN": "IDN=3360/01-FW - {fw}", "?3PR": "3PR=CON"},
    "3360/03 rad": {"?IDN": "IDN=3360/03-FW - {fw}", "?3PR": "3PR=RAD;28,3000,"},
}

# Replies that are alike on every model. The blanks before "=" are the receiver's own.
COMUNI = {
    "?MIL": "MIL=OK", "?CRA": "CRA=OK", "?S/N": "S/N=KR-0042", "?UPP": "UPP=0", "?UHT": "UHT=",
    "?BAT": "BAT=FULL,12,4;0", "?APS": "APS=ON", "?RBW": "RBW=MAN 6", "?MAT": "MAT=AUTO;10",
    "?LNK": "LNK=1;25, 6020;(5570)", "?3PR": "3PR=CON", "?CO6": "CO6=CND", "?BCD": "BCD=OFF",
    "?FSA": "---", "ASBK": "SBK=OK", "SSTP": "STP=OK", "SPLM": "PLM =OK", "STGS": "TGS =OK",
    "STGT": "TGT =OK", "SLIC": "SLIC =OK", "SLII": "SLII =OK",
    "ASPA": None, "ASRE": None, "SOFF": "GX2207F", "CHGS": "CHGS=OK",
}  # fmt: skip


def Livello(passo, detector):
    """Wire value of a sample, 0 to 65535: runs through all of them, negative levels too."""
    return (passo * 37 + detector * 10007 + 4321) & 0xFFFF


def LivelloPlausibile(passo, detector):
    """Levels as a receiver has them, 10 to 60 dBuV, Peak above the others."""
    return 6000 - detector * 500 - (passo * 13) % 2500


class Flusso:
    """What comes back for one sweep command.

    intestazione: a step in Hz to make the bytes of the 5520F before the samples of; pezzi: the stream
    goes out in blocks of so many bytes, `pausa` seconds apart; taglia: falls silent behind so many
    bytes of samples; tagli_fine: where the end mark is torn; tieni: samples come until aborted."""

    def __init__(self, livello=Livello, riscontro=b"SFD=OK\r\n", intestazione=None, passi=None,
                 pezzi=4096, pausa=0.0, taglia=None, tagli_fine=(), tieni=False):  # fmt: skip
        self.livello, self.passi, self.pezzi, self.pausa = livello, passi, pezzi, pausa
        self.riscontro, self.taglia, self.tagli_fine, self.tieni = riscontro, taglia, tagli_fine, tieni
        self.intestazione = intestazione and struct.pack("<f", intestazione) + bytes(range(28))

    def Campioni(self, passi, detector):
        return b"".join(
            struct.pack("<H", self.livello(k, d)) for k in range(passi) for d in detector
        )

    def PassiDi(self, comando):
        if self.passi is not None:
            return self.passi
        _, start, stop, step, *_ = SpezzaComando(comando)
        return int((stop - start) / step + 1e-6) + 1

    def Pezzi(self, comando):
        """Bytes to send, seconds to wait, or "chiudi", in order."""
        yield self.riscontro
        if b"OK" not in self.riscontro:
            return
        if self.intestazione:
            yield self.intestazione
        while True:
            dati = self.Campioni(self.PassiDi(comando), Detector(comando))[: self.taglia]
            for i in range(0, len(dati), self.pezzi):
                yield Misurati(dati[i : i + self.pezzi])
                yield self.pausa
            if not self.tieni:
                break
        if self.taglia is not None:
            return
        fine, da = b"SFD_END", 0
        for taglio in (*self.tagli_fine, len(fine)):
            yield fine[da:taglio]
            yield 0.02
            da = taglio


class Misurati(bytes):
    """Samples, as against what frames them."""


def SpezzaComando(comando):
    """Fields of a sweep command: mark, start, stop, step in Hz, detectors, hold, filter, ..."""
    trovato = re.fullmatch(r"#SSFD(S?) ([^;*]+(?:;[^;*]*){9})\*", comando)
    if not trovato:
        raise ValueError("no sweep command: " + comando)
    campi = trovato.group(2).split(";")
    return [trovato.group(1), *(float(x) for x in campi[:3]), *campi[3:]]


def Detector(comando):
    lettere = SpezzaComando(comando)[4].removeprefix("S")
    return [LETTERE.index(c) for c in lettere]


class Peer:
    """A receiver in a thread of its own. Use as a context; `percorso` is the line to open.

    regole: replies by the beginning of a command without "#" ("?IDN", "SDIS"); text gets its CR LF,
    bytes go as they are, None is silence, a list is worked off and its last entry stays, a callable
    is asked. A sweep told to pause stands still until it is resumed. muto: no reply to anything.
    ritardo: seconds before each reply. spezza: every byte by itself. flussi: a Flusso for each sweep command, the last one stays."""

    def __init__(self, modello="5520", fw=FIRMWARE, regole=None, flussi=None, muto=False,
                 ritardo=0.0, spezza=False):  # fmt: skip
        testi = {nome: testo.format(fw=fw) for nome, testo in MODELLI[modello].items()}
        self.regole = {**COMUNI, **testi, **(regole or {})}
        self.flussi = list(flussi or [Flusso()])
        self.muto, self.ritardo, self.spezza = muto, ritardo, spezza
        self.comandi, self.tempi, self.estranei = [], [], b""
        self.campioni = []  # samples of each sweep, as far as they went out
        self.staccato = False
        self._coda, self._flusso, self._entrata = [], None, b""
        self.fermo = False  # a sweep stands still
        self._libero = 0.0  # nothing goes out before this moment
        self._padrone, self._guardiano = os.openpty()
        tty.setraw(self._guardiano)
        os.set_blocking(self._padrone, False)
        self.percorso = os.ttyname(self._guardiano)
        self._leggi_sveglia, self._sveglia = os.pipe()
        self._filo = threading.Thread(target=self._Gira, daemon=True)

    def __enter__(self):
        self._filo.start()
        return self

    def __exit__(self, *_):
        os.write(self._sveglia, b"x")
        self._filo.join(10)
        if not self.staccato:
            self._Stacca()
        os.close(self._sveglia)
        os.close(self._leggi_sveglia)

    def Aspetta(self, quando, secondi=60.0):
        """Waits until `quando()` holds; False when it does not in time."""
        fine = time.monotonic() + secondi
        while not quando():
            if time.monotonic() > fine:
                return False
            time.sleep(0.005)
        return True

    def _Stacca(self):
        self.staccato = True
        os.close(self._padrone)
        os.close(self._guardiano)

    def _Gira(self):
        while not self.staccato:
            self._Carica()
            if self.staccato:
                return
            resto = self._libero - time.monotonic()
            scrivere = bool(self._coda) and resto <= 0
            attende = self._coda or (self._flusso and not self.fermo)
            attesa = max(resto, 0) if attende else 1.0
            pronti, scrivibili, _ = select.select(
                [self._padrone, self._leggi_sveglia],
                [self._padrone] if scrivere else [], [], 1.0 if scrivere else attesa,
            )  # fmt: skip
            if self._leggi_sveglia in pronti:
                return
            if self._padrone in pronti:
                self._Leggi()
            if scrivibili:
                self._Scrivi()

    def _Carica(self):
        """Takes the next piece of a running stream, when the one before has gone."""
        while self._flusso and not self._coda and not self.fermo \
                and self._libero <= time.monotonic():
            pezzo = next(self._flusso, None)
            if pezzo is None:
                self._flusso = None
            elif pezzo == "chiudi":
                self._flusso = None
                self._Stacca()
            elif isinstance(pezzo, float):
                self._libero = time.monotonic() + pezzo
            elif pezzo:
                self._coda.append(pezzo)

    def _Leggi(self):
        self._entrata += os.read(self._padrone, 65536)
        while True:
            inizio, fine = self._entrata.find(b"#"), self._entrata.find(b"*")
            if inizio < 0 or fine < inizio:
                break
            self.estranei += self._entrata[:inizio]
            comando = self._entrata[inizio : fine + 1].decode("cp1252")
            self._entrata = self._entrata[fine + 1 :]
            self.tempi.append(time.monotonic())
            self.comandi.append(comando)
            self._Esegui(comando)

    def _Esegui(self, comando):
        if self.muto:
            return
        if comando.startswith("#SSFD") and "SSFD" not in self.regole:
            flusso = self.flussi.pop(0) if len(self.flussi) > 1 else self.flussi[0]
            self.campioni.append(bytearray())
            self._flusso = flusso.Pezzi(comando)
            return
        if comando[1:5] in ("ASBK", "SSTP"):
            self._flusso, self._coda, self.fermo = None, [], False
        risposta = self._Risposta(comando)
        while callable(risposta):
            risposta = risposta(self, comando)
        if risposta is None:
            self.fermo = {"ASPA": True, "ASRE": False}.get(comando[1:5], self.fermo)
            return
        if isinstance(risposta, str):
            risposta = risposta.encode("cp1252") + CRLF
        self._coda.append(risposta)
        self._libero = time.monotonic() + self.ritardo

    def _Risposta(self, comando):
        corpo = comando[1:-1]
        chiavi = [k for k in self.regole if corpo.startswith(k)]
        if not chiavi:
            return corpo[1:4] + "=OK" if corpo.startswith("S") else None
        chiave = max(chiavi, key=len)
        regola = self.regole[chiave]
        if isinstance(regola, list):
            regola = regola.pop(0) if len(regola) > 1 else regola[0]
        return regola

    def _Scrivi(self):
        dati = self._coda[0]
        try:
            scritti = os.write(self._padrone, dati[:1] if self.spezza else dati)
        except BlockingIOError:
            self._libero = time.monotonic() + 0.001
            return
        if isinstance(dati, Misurati):
            self.campioni[-1] += dati[:scritti]
            self._coda[0] = Misurati(dati[scritti:])
        else:
            self._coda[0] = dati[scritti:]
        if not self._coda[0]:
            self._coda.pop(0)
        if self.spezza:
            self._libero = time.monotonic() + 0.0005
