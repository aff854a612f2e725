"""The pictures around the game: application icon, splash panels, Hall of Fame titles and
decorations, and the cards of the connection animation. They reuse the card faces so that
the whole game shares one look."""

import math

import deck
from frame import (EDGE, GOLD, GOLD_DARK, GOLD_LIGHT, INK, LACQUER_DARK, RED, RED_DARK, crest)
from lettering import fit_cap, lettering, writing
from svg import Doc, circle, embed, group, num, path, rect

FELT_DARK, FELT = "#0B2519", "#1A4A33"


def _card(doc, index, x, y, w, angle, key):
    """A card face (index >= 0) or the back (index < 0), w wide, its centre at (x, y)."""
    text = deck.face(index) if index >= 0 else deck.back()
    s = w / 500.0
    tr = (f"translate({num(x)} {num(y)}) rotate({num(angle)}) scale({s:.4f}) "
          f"translate(-250 -400)")
    shadow = group([rect(-250 + 14, -400 + 18, 500, 800, "#000000", rx=30, op=0.35)],
                   f"translate({num(x)} {num(y)}) rotate({num(angle)}) scale({s:.4f})")
    return shadow + embed(doc, text, tr, key)


def _fan(doc, cards, cx, cy, w, spread, pivot_drop):
    """Cards fanned about a pivot below their centres, as held in a hand."""
    out = []
    n = len(cards)
    for k, index in enumerate(cards):
        a = (k - (n - 1) / 2) * spread
        t = math.radians(a)
        x = cx + pivot_drop * math.sin(t)
        y = cy + pivot_drop * (1 - math.cos(t))
        out.append(_card(doc, index, x, y, w, a, f"k{k}_"))
    return out


def app_icon():
    """256 square: two cards fanned on a round green felt tile with a gold rim."""
    doc = Doc(256, 256)
    doc.add(rect(8, 8, 240, 240, doc.radial([(0, "#2C7A52"), (1, FELT_DARK)], 0.5, 0.4, 0.7),
                 EDGE, 6, rx=48))
    doc.add(rect(16, 16, 224, 224, "none", GOLD, 4, rx=40))
    doc.add(_fan(doc, [-1, 0], 128, 124, 110, 22, 140))
    return doc.text()


def _panel(doc, w, h):
    doc.add(rect(0, 0, w, h, doc.linear([(0, "#2A1C17"), (1, "#120B09")]), rx=10))
    doc.add(rect(3, 3, w - 6, h - 6, "none", GOLD, 2, rx=8))
    doc.add(rect(7, 7, w - 14, h - 14, "none", GOLD_DARK, 1, rx=6))


def splash(left):
    """160 x 240: a fan of the bright cards on black lacquer, a pair for the splash."""
    doc = Doc(160, 240)
    _panel(doc, 160, 240)
    cards = [0, 8, 28] if left else [44, 40, 32]
    doc.add(_fan(doc, cards, 80, 108, 64, 15, 130))
    doc.add(crest(80, 212, 14, GOLD))
    return doc.text()


def hof_title(text, japanese=None):
    """400 x 60: the title in gold capitals on a lacquer band, blossom crests at its ends."""
    doc = Doc(400, 60)
    band = doc.linear([(0, "#8E1E20"), (0.5, "#6A1216"), (1, LACQUER_DARK)])
    doc.add(rect(2, 6, 396, 48, band, EDGE, 2, rx=6))
    doc.add(rect(6, 10, 388, 40, "none", GOLD, 1.2, rx=4))
    for x in (26, 374):
        doc.add(crest(x, 30, 13, GOLD))
    letters = doc.linear([(0, "#FFFFFF"), (0.4, GOLD_LIGHT), (1, GOLD)])
    if japanese:
        doc.add(writing(japanese, 200, 30, 24, letters, EDGE, 0.1, shadow="#000000", outline_extra=0.7))
        return doc.text()
    cap = fit_cap(text, 300, 20)
    doc.add(lettering(text, 200, 30, cap, letters, EDGE, 0.19, shadow="#000000",
                      outline_extra=0.7))
    return doc.text()


def setup_decoration():
    """64 x 96: a small fan of cards, the setup dialog's ornament."""
    doc = Doc(64, 96)
    doc.add(_fan(doc, [-1, 4, 0], 32, 50, 30, 16, 56))
    return doc.text()


def hof_winner_decoration():
    """64 x 96: a gold cup raised before a red sun, ribbons below: a winner's honour."""
    doc = Doc(64, 96)
    sun = doc.radial([(0, "#F25C3C"), (1, RED_DARK)], 0.4, 0.35, 0.7)
    gold = doc.linear([(0, GOLD_LIGHT), (1, GOLD_DARK)], 0, 0, 1, 0)
    doc.add(circle(32, 34, 28, sun, EDGE, 1.5))
    doc.add(path("M20,70 L12,94 L20,89 L25,95 L28,72 Z M44,70 L52,94 L44,89 L39,95 L36,72 Z",
                 RED, EDGE, 1.2))
    doc.add(path("M12,34 C13,52 22,58 32,58 C42,58 51,52 52,34 Z", gold, INK, 1.5))
    doc.add(path("M26,58 L24,70 L40,70 L38,58 Z", gold, INK, 1.5))
    doc.add(rect(20, 68, 24, 6, gold, INK, 1.5, rx=2))
    doc.add(path("M12,34 C12,29 52,29 52,34 C52,39 12,39 12,34 Z", "#F6E3A6", INK, 1.5))
    doc.add(crest(32, 47, 6, RED))
    return doc.text()


def connection_card(i):
    """The connection animation shows three cards in turn: three of the brights."""
    return deck.face([0, 8, 28][i])


def pictures():
    yield "appIcon", app_icon()
    yield "splashLeft", splash(True)
    yield "splashRight", splash(False)
    yield "hofSingleTitle", hof_title("SINGLE GAME HALL OF FAME")
    yield "hofTournamentTitle", hof_title("TOURNAMENT HALL OF FAME")
    yield "hofSingleTitle_ja", hof_title("", "一局勝負の殿堂")
    yield "hofTournamentTitle_ja", hof_title("", "トーナメントの殿堂")
    yield "setupDecoration", setup_decoration()
    yield "hofWinnerDecoration", hof_winner_decoration()
    for i in range(3):
        yield f"connectionCard{i}", connection_card(i)
