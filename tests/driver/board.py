"""The rules of the game, told again without a look at the program: what the numbers say about a
board, and how the parts of the main window agree with each other."""

from collections import Counter, defaultdict
from itertools import groupby, product

MODES = {1: "Einfach", 2: "Normal", 3: "Experte"}
BONUS = {1: 400, 2: 450, 3: 500}
COVERED, MARKED, WRONG, GEM = "verdeckt", "markiert", "Fehler", "Sarant"

CELLS = list(product(range(1, 11), repeat=2))
# The cells of a line in the order in which its numbers are counted: from below, from the right.
LINES = {("Spalte", c): [(r, c) for r in range(10, 0, -1)] for c in range(1, 11)}
LINES |= {("Zeile", r): [(r, c) for c in range(10, 0, -1)] for r in range(1, 11)}
# The fillings of a line by the lengths of their runs.
FILLINGS = defaultdict(list)
for _filling in product((False, True), repeat=10):
    FILLINGS[tuple(len(list(run)) for full, run in groupby(_filling) if full)].append(_filling)


class Deviation(Exception):
    """What is seen or heard differs from what the rules say."""


class Board:
    """What the numbers and the opened cells tell about one board."""

    def __init__(self, numbers, gems):
        if sum(map(sum, numbers.values())) != 2 * gems:
            raise Deviation(f"the numbers do not add up to {gems} gems: {numbers}")
        self.known = {}
        # Before the first game, each line shows five zeros.
        self.fillings = {line: FILLINGS[tuple(numbers.get(line, ())) * (gems > 0)]
                         for line in LINES}
        for line in LINES:
            self.conclude(line)

    def conclude(self, line):
        """Learns what all fillings that the line may still have agree in."""
        if not self.fillings[line]:
            raise Deviation(f"the numbers of {line} do not fit the board")
        for cell, values in zip(LINES[line], zip(*self.fillings[line])):
            if len(set(values)) == 1:
                self.learn(cell, values[0])

    def learn(self, cell, is_gem):
        if self.known.get(cell) != is_gem:
            self.known[cell] = is_gem
            for line in ("Zeile", cell[0]), ("Spalte", cell[1]):
                place = LINES[line].index(cell)
                self.fillings[line] = [f for f in self.fillings[line] if f[place] == is_gem]
                self.conclude(line)

    def learn_opened(self, tiles):
        for cell, tile in tiles.items():
            if tile in (GEM, WRONG):
                self.learn(cell, tile == GEM)

    def best_guess(self):
        """The unknown cell that most likely holds a gem; None if the whole board is known."""
        def chance(cell):
            fillings = self.fillings["Zeile", cell[0]]
            return sum(filling[10 - cell[1]] for filling in fillings) / len(fillings)
        return max((c for c in CELLS if c not in self.known), default=None, key=chance)


def judge(view, modes, offers):
    """Finds out whether the main window agrees with its tiles in one of these modes, with these
    buttons that do not follow from the tiles. Returns the board."""
    level, count = view["Level"], Counter(view["tiles"].values())
    gems = 76 - level if level else 0
    always = offers | {"Hilfe", "Info", "Einstellungen", "Neues Spiel", "Beenden"}

    def row(mode):
        """The points of the level, the text, and the buttons of the present phase."""
        if not level:
            return "leer", view["text"], {name + "*" * (m == mode) for m, name in MODES.items()}
        if count[WRONG] == 2:
            return "minus 100", "Klicken Sie auf »Wiederholen«", {"Wiederholen"}
        if count[GEM] == gems:
            return (BONUS[mode], "Klicken Sie auf »Nächster Level«",
                    {"Spiel speichern", "Nächster Level"})
        text = f"Spielmodus: {MODES[mode]} Es sind {gems} Saranten auf dem Spielfeld."
        # The text of before stays until a cell is opened.
        return "leer", text if count[GEM] + count[WRONG] else view["text"], set()

    wanted = [(count[WRONG], gems - count[GEM], points, text, always | buttons)
              for points, text, buttons in map(row, modes)]
    seen = tuple(view[name] for name in
                 ("Fehlversuche", "noch offen", "Levelpunkte", "text", "buttons"))
    if seen not in wanted:
        raise Deviation(f"{seen} instead of {wanted}")
    board = Board(view["numbers"], gems)
    board.learn_opened(view["tiles"])
    return board
