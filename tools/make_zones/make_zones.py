#!/usr/bin/env python3
"""Makes data/ZONES.DAT, the history of civil time, from the tz project's zone data.

    make_zones.py [--check]

Reads tzdata_complete.zi (the complete records of the tz project in the compact form that zic takes),
merged.tsv (zones that the project itself holds to be one with another since 1970; what the complete records say of
them later is unchecked), reference_cities.tsv (the places whose clocks the zones record) and disputed.tsv (cases
in which clocks differed or are in dispute). With --check it writes nothing and exits 1 where the file is not what it would be.
"""

import pathlib
import sys

HERE = pathlib.Path(__file__).resolve().parent
TARGET = HERE.parent.parent / "data" / "ZONES.DAT"
HEAD = [
    "# The history of civil time. The rules come from the time zone data of",
    "# the tz project (Internet Assigned Numbers Authority), which are in the",
    "# public domain; reference cities: GeoNames, CC BY 4.0; cases: our own.",
    "# V release, R rule, Z zone, L other name, M zone that is one with another",
    "# since 1970, C reference city, D case",
]
END = "# end"


def rows_of(name):
    lines = (HERE / name).read_text(encoding="utf-8").splitlines()
    return [line.split("\t") for line in lines[1:]]


def case_lines():
    """One line for each country of a case."""
    for start, end, months, countries, *rest in rows_of("disputed.tsv"):
        for country in countries.split():
            yield "\t".join(["D", start, end, months, country, *rest])


def lines_of_file():
    rules = (HERE / "tzdata_complete.zi").read_text(encoding="ascii").splitlines()
    release = rules[0].split()[2]
    yield from HEAD
    yield f"V {release}"
    yield from (line for line in rules if not line.startswith("#"))
    yield from (f"M {zone} {other}" for zone, other in rows_of("merged.tsv"))
    yield from (f"C {zone} {north} {east} {city}" for zone, north, east, city in rows_of("reference_cities.tsv"))
    yield from case_lines()
    yield END


def main():
    content = "".join(line + "\r\n" for line in lines_of_file()).encode("utf-8")
    if sys.argv[1:] != ["--check"]:
        TARGET.write_bytes(content)
    elif TARGET.read_bytes() != content:
        sys.exit("data/ZONES.DAT is not what make_zones.py makes")


if __name__ == "__main__":
    main()
