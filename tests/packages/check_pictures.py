#!/usr/bin/python3
"""Measures the rendered pictures: contrast of each text on its ground, and how far the four tiles are apart.

usage: check_pictures.py FOLDER PALETTE MEASURES     the files in which the colours stand
"""
import math
import re
import sys
from pathlib import Path

from PIL import Image, ImageChops, ImageFilter

ORDNER, PALETTE, MASSE = map(Path, sys.argv[1:])
FARBEN = {name: tuple(bytes.fromhex(wert)) for name, wert in
          re.findall(r'set\((\w+) +"#(\w{6})"\)', PALETTE.read_text()) +
          re.findall(r"(k\w+) = 0xff(\w{6})", MASSE.read_text())}

# Texts and signs that are drawn in a picture: pictures, colour, least contrast, and the part of the picture in
# which the colour is that of a letter (left, top, right, lower edge; a negative one from the right or below).
GEZEICHNET = (
    ("tafel*.png", "TAFELSCHRIFT", 4.5, (12, 4, 100, 38)),
    ("zahl[1-9]*.png", "ZAHLSCHRIFT", 4.5, (3, 2, 26, 29)),
    ("knopf[!EN]*.png", "SCHRIFT", 4.5, (4, 4, -38, -4)),
    ("knopf[EN]*.png", "SCHRIFT", 4.5, (4, 4, -60, -4)),
    ("sound*.png", "SCHRIFT", 4.5, (4, 4, -38, -4)),
    ("cmd*.png", "SCHRIFT", 4.5, (4, 4, -40, -4)),
    ("modus*.png", "SCHRIFT", 4.5, (4, 4, -30, -4)),
    ("level*.png", "SCHRIFT", 4.5, (4, 4, -30, -4)),
    ("meldungJa*.jpg", "SCHRIFT", 4.5, (38, 197, 150, 216)),
    ("meldungJa*.jpg", "SCHRIFT", 4.5, (227, 197, 339, 216)),
    ("meldungOk*.jpg", "SCHRIFT", 4.5, (125, 198, 237, 217)),
    ("gruen?[.@]*png", "GRUEN_AN", 3, (0, 0, 14, 28)),
    ("rot?[.@]*png", "ROT_AN", 3, (0, 0, 14, 28)),
    ("platte2*.png", "GRAVUR", 3, (9, 9, 38, 38)))
# Grounds of the texts that the windows write on them, and the white sheet of the message windows.
BESCHRIEBEN = (
    ("spielfeld*.jpg", ("kBlau", "kDunkelblau"), (284, 664, 725, 721)),
    ("beste*.jpg", ("kBlau",), (74, 12, 231, 37)),
    ("beste*.jpg", ("kBlau",), (248, 12, 331, 31)),
    ("optionen*.jpg", ("kBlau",), (202, 10, 347, 49)),
    ("optionen*.jpg", ("kDunkelgruen",), (108, 208, 397, 237)),
    ("meldungJa*.jpg", ("kHellgrau",), (62, 12, 323, 33)),
    ("meldungOk*.jpg", ("kHellgrau",), (64, 12, 341, 41)))
AUF_WEISS = ("kBlau", "kMagenta", "kPurpur")
# The least part of the wrong cell that must stand out from its ground.
BRUCH = 0.12
KACHELN = ("platte0", "platte1", "platte2", "sarant")
# What is left of the light for each eye.
AUGEN = {"full sight": ((1, 0, 0), (0, 1, 0), (0, 0, 1)),
         "deuteranopia": ((.367, .861, -.228), (.280, .673, .047), (-.012, .043, .969)),
         "protanopia": ((.152, 1.053, -.205), (.115, .786, .099), (-.004, -.048, 1.052)),
         "grey": ((.2126, .7152, .0722),) * 3}
klagen = []


def oeffne(muster):
    """Yields the name of each picture, the picture on the stone, and its pixels to one of the window."""
    dateien = sorted(ORDNER.glob(muster))
    if not dateien:
        klagen.append(f"there is no picture {muster}")
    for datei in dateien:
        bild = Image.open(datei).convert("RGBA")
        bild = Image.alpha_composite(Image.new("RGBA", bild.size, FARBEN["STEIN"]), bild)
        yield datei.name, bild.convert("RGB"), int((re.findall(r"@(\d)x", datei.name) or [1])[0])


def linear(farbe):
    return [w / 12.92 if w <= .04045 else ((w + .055) / 1.055) ** 2.4
            for w in (kanal / 255 for kanal in farbe)]


def kontrast(*farben):
    dunkel, hell = sorted(sum(a * b for a, b in zip(AUGEN["grey"][0], linear(farbe))) for farbe in farben)
    return (hell + .05) / (dunkel + .05)


def verlange(name, farbe, grund, mindestens):
    """A twentieth of the ground may be specks; all the rest must differ enough from the colour."""
    werte = sorted(kontrast(FARBEN[farbe], punkt) for punkt in grund)
    if not werte:
        klagen.append(f"{name}: nothing is drawn in {farbe}")
    elif werte[len(werte) // 20] < mindestens:
        klagen.append(f"{name}: {farbe} has {werte[len(werte) // 20]:.2f}:1, not {mindestens}:1")


def neben_schrift(bild, farbe, faktor):
    """Finds the letters by their colour and returns what lies between one and two pixels beside them."""
    abstand = ImageChops.difference(bild, Image.new("RGB", bild.size, FARBEN[farbe]))
    schrift = Image.new("L", bild.size)
    schrift.putdata([255 if max(punkt) < 24 else 0 for punkt in abstand.getdata()])
    nah, fern = (schrift.filter(ImageFilter.MaxFilter(2 * n * faktor + 1)).getdata() for n in (1, 2))
    return [punkt for punkt, a, b in zip(bild.getdata(), nah, fern) if b and not a]


def lab(farbe):
    x, y, z = (sum(a * b for a, b in zip(zeile, farbe)) for zeile in
               ((.4339, .3762, .1899), (.2126, .7152, .0722), (.0177, .1095, .8729)))
    x, y, z = (w ** (1 / 3) if w > .008856 else 7.787 * w + 16 / 116 for w in (x, y, z))
    return 116 * y - 16, 500 * (x - y), 200 * (y - z)


def farbabstand(eins, zwei):
    """CIEDE2000 between two colours in Lab."""
    (l1, a1, b1), (l2, a2, b2) = eins, zwei
    c = ((math.hypot(a1, b1) + math.hypot(a2, b2)) / 2) ** 7
    g = 1.5 - math.sqrt(c / (c + 25 ** 7)) / 2
    c1, c2 = math.hypot(a1 * g, b1), math.hypot(a2 * g, b2)
    h1, h2 = (math.degrees(math.atan2(b, a * g)) % 360 for a, b in ((a1, b1), (a2, b2)))
    dh = (h2 - h1 + 180) % 360 - 180
    l, c, h = (l1 + l2) / 2 - 50, (c1 + c2) / 2, (h1 + dh / 2) % 360
    t = sum(f * math.cos(math.radians(n * h - w)) for f, n, w in
            ((1, 0, 0), (-.17, 1, 30), (.24, 2, 0), (.32, 3, -6), (-.2, 4, 63)))
    hell = (l2 - l1) / (1 + .015 * l * l / math.sqrt(20 + l * l))
    bunt = (c2 - c1) / (1 + .045 * c)
    ton = 2 * math.sqrt(c1 * c2) * math.sin(math.radians(dh / 2)) / (1 + .015 * c * t)
    drehung = -2 * math.sqrt(c ** 7 / (c ** 7 + 25 ** 7)) * math.sin(
        math.radians(60 * math.exp(-((h - 275) / 25) ** 2)))
    return math.sqrt(hell ** 2 + bunt ** 2 + ton ** 2 + drehung * bunt * ton)


def felder(bild):
    """Returns the mean light of 81 fields; the sign of a mark is as large as one."""
    kanten = [bild.size[0] * k // 9 for k in range(10)]
    teile = (bild.crop((kanten[s], kanten[z], kanten[s + 1], kanten[z + 1])) for z in range(9) for s in range(9))
    return [[sum(kanal) / len(kanal) for kanal in zip(*map(linear, teil.getdata()))] for teil in teile]


def pruefe_kacheln():
    """Tiles are told apart by the field in which they differ most."""
    licht = {name: felder(bild) for name in KACHELN for _, bild, _ in oeffne(f"{name}.png")}
    for auge, matrix in AUGEN.items():
        gesehen = {name: [lab([max(0, sum(a * b for a, b in zip(zeile, feld))) for zeile in matrix])
                          for feld in alle] for name, alle in licht.items()}
        for i, eins in enumerate(KACHELN):
            for zwei in KACHELN[:i]:
                weite = max(map(farbabstand, gesehen[eins], gesehen[zwei]))
                print(f"{auge}: {zwei} and {eins} are {weite:.0f} apart")
                if weite < 20:
                    klagen.append(f"{auge}: {zwei} and {eins} are only {weite:.1f} apart")


for muster, farbe, mindestens, (links, oben, rechts, unten) in GEZEICHNET:
    for name, bild, faktor in oeffne(muster):
        breite, hoehe = (k // faktor for k in bild.size)
        teil = (links, oben, rechts + breite * (rechts < 0), unten + hoehe * (unten < 0))
        verlange(name, farbe, neben_schrift(bild.crop([k * faktor for k in teil]), farbe, faktor), mindestens)
for muster, farben, teil in BESCHRIEBEN:
    for name, bild, faktor in oeffne(muster):
        grund = bild.crop([k * faktor for k in teil]).resize((220, 40)).getdata()
        for farbe in farben:
            verlange(name, farbe, grund, 4.5)
for farbe in AUF_WEISS:
    verlange("message", farbe, [FARBEN["PAPIERWEISS"]], 4.5)
for name, bild, _ in oeffne("platte0*.png"):
    punkte = sorted(bild.getdata(), key=sum)
    anteil = sum(kontrast(punkt, punkte[len(punkte) // 2]) >= 3 for punkt in punkte) / len(punkte)
    print(f"{name}: {anteil:.1%} stand out")
    if anteil < BRUCH:
        klagen.append(f"{name}: only {anteil:.1%} stand out from the ground")
pruefe_kacheln()
sys.exit("\n".join(klagen) or 0)
