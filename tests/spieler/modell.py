"""The rules of the game as the player knows them: told again, without a look at the program."""

from collections import defaultdict
from itertools import groupby, product
from pathlib import Path

MODI = {1: "Einfach", 2: "Normal", 3: "Experte"}
BONUS = {1: 400, 2: 450, 3: 500}
JE_LEVEL = {1: 300, 2: 300, 3: 350}
# Up to this level: opened gems by mode (None: the level minus 5), and marked free cells.
STARTFELDER = ((5, (8, 6, 0)), (20, (8, 6, None)), (24, (14, 12, 12)), (29, (11, 9, 9)),
               (34, (9, 7, 7)), (40, (7, 5, 5)))
FREIFELDER = ((3, 2), (8, 4), (13, 6), (18, 8), (30, 10), (40, 12))
VERDECKT, MARKIERT, FEHLER, SARANT = "verdeckt", "markiert", "Fehler", "Sarant"
FRAGE, FALSCH, BLIP, START, TADA = "FRAGE.WAV", "FEHLER.WAV", "BLIP.WAV", "START.WAV", "TADA.WAV"
BESTE = [["Niemand", 15000 - 500 * i] for i in range(5)]

FELD = [(z, s) for z in range(1, 11) for s in range(1, 11)]
# The cells of a line in the order in which its numbers are counted: from below, from the right.
LINIEN = {("Spalte", s): [(z, s) for z in range(10, 0, -1)] for s in range(1, 11)}
LINIEN |= {("Zeile", z): [(z, s) for s in range(10, 0, -1)] for z in range(1, 11)}

def laeufe(muster):
    return tuple(len(list(gruppe)) for voll, gruppe in groupby(muster) if voll)


MUSTER = defaultdict(list)
for _muster in product((False, True), repeat=10):
    MUSTER[laeufe(_muster)].append(_muster)


def lies_meldungen():
    """Name, sound and the two texts of every message."""
    for zeile in (Path(__file__).parent / "meldungen.txt").read_text("utf-8").splitlines()[1:]:
        name, klang, *texte = zeile.replace("\\n", "\n").split("|")
        yield name, (klang, *texte)


MELDUNGEN = dict(lies_meldungen())


def stufe(tabelle, level):
    return next(wert for bis, wert in tabelle if level <= bis)


def zeilen(*werte):
    return "".join(f"{wert}\r\n" for wert in werte).encode("cp1252")


def liste_als_datei(liste):
    return zeilen(*(name for name, _ in liste), *(punkte for _, punkte in liste))


class Brett:
    """What the numbers and the opened cells tell about one board."""

    def __init__(self, zahlen):
        self.laeufe = {linie: tuple(zahlen.get(linie, {}).values()) for linie in LINIEN}
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
                raise ValueError(f"{linie} {self.laeufe[linie]} passt nicht zum Brett")
            for zelle, werte in zip(LINIEN[linie], zip(*deutungen)):
                if zelle not in self.wissen and len(set(werte)) == 1:
                    self.wissen[zelle] = werte[0]
                    offen |= {("Zeile", zelle[0]), ("Spalte", zelle[1])}

    def lerne(self, zelle, ist_sarant):
        if self.wissen.get(zelle, ist_sarant) != ist_sarant:
            raise ValueError(f"{zelle} ist gegen die Zahlen {ist_sarant}")
        self.wissen[zelle] = ist_sarant
        self.schliesse([("Zeile", zelle[0]), ("Spalte", zelle[1])])

    def lohnendste(self):
        """The unknown cell that most likely holds a gem; None if the whole board is known."""
        def anteil(zelle, linie):
            stelle = LINIEN[linie].index(zelle)
            deutungen = self.deutungen(linie)
            return sum(muster[stelle] for muster in deutungen) / len(deutungen)
        offen = [zelle for zelle in FELD if zelle not in self.wissen]
        return max(offen, default=None, key=lambda zelle: anteil(zelle, ("Zeile", zelle[0]))
                   + anteil(zelle, ("Spalte", zelle[1])))


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
        self.level = self.punkte = self.levelpunkte = self.fehler = 0
        self.anzahl = 75
        self.bester = False
        self.text = "Wählen Sie einen Spielmodus ! Klicken Sie auf neues Spiel.\""
        self.kacheln = dict.fromkeys(FELD, VERDECKT)
        self.zahlen = {linie: dict.fromkeys(range(1, 6), 0) for linie in LINIEN}
        self.brett = None
        self.zeige_status()

    def zeige_status(self):
        self.levelanzeige = "leer"
        if 0 <= self.punkte <= 99999:
            self.punktanzeige = str(self.punkte)
        else:
            self.punktanzeige = self.punktanzeige[-1:]  # The units place keeps what it showed.

    def rest(self):
        opened = list(self.kacheln.values()).count(SARANT)
        return self.anzahl - opened if self.level else 0

    def knoepfe(self):
        namen = {"Hilfe", "Info", "Einstellungen", "Neues Spiel", "Beenden"}
        wenn = {"Spiel laden": self.laden, "Spiel speichern": self.phase == "gewonnen",
                "Nächster Level": self.phase == "gewonnen", "Wiederholen": self.phase == "verloren",
                "Bester Spieler": self.bester}
        namen |= {name for name, sichtbar in wenn.items() if sichtbar}
        if self.phase == "wartet":
            namen |= {name + "*" * (modus == self.modus) for modus, name in MODI.items()}
        return namen

    def bild(self):
        tafel = {"Punkte": self.punktanzeige or "leer", "Levelpunkte": self.levelanzeige,
                 "Fehlversuche": str(self.fehler), "noch offen": str(self.rest()),
                 "Level": str(self.level)}
        return {"kacheln": self.kacheln, "zahlen": self.zahlen, "tafel": tafel,
                "texte": [self.text], "knoepfe": self.knoepfe(), "dateien": self.dateien}

    def moduszeile(self, leerzeichen=3):
        return (f"Spielmodus:{' ' * leerzeichen}{MODI[self.modus]}\n"
                f"Es sind {self.anzahl} Saranten auf dem Spielfeld.")

    # What happens.

    def waehle_modus(self, modus):
        self.modus = modus
        self.text = f"Spielmodus  :  {MODI[modus]}"
        self.dateien["sarant.ini"] = zeilen(modus)

    def neues_spiel(self):
        self.text = self.moduszeile(2)
        self.punkte, self.level, self.anzahl = 500, 0, 75
        return self.beginne_level()

    def spiel_ab(self, uebersprungen, modus):
        if modus != self.modus:
            self.dateien["sarant.ini"] = zeilen(modus)
        self.level, self.modus = uebersprungen, modus
        self.punkte = uebersprungen * JE_LEVEL[modus] or 500
        return self.beginne_level()

    def lade(self, level, punkte, modus):
        self.level, self.punkte, self.modus = level, punkte, modus
        self.text = self.moduszeile(2)
        return self.beginne_level()

    def naechster_level(self):
        self.punkte += self.levelpunkte
        self.bester = self.punkte > self.liste()[4][1]
        return self.beginne_level()

    def beginne_level(self):
        self.level += 1
        self.anzahl = 76 - self.level
        self.brett = None
        return self.beginne_spiel()

    def wiederhole(self):
        self.punkte += self.levelpunkte
        return self.beginne_spiel()

    def beginne_spiel(self):
        """The cells that are opened and marked now are drawn; see `uebernimm`."""
        self.phase = "spielt"
        self.fehler = self.levelpunkte = 0
        self.kacheln = None
        if self.startfelder():
            self.text = self.moduszeile()
            return BLIP
        return None

    def startfelder(self):
        felder = stufe(STARTFELDER, self.level)[self.modus - 1]
        return self.level - 5 if felder is None else felder

    def uebernimm(self, bild):
        """Takes over what chance has drawn, if the rules allow it. Returns what they forbid."""
        kacheln, zahlen = bild["kacheln"], bild["zahlen"]
        gezogen = list(kacheln.values())
        erwartet = {SARANT: self.startfelder(), MARKIERT: stufe(FREIFELDER, self.level), FEHLER: 0}
        for kachel, anzahl in erwartet.items():
            if gezogen.count(kachel) != anzahl:
                return f"{gezogen.count(kachel)} Zellen {kachel} statt {anzahl}"
        if self.brett is None:
            for art in "Spalte", "Zeile":
                summe = sum(sum(orte.values()) for linie, orte in zahlen.items() if linie[0] == art)
                if summe != self.anzahl:
                    return f"Zahlen der {art}n ergeben {summe} statt {self.anzahl}"
            if any(list(orte) != list(range(1, len(orte) + 1)) for orte in zahlen.values()):
                return "Lücke zwischen Zahlen"
            self.brett, self.zahlen = Brett(zahlen), zahlen
        self.kacheln = kacheln
        for zelle, kachel in kacheln.items():
            if kachel != VERDECKT:
                self.brett.lerne(zelle, kachel == SARANT)
        self.zeige_status()
        return None

    def klicke_links(self, zelle):
        """@pre The board knows the cell."""
        if self.phase != "spielt" or self.kacheln[zelle] == MARKIERT:
            return None
        self.text = self.moduszeile()
        ist_sarant = self.brett.wissen[zelle]
        self.kacheln[zelle] = SARANT if ist_sarant else FEHLER
        self.fehler = list(self.kacheln.values()).count(FEHLER)
        self.zeige_status()
        if self.fehler == 2:
            self.phase, self.levelpunkte, self.levelanzeige = "verloren", -100, "100"
            self.text = "Klicken Sie auf »Wiederholen«"
        elif self.rest() == 0:
            self.phase, self.levelpunkte = "gewonnen", BONUS[self.modus]
            self.levelanzeige = str(self.levelpunkte)
            self.punktanzeige = self.punktanzeige if self.punkte > 0 else ""
            self.text = "Klicken Sie auf »Nächster Level«"
            return TADA
        return BLIP if ist_sarant else FALSCH

    def klicke_rechts(self, zelle):
        if self.phase != "spielt":
            return
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
        liste.insert(self.platz(), [name or "Spieler", self.punkte])
        self.dateien["sarant.txt"] = liste_als_datei(liste[:5])
