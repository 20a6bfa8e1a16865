"""Drives the program under test: accessibility tree, mouse and keyboard. Knows no rule."""

import atexit
import os
import re
import subprocess
import time
from pathlib import Path

import pyatspi
from gi.repository import GLib

STAGE = Path(os.environ["STAGE"])
DATA = Path(os.environ["XDG_DATA_HOME"], "nachtkammern")
TITLE = "Glanzgrube  Vers.: "
PANEL = re.compile(r"(Punkte|Levelpunkte|Fehlversuche|noch offen|Level): ([\w ]+)$")
BUTTONS = pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_CHECK_BOX
COVERED, MARKED, WRONG, GEM = "verdeckt", "markiert", "Fehler", "Sarant"


class Deviation(Exception):
    """What is seen or heard differs from what the game must show and play."""


def wait_for(condition, what, patience=60.0):
    """Polls until the condition gives a true value, and returns that value."""
    end, error = time.monotonic() + patience, None
    while time.monotonic() < end:
        try:
            if value := condition():
                return value
        except (GLib.GError, NotImplementedError, Deviation) as problem:
            error = problem  # What is looked at may be changing.
        time.sleep(0.02)
    focus = [e.name for app in pyatspi.Registry.getDesktop(0) for e in walk(app, True) if has(e, pyatspi.STATE_FOCUSED)]
    raise Deviation(f"waited in vain: {what}; focus: {focus}") from error


def lines(*values):
    return "".join(f"{value}\r\n" for value in values).encode("cp1252")


def put(name, *values):
    DATA.mkdir(exist_ok=True)
    (DATA / name).write_bytes(lines(*values))


def read_files():
    return {file.name: file.read_bytes() for file in DATA.glob("*") if file.is_file()}


def has(element, state=pyatspi.STATE_SHOWING):
    return element.getState().contains(state)


def centre(element):
    place = element.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return place.x + place.width // 2, place.y + place.height // 2


def walk(element, board=False):
    """The element and everything below it; the cells and numbers of the board only if asked for."""
    yield element
    if board or element.name != "Spielfeld":
        for child in filter(None, element):
            yield from walk(child, board)


def labels(window):
    return [e.name for e in walk(window) if e.getRole() == pyatspi.ROLE_LABEL]


def buttons(window):
    return [e for e in walk(window) if e.getRole() in BUTTONS]


def output(*words):
    return subprocess.run(list(map(str, words)), check=True, stdout=subprocess.PIPE, text=True).stdout


def xdotool(*words):
    output("xdotool", *words)


class Mouse:
    """One hand on the mouse, the other on the keyboard."""

    def click(self, element, button=1):
        xdotool("mousemove", *centre(element), "mousedown", button, "mouseup", button)

    def key(self, *names):
        xdotool("key", "--delay", "40", *names)


class Bus(Mouse):
    """Presses controls over the accessibility bus, on any screen."""

    def click(self, element, button=1):
        actions = element.queryAction()  # "Press", or "ShowMenu", or both in this order.
        actions.doAction(0 if button == 1 else actions.nActions - 1)


class Program:
    """One run of the game."""

    def __init__(self, path, **environment):
        pyatspi.Atspi.set_timeout(60000, 60000)  # milliseconds; a busy machine answers late
        pyatspi.Registry.getDesktop(0)  # Starts the bus; the program asks for it only once.
        with open(STAGE / "stderr", "w") as stderr:
            self.process = subprocess.Popen([path], env=os.environ | environment, stderr=stderr)
        atexit.register(self.process.kill)
        self.app = wait_for(lambda: next((app for app in filter(None, pyatspi.Registry.getDesktop(0))
                                          if app.get_process_id() == self.process.pid), None),
                            "program on the bus")
        # The names of the cells change with every step: nothing may be remembered here.
        self.app.set_cache_mask(pyatspi.Atspi.Cache.NONE)
        self.board = []

    def windows(self, role=pyatspi.ROLE_DIALOG):
        return [w for w in self.app if w and w.getRole() == role and has(w)]

    def window(self, title):
        """The dialog whose title begins like this, or None if it is not shown."""
        return next((w for w in self.windows() if w.name.startswith(title)), None)

    def main_window(self):
        return wait_for(lambda: self.windows(pyatspi.ROLE_FRAME), "main window")[0]

    def button(self, name, title=None):
        """A button or a menu entry by the words on it, in the main window or another one."""
        def find():
            window = self.window(title) if title else self.main_window()
            return window and next((e for e in walk(window) if e.name == name and has(e)), None)
        return wait_for(find, f"button {name}")

    def cells(self):
        """The cells, row by row. They are the first children of the board and are never replaced."""
        if not self.board:
            self.board = list(self.main_window()[0][0])[:100]
        return self.board

    def tiles(self):
        return [cell.name.split()[-1] for cell in self.cells()]

    def read(self):
        """What the main window shows beside the board: the rows of the panel, and the text."""
        view = {"text": ""}
        for name in labels(self.main_window()[0]):
            if hit := PANEL.match(name):
                view[hit[1]] = int(hit[2]) if hit[2].isdigit() else hit[2]
            else:
                view["text"] += " ".join(name.split())
        return view

    def has_ended(self):
        return self.process.poll() is not None

    def end(self):
        """The process must have ended well, said nothing, and written into its own folder only."""
        result, said = self.process.wait(60), (STAGE / "stderr").read_text().splitlines()
        # The table of Qt's own file dialog complains of what it tells the bus, and Qt of a screen reader that
        # answers late, listens to more than Qt knows, or asks for an element of a window just closed.
        said = [line for line in said if not line.startswith((
            "QAccessibleTable::child", "QSpiApplication::",
            "qt.accessibility.atspi: Subscription string not handled",
            "qt.accessibility.atspi: Could not find accessible on path"))]
        said += (STAGE / ".config").rglob("Qt*")
        if result or said:
            raise Deviation(f"ended with {result}", *said)
