#!/usr/bin/env python3
"""Draws what compare.sh has measured: picture.py RESULTS >PICTURE.svg

RESULTS has a line for each bar: its group, its label and its seconds, with tabs in between. A group's longest
bar fills the width, so bars are to be compared within their group.
"""
import sys
from html import escape

WIDTH, LEFT, BAR, STEP, RIGHT = 760, 300, 13, 20, 150
OURS, OTHERS = "#2a6fb0", "#b8bec6"


def groups_of(path):
    """The bars by group, in the order of the file."""
    groups = {}
    with open(path, encoding="utf-8") as results:
        for line in results:
            group, label, seconds = line.rstrip("\n").split("\t")
            groups.setdefault(group, []).append((label, float(seconds)))
    return groups


def bar(label, seconds, longest, top):
    """A label, its bar and its figure."""
    length = max(1.0, seconds / longest * (WIDTH - LEFT - RIGHT))
    colour = OURS if label.startswith("quillomat") else OTHERS
    base = top + BAR - 2
    return (f'<text x="{LEFT - 8}" y="{base}" text-anchor="end">{escape(label)}</text>'
            f'<rect x="{LEFT}" y="{top}" width="{length:.1f}" height="{BAR}" fill="{colour}"/>'
            f'<text x="{LEFT + length + 6:.1f}" y="{base}">{seconds:.3f} s</text>\n')


def picture(groups):
    out, top = [], 14
    for group, bars in groups.items():
        out.append(f'<text x="16" y="{top + 12}" font-weight="bold">{escape(group)}</text>\n')
        top += STEP + 4
        longest = max(seconds for _, seconds in bars)
        for label, seconds in bars:
            out.append(bar(label, seconds, longest, top))
            top += STEP
        top += 12
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{top}" '
            f'viewBox="0 0 {WIDTH} {top}" role="img" aria-label="How long counting takes" '
            'font-family="sans-serif" font-size="12" fill="#1c2430">\n'
            f'<rect width="{WIDTH}" height="{top}" fill="#ffffff"/>\n{"".join(out)}</svg>\n')


def main():
    sys.stdout.write(picture(groups_of(sys.argv[1])))


main()
