#!/usr/bin/python3
"""Writes the pages for players into the folder of a release, and checks the links, addresses and sums in it.

The release has its files and their sums in dateien/. The manual and the pictures come from a finished build.

usage: site/pages.py RELEASE BUILD
"""
import re
import shutil
import sys
import tomllib
from calendar import timegm
from collections import defaultdict
from email.utils import parsedate_to_datetime
from pathlib import Path
from xml.etree import ElementTree
from zipfile import ZipFile

from jinja2 import Environment, FileSystemLoader, StrictUndefined
from markupsafe import Markup

SITE = Path(__file__).resolve().parent
SOURCE = SITE.parent
HOME = "https://www.glanzgrube.example/"
LICENCES = {"www.gnu.org"}
BOOKLETS = {"index": "saranten", "Meldefenster": "Meldefenster", "Bestespieler": "Bestespieler"}
MONTHS = ("Januar Februar März April Mai Juni Juli August September Oktober November Dezember").split()
TEMPLATES = Environment(loader=FileSystemLoader(SITE, "utf-8"), autoescape=True, undefined=StrictUndefined,
                        trim_blocks=True)


def style():
    """The style sheet, in the colours of the game."""
    palette = tomllib.loads((SOURCE / "assets/bilder/palette.toml").read_text("utf-8"))
    return TEMPLATES.get_template("stil.css").render(palette)


def releases():
    """The versions in the changelog, the newest first. AppStream's data must tell the same."""
    told = []
    for entry in re.split(r"\n(?=glanzgrube )", (SOURCE / "debian/changelog").read_text()):
        day = parsedate_to_datetime(re.search(r"^ -- .*>  (.*)", entry, re.M)[1])
        told.append({"version": re.match(r"glanzgrube \((.*?)\)", entry)[1],
                     "datum": f"{day.day}. {MONTHS[day.month - 1]} {day.year}", "tag": f"{day:%Y-%m-%d}",
                     "saetze": [" ".join(item.split())
                                for item in re.findall(r"^  \* (.*(?:\n    .*)*)", entry, re.M)]})
    data = ElementTree.parse(SOURCE / "packaging/example.glanzgrube.Glanzgrube.metainfo.xml")
    appstream = [(release.get("version"), release.get("date"),
                  [" ".join(item.text.split()) for item in release.iter("li")])
                 for release in data.iter("release")]
    if appstream != [(entry["version"], entry["tag"], entry["saetze"]) for entry in told]:
        sys.exit("The releases in the AppStream data are not those of debian/changelog.")
    return told


def files(folder):
    """The files to download, by kind: deb, exe, zip, or the name of the source package."""
    kinds = defaultdict(list)
    for line in (folder / "SHA256SUMS").read_text().splitlines():
        digest, name = line.split()
        size = f"{(folder / name).stat().st_size / 1e6:.1f}\xa0MB".replace(".", ",")
        ending = name.rpartition(".")[2]
        kind = ending if ending in {"deb", "exe", "zip"} else name.split("_")[0]
        system = re.search(r"_([a-z]+)([\d.]+)_\w+\.deb$", name)
        kinds[kind].append({"name": name, "summe": digest, "system": system and f"{system[1].title()} {system[2]}",
                            "groesse": size.replace("0,0\xa0MB", "wenige\xa0KB")})
    return kinds


def booklet(name, build, target):
    """The text of a help page, whose pictures are copied beside it."""
    page = (build / f"assets/hilfe/{name}.html").read_text()
    text = re.search(r"<body.*?>(.*)</body>", page, re.S)[1]
    for picture in set(re.findall(r'src="(.*?)"', text)):
        source = picture.replace("/proc/self/cwd", str(build))
        copied = shutil.copy(build / "assets/hilfe" / source, target)
        text = text.replace(f'"{picture}"', f'"{Path(copied).name}"')
    text = re.sub(r"<table.*?</table>", r'<div class="quer">\g<0></div>', text, flags=re.S)
    return re.search(r"<title>Glanzgrube – (.*)</title>", page)[1], Markup(text)


def write(release, build):
    told = releases()
    kinds = files(release / "dateien")
    shutil.copytree(SOURCE / "docs/bilder", release / "bilder")
    (release / "stil.css").write_text(style())
    shutil.copy(build / "assets/bilder/glanzgrube.svg", release / "symbol.svg")
    manual = release / "anleitung"
    manual.mkdir()
    for name in re.findall(r"anleitung/([^/]*\.png)", style()):
        shutil.copy(build / "bilder" / name, manual)
    texts = {}
    for page, name in BOOKLETS.items():
        texts[page] = booklet(name, build, manual)
        shutil.copy(build / f"bin/{name}.pdf", manual)

    def render(template, page, **values):
        html = TEMPLATES.get_template(template).render(
            wurzel="../" * page.count("/"), seite=page, arten=kinds, ausgaben=told, version=told[0]["version"],
            datum=told[0]["datum"], **values)
        (release / page).parent.mkdir(exist_ok=True)
        (release / page).write_text(html)

    for page in "index.html", "fehler/index.html", "neues/index.html", "quellen/index.html":
        render(page, page)
    for page, (title, text) in texts.items():
        render("anleitung/index.html", f"anleitung/{page}.html", heft=page, titel=title, text=text,
               pdf=f"{BOOKLETS[page]}.pdf", hefte={key: value[0] for key, value in texts.items()})


def check(release):
    """Ends with what leads nowhere and what does not belong together."""
    faults = []
    for page in [release / "stil.css", *sorted(release.rglob("*.html"))]:
        text = page.read_text()
        hosts = re.findall(r"(?:https?://|mailto:[^@]*@)([^/\"?<\s]+)", text)
        faults += [f"{page}: {host}" for host in hosts if host not in LICENCES and not host.endswith(".example")]
        for link in re.findall(r'(?:href=|src=|srcset=|url\()"([^"\s]+)|\dw, (\S+)', text):
            path, _, name = "".join(link).partition("#")
            target = page.parent / path if path else page
            if not re.match("https:|mailto:", path) and not (
                    target.is_file() and (not name or f'id="{name}"' in target.read_text())):
                faults.append(f"{page}: {path}#{name}")
    for source in (SOURCE / "packaging").rglob("*.*"):
        for path in re.findall(HOME + r"([^\s<\"]*)", source.read_text()):
            if not (release / re.sub("(^|/)$", r"\1index.html", path)).is_file():
                faults.append(f"{source}: {HOME}{path}")

    folder = release / "dateien"
    sums = set((folder / "SHA256SUMS").read_text().splitlines())
    for source in folder.glob("*.dsc"):
        listed = re.findall(r"^ (\w{64}) \d+ (\S+)", source.read_text(), re.M)
        faults += [f"{source}: {name}" for digest, name in listed if f"{digest}  {name}" not in sums]
    made = {int(package.read_bytes()[24:36]) for package in folder.glob("*.deb")}
    needed = ["qt6-translations_*"]
    for package in map(ZipFile, folder.glob("*.zip")):
        entry = next(name for name in package.namelist() if name.endswith("Lizenzen/LIESMICH.txt"))
        needed += map("_".join, re.findall(r"(qt6-\w+) (\d\S+)", package.read(entry).decode()))
        made.add(timegm(package.getinfo(entry).date_time))
    for source in needed:
        if not list(folder.glob(f"{source}.dsc")):
            print(f"Left out: the source {source}, which the licence asks for")
    if max(made) - min(made) > 2:  # A ZIP knows every other second.
        faults.append("The packages are of several commits.")
    sys.exit("\n".join(faults) or 0)


if __name__ == "__main__":
    write(Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve())
    check(Path(sys.argv[1]).resolve())
