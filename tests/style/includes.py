#!/usr/bin/python3
"""Compares every #include between folders with the arrows of docs/architecture.md.

usage: includes.py SOURCE_FOLDER
"""
import re
import sys
from pathlib import Path

MAY_INCLUDE = {"core": "", "platform": "", "controls": "core", "persistence": "core platform",
               "dialogs": "core controls persistence platform",
               "shell": "core controls dialogs persistence platform"}
root, wrong = Path(sys.argv[1]), []
for folder, others in MAY_INCLUDE.items():
    for source in [*(root / folder).rglob("*.h"), *(root / folder).rglob("*.cpp")]:
        inside = {".", folder, str(source.parent.relative_to(root))}
        for header in re.findall(r'^#include "(.+)"', source.read_text("utf-8"), re.M):
            if str(Path(header).parent) not in inside | set(others.split()):
                wrong.append(f"{source.relative_to(root)} includes {header}")
sys.exit("\n".join(wrong) or 0)
