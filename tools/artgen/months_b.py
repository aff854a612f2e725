"""May to August: iris, peony, bush clover and pampas grass."""

from creatures import goose
from creatures_b import boar, butterfly
from frame import (BLUE, INK, RED, RIBBON_BLUE, RIBBON_RED, finish_card, mist, new_card,
                   ribbon)
from motifs import grass_blade, hill, leaf, waves
from svg import blob, circle, ellipse, group, path, polar, rect, rotate, smooth, tapered, translate

# ---- May: iris ---------------------------------------------------------------------------

IRIS, IRIS_DARK, IRIS_LIGHT, IRIS_LEAF = "#5B46B4", "#35247A", "#8F7FDC", "#3C8043"


def iris_flower(x, y, s=1.0):
    """Three falls hanging, three standards rising, a gold signal on each fall."""
    items = []
    for a in (-150, -90, -30):
        items.append(group([path("M0,0 C-26,-30 -18,-80 0,-96 C18,-80 26,-30 0,0 Z",
                                 IRIS_LIGHT, INK, 5)], rotate(a + 90)))
    for a in (150, 90, 30):
        items.append(group([path("M0,0 C-40,20 -44,90 0,112 C44,90 40,20 0,0 Z",
                                 IRIS, INK, 5),
                            path("M0,14 L0,58", "none", "#F2C94C", 9),
                            path("M0,60 C-16,72 16,72 0,60", "none", IRIS_DARK, 4)],
                           rotate(a - 90)))
    items.append(circle(0, 0, 12, "#F2C94C", INK, 4))
    return group(items, f"{translate(x, y)} scale({s:g})")


def iris(doc, variant=0, flowers=None):
    doc.add(mist(doc, 740, 12, 260, "#9CC0E0", 40))
    blades = [((60, 790), (30, 300), 34), ((110, 790), (150, 230), 36),
              ((170, 790), (120, 380), 30), ((260, 790), (300, 260), 36),
              ((320, 790), (260, 400), 30), ((390, 790), (440, 300), 34),
              ((440, 790), (470, 480), 28), ((220, 790), (200, 520), 26)]
    if variant == 1:
        blades.append(((350, 790), (390, 520), 24))
    for base, tip, w in blades:
        bend = 0.08 if tip[0] > base[0] else -0.08
        doc.add(grass_blade(base, tip, w, IRIS_LEAF, bend))
    for fx, fy, s in flowers or [(140, 250, 0.9), (310, 300, 1.0), (420, 470, 0.8)]:
        doc.add(path(smooth([(fx, fy + 40), (fx + 6, fy + 300), (fx - 10, 790)]), "none",
                     INK, 10))
        doc.add(path(smooth([(fx, fy + 40), (fx + 6, fy + 300), (fx - 10, 790)]), "none",
                     IRIS_LEAF, 5))
        doc.add(iris_flower(fx, fy, s))


def bridge(doc):
    """The eight-plank bridge zig-zagging over the water in front of the irises."""
    wood = doc.linear([(0, "#D9B57A"), (1, "#A47A42")])
    doc.add(waves(12, 488, 560, 8, 80, "#7FA8D0", 6, rows=6, gap=36))
    planks = [[(12, 600), (280, 520), (330, 560), (12, 680)],
              [(250, 530), (488, 610), (488, 700), (220, 580)]]
    for p in planks:
        # Posts under the deck, then the deck with its board seams.
        for px, py in p[2:]:
            doc.add(rect(px - 12, py - 4, 24, 80, "#6A4A2A", INK, 5))
        doc.add(path("M" + " L".join(f"{x},{y}" for x, y in p) + " Z", wood, INK, 7))
    doc.add(path("M60,606 L80,670 M120,590 L140,650 M180,572 L200,630 M240,556 L256,600 "
                 "M310,560 L290,610 M360,576 L340,630 M420,596 L400,656", "none", "#7A5430", 5))


def may(kind):
    doc = new_card()
    if kind == 0:
        iris(doc, flowers=[(120, 230, 0.9), (330, 200, 0.9)])
        bridge(doc)
    else:
        iris(doc, variant=1 if kind == 3 else 0)
        if kind == 1:
            doc.add(ribbon(230, 500, RIBBON_RED, 10))
    return finish_card(doc)


# ---- June: peony -------------------------------------------------------------------------

PEONY, PEONY_DARK, PEONY_LIGHT, PEONY_LEAF = "#D8344F", "#8E1430", "#F49AAE", "#2E6E45"


def peony_bloom(doc, x, y, r):
    """A full peony: rings of ruffled petals, darker outside, a gold heart."""
    grad = doc.radial([(0, PEONY_LIGHT), (0.6, PEONY), (1, PEONY_DARK)], 0.5, 0.55, 0.6)
    items = [path(blob(x, y, r, r * 0.9, 7, 0.1), grad, INK, 6),
             path(blob(x, y - r * 0.08, r * 0.72, r * 0.62, 6, 0.14, 0.5), PEONY, INK, 5),
             path(blob(x, y - r * 0.14, r * 0.44, r * 0.38, 5, 0.18, 1.0), PEONY_LIGHT, INK, 5),
             circle(x, y - r * 0.16, r * 0.16, "#F2C94C", INK, 4)]
    for k in range(8):
        a = -90 + 45 * k
        x0, y0 = polar(x, y, r * 0.5, a)
        x1, y1 = polar(x, y, r * 0.86, a)
        items.append(path(f"M{x0:.1f},{y0:.1f} L{x1:.1f},{y1:.1f}", "none", PEONY_DARK, 4))
    return group(items)


def peony_leaf(x, y, angle, s=1.0):
    """A three-lobed peony leaf."""
    items = [leaf(0, 0, -30, 120, 56, PEONY_LEAF, "#1C4A2C"),
             leaf(0, 0, 0, 140, 60, PEONY_LEAF, "#1C4A2C"),
             leaf(0, 0, 30, 120, 56, PEONY_LEAF, "#1C4A2C")]
    return group(items, f"{translate(x, y)} {rotate(angle)} scale({s:g})")


def peony(doc, variant=0, top=False):
    doc.add(mist(doc, 720, 12, 330, "#E9A3A6", 44))
    leaves = [(60, 740, -70, 1.1), (250, 770, -100, 1.1), (420, 720, -120, 1.0),
              (150, 560, -30, 1.0), (370, 560, -150, 1.0), (250, 620, -90, 0.9)]
    for x, y, a, s in leaves:
        doc.add(peony_leaf(x, y, a, s))
    y0 = 300 if top else 200
    doc.add(peony_bloom(doc, 250, y0 + 220, 150))
    if variant == 1:
        # A second bud on the left tells this chaff from its twin.
        doc.add(path(f"M70,{y0 + 160} Q60,{y0 + 260} 110,{y0 + 330}", "none", INK, 8))
        doc.add(circle(70, y0 + 150, 28, PEONY_DARK, INK, 5))
    doc.add(peony_bloom(doc, 110, y0 + 40, 86))
    doc.add(circle(400, y0 + 20, 38, PEONY_DARK, INK, 5))
    doc.add(path(f"M400,{y0 + 58} Q410,{y0 + 140} 360,{y0 + 200}", "none", INK, 8))


def june(kind):
    doc = new_card()
    if kind == 0:
        peony(doc, top=True)
        doc.add(butterfly(330, 150, 0.95, BLUE, "#F2C94C", 20))
        doc.add(butterfly(130, 110, 0.7, "#F2C94C", BLUE, -25))
    else:
        peony(doc, variant=1 if kind == 3 else 0)
        if kind == 1:
            doc.add(ribbon(260, 420, RIBBON_BLUE, 14))
    return finish_card(doc)


# ---- July: bush clover -------------------------------------------------------------------

CLOVER, CLOVER_DARK, CLOVER_LEAF = "#C4307A", "#7C1550", "#3A4A2A"


def clover_stem(base, pts, flowers=True):
    """An arching stem with paired leaves and sprays of small flowers."""
    items = [path(smooth([base] + pts), "none", INK, 10), path(smooth([base] + pts), "none", "#5A3A2A", 4)]
    for k, (x, y) in enumerate(pts):
        a = -60 if k % 2 else 200
        items.append(leaf(x, y, a, 46, 30, CLOVER_LEAF, None, ow=4))
        items.append(leaf(x, y, a + 60, 40, 26, CLOVER_LEAF, None, ow=4))
        if flowers:
            items.append(ellipse(x + 16, y - 20, 15, 21, CLOVER, INK, 4, rot=30))
            items.append(ellipse(x - 14, y - 24, 14, 20, CLOVER_DARK, INK, 4, rot=-30))
            items.append(ellipse(x + 2, y - 40, 12, 17, CLOVER, INK, 4))
    return group(items)


def clover(doc, variant=0, low=False):
    doc.add(mist(doc, 740, 180, 488, "#E9A3A6", 40))
    stems = [((60, 790), [(90, 600), (180, 420), (300, 300), (420, 250), (470, 300)]),
             ((120, 790), [(200, 650), (330, 560), (430, 540)]),
             ((40, 790), [(40, 560), (80, 380), (160, 220), (260, 140), (380, 110)]),
             ((200, 790), [(260, 700), (360, 690), (450, 720)])]
    if low:
        stems = stems[:2] + [((40, 790), [(40, 560), (80, 380), (160, 260), (240, 200)])]
    if variant == 1:
        stems.append(((20, 500), [(60, 440), (80, 360)]))
    for base, pts in stems:
        doc.add(clover_stem(base, pts))


def july(kind):
    doc = new_card()
    if kind == 0:
        clover(doc, low=True)
        doc.add(boar(240, 560, 0.95))
    else:
        clover(doc, variant=1 if kind == 3 else 0)
        if kind == 1:
            doc.add(ribbon(260, 440, RIBBON_RED, -16))
    return finish_card(doc)


# ---- August: pampas grass ----------------------------------------------------------------

HILL = "#1F1A18"


def pampas(doc, ridge, plumes=True, variant=0):
    """The black hill of August combed with silver grass sweeping to the right."""
    doc.add(hill(12, 488, 790, ridge, HILL, INK, 4))
    top = min(y for _, y in ridge)
    for k in range(11):
        x = 24 + k * 42
        h = 240 + (k * 53) % 120
        pts = [(x, 790), (x + 14, 790 - h * 0.5), (min(x + 60, 470), 790 - h)]
        doc.add(path(tapered(pts, 10, 3), "#EDE6D2"))
    if plumes:
        spots = [(60, 10), (150, 40), (250, 0), (340, 30), (420, 10)]
        if variant == 1:
            spots.append((200, 70))
        for x, dy in spots:
            y = top + dy
            doc.add(grass_blade((x, y + 170), (x + 50, y - 50), 22, "#F6F1E2", 0.12, INK, 3))


def august(kind):
    if kind == 0:
        doc = new_card()
        doc.add(rect(12, 12, 476, 500, doc.linear([(0, "#B4201E"), (1, RED)])))
        doc.add(circle(250, 290, 170, doc.radial([(0, "#FFFDF3"), (1, "#F1E4BC")]), INK, 7))
        pampas(doc, [(120, 480), (250, 440), (380, 470)])
    elif kind == 1:
        doc = new_card()
        doc.add(rect(12, 12, 476, 440, doc.linear([(0, "#D2452E"), (1, "#F0A070")])))
        pampas(doc, [(100, 430), (260, 400), (400, 440)])
        for gx, gy, s in [(160, 110, 0.9), (300, 190, 0.9), (400, 290, 0.9)]:
            doc.add(goose(gx, gy, s))
    else:
        doc = new_card()
        doc.add(mist(doc, 140, 12, 300, "#E9A3A6", 44))
        doc.add(mist(doc, 230, 200, 488, "#E9A3A6", 44))
        ridge = [(120, 330), (280, 300), (400, 350)] if kind == 2 else \
            [(100, 360), (230, 310), (400, 330)]
        pampas(doc, ridge, variant=kind - 2)
    return finish_card(doc)



