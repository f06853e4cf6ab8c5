#!/usr/bin/env python3
"""Holds quillomat-cli's words of all letters against the rule as this script works it out by itself, from Python's
unicodedata: random texts of characters of all planes, and texts that are given.
Usage: check_letters.py QUILLOMAT-CLI [FILE...] [--texts N] [--seed N]
"""
import argparse
import collections
import os
import random
import re
import subprocess
import sys
import tempfile
import unicodedata

APOSTROPHES = dict.fromkeys(map(ord, "\u2018\u2019\u02BC\uFF07"), "'")
HYPHENS = dict.fromkeys(map(ord, "\u2010\u2011"), "-")
DROPPED = dict.fromkeys([0xAD, 0x61C, 0xFEFF, *range(0x200C, 0x2010), *range(0x202A, 0x202F),
                         *range(0x2066, 0x206A)])
WIDE = {code: chr(code - 0xFEE0) for code in range(0xFF01, 0xFF5F)}
LIGATURES = dict(zip(range(0xFB00, 0xFB07), ["ff", "fi", "fl", "ffi", "ffl", "st", "st"]))
REPLACED = {**WIDE, **LIGATURES, **APOSTROPHES, **HYPHENS, **DROPPED}
LETTERS_OF_THEIR_OWN = {"\u00e4": "ae", "\u00e6": "ae", "\u00f6": "oe", "\u0153": "oe", "\u00fc": "ue",
                        "\u00df": "ss", "\u00f8": "o", "\u0111": "d", "\u0127": "h", "\u0131": "i",
                        "\u0142": "l", "\u0167": "t"}
# What is left of contractions when apostrophes separate words.
FRAGMENTS = {"s", "t"} | {stem[i:] for stem in "aren couldn didn doesn hadn hasn isn shouldn wasn weren wouldn".split()
                          for i in range(len(stem))}
MOST_CHARACTERS = 100


def normal(text):
    return unicodedata.normalize("NFC", text.translate(REPLACED))


def lower(text):
    """By the simple mapping: one character for each."""
    return "".join("i" if ch == "\u0130" else ch.lower() if len(ch.lower()) == 1 else ch for ch in text)


def folded_case(ch):
    return ch.casefold() if len(ch.casefold()) == 1 else lower(ch)


# The feminine and the masculine ordinal, the turned F, the reversed C, and two colons.
LATIN_BY_ANOTHER_NAME = "\u00aa\u00ba\u2132\u214e\u2183\U00010781\U00010782"


def is_latin_or_greek(ch):
    """By their names, as Python knows no scripts; the micro sign is the Greek letter once case is folded."""
    ch = folded_case(ch)
    name = unicodedata.name(ch, "")
    if name.startswith(("MODIFIER LETTER", "SUPERSCRIPT LATIN")):
        base = unicodedata.name(unicodedata.normalize("NFKD", ch)[0], "")
        latin = ("SMALL" in name or "CAPITAL" in name) and "CYRILLIC" not in name
        return latin or base.startswith(("LATIN", "GREEK")) or ch in LATIN_BY_ANOTHER_NAME
    return name.startswith(("LATIN", "GREEK")) or ch in LATIN_BY_ANOTHER_NAME


def key(word):
    out, drops = [], False
    for ch in word:
        mark = unicodedata.category(ch)[0] == "M"
        if mark and drops:
            continue
        if not mark:
            drops = is_latin_or_greek(ch)
        ch = folded_case(ch)
        if drops and ch not in LETTERS_OF_THEIR_OWN:
            ch = folded_case(unicodedata.normalize("NFD", ch)[0])
        out.append(LETTERS_OF_THEIR_OWN.get(ch, ch) if drops else ch)
    return "".join(out)


def words_of(text):
    for line in text.split("\n"):
        line = unicodedata.normalize("NFC", lower(normal(line)))
        word = ""
        for ch in line + " ":
            kind = unicodedata.category(ch)[0]
            if kind == "L" or (kind == "M" and word):
                word += ch
                continue
            if word and word not in FRAGMENTS and len(word) <= MOST_CHARACTERS:
                yield word
            word = ""


def expected(text):
    first, counts = {}, collections.Counter()
    for word in words_of(text):
        counts[first.setdefault(key(word), word)] += 1
    return dict(counts)


OPTIONS = ["--letters", "all", "--no-hyphens", "--no-numerals", "--threads", "1", "--max-length", "100",
           "--keep-repetitions", "--keep-roman-numerals", "--keep-vowelless", "--order", "alphabetical"]


def counted(program, path):
    run = subprocess.run([program, *OPTIONS, path], capture_output=True, check=False)
    if run.returncode != 0:
        sys.exit(f"{path}: {run.stderr.decode()}")
    rows = (row.split(None, 2) for row in run.stdout.decode("utf-8").split("\n")[1:])
    return {row[2]: int(row[1]) for row in rows if len(row) == 3}


STARTS = [0x20, 0x41, 0x61, 0xC0, 0x100, 0x180, 0x250, 0x2B0, 0x300, 0x370, 0x3D0, 0x400, 0x480, 0x530, 0x590, 0x620,
          0x900, 0x980, 0xB80, 0xE00, 0x1000, 0x10A0, 0x1100, 0x1200, 0x13A0, 0x1C80, 0x1D00, 0x1DC0, 0x1E00, 0x1F00,
          0x2000, 0x2100, 0x2C00, 0x3040, 0x30A0, 0x4E00, 0xA640, 0xA720, 0xAB30, 0xAC00, 0xD7B0, 0xF900, 0xFB00,
          0xFE00, 0xFF00, 0x10400, 0x11000, 0x1D400, 0x1DF00, 0x1E900, 0x1F600, 0x20000, 0x2F800, 0x30000, 0xE0100,
          0xF0000, 0x10FF00]


# Thai, Lao, Burmese, Khmer, kana, Han.
UNSPACED = [(0xE00, 0xEFF), (0x1000, 0x109F), (0x1780, 0x17FF), (0x3000, 0x30FF), (0x31F0, 0x31FF), (0x3400, 0x4DBF),
            (0x4E00, 0x9FFF), (0xA9E0, 0xA9FF), (0xAA60, 0xAA7F), (0xF900, 0xFAFF), (0xFF66, 0xFF9F),
            (0x1AFF0, 0x1B16F), (0x20000, 0x3FFFF)]


def is_unspaced(ch):
    return unicodedata.category(ch)[0] == "L" and any(first <= ord(ch) <= last for first, last in UNSPACED)


def apart(text):
    """With blanks around letters of scripts without blanks, each with its marks: what a dictionary makes of them
    together is not this script's to judge."""
    out, inside = [], False
    for ch in text:
        mark = unicodedata.category(ch)[0] == "M"
        if is_unspaced(ch) or (inside and not mark):
            out.append(" ")
        inside = is_unspaced(ch) or (inside and mark)
        out.append(ch)
    return "".join(out)


def random_text(chance):
    blocks = [chance.choice(STARTS) for _ in range(chance.randint(1, 4))]
    out = []
    for _ in range(chance.randint(1, 120)):
        turn = chance.random()
        if turn < 0.12:
            out.append(" ")
        elif turn < 0.16:
            out.append(chance.choice("\u00ad\u200d\u2019\u2010\u0301\u0323\u0130\u03a3\u00df.\n"))
        elif turn < 0.25:
            out.append(chr(chance.randrange(0x110000)))
        else:
            out.append(chr(chance.choice(blocks) + chance.randrange(0x80)))
    return forms("".join(out))


def forms(text):
    """The text, and the same in other spellings, of which many are the same words."""
    bare = "".join(ch for ch in unicodedata.normalize("NFD", text) if unicodedata.category(ch)[0] != "M")
    out = " ".join([text, unicodedata.normalize("NFD", text), text.upper(), text.lower(), bare])
    known = [ch for ch in out if unicodedata.category(ch) not in ("Cn", "Cs", "Cc") or ch == "\n"]
    # Entities and comments have rules of their own.
    text = "".join(ch for ch in known if normal(ch) not in ("&", "<", "/", "*", "\u2028", "\u2029"))
    return "word " + apart(text) + "\n"


def skip_where_unknown(program):
    """This script cannot judge a program that knows an older Unicode than Python."""
    run = subprocess.run([program, "--version"], capture_output=True, check=True)
    version = re.search(r"Unicode (\d+)\.(\d+)", run.stdout.decode())
    if version is None:
        sys.exit("the program does not tell its version of Unicode")
    if tuple(map(int, version.groups())) < tuple(map(int, unicodedata.unidata_version.split(".")[:2])):
        print("Python knows a later Unicode,", unicodedata.unidata_version)
        sys.exit(77)


def difference(program, path, text):
    """What differs for one text, in a few words; nothing where both agree."""
    theirs, ours = counted(program, path), expected(text)
    words = sorted(word for word in {*theirs, *ours} if theirs.get(word) != ours.get(word))
    return ["%s (%s): %s here, %s there" % (word, " ".join(f"{ord(ch):04X}" for ch in word),
                                            ours.get(word, 0), theirs.get(word, 0)) for word in words]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("files", nargs="*")
    parser.add_argument("--texts", type=int, default=200)
    parser.add_argument("--seed", type=int, default=random.SystemRandom().randrange(1 << 32))
    choices = parser.parse_args()
    skip_where_unknown(choices.program)
    faults = words = 0
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "text.txt")
        chance = random.Random(choices.seed)
        for number in range(choices.texts):
            text = random_text(chance)
            with open(path, "w", encoding="utf-8", newline="") as file:
                file.write(text)
            words += len(expected(text))
            found = difference(choices.program, path, text)
            faults += bool(found)
            if found:
                print(f"text {number}:", *found, sep="\n  ")
    for name in choices.files:
        with open(name, encoding="utf-8", newline="") as file:
            text = file.read()
        words += len(expected(text))
        found = difference(choices.program, name, text)
        faults += bool(found)
        if found:
            print(f"{name}:", *found[:20], sep="\n  ")
    print(f"seed {choices.seed}: {choices.texts} random texts and {len(choices.files)} files, {words} words,"
          f" {faults} texts differ")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
