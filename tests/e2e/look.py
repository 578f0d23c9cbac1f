"""Writes what is on the screen to standard output: all windows with all that is in them, as JSON.

A process of its own for each look: the accessibility library remembers too much, and it waits for ever when a program
starts or ends under its eyes. A look that hangs is ended from outside and taken again.
"""

import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def label_of(accessible):
    """What the control's own label says, where it has one; readers of the screen say it in the place of the name."""
    for relation in accessible.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY and relation.get_n_targets() > 0:
            return relation.get_target(0).get_name() or ""
    return ""


def described(accessible, depth=0):
    states = accessible.get_state_set()
    role = accessible.get_role_name()
    area = accessible.get_extents(Atspi.CoordType.SCREEN)
    result = {
        "name": accessible.get_name() or "",
        "spoken": label_of(accessible) or accessible.get_name() or "",
        "role": role,
        "area": [area.x, area.y, area.width, area.height],
        "showing": states.contains(Atspi.StateType.SHOWING),
        "enabled": states.contains(Atspi.StateType.SENSITIVE),
        "focusable": states.contains(Atspi.StateType.FOCUSABLE),
        "focused": states.contains(Atspi.StateType.FOCUSED),
        "checked": states.contains(Atspi.StateType.CHECKED),
        "selected": states.contains(Atspi.StateType.SELECTED),
    }
    if role in ("text", "entry", "password text"):
        result["text"] = Atspi.Text.get_text(accessible, 0, -1)
    count = accessible.get_child_count() if depth < 30 else 0
    # A list of thousands of rows, as a file dialog has, would take all the time there is.
    children = [accessible.get_child_at_index(index) for index in range(min(count, 200))]
    result["children"] = [described(child, depth + 1) for child in children if child is not None]
    return result


def main():
    # A busy machine takes its time to answer.
    Atspi.set_timeout(10000, 15000)
    desktop = Atspi.get_desktop(0)
    result = []
    for index in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(index)
        if application is None:
            continue
        try:
            process = application.get_process_id()
            for number in range(application.get_child_count()):
                window = application.get_child_at_index(number)
                if window is not None:
                    result.append({"process": process} | described(window))
        except GLib.Error as gone:
            print(f"look: {gone}", file=sys.stderr)
    json.dump([window for window in result if window["showing"]], sys.stdout)


main()
