#!/usr/bin/env python3
"""Measures what the tests notice: makes one build in which some hundreds of small changes stand, each asleep, wakes
them one by one and runs the tests of the room that each is in.

    tools/mutate/mutate.py [--changes N] [--seed S] [--room NAME ...] [--report FILE]

A change is an operator, a condition, a constant or a left-out statement. Which places are changed is drawn by a fixed
seed, so two measurements with the same sources are of the same changes. The sources are copied below build/mutate and
changed there; a change that does not compile is taken out. MORVANE_MUTANT=N wakes number N.

What cannot be noticed (a change that leaves the meaning, or one of speed alone) stands in unnoticeable.tsv with the
reason and is taken out of the sum.
"""

import argparse
import concurrent.futures
import csv
import os
import random
import re
import shutil
import subprocess
import sys
import time
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
HERE = Path(__file__).resolve().parent
COPY = ROOT / "build" / "mutate" / "source"
LEAST_A_ROOM = 20
WORKERS = os.cpu_count() or 1

SWITCH = """#pragma once
#include <cstdlib>
inline bool morvaneMutant(int number) {
    static const int chosen = std::getenv("MORVANE_MUTANT") ? std::atoi(std::getenv("MORVANE_MUTANT")) : 0;
    return chosen == number;
}
"""

COMPARISONS = {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ", " != ": " == ",
               " && ": " || ", " || ": " && "}
STEPS = {" + ": " - ", " - ": " + "}


@dataclass
class Place:
    """A line of a file and what would stand there instead; `{}` in the new line is the change's number."""
    room: str
    file: str
    line: int
    old: str
    new: str

    def key(self):
        return (self.file, self.old.strip(), self.new.strip())


def rooms():
    """Each room's folder of sources and the programs that test it: rooms.tsv."""
    with (HERE / "rooms.tsv").open(encoding="utf-8") as file:
        return [(row["room"], row["folder"], row["tests"].split()) for row in csv.DictReader(file, delimiter="\t")]


def room_of(file, folders):
    """The room whose folder is the longest beginning of the file's path."""
    found = [(len(folder), room) for room, folder, _ in folders if file.startswith(folder + "/")]
    return max(found)[1] if found else None


def conditions(line):
    """The text of a one-line condition or returned value, with the pieces before and behind it."""
    match = re.match(r"^(\s*(?:} else )?(?:if|while) \((?:[^;]*; )?)([^;{]*)(\).*)$", line)
    if match and balanced(match.group(2)):
        yield match.groups(), "({})"
    match = re.match(r"^(\s*(?:if \([^;]*\) )?)return ([^;{]+);$", line)
    if match and balanced(match.group(2)) and balanced(match.group(1)):
        yield (match.group(1), match.group(2), ""), "return"


def balanced(text):
    depth = 0
    for letter in text:
        depth += {"(": 1, ")": -1}.get(letter, 0)
        if depth < 0:
            return False
    return depth == 0


def changed_expressions(text):
    """Variants of an expression with one operator or truth value changed."""
    for table in (COMPARISONS, STEPS):
        for old, new in table.items():
            for match in re.finditer(re.escape(old), text):
                yield text[:match.start()] + new + text[match.end():]
    for match in re.finditer(r"\b(true|false)\b", text):
        other = "false" if match.group() == "true" else "true"
        yield text[:match.start()] + other + text[match.end():]


def variants(line):
    """Every changed form of a line."""
    code = line.split("//")[0].rstrip()
    if not code or code.lstrip().startswith(("#", "*", "static_assert", "template", "case ", "using ")):
        return
    if '"' in code and "%" in code:
        return
    for (before, text, behind), form in conditions(code):
        if form == "return":
            for new in changed_expressions(text):
                yield f"{before}{{{{ if (morvaneMutant({{}})) return {braced(new)}; return {braced(text)}; }}}}"
        else:
            for new in [f"!({text})", *changed_expressions(text)]:
                yield f"{braced(before)}morvaneMutant({{}}) ? ({braced(new)}) : ({braced(text)}){braced(behind)}"
    for match in re.finditer(r"(?<![\w.'\"<\[])(\d+)(?![\w.'\"\]>])", code):
        # Constants that the compiler needs cannot change, and places on the screen are judged by eye.
        if "constexpr" in code or re.search(r"setGeometry|resize\(|\{-?\d+, ", code):
            break
        number = match.group(1)
        yield (f"{braced(code[:match.start()])}(morvaneMutant({{}}) ? {int(number) + 1} : {number})"
               f"{braced(code[match.end():])}")
    if re.match(r"^\s+[\w.\->\[\]:]+(\(.*\)|( [+\-|&*]?= | \+= ).+|\+\+);$", code) and balanced(code):
        if not re.match(r"^\s+(return|throw|delete|break|continue|else|case|goto|if|for|while)\b", code):
            indent, statement = re.match(r"^(\s+)(.*)$", code).groups()
            yield f"{indent}if (!morvaneMutant({{}})) {braced(statement)}"


def braced(text):
    return text.replace("{", "{{").replace("}", "}}")


def all_places(folders):
    tracked = subprocess.run(["git", "ls-files", "src"], cwd=ROOT, capture_output=True, text=True, check=True)
    for file in tracked.stdout.split():
        room = room_of(file, folders)
        if room is None or not file.endswith(".cpp"):
            continue
        for number, line in enumerate((ROOT / file).read_text(encoding="utf-8").splitlines(), 1):
            for new in variants(line):
                yield Place(room, file, number, line, new)


def drawn(places, count, seed):
    """At most one a line; at least LEAST_A_ROOM of each room, the rest by the rooms' sizes."""
    generator = random.Random(seed)
    by_room = {}
    for place in places:
        by_room.setdefault(place.room, []).append(place)
    total = sum(len(of_room) for of_room in by_room.values())
    for room, of_room in sorted(by_room.items()):
        wanted = max(LEAST_A_ROOM, round(count * len(of_room) / total))
        generator.shuffle(of_room)
        lines = set()
        for place in of_room:
            if len(lines) < wanted and (place.file, place.line) not in lines:
                lines.add((place.file, place.line))
                yield place


def copy_sources():
    COPY.mkdir(parents=True, exist_ok=True)
    tracked = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, capture_output=True, check=True).stdout
    for name in filter(None, tracked.decode().split("\0")):
        target = COPY / name
        if not (ROOT / name).is_file():
            continue
        target.parent.mkdir(parents=True, exist_ok=True)
        if not target.exists() or target.read_bytes() != (ROOT / name).read_bytes():
            shutil.copy2(ROOT / name, target)
    (COPY / "src" / "mutant.h").write_text(SWITCH)


def write_changes(places):
    """Numbers count from 1; a file's first line gains the switch's header in front of it, on the same line number."""
    by_file = {}
    for number, place in enumerate(places, 1):
        if place is not None:
            by_file.setdefault(place.file, []).append((number, place))
    for file, changes in by_file.items():
        lines = (ROOT / file).read_text(encoding="utf-8").splitlines()
        for number, place in changes:
            lines[place.line - 1] = place.new.format(number)
        text = '#include "mutant.h"\n' + "\n".join(lines) + "\n"
        target = COPY / file
        if target.read_text(encoding="utf-8") != text:
            target.write_text(text, encoding="utf-8")


def build(targets):
    environment = dict(os.environ, CCACHE_DISABLE="1", CLICOLOR_FORCE="0")
    if not (COPY / "build" / "release" / "build.ninja").exists():
        subprocess.run(["cmake", "--preset", "release", "-DCMAKE_CXX_FLAGS=-Wno-error"], cwd=COPY, check=True,
                       stdout=subprocess.DEVNULL)
    done = subprocess.run(["cmake", "--build", "--preset", "release", "--target", *targets, "--", "-k", "0"], cwd=COPY,
                          env=environment, capture_output=True, text=True)
    return done.returncode == 0, done.stdout + done.stderr


def take_out_broken(places, output):
    """The changes on lines that the compiler names; all of a failed file in which it names none of them."""
    named = {(Path(file).name, int(line) - 1) for file, line in re.findall(r"([\w./+-]+\.(?:cpp|h)):(\d+):", output)}
    failed = {Path(name).name for name in re.findall(r"FAILED: \S*?([\w]+\.cpp)\.o", output)}
    left = []
    for place in places:
        if place is not None and Path(place.file).name in failed:
            name = Path(place.file).name
            lines = {line for file, line in named if file == name}
            own = {other.line for other in places if other is not None and Path(other.file).name == name}
            if place.line in lines or not (lines & own):
                place = None
        left.append(place)
    return left


def run_tests(programs, number, limits):
    """True when a program fails, crashes or does not end."""
    environment = dict(os.environ, MORVANE_MUTANT=str(number), QT_QPA_PLATFORM="offscreen", GTEST_FAIL_FAST="1",
                       GTEST_BRIEF="1", QT_FONT_DPI="96")
    for program in programs:
        path = COPY / "build" / "release" / "bin" / program
        try:
            done = subprocess.run([path], env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                  timeout=limits.get(program, 600))
        except subprocess.TimeoutExpired:
            return True
        if done.returncode != 0:
            return True
    return False


def measured_limits(programs):
    """Three times what a program takes with everything asleep. One that fails then cannot measure anything."""
    limits = {}
    for program in programs:
        start = time.monotonic()
        if run_tests([program], 0, {}):
            sys.exit(f"{program} fails without any change")
        limits[program] = 3 * WORKERS * (time.monotonic() - start) + 10
    return limits


def unnoticeable():
    path = HERE / "unnoticeable.tsv"
    with path.open(encoding="utf-8") as file:
        return {(row["file"], row["old"], row["new"]) for row in csv.DictReader(file, delimiter="\t")}


def main():
    arguments = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    arguments.add_argument("--changes", type=int, default=300)
    arguments.add_argument("--seed", type=int, default=1)
    arguments.add_argument("--room", action="append", default=[])
    arguments.add_argument("--report", type=Path, default=ROOT / "build" / "mutate" / "report.tsv")
    chosen = arguments.parse_args()

    folders = rooms()
    tests_of = {room: tests for room, _, tests in folders}
    places = list(drawn(all_places(folders), chosen.changes, chosen.seed))
    excused = unnoticeable()
    places = [place for place in places if place.key() not in excused
              and (not chosen.room or place.room in chosen.room)]
    targets = sorted({test for place in places for test in tests_of[place.room]})
    copy_sources()
    while True:
        write_changes(places)
        built, output = build(targets)
        if built:
            break
        remaining = take_out_broken(places, output)
        if remaining == places:
            sys.exit(output[-4000:])
        for before, after in zip(places, remaining):
            if before is not None and after is None:
                shutil.copy2(ROOT / before.file, COPY / before.file)
        places = remaining

    awake = [(number, place) for number, place in enumerate(places, 1) if place is not None]
    print(f"{len(awake)} changes in {len({place.file for _, place in awake})} files", flush=True)
    limits = measured_limits(targets)
    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        noticed = list(pool.map(lambda change: run_tests(tests_of[change[1].room], change[0], limits), awake))
    report(awake, noticed, chosen.report)


def report(awake, noticed, path):
    path.parent.mkdir(parents=True, exist_ok=True)
    with path.open("w", encoding="utf-8", newline="") as file:
        writer = csv.writer(file, delimiter="\t", lineterminator="\n", quoting=csv.QUOTE_MINIMAL)
        writer.writerow(["noticed", "room", "number", "line", "file", "old", "new"])
        for (number, place), was in zip(awake, noticed):
            writer.writerow(["yes" if was else "no", place.room, number, place.line, *place.key()])
    for room in sorted({place.room for _, place in awake}):
        of_room = [was for (_, place), was in zip(awake, noticed) if place.room == room]
        print(f"{room:20} {sum(of_room):4} of {len(of_room):4}  {100 * sum(of_room) / len(of_room):5.1f} %")
    print(f"{'all':20} {sum(noticed):4} of {len(noticed):4}  {100 * sum(noticed) / len(noticed):5.1f} %")
    print(f"Unnoticed ones stand in {path}")


if __name__ == "__main__":
    main()
