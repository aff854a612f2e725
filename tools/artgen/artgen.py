#!/usr/bin/env python3
"""Writes every picture of the game as assets/svg/<name>.svg, and those with words in them
again in Japanese as <name>_ja.svg.

Run from anywhere: python3 tools/artgen/artgen.py [output folder]. The output is
deterministic, so the SVGs kept in the repository change only when the drawing does."""

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import deck  # noqa: E402
import extras  # noqa: E402
import table  # noqa: E402


def pictures():
    """Every (name, svg text) pair the registry loads from a file."""
    for i in range(48):
        yield f"card{i:02d}", deck.face(i)
    yield "back", deck.back()
    for name in table.BANNERS:
        yield name, table.banner(name)
        yield name + "_ja", table.banner(name, "ja")
    yield "background", table.background()
    yield "tableTop", table.table_top()
    yield "scorePanel", table.score_panel()
    yield "turnLocal", table.turn_marker(True)
    yield "turnOpposite", table.turn_marker(False)
    yield "turnLocal_ja", table.turn_marker(True, "ja")
    yield "turnOpposite_ja", table.turn_marker(False, "ja")
    yield "wildLocal", table.wild_marker(True)
    yield "wildOpposite", table.wild_marker(False)
    yield "handCursor", table.hand_cursor()
    yield from extras.pictures()


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, "..", "..", "assets", "svg")
    os.makedirs(out, exist_ok=True)
    count = 0
    for name, text in pictures():
        with open(os.path.join(out, name + ".svg"), "w", encoding="utf-8", newline="\n") as f:
            f.write(text)
        count += 1
    print(f"wrote {count} pictures to {os.path.normpath(out)}")


if __name__ == "__main__":
    main()
