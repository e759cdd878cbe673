#!/usr/bin/env python3
"""Runs clang-tidy over source files, some at a time: tidy.py BUILD FILE...

Most of the time that a file costs goes into Qt's headers. So files that are compiled by the same command are included
by one unit. Files that do not go together (two helpers of one name) are halved until they do; a file that is alone and
still does not compile is a finding. BUILD holds a compile_commands.json of a build without precompiled headers.
Ends with status 1 when something was found.
"""

import collections
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

FILES_IN_UNIT = 8
FINDING = re.compile(r"^(/.+:\d+:\d+): (?:warning|error): .*\[([\w.,-]+)\]$")


def command_of(entry):
    """The compiler's arguments without the file's own name and output."""
    arguments = shlex.split(entry["command"])
    output = arguments.index("-o")
    del arguments[output:output + 2]
    return tuple(a for a in arguments if a not in ("-c", entry["file"]))


def units_of(build, files):
    """Lists of files with one command, in the order of their names."""
    wanted = {os.path.realpath(file) for file in files}
    groups = collections.defaultdict(list)
    for entry in json.loads((build / "compile_commands.json").read_text()):
        if os.path.realpath(entry["file"]) in wanted:
            wanted.remove(os.path.realpath(entry["file"]))
            groups[command_of(entry), entry["directory"]].append(entry["file"])
    for file in sorted(wanted):
        print(f"{file} is not compiled here", file=sys.stderr)
    for (command, folder), members in sorted(groups.items(), key=lambda group: group[1][0]):
        members.sort()
        for start in range(0, len(members), FILES_IN_UNIT):
            yield command, folder, members[start:start + FILES_IN_UNIT]


def check(build, command, folder, files):
    """The findings of these files, as lines of clang-tidy's output."""
    unit = build / "units" / (hashlib.sha1("".join(files).encode()).hexdigest() + ".cpp")
    unit.write_text("".join(f'#include "{file}"\n' for file in files))
    arguments = [*command[1:], "-w", str(unit)]
    if len(files) > 1 and subprocess.run(["clang++", "-fsyntax-only", *arguments], cwd=folder,
                                         stderr=subprocess.DEVNULL).returncode:
        middle = len(files) // 2
        return check(build, command, folder, files[:middle]) + check(build, command, folder, files[middle:])
    run = subprocess.run(["clang-tidy", "--quiet", str(unit), "--", *command[1:]], cwd=folder, text=True,
                         stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    lines = run.stdout.splitlines()
    silent = run.returncode and not any(FINDING.match(line) for line in lines)
    if silent or "rror parsing" in run.stderr:  # the tool itself failed, or goes on without its configuration
        return [f"{unit}:1:1: error: {run.stderr.strip()[-200:]!r} [clang-tidy]"]
    return lines


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    (build / "units").mkdir(exist_ok=True)
    shown, counts = set(), collections.Counter()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as jobs:
        for lines in jobs.map(lambda unit: check(build, *unit), units_of(build, sys.argv[2:])):
            fresh = False
            for line in lines:
                finding = FINDING.match(line)
                if finding:  # a header is seen from many units
                    fresh = line not in shown
                    shown.add(line)
                    counts[finding[2].split(",")[0]] += fresh
                if fresh:
                    print(line, flush=True)
    for name, count in counts.most_common():
        print(f"{count:6} {name}", file=sys.stderr)
    return 1 if counts else 0


if __name__ == "__main__":
    sys.exit(main())
