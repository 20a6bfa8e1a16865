"""Plays the program, and waits for what must follow from each step on the screen, in the files and
from the speakers."""

import time

import pyatspi
from program import (COVERED, GEM, MARKED, TITLE, WRONG, Bus, Deviation, Mouse, Program, has, labels,
                     lines, read_files, wait_for, walk, xdotool)

BLIP, ERROR, QUESTION, START, TADA = (f"{n}.WAV" for n in ("BLIP", "FEHLER", "FRAGE", "START", "TADA"))
BEST, OPTIONS = "Beste Spieler ", "Form1"
DOUBLE_CLICK = 0.5  # seconds; a press that follows sooner where a window has closed does not count
MODES = {1: "Einfach", 2: "Normal", 3: "Experte"}
FILES = {"sarant.ini": lines(2),
         "sarant.txt": lines(*["Niemand"] * 5, *range(15000, 12999, -500))}


class Driver:
    """Plays one run of the program. `view` is what was seen last, `files` what the data folder must
    hold, `sound` whether the game may be heard."""

    def __init__(self, path, audio, hand=None, at_start=(), sound=True, **environment):
        self.audio, self.hand, self.sound = audio, hand or Mouse(), sound
        self.files, self.view = FILES | read_files(), None
        self.program = Program(path, **environment)
        for words in at_start:
            self.confirm(words, "OK")
        if not at_start:
            self.look(Level=0, Punkte=0)

    def look(self, sound=None, **wanted):
        """Waits until the screen shows what is wanted, and the files are right. Then the sound must be
        heard; a sound that nobody waits for disturbs the next one."""
        def compare():
            self.view = self.program.read() | {"files": read_files()}
            wrong = {name: (self.view.get(name), value)
                     for name, value in (wanted | {"files": self.files}).items()
                     if self.view.get(name) != value}
            if wrong:
                raise Deviation(wrong)
            return True

        wait_for(compare, f"a screen with {wanted}")
        if sound and self.sound:
            self.audio.expect(sound)

    # The board.

    def covered(self):
        return [n for n, tile in enumerate(self.program.tiles()) if tile == COVERED]

    def click(self, cell, button=1):
        self.hand.click(self.program.cells()[cell], button)

    def open(self, cell, heard=False):
        """Opens a covered cell and returns what it is."""
        self.click(cell)
        wait_for(lambda: cell not in self.covered(), f"cell {cell} opens")
        tile = self.program.tiles()[cell]
        if heard:
            self.audio.expect(BLIP if tile == GEM else ERROR)
        return tile

    def learn(self):
        """Opens every cell once, and repeats the level as often as that loses it. Returns the gems."""
        gems, free = set(), set()
        while True:
            tiles = self.program.tiles()
            gems.update(n for n, tile in enumerate(tiles) if tile == GEM)
            free.update(n for n, tile in enumerate(tiles) if tile in (MARKED, WRONG))
            if tiles.count(WRONG) == 2:
                self.press("Wiederholen")
                self.look(Fehlversuche=0, Punkte=max(0, self.view["Punkte"] - 100))
            elif unknown := set(range(100)) - gems - free:
                self.open(unknown.pop())
            else:
                return gems

    def win(self, gems=None):
        *cells, last = (gems or self.learn()).intersection(self.covered())
        for cell in cells:
            self.open(cell)
        self.audio.listen(0)
        self.open(last)
        self.look(TADA, text="Klicken Sie auf »Nächster Level«")

    # Buttons, messages and windows.

    def press(self, *names, title=None):
        for name in names:
            self.hand.click(self.program.button(name, title))

    def confirm(self, words, answer, sound=None):
        """Reads the message that has these words, and answers it by a button or a key."""
        def is_shown():
            window = self.program.window(TITLE)
            # Before a window is active, it may still be moved, and gets no key.
            return (window and any(words in label for label in labels(window))
                    and (has(window, pyatspi.STATE_ACTIVE) or isinstance(self.hand, Bus)))
        wait_for(is_shown, words)
        if self.sound:
            self.audio.expect(sound) if sound else self.audio.listen()
        if answer in ("Ja", "Nein", "OK"):
            self.press(answer, title=TITLE)
        else:
            self.hand.key(answer)
        wait_for(lambda: self.program.has_ended() or not is_shown(), f"end of {words}")
        time.sleep(DOUBLE_CLICK)

    def close(self, name, title):
        self.press(name, title=title)
        wait_for(lambda: not self.program.window(title), f"end of {title}")
        time.sleep(DOUBLE_CLICK)

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
        level, points, mode = map(int, self.files[name].split())
        self.file("ctrl+o", name)
        self.confirm(f"Level:   {level + 1}\nSpielmodus:  {MODES[mode]}\nPunkte:  {points}", "Ja")
        self.look(BLIP, Level=level + 1, Punkte=points)

    def quit(self):
        """Ends the program in the middle of a game."""
        self.press("Beenden")
        self.confirm("»Spiel beenden«", "Ja")
        self.program.end()
