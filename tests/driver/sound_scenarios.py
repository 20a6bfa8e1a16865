"""The road of a sound, with a real sound server: one that stands still, dies and comes back, never
answers, or gets its device late. The game must neither wait for it nor lose it.

usage: tests/driver/stage sound_scenarios.py PROGRAM
"""

import signal
import socket
import sys
import time

import pyatspi
from model import BLIP, TADA
from audio import Ohr
from senses import STAGE, Abweichung, ist, warte
from driver import OPTIONEN, Spieler
from stopwatch import Stoppuhr

KLICKS = 20
HAENGT = 2000  # milliseconds to the changed pixel that no busy machine explains


def klicke_zuegig(spiel, was):
    """Opens gems, and tells how long the slowest took to be seen."""
    spiel.hand.zeiten.clear()
    for zelle in spiel.verdeckte()[:KLICKS]:
        spiel.klicke(zelle)
        spiel.modell.klicke_links(zelle)
    spiel.vergleiche()
    print(f"{was}: {KLICKS} Klicks, der langsamste {max(spiel.hand.zeiten):.1f} ms")
    if max(spiel.hand.zeiten) > HAENGT:
        raise Abweichung(f"{was}: Das Fenster hängt")


def klingt_wieder(spiel):
    """The second click is heard, at the latest."""
    for _ in range(2):
        time.sleep(1)
        spiel.ohr.lausche(0)
        spiel.klicke(zelle := spiel.verdeckte()[0])
        spiel.modell.klicke_links(zelle)
    spiel.hoere(BLIP)


def stocke(spiel):
    """The server stops in mid-game, and goes on."""
    server = spiel.ohr.prozesse[0]
    spiel.schritt("Neues Spiel", spiel.modell.neues_spiel())
    server.send_signal(signal.SIGSTOP)
    klicke_zuegig(spiel, "Server steht")
    server.send_signal(signal.SIGCONT)
    klingt_wieder(spiel)


def stirb(spiel, pfad):
    """The server dies, is away for a while, and another takes its place."""
    spiel.ohr.schliesse()
    klicke_zuegig(spiel, "Server ist fort")
    time.sleep(10)
    spiel.ohr = Ohr(pfad)
    klingt_wieder(spiel)


def schneide_ab(spiel):
    """The sound of the win is cut off by that of the next level."""
    spiel.gewinne(uebrig=1)
    letzte = spiel.verdeckte()[0]
    spiel.klicke(letzte)
    spiel.druecke("Nächster Level")
    spiel.modell.klicke_links(letzte)
    spiel.modell.naechster_level()
    spiel.vergleiche()
    toene = spiel.ohr.lausche(len(spiel.ohr.klaenge[BLIP]))
    ende = spiel.ohr.erkenne(toene[-8:])
    if ende != BLIP or len(toene) >= len(spiel.ohr.klaenge[TADA]):
        raise Abweichung(f"{len(toene)} Hundertstel, am Ende {ende}")


def spaetes_geraet(pfad):
    """Without a device the menu offers no sound; with one it does, in the same run."""
    ohr = Ohr(pfad, geraet=False)
    with Spieler(pfad, ohr, ton=False) as spiel:
        spiel.druecke("Optionen             ")
        if ist(spiel.programm.knopf("Sound"), pyatspi.STATE_ENABLED):
            raise Abweichung("Das Menü bietet Klang ohne Gerät an")
        spiel.hand.taste("Escape", "Escape")
        spiel.tue("Einstellungen")
        spiel.frage(lambda: spiel.druecke("Soundeffekt", titel=OPTIONEN), "keine Karte", "OK")
        spiel.druecke("Schließen", titel=OPTIONEN)
        spiel.warte_bis_zu(OPTIONEN)
        ohr.schliesse_geraet_an()
        spiel.druecke("Optionen             ")
        warte(lambda: ist(spiel.programm.knopf("Sound"), pyatspi.STATE_ENABLED), "Sound im Menü")
        spiel.hand.taste("Escape", "Escape")
        spiel.tue("alt+o Return Return")  # Sound, an
        spiel.modell.ton = True
        spiel.schritt("Neues Spiel", spiel.modell.neues_spiel())
        spiel.beende()
    ohr.schliesse()


def stummer_server(pfad):
    """A socket that takes every connection and never answers."""
    with socket.socket(socket.AF_UNIX) as dose:
        dose.bind(str(STAGE / "stumm"))
        dose.listen(100)
        ohr = Ohr(pfad)
        adresse = f"unix:{STAGE}/stumm"
        with Spieler(pfad, ohr, Stoppuhr(), ton=False, PULSE_SERVER=adresse) as spiel:
            spiel.schritt("Neues Spiel", spiel.modell.neues_spiel())
            klicke_zuegig(spiel, "Server antwortet nie")
            spiel.beende()
        ohr.schliesse()


def main(pfad):
    with Spieler(pfad, Ohr(pfad), Stoppuhr()) as spiel:
        stocke(spiel)
        stirb(spiel, pfad)
        schneide_ab(spiel)
        spiel.beende()
        spiel.ohr.schliesse()
    stummer_server(pfad)
    spaetes_geraet(pfad)


if __name__ == "__main__":
    main(sys.argv[1])
