"""Small SVG writing helpers shared by every picture module.

Everything here emits SVG Tiny 1.2 that Qt's SVG module renders: paths, basic shapes,
gradients, groups and transforms. No filters, masks or stylesheets, and no text, so the
pictures look the same whatever fonts a machine has.
"""

import math


def num(v):
    """Short, deterministic number text: one decimal at most."""
    s = f"{v:.1f}"
    if s.endswith(".0"):
        s = s[:-2]
    return "0" if s == "-0" else s


def pts(points):
    return " ".join(f"{num(x)},{num(y)}" for x, y in points)


def attrs(**kw):
    """Attributes from keywords; underscores become dashes, None is left out."""
    out = []
    for k, v in kw.items():
        if v is None:
            continue
        k = k.rstrip("_").replace("_", "-")
        out.append(f'{k}="{num(v) if isinstance(v, float) else v}"')
    return " ".join(out)


def style(fill="none", stroke=None, sw=None, op=None, cap="round", join="round"):
    s = {"fill": fill}
    if stroke:
        s.update(stroke=stroke, stroke_width=num(sw or 1), stroke_linecap=cap,
                 stroke_linejoin=join)
    if op is not None:
        s["opacity"] = opacity(op)
    return attrs(**s)


def opacity(op):
    return f"{op:.2f}".rstrip("0").rstrip(".")


def path(d, fill="none", stroke=None, sw=None, op=None, cap="round", join="round"):
    return f'<path d="{d}" {style(fill, stroke, sw, op, cap, join)}/>'


def circle(cx, cy, r, fill="none", stroke=None, sw=None, op=None):
    return f'<circle cx="{num(cx)}" cy="{num(cy)}" r="{num(r)}" {style(fill, stroke, sw, op)}/>'


def ellipse(cx, cy, rx, ry, fill="none", stroke=None, sw=None, op=None, rot=0):
    tr = f' transform="rotate({num(rot)} {num(cx)} {num(cy)})"' if rot else ""
    return (f'<ellipse cx="{num(cx)}" cy="{num(cy)}" rx="{num(rx)}" ry="{num(ry)}"'
            f'{tr} {style(fill, stroke, sw, op)}/>')


def rect(x, y, w, h, fill="none", stroke=None, sw=None, rx=0, op=None):
    r = f' rx="{num(rx)}"' if rx else ""
    return (f'<rect x="{num(x)}" y="{num(y)}" width="{num(w)}" height="{num(h)}"{r} '
            f'{style(fill, stroke, sw, op)}/>')


def poly(points, fill="none", stroke=None, sw=None, op=None, closed=True):
    tag = "polygon" if closed else "polyline"
    return f'<{tag} points="{pts(points)}" {style(fill, stroke, sw, op)}/>'


def group(items, transform=None, op=None):
    a = []
    if transform:
        a.append(f'transform="{transform}"')
    if op is not None:
        a.append(f'opacity="{opacity(op)}"')
    head = "<g" + (" " + " ".join(a) if a else "") + ">"
    return head + "".join(items) + "</g>"


def translate(x, y):
    return f"translate({num(x)} {num(y)})"


def rotate(a, cx=0, cy=0):
    return f"rotate({num(a)} {num(cx)} {num(cy)})"


def scale(sx, sy=None):
    return f"scale({sx:g} {sx if sy is None else sy:g})"


def mirror_x(width):
    """Reflects a drawing of the given width left to right."""
    return f"translate({num(width)} 0) scale(-1 1)"


class Doc:
    """One SVG file: a nominal pixel size, a view box and gradient definitions."""

    def __init__(self, width, height, vw=None, vh=None):
        self.width, self.height = width, height
        self.vw, self.vh = vw or width, vh or height
        self.defs = []
        self.body = []
        self._ids = 0

    def _id(self, prefix):
        self._ids += 1
        return f"{prefix}{self._ids}"

    def linear(self, stops, x1=0, y1=0, x2=0, y2=1, user=False):
        """A linear gradient; stops are (offset, colour) or (offset, colour, opacity)."""
        gid = self._id("l")
        units = ' gradientUnits="userSpaceOnUse"' if user else ""
        self.defs.append(
            f'<linearGradient id="{gid}" x1="{num(x1)}" y1="{num(y1)}" x2="{num(x2)}" '
            f'y2="{num(y2)}"{units}>{_stops(stops)}</linearGradient>')
        return f"url(#{gid})"

    def radial(self, stops, cx=0.5, cy=0.5, r=0.5, user=False):
        gid = self._id("r")
        units = ' gradientUnits="userSpaceOnUse"' if user else ""
        self.defs.append(
            f'<radialGradient id="{gid}" cx="{num(cx)}" cy="{num(cy)}" r="{num(r)}"'
            f'{units}>{_stops(stops)}</radialGradient>')
        return f"url(#{gid})"

    def add(self, *items):
        for it in items:
            if isinstance(it, (list, tuple)):
                self.add(*it)
            elif it:
                self.body.append(it)

    def text(self):
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
                f'width="{self.width}" height="{self.height}" '
                f'viewBox="0 0 {num(self.vw)} {num(self.vh)}">')
        defs = "<defs>" + "".join(self.defs) + "</defs>" if self.defs else ""
        return head + "\n" + defs + "\n" + "\n".join(self.body) + "\n</svg>\n"


def _stops(stops):
    out = []
    for s in stops:
        off, col = s[0], s[1]
        op = f' stop-opacity="{opacity(s[2])}"' if len(s) > 2 else ""
        out.append(f'<stop offset="{num(off)}" stop-color="{col}"{op}/>')
    return "".join(out)


# ---- geometry ---------------------------------------------------------------------------

def rot(x, y, a, cx=0.0, cy=0.0):
    """Point (x, y) turned by a degrees about (cx, cy)."""
    r = math.radians(a)
    dx, dy = x - cx, y - cy
    return cx + dx * math.cos(r) - dy * math.sin(r), cy + dx * math.sin(r) + dy * math.cos(r)


def polar(cx, cy, r, a):
    t = math.radians(a)
    return cx + r * math.cos(t), cy + r * math.sin(t)


def spline(points, steps=8):
    """Catmull-Rom curve through the points, as a dense list of points."""
    if len(points) < 3:
        x0, y0 = points[0]
        x1, y1 = points[-1]
        return [(x0 + (x1 - x0) * i / steps, y0 + (y1 - y0) * i / steps)
                for i in range(steps + 1)]
    p = [points[0]] + list(points) + [points[-1]]
    out = []
    for i in range(1, len(p) - 2):
        (x0, y0), (x1, y1), (x2, y2), (x3, y3) = p[i - 1], p[i], p[i + 1], p[i + 2]
        for s in range(steps):
            t = s / steps
            t2, t3 = t * t, t * t * t
            out.append((
                0.5 * (2 * x1 + (-x0 + x2) * t + (2 * x0 - 5 * x1 + 4 * x2 - x3) * t2
                       + (-x0 + 3 * x1 - 3 * x2 + x3) * t3),
                0.5 * (2 * y1 + (-y0 + y2) * t + (2 * y0 - 5 * y1 + 4 * y2 - y3) * t2
                       + (-y0 + 3 * y1 - 3 * y2 + y3) * t3)))
    out.append(points[-1])
    return out


def tapered(points, w0, w1=None, wmid=None, steps=8):
    """Outline of a brush stroke along a smooth curve through the points, its width going
    from w0 through wmid to w1; closed path data. Used for branches, blades and brush marks."""
    w1 = w0 if w1 is None else w1
    c = spline(points, steps)
    n = len(c)
    left, right = [], []
    for i, (x, y) in enumerate(c):
        xa, ya = c[max(i - 1, 0)]
        xb, yb = c[min(i + 1, n - 1)]
        dx, dy = xb - xa, yb - ya
        ln = math.hypot(dx, dy) or 1.0
        nx, ny = -dy / ln, dx / ln
        t = i / (n - 1)
        if wmid is None:
            w = w0 + (w1 - w0) * t
        else:
            w = w0 + (wmid - w0) * 2 * t if t < 0.5 else wmid + (w1 - wmid) * (2 * t - 1)
        left.append((x + nx * w / 2, y + ny * w / 2))
        right.append((x - nx * w / 2, y - ny * w / 2))
    ring = left + right[::-1]
    return "M" + " L".join(f"{num(x)},{num(y)}" for x, y in ring) + "Z"


def smooth(points, closed=False, steps=6):
    """Path data of a smooth curve through the points."""
    ring = list(points)
    if closed:
        ring = ring[-1:] + ring + ring[:2]
        c = spline(ring, steps)[steps:-steps]
    else:
        c = spline(ring, steps)
    d = "M" + " L".join(f"{num(x)},{num(y)}" for x, y in c)
    return d + ("Z" if closed else "")


def blob(cx, cy, rx, ry, lobes, depth, phase=0.0, n=None):
    """A closed wavy outline (flower, cloud, leaf cluster) about a centre."""
    n = n or lobes * 8
    out = []
    for i in range(n):
        a = 2 * math.pi * i / n
        k = 1 + depth * math.cos(lobes * a + phase)
        out.append((cx + rx * k * math.cos(a), cy + ry * k * math.sin(a)))
    return "M" + " L".join(f"{num(x)},{num(y)}" for x, y in out) + "Z"


def star_path(cx, cy, r_out, r_in, n, phase=-90.0):
    out = []
    for i in range(2 * n):
        r = r_out if i % 2 == 0 else r_in
        out.append(polar(cx, cy, r, phase + 180.0 * i / n))
    return "M" + " L".join(f"{num(x)},{num(y)}" for x, y in out) + "Z"


def clip_segment(x0, y0, x1, y1, box):
    """The part of a segment inside box (x, y, w, h), or None: patterns must stop at a
    picture's edge since the SVG subset has no clip paths."""
    bx, by, bw, bh = box
    t0, t1 = 0.0, 1.0
    dx, dy = x1 - x0, y1 - y0
    for p, q in ((-dx, x0 - bx), (dx, bx + bw - x0), (-dy, y0 - by), (dy, by + bh - y0)):
        if p == 0:
            if q < 0:
                return None
            continue
        t = q / p
        if p < 0:
            t0 = max(t0, t)
        else:
            t1 = min(t1, t)
        if t0 > t1:
            return None
    return x0 + dx * t0, y0 + dy * t0, x0 + dx * t1, y0 + dy * t1


def lattice(box, step, colour, sw, op):
    """Diagonal lines both ways across box, forming diamonds."""
    bx, by, bw, bh = box
    segs = []
    k = -bh
    while k < bw + bh:
        for a, b in (((bx + k, by), (bx + k + bh, by + bh)), ((bx + k, by + bh), (bx + k + bh, by))):
            c = clip_segment(a[0], a[1], b[0], b[1], box)
            if c:
                segs.append(f"M{num(c[0])},{num(c[1])} L{num(c[2])},{num(c[3])}")
        k += step
    return path(" ".join(segs), "none", colour, sw, op=op)


def crescent(cx, cy, r_out, r_in, offset, angle=0.0):
    """Path data of a crescent: a disc less a disc shifted by offset along angle."""
    x = (r_out ** 2 - r_in ** 2 + offset ** 2) / (2 * offset)
    y = math.sqrt(max(r_out ** 2 - x ** 2, 0.0))
    p1 = rot(x, -y, angle)
    p2 = rot(x, y, angle)
    return (f"M{num(cx + p1[0])},{num(cy + p1[1])} "
            f"A{num(r_out)},{num(r_out)} 0 1 0 {num(cx + p2[0])},{num(cy + p2[1])} "
            f"A{num(r_in)},{num(r_in)} 0 1 1 {num(cx + p1[0])},{num(cy + p1[1])} Z")


def embed(host, svg_text, transform, prefix):
    """Places a whole picture (the text of another Doc) inside host: its gradients are
    copied under fresh ids and its drawing is wrapped in a group with the transform."""
    import re
    defs = re.search(r"<defs>(.*?)</defs>", svg_text, re.S)
    start = svg_text.index(">", svg_text.index("<svg")) + 1
    body = svg_text[start:svg_text.rindex("</svg>")]
    if defs:
        body = body.replace(defs.group(0), "")
        host.defs.append(re.sub(r'id="(\w+)"', rf'id="{prefix}\1"', defs.group(1)))
    body = re.sub(r"url\(#(\w+)\)", rf"url(#{prefix}\1)", body)
    return f'<g transform="{transform}">{body.strip()}</g>'
