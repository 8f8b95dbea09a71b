"""The three boards as a screen reader finds them, through AT-SPI.

    board_reader.py <game folder> <output folder>

Run by screen_reader.sh inside a desktop session, with the game (the
end-to-end build, whose state hook writes e2e_state.txt) already starting in
the game folder. It plays through the screens to each board in turn and
checks what a screen reader gets there:

  - every object on the board (and on the options screen) has a name, and
    nothing else is there: no unnamed picture, no decoration;
  - each tray piece, tray place, grid cell and picture-set thumbnail is
    there and named, the pieces and thumbnails each differently;
  - the keyboard's ring is the focus: each key that moves it moves the
    focus to the piece, place or cell under it, which says it is focused;
  - the clock's ticks and the verdict reach the reader as they change.

Each board's tree goes to tree-<size>.txt in the output folder (role, name,
description, states and actions of every object, one per line, indented by
depth) and every event heard to events.txt.
"""
import os
import re
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

work, out = sys.argv[1], sys.argv[2]
failures = []


def fail(message):
    print("FAIL: " + message, flush=True)
    failures.append(message)


def give_up(message):
    fail(message)
    sys.exit(1)


# --- the game's own report of its screens (the end-to-end state hook) ------


def state():
    try:
        with open(os.path.join(work, "e2e_state.txt")) as f:
            return [line.split() for line in f]
    except FileNotFoundError:
        return []


def wait_screen(name, limit=20):
    """The screen's origin, once the window manager has stopped moving it."""
    deadline = time.time() + limit
    last = None
    while time.time() < deadline:
        where = None
        for words in state():
            if words[:2] == ["screen", name]:
                where = int(words[2]), int(words[3])
        if where and where == last:
            return where
        last = where
        pump(0.5)
    give_up(name + " was not shown within %d s" % limit)


def window_id(name):
    for words in state():
        if words[:2] == ["window", name]:
            return words[2]
    return None


# --- a player's hands ---------------------------------------------------------


def click(origin, left, top, width, height):
    """Clicks the middle of a control given in twips on a screen at origin."""
    x = origin[0] + (left + width // 2) // 15
    y = origin[1] + (top + height // 2) // 15
    subprocess.run(["xdotool", "mousemove", "--sync", str(x), str(y), "click", "1"], check=True)
    pump(0.4)


def key(name):
    subprocess.run(["xdotool", "key", name], check=True)
    pump(0.4)


# --- what the reader hears ----------------------------------------------------

heard = []  # (event type, detail1, role, name, focused) as each arrived


def on_event(event):
    source = event.source
    try:
        focused = source.getState().contains(pyatspi.STATE_FOCUSED)
        heard.append((event.type, event.detail1, source.getRoleName(), source.name, focused))
    except Exception as e:  # an object gone before its event was read
        heard.append((event.type, event.detail1, "?", "(gone: %s)" % e, False))


def pump(seconds):
    context = GLib.MainContext.default()
    deadline = time.time() + seconds
    while time.time() < deadline:
        while context.pending():
            context.iteration(False)
        time.sleep(0.02)


def events_since(start, kind):
    return [e for e in heard[start:] if e[0] == kind]


# --- the tree -----------------------------------------------------------------


def find_board(n, limit=20):
    title = "Pimbalo %dx%d board" % (n, n)
    deadline = time.time() + limit
    while time.time() < deadline:
        for app in pyatspi.Registry.getDesktop(0):
            if app is None:
                continue
            for window in app:
                if window is not None and window.name == title:
                    return window
        pump(0.2)
    give_up("no window named %r within %d s" % (title, limit))


def actions(obj):
    try:
        action = obj.queryAction()
    except NotImplementedError:
        return []
    return [action.getName(i) for i in range(action.nActions)]


def states(obj):
    return sorted(s.value_nick for s in obj.getState().getStates())


def descendants(obj, depth=0):
    for child in obj:
        if child is None:
            continue
        yield depth, child
        yield from descendants(child, depth + 1)


def dump(window, path):
    with open(path, "w") as f:
        for depth, obj in [(-1, window)] + list(descendants(window)):
            f.write("%s%s %r description=%r states=[%s] actions=[%s]\n" % (
                "  " * (depth + 1), obj.getRoleName(), obj.name, obj.description,
                " ".join(states(obj)), " ".join(actions(obj))))


def check_tree(window, n, sets):
    """Everything named, each piece, place, cell and thumbnail there."""
    objects = [obj for _, obj in descendants(window)]
    for obj in objects:
        if not obj.name:
            fail("%dx%d: an unnamed %s" % (n, n, obj.getRoleName()))
    pieces = [o.name for o in objects if o.getRoleName() == "image"]
    places = [o.name for o in objects if o.name.startswith("Tray place ")]
    cells = [o for o in objects if o.name.startswith("Row ")]
    thumbnails = [o.name for o in objects
                  if o.getRoleName() == "push button" and o.name.startswith("Pictures: ")]
    for what, names, count in (("pieces", pieces, n * n), ("tray places", places, n * n),
                               ("thumbnails", thumbnails, sets)):
        if len(names) != count or len(set(names)) != count:
            fail("%dx%d: %d %s, %d names, %d expected: %s" % (
                n, n, len(names), what, len(set(names)), count, names))
    if len(cells) != n * n:
        fail("%dx%d: %d grid cells" % (n, n, len(cells)))
    givens = [c for c in cells if c.description.startswith("Given")]
    if not givens or any(c.name.endswith(": empty") for c in givens):
        fail("%dx%d: the given cells do not name their pictures: %s" % (
            n, n, [c.name for c in givens]))
    return cells


def check_options_screen():
    """The screen the boards are chosen on shows no decoration either."""
    for app in pyatspi.Registry.getDesktop(0):
        for window in app or []:
            if window is None or not any(c is not None and c.name == "Board Size" for c in window):
                continue
            for _, obj in descendants(window):
                if not obj.name:
                    fail("options screen: an unnamed %s" % obj.getRoleName())
            return
    fail("no options screen found")


def check_ring(window_name, n):
    """Keys move the ring; the reader's focus must follow, key by key."""
    window = window_id(window_name)
    if window:
        subprocess.run(["xdotool", "windowactivate", "--sync", window], check=False)
    pump(0.5)
    tray = lambda k: re.compile(r"(, %d of %d|^Tray place %d: .*)$" % (k % n + 1, n, k + 1))
    grid = lambda x, y: re.compile(r"^Row %d, column %d: " % (y + 1, x + 1))
    for press, expected in (("Tab", tray(0)), ("Right", tray(1)), ("Right", tray(2)),
                            ("Tab", grid(0, 0)), ("Right", grid(1, 0)), ("Down", grid(1, 1))):
        start = len(heard)
        key(press)
        focus = [e for e in events_since(start, "object:state-changed:focused") if e[1] == 1]
        if not focus:
            fail("%dx%d: %s moved no focus" % (n, n, press))
        elif not expected.search(focus[-1][3]) or not focus[-1][4]:
            fail("%dx%d: after %s the focus is on %r (focused state %s), not %s" % (
                n, n, press, focus[-1][3], focus[-1][4], expected.pattern))


def press(window, role, name_start):
    for _, obj in descendants(window):
        if obj.getRoleName() == role and obj.name.startswith(name_start):
            obj.queryAction().doAction(0)
            pump(0.3)
            return obj
    give_up("no %s named %r..." % (role, name_start))


def check_clock_and_verdict(window, cells):
    """The clock's ticks reach the reader; so does the verdict as it shows."""
    start = len(heard)
    pump(2.5)
    ticks = [e for e in events_since(start, "object:property-change:accessible-name")
             if re.fullmatch(r"\d+", e[3] or "")]
    if not ticks:
        fail("no tick of the clock was heard")
    # Shown solved, then a piece picked up and put back: the grid is full
    # again and the check a second later writes the verdict.
    press(window, "push button", "Show solution")
    cell = next(c for c in cells if c.description == "Grid cell")
    start = len(heard)
    cell.queryAction().doAction(0)
    pump(0.3)
    cell.queryAction().doAction(0)
    pump(2.5)
    shown = [e for e in events_since(start, "object:state-changed:showing")
             if e[1] == 1 and e[2] == "notification"]
    if not shown or not shown[-1][3].startswith("Correct"):
        fail("the verdict was not heard as it showed: %s" % heard[start:])


EVENTS = ("object:state-changed:focused", "focus:", "object:property-change:accessible-name",
          "object:state-changed:showing")
pyatspi.Registry.registerEventListener(on_event, *EVENTS)

# Title "OK", then each board from the options screen: its size, a level.
title = wait_screen("Titlefrm")
click(title, 1560, 7080, 1575, 600)
boards = ((4, "jigsaw", 8, 2295, 1440), (5, "jigsaw5x5", 8, 3180, 2760),
          (6, "jigsaw6x6", 6, 4065, 4080))
for n, screen, sets, size_top, level_left in boards:
    options = wait_screen("Startplay2")
    if n == 4:
        check_options_screen()
    click(options, 1200, size_top, 1815, 840)
    click(options, level_left, 6360, 975, 855)
    wait_screen(screen)
    window = find_board(n)
    pump(1)
    press(window, "push button", "Change Pictures")  # the thumbnails shown
    cells = check_tree(window, n, sets)
    check_ring(screen, n)
    dump(window, os.path.join(out, "tree-%dx%d.txt" % (n, n)))
    if n == 4:
        check_clock_and_verdict(window, cells)
    press(window, "push button", "Exit")

with open(os.path.join(out, "events.txt"), "w") as f:
    for event in heard:
        f.write("%s %s %s %r focused=%s\n" % event)
if failures:
    sys.exit(1)
print("PASS: every board named, the ring is the focus, the clock and verdict heard")
