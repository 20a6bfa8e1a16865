"""A tour of the whole game by mouse and keyboard, or all levels of a mode.

usage: tests/driver/stage scenarios.py PROGRAM [MODE]     MODE 1 to 3 plays all its 40 levels
"""

import shutil
import sys
from pathlib import Path

from audio import Audio
from driver import BEST, OPTIONS, Driver, put
from model import BLIP, GEM, MARKED, MODES, lines
from program import (DATA, STAGE, TITLE, Deviation, centre, companion, read_files, wait_for, walk,
                     xdotool)


def press_f1(driver, path):
    """The opener of this stage writes the name of the document down."""
    driver.hand.key("F1")
    note, document = STAGE / "opened", companion(path, "saranten.pdf").resolve()
    wait_for(lambda: note.exists() and str(document) in note.read_text(), document)


def drag_message(driver):
    """A message is moved by its title, and not by its text."""
    driver.do("Info")
    window = wait_for(lambda: driver.program.window(TITLE), "Info")
    for start, moves in (TITLE, True), ("Grafik", False):
        grip = next(e for e in walk(window) if e.name.startswith(start) and e != window)
        before = centre(window)
        xdotool("mousemove", *centre(grip), "mousedown", 1)
        xdotool(*["mousemove_relative", 20, 10, "sleep", 0.2] * 3, "mouseup", 1)
        if moves:
            wait_for(lambda: centre(window) != before, "the message moves")
        elif centre(window) != before:
            raise Deviation("the message is moved by its text")
    driver.confirm("Grafik", "OK")


def first_run(driver, path):
    """A fresh folder: the waiting window, a lost and a won level, saving, the options."""
    model = driver.model
    model.mode, model.text = 1, f"Spielmodus  :  {MODES[1]}"
    model.files["sarant.ini"] = lines(1)
    driver.step(MODES[1])
    press_f1(driver, path)
    drag_message(driver)
    driver.read_best()
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
    driver.ask(lambda: driver.file("ctrl+s", ""), "gültigen Dateinamen", "OK")
    driver.ask(lambda: driver.file("ctrl+s", "fehlt/spiel"), "Fehlernummer: 3", "Escape")
    model.save(":spiel.sar")
    driver.step(lambda: driver.file("ctrl+s", ":spiel"))
    driver.step("Nächster Level", model.next_level())
    driver.step("ctrl+s ctrl+o")  # Neither may be used now.
    driver.ask("ctrl+n", "»Neues Spiel«", "n")
    driver.ask("Einstellungen", f"mit {model.points}« Punkten", "Ja", BLIP)
    driver.press("Level 6", MODES[3], "Soundeffekt", title=OPTIONS)
    driver.sound, model.files["sarant.ini"] = False, lines(3)
    driver.ask(lambda: driver.press("Übernehmen", title=OPTIONS), "Level:  6\nSpielmodus:  Experte",
               "Ja", model.new_game(5, 1750, 3))
    for entry, sound in ("an", True), ("aus", False):
        driver.press("Optionen             ", "Sound", entry)
        driver.sound = sound
        driver.open(driver.covered()[0])
    driver.hand.key("alt+s", "e")
    driver.confirm("»Spiel beenden«", "Ja")
    driver.program.end()


def second_run(driver):
    """Loading, a second won level, the best list in the middle of a game."""
    model = driver.model
    driver.step(lambda: driver.file("ctrl+o", ""))
    driver.ask(lambda: driver.file("ctrl+o", "sarant.ini"), "sarant.ini\nist keine", "OK")
    driver.load(":spiel.sar", "Nein")
    driver.load("knapp.sar")
    driver.win()
    driver.step("Nächster Level", model.next_level())
    model.best = False
    driver.ask("Bester Spieler", "neue Bestmarke", "n")
    for name in ":spiel.sar", "knapp.sar":
        (DATA / name).unlink()
        del model.files[name]
    driver.ask("Spiel laden", f"Im Ordner {DATA}\nbefindet", "Nein")
    driver.hand.key("alt+F4")
    driver.program.end()


def end_of_game(driver):
    """The next level behind the last one: the closing messages, and an entry in the best list."""
    for words, answer in ("alle Level erfolgreich", "OK"), ("neue Bestmarke", "Ja"):
        driver.confirm(words, answer)
    driver.type_into(BEST, "Ida Stein")
    driver.press("OK", title=BEST)
    driver.confirm("Vielen Dank!", "OK")
    driver.program.end()
    if b"Ida Stein\r\n" not in read_files()["sarant.txt"]:
        raise Deviation("no entry in the best list")


def tour(path, audio):
    with Driver(path, audio) as driver:
        first_run(driver, path)
    put("knapp.sar", 38, 12700, 2)
    with Driver(path, audio) as driver:
        second_run(driver)
    put("ende.sar", 40, 14500, 1)
    with Driver(path, audio) as driver:
        driver.file("ctrl+o", "ende.sar")
        driver.confirm("Level:   41", "Ja")
        end_of_game(driver)
    # As it is installed, with sounds and pages in a folder of their own.
    shutil.copytree(Path(path).parent, STAGE / "usr/share/glanzgrube")
    (STAGE / "usr/games").mkdir()
    installed = shutil.copy(path, STAGE / "usr/games")
    with Driver(installed, audio) as driver:
        press_f1(driver, installed)
        driver.step("Neues Spiel", driver.model.new_game())
        driver.quit()
    # Folders that cannot be used: a list that is a folder, a home that takes none, no home.
    (DATA / "sarant.txt").unlink()
    (DATA / "sarant.txt").mkdir()
    for program, messages, data in (
            (path, ["»Beste Spieler«"], STAGE / "data"), (path, ["Anlegen", "»Beste"], "/proc"),
            (installed, ["Festplatte"], "/proc/fehlt")):
        with Driver(program, audio, at_start=messages, XDG_DATA_HOME=str(data)) as driver:
            driver.do("Beenden")
            driver.program.end()


def all_levels(path, audio, mode):
    put("sarant.ini", mode)
    with Driver(path, audio) as driver:
        driver.step("Neues Spiel", driver.model.new_game())
        driver.win()
        while driver.model.level < 40:
            driver.step("Nächster Level", driver.model.next_level())
            driver.win()
            print(MODES[mode], driver.model.level, driver.model.points, flush=True)
        driver.do("Nächster Level")
        end_of_game(driver)


if __name__ == "__main__":
    PATH, *MODE = sys.argv[1:]
    if MODE:
        all_levels(PATH, Audio(PATH), int(MODE[0]))
    else:
        tour(PATH, Audio(PATH))
