#!/usr/bin/python3
"""Draws the pictures of tabelle.toml as SVG. Lists for CMake how each of them is rendered.

usage: bilder.py FOLDER PICTURES     the folder of what is written here, and that of the rendered pictures
"""
import sys
import tomllib
from pathlib import Path

from jinja2 import Environment, FileSystemLoader, StrictUndefined

SOURCES, FOLDER, PICTURES = Path(__file__).parent, *map(Path, sys.argv[1:])
PALETTE, TABLE = (tomllib.loads((SOURCES / file).read_text("utf-8")) for file in ("palette.toml", "tabelle.toml"))
# What a row may leave out.
DEFAULTS = {"endung": "png", "faktoren": [1, 2, 3], "rand": 0, "beginn": 0, "links": 0, "flaeche": 0,
            "leuchtend": False, "delle": False}
TEMPLATES = Environment(loader=FileSystemLoader(SOURCES, "utf-8"), undefined=StrictUndefined,
                        trim_blocks=True, lstrip_blocks=True, keep_trailing_newline=True)
TEMPLATES.globals.update(PALETTE, palette=PALETTE)


def write(name, text):
    """Leaves a file alone that has this text already, so that only changed pictures are rendered anew."""
    file = FOLDER / name
    if not file.exists() or file.read_text("utf-8") != text:
        file.write_text(text, "utf-8")


def pictures():
    """All pictures by name, each with everything that the table tells about it."""
    for group in TABLE["gruppe"]:
        for name, own in group["bilder"].items():
            row = {"vorlage": name} | DEFAULTS | group | own
            for number in range(row["anzahl"]) if "anzahl" in row else [""]:
                yield f"{name}{number}", row | {"nummer": number}


def afterwards(row, scale, suffix):
    """The arguments with which ImageMagick makes the jpg out of the rendered picture."""
    edge = row["rand"] * scale
    arguments = cut = f"-chop {edge}x{edge} +repage " if edge else ""
    if "einlage" in row:
        place = f'+{row["einlage_links"] * scale}+{row["einlage_oben"] * scale}'
        arguments += f'"(" "{FOLDER}/{row["einlage"]}{suffix}.png" {cut}")" -geometry {place} -composite '
    if "sichtbreite" in row:
        width, height = ((row[side] + 5) // 4 * 4 * scale for side in ("sichtbreite", "sichthoehe"))
        arguments += f"-crop {width}x{height}+0+0 +repage "
    return arguments + "-quality 90"


steps, embedded = [], []
for name, row in pictures():
    write(f"{name}.svg", TEMPLATES.get_template(f'{row["vorlage"]}.svg.j2').render(row))
    for scale in row["faktoren"]:
        suffix = f"@{scale}x" if scale > 1 else ""
        file = FOLDER / f"{name}{suffix}.png"
        if row["endung"] != "roh":
            file = PICTURES / f'{name}{suffix}.{row["endung"]}'
            embedded.append(file)
        width, height = ((row[side] + row["rand"]) * scale for side in ("breite", "hoehe"))
        convert = afterwards(row, scale, suffix) if row["endung"] == "jpg" else ""
        steps.append(f'bild({name} {width} {height} "{file}" {convert})\n')
files = " ".join(f'"{file}"' for file in embedded)
write("liste.cmake", "".join(steps) + f"set(bilddateien {files})\n")
write("bilder.qrc", TEMPLATES.get_template("bilder.qrc.j2").render(dateien=embedded))
write("palette.h", TEMPLATES.get_template("palette.h.j2").render())
