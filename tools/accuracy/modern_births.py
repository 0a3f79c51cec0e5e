#!/usr/bin/env python3
"""Writes tests/data/modern_births.tsv: what the modern theory gives for sixty births, to notice any later change.

    modern_births.py TOLVANIS_CHART [--output FILE]     TOLVANIS_CHART is the program as built
"""

import argparse
import json
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
OUTPUT = ROOT / "tests" / "data" / "modern_births.tsv"
MONTHS = "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec".split()
SYSTEMS = "P R K C O EA EM M I".split()


def births():
    """Years from 150 to 2096, denser towards ours; all months, hours, zones and latitudes of both hemispheres."""
    for i in range(60):
        year = 150 + 150 * i if i < 10 else 1610 + round((i - 10) * 9.92)
        latitude = (i * 29) % 133 - 66
        longitude = (i * 67) % 360 - 180
        zone = round(longitude / 15 * 4) / 4
        yield (f"birth {i + 1},{1 + i * 5 % 28} {MONTHS[i * 7 % 12]} {year:04},{1 + i % 12}.{i * 17 % 60:02},"
               f"{'AP'[i % 2]},{zone:g},{longitude:04}.{i * 13 % 60:02},{latitude}.{i * 7 % 60 if abs(latitude) < 66 else 0:02}",
               SYSTEMS[i % len(SYSTEMS)])


def row(program, record, system):
    text = subprocess.run([program, "--birth", record, "--houses", system, "--theory", "modern", "--format", "json",
                           "--app-dir", ROOT / "data"], check=True, capture_output=True, text=True).stdout
    chart = json.loads(text)
    values = [chart["deltaT"], chart["ramc"], chart["obliquity"], chart["trueNode"]["longitude"]]
    values += [point["longitude"] for point in chart["points"]] + chart["houseCusps"]
    return "\t".join([record, system] + [f"{value:.9f}" for value in values])


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", 1)[0])
    parser.add_argument("program")
    parser.add_argument("--output", type=Path, default=OUTPUT)
    arguments = parser.parse_args()
    head = ("# Record, house system, Delta T (seconds), sidereal time, obliquity, true node, fifteen points, twelve cusps"
            " (degrees).\n# Made by tools/accuracy/modern_births.py.\n")
    arguments.output.write_text(head + "".join(row(arguments.program, *birth) + "\n" for birth in births()))


if __name__ == "__main__":
    main()
