"""The player that never tires: plays the game with mouse and keyboard and compares every step with
its own model of the rules: tiles, numbers, panel, text, visible controls, files and sound.

usage: tests/spieler/buehne spieler.py PROGRAM [MODE]     MODE 1 to 3 plays all its 40 levels
"""

import shutil
import sys
from fnmatch import fnmatchcase

from modell import *
from sinne import *

RUHE = 0.4  # seconds without a signal that prove that there is no effect
ABGESCHNITTEN = 12  # hundredths of its end that the sound system may swallow
LISTE, OPTIONEN = "Beste Spieler ", "Form1"


def lies_dateien():
    return {datei.name: datei.read_bytes() for datei in ORDNER.glob("*") if datei.is_file()}


def lege_ab(name, *werte):
    ORDNER.mkdir(exist_ok=True)
    (ORDNER / name).write_bytes(zeilen(*werte))


class Spieler:
    """Plays one run of the program."""

    def __init__(self, pfad, ohr, beim_start=(), ton=True, **umgebung):
        self.ohr, self.ordner, self.schritte = ohr, Path(pfad).parent, 0
        self.modell = Modell(lies_dateien(), ton)
        self.programm = Programm(pfad, **umgebung)
        for meldung in beim_start:
            self.bestaetige(meldung, "OK")
        if not umgebung:
            self.vergleiche()

    def __enter__(self):
        return self

    def __exit__(self, *fehler):
        self.programm.brich_ab()

    # One step: an action, and what must follow from it.

    def vergleiche(self):
        """Compares the screen and the files with the model, until they agree or patience ends."""
        abweichung = None

        def stimmt():
            nonlocal abweichung
            gesehen, abweichung = self.programm.lies() | {"dateien": lies_dateien()}, None
            if self.modell.kacheln is None:  # Only a screen at rest tells what has been drawn.
                self.programm.feld = []
                abweichung = (self.modell.uebernimm(gesehen) if gesehen | self.programm.lies()
                              == gesehen else "Das Bild ändert sich noch")
            if not abweichung:
                abweichung = [(art, gesehen[art], soll) for art, soll in self.modell.bild().items()
                              if gesehen[art] != soll]
            if abweichung:
                self.programm.feld = []  # Perhaps other numbers are visible now.
            return not abweichung

        warte(stimmt, lambda: abweichung)
        self.schritte += 1

    def hoere(self, seit, klang):
        klang = klang if self.modell.ton else None
        soll = self.ohr.laenge_der_datei(self.beilage(klang)) if klang else 0
        mindestens = min(soll, max(1, soll - ABGESCHNITTEN))
        gehoert = self.ohr.hoere(seit, GEDULD if klang else RUHE, mindestens)
        if not mindestens <= gehoert <= soll * 1.3:
            raise Abweichung(f"{gehoert} Hundertstel Klang statt {soll} von {klang}")

    def beilage(self, name):
        """A file that comes with the program: in its share folder, or beside it."""
        ordner = self.ordner / "../share/glanzgrube"
        return (ordner if ordner.is_dir() else self.ordner) / name

    def tue(self, handlung):
        """Presses the button or the keys of this name, or does what it is told to do."""
        if callable(handlung):
            handlung()
        elif "+" in handlung:
            taste(*handlung.split())
        else:
            klicke(self.programm.knopf(handlung))

    def schritt(self, handlung, klang=None):
        seit = len(self.ohr.spitzen)
        self.tue(handlung)
        self.vergleiche()  # Before the sound, which is recorded meanwhile.
        self.hoere(seit, klang)

    def menue(self, *namen):
        for name in namen:
            klicke(self.programm.knopf(name))

    # The field.

    def klick(self, zelle):
        klicke(self.programm.zelle(zelle))

    def oeffne(self, zelle):
        if zelle in self.modell.brett.wissen:
            return self.schritt(lambda: self.klick(zelle), self.modell.klicke_links(zelle))
        element, seit = self.programm.zelle(zelle), len(self.ohr.spitzen)
        self.klick(zelle)
        warte(lambda: not element.name.endswith(VERDECKT), f"{zelle} geht auf")
        self.modell.brett.lerne(zelle, element.name.endswith(SARANT))
        klang = self.modell.klicke_links(zelle)
        self.vergleiche()
        return self.hoere(seit, klang)

    def markiere(self, zelle, knopf=3):
        self.modell.klicke_rechts(zelle)
        self.schritt(lambda: klicke(self.programm.zelle(zelle), knopf))

    def zelle_mit(self, kachel):
        return next(zelle for zelle in FELD if self.modell.kacheln[zelle] == kachel)

    def gewinne(self):
        """Plays to the win. What is not known is tried first, so that losing costs few clicks."""
        while self.modell.phase != "gewonnen":
            if self.modell.phase == "verloren":
                self.schritt("Wiederholen", self.modell.wiederhole())
            bekannt = (zelle for zelle in FELD if self.modell.brett.wissen[zelle]
                       and self.modell.kacheln[zelle] == VERDECKT)
            self.oeffne(self.modell.brett.lohnendste() or next(bekannt))

    def verliere(self):
        """Opens the cells that are marked as free until the level is lost."""
        while self.modell.phase == "spielt":
            zelle = self.zelle_mit(MARKIERT)
            self.oeffne(zelle)  # A mark protects its cell.
            self.markiere(zelle)
            self.oeffne(zelle)

    # Messages and windows.

    def bestaetige(self, name, antwort, *werte, seit=None):
        """Reads a message and answers it by a button or a key. Returns when the answer began."""
        klang, *muster = MELDUNGEN[name]
        muster = [TITEL] + [text.format(*werte or "*") for text in muster]
        fenster = warte(lambda: self.programm.fenster(TITEL), f"Meldung {name}")
        gelesen, namen = texte(fenster), knoepfe(fenster)
        if not all(map(fnmatchcase, gelesen, muster)):
            raise Abweichung(f"Meldung {gelesen} statt {muster}")
        if namen not in ({"Schließen", "Ja", "Nein"}, {"Schließen", "OK"}):
            raise Abweichung(f"Knöpfe {namen} in {name}")
        if seit is not None:
            self.hoere(seit, klang)
        taste("Return", *"jn" * ("OK" in namen))  # Keys without a function.
        seit = len(self.ohr.spitzen)
        if antwort in namen:
            klicke(self.programm.knopf(antwort, fenster))
        else:
            taste(antwort)
        warte(lambda: (offen := self.programm.fenster(TITEL)) is None or texte(offen) != gelesen,
              f"Ende von {name}")
        return seit

    def frage(self, handlung, name, antwort, *werte, dann=None):
        """An action that leads to a message, the message, and the sound that follows the answer."""
        seit = len(self.ohr.spitzen)
        self.tue(handlung)
        self.hoere(self.bestaetige(name, antwort, *werte, seit=seit), dann)
        if (name, antwort) != ("ende", "Ja"):  # Then the window goes, at a time of its own.
            self.vergleiche()

    def fenster(self, titel):
        return warte(lambda: self.programm.fenster(titel), titel)

    def klicke_in(self, titel, *namen):
        for name in namen:
            klicke(self.programm.knopf(name, self.fenster(titel)))

    def tippe_in(self, titel, text):
        feld = warte(lambda: next((e for e in alle(self.fenster(titel)) if e.getState().contains(
            pyatspi.STATE_FOCUSED) and e.getRole() == pyatspi.ROLE_TEXT), None), "Textfeld")
        if text:
            tippe(text)
            warte(lambda: feld.queryText().getText(0, -1) == text, f"{text} steht im Feld")

    def warte_bis_zu(self, titel):
        warte(lambda: not self.programm.fenster(titel), f"Ende von {titel}")

    def waehle_datei(self, befehl, titel, name):
        """Types a name into the file dialog that a command opens; no name cancels it."""
        taste(befehl)
        self.tippe_in(titel, name)
        taste("Return" if name else "Escape")
        self.warte_bis_zu(titel)

    def lade(self, name):
        self.waehle_datei("ctrl+o", "Spieldatei öffnen", name)

    def speichere(self, name):
        self.waehle_datei("ctrl+s", "Spieldatei speichern unter", name)

    def lade_stand(self, name, antwort="Ja"):
        """Loads a saved game; with yes the level behind the saved one begins."""
        level, punkte, modus = map(int, self.modell.dateien[name].split())
        dann = self.modell.lade(level, punkte, modus) if antwort == "Ja" else None
        self.frage(lambda: self.lade(name), "laden", antwort, level + 1, MODI[modus], punkte,
                   dann=dann)

    def optionen(self, antwort, level, modus, ton):
        """Opens the options and chooses; the answer "Schließen" leaves them without a question."""
        modell = self.modell
        self.frage("Einstellungen", "optionen", "j", modell.punkte, dann=BLIP)
        gewaehlt = {name for name in knoepfe(self.fenster(OPTIONEN)) if name.endswith("*")}
        if gewaehlt != {"Level 1*", MODI[modell.modus] + "*", *["Soundeffekt*"] * modell.ton}:
            raise Abweichung(f"gewählt ist {gewaehlt}")
        self.klicke_in(OPTIONEN, f"Level {level}", MODI[modus])
        if ton != modell.ton:
            self.klicke_in(OPTIONEN, "Soundeffekt")
        if antwort == "Schließen":
            self.klicke_in(OPTIONEN, antwort)
            return self.warte_bis_zu(OPTIONEN)
        modell.ton = ton  # Even if the question is declined.
        dann = modell.spiel_ab(level - 1, modus) if antwort == "Ja" else None
        return self.frage(lambda: self.klicke_in(OPTIONEN, "Übernehmen"), "auswahl", antwort, level,
                          MODI[modus], dann=dann)

    def lies_liste(self):
        """Opens the list of the best players from the menu and compares it."""
        self.schritt(lambda: self.menue("Information", "Beste Spieler..."), BLIP)
        fenster = self.fenster(LISTE)
        namen = [e.queryText().getText(0, -1) for e in alle(fenster)
                 if e.getRole() == pyatspi.ROLE_TEXT]
        punkte = [int(text.split(": ")[1]) for text in texte(fenster) if ": " in text]
        if (gelesen := list(map(list, zip(namen, punkte)))) != self.modell.liste():
            raise Abweichung(f"Liste {gelesen} statt {self.modell.liste()}")

    def druecke_f1(self, dokument):
        """The document is opened if it exists; the opener of this stage writes its name down."""
        taste("F1")
        if self.beilage(dokument).exists():
            zettel = BUEHNE / "geoeffnet"
            warte(lambda: zettel.exists() and dokument in zettel.read_text(), dokument)
            zettel.unlink()

    def ende(self, handlung=lambda: None):
        self.tue(handlung)
        self.programm.ende()

    def spielende(self, seit, antwort):
        """The messages behind level 40 up to the offer to enter the best list."""
        seit = self.bestaetige("beendet", "OK", seit=seit)
        angebot = "kein Eintrag" if self.modell.platz() is None else "Bestmarke"
        return self.bestaetige(angebot, antwort, seit=seit)


# The chapters of the short run. Each starts with the files that the one before has left.

def erster_lauf(spiel):
    """A fresh folder: the waiting window, a lost and a won level, saving, every question."""
    modell = spiel.modell
    spiel.schritt(lambda: spiel.klick((5, 5)))
    for modus in 3, 1:
        modell.waehle_modus(modus)
        spiel.schritt(MODI[modus])
    for antwort in "Escape", "OK", "Schließen":
        spiel.frage("Info", "Info", antwort)
    spiel.druecke_f1("saranten.pdf")
    spiel.lies_liste()
    spiel.druecke_f1("Bestespieler.pdf")
    taste("alt+a")  # A list of defaults is not cleared, and nothing is asked.
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
    spiel.frage(lambda: spiel.speichere(""), "kein Name", "OK")
    spiel.frage(lambda: spiel.speichere("fehlt/spiel"), "Schreibfehler", "Escape", "3")
    modell.speichere("spiel.sar")
    spiel.schritt(lambda: spiel.speichere("spiel"))
    spiel.schritt("Nächster Level", modell.naechster_level())
    spiel.schritt("ctrl+s ctrl+o")  # Neither may be used now.
    spiel.frage("ctrl+n", "neu", "n")
    spiel.frage("Neues Spiel", "neu", "Schließen")
    spiel.frage(lambda: spiel.menue("Optionen             ", "Einstellungen..."), "optionen",
                "Escape", modell.punkte)
    spiel.frage("Beenden", "ende", "Nein")
    spiel.optionen("Nein", 26, 3, ton=False)
    spiel.optionen("Ja", 6, 3, ton=False)
    for eintrag, ton in ("an", True), ("aus", False), ("an", True):
        spiel.menue("Optionen             ", "Sound", eintrag)
        modell.ton = ton
        spiel.oeffne(spiel.zelle_mit(SARANT))
    spiel.optionen("Schließen", 11, 1, ton=False)
    spiel.frage("ctrl+n", "neu", "J", dann=modell.neues_spiel())
    taste("alt+s")
    spiel.frage(lambda: taste("e"), "ende", "Ja")
    spiel.ende()


def zweiter_lauf(spiel):
    """Loading with all its failures, a second won level, the best list in the middle of a game."""
    modell = spiel.modell
    spiel.schritt(lambda: spiel.lade(""))
    spiel.frage(lambda: spiel.lade("sarant.ini"), "Dateityp", "OK", "sarant.ini")
    spiel.frage(lambda: spiel.lade("fehlt.sar"), "Lesefehler", "OK", "1")
    spiel.lade_stand("spiel.sar", "Nein")
    for name in "spiel.sar", "knapp.sar":
        spiel.lade_stand(name)
    spiel.gewinne()
    spiel.schritt("Nächster Level", modell.naechster_level())
    modell.bester = False
    spiel.frage("Bester Spieler", "Bestmarke", "n")
    for name in "spiel.sar", "knapp.sar":
        (ORDNER / name).unlink()
        del modell.dateien[name]
    spiel.frage("Spiel laden", "suche", "Nein", ORDNER)
    spiel.ende("alt+F4")


def letzter_lauf(spiel, punkte, antwort, name="", stoere=None):
    """The end of a game that has been saved after level 40."""
    seit = len(spiel.ohr.spitzen)
    spiel.lade("ende.sar")
    seit = spiel.bestaetige("laden", "Ja", 41, "Einfach", punkte, seit=seit)
    spiel.modell.punkte = punkte
    seit = spiel.spielende(seit, antwort)
    if antwort == "Ja":
        spiel.tippe_in(LISTE, name)
        (stoere or spiel.modell.trage_ein)(name)
        seit = len(spiel.ohr.spitzen)
        spiel.klicke_in(LISTE, "OK")
        if stoere:
            seit = spiel.bestaetige("Liste gespeichert", "OK", seit=seit)
    spiel.bestaetige("Dank", "OK", seit=seit)
    spiel.ende()
    if not stoere and lies_dateien() != spiel.modell.dateien:
        raise Abweichung(f"Dateien {lies_dateien()} statt {spiel.modell.dateien}")


def leere_liste(spiel):
    for antwort in "Nein", "Ja":
        spiel.lies_liste()
        if antwort == "Ja":
            spiel.modell.dateien["sarant.txt"] = liste_als_datei(BESTE)
        spiel.frage(lambda: spiel.klicke_in(LISTE, "Einträge zurücksetzen"), "löschen", antwort)
        spiel.warte_bis_zu(LISTE)
    spiel.ende("Beenden")


def ohne_karte(spiel):
    spiel.tue("Einstellungen")
    spiel.frage(lambda: spiel.klicke_in(OPTIONEN, "Soundeffekt"), "keine Karte", "OK")
    spiel.klicke_in(OPTIONEN, "Schließen")
    spiel.warte_bis_zu(OPTIONEN)
    spiel.ende("Beenden")


def stoere_liste(_name):
    (ORDNER / "sarant.txt").unlink()
    (ORDNER / "sarant.txt").mkdir()


def kurz(pfad, ohr):
    with Spieler(pfad, ohr) as spiel:
        erster_lauf(spiel)
    lege_ab("knapp.sar", 38, 12700, 2)
    with Spieler(pfad, ohr) as spiel:
        zweiter_lauf(spiel)
    for punkte, antwort, *rest in ((13000, "OK"), (14500, "Ja", "Ida Stein"), (99999, "Nein")):
        lege_ab("ende.sar", 40, punkte, 1)
        with Spieler(pfad, ohr) as spiel:
            letzter_lauf(spiel, punkte, antwort, *rest)
    with Spieler(pfad, ohr) as spiel:
        leere_liste(spiel)
    with Spieler(pfad, ohr, ton=False, PULSE_SERVER="unix:/fehlt") as spiel:
        ohne_karte(spiel)
    with Spieler(pfad, ohr) as spiel:
        letzter_lauf(spiel, 99999, "Ja", "Ida", stoere_liste)
    # Folders that cannot be used: a list that is a folder, a home that takes no folder, no home.
    kopie = shutil.copytree(Path(pfad).parent, BUEHNE / "kopie") / Path(pfad).name
    for programm, meldungen, umgebung in (
            (pfad, ["Liste gelesen"], {"XDG_DATA_HOME": str(ORDNER.parent)}),
            (pfad, ["Ordner", "Liste gelesen"], {"XDG_DATA_HOME": "/proc"}),
            (kopie, ["Festplatte"], {"XDG_DATA_HOME": "", "HOME": ""})):
        with Spieler(programm, ohr, meldungen, **umgebung) as spiel:
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
            print(f"{MODI[modus]} {modell.level}: {modell.punkte} Punkte, {spiel.schritte} Schritte",
                  flush=True)
        modell.punkte += modell.levelpunkte
        seit = len(ohr.spitzen)
        spiel.tue("Nächster Level")
        spiel.bestaetige("Dank", "OK", seit=spiel.spielende(seit, "Escape"))
        spiel.ende()


if __name__ == "__main__":
    OHR = Ohr()
    try:
        if len(sys.argv) > 2:
            lang(sys.argv[1], OHR, int(sys.argv[2]))
        else:
            kurz(sys.argv[1], OHR)
    finally:
        OHR.schliesse()
    print("ohne Abweichung")
