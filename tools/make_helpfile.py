#!/usr/bin/env python3
"""Makes data/HELPFILE, the help texts one after another for printing, and checks the form of all delivered prose.

make_helpfile.py            writes data/HELPFILE
make_helpfile.py --check    exits 1 when HELPFILE or the form of a text is not as it should be
"""
import sys
from pathlib import Path

DATA = Path(__file__).resolve().parent.parent / "data"
ORDER = ["TOLVANIS", "INPUTD", "NAMES", "GEOGRAPH", "ATLAS", "OPTIONS", "OUTPUTD1", "WHEELS", "NAMEEDIT", "LONGLAT", "SELECT",
         "PRNTFILE", "HINTS", "UPGRADES", "SHORTCUT", "PHILO", "REVISION"]
WIDTH = 72
RULE = "=" * WIDTH


def text_of(path):
    return path.read_bytes().decode("utf-8")


def helpfile():
    parts = []
    for name in ORDER:
        path = DATA / f"{name}.HLP"
        if path.is_file():
            parts.append("\r\n".join([RULE, path.name, RULE, "", ""]) + text_of(path))
    return "\r\n\r\n".join(parts)


def faults_of(path):
    text = text_of(path)
    if not text.endswith("\r\n") or text.count("\n") != text.count("\r\n"):
        yield f"{path.name}: lines must end in CR LF"
    for number, line in enumerate(text.split("\r\n")[:-1], 1):
        if len(line) > WIDTH:
            yield f"{path.name}:{number}: {len(line)} columns, {WIDTH} are allowed"
        if line != line.rstrip() or "\t" in line:
            yield f"{path.name}:{number}: trailing blank or tab"


def main():
    target = DATA / "HELPFILE"
    if "--check" not in sys.argv[1:]:
        target.write_bytes(helpfile().encode("utf-8"))
        return 0
    prose = sorted(DATA.glob("*.HLP")) + sorted(DATA.glob("*.TXT")) + [target]
    faults = [fault for path in prose for fault in faults_of(path)]
    if text_of(target) != helpfile():
        faults.append("HELPFILE is not what the help texts make; run tools/make_helpfile.py")
    print("\n".join(faults) if faults else f"{len(prose)} texts keep to the form.")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
