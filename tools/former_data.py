#!/usr/bin/env python3
"""Writes src/platform/former_data.h: what released versions delivered for reading only.

    former_data.py TAG...      run before a release with the tags of all earlier ones

An unchanged copy of such a file in a user's directory gives way to the present version's file.
"""

import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
EDITED_BY_USERS = (".FIL", ".LL", ".OPT", ".ORB", ".NAM")


def git(*arguments):
    return subprocess.run(["git", "-C", str(ROOT), *arguments], check=True, capture_output=True).stdout


def fingerprint(content):
    value = 0xCBF29CE484222325
    for byte in content:
        value = ((value ^ byte) * 0x100000001B3) & 0xFFFFFFFFFFFFFFFF
    return value


def rows(tag):
    for path in git("ls-tree", "--name-only", tag, "data/", "fonts/").decode().split():
        name = Path(path).name
        if name.endswith(EDITED_BY_USERS) or path.startswith("fonts/") and not name.endswith(".ttf"):
            continue
        content = git("cat-file", "blob", f"{tag}:{path}")
        # As it is delivered: the tree keeps CR LF.
        content = content.replace(b"\r\n", b"\n").replace(b"\n", b"\r\n") if name.isupper() else content
        yield name.upper(), len(content), fingerprint(content)


def main():
    found = sorted({row for tag in sys.argv[1:] for row in rows(tag)})
    lines = [f'    {{"{name}", {size}, 0x{value:016x}}},' for name, size, value in found]
    text = "\n".join([
        "#pragma once",
        "// Data that earlier versions copied into users' directories; made by tools/former_data.py.",
        "",
        "#include <array>",
        "#include <cstdint>",
        "#include <string_view>",
        "",
        "namespace tolvanis {",
        "",
        "struct FormerFile {",
        "    std::string_view name;  // in capitals",
        "    std::uintmax_t size;",
        "    std::uint64_t fingerprint;  // FNV-1a of the content",
        "};",
        "",
        f"inline constexpr std::array<FormerFile, {len(found)}> kFormerFiles = {{{{",
        *lines,
        "}};",
        "",
        "}  // namespace tolvanis",
        "",
    ])
    (ROOT / "src/platform/former_data.h").write_text(text)


if __name__ == "__main__":
    main()
