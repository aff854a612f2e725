"""The pictures of the table: background, table top, score panel, turn and wild-card
markers, banners and the hand cursor."""

import math

from frame import (BLUE, BLUE_DARK, BLUE_LIGHT, EDGE, GOLD, GOLD_DARK, GOLD_LIGHT, LACQUER,
                   LACQUER_DARK, RED, RED_DARK, crest)
from lettering import fit_cap, lettering, writing
from svg import Doc, circle, clip_segment, group, num, path, rect

FELT_DARK, FELT, FELT_LIGHT = "#0B2519", "#143B28", "#1F5A3C"


def asanoha(box, side, colour, sw, op):
    """The hemp-leaf star pattern: a grid of triangles, each joined to its centre. Made of
    straight lines only, which Qt strokes quickly even across the whole background."""
    bx, by, bw, bh = box
    h = side * math.sqrt(3) / 2
    segs = []

    def seg(x0, y0, x1, y1):
        c = clip_segment(x0, y0, x1, y1, box)
        if c and abs(c[0] - c[2]) + abs(c[1] - c[3]) > 0.5:
            segs.append(f"M{num(c[0])},{num(c[1])} L{num(c[2])},{num(c[3])}")

    rows = int(bh / h) + 2
    cols = int(bw / side) + 3
    for r in range(rows):
        y0, y1 = by + r * h, by + (r + 1) * h
        shift = (side / 2) * (r % 2)
        for c in range(-1, cols):
            x = bx + c * side - shift
            # An upward and a downward triangle per cell, each with its three spokes.
            for tri in (((x, y1), (x + side, y1), (x + side / 2, y0)),
                        ((x + side / 2, y0), (x + side * 1.5, y0), (x + side, y1))):
                cx = sum(p[0] for p in tri) / 3
                cy = sum(p[1] for p in tri) / 3
                for px, py in tri:
                    seg(px, py, cx, cy)
            seg(x, y1, x + side / 2, y0)
            seg(x + side / 2, y0, x + side, y1)
        seg(bx, y0, bx + bw, y0)
    # Short paths of a few dozen lines each: Qt strokes those several times faster than
    # one path that spans the picture.
    chunks = [" ".join(segs[i:i + 24]) for i in range(0, len(segs), 24)]
    return group([path(c, "none", colour, sw) for c in chunks], op=op)


def background():
    """800 x 600: dark green felt with a faint wave pattern; the table sits on its left."""
    doc = Doc(800, 600)
    doc.add(rect(0, 0, 800, 600, doc.radial([(0, FELT), (1, FELT_DARK)], 0.3, 0.45, 0.75)))
    doc.add(asanoha((0, 0, 800, 600), 76, "#7FC09A", 1.4, 0.1))
    return doc.text()


def table_top():
    """370 x 209, stretched wide by the table: a lighter felt tray in a lacquer rim."""
    doc = Doc(370, 209)
    doc.add(rect(0, 0, 370, 209, doc.linear([(0, "#4A1E14"), (1, "#2A100B")]), rx=12))
    doc.add(rect(3, 3, 364, 203, "none", GOLD, 1.4, rx=10, op=0.85))
    felt = doc.radial([(0, "#2C7A52"), (0.7, FELT_LIGHT), (1, "#16482F")], 0.5, 0.45, 0.7)
    doc.add(rect(8, 8, 354, 193, felt, rx=7))
    doc.add(asanoha((8, 8, 354, 193), 44, "#BFE6CC", 0.9, 0.07))
    doc.add(rect(8, 8, 354, 193, "none", "#000000", 2, rx=7, op=0.35))
    return doc.text()


def score_panel():
    """333 x 263: black lacquer with a gold frame and faint row rules. Pale gold labels
    stand at its left (x 8..51) and the pile cards to their right, in four rows."""
    doc = Doc(333, 263)
    doc.add(rect(0, 0, 333, 263, doc.linear([(0, "#2A1C17"), (1, "#140D0B")]), rx=8))
    doc.add(rect(2.5, 2.5, 328, 258, "none", GOLD, 1.6, rx=6, op=0.9))
    doc.add(rect(6, 6, 321, 251, "none", GOLD_DARK, 0.8, rx=4, op=0.8))
    # The label column, a shade darker than the rest.
    doc.add(rect(7, 8, 45, 247, "#000000", rx=3, op=0.22))
    for y in (71, 129, 190):
        doc.add(path(f"M10,{y} H322", "none", GOLD, 0.7, op=0.35))
    # A crest watermark at the lower right, where the pile rarely reaches.
    doc.add(group([crest(290, 222, 26, GOLD)], op=0.1))
    return doc.text()


def turn_marker(local, lang="en"):
    """120 x 34: a tag in the side's colour, blue for the local player, red opposite."""
    doc = Doc(120, 34)
    main, dark, light = (BLUE, BLUE_DARK, BLUE_LIGHT) if local else (RED, RED_DARK, "#E8584A")
    body = doc.linear([(0, light), (0.5, main), (1, dark)])
    tag = "M12,2 H116 Q118,2 118,4 V30 Q118,32 116,32 H12 L2,17 Z"
    doc.add(path(tag, body, EDGE, 1.6))
    doc.add(path("M13,4.5 H115.5 V29.5 H13 L4.8,17 Z", "none", GOLD_LIGHT, 0.9, op=0.8))
    doc.add(circle(12, 17, 3, EDGE, GOLD_LIGHT, 0.9))
    if lang == "ja":
        doc.add(writing("あなたの番" if local else "相手の番", 67, 17, 15, GOLD_LIGHT, EDGE, 0.12, outline_extra=0.8))
        return doc.text()
    text = "YOUR TURN" if local else "THEIR TURN"
    cap = fit_cap(text, 90, 14)
    doc.add(lettering(text, 67, 17, cap, GOLD_LIGHT, EDGE, 0.2, outline_extra=0.8))
    return doc.text()


def wild_marker(local):
    """15 x 24: a small tab with the wild card's lightning, in the side's colour."""
    doc = Doc(15, 24, 150, 240)
    main, dark = (BLUE, BLUE_DARK) if local else (RED, RED_DARK)
    doc.add(path("M12,12 H138 V190 L75,232 L12,190 Z", doc.linear([(0, main), (1, dark)]),
                 EDGE, 10))
    doc.add(path("M26,26 H124 V182 L75,214 L26,182 Z", "none", GOLD_LIGHT, 6))
    doc.add(path("M62,40 L108,40 L82,100 L110,100 L52,200 L66,122 L40,122 Z", GOLD_LIGHT,
                 EDGE, 7))
    return doc.text()


def hand_cursor():
    """32 x 32: a pointing hand whose fingertip, the hot spot, is at (9, 1)."""
    doc = Doc(32, 32)
    hand = ("M7.2,14.5 L7.2,3.4 C7.2,0.6 10.8,0.6 10.8,3.4 L10.8,11.8 "
            "C10.8,10 14,10 14,12 C14,10.4 17.2,10.4 17.2,12.4 C17.2,11 20.4,11 20.4,13 "
            "L20.6,20.5 C20.6,24 19.4,25.8 18.4,27.2 L10.2,27.2 C9,25.8 6.8,23.2 5,20.8 "
            "L2.6,17.4 C1.6,15.8 3.6,14.2 5,15.6 L7.2,17.8 Z")
    doc.add(path(hand, "#FFFFFF", "#000000", 1.2))
    doc.add(path("M14,12.4 V16.5 M17.2,12.8 V16.5 M10.8,11.8 V16", "none", "#000000", 0.9))
    doc.add(rect(9.6, 27.2, 9.4, 3.6, BLUE, "#000000", 1, rx=0.8))
    return doc.text()


# ---- banners ------------------------------------------------------------------------------

# Each stands over one side's hand, the player's or the opponent's, so each names that side's
# result and reads right over either.
BANNERS = {
    "bannerWin": ("WINNER", ("#D63A2E", LACQUER, LACQUER_DARK), GOLD_LIGHT, GOLD),
    "bannerLose": ("LOSER", ("#41507A", "#243056", "#151C36"), "#E4E8F0", "#9AA6C0"),
    "bannerTie": ("TIE", ("#3E6E52", "#1F4A34", "#10291C"), GOLD_LIGHT, GOLD),
}


# The banners' words in Japanese.
BANNERS_JA = {"bannerWin": "勝ち", "bannerLose": "負け", "bannerTie": "引き分け"}


def banner(name, lang="en"):
    """431 x 83: a lacquered scroll with rolled ends and the result in capitals."""
    text, (light, main, dark), ink_light, ink = BANNERS[name]
    doc = Doc(431, 83)
    cloth = doc.linear([(0, light), (0.45, main), (1, dark)])
    rod = doc.linear([(0, GOLD_DARK), (0.35, GOLD_LIGHT), (0.6, GOLD), (1, GOLD_DARK)], 0, 0,
                     1, 0)
    letters = doc.linear([(0, "#FFFFFF"), (0.45, ink_light), (1, ink)])
    doc.add(rect(18, 10, 395, 63, cloth, EDGE, 2))
    doc.add(rect(23, 14.5, 385, 54, "none", ink, 1.2, op=0.8))
    doc.add(rect(26, 17.5, 379, 48, "none", ink, 0.6, op=0.5))
    for x in (6, 413):
        doc.add(rect(x, 4, 12, 75, rod, EDGE, 1.6, rx=4))
        doc.add(rect(x + 2, 1, 8, 5, GOLD_DARK, EDGE, 1, rx=2))
        doc.add(rect(x + 2, 77, 8, 5, GOLD_DARK, EDGE, 1, rx=2))
    for x in (52, 379):
        doc.add(crest(x, 41.5, 17, doc.linear([(0, ink_light), (1, ink)])))
    # A few falling petals on the win banner, rain on the lose banner: mood at a glance.
    if name == "bannerWin":
        for i, (x, y) in enumerate([(92, 22), (340, 60), (110, 62), (318, 20)]):
            doc.add(circle(x, y, 2.6 + (i % 2), "#F6C2CF", op=0.9))
    elif name == "bannerLose":
        streaks = " ".join(f"M{x},{20 + (x * 7) % 18} l-3,10" for x in range(80, 360, 23))
        doc.add(path(streaks, "none", "#9AA6C0", 1, op=0.45))
    if lang == "ja":
        doc.add(writing(BANNERS_JA[name], 215.5, 42, 40, letters, EDGE, 0.1, shadow="#000000",
                        outline_extra=0.7))
        return doc.text()
    cap = fit_cap(text, 250, 34)
    doc.add(lettering(text, 215.5, 42, cap, letters, EDGE, 0.2, shadow="#000000",
                      outline_extra=0.7))
    return doc.text()
