"""Drawing vocabulary shared by the months: branches, leaves, blossoms and brush marks.

Every motif is flat colour with a sumi-ink outline, the look of printed flower cards."""

import math

from frame import INK
from svg import (circle, clip_segment, ellipse, group, path, polar, rotate, smooth, tapered,
                 translate)


def branch(points, w0, w1, colour, outline=INK, ow=6):
    """A tapered limb: an ink outline under a coloured body."""
    d = tapered(points, w0, w1)
    return path(d, colour, outline, ow)


def leaf(x, y, angle, length, width, fill, vein=None, outline=INK, ow=5, bend=0.0):
    """A pointed leaf from its base at (x, y) pointing along angle (degrees, 0 = right)."""
    w = width / 2
    b = bend * length
    d = (f"M0,0 C{length * 0.25},{-w * 1.2 + b} {length * 0.7},{-w + b} {length},{b} "
         f"C{length * 0.7},{w + b} {length * 0.25},{w * 1.2 + b} 0,0 Z")
    items = [path(d, fill, outline, ow)]
    if vein:
        items.append(path(f"M{length * 0.08},0 Q{length * 0.5},{b * 0.6} {length * 0.9},{b}",
                          "none", vein, max(2.0, ow * 0.6)))
    return group(items, f"{translate(x, y)} {rotate(angle)}")


def petal_flower(cx, cy, r, petals, fill, centre, outline=INK, ow=5, notch=False,
                 phase=-90.0, petal_w=0.62, dots=None):
    """A flower of round (or notched) petals about a centre, as plum and cherry have."""
    items = []
    for i in range(petals):
        a = phase + 360.0 * i / petals
        pr = r * 0.5
        px, py = polar(cx, cy, r * 0.5, a)
        if notch:
            # A cherry petal: a rounded wedge with a notch at its tip.
            l1 = polar(cx, cy, r * 0.95, a - 22)
            r1 = polar(cx, cy, r * 0.95, a + 22)
            n1 = polar(cx, cy, r * 0.8, a)
            d = (f"M{cx},{cy} Q{polar(cx, cy, r * 0.7, a - 40)[0]},"
                 f"{polar(cx, cy, r * 0.7, a - 40)[1]} {l1[0]},{l1[1]} "
                 f"L{n1[0]},{n1[1]} L{r1[0]},{r1[1]} "
                 f"Q{polar(cx, cy, r * 0.7, a + 40)[0]},{polar(cx, cy, r * 0.7, a + 40)[1]} "
                 f"{cx},{cy} Z")
            items.append(path(d, fill, outline, ow))
        else:
            items.append(ellipse(px, py, pr, pr * petal_w / 0.62 * 0.95, fill, outline, ow,
                                 rot=a))
    items.append(circle(cx, cy, r * 0.26, centre, outline, ow * 0.7))
    if dots:
        for i in range(petals):
            a = phase + 360.0 * (i + 0.5) / petals
            x, y = polar(cx, cy, r * 0.42, a)
            items.append(circle(x, y, r * 0.07, dots))
    return group(items)


def bud(x, y, r, fill, outline=INK, ow=4):
    return circle(x, y, r, fill, outline, ow)


def grass_blade(base, tip, width, fill, bend=0.25, outline=INK, ow=4):
    """A long blade that narrows to its tip, bowed to one side."""
    (x0, y0), (x1, y1) = base, tip
    mx, my = (x0 + x1) / 2, (y0 + y1) / 2
    nx, ny = -(y1 - y0), (x1 - x0)
    mid = (mx + nx * bend, my + ny * bend)
    return path(tapered([base, mid, tip], width, 1.5, width * 0.85), fill, outline, ow)


def fan_tuft(cx, cy, r, angle, fill, dark, outline=INK):
    """A pine needle cluster: a fan with a fringed edge and radiating needle lines."""
    items = []
    n = 11
    edge = []
    for i in range(n + 1):
        a = -80 + 160.0 * i / n
        rr = r * (1.0 if i % 2 == 0 else 0.9)
        edge.append(polar(0, 0, rr, a - 90))
    d = "M0,0 L" + " L".join(f"{x:.1f},{y:.1f}" for x, y in edge) + " Z"
    items.append(path(d, fill, outline, 5))
    lines = []
    for i in range(1, n):
        a = -80 + 160.0 * i / n - 90
        x, y = polar(0, 0, r * 0.82, a)
        lines.append(f"M0,0 L{x:.1f},{y:.1f}")
    items.append(path(" ".join(lines), "none", dark, 3.5))
    items.append(path(f"M{-r * 0.35},{r * 0.04} Q0,{-r * 0.12} {r * 0.35},{r * 0.04}", "none",
                      dark, 5))
    return group(items, f"{translate(cx, cy)} {rotate(angle)}")


def waves(x0, x1, y, amp, period, colour, sw, rows=1, gap=26):
    """Rows of gentle water lines."""
    items = []
    for r in range(rows):
        pts = []
        x = x0
        k = 0
        while x <= x1 + 0.1:
            pts.append((x, y + r * gap + amp * math.sin(k * math.pi / 2 + r)))
            x += period / 4
            k += 1
        items.append(path(smooth(pts), "none", colour, sw))
    return group(items)


def hill(x0, x1, base, peaks, fill, outline=INK, ow=6):
    """A hill shape: a smooth ridge through the peak points, filled down to base."""
    d = smooth([(x0, peaks[0][1])] + peaks + [(x1, peaks[-1][1])])
    d += f" L{x1},{base} L{x0},{base} Z"
    return path(d, fill, outline, ow)


def rain(x0, y0, x1, y1, colour, sw=4, step=34, slant=-0.25, seed=1, length=60):
    """Slanting rain streaks in a regular, slightly jittered grid, kept inside the box."""
    lines = []
    j = seed
    y = y0
    row = 0
    while y < y1:
        x = x0 + (row % 2) * step / 2
        while x < x1:
            j = (j * 1103515245 + 12345) & 0x7FFFFFFF
            ln = length * (0.7 + (j % 60) / 100)
            c = clip_segment(x, y, x + slant * ln, y + ln, (x0, y0, x1 - x0, y1 - y0))
            if c:
                lines.append(f"M{c[0]:.1f},{c[1]:.1f} L{c[2]:.1f},{c[3]:.1f}")
            x += step
        y += length * 1.3
        row += 1
    return path(" ".join(lines), "none", colour, sw)
