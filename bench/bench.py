"""Measures the program from outside and writes the table of results.

usage: tests/spieler/buehne ../../bench/bench.py BUILD_DIRECTORY RESULT.md
"""

import ctypes
import json
import platform
import statistics
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent / "../tests/spieler"))
from spieler import *

RUHE = 20.0  # seconds over which an idle minute is measured
STARTS = 21
KLICKS = 200
GRENZE = 5.0  # seconds that a change of the screen may take


class Schirm:
    """Pixels and the mouse without a program in between, so that time can be taken."""

    def __init__(self):
        self.x11, self.xtst = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        for funktion in self.x11.XOpenDisplay, self.x11.XGetImage:
            funktion.restype = ctypes.c_void_p
        self.x11.XGetPixel.restype = ctypes.c_ulong
        self.anzeige = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        self.wurzel = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.anzeige))

    def pixel(self, ort):
        bild = ctypes.c_void_p(self.x11.XGetImage(self.anzeige, self.wurzel, *ort, 1, 1,
                                                  ctypes.c_ulong(0xFFFFFF), 2))
        farbe = self.x11.XGetPixel(bild, 0, 0)
        self.x11.XDestroyImage(bild)
        return farbe

    def knopf(self, nummer, gedrueckt):
        self.xtst.XTestFakeButtonEvent(self.anzeige, nummer, gedrueckt, ctypes.c_ulong(0))
        self.x11.XFlush(self.anzeige)

    def klickzeit(self, ort, nummer):
        """Milliseconds from the press of a button to the changed pixel under the mouse."""
        xdotool("mousemove", *ort)
        vorher = self.pixel(ort)
        beginn = time.perf_counter()
        self.knopf(nummer, 1)
        while self.pixel(ort) == vorher and time.perf_counter() - beginn < GRENZE:
            pass
        zeit = 1000 * (time.perf_counter() - beginn)
        self.knopf(nummer, 0)
        return zeit


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


def starte(schirm, befehl, ort, farbe=None):
    """Starts a program without accessibility. Returns the milliseconds until the pixel bears its
    colour, the resident memory, and the pixel's colour at last."""
    leer = schirm.pixel(ort)
    beginn = time.perf_counter()
    prozess = subprocess.Popen(befehl, env=os.environ | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "0"})
    while schirm.pixel(ort) != farbe and time.perf_counter() - beginn < GRENZE:
        time.sleep(0.0005)
    zeit = 1000 * (time.perf_counter() - beginn)
    time.sleep(1)
    ergebnis = zeit, speicher(prozess.pid), schirm.pixel(ort)
    prozess.kill()
    prozess.wait()
    warte(lambda: schirm.pixel(ort) == leer, "leerer Schirm")
    return ergebnis


def start_und_speicher(schirm, befehle, ort):
    """Medians of start time and memory for each of two programs, and the median of the ratios of
    their start times. They take turns, so that both of a pair find the machine in the same mood."""
    farben = [starte(schirm, befehl, ort)[2] for befehl in befehle]
    laeufe = [[starte(schirm, befehl, ort, farbe) for befehl, farbe in zip(befehle, farben)]
              for _ in range(STARTS)]
    mediane = [[statistics.median(werte) for werte in list(zip(*programm))[:2]]
               for programm in zip(*laeufe)]
    return *mediane, statistics.median(eins[0] / zwei[0] for eins, zwei in laeufe)


class Stoppuhr(Spieler):
    """A player who takes the time of each click on a cell that is known."""

    def __init__(self, schirm, *rest):
        self.schirm, self.zeiten = schirm, []
        super().__init__(*rest)

    def oeffne(self, zelle):
        if zelle not in self.modell.brett.wissen:
            return super().oeffne(zelle)
        ort, klang = mitte(self.programm.zelle(zelle)), self.modell.klicke_links(zelle)
        return self.schritt(lambda: self.zeiten.append(self.schirm.klickzeit(ort, 1)), klang)


def spielmessung(schirm, pfad, ohr):
    """Clicks and idle minutes in a real level, which is read through the accessibility bus."""
    lege_ab("bench.sar", 39, 500, 1)
    with Stoppuhr(schirm, pfad, ohr) as spiel:
        spiel.lade_stand("bench.sar")
        ort = mitte(spiel.programm.zelle(spiel.zelle_mit(VERDECKT)))
        pid = spiel.programm.prozess.pid
        rechts = [schirm.klickzeit(ort, 3) for _ in range(KLICKS)]
        spielend = rechenzeit(pid)
        spiel.gewinne()
        return rechts, spiel.zeiten, spielend, rechenzeit(pid)


def regeln(programm):
    """Name, time, unit and counted pictures of each benchmark of the rules."""
    umgebung = os.environ | {"QT_QPA_PLATFORM": "offscreen"}
    return json.loads(subprocess.check_output([programm, "--benchmark_format=json"], env=umgebung))[
        "benchmarks"]


def maschine():
    prozessor = re.search(r"model name\s*: (.*)", Path("/proc/cpuinfo").read_text())[1]
    system = re.search(r'PRETTY_NAME="(.*)"', Path("/etc/os-release").read_text())[1]
    qt = subprocess.check_output(["qtpaths6", "--qt-version"], text=True).strip()
    speicher_gb = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    return (f"{os.cpu_count()} cores of {prozessor}, {speicher_gb:.0f} GB, {system}, Linux "
            f"{platform.release()}, Qt {qt}, Xvfb 1280x1024; load average at the end "
            f"{os.getloadavg()[0]:.1f}; {time.strftime('%Y-%m-%d')}")


def main():
    bau, ergebnis = map(Path, sys.argv[1:])
    spiel, leer = bau / "bin/glanzgrube", [bau / "bin/leeres_fenster", bau / "bilder/spielfeld.jpg"]
    schirm, ohr = Schirm(), Ohr()
    tabelle = []
    for bench in regeln(bau / "bin/bench_regeln"):
        tabelle.append((bench["name"], f"{bench['real_time']:.1f} {bench['time_unit']}"))
        if "Bilder" in bench:
            tabelle.append(("Pictures decoded during those levels", f"{bench['Bilder']:.0f}"))
    (start, mb), (start_leer, mb_leer), verhaeltnis = start_und_speicher(
        schirm, [[spiel], leer], (600, 500))
    rechts, links, spielend, geloest = spielmessung(schirm, spiel, ohr)
    ohr.schliesse()
    tabelle += [
        ("Right press to painted pixel, median", f"{statistics.median(rechts):.1f} ms"),
        ("Left press to painted pixel, with sound, median", f"{statistics.median(links):.1f} ms"),
        ("Start to first painted frame", f"{start:.0f} ms"),
        ("The same, bare Qt window with one picture", f"{start_leer:.0f} ms"),
        (f"Ratio of the starts, median of {STARTS} pairs", f"{verhaeltnis:.2f}"),
        ("Resident memory", f"{mb:.1f} MB"),
        ("The same, bare Qt window with one picture", f"{mb_leer:.1f} MB"),
        ("Memory above the bare window", f"{mb - mb_leer:.1f} MB"),
        ("Ratio of the memory", f"{mb / mb_leer:.2f}"),
        ("Processor time of an idle minute, playing", f"{spielend:.0f} ms"),
        ("Processor time of an idle minute, solved (arrow blinks)", f"{geloest:.0f} ms")]
    ergebnis.write_text("# Benchmarks\n\nWritten by `scripts/bench`; no test fails on a clock.\n\n"
                        f"Machine: {maschine()}.\n\n| What | Result |\n| --- | ---: |\n"
                        + "".join(f"| {was} | {wert} |\n" for was, wert in tabelle))


if __name__ == "__main__":
    main()
