"""Throws clicks, keys, drags and waits at the program, and looks now and then whether it still answers
and counts right.

usage: scripts/stage tests/driver/monkey.py PROGRAM [SECONDS [SEED]]
"""

import random
import subprocess
import sys
import time

from audio import Audio
from program import (DATA, WRONG, Bus, GLib, Mouse, Program, buttons, centre, output, put,
                     wait_for, xdotool)

KEYS = ("ctrl+n", "ctrl+s", "ctrl+o", "F1", "Escape", "Return", "j", "n", "J", "N", "alt+a", "Tab",
        "space", "shift+space", "Left", "Down", "z", "3", "alt+Tab", "alt+i b", "alt+i z", "alt+i s",
        "alt+s Return", "alt+o Return Return", "alt+o Return Down Return", "alt+o Down Down Return")
ENDS = "alt+s e j", "alt+s e n", "alt+s e Escape", "alt+F4"
HELD = "space", "ctrl+n", "Return", "j", "Tab", "Down"
# A window has changed or gone while it was looked at.
GONE = (GLib.GError, IndexError, KeyError, NotImplementedError, subprocess.CalledProcessError)


def throw(program):
    windows, what = program.windows(), random.random()
    if any(window.name.startswith("Spieldatei") for window in windows):
        # A random click could lead the file dialog out of the data folder.
        xdotool("type", "--delay", 40, f"{DATA}/w{random.randrange(4)}.sar")
        Mouse().key(random.choice(("Return", "Escape")))
    elif what < 0.05:  # Two quick clicks on the two sides of a border between cells.
        x, y = centre(random.choice(program.cells()))
        click = "click", random.choice((1, 3))
        xdotool("mousemove", x + 23, y, *click, "mousemove_relative", 2, 0, *click)
    elif what < 0.5:
        Mouse().click(random.choice(program.cells()), random.choice((1, 1, 3, 3, 2)))
    elif what < 0.75:
        Mouse().key(*random.choice(100 * KEYS + ENDS).split())
    elif what < 0.77:
        xdotool("keydown", key := random.choice(HELD), "sleep", 1, "keyup", key)
    else:  # Any control of any window, so that each of them is left again.
        window = random.choice([program.main_window()] + 3 * windows)
        start, end = random.choices([e for e in buttons(window) if e.name != "Beenden"], k=2)
        more = ["--repeat", random.choice((2, 3)), "--delay", random.randint(40, 300)]
        more *= random.choice((0, 0, 1))
        drag = "mousedown", 1, "mousemove", *centre(end), "mouseup", 1
        click = "click", *more, random.choice((1, 1, 1, 3))
        xdotool("mousemove", *centre(start), *random.choice((click, click, click, drag)))


def look(program):
    """Closes every window but the main one, without a yes, and waits until its panel agrees with its
    tiles."""
    def is_alone():
        for e in [e for window in program.windows() for e in buttons(window)]:
            if e.name in ("Schließen", "Nein", "OK"):
                Bus().click(e)
        Mouse().key("Escape")
        return not program.windows()

    wait_for(is_alone, "the main window alone")
    wait_for(lambda: program.read()["Fehlversuche"] == program.tiles().count(WRONG), "the right panel")
    print(output("grep", "RssAnon", f"/proc/{program.process.pid}/status"), end="")


def start(path):
    """A saved game makes the high levels and the end of the game part of the run."""
    put("w0.sar", random.randint(0, 40), random.randint(-500, 30000), random.randint(1, 3))
    return Program(path)


def run(path, seconds):
    program, end, next_look = start(path), time.monotonic() + seconds, 0
    while time.monotonic() < end:
        try:
            throw(program)
            if time.monotonic() > next_look:
                look(program)
                next_look = time.monotonic() + 15
        except Exception as error:  # The program may have ended while it was looked at.
            time.sleep(1)
            if not program.has_ended() and not isinstance(error, GONE):
                raise
        if program.has_ended():
            program.end()
            program = start(path)
    look(program)  # Without a window above it, the game can be ended.
    wait_for(lambda: Mouse().key("alt+s", "e", "j") or program.has_ended(), "end")
    program.end()


if __name__ == "__main__":
    DEFAULTS = [None, "60", str(time.time_ns() // 10**6)]
    PATH, SECONDS, SEED = sys.argv[1:] + DEFAULTS[len(sys.argv) - 1:]
    print(f"seed {SEED}", flush=True)
    random.seed(int(SEED))
    AUDIO = Audio(PATH)
    run(PATH, float(SECONDS))
