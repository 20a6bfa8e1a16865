"""Plays the program and compares every step with the rules: screen, files and sound."""

from unittest.mock import ANY

import pyatspi
from board import CELLS, COVERED, LINES, MARKED, MODES, WRONG, judge
from program import (CELL, TITLE, Bus, Deviation, Mouse, Program, has, labels, lines, read_files,
                     wait_for, walk, xdotool)

BLIP, ERROR, TADA = "BLIP.WAV", "FEHLER.WAV", "TADA.WAV"
BEST, OPTIONS = "Beste Spieler ", "Form1"
FILES = {"sarant.ini": lines(2),
         "sarant.txt": lines(*["Niemand"] * 5, *range(15000, 12999, -500))}


class Driver:
    """Plays one run of the program. `view` is what was seen last, `mode` the mode, `offers` the
    buttons that do not follow from the tiles, `files` what the data folder must hold, `sound`
    whether the game may be heard."""

    def __init__(self, path, audio, hand=None, at_start=(), sound=True, **environment):
        self.audio, self.hand, self.sound = audio, hand or Mouse(), sound
        self.files = FILES | read_files()
        self.offers = {"Spiel laden"} if any(".sar" in name for name in self.files) else set()
        self.mode = int(self.files["sarant.ini"])
        self.view = {"tiles": dict.fromkeys(CELLS, COVERED), "Level": 0, "Punkte": 0,
                     "numbers": {line: [0] * 5 for line in LINES}}
        self.board, self.program = None, Program(path, **environment)
        for words in at_start:
            self.confirm(words, "OK")
        if not at_start:
            self.look()

    # What must follow from an action.

    def look(self, sound=None, **changes):
        """Waits until the screen agrees with itself, and shows what it did but for the changes.
        Then the sound must be heard; a sound that nobody waits for disturbs the next one."""
        kept = {name: self.view[name] for name in ("tiles", "numbers", "Level", "Punkte")}
        wanted = kept | {"files": self.files} | changes
        is_new = wanted["numbers"] is ANY

        def compare():
            view = self.program.read(is_new) | {"files": read_files()}
            board = judge(view, [self.mode], self.offers)
            if any(view[name] != value for name, value in wanted.items()):
                raise Deviation(f"{view} instead of {wanted}")
            return view, board

        self.view, board = wait_for(compare, "agreement with the rules")
        self.board = board if is_new else self.board or board
        self.board.learn_opened(self.view["tiles"])
        if sound and self.sound:
            self.audio.expect(sound)

    def begin(self, **changes):
        """A look at the start of a level, which has another board if `Level` is named."""
        numbers = ANY if "Level" in changes else self.view["numbers"]
        # The expert begins the first five levels without an opened cell.
        sound = BLIP if self.mode < 3 or changes.get("Level", self.view["Level"]) > 5 else None
        self.look(sound, tiles=ANY, numbers=numbers, Fehlversuche=0, **changes)
        for cell in [cell for cell, tile in self.view["tiles"].items() if tile == MARKED]:
            self.board.learn(cell, False)

    # The board.

    def click(self, cell, button=1):
        self.hand.click(self.program.cell(cell), button)

    def open(self, cell, heard=True):
        self.click(cell)
        element = self.program.cell(cell)
        wait_for(lambda: not element.name.endswith(COVERED), f"{cell} opens")
        tile = CELL.match(element.name)[3]
        sound = ERROR if tile == WRONG else TADA if self.view["noch offen"] == 1 else BLIP
        self.look(heard and sound, tiles=self.view["tiles"] | {cell: tile})

    def mark(self, cell, tile=MARKED, button=3):
        self.click(cell, button)
        self.look(tiles=self.view["tiles"] | {cell: tile})

    def covered(self, is_gem=True):
        """The covered cells that are known to hold a gem, or to hold none."""
        return [cell for cell, tile in self.view["tiles"].items()
                if tile == COVERED and self.board.known.get(cell) == is_gem]

    def win(self, left=0):
        """Plays to the win, or until so many gems are left. What is not known is tried first, so
        that losing costs few clicks."""
        while self.view["noch offen"] > left:
            if self.view["Fehlversuche"] == 2:
                self.repeat()
            self.open(self.board.best_guess() or self.covered()[0])

    def lose(self):
        while self.view["Fehlversuche"] < 2:
            self.open(self.covered(is_gem=False)[0])

    def new_game(self):
        self.press("Neues Spiel")
        self.begin(Level=1, Punkte=500)

    def repeat(self):
        self.press("Wiederholen")
        self.begin(Punkte=self.view["Punkte"] - 100)

    # Buttons, messages and windows.

    def press(self, *names, title=None):
        for name in names:
            self.hand.click(self.program.button(name, title))

    def confirm(self, words, answer):
        """Reads the message that has these words, and answers it by a button or a key."""
        def is_shown():
            window = self.program.window(TITLE)
            # Before a window is active, it may still be moved, and gets no key.
            return (window and any(words in label for label in labels(window))
                    and (has(window, pyatspi.STATE_ACTIVE) or isinstance(self.hand, Bus)))
        wait_for(is_shown, words)
        if self.sound:
            self.audio.listen()
        if answer in ("Ja", "Nein", "OK"):
            self.press(answer, title=TITLE)
        else:
            self.hand.key(answer)
        wait_for(lambda: self.program.has_ended() or not is_shown(), f"end of {words}")

    def close(self, name, title):
        self.press(name, title=title)
        wait_for(lambda: not self.program.window(title), f"end of {title}")

    def type_into(self, title, text):
        wait_for(lambda: (window := self.program.window(title)) and any(
            e.getRole() == pyatspi.ROLE_TEXT and has(e, pyatspi.STATE_FOCUSED)
            for e in walk(window)), "text field")
        xdotool("type", "--delay", "40", text)

    def file(self, command, name):
        """Types a name into the file dialog that a command opens."""
        self.hand.key(command)
        self.type_into("Spieldatei", name)
        self.hand.key("Return")
        wait_for(lambda: not self.program.window("Spieldatei"), "end of the file dialog")

    def load(self, name):
        level, points, self.mode = map(int, self.files[name].split())
        self.file("ctrl+o", name)
        name = MODES[self.mode]
        self.confirm(f"Level:   {level + 1}\nSpielmodus:  {name}\nPunkte:  {points}", "Ja")
        self.begin(Level=level + 1, Punkte=points)

    def quit(self):
        """Ends the program in the middle of a game."""
        self.press("Beenden")
        self.confirm("»Spiel beenden«", "Ja")
        self.program.end()
