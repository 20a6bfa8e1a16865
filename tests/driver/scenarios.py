"""Plays the game: a tour of all commands, without a mouse, beside a failing sound server, under
another window manager, or through all levels.

usage: [SCREEN=weston] [MANAGER=COMMAND] tests/driver/stage scenarios.py PROGRAM SCENARIO
       The scenarios are tour, bus, sound, desktop and levels; weston has the bus alone.
"""

import os
import shutil
import signal
import sys
import time
from pathlib import Path

import pyatspi
from audio import Audio
from board import COVERED, MARKED, MODES
from driver import BEST, BLIP, OPTIONS, Driver
from gi.repository import GLib
from program import (STAGE, TITLE, Bus, Deviation, Mouse, Program, has, lines, output, put,
                     read_files, wait_for, xdotool)


def first_run(driver):
    """A fresh folder: the waiting window, a lost and a won level, saving, the options."""
    driver.mode, driver.files["sarant.ini"] = 1, lines(1)
    driver.press(MODES[1])
    driver.look(text=f"Spielmodus : {MODES[1]}")
    driver.press("Info")
    driver.confirm("Grafik", "OK")
    driver.press("Information", "Beste Spieler...")
    driver.look(BLIP)
    driver.close("OK", BEST)
    driver.new_game()
    driver.mark(cell := driver.covered()[0])
    driver.click(cell)  # A mark protects its cell.
    driver.mark(cell, COVERED, button=2)
    driver.win(left=60)
    driver.lose()
    driver.click(driver.covered()[0])  # Cells are dead now.
    driver.repeat()
    driver.win()
    driver.file("ctrl+s", "fehlt/spiel")
    driver.confirm("Fehlernummer: 3", "Escape")
    points = driver.view["Punkte"] + 400
    driver.files[":spiel.sar"] = lines(1, points, 1)
    driver.file("ctrl+s", ":spiel")
    driver.look()
    driver.press("Nächster Level")
    driver.begin(Level=2, Punkte=points)
    driver.hand.key("ctrl+s", "ctrl+o", "ctrl+n")  # Only the last may be used now.
    driver.confirm("»Neues Spiel«", "n")
    driver.press("Einstellungen")
    driver.confirm(f"mit {points}« Punkten", "Ja")
    driver.look(BLIP)
    driver.press("Level 6", MODES[3], "Soundeffekt", "Übernehmen", title=OPTIONS)
    driver.sound, driver.mode, driver.files["sarant.ini"] = False, 3, lines(3)
    driver.confirm("Level:  6\nSpielmodus:  Experte", "Ja")
    driver.begin(Level=6, Punkte=1750)
    driver.hand.key("alt+s", "e")
    driver.confirm("»Spiel beenden«", "j")
    driver.program.end()
    if driver.audio.listen(0):  # What was played since the switch.
        raise Deviation("heard although the sound is off")


def second_run(driver):
    """Loading, the best list in the middle of a game, and the end behind the last level: the
    closing messages, and an entry in the best list."""
    driver.file("ctrl+o", "sarant.ini")
    driver.confirm("sarant.ini\nist keine", "OK")
    driver.load("viel.sar")
    driver.win()
    driver.press("Nächster Level")
    driver.offers.add("Bester Spieler")
    driver.begin(Level=40, Punkte=driver.view["Punkte"] + 450)
    driver.press("Bester Spieler")
    driver.confirm("neue Bestmarke", "n")
    driver.offers.remove("Bester Spieler")
    driver.look()
    driver.file("ctrl+o", "ende.sar")
    driver.confirm("Level:   41", "Ja")
    driver.confirm("alle Level erfolgreich", "OK")
    driver.confirm("neue Bestmarke", "Ja")
    driver.type_into(BEST, "Ida Stein")
    driver.press("OK", title=BEST)
    driver.sound = False  # The last message has none.
    driver.confirm("Vielen Dank!", "OK")
    driver.program.end()
    if b"Ida Stein\r\n" not in read_files()["sarant.txt"]:
        raise Deviation("no entry in the best list")


def tour(path):
    audio = Audio(path)
    first_run(Driver(path, audio))
    put("sarant.ini", 2)
    put("viel.sar", 38, 20000, 2)
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
    driver.new_game()
    driver.quit()
    # A home that takes no folder, and none at all.
    for messages, data in (["Anlegen", "»Beste"], "/proc"), (["Festplatte"], "/proc/fehlt"):
        driver = Driver(path, audio, at_start=messages, XDG_DATA_HOME=data)
        driver.press("Beenden")
        driver.program.end()


def bus(path):
    driver = Driver(path, Audio(path), Bus())
    driver.new_game()
    told = []
    pyatspi.Registry.registerEventListener(lambda event: told.append(str(event.any_data)),
                                           "object:property-change:accessible-name")
    driver.mark(cell := driver.covered()[0])
    wait_for(lambda: GLib.MainContext.default().iteration(False)
             or any(name.endswith(MARKED) for name in told), "the new name of a cell")
    driver.mark(cell, COVERED)
    driver.win()
    driver.quit()


def sound(path):
    """The game must neither wait for a device that comes late and a server that stands still, dies
    and comes back, nor lose them."""
    def open_gems():
        for cell in driver.covered()[:5]:
            driver.open(cell, heard=False)

    driver = Driver(path, Audio(path, device=False), sound=False)
    driver.press("Einstellungen")
    driver.press("Soundeffekt", title=OPTIONS)
    driver.confirm("keine Soundkarte", "OK")
    driver.close("Schließen", OPTIONS)
    driver.audio.plug_in()
    driver.press("Optionen             ")
    wait_for(lambda: has(driver.program.button("Sound"), pyatspi.STATE_ENABLED), "sound in menu")
    driver.press("Sound", "an")
    driver.sound = True
    driver.new_game()
    # A new effect cuts off the one before it.
    driver.open(driver.covered(is_gem=False)[0], heard=False)
    driver.open(driver.covered()[0], heard=False)
    if driver.audio.listen()[-4000:] not in driver.audio.effects[BLIP]:
        raise Deviation("an effect plays on beside the next")
    driver.audio.processes[0].send_signal(signal.SIGSTOP)
    open_gems()
    driver.audio.processes[0].send_signal(signal.SIGCONT)
    driver.audio.listen()  # The last effect comes late.
    driver.open(driver.covered()[0])
    driver.audio.close()
    open_gems()
    driver.audio = Audio(path)
    driver.open(driver.covered()[0])
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
    wait_for(lambda: program.read()["Level"] == 1, "game above the cover")
    if os.environ.get("MANAGER", "openbox") not in ("", "i3"):
        xdotool("search", "--name", TITLE, "windowminimize", "sleep", 1.5)
        wait_for(is_minimised, "minimised game")
        click_cover()
        wait_for(lambda: not is_minimised(), "game that comes back")
    for *openers, answer, title in (("Information", "Beste Spieler...", "OK", BEST),
                                    ("Neues Spiel", "Nein", TITLE)):
        for name in openers:
            mouse.click(program.button(name))
        program.button(answer, title)
        click_cover()
        mouse.click(program.button(answer, title))
        wait_for(lambda: not program.window(title), f"{title} above the game")


def levels(path):
    """Wins each level once, the modes in turn."""
    names = [f"{level}.sar" for level in range(40)]
    for level, name in enumerate(names):
        put(name, level, 500, level % 3 + 1)
    driver = Driver(path, Audio(path))
    for name in names:
        driver.load(name)
        driver.win()
    driver.quit()


if __name__ == "__main__":
    globals()[sys.argv[2]](sys.argv[1])
