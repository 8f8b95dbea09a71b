#!/usr/bin/python3
"""What a screen reader learns of the running game, through AT-SPI.

Run with Debian's /usr/bin/python3 (python3-pyatspi), on the same D-Bus
session as the game, which was started with QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1.

    screen_reader.py focused [--app NAME]   the object with the focus:
                                            "role<TAB>name<TAB>states"
    screen_reader.py tree [--app NAME] [--window NAME]
                                            every object of the game's shown
                                            windows, indented: role, name,
                                            states, actions
    screen_reader.py press NAME [--role ROLE] [--app NAME]
                                            runs the first action of the
                                            shown object of that name

Exit status 1 when there is nothing to report (no game, no focus, no object
of that name). The functions below are for other test scripts too.
"""
import argparse
import sys

import pyatspi

GAME = "Pimbalo"


def application(name=GAME):
    """The running application of that name on the accessibility bus."""
    desktop = pyatspi.Registry.getDesktop(0)
    for i in range(desktop.childCount):
        app = desktop.getChildAtIndex(i)
        if app is not None and app.name == name:
            return app
    return None


def state_names(obj):
    names = []
    for state in obj.getState().getStates():
        names.append(pyatspi.StateType._enum_lookup.get(int(state), str(state))
                     .replace("STATE_", "").lower())
    return sorted(names)


def action_names(obj):
    try:
        actions = obj.queryAction()
    except NotImplementedError:
        return []
    return [actions.getName(i) for i in range(actions.nActions)]


def describe(obj):
    """One line: role, name, states and actions."""
    return "{}\t{}\t[{}]\t({})".format(obj.getRoleName(), obj.name, " ".join(state_names(obj)),
                                       " ".join(action_names(obj)))


def walk(obj, depth=0, showing_only=True):
    """Yields (depth, object) for obj and everything below it; hidden
    branches (no "showing" state) are left out unless asked for."""
    yield depth, obj
    for i in range(obj.childCount):
        child = obj.getChildAtIndex(i)
        if child is None:
            continue
        if showing_only and not child.getState().contains(pyatspi.STATE_SHOWING):
            continue
        yield from walk(child, depth + 1, showing_only)


def windows(app):
    """The application's shown windows."""
    return [app.getChildAtIndex(i) for i in range(app.childCount)
            if app.getChildAtIndex(i).getState().contains(pyatspi.STATE_SHOWING)]


def focused(app):
    """The object holding the keyboard focus, or None."""
    for window in windows(app):
        for _, obj in walk(window):
            if obj.getState().contains(pyatspi.STATE_FOCUSED):
                return obj
    return None


def find(app, name, role=None):
    """The first shown object of that name (and role name, if given)."""
    for window in windows(app):
        for _, obj in walk(window):
            if obj.name == name and (role is None or obj.getRoleName() == role):
                return obj
    return None


def tree_text(app, window_name=None):
    lines = []
    for window in windows(app):
        if window_name is not None and window.name != window_name:
            continue
        for depth, obj in walk(window):
            lines.append("  " * depth + describe(obj))
    return "\n".join(lines)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("command", choices=["focused", "tree", "press"])
    parser.add_argument("name", nargs="?")
    parser.add_argument("--app", default=GAME)
    parser.add_argument("--window")
    parser.add_argument("--role")
    args = parser.parse_args()

    app = application(args.app)
    if app is None:
        print("no application named " + args.app, file=sys.stderr)
        return 1
    if args.command == "focused":
        obj = focused(app)
        if obj is None:
            return 1
        print("{}\t{}\t{}".format(obj.getRoleName(), obj.name, " ".join(state_names(obj))))
    elif args.command == "tree":
        print(tree_text(app, args.window))
    else:
        obj = find(app, args.name, args.role)
        if obj is None or not action_names(obj):
            print("nothing to press named " + str(args.name), file=sys.stderr)
            return 1
        obj.queryAction().doAction(0)
    return 0


if __name__ == "__main__":
    sys.exit(main())
