"""The rules that the texts keep: form, length, words that are barred, and nothing said twice."""

import re
from collections import Counter, defaultdict
from itertools import combinations

SHORTEST_REPEATED_SENTENCE = 6  # words
RUN = 5  # words
MOST_SHARED_RUNS = 0.04
OPENING = 4  # words
MOST_ALIKE_OPENINGS = 3

# Words of brochures, and in the report also terms that its reader has not met.
BARRED = re.compile(
    r"\b(journey(s|ed|ing|er|ers)?|tapestr(y|ies)|vibran(t|tly|ce|cy)|embrac(e|es|ed|ing|er)|unlock(s|ed|ing)?"
    r"|navigat(e|es|ed|ing|ion|or|ors)|realms?|profound(ly|er|est|ness)?|profundit(y|ies)|testaments?"
    r"|delv(e|es|ed|ing|er)|resonat(e|es|ed|ing|or)|resonan(ce|ces|t|tly))\b", re.IGNORECASE)
BARRED_IN_REPORT = re.compile(r"\b(afflict(s|ed|ing|ion|ions)?|malefics?|dignit(y|ies))\b", re.IGNORECASE)


def check_form(text, faults):
    for number, line in text.lines:
        if len(line) > text.kind.width:
            faults.add(text.path, number, f"{len(line)} columns, {text.kind.width} are allowed")
        if re.search(r"[a-z]-$", line):
            faults.add(text.path, number, "a word is divided at the end of the line")
        if text.kind.is_report and "  " in line.strip():
            faults.add(text.path, number, "two blanks in a row")


def check_length(text, faults):
    count, kind = text.word_count(), text.kind
    if not kind.fewest <= count <= kind.most:
        faults.add(text.path, text.number,
                   f"{count} words; a text of the kind {kind.name} has {kind.fewest} to {kind.most}")


def check_barred_words(text, faults):
    patterns = [BARRED, BARRED_IN_REPORT] if text.kind.is_report else [BARRED]
    for number, line in text.lines:
        for match in (match for pattern in patterns for match in pattern.finditer(line)):
            faults.add(text.path, number, f'the word "{match[0]}" is barred')


def check_sentences(texts, faults):
    """No sentence stands in two places."""
    first = {}
    for text in texts:
        for number, words in text.sentences():
            if len(words) < SHORTEST_REPEATED_SENTENCE:
                continue
            sentence = " ".join(words)
            if sentence in first:
                faults.add(text.path, number, f'the sentence of {first[sentence]} again: "{sentence[:50]}"')
            first.setdefault(sentence, f"{text.path.name}:{number}")


def runs(text):
    """Every run of five words of a text; a run goes on across the end of a sentence."""
    words = [word for _, sentence in text.sentences() for word in sentence]
    return {" ".join(words[i: i + RUN]) for i in range(len(words) - RUN + 1)}


def check_runs(texts, faults):
    """No two texts share more than a few of their runs, measured by the shorter one."""
    counts, holders = [], defaultdict(list)
    for index, text in enumerate(texts):
        found = runs(text)
        counts.append(len(found))
        for run in found:
            holders[run].append(index)
    shared = defaultdict(list)
    for run, indices in holders.items():
        for pair in combinations(indices, 2):
            shared[pair].append(run)
    for (one, other), common in sorted(shared.items()):
        fewer = min(counts[one], counts[other])
        if len(common) > MOST_SHARED_RUNS * fewer:
            faults.add(texts[other].path, texts[other].number,
                       f'{len(common)} of {fewer} runs of five words as in {texts[one].place}: "{min(common)}"')


def check_openings(texts, faults):
    """Few texts of a family begin with the same words."""
    seen = Counter()
    for text in texts:
        opening = " ".join(next((words for _, words in text.sentences()), [])[:OPENING])
        seen[text.family, opening] += 1
        if seen[text.family, opening] == MOST_ALIKE_OPENINGS + 1:
            faults.add(text.path, text.number,
                       f'of the {text.family}, more than {MOST_ALIKE_OPENINGS} begin "{opening}"')


def check_rules(texts, faults):
    for text in texts:
        check_form(text, faults)
        check_length(text, faults)
        check_barred_words(text, faults)
    check_sentences(texts, faults)
    check_runs(texts, faults)
    check_openings(texts, faults)
