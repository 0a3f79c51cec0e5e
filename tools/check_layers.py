#!/usr/bin/env python3
"""Checks the order of dependence between the folders of src/.

A folder includes only from itself and from the folders above it in the list; only the folders named qt and
app/main.cpp include Qt or a header from a folder named qt. A source file includes its own header first, so that
every header is known to stand alone. Prints every breach and exits 1.
"""
import re
import sys
from pathlib import Path

ORDER = ["text", "platform", "chart", "birthdata", "output", "aspects", "astro", "wheel", "interp", "app", "cli"]
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def knows_qt(path):
    return path.parent.name == "qt" or path.as_posix() == "app/main.cpp"


def faults_of(path, root):
    folder = path.parts[0]
    own = path.with_suffix(".h").as_posix() if path.suffix == ".cpp" and (root / path.with_suffix(".h")).is_file() else None
    for number, line in enumerate((root / path).read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if not match:
            continue
        quote, target = match.groups()
        if own:
            if target != own:
                yield f"src/{path.as_posix()}:{number}: \"{own}\" is not included first"
            own = None
        where = f"src/{path.as_posix()}:{number}"
        if quote == "<":
            if re.match(r"Q[A-Z]|Qt", target) and not knows_qt(path):
                yield f"{where}: only qt/ folders include Qt, this includes <{target}>"
            continue
        if not (root / target).is_file():
            yield f"{where}: \"{target}\" is not a path below src/"
            continue
        included = Path(target)
        if ORDER.index(included.parts[0]) > ORDER.index(folder):
            yield f"{where}: {folder}/ stands above {included.parts[0]}/ and cannot include \"{target}\""
        if knows_qt(included) and not knows_qt(path):
            yield f"{where}: only qt/ folders include from qt/ folders, this includes \"{target}\""


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else "src")
    sources = sorted(p.relative_to(root) for p in root.rglob("*") if p.suffix in (".h", ".cpp"))
    unknown = [p for p in sources if p.parts[0] not in ORDER]
    faults = [f"src/{p.as_posix()}: unknown folder" for p in unknown]
    for path in sources:
        if path not in unknown:
            faults += faults_of(path, root)
    print("\n".join(faults) if faults else f"{len(sources)} files keep to the order of the folders.")
    return 1 if faults or not sources else 0


if __name__ == "__main__":
    sys.exit(main())
