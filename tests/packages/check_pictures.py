#!/usr/bin/python3
"""Measures the contrast of texts and signs on their ground in the rendered pictures, and how well
the four tiles are told apart.

usage: check_pictures.py FOLDER SOURCES     the folder of the pictures, and that of the project
"""
import re
import sys
from itertools import combinations
from pathlib import Path

import numpy
from colorspacious import cspace_convert, deltaE
from PIL import Image, ImageFilter

FOLDER, SOURCES = map(Path, sys.argv[1:])
COLOURS = {name: tuple(bytes.fromhex(value)) for file, pattern in
           (("assets/bilder/palette.cmake", r'set\((\w+) +"#(\w{6})"\)'),
            ("controls/beschriftung.h", r"(k\w+) = 0xff(\w{6})"))
           for name, value in re.findall(pattern, (SOURCES / file).read_text())}
TEXTS = [line.split() for line in Path(__file__).with_name("contrast.txt").open() if line[0] != "#"]
EYES = ["sRGB1", *({"name": "sRGB1+CVD", "cvd_type": kind, "severity": 100}
                   for kind in ("deuteranomaly", "protanomaly", "tritanomaly"))]
complaints = []


def pixels(file, part=(0, 0, 47, 47)):
    """A part of the picture on the stone, and its pixels to one of the window."""
    picture, scale = Image.open(file).convert("RGBA"), int((*re.findall(r"@(\d)x", file.name), 1)[0])
    stone = Image.new("RGBA", picture.size, COLOURS["STEIN"])
    edges = [int(edge) * scale + (picture.size * 2)[i] * (int(edge) < 0) for i, edge in enumerate(part)]
    return numpy.array(Image.alpha_composite(stone, picture).convert("RGB").crop(edges)), scale


def beside(ground, colour, scale):
    """What lies between one and two pixels beside the letters of this colour, or nearly of it: a thin
    stroke of a small letter has no full pixel, and is no ground."""
    letters = Image.fromarray((abs(ground.astype(int) - colour).max(axis=2) < 48).astype("uint8"))
    near, far = (numpy.array(letters.filter(ImageFilter.MaxFilter(2 * n * scale + 1))) for n in (1, 2))
    return ground[far > near]


for pattern, name, least, *part in TEXTS:
    for file in sorted(FOLDER.glob(pattern)) or [FOLDER / f"no {pattern}"]:
        ground, scale = pixels(file, part)
        if not name.startswith("k"):
            ground = beside(ground, COLOURS[name], scale)
        # A twentieth may be specks; all the rest must differ enough from the colour.
        points = [COLOURS[name], *ground.reshape(-1, 3)]
        light = cspace_convert(points, "sRGB255", "XYZ1")[:, 1] + 0.05
        contrast = numpy.quantile(numpy.exp(abs(numpy.log(light[1:] / light[0]))), 0.05)
        if contrast < float(least):
            complaints.append(f"{file.name}: {name} has {contrast:.2f}:1, not {least}:1")
# What is covered is lighter than what is marked, than a gem, than an error; only the gem is colourful.
tiles = [pixels(FOLDER / f"{name}.png")[0] / 255 for name in ("platte1", "platte2", "sarant", "platte0")]
light, chroma, _ = zip(*(cspace_convert(tile, "sRGB1", "CIELCh").mean(axis=(0, 1)) for tile in tiles))
apart = min(deltaE(*pair, input_space=eye).mean() for eye in EYES for pair in combinations(tiles, 2))
if (min(numpy.subtract(light[:3], light[1:])) < 3 or max(chroma[:2]) > 8
        or chroma[2] < 2 * chroma[3] or apart < 6):
    complaints.append(f"tiles: light {light}, chroma {chroma}, {apart:.1f} apart")
sys.exit("\n".join(complaints) or 0)
