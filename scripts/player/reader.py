"""What a blind player hears: the words of the screen reader Orca, or the same words put together from
the events on the accessibility bus, which is quick and needs no Orca.

usage: scripts/stage scripts/player/reader.py PROGRAM [KEYS ...]
       Tells what is spoken at the start and after each KEYS: as xdotool names them, with commas between.
"""

import atexit
import re
import subprocess
import sys
import time

import pyatspi
from audio import Audio
from gi.repository import GLib
from program import STAGE, Deviation, Program, has, labels, wait_for, xdotool

LOG = STAGE / "orca.log"
FILES = {
    ".config/speech-dispatcher/speechd.conf":
        'AudioOutputMethod "pulse"\nAddModule "dummy" "sd_dummy" ""\nDefaultModule dummy\n',
    "data/orca/user-settings.conf":
        '{"general": {"enableKeyEcho": false}, "pronunciations": {}, "keybindings": {},'
        '"profiles": {"default": {"profile": ["Default", "default"]}}}',
    "data/orca/orca-customizations.py":
        "from orca import debug\ndebug.debugFile.reconfigure(line_buffering=True)\n",
    "bin/pgrep": "#!/bin/sh\n"}  # By this Orca would find the Orca of another session, and not start.


class Reader:
    """Presses keys, and compares what is spoken then with what is wanted."""
    QUIET = 0.3  # seconds without a new event: all has been spoken

    def __init__(self):
        self.past = 0

    def hear(self, wanted=".*"):
        """Waits until this has been spoken since the last time, and nothing more, and returns it."""
        size, since = -1, 0

        def is_heard():
            nonlocal size, since
            if size != (new := self.size()):
                size, since = new, time.monotonic()
            if time.monotonic() - since < self.QUIET:
                return None
            texts = self.texts()
            said = " / ".join(" ".join(text.split()).rstrip(".") for text in texts[self.past:])
            if not re.fullmatch(wanted, said):
                raise Deviation(said)
            self.past = len(texts)
            return [said]

        return wait_for(is_heard, wanted)[0]

    def press(self, keys, wanted=".*"):
        """Presses keys and returns what is spoken then."""
        alt = keys.startswith("alt+")
        if alt:  # Qt closes a menu if Alt reaches it by way of Orca later than the letter, or is let go early.
            xdotool("keydown", "alt")
            self.hear("")
        xdotool("key", "--delay", 40, *keys.removeprefix("alt+").split(","))
        said = self.hear(wanted)
        if alt:
            xdotool("keyup", "alt")
        return said


class Orca(Reader):
    """Its speech goes to a module without sound over the sound server: without either, Orca stops after
    its second sentence."""
    QUIET = 1.5

    def __init__(self):
        super().__init__()
        for name, text in FILES.items():
            (STAGE / name).parent.mkdir(parents=True, exist_ok=True)
            (STAGE / name).write_text(text)
        (STAGE / "bin/pgrep").chmod(0o755)
        LOG.touch()
        for command in ("speech-dispatcher", "--run-single"), ("orca", f"--debug-file={LOG}"):
            process = subprocess.Popen(command, stderr=subprocess.DEVNULL)
            atexit.register(process.wait)
            atexit.register(process.kill)  # This comes first.
        self.hear("Screen reader on.*")

    def size(self):
        return LOG.stat().st_size

    def texts(self):
        texts = re.findall(r"SPEECH OUTPUT: '(.*?)' *\[?{'est", LOG.read_text(errors="replace"), re.DOTALL)
        # Versions of Orca differ in these words.
        return [re.sub("notification |push | frame", "", text) for text in texts]


class Events(Reader):
    """Speaks as Orca does: a new window with its texts, the groups that the focus enters, the control
    with its role and description, and what the program announces."""
    ROLES = {pyatspi.ROLE_PUSH_BUTTON: " button", pyatspi.ROLE_RADIO_BUTTON: " radio button",
             pyatspi.ROLE_CHECK_BOX: " check box", pyatspi.ROLE_TEXT: " text"}

    def __init__(self):
        super().__init__()
        self.spoken, self.groups, self.window = [""], [], None
        pyatspi.Registry.registerEventListener(
            self.speak, "window:activate", "object:announcement",
            *("object:state-changed:" + state for state in ("focused", "checked", "showing")))

    def speak(self, event):
        try:
            text = self.words(event, event.source, event.source.name, event.source.getRole())
        except GLib.GError:
            return  # It has gone in the meantime.
        if text and text != self.spoken[-1]:
            self.spoken.append(text)

    def words(self, event, element, name, role):
        if event.type == "object:announcement":
            return event.any_data
        if role == pyatspi.ROLE_NOTIFICATION:
            return name if event.detail1 else ""
        if event.type == "window:activate":
            is_new, self.window, self.groups = element != self.window, element, []
            return self.dialog(element, name) if is_new and role == pyatspi.ROLE_DIALOG else ""
        if role == pyatspi.ROLE_DIALOG or not has(element, pyatspi.STATE_FOCUSED):
            return ""
        return " / ".join(filter(None, [*self.entered(element), self.control(element, name, role), element.description]))

    def dialog(self, window, name):
        return " ".join([name, "dialog", *(text for text in labels(window) if text != name)])

    def entered(self, element):
        left, self.groups, group = self.groups, [], element.parent
        while group.getRole() == pyatspi.ROLE_PANEL:
            self.groups.insert(0, " ".join([group.name, "panel", *labels(group)]))
            group = group.parent
        return [group for group in self.groups if group not in left]

    def control(self, element, name, role):
        choice = ""
        if role == pyatspi.ROLE_RADIO_BUTTON:
            choice = " selected" if has(element, pyatspi.STATE_CHECKED) else " not selected"
        return name + choice + self.ROLES.get(role, "")

    def size(self):
        while GLib.MainContext.default().iteration(False):
            pass
        return len(self.spoken)

    def texts(self):
        return self.spoken[1:]


if __name__ == "__main__":
    AUDIO, ORCA, PROGRAM = Audio(sys.argv[1]), Orca(), Program(sys.argv[1])
    print(ORCA.hear())
    for word in sys.argv[2:]:
        print(word, "→", ORCA.press(word), flush=True)
