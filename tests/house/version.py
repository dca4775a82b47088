# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""Holds the files that tell of releases against the version of the project: version.py ROOT VERSION"""
import pathlib
import re
import sys

root, version = pathlib.Path(sys.argv[1]), sys.argv[2]
newest = {
    "CHANGELOG.md": r"^## .*?(\d+\.\d+\.\d+)",
    "packaging/org.quillets.Quillets.metainfo.xml.in": r'<release version="(.*?)"',
}
faults = []
for name, pattern in newest.items():
    found = re.search(pattern, (root / name).read_text(), re.M)
    if found is None or found[1] != version:
        faults.append(f"{name}: the newest release is {found and found[1]}, the project is at {version}")
print("\n".join(faults) or f"{version} everywhere")
sys.exit(bool(faults))
