"""Restless hands: throws clicks, keys, menu choices, window moves, changes of focus and waits at
the program, and looks now and then whether what it shows still agrees with itself.

A long walk also judges the memory of the program. A build with sanitizers is not judged: it keeps
what was freed. Its figure means something with
ASAN_OPTIONS=quarantine_size_mb=0:thread_local_quarantine_size_kb=0:malloc_context_size=1

usage: tests/driver/stage monkey.py PROGRAM [SECONDS [SEED]]
"""

import random
import re
import subprocess
import sys
import time
from pathlib import Path

import pyatspi
from gi.repository import GLib
from hands import Bushand, Maushand, im_blick, xdotool
from model import FEHLER, MARKIERT, MODI, SARANT, VERDECKT, Brett, Widerspruch
from audio import Ohr
from senses import ORDNER, TITEL, Abweichung, Programm, ist, knoepfe, mitte, texte, warte
from driver import LISTE, lege_ab

TASTEN = ("ctrl+n", "ctrl+s", "ctrl+o", "F1", "Escape", "Return", "j", "n", "J", "N", "alt+a",
          "Tab", "space", "shift+space", "Left", "Down", "z", "3", "alt+Tab", "alt+i b", "alt+i z",
          "alt+i s", "alt+s Return", "alt+o Return Return", "alt+o Return Down Return",
          "alt+o Down Down Return", "alt+s Right Right Escape Escape")
ENDE = "alt+s e j", "alt+s e n", "alt+s e Escape", "alt+F4"
PRUEFPAUSE = 15.0  # seconds between two looks at the whole window
# A window has changed or gone while it was looked at.
VERGANGEN = (GLib.GError, IndexError, KeyError, NotImplementedError, subprocess.CalledProcessError)
LANGER_LAUF, WACHSTUM = 60, 2.0  # looks; MB of the last quarter above the first


class Wanderer:
    def __init__(self, pfad, saat):
        self.pfad, self.zufall = pfad, random.Random(saat)
        self.hand, self.bus = Maushand(), Bushand()
        self.speicher = []  # MB by run and look
        self.beginne()

    def beginne(self):
        # A saved game makes the high levels and the end of the game part of the walk.
        grenzen = (0, 40), (-500, 30000), (1, 3)
        lege_ab("w0.sar", *(self.zufall.randint(*grenze) for grenze in grenzen))
        self.programm = Programm(self.pfad)
        self.speicher.append([])
        self.gesehen = {}  # Every button that was ever visible, by window and name.

    # The throws.

    def zum(self, element, *weiter):
        """Moves the mouse to some point of the element and goes on from there."""
        lage, wo = element.queryComponent().getExtents(pyatspi.DESKTOP_COORDS), self.zufall.random
        xdotool("mousemove", max(0, lage.x + int(wo() * lage.width)),
                max(0, lage.y + int(wo() * lage.height)), *weiter)

    def fenster(self):
        return self.zufall.choice([self.programm.hauptfenster()] + 3 * self.programm.offene())

    def feldklick(self):
        self.zum(self.programm.hauptfenster()[0][0], "click", self.zufall.choice((1, 1, 3, 3, 2)))

    def knopf(self):
        """Any button of any window, so that each phase and each window is left again."""
        ziele = [e for e in knoepfe(self.fenster()) if e.name != "Beenden"]
        self.zum(self.zufall.choice(ziele), "click", self.zufall.choice((1, 1, 1, 3)))

    def zug(self):
        self.zum(self.fenster(), "mousedown", 1, "mousemove", self.zufall.randrange(1280),
                 self.zufall.randrange(1024), "mouseup", 1)

    def deckel(self):
        """A click on the cover brings the minimised game back."""
        if not self.programm.offene():
            self.hand.taste("Escape", "Escape")  # An open menu would take the click for itself.
            xdotool("windowminimize", im_blick(TITEL), "sleep", 0.5)
            xdotool("mousemove", 5, 5, "click", 1)
            im_blick(TITEL)

    def griff(self):
        """Presses any control over the bus. What no mouse can reach must not act."""
        haupt, offene = self.programm.hauptfenster(), self.programm.offene()
        for fenster in haupt, *offene:
            self.gesehen |= {(fenster.name, e.name): e for e in knoepfe(fenster)}
        zelle = self.zufall.choice(list(haupt[0][0]))
        (titel, name), element = self.zufall.choice([*self.gesehen.items(), ((TITEL, ""), zelle)])
        wartend = [f for f in offene if f.name != LISTE]  # The list may stand beside the game.
        verdeckt = wartend and element in [zelle, *knoepfe(haupt)]
        vorher = None if ist(element) and not verdeckt else self.programm.ruhe()
        time.sleep(0.5 * bool(vorher))
        if vorher and self.programm.ruhe() != vorher:
            return  # What was thrown before is still at work.
        self.bus.klicke(element)
        try:
            gleich = not vorher or self.programm.ruhe() == vorher
        except (Abweichung, *VERGANGEN):
            gleich = False  # It has ended the program.
        if not gleich:
            raise Widerspruch(f"{name} in {titel} wirkt, obwohl keine Maus dort hinkommt")

    def dauerdruck(self):
        """Holds a key for a second. What Space has done, its repeats must not go on with."""
        taste = self.zufall.choice(("space", "space", "Return", "j", "Tab", "Down"))
        try:
            xdotool("keydown", taste)
            vorher = self.programm.ruhe()
            time.sleep(1)
            if taste == "space" and self.programm.ruhe() != vorher:
                raise Widerspruch("eine gehaltene Leertaste wirkt mehr als einmal")
        finally:
            xdotool("keyup", taste)

    def loese(self):
        """Opens what the numbers force, so that levels are won now and then."""
        bild, klicks = self.programm.ruhe()[0], []
        level = int(bild["tafel"]["Level"])
        for zelle, ist_sarant in Brett(bild["zahlen"], 76 - level).wissen.items() if level else ():
            kachel = bild["kacheln"][zelle]
            if ist_sarant and kachel in (VERDECKT, MARKIERT):
                klicks += ["mousemove", *mitte(self.programm.zelle(zelle))]
                klicks += ["click", 3] * (kachel == MARKIERT) + ["click", 1]
        if klicks:
            xdotool(*klicks)

    def datei(self):
        """Answers a file dialog; a random click could lead it out of the data folder."""
        name = self.zufall.choice(("", ORDNER / f"w{self.zufall.randrange(4)}.sar"))
        self.hand.tippe(name)
        self.hand.taste("Return" if name else "Escape")

    def wirf(self):
        if any(fenster.name.startswith("Spieldatei") for fenster in self.programm.offene()):
            return self.datei()
        wuerfe = {self.feldklick: 60, self.knopf: 25, self.loese: 4, self.zug: 5,
                  self.deckel: 1, self.griff: 10, self.dauerdruck: 2,
                  lambda: time.sleep(self.zufall.random()): 3,
                  lambda: self.hand.taste(*self.zufall.choice(100 * TASTEN + ENDE).split()): 28}
        return self.zufall.choices(*zip(*wuerfe.items()))[0]()

    # The look at the whole.

    def pruefe(self):
        """Closes every window but the main one, without a yes, and looks for a contradiction."""
        def ist_leer():
            for e in [e for dialog in self.programm.offene() for e in knoepfe(dialog)]:
                if e.name in ("Schließen", "Nein", "OK"):
                    self.bus.klicke(e)
            self.hand.taste("Escape")
            return not self.programm.offene()

        warte(ist_leer, lambda: f"offen: {[texte(f) for f in self.programm.offene()]}")
        self.urteile(self.programm.ruhe()[0])
        # What the process holds, but for the pages of files.
        zustand = Path(f"/proc/{self.programm.prozess.pid}/status").read_text()
        kb = re.findall(r"Rss(?:Anon|Shmem):\s+(\d+)", zustand)
        self.speicher[-1].append(sum(map(int, kb)) / 1024)

    @staticmethod
    def urteile(bild):
        """Looks for what does not agree within the window; the tiles are the record of play.

        @exception Widerspruch
        """
        tafel, namen = bild["tafel"], {name.rstrip("*") for name in bild["knoepfe"]}
        kacheln = list(bild["kacheln"].values())
        level, rest, fehler = (int(tafel[n]) for n in ("Level", "noch offen", "Fehlversuche"))
        anzahl = 76 - level if level else 0
        gewonnen, verloren = level > 0 and rest == 0, fehler == 2
        ergebnis = "[45]" if gewonnen else "minus 100" if verloren else "leer"
        regeln = {
            "Rest": len(kacheln) == 100 and rest == anzahl - kacheln.count(SARANT),
            "Fehler": fehler == kacheln.count(FEHLER) <= 2,
            "gewonnen": gewonnen == ("Nächster Level" in namen) == ("Spiel speichern" in namen),
            "verloren": verloren == ("Wiederholen" in namen),
            "Moduswahl": (level == 0) == (set(MODI.values()) <= namen),
            "Ergebnis": re.match(ergebnis, tafel["Levelpunkte"])}
        if gebrochen := [name for name, gilt in regeln.items() if not gilt]:
            raise Widerspruch(gebrochen, tafel, namen)
        brett = Brett(bild["zahlen"], anzahl)
        for zelle, kachel in bild["kacheln"].items():
            if kachel in (SARANT, FEHLER):
                brett.lerne(zelle, kachel == SARANT)

    def beurteile_speicher(self):
        laengster = max(self.speicher, key=len)
        viertel = len(laengster) // 4 or 1
        zuwachs = (sum(laengster[-viertel:]) - sum(laengster[:viertel])) / viertel
        print(f"{len(self.speicher)} Läufe, {len(laengster)} Blicke im längsten: {zuwachs:.1f} MB")
        saniert = b"__asan_init" in Path(self.pfad).read_bytes()
        if len(laengster) >= LANGER_LAUF and zuwachs > WACHSTUM and not saniert:
            raise Abweichung("der Speicher wächst")

    def ist_beendet(self):
        self.hand.taste("alt+s", "e", "j")
        return self.programm.prozess.poll() is not None

    def wandere(self, sekunden):
        ende, naechste = time.monotonic() + sekunden, 0
        while time.monotonic() < ende:
            try:
                self.wirf()
                if time.monotonic() > naechste:
                    self.pruefe()
                    naechste = time.monotonic() + PRUEFPAUSE
            except Exception as fehler:  # The program may have ended while it was looked at.
                time.sleep(1)
                lebt = self.programm.prozess.poll() is None
                if isinstance(fehler, Widerspruch) or lebt and not isinstance(fehler, VERGANGEN):
                    raise
            if self.programm.prozess.poll() is not None:
                self.programm.ende()
                self.beginne()
        self.pruefe()
        warte(self.ist_beendet, "Ende")
        self.programm.ende()
        self.beurteile_speicher()


if __name__ == "__main__":
    SAAT = int(sys.argv[3]) if len(sys.argv) > 3 else time.time_ns() // 10**6
    print(f"Saat {SAAT}", flush=True)
    OHR = Ohr(sys.argv[1])
    WANDERER = Wanderer(sys.argv[1], SAAT)
    try:
        WANDERER.wandere(float(sys.argv[2]) if len(sys.argv) > 2 else 60)
    finally:
        WANDERER.programm.brich_ab()
