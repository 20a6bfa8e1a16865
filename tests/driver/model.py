"""The rules of the game as the player knows them: told again, without a look at the program."""

from collections import defaultdict
from itertools import groupby, product
from pathlib import Path

MODI = {1: "Einfach", 2: "Normal", 3: "Experte"}
BONUS = {1: 400, 2: 450, 3: 500}
JE_LEVEL = {1: 300, 2: 300, 3: 350}
VERDECKT, MARKIERT, FEHLER, SARANT = "verdeckt", "markiert", "Fehler", "Sarant"
BLIP, FALSCH, TADA = "BLIP.WAV", "FEHLER.WAV", "TADA.WAV"
BESTE = [["Niemand", 15000 - 500 * i] for i in range(5)]

FELD = [(z, s) for z in range(1, 11) for s in range(1, 11)]
# The cells of a line in the order in which its numbers are counted: from below, from the right.
LINIEN = {("Spalte", s): [(z, s) for z in range(10, 0, -1)] for s in range(1, 11)}
LINIEN |= {("Zeile", z): [(z, s) for s in range(10, 0, -1)] for z in range(1, 11)}

# The fillings of a line by the lengths of their runs.
MUSTER = defaultdict(list)
for _muster in product((False, True), repeat=10):
    MUSTER[tuple(len(list(lauf)) for voll, lauf in groupby(_muster) if voll)].append(_muster)


def lies_meldungen():
    """Name, sound and the two texts of every message."""
    for zeile in (Path(__file__).parent / "messages.txt").read_text("utf-8").splitlines()[1:]:
        name, klang, *texte = zeile.replace("\\n", "\n").split("|")
        yield name, (klang, *texte)


MELDUNGEN = dict(lies_meldungen())


def zeilen(*werte):
    return "".join(f"{wert}\r\n" for wert in werte).encode("cp1252")


def liste_als_datei(liste):
    return zeilen(*(name for name, _ in liste), *(punkte for _, punkte in liste))


class Widerspruch(Exception):
    """What is shown contradicts itself."""


class Brett:
    """What the numbers and the opened cells tell about one board."""

    def __init__(self, zahlen, anzahl):
        for art in "Spalte", "Zeile":
            summe = sum(sum(orte.values()) for linie, orte in zahlen.items() if linie[0] == art)
            if summe != anzahl:
                raise Widerspruch(f"Zahlen der {art}n ergeben {summe} statt {anzahl}")
        if any(list(orte) != list(range(1, len(orte) + 1)) for orte in zahlen.values()):
            raise Widerspruch("Lücke zwischen Zahlen")
        self.laeufe = {linie: tuple(zahlen.get(linie, {}).values()) * (anzahl > 0)
                       for linie in LINIEN}
        self.wissen = {}
        self.schliesse(LINIEN)

    def deutungen(self, linie):
        """Every filling of the line that agrees with its numbers and with what is known."""
        bekannt = [self.wissen.get(zelle) for zelle in LINIEN[linie]]
        return [muster for muster in MUSTER[self.laeufe[linie]]
                if all(b in (None, m) for b, m in zip(bekannt, muster))]

    def schliesse(self, linien):
        """Works out what the numbers force, line by line, until nothing new follows."""
        offen = set(linien)
        while offen:
            linie = offen.pop()
            deutungen = self.deutungen(linie)
            if not deutungen:
                raise Widerspruch(f"{linie} {self.laeufe[linie]} passt nicht zum Brett")
            for zelle, werte in zip(LINIEN[linie], zip(*deutungen)):
                if zelle not in self.wissen and len(set(werte)) == 1:
                    self.wissen[zelle] = werte[0]
                    offen |= {("Zeile", zelle[0]), ("Spalte", zelle[1])}

    def lerne(self, zelle, ist_sarant):
        if self.wissen.get(zelle, ist_sarant) != ist_sarant:
            raise Widerspruch(f"{zelle} ist gegen die Zahlen {ist_sarant}")
        self.wissen[zelle] = ist_sarant
        self.schliesse([("Zeile", zelle[0]), ("Spalte", zelle[1])])

    def lohnendste(self):
        """The unknown cell that most likely holds a gem; None if the whole board is known."""
        def aussicht(zelle):
            deutungen = self.deutungen(("Zeile", zelle[0]))
            return sum(muster[10 - zelle[1]] for muster in deutungen) / len(deutungen)
        return max((z for z in FELD if z not in self.wissen), default=None, key=aussicht)


class Modell:
    """One run of the program, as the rules want it. An event is a method and returns its sound."""

    def __init__(self, dateien, ton=True):
        self.dateien = dateien
        self.dateien.setdefault("sarant.ini", zeilen(2))
        self.dateien.setdefault("sarant.txt", liste_als_datei(BESTE))
        self.modus = int(dateien["sarant.ini"][:1])
        self.ton = ton
        self.laden = any(name.endswith(".sar") for name in dateien)
        self.phase = "wartet"
        self.level = self.punkte = self.levelpunkte = 0
        self.bester = False
        self.text = "Wählen Sie einen Spielmodus ! Klicken Sie auf neues Spiel.\""
        self.kacheln = dict.fromkeys(FELD, VERDECKT)
        self.zahlen = {linie: dict.fromkeys(range(1, 6), 0) for linie in LINIEN}
        self.brett = None

    def anzahl(self):
        return 76 - max(self.level, 1)

    def zahl_der(self, kachel):
        return list(self.kacheln.values()).count(kachel)

    def rest(self):
        return self.anzahl() - self.zahl_der(SARANT) if self.level else 0

    def knoepfe(self):
        wenn = {"Spiel laden": self.laden, "Spiel speichern": self.phase == "gewonnen",
                "Nächster Level": self.phase == "gewonnen", "Wiederholen": self.phase == "verloren",
                "Bester Spieler": self.bester}
        wenn |= {name + "*" * (modus == self.modus): self.phase == "wartet"
                 for modus, name in MODI.items()}
        return {"Hilfe", "Info", "Einstellungen", "Neues Spiel", "Beenden",
                *(name for name, sichtbar in wenn.items() if sichtbar)}

    def bild(self):
        tafel = {"Punkte": str(self.punkte), "Levelpunkte":
                 str(self.levelpunkte or "leer").replace("-", "minus "),
                 "Fehlversuche": str(self.zahl_der(FEHLER)), "noch offen": str(self.rest()),
                 "Level": str(self.level)}
        return {"kacheln": self.kacheln, "zahlen": self.zahlen, "tafel": tafel,
                "texte": [self.text], "knoepfe": self.knoepfe(), "dateien": self.dateien}

    def moduszeile(self, leerzeichen=3):
        return (f"Spielmodus:{' ' * leerzeichen}{MODI[self.modus]}\n"
                f"Es sind {self.anzahl()} Saranten auf dem Spielfeld.")

    # What happens.

    def waehle_modus(self, modus):
        self.modus = modus
        self.text = f"Spielmodus  :  {MODI[modus]}"
        self.dateien["sarant.ini"] = zeilen(modus)

    def neues_spiel(self):
        self.text = self.moduszeile(2)
        self.level, self.punkte = 0, 500
        return self.beginne_level()

    def spiel_ab(self, uebersprungen, modus):
        if modus != self.modus:
            self.dateien["sarant.ini"] = zeilen(modus)
        self.level, self.modus = uebersprungen, modus
        self.punkte = uebersprungen * JE_LEVEL[modus] or 500
        return self.beginne_level()

    def lade(self, level, punkte, modus):
        self.modus = modus
        self.text = self.moduszeile(2)
        self.level, self.punkte = level, punkte
        return self.beginne_level()

    def naechster_level(self):
        self.punkte += self.levelpunkte
        self.bester = self.punkte > self.liste()[4][1]
        return self.beginne_level()

    def beginne_level(self):
        self.level += 1
        self.brett = None
        return self.beginne_spiel()

    def wiederhole(self):
        self.punkte += self.levelpunkte
        return self.beginne_spiel()

    def beginne_spiel(self):
        """The cells that are opened and marked now are drawn; see `uebernimm`."""
        self.phase, self.levelpunkte, self.kacheln = "spielt", 0, None
        if self.modus == 3 and self.level <= 5:  # Nothing is opened.
            return None
        self.text = self.moduszeile()
        return BLIP

    def uebernimm(self, bild):
        """Takes over what chance has drawn.

        @exception Widerspruch the rules forbid it
        """
        if FEHLER in bild["kacheln"].values():
            raise Widerspruch("Das Level beginnt mit einem Fehler")
        if self.brett is None:
            self.brett = Brett(bild["zahlen"], self.anzahl())
            self.zahlen = bild["zahlen"]
        for zelle, kachel in bild["kacheln"].items():
            if kachel != VERDECKT:
                self.brett.lerne(zelle, kachel == SARANT)
        self.kacheln = bild["kacheln"]

    def klicke_links(self, zelle):
        """@pre The board knows the cell."""
        if self.phase != "spielt" or self.kacheln[zelle] == MARKIERT:
            return None
        self.text = self.moduszeile()
        ist_sarant = self.brett.wissen[zelle]
        self.kacheln[zelle] = SARANT if ist_sarant else FEHLER
        if self.zahl_der(FEHLER) == 2:
            self.phase, self.levelpunkte = "verloren", -100
            self.text = "Klicken Sie auf »Wiederholen«"
        elif self.rest() == 0:
            self.phase, self.levelpunkte = "gewonnen", BONUS[self.modus]
            self.text = "Klicken Sie auf »Nächster Level«"
            return TADA
        return BLIP if ist_sarant else FALSCH

    def klicke_rechts(self, zelle):
        if self.phase == "spielt":
            self.text = self.moduszeile()
            getauscht = {VERDECKT: MARKIERT, MARKIERT: VERDECKT}
            self.kacheln[zelle] = getauscht.get(self.kacheln[zelle], self.kacheln[zelle])

    def speichere(self, name):
        self.dateien[name] = zeilen(self.level, self.punkte + self.levelpunkte, self.modus)

    def liste(self):
        werte = self.dateien["sarant.txt"].decode("cp1252").split("\r\n")
        return [[name, int(punkte)] for name, punkte in zip(werte[:5], werte[5:10])]

    def platz(self):
        return next((i for i, (_, punkte) in enumerate(self.liste()) if self.punkte > punkte), None)

    def trage_ein(self, name):
        liste = self.liste()
        liste.insert(self.platz(), [name, self.punkte])
        self.dateien["sarant.txt"] = liste_als_datei(liste[:5])
