#!/usr/bin/env python3
"""The headless rename of the project-file benchmark, done by Python's standard library alone:
reads the project file, replaces «layer» by «слой» ignoring case in every caption, and writes
it back with two-space indentation, through a file beside it renamed into place."""
import json
import os
import re
import sys

path = sys.argv[1]
with open(path, encoding="utf-8") as f:
    project = json.load(f)
layer = re.compile("layer", flags=re.IGNORECASE)
pending = [project]
while pending:
    node = pending.pop()
    items = node.items() if isinstance(node, dict) else enumerate(node)
    for key, value in items:
        if key == "caption" and isinstance(value, str):
            node[key] = layer.sub("слой", value)
        elif isinstance(value, (dict, list)):
            pending.append(value)
with open(path + ".part", "w", encoding="utf-8") as f:
    json.dump(project, f, indent=2, ensure_ascii=False)
    f.write("\n")
os.replace(path + ".part", path)
