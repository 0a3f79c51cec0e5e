"""Everything that the report, the meanings window, the keyword system and the menus look up in the texts."""

import re
from dataclasses import dataclass

PLANETS = "Sun Moon Mercury Venus Mars Jupiter Saturn Uranus Neptune".split()
SIGNS = "Aries Taurus Gemini Cancer Leo Virgo Libra Scorpio Sagittarius Capricorn Aquarius Pisces".split()
HOUSES = "1st 2nd 3rd 4th 5th 6th 7th 8th 9th 10th 11th 12th".split()
PHRASES = ("blending with", "harmonizing with", "discordant to")

# Uranus and Neptune stay in one sign for years: the meanings window says that they are not delineated.
GENERATION_PLANETS = {"Uranus", "Neptune"}

# Mercury is never more than 28 degrees from the Sun, Venus 48 from the Sun and 76 from Mercury.
IMPOSSIBLE_ASPECTS = {
    "Sun harmonizing with Mercury", "Sun discordant to Mercury", "Sun discordant to Venus",
    "Mercury discordant to Venus",
}


@dataclass(frozen=True)
class Kind:
    name: str
    fewest: int  # words of the body
    most: int
    width: int = 72
    is_report: bool = True  # part of a report, and so read by somebody who knows no technical term


RISING = Kind("rising sign", 120, 200)
IN_SIGN = Kind("planet in a sign", 90, 160)
IN_HOUSE = Kind("planet in a house", 90, 160)
ASPECT = Kind("aspect", 80, 150)
INTRODUCTION = Kind("introduction", 150, 400)
STUDY = Kind("study", 500, 1000, is_report=False)
LESSON = Kind("lesson", 200, 1000, width=70, is_report=False)  # shown behind two blanks


@dataclass(frozen=True)
class Section:
    """A section that is looked up in a file. The key is what a line must begin with to be found, the heading the
    whole line, by which the section is known to stand in the right file. Without kind, the section is left out."""

    file: str
    key: str
    heading: str
    family: str
    kind: Kind | None


def rising_sections():
    for sign in SIGNS:
        yield Section("RISING.TXT", f"{sign} rising", f"{sign} rising", "rising signs", RISING)


def sign_sections():
    for sign in SIGNS:
        for planet in PLANETS:
            kind = None if planet in GENERATION_PLANETS else IN_SIGN
            yield Section(f"SIGN_{sign[:3].upper()}.TXT", f"{planet} in", f"{planet} in {sign}",
                          f"{planet} in signs", kind)


def house_sections():
    for number, house in enumerate(HOUSES, 1):
        for planet in PLANETS:
            yield Section(f"HOUSE_{number}.TXT", f"{planet} in", f"{planet} in the {house} House",
                          f"{planet} in houses", IN_HOUSE)


def aspect_sections():
    for place, first in enumerate(PLANETS):
        for second in PLANETS[place + 1:]:
            for phrase in PHRASES:
                key = f"{first} {phrase} {second}"
                kind = None if key in IMPOSSIBLE_ASPECTS else ASPECT
                yield Section(f"{first.upper()}.TXT", key, key, f"aspects of {first}", kind)


def sections():
    return [*rising_sections(), *sign_sections(), *house_sections(), *aspect_sections()]


def names_in(source, extension):
    """The file names of an extension that a C++ source holds as texts."""
    return re.findall(rf'"([A-Z0-9_]+\.{extension})"', source.read_text(encoding="utf-8"))


def study_files(src):
    return names_in(src / "app" / "study_texts.h", "TXT")


def help_files(src):
    return names_in(src / "app" / "menu_table.cpp", "HLP") + ["HELPFILE"]


def lesson_files():
    stems = "INTRO1 INTRO2 KEY GENERAL EXAMPLE1 EXAMPLE2 ASPECTS SUN_SUN".split()
    stems += [name[:3] for name in SIGNS + PLANETS[1:] + ["Pluto"]] + HOUSES
    return [f"{stem.upper()}.TXT" for stem in stems]


def whole_files(src):
    """File name and kind of every text that is shown or copied as a whole."""
    introductions = ["PHILO.HLP", "ASCSIGN.TXT", "SIGN.TXT", "HOUSE.TXT", "ASPECT.TXT", "CLOSING.TXT"]
    return {
        **dict.fromkeys(introductions, INTRODUCTION),
        **dict.fromkeys(study_files(src), STUDY),
        **dict.fromkeys(lesson_files(), LESSON),
    }
