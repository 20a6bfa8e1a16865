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

RUHE = 20.0  # seconds over which an idle minute is measured
STARTS = 21
KLICKS = 200
MITTE = 600, 500  # lies within the window of each program that is started
TABELLE = re.compile("(?<=<!-- begin of the table -->\n).*(?=<!-- end of the table -->)", re.DOTALL)


def speicher(pid):
    """Resident memory in MB."""
    seiten = Path(f"/proc/{pid}/statm").read_text().split()[1]
    return int(seiten) * os.sysconf("SC_PAGE_SIZE") / 2**20


def rechenzeit(pid):
    """Processor time in milliseconds that an idle minute costs."""
    def ticks():
        return sum(map(int, Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()[11:13]))
    vorher = ticks()
    time.sleep(RUHE)
    return (ticks() - vorher) * 1000 / os.sysconf("SC_CLK_TCK") * 60 / RUHE


def starte(schirm, befehl, farbe=None):
    """Starts a program without accessibility. Returns the milliseconds until the pixel bears its
    colour, the resident memory, and the pixel's colour at last."""
    leer = schirm.pixel(MITTE)
    beginn = time.perf_counter()
    prozess = subprocess.Popen(befehl, stderr=subprocess.DEVNULL,
                               env=os.environ | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "0"})
    while schirm.pixel(MITTE) != farbe and time.perf_counter() - beginn < LIMIT:
        time.sleep(0.0005)
    zeit = 1000 * (time.perf_counter() - beginn)
    time.sleep(1)
    ergebnis = zeit, speicher(prozess.pid), schirm.pixel(MITTE)
    prozess.kill()
    prozess.wait()
    wait_for(lambda: schirm.pixel(MITTE) == leer, "leerer Schirm")
    return ergebnis


def miss_starts(schirm, befehle):
    """Start times and memory of each program, run by run. The programs take turns, so that all of a
    round find the machine in the same mood."""
    farben = [starte(schirm, befehl)[2] for befehl in befehle]
    runden = [[starte(schirm, befehl, farbe)[:2] for befehl, farbe in zip(befehle, farben)]
              for _ in range(STARTS)]
    return [list(zip(*laeufe)) for laeufe in zip(*runden)]


def startzeilen(schirm, spiel, leer):
    """The rows about the start and the memory, beside a bare window and two other games."""
    befehle = [[spiel], leer, ["/usr/games/kmines"], ["/usr/games/gnome-mines"]]
    (zeiten, mb), (zeiten_leer, mb_leer), (kmines, _), (gnome, _) = miss_starts(schirm, befehle)
    mittel = statistics.median

    def verhaeltnis(andere):
        return f"{mittel(eins / zwei for eins, zwei in zip(zeiten, andere)):.2f}"

    return [
        ("Start to first painted frame", f"{mittel(zeiten):.0f} ms"),
        ("The same, bare Qt window with one picture", f"{mittel(zeiten_leer):.0f} ms"),
        ("The same, KMines", f"{mittel(kmines):.0f} ms"),
        ("The same, GNOME Mines", f"{mittel(gnome):.0f} ms"),
        (f"Ratio to the bare window, median of {STARTS} pairs", verhaeltnis(zeiten_leer)),
        ("Ratio to the quicker of the two games", verhaeltnis(min(kmines, gnome, key=mittel))),
        ("Resident memory", f"{mittel(mb):.1f} MB"),
        ("The same, bare Qt window with one picture", f"{mittel(mb_leer):.1f} MB"),
        ("Memory above the bare window", f"{mittel(mb) - mittel(mb_leer):.1f} MB")]


def spielzeilen(pfad, uhr):
    """The rows about clicks and idle minutes in a real level."""
    put("bench.sar", 0, 9000, 1)
    spiel = Driver(pfad, Audio(pfad), uhr)
    spiel.load("bench.sar")
    pid = spiel.program.process.pid
    zelle = spiel.program.cells()[spiel.covered()[0]]
    for _ in range(KLICKS):
        uhr.click(zelle, 3)
    rechts = statistics.median(uhr.times)
    spielend = rechenzeit(pid)
    uhr.times.clear()
    spiel.win()
    links = statistics.median(uhr.times)
    return [
        ("Right press to painted pixel, median", f"{rechts:.1f} ms"),
        ("Left press to painted pixel, with sound, median", f"{links:.1f} ms"),
        ("Processor time of an idle minute, playing", f"{spielend:.0f} ms"),
        ("Processor time of an idle minute, solved (arrow blinks)",
         f"{rechenzeit(pid):.0f} ms")]


def regelzeilen(programm):
    """The rows of the benchmarks of the rules."""
    umgebung = os.environ | {"QT_QPA_PLATFORM": "offscreen"}
    ausgabe = subprocess.check_output([programm, "--benchmark_format=json"], env=umgebung)
    for messung in json.loads(ausgabe)["benchmarks"]:
        yield messung["name"], f"{messung['real_time']:.1f} {messung['time_unit']}"
        if "Bilder" in messung:
            yield "Pictures decoded during those levels", f"{messung['Bilder']:.0f}"


def maschine():
    prozessor = re.search(r"model name\s*: (.*)", Path("/proc/cpuinfo").read_text())[1]
    system = re.search(r'PRETTY_NAME="(.*)"', Path("/etc/os-release").read_text())[1]
    qt = subprocess.check_output(["qtpaths6", "--qt-version"], text=True).strip()
    speicher_gb = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    return (f"{os.cpu_count()} cores of {prozessor}, {speicher_gb:.0f} GB, {system}, Linux "
            f"{platform.release()}, Qt {qt}, Xvfb 1280x1024; load average at the end "
            f"{os.getloadavg()[0]:.1f}; {time.strftime('%Y-%m-%d')}")


def main(bau, ergebnis):
    spiel, leer = bau / "bin/glanzgrube", [bau / "bin/leeres_fenster", bau / "bilder/spielfeld.jpg"]
    uhr = Stopwatch()
    zeilen = [*regelzeilen(bau / "bin/bench_regeln"), *startzeilen(uhr.screen, spiel, leer),
              *spielzeilen(spiel, uhr)]
    tabelle = "".join(f"| {was} | {wert} |\n" for was, wert in zeilen)
    text = f"Machine: {maschine()}.\n\n| What | Result |\n| --- | ---: |\n{tabelle}\n"
    ergebnis.write_text(TABELLE.sub(lambda _: text, ergebnis.read_text()))


if __name__ == "__main__":
    main(*map(Path, sys.argv[1:]))
