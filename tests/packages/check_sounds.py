#!/usr/bin/python3
"""Measures the sounds as an ear hears them: order of loudness, peaks, ends, and the shapes of the two signals.

usage: check_sounds.py FOLDER
"""
import math
import sys
import wave
from array import array

RATE = 44100
# Loudest first. Only the click may be far below the others; the last is played nowhere.
LAUT = ("TADA", "FEHLER", "FRAGE", "START", "BLIP")
STUMM = "WHOOSH"


def lies(name):
    """Returns the samples of a sound, without the silence behind it."""
    with wave.open(f"{sys.argv[1]}/{name}.WAV") as datei:
        assert (datei.getnchannels(), datei.getsampwidth(), datei.getframerate()) == (1, 2, RATE)
        werte = [w / 32768 for w in array("h", datei.readframes(datei.getnframes()))]
    while abs(werte[-1]) < 1e-4:
        werte.pop()
    return werte


def filtere(werte, grenze, hochpass):
    """One pole of the A curve, as a filter that takes one sample after the other."""
    k = math.tan(math.pi * grenze / RATE)
    vor, rueck = (1 if hochpass else k) / (1 + k), (1 - k) / (1 + k)
    ergebnis, letzter, summe = [], 0.0, 0.0
    for wert in werte:
        summe = rueck * summe + vor * (wert - letzter if hochpass else wert + letzter)
        letzter = wert
        ergebnis.append(summe)
    return ergebnis


def lautheit(werte):
    """Returns the level of the loudest 125 ms in dB(A)."""
    werte = werte + [0.0] * (RATE // 8)
    for grenze in (20.6, 20.6, 107.7, 737.9):
        werte = filtere(werte, grenze, True)
    for _ in range(2):
        werte = filtere(werte, 12194, False)
    summe, hoechste = 0.0, 0.0
    for i, wert in enumerate(werte):
        summe += wert * wert - (werte[i - RATE // 8] ** 2 if i >= RATE // 8 else 0)
        hoechste = max(hoechste, summe)
    return 10 * math.log10(hoechste / (RATE / 8)) + 2


def tonhoehe(werte):
    """Returns the strongest frequency below 1 kHz."""
    def staerke(hertz):
        winkel = 2 * math.pi * hertz / RATE
        return math.hypot(sum(w * math.cos(winkel * i) for i, w in enumerate(werte)),
                          sum(w * math.sin(winkel * i) for i, w in enumerate(werte)))
    return max(range(150, 1000, 5), key=staerke)


def main():
    klang = {name: lies(name) for name in LAUT + (STUMM,)}
    laut = {name: lautheit(werte) for name, werte in klang.items()}
    klagen = []
    for name, werte in klang.items():
        spitze = 20 * math.log10(max(map(abs, werte)))
        print(f"{name:7}{len(werte) / RATE:5.2f} s, peak {spitze:5.1f} dBFS, {laut[name]:6.1f} dB(A)")
        if not -8.5 < spitze < -5:
            klagen.append(f"{name}: the peak is not near -6 dBFS")
        if max(map(abs, werte[:10])) > 0.02:
            klagen.append(f"{name}: a click at the begin")
        if max(map(abs, werte[-RATE // 50:])) > 0.005:
            klagen.append(f"{name}: the end is cut off")
    for lauter, leiser in zip(LAUT, LAUT[1:]):
        if laut[lauter] < laut[leiser] + 0.5:
            klagen.append(f"{lauter} is not louder than {leiser}")
    if laut[STUMM] > laut[LAUT[0]] or laut[LAUT[-2]] < laut[LAUT[0]] - 8:
        klagen.append("a sound is too far from the fanfare")
    frage, fehler = klang["FRAGE"], klang["FEHLER"]
    if len(fehler) < 1.5 * len(frage):
        klagen.append("the error is not clearly longer than the question")
    for name, richtung in (("FRAGE", 1), ("FEHLER", -1)):
        anfang, ende = tonhoehe(klang[name][:4000]), tonhoehe(klang[name][-6000:-1000])
        print(f"{name} goes from {anfang} to {ende} Hz")
        if richtung * (ende - anfang) < 50:
            klagen.append(f"{name} goes in the wrong direction")
    sys.exit("\n".join(klagen) or 0)


main()
