#!/usr/bin/python3
"""Measures the contrast of texts and signs on their ground in the rendered pictures, and how well the
four tiles are told apart.

usage: check_pictures.py FOLDER SOURCES     the folder of the pictures, and that of the project
"""
import re
import sys
from itertools import combinations
from pathlib import Path

import numpy
from colorspacious import cspace_convert, deltaE
from PIL import Image, ImageChops, ImageFilter

FOLDER, SOURCES = map(Path, sys.argv[1:])
COLOURS = {name: tuple(bytes.fromhex(value)) for file, pattern in
           (("assets/bilder/palette.cmake", r'set\((\w+) +"#(\w{6})"\)'),
            ("controls/beschriftung.h", r"(k\w+) = 0xff(\w{6})"))
           for name, value in re.findall(pattern, (SOURCES / file).read_text())}
# Texts and signs that are drawn in a picture: pictures, colour, least contrast, and the part of the
# picture in which the colour is that of a letter; negative edges count from the right or from below.
DRAWN = (("tafel*.png", "TAFELSCHRIFT", 4.5, (12, 4, 100, 38)),
         ("zahl[1-9]*.png", "ZAHLSCHRIFT", 4.5, (3, 2, 26, 29)),
         *((name, "SCHRIFT", 4.5, (4, 4, right, -4)) for name, right in
           (("knopf[!EN]*.png", -38), ("knopf[EN]*.png", -60), ("sound*.png", -38),
            ("cmd*.png", -40), ("modus*.png", -30), ("level*.png", -30))),
         ("meldungJa*.jpg", "SCHRIFT", 4.5, (38, 197, 150, 216)),
         ("meldungOk*.jpg", "SCHRIFT", 4.5, (125, 198, 237, 217)),
         ("gruen?[.@]*png", "GRUEN_AN", 3, (0, 0, 14, 28)),
         ("rot?[.@]*png", "ROT_AN", 3, (0, 0, 14, 28)), ("platte2*.png", "GRAVUR", 3, (9, 9, 38, 38)))
# Grounds of the texts that the windows write on them.
GROUNDS = (("spielfeld*.jpg", "kBlau", (284, 664, 725, 721)), ("beste*.jpg", "kBlau", (74, 12, 331, 31)),
           ("spielfeld*.jpg", "kDunkelblau", (284, 664, 725, 721)),
           ("optionen*.jpg", "kBlau", (202, 10, 347, 49)),
           ("optionen*.jpg", "kDunkelgruen", (108, 208, 397, 237)),
           ("meldungJa*.jpg", "kHellgrau", (62, 12, 323, 33)),
           ("meldungOk*.jpg", "kHellgrau", (64, 12, 341, 41)))
EYES = ["sRGB1", *({"name": "sRGB1+CVD", "cvd_type": kind, "severity": 100}
                   for kind in ("deuteranomaly", "protanomaly", "tritanomaly"))]
complaints = []


def pictures(pattern, part):
    """Yields the name of each picture, its part on the stone, and its pixels to one of the window."""
    for file in sorted(FOLDER.glob(pattern)) or [FOLDER / f"no {pattern}"]:
        picture = Image.open(file).convert("RGBA")
        scale = int((re.findall(r"@(\d)x", file.name) or [1])[0])
        picture = Image.alpha_composite(Image.new("RGBA", picture.size, COLOURS["STEIN"]), picture)
        edges = [edge * scale + (picture.size * 2)[i] * (edge < 0) for i, edge in enumerate(part)]
        yield file.name, picture.convert("RGB").crop(edges), scale


def require(name, colour, ground, least):
    """A twentieth of the ground may be specks; all the rest must differ enough from the colour."""
    light = cspace_convert([COLOURS[colour], *ground], "sRGB255", "XYZ1")[:, 1] + 0.05
    contrast = numpy.quantile(numpy.maximum(light[1:] / light[0], light[0] / light[1:]), 0.05)
    if contrast < least:
        complaints.append(f"{name}: {colour} has {contrast:.2f}:1, not {least}:1")


for pattern, colour, least, part in DRAWN:
    for name, picture, scale in pictures(pattern, part):
        # The ground is what lies between one and two pixels beside the letters.
        distance = ImageChops.difference(picture, Image.new("RGB", picture.size, COLOURS[colour]))
        letters = Image.fromarray((numpy.max(distance, axis=2) < 24).astype("uint8"))
        near, far = (numpy.array(letters.filter(ImageFilter.MaxFilter(2 * n * scale + 1)))
                     for n in (1, 2))
        require(name, colour, numpy.array(picture)[far > near], least)
for pattern, colour, part in GROUNDS:
    for name, picture, _ in pictures(pattern, part):
        require(name, colour, picture.resize((220, 40)).getdata(), 4.5)
for colour in "kBlau", "kMagenta", "kPurpur":
    require("message", colour, [COLOURS["PAPIERWEISS"]], 4.5)

# What is covered is lighter than what is marked, than a gem, than an error; only the gem is colourful.
tiles = [numpy.array(next(pictures(f"{name}.png", (0, 0, 47, 47)))[1]).reshape(-1, 3) / 255
         for name in ("platte1", "platte2", "sarant", "platte0")]
light, chroma, _ = zip(*(cspace_convert(tile, "sRGB1", "CIELCh").mean(axis=0) for tile in tiles))
apart = min(deltaE(*pair, input_space=eye).mean() for eye in EYES for pair in combinations(tiles, 2))
if (min(numpy.subtract(light[:3], light[1:])) < 3 or max(chroma[:2]) > 8
        or chroma[2] < 2 * chroma[3] or apart < 6):
    complaints.append(f"tiles: light {light}, chroma {chroma}, {apart:.1f} apart")
sys.exit("\n".join(complaints) or 0)
