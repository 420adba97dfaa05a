#!/usr/bin/env python3
"""Prints what benchmarks left in the given JSON files as one table of Markdown."""

import json
import sys
from pathlib import Path

MS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}


def figure(value):
    return "" if value is None else f"{value:.3g}"


def main():
    print("| Scene | Platform | ms | Reference, ms | Ratio |")
    print("|---|---|---|---|---|")
    for name in sys.argv[1:]:
        platform = Path(name).name.split("-")[0]
        for run in json.loads(Path(name).read_text())["benchmarks"]:
            scene = run["name"].removesuffix("/manual_time").split("/iterations")[0]
            if "error_message" in run:
                print(f"| {scene} | {platform} | {run['error_message']} | | |")
                continue
            ms = run.get("ms", run["real_time"] * MS[run["time_unit"]])
            print(f"| {scene} | {platform} | {figure(ms)} | {figure(run.get('reference'))} | "
                  f"{figure(run.get('ratio'))} |")


if __name__ == "__main__":
    main()
