#!/usr/bin/env python3
"""Makes tests/data/zone_fingerprints.tsv: every zone's periods to the end of 2100, as zic(8) sees them.

    zone_fingerprints.py [--periods ZONE]

Compiles tzdata_complete.zi with zic (package libc-bin) and reads the result without the host's zone data: the
transitions of the compiled file, and behind the last one the rule at its end by Python's zoneinfo. A period is
the text "START OFFSET SAVING ABBREVIATION\\n" (the first START is "-", SAVING 0 or 1); the table has each zone's
last year compared, number of periods and the FNV-1a hash of their texts. With --periods it prints a zone's
periods instead. (Debian 12's zic drops the days of Ramadan that the rules of Palestine list from 2073 on.)
"""

import datetime
import pathlib
import struct
import subprocess
import sys
import tempfile
import zoneinfo

HERE = pathlib.Path(__file__).resolve().parent
TARGET = HERE.parent.parent / "tests" / "data" / "zone_fingerprints.tsv"
LAST_YEAR = 2100
CUT_SHORT = {"Asia/Gaza": 2072, "Asia/Hebron": 2072}
STEP = 3 * 86400


def end_of(year):
    return int(datetime.datetime(year + 1, 1, 1, tzinfo=datetime.timezone.utc).timestamp())


def compiled_transitions(data):
    """(moment, offset, saving, abbreviation) of the 64-bit block of a TZif file; the first moment is None."""
    def header(at):
        return struct.unpack(">6l", data[at + 20:at + 44])

    utc, std, leap, times, types, chars = header(0)
    at = 44 + times * 5 + types * 6 + chars + leap * 8 + std + utc
    utc, std, leap, times, types, chars = header(at)
    at += 44
    moments = struct.unpack(f">{times}q", data[at:at + 8 * times])
    indices = data[at + 8 * times:at + 9 * times]
    at += 9 * times
    infos = [struct.unpack(">lBB", data[at + 6 * i:at + 6 * i + 6]) for i in range(types)]
    names = data[at + 6 * types:at + 6 * types + chars]

    def info(index):
        offset, saving, name = infos[index]
        return offset, saving, names[name:names.index(0, name)].decode()

    return [(None, *info(0))] + [(moment, *info(index)) for moment, index in zip(moments, indices)]


def state_at(zone, moment):
    there = datetime.datetime.fromtimestamp(moment, datetime.timezone.utc).astimezone(zone)
    return int(there.utcoffset().total_seconds()), int(bool(there.dst())), there.tzname()


def later_transitions(zone, start, end):
    """The transitions that the rule at the end of a file makes after `start`."""
    before, state = start, state_at(zone, start)
    for moment in range(start + STEP, end + STEP, STEP):
        next_state = state_at(zone, moment)
        if next_state != state:
            low, high = before, moment
            while high - low > 1:
                middle = (low + high) // 2
                low, high = (middle, high) if state_at(zone, middle) == state else (low, middle)
            yield (high, *next_state)
        before, state = moment, next_state


def periods_of(path, last_year=LAST_YEAR):
    end = end_of(last_year)
    data = path.read_bytes()
    found = compiled_transitions(data)
    with path.open("rb") as file:
        zone = zoneinfo.ZoneInfo.from_file(file)
    if data.rstrip(b"\n").rsplit(b"\n", 1)[-1].count(b",") == 2:
        last = found[-1][0] or 0
        found += later_transitions(zone, max(last, 0) + 1, end)
    periods = []
    for moment, *state in found:
        if (moment is None or moment < end) and (not periods or periods[-1][1] != state):
            periods.append((moment, state))
    return [f"{'-' if moment is None else moment} {offset} {saving} {name}\n"
            for moment, (offset, saving, name) in periods]


def fingerprint(text):
    value = 0xCBF29CE484222325
    for byte in text.encode():
        value = (value ^ byte) * 0x100000001B3 % 2**64
    return value


def main():
    source = HERE / "tzdata_complete.zi"
    zones = sorted(line.split()[1] for line in source.read_text().splitlines() if line.startswith("Z "))
    with tempfile.TemporaryDirectory() as directory:
        subprocess.run(["/usr/sbin/zic", "-b", "slim", "-d", directory, source], check=True)
        if sys.argv[1:2] == ["--periods"]:
            print("".join(periods_of(pathlib.Path(directory) / sys.argv[2])), end="")
            return
        with TARGET.open("w", encoding="ascii") as table:
            for zone in zones:
                last_year = CUT_SHORT.get(zone, LAST_YEAR)
                periods = periods_of(pathlib.Path(directory) / zone, last_year)
                table.write(f"{zone}\t{last_year}\t{len(periods)}\t{fingerprint(''.join(periods)):016x}\n")


if __name__ == "__main__":
    main()
