"""Plays without a mouse: a level through the accessibility bus alone, one with the keyboard alone.

usage: [SCREEN=weston] tests/driver/stage access_scenarios.py PROGRAM     weston has the bus alone
"""

import os
import sys

from hands import Bushand, Tastenhand
from model import VERDECKT
from audio import Ohr
from senses import ZELLE, warte
from driver import LISTE, Spieler


def spiele_level(spiel):
    spiel.schritt("Neues Spiel", spiel.modell.neues_spiel())
    zelle = spiel.zelle_mit(VERDECKT)
    for _ in "Marke", "keine Marke":
        spiel.markiere(zelle)
    spiel.gewinne()
    spiel.schritt("Nächster Level", spiel.modell.naechster_level())


def spiele_ueber_bus(spiel):
    spiel.frage("Info", "Info", "OK")
    spiel.lies_liste()
    spiel.druecke("OK", titel=LISTE)
    spiel.warte_bis_zu(LISTE)
    spiele_level(spiel)
    spiel.frage("Neues Spiel", "neu", "Nein")
    spiel.beende()


def lies_linien(spiel):
    """Z and S tell the numbers of the row and of the column of the focused cell."""
    app = spiel.programm.app
    zelle = ZELLE.match(spiel.hand.gehe(app, "Tab", lambda e: ZELLE.match(e.name)).name)
    for kuerzel, linie in ("z", ("Zeile", int(zelle[1]))), ("s", ("Spalte", int(zelle[2]))):
        zahlen = [str(zahl) for zahl in spiel.modell.zahlen.get(linie, {}).values()]
        ansage = f"{linie[0]} {linie[1]}: {', '.join(reversed(zahlen)) or 'leer'}"
        spiel.hand.taste(kuerzel)
        warte(lambda: spiel.hand.fokus(app).description == ansage, ansage)
    spiel.hand.taste("Left", "Right")
    warte(lambda: spiel.hand.fokus(app).description == "", "nichts mehr vorgelesen")


def main(pfad):
    ohr = Ohr(pfad)
    with Spieler(pfad, ohr, Bushand()) as spiel:
        spiele_ueber_bus(spiel)
    if "DISPLAY" in os.environ:
        with Spieler(pfad, ohr, Tastenhand()) as spiel:
            lies_linien(spiel)
            spiele_level(spiel)
            spiel.optionen("Ja", 6, 1, ton=False)
    ohr.schliesse()


if __name__ == "__main__":
    main(sys.argv[1])
