"""Reads the delivered texts into sections and whole texts as the program finds them, and tells what it would miss."""

import re
from dataclasses import dataclass
from pathlib import Path

from data_faults import read_lines
from texts import asked

STUDIES_OF_THE_MENU = 20
MOST_EMPTY_LINES = 8  # the report gives a section up at the tenth
TERMINATOR = "*"
OTHER_TERMINATOR = "[]"  # ends a section as well; the delivered texts have only one kind
NOT_A_TEXT = {"ATTRIBUTION.txt"}  # licences

SENTENCE_PARTS = re.compile(r"[^\W_]+(?:['-][^\W_]+)*|[.!?]+(?=[\"')]*(?:\s|$))")


@dataclass
class Text:
    """A section or a whole text; its lines with their numbers, without the heading."""

    path: Path
    number: int
    kind: asked.Kind
    family: str
    lines: list

    @property
    def place(self):
        return f"{self.path.name}:{self.number}"

    def prose(self):
        """The lines that are neither titles in capitals nor rows of a table."""
        for number, line in self.lines:
            is_row = "  " in line.strip()
            yield number, "" if is_row or line.isupper() else line

    def word_count(self):
        words = " ".join(line for _, line in self.lines if not line.isupper()).split()
        return sum(any(map(str.isalnum, word)) for word in words)

    def sentences(self):
        """(number of the first line, words in lower case) of each sentence; an empty line ends one too."""
        number, words = 0, []
        for line_number, line in self.prose():
            for part in SENTENCE_PARTS.findall(line.lower()) or ["."]:
                if part[0] not in ".!?":
                    number = number if words else line_number
                    words.append(part)
                elif words:
                    yield number, words
                    words = []
        if words:
            yield number, words


def begins_with(line, key):
    """As the program compares: behind leading blanks, without regard to letter case."""
    return line.lstrip(" ")[: len(key)].lower() == key.lower()


class Collection:
    """The texts of a directory. `lines` has every line of every text file by name, `texts` what can be asked for."""

    def __init__(self, directory, src, faults):
        self.faults = faults
        self.directory = directory
        self.lines = {}
        self.texts = []
        self.files = {}
        for path in sorted(directory.iterdir()):
            self.files.setdefault(path.name.upper(), []).append(path)
        self.read_whole_files(src)
        self.read_sections()
        self.refuse_unknown_files()
        for name in asked.help_files(src):
            self.find(name)

    def find(self, name):
        """The one file of the name without regard to letter case, or None and a fault."""
        found = self.files.get(name, [])
        if len(found) == 1 and found[0].name == name:
            return found[0]
        what = f"stands here as {', '.join(path.name for path in found)}" if found else "is missing"
        self.faults.add(self.directory / name, 0, what)
        return found[0] if found else None

    def read(self, name):
        path = self.find(name)
        if path is None:
            return None, []
        self.lines[name] = lines = list(read_lines(path, self.faults))
        self.refuse_gaps(path, lines)
        return path, lines

    def refuse_gaps(self, path, lines):
        empty = 0
        for number, line in lines:
            empty = empty + 1 if not line else 0
            if empty == MOST_EMPTY_LINES + 1:
                self.faults.add(path, number, f"more than {MOST_EMPTY_LINES} empty lines in a row")

    def read_whole_files(self, src):
        studies = set(asked.study_files(src))
        if len(studies) != STUDIES_OF_THE_MENU:
            self.faults.add(src / "app" / "study_texts.h", 0, f"{len(studies)} studies, not {STUDIES_OF_THE_MENU}")
        for name, kind in asked.whole_files(src).items():
            path, lines = self.read(name)
            if lines:
                self.texts.append(Text(path, 1, kind, name, lines))

    def read_sections(self):
        by_file = {}
        for section in asked.sections():
            by_file.setdefault(section.file, []).append(section)
        for name, sections in by_file.items():
            path, lines = self.read(name)
            if path:
                self.resolve(path, lines, sections)

    def resolve(self, path, lines, sections):
        """Each key must be met by one line, the heading of its section; every section must have a key."""
        found = {number: (line, body) for number, line, body in self.split(path, lines)}
        used = set()
        for section in sections:
            numbers = [number for number, line in lines if begins_with(line, section.key)]
            for number in numbers:
                used.add(number)
                if section.kind is None:
                    self.faults.add(path, number, f'"{section.key}" is one of those left out')
                elif number not in found:
                    self.faults.add(path, number, f'a line of a text begins with the key "{section.key}"')
                elif number != numbers[0]:
                    self.faults.add(path, number, f'"{section.key}" is there already in line {numbers[0]}')
                elif found[number][0].lower() != section.heading.lower():
                    self.faults.add(path, number, f'"{found[number][0]}" stands where "{section.heading}" belongs')
                else:
                    self.texts.append(Text(path, number, section.kind, section.family, found[number][1]))
            if not numbers and section.kind:
                self.faults.add(path, 0, f'the section "{section.heading}" is missing')
        for number in found.keys() - used:
            self.faults.add(path, number, f'nothing asks for "{found[number][0]}"')

    def split(self, path, lines):
        """(number, heading, lines of the body) of each section."""
        heading, body = None, []
        for number, line in lines:
            if heading is None:
                if line:
                    heading, body = (number, line), []
            elif line.lstrip(" ") in (TERMINATOR, OTHER_TERMINATOR):
                if line.lstrip(" ") == OTHER_TERMINATOR:
                    self.faults.add(path, number, f'"{OTHER_TERMINATOR}" ends the text; it should be "{TERMINATOR}"')
                yield *heading, body
                heading = None
            else:
                body.append((number, line))
        if heading:
            self.faults.add(path, heading[0], f'"{heading[1]}" does not end in a line "{TERMINATOR}"')
            yield *heading, body

    def refuse_unknown_files(self):
        for name, paths in self.files.items():
            if name.endswith(".TXT") and name not in self.lines and paths[0].name not in NOT_A_TEXT:
                self.faults.add(paths[0], 0, "nothing asks for this text")
