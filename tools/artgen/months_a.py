"""January to April: pine, plum, cherry and wisteria.

Each month draws its plant the same way on all four of its cards, so that the month reads
as a family; the kind is told by what stands in front of the plant."""

from creatures import crane, cuckoo, warbler
from frame import (GOLD, GOLD_LIGHT, INK, RED, RED_DARK, RIBBON_RED, crest, finish_card,
                   mist, new_card, ribbon)
from motifs import branch, bud, fan_tuft, leaf, petal_flower
from svg import circle, crescent, ellipse, group, path, rect, smooth

# ---- January: pine ---------------------------------------------------------------------

PINE, PINE_DARK, BARK = "#2F7440", "#17452A", "#6E4526"


def pine(doc, variant=0, small=False):
    """A pine leaning in from the left with fans of needles. small keeps it to the left
    half, to leave room for the crane."""
    doc.add(path(smooth([(12, 700), (120, 660), (260, 690), (380, 650), (488, 680)])
                 + " L488,788 L12,788 Z", doc.linear([(0, "#5A3B2C"), (1, "#2E1E17")]), INK, 6))
    trunk = [(70, 792), (110, 600), (80, 430), (150, 280), (230, 190)]
    doc.add(branch(trunk, 70, 26, BARK))
    doc.add(branch([(95, 470), (180, 420), (300, 420), (380, 360)], 30, 12, BARK))
    if not small:
        doc.add(branch([(120, 620), (250, 600), (360, 540)], 28, 12, BARK))
    # Bark scales: short dark strokes along the trunk.
    doc.add(path("M88,720 l22,-10 M100,640 l20,-8 M92,540 l22,-6 M104,380 l20,-12 "
                 "M140,310 l18,-12", "none", INK, 5))
    needles = doc.linear([(0, "#47935A"), (1, PINE)])
    tufts = [(230, 170, 95, 0), (120, 250, 80, -20), (330, 210, 70, 12), (380, 350, 78, 8),
             (250, 390, 72, -6), (60, 400, 62, -25)]
    if not small:
        tufts += [(370, 520, 74, 10), (240, 560, 62, -8)]
    if variant == 1:
        tufts += [(440, 250, 48, 20)]
    for x, y, r, a in tufts:
        doc.add(fan_tuft(x, y, r, a, needles, PINE_DARK))


def january(kind):
    if kind == 0:
        doc = new_card()
        sun = doc.radial([(0, "#F25C3C"), (0.75, RED), (1, RED_DARK)], 0.4, 0.35, 0.7)
        doc.add(circle(345, 190, 125, sun, INK, 7))
        pine(doc, small=True)
        doc.add(crane(305, 560, 0.92))
    elif kind == 1:
        doc = new_card()
        pine(doc)
        doc.add(ribbon(250, 470, RIBBON_RED, -12, writing=0))
    else:
        doc = new_card()
        pine(doc, variant=kind - 2)
    return finish_card(doc)


# ---- February: plum ---------------------------------------------------------------------

PLUM, PLUM_DARK, PLUM_BRANCH = "#D93A4A", "#9E1E32", "#3B2620"


def plum(doc, variant=0):
    doc.add(mist(doc, 740, 40, 300, "#E9A3A6"))
    doc.add(mist(doc, 700, 260, 470, "#E9A3A6"))
    main = [(40, 792), (120, 600), (80, 470), (200, 300), (170, 170), (300, 60)]
    doc.add(branch(main, 54, 16, PLUM_BRANCH))
    doc.add(branch([(110, 560), (250, 520), (330, 430), (460, 400)], 24, 9, PLUM_BRANCH))
    doc.add(branch([(190, 280), (300, 260), (420, 180)], 20, 8, PLUM_BRANCH))
    doc.add(branch([(98, 460), (40, 380)], 14, 6, PLUM_BRANCH))
    flowers = [(150, 200, 46), (250, 110, 40), (225, 300, 44), (330, 245, 40), (420, 185, 34),
               (95, 520, 42), (240, 520, 44), (345, 420, 40), (450, 400, 32), (60, 400, 34),
               (160, 420, 38)]
    if variant == 1:
        flowers += [(390, 520, 30)]
    for x, y, r in flowers:
        doc.add(petal_flower(x, y, r, 5, PLUM, "#F6D05A", dots=PLUM_DARK))
    for x, y in [(300, 70), (370, 215), (280, 480), (130, 330), (400, 440), (470, 165)]:
        doc.add(bud(x, y, 13, PLUM_DARK))


def february(kind):
    doc = new_card()
    plum(doc, variant=1 if kind == 3 else 0)
    if kind == 0:
        doc.add(warbler(330, 470, 1.0))
    elif kind == 1:
        doc.add(ribbon(270, 470, RIBBON_RED, -10, writing=1))
    return finish_card(doc)


# ---- March: cherry ----------------------------------------------------------------------

CHERRY, CHERRY_DEEP, CHERRY_CENTRE = "#F6C2CF", "#E27D97", "#C8305A"


def cherry(doc, variant=0, low=True):
    """Cherry in full bloom along a branch across the top, with pink mist below; low adds
    a second mass of blossom where the ribbon or the plain chaff has room."""
    doc.add(mist(doc, 330, 12, 330, "#F3D8DE", 40))
    if low:
        doc.add(mist(doc, 560, 180, 488, "#E27D97", 46))
        doc.add(mist(doc, 700, 12, 380, "#E27D97", 46))
    doc.add(branch([(12, 250), (140, 200), (260, 120), (380, 90), (488, 40)], 40, 18, "#4A2E24"))
    doc.add(branch([(150, 196), (220, 260), (330, 290)], 18, 8, "#4A2E24"))
    if low:
        doc.add(branch([(488, 380), (380, 430), (260, 520), (150, 560)], 30, 12, "#4A2E24"))
    petals = doc.radial([(0, "#FFFFFF"), (0.6, CHERRY), (1, CHERRY_DEEP)], 0.5, 0.5, 0.6)
    spots = [(60, 170, 52), (150, 110, 56), (270, 70, 50), (390, 60, 52), (450, 150, 48),
             (330, 170, 54), (210, 220, 50), (90, 290, 46), (330, 300, 44), (460, 270, 40)]
    if not low:
        spots = spots[:8]
    else:
        spots += [(440, 400, 50), (340, 440, 54), (250, 520, 50), (150, 570, 46),
                  (400, 520, 42), (280, 630, 40), (120, 470, 38)]
    if variant == 1:
        spots += [(200, 350, 36)]
    for x, y, r in spots:
        doc.add(petal_flower(x, y, r, 5, petals, CHERRY_CENTRE, notch=True, phase=-80))


def curtain(doc):
    """The festival curtain hung under the blossoms, with our crest repeated on it."""
    cloth = doc.linear([(0, "#B01E2C"), (1, "#7A0F1C")])
    top, bottom = 400, 770
    doc.add(path(f"M26,{top} H474 V{bottom - 30} Q400,{bottom} 330,{bottom - 24} "
                 f"Q250,{bottom + 8} 170,{bottom - 24} Q100,{bottom} 26,{bottom - 30} Z",
                 cloth, INK, 7))
    # Folds of the cloth.
    doc.add(path(" ".join(f"M{x},{top + 90} Q{x + 10},{top + 230} {x - 6},{bottom - 30}"
                          for x in (100, 180, 260, 340, 420)), "none", "#5E0A14", 6))
    # The white band at the top with three crests.
    doc.add(rect(26, top, 448, 96, "#F7EEDA", INK, 6))
    for x in (100, 250, 400):
        doc.add(crest(x, top + 48, 36, RED))
    doc.add(path(f"M12,{top - 8} Q250,{top - 26} 488,{top - 8}", "none", INK, 12))
    doc.add(path(f"M12,{top - 8} Q250,{top - 26} 488,{top - 8}", "none", GOLD, 6))
    for x in (40, 460):
        doc.add(path(f"M{x},{top - 10} V{top + 130}", "none", GOLD, 10))
        doc.add(ellipse(x, top + 148, 14, 24, GOLD_LIGHT, INK, 4))


def march(kind):
    doc = new_card()
    if kind == 0:
        cherry(doc, low=False)
        curtain(doc)
    else:
        cherry(doc, variant=1 if kind == 3 else 0)
        if kind == 1:
            doc.add(ribbon(250, 470, RIBBON_RED, 10, writing=2))
    return finish_card(doc)


# ---- April: wisteria --------------------------------------------------------------------

WIST, WIST_DARK, WIST_LEAF = "#8C66C8", "#4E2F8A", "#2F6B3A"


def raceme(doc, x, y, length, sway, fill):
    """A hanging flower cluster: florets on a drooping stem, wide at the top."""
    items = [path(smooth([(x, y), (x + sway * 0.4, y + length * 0.5), (x + sway, y + length)]),
                  "none", INK, 5)]
    rows = max(9, int(length / 40))
    for i in range(rows):
        t = i / (rows - 1)
        cy = y + 20 + t * (length - 20)
        cx = x + sway * t * t
        half = 48 * (1 - t * 0.75)
        for k, dx in enumerate((-half, -half / 3, half / 3, half)):
            if t > 0.7 and k in (0, 3):
                continue
            items.append(ellipse(cx + dx, cy + (k % 2) * 10, 21 * (1 - t * 0.4),
                                 16 * (1 - t * 0.4), fill if (i + k) % 3 else WIST_DARK,
                                 INK, 4))
    return group(items)


def wisteria(doc, variant=0, sparse=False):
    doc.add(branch([(12, 60), (150, 40), (300, 70), (488, 30)], 30, 18, "#4C3226"))
    florets = doc.linear([(0, "#B9A0E8"), (1, WIST)])
    if not sparse:
        doc.add(mist(doc, 720, 12, 330, "#C9B6E8", 46))
        doc.add(mist(doc, 640, 200, 488, "#C9B6E8", 46))
    hangs = [(90, 70, 520, 30), (230, 80, 620, -20), (370, 70, 560, 30)]
    if sparse:
        hangs = [(110, 70, 320, 20), (320, 70, 300, -20)]
    if variant == 1:
        hangs.append((415, 60, 300, -24))
    for x, y, ln, sw in hangs:
        doc.add(raceme(doc, x, y, ln, sw, florets))
    # Leaves over the tops of the clusters, so that the green shows between them.
    for x, a in [(40, 40), (170, 130), (300, 50), (400, 140), (430, 95), (110, 150)]:
        doc.add(leaf(x, 56, a, 110, 36, WIST_LEAF, "#1E4528"))


def april(kind):
    doc = new_card()
    if kind == 0:
        wisteria(doc, sparse=True)
        moon = doc.linear([(0, "#F4C84E"), (1, "#E08A2A")])
        doc.add(path(crescent(330, 500, 130, 116, 80, 200), moon, INK, 6))
        doc.add(cuckoo(210, 620, 1.1))
    else:
        wisteria(doc, variant=1 if kind == 3 else 0)
        if kind == 1:
            doc.add(ribbon(250, 540, RIBBON_RED, -8))
    return finish_card(doc)


