"""Tests of check_texts.py: nonsense that keeps all the rules, and the same with faults planted in it."""

import random
import re
import tempfile
import textwrap
import unittest
from pathlib import Path
from types import SimpleNamespace

from check_texts import SRC, check
from data_faults import Faults
from texts import asked
from texts.rules import BARRED
from texts.spelling import check_spelling

VOCABULARY = (
    "apple bench candle door early farm garden house ink jar kettle lamp mirror night open paper quiet river stone "
    "table under valley window yellow above bread cloud dance evening field green hand island join kind leaf mountain "
    "never old pocket road silver tree uncle voice water year").split()


class Nonsense:
    """Random plain words, always the same ones."""

    def __init__(self):
        self.random = random.Random(7)

    def body(self, kind):
        sentences = (kind.fewest + kind.most) // 2 // 12
        words = [" ".join(self.random.choices(VOCABULARY, k=12)).capitalize() + "." for _ in range(sentences)]
        return textwrap.wrap(" ".join(words), kind.width - 4, break_on_hyphens=False)


def write_collection(directory):
    """A directory with everything that is asked for and without a fault."""
    nonsense = Nonsense()
    files = {name: [] for name in asked.help_files(SRC)}
    for section in asked.sections():
        if section.kind:
            files.setdefault(section.file, []).extend([section.heading, *nonsense.body(section.kind), "*", ""])
    for name, kind in asked.whole_files(SRC).items():
        files[name] = ["A TITLE", *nonsense.body(kind)]
    for name, lines in files.items():
        (directory / name).write_bytes("".join(line + "\r\n" for line in lines).encode())


def insert(heading, *lines):
    """Puts lines behind the heading, as the beginning of the text."""
    return lambda text: text.replace(heading + "\r\n", "\r\n".join((heading, *lines)) + "\r\n", 1)


def append(*lines):
    return lambda text: text + "\r\n".join(lines) + "\r\n"


def replace(old, new):
    return lambda text: text.replace(old, new, 1)


def drop(heading):
    return lambda text: text.replace(text[text.index(heading): text.index("*", text.index(heading)) + 1], "", 1)


# File, what is done to it, and the faults that must come of it, with "#" for any number.
PLANTED = [
    ("SIGN_ARI.TXT", drop("Sun in Aries"), ['the section "Sun in Aries" is missing']),
    ("SIGN_TAU.TXT", append("Uranus in Taurus", "Sky.", "*"), ['"Uranus in" is one of those left out']),
    ("SIGN_GEM.TXT", replace("Sun in Gemini", "Sun in Leo"), ['"Sun in Leo" stands where "Sun in Gemini" belongs']),
    ("SIGN_CAN.TXT", lambda text: text[: text.rindex("*")], ['"Saturn in Cancer" does not end in a line "*"']),
    ("SIGN_LEO.TXT", replace("*\r\n", "[]\r\n"), ['"[]" ends the text; it should be "*"']),
    ("SIGN_VIR.TXT", replace("*\r\n", "*\r\n" + "\r\n" * 9), ["more than 8 empty lines in a row"]),
    ("SIGN_LIB.TXT", replace(".\r\n*", ".\n\r\n*"), ["a control or other unprintable character"]),
    ("SUN.TXT", append("Sun discordant to Mercury", "Sky.", "*"),
     ['"Sun discordant to Mercury" is one of those left out']),
    ("HOUSE_1.TXT", append("sun in the 1st house", "Sky.", "*"), ['"Sun in" is there already in line #']),
    ("HOUSE_2.TXT", append("Pluto in the 2nd House", "Sky.", "*"), ['nothing asks for "Pluto in the 2nd House"']),
    ("HOUSE_3.TXT", insert("Neptune in the 3rd House", " mars in April"),
     ['a line of a text begins with the key "Mars in"']),
    ("HOUSE_4.TXT", replace("*\r\n\r\nMoon", "Moon"),
     ['a line of a text begins with the key "Moon in"', "# words; a text of the kind planet in a house has 90 to 160"]),
    ("HOUSE_5.TXT", insert("Sun in the 5th House", " ".join(["gray"] * 15)), ["74 columns, 72 are allowed"]),
    ("HOUSE_6.TXT", insert("Sun in the 6th House", "Grass, moss, stone and bro-", "ken  glass."),
     ["a word is divided at the end of the line", "two blanks in a row"]),
    ("HOUSE_7.TXT", insert("Sun in the 7th House", "Gray", "It holds some dignity"), ['the word "dignity" is barred']),
    ("ARI.TXT", append("Many long Journeys and dignity."), ['the word "Journeys" is barred']),
    ("TAU.TXT", append(" ".join(["gray"] * 14) + " x"), ["71 columns, 70 are allowed"]),
    ("GEM.TXT", append("A naïve thing."),
     ['"ï" is not ASCII and in no word of words.txt', '"naïve" is misspelled, or missing in words.txt']),
    ("LEO.TXT", append("A speling."), ['"speling" is misspelled, or missing in words.txt']),
    ("ZODIACS.TXT", lambda text: "Far too little.\r\n", ["3 words; a text of the kind study has 500 to 1000"]),
    ("MARS.TXT", insert("Mars blending with Saturn", "Gray. Somebody has painted", "the fence green. Gray."),
     ['the sentence of ORBS.TXT:# again: "somebody has painted the fence green"']),
    ("ORBS.TXT", append("", "SOMEBODY ELSE", "", 'Gray. "Somebody has painted the fence green!"'), []),
    ("VENUS.TXT",
     insert("Venus blending with Mars", "Gray, since twelve small boats go out before dawn and come back."), []),
    ("JUPITER.TXT",
     insert("Jupiter blending with Saturn", "Cold, twelve small boats go out before dawn and come home."),
     ['5 of # runs of five words as in VENUS.TXT:#: "boats go out before dawn"']),
    *((f"HOUSE_{n}.TXT", insert(f"Uranus in the {n}th House", f"The first four words {'abcd'[n - 8]}."), [])
      for n in range(8, 11)),
    ("HOUSE_11.TXT", insert("Uranus in the 11th House", "The first", "four words."),
     ['of the Uranus in houses, more than 3 begin "the first four words"']),
]

BARRED_FORMS = (
    "Journeying tapestries vibrancy EMBRACED unlocks navigation realm profoundly testament delving resonates resonance")
ALLOWED_FORMS = "journal journeyman lock brace profit real reason navel testify"


# Faults of the directory as a whole.
PLANTED_FILES = [
    (lambda directory: (directory / "KEY.TXT").unlink(), "KEY.TXT:0: is missing"),
    (lambda directory: (directory / "HINTS.HLP").unlink(), "HINTS.HLP:0: is missing"),
    (lambda directory: (directory / "CLOSING.TXT").rename(directory / "Closing.txt"),
     "CLOSING.TXT:0: stands here as Closing.txt"),
    (lambda directory: (directory / "aspect.txt").write_text("A second one.\r\n"),
     "ASPECT.TXT:0: stands here as ASPECT.TXT, aspect.txt"),
    (lambda directory: (directory / "NOTES.TXT").write_text("Gray.\r\n"), "NOTES.TXT:0: nothing asks for this text"),
]


class CheckTexts(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.directory = Path(scratch.name)
        write_collection(self.directory)

    def found(self, src=SRC):
        faults = Faults()
        check(self.directory, faults, src)
        return faults.found

    def test_a_good_collection_has_no_faults(self):
        self.assertEqual(self.found(), [])

    def test_each_planted_fault_is_found_and_no_other(self):
        expected = []
        for name, change, faults in PLANTED:
            path = self.directory / name
            before = path.read_bytes().decode()
            after = change(before)
            self.assertNotEqual(before, after, name)
            path.write_bytes(after.encode())
            expected += [f"{name}:\\d+: " + re.escape(fault).replace(r"\#", r"\d+") for fault in faults]
        found = self.found()
        for pattern in expected:
            matches = [fault for fault in found if re.fullmatch(pattern, fault)]
            self.assertEqual(len(matches), 1, pattern + "\n" + "\n".join(found))
            found.remove(matches[0])
        self.assertEqual(found, [])

    def test_missing_ambiguous_and_unknown_files_are_found(self):
        for change, _ in PLANTED_FILES:
            change(self.directory)
        self.assertEqual(sorted(self.found()), sorted(fault for _, fault in PLANTED_FILES))

    def test_a_menu_without_one_of_its_studies_is_found(self):
        src = self.directory / "src"
        (src / "app").mkdir(parents=True)
        for name in ("study_texts.h", "menu_table.cpp"):
            text = (SRC / "app" / name).read_text()
            (src / "app" / name).write_text(text.replace('"NODES.TXT"', '"ORBS.TXT"'))
        self.assertEqual(self.found(src), [
            "study_texts.h:0: 19 studies, not 20",
            "NODES.TXT:0: nothing asks for this text",
        ])


class Rules(unittest.TestCase):
    def test_barred_words_are_barred_with_their_inflections(self):
        self.assertEqual(BARRED_FORMS.split(), [word for word in BARRED_FORMS.split() if BARRED.fullmatch(word)])
        self.assertIsNone(BARRED.search(ALLOWED_FORMS))


class Spelling(unittest.TestCase):
    def test_the_word_list_is_in_order_and_lends_capitals_and_genitives(self):
        lines = [(1, "Zelenka's KLEROS, Kleros and Zelenka; zelenka")]
        collection = SimpleNamespace(directory=Path("data"), lines={"A.TXT": lines})
        with tempfile.TemporaryDirectory() as scratch:
            word_list = Path(scratch) / "words.txt"
            word_list.write_text("Zelenka\nkleros\nkleros\n")
            faults = Faults()
            check_spelling(collection, faults, word_list)
        self.assertEqual(faults.found, [
            'words.txt:2: "kleros" is out of order or stands twice',
            'words.txt:3: "kleros" is out of order or stands twice',
            'A.TXT:1: "zelenka" is misspelled, or missing in words.txt',
        ])


if __name__ == "__main__":
    unittest.main()
