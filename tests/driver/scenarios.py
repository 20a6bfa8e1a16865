"""Plays the game: a tour of all commands, without a mouse, beside a failing sound server, or under
another window manager.

usage: [SCREEN=weston] [MANAGER=COMMAND] tests/driver/stage scenarios.py PROGRAM SCENARIO
       The scenarios are tour, bus, keyboard, sound and desktop; weston has the bus alone.
"""

import os
import shutil
import signal
import sys
import time
from pathlib import Path

import pyatspi
from audio import Audio
from driver import BEST, OPTIONS, Driver, put
from gi.repository import GLib
from model import BLIP, COVERED, GEM, MARKED, MODES, lines
from program import (BUTTONS, CELL, STAGE, TITLE, Bus, Deviation, Mouse, Program, has, output,
                     read_files, wait_for, walk, xdotool)


def first_run(driver):
    """A fresh folder: the waiting window, a lost and a won level, saving, the options."""
    model = driver.model
    model.mode, model.hint = 1, f"Spielmodus : {MODES[1]}"
    model.files["sarant.ini"] = lines(1)
    driver.step(MODES[1])
    driver.ask("Info", "Grafik", "OK")
    driver.step(lambda: driver.press("Information", "Beste Spieler..."), BLIP)
    driver.close("OK", BEST)
    driver.step("Neues Spiel", model.new_game())
    for button in 3, 2:
        driver.mark((1, 1), button)
    driver.open(driver.cell_with(MARKED))  # A mark protects its cell.
    driver.win(left=60)
    driver.lose()
    driver.open(driver.cell_with(GEM))  # Cells are dead now.
    driver.step("Wiederholen", model.repeat())
    driver.win()
    driver.ask(lambda: driver.file("ctrl+s", "fehlt/spiel"), "Fehlernummer: 3", "Escape")
    model.files[":spiel.sar"] = lines(1, model.points + model.result, 1)
    driver.step(lambda: driver.file("ctrl+s", ":spiel"))
    driver.step("Nächster Level", model.next_level())
    driver.step("ctrl+s ctrl+o")  # Neither may be used now.
    driver.ask("ctrl+n", "»Neues Spiel«", "n")
    driver.ask("Einstellungen", f"mit {model.points}« Punkten", "Ja", BLIP)
    driver.press("Level 6", MODES[3], "Soundeffekt", title=OPTIONS)
    driver.sound, model.files["sarant.ini"] = False, lines(3)
    driver.ask(lambda: driver.press("Übernehmen", title=OPTIONS), "Level:  6\nSpielmodus:  Experte",
               "Ja", model.new_game(5, 1750, 3))
    driver.hand.key("alt+s", "e")
    driver.confirm("»Spiel beenden«", "Ja")
    driver.program.end()


def second_run(driver):
    """Loading, the best list in the middle of a game, and the end of the game behind the last level:
    the closing messages, and an entry in the best list."""
    driver.ask(lambda: driver.file("ctrl+o", "sarant.ini"), "sarant.ini\nist keine", "OK")
    driver.load("knapp.sar")
    driver.win()
    driver.step("Nächster Level", driver.model.next_level())
    driver.model.best = False
    driver.ask("Bester Spieler", "neue Bestmarke", "n")
    driver.file("ctrl+o", "ende.sar")
    for words, answer in (("Level:   41", "Ja"), ("alle Level erfolgreich", "OK"),
                          ("neue Bestmarke", "Ja")):
        driver.confirm(words, answer)
    driver.type_into(BEST, "Ida Stein")
    driver.press("OK", title=BEST)
    driver.confirm("Vielen Dank!", "OK")
    driver.program.end()
    if b"Ida Stein\r\n" not in read_files()["sarant.txt"]:
        raise Deviation("no entry in the best list")


def tour(path):
    audio = Audio(path)
    first_run(Driver(path, audio))
    put("knapp.sar", 38, 12700, 2)
    put("ende.sar", 40, 14500, 1)
    second_run(Driver(path, audio))
    # As it is installed, with sounds and pages in a folder of their own.
    shutil.copytree(Path(path).parent, STAGE / "usr/share/glanzgrube")
    (STAGE / "usr/games").mkdir()
    installed = shutil.copy(path, STAGE / "usr/games")
    driver = Driver(installed, audio)
    driver.hand.key("F1")  # The opener of this stage writes the name of the document down.
    note, document = STAGE / "opened", str(STAGE / "usr/share/glanzgrube/saranten.pdf")
    wait_for(lambda: note.exists() and document in note.read_text(), document)
    driver.step("Neues Spiel", driver.model.new_game())
    driver.quit()
    # A home that takes no folder, and none at all.
    for messages, data in (["Anlegen", "»Beste"], "/proc"), (["Festplatte"], "/proc/fehlt"):
        driver = Driver(path, audio, at_start=messages, XDG_DATA_HOME=data)
        driver.do("Beenden")
        driver.program.end()


def bus(path):
    driver = Driver(path, Audio(path), Bus())
    driver.step("Neues Spiel", driver.model.new_game())
    told = []
    pyatspi.Registry.registerEventListener(lambda event: told.append(str(event.any_data)),
                                           "object:property-change:accessible-name")
    driver.mark(cell := driver.cell_with(COVERED))
    wait_for(lambda: GLib.MainContext.default().iteration(False)
             or any(name.endswith("markiert") for name in told), "the new name of a cell")
    driver.mark(cell)
    driver.win()
    driver.quit()


def keyboard(path):
    """Tab changes between board, buttons and panel; arrows go on, the space bar presses."""
    def focus():
        return next((e for e in walk(driver.program.app, board=True)
                     if has(e, pyatspi.STATE_FOCUSED)), None)

    def go(key, fits):
        """Presses the key until the focus fits, each time only when the focus has moved."""
        while not ((element := focus()) and fits(element)):
            driver.hand.key(key)
            wait_for(lambda: focus() not in (None, element), key)

    def press_space_on(name, *down):
        go("Tab", lambda e: e.getRole() in BUTTONS and not CELL.match(e.name))
        driver.hand.key(*["Up"] * 12)
        go("Down", lambda e: e.name == name)
        xdotool("keydown", "space", *down, "keyup", "space")

    driver = Driver(path, Audio(path))
    # The repeats of a held key must not press what the focus comes to.
    driver.step(lambda: press_space_on("Neues Spiel", "sleep", 1), driver.model.new_game())
    go("Tab", lambda e: CELL.match(e.name))
    cell = driver.covered()[-1]
    driver.hand.key(*["Down"] * (cell[0] - 1), *["Right"] * (cell[1] - 1), "Up", "Down")
    for key, line in ("z", ("Zeile", cell[0])), ("s", ("Spalte", cell[1])):
        numbers = ", ".join(map(str, reversed(driver.model.numbers.get(line, {}).values())))
        driver.hand.key(key)
        wait_for(lambda: focus().description == f"{line[0]} {line[1]}: {numbers or 'leer'}", key)
    for _ in "mark", "no mark":
        driver.model.mark(cell)
        driver.step("shift+space")
    driver.step(lambda: driver.hand.key("space"), driver.model.click(cell))
    press_space_on("Beenden")
    driver.confirm("»Spiel beenden«", "j")
    driver.program.end()


def sound(path):
    """The game must neither wait for a device that comes late and a server that stands still, dies
    and comes back, nor lose them."""
    def click_on(clicks):
        for cell in driver.covered()[:clicks]:
            driver.click(cell)
            driver.model.click(cell)
            driver.compare()

    def expect_again():
        """The second click is heard, at the latest."""
        for _ in range(2):
            time.sleep(1)
            driver.audio.listen()
            click_on(1)
        driver.audio.expect(BLIP)

    driver = Driver(path, Audio(path, device=False), sound=False)
    driver.do("Einstellungen")
    driver.press("Soundeffekt", title=OPTIONS)
    driver.confirm("keine Soundkarte", "OK")
    driver.close("Schließen", OPTIONS)
    driver.audio.plug_in()
    time.sleep(1)
    driver.do("alt+o Return Return")  # Sound, an
    driver.sound = True
    driver.step("Neues Spiel", driver.model.new_game())
    driver.audio.processes[0].send_signal(signal.SIGSTOP)
    click_on(5)
    driver.audio.processes[0].send_signal(signal.SIGCONT)
    expect_again()
    driver.audio.close()
    click_on(5)
    time.sleep(10)
    driver.audio = Audio(path)
    expect_again()
    driver.quit()


def desktop(path):
    """The game starts above its cover, stays minimised, comes back by a click on the cover, and an
    open list or question survives such a click."""
    def is_minimised():
        return any("Iconic" in output("xprop", "-id", window, "WM_STATE")
                   for window in output("xdotool", "search", "--name", TITLE).split())

    def click_cover():
        xdotool("mousemove", 5, 500, "click", 1, "sleep", 0.5)

    program, mouse = Program(path), Mouse()
    program.button("Neues Spiel")
    time.sleep(1)  # The cover paints, and the manager puts the frame around the window.
    mouse.click(program.button("Neues Spiel"))  # Reaches it only above the cover.
    wait_for(lambda: program.read()["panel"]["Level"] == "1", "game above the cover", 5)
    if os.environ.get("MANAGER", "openbox") not in ("", "i3"):
        xdotool("search", "--name", TITLE, "windowminimize", "sleep", 1.5)
        wait_for(is_minimised, "minimised game", 1)
        click_cover()
        wait_for(lambda: not is_minimised(), "game that comes back", 5)
    for *openers, answer, title in (("Information", "Beste Spieler...", "OK", BEST),
                                    ("Neues Spiel", "Nein", TITLE)):
        for name in openers:
            mouse.click(program.button(name))
        program.button(answer, title)
        click_cover()
        mouse.click(program.button(answer, title))
        wait_for(lambda: not program.window(title), f"{title} above the game", 5)


if __name__ == "__main__":
    globals()[sys.argv[2]](sys.argv[1])
