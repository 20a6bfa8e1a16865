"""Plays without a mouse: a level through the accessibility bus alone, one with the keyboard alone.

usage: [SCREEN=weston] tests/driver/stage access_scenarios.py PROGRAM     weston has the bus alone
"""

import os
import sys
import time

import pyatspi
from audio import Audio
from driver import BEST, Driver
from gi.repository import GLib
from model import COVERED
from program import BUTTONS, CELL, Bus, has, wait_for, walk, xdotool


def play_over_bus(driver):
    driver.read_best()
    driver.close("OK", BEST)
    driver.step("Neues Spiel", driver.model.new_game())
    told = []
    pyatspi.Registry.registerEventListener(lambda event: told.append(str(event.any_data)),
                                           "object:property-change:accessible-name")
    driver.mark(cell := driver.cell_with(COVERED))
    wait_for(lambda: GLib.MainContext.default().iteration(False)
             or any(name.endswith("markiert") for name in told), "the new name of a cell")
    driver.mark(cell)
    driver.win()
    driver.step("Nächster Level", driver.model.next_level())
    driver.quit()


def play_by_keyboard(driver):
    """Tab changes between board, buttons and panel; arrows go on, the space bar presses."""
    def focus():
        return next((e for e in walk(driver.program.app, board=True)
                     if has(e, pyatspi.STATE_FOCUSED)), None)

    def go(key, fits):
        def press():
            driver.hand.key(key)
            time.sleep(0.3)  # The focus must not move while the tree is walked.
        wait_for(lambda: (e := focus()) is not None and fits(e) or press(), key)

    def press_space_on(name, *down):
        go("Tab", lambda e: e.getRole() in BUTTONS and not CELL.match(e.name))
        driver.hand.key(*["Up"] * 12)
        go("Down", lambda e: e.name == name)
        xdotool("keydown", "space", *down, "keyup", "space")

    # The repeats of a held key must not press what the focus comes to.
    driver.step(lambda: press_space_on("Neues Spiel", "sleep", 1), driver.model.new_game())
    go("Tab", lambda e: CELL.match(e.name))
    cell = driver.covered()[-1]
    driver.hand.key(*["Down"] * (cell[0] - 1), *["Right"] * (cell[1] - 1), "Up", "Down")
    for key, line in ("z", ("Zeile", cell[0])), ("s", ("Spalte", cell[1])):
        numbers = ", ".join(map(str, reversed(driver.model.numbers.get(line, {}).values())))
        driver.hand.key(key)
        wait_for(lambda: focus().description == f"{line[0]} {line[1]}: {numbers or 'leer'}", numbers)
    for _ in "mark", "no mark":
        driver.model.mark(cell)
        driver.step("shift+space")
    driver.step(lambda: driver.hand.key("space"), driver.model.click(cell))
    press_space_on("Beenden")
    driver.confirm("»Spiel beenden«", "j")
    driver.program.end()


if __name__ == "__main__":
    AUDIO = Audio(sys.argv[1])
    if "DISPLAY" in os.environ:
        with Driver(sys.argv[1], AUDIO) as DRIVER:
            play_by_keyboard(DRIVER)
    with Driver(sys.argv[1], AUDIO, Bus()) as DRIVER:
        play_over_bus(DRIVER)
