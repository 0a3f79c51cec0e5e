#!/usr/bin/env python3
"""Checks the texts of the report, the meanings window, the keyword system and the Philosophy menu.

    check_texts.py [DIRECTORY]

Everything that the program can ask for must be there once and be found as the program finds it; form, length, words
and spelling must be as they should be, and nothing may be said twice. Exit status 1 with file and line on any fault.
"""

import sys

from data_faults import DATA, Faults, data_directory
from texts.collection import Collection
from texts.rules import check_rules
from texts.spelling import check_spelling

SRC = DATA.parent / "src"


def check(directory, faults, src=SRC):
    collection = Collection(directory, src, faults)
    check_rules(collection.texts, faults)
    check_spelling(collection, faults)


def main():
    directory, faults = data_directory(), Faults()
    if not directory.is_dir():
        sys.exit(f"{directory} is not a directory")
    check(directory, faults)
    faults.finish()


if __name__ == "__main__":
    main()
