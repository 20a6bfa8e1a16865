"""The ear: a sound server whose only device is a null sink, and what that device has played."""

import array
import atexit
import subprocess
import threading
import time
import wave
from itertools import pairwise, zip_longest

from senses import Abweichung, beilage, warte

RATE = 44100
TAKT = RATE // 100 * 2  # bytes of a hundredth of a second
LEISE = 30
RUHE = 0.4  # seconds without a signal that prove that there is no effect
STILLE = 12  # hundredths without a signal that end an effect
ABGESCHNITTEN = 12  # hundredths of its end that the sound system may swallow


def tonhoehe(daten):
    """How often a hundredth of a second changes its sign; 0 if it is silent."""
    werte = array.array("h", daten)
    if max(werte) <= LEISE and min(werte) >= -LEISE:
        return 0
    return sum((a < 0) != (b < 0) for a, b in pairwise(werte)) or 1


def verlauf(pfad):
    """The pitches of a sound file."""
    with wave.open(str(pfad)) as datei:
        daten = datei.readframes(datei.getnframes())
    return list(filter(None, (tonhoehe(daten[i:i + TAKT]) for i in range(0, len(daten), TAKT))))


class Ohr(threading.Thread):
    """Remembers the pitch of every hundredth of a second that the device has played."""

    def __init__(self, pfad, geraet=True):
        super().__init__(daemon=True)
        self.klaenge = {datei.name: verlauf(datei) for datei in beilage(pfad, "").glob("*.WAV")}
        self.takte, self.gehoert, self.prozesse = [], 0, []
        atexit.register(self.schliesse)
        self.starte("pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--log-target=null",
                    "--exit-idle-time=60", "-L", "module-native-protocol-unix")
        warte(lambda: self.pactl("info") == 0, "Klangserver")
        if geraet:
            self.schliesse_geraet_an()

    def starte(self, *befehl):
        self.prozesse.append(subprocess.Popen(befehl, stdout=subprocess.PIPE))
        return self.prozesse[-1]

    @staticmethod
    def pactl(*woerter):
        return subprocess.run(["pactl", *woerter], capture_output=True).returncode

    def schliesse_geraet_an(self):
        self.pactl("load-module", "module-null-sink")
        self.starte("parec", "-d", "@DEFAULT_MONITOR@", "--format=s16le", f"--rate={RATE}",
                    "--channels=1", "--latency-msec=20")
        self.start()
        warte(lambda: self.takte, "Aufnahme")

    def run(self):
        while daten := self.prozesse[-1].stdout.read(TAKT):
            self.takte.append(tonhoehe(daten))

    def neues(self):
        """The pitches of what was not listened to before. Gaps of a busy machine are left out."""
        return list(filter(None, self.takte[self.gehoert:]))

    def erkenne(self, toene):
        """The name of the sound that resembles these pitches most. Its end may be missing."""
        def abstand(name):
            klang = self.klaenge[name]
            paare = zip_longest(toene, klang[:max(len(toene), len(klang) - ABGESCHNITTEN)],
                                fillvalue=0)
            return sum(abs(a - b) for a, b in paare)
        return min(self.klaenge, key=abstand) if toene else None

    def lausche(self, mindestens):
        """Waits for so many hundredths of sound and for its end, and returns its pitches."""
        warte(lambda: len(self.neues()) >= mindestens,
              lambda: f"{mindestens} Hundertstel Klang, gehört: {self.erkenne(self.neues())}")
        warte(lambda: not any(self.takte[-STILLE:]), "Stille")
        toene, self.gehoert = self.neues(), len(self.takte)
        return toene

    def hoere(self, klang):
        """Nothing but this sound has been heard since the last time, or nothing at all."""
        soll = len(self.klaenge[klang]) if klang else 0
        if not klang:
            time.sleep(RUHE)
        toene = self.lausche(max(soll - ABGESCHNITTEN, min(soll, 1)))
        if self.erkenne(toene) != klang or len(toene) > soll + 5:
            gehoert = self.erkenne(toene), len(toene)
            raise Abweichung(f"Klang und Hundertstel {gehoert} statt {klang, soll}")

    def schliesse(self):
        for prozess in reversed(self.prozesse):
            prozess.kill()
            prozess.wait()
