"""Eyes, ears and hands: the program as a person at the screen meets it.

The screen is read through the accessibility bus, sound is recorded from the null sink, and mouse
and keyboard are moved through the X server. Nothing here knows a rule of the game.
"""

import array
import os
import re
import subprocess
import threading
import time
import wave
from pathlib import Path

import pyatspi
from gi.repository import GLib

BUEHNE = Path(os.environ["BUEHNE"])
ORDNER = Path(os.environ["XDG_DATA_HOME"], "nachtkammern")
STDERR = BUEHNE / "stderr"
GEDULD = 20.0  # seconds

TITEL = "Glanzgrube  Vers.: 3.2.0"
ZELLE = re.compile(r"Zeile (\d+), Spalte (\d+): (\w+)$")
ZAHL = re.compile(r"(Zeile|Spalte) (\d+), Zahl (\d+): (\d+)$")
TAFEL = re.compile(r"(Punkte|Levelpunkte|Fehlversuche|noch offen|Level): (\w+)$")
KNOPFROLLEN = pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_CHECK_BOX


class Abweichung(Exception):
    """What is seen or heard differs from what the rules say."""


def warte(bedingung, was, geduld=GEDULD):
    """Polls until the condition gives a true value, and returns that value."""
    ende = time.monotonic() + geduld
    while time.monotonic() < ende:
        try:
            if wert := bedingung():
                return wert
        except (GLib.GError, NotImplementedError):
            pass  # A control has gone while it was looked at.
        time.sleep(0.02)
    raise Abweichung(f"vergeblich gewartet: {was() if callable(was) else was}")


class Ohr(threading.Thread):
    """Remembers the peak of every hundredth of a second that the null sink has played."""

    RATE = 44100
    LEISE = 30
    STILLE = 12  # Hundredths without a signal that end an effect.
    LUECKE = 60  # Hundredths that may be missing within an effect while the machine is busy.

    def __init__(self):
        super().__init__(daemon=True)
        self.spitzen = []
        self.aufnahme = subprocess.Popen(
            ["parec", "-d", "@DEFAULT_MONITOR@", "--format=s16le", f"--rate={self.RATE}",
             "--channels=1", "--latency-msec=20"], stdout=subprocess.PIPE)
        self.start()
        warte(lambda: self.spitzen, "Aufnahme")

    @staticmethod
    def spitze(daten):
        werte = array.array("h", daten)
        return max(max(werte), -min(werte))

    def run(self):
        while daten := self.aufnahme.stdout.read(self.RATE // 100 * 2):
            self.spitzen.append(self.spitze(daten))

    def laenge(self, spitzen):
        """Hundredths from the first to the last signal."""
        laut = [i for i, spitze in enumerate(spitzen) if spitze > self.LEISE]
        return laut[-1] - laut[0] + 1 if laut else 0

    def laenge_der_datei(self, pfad):
        with wave.open(str(pfad)) as datei:
            takt = datei.getframerate() // 100 * datei.getnchannels() * datei.getsampwidth()
            daten = datei.readframes(datei.getnframes())
        return self.laenge([self.spitze(daten[i:i + takt]) for i in range(0, len(daten), takt)])

    def hoere(self, seit, geduld, mindestens):
        """Waits for a signal and for its end; returns its length, 0 if none came in time."""
        def still():
            spitzen = self.spitzen[seit:]
            ende = self.STILLE if self.laenge(spitzen) >= mindestens else self.LUECKE
            return not self.laenge(spitzen[-ende:])

        ende = time.monotonic() + geduld
        while time.monotonic() < ende and not self.laenge(self.spitzen[seit:]):
            time.sleep(0.02)
        warte(still, "Stille")
        if max(self.spitzen[seit:], default=0) >= 32767:
            raise Abweichung("der Klang ist übersteuert")
        return self.laenge(self.spitzen[seit:])

    def schliesse(self):
        self.aufnahme.terminate()
        self.aufnahme.wait()


def xdotool(*woerter):
    subprocess.run(["xdotool", *map(str, woerter)], check=True, stdout=subprocess.DEVNULL)


def taste(*namen):
    xdotool("key", "--delay", "40", *namen)


def tippe(text):
    xdotool("type", "--delay", "40", text)


def mitte(element):
    lage = element.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return lage.x + lage.width // 2, lage.y + lage.height // 2


def klicke(element, knopf=1):
    xdotool("mousemove", *mitte(element), "mousedown", knopf, "mouseup", knopf)


def alle(element):
    """The element and everything below it, but for the cells and numbers of the playfield."""
    yield element
    if element.name != "Spielfeld":
        for kind in filter(None, element):
            yield from alle(kind)


def texte(fenster):
    return [e.name for e in alle(fenster) if e.getRole() == pyatspi.ROLE_LABEL]


def knoepfe(fenster):
    """The words on all buttons, with an asterisk behind those that are chosen."""
    return {e.name + "*" * e.getState().contains(pyatspi.STATE_CHECKED)
            for e in alle(fenster) if e.getRole() in KNOPFROLLEN}


class Programm:
    """One run of the game."""

    def __init__(self, pfad, **umgebung):
        with open(STDERR, "w") as stderr:
            self.prozess = subprocess.Popen([pfad], env=os.environ | umgebung, stderr=stderr)
        self.app = warte(lambda: next((app for app in filter(None, pyatspi.Registry.getDesktop(0))
                                       if app.get_process_id() == self.prozess.pid), None),
                         "Programm auf dem Bus", 60)
        # The names of the cells change with every step: nothing may be remembered here.
        self.app.set_cache_mask(pyatspi.Atspi.Cache.NONE)
        self.feld = []

    def offene(self, rolle=pyatspi.ROLE_DIALOG):
        return [f for f in self.app if f and f.getRole() == rolle
                and f.getState().contains(pyatspi.STATE_SHOWING)]

    def fenster(self, titel, rolle=pyatspi.ROLE_DIALOG):
        """The window of this name and role, or None if it is not shown."""
        return next((f for f in self.offene(rolle) if f.name == titel), None)

    def hauptfenster(self):
        return warte(lambda: self.fenster(TITEL, pyatspi.ROLE_FRAME), "Hauptfenster")

    def knopf(self, name, fenster=None):
        """A button or a menu entry by the words on it."""
        return warte(lambda: next((e for e in alle(fenster or self.hauptfenster()) if e.name == name
                                   and e.getState().contains(pyatspi.STATE_SHOWING)), None),
                     f"Knopf {name}")

    def zelle(self, zelle):
        return self.feld[10 * (zelle[0] - 1) + zelle[1] - 1]

    def lies(self):
        """Everything that the main window shows, in the form of the model's view."""
        flaeche = self.hauptfenster()[0]
        if len(self.feld) != flaeche[0].childCount:
            self.feld = list(flaeche[0])
        bild = {"kacheln": {}, "zahlen": {}, "tafel": {}, "texte": [], "knoepfe": knoepfe(flaeche)}
        for name in [element.name for element in self.feld] + texte(flaeche):
            if treffer := ZELLE.match(name):
                bild["kacheln"][int(treffer[1]), int(treffer[2])] = treffer[3]
            elif treffer := ZAHL.match(name):
                linie = bild["zahlen"].setdefault((treffer[1], int(treffer[2])), {})
                linie[int(treffer[3])] = int(treffer[4])
            elif treffer := TAFEL.match(name):
                bild["tafel"][treffer[1]] = treffer[2]
            else:
                bild["texte"].append(name)
        return bild

    def ende(self):
        """The process must have ended well, and no sanitizer may have said a word."""
        ergebnis, gesagt = self.prozess.wait(GEDULD), STDERR.read_text()
        if ergebnis or "Sanitizer" in gesagt or "runtime error" in gesagt:
            raise Abweichung(f"Ende mit {ergebnis}\n{gesagt}")

    def brich_ab(self):
        if self.prozess.poll() is None:
            self.prozess.kill()
            self.prozess.wait()
