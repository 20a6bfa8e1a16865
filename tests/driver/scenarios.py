"""Plays the game: a tour of the commands, by keyboard, without a mouse, beside a failing sound server, or
under another window manager.

usage: [SCREEN=weston] [MANAGER=COMMAND] scripts/stage tests/driver/scenarios.py PROGRAM SCENARIO
       The scenarios are tour, keyboard, orca, bus, sound and desktop; weston has the bus alone.
"""

import os
import re
import shutil
import signal
import sys
import time
from pathlib import Path

import pyatspi
from audio import Audio
from driver import BEST, BLIP, MODES, OPTIONS, QUESTION, START, Driver
from program import (GEM, MARKED, STAGE, TITLE, WRONG, Bus, Deviation, Mouse, Program, has, lines,
                     output, put, read_files, wait_for, xdotool)
from reader import Events, Orca

SHORT = {"(title)": r"Glanzgrube Vers.: \S+", "(cell)": r"Zeile \d+, Spalte \d+:",
         "(level)": "Spielmodus: Einfach Es sind 75 Saranten auf dem Spielfeld"}


def first_run(driver):
    """A fresh folder: the waiting window, a level, the sounds, saving, the options."""
    driver.files["sarant.ini"] = lines(1)
    driver.press(MODES[1])
    driver.look(text=f"Spielmodus : {MODES[1]}")
    driver.press("Information", "Beste Spieler...")
    driver.look(BLIP)
    opens(driver, "Bestespieler.pdf")
    driver.close("OK", BEST)
    driver.press("Neues Spiel")
    driver.look(BLIP, Level=1, Punkte=500)
    while driver.open(driver.covered()[0], heard=True) == GEM:
        pass
    driver.load("reich.sar")
    driver.win()
    driver.file("ctrl+s", "fehlt/spiel")
    driver.confirm("Fehlernummer: 3", "Escape")
    points = driver.view["Punkte"] + 400
    driver.files[":spiel.sar"] = lines(1, points, 1)
    driver.file("ctrl+s", ":spiel")
    driver.press("Nächster Level")
    driver.look(BLIP, Level=2, Punkte=points)
    driver.hand.key("ctrl+s", "ctrl+n")  # Only the second may be used now.
    driver.confirm("»Neues Spiel«", "n")
    driver.press("Einstellungen")
    driver.confirm(f"mit {points}« Punkten", "Ja", QUESTION)
    driver.look(BLIP)
    driver.press("Level 6", MODES[3], "Soundeffekt", "Übernehmen", title=OPTIONS)
    driver.sound, driver.files["sarant.ini"] = False, lines(3)
    driver.confirm("Level:  6\nSpielmodus:  Experte", "Ja")
    driver.look(Level=6, Punkte=1750)
    driver.hand.key("alt+s", "e")
    driver.confirm("»Spiel beenden«", "j")  # A click so soon would be the second of a double click.
    driver.program.end()
    if driver.audio.listen(0):  # What was played since the switch.
        raise Deviation("heard although the sound is off")


def second_run(driver):
    """The end of the game behind the last level: the closing messages, and an entry in the list."""
    driver.file("ctrl+o", "sarant.ini")
    driver.confirm("sarant.ini\nist keine", "OK")
    driver.file("ctrl+o", "ende.sar")
    driver.confirm("Level:   41", "Ja")
    driver.confirm("alle Level erfolgreich", "OK")
    driver.confirm("neue Bestmarke", "Ja", START)
    driver.type_into(BEST, "Ida Stein")
    driver.close("OK", BEST)
    driver.sound = False  # The last message has none.
    driver.confirm("Vielen Dank!", "OK")
    driver.program.end()
    if b"Ida Stein\r\n" not in read_files()["sarant.txt"]:
        raise Deviation("no entry in the best list")


def opens(driver, page):
    """F1 opens a page. The opener of this stage writes its name down."""
    wait_for(lambda: any(has(window, pyatspi.STATE_ACTIVE) for window in (
        *driver.program.windows(), driver.program.main_window())), "an active window")
    driver.hand.key("F1")
    wait_for(lambda: (STAGE / "opened").read_text().rstrip().endswith(str(page)), page)


def tour(path):
    (STAGE / "opened").write_text("-\n")
    audio = Audio(path)
    put("reich.sar", 0, 5000, 1)
    first_run(Driver(path, audio))
    put("ende.sar", 40, 14500, 1)
    second_run(Driver(path, audio))
    # As it is installed, with sounds and pages in a folder of their own.
    pages = shutil.copytree(Path(path).parent, STAGE / "usr/share/glanzgrube")
    for folder in "bin", "games":
        (STAGE / "usr" / folder).mkdir()
        driver = Driver(shutil.copy(path, STAGE / "usr" / folder), audio)
        opens(driver, pages / "saranten.pdf")
        driver.press("Info")
        wait_for(lambda: "SKIP_TASKBAR" in output("xprop", "-id", output("xdotool", "getactivewindow").strip(),
                                                  "_NET_WM_STATE"), "a message without a task bar entry")
        opens(driver, pages / "Meldefenster.pdf")
        driver.confirm("Grafik", "OK")
        driver.hand.key("alt+F4")
        driver.program.end()
    # A home that takes no folder, and none at all.
    for messages, data in (["Anlegen", "»Beste"], "/proc"), (["Festplatte"], "/proc/fehlt"):
        driver = Driver(path, audio, at_start=messages, XDG_DATA_HOME=data)
        driver.press("Beenden")
        driver.program.end()


def keyboard(path, by=Events):
    """What a blind player hears after the keys of each line of a list: a level from the new game to the
    win, and what else a player meets."""
    def learn():
        driver.files = read_files()
        driver.look(Level=1, Punkte=500)
        gems.update(driver.learn())
        while WRONG not in driver.program.tiles():
            driver.open((set(driver.covered()) - gems).pop())

    def win():
        for cell in sorted(gems.intersection(driver.covered()))[:-1]:
            driver.open(cell)

    def focus():
        return next(n for n, cell in enumerate(driver.program.cells()) if has(cell, pyatspi.STATE_FOCUSED))

    def walk_to(is_gem):
        """Walks to the first covered cell of a kind. Orca must be there before the next key."""
        start, goal = focus(), next(n for n in driver.covered() if (n in gems) == is_gem)
        down, right = goal // 10 - start // 10, goal % 10 - start % 10
        if start != goal:
            keys = "Down," * down + "Up," * -down + "Right," * right + "Left," * -right
            ear.press(keys[:-1], rf".*Zeile {goal // 10 + 1}, Spalte {goal % 10 + 1}: verdeckt button")

    def row():
        tens = focus() // 10 * 10
        line = "".join("x" if n in gems else " " for n in range(tens, tens + 10))
        return ", ".join(str(len(run)) for run in line.split())

    put("sarant.txt", *["Niemand"] * 5, *[-30000] * 5)  # Any score is a new best.
    audio = Audio(path)
    ear, driver, gems = by(), Driver(path, audio, Bus(), sound=False), set()
    for line in Path(__file__).with_name("keyboard.txt").read_text().splitlines():
        keys, wanted = line.split(" → ")
        for short, long in SHORT.items():
            wanted = wanted.replace(short, long)
        if "(row)" in wanted:
            wanted = wanted.replace("(row)", row())
        place, _, keys_there = keys.rpartition("),")
        if place:
            walk_to(place == "(gem")
        if command := {"(learn)": learn, "(win)": win}.get(keys):
            command()
        said = ear.hear(wanted) if command else ear.press(keys_there, wanted)
        print(time.strftime("%X"), keys, "→", said, flush=True)
    driver.program.end()


def orca(path):
    keyboard(path, Orca)


def bus(path):
    driver = Driver(path, Audio(path), Bus())
    driver.press("Neues Spiel")
    driver.look(BLIP, Level=1, Punkte=500)
    cell = driver.covered()[0]
    driver.click(cell, button=3)
    wait_for(lambda: driver.program.tiles()[cell] == MARKED, "the new name of a cell")
    driver.open(driver.covered()[0], heard=True)
    driver.quit()


def sound(path):
    """The game must neither wait for a device that comes late and a server that stands still, dies
    and comes back, nor lose them."""
    driver = Driver(path, Audio(path, device=False), sound=False)
    driver.press("Einstellungen")
    driver.press("Soundeffekt", title=OPTIONS)
    driver.confirm("keine Soundkarte", "OK")
    driver.close("Schließen", OPTIONS)
    driver.audio.plug_in()
    driver.press("Optionen             ")
    wait_for(lambda: has(driver.program.button("Sound"), pyatspi.STATE_ENABLED), "sound in the menu")
    driver.press("Sound", "an")
    driver.sound = True
    driver.press("Neues Spiel")
    driver.look(BLIP, Level=1, Punkte=500)
    gem = driver.program.tiles().index(GEM)

    def blip(sound=None, times=1):  # A click on an open gem is heard each time.
        for _ in range(times):
            driver.click(gem)
            driver.look(sound)

    while driver.open(driver.covered()[0]) != WRONG:
        driver.audio.listen()
    blip()  # Cuts off the effect of the error.
    if driver.audio.listen()[-4000:] not in driver.audio.effects[BLIP]:
        raise Deviation("an effect plays on beside the next")
    driver.audio.processes[0].send_signal(signal.SIGSTOP)
    blip(times=5)
    driver.audio.processes[0].send_signal(signal.SIGCONT)
    driver.audio.listen()  # The last effect comes late.
    blip(BLIP)
    driver.audio.close()
    blip(times=5)
    driver.audio = Audio(path)
    blip(BLIP)
    driver.quit()


def desktop(path):
    """The contract with the desktop, as the X server tells it: what the window manager may do, who has
    the focus after each step, where a message stands."""
    program, mouse = Program(path), Mouse()
    program.button("Neues Spiel")
    time.sleep(1)  # The cover paints, and the manager puts the frame around the window.
    game = output("xdotool", "search", "--onlyvisible", "--name", TITLE).strip()

    def answer(question, *names):
        return output(question, "-id", game, *names)

    def focus():
        window = output("xdotool", "getwindowfocus").strip()
        return "game" if window == game else output("xdotool", "getwindowname", window)

    def middle(window):
        left, top, width, height = map(int, re.findall(
            r"(?:Absolute upper-left [XY]|Width|Height): +(\S+)", output("xwininfo", "-id", window)))
        return left + width // 2, top + height // 2

    def click_cover():
        xdotool("mousemove", 5, 500, "click", 1)

    def click_board():
        mouse.click(program.cells()[99], 2)

    def ask():
        mouse.click(program.button("Beenden"))

    if float(output("import", "-window", "root", "-crop", "99x99+9+500", "-format",
                    "%[fx:standard_deviation]", "info:")) < 0.005:
        raise Deviation("an empty cover")
    mouse.click(program.button("Neues Spiel"))  # Reaches it only above the cover.
    wait_for(lambda: program.read()["Level"] == 1, "game above the cover")
    allowed = int(answer("xprop", "_MOTIF_WM_HINTS").split()[3].strip(","), 16)
    sizes = re.findall(r"m size: (.*)", answer("xprop", "WM_NORMAL_HINTS"))
    if allowed & 0x3C != 0x2C or sizes[0] != sizes[1]:  # 0x10 is to maximise.
        raise Deviation(hex(allowed), sizes)
    manager = os.environ.get("MANAGER", "openbox")
    for step, wanted in ((lambda: mouse.key("alt+i", "b"), BEST),
                         (click_board, "game"),
                         (click_cover, "game"), (ask, TITLE), (click_cover, TITLE),
                         (click_board, TITLE), (lambda: mouse.key("Escape"), "game")):
        step()
        time.sleep(0.5)  # Nothing may take the focus later.
        wait_for(lambda: focus().startswith(wanted), f"{wanted} has the focus", 10)
    if manager[:2] not in ("", "i3"):
        xdotool("windowminimize", game, "sleep", 1.5)
        wait_for(lambda: "Iconic" in answer("xprop", "WM_STATE"), "minimised game")
        click_cover()
        wait_for(lambda: "Normal" in answer("xprop", "WM_STATE") and focus() == "game",
                 "game that comes back")
    xdotool("windowmove", game, 330, 160, "sleep", 1)
    ask()
    wait_for(lambda: focus().startswith(TITLE), "question")
    distance = [a - b for a, b in zip(middle(game), middle(output("xdotool", "getwindowfocus").strip()))]
    if abs(distance[0]) > 1 or not 0 <= distance[1] < 20:  # The frame is higher above than below.
        raise Deviation("the question is not in the middle", distance)


if __name__ == "__main__":
    globals()[sys.argv[2]](sys.argv[1])
