#!/usr/bin/env python3
"""Checks every line of TZ.DAT, NAMES.FIL and NATAL.ORB.

    check_data.py [DIRECTORY]

Exit status 1 with file and line on any fault.
"""

import calendar
import re

from data_faults import Faults, data_directory, read_lines

MONTHS = dict(zip("Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec".split(), range(1, 13)))

ZONE = re.compile(r"(?P<name>[^,\"-]{1,32}),(?P<short>[A-Z]{2,4}),(?P<hours>-?\d+(\.\d+)?)")

# Zones every user looks for, and the ones with odd fractions.
KNOWN_ZONES = {
    "Eastern Standard Time": 5, "Eastern Daylight Time": 4, "Eastern War Time": 4,
    "Central Standard Time": 6, "Mountain Standard Time": 7, "Pacific Standard Time": 8,
    "Newfoundland Standard Time": 3.5, "Newfoundland Daylight Time": 2.5,
    "Marquesas Time": 9.5, "Greenwich Mean Time": 0, "British Summer Time": -1,
    "British Double Summer Time": -2, "Central European Time": -1,
    "Central European Summer Time": -2, "Eastern European Time": -2,
    "Moscow Standard Time": -3, "Iran Standard Time": -3.5, "Afghanistan Time": -4.5,
    "India Standard Time": -5.5, "Nepal Time": -5.75, "Myanmar Time": -6.5,
    "Japan Standard Time": -9, "Australian Central Western Time": -8.75,
    "Australian Central Standard Time": -9.5, "Lord Howe Standard Time": -10.5,
    "Chatham Standard Time": -12.75, "New Zealand Daylight Time": -13,
}

PERSON = re.compile(
    r"(?P<name>[^,\"]+),(?P<day>\d\d) (?P<month>[A-Z][a-z]{2}) (?P<year>\d{4}),"
    r"(?P<hour>[1-9]|1[0-2])\.(?P<minute>[0-5]\d),[AP],(?P<zone>-?\d{1,2}(\.\d{1,4})?),"
    r"(?P<east>-?)(?P<long>[01]\d\d)\.(?P<longmin>[0-5]\d),"
    r"-?(?P<lat>\d\d)\.(?P<latmin>[0-5]\d)"
)

ORBS = (
    "conjunction sextile square trine opposition parallel semi-sextile semi-square "
    "sesquisquare quincunx semi-quintile nonagen quintile trecile bi-quintile septile"
).split() + ["not used"]
ORB = re.compile(r"(?P<orb>\d{1,2}\.\d) {3,4}(?P<label>\S.*)")


def check_zones(path, faults):
    """TZ.DAT: name,abbreviation,hours west; west to east, names once."""
    zones = {}
    previous = 24.0
    for number, line in read_lines(path, faults):
        match = ZONE.fullmatch(line)
        if not match:
            faults.add(path, number, f"not a zone: {line}")
            continue
        name, hours = match["name"], float(match["hours"])
        if name != name.strip():
            faults.add(path, number, "blanks around the name")
        if not -13 <= hours <= 12:
            faults.add(path, number, f"{match['hours']} is out of range")
        if hours > previous:
            faults.add(path, number, f"{name} is out of order")
        if name in zones:
            faults.add(path, number, f"{name} stands twice")
        previous = hours
        zones[name] = hours
    for name, hours in KNOWN_ZONES.items():
        if zones.get(name) != hours:
            faults.add(path, 0, f"{name} is {zones.get(name)}, not {hours}")


def days_in_month(year, month):
    """Julian calendar to 1582, Gregorian after."""
    if month == 2 and year <= 1582:
        return 29 if year % 4 == 0 else 28
    return calendar.monthrange(year, month)[1]


def person_faults(match):
    year, month = int(match["year"]), MONTHS.get(match["month"])
    if not 100 <= year <= 2099:
        yield "year out of range"
    elif not month or not 1 <= int(match["day"]) <= days_in_month(year, month):
        yield "no such date"
    elif (year, month) == (1582, 10) and 5 <= int(match["day"]) <= 14:
        yield "a date that never was"
    longitude = int(match["long"]) + int(match["longmin"]) / 60
    west = -longitude if match["east"] else longitude
    zone = float(match["zone"])
    if longitude > 180 or int(match["lat"]) + int(match["latmin"]) / 60 > 66:
        yield "position out of range"
    if not -13 <= zone <= 12 or (west >= 0 and zone < -2):
        yield "zone out of range"
    local = west / 15
    is_local_mean_time = zone * 4 % 1 != 0
    if is_local_mean_time and abs(zone - local) > 0.00006:
        yield f"local mean time is {local:.4f}"
    if abs(zone - local) > 1.5:
        yield f"zone {zone:g} does not suit the longitude"


def check_names(path, faults):
    """NAMES.FIL: one person a line, each name once."""
    seen = set()
    for number, line in read_lines(path, faults):
        match = PERSON.fullmatch(line)
        if not match:
            faults.add(path, number, f"not a record: {line}")
            continue
        if match["name"] != match["name"].strip() or match["name"].lower() in seen:
            faults.add(path, number, "the name has blanks around it or stands twice")
        seen.add(match["name"].lower())
        for fault in person_faults(match):
            faults.add(path, number, fault)


def check_orbs(path, faults):
    """NATAL.ORB: the orb in the first 7 characters, then its aspect."""
    lines = list(read_lines(path, faults))
    if len(lines) != len(ORBS):
        faults.add(path, len(lines), f"{len(lines)} lines, not {len(ORBS)}")
    for (number, line), label in zip(lines, ORBS):
        match = ORB.fullmatch(line)
        if not match or line[7:] != label:
            faults.add(path, number, f"not an orb of {label}: {line}")
        elif float(match["orb"]) > 12:
            faults.add(path, number, "an orb above 12 degrees")


def main():
    faults = Faults()
    directory = data_directory()
    check_zones(directory / "TZ.DAT", faults)
    check_names(directory / "NAMES.FIL", faults)
    check_orbs(directory / "NATAL.ORB", faults)
    faults.finish()


if __name__ == "__main__":
    main()
