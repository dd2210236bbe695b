#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes Keywords.txt and QuickHelp.txt from a table of the language's words.

The table is UTF-8 text, one word per line, its fields separated by tabs: word, kind, signature, theme.
Line i of QuickHelp.txt is the signature of the word on line i of Keywords.txt; the editor pairs the two
files by position alone, so everything that would shift or hide an entry stops this script.
"""

import argparse
import pathlib
import sys

WORD_LIMIT = 600  # the program's tables hold no more and refuse to start with more


def read_entries(table):
    """The (word, signature) pairs of the table, in its order, without the words that hold a blank.

    A word with a blank is never the word under the caret, so it could be neither coloured nor helped.
    """
    entries = []
    for number, line in enumerate(table.read_text(encoding="utf-8").rstrip("\n").split("\n"), start=1):
        fields = line.split("\t")
        if len(fields) != 4:
            raise ValueError(f"line {number}: 4 fields expected, {len(fields)} found")
        word, _, signature, _ = fields
        if " " not in word:
            entries.append((word, signature))
    return entries


def check_words(words):
    """Raises ValueError if there are too many words, or one would not come back from Keywords.txt as it went in."""
    if len(words) > WORD_LIMIT:
        raise ValueError(f"{len(words)} words, {WORD_LIMIT} is the limit")
    seen = set()
    for word in words:
        if not word or any(mark in word for mark in ',"'):
            raise ValueError(f"'{word}' cannot be one item of Keywords.txt")
        if word.upper() in seen:
            raise ValueError(f"'{word}' occurs twice; its second help line could never be shown")
        seen.add(word.upper())


def write_lines(path, lines):
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("cp1252"))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("table", type=pathlib.Path, help="tab-separated table of words")
    parser.add_argument("folder", type=pathlib.Path, help="folder that receives the two files")
    arguments = parser.parse_args()
    try:
        entries = read_entries(arguments.table)
        check_words([word for word, _ in entries])
        write_lines(arguments.folder / "Keywords.txt", [word for word, _ in entries])
        write_lines(arguments.folder / "QuickHelp.txt", [signature for _, signature in entries])
    except ValueError as error:
        sys.exit(f"{arguments.table}: {error}")


if __name__ == "__main__":
    main()
