#!/usr/bin/env python3
"""Makes the folder data/ from the public sources. Run by hand when a source is renewed; no build runs it.

    tools/reduce_data.py SOURCE_FOLDER

SOURCE_FOLDER holds what data/README.md names, as downloaded:
    airports/airports.csv, airports/countries.csv, airports/regions.csv
    stations/*.txt, metar/*, plans/*
"""

import csv
import re
import shutil
import sys
import textwrap
from pathlib import Path

DATA = Path(__file__).resolve().parent.parent / "data"
HEADING = ["code", "name", "city", "region", "country", "latitude", "longitude", "elevation_m"]
SIZES = ["large_airport", "medium_airport", "small_airport", "seaplane_base", "heliport", "balloonport", "closed"]
METRES_A_FOOT = 0.3048
LONGEST_REGION = 50  # characters, as many as the store takes


def rows_of(path):
    with path.open(encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file))


def four_letter_code(airport):
    """The official code where there is one, else an identifier of the same form; never one with digits."""
    for column in ("icao_code", "ident"):
        if re.fullmatch("[A-Z]{4}", airport[column]):
            return airport[column]
    return None


def preference(airport):
    """Sorts the best of the airports that claim one code to the front."""
    has_official_code = airport["icao_code"] != ""
    return (not has_official_code, SIZES.index(airport["type"]), int(airport["id"]))


def degrees(text):
    return f"{float(text):.6f}".rstrip("0").rstrip(".")


def metres(feet):
    return str(round(float(feet) * METRES_A_FOOT)) if feet else ""


def one_line(text):
    return " ".join(text.split())


def region_name(airport, regions):
    """Empty where the source only says that the region is not known; long ones lose their last words."""
    name = regions[airport["iso_region"]]
    if name == "(unassigned)":
        return ""
    if len(name) > LONGEST_REGION:
        name = name.partition(" (")[0]
    return textwrap.shorten(name, LONGEST_REGION, placeholder="")


def airport_lines(source):
    countries = {row["code"]: row["name"] for row in rows_of(source / "countries.csv")}
    regions = {row["code"]: row["name"] for row in rows_of(source / "regions.csv")}
    chosen = {}
    for airport in sorted(rows_of(source / "airports.csv"), key=preference):
        code = four_letter_code(airport)
        if code:
            chosen.setdefault(code, airport)
    for code, airport in sorted(chosen.items()):
        fields = [
            code,
            airport["name"],
            airport["municipality"],
            region_name(airport, regions),
            countries[airport["iso_country"]],
            degrees(airport["latitude_deg"]),
            degrees(airport["longitude_deg"]),
            metres(airport["elevation_ft"]),
        ]
        yield "\t".join(one_line(field) for field in fields)


def write_airports(source):
    folder = DATA / "airports"
    folder.mkdir(parents=True, exist_ok=True)
    text = "\n".join(["\t".join(HEADING), *airport_lines(source)]) + "\n"
    (folder / "airports.tsv").write_text(text, encoding="utf-8", newline="\n")


def copy_unchanged(source, folder):
    """Bytes above 127, odd line ends and trailing blanks are part of what the readers are tested on."""
    (DATA / folder).mkdir(parents=True, exist_ok=True)
    for file in sorted((source / folder).iterdir()):
        shutil.copyfile(file, DATA / folder / file.name)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    source = Path(sys.argv[1])
    write_airports(source / "airports")
    for folder in ("metar", "stations", "plans"):
        copy_unchanged(source, folder)


if __name__ == "__main__":
    main()
