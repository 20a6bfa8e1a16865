"""Measures the program from outside and writes the table of results.

usage: scripts/stage bench/bench.py BUILD_DIRECTORY RESULT.md
"""

import json
import os
import platform
import re
import statistics
import subprocess
import sys
import time
from pathlib import Path

from audio import Audio
from driver import Driver
from program import put, wait_for
from stopwatch import LIMIT, Stopwatch

IDLE = 20.0  # seconds over which an idle minute is measured
STARTS = 21
CLICKS = 200
MIDDLE = 920, 520  # lies within the window of each program that is started
TABLE = re.compile("(?<=<!-- begin of the table -->\n).*(?=<!-- end of the table -->)", re.DOTALL)


def memory(pid):
    """Resident memory in MB."""
    pages = Path(f"/proc/{pid}/statm").read_text().split()[1]
    return int(pages) * os.sysconf("SC_PAGE_SIZE") / 2**20


def processor_time(pid):
    """Processor time in milliseconds that an idle minute costs."""
    def ticks():
        return sum(map(int, Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()[11:13]))
    before = ticks()
    time.sleep(IDLE)
    return (ticks() - before) * 1000 / os.sysconf("SC_CLK_TCK") * 60 / IDLE


def start(screen, command, colour=None):
    """Starts a program without accessibility. Returns the milliseconds until the pixel bears its
    colour, the resident memory, and the pixel's colour at last."""
    empty = screen.pixel(MIDDLE)
    began = time.perf_counter()
    process = subprocess.Popen(command, stderr=subprocess.DEVNULL,
                               env=os.environ | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "0"})
    while screen.pixel(MIDDLE) != colour and time.perf_counter() - began < LIMIT:
        time.sleep(0.0005)
    milliseconds = 1000 * (time.perf_counter() - began)
    time.sleep(1)
    result = milliseconds, memory(process.pid), screen.pixel(MIDDLE)
    process.kill()
    process.wait()
    wait_for(lambda: screen.pixel(MIDDLE) == empty, "an empty screen")
    return result


def measure_starts(screen, commands):
    """Start times and memory of each program, run by run. The programs take turns, so that all of a
    round find the machine in the same mood."""
    colours = [start(screen, command)[2] for command in commands]
    rounds = [[start(screen, command, colour)[:2] for command, colour in zip(commands, colours)]
              for _ in range(STARTS)]
    return [list(zip(*runs)) for runs in zip(*rounds)]


def start_rows(screen, game, bare):
    """The rows about the start and the memory, beside a bare window and two other games."""
    commands = [[game], bare, ["/usr/games/kmines"], ["/usr/games/gnome-mines"]]
    (times, mb), (bare_times, bare_mb), (kmines, _), (gnome, _) = measure_starts(screen, commands)
    median = statistics.median

    def ratio(others):
        return f"{median(one / other for one, other in zip(times, others)):.2f}"

    return [
        ("Start to first painted frame", f"{median(times):.0f} ms"),
        ("The same, bare Qt window with one picture", f"{median(bare_times):.0f} ms"),
        ("The same, KMines", f"{median(kmines):.0f} ms"),
        ("The same, GNOME Mines", f"{median(gnome):.0f} ms"),
        (f"Ratio to the bare window, median of {STARTS} pairs", ratio(bare_times)),
        ("Ratio to the quicker of the two games", ratio(min(kmines, gnome, key=median))),
        ("Resident memory", f"{median(mb):.1f} MB"),
        ("The same, bare Qt window with one picture", f"{median(bare_mb):.1f} MB"),
        ("Memory above the bare window", f"{median(mb) - median(bare_mb):.1f} MB")]


def play_rows(path, stopwatch):
    """The rows about clicks and idle minutes in a real level."""
    put("bench.sar", 0, 9000, 1)
    game = Driver(path, Audio(path), stopwatch)
    game.load("bench.sar")
    pid = game.program.process.pid
    cell = game.program.cells()[game.covered()[0]]
    for _ in range(CLICKS):
        stopwatch.click(cell, 3)
    right = statistics.median(stopwatch.times)
    playing = processor_time(pid)
    stopwatch.times.clear()
    game.win()
    left = statistics.median(stopwatch.times)
    return [
        ("Right press to painted pixel, median", f"{right:.1f} ms"),
        ("Left press to painted pixel, with sound, median", f"{left:.1f} ms"),
        ("Processor time of an idle minute, playing", f"{playing:.0f} ms"),
        ("Processor time of an idle minute, solved (arrow blinks)",
         f"{processor_time(pid):.0f} ms")]


def rule_rows(program_path):
    """The rows of the benchmarks of the rules."""
    environment = os.environ | {"QT_QPA_PLATFORM": "offscreen"}
    output = subprocess.check_output([program_path, "--benchmark_format=json"], env=environment)
    for benchmark in json.loads(output)["benchmarks"]:
        yield benchmark["name"], f"{benchmark['real_time']:.1f} {benchmark['time_unit']}"
        if "Pictures" in benchmark:
            yield "Pictures decoded during those levels", f"{benchmark['Pictures']:.0f}"


def machine():
    processor = re.search(r"model name\s*: (.*)", Path("/proc/cpuinfo").read_text())[1]
    system = re.search(r'PRETTY_NAME="(.*)"', Path("/etc/os-release").read_text())[1]
    qt = subprocess.check_output(["qtpaths6", "--qt-version"], text=True).strip()
    memory_gb = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    return (f"{os.cpu_count()} cores of {processor}, {memory_gb:.0f} GB, {system}, Linux "
            f"{platform.release()}, Qt {qt}, Xvfb {os.environ['SCREEN']}; load average at the end "
            f"{os.getloadavg()[0]:.1f}; {time.strftime('%Y-%m-%d')}")


def main(build, result):
    game, bare = build / "bin/glanzgrube", [build / "bin/bare_window", build / "bilder/spielfeld.jpg"]
    stopwatch = Stopwatch()
    rows = [*rule_rows(build / "bin/bench_rules"), *start_rows(stopwatch.screen, game, bare),
            *play_rows(game, stopwatch)]
    table = "".join(f"| {what} | {value} |\n" for what, value in rows)
    text = f"Machine: {machine()}.\n\n| What | Result |\n| --- | ---: |\n{table}\n"
    result.write_text(TABLE.sub(lambda _: text, result.read_text()))


if __name__ == "__main__":
    main(*map(Path, sys.argv[1:]))
