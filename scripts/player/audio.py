"""A sound server whose only device is a null sink, and what that device has played."""

import atexit
import subprocess
import time
from pathlib import Path

from program import STAGE, Deviation, output, wait_for

FORMAT = "format=s16le", "rate=44100", "channels=1"  # That of the effects: nothing is converted.
END = 44100 * 2 // 8  # bytes; the sound system may swallow so much of an effect's end


class Audio:
    def __init__(self, path, device=True):
        self.effects = {file.name: file.read_bytes()[44:].strip(b"\0")
                        for file in Path(path).parent.glob("*.WAV")}
        self.recording, self.news, self.processes = None, b"", []
        atexit.register(self.close)
        self.start("pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--log-target=null",
                   "--exit-idle-time=60", "-L", "module-native-protocol-unix")
        wait_for(lambda: subprocess.run(["pactl", "info"], capture_output=True).returncode == 0,
                 "sound server")
        if device:
            self.plug_in()

    def start(self, *command):
        with (STAGE / "recording").open("wb") as recording:
            self.processes.append(subprocess.Popen(command, stdout=recording))

    def plug_in(self):
        output("pactl", "load-module", "module-null-sink", *FORMAT)
        self.start("parec", "-d", "@DEFAULT_MONITOR@", "--latency-msec=20",
                   *("--" + part for part in FORMAT))
        self.recording = (STAGE / "recording").open("rb")
        wait_for(lambda: self.recording.peek(1), "recording")

    def listen(self, least=1):
        """Waits for so many bytes of sound and for silence, and returns the sound."""
        def is_over():
            self.news += self.recording.read() if self.recording else b""
            return len(self.news.strip(b"\0")) >= least and not any(self.news[-END:])

        wait_for(is_over, f"{least} bytes of sound, and silence")
        sound, self.news = self.news.strip(b"\0"), b""
        return sound

    def expect(self, effect):
        """Nothing but this effect has been heard since the last time."""
        sound = self.listen(len(self.effects[effect]) - END)
        if sound not in self.effects[effect]:
            heard = [name for name, effect in self.effects.items() if sound in effect]
            raise Deviation(f"{len(sound)} bytes, a part of {heard}, instead of {effect}")

    def close(self):
        for process in reversed(self.processes):
            process.kill()
            process.wait()
