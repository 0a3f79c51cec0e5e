"""Spelling by hunspell and the ASCII check, both with a list of the words that the dictionary lacks: names, terms
of the field, and other good English. A word with an accent stands in the list, or it is a fault."""

import re
import subprocess
from pathlib import Path

WORD_LIST = Path(__file__).parent / "words.txt"
WORD = re.compile(r"(?<!\w)[^\W\d_]+(?:'[^\W\d_]+)*(?!\w)")


def bare(word):
    return re.sub(r"'s$", "", word)


def read_word_list(path, faults):
    """The forms in which the words of the list may stand: as listed, with a capital, in capitals."""
    words = path.read_text(encoding="utf-8").splitlines()
    for number, (word, following) in enumerate(zip(words, words[1:]), 2):
        if (word.lower(), word) >= (following.lower(), following):
            faults.add(path, number, f'"{following}" is out of order or stands twice')
    return {form for word in words for form in (word, word[:1].upper() + word[1:], word.upper())}


def misspelled(words):
    """Those of the words that hunspell does not know. Raises OSError or CalledProcessError when it cannot work."""
    answer = subprocess.run(["hunspell", "-d", "en_US", "-i", "UTF-8", "-l"], input="\n".join(sorted(words)),
                            capture_output=True, text=True, encoding="utf-8", check=True)
    return set(answer.stdout.split())


def check_ascii(path, number, line, listed, faults):
    """Other characters stand only in words of the list."""
    rest = WORD.sub(lambda match: "" if bare(match[0]) in listed else match[0], line)
    strange = re.findall(r"[^\x00-\x7f]", rest)
    if strange:
        faults.add(path, number, f'"{strange[0]}" is not ASCII and in no word of {WORD_LIST.name}')


def check_spelling(collection, faults, word_list=WORD_LIST):
    listed = read_word_list(word_list, faults)
    places = {}
    for name, lines in collection.lines.items():
        path = collection.directory / name
        for number, line in lines:
            check_ascii(path, number, line, listed, faults)
            for word in map(bare, WORD.findall(line)):
                places.setdefault(word, (path, number))
    try:
        unknown = misspelled(places.keys() - listed)
    except (OSError, subprocess.CalledProcessError) as error:
        faults.add(word_list, 0, f"the packages hunspell and hunspell-en-us are needed: {error}")
        return
    for word in sorted(unknown, key=lambda word: (places[word][0].name, places[word][1])):
        faults.add(*places[word], f'"{word}" is misspelled, or missing in {word_list.name}')
