"""Plays without a mouse: a level through the accessibility bus alone, one with the keyboard alone,
and shows that the same keys do nothing while no assistive technology is active.

usage: tests/spieler/buehne zugang.py PROGRAM
"""

import spieler
from spieler import *


def druecke_ueber_bus(element, knopf=1):
    """Presses by the action that the element offers for a mouse button."""
    aktionen = element.queryAction()
    gesucht = "Press" if knopf == 1 else "ShowMenu"
    aktionen.doAction([aktionen.getName(i) for i in range(aktionen.nActions)].index(gesucht))


class Tastenhand:
    """Goes to an element with Tab and the arrow keys and presses it with the space bar."""

    def __init__(self):
        self.programm = None

    def fokus(self):
        elemente = list(alle(self.programm.hauptfenster())) + list(self.programm.feld)
        return next((e for e in elemente if e.getState().contains(pyatspi.STATE_FOCUSED)), None)

    def gehe(self, name, passt):
        """Presses a key until the focus is where it should be."""
        def gegangen():
            fokus = self.fokus()
            if fokus is not None and passt(fokus):
                return True
            taste(name)
            return False
        warte(gegangen, f"{name} führt nicht zum Ziel")

    def klicke(self, element, knopf=1):
        if treffer := ZELLE.match(element.name):
            self.gehe("Tab", lambda e: ZELLE.match(e.name))
            for teil, zurueck, vor in (1, "Up", "Down"), (2, "Left", "Right"):
                ziel, ort = int(treffer[teil]), int(ZELLE.match(self.fokus().name)[teil])
                for _ in range(abs(ziel - ort)):
                    taste(vor if ziel > ort else zurueck)
            warte(lambda: self.fokus() == element, "Fokus auf der Zelle")
        else:
            self.gehe("Tab", lambda e: e.getRole() in KNOPFROLLEN and not ZELLE.match(e.name))
            taste(*["Up"] * 12)
            self.gehe("Down", lambda e: e == element)
        taste("space" if knopf == 1 else "shift+space")

    def lies_linien(self, spiel):
        """Z and S tell the numbers of the row and of the column of the focused cell."""
        self.gehe("Tab", lambda e: ZELLE.match(e.name))
        zeile, spalte, _ = ZELLE.match(self.fokus().name).groups()
        for kuerzel, art, nummer in ("z", "Zeile", zeile), ("s", "Spalte", spalte):
            zahlen = spiel.programm.lies()["zahlen"].get((art, int(nummer)), {})
            soll = ", ".join(str(zahlen[k]) for k in sorted(zahlen, reverse=True)) or "leer"
            taste(kuerzel)
            warte(lambda: self.fokus().description == f"{art} {nummer}: {soll}", f"{art} {nummer}")


def spiele_level(pfad, ohr, klicke, vorbereitung=lambda spiel: None):
    spieler.klicke = klicke
    with Spieler(pfad, ohr) as spiel:
        vorbereitung(spiel)
        spiel.schritt("Neues Spiel", spiel.modell.neues_spiel())
        zelle = spiel.zelle_mit(VERDECKT)
        for _ in "Marke", "keine Marke":
            spiel.markiere(zelle)
        spiel.gewinne()
        spiel.schritt("Nächster Level", spiel.modell.naechster_level())
        return spiel


def tasten_tun_nichts(pfad):
    """Without assistive technology: the screen stays as it is whatever is typed."""
    def schirm():
        return subprocess.run(["import", "-window", "root", "rgb:-"], stdout=subprocess.PIPE).stdout
    umgebung = os.environ | {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/fehlt"}
    prozess = subprocess.Popen([pfad], env=umgebung)
    try:
        suche = "xdotool search --onlyvisible --name".split() + [TITEL]
        warte(lambda: subprocess.run(suche, stdout=subprocess.DEVNULL).returncode == 0, "Fenster")
        time.sleep(1)
        taste("ctrl+n")  # A menu shortcut works, and ends the blinking of the arrow.
        time.sleep(1)
        vorher = schirm()
        taste("Tab", "Tab", "Down", "Right", "space", "shift+space", "z", "s", "shift+Tab", "Return")
        time.sleep(0.5)
        if schirm() != vorher:
            raise Abweichung("eine Taste hat ohne Hilfsmittel gewirkt")
    finally:
        prozess.terminate()
        prozess.wait()


def main():
    pfad, ohr = sys.argv[1], Ohr()
    tasten_tun_nichts(pfad)
    spiele_level(pfad, ohr, druecke_ueber_bus)
    hand = Tastenhand()

    def bereite_vor(spiel):
        hand.programm = spiel.programm
        hand.lies_linien(spiel)

    spiele_level(pfad, ohr, hand.klicke, bereite_vor)
    ohr.schliesse()


if __name__ == "__main__":
    main()
