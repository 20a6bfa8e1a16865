"""Throws clicks, keys, menu choices, window moves and waits at the program, and looks now and then
whether what it shows agrees with itself. A long run of a build without sanitizers, which keep what
was freed, also judges the memory.

usage: tests/driver/stage monkey.py PROGRAM [SECONDS [SEED]]
"""

import random
import re
import subprocess
import sys
import time
from pathlib import Path

import pyatspi
from audio import Audio
from driver import put
from model import COVERED, GEM, MODES, WRONG, Board, Contradiction
from program import (DATA, Bus, Deviation, GLib, Mouse, Program, buttons, wait_for, xdotool)

KEYS = ("ctrl+n", "ctrl+s", "ctrl+o", "F1", "Escape", "Return", "j", "n", "J", "N", "alt+a", "Tab",
        "space", "shift+space", "Left", "Down", "z", "3", "alt+Tab", "alt+i b", "alt+i z", "alt+i s",
        "alt+s Return", "alt+o Return Return", "alt+o Return Down Return", "alt+o Down Down Return",
        "alt+s Right Right Escape Escape")
ENDS = "alt+s e j", "alt+s e n", "alt+s e Escape", "alt+F4"
# A window has changed or gone while it was looked at.
GONE = (GLib.GError, IndexError, KeyError, NotImplementedError, subprocess.CalledProcessError)


class Monkey:
    def __init__(self, path, seed):
        self.path, self.random, self.mouse, self.memory = path, random.Random(seed), Mouse(), []
        self.begin()

    def begin(self):
        # A saved game makes the high levels and the end of the game part of the run.
        put("w0.sar", *(self.random.randint(*limits) for limits in ((0, 40), (-500, 30000), (1, 3))))
        self.program = Program(self.path)
        self.memory.append([])  # MB by run and look.

    def to(self, element, *then):
        """Moves the mouse to some point of the element and goes on from there."""
        place, where = element.queryComponent().getExtents(pyatspi.DESKTOP_COORDS), self.random.random
        xdotool("mousemove", max(0, place.x + int(where() * place.width)),
                max(0, place.y + int(where() * place.height)), *then)

    def any_window(self):
        return self.random.choice([self.program.main_window()] + 3 * self.program.dialogs())

    def click_cell(self):
        self.to(self.program.main_window()[0][0], "click", self.random.choice((1, 1, 3, 3, 2)))

    def click_button(self):
        """Any button of any window, once or twice, so that each phase and window is left again."""
        twice = ["--repeat", 2, "--delay", self.random.randint(40, 300)]
        self.to(self.random.choice([e for e in buttons(self.any_window()) if e.name != "Beenden"]),
                "click", *twice * self.random.choice((0, 0, 1)), self.random.choice((1, 1, 1, 3)))

    def drag(self):
        self.to(self.any_window(), "mousedown", 1, "mousemove", self.random.randrange(1280),
                self.random.randrange(1024), "mouseup", 1)

    def hold_key(self):
        """Holds a key. What its first press has done, its repeats must not go on with."""
        key = self.random.choice(("space", "ctrl+n", "Return", "j", "Tab", "Down"))
        try:
            xdotool("keydown", key)
            before = self.program.rest()
            time.sleep(1)
            if key in ("space", "ctrl+n") and self.program.rest() != before:
                raise Contradiction(f"a held {key} acts more than once")
        finally:
            xdotool("keyup", key)

    def solve(self):
        """Opens what the numbers force, so that levels are won now and then."""
        view = self.program.rest()[0]
        level = int(view["panel"]["Level"])
        for cell, is_gem in Board(view["numbers"], 76 - level).known.items() if level else ():
            if is_gem and view["tiles"][cell] == COVERED:
                self.mouse.click(self.program.cell(cell))

    def throw(self):
        if any(window.name.startswith("Spieldatei") for window in self.program.dialogs()):
            # A random click could lead the file dialog out of the data folder.
            xdotool("type", "--delay", 40, f"{DATA}/w{self.random.randrange(4)}.sar")
            return self.mouse.key(self.random.choice(("Return", "Escape")))
        throws = {self.click_cell: 60, self.click_button: 25, self.solve: 4, self.drag: 5,
                  self.hold_key: 2, lambda: time.sleep(self.random.random()): 3,
                  lambda: self.mouse.key(*self.random.choice(100 * KEYS + ENDS).split()): 28}
        return self.random.choices(*zip(*throws.items()))[0]()

    def look(self):
        """Closes every window but the main one, without a yes, and looks for a contradiction."""
        def is_alone():
            for e in [e for dialog in self.program.dialogs() for e in buttons(dialog)]:
                if e.name in ("Schließen", "Nein", "OK"):
                    Bus().click(e)
            self.mouse.key("Escape")
            return not self.program.dialogs()

        wait_for(is_alone, lambda: f"open: {[w.name for w in self.program.dialogs()]}")
        view = self.program.rest()[0]
        panel, names = view["panel"], {name.rstrip("*") for name in view["buttons"]}
        tiles = list(view["tiles"].values())
        level, rest, errors = (int(panel[n]) for n in ("Level", "noch offen", "Fehlversuche"))
        gems = 76 - level if level else 0
        won, lost = level > 0 and rest == 0, errors == 2
        holds = [len(tiles) == 100 and rest == gems - tiles.count(GEM),
                 errors == tiles.count(WRONG) <= 2,
                 won == ("Nächster Level" in names) == ("Spiel speichern" in names),
                 lost == ("Wiederholen" in names), (level == 0) == (set(MODES.values()) <= names),
                 re.match("[45]" if won else "minus" if lost else "leer", panel["Levelpunkte"])]
        if not all(holds):
            raise Contradiction(holds, panel, names)
        board = Board(view["numbers"], gems)
        for cell in [cell for cell, tile in view["tiles"].items() if tile in (GEM, WRONG)]:
            board.learn(cell, view["tiles"][cell] == GEM)
        # What the process holds, but for the pages of files.
        state = Path(f"/proc/{self.program.process.pid}/status").read_text()
        self.memory[-1].append(sum(map(int, re.findall(r"Rss(?:Anon|Shmem):\s+(\d+)", state))) / 1024)

    def run(self, seconds):
        end, next_look = time.monotonic() + seconds, 0
        while time.monotonic() < end:
            try:
                self.throw()
                if time.monotonic() > next_look:
                    self.look()
                    next_look = time.monotonic() + 15
            except Exception as error:  # The program may have ended while it was looked at.
                time.sleep(1)
                lives = self.program.process.poll() is None
                if isinstance(error, Contradiction) or lives and not isinstance(error, GONE):
                    raise
            if self.program.process.poll() is not None:
                self.program.end()
                self.begin()
        self.look()
        wait_for(lambda: self.mouse.key("alt+s", "e", "j") or self.program.process.poll() is not None,
                 "end")
        self.program.end()
        looks = max(self.memory, key=len)
        quarter = len(looks) // 4 or 1
        growth = (sum(looks[-quarter:]) - sum(looks[:quarter])) / quarter
        print(f"{len(self.memory)} runs, {len(looks)} looks in the longest: {growth:.1f} MB")
        if len(looks) >= 60 and growth > 2 and b"__asan_init" not in Path(self.path).read_bytes():
            raise Deviation("the memory grows")


if __name__ == "__main__":
    SEED = int(sys.argv[3]) if len(sys.argv) > 3 else time.time_ns() // 10**6
    print(f"seed {SEED}", flush=True)
    AUDIO = Audio(sys.argv[1])
    MONKEY = Monkey(sys.argv[1], SEED)
    try:
        MONKEY.run(float(sys.argv[2]) if len(sys.argv) > 2 else 60)
    finally:
        MONKEY.program.kill()
