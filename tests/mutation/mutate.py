#!/usr/bin/env python3
"""Whether the tests notice a change: seeded single mutations of optics, canvas and screens.

    tests/mutation/mutate.py FIRST LAST

Each seed from FIRST to LAST gives one mutation. It is built in a tree of its own under
build/mutation, and the tests that matter run until one fails. What became of it is added to
build/mutation/results.tsv: killed (and by which suite), survived, or stillborn where it does not
compile. A seed that stands there already is not tried again, so a run goes on where it was stopped.
tests/mutation/equivalent.tsv explains, by file, line text and change, those that change nothing.
"""

import random
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutation"
TREE = WORK / "tree"
BUILD = WORK / "build"
RESULTS = WORK / "results.tsv"
EQUIVALENT = Path(__file__).with_name("equivalent.tsv")
FOLDERS = ("optics", "canvas", "screens")
# Seconds until a suite that hangs counts as one that has noticed.
LONGEST = 300

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


def build():
    made = subprocess.run(["cmake", "--build", str(BUILD)], stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL, check=False)
    return made.returncode == 0


def suites(name):
    """The test programs, those of the changed folder first; what needs a display is left out."""
    programs = [p for p in BUILD.glob("tests/**/test_*")
                if p.is_file() and p.stat().st_mode & 0o111 and not p.suffix]
    programs.append(next(BUILD.glob("tests/monkey/*monkey*"), None))
    folder = Path(name).parent.name
    return sorted((p for p in programs if p and p.is_file()),
                  key=lambda p: (folder not in str(p), "laws" in p.name, "monkey" in p.name,
                                 p.stat().st_size))


def killer(name):
    for program in suites(name):
        try:
            done = subprocess.run([str(program), "--gtest_fail_fast", "--gtest_brief=1"],
                                  cwd=program.parent, timeout=LONGEST, check=False,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                  env={"QT_QPA_PLATFORM": "offscreen", "PATH": "/usr/bin:/bin",
                                       "HOME": "/tmp"})
        except subprocess.TimeoutExpired:
            return program.name + " (hangs)"
        if done.returncode != 0:
            return program.name
    return None


def attempt(mutation):
    name, number, old, new = mutation
    file = TREE / name
    text = file.read_text()
    lines = text.split("\n")
    lines[number] = new
    file.write_text("\n".join(lines))
    try:
        if not build():
            return "stillborn", ""
        by = killer(name)
        return ("killed", by) if by else ("survived", "")
    finally:
        file.write_text(text)


def prepare():
    WORK.mkdir(parents=True, exist_ok=True)
    subprocess.run(["rsync", "-a", "--delete", "--exclude=build", "--exclude=.git", f"{ROOT}/",
                    f"{TREE}/"], check=True)
    if not (BUILD / "build.ninja").exists():
        subprocess.run(["cmake", "-S", str(TREE), "-B", str(BUILD), "-G", "Ninja",
                        "-DCMAKE_BUILD_TYPE=Release", "-DCMAKE_CXX_FLAGS_RELEASE=-O1"], check=True,
                       stdout=subprocess.DEVNULL)
    if not build():
        sys.exit("The tree does not build as it is.")
    if by := killer(""):
        sys.exit(f"The tests do not pass as they are: {by}.")


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


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    first, last = int(sys.argv[1]), int(sys.argv[2])
    everything = mutations()
    prepare()
    tried = known()
    for seed in range(first, last + 1):
        if seed in tried:
            continue
        mutation = random.Random(seed).choice(everything)
        became, by = attempt(mutation)
        name, number, old, new = mutation
        row = [str(seed), became, by, name, str(number + 1), old.strip(), new.strip()]
        with RESULTS.open("a") as results:
            results.write("\t".join(row) + "\n")
        tried[seed] = row
        print(*row, sep=" | ", flush=True)

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
