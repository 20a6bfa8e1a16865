"""Restless hands: throws clicks, keys, menu choices, window moves and waits at the program, and
looks now and then whether what it shows still agrees with itself.

usage: tests/spieler/buehne wanderer.py PROGRAM [SECONDS [SEED]]
"""

import random
import sys

from modell import *
from sinne import *

TASTEN = ("ctrl+n", "ctrl+s", "ctrl+o", "F1", "Escape", "Return", "j", "n", "J", "N", "alt+a",
          "Tab", "space", "Left", "Down", "alt+Tab", "a", "3", "alt+i b", "alt+i z", "alt+i s",
          "alt+s Return", "alt+o Return Return", "alt+o Return Down Return",
          "alt+o Down Down Return", "alt+s Right Right Escape Escape")
BEENDEN = "alt+s e j", "alt+s e n", "alt+s e Escape"
PRUEFPAUSE = 15.0  # seconds between two looks at the whole window


class Wanderer:
    def __init__(self, pfad, saat):
        self.pfad, self.zufall, self.speicher = pfad, random.Random(saat), []
        self.beginne()

    def beginne(self):
        # Freed memory that is kept to be watched would hide how much is in use.
        self.programm = Programm(self.pfad, ASAN_OPTIONS="quarantine_size_mb=1")
        self.speicher.append([])

    # The throws.

    def ort(self, element):
        lage = element.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return (max(0, lage.x + self.zufall.randrange(max(1, lage.width))),
                max(0, lage.y + self.zufall.randrange(max(1, lage.height))))

    def feldklicks(self):
        for _ in range(self.zufall.randint(1, 4)):
            knopf = self.zufall.choice((1, 1, 3, 3, 2, 4))
            xdotool("mousemove", *self.ort(self.programm.hauptfenster()[0][0]), "click", knopf)

    def fenster(self):
        return self.zufall.choice([self.programm.hauptfenster()] + 3 * self.programm.offene())

    def knopf(self):
        """Any button of any window, so that each phase and each window is left again."""
        ziele = [e for e in alle(self.fenster())
                 if e.getRole() in KNOPFROLLEN and e.name != "Beenden"]
        knopf = self.zufall.choice((1, 1, 1, 3))
        xdotool("mousemove", *self.ort(self.zufall.choice(ziele)), "click", knopf)

    def zug(self):
        ziel = self.zufall.randrange(1280), self.zufall.randrange(1024)
        xdotool("mousemove", *self.ort(self.fenster()), "mousedown", 1, "mousemove", *ziel,
                "mouseup", 1)

    def fensterzug(self):
        xdotool("search", "--onlyvisible", "--name", "Glanzgrube", "windowmove",
                self.zufall.randrange(600), self.zufall.randrange(300), "windowactivate")

    def loese(self):
        """Opens what the numbers force, so that levels are won now and then."""
        self.programm.feld = []
        bild = self.programm.lies()
        if bild["tafel"]["Level"] == "0":
            return
        klicks = []
        for zelle, ist_sarant in Brett(bild["zahlen"]).wissen.items():
            if ist_sarant and bild["kacheln"][zelle] in (VERDECKT, MARKIERT):
                knoepfe_ = (3, 1) if bild["kacheln"][zelle] == MARKIERT else (1,)
                klicks += ["mousemove", *mitte(self.programm.zelle(zelle))]
                klicks += [wort for k in knoepfe_ for wort in ("mousedown", k, "mouseup", k)]
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
        wuerfe = ((40, self.feldklicks), (25, self.knopf), (4, self.loese), (5, self.zug),
                  (2, self.fensterzug), (3, lambda: time.sleep(self.zufall.random())),
                  (28, lambda: taste(*self.zufall.choice(TASTEN).split())),
                  (0.2, lambda: taste(*self.zufall.choice(BEENDEN).split())))
        gewichte, handlungen = zip(*wuerfe)
        return self.zufall.choices(handlungen, gewichte)[0]()

    # The look at the whole.

    def pruefe(self):
        """Closes every window but the main one, without a yes, and looks for a contradiction."""
        def ist_leer():
            for dialog in self.programm.offene():
                for e in alle(dialog):
                    if e.name in ("Schließen", "Nein", "OK") and e.getRole() in KNOPFROLLEN:
                        klicke(e)
                        break
            taste("Escape")
            return not self.programm.offene()

        def widersprueche():
            self.programm.feld = []
            return self.widersprueche(self.programm.lies())

        warte(ist_leer, lambda: f"offen: {[texte(f) for f in self.programm.offene()]}")
        warte(lambda: not widersprueche(), widersprueche)

    @staticmethod
    def widersprueche(bild):
        """What does not agree within the window; the tiles are the record of play."""
        tafel, namen = bild["tafel"], {name.rstrip("*") for name in bild["knoepfe"]}
        kacheln = list(bild["kacheln"].values())
        spalten, zeilen_ = (sum(sum(orte.values()) for linie, orte in bild["zahlen"].items()
                                if linie[0] == art) for art in ("Spalte", "Zeile"))
        level, rest, fehler = (int(tafel[n]) for n in ("Level", "noch offen", "Fehlversuche"))
        gewonnen, verloren = level > 0 and rest == 0, fehler == 2
        ergebnis = {"400", "450", "500"} if gewonnen else {"100"} if verloren else {"leer"}
        regeln = {
            "Zellen": len(kacheln) == 100,
            "Zahlen": spalten == zeilen_ == (76 - level if level else 0),
            "Rest": rest == zeilen_ - kacheln.count(SARANT),
            "Fehler": fehler == kacheln.count(FEHLER) <= 2,
            "gewonnen": gewonnen == ("Nächster Level" in namen) == ("Spiel speichern" in namen),
            "verloren": verloren == ("Wiederholen" in namen),
            "Moduswahl": (level == 0) == (set(MODI.values()) <= namen),
            "Levelpunkte": tafel["Levelpunkte"] in ergebnis,
            "Text": not (gewonnen or verloren) or bild["texte"][0].startswith("Klicken Sie auf")}
        return [f"{name}: {tafel} {sorted(namen)}" for name, gilt in regeln.items() if not gilt]

    def wandere(self, sekunden):
        ende, naechste, wuerfe = time.monotonic() + sekunden, 0, 0
        while time.monotonic() < ende:
            try:
                self.wirf()
                if time.monotonic() > naechste:
                    self.pruefe()
                    naechste = time.monotonic() + PRUEFPAUSE
                seiten = Path(f"/proc/{self.programm.prozess.pid}/statm").read_text().split()[1]
                self.speicher[-1].append(int(seiten) * os.sysconf("SC_PAGE_SIZE") / 2**20)
            except (GLib.GError, IndexError, ValueError, Abweichung) as fehler:
                # A window, a level or the program has changed or gone while it was looked at.
                time.sleep(1)
                if isinstance(fehler, Abweichung) and self.programm.prozess.poll() is None:
                    raise
            wuerfe += 1
            if self.programm.prozess.poll() is not None:
                self.programm.ende()
                self.beginne()
        self.pruefe()
        taste("ctrl+n", "j", "alt+s", "e", "j")
        self.programm.ende()
        laengster = max(self.speicher, key=len)
        viertel = max(1, len(laengster) // 4)
        mittel = [sum(laengster[i * viertel:][:viertel]) / viertel for i in range(4)]
        print(f"{wuerfe} Würfe in {len(self.speicher)} Läufen; Speicher in den Vierteln des längsten: "
              + ", ".join(f"{mb:.1f} MB" for mb in mittel))


if __name__ == "__main__":
    SAAT = int(sys.argv[3]) if len(sys.argv) > 3 else time.time_ns() // 10**6
    print(f"Saat {SAAT}", flush=True)
    WANDERER = Wanderer(sys.argv[1], SAAT)
    try:
        WANDERER.wandere(float(sys.argv[2]) if len(sys.argv) > 2 else 60)
    finally:
        WANDERER.programm.brich_ab()
