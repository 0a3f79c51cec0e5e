#!/usr/bin/python3
"""Writes tests/data/apparent_positions.tsv: apparent geocentric places from ephemerides and theories of others,
the yardstick for the modern positions of this program.

    apt-get install casacore-data-jpl-de405 python3-erfa python3-numpy nodejs npm
    npm install --no-package-lock
    ./apparent_positions.py [--output FILE]

The places come from JPL's DE405 where Debian's package holds it, else from VSOP87 and ELP/MPP02 in full; the
reduction to apparent places is that of the ERFA library (IAU 2006 precession, IAU 2000A nutation).
"""

import argparse
import json
import subprocess
from pathlib import Path

import erfa
import numpy as np

HERE = Path(__file__).resolve().parent
OUTPUT = HERE.parent.parent / "tests" / "data" / "apparent_positions.tsv"

FIRST_DAY = 2378497.0  # 1800 January 1, 12h
LAST_DAY = 2524593.0  # 2199 December 31
STEP = 181.5  # days; takes every body through all its phases, at noon and at midnight in turn
PLUTO_SERIES = (2409542.5, 2488069.5)  # 1885 to 2099

BODIES = ["sun", "moon", "mercury", "venus", "mars", "jupiter", "saturn", "uranus", "neptune", "pluto"]
MASSES = {"mercury": 6023600.0, "venus": 408523.71, "earth": 328900.56, "mars": 3098708.0, "jupiter": 1047.3486,
          "saturn": 3497.898, "uranus": 22902.98, "neptune": 19412.24}

UNIT = 149597870.691  # kilometres
LIGHT = 173.14463268466926  # astronomical units a day
ARC_SECOND = np.pi / 180 / 3600


class De405:
    """The ephemeris in the table file of the package: records of 1018 Chebyshev coefficients (kilometres),
    each behind 12 bytes of its own; JPL's order of bodies."""

    TABLE = Path("/usr/share/casacore/data/ephemerides/DE405/table.f0i")
    FIRST, DAYS, RECORD, COEFFICIENTS = 2436912.5, 32.0, 8160, 1018
    MOON_SHARE = 1 / (1 + 81.30056)
    # first coefficient, coefficients of an axis, pieces of a record
    PLACE = {"mercury": (0, 14, 4), "venus": (168, 10, 2), "earth and moon": (228, 13, 2), "mars": (306, 11, 1),
             "jupiter": (339, 8, 1), "saturn": (363, 7, 1), "uranus": (384, 6, 1), "neptune": (402, 6, 1),
             "pluto": (420, 6, 1), "moon": (438, 13, 8), "sun": (750, 11, 2)}

    def __init__(self):
        data = self.TABLE.read_bytes()
        count = (len(data) - 16) // self.RECORD
        self.records = np.array([np.frombuffer(data, "<f8", self.COEFFICIENTS, 28 + self.RECORD * i)
                                 for i in range(count)])
        self.last = self.FIRST + self.DAYS * count

    def reaches(self, day):
        return self.FIRST + 1 <= day <= self.last - 1

    def read(self, name, day):
        first, count, pieces = self.PLACE[name]
        index, rest = divmod((day - self.FIRST) / self.DAYS, 1)
        piece, rest = divmod(rest * pieces, 1)
        start = first + int(piece) * 3 * count
        rows = self.records[int(index)][start:start + 3 * count].reshape(3, count)
        return np.polynomial.chebyshev.chebval(2 * rest - 1, rows.T) / UNIT

    def place(self, body, day):
        """Barycentric, axes of the ICRS, astronomical units."""
        if body in ("earth", "moon"):
            earth = self.read("earth and moon", day) - self.MOON_SHARE * self.read("moon", day)
            return earth if body == "earth" else earth + self.read("moon", day)
        return self.read(body, day)


class FullSeries:
    """VSOP87B, ELP/MPP02 and, for Pluto, the series of Meeus, Astronomical Algorithms."""

    # From the inertial ecliptic of J2000.0 to the ICRS (Chapront and others 2002).
    AXES = erfa.rz(0.05542 * ARC_SECOND, erfa.rx(-84381.411 * ARC_SECOND, np.eye(3)))
    POLE_P = [0, 0.10180391e-4, 0.47020439e-6, -0.5417367e-9, -0.2507948e-11, 0.463486e-14]
    POLE_Q = [0, -0.113469002e-3, 0.12372674e-6, 0.12654170e-8, -0.1371808e-11, -0.320334e-14]

    def __init__(self):
        script = ("import data from 'astronomia/data'; const all = {moon: data.elpMppDeFull};"
                  "for (const name of " + json.dumps(list(MASSES)) + ") all[name] = data['vsop87B' + name];"
                  "console.log(JSON.stringify(all))")
        text = subprocess.run(["node", "--input-type=module", "-e", script], cwd=HERE, check=True,
                              capture_output=True, text=True).stdout
        self.series = json.loads(text)
        for body in self.series.values():
            for quantity in "LBR":
                body[quantity] = [(int(power), np.array(rows)) for power, rows in body[quantity].items() if rows]
        script = ("import {pluto} from 'astronomia'; import {readFileSync} from 'node:fs';"
                  "const days = JSON.parse(readFileSync(0)); console.log(JSON.stringify(days.map((day) => {"
                  "const p = pluto.heliocentric(day); return [p.lon, p.lat, p.range]})))")
        self.pluto_script = script

    def heliocentric_pluto(self, days):
        text = subprocess.run(["node", "--input-type=module", "-e", self.pluto_script], cwd=HERE, check=True,
                              input=json.dumps(list(days)), capture_output=True, text=True).stdout
        return [self.AXES @ erfa.s2p(*row) for row in json.loads(text)]

    def heliocentric(self, body, day):
        t = (day - 2451545.0) / 365250
        longitude, latitude, radius = (
            sum(t**power * np.sum(rows[:, 0] * np.cos(rows[:, 1] + rows[:, 2] * t)) for power, rows in
                self.series[body][quantity]) for quantity in "LBR")
        return self.AXES @ erfa.s2p(longitude, latitude, radius)

    def moon(self, day):
        t = (day - 2451545.0) / 36525
        polynomial = np.polynomial.polynomial.polyval
        longitude, latitude, radius = (
            sum(t**power * np.sum(rows[:, 0] * np.sin(polynomial(t, rows[:, 1:].T))) for power, rows in
                self.series["moon"][quantity]) for quantity in "LBR")
        longitude = longitude * ARC_SECOND + polynomial(t, self.series["moon"]["W1"])
        x = erfa.s2p(longitude, latitude * ARC_SECOND, radius / UNIT)
        p, q = polynomial(t, self.POLE_P), polynomial(t, self.POLE_Q)
        # The pole of date has the direction (2 p s, -2 q s, 1 - 2 p p - 2 q q), s = sqrt(1 - p p - q q).
        s = np.sqrt(1 - p * p - q * q)
        pole = np.array([2 * p * s, -2 * q * s, 1 - 2 * p * p - 2 * q * q])
        axis_x = np.array([1 - 2 * p * p, 2 * p * q, -2 * p * s])
        axes = np.array([axis_x, np.cross(pole, axis_x), pole])
        return self.AXES @ (axes.T @ x)

    def place(self, body, day):
        total = 1 + sum(1 / mass for mass in MASSES.values())
        sun = -sum(self.heliocentric(name, day) / mass for name, mass in MASSES.items()) / total
        if body == "sun":
            return sun
        if body == "moon":
            return sun + self.heliocentric("earth", day) + self.moon(day)
        if body == "pluto":
            return sun + self.heliocentric_pluto([day])[0]
        return sun + self.heliocentric(body, day)


def apparent(ephemeris, body, day, earth, velocity, sun, axes):
    """Longitude and latitude in degrees, ecliptic and true equinox of date."""
    seen = ephemeris.place(body, day) - earth
    for _ in range(3):
        emitted = day - np.linalg.norm(seen) / LIGHT
        seen = ephemeris.place(body, emitted) - earth
    direction = seen / np.linalg.norm(seen)
    if body not in ("sun", "moon"):
        from_sun = seen + earth - sun
        sun_earth = earth - sun
        distance = np.linalg.norm(sun_earth)
        direction = erfa.ld(1.0, direction, from_sun / np.linalg.norm(from_sun), sun_earth / distance, distance,
                            1e-6)
        direction /= np.linalg.norm(direction)
    speed = velocity / LIGHT
    direction = erfa.ab(direction, speed, np.linalg.norm(earth - sun), np.sqrt(1 - speed @ speed))
    longitude, latitude = erfa.c2s(axes @ direction)
    return np.degrees(longitude) % 360, np.degrees(latitude)


def row(source, ephemeris, day):
    earth = ephemeris.place("earth", day)
    velocity = (ephemeris.place("earth", day + 0.01) - ephemeris.place("earth", day - 0.01)) / 0.02
    sun = ephemeris.place("sun", day)
    in_longitude, in_obliquity = erfa.nut06a(day, 0.0)
    axes = erfa.rx(erfa.obl06(day, 0.0) + in_obliquity, erfa.pnm06a(day, 0.0))
    cells = [f"{day:.1f}", source]
    for body in BODIES:
        known = body != "pluto" or source == "DE405" or PLUTO_SERIES[0] <= day <= PLUTO_SERIES[1]
        place = apparent(ephemeris, body, day, earth, velocity, sun, axes) if known else None
        cells += [f"{place[0]:.6f}", f"{place[1]:.6f}"] if place else ["-", "-"]
    return "\t".join(cells)


HEADER = """\
# Apparent geocentric longitudes and latitudes, degrees, ecliptic and true equinox of date.
# Made by tools/reference_positions/apparent_positions.py.
# Time: the Julian day is terrestrial time.
# Sources: DE405 (JPL, public domain; Debian's casacore-data-jpl-de405); else VSOP87B and ELP/MPP02 in full and, for
#   Pluto, the series of Meeus, Astronomical Algorithms, 1885 to 2099 (astronomia 4.2.0, MIT licence).
# Reduction: light time, deflection by the Sun, aberration, IAU 2006 precession, IAU 2000A nutation (ERFA 2.0.0).
"""


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", 1)[0])
    parser.add_argument("--output", type=Path, default=OUTPUT)
    output = parser.parse_args().output
    de405, series = De405(), FullSeries()
    lines = ["\t".join(["julian_day", "source"] + [f"{body}_{angle}" for body in BODIES
                                                    for angle in ("longitude", "latitude")])]
    for day in np.arange(FIRST_DAY, LAST_DAY, STEP):
        if de405.reaches(day):
            lines.append(row("DE405", de405, day))
        else:
            lines.append(row("series", series, day))
    output.write_text(HEADER + "\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
