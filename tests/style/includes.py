#!/usr/bin/python3
"""Compares every #include between folders with the arrows of docs/architecture.md.

usage: includes.py SOURCE_FOLDER
"""
import re
import sys
from pathlib import Path

MAY_INCLUDE = {
    "core": set(),
    "platform": set(),
    "controls": {"core"},
    "persistence": {"core", "platform"},
    "dialogs": {"core", "controls", "persistence", "platform"},
    "shell": {"core", "controls", "dialogs", "persistence", "platform"},
}

root, wrong = Path(sys.argv[1]), []
for folder, others in MAY_INCLUDE.items():
    sources = [p for p in (root / folder).rglob("*") if p.suffix in (".h", ".cpp", ".in")]
    for source in sources or [root / "there is no" / folder]:
        for header in re.findall(r'^#include "(.+)"', source.read_text("utf-8"), re.M):
            target = str(Path(header).parent)
            inside = target in (".", folder, str(source.parent.relative_to(root)))
            if not inside and target not in others:
                wrong.append(f"{source.relative_to(root)} includes {header}")
sys.exit("\n".join(wrong) or 0)
