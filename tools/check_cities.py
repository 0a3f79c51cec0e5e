#!/usr/bin/env python3
"""Checks every line of every cities file (*.LL).

    check_cities.py [DIRECTORY]

Form, ranges, order, each "city,region" once over all files, states in the
right files, zones that suit the longitude, and places whose position and
standard time are known. Exit status 1 with file and line on any fault.
"""

import re
import unicodedata

from data_faults import Faults, data_directory, read_lines

RECORD = re.compile(
    r'(?P<city>[^,"]+),(?P<region>[^,"]+),'
    r"(?P<east>[01]?\d\d)(?P<ew>[EW])(?P<em>[0-5]\d),"
    r"(?P<north>\d\d)(?P<ns>[NS])(?P<nm>[0-5]\d),"
    r"(?P<zone>0|-?[1-9]\d?(?:\.(?:25|5|75))?)"
)

REGIONS = {
    "AL_FL.LL": "AL AK AZ AR CA CO CT DE DC FL",
    "GA_MA.LL": "GA HI ID IL IN IA KS KY LA ME MD MA",
    "MI_NY.LL": "MI MN MS MO MT NE NV NH NJ NM NY",
    "NC_PA.LL": "NC ND OH OK OR PA",
    "RI_WY.LL": "RI SC SD TN TX UT VT VA WA WV WI WY",
    "CANADA.LL": "AB BC MB NB NL NS NT NU ON PE QC SK YT",
}
OTHERS = ("AFRICA.LL", "ASIA.LL", "EUROPE.LL", "LATINAM.LL", "OCEANIA.LL")
NEAR_CANADA = {"Bermuda", "Greenland", "Saint Pierre and Miquelon"}

# Degrees between a place and its zone's meridian: western China, which
# keeps the time of its east, is the extreme. A wrong sign shows up.
FARTHEST_FROM_MERIDIAN = 47

# file: (city, region, degrees east, degrees north, hours west), from
# almanacs and atlases, in degrees and decimals.
KNOWN = {
    "AL_FL.LL": [
        ("Los Angeles", "CA", -118.24, 34.05, 8),
        ("Phoenix", "AZ", -112.07, 33.45, 7),
        ("Anchorage", "AK", -149.90, 61.22, 9),
        ("Washington", "DC", -77.04, 38.90, 5),
        ("Pensacola", "FL", -87.22, 30.42, 6),
    ],
    "GA_MA.LL": [
        ("Atlanta", "GA", -84.388, 33.749, 5),
        ("Honolulu", "HI", -157.86, 21.31, 10),
        ("Chicago", "IL", -87.65, 41.85, 6),
        ("Indianapolis", "IN", -86.16, 39.77, 5),
        ("Boston", "MA", -71.06, 42.36, 5),
    ],
    "MI_NY.LL": [
        ("New York", "NY", -74.00, 40.71, 5),
        ("New York City", "NY", -74.00, 40.71, 5),
        ("Detroit", "MI", -83.05, 42.33, 5),
    ],
    "NC_PA.LL": [("Philadelphia", "PA", -75.16, 39.95, 5)],
    "RI_WY.LL": [("El Paso", "TX", -106.49, 31.76, 7), ("Seattle", "WA", -122.33, 47.61, 8)],
    "CANADA.LL": [
        ("Toronto", "ON", -79.40, 43.70, 5),
        ("Regina", "SK", -104.62, 50.45, 6),
        ("St. John's", "NL", -52.71, 47.56, 3.5),
    ],
    "LATINAM.LL": [
        ("Mexico City", "Mexico", -99.13, 19.43, 6),
        ("Caracas", "Venezuela", -66.90, 10.49, 4),
        ("Buenos Aires", "Argentina", -58.38, -34.61, 3),
        ("Santiago", "Chile", -70.65, -33.46, 4),
        ("São Paulo", "Brazil", -46.64, -23.55, 3),
        ("San Juan", "Puerto Rico", -66.11, 18.47, 4),
    ],
    "EUROPE.LL": [
        ("London", "United Kingdom", -0.13, 51.51, 0),
        ("Dublin", "Ireland", -6.27, 53.34, 0),
        ("Paris", "France", 2.35, 48.85, -1),
        ("Ulm", "Germany", 9.99, 48.40, -1),
        ("Madrid", "Spain", -3.70, 40.42, -1),
        ("Athens", "Greece", 23.73, 37.98, -2),
        ("Moscow", "Russia", 37.62, 55.75, -3),
        ("Vladivostok", "Russia", 131.88, 43.12, -10),
    ],
    "AFRICA.LL": [
        ("Casablanca", "Morocco", -7.59, 33.59, -1),
        ("Cairo", "Egypt", 31.25, 30.06, -2),
        ("Cape Town", "South Africa", 18.42, -33.93, -2),
        ("Accra", "Ghana", -0.20, 5.56, 0),
    ],
    "ASIA.LL": [
        ("Istanbul", "Turkey", 28.95, 41.01, -3),
        ("Tehran", "Iran", 51.42, 35.69, -3.5),
        ("Kabul", "Afghanistan", 69.17, 34.53, -4.5),
        ("Mumbai", "India", 72.88, 19.07, -5.5),
        ("Kathmandu", "Nepal", 85.32, 27.70, -5.75),
        ("Yangon", "Myanmar", 96.16, 16.81, -6.5),
        ("Beijing", "China", 116.40, 39.91, -8),
        ("Tokyo", "Japan", 139.69, 35.69, -9),
    ],
    "OCEANIA.LL": [
        ("Adelaide", "Australia", 138.60, -34.93, -9.5),
        ("Sydney", "Australia", 151.21, -33.87, -10),
        ("Auckland", "New Zealand", 174.76, -36.85, -12),
        ("Papeete", "French Polynesia", -149.57, -17.54, 10),
        ("Nuku'alofa", "Tonga (enter the day before)", -175.20, -21.14, 11),
    ],
}
TOLERANCE = 4 / 60

BASE_LETTERS = str.maketrans({
    "ß": "ss", "æ": "ae", "œ": "oe", "ø": "o", "ł": "l", "đ": "d", "ð": "d",
    "þ": "th", "ı": "i", "ə": "e", "ħ": "h", "ŧ": "t", "ŋ": "n", "'": None,
})


def fold(text):
    """Lower case without accents and apostrophes, the rule of
    make_cities/place_text.mjs; the two must change together."""
    if text.isascii():
        return text.lower().replace("'", "")
    bare = (c for c in unicodedata.normalize("NFD", text) if unicodedata.category(c) != "Mn")
    return "".join(bare).lower().translate(BASE_LETTERS)


def degrees(whole, letter, minutes):
    value = int(whole) + int(minutes) / 60
    return -value if letter in "WS" else value


def place_faults(match, east, north, zone):
    """What is wrong with the numbers of one record."""
    if len(match["east"]) == 3 and int(match["east"]) < 100:
        yield "three digits of longitude below 100 degrees"
    if abs(east) > 180 or abs(north) > 90:
        yield "position out of range"
    if not -13 <= zone <= 12:
        yield "zone out of range"
    if match["ew"] == "W" and zone < -2:
        yield "zone too far east for a west longitude"
    distance = abs((east + zone * 15 + 180) % 360 - 180)
    if distance > FARTHEST_FROM_MERIDIAN:
        yield f"zone {zone:g} is {distance:.0f} degrees off"


def region_fault(file_name, region):
    if file_name in REGIONS:
        fits = region in REGIONS[file_name].split()
        return not fits and not (file_name == "CANADA.LL" and region in NEAR_CANADA)
    return len(region) <= 2 or region in NEAR_CANADA


def check_file(path, faults, texts, homes):
    """Checks one file; returns its places as (city, region) to numbers."""
    places = {}
    previous = None
    for number, line in read_lines(path, faults):
        match = RECORD.fullmatch(line)
        if not match:
            faults.add(path, number, f"not a record: {line}")
            continue
        city, region = match["city"], match["region"]
        if city != city.strip() or region != region.strip():
            faults.add(path, number, "blanks around a field")
        east = degrees(match["east"], match["ew"], match["em"])
        north = degrees(match["north"], match["ns"], match["nm"])
        zone = float(match["zone"])
        for fault in place_faults(match, east, north, zone):
            faults.add(path, number, fault)
        if region_fault(path.name, region) or homes.setdefault(region, path.name) != path.name:
            faults.add(path, number, f"{region} does not belong in this file")
        key = (fold(city), fold(region), city, region)
        if previous and key < previous:
            faults.add(path, number, f"{city} is out of order")
        previous = key
        first = texts.setdefault(key[:2], f"{path.name}:{number}")
        if first != f"{path.name}:{number}":
            faults.add(path, number, f"{city},{region} stands already at {first}")
        places[city, region] = (east, north, zone)
    return places


def check_known(path, faults, places):
    for city, region, east, north, zone in KNOWN.get(path.name, []):
        found = places.get((city, region))
        if not found:
            faults.add(path, 0, f"{city},{region} is missing")
        elif max(abs(found[0] - east), abs(found[1] - north)) > TOLERANCE or found[2] != zone:
            faults.add(path, 0, f"{city},{region} is {found}, not {(east, north, zone)}")


def main():
    faults = Faults()
    texts = {}
    homes = {}
    directory = data_directory()
    for name in sorted([*REGIONS, *OTHERS]):
        path = directory / name
        check_known(path, faults, check_file(path, faults, texts, homes))
    for path in directory.glob("*.[lL][lL]"):
        if path.name not in REGIONS and path.name not in OTHERS:
            faults.add(path, 0, "an unknown cities file")
    faults.finish()


if __name__ == "__main__":
    main()
