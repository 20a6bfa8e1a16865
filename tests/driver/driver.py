"""The player: acts, and compares every step with a model of the rules: tiles, numbers, panel, text,
visible controls, files and sound."""

from fnmatch import fnmatchcase

import pyatspi
from hands import Maushand
from model import (BLIP, FELD, MARKIERT, MELDUNGEN, MODI, SARANT, VERDECKT, Modell, Widerspruch,
                    zeilen)
from senses import (STAGE, ORDNER, TITEL, Abweichung, Programm, alle, aufschriften, beilage, ist,
                   lies_dateien, texte, warte)

LISTE, OPTIONEN = "Beste Spieler ", "Form1"
DATEIDIALOGE = {"ctrl+o": "Spieldatei öffnen", "ctrl+s": "Spieldatei speichern unter"}


def lege_ab(name, *werte):
    ORDNER.mkdir(exist_ok=True)
    (ORDNER / name).write_bytes(zeilen(*werte))


class Spieler:
    """Plays one run of the program."""

    def __init__(self, pfad, ohr, hand=None, beim_start=(), ton=True, **umgebung):
        self.pfad, self.ohr, self.hand = pfad, ohr, hand or Maushand()
        self.modell = Modell(lies_dateien(), ton)
        self.programm = Programm(pfad, **umgebung)
        for meldung in beim_start:
            self.bestaetige(meldung, "OK")
        if not beim_start:
            self.vergleiche()

    def __enter__(self):
        return self

    def __exit__(self, *fehler):
        self.programm.brich_ab()

    # One step: an action, and what must follow from it.

    def abweichungen(self, neu=True):
        """What the screen and the files have that the model has not."""
        if self.modell.kacheln is None:  # Only a screen at rest tells what has been drawn.
            try:
                self.modell.uebernimm(self.programm.ruhe()[0])
            except Widerspruch as widerspruch:
                return str(widerspruch)
        gesehen = self.programm.lies(neu) | {"dateien": lies_dateien()}
        return [(art, gesehen[art], soll) for art, soll in self.modell.bild().items()
                if gesehen[art] != soll]

    def vergleiche(self):
        """Waits until the program agrees with the model. A second look finds other numbers, too."""
        warte(lambda: not (self.abweichungen(neu=False) and self.abweichungen()), self.abweichungen)

    def hoere(self, klang):
        self.ohr.hoere(klang if klang and self.modell.ton else None)

    def tue(self, handlung):
        """Presses the button or the keys of this name, or does what it is told to do."""
        if callable(handlung):
            handlung()
        elif "+" in handlung:
            self.hand.taste(*handlung.split())
        else:
            self.druecke(handlung)

    def druecke(self, *namen, titel=None):
        for name in namen:
            self.hand.klicke(self.programm.knopf(name, titel))

    def schritt(self, handlung, klang=None):
        self.tue(handlung)
        self.vergleiche()  # Before the sound, which is recorded meanwhile.
        self.hoere(klang)

    # The field.

    def klicke(self, zelle, knopf=1):
        self.hand.klicke(self.programm.zelle(zelle), knopf)

    def oeffne(self, zelle):
        self.klicke(zelle)
        if zelle not in self.modell.brett.wissen:
            element = self.programm.zelle(zelle)
            warte(lambda: not element.name.endswith(VERDECKT), f"{zelle} geht auf")
            self.modell.brett.lerne(zelle, element.name.endswith(SARANT))
        self.schritt(lambda: None, self.modell.klicke_links(zelle))

    def markiere(self, zelle, knopf=3):
        self.modell.klicke_rechts(zelle)
        self.schritt(lambda: self.klicke(zelle, knopf))

    def zelle_mit(self, kachel):
        return next(zelle for zelle in FELD if self.modell.kacheln[zelle] == kachel)

    def verdeckte(self, ist_sarant=True):
        """The covered cells that are known to hold a gem, or to hold none."""
        return [zelle for zelle in FELD if self.modell.kacheln[zelle] == VERDECKT
                and self.modell.brett.wissen.get(zelle) == ist_sarant]

    def gewinne(self, uebrig=0):
        """Plays to the win, or until so many gems are left. What is not known is tried first, so
        that losing costs few clicks."""
        while self.modell.rest() > uebrig:
            if self.modell.phase == "verloren":
                self.schritt("Wiederholen", self.modell.wiederhole())
            self.oeffne(self.modell.brett.lohnendste() or self.verdeckte()[0])

    def verliere(self):
        """Opens the cells that are marked as free until the level is lost."""
        while self.modell.phase == "spielt":
            zelle = self.zelle_mit(MARKIERT)
            self.oeffne(zelle)  # A mark protects its cell.
            self.markiere(zelle)
            self.oeffne(zelle)

    # Messages and windows.

    def bestaetige(self, name, antwort, *werte):
        """Reads and hears a message and answers it by a button or a key."""
        klang, *muster = MELDUNGEN[name]
        muster = [TITEL] + [text.format(*werte or "*") for text in muster]
        fenster = self.fenster(TITEL)
        gelesen, knoepfe = texte(fenster), aufschriften(fenster)
        if not all(map(fnmatchcase, gelesen, muster)):
            raise Abweichung(f"Meldung {gelesen} statt {muster}")
        if knoepfe not in ({"Schließen", "Ja", "Nein"}, {"Schließen", "OK"}):
            raise Abweichung(f"Knöpfe {knoepfe} in {name}")
        self.hoere(klang)
        self.hand.taste("Return", *"jn" * ("OK" in knoepfe))  # Keys without a function.
        if antwort in knoepfe:
            self.druecke(antwort, titel=TITEL)
        else:
            self.hand.taste(antwort)
        warte(lambda: self.programm.prozess.poll() is not None
              or (offen := self.programm.fenster(TITEL)) is None or texte(offen) != gelesen,
              f"Ende von {name}")

    def frage(self, handlung, name, antwort, *werte, dann=None):
        """An action that leads to a message, the message, and the sound that follows the answer."""
        self.tue(handlung)
        self.bestaetige(name, antwort, *werte)
        self.schritt(lambda: None, dann)

    def fenster(self, titel):
        return warte(lambda: self.programm.fenster(titel), titel)

    def warte_bis_zu(self, titel):
        warte(lambda: not self.programm.fenster(titel), f"Ende von {titel}")

    def tippe_in(self, titel, text):
        feld = warte(lambda: next((e for e in alle(self.fenster(titel)) if e.getRole()
                                   == pyatspi.ROLE_TEXT and ist(e, pyatspi.STATE_FOCUSED)), None),
                     "Textfeld")
        self.hand.tippe(text)
        warte(lambda: feld.queryText().getText(0, -1) == text, f"{text} steht im Feld")

    def datei(self, befehl, name):
        """Types a name into the file dialog that a command opens; no name cancels it."""
        titel = DATEIDIALOGE[befehl]
        self.hand.taste(befehl)
        self.tippe_in(titel, name)
        self.hand.taste("Return" if name else "Escape")
        self.warte_bis_zu(titel)

    def lade(self, name, antwort="Ja"):
        """Loads a saved game; with yes the level behind the saved one begins."""
        level, punkte, modus = map(int, self.modell.dateien[name].split())
        dann = self.modell.lade(level, punkte, modus) if antwort == "Ja" else None
        self.frage(lambda: self.datei("ctrl+o", name), "laden", antwort, level + 1, MODI[modus],
                   punkte, dann=dann)

    def optionen(self, antwort, level, modus, ton):
        """Opens the options, chooses, and answers the question behind them."""
        modell = self.modell
        self.frage("Einstellungen", "optionen", "j", modell.punkte, dann=BLIP)
        gewaehlt = {name for name in aufschriften(self.fenster(OPTIONEN)) if name.endswith("*")}
        if gewaehlt != {"Level 1*", MODI[modell.modus] + "*", *["Soundeffekt*"] * modell.ton}:
            raise Abweichung(f"gewählt ist {gewaehlt}")
        self.druecke(f"Level {level}", MODI[modus], *["Soundeffekt"] * (ton != modell.ton),
                     titel=OPTIONEN)
        modell.ton = ton  # Even if the question is declined.
        dann = modell.spiel_ab(level - 1, modus) if antwort == "Ja" else None
        self.frage(lambda: self.druecke("Übernehmen", titel=OPTIONEN), "auswahl", antwort, level,
                   MODI[modus], dann=dann)
        self.warte_bis_zu(OPTIONEN)

    def lies_liste(self):
        """Opens the list of the best players from the menu and compares it."""
        self.schritt(lambda: self.druecke("Information", "Beste Spieler..."), BLIP)
        fenster = self.fenster(LISTE)
        eintraege = [e.queryText().getText(0, -1) for e in alle(fenster)
                     if e.getRole() == pyatspi.ROLE_TEXT]
        punkte = [int(text.split(": ")[1]) for text in texte(fenster) if ": " in text]
        if (gelesen := list(map(list, zip(eintraege, punkte)))) != self.modell.liste():
            raise Abweichung(f"Liste {gelesen} statt {self.modell.liste()}")

    def druecke_f1(self, dokument):
        """The document is opened if it exists; the opener of this stage writes its name down."""
        zettel = STAGE / "opened"
        self.hand.taste("F1")
        if beilage(self.pfad, dokument).exists():
            warte(lambda: zettel.exists() and dokument in zettel.read_text(), dokument)
            zettel.unlink()

    def ende(self, handlung=lambda: None):
        self.tue(handlung)
        self.programm.ende()

    def beende(self):
        """Ends the program in the middle of a game."""
        self.tue("Beenden")
        self.bestaetige("ende", "Ja")
        self.ende()

    def spielende(self, antwort):
        """The messages behind level 40 up to the offer to enter the best list."""
        self.bestaetige("beendet", "OK")
        self.bestaetige("kein Eintrag" if self.modell.platz() is None else "Bestmarke", antwort)
