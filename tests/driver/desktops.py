"""Tries the windows of the game under window managers: it starts above the cover, stays minimised,
comes back by a click on the cover, and an open list or question survives such a click.

usage: MANAGER= tests/driver/stage desktops.py PROGRAM [MANAGER ...]
       without a MANAGER all that are installed are tried; `none` is a screen without one
"""

import shutil
import subprocess
import sys
import time

from driver import BEST
from program import TITLE, Mouse, Program, wait_for, xdotool

COMMANDS = {"none": "true", "openbox": "openbox", "mutter": "mutter --x11", "xfwm4": "xfwm4",
            "kwin_x11": "kwin_x11", "icewm": "icewm", "i3": "i3 -c /etc/i3/config",
            "awesome": "awesome"}
COVER = 5, 500


def output(*command):
    return subprocess.run(command, capture_output=True, text=True).stdout


def is_minimised():
    return any("Iconic" in output("xprop", "-id", window, "WM_STATE")
               for window in output("xdotool", "search", "--name", TITLE).split())


def click_cover():
    xdotool("mousemove", *COVER, "click", 1, "sleep", 0.5)


def try_out(path, minimises):
    program, mouse = Program(path), Mouse()
    try:
        program.button("Neues Spiel")
        time.sleep(1)  # The cover paints, and the manager puts the frame around the window.
        mouse.click(program.button("Neues Spiel"))  # Reaches it only above the cover.
        wait_for(lambda: program.read()["panel"]["Level"] == "1", "game above the cover", 5)
        if minimises:
            xdotool("search", "--name", TITLE, "windowminimize", "sleep", 1.5)
            wait_for(is_minimised, "minimised game", 1)
            click_cover()
            wait_for(lambda: not is_minimised(), "game that comes back", 5)
        for name in "Information", "Beste Spieler...":
            mouse.click(program.button(name))
        program.button("OK", BEST)
        click_cover()
        mouse.click(program.button("OK", BEST))
        wait_for(lambda: not program.window(BEST), "list above the game", 5)
        mouse.click(program.button("Neues Spiel"))
        program.button("Nein", TITLE)
        click_cover()
        mouse.click(program.button("Nein", TITLE))
        wait_for(lambda: not program.window(TITLE), "question above the game", 5)
    finally:
        program.kill()


def main(path, *names):
    for name in names or [n for n, command in COMMANDS.items() if shutil.which(command.split()[0])]:
        manager = subprocess.Popen(COMMANDS[name].split(), stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        if name != "none":
            wait_for(lambda: "window id" in output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), name)
            time.sleep(1)
        try_out(path, minimises=name not in ("none", "i3"))
        manager.terminate()
        manager.wait()
        print(f"{name}: well", flush=True)


if __name__ == "__main__":
    main(*sys.argv[1:])
