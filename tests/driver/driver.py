"""Plays the program and compares every step with a model of the rules: tiles, numbers, panel, text,
visible controls, files and sound."""

import pyatspi
from model import CELLS, COVERED, GEM, MODES, WRONG, Model, lines
from program import DATA, TITLE, Mouse, Program, has, labels, read_files, wait_for, walk, xdotool

BEST, OPTIONS = "Beste Spieler ", "Form1"
FILE_DIALOGS = {"ctrl+o": "Spieldatei öffnen", "ctrl+s": "Spieldatei speichern unter"}


def put(name, *values):
    DATA.mkdir(exist_ok=True)
    (DATA / name).write_bytes(lines(*values))


class Driver:
    """Plays one run of the program."""

    def __init__(self, path, audio, hand=None, at_start=(), sound=True, **environment):
        self.audio, self.hand, self.sound = audio, hand or Mouse(), sound
        self.model, self.program = Model(read_files()), Program(path, **environment)
        for words in at_start:
            self.confirm(words, "OK")
        if not at_start:
            self.compare()

    # One step: an action, and what must follow from it.

    def deviations(self):
        """What the screen and the files have that the model has not."""
        if self.model.tiles is None:  # Only a screen at rest tells what has been drawn.
            self.model.take_over(self.program.rest()[0])
        seen = self.program.read() | {"files": read_files()}
        return [(kind, seen[kind], wanted) for kind, wanted in self.model.view().items()
                if seen[kind] != wanted]

    def compare(self):
        """Waits until the program agrees with the model."""
        wait_for(lambda: not self.deviations(), self.deviations)

    def do(self, action):
        """Presses the button or the keys of this name, or calls what it is told to."""
        if callable(action):
            action()
        elif "+" in action:
            self.hand.key(*action.split())
        else:
            self.press(action)

    def press(self, *names, title=None):
        for name in names:
            self.hand.click(self.program.button(name, title))

    def step(self, action, sound=None):
        self.do(action)
        self.compare()  # Before the sound, which is recorded meanwhile.
        self.audio.expect(sound if self.sound else None)

    # The board.

    def click(self, cell, button=1):
        self.hand.click(self.program.cell(cell), button)

    def open(self, cell):
        self.click(cell)
        if cell not in self.model.board.known:
            element = self.program.cell(cell)
            wait_for(lambda: not element.name.endswith(COVERED), f"{cell} opens")
            self.model.board.learn(cell, element.name.endswith(GEM))
        self.step(lambda: None, self.model.click(cell))

    def mark(self, cell, button=3):
        self.step(lambda: self.click(cell, button), self.model.mark(cell))

    def cell_with(self, tile):
        return next(cell for cell in CELLS if self.model.tiles[cell] == tile)

    def covered(self, is_gem=True):
        """The covered cells that are known to hold a gem, or to hold none."""
        return [cell for cell in CELLS if self.model.tiles[cell] == COVERED
                and self.model.board.known.get(cell) == is_gem]

    def win(self, left=0):
        """Plays to the win, or until so many gems are left. What is not known is tried first, so
        that losing costs few clicks."""
        while self.model.rest() > left:
            if self.model.phase == "lost":
                self.step("Wiederholen", self.model.repeat())
            self.open(self.model.board.best_guess() or self.covered()[0])

    def lose(self):
        for cell in self.covered(is_gem=False)[self.model.count(WRONG):2]:
            self.open(cell)

    # Messages and windows.

    def confirm(self, words, answer):
        """Reads the message that has these words, and answers it by a button or a key."""
        def read():
            window = self.program.window(TITLE)
            return window and any(words in label for label in labels(window))
        wait_for(read, words)
        self.audio.listen(int(self.sound and words != "Vielen Dank!"))
        if answer in ("Ja", "Nein", "OK"):
            self.press(answer, title=TITLE)
        else:
            self.hand.key(answer)
        wait_for(lambda: self.program.process.poll() is not None or not read(), f"end of {words}")

    def ask(self, action, words, answer, then=None):
        """An action that leads to a message, the message, and the sound that follows the answer."""
        self.do(action)
        self.step(lambda: self.confirm(words, answer), then)

    def close(self, name, title):
        self.press(name, title=title)
        wait_for(lambda: not self.program.window(title), f"end of {title}")

    def type_into(self, title, text):
        wait_for(lambda: any(e.getRole() == pyatspi.ROLE_TEXT and has(e, pyatspi.STATE_FOCUSED)
                             for e in walk(self.program.window(title))), "text field")
        xdotool("type", "--delay", "40", text)

    def file(self, command, name):
        """Types a name into the file dialog that a command opens."""
        title = FILE_DIALOGS[command]
        self.hand.key(command)
        self.type_into(title, name)
        self.hand.key("Return")
        wait_for(lambda: not self.program.window(title), f"end of {title}")

    def load(self, name):
        level, points, mode = map(int, self.model.files[name].split())
        self.ask(lambda: self.file("ctrl+o", name),
                 f"Level:   {level + 1}\nSpielmodus:  {MODES[mode]}\nPunkte:  {points}", "Ja",
                 self.model.new_game(level, points, mode))

    def quit(self):
        """Ends the program in the middle of a game."""
        self.do("Beenden")
        self.confirm("»Spiel beenden«", "Ja")
        self.program.end()
