#!/usr/bin/python3
"""Builds and checks the symbol font HORARY (fonts/HORARY*.ttf).

The letters come from DejaVu Sans and DejaVu Sans Bold, reduced to the scripts
a title block needs. The astrological symbols are drawn here, as strokes of one
weight, because a set of symbols is only even when one pen drew all of it.

    make_font.py [--dejavu DIR] [--output DIR]   builds both fonts
    make_font.py --check [--output DIR]          checks the built fonts

Building needs python3-fonttools, python3-numpy and fonts-dejavu-core;
checking needs the first two. The same inputs give the same bytes.
Exit status: 0 done or all is well, 1 a fault was found (each is named on
standard error), 2 wrong usage.
"""

import argparse
import math
import sys
from pathlib import Path
from typing import NamedTuple

import numpy as np
from fontTools import subset
from fontTools.misc.timeTools import timestampFromString
from fontTools.pens.areaPen import AreaPen
from fontTools.pens.recordingPen import DecomposingRecordingPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import TTFont, newTable
from fontTools.ttLib.tables._c_m_a_p import CmapSubtable

FONT_DIRECTORY = Path(__file__).resolve().parent.parent / "fonts"
DEJAVU_DIRECTORY = Path("/usr/share/fonts/truetype/dejavu")

FAMILY = "HORARY"
VERSION = "1.000"
TIMESTAMP = timestampFromString("Sat Jan  1 00:00:00 2000")
PRIVATE_USE = 0xF000  # a symbol's character is U+F000 + its code

# Font units, 2048 to the em. Every symbol has the same advance, that of the
# Part of Fortune by which label steps are measured, so columns of symbols
# line up; within it the symbol stands in the middle. The tallest symbols
# reach a little beyond a capital (0 to 1493) at both ends.
ADVANCE = 1780
MIDDLE = 746
HEIGHT = 1680
CAP_HEIGHT = 1493
X_HEIGHT = 1120


class Face(NamedTuple):
    style: str
    source: str
    stroke: int  # pen width of the symbols in font units
    weight: int  # usWeightClass
    file: str


FACES = (
    Face("Regular", "DejaVuSans.ttf", 172, 400, "HORARY.ttf"),
    Face("Bold", "DejaVuSans-Bold.ttf", 226, 700, "HORARY-Bold.ttf"),
)

TEXT_RANGES = (
    (0x0020, 0x007E), (0x00A0, 0x024F),  # Latin, its supplement, Ext. A, B
    (0x02B0, 0x02FF), (0x0300, 0x036F),  # modifiers, combining marks
    (0x0370, 0x03FF), (0x0400, 0x052F),  # Greek, Cyrillic
    (0x1E00, 0x1EFF), (0x1F00, 0x1FFF),  # Latin Ext. Additional, Greek Ext.
    (0x2000, 0x206F), (0x2070, 0x209F),  # punctuation, super- and subscripts
    (0x20A0, 0x20BF), (0x2116, 0x2116), (0x2122, 0x2122),
    (0x2190, 0x2193), (0x2212, 0x2212), (0x2260, 0x2265),
    (0x25CC, 0x25CC), (0xFFFD, 0xFFFD),
)

# A title block without any of these would be a broken font.
REQUIRED_TEXT = (
    "".join(map(chr, range(0x20, 0x7F))) + "".join(map(chr, range(0xA0, 0x180)))
    + "ȘșȚțẠạẤấẼẽỲỳ–—‘’‚“”„†•…‰′″€№™−°\u0300\u0301\u0302\u0303\u0308\u030C"
    + "ΑΒΓΔΩαβγδωΆάΐώАБВГЯабвгяЁёЄєІіЇїЎўЂђЏџ"
)


class Symbol(NamedTuple):
    """One symbol: its code, glyph name, Unicode characters and drawing.

    A drawing is a pen path in hundredths of the half height, the origin in
    the middle, y upwards; the pen has round ends. The stroke is about 23 of
    these units wide (bold: 31), so lines closer than 45 run together when
    small. Commands:
        M x,y            starts a line       L x,y ...   straight on
        C x,y x,y x,y    Bezier curve        Z           closes the line
        A x,y r a b      starts with an arc about x,y from a to b degrees
        E x,y rx,ry a b  the same on an ellipse
        a, e             the same, continuing the line
        O x,y r          circle              D x,y r     filled dot; r is the
                                                         radius / pen width
    A path preceded by "|" is drawn a second time mirrored left to right (in
    one line, if it ends on the axis), one preceded by "*" turned half round.
    """

    code: int
    name: str
    unicodes: tuple
    paths: tuple


SYMBOLS = (
    # Aspects: 159 + aspect code.
    Symbol(161, "aspectConjunction", (0x260C,), ("O -28,-28 52", "M 9,9 L 80,80")),
    Symbol(162, "aspectSextile", (0x26B9,),
           ("M -88,0 L 88,0", "M -46,-80 L 46,80", "M -46,80 L 46,-80")),
    Symbol(163, "aspectSquare", (0x25A1,), ("M -74,-74 L 74,-74 74,74 -74,74 Z",)),
    Symbol(164, "aspectTrine", (0x25B3,), ("M -90,-72 L 90,-72 0,84 Z",)),
    Symbol(165, "aspectOpposition", (0x260D,), ("*O -50,-50 38", "M -23,-23 L 23,23")),
    Symbol(166, "aspectParallel", (0x2225,), ("M -52,-84 L -4,84", "M 4,-84 L 52,84")),
    Symbol(167, "aspectSemiSextile", (0x26BA,), ("M -88,-46 L 88,-46", "|M 56,51 L 0,-46")),
    Symbol(168, "aspectSemiSquare", (0x2220,), ("M 84,-70 L -76,-70 64,70",)),
    Symbol(169, "aspectSesquiquadrate", (0x26BC,),
           ("M 84,-28 L -84,-28 -84,84 28,84 28,-84",)),
    Symbol(170, "aspectQuincunx", (0x26BB,), ("M -88,46 L 88,46", "|M 56,-51 L 0,46")),
    Symbol(171, "aspectSemiQuintile", (), ("M -80,-78 L 80,-78", "M 0,-78 L 0,84")),
    Symbol(172, "aspectNonagen", (), ("M -58,-88 L -58,88 58,-88 58,88",)),
    Symbol(173, "aspectQuintile", (), ("E 0,6 74,82 0 360", "M 22,-40 L 70,-92")),
    Symbol(174, "aspectTrecile", (),
           ("M -92,88 L 26,88", "M -33,88 L -33,-88",
            "M 32,2 L 84,2 e 52,-58 34,30 90 -140")),
    Symbol(175, "aspectBiquintile", (),
           ("M -92,88 L -92,-88 -66,-88 e -66,-48 30,40 -90 90 L -92,-8",
            "E 46,14 46,74 0 360", "M 56,-34 L 90,-90")),
    Symbol(176, "aspectSeptile", (),
           ("M 6,60 C -8,98 -84,102 -84,46 C -84,-10 8,12 8,-44"
            " C 8,-102 -78,-100 -92,-58", "M 44,2 L 94,2 62,-88")),
    # Signs: 191 + sign number.
    Symbol(192, "signAries", (0x2648,),
           ("|M 0,-100 L 0,-40 C 0,30 10,100 52,100 C 78,100 94,76 90,50 C 88,36 80,26 68,22",)),
    Symbol(193, "signTaurus", (0x2649,),
           ("O 0,-44 56", "|M 86,98 C 44,98 56,12 0,12")),
    Symbol(194, "signGemini", (0x264A,),
           ("M -84,98 C -48,76 48,76 84,98", "M -84,-98 C -48,-76 48,-76 84,-98",
            "|M 36,84 L 36,-84")),
    Symbol(195, "signCancer", (0x264B,),
           ("*O -58,32 32", "*M -90,32 C -90,76 -44,94 4,94 C 44,94 72,84 90,68")),
    Symbol(196, "signLeo", (0x264C,),
           ("O -48,-30 30",
            "M -26,-10 C -36,10 -62,28 -62,58 C -62,84 -38,100 -8,100 C 26,100 48,80 48,48"
            " C 48,8 14,-26 14,-64 C 14,-88 28,-100 46,-100 C 62,-100 74,-90 80,-76")),
    Symbol(197, "signVirgo", (0x264D,),
           ("M -86,-70 L -86,56 C -86,82 -76,98 -62,98 C -48,98 -38,82 -38,56 L -38,-70",
            "M -38,56 C -38,82 -28,98 -14,98 C 0,98 10,82 10,56 L 10,-48"
            " C 10,-78 34,-98 76,-98",
            "M 10,26 C 22,64 74,66 74,22 C 74,-28 36,-72 -8,-100")),
    Symbol(198, "signLibra", (0x264E,),
           ("M -90,-74 L 90,-74", "M -90,-14 a 0,38 60 240 -60 L 90,-14")),
    Symbol(199, "signScorpio", (0x264F,),
           ("M -86,-70 L -86,56 C -86,82 -76,98 -62,98 C -48,98 -38,82 -38,56 L -38,-70",
            "M -38,56 C -38,82 -28,98 -14,98 C 0,98 10,82 10,56 L 10,-44"
            " C 10,-62 20,-70 36,-70 L 92,-70",
            "M 62,-40 L 92,-70 62,-100")),
    Symbol(200, "signSagittarius", (0x2650,),
           ("M -88,-88 L 88,88", "M 16,88 L 88,88 88,16", "M -74,6 L 6,-74")),
    Symbol(201, "signCapricorn", (0x2651,),
           ("M -98,92 C -84,92 -78,84 -75,66 L -54,-54"
            " C -50,40 -36,98 -12,98 C 8,98 18,80 18,52 L 18,-46 C 18,-82 0,-100 -34,-100",
            "O 54,-36 36")),
    Symbol(202, "signAquarius", (0x2652,),
           ("M -94,22 L -54,72 -22,22 22,72 54,22 94,72",
            "M -94,-72 L -54,-22 -22,-72 22,-22 54,-72 94,-22")),
    Symbol(203, "signPisces", (0x2653,),
           ("|M 80,98 C 32,50 32,-50 80,-98", "M -84,0 L 84,0")),
    # Chart points: 223 + point number.
    Symbol(224, "pointSun", (0x2609,), ("O 0,0 88", "D 0,0 0.86")),
    Symbol(225, "pointMercury", (0x263F,),
           ("O 0,16 44", "M 0,-28 L 0,-100", "M -44,-68 L 44,-68",
            "|M 50,100 C 50,76 32,60 0,60")),
    Symbol(226, "pointVenus", (0x2640,),
           ("O 0,48 52", "M 0,-4 L 0,-100", "M -46,-54 L 46,-54")),
    Symbol(227, "pointMars", (0x2642,),
           ("O -34,-34 56", "M 5.6,5.6 L 90,90", "M 30,90 L 90,90 90,30")),
    Symbol(228, "pointJupiter", (0x2643,),
           ("M -72,60 C -66,86 -48,100 -28,100 C -4,100 8,82 8,58 C 8,14 -38,-20 -82,-40"
            " L 84,-40", "M 54,96 L 54,-100")),
    Symbol(229, "pointSaturn", (0x2644,),
           ("M -38,100 L -38,-78", "M -80,68 L 6,68",
            "M -38,-20 C -30,8 -8,24 16,24 C 46,24 62,6 62,-16 C 62,-48 26,-52 26,-80"
            " C 26,-98 48,-106 72,-92")),
    Symbol(230, "pointUranus", (0x2645,),
           ("|M 82,100 C 56,70 56,26 82,-4", "M -62,48 L 62,48", "M 0,96 L 0,-36",
            "O 0,-68 32")),
    Symbol(231, "pointNeptune", (0x2646,),
           ("|M 78,96 C 78,22 56,-12 0,-12", "M 0,100 L 0,-100", "M -42,-60 L 42,-60")),
    Symbol(232, "pointPluto", (0x2647,),
           ("M 64,-94 L -46,-94 -46,94 a 10,44 50 90 -90 L -46,-6",)),
    Symbol(233, "pointMoon", (0x263D,),
           ("A 0,0 94 122 -122 a -58.1,0 80.1 -84.1 84.1 Z",)),
    Symbol(234, "pointNorthNode", (0x260A,),
           ("|O 60,-72 28",
            "|M 32,-72 C 32,-34 82,-22 82,26 C 82,72 46,100 0,100")),
    Symbol(235, "pointSouthNode", (0x260B,),
           ("|O 60,72 28",
            "|M 32,72 C 32,34 82,22 82,-26 C 82,-72 46,-100 0,-100")),
    Symbol(236, "pointPartOfFortune", (0x2297, 0x1F774),
           ("O 0,0 88", "M -62,-62 L 62,62", "M -62,62 L 62,-62")),
    Symbol(237, "pointAscendant", (),
           ("M -100,-88 L -56,88 -12,-88", "M -86,-32 L -26,-32",
            "M 84,-6 C 74,14 30,16 30,-14 C 30,-46 88,-32 88,-62 C 88,-96 40,-96 28,-70")),
    Symbol(238, "pointMidheaven", (),
           ("M -98,-88 L -98,88 -52,-4 -6,88 -6,-88", "E 66,-38 34,50 50 310")),
)


# --- drawing -----------------------------------------------------------------


def arc_curves(x, y, rx, ry, start, end):
    """Bezier curves of an arc: its start point and the (c1, c2, end) triples."""
    pieces = max(1, math.ceil(abs(end - start) / 90 - 1e-9))
    step = math.radians(end - start) / pieces
    k = 4 / 3 * math.tan(step / 4)
    angle = math.radians(start)

    def at(a, along=0.0):
        return (x + rx * (math.cos(a) - along * math.sin(a)),
                y + ry * (math.sin(a) + along * math.cos(a)))

    first, curves = at(angle), []
    for _ in range(pieces):
        curves.append((at(angle, k), at(angle + step, -k), at(angle + step)))
        angle += step
    return first, curves


class Contour:
    """A pen path: start point, segments of one (line) or three points."""

    def __init__(self, start):
        self.start, self.segments, self.closed = start, [], False
        self.dot = None  # radius of a filled dot in pen widths

    def mapped(self, transform):
        copy = Contour(transform(self.start))
        copy.segments = [tuple(map(transform, s)) for s in self.segments]
        copy.closed, copy.dot = self.closed, self.dot
        return copy


def with_mirror_image(contour):
    """The contour and its image; as one line when it ends on the axis."""
    image = contour.mapped(lambda p: (-p[0], p[1]))
    if contour.closed or contour.segments[-1][-1][0] != 0:
        return [contour, image]
    points = [image.start, *(s[-1] for s in image.segments)]
    for index in reversed(range(len(image.segments))):
        controls = image.segments[index][:-1]
        contour.segments.append((*reversed(controls), points[index]))
    return [contour]


def circle(centre, radius):
    first, curves = arc_curves(*centre, radius, radius, 0, 360)
    contour = Contour(first)
    contour.segments, contour.closed = curves, True
    return contour


def parse_path(path):
    """The contours of one path string of a Symbol."""
    contours, command = [], ""
    tokens = path.lstrip("|*").split()
    position = 0

    def point():
        nonlocal position
        position += 1
        return tuple(map(float, tokens[position - 1].split(",")))

    def number():
        return point()[0]

    def arc(continuing, elliptic):
        centre = point()
        radii = point() if elliptic else (number(),) * 2
        first, curves = arc_curves(*centre, *radii, number(), number())
        if continuing:
            contours[-1].segments.append((first,))
        else:
            contours.append(Contour(first))
        contours[-1].segments.extend(curves)

    while position < len(tokens):
        if tokens[position].isalpha():
            command = tokens[position]
            position += 1
        if command == "M":
            contours.append(Contour(point()))
        elif command == "L":
            contours[-1].segments.append((point(),))
        elif command == "C":
            contours[-1].segments.append((point(), point(), point()))
        elif command == "Z":
            contours[-1].closed = True
        elif command in "AaEe":
            arc(command in "ae", command in "Ee")
        elif command == "O":
            centre, radius = point(), number()
            contours.append(circle(centre, radius))
        elif command == "D":
            contours.append(Contour(point()))
            contours[-1].dot = number()
        else:
            raise ValueError(f"unknown command in path '{path}'")
    if path[0] == "|":
        return [twin for c in contours for twin in with_mirror_image(c)]
    if path[0] == "*":
        return contours + [c.mapped(lambda p: (-p[0], -p[1])) for c in contours]
    return contours


# --- from pen paths to outlines ----------------------------------------------
#
# The outline of a symbol is where the distance to its pen paths equals half
# the pen width. It is traced on a grid, every point is moved onto the true
# outline, corners are found where the nearest pen point jumps, and the smooth
# runs between them become quadratic curves. So overlapping strokes need no
# joining, and the result has no overlaps of its own.

GRID = 10.0  # font units; finer than any gap between strokes
TOLERANCE = 0.4  # of a fitted curve, font units


class Pen:
    """The distance field of a set of pen paths in font units."""

    def __init__(self, contours, width, pieces):
        starts, ends, radii = [], [], []
        for contour in contours:
            points = flattened(contour, pieces)
            starts += points[:-1] or points
            ends += points[1:] or points
            radius = contour.dot * width if contour.dot else width / 2
            radii += [radius] * max(1, len(points) - 1)
        self.start, self.radius = np.array(starts), np.array(radii)
        self.along = np.array(ends) - self.start
        self.length2 = np.maximum((self.along ** 2).sum(1), 1e-12)
        margin = self.radius.max() + 3 * GRID
        self.low = np.minimum(self.start, ends).min(0) - margin
        self.high = np.maximum(self.start, ends).max(0) + margin

    def nearest(self, points):
        """Signed distance (negative inside), pen point and radius for each."""
        offset = points[:, None, :] - self.start
        t = np.clip((offset * self.along).sum(2) / self.length2, 0, 1)
        gap = np.hypot(*np.moveaxis(offset - t[..., None] * self.along, 2, 0)) - self.radius
        best = gap.argmin(1)
        row = np.arange(len(points))
        return (gap[row, best], self.start[best] + t[row, best, None] * self.along[best],
                self.radius[best])

    def on_outline(self, point):
        """The outline point near the given one and the outward normal there."""
        point = np.asarray(point)
        for _ in range(8):
            gap, foot, radius = (v[0] for v in self.nearest(point[None, :]))
            normal = (point - foot) / np.hypot(*(point - foot))
            point = foot + normal * radius
            if abs(gap) < 1e-6:
                break
        return point, normal


def flattened(contour, pieces):
    """Points along a pen path, every curve in so many pieces."""
    points, here = [contour.start], contour.start
    segments = contour.segments + ([(contour.start,)] if contour.closed else [])
    for segment in segments:
        if len(segment) == 1:
            points.append(segment[0])
        else:
            for t in np.linspace(0, 1, pieces + 1)[1:]:
                weights = (1 - t) ** 3, 3 * t * (1 - t) ** 2, 3 * t * t * (1 - t), t ** 3
                points.append(tuple(sum(w * q[axis] for w, q in zip(weights, (here, *segment)))
                                    for axis in (0, 1)))
        here = segment[-1]
    return points


def trace(pen):
    """Closed rough outlines, the inside on the right hand."""
    xs, ys = (np.arange(pen.low[i], pen.high[i] + GRID, GRID) for i in (0, 1))
    gap = np.stack([pen.nearest(np.stack([np.full_like(ys, x), ys], 1))[0] for x in xs])
    follow = {}
    for i, j in np.argwhere(straddling_cells(gap < 0)):
        corners = ((i, j), (i + 1, j), (i + 1, j + 1), (i, j + 1))
        inside = [gap[c] < 0 for c in corners]
        edges = [tuple(sorted((corners[k], corners[(k + 1) % 4]))) for k in range(4)]
        entries = [k for k in range(4) if not inside[k] and inside[(k + 1) % 4]]
        joined = len(entries) == 2 and sum(gap[c] for c in corners) < 0
        for entry in entries:
            step = -1 if joined else 1
            leave = (entry + step) % 4
            while not (inside[leave] and not inside[(leave + 1) % 4]):
                leave = (leave + step) % 4
            follow[edges[entry]] = edges[leave]
    outlines = []
    while follow:
        edge = min(follow)
        outline = []
        while edge in follow:
            a, b = edge
            t = gap[a] / (gap[a] - gap[b])
            outline.append((xs[a[0]] + t * (xs[b[0]] - xs[a[0]]),
                            ys[a[1]] + t * (ys[b[1]] - ys[a[1]])))
            edge = follow.pop(edge)
        outlines.append(outline)
    return outlines


def straddling_cells(inside):
    count = (inside[:-1, :-1].astype(int) + inside[1:, :-1] + inside[:-1, 1:] + inside[1:, 1:])
    return (count > 0) & (count < 4)


def turn(first, second):
    """Size of the angle between two unit vectors in radians."""
    return abs(math.atan2(cross(first, second), first @ second))


def cross(a, b):
    return a[0] * b[1] - a[1] * b[0]


def between(pen, first, second):
    """Samples that close the gap between two: none, smooth ones, or a corner.

    A corner is returned as two samples at one place with their own normals.
    """
    if turn(first[1], second[1]) < 0.15:
        return []
    if np.hypot(*(first[0] - second[0])) < 0.02:
        corner = (first[0] + second[0]) / 2
        return [(corner, first[1]), (corner, second[1])]
    middle = pen.on_outline((first[0] + second[0]) / 2)
    return [*between(pen, first, middle), middle, *between(pen, middle, second)]


def with_extremes(pen, samples):
    """The samples with those added where the outline runs along an axis."""
    dense = [samples[0]]
    for before, after in zip(samples, samples[1:]):
        for axis in (0, 1):
            low, high = before, after
            if low[1][axis] * high[1][axis] > -1e-12 or np.array_equal(low[0], high[0]):
                continue
            while np.hypot(*(low[0] - high[0])) > 1e-3:
                middle = pen.on_outline((low[0] + high[0]) / 2)
                same = middle[1][axis] * low[1][axis] > 0
                low, high = (middle, high) if same else (low, middle)
            normal = np.where(np.arange(2) == axis, 0.0, np.sign(low[1]))
            dense.append((low[0], normal))
        dense.append(after)
    return dense


def smooth_runs(pen, outline):
    """The outline as runs of (point, normal) samples from corner to corner."""
    rough = [pen.on_outline(p) for p in outline]
    samples = []
    for first, second in zip(rough, rough[1:] + rough[:1]):
        samples += [first, *between(pen, first, second)]
    samples = with_extremes(pen, samples + samples[:1])[:-1]
    top = max(range(len(samples)), key=lambda i: samples[i][0][1])
    samples = samples[top:] + samples[:top + 1]
    runs = [[samples[0]]]
    for before, sample in zip(samples, samples[1:]):
        if np.array_equal(before[0], sample[0]):
            runs.append([])
        runs[-1].append(sample)
    if len(runs) > 1:
        runs[0] = runs.pop() + runs[0][1:]  # the top was only a place to begin
    return [run for run in runs if len(run) > 1]


def fitted(run, first, last):
    """The curve (), or (control,) for samples first..last, or None."""
    points = np.array([p for p, _ in run[first:last + 1]])
    chord = points[-1] - points[0]
    length = np.hypot(*chord)
    if np.hypot(*(points - points[0]).T).max() > length + TOLERANCE:
        return None  # the run turns back
    if np.abs(cross(chord, (points - points[0]).T)).max() <= 0.15 * length:
        return ()
    tangents = [np.array([n[1], -n[0]]) for _, n in (run[first], run[last])]
    bend = cross(*tangents)
    if abs(bend) < 1e-3 or tangents[0] @ tangents[1] < 0.2:
        return None
    reach = cross(chord, tangents[1]) / bend
    back = cross(tangents[0], chord) / bend
    if reach <= 0 or back <= 0 or reach + back > 2 * length:
        return None
    control = points[0] + reach * tangents[0]
    t = np.linspace(0, 1, 65)[:, None]
    curve = (1 - t) ** 2 * points[0] + 2 * t * (1 - t) * control + t * t * points[-1]
    step = np.diff(curve, axis=0)
    offset = points[:, None, :] - curve[:-1]
    at = np.clip((offset * step).sum(2) / (step ** 2).sum(1), 0, 1)
    misses = np.hypot(*np.moveaxis(offset - at[..., None] * step, 2, 0)).min(1)
    return (control,) if misses.max() <= TOLERANCE else None


def nodes(run):
    """Samples where a curve must end: extremes and the ends of straight lines."""
    marks, first, last = [0], 0, len(run) - 1
    for i in range(last + 1):
        if i < last and turn(run[first][1], run[i + 1][1]) < 1e-9:
            continue
        if np.hypot(*(run[i][0] - run[first][0])) > 2 * GRID:
            marks += [first, i]
        elif np.abs(run[first][1]).min() < 1e-9:
            marks.append((first + i) // 2)
        first = i + 1
    return sorted({*marks, last})


def curves_of(run):
    """(control points, end point) of the curves along a run."""
    def fit(first, last):
        found = fitted(run, first, last)
        if found is not None or last == first + 1:
            return [(found or (), run[last][0])]
        middle = (first + last) // 2
        return fit(first, middle) + fit(middle, last)

    marks = nodes(run)
    return [curve for span in zip(marks, marks[1:]) for curve in fit(*span)]


def without_specks(curves):
    """The closed outline without curves too short to survive rounding."""
    kept = []
    here = curves[-1][1]
    for control, end in curves:
        if np.hypot(*(end - here)) >= 5:
            kept.append((control, end))
            here = end
    return kept


def build_symbol(symbol, face):
    """The outline of a symbol as a TrueType glyph, centred on its advance."""
    unit = (HEIGHT - face.stroke) / 200
    contours = [c.mapped(lambda p: (p[0] * unit, p[1] * unit + MIDDLE))
                for path in symbol.paths for c in parse_path(path)]
    pen = Pen(contours, face.stroke, 256)
    outlines = [[curve for run in smooth_runs(pen, outline) for curve in curves_of(run)]
                for outline in trace(Pen(contours, face.stroke, 16))]
    across = [end[0] for outline in outlines for _, end in outline]
    shift = ADVANCE / 2 - (min(across) + max(across)) / 2

    def placed(p):
        return round(float(p[0]) + shift), round(float(p[1]))

    glyph_pen = TTGlyphPen(None)
    for outline in map(without_specks, outlines):
        glyph_pen.moveTo(placed(outline[-1][1]))
        for control, end in outline:
            glyph_pen.qCurveTo(*map(placed, control), placed(end))
        glyph_pen.closePath()
    return glyph_pen.glyph()


# --- the font ----------------------------------------------------------------


def text_font(face, dejavu):
    """The letters of the face, without hinting."""
    options = subset.Options()
    options.layout_features = ["kern", "mark", "mkmk", "ccmp", "locl"]
    options.drop_tables += ["kern", "FFTM", "MATH", "gasp"]
    options.hinting = False
    options.notdef_outline = True
    options.glyph_names = True
    options.name_IDs = ["*"]
    options.recalc_timestamp = False
    font = subset.load_font(str(dejavu / face.source), options)
    subsetter = subset.Subsetter(options)
    subsetter.populate(unicodes={c for low, high in TEXT_RANGES for c in range(low, high + 1)})
    subsetter.subset(font)
    return font


def add_symbols(font, face):
    glyphs, metrics = font["glyf"], font["hmtx"]
    order = font.getGlyphOrder()
    characters = {}
    for symbol in SYMBOLS:
        glyph = build_symbol(symbol, face)
        glyphs[symbol.name] = glyph
        glyph.recalcBounds(glyphs)
        metrics[symbol.name] = (ADVANCE, glyph.xMin)
        for character in (PRIVATE_USE + symbol.code, *symbol.unicodes):
            characters[character] = symbol.name
        if symbol.name not in order:
            order.append(symbol.name)
    font.setGlyphOrder(order)
    glyphs.glyphOrder = order
    characters = {**font.getBestCmap(), **characters}
    basic = {c: n for c, n in characters.items() if c <= 0xFFFF}
    font["cmap"].tables = [character_map(4, 1, basic), character_map(12, 10, characters)]


def character_map(table_format, encoding, characters):
    table = CmapSubtable.newSubtable(table_format)
    table.platformID, table.platEncID, table.language = 3, encoding, 0
    table.cmap = characters
    return table


def set_names(font, face):
    """Names the font and keeps the notices its licence asks for."""
    source = {i: font["name"].getDebugName(i) for i in (0, 13, 14)}
    bold = face.style == "Bold"
    names = {
        0: source[0].strip() + "\nSymbols drawn for HORARY, under the same terms.",
        1: FAMILY,
        2: face.style,
        3: f"{FAMILY} {face.style} {VERSION}",
        4: f"{FAMILY} Bold" if bold else FAMILY,
        5: f"Version {VERSION}",
        6: f"{FAMILY}-{face.style}",
        10: f"Letters derived from DejaVu {font['name'].getDebugName(4).removeprefix('DejaVu ')}"
            " 2.37; astrological symbols at U+F0A1 to U+F0EE.",
        13: source[13].strip(),
        14: source[14],
    }
    font["name"].names = []
    for identifier, text in names.items():
        font["name"].setName(text, identifier, 3, 1, 0x409)


def set_metrics(font, face):
    bold = face.style == "Bold"
    head, os2 = font["head"], font["OS/2"]
    head.created = head.modified = TIMESTAMP
    head.fontRevision = float(VERSION)
    head.macStyle = 1 if bold else 0
    head.flags &= ~0b11100  # no instructions, so no ppem-dependent metrics
    os2.version = 4
    os2.usWeightClass = face.weight
    os2.fsSelection = 0x20 if bold else 0x40
    os2.fsType = 0
    os2.achVendID = "NONE"
    os2.sxHeight, os2.sCapHeight = X_HEIGHT, CAP_HEIGHT
    os2.usDefaultChar, os2.usBreakChar, os2.usMaxContext = 0, 32, 2
    os2.recalcUnicodeRanges(font)
    os2.recalcAvgCharWidth(font)
    font["post"].underlineThickness = face.stroke // 2
    gasp = font["gasp"] = newTable("gasp")
    gasp.version = 1
    gasp.gaspRange = {0xFFFF: 0x000A}  # smooth in both directions at every size


def build(dejavu, output):
    for face in FACES:
        font = text_font(face, dejavu)
        add_symbols(font, face)
        set_names(font, face)
        set_metrics(font, face)
        font.recalcTimestamp = False
        font.save(output / face.file)
        print(f"{face.file}: {font['maxp'].numGlyphs} glyphs")


# --- checks ------------------------------------------------------------------


def outline(font, name):
    pen = DecomposingRecordingPen(font.getGlyphSet())
    font.getGlyphSet()[name].draw(pen)
    return pen.value


def moved_to_origin(recording):
    """The pen commands as a tuple that does not tell where the glyph stands."""
    left, base = recording[0][1][0]
    return tuple((command, tuple((x - left, y - base) for x, y in points))
                 for command, points in recording)


def contour_areas(recording):
    """Signed areas of the closed contours; negative is clockwise."""
    areas = []
    for operator, points in recording:
        if operator == "moveTo":
            pen = AreaPen()
        getattr(pen, operator)(*points)
        if operator == "closePath":
            areas.append(pen.value)
    return areas


def symbol_faults(font, face):
    cmap = font.getBestCmap()
    seen = {}
    ceiling, floor = font["hhea"].ascent, font["hhea"].descent
    for symbol in SYMBOLS:
        name = cmap.get(PRIVATE_USE + symbol.code)
        if name is None:
            yield f"symbol {symbol.code} ({symbol.name}) is missing"
            continue
        for other in symbol.unicodes:
            if cmap.get(other) != name:
                yield f"U+{other:04X} does not show symbol {symbol.code}"
        drawing = outline(font, name)
        areas = contour_areas(drawing)
        if not areas:
            yield f"symbol {symbol.code} ({symbol.name}) is empty"
            continue
        twin = seen.setdefault(moved_to_origin(drawing), symbol.code)
        if twin != symbol.code:
            yield f"symbols {twin} and {symbol.code} look the same"
        if max(areas, key=abs) > 0:
            yield f"symbol {symbol.code} winds the wrong way"
        if min(map(abs, areas)) < (face.stroke / 4) ** 2:
            yield f"symbol {symbol.code} has a speck"
        glyph, advance = font["glyf"][name], font["hmtx"][name][0]
        if advance != ADVANCE or glyph.xMin < 40 or glyph.xMax > ADVANCE - 40:
            yield f"symbol {symbol.code} does not fit its advance"
        if glyph.yMin < floor or glyph.yMax > ceiling:
            yield f"symbol {symbol.code} leaves the line"


def text_faults(font):
    cmap = font.getBestCmap()
    for character in REQUIRED_TEXT:
        name = cmap.get(ord(character))
        if name is None:
            yield f"U+{ord(character):04X} is missing"
        elif not outline(font, name) and not character.isspace() and character != "\u00AD":
            yield f"U+{ord(character):04X} is empty"


def style_faults(font, face):
    names = {i: font["name"].getDebugName(i) or "" for i in (1, 2, 3, 4, 6, 16, 17)}
    if names[1] != FAMILY or names[2] != face.style:
        yield f"is named '{names[1]} {names[2]}'"
    reserved = ("bitstream", "vera", "arev", "tavmjong bah")
    if any(word in name.lower() for name in names.values() for word in reserved):
        yield "has a name its licence reserves"
    for notice in (0, 13):
        if "Bitstream" not in (font["name"].getDebugName(notice) or ""):
            yield "lacks the copyright or licence notice"
    bold = face.style == "Bold"
    os2 = font["OS/2"]
    if os2.usWeightClass != face.weight or bool(os2.fsSelection & 0x20) != bold \
            or bool(os2.fsSelection & 0x40) == bold or bool(font["head"].macStyle & 1) != bold:
        yield "weight and style bits disagree"


def check(output):
    faults = []
    for face in FACES:
        try:
            font = TTFont(output / face.file)
        except OSError as error:
            faults.append(f"{face.file}: {error.strerror}")
            continue
        found = [*style_faults(font, face), *symbol_faults(font, face), *text_faults(font)]
        faults += [f"{face.file}: {fault}" for fault in found]
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


def main():
    parser = argparse.ArgumentParser(description="Builds or checks the symbol font HORARY.")
    parser.add_argument("--check", action="store_true", help="check the built fonts")
    parser.add_argument("--dejavu", type=Path, default=DEJAVU_DIRECTORY, metavar="DIR",
                        help="where the DejaVu fonts are")
    parser.add_argument("--output", type=Path, default=FONT_DIRECTORY, metavar="DIR",
                        help="where the built fonts are")
    arguments = parser.parse_args()
    if arguments.check:
        return check(arguments.output)
    build(arguments.dejavu, arguments.output)
    return 0


if __name__ == "__main__":
    sys.exit(main())
