"""The screen reader Orca, and what it speaks. Its speech goes to a module without sound over the sound
server: without either, Orca stops after its second sentence.

usage: scripts/stage scripts/player/reader.py PROGRAM [KEYS ...]
       Tells what is spoken at the start and after each KEYS: as xdotool names them, with commas between.
"""

import atexit
import re
import subprocess
import sys
import time

from audio import Audio
from program import STAGE, Deviation, Program, wait_for, xdotool

LOG = STAGE / "orca.log"
QUIET = 1.5  # seconds without a new line in the log: Orca has nothing more to do
FILES = {
    ".config/speech-dispatcher/speechd.conf":
        'AudioOutputMethod "pulse"\nAddModule "dummy" "sd_dummy" ""\nDefaultModule dummy\n',
    "data/orca/user-settings.conf":
        '{"general": {"enableKeyEcho": false}, "pronunciations": {}, "keybindings": {},'
        '"profiles": {"default": {"profile": ["Default", "default"]}}}',
    "data/orca/orca-customizations.py":
        "from orca import debug\ndebug.debugFile.reconfigure(line_buffering=True)\n",
    "bin/pgrep": "#!/bin/sh\n"}  # By this Orca would find the Orca of another session, and not start.


class Orca:
    def __init__(self):
        for name, text in FILES.items():
            (STAGE / name).parent.mkdir(parents=True, exist_ok=True)
            (STAGE / name).write_text(text)
        (STAGE / "bin/pgrep").chmod(0o755)
        LOG.touch()
        for command in ("speech-dispatcher", "--run-single"), ("orca", f"--debug-file={LOG}"):
            process = subprocess.Popen(command, stderr=subprocess.DEVNULL)
            atexit.register(process.wait)
            atexit.register(process.kill)  # This comes first.
        self.past = 0
        self.hear("Screen reader on.*")

    def hear(self, wanted=".*"):
        """Waits until this has been spoken since the last time, and nothing more, and returns it."""
        size, since = 0, time.monotonic()

        def is_heard():
            nonlocal size, since
            if size != LOG.stat().st_size:
                size, since = LOG.stat().st_size, time.monotonic()
            if time.monotonic() - since < QUIET:
                return None
            texts = re.findall(r"SPEECH OUTPUT: '(.*?)' *\[?{'est", LOG.read_text(errors="replace"), re.DOTALL)
            # Versions of Orca differ in these words.
            said = " / ".join(re.sub("notification |push | frame", "", " ".join(text.split())).rstrip(".")
                              for text in texts[self.past:])
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


if __name__ == "__main__":
    AUDIO, ORCA, PROGRAM = Audio(sys.argv[1]), Orca(), Program(sys.argv[1])
    print(ORCA.hear())
    for word in sys.argv[2:]:
        print(word, "→", ORCA.press(word), flush=True)
