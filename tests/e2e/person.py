"""A person at the screen: sees windows and controls by their titles and labels, uses mouse, keyboard and clipboard.

What is on the screen is read through the accessibility bus (under Wine, by a small program); everything that is done goes through the X server, so the
program cannot tell it from a real hand.
"""

import json
import os
import re
import subprocess
import sys
import time


# Far above what anything takes, on a machine with ten times too much to do as well: it ends what would wait for ever.
# How long something may take is not for these tests to say.
LIMIT = 240.0


class NotSeen(AssertionError):
    """What was waited for did not come."""


# What a console of today tells behind its title.
CONSOLE_SUFFIX = "( - (ended|stopped) .*| - scrolled back)?"


def wait_until(what, condition, seconds=LIMIT):
    """The first true value of the condition."""
    end = time.monotonic() + seconds
    while True:
        last = condition()
        if last:
            return last
        if time.monotonic() > end:
            raise NotSeen(f"{what} did not come within {seconds:.0f} s")
        time.sleep(0.1)


def xdotool(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], check=True, timeout=LIMIT, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, text=True).stdout.strip()


def key(*keys):
    xdotool("key", "--clearmodifiers", "--delay", 50, *keys)


def type_text(text):
    """For what a plain keyboard has; everything else goes through the clipboard."""
    xdotool("type", "--delay", 25, text)


def put_on_clipboard(text):
    # xclip stays behind to serve the clipboard: its output must not be anybody's pipe.
    subprocess.run(["xclip", "-selection", "clipboard", "-in"], input=text.encode(), check=True, timeout=LIMIT,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def screenshot(path):
    subprocess.run(["import", "-silent", "-window", "root", path], check=True, timeout=LIMIT, stdin=subprocess.DEVNULL)


def look():
    """All windows that show."""
    program = os.path.join(os.path.dirname(os.path.abspath(__file__)), "look.py")
    command = [os.environ["WINE"], os.environ["TARNWICK_LOOK"]] if "TARNWICK_LOOK" in os.environ else [sys.executable, program]
    for _ in range(6):
        try:
            done = subprocess.run(command, timeout=LIMIT / 4, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        except subprocess.TimeoutExpired:
            continue
        if done.returncode == 0:
            return [Control(window) for window in json.loads(done.stdout)]
        time.sleep(0.2)
    raise NotSeen("the accessibility bus does not answer")


class Control:
    """One control, or one window, as it was when it was looked at."""

    def __init__(self, seen):
        self.name = seen["name"]
        self.label = self.name.strip()
        self.role = seen["role"]
        self.area = seen["area"]
        self.text = seen.get("text", "")
        self.process = seen.get("process")
        self.showing, self.enabled = seen["showing"], seen["enabled"]
        self.focused, self.checked, self.selected = seen["focused"], seen["checked"], seen["selected"]
        # What readers of the screen make of it; not known under Wine.
        self.spoken, self.focusable = seen.get("spoken", self.name), seen.get("focusable", False)
        self.iconic = seen.get("iconic", False)
        self.children = [Control(child) for child in seen["children"]]

    def all(self):
        """This one and all that shows in it, in the order of the tree."""
        yield self
        for child in self.children:
            if child.showing:
                yield from child.all()

    def click(self, button=1):
        left, top, width, height = self.area
        # Not with --sync, which waits for many seconds when the pointer is there already. One connection keeps the order.
        xdotool("mousemove", left + width // 2, top + height // 2, "sleep", 0.05, "click", button)
        time.sleep(0.2)


def standing(what, find):
    """What `find` sees, once it stays where it is: a window that has just come is still being placed, and a click goes
    where a control was seen."""
    def steady():
        before, again = find(), find()
        places = [[one.area for one in seen.all()] for seen in (before, again) if seen]
        return again if len(places) == 2 and places[0] == places[1] else None
    return wait_until(what, steady)


class Window:
    """A window by its title. Each question looks at the screen anew."""

    def __init__(self, title, seconds=LIMIT):
        self.title = title
        self.process = None
        self._wait_until_it_stands(seconds)

    def _now(self):
        same = [one for one in look() if self._bears_title(one.name) and self.process in (None, one.process)]
        return same[-1] if same else None

    def _bears_title(self, name):
        return re.fullmatch(re.escape(self.title) + CONSOLE_SUFFIX, name) is not None

    def _wait_until_it_stands(self, seconds):
        seen = wait_until(f"the window {self.title!r}", self._now, seconds)
        self.process = seen.process
        for _ in range(20):
            before, seen = seen.area, wait_until(f"the window {self.title!r}", self._now)
            if seen.area == before and before[2] > 1:
                return
        raise NotSeen(f"the window {self.title!r} does not stand still")

    def shows(self):
        return self._now() is not None

    def is_gone(self, seconds=LIMIT):
        wait_until(f"the end of the window {self.title!r}", lambda: not self.shows(), seconds)

    def controls(self):
        seen = wait_until(f"the window {self.title!r}", self._now)
        return list(seen.all())

    def _find(self, what, fits, seconds):
        return wait_until(f"{what} in the window {self.title!r}",
                          lambda: next((one for one in self.controls() if fits(one)), None), seconds)

    def control(self, label, role=None, seconds=LIMIT):
        """The control of this label. Mnemonics and blanks around do not count."""
        return self._find(f"the control {label!r}", lambda one: one.label == label and role in (None, one.role), seconds)

    def labels(self):
        """All words that show."""
        return "\n".join(one.name for one in self.controls() if one.name)

    def press(self, label):
        """Clicks a button, once it can be pressed. The window may bear the same word."""
        def button():
            return next((one for one in self.controls()[1:] if one.label == label and one.enabled), None)
        wait_until(f"the enabled control {label!r} in the window {self.title!r}", button).click()

    def fields(self):
        return [one for one in self.controls() if one.role in ("text", "entry")]

    def field(self, index=0):
        """An edit field, counted from the top of the screen."""
        def nth():
            fields = sorted(self.fields(), key=lambda one: (one.area[1], one.area[0]))
            return fields[index] if len(fields) > index else None
        return wait_until(f"field {index} in the window {self.title!r}", nth)

    def write(self, text, index=0):
        """Replaces what stands in a field; letters of every kind."""
        put_on_clipboard(text)

        def pasted():
            # Again and again: a window that is busy takes no click, and Wine may take a moment to notice a new clipboard.
            self.field(index).click()
            key("ctrl+a", "ctrl+v")
            try:
                return wait_until("the text", lambda: self.field(index).text == text, 2)
            except NotSeen:
                return False
        wait_until(f"{text!r} in field {index}", pasted)

    def activate(self):
        number = self.x_number()
        xdotool("windowactivate", "--sync", number)
        wait_until(f"the keyboard for the window {self.title!r}", lambda: active_window() == number)

    def listens(self):
        """Whether the window takes input now: Tab moves the focus on."""
        def focus():
            return [(one.role, one.name, one.area) for one in self.controls() if one.focused]
        before = focus()
        key("Tab")
        try:
            return wait_until("another focus", lambda: focus() != before, 2)
        except NotSeen:
            return False

    def x_number(self):
        return wait_until(f"the X window {self.title!r}", lambda: x_windows(self.title))[-1]

    def close(self):
        """As the close box of the title bar: asks the window to close."""
        self.activate()
        key("alt+F4")


def active_window():
    """The number of the X window that has the keyboard; empty if none has it."""
    return subprocess.run(["xdotool", "getactivewindow"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True, timeout=LIMIT).stdout.strip()


def x_windows(title, visible=True):
    """Numbers of the X windows of this title; with `visible` off also of those that are minimised."""
    which = ["--onlyvisible"] if visible else []
    found = subprocess.run(["xdotool", "search", *which, "--name", f"^{re.escape(title)}{CONSOLE_SUFFIX}$"], stdin=subprocess.DEVNULL,
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, timeout=LIMIT)
    return found.stdout.split()
