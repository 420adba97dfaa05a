#!/usr/bin/env python3
"""Prints what benchmarks left in the given JSON files as tables of Markdown: times, then memory."""

import json
import sys
from pathlib import Path

MS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}


def figure(value):
    return "" if value is None else f"{value:.3g}"


def row(*cells):
    print("| " + " | ".join(cells) + " |")


def head(*names):
    row(*names)
    print("|" + "---|" * len(names))


def scene(run):
    return run["name"].removesuffix("/manual_time").split("/iterations")[0]


def times(runs):
    head("Scene", "Platform", "ms", "Reference, ms", "Ratio")
    for platform, run in runs:
        if "error_message" in run:
            row(scene(run), platform, run["error_message"], "", "")
            continue
        ms = run.get("ms", run["real_time"] * MS[run["time_unit"]])
        row(scene(run), platform, figure(ms), figure(run.get("reference")),
            figure(run.get("ratio")))


def memory(runs):
    head("Scene", "Platform", "MiB", "Empty window", "Above it", "Highest", "Growth")
    for platform, run in runs:
        row(scene(run), platform, *(f"{run[name]:.1f}" for name in
                                    ("MiB", "empty", "above", "peak", "growth")))


def main():
    # A file is empty where a filter has left nothing of a benchmark.
    files = [(Path(name).name.split("-")[0], Path(name).read_text()) for name in sys.argv[1:]]
    runs = [(platform, run) for platform, text in files if text
            for run in json.loads(text)["benchmarks"]]
    held = [entry for entry in runs if "MiB" in entry[1]]
    times([entry for entry in runs if entry not in held])
    if held:
        print()
        memory(held)


if __name__ == "__main__":
    main()
