#!/usr/bin/env python3
"""Prints the ranges of CaseFoldTable.inc: ./CaseFold.py > CaseFoldTable.inc

A character is mapped where it has a single upper-case form that maps back to it, both within the Basic Multilingual
Plane. This is the table that Windows compares registry names with: it leaves out one-way forms such as the dotless i
(U+0131) and the long s (U+017F).

The folded names are part of the embedded store's format: a table that maps any character differently needs a new
format number there.
"""
import unicodedata


def simple_upper(code):
    text = chr(code)
    for upper in (text.upper(), text.title()):
        if len(upper) == 1:
            return ord(upper)
    return code


def mapped():
    for code in range(0x10000):
        if 0xD800 <= code < 0xE000:
            continue
        upper = simple_upper(code)
        if upper != code and upper < 0x10000 and chr(upper).lower() == chr(code):
            yield code, upper - code


def ranges():
    """Runs of equal distance, of every character (step 1) or every second one (step 2)."""
    run = None
    for code, delta in mapped():
        if run and delta == run[3]:
            step = code - run[1]
            if step <= 2 and run[2] in (0, step):
                run[1], run[2] = code, step
                continue
        if run:
            yield run
        run = [code, code, 0, delta]
    yield run


print(f"// Made by CaseFold.py from Unicode {unicodedata.unidata_version}. First, last, step, distance to the upper case.")
print("// clang-format off")
for first, last, step, delta in ranges():
    print(f"{{0x{first:04X}, 0x{last:04X}, {max(step, 1)}, {delta}}},")
print("// clang-format on")
