"""Reading of delivered data files and collecting of their faults."""

import pathlib
import sys

DATA = pathlib.Path(__file__).resolve().parent.parent / "data"


class Faults:
    """Faults as "file:line: what"; the process exits with them."""

    def __init__(self):
        self.lines = 0
        self.found = []

    def add(self, path, number, what):
        self.found.append(f"{path.name}:{number}: {what}")

    def finish(self):
        for fault in self.found:
            print(fault, file=sys.stderr)
        print(f"{self.lines} lines checked, {len(self.found)} faults")
        sys.exit(1 if self.found else 0)


def data_directory():
    """The directory named on the command line, or the tree's data/."""
    return pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else DATA


def read_lines(path, faults):
    """(number, text) of each line; faults for anything but UTF-8, CR LF
    after every line, and printable characters."""
    try:
        text = path.read_bytes().decode("utf-8")
    except (OSError, UnicodeDecodeError) as error:
        faults.add(path, 0, str(error))
        return
    lines = text.split("\r\n")
    if lines.pop() != "" or not lines:
        faults.add(path, len(lines) + 1, "the last line does not end in CR LF")
    for number, line in enumerate(lines, 1):
        faults.lines += 1
        if not line.isprintable():
            faults.add(path, number, "a control or other unprintable character")
        yield number, line
