#!/usr/bin/env python3
"""The layer table of cmake/CheckLayers.cmake: the same rows as ARCHITECTURE.md's
table, and no cycle among the folders."""
import re
import sys
from pathlib import Path

root = Path(sys.argv[1])
cmake = (root / "cmake" / "CheckLayers.cmake").read_text()
rows = re.findall(r'^\s*"([a-z_/]+):([^"]*)"', cmake, re.M)
table = {folder: set(uses.split()) for folder, uses in rows}

doc = (root / "ARCHITECTURE.md").read_text()
doc_rows = re.findall(r"^\| `([a-z_/]+)` \| ([^|]*)\|", doc, re.M)
documented = {f: set(re.findall(r"`([a-z_/*]+)`", uses)) for f, uses in doc_rows}

failures = []
if documented != table:
    for folder in sorted(set(table) | set(documented)):
        if table.get(folder) != documented.get(folder):
            failures.append(f"{folder}: cmake {sorted(table.get(folder, []))}, "
                            f"ARCHITECTURE.md {sorted(documented.get(folder, []))}")

state = {}
def visit(folder, path):
    if state.get(folder) == "done":
        return
    if state.get(folder) == "open":
        failures.append("cycle: " + " -> ".join(path + [folder]))
        return
    state[folder] = "open"
    for used in table.get(folder, ()):
        if used != "*":
            visit(used, path + [folder])
    state[folder] = "done"

for folder in table:
    visit(folder, [])

for f in failures:
    print(f)
print(f"{len(table)} folders checked, {len(failures)} problems")
sys.exit(1 if failures else 0)
