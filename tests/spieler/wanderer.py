"""Restless hands: throws clicks, keys, menu choices, window moves, changes of focus and waits at
the program, and looks now and then whether what it shows still agrees with itself.

A long walk also judges the memory of the program. A build with sanitizers is not judged: it keeps
what was freed. Its figure means something with
ASAN_OPTIONS=quarantine_size_mb=0:thread_local_quarantine_size_kb=0:malloc_context_size=1

usage: tests/spieler/buehne wanderer.py PROGRAM [SECONDS [SEED]]
"""

import random
import sys

from modell import *
from sinne import *

TASTEN = ("ctrl+n", "ctrl+s", "ctrl+o", "F1", "Escape", "Return", "j", "n", "J", "N", "alt+a",
          "Tab", "space", "shift+space", "Left", "Down", "z", "3", "alt+Tab", "alt+i b", "alt+i z",
          "alt+i s", "alt+s Return", "alt+o Return Return", "alt+o Return Down Return",
          "alt+o Down Down Return", "alt+s Right Right Escape Escape")
ENDE = "alt+s e j", "alt+s e n", "alt+s e Escape", "alt+F4"
PRUEFPAUSE = 15.0  # seconds between two looks at the whole window
# A window or a level has changed or gone while it was looked at.
VERGANGEN = (GLib.GError, IndexError, ValueError, NotImplementedError,
             subprocess.CalledProcessError)
LANGER_LAUF, WACHSTUM = 3000, 2.0  # throws; MB of the last quarter above the first


class Wanderer:
    def __init__(self, pfad, saat):
        self.pfad, self.zufall, self.speicher = pfad, random.Random(saat), []
        self.beginne()

    def beginne(self):
        # A saved game makes the high levels and the end of the game part of the walk.
        ORDNER.mkdir(exist_ok=True)
        stand = [self.zufall.randint(*grenzen) for grenzen in ((0, 40), (-500, 30000), (1, 3))]
        (ORDNER / "w0.sar").write_bytes(zeilen(*stand))
        self.programm = Programm(self.pfad)
        self.speicher.append([])

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
        ziele = [e for e in alle(self.fenster())
                 if e.getRole() in KNOPFROLLEN and e.name != "Beenden"]
        self.zum(self.zufall.choice(ziele), "click", self.zufall.choice((1, 1, 1, 3)))

    def zug(self):
        self.zum(self.fenster(), "mousedown", 1, "mousemove", self.zufall.randrange(1280),
                 self.zufall.randrange(1024), "mouseup", 1)

    def fensterzug(self):
        """Moves a window or puts it away, and gives it back the focus."""
        tat = self.zufall.choice(("windowmove 90 60", "windowmove 350 250", "windowminimize"))
        xdotool(*f"search --onlyvisible --name Glanzgrube {tat} sleep 0.1 windowactivate".split())

    def loese(self):
        """Opens what the numbers force, so that levels are won now and then."""
        self.programm.feld = []
        bild, klicks = self.programm.lies(), []
        for zelle, ist_sarant in Brett(bild["zahlen"]).wissen.items():
            kachel = bild["kacheln"][zelle]
            if bild["tafel"]["Level"] != "0" and ist_sarant and kachel in (VERDECKT, MARKIERT):
                klicks += ["mousemove", *mitte(self.programm.zelle(zelle))]
                klicks += ["click", 3] * (kachel == MARKIERT) + ["click", 1]
        if klicks:
            xdotool(*klicks)

    def datei(self):
        """Answers a file dialog; a random click could lead it out of the data folder."""
        name = self.zufall.choice(("", ORDNER / f"w{self.zufall.randrange(4)}.sar"))
        tippe(name)
        taste("Return" if name else "Escape")

    def wirf(self):
        if any(fenster.name.startswith("Spieldatei") for fenster in self.programm.offene()):
            return self.datei()
        wuerfe = {self.feldklick: 60, self.knopf: 25, self.loese: 4, self.zug: 5,
                  self.fensterzug: 2, lambda: time.sleep(self.zufall.random()): 3,
                  lambda: taste(*self.zufall.choice(100 * TASTEN + ENDE).split()): 28}
        return self.zufall.choices(*zip(*wuerfe.items()))[0]()

    # The look at the whole.

    def pruefe(self):
        """Closes every window but the main one, without a yes, and looks for a contradiction."""
        def ist_leer():
            ohne_ja = [e for dialog in self.programm.offene() for e in alle(dialog)
                       if e.getRole() in KNOPFROLLEN and e.name in ("Schließen", "Nein", "OK")]
            if ohne_ja:  # Some cannot be clicked: they lie off the screen or behind a modal window.
                self.zufall.choice(ohne_ja).queryAction().doAction(0)
            taste("Escape")
            return not self.programm.offene()

        def widersprueche():
            self.programm.feld = []
            try:
                return self.widersprueche(self.programm.lies())
            except (KeyError, ValueError) as fehler:
                return [repr(fehler)]

        warte(ist_leer, lambda: f"offen: {[texte(f) for f in self.programm.offene()]}")
        warte(lambda: not widersprueche(), widersprueche)

    @staticmethod
    def widersprueche(bild):
        """What does not agree within the window; the tiles are the record of play.

        @exception ValueError an opened cell is against the numbers
        """
        tafel, namen = bild["tafel"], {name.rstrip("*") for name in bild["knoepfe"]}
        kacheln, text = list(bild["kacheln"].values()), bild["texte"][0]
        summen = [sum(sum(orte.values()) for linie, orte in bild["zahlen"].items()
                      if linie[0] == art) for art in ("Spalte", "Zeile")]
        level, rest, fehler = (int(tafel[n]) for n in ("Level", "noch offen", "Fehlversuche"))
        anzahl = 76 - level if level else 0
        gewonnen, verloren = level > 0 and rest == 0, fehler == 2
        # Up to level 5 the mode without start cells leaves the text of the step before.
        ergebnis, meldung = ((("400", "450", "500"), "»Nächster Level«") if gewonnen else
                             (("100",), "»Wiederholen«") if verloren else
                             (("leer",), f"Es sind {anzahl} Saranten" if level > 5 else ""))
        regeln = {
            "Zahlen": summen == [anzahl, anzahl],
            "Rest": len(kacheln) == 100 and rest == anzahl - kacheln.count(SARANT),
            "Fehler": fehler == kacheln.count(FEHLER) <= 2,
            "gewonnen": gewonnen == ("Nächster Level" in namen) == ("Spiel speichern" in namen),
            "verloren": verloren == ("Wiederholen" in namen),
            "Moduswahl": (level == 0) == (set(MODI.values()) <= namen),
            "Ergebnis": tafel["Levelpunkte"] in ergebnis and meldung in text}
        brett = Brett(bild["zahlen"] if level else {})
        for zelle, kachel in bild["kacheln"].items():
            if kachel in (SARANT, FEHLER):
                brett.lerne(zelle, kachel == SARANT)
        return [f"{name}: {tafel} {namen} {text}" for name, gilt in regeln.items() if not gilt]

    def beurteile_speicher(self):
        laengster = max(self.speicher, key=len)
        viertel = max(1, len(laengster) // 4)
        mb = [sum(laengster[i * viertel:][:viertel]) / viertel / 1024 for i in range(4)]
        print(f"{len(laengster)} Würfe im längsten von {len(self.speicher)} Läufen, Speicher: "
              + ", ".join(f"{wert:.1f} MB" for wert in mb))
        saniert = b"__asan_init" in Path(self.pfad).read_bytes()
        if len(laengster) >= LANGER_LAUF and mb[3] > mb[0] + WACHSTUM and not saniert:
            raise Abweichung("der Speicher wächst")

    def ist_beendet(self):
        taste("alt+s", "e", "j")
        return self.programm.prozess.poll() is not None

    def wandere(self, sekunden):
        ende, naechste = time.monotonic() + sekunden, 0
        while time.monotonic() < ende:
            try:
                self.wirf()
                if time.monotonic() > naechste:
                    self.pruefe()
                    naechste = time.monotonic() + PRUEFPAUSE
                # What the process holds, but for the pages of files.
                zustand = Path(f"/proc/{self.programm.prozess.pid}/status").read_text()
                kb = re.findall(r"Rss(?:Anon|Shmem):\s+(\d+)", zustand)
                self.speicher[-1].append(sum(map(int, kb)))
            except Exception as fehler:  # The program may have ended while it was looked at.
                time.sleep(1)
                if self.programm.prozess.poll() is None and not isinstance(fehler, VERGANGEN):
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
    WANDERER = Wanderer(sys.argv[1], SAAT)
    try:
        WANDERER.wandere(float(sys.argv[2]) if len(sys.argv) > 2 else 60)
    finally:
        WANDERER.programm.brich_ab()
