"""The other animals and the figure of the deck: butterfly, boar, deer, frog and the poet
under his umbrella. Drawn about their own origin, facing left."""

from frame import BLUE, BLUE_DARK, GOLD, GOLD_LIGHT, INK, RED_DARK
from svg import circle, ellipse, group, path, rotate, scale, tapered, translate


def _place(items, x, y, s, angle=0):
    tr = f"{translate(x, y)} {scale(s)}"
    if angle:
        tr += f" {rotate(angle)}"
    return group(items, tr)


def butterfly(x, y, s, fore, hind, angle=0):
    """A butterfly seen from above, wings open: fore and hind wing colours."""
    items = []
    for side in (-1, 1):
        items.append(path(f"M0,-4 C{side * 40},-90 {side * 120},-100 {side * 118},-50 "
                          f"C{side * 114},-10 {side * 60},6 0,0 Z", fore, INK, 6))
        items.append(path(f"M0,4 C{side * 60},4 {side * 100},30 {side * 90},70 "
                          f"C{side * 70},100 {side * 20},70 0,10 Z", hind, INK, 6))
        items.append(circle(side * 78, -52, 14, GOLD_LIGHT, INK, 4))
        items.append(circle(side * 60, 50, 9, "#FFFFFF", INK, 3))
        items.append(path(f"M{side * 4},-40 Q{side * 20},-84 {side * 34},-96", "none", INK, 4))
    items.append(ellipse(0, 6, 12, 52, INK))
    return _place(items, x, y, s, angle)


def boar(x, y, s=1.0):
    """The boar of July at full run: a bristled back, short legs flung fore and aft."""
    hide = "#7A3F24"
    items = [
        path("M-70,40 L-130,96 L-110,104 L-52,58 Z", "#5A2C18", INK, 6),
        path("M110,30 L170,96 L150,106 L92,52 Z", "#5A2C18", INK, 6),
        path("M-150,-10 C-140,-70 -60,-110 40,-104 C120,-100 180,-60 184,-4 "
             "C186,40 140,70 60,72 C0,74 -80,70 -120,40 C-146,30 -156,14 -150,-10 Z",
             hide, INK, 7),
        # Bristles along the ridge of the back.
        path("M-100,-70 l10,-26 l12,22 l12,-28 l14,24 l12,-28 l14,24 l14,-26 l14,24 "
             "l14,-24 l14,22 l14,-20 l12,20 l12,-14 l10,14", "#4A2414", INK, 5),
        path("M-120,10 C-80,40 40,50 150,20", "none", "#B0704A", 8),
        path("M-150,-10 C-186,-6 -214,6 -222,22 C-200,34 -170,34 -140,26 Z", hide, INK, 6),
        ellipse(-222, 22, 10, 14, "#3A1C10", INK, 4),
        path("M-186,20 q-6,-22 10,-30", "none", "#F4ECD8", 7),
        path("M-120,-60 L-104,-104 L-90,-58 Z", "#5A2C18", INK, 5),
        circle(-150, -20, 8, "#F4ECD8", INK, 3),
        circle(-152, -20, 4, INK),
        path("M-40,60 L-70,120 L-50,124 L-22,70 M80,66 L120,118 L138,110 L104,60", hide, INK, 6),
        path("M170,-30 q30,-20 20,-50", "none", INK, 6),
    ]
    return _place(items, x, y, s)


def deer(x, y, s=1.0):
    """The deer of October, standing and looking back over its shoulder."""
    coat, light = "#9A5A2C", "#F0D9B0"
    items = [
        path("M-80,40 L-92,200 L-76,200 L-60,60 M-40,50 L-30,200 L-14,200 L-20,60 "
             "M90,40 L100,200 L116,200 L112,50 M120,30 L150,190 L166,186 L138,40",
             coat, INK, 6),
        path("M-110,-30 C-100,-80 40,-90 130,-60 C170,-40 176,20 140,50 "
             "C80,80 -60,80 -100,50 C-124,30 -124,0 -110,-30 Z", coat, INK, 7),
        path("M-96,40 C-40,66 60,66 130,44 C60,44 -20,40 -96,40 Z", light),
        path("M150,-50 L186,-70 L176,-36 Z", light, INK, 4),
    ]
    for sx, sy in [(-60, -40), (-20, -50), (20, -48), (60, -44), (100, -30), (-40, -10),
                   (0, -16), (40, -14), (80, -6)]:
        items.append(ellipse(sx, sy, 9, 7, light))
    items += [
        # The neck turning back, the head looking over the right shoulder.
        path(tapered([(-90, -20), (-110, -90), (-80, -150)], 60, 40), coat, INK, 6),
        path("M-98,-176 C-60,-200 0,-190 20,-160 C0,-136 -60,-130 -96,-140 Z", coat, INK, 6),
        path("M20,-160 C30,-156 32,-146 22,-142 Z", INK),
        path("M-88,-184 L-110,-214 L-76,-192 Z M-70,-190 L-70,-222 L-58,-194 Z", coat, INK, 4),
        circle(-30, -168, 7, INK),
        # Antlers.
        path("M-80,-190 C-100,-250 -130,-270 -160,-280 M-108,-240 L-90,-290 M-130,-262 "
             "L-150,-310 M-66,-194 C-50,-250 -20,-280 10,-290 M-40,-250 L-60,-300 "
             "M-18,-274 L-8,-320", "none", "#E8D2A8", 12),
        path("M-80,-190 C-100,-250 -130,-270 -160,-280 M-108,-240 L-90,-290 M-130,-262 "
             "L-150,-310 M-66,-194 C-50,-250 -20,-280 10,-290 M-40,-250 L-60,-300 "
             "M-18,-274 L-8,-320", "none", INK, 4),
    ]
    return _place(items, x, y, s)


def frog(x, y, s=1.0):
    """A small frog leaping at the poet's feet."""
    green = "#5E9A3C"
    items = [
        path("M20,10 L70,40 L90,30 M-10,14 L-40,50 L-60,44", "none", INK, 12),
        path("M20,10 L70,40 L90,30 M-10,14 L-40,50 L-60,44", "none", green, 6),
        path("M-40,-10 C-36,-40 20,-46 40,-20 C50,0 30,20 0,20 C-30,20 -44,6 -40,-10 Z",
             green, INK, 5),
        circle(-26, -30, 8, "#F4ECD8", INK, 3),
        circle(-26, -30, 3, INK),
    ]
    return _place(items, x, y, s)


def poet(doc, x, y, s=1.0):
    """The poet of November in court robe and tall cap, under a red umbrella, stepping
    out into the rain. Takes the document for the umbrella's gradient."""
    canopy = doc.linear([(0, "#E8584A"), (1, RED_DARK)], 0, 0, 1, 0)
    robe = doc.linear([(0, "#6A8FD8"), (1, BLUE_DARK)], 0, 0, 1, 1)
    items = [
        # The umbrella held over his left shoulder.
        path("M40,-200 L-60,-60", "none", INK, 10),
        path("M40,-200 L-60,-60", "none", "#C9A46A", 5),
        path("M-120,-250 C-40,-330 140,-320 200,-200 C170,-210 140,-200 120,-180 "
             "C90,-200 50,-200 30,-176 C0,-200 -40,-200 -60,-180 C-80,-210 -110,-220 -120,-250 Z",
             canopy, INK, 7),
        path("M40,-292 L30,-178 M40,-292 L-60,-180 M40,-292 L120,-180 M40,-292 L-110,-236 "
             "M40,-292 L190,-206", "none", "#5E0A10", 4),
        circle(40, -294, 9, GOLD, INK, 3),
        # Robe: a wide triangle of sleeves and skirts.
        path("M-40,-120 C-90,-60 -130,60 -120,180 L80,180 C90,80 60,-60 20,-120 Z",
             robe, INK, 7),
        path("M-60,-60 C-120,-40 -150,20 -140,60 L-70,40 Z", BLUE, INK, 6),
        path("M-30,-110 L-20,170 M10,-110 L40,170", "none", BLUE_DARK, 5),
        path("M-40,-40 C-10,-30 10,-30 30,-42", "none", GOLD_LIGHT, 8),
        # Feet in black shoes.
        path("M-80,180 L-100,204 L-50,204 L-50,180 Z M30,180 L30,204 L80,204 L70,180 Z",
             INK),
        # Head, face and tall black cap.
        ellipse(-10, -150, 28, 34, "#F1D8B8", INK, 5),
        path("M-30,-178 L-36,-240 L6,-250 L14,-176 Z", INK),
        path("M-6,-246 C20,-270 40,-260 50,-250", "none", INK, 6),
        circle(-22, -152, 4, INK),
        path("M-30,-126 q10,6 20,0", "none", INK, 3),
    ]
    return _place(items, x, y, s)
