#!/usr/bin/python3
"""Measures the contrast of each text and sign on its ground in the rendered pictures.

usage: check_pictures.py FOLDER SOURCES     the folder of the pictures, and that of the project
"""
import re
import sys
from pathlib import Path

from PIL import Image, ImageChops, ImageFilter

FOLDER, SOURCES = map(Path, sys.argv[1:])
COLOURS = {name: tuple(bytes.fromhex(value)) for name, value in
           re.findall(r'set\((\w+) +"#(\w{6})"\)', (SOURCES / "assets/bilder/palette.cmake").read_text()) +
           re.findall(r"(k\w+) = 0xff(\w{6})", (SOURCES / "controls/beschriftung.h").read_text())}
# Texts and signs that are drawn in a picture: pictures, colour, least contrast, and the part of the picture
# in which the colour is that of a letter; negative edges count from the right or from below.
DRAWN = (("tafel*.png", "TAFELSCHRIFT", 4.5, (12, 4, 100, 38)),
         ("zahl[1-9]*.png", "ZAHLSCHRIFT", 4.5, (3, 2, 26, 29)),
         *((name, "SCHRIFT", 4.5, (4, 4, right, -4)) for name, right in
           (("knopf[!EN]*.png", -38), ("knopf[EN]*.png", -60), ("sound*.png", -38), ("cmd*.png", -40),
            ("modus*.png", -30), ("level*.png", -30))),
         ("meldungJa*.jpg", "SCHRIFT", 4.5, (38, 197, 150, 216)),
         ("meldungOk*.jpg", "SCHRIFT", 4.5, (125, 198, 237, 217)),
         ("gruen?[.@]*png", "GRUEN_AN", 3, (0, 0, 14, 28)), ("rot?[.@]*png", "ROT_AN", 3, (0, 0, 14, 28)),
         ("platte2*.png", "GRAVUR", 3, (9, 9, 38, 38)))
# Grounds of the texts that the windows write on them.
GROUNDS = (("spielfeld*.jpg", ("kBlau", "kDunkelblau"), (284, 664, 725, 721)),
           ("beste*.jpg", ("kBlau",), (74, 12, 331, 31)),
           ("optionen*.jpg", ("kBlau",), (202, 10, 347, 49)),
           ("optionen*.jpg", ("kDunkelgruen",), (108, 208, 397, 237)),
           ("meldungJa*.jpg", ("kHellgrau",), (62, 12, 323, 33)),
           ("meldungOk*.jpg", ("kHellgrau",), (64, 12, 341, 41)))
complaints = []


def pictures(pattern, part):
    """Yields the name of each picture, its part on the stone, and its pixels to one of the window."""
    for file in sorted(FOLDER.glob(pattern)) or [FOLDER / f"no {pattern}"]:
        picture, scale = Image.open(file).convert("RGBA"), int((re.findall(r"@(\d)x", file.name) or [1])[0])
        picture = Image.alpha_composite(Image.new("RGBA", picture.size, COLOURS["STEIN"]), picture)
        size = picture.size * 2
        edges = [edge * scale + size[i] * (edge < 0) for i, edge in enumerate(part)]
        yield file.name, picture.convert("RGB").crop(edges), scale


def light(colour):
    parts = [v / 12.92 if v <= .04045 else ((v + .055) / 1.055) ** 2.4 for v in (c / 255 for c in colour)]
    return .2126 * parts[0] + .7152 * parts[1] + .0722 * parts[2] + .05


def require(name, colour, ground, least):
    """A twentieth of the ground may be specks; all the rest must differ enough from the colour."""
    own = light(COLOURS[colour])
    values = sorted(max(own, other) / min(own, other) for other in map(light, ground)) or [0]
    if values[len(values) // 20] < least:
        complaints.append(f"{name}: {colour} has {values[len(values) // 20]:.2f}:1, not {least}:1")


for pattern, colour, least, part in DRAWN:
    for name, picture, scale in pictures(pattern, part):
        # The ground is what lies between one and two pixels beside the letters.
        distance = ImageChops.difference(picture, Image.new("RGB", picture.size, COLOURS[colour]))
        letters = Image.new("L", picture.size)
        letters.putdata([255 if max(point) < 24 else 0 for point in distance.getdata()])
        near, far = (letters.filter(ImageFilter.MaxFilter(2 * n * scale + 1)).getdata() for n in (1, 2))
        require(name, colour, [p for p, a, b in zip(picture.getdata(), near, far) if b and not a], least)
for pattern, colours, part in GROUNDS:
    for name, picture, _ in pictures(pattern, part):
        for colour in colours:
            require(name, colour, picture.resize((220, 40)).getdata(), 4.5)
for colour in "kBlau", "kMagenta", "kPurpur":
    require("message", colour, [COLOURS["PAPIERWEISS"]], 4.5)
sys.exit("\n".join(complaints) or 0)
