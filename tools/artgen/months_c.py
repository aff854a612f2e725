"""September to December: chrysanthemum, maple, willow and paulownia, with the two cards
that must stand apart from their month: the wild card (43) and the 10-point paulownia (45)."""

from creatures import phoenix, swallow
from creatures_b import deer, frog, poet
from frame import (GOLD, GOLD_DARK, GOLD_LIGHT, INK, RED, RED_DARK, RIBBON_BLUE, RIBBON_RED,
                   crest, finish_card, mist, new_card, ribbon)
from motifs import branch, leaf, rain, waves
from svg import circle, ellipse, group, path, polar, rect, smooth, translate

# ---- September: chrysanthemum ------------------------------------------------------------

MUM, MUM_DARK, MUM_LEAF = "#F2C230", "#D9762A", "#3A6E3A"


def mum_flower(x, y, r, outer=MUM, inner=MUM_DARK):
    """Two rings of narrow petals about a small heart."""
    items = []
    for ring_r, n, fill, rot in ((r, 20, outer, 0), (r * 0.66, 14, inner, 9)):
        for k in range(n):
            a = rot + 360.0 * k / n
            px, py = polar(x, y, ring_r * 0.55, a)
            items.append(ellipse(px, py, ring_r * 0.47, ring_r * 0.12, fill, INK, 3.5, rot=a))
    items.append(circle(x, y, r * 0.22, "#B8401E", INK, 4))
    return group(items)


def mum_leaf(x, y, a, s=1.0):
    return group([leaf(0, 0, -25, 90, 50, MUM_LEAF, "#1E4424"),
                  leaf(0, 0, 20, 100, 54, MUM_LEAF, "#1E4424")],
                 f"{translate(x, y)} rotate({a}) scale({s:g})")


def chrysanthemum(doc, variant=0, cup=False):
    doc.add(mist(doc, 120, 200, 488, "#E9A3A6", 40))
    # A low bamboo fence the flowers lean over.
    fence_y = 560 if not cup else 470
    doc.add(path(f"M12,{fence_y} H488 M12,{fence_y + 60} H488", "none", INK, 14))
    doc.add(path(f"M12,{fence_y} H488 M12,{fence_y + 60} H488", "none", "#C9A46A", 7))
    for x in range(50, 480, 90):
        doc.add(rect(x - 9, fence_y - 40, 18, 240, "#B08A50", INK, 5))
    stems = [(260, 250), (110, 400), (390, 420)]
    for x, y in stems:
        doc.add(path(smooth([(x, y), (x - 10, (y + 790) / 2), (x + 10, 790)]), "none", INK, 9))
        doc.add(path(smooth([(x, y), (x - 10, (y + 790) / 2), (x + 10, 790)]), "none",
                     MUM_LEAF, 4))
    leaves = [(250, 420, -150, 1.0), (260, 520, -30, 1.0), (110, 560, -150, 0.9),
              (390, 600, -40, 0.9), (100, 700, -30, 0.9), (400, 720, -150, 0.9)]
    if variant == 1:
        leaves.append((250, 680, -90, 0.8))
    for x, y, a, s in leaves:
        doc.add(mum_leaf(x, y, a, s))
    doc.add(mum_flower(260, 250, 130))
    doc.add(mum_flower(110, 400, 90, "#E9503A", "#F2C230"))
    doc.add(mum_flower(390, 420, 84))


def sake_cup(doc, x, y):
    """A red lacquer sake cup on its foot, gold inside, our crest on its side."""
    red = doc.linear([(0, "#E0463A"), (1, RED_DARK)], 0, 0, 1, 0)
    gold = doc.linear([(0, GOLD_LIGHT), (1, GOLD_DARK)], 0, 0, 1, 0)
    return group([
        path("M-70,70 L-90,120 L90,120 L70,70 Z", red, INK, 7),
        path("M-190,-40 C-170,70 -80,100 0,100 C80,100 170,70 190,-40 Z", red, INK, 8),
        ellipse(0, -40, 190, 44, gold, INK, 8),
        ellipse(0, -38, 150, 28, "#F6E3A6"),
        path("M-150,0 C-90,50 90,50 150,0", "none", "#F28070", 6, op=0.7),
        crest(0, 40, 40, gold),
    ], translate(x, y))


def september(kind):
    doc = new_card()
    if kind == 0:
        chrysanthemum(doc, cup=True)
        doc.add(sake_cup(doc, 250, 640))
    else:
        chrysanthemum(doc, variant=1 if kind == 3 else 0)
        if kind == 1:
            doc.add(ribbon(250, 470, RIBBON_BLUE, -10))
    return finish_card(doc)


# ---- October: maple ----------------------------------------------------------------------

MAPLE = ["#D2382A", "#E8772A", "#A3211C"]


def maple_leaf(x, y, r, angle, fill):
    """Five pointed lobes with a short stalk."""
    pts = []
    for k, (a, ln) in enumerate([(-90, 1.0), (-40, 0.86), (10, 0.55), (170, 0.55),
                                 (220, 0.86)]):
        pts.append(polar(x, y, r * ln, a + angle))
        pts.append(polar(x, y, r * 0.34, a + angle + (25 if k != 2 else 80)))
    d = "M" + " L".join(f"{px:.1f},{py:.1f}" for px, py in pts) + " Z"
    sx, sy = polar(x, y, r * 0.7, 90 + angle)
    veins = " ".join(f"M{x:.1f},{y:.1f} L{polar(x, y, r * 0.8 * ln, a + angle)[0]:.1f},"
                     f"{polar(x, y, r * 0.8 * ln, a + angle)[1]:.1f}"
                     for a, ln in [(-90, 1), (-40, 0.86), (-140, 0.86)])
    return group([path(f"M{x:.1f},{y:.1f} L{sx:.1f},{sy:.1f}", "none", INK, 6),
                  path(d, fill, INK, 5), path(veins, "none", "#6A120E", 3)])


def maple(doc, variant=0, high=False):
    doc.add(mist(doc, 740, 12, 300, "#E9C07A", 40))
    doc.add(branch([(12, 130), (140, 150), (280, 100), (488, 160)], 30, 16, "#3A2A22"))
    doc.add(branch([(200, 130), (260, 260), (230, 380)], 18, 8, "#3A2A22"))
    doc.add(branch([(360, 130), (420, 280), (470, 330)], 16, 8, "#3A2A22"))
    spots = [(70, 200, 70, 0), (180, 110, 60, 20), (310, 200, 74, -15), (430, 90, 56, 10),
             (230, 390, 64, 10), (440, 330, 60, -20), (120, 320, 56, 25)]
    if not high:
        spots += [(330, 470, 60, 5), (110, 520, 58, -10), (270, 610, 56, 18),
                  (420, 600, 54, -8), (170, 710, 44, 12)]
    if variant == 1:
        spots.append((380, 700, 40, 30))
    for k, (x, y, r, a) in enumerate(spots):
        doc.add(maple_leaf(x, y, r, a, MAPLE[k % 3]))


def october(kind):
    doc = new_card()
    if kind == 0:
        maple(doc, high=True)
        doc.add(deer(250, 560, 0.95))
    else:
        maple(doc, variant=1 if kind == 3 else 0)
        if kind == 1:
            doc.add(ribbon(250, 480, RIBBON_BLUE, 12))
    return finish_card(doc)


# ---- November: willow in the rain ---------------------------------------------------------

WILLOW, WILLOW_DARK = "#8CC04A", "#3E6A22"


def rain_sky(doc, dark=False):
    top, bottom = ("#2A1A22", "#120C10") if dark else ("#4B5B70", "#2A3344")
    doc.add(rect(12, 12, 476, 776, doc.linear([(0, top), (1, bottom)])))


def willow(doc, strands=None):
    """Willow strands falling from the top edge, each with slim leaves."""
    for x0, sway, ln in strands or [(60, 30, 640), (150, -20, 520), (250, 40, 700),
                                    (350, -30, 560), (440, 20, 660)]:
        pts = [(x0, 12), (x0 + sway * 0.5, 12 + ln * 0.5), (x0 + sway, 12 + ln)]
        doc.add(path(smooth(pts), "none", INK, 9))
        doc.add(path(smooth(pts), "none", WILLOW_DARK, 4))
        for k in range(1, 10):
            t = k / 10
            x, y = x0 + sway * t * t, 12 + ln * t
            doc.add(leaf(x, y, 115 if k % 2 else 65, 66, 22, WILLOW, None, ow=4))


def november(kind):
    if kind == 3:
        return wild_card()
    doc = new_card()
    rain_sky(doc)
    doc.add(rain(30, 20, 470, 760, "#9FB2C8", 3, 40, -0.2, kind + 3))
    if kind == 0:
        willow(doc, [(330, 40, 520), (430, -10, 600), (250, 20, 380)])
        doc.add(waves(12, 488, 700, 10, 90, "#7FA8D0", 7, rows=3, gap=30))
        doc.add(poet(doc, 180, 520, 0.95))
        doc.add(frog(380, 700, 0.8))
    elif kind == 1:
        willow(doc)
        doc.add(swallow(220, 450, 1.3))
    else:
        willow(doc)
        doc.add(ribbon(250, 480, RIBBON_RED, -10))
    return finish_card(doc)


def wild_card():
    """Yanagi No Kasu, the wild card: a thunder gate in a storm on a dark sky, in a gold
    frame, so that it never reads as the willow it belongs to."""
    doc = new_card()
    rain_sky(doc, dark=True)
    doc.add(rain(40, 40, 460, 760, "#8A7080", 3, 38, -0.2, 11))
    red = doc.linear([(0, "#E0463A"), (1, RED_DARK)], 0, 0, 1, 0)
    # The gate: two posts, a tie beam and a curved lintel.
    doc.add(path("M130,300 L150,760 L196,760 L186,300 Z M370,300 L350,760 L304,760 L314,300 Z",
                 red, INK, 7))
    doc.add(rect(110, 380, 280, 36, red, INK, 7))
    doc.add(path("M60,250 Q250,300 440,250 L450,296 Q250,336 50,296 Z", red, INK, 7))
    doc.add(path("M70,232 Q250,276 430,232 L440,254 Q250,300 60,254 Z", INK))
    # Lightning: two gold bolts striking through the gate.
    bolt = "M-20,0 L40,0 L10,90 L50,90 L-30,230 L0,120 L-40,120 Z"
    doc.add(group([path(bolt, GOLD_LIGHT, INK, 6)], translate(250, 440)))
    doc.add(group([path(bolt, GOLD, INK, 5)], f"{translate(110, 60)} scale(0.7)"))
    doc.add(group([path(bolt, GOLD, INK, 5)], f"{translate(400, 70)} scale(0.6)"))
    willow(doc, [(40, 20, 200), (470, -20, 240)])
    return finish_card(doc, accent=GOLD, accent2=RED_DARK)


# ---- December: paulownia -----------------------------------------------------------------

KIRI_LEAF, KIRI_DARK, KIRI_FLOWER = "#3F7A3A", "#1E4A24", "#8A5EC0"


def kiri_leaf(x, y, r, angle):
    """A broad paulownia leaf: heart-shaped with a pointed tip and a wavy edge."""
    d = (f"M0,0 C{-r * 0.5},{r * 0.05} {-r * 0.85},{-r * 0.3} {-r * 0.7},{-r * 0.75} "
         f"C{-r * 0.6},{-r * 1.0} {-r * 0.3},{-r * 1.05} {-r * 0.12},{-r * 1.12} "
         f"L0,{-r * 1.35} L{r * 0.12},{-r * 1.12} "
         f"C{r * 0.3},{-r * 1.05} {r * 0.6},{-r * 1.0} {r * 0.7},{-r * 0.75} "
         f"C{r * 0.85},{-r * 0.3} {r * 0.5},{r * 0.05} 0,0 Z")
    veins = (f"M0,0 L0,{-r * 1.2} M0,{-r * 0.3} L{-r * 0.5},{-r * 0.7} M0,{-r * 0.3} "
             f"L{r * 0.5},{-r * 0.7} M0,{-r * 0.7} L{-r * 0.3},{-r * 1.0} M0,{-r * 0.7} "
             f"L{r * 0.3},{-r * 1.0}")
    return group([path(d, KIRI_LEAF, INK, 6), path(veins, "none", KIRI_DARK, 4)],
                 f"{translate(x, y)} rotate({angle})")


def kiri_spike(x, y, h, n):
    """An upright spike of bell flowers, the paulownia's bloom."""
    items = [path(f"M{x},{y} L{x},{y - h}", "none", INK, 8)]
    for k in range(n):
        t = k / max(n - 1, 1)
        cy = y - 30 - t * (h - 40)
        for dx in (-1, 1):
            items.append(ellipse(x + dx * (26 - t * 8), cy, 16, 22, KIRI_FLOWER, INK, 4,
                                 rot=dx * 30))
    items.append(ellipse(x, y - h, 14, 20, "#C7A6E6", INK, 4))
    return group(items)


def paulownia(doc, variant=0, band=True):
    if band:
        doc.add(path("M12,610 Q250,570 488,610 L488,788 L12,788 Z", "#F0C838", INK, 6))
        doc.add(kiri_spike(150, 400, 230, 5))
        doc.add(kiri_spike(250, 350, 270, 6))
        doc.add(kiri_spike(350, 400, 230, 5))
    else:
        doc.add(kiri_spike(420, 620, 200, 4))
    for x, y, r, a in [(130, 650, 110, -35), (370, 650, 110, 35), (250, 690, 125, 0)]:
        doc.add(kiri_leaf(x, y, r, a))
    if variant == 1:
        # Two fallen blossoms on the band tell this card from its twin.
        doc.add(ellipse(80, 740, 16, 22, KIRI_FLOWER, INK, 4, rot=70))
        doc.add(ellipse(430, 750, 16, 22, KIRI_FLOWER, INK, 4, rot=-60))


def december(kind):
    if kind == 0:
        doc = new_card()
        doc.add(rect(12, 12, 476, 560, doc.linear([(0, "#C8281E"), (1, "#F08A3A")])))
        paulownia(doc, band=False)
        doc.add(phoenix(doc, 230, 370, 0.85))
        return finish_card(doc)
    doc = new_card()
    paulownia(doc, variant=1 if kind == 3 else 0)
    if kind == 1:
        # The 10-point paulownia: a gold cartouche with the crest on its band.
        gold = doc.linear([(0, GOLD_LIGHT), (1, GOLD_DARK)], 0, 0, 0, 1)
        doc.add(rect(130, 660, 240, 110, gold, INK, 6, rx=20))
        doc.add(crest(250, 715, 42, RED))
        return finish_card(doc, accent=gold, accent2=INK)
    return finish_card(doc)
