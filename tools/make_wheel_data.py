#!/usr/bin/env python3
"""Makes HCDATA.DAT and RADIUS.DAT, the wheel's tables, from the geometry of the wheel.

    make_wheel_data.py [DIRECTORY]      writes both files there (default: data)

All lengths are wheel units: the wheel's centre is (0, 0), x to the right, y upwards, the outer circle's
radius 217, the ring of signs at 236. A position is the upper left corner of a character's cell.

RADIUS.DAT: 361 lines, the radius at which a planet glyph's corner stands for every whole degree. A glyph is
about GLYPH wide and high and its middle belongs RING from the centre, all the way round; on the left the
corner lies further out than the middle, on the right further in.

HCDATA.DAT: twelve lines, the tenth house first, each with the five corners of a cusp's label (tens and units
of the degrees, sign, tens and units of the minutes), and a last line with the unused 0. Ascendant and
Descendant: three rows, degrees above sign above minutes, between the circle and the signs, so that the signs
of a European wheel can stand at every height. All others: one row outside the circle, its inner corner just
clear of it.
"""
import math
import sys
from pathlib import Path

OUTER = 217
RING = 203.5       # middle of a planet glyph
GLYPH = 14         # width and height of its cell

# Advance and height of the parts at the delivered sizes: degrees, sign, minutes.
DEGREE, SIGN, MINUTE = 9, 13, 7
GAP = 2            # beside the sign
TOP = {"degree": 2.8, "sign": 1.8, "minute": 2.2}   # cell above the ink
INK = {"degree": 10.2, "sign": 11.0, "minute": 8.0}
CLEAR = 4          # between circle and label


def radii():
    for degree in range(361):
        a = math.radians(degree)
        yield round(RING - GLYPH / 2 * math.cos(a) + GLYPH / 2 * math.sin(a))


ROW = 2 * DEGREE + GAP + SIGN + GAP + 2 * MINUTE
KINDS = ["degree", "degree", "sign", "minute", "minute"]


def row(left, middle):
    """Corners of a row whose ink begins at `left` and is centred on the height `middle`."""
    starts = [0, DEGREE, 2 * DEGREE + GAP, 2 * DEGREE + 2 * GAP + SIGN, 2 * DEGREE + 2 * GAP + SIGN + MINUTE]
    return [(left + x, middle + INK[k] / 2 + TOP[k]) for x, k in zip(starts, KINDS)]


def stack(centre):
    """Corners of three rows about the height 0, centred on x = `centre`."""
    space = 3
    sign_top = INK["sign"] / 2
    degree_top = sign_top + space + INK["degree"]
    minute_top = -sign_top - space
    return [
        (centre - DEGREE, degree_top + TOP["degree"]), (centre, degree_top + TOP["degree"]),
        (centre - SIGN / 2, sign_top + TOP["sign"]),
        (centre - MINUTE, minute_top + TOP["minute"]), (centre, minute_top + TOP["minute"]),
    ]


def label(house):
    angle = (150 + 30 * house) % 360
    if angle in (0, 180):
        middle = OUTER + 12
        return stack(middle if angle == 0 else -middle)
    a = math.radians(angle)
    half = INK["degree"] / 2
    # Along the ray from the circle outwards until the row's nearest corner is clear of the circle.
    radius = OUTER
    while True:
        x, y = radius * math.cos(a), radius * math.sin(a)
        left = x if math.cos(a) > 0.1 else x - ROW if math.cos(a) < -0.1 else x - ROW / 2
        nearest = math.hypot(max(left, -left - ROW, 0), max(abs(y) - half, 0))
        if nearest >= OUTER + CLEAR:
            return row(left, y)
        radius += 0.25


def main():
    directory = Path(sys.argv[1] if len(sys.argv) > 1 else "data")
    houses = [10, 11, 12, 1, 2, 3, 4, 5, 6, 7, 8, 9]
    lines = [",".join(f"{round(x)},{round(y)}" for x, y in label(house)) for house in houses] + ["0"]
    write(directory / "HCDATA.DAT", lines)
    write(directory / "RADIUS.DAT", [str(radius) for radius in radii()])


def write(path, lines):
    path.write_bytes("".join(line + "\r\n" for line in lines).encode())


if __name__ == "__main__":
    main()
