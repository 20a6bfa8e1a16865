#!/usr/bin/python3
"""Measures the contrast of texts and signs on their ground in the rendered pictures, and the
lightness and the colour of the four tiles.

usage: check_pictures.py FOLDER SOURCES     the folder of the pictures, and that of the project
"""
import re
import sys
from pathlib import Path

import numpy
from colorspacious import cspace_convert
from PIL import Image

FOLDER, SOURCES = map(Path, sys.argv[1:])
COLOURS = {name: tuple(bytes.fromhex(value)) for file, pattern in
           (("assets/bilder/palette.toml", r'(\w+) += "#(\w{6})"'),
            ("controls/beschriftung.h", r"(k\w+) = 0xff(\w{6})"))
           for name, value in re.findall(pattern, (SOURCES / file).read_text())}
TEXTS = [line.split() for line in Path(__file__).with_name("contrast.txt").open() if line[0] != "#"]


def pixels(file, part=(0, 0, 47, 47)):
    """A part of the picture on the stone."""
    picture, scale = Image.open(file).convert("RGBA"), int((*re.findall(r"@(\d)x", file.name), 1)[0])
    stone = Image.new("RGBA", picture.size, COLOURS["STEIN"])
    edges = [int(edge) * scale + (picture.size * 2)[i] * (int(edge) < 0) for i, edge in enumerate(part)]
    return numpy.array(Image.alpha_composite(stone, picture).convert("RGB").crop(edges))


for pattern, name, least, *part in TEXTS:
    for file in sorted(FOLDER.glob(pattern)) or [FOLDER / f"no {pattern}"]:
        points = numpy.vstack([COLOURS[name], pixels(file, part).reshape(-1, 3)])
        light = cspace_convert(points, "sRGB255", "XYZ1")[:, 1] + 0.05
        contrast = numpy.exp(abs(numpy.log(light[1:] / light[0])))
        # What differs from the colour is the ground, but for smooth edges of the letters, and specks.
        seen = numpy.quantile(contrast[contrast > 1.3], 0.3)
        if seen < float(least):
            sys.exit(f"{file.name}: {name} has {seen:.2f}:1, not {least}:1")
# What is covered is lighter than what is marked, than a gem, than an error, at both ends of the light; only the gem is
# colourful. In the shadow of a won board the gem is lightest.
FALL, SHADOW = (int(part, 16) / 255 for part in
                re.findall('"#(..){', (SOURCES / "assets/bilder/palette.h.j2").read_text()))


def seen(part):
    """Lightness and chroma of the tiles when a part of the light is lost."""
    tiles = [pixels(FOLDER / f"{name}.png") * (1 - part) + numpy.multiply(COLOURS["SCHATTEN"], part)
             for name in ("platte1", "platte2", "sarant", "platte0")]
    return list(zip(*(cspace_convert(tile, "sRGB255", "CIELCh").mean(axis=(0, 1)) for tile in tiles)))[:2]


for light, chroma in seen(0), seen(FALL):
    if min(numpy.subtract(light[:3], light[1:])) < 3 or max(chroma[:2]) > 8 or chroma[2] < 2 * chroma[3]:
        sys.exit(f"tiles: light {light}, chroma {chroma}")
for part in 0, FALL:
    gem, others = seen(part)[0][2], seen(part + SHADOW - part * SHADOW)[0]
    if gem - max(others[0], others[1], others[3]) < 8:
        sys.exit(f"won: a gem has a lightness of {gem}, the others {others}")
