#!/usr/bin/env python3
"""Whether the tests notice a change: seeded single mutations of optics, canvas and screens.

    tests/mutation/mutate.py FIRST LAST [JOBS]

Each seed from FIRST to LAST gives one mutation. It is built in a tree of its own under
build/mutation, JOBS of them (two unless told otherwise) at a time, and the test programs that need
no display run until one fails. What became of it is added to
build/mutation/results.tsv: killed (and by which suite), survived, or stillborn where it does not
compile. A seed that stands there already is not tried again, so a run goes on where it was stopped.
tests/mutation/equivalent.tsv explains, by file, line text and change, those that change nothing.
"""

import json
import random
import re
import resource
import shutil
import subprocess
import sys
import time
from collections import deque
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutation"
RESULTS = WORK / "results.tsv"
EQUIVALENT = Path(__file__).with_name("equivalent.tsv")
FOLDERS = ("optics", "canvas", "screens")
# Seconds until a suite that hangs counts as one that has noticed, before it is known how long it
# takes, and the bytes that it may ask for.
LONGEST = 300.0
MEMORY = (8 << 30, 8 << 30)

# What stands there, and what may stand there instead. Blanks tell comparisons from brackets of
# templates, as the formatter sets them.
SWAPS = [
    (r" < ", [" <= ", " > "]),
    (r" > ", [" >= ", " < "]),
    (r" <= ", [" < "]),
    (r" >= ", [" > "]),
    (r" == ", [" != "]),
    (r" != ", [" == "]),
    (r" \+ ", [" - "]),
    (r" - ", [" + "]),
    (r" \* ", [" / "]),
    (r" / ", [" * "]),
    (r" && ", [" || "]),
    (r" \|\| ", [" && "]),
    (r" \+= ", [" -= "]),
    (r" -= ", [" += "]),
    (r"\btrue\b", ["false"]),
    (r"\bfalse\b", ["true"]),
    (r"\bstd::min\b", ["std::max"]),
    (r"\bstd::max\b", ["std::min"]),
    (r"\bleft\b(?=\W)", ["right"]),
    (r"\.x\b", [".y"]),
    (r"\.y\b", [".x"]),
    (r"(?<![\w.\"])-(?=[\w(])", [""]),
    (r"if \(", ["if (!("]),
    (r"(?<![\w.\"])\d+(?:\.\d+)?(?![\w.\"])", ["+1"]),
    (r"^\s+[\w.:>()-]+\([^;]*\);$", [";"]),
]


def sources():
    listed = subprocess.run(["git", "ls-files", *FOLDERS], cwd=ROOT, capture_output=True, text=True,
                            check=True)
    return [name for name in listed.stdout.split() if name.endswith((".cpp", ".h"))]


def is_code(line):
    bare = line.strip()
    return bool(bare) and not bare.startswith(("//", "#", "static_assert", "Q_OBJECT", "namespace"))


def changed(line, match, swap):
    found = match.group(0)
    if swap == "+1":
        swap = f"({found} + 1)"
    elif swap == "if (!(":
        depth = 0
        for at in range(match.end() - 1, len(line)):
            depth += {"(": 1, ")": -1}.get(line[at], 0)
            if depth == 0:
                return line[: match.start()] + "if (!(" + line[match.end():at] + "))" + line[at + 1:]
        return None
    return line[: match.start()] + swap + line[match.end():]


def mutations():
    """All of them, in a fixed order: file, line number, old line, new line."""
    everything = []
    for name in sources():
        for number, line in enumerate((ROOT / name).read_text().split("\n")):
            if not is_code(line):
                continue
            code = re.split(r"\s//", line)[0]
            for pattern, swaps in SWAPS:
                for match in re.finditer(pattern, code):
                    if code[: match.start()].count('"') % 2 == 1:
                        continue
                    for swap in swaps:
                        new = changed(line, match, swap)
                        if new is not None:
                            everything.append((name, number, line, new))
    return everything


@dataclass
class Suite:
    """A test program, what its environment has besides the usual, and how long it may take."""

    program: Path
    environment: dict
    longest: float = LONGEST

    def passes(self):
        done = subprocess.run([str(self.program), "--gtest_fail_fast", "--gtest_brief=1"],
                              cwd=self.program.parent, timeout=self.longest, check=False,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              env={"PATH": "/usr/bin:/bin", "HOME": "/tmp", **self.environment},
                              preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, MEMORY))
        return done.returncode == 0


class Workshop:
    """A copy of the tree and its build, in which one mutation at a time stands."""

    def __init__(self, number):
        self.tree = WORK / f"tree-{number}"
        self.folder = WORK / f"build-{number}"
        self.suites = []

    def prepare(self):
        shutil.rmtree(self.tree, ignore_errors=True)
        shutil.copytree(ROOT, self.tree, ignore=shutil.ignore_patterns("build", ".git"))
        if not (self.folder / "build.ninja").exists():
            # The program file by file, since a unity build would compile several for one.
            subprocess.run(["cmake", "-S", str(self.tree), "-B", str(self.folder), "-G", "Ninja",
                            "-DCMAKE_BUILD_TYPE=Release", "-DCMAKE_CXX_FLAGS_RELEASE=-O1",
                            "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"], check=True,
                           stdout=subprocess.DEVNULL)
        if not self.build():
            sys.exit("The tree does not build as it is.")
        self.suites = self.programs()
        for suite in self.suites:
            began = time.monotonic()
            if not suite.passes():
                sys.exit(f"The tests do not pass as they are: {suite.program.name}.")
            suite.longest = 20.0 + 5.0 * (time.monotonic() - began)

    def build(self):
        made = subprocess.run(["cmake", "--build", str(self.folder), "--parallel", "1"],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
        return made.returncode == 0

    def programs(self):
        """Those of which tests are listed; what needs a display is no such program."""
        listed = subprocess.run(["ctest", "--show-only=json-v1"], cwd=self.folder, check=True,
                                capture_output=True, text=True)
        found = {}
        for test in json.loads(listed.stdout)["tests"]:
            command = test.get("command", [""])
            if not any(word.startswith("--gtest_filter") for word in command):
                continue
            values = {p["name"]: p["value"] for p in test["properties"]}
            environment = dict(line.split("=", 1) for line in values.get("ENVIRONMENT", []))
            found.setdefault(command[0], Suite(Path(command[0]), environment))
        return list(found.values())

    def killer(self, name):
        """The first suite that fails: those of the changed folder first, small ones before large."""
        folder = Path(name).parent.name
        for suite in sorted(self.suites, key=lambda s: (f"/{folder}/" not in str(s.program),
                                                        s.longest)):
            try:
                if not suite.passes():
                    return suite.program.name
            except subprocess.TimeoutExpired:
                return suite.program.name + " (hangs)"
        return None

    def attempt(self, mutation):
        name, number, old, new = mutation
        file = self.tree / name
        text = file.read_text()
        lines = text.split("\n")
        lines[number] = new
        file.write_text("\n".join(lines))
        try:
            if not self.build():
                return "stillborn", ""
            by = self.killer(name)
            return ("killed", by) if by else ("survived", "")
        finally:
            file.write_text(text)


def known():
    if not RESULTS.exists():
        return {}
    rows = [row.split("\t") for row in RESULTS.read_text().splitlines()]
    return {int(row[0]): row for row in rows}


def explained():
    if not EQUIVALENT.exists():
        return set()
    rows = [row.split("\t") for row in EQUIVALENT.read_text().splitlines() if row]
    return {(row[0], row[1], row[2]) for row in rows}


def work(workshop, left, tried):
    workshop.prepare()
    while left:
        seed, mutation = left.popleft()
        became, by = workshop.attempt(mutation)
        name, number, old, new = mutation
        row = [str(seed), became, by, name, str(number + 1), old.strip(), new.strip()]
        with RESULTS.open("a") as results:
            results.write("\t".join(row) + "\n")
        tried[seed] = row
        print(*row, sep=" | ", flush=True)


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    first, last, jobs = int(sys.argv[1]), int(sys.argv[2]), int((sys.argv + [2])[3])
    everything = mutations()
    WORK.mkdir(parents=True, exist_ok=True)
    tried = known()
    left = deque((seed, random.Random(seed).choice(everything))
                 for seed in range(first, last + 1) if seed not in tried)
    with ThreadPoolExecutor(jobs) as pool:
        for done in [pool.submit(work, Workshop(job), left, tried) for job in range(jobs)]:
            done.result()

    rows = [tried[seed] for seed in range(first, last + 1)]
    same = explained()
    survived = [row for row in rows if row[1] == "survived"]
    open_ones = [row for row in survived if (row[3], row[5], row[6]) not in same]
    killed = sum(row[1] == "killed" for row in rows)
    judged = killed + len(open_ones)
    print(f"{len(rows)} tried, {len(rows) - killed - len(survived)} stillborn, {killed} killed, "
          f"{len(survived)} survived, {len(survived) - len(open_ones)} of them equivalent")
    if judged:
        print(f"{100.0 * killed / judged:.1f} of 100 of those that change something are killed")
    for row in open_ones:
        print("survived:", f"{row[3]}:{row[4]}", row[5], "->", row[6])


if __name__ == "__main__":
    main()
