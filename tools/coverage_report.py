#!/usr/bin/python3
"""tools/coverage_report.py BUILD: line coverage by room, from what gcov tells about an instrumented build."""

import json
import os
import subprocess
import sys

from sources import PROJECT, room_of

LEAST = 10  # files to name


def compiled(build):
    for place, _, names in os.walk(os.path.join(build, "src")):
        yield from (os.path.join(place, name) for name in names if name.endswith(".gcno"))


def told_by_gcov(notes):
    """A JSON text a line, one for each object file."""
    told = subprocess.run(["gcov", "--json-format", "--stdout", *notes], capture_output=True, text=True, check=False)
    for line in told.stdout.splitlines():
        if line.startswith("{"):
            yield json.loads(line)


def lines_by_file(build):
    """path -> {line: times}; a header is compiled into many objects."""
    found = {}
    notes = sorted(compiled(build))
    for at in range(0, len(notes), 20):
        for unit in told_by_gcov(notes[at:at + 20]):
            for file in unit["files"]:
                path = os.path.relpath(os.path.join(unit["current_working_directory"], file["file"]), PROJECT)
                if path.startswith("src/"):
                    lines = found.setdefault(path, {})
                    for line in file["lines"]:
                        number = line["line_number"]
                        lines[number] = max(lines.get(number, 0), line["count"])
    return found


def share(lines):
    return 100.0 * sum(1 for times in lines if times) / max(1, len(lines))


def main():
    files = lines_by_file(os.path.abspath(sys.argv[1]))
    if not files:
        sys.exit("gcov told nothing; is this a coverage build whose tests have run?")
    rooms = {}
    for path, lines in files.items():
        rooms.setdefault(room_of(path) or "main", []).extend(lines.values())
    for room, times in sorted(rooms.items()):
        print(f"{room:14}{share(times):6.1f} %  of {len(times)} lines")
    print(f"{'all':14}{share([times for room in rooms.values() for times in room]):6.1f} %")
    print("\nReached least:")
    for path, lines in sorted(files.items(), key=lambda entry: share(entry[1].values()))[:LEAST]:
        print(f"{share(lines.values()):6.1f} %  {path}")


if __name__ == "__main__":
    main()
