"""A sound server whose only device is a null sink, and what that device has played."""

import array
import atexit
import subprocess
import threading
import time
import wave
from itertools import pairwise, zip_longest

from program import Deviation, companion, wait_for

RATE = 44100
SLICE = RATE // 100 * 2  # bytes of a hundredth of a second
CUT = 12  # hundredths of an effect's end that the sound system may swallow


def pitch(data):
    """How often a hundredth of a second changes its sign; 0 if it is silent."""
    values = array.array("h", data)
    if max(values) <= 30 and min(values) >= -30:
        return 0
    return sum((a < 0) != (b < 0) for a, b in pairwise(values)) or 1


def pitches(path):
    with wave.open(str(path)) as file:
        data = file.readframes(file.getnframes())
    return list(filter(None, (pitch(data[i:i + SLICE]) for i in range(0, len(data), SLICE))))


class Audio(threading.Thread):
    """Remembers the pitch of every hundredth of a second that the device has played."""

    def __init__(self, path, device=True):
        super().__init__(daemon=True)
        self.effects = {file.name: pitches(file) for file in companion(path, "").glob("*.WAV")}
        self.slices, self.heard, self.processes = [], 0, []
        atexit.register(self.close)
        self.start_process("pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no",
                           "--log-target=null", "--exit-idle-time=60", "-L",
                           "module-native-protocol-unix")
        wait_for(lambda: subprocess.run(["pactl", "info"], capture_output=True).returncode == 0,
                 "sound server")
        if device:
            self.plug_in()

    def start_process(self, *command):
        self.processes.append(subprocess.Popen(command, stdout=subprocess.PIPE))

    def plug_in(self):
        subprocess.run(["pactl", "load-module", "module-null-sink"], stdout=subprocess.DEVNULL)
        self.start_process("parec", "-d", "@DEFAULT_MONITOR@", "--format=s16le", f"--rate={RATE}",
                           "--channels=1", "--latency-msec=20")
        self.start()
        wait_for(lambda: self.slices, "recording")

    def run(self):
        while data := self.processes[-1].stdout.read(SLICE):
            self.slices.append(pitch(data))

    def news(self):
        """The pitches since the last time. Gaps of a busy machine are left out."""
        return list(filter(None, self.slices[self.heard:]))

    def recognise(self, sound):
        """The name of the effect that resembles these pitches most. Its end may be missing."""
        def distance(name):
            effect = self.effects[name]
            pairs = zip_longest(sound, effect[:max(len(sound), len(effect) - CUT)], fillvalue=0)
            return sum(abs(a - b) for a, b in pairs)
        return min(self.effects, key=distance) if sound else None

    def listen(self, least=0):
        """Waits for so many hundredths of sound and for its end, and returns its pitches."""
        wait_for(lambda: len(self.news()) >= least, lambda: f"{least}, {self.recognise(self.news())}")
        wait_for(lambda: not any(self.slices[-CUT:]), "silence")
        sound, self.heard = self.news(), len(self.slices)
        return sound

    def expect(self, effect):
        """Nothing but this effect has been heard since the last time, or nothing at all."""
        length = len(self.effects[effect]) if effect else 0
        time.sleep(0 if effect else 0.4)
        sound = self.listen(max(length - CUT, min(length, 1)))
        if self.recognise(sound) != effect or len(sound) > 2 * length:
            raise Deviation(f"{len(sound)} of {self.recognise(sound)}, not {length} of {effect}")

    def close(self):
        for process in reversed(self.processes):
            process.kill()
            process.wait()
