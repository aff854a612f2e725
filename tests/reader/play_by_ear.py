"""A whole deal against the computer played through the accessibility bus, as a screen reader's
user plays it: the table is read from the tree, cards are used by their actions and keys, and
the computer's moves are learned from the announcements; with sound and motion on, as a fresh
folder has them, the program writes no warning. Run under its own session bus."""
import os, re, shutil, subprocess, sys, tempfile, time

import pyatspi
from gi.repository import GLib

CARD = re.compile(r"^([^,:.]+), (January|February|March|April|May|June|July|August|September|October|November|December), (\d+) points")
heard, focused = [], []


def fail(why):
    print("FAIL:", why, "\nheard:", *heard, sep="\n  ")
    sys.exit(1)


def wait(cond, seconds, why):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        got = cond()
        if got:
            return got
        time.sleep(0.02)
    fail("waited in vain for " + why)


def on_event(e):
    try:
        if e.type.startswith("object:text-changed:insert") and e.source.getRole() == pyatspi.ROLE_NOTIFICATION:
            heard.append(e.any_data)
            print("heard:", e.any_data, flush=True)
        elif e.type.startswith("object:state-changed:focused") and e.detail1:
            focused.append(e.source.name)
    except GLib.GError:
        pass  # a thing that has left the table since


def things(app):
    table = pyatspi.findDescendant(app, lambda a: a.name == "Card table")
    return [c for c in table] if table else []


def month(name):
    return CARD.match(name).group(2)


def act(thing):
    thing.queryAction().doAction(0)


def answer_boxes(app):
    """Answers what a deal's end asks: a won deal's name form, and No to playing again."""
    for frame in app:
        box = pyatspi.findDescendant(frame, lambda a: a.getRole() == pyatspi.ROLE_PUSH_BUTTON and a.name in ("No", "OK"))
        if box and frame.getRole() in (pyatspi.ROLE_DIALOG, pyatspi.ROLE_ALERT):
            print("dialog:", frame.name, "->", box.name, flush=True)
            act(box)
            return box.name
    return None


def table_cards(app):
    return sorted(c.name.replace(", can be taken", "") for c in things(app) if CARD.match(c.name) and
                  c.getRole() == pyatspi.ROLE_PUSH_BUTTON and not c.getState().contains(pyatspi.STATE_SELECTABLE))


FULL = CARD.pattern[1:]
TOLD = [(re.compile(rf"takes? ({FULL})\."), list.remove), (re.compile(rf"claims? ({FULL})\."), list.remove),
        (re.compile(rf"lays? down ({FULL})\."), list.append), (re.compile(rf"turns ({FULL}) for .*lays? it down\."), list.append)]


def learn(table, sentence):
    """The table as the announcements tell it: each move takes a card from it or lays one down."""
    for pattern, change in TOLD:
        for m in pattern.finditer(sentence):
            change(table, m.group(1))


def play(app):
    deck = wait(lambda: next((c for c in things(app) if c.name.startswith("Deck") and "deal" in c.name), None), 20, "the deck")
    act(deck)
    table = wait(lambda: len(table_cards(app)) == 8 and table_cards(app), 20, "the deal")
    told = 0
    for _ in range(40):
        cue = ("Your turn.", "Choose a card for it to take.")
        wait(lambda: heard and heard[-1].endswith(cue) or answer_boxes(app) == "No", 30, "my turn or the deal's end")
        if not heard[-1].endswith(cue):
            if not any(re.search(r"You (win|lose|tie), \d+ to \d+\.", h) for h in heard):
                fail("no result was told")
            return
        for sentence in heard[told:]:
            learn(table, sentence)
        told = len(heard)
        if sorted(table) != table_cards(app):
            fail(f"the table reads {table_cards(app)}, the moves told {sorted(table)}")
        heard.append("(my move)")
        cards = things(app)
        if any(c.name.endswith("waits to be placed") for c in cards):
            act(next(c for c in cards if c.name.endswith(", can be taken")))
            continue
        hand = [c for c in cards if c.getState().contains(pyatspi.STATE_SELECTABLE)]
        chosen, played = month(hand[0].name), hand[0].name
        focused.clear()
        act(hand[0])
        target = wait(lambda: focused and (focused[-1].endswith("can be taken") or focused[-1] == "The table") and focused[-1], 5, "the focus on the table")
        framed = [c.name for c in things(app) if c.name.endswith(", can be taken")]
        wild = "Yanagi No Kasu"  # matches every month
        if not played.startswith(wild) and any(month(n) != chosen and not n.startswith(wild) for n in framed):
            fail(f"{framed} framed for a card of {chosen}")
        subprocess.run(["xdotool", "key", "--delay", "100", "Return", "Return"], check=True)  # shows the mark, then uses it
        print("played", played, "onto", target, flush=True)
    fail("the deal did not end in 40 turns")


def skip(why):
    print("SKIP: the accessibility bus cannot start here:", why)
    sys.exit(77)


def main(program):
    if "READER_BUS" not in os.environ:  # a session bus of its own, so no desktop's reader hears
        try:
            sys.exit(subprocess.run(["dbus-run-session", "--", sys.executable, __file__, program], env=dict(os.environ, READER_BUS="1")).returncode)
        except FileNotFoundError as e:
            skip(e)
    try:
        pyatspi.Registry.getDesktop(0).childCount
    except GLib.GError as e:
        skip(e)
    folder = tempfile.mkdtemp()
    shutil.copy(program, folder)
    xvfb = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1280x900x24"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    os.environ["DISPLAY"] = ":" + xvfb.stdout.readline().decode().strip()
    env = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb")
    said = open(os.path.join(folder, "said.txt"), "w+")
    game = subprocess.Popen([os.path.join(folder, os.path.basename(program))], env=env, cwd=folder, stderr=said)
    try:
        pyatspi.Registry.registerEventListener(on_event, "object:text-changed", "object:state-changed", "focus:")
        app = wait(lambda: next((a for a in pyatspi.Registry.getDesktop(0) if a and a.name == "Petalgarden"), None), 20, "the program on the bus")
        wait(lambda: len(things(app)) > 0 and all(f.getRole() != pyatspi.ROLE_DIALOG for f in app), 20, "the splash to go")
        subprocess.run(["xdotool", "search", "--sync", "--name", "^Petalgarden$", "windowfocus", "--sync"], check=True, timeout=20)
        play(app)
        print("a whole deal played by ear; heard", len(heard), "announcements")
        # With sound and motion on and no audio device, Qt says nothing but its note on the session.
        said.seek(0)
        words = [line for line in said.read().splitlines() if not line.startswith("QStandardPaths: XDG_RUNTIME_DIR")]
        if words:
            fail("the program said: " + " | ".join(words))
    finally:
        game.kill()
        xvfb.kill()
        shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    main(sys.argv[1])
