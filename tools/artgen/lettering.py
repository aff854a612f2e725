"""Capital letters drawn as strokes, for banners, tags and titles.

The pictures carry their writing as paths rather than SVG text so that they look the same
on every machine whatever fonts it has. Glyphs are drawn on a grid 14 units high (the cap
height), strokes with round ends, and measured so that a line can be centred."""

from svg import group, num, path

# Path data on the 14-unit grid, and the advance width of each glyph before spacing.
GLYPHS = {
    "A": ("M0,14 L5,0 L10,14 M2.2,9 L7.8,9", 10),
    "B": ("M0,14 L0,0 L5.5,0 C9,0 9,7 5.5,7 L0,7 M5.5,7 C10,7 10,14 5.5,14 L0,14", 9),
    "C": ("M10,3 C8,-1 0,-1 0,7 C0,15 8,15 10,11", 10),
    "D": ("M0,0 L0,14 L4,14 C11,14 11,0 4,0 Z", 9.5),
    "E": ("M9,0 L0,0 L0,14 L9,14 M0,7 L7,7", 9),
    "F": ("M9,0 L0,0 L0,14 M0,7 L7,7", 8.5),
    "G": ("M10,3 C8,-1 0,-1 0,7 C0,15 9,15 10,10 L10,8 L6,8", 10.5),
    "H": ("M0,0 L0,14 M10,0 L10,14 M0,7 L10,7", 10),
    "I": ("M0,0 L0,14", 0),
    "J": ("M7,0 L7,10 C7,15 0,15 0,11", 7),
    "K": ("M0,0 L0,14 M9,0 L0,8.5 M3,5.8 L9.5,14", 9.5),
    "L": ("M0,0 L0,14 L8,14", 8),
    "M": ("M0,14 L0,0 L6,12 L12,0 L12,14", 12),
    "N": ("M0,14 L0,0 L10,14 L10,0", 10),
    "O": ("M5.5,0 C-1.5,0 -1.5,14 5.5,14 C12.5,14 12.5,0 5.5,0 Z", 11),
    "P": ("M0,14 L0,0 L5,0 C10,0 10,8 5,8 L0,8", 8.5),
    "Q": ("M5.5,0 C-1.5,0 -1.5,14 5.5,14 C12.5,14 12.5,0 5.5,0 Z M7,10 L11,15", 11),
    "R": ("M0,14 L0,0 L5,0 C10,0 10,8 5,8 L0,8 M5,8 L9.5,14", 9.5),
    "S": ("M9.5,2.5 C8,-0.5 0.5,-0.5 0.5,3.5 C0.5,7 9.5,6.5 9.5,10.5 C9.5,15 1.5,15 0,11.5",
          10),
    "T": ("M0,0 L10,0 M5,0 L5,14", 10),
    "U": ("M0,0 L0,9 C0,15.5 10,15.5 10,9 L10,0", 10),
    "V": ("M0,0 L5,14 L10,0", 10),
    "W": ("M0,0 L3.5,14 L7,3 L10.5,14 L14,0", 14),
    "X": ("M0,0 L10,14 M10,0 L0,14", 10),
    "Y": ("M0,0 L5,7 L10,0 M5,7 L5,14", 10),
    "Z": ("M0,0 L10,0 L0,14 L10,14", 10),
    "!": ("M0,0 L0,9 M0,13.9 L0,14", 0),
    "'": ("M0,0 L0,4", 0),
    "-": ("M0,8 L6,8", 6),
    " ": ("", 3),
}

GAP = 4.2  # space between glyphs, in grid units


def measure(text):
    """Width of a line in grid units, from the left of the first stroke to the right of
    the last."""
    w = sum(GLYPHS[c][1] for c in text) + GAP * (len(text) - 1)
    return w


def _shape(text):
    d = []
    x = 0.0
    for c in text:
        data, width = GLYPHS[c]
        if data:
            d.append(_shift(data, x))
        x += width + GAP
    return " ".join(d)


def _shift(data, dx):
    """Moves a glyph's absolute path data right by dx."""
    out, tokens, i = [], data.replace(",", " , ").split(), 0
    expect_x = True
    while i < len(tokens):
        t = tokens[i]
        if t[0].isalpha():
            out.append(t[0])
            rest = t[1:]
            expect_x = True
            if rest:
                out.append(num(float(rest) + dx))
                expect_x = False
        elif t == ",":
            out.append(",")
        else:
            out.append(num(float(t) + dx) if expect_x else t)
            expect_x = not expect_x
        i += 1
    return " ".join(out).replace(" , ", ",")


def lettering(text, cx, cy, cap, fill, outline=None, weight=0.2, shadow=None,
              outline_extra=0.55, highlight=None):
    """A line of capitals centred on (cx, cy), cap units tall. fill may be a gradient.
    Drawn as an outline stroke (wider, dark), an optional offset shadow, then the fill."""
    k = cap / 14.0
    w = measure(text) * k
    tr = f"translate({num(cx - w / 2)} {num(cy - cap / 2)}) scale({k:.4f})"
    d = _shape(text)
    sw = weight * 14
    items = []
    if shadow:
        items.append(group([path(d, "none", shadow, sw * (1 + outline_extra * 2))],
                           f"translate({num(cx - w / 2 + cap * 0.06)} "
                           f"{num(cy - cap / 2 + cap * 0.08)}) scale({k:.4f})"))
    if outline:
        items.append(group([path(d, "none", outline, sw * (1 + outline_extra))], tr))
    items.append(group([path(d, "none", fill, sw)], tr))
    if highlight:
        items.append(group([path(d, "none", highlight, sw * 0.3, op=0.7)],
                           f"translate({num(cx - w / 2 - cap * 0.015)} "
                           f"{num(cy - cap / 2 - cap * 0.03)}) scale({k:.4f})"))
    return group(items)


def fit_cap(text, width, cap_max):
    """The largest cap height, up to cap_max, at which text fits in width."""
    return min(cap_max, width / measure(text) * 14.0)


# Japanese is written with the font that the Debian package of the game depends on
# (fonts-noto-cjk): a stroke alphabet of its thousands of characters is beyond this script.
JAPANESE_FACE = "Noto Serif CJK JP"


def writing(text, cx, cy, size, fill, outline=None, weight=0.2, shadow=None, outline_extra=0.55):
    """A line of Japanese centred on (cx, cy), its characters size units tall, drawn as the
    capitals are: an outline stroke, an optional offset shadow, then the fill."""
    base = (f'x="{num(cx)}" y="{num(cy + size * 0.36)}" font-family="{JAPANESE_FACE}" '
            f'font-size="{num(size)}" font-weight="bold" text-anchor="middle"')
    sw = weight * size
    items = []
    if shadow:
        items.append(f'<text {base} fill="{shadow}" stroke="{shadow}" stroke-width="{num(sw * (1 + outline_extra * 2))}" '
                     f'stroke-linejoin="round" transform="translate({num(size * 0.06)} {num(size * 0.08)})">{text}</text>')
    if outline:
        items.append(f'<text {base} fill="{outline}" stroke="{outline}" stroke-width="{num(sw * (1 + outline_extra))}" '
                     f'stroke-linejoin="round">{text}</text>')
    items.append(f'<text {base} fill="{fill}">{text}</text>')
    return group(items)
