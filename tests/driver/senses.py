"""The eyes: what the program shows, read through the accessibility bus. They know no rule."""

import os
import re
import subprocess
import time
from pathlib import Path

import pyatspi
from gi.repository import GLib

STAGE = Path(os.environ["STAGE"])
ORDNER = Path(os.environ["XDG_DATA_HOME"], "nachtkammern")
STDERR = STAGE / "stderr"
GEDULD = 20.0  # seconds

BAUPLAN = Path(__file__).resolve().parents[2] / "CMakeLists.txt"
VERSION = re.search(r"project\(glanzgrube VERSION ([\d.]+)", BAUPLAN.read_text())[1]
TITEL = f"Glanzgrube  Vers.: {VERSION}"
ZELLE = re.compile(r"Zeile (\d+), Spalte (\d+): (\w+)$")
ZAHL = re.compile(r"(Zeile|Spalte) (\d+), Zahl (\d+): (\d+)$")
TAFEL = re.compile(r"(Punkte|Levelpunkte|Fehlversuche|noch offen|Level): ([\w ]+)$")
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


def beilage(pfad, name):
    """A file that comes with the program: in its share folder, or beside it."""
    ordner = Path(pfad).parent / "../share/glanzgrube"
    return (ordner if ordner.is_dir() else Path(pfad).parent) / name


def lies_dateien():
    return {datei.name: datei.read_bytes() for datei in ORDNER.glob("*") if datei.is_file()}


def ist(element, zustand=pyatspi.STATE_SHOWING):
    return element.getState().contains(zustand)


def mitte(element):
    lage = element.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return lage.x + lage.width // 2, lage.y + lage.height // 2


def alle(element, feld=False):
    """The element and everything below it, the cells and numbers of the playfield if asked for."""
    yield element
    if feld or element.name != "Spielfeld":
        for kind in filter(None, element):
            yield from alle(kind, feld)


def texte(fenster):
    return [e.name for e in alle(fenster) if e.getRole() == pyatspi.ROLE_LABEL]


def knoepfe(fenster):
    return [e for e in alle(fenster) if e.getRole() in KNOPFROLLEN]


def aufschriften(fenster):
    """The words on all buttons, with an asterisk behind those that are chosen."""
    return {e.name + "*" * ist(e, pyatspi.STATE_CHECKED) for e in knoepfe(fenster)}


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
        return [f for f in self.app if f and f.getRole() == rolle and ist(f)]

    def fenster(self, titel, rolle=pyatspi.ROLE_DIALOG):
        """The window of this name and role, or None if it is not shown."""
        return next((f for f in self.offene(rolle) if f.name == titel), None)

    def hauptfenster(self):
        return warte(lambda: self.fenster(TITEL, pyatspi.ROLE_FRAME), "Hauptfenster")

    def knopf(self, name, titel=None):
        """A button or a menu entry by the words on it, in the main window or another one."""
        def suche():
            fenster = self.fenster(titel) if titel else self.hauptfenster()
            return fenster and next((e for e in alle(fenster) if e.name == name and ist(e)), None)
        return warte(suche, f"Knopf {name}")

    def zelle(self, zelle):
        return self.feld[10 * (zelle[0] - 1) + zelle[1] - 1]

    def lies(self, neu=False):
        """Everything that the main window shows, in the form of the model's view."""
        flaeche = self.hauptfenster()[0]
        if neu or len(self.feld) != flaeche[0].childCount:  # Other numbers may be visible now.
            self.feld = list(flaeche[0])
        bild = {"kacheln": {}, "zahlen": {}, "tafel": {}, "texte": [],
                "knoepfe": aufschriften(flaeche)}
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

    def ruhe(self):
        """The main window and the names of the others, as soon as two looks see the same."""
        def blick():
            return self.lies(neu=True), [fenster.name for fenster in self.offene()]
        return warte(lambda: (bild := blick()) == blick() and bild, "Ruhe")

    def ende(self):
        """The process must have ended well, and said nothing."""
        ergebnis, zeilen = self.prozess.wait(GEDULD), STDERR.read_text().splitlines()
        # The table of Qt's own file dialog complains of what it tells the bus.
        gesagt = [zeile for zeile in zeilen if not zeile.startswith("QAccessibleTable::child")]
        # All that the game writes lies in its own folder.
        gesagt += map(str, Path(os.environ["HOME"], ".config").rglob("Qt*"))
        if ergebnis or gesagt:
            raise Abweichung("\n".join([f"Ende mit {ergebnis}", *gesagt]))

    def brich_ab(self):
        if self.prozess.poll() is None:
            self.prozess.kill()
            self.prozess.wait()
