"""The diagnostic files that switches of the command line turn on."""

from comune import Esegui, ProvaStrada, SWEEP
from peer import Flusso, Peer

SCAMBI = [("#ASBK*", "SBK=OK"), ("#?IDN*", "IDN=5520-FW - 2.20 12/03/18"), ("#?BCD*", "BCD=OFF"),
          ("#?MIL*", "MIL=OK"), ("#?CRA*", "CRA=OK"), ("#?S/N*", "S/N=KR-0042")]  # fmt: skip
COMANDI = "".join(f"{c}\r\n" for c, _ in SCAMBI)
RISPOSTE = "".join(f"\t\t{r}\r\n" for _, r in SCAMBI)
ENTRAMBI = "".join(f"{c}\r\n\t\t{r}\r\n" for c, r in SCAMBI)


class ProvaLog(ProvaStrada):
    def Identifica(self, *interruttori, **opzioni):
        with Peer(**opzioni) as peer:
            self.Riesce(*interruttori, "identify", peer=peer)
        return {p.name: p.read_bytes().decode("cp1252") for p in self.dati.iterdir()}

    def test_quali_file(self):
        """Each switch has its file; its own goes before the one for both."""
        casi = {
            (): {},
            ("/LOGCOMANDI",): {"LOGCOMANDI.TXT": COMANDI},
            ("/LOGRISPOSTE",): {"LOGRISP.TXT": RISPOSTE},
            ("/LOGCOMRISP",): {"LOGCR.TXT": ENTRAMBI},
            ("/LOGCOMRISP", "/LOGRISPOSTE"): {"LOGRISP.TXT": RISPOSTE, "LOGCR.TXT": COMANDI},
            ("/LOGCOMANDI", "/LOGCOMRISP"): {"LOGCOMANDI.TXT": COMANDI, "LOGCR.TXT": RISPOSTE},
        }
        for interruttori, file in casi.items():
            with self.subTest(interruttori=interruttori):
                # A file of an older run goes at the first write.
                for nome in file:
                    (self.dati / nome).write_text("of before")
                self.assertEqual(self.Identifica(*interruttori), file)
                for nome in file:
                    (self.dati / nome).unlink()

    def test_minuscolo(self):
        """A switch in lower case has no effect: it is a word like any other."""
        with Peer() as peer:
            esito = self.Orvane("/logcomandi", "identify", peer=peer)
        self.assertEqual(esito.codice, 2, str(esito))
        self.assertEqual(list(self.dati.iterdir()), [])

    def test_logsweep(self):
        """LOGSWEEP.BIN holds the command and every byte behind it, of both lines."""
        self.Tabella("T", "--start 0.15 --stop 1.15 --step 0.01 --detector P,Q",
                     "--start 2 --stop 3 --step 0.01")  # fmt: skip
        with Peer(flussi=[Flusso(), Flusso(pezzi=33, pausa=0.002)]) as peer:
            self.Riesce("/LOGSWEEP", *SWEEP, peer=peer)
        comandi = [c.encode() for c in peer.comandi if c.startswith("#SSFD")]
        atteso = b"".join(
            comando + b"\r\n\r\nSFD=OK\r\n" + bytes(campioni) + b"SFD_END"
            for comando, campioni in zip(comandi, peer.campioni)
        )
        self.assertEqual((self.dati / "LOGSWEEP.BIN").read_bytes(), atteso)


if __name__ == "__main__":
    Esegui()
