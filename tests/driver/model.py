"""The rules of the game, told again without a look at the program."""

from collections import defaultdict
from itertools import groupby, product

MODES = {1: "Einfach", 2: "Normal", 3: "Experte"}
BONUS = {1: 400, 2: 450, 3: 500}
COVERED, MARKED, WRONG, GEM = "verdeckt", "markiert", "Fehler", "Sarant"
BLIP, ERROR, TADA = "BLIP.WAV", "FEHLER.WAV", "TADA.WAV"

CELLS = list(product(range(1, 11), repeat=2))
# The cells of a line in the order in which its numbers are counted: from below, from the right.
LINES = {("Spalte", c): [(r, c) for r in range(10, 0, -1)] for c in range(1, 11)}
LINES |= {("Zeile", r): [(r, c) for c in range(10, 0, -1)] for r in range(1, 11)}
# The fillings of a line by the lengths of their runs.
FILLINGS = defaultdict(list)
for _filling in product((False, True), repeat=10):
    FILLINGS[tuple(len(list(run)) for full, run in groupby(_filling) if full)].append(_filling)


def lines(*values):
    return "".join(f"{value}\r\n" for value in values).encode("cp1252")


class Contradiction(Exception):
    """What is shown contradicts itself."""


class Board:
    """What the numbers and the opened cells tell about one board."""

    def __init__(self, numbers, gems):
        if any(list(places) != list(range(1, len(places) + 1)) for places in numbers.values()):
            raise Contradiction("a gap between numbers")
        self.runs = {line: tuple(numbers.get(line, {}).values()) * (gems > 0) for line in LINES}
        if sum(map(sum, self.runs.values())) != 2 * gems:
            raise Contradiction(f"the numbers do not add up to {gems} gems: {numbers}")
        self.known = {}
        self.conclude(LINES)

    def readings(self, line):
        """Every filling of the line that agrees with its numbers and with what is known."""
        known = [self.known.get(cell) for cell in LINES[line]]
        return [filling for filling in FILLINGS[self.runs[line]]
                if all(k in (None, f) for k, f in zip(known, filling))]

    def conclude(self, changed):
        """Works out what the numbers force, line by line, until nothing new follows."""
        todo = set(changed)
        while todo:
            line = todo.pop()
            readings = self.readings(line)
            if not readings:
                raise Contradiction(f"{line} {self.runs[line]} does not fit the board")
            for cell, values in zip(LINES[line], zip(*readings)):
                if cell not in self.known and len(set(values)) == 1:
                    self.known[cell] = values[0]
                    todo |= {("Zeile", cell[0]), ("Spalte", cell[1])}

    def learn(self, cell, is_gem):
        if self.known.setdefault(cell, is_gem) != is_gem:
            raise Contradiction(f"{cell} is {is_gem} against the numbers")
        self.conclude([("Zeile", cell[0]), ("Spalte", cell[1])])

    def best_guess(self):
        """The unknown cell that most likely holds a gem; None if the whole board is known."""
        def chance(cell):
            readings = self.readings(("Zeile", cell[0]))
            return sum(filling[10 - cell[1]] for filling in readings) / len(readings)
        return max((c for c in CELLS if c not in self.known), default=None, key=chance)


class Model:
    """One run of the program, as the rules want it. An event is a method and returns its sound."""

    def __init__(self, files):
        best = lines(*["Niemand"] * 5, *range(15000, 12999, -500))
        self.files = {"sarant.ini": lines(2), "sarant.txt": best} | files
        self.mode = int(self.files["sarant.ini"][:1])
        self.may_load = any(name.endswith(".sar") for name in files)
        self.phase, self.best, self.board = "waiting", False, None
        self.level = self.points = self.result = 0
        self.hint = "Wählen Sie einen Spielmodus ! Klicken Sie auf neues Spiel.\""
        self.tiles = dict.fromkeys(CELLS, COVERED)
        self.numbers = {line: dict.fromkeys(range(1, 6), 0) for line in LINES}

    def gems(self):
        return 76 - self.level if self.level else 0

    def count(self, tile):
        return list(self.tiles.values()).count(tile)

    def rest(self):
        return self.gems() - self.count(GEM)

    def view(self):
        """What the program must show and store."""
        shown = {"Spiel laden": self.may_load, "Bester Spieler": self.best,
                 "Spiel speichern": self.phase == "won", "Nächster Level": self.phase == "won",
                 "Wiederholen": self.phase == "lost"}
        shown |= {name + "*" * (mode == self.mode): self.phase == "waiting"
                  for mode, name in MODES.items()}
        panel = {"Punkte": str(self.points), "Fehlversuche": str(self.count(WRONG)),
                 "Levelpunkte": str(self.result or "leer").replace("-", "minus "),
                 "noch offen": str(self.rest()), "Level": str(self.level)}
        texts = {"lost": "Klicken Sie auf »Wiederholen«", "won": "Klicken Sie auf »Nächster Level«"}
        playing = f"Spielmodus: {MODES[self.mode]} Es sind {self.gems()} Saranten auf dem Spielfeld."
        return {"tiles": self.tiles, "numbers": self.numbers, "panel": panel, "files": self.files,
                "texts": [self.hint or texts.get(self.phase, playing)],
                "buttons": {"Hilfe", "Info", "Einstellungen", "Neues Spiel", "Beenden",
                            *(name for name, visible in shown.items() if visible)}}

    def new_game(self, finished=0, points=500, mode=None):
        """Begins a game, or goes on with one behind the level that was finished."""
        self.mode, self.points, self.result = mode or self.mode, points, 0
        self.level, self.hint = finished, None
        return self.next_level(best=self.best)

    def next_level(self, best=None):
        self.level, self.board = self.level + 1, None
        sound = self.repeat()
        self.best = self.points > 13000 if best is None else best
        return sound

    def repeat(self):
        """Begins the level; what is opened and marked now is drawn, see `take_over`."""
        self.points += self.result
        self.phase, self.result, self.tiles = "playing", 0, None
        return None if self.mode == 3 and self.level <= 5 else BLIP  # Nothing is opened there.

    def take_over(self, view):
        """Takes over what chance has drawn; a Contradiction is what the rules forbid."""
        if WRONG in view["tiles"].values():
            raise Contradiction("the level begins with an error")
        if self.board is None:
            self.board, self.numbers = Board(view["numbers"], self.gems()), view["numbers"]
        for cell, tile in view["tiles"].items():
            if tile != COVERED:
                self.board.learn(cell, tile == GEM)
        self.tiles = view["tiles"]

    def click(self, cell):
        """A left click on a cell that the board knows."""
        if self.phase != "playing" or self.tiles[cell] == MARKED:
            return None
        is_gem = self.board.known[cell]
        self.tiles[cell] = GEM if is_gem else WRONG
        if self.count(WRONG) == 2:
            self.phase, self.result = "lost", -100
        elif self.rest() == 0:
            self.phase, self.result = "won", BONUS[self.mode]
            return TADA
        return BLIP if is_gem else ERROR

    def mark(self, cell):
        if self.phase == "playing":
            swapped = {COVERED: MARKED, MARKED: COVERED}
            self.tiles[cell] = swapped.get(self.tiles[cell], self.tiles[cell])
