"""A sound server whose only device is a null sink, and what that device has played."""

import array
import atexit
import subprocess
import time
from itertools import pairwise
from pathlib import Path
from statistics import mean

from program import STAGE, Deviation, wait_for

RATE = 44100
SLICE = RATE // 100 * 2  # bytes of a hundredth of a second
CUT = 12  # hundredths of an effect's end that the sound system may swallow
RECORDING = STAGE / "recording"


def pitches(data):
    """How often each hundredth of a second changes its sign, without those that are silent."""
    for i in range(0, len(data) - SLICE + 1, SLICE):
        values = array.array("h", data[i:i + SLICE])
        if max(values) > 30 or min(values) < -30:
            yield sum((a < 0) != (b < 0) for a, b in pairwise(values)) or 1


class Audio:
    def __init__(self, path, device=True):
        self.effects = {file.name: list(pitches(file.read_bytes()[44:]))
                        for file in Path(path).parent.glob("*.WAV")}
        self.heard, self.processes = 0, []
        atexit.register(self.close)
        self.start("pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--log-target=null",
                   "--exit-idle-time=60", "-L", "module-native-protocol-unix")
        wait_for(lambda: subprocess.run(["pactl", "info"], capture_output=True).returncode == 0,
                 "sound server")
        if device:
            self.plug_in()

    def start(self, *command):
        self.processes.append(subprocess.Popen(command, stdout=RECORDING.open("wb")))

    def plug_in(self):
        subprocess.run(["pactl", "load-module", "module-null-sink"], stdout=subprocess.DEVNULL)
        self.start("parec", "-d", "@DEFAULT_MONITOR@", "--format=s16le", f"--rate={RATE}",
                   "--channels=1", "--latency-msec=20")
        wait_for(self.news, "recording")

    def news(self):
        """What has been played since the last time."""
        return RECORDING.read_bytes()[self.heard:]

    def listen(self, least=0):
        """Waits for so many hundredths of sound and for its end, and returns its pitches."""
        wait_for(lambda: len(list(pitches(self.news()))) >= least, f"{least} hundredths of sound")
        wait_for(lambda: not any(pitches(self.news()[-CUT * SLICE:])), "silence")
        news = self.news()
        self.heard += len(news) // SLICE * SLICE
        return list(pitches(news))

    def expect(self, effect):
        """Nothing but this effect has been heard since the last time, or nothing at all."""
        wanted = self.effects[effect] if effect else [0]
        time.sleep(0 if effect else 0.4)
        sound = self.listen(max(len(wanted) - CUT, len(wanted) > 1)) or [0]
        if len(sound) > 1.5 * len(wanted) or abs(mean(sound) - mean(wanted)) > 3:
            raise Deviation(f"{len(sound)} of pitch {mean(sound)} are not {effect}")

    def close(self):
        for process in reversed(self.processes):
            process.kill()
            process.wait()
