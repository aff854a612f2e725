"""The birds of the deck: crane, bush warbler, cuckoo, geese, swallow and phoenix.

Each is drawn about its own origin, facing left, and placed with translate and scale."""

from frame import GOLD, GOLD_LIGHT, INK, RED
from svg import circle, ellipse, group, path, scale, tapered, translate


def _place(items, x, y, s, flip=False):
    sx = -s if flip else s
    return group(items, f"{translate(x, y)} {scale(sx, s)}")


def crane(x, y, s=1.0):
    """The standing crane of January: white body, black neck and bustle, red crown."""
    items = [
        # Legs first, so that the body hides their tops.
        path("M-6,60 L-18,150 L-10,232 M34,60 L42,150 L30,232", "none", INK, 9),
        path("M-10,232 l-34,8 M-10,232 l22,10 M30,232 l-30,10 M30,232 l26,6", "none", INK, 6),
        # The black bustle of the folded wing tips.
        path("M70,-30 L178,20 L160,40 L184,68 L150,66 L170,100 L120,74 L110,98 L84,60 Z",
             INK, INK, 5),
        path("M-75,-28 C-64,-86 40,-96 112,-44 C156,-12 150,34 108,54 "
             "C62,82 -22,82 -54,44 C-74,22 -84,2 -75,-28 Z", "#FFFFFF", INK, 7),
        # Feather scallops on the folded wing.
        path("M-20,-50 C20,-62 80,-40 122,-6 M10,-20 q18,14 36,0 q18,14 36,0 q18,14 36,0 "
             "M30,10 q18,14 36,0 q18,14 36,0", "none", "#9AA3A8", 5),
        path(tapered([(-58, -24), (-84, -100), (-62, -180), (-86, -240)], 40, 20), INK, INK, 3),
        ellipse(-92, -250, 28, 20, INK, INK, 3, rot=-10),
        path("M-74,-262 C-60,-250 -58,-226 -72,-214 L-84,-236 Z", "#FFFFFF"),
        path("M-112,-256 L-196,-236 L-112,-240 Z", "#C9AE78", INK, 4),
        circle(-92, -272, 13, RED, INK, 3),
        circle(-102, -252, 4.5, "#FFFFFF"),
    ]
    return _place(items, x, y, s)


def warbler(x, y, s=1.0):
    """The bush warbler of February, perched: olive back, pale breast, eye ring."""
    olive = "#7C8C2C"
    items = [
        path("M60,10 L150,60 L140,74 L54,36 Z", "#5C6A1E", INK, 5),
        path("M-70,-20 C-70,-62 -20,-76 10,-50 C50,-36 80,-8 84,22 C70,48 10,60 -30,48 "
             "C-60,38 -74,12 -70,-20 Z", olive, INK, 6),
        path("M-62,0 C-52,34 -10,50 40,40 C10,30 -30,20 -62,0 Z", "#DAD69A"),
        path("M-6,-24 C30,-30 60,-4 70,20 C40,8 14,-2 -6,-24 Z", "#5C6A1E", INK, 4),
        path("M-70,-34 L-98,-26 L-70,-20 Z", INK),
        circle(-46, -36, 11, "#F4F0D8", INK, 3),
        circle(-47, -36, 5, INK),
        path("M-10,50 l-8,34 M18,52 l4,32", "none", INK, 6),
    ]
    return _place(items, x, y, s)


def cuckoo(x, y, s=1.0):
    """The cuckoo of April in flight: slate back, barred white breast, wings swept up."""
    slate, far = "#3D4556", "#2A3040"
    items = [
        path("M-10,-10 C20,-70 90,-120 190,-140 C150,-96 110,-50 70,-4 Z", far, INK, 6),
        path("M70,-8 L214,-24 L220,0 L214,24 L70,14 Z", slate, INK, 5),
        path("M120,-10 l0,16 M160,-14 l0,22 M196,-18 l0,30", "none", "#F2EEE2", 5),
        path("M-96,-6 C-84,-36 -30,-40 20,-26 C70,-14 94,2 84,18 C44,36 -40,34 -80,20 "
             "C-96,12 -100,4 -96,-6 Z", slate, INK, 6),
        path("M-80,10 C-40,32 30,30 74,16 C30,10 -30,8 -80,10 Z", "#F2EEE2"),
        path("M-44,16 l8,10 M-24,18 l8,10 M-4,18 l8,10 M16,16 l8,10 M36,14 l8,8", "none",
             INK, 3),
        path("M-30,-20 C-10,-100 50,-170 150,-210 C120,-150 90,-80 50,-10 Z", "#566079", INK,
             6),
        path("M10,-60 C50,-100 90,-140 130,-180 M30,-30 C60,-70 90,-110 120,-140", "none",
             "#8A93A6", 4),
        path("M-96,-4 L-132,4 L-96,8 Z", "#D8A030", INK, 3),
        circle(-76, -10, 7, "#F4D24A", INK, 3),
    ]
    return _place(items, x, y, s)


def goose(x, y, s=1.0):
    """One wild goose in flight, drawn as a bold dark silhouette that reads at 1x."""
    items = [
        path("M-70,0 C-40,-12 20,-12 60,-2 L92,6 L60,12 C20,20 -40,16 -70,0 Z", INK),
        path("M-10,-6 C10,-60 40,-100 96,-110 C70,-80 50,-40 30,-4 Z", INK),
        path("M0,8 C20,40 30,60 80,76 C60,46 50,24 30,8 Z", "#3A302C"),
        path("M-70,0 C-90,-8 -104,-10 -122,-4 L-100,4 C-90,4 -80,4 -70,4 Z", INK),
        circle(-100, -4, 3, "#FFFFFF"),
    ]
    return _place(items, x, y, s)


def swallow(x, y, s=1.0):
    """The swallow of November diving: navy back, red throat, forked tail."""
    navy = "#1D2A55"
    items = [
        path("M40,-6 L170,-60 L120,-4 L190,30 L50,14 Z", navy, INK, 5),
        path("M-20,-10 C0,-80 40,-140 120,-190 C80,-120 60,-60 30,-4 Z", navy, INK, 5),
        path("M-10,10 C10,70 40,120 100,170 C60,110 50,60 30,10 Z", "#2C3B70", INK, 5),
        path("M-80,0 C-60,-30 10,-26 50,-8 C60,0 60,8 50,14 C10,30 -60,30 -80,0 Z", navy, INK,
             6),
        path("M-76,4 C-60,18 -30,22 0,18 C-20,8 -50,4 -76,4 Z", "#F2EEE2"),
        path("M-80,0 C-74,10 -64,14 -52,12 C-58,4 -66,0 -80,0 Z", RED),
        path("M-82,-4 L-108,2 L-80,6 Z", INK),
        circle(-62, -8, 5, "#FFFFFF"),
    ]
    return _place(items, x, y, s)


def phoenix(doc, x, y, s=1.0):
    """The phoenix of December rising: long sweeping tail plumes in red, green and gold,
    spread wings, crested head. Takes the document to make its gradients."""
    plume = doc.linear([(0, "#2F8F62"), (0.5, GOLD), (1, RED)], 0, 0, 1, 1)
    wing = doc.linear([(0, "#E24B34"), (1, "#8C1A17")])
    items = []
    # Tail plumes sweeping down and to the right, each with an eye at its tip.
    for k, (ex, ey) in enumerate([(190, 330), (120, 380), (250, 250), (40, 400)]):
        d = tapered([(0, 40), (ex * 0.4, ey * 0.35 + 30), (ex * 0.8, ey * 0.8), (ex, ey)],
                    26, 8, 40)
        items.append(path(d, plume, INK, 5))
        items.append(ellipse(ex, ey, 22, 30, GOLD_LIGHT, INK, 4, rot=-30 + k * 10))
        items.append(circle(ex, ey, 10, "#2F6FB0", INK, 3))
    # Wings raised behind the body.
    items.append(path("M-20,-20 C-120,-120 -160,-220 -150,-300 C-110,-250 -60,-230 0,-200 "
                      "C-20,-150 0,-90 20,-40 Z", wing, INK, 6))
    items.append(path("M30,-30 C110,-120 190,-180 250,-190 C220,-140 180,-110 160,-60 "
                      "C120,-50 80,-30 50,0 Z", wing, INK, 6))
    items.append(path("M-130,-250 L-80,-200 M-120,-200 L-60,-160 M200,-170 L140,-110 "
                      "M230,-180 L170,-100", "none", GOLD_LIGHT, 6))
    # The body and neck, then the crested head looking back over the wing.
    items.append(path("M-40,-10 C-60,-80 -30,-140 10,-170 C30,-120 60,-60 60,0 "
                      "C40,50 -10,60 -40,-10 Z", "#2F8F62", INK, 6))
    items.append(path("M-10,-40 C0,0 30,20 50,0", "none", GOLD, 8))
    items.append(path(tapered([(10, -160), (-10, -220), (-40, -260)], 34, 20), "#2F8F62", INK,
                      5))
    items.append(ellipse(-50, -270, 30, 24, RED, INK, 5))
    items.append(path("M-40,-292 C-30,-330 0,-340 20,-330 M-52,-294 C-50,-330 -30,-350 -10,-352",
                      "none", GOLD, 8))
    items.append(path("M-76,-270 L-110,-258 L-76,-258 Z", GOLD, INK, 4))
    items.append(circle(-58, -274, 5, "#FFFFFF"))
    return _place(items, x, y, s)
