#!/usr/bin/env python3
"""Makes the texts that compare.sh measures with: make_inputs.py FOLDER [BOOK]

Without a book the English text is generated: words of a fixed seed whose frequencies follow Zipf's
law. Every run makes the same texts.
"""
import os
import random
import re
import sys

MEGABYTE = 1 << 20
LANGUAGES = ("en", "fr", "de", "pl", "ru", "el")
DATA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "data")


def words_of(seed, count, letters="etaoinshrdlucmfwypvbgk"):
    """Different words, short ones first."""
    chance = random.Random(seed)
    seen, words = set(), []
    while len(words) < count:
        word = "".join(chance.choices(letters, k=min(2 + len(words).bit_length() // 2, 12)))
        if word not in seen:
            seen.add(word)
            words.append(word)
    return words


def lines_of(words, seed, size):
    """Lines of some 70 characters; the n-th word is about n times as rare as the first."""
    chance = random.Random(seed)
    weights = [1 / (n + 1) for n in range(len(words))]
    cumulated, total = [], 0.0
    for weight in weights:
        total += weight
        cumulated.append(total)
    out, written = [], 0
    while written < size:
        line = " ".join(chance.choices(words, cum_weights=cumulated, k=12)).capitalize() + ".\n"
        out.append(line)
        written += len(line)
    return "".join(out)


def different(count, repeats, seed):
    """Every one of `count` words `repeats` times, in no order."""
    chance = random.Random(seed)
    words = words_of(seed, count) * repeats
    chance.shuffle(words)
    return "".join(" ".join(words[i:i + 12]) + "\n" for i in range(0, len(words), 12))


def language(path, size):
    """A text of a language: its common words, and pairs of them as its rarer and longer ones."""
    with open(path, encoding="utf-8") as file:
        common = list(dict.fromkeys(re.sub(r"/\*.*?\*/", " ", file.read(), flags=re.S).lower().split()))
    chance = random.Random(6)
    chance.shuffle(common)
    pairs = dict.fromkeys("".join(chance.choices(common, k=2)) for _ in range(14_000))
    return lines_of(common + list(pairs), 7, size)


def accented(text):
    """Every fourth vowel bears an accent."""
    marks = {"a": "\u00e1", "e": "\u00e9", "i": "\u00ed", "o": "\u00f3", "u": "\u00fc"}
    out, vowels = [], 0
    for ch in text:
        if ch in marks:
            vowels += 1
            ch = marks[ch] if vowels % 4 == 0 else ch
        out.append(ch)
    return "".join(out)


def html(text):
    return "".join(f'<p class="c{i % 7}">{line[:-1]} <b>&nbsp;caf&eacute;</b></p>\n'
                   for i, line in enumerate(text.splitlines(True)))


def c_source(text):
    out = []
    for i, line in enumerate(text.splitlines()):
        name = "_".join(line.rstrip(".").lower().split()[:2])
        out.append(f"  int {name} = call({i});  // {line}\n" if i % 2 else
                   f"  if ({name} > {i} && x->y != 0) {{ return \"{name}\"; }}\n")
    return "".join(out)


def write(folder, name, text):
    with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
        file.write(text)


def many_files(folder, text, folders, files, size):
    """Folders of files that hold the text from end to end, again and again."""
    place = 0
    for i in range(folders):
        below = os.path.join(folder, f"d{i:03}")
        os.makedirs(below)
        for k in range(files):
            write(below, f"f{k:02}.txt", text[place:place + size])
            place = (place + size) % (len(text) - size)


def main():
    folder = sys.argv[1]
    if len(sys.argv) > 2:
        with open(sys.argv[2], encoding="utf-8") as file:
            book = file.read()
    else:
        book = lines_of(words_of(1, 14_000), 2, 4 * MEGABYTE)
    write(folder, "book.txt", book)
    write(folder, "book10.txt", book * 10)
    write(folder, "accents10.txt", accented(book) * 10)
    write(folder, "html10.html", html(book) * 10)
    write(folder, "source10.c", c_source(book) * 10)
    write(folder, "words20k.txt", different(20_000, 200, 3))
    write(folder, "words2m.txt", different(2_000_000, 2, 4))
    write(folder, "line.txt", "Counting is all that it does.\n")
    for name in LANGUAGES:
        text = language(os.path.join(DATA, f"cwds_{name}.txt"), 2 * MEGABYTE)
        write(folder, f"language_{name}.txt", text * 8)
    many_files(os.path.join(folder, "many2k"), book, 200, 100, 2048)
    many_files(os.path.join(folder, "many50k"), book, 20, 100, 50_000)
    many_files(os.path.join(folder, "many800k"), book, 1, 100, 800_000)
    frequent = words_of(5, 400)
    common = sorted(set(book.lower().split()), key=len)
    write(folder, "list400.txt", "\n".join([w for w in common if w.isalpha()][:200] + frequent[:200]) + "\n")


main()
