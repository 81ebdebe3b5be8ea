"""`orvane identify` against every form of receiver: the lines it prints, and the commands it sent."""

import json

from comune import Esegui, InParallelo, ProvaStrada
from peer import Peer

INIZIO, FINE = ["#ASBK*", "#?IDN*"], ["#?S/N*"]
OPZIONI = ["#?MIL*", "#?CRA*"]
BCD = ["#?BCD*", *OPZIONI]

# model of the peer: commands between start and serial number; model, extension, mil, fmin, fmax.
FORME = {
    "5520": (BCD, "5520", "none", "yes", "0.00001", "30.1"),
    "5570": (BCD, "5570", "5570", "yes", "28", "6000"),
    "5520+GX2207": (BCD, "5/GX2207", "none", "yes", "0.009", "30.1"),
    "K3X low": (["#?BCD*", "#?3PR*", *OPZIONI], "5520/K3X", "none", "yes", "0.00001", "30.1"),
    "5520F rad": (["#?CO6*", *OPZIONI], "5520/60OEM", "none", "yes", "28", "6000"),
    "VSD3": (["#?LNK*", "#?CO6*", *OPZIONI], "5520/VSD3", "none", "yes", "0.00001", "30.1"),
    "GX2207F": (BCD, "FGX2207", "none", "yes", "0.009", "30.1"),
    # The 3360 family lacks "#?MIL*": its answer is canned and nothing goes out.
    "3360/01": (["#?3PR*", "#?CRA*"], "3360/01", "none", "no", "0.009", "30.1"),
    "3360/03 rad": (["#?3PR*", "#?CRA*"], "3360/03", "none", "no", "28", "3000"),
}
# firmware text: options asked, mil, rmsavg. Each threshold is the first version that asks.
FIRMWARE = {
    "1.76 01/02/03": ([], "no", "yes"),
    "1.77 01/02/03": (["#?MIL*"], "yes", "yes"),
    "2.07 01/02/03": (["#?MIL*"], "yes", "yes"),
    "2.08 01/02/03": (["#?MIL*", "#?CRA*"], "yes", "no"),
    "2.20": ([], "no", "yes"),  # no blank: older than all
}


def Voci(esito):
    return dict(riga.split(": ", 1) for riga in esito.out.splitlines())


class ProvaIdentify(ProvaStrada):
    def Identifica(self, peer, *opzioni, **altre):
        return self.Orvane(*opzioni, "identify", peer=peer, dati=self.dati, **altre)

    def test_ogni_forma(self):
        def Corpo(forma):
            comandi, modello, estensione, mil, fmin, fmax = FORME[forma]
            with Peer(forma) as peer:
                esito = self.Identifica(peer)
            attese = (
                f"model: {modello}\nfirmware: 2.20 12/03/18\nserial: KR-0042\n"
                f"extension: {estensione}\nmil: {mil}\nrmsavg: yes\nfmin: {fmin}\nfmax: {fmax}\n"
            )
            self.assertEqual((esito.codice, esito.out), (0, attese), esito.err)
            self.assertEqual(peer.comandi, [*INIZIO, *comandi, *FINE])
            self.assertEqual(peer.estranei, b"")

        InParallelo(self, FORME, Corpo)
        self.assertEqual(list(self.dati.iterdir()), [])  # nothing is written

    def test_soglie_del_firmware(self):
        def Corpo(firmware):
            opzioni, mil, rmsavg = FIRMWARE[firmware]
            with Peer(fw=firmware, regole={"?CRA": "CRA=N/A"}) as peer:
                voci = Voci(self.Identifica(peer))
            self.assertEqual((voci["mil"], voci["rmsavg"]), (mil, rmsavg))
            self.assertEqual(voci["firmware"], firmware)
            self.assertEqual(peer.comandi, [*INIZIO, "#?BCD*", *opzioni, *FINE])

        InParallelo(self, FIRMWARE, Corpo)

    def test_risposte_scomode(self):
        """Late, torn, doubled and noisy replies are read; refused or garbled ones are asked again."""
        casi = {
            "each byte by itself": dict(spezza=True),
            "late, yet in time": dict(ritardo=0.4),
            "two lines at once": dict(regole={"?MIL": "MIL=OK\r\nMIL=N/A"}),
            "noise first": dict(regole={"?BCD": ["\x00\xff?%", "BCD=OFF"]}),
            "nothing first": dict(regole={"?S/N": [None, "S/N=KR-0042"], "ASBK": [None, "SBK=OK"]}),
            "half a line first": dict(regole={"?IDN": [b"IDN=5520-F", "IDN=5520-FW - 2.20 12/03/18"]}),
        }  # fmt: skip

        def Corpo(nome):
            with Peer(**casi[nome]) as peer:
                voci = Voci(self.Identifica(peer))
            self.assertEqual(voci["model"], "5520")
            self.assertEqual(voci["serial"], "KR-0042")
            self.assertEqual(voci["mil"], "yes")

        InParallelo(self, casi, Corpo)

    def test_json(self):
        with Peer("5570") as peer:
            voci = json.loads(self.Identifica(peer, "--json").out)
        self.assertEqual((voci["mil"], voci["fmin"], voci["serial"]), (True, 28, "KR-0042"))

    def test_nessuno_risponde(self):
        """The banner comes after four tries; patience ends the wait, and it costs no processor."""
        with Peer(muto=True) as peer:
            esito = self.Identifica(peer, pazienza=1)
        self.assertEqual(esito.codice, 3, str(esito))
        self.assertEqual(esito.out, "")
        self.assertIn("Error Abort Sweep\n", esito.err)
        self.assertGreaterEqual(peer.comandi.count("#ASBK*"), 4)
        self.assertEqual(set(peer.comandi), {"#ASBK*"})
        self.assertGreater(esito.secondi, 3)
        self.assertLess(esito.processore, 0.1 * esito.secondi)

    def test_muto_a_ogni_domanda(self):
        """Whichever question stays without its answer: status 3, and the words of that question."""
        parole = {"?BCD": "Read signal analyzer", "?MIL": "Read Enabling Filtres MIL",
                  "?CRA": "Read Enabling Rms-Avg", "?S/N": "Read S/N", "?IDN": "Reading FW"}  # fmt: skip

        def Corpo(domanda):
            with Peer(regole={domanda: None}) as peer:
                esito = self.Identifica(peer, pazienza=0.3)
            self.assertEqual(esito.codice, 3, str(esito))
            self.assertIn("Error " + parole[domanda], esito.err)
            self.assertEqual(esito.out, "")

        InParallelo(self, parole, Corpo)

    def test_linea_assente(self):
        casi = ["tty:" + str(self.dati / "ttyNONE"), "com:7", "tty:/dev/null"]
        for link in casi:
            with self.subTest(link=link):
                esito = self.Orvane("--link", link, "identify")
                self.assertEqual(esito.codice, 3, str(esito))
                self.assertNotEqual(esito.err, "")

    def test_un_link_com(self):
        """A link in the folder Ports of the data root gives a line its COM number."""
        with Peer() as peer:
            (self.dati / "Ports").mkdir()
            (self.dati / "Ports" / "COM3").symlink_to(peer.percorso)
            esito = self.Orvane("--link", "com:3", "identify")
            self.assertEqual(Voci(esito).get("model"), "5520", str(esito))
            forzato = self.Orvane("--link", "com:1", "COMM=3", "identify")
            self.assertEqual(Voci(forzato).get("model"), "5520", str(forzato))
        self.assertEqual(peer.comandi.count("#?IDN*"), 2)


if __name__ == "__main__":
    Esegui()
