# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""Holds the includes of src/ against the table of floors in ARCHITECTURE.md: a file includes files of its own folder
and of lower floors, nothing else; every folder of sources has its row."""
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
rows = re.findall(r"^\| (\d+) \| (.*?) \|", (root / "ARCHITECTURE.md").read_text(), re.M)
floors = {folder.rstrip("/"): int(floor) for floor, folders in rows for folder in re.findall(r"`(.*?)`", folders)}
faults = []
for file in sorted(p for p in (root / "src").rglob("*") if p.suffix in (".h", ".cpp", ".mm")):
    inside = file.relative_to(root / "src")
    own = inside.name if inside.parent == pathlib.Path(".") else inside.parent.as_posix()
    if own not in floors and own != "pch.h":
        faults.append(f"{own} has no floor in ARCHITECTURE.md")
    for include in re.findall(r'^#include "(.*?)"', file.read_text(), re.M):
        other = pathlib.Path(include).parent.as_posix()
        if other not in (own, ".") and floors.get(other, 99) >= floors.get(own, 99):
            faults.append(f"{inside}: {include} is not on a lower floor")
print("\n".join(faults) or f"{len(floors)} folders, no arrow points up")
sys.exit(bool(faults))
