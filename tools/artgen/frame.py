"""The common card frame, the palette, the ribbons and the card back.

Cards are designed on a 500 x 800 view box and shown at 50 x 80 pixels, so one pixel at 1x
is ten units: anything that must read at 1x is drawn at least 20 units wide, and outlines
are 5 to 8 units so that shapes keep a dark edge on the small card.
"""

import math

from svg import (Doc, circle, group, lattice, path, polar, rect, rotate, smooth, tapered,
                 translate)

W, H = 500, 800

# One palette for the whole game: warm paper, lacquer red, indigo, gold and sumi ink.
INK = "#221915"
PAPER_TOP, PAPER_BOTTOM = "#FBF4E2", "#EFE3C6"
RED, RED_DARK, RED_LIGHT = "#CC2F29", "#8C1A17", "#E8584A"
BLUE, BLUE_DARK, BLUE_LIGHT = "#2C56A8", "#1B356F", "#5B82CC"
GOLD, GOLD_DARK, GOLD_LIGHT = "#D8AE45", "#9C7520", "#F3DA8C"
LABEL_GOLD = "#EED88C"
EDGE = "#1B1310"
LACQUER, LACQUER_DARK = "#7A1518", "#4E0B0E"

# Paper lies inside this rectangle; scenes stay inside it and the frame ring covers
# whatever reaches its rounded corners (Qt's SVG module has no clipping).
INNER = (12, 12, 476, 776)
INNER_R = 22
OUTER_R = 30


def rounded_rect_d(x, y, w, h, r):
    return (f"M{x + r},{y} H{x + w - r} A{r},{r} 0 0 1 {x + w},{y + r} V{y + h - r} "
            f"A{r},{r} 0 0 1 {x + w - r},{y + h} H{x + r} A{r},{r} 0 0 1 {x},{y + h - r} "
            f"V{y + r} A{r},{r} 0 0 1 {x + r},{y} Z")


def ring(fill, outer, inner, r_out, r_in):
    """A frame between two rounded rectangles (even-odd fill)."""
    d = rounded_rect_d(*outer, r_out) + " " + rounded_rect_d(*inner, r_in)
    return f'<path d="{d}" fill="{fill}" fill-rule="evenodd"/>'


def new_card(sky=None):
    """A card document with its paper laid; sky is an optional fill for the whole paper."""
    doc = Doc(50, 80, W, H)
    paper = sky or doc.linear([(0, PAPER_TOP), (1, PAPER_BOTTOM)])
    doc.add(rect(0, 0, W, H, EDGE, rx=OUTER_R))
    doc.add(rect(*INNER, paper, rx=INNER_R))
    return doc


def finish_card(doc, accent=None, accent2=None):
    """Lays the frame ring over the scene; accent gives a coloured inner frame for the cards
    that must stand out from their month (the wild card, the 10-point paulownia)."""
    doc.add(ring(EDGE, (0, 0, W, H), INNER, OUTER_R, INNER_R))
    # A faint light line inside the dark edge keeps the card crisp against the dark table.
    doc.add(rect(INNER[0] + 2, INNER[1] + 2, INNER[2] - 4, INNER[3] - 4, "none",
                 "#FFFFFF", 3, rx=INNER_R - 2, op=0.25))
    if accent:
        doc.add(ring(accent, (12, 12, 476, 776), (34, 34, 432, 732), INNER_R, 10))
        doc.add(rect(22, 22, 456, 756, "none", accent2 or INK, 4, rx=16))
        doc.add(rect(38, 38, 424, 724, "none", accent2 or INK, 4, rx=8))
    return doc.text()


def sky_band(y0, y1, fill, wave=0.0, phase=0.0, op=None):
    """A band across the paper between y0 and y1, with an optional wavy top edge."""
    x0, x1 = INNER[0], INNER[0] + INNER[2]
    top = [(x0 + (x1 - x0) * i / 10,
            y0 + wave * math.sin(i * 0.9 + phase)) for i in range(11)]
    d = smooth(top)
    d += f" L{x1},{y1} L{x0},{y1} Z"
    return path(d, fill, op=op)


def mist(doc, y, x0, x1, colour, h=34, op=1.0):
    """A cloud band ("kasumi"): a rounded bar with scalloped ends, a traditional way to
    fill a card's sky or ground with colour."""
    r = h / 2
    d = (f"M{x0 + r},{y - r} H{x1 - r} A{r},{r} 0 0 1 {x1 - r},{y + r} "
         f"H{x0 + r} A{r},{r} 0 0 1 {x0 + r},{y - r} Z")
    return path(d, colour, INK, 4, op=op)


# ---- ribbons ----------------------------------------------------------------------------

RIBBON_RED = (RED, RED_DARK, "#F07B6A")
RIBBON_BLUE = (BLUE, BLUE_DARK, "#7FA2DE")


def ribbon(cx, cy, colours, angle=-14, length=430, width=84, writing=None):
    """A poem-slip ribbon standing at (cx, cy), slanted by angle, with a folded top.
    writing: None, or a number choosing one of the brushed inscriptions."""
    main, dark, light = colours
    w2, top, bot = width / 2, -length / 2, length / 2
    items = []
    # The strip, a little wider at the foot, its lower end cut square with a slight swing.
    strip = (f"M{-w2},{top + 40} L{w2},{top + 22} L{w2 + 6},{bot - 10} "
             f"Q{0},{bot + 14} {-w2 - 6},{bot} Z")
    items.append(path(strip, main, INK, 7))
    # Its shaded right side gives the paper slip some body.
    items.append(path(f"M{w2 - 16},{top + 26} L{w2 - 10},{bot - 8} L{w2 + 3},{bot - 10} "
                      f"L{w2 - 2},{top + 24} Z", dark, op=0.55))
    items.append(path(f"M{-w2 + 12},{top + 46} L{-w2 + 10},{bot - 12}", "none", light, 6,
                      op=0.7))
    # The fold at the top: the slip turns over a cord.
    fold = (f"M{-w2 - 4},{top + 40} L{-w2 + 10},{top - 6} L{w2 + 14},{top - 22} "
            f"L{w2},{top + 22} Z")
    items.append(path(fold, dark, INK, 7))
    items.append(path(f"M{-w2 + 14},{top + 2} L{w2 + 4},{top - 12}", "none", light, 5, op=0.6))
    if writing is not None:
        items.append(inscription(writing, 0, top + 70, length - 120))
    return group(items, f"{translate(cx, cy)} {rotate(angle)}")


# Three abstract brushed marks per inscription; they read as writing without being any.
_GLYPHS = [
    [[(-22, 0), (6, -6), (20, 4)], [(0, -14), (-4, 20), (-14, 40)], [(8, 14), (22, 36)]],
    [[(-20, -4), (18, -8)], [(-4, -20), (2, 18), (-12, 32), (-20, 26)], [(12, 8), (20, 28)]],
    [[(-18, -12), (-6, 2), (-16, 18)], [(4, -18), (10, 4), (2, 30)], [(-22, 30), (20, 26)]],
    [[(-16, -10), (16, -14)], [(-20, 6), (20, 2)], [(0, -22), (-2, 36)]],
    [[(-6, -22), (-14, 8), (-22, 30)], [(-4, -4), (16, 6), (8, 34)], [(18, -16), (22, -6)]],
    [[(-20, 10), (0, -16), (20, 12)], [(-10, 20), (12, 34)], [(0, -24), (2, -12)]],
]


def inscription(seed, cx, y0, span):
    """Brush writing down a ribbon: three or four glyph shapes spaced along span."""
    items = []
    count = 3 if seed % 2 == 0 else 4
    step = span / count
    for k in range(count):
        strokes = _GLYPHS[(seed * 3 + k * 2) % len(_GLYPHS)]
        gy = y0 + step * (k + 0.5) - 20
        for s in strokes:
            p = [(cx + x * 0.9, gy + y * 0.9) for x, y in s]
            items.append(path(tapered(p, 13, 5, 11), INK))
    return group(items)


# ---- the back ---------------------------------------------------------------------------

def back():
    """The card back: red lacquer, a gold frame and a gold flower crest, bold enough to
    read at 25 x 40 pixels in the yaku rows."""
    doc = Doc(50, 80, W, H)
    lac = doc.linear([(0, "#9C2024"), (0.55, LACQUER), (1, LACQUER_DARK)], 0, 0, 0.4, 1)
    gold = doc.linear([(0, GOLD_LIGHT), (0.5, GOLD), (1, GOLD_DARK)], 0, 0, 1, 1)
    doc.add(rect(0, 0, W, H, EDGE, rx=OUTER_R))
    doc.add(rect(*INNER, lac, rx=INNER_R))
    # A lattice of fine diamonds, quiet enough to stay a texture.
    doc.add(lattice(INNER, 60, "#000000", 3, 0.18))
    doc.add(ring(gold, (40, 40, 420, 720), (56, 56, 388, 688), 16, 10))
    doc.add(rect(68, 68, 364, 664, "none", GOLD, 3, rx=8, op=0.8))
    doc.add(crest(250, 400, 120, gold))
    doc.add(ring(EDGE, (0, 0, W, H), INNER, OUTER_R, INNER_R))
    return doc.text()


def crest(cx, cy, r, gold):
    """A five-petalled flower in a ring: the house crest of our deck."""
    items = [circle(cx, cy, r, "none", gold, r * 0.12)]
    for i in range(5):
        px, py = polar(cx, cy, r * 0.42, -90 + 72 * i)
        items.append(circle(px, py, r * 0.34, gold, INK, 4))
    items.append(circle(cx, cy, r * 0.2, LACQUER_DARK, gold, 6))
    for i in range(5):
        x, y = polar(cx, cy, r * 0.34, -54 + 72 * i)
        items.append(circle(x, y, r * 0.05, LACQUER_DARK))
    return group(items)
