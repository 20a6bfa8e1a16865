"""The player that never tires: a tour of the whole game by mouse and keyboard, or all of a mode.

usage: tests/driver/stage scenarios.py PROGRAM [MODE]     MODE 1 to 3 plays all its 40 levels
"""

import shutil
import sys
from pathlib import Path

from hands import xdotool
from model import BESTE, MARKIERT, MODI, SARANT, liste_als_datei
from audio import Ohr
from senses import STAGE, ORDNER, TITEL, Abweichung, alle, lies_dateien, mitte
from driver import LISTE, Spieler, lege_ab


def greife(spiel):
    """A message is moved by its title, and not by its text."""
    spiel.tue("Info")
    fenster = spiel.fenster(TITEL)
    for anfang, bewegt in (TITEL, True), ("Grafik", False):
        griff = next(e for e in alle(fenster) if e.name.startswith(anfang) and e != fenster)
        vorher = mitte(fenster)
        xdotool("mousemove", *mitte(griff), "mousedown", 1)
        for _ in range(3):
            xdotool("mousemove_relative", 20, 10, "sleep", 0.2)
        xdotool("mouseup", 1)
        if (mitte(fenster) != vorher) != bewegt:
            raise Abweichung(f"{anfang}: von {vorher} nach {mitte(fenster)}")
    spiel.bestaetige("Info", "OK")


def erster_lauf(spiel):
    """A fresh folder: the waiting window, a lost and a won level, saving, every question."""
    modell = spiel.modell
    spiel.schritt(lambda: spiel.klicke((5, 5)))
    for modus in 3, 1:
        modell.waehle_modus(modus)
        spiel.schritt(MODI[modus])
    spiel.druecke_f1("saranten.pdf")
    greife(spiel)
    spiel.lies_liste()
    spiel.druecke_f1("Bestespieler.pdf")
    spiel.hand.taste("alt+a")  # A list of defaults is not cleared, and nothing is asked.
    spiel.warte_bis_zu(LISTE)
    spiel.schritt("Neues Spiel", modell.neues_spiel())
    for knopf in 3, 2:
        spiel.markiere((1, 1), knopf)
    spiel.verliere()
    spiel.oeffne(spiel.zelle_mit(SARANT))  # Cells are dead now.
    spiel.schritt("Wiederholen", modell.wiederhole())
    for kachel in SARANT, MARKIERT:
        spiel.oeffne(spiel.zelle_mit(kachel))
        spiel.markiere(spiel.zelle_mit(kachel))
    spiel.gewinne()
    spiel.oeffne((1, 1))
    spiel.frage(lambda: spiel.datei("ctrl+s", ""), "kein Name", "OK")
    spiel.frage(lambda: spiel.datei("ctrl+s", "fehlt/spiel"), "Schreibfehler", "Escape", "3")
    modell.speichere(":spiel.sar")
    spiel.schritt(lambda: spiel.datei("ctrl+s", ":spiel"))
    spiel.schritt("Nächster Level", modell.naechster_level())
    spiel.schritt("ctrl+s ctrl+o")  # Neither may be used now.
    spiel.frage("ctrl+n", "neu", "n")
    spiel.frage(lambda: spiel.druecke("Optionen             ", "Einstellungen..."), "optionen",
                "Escape", modell.punkte)
    spiel.frage("Beenden", "ende", "Nein")
    spiel.optionen("Nein", 26, 3, ton=False)
    spiel.optionen("Ja", 6, 3, ton=False)
    for eintrag, ton in ("an", True), ("aus", False):
        spiel.druecke("Optionen             ", "Sound", eintrag)
        modell.ton = ton
        spiel.oeffne(spiel.verdeckte()[0])
    spiel.optionen("Nein", 11, 1, ton=True)
    spiel.frage("Neues Spiel", "neu", "J", dann=modell.neues_spiel())
    spiel.hand.taste("alt+s", "e")
    spiel.bestaetige("ende", "Ja")
    spiel.ende()


def zweiter_lauf(spiel):
    """Loading with all its failures, a second won level, the best list in the middle of a game."""
    modell = spiel.modell
    spiel.schritt(lambda: spiel.datei("ctrl+o", ""))
    spiel.frage(lambda: spiel.datei("ctrl+o", "sarant.ini"), "Dateityp", "OK", "sarant.ini")
    spiel.frage(lambda: spiel.datei("ctrl+o", "fehlt.sar"), "Lesefehler", "OK", "1")
    spiel.lade(":spiel.sar", "Nein")
    for name in ":spiel.sar", "knapp.sar":
        spiel.lade(name)
    spiel.gewinne()
    spiel.schritt("Nächster Level", modell.naechster_level())
    modell.bester = False
    spiel.frage("Bester Spieler", "Bestmarke", "n")
    for name in ":spiel.sar", "knapp.sar":
        (ORDNER / name).unlink()
        del modell.dateien[name]
    spiel.frage("Spiel laden", "suche", "Nein", ORDNER)
    spiel.ende("alt+F4")


def letzter_lauf(spiel, antwort, name="", trage_ein=None):
    """The end of a game that has been saved after level 40."""
    punkte = int(spiel.modell.dateien["ende.sar"].split()[1])
    spiel.datei("ctrl+o", "ende.sar")
    spiel.bestaetige("laden", "Ja", 41, "Einfach", punkte)
    spiel.modell.punkte = punkte
    spiel.spielende(antwort)
    if antwort == "Ja":
        spiel.tippe_in(LISTE, name)
        (trage_ein or spiel.modell.trage_ein)(name)
        spiel.druecke("OK", titel=LISTE)
        if trage_ein:
            spiel.bestaetige("Liste gespeichert", "OK")
    spiel.bestaetige("Dank", "OK")
    spiel.ende()
    if not trage_ein and lies_dateien() != spiel.modell.dateien:
        raise Abweichung(f"Dateien {lies_dateien()} statt {spiel.modell.dateien}")


def leere_liste(spiel):
    spiel.lies_liste()
    spiel.modell.dateien["sarant.txt"] = liste_als_datei(BESTE)
    spiel.frage(lambda: spiel.druecke("Einträge zurücksetzen", titel=LISTE), "löschen", "Ja")


def verdirb_liste(_name):
    (ORDNER / "sarant.txt").unlink()
    (ORDNER / "sarant.txt").mkdir()


def kurz(pfad, ohr):
    with Spieler(pfad, ohr) as spiel:
        erster_lauf(spiel)
    lege_ab("knapp.sar", 38, 12700, 2)
    with Spieler(pfad, ohr) as spiel:
        zweiter_lauf(spiel)
    for punkte, antwort, *rest in (13000, "OK"), (14500, "Ja", "Ida Stein"):
        lege_ab("ende.sar", 40, punkte, 1)
        with Spieler(pfad, ohr) as spiel:
            letzter_lauf(spiel, antwort, *rest)
    with Spieler(pfad, ohr) as spiel:
        leere_liste(spiel)
        letzter_lauf(spiel, "Ja", "Ida", verdirb_liste)
    # As it is installed, with sounds and pages in a folder of their own.
    shutil.copytree(Path(pfad).parent, STAGE / "usr/share/glanzgrube")
    (STAGE / "usr/bin").mkdir()
    kopie = shutil.copy(pfad, STAGE / "usr/bin")
    # Folders that cannot be used: a list that is a folder, a home that takes none, no home.
    for programm, meldungen, daten in (
            (pfad, ["Liste gelesen"], STAGE / "data"),
            (pfad, ["Ordner", "Liste gelesen"], "/proc"),
            (kopie, ["Festplatte"], "/proc/fehlt")):
        with Spieler(programm, ohr, beim_start=meldungen, XDG_DATA_HOME=str(daten)) as spiel:
            spiel.ende("Beenden")


def lang(pfad, ohr, modus):
    """All 40 levels of a mode, to the messages at the end."""
    with Spieler(pfad, ohr) as spiel:
        modell = spiel.modell
        if modus != modell.modus:
            modell.waehle_modus(modus)
            spiel.schritt(MODI[modus])
        spiel.schritt("Neues Spiel", modell.neues_spiel())
        spiel.gewinne()
        while modell.level < 40:
            spiel.schritt("Nächster Level", modell.naechster_level())
            spiel.gewinne()
            print(MODI[modus], modell.level, modell.punkte, "Punkte", flush=True)
        modell.punkte += modell.levelpunkte
        spiel.tue("Nächster Level")
        spiel.spielende("Escape")
        spiel.bestaetige("Dank", "OK")
        spiel.ende()


if __name__ == "__main__":
    PFAD, *MODUS = sys.argv[1:]
    if MODUS:
        lang(PFAD, Ohr(PFAD), int(MODUS[0]))
    else:
        kurz(PFAD, Ohr(PFAD))
