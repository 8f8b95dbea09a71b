"""The three boards as a screen reader finds them, through AT-SPI.

    board_reader.py <game folder> <output folder>

Run by play_game.sh (E2E_PLAY=boards) in a desktop session, with the
end-to-end game (whose hook writes e2e_state.txt) starting in the game folder. It goes to each board
in turn and checks that every object there (and on the options screen) has a
name, with no decoration; that each tray piece, tray place, grid cell and
thumbnail is there, the pieces and thumbnails each named differently; that
each key that moves the ring moves the focus, to an object that says it is
focused; and that the clock's ticks and the verdict reach the reader. Each
board's tree goes to tree-<size>.txt (role, name, states, actions and
description, indented by depth), every event heard to events.txt.
"""
import os
import re
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

from screen_reader import application, describe, walk

work, out = sys.argv[1], sys.argv[2]
failures = []
heard = []  # (event type, detail1, role, name, says it is focused), as they came


def fail(message):
    print("FAIL: " + message, flush=True)
    failures.append(message)


def pump(seconds):
    context, deadline = GLib.MainContext.default(), time.time() + seconds
    while time.time() < deadline:
        while context.pending():
            context.iteration(False)
        time.sleep(0.02)


def on_event(event):
    try:
        source = event.source
        heard.append((event.type, event.detail1, source.getRoleName(), source.name,
                      source.getState().contains(pyatspi.STATE_FOCUSED)))
    except Exception as e:  # gone before its event was read
        heard.append((event.type, event.detail1, "?", str(e), False))


def wait_screen(name, limit=20, again=None):
    """The screen's origin once the window manager has stopped moving it;
    `again` (a click a busy machine lost) is repeated every 5 s meanwhile."""
    last, start = None, time.time()
    deadline, retry = start + limit, start + 5
    while time.time() < deadline:
        try:
            with open(os.path.join(work, "e2e_state.txt")) as f:
                lines = [line.split() for line in f]
        except FileNotFoundError:
            lines = []
        where = next(((int(w[2]), int(w[3])) for w in lines if w[:2] == ["screen", name]), None)
        if where and where == last:
            return where, next(w[2] for w in lines if w[:2] == ["window", name])
        last = where
        if again and time.time() > retry:
            again()
            retry = time.time() + 5
        pump(0.5)
    fail("%s was not shown; the game reported: %s" % (name, lines))
    sys.exit(1)


def click(origin, left, top, width, height):
    """Clicks the middle of a control given in twips on a screen at origin."""
    x, y = origin[0] + (left + width // 2) // 15, origin[1] + (top + height // 2) // 15
    subprocess.run(["xdotool", "mousemove", "--sync", str(x), str(y), "click", "1"], check=True)
    pump(0.4)


def descendants(window):
    """Everything below the window, shown or not."""
    return [(depth, obj) for depth, obj in walk(window, showing_only=False) if depth > 0]


def window_with(test):
    for _ in range(40):
        for window in application() or []:
            if window is not None and test(window):
                return window
        pump(0.5)
    fail("no such window")
    sys.exit(1)


def dump(window, path):
    with open(path, "w") as f:
        for depth, obj in walk(window, showing_only=False):
            f.write("  " * depth + describe(obj) + "\t" + repr(obj.description) + "\n")


def check_all_named(window, what):
    for _, obj in descendants(window):
        if not obj.name:
            fail("%s: an unnamed %s" % (what, obj.getRoleName()))


def check_board(window, n, sets):
    check_all_named(window, "%dx%d" % (n, n))
    objects = [obj for _, obj in descendants(window)]
    kinds = {"pieces": ([o.name for o in objects if o.getRoleName() == "image"], n * n),
             "tray places": ([o.name for o in objects if o.name.startswith("Tray place ")], n * n),
             "cells": ([o.name for o in objects if o.name.startswith("Row ")], n * n),
             "thumbnails": ([o.name for o in objects if o.name.startswith("Pictures: ")], sets)}
    for kind, (names, count) in kinds.items():
        if len(set(names)) != count:
            fail("%dx%d: %d %s named apart, %d expected: %s" % (n, n, len(set(names)), kind,
                                                               count, names))
    givens = [o for o in objects if o.name.startswith("Row ") and o.description.startswith("Given")]
    if not givens or any(c.name.endswith(": empty") for c in givens):
        fail("%dx%d: the given cells do not name their pictures" % (n, n))
    return [o for o in objects if o.description == "Grid cell"]


def check_ring(n):
    """Keys move the ring; the reader's focus follows, key by key."""
    tray = lambda k: r"(, %d of %d|^Tray place %d: .*)$" % (k % n + 1, n, k + 1)
    grid = lambda x, y: r"^Row %d, column %d: " % (y + 1, x + 1)
    for key, expected in (("Tab", tray(0)), ("Right", tray(1)), ("Right", tray(2)),
                          ("Tab", grid(0, 0)), ("Right", grid(1, 0)), ("Down", grid(1, 1))):
        start = len(heard)
        subprocess.run(["xdotool", "key", key], check=True)
        pump(0.4)
        focus = [e for e in heard[start:] if e[0] == "object:state-changed:focused" and e[1]]
        if not focus or not re.search(expected, focus[-1][3]) or not focus[-1][4]:
            fail("%dx%d: after %s the focus is %s, not on %s" % (n, n, key, focus, expected))


def press(window, name):
    next(o for _, o in descendants(window) if o.name == name).queryAction().doAction(0)
    pump(0.3)


def check_clock_and_verdict(window, cell):
    start = len(heard)
    pump(2.5)
    if not any(e[0] == "object:property-change:accessible-name" and re.fullmatch(r"\d+", e[3])
               for e in heard[start:]):
        fail("no tick of the clock was heard")
    # Shown solved, then a piece picked up and put back: the grid is full
    # again and the check a second later writes the verdict.
    press(window, "Show solution")
    start = len(heard)
    for _ in range(2):
        cell.queryAction().doAction(0)
        pump(0.3)
    pump(2.5)
    if not any(e[:3] == ("object:state-changed:showing", 1, "notification") and
               e[3].startswith("Correct") for e in heard[start:]):
        fail("the verdict was not heard as it showed: %s" % heard[start:])


pyatspi.Registry.registerEventListener(on_event, "object:state-changed:focused", "focus:",
                                       "object:property-change:accessible-name",
                                       "object:state-changed:showing")
title, _ = wait_screen("Titlefrm")
ok = lambda: click(title, 1560, 7080, 1575, 600)
ok()
# Each board from the options screen: its size, then a level.
for n, screen, sets, size_top, level_left in ((4, "jigsaw", 8, 2295, 1440),
                                              (5, "jigsaw5x5", 8, 3180, 2760),
                                              (6, "jigsaw6x6", 6, 4065, 4080)):
    options, _ = wait_screen("Startplay2", again=ok if n == 4 else None)
    if n == 4:
        check_all_named(window_with(lambda w: any(c.name == "Board Size" for c in w)), "options")
    click(options, 1200, size_top, 1815, 840)
    click(options, level_left, 6360, 975, 855)
    _, window_id = wait_screen(screen)
    window = window_with(lambda w: w.name == "Pimbalo %dx%d board" % (n, n))
    press(window, "Change Pictures")  # the thumbnails shown
    cells = check_board(window, n, sets)
    subprocess.run(["xdotool", "windowactivate", "--sync", window_id], check=False)
    check_ring(n)
    dump(window, os.path.join(out, "tree-%dx%d.txt" % (n, n)))
    if n == 4:
        check_clock_and_verdict(window, cells[0])
    press(window, "Exit")

with open(os.path.join(out, "events.txt"), "w") as f:
    f.writelines("%s %s %s %r focused=%s\n" % event for event in heard)
if failures:
    sys.exit(1)
print("PASS: every board named, the ring is the focus, the clock and verdict heard")
