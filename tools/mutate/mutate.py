#!/usr/bin/env python3
"""Measures what the tests notice: makes one build in which some hundreds of small changes stand, each asleep, wakes
them one by one and runs the tests of the room that each is in.

    tools/mutate/mutate.py [--changes N] [--seed S] [--room NAME ...] [--again REPORT] [--report FILE]

A change is an operator, a condition, a constant or a left-out statement. Texts are left alone, and so is what draws and
places: that is judged by eye, and by the gallery, which compares pictures. Which places are changed is drawn by a fixed
seed, or read from an earlier report, so that two measurements are of the same changes. The sources are copied below
build/mutate and changed there; a change that does not compile is taken out. MORVANE_MUTANT=N wakes number N.

rooms.tsv names the programs that test each room, those of few seconds first, `program:filter` with a filter of
GoogleTest, or a session of tests/screen with its word, which counts where a display can be had. What cannot be
noticed (a change that leaves the meaning, or one of speed alone) stands in unnoticeable.tsv with the reason and is
taken out of the sum.
"""

import argparse
import concurrent.futures
import csv
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
HERE = Path(__file__).resolve().parent
COPY = ROOT / "build" / "mutate" / "source"
BIN = COPY / "build" / "release" / "bin"
LEAST_A_ROOM = 20
IN_MEMORY = Path("/dev/shm") if Path("/dev/shm").is_dir() else None  # the tests wait for a disk most of the time
SESSION_PROGRAMS = ["morvane", "morvane-cli", "morvane-content", "morvane-simulator", "close_window"]
LIMITS = ["prlimit", "--as=8589934592", "--fsize=1073741824", "--core=0"]
WORKERS = os.cpu_count() or 1

SWITCH = """#pragma once
#include <cstdlib>
#pragma GCC diagnostic ignored "-Wall"
#pragma GCC diagnostic ignored "-Wextra"
#pragma GCC diagnostic ignored "-Wparentheses"
#pragma GCC diagnostic ignored "-Wunused-variable"
#pragma GCC diagnostic ignored "-Wunused-parameter"
#pragma GCC diagnostic ignored "-Wunused-value"
#pragma GCC diagnostic ignored "-Wint-in-bool-context"
#pragma GCC diagnostic ignored "-Wbool-compare"
#pragma GCC diagnostic ignored "-Wtype-limits"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
inline bool morvaneMutant(int number) {
    static const int chosen = std::getenv("MORVANE_MUTANT") ? std::atoi(std::getenv("MORVANE_MUTANT")) : 0;
    return chosen == number;
}
"""

COMPARISONS = {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ", " != ": " == ",
               " && ": " || ", " || ": " && "}
LOOKS = re.compile(r"^\s*(?:if \(.*\) )?(?:painter\w*\.|[\w.\->()]*\b(?:set(?:Font|Palette|Color|Pixmap|Geometry|FixedSize|Pen|"
                   r"Brush|Alignment|OnDark|SizeAdjustPolicy)|resize|move|place[A-Z]?\w*|draw[A-Z]?\w*|make(?:Hair|Rule)|"
                   r"addRect|applyPaperStyle|update)\()")
STEPS = {" + ": " - ", " - ": " + "}


@dataclass
class Place:
    """A line of a file and what would stand there instead; `@` in the new line is the change's number."""
    room: str
    file: str
    line: int
    old: str
    new: str

    def key(self):
        return (self.file, self.old.strip(), self.new.strip())


def rooms():
    """Of each room the programs that test it: rooms.tsv."""
    with (HERE / "rooms.tsv").open(encoding="utf-8") as file:
        return {row["room"]: row["tests"].split() for row in csv.DictReader(file, delimiter="\t")}


def room_of(file, names):
    """The room whose folder is the longest beginning of the file's path."""
    found = [name for name in names if file.startswith(f"src/{name}/")]
    return max(found, key=len) if found else None


LITERALS = re.compile(r"//[^\n]*|R\"\((?s:.*?)\)\"|\"(?:\\.|[^\"\\\n])*\"|(?<![0-9a-fA-F])'(?:\\.|[^'\\\n])+'")


def masked(text):
    """The text with blanks for comments and for what other systems compile, and # for each letter of a literal, so that
    nothing is found in them."""
    def cover(match):
        letter = " " if match.group().startswith("//") else "#"
        return re.sub(r"[^\n]", letter, match.group())

    return LITERALS.sub(cover, text)


def conditions(line):
    """The span of a one-line condition or of a returned value, and which of both it is."""
    match = re.match(r"^\s*(?:} else )?(?:if|while) \((?:[^;]*; )?([^;{]*)\).*$", line)
    if match and balanced(match.group(1)):
        yield match.span(1), "condition"
    match = re.match(r"^(\s*(?:if \([^;]*\) )?)return ([^;{]+);$", line)
    if match and balanced(match.group(2)) and balanced(match.group(1)):
        yield match.span(2), "return"


def balanced(text):
    depth = 0
    for letter in text:
        depth += {"(": 1, ")": -1}.get(letter, 0)
        if depth < 0:
            return False
    return depth == 0


def changed_expressions(text, mask):
    """Variants of an expression with one operator or truth value changed."""
    for table in (COMPARISONS, STEPS):
        for old, new in table.items():
            for match in re.finditer(re.escape(old), mask):
                yield text[:match.start()] + new + text[match.end():]
    for match in re.finditer(r"\b(true|false)\b", mask):
        other = "false" if match.group() == "true" else "true"
        yield text[:match.start()] + other + text[match.end():]


def variants(line, mask, is_seen):
    """Every changed form of a line; `mask` is the line as `masked` gives it. In a room that `is_seen` most numbers are
    places on the screen."""
    code = mask.rstrip()
    line = line[:len(code)]
    if not code or "@" in line or code.lstrip().startswith(("#", "*", "static_assert", "template", "case ", "using ")):
        return
    if LOOKS.match(code):
        return
    for (start, end), form in conditions(code):
        before, text, behind = line[:start], line[start:end], line[end:]
        changed = list(changed_expressions(text, code[start:end]))
        if form == "return":
            before = before[:-len("return ")]
            for new in changed:
                yield f"{before}{{ if (morvaneMutant(@)) return {new}; return {text}; }}"
        else:
            for new in [f"!({text})", *changed]:
                yield f"{before}morvaneMutant(@) ? ({new}) : ({text}){behind}"
    for match in re.finditer(r"(?<![\w.'#<\[])(\d+)(?![\w.'#\]>])", code):
        if is_seen or "constexpr" in code:  # the compiler needs it
            break
        number = match.group(1)
        yield f"{line[:match.start()]}(morvaneMutant(@) ? {int(number) + 1} : {number}){line[match.end():]}"
    if re.match(r"^\s+[\w.\->\[\]:]+(\(.*\)|( [+\-|&*]?= | \+= ).+|\+\+);$", code) and balanced(code):
        if not re.match(r"^\s+(return|throw|delete|break|continue|else|case|goto|if|for|while)\b", code):
            indent, statement = re.match(r"^(\s+)(.*)$", line).groups()
            yield f"{indent}if (!morvaneMutant(@)) {statement}"


def all_places(names):
    tracked = subprocess.run(["git", "ls-files", "src"], cwd=ROOT, capture_output=True, text=True, check=True)
    for file in tracked.stdout.split():
        room = room_of(file, names)
        if room is None or not file.endswith(".cpp") or file.endswith("_windows.cpp"):
            continue
        is_seen = re.match("ui|window|.*screens", room) is not None
        text = (ROOT / file).read_text(encoding="utf-8")
        for number, (line, mask) in enumerate(zip(text.splitlines(), masked(text).splitlines()), 1):
            for new in variants(line, mask, is_seen):
                yield Place(room, file, number, line, new)


def read_again(report, names):
    """The places of an earlier report that still stand, equal lines by the nearest number; it says how many do not."""
    standing = {}
    for place in all_places(names):
        standing.setdefault(place.key(), []).append(place)
    found, gone = [], 0
    with report.open(encoding="utf-8") as file:
        for row in csv.DictReader(file, delimiter="\t"):
            alike = standing.get((row["file"], row["old"], row["new"]))
            if alike:
                nearest = min(alike, key=lambda place: abs(place.line - int(row["line"])))
                alike.remove(nearest)
                found.append(nearest)
            else:
                gone += 1
    print(f"{gone} of {gone + len(found)} places are gone", flush=True)
    return found


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
    """Makes the copy what is tracked; what it built stays."""
    tracked = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, capture_output=True, check=True).stdout
    names = {name for name in tracked.decode().split("\0") if name and (ROOT / name).is_file()}
    for name in names:
        target = COPY / name
        target.parent.mkdir(parents=True, exist_ok=True)
        if not target.exists() or target.read_bytes() != (ROOT / name).read_bytes():
            shutil.copy2(ROOT / name, target)
    for left in COPY.rglob("*"):
        name = left.relative_to(COPY).as_posix()
        if left.is_file() and name not in names and not name.startswith("build/"):
            left.unlink()
    (COPY / "src" / "mutant.h").write_text(SWITCH)


def write_changes(places):
    """Numbers count from 1; the switch's header goes in front of a file without moving its line numbers."""
    by_file = {}
    for number, place in enumerate(places, 1):
        if place is not None:
            by_file.setdefault(place.file, []).append((number, place))
    for file, changes in by_file.items():
        lines = (ROOT / file).read_text(encoding="utf-8").splitlines()
        for number, place in changes:
            lines[place.line - 1] = place.new.replace("@", str(number))
        text = '#include "mutant.h"\n#line 1\n' + "\n".join(lines) + "\n"
        target = COPY / file
        if target.read_text(encoding="utf-8") != text:
            target.write_text(text, encoding="utf-8")


def build(targets):
    environment = dict(os.environ, CLICOLOR_FORCE="0", CCACHE_BASEDIR=str(COPY))
    if not (COPY / "build" / "release" / "build.ninja").exists():
        subprocess.run(["cmake", "--preset", "release"], cwd=COPY, check=True, stdout=subprocess.DEVNULL,
                       env=environment)
    done = subprocess.run(["cmake", "--build", "--preset", "release", "--target", *targets, "--", "-k", "0"], cwd=COPY,
                          env=environment, capture_output=True, text=True)
    return done.returncode == 0, done.stdout + done.stderr


def take_out_broken(places, output):
    """The changes on lines that the compiler names; all of a failed file in which it names none of them."""
    named = {(file, int(line)) for file, line in re.findall(r"(src/[\w./-]+\.cpp):(\d+):", output)}
    failed = {f"{room}/{name}" for room, name in
              re.findall(r"FAILED: (src/[\w/]+)/CMakeFiles/[\w.]+/(\w+\.cpp)\.o", output)}
    left = []
    for place in places:
        if place is not None and place.file in failed:
            lines = {line for file, line in named if file == place.file}
            own = {other.line for other in places if other is not None and other.file == place.file}
            if place.line in lines or not (lines & own):
                place = None
        left.append(place)
    return left


def programs_of(test):
    """What has to be built for it."""
    program = test.partition(":")[0]
    return SESSION_PROGRAMS if program.endswith(".sh") else [program]


def ended_well(test, number, limit):
    """False when the program fails, crashes or does not end, with whatever it started."""
    program, _, only = test.partition(":")
    command = ["bash", COPY / "tests" / "screen" / program, BIN, only] if program.endswith(".sh") else [BIN / program]
    with tempfile.TemporaryDirectory(prefix="morvane-mutant-", dir=IN_MEMORY, ignore_cleanup_errors=True) as folder:
        environment = dict(os.environ, MORVANE_MUTANT=str(number), QT_QPA_PLATFORM="offscreen", GTEST_BRIEF="1",
                           GTEST_FAIL_FAST="1", GTEST_FILTER=only or "*", QT_FONT_DPI="96", TMPDIR=folder, HOME=folder)
        process = subprocess.Popen([*LIMITS, *command], env=environment, cwd=folder, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)
        try:
            return process.wait(limit) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()


def measured_limits(tests):
    """Three times what each takes with everything asleep, under the load of the measurement. One that fails then
    cannot measure anything and is left out."""
    def measured(test):
        start = time.monotonic()
        well = ended_well(test, 0, 600)
        print(f"{test}: {time.monotonic() - start:.0f} s{'' if well else ', FAILS WITHOUT ANY CHANGE'}", flush=True)
        return 3 * (time.monotonic() - start) + 10 if well else None

    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        return dict(zip(tests, pool.map(measured, tests)))


def noticed(place, number, tests, limits):
    was = not all(ended_well(test, number, limits[test]) for test in tests if limits[test])
    print(f"{number} {place.room}: {'yes' if was else 'NO'} {place.file}:{place.line}", flush=True)
    return was


def unnoticeable():
    path = HERE / "unnoticeable.tsv"
    with path.open(encoding="utf-8") as file:
        return {(row["file"], row["old"], row["new"]) for row in csv.DictReader(file, delimiter="\t")}


def main():
    arguments = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    arguments.add_argument("--changes", type=int, default=300)
    arguments.add_argument("--seed", type=int, default=1)
    arguments.add_argument("--room", action="append", default=[])
    arguments.add_argument("--again", type=Path)
    arguments.add_argument("--report", type=Path, default=ROOT / "build" / "mutate" / "report.tsv")
    chosen = arguments.parse_args()

    tests_of = rooms()
    if chosen.again:
        places = read_again(chosen.again, tests_of)
    else:
        places = list(drawn(all_places(tests_of), chosen.changes, chosen.seed))
    excused = unnoticeable()
    places = [place for place in places if place.key() not in excused
              and (not chosen.room or place.room in chosen.room)]
    tests = list(dict.fromkeys(test for place in places for test in tests_of[place.room]))
    copy_sources()
    places = built_places(places, sorted({program for test in tests for program in programs_of(test)}))

    awake = [(number, place) for number, place in enumerate(places, 1) if place is not None]
    print(f"{len(awake)} changes in {len({place.file for _, place in awake})} files", flush=True)
    limits = measured_limits(tests)
    awake = [(number, place) for number, place in awake if any(limits[test] for test in tests_of[place.room])]
    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        found = list(pool.map(lambda one: noticed(one[1], one[0], tests_of[one[1].room], limits), awake))
    report(awake, found, chosen.report)


def built_places(places, targets):
    """Builds, and puts None for the changes that do not compile until the rest does."""
    while True:
        write_changes(places)
        built, output = build(targets)
        if built:
            return places
        remaining = take_out_broken(places, output)
        if remaining == places:
            sys.exit(output[-4000:])
        for before, after in zip(places, remaining):
            if before is not None and after is None:
                shutil.copy2(ROOT / before.file, COPY / before.file)
        places = remaining


def report(awake, found, path):
    path.parent.mkdir(parents=True, exist_ok=True)
    with path.open("w", encoding="utf-8", newline="") as file:
        writer = csv.writer(file, delimiter="\t", lineterminator="\n", quoting=csv.QUOTE_MINIMAL)
        writer.writerow(["noticed", "room", "number", "line", "file", "old", "new"])
        for (number, place), was in zip(awake, found):
            writer.writerow(["yes" if was else "no", place.room, number, place.line, *place.key()])
    for room in sorted({place.room for _, place in awake}):
        of_room = [was for (_, place), was in zip(awake, found) if place.room == room]
        print(f"{room:20} {sum(of_room):4} of {len(of_room):4}  {100 * sum(of_room) / len(of_room):5.1f} %")
    print(f"{'all':20} {sum(found):4} of {len(found):4}  {100 * sum(found) / max(1, len(found)):5.1f} %")
    print(f"Unnoticed ones stand in {path}")


if __name__ == "__main__":
    main()
