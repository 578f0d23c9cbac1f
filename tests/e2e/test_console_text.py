"""Letters of every kind, lines without end, floods; and programs that end in their own way."""

import os
import signal
import subprocess
import time

import person
from person import wait_until
from picture import BLACK, WHITE, Picture
from test_console import BANNER, nothing_left, nothing_left_but, shows, started
from test_console_pictures import MARGIN, View
from world import type_line


def view_area(console):
    return [one for one in console.controls() if one.role == "panel"][-1].area


def letters(now, left, top, colour):
    """How many pixels of this tone stand in the forty columns from here on; soft edges are lighter."""
    fits = {"blue": lambda shade: shade[2] == 255 and shade[0] < 200,
            "black": lambda shade: max(shade) == min(shade) < 200}[colour]
    return sum(count for shade, count in now.pixels(left, top, left + 40, top + 13).items() if fits(shade))


def test_letters_of_every_width_stand_in_their_columns(scratch):
    _, console = started(scratch, scratch.source("Letters.java"))
    display = shows(scratch, console, "ready\n")
    # A character in two pieces is whole; each byte that is none shows as one replacement.
    assert "abcd|\n日本|\ne\u0301e\u0301cd|\näöüß|\n<日>\n(\ufffd\ufffd)\nready\n" in display, display
    console.activate()
    view = View(console)
    before, _ = view.measure(MARGIN + 4, view.first_row() + 3, letters=5)
    person.screenshot(os.path.join(scratch.project, "build", "e2e", "console-letters.png"))

    def inked(row, first, last):
        """Where there is ink in these cells, each pixel counted from the left of the first."""
        left, top, _, bottom = view.cell(first, row)
        return {(x - left, y - top) for x in range(left, view.cell(last, row)[2]) for y in range(top, bottom)
                if before.pixel(x, y) != WHITE}
    # All four lines end with the same bar in the fifth cell.
    bar = inked(2, 4, 4)
    assert len(bar) > 8
    for row, cells in [(2, [(0, 0), (1, 1), (2, 2), (3, 3)]), (3, [(0, 1), (2, 3)]), (4, [(0, 0), (1, 1), (2, 2), (3, 3)]),
                       (5, [(0, 0), (1, 1), (2, 2), (3, 3)])]:
        assert all(len(inked(row, *cell)) > 8 for cell in cells), row
        assert inked(row, 4, 4) == bar, row
        assert not inked(row, 5, 40), row
    # The accents stand above their letters. A letter of another font may reach down to the row's first pixels.
    top = min(y for _, y in inked(4, 2, 2) if y > 1)
    for column in (0, 1):
        assert any(1 < y < top - 1 for _, y in inked(4, column, column)), column
    # A wide letter between two narrow ones, and two replacements.
    assert inked(6, 1, 2) and inked(6, 0, 0) and inked(6, 3, 3) and not inked(6, 4, 40)
    assert inked(7, 1, 1) and inked(7, 2, 2) and inked(7, 3, 3) and not inked(7, 4, 40)


def clipboard():
    """The text on the clipboard; empty where there is none."""
    return subprocess.run(["xclip", "-selection", "clipboard", "-out"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, check=False, timeout=person.LIMIT).stdout.decode()


def test_a_line_of_a_million_characters_neither_freezes_nor_breaks_the_console(scratch):
    _, console = started(scratch, scratch.source("LongLine.java"))
    line = "0123456789" * 100000 + "MMMM"
    display = shows(scratch, console, "MMMM")
    assert "\n" + line + "\n" in display
    console.activate()
    area = view_area(console)

    def caret():
        """The left side of the caret: a column of black that is taller than any letter."""
        now = Picture(area)
        for x in range(now.width - 1):
            black = [y for y in range(now.height) if now.pixel(x, y) == BLACK and now.pixel(x + 1, y) == BLACK]
            if len(black) >= 13 and black[-1] - black[0] == len(black) - 1:
                return x, black[0], now
        return None
    # The window follows the end of the line: behind the caret there is just its own cell.
    x, top, now = wait_until("the caret at the right edge", caret)
    person.screenshot(os.path.join(scratch.project, "build", "e2e", "console-long-line.png"))
    assert now.width - 20 < x < now.width, x
    assert letters(now, x - 60, top, "blue") > 100 and letters(now, x - 60, top, "black") == 0
    begin = time.monotonic()
    person.type_text("typed")
    # It stands where the end of the line stood, which has moved to the left.
    wait_until("what was typed", lambda: letters(Picture(area), x - 40, top, "black") > 40)
    assert letters(Picture(area), x - 100, top, "blue") > 100
    person.key("Left", "Left", "BackSpace", "End")
    # A busy machine has its time; a console that goes through its whole text at each key takes minutes.
    assert time.monotonic() - begin < person.LIMIT / 2, "the console hardly answers"
    person.key("ctrl+a", "ctrl+c")
    # Before the keys have been heard, the clipboard holds what somebody copied earlier.
    copied = wait_until("the copy", lambda: next((text for text in [clipboard()] if len(text) > len(line)), None))
    assert "\r" not in copied and copied.strip("\n") == line + "tyed", len(copied)
    person.key("KP_Enter")
    display = shows(scratch, console, "got: tyed\n")
    assert "\n" + line + "tyed\n" in display
    assert scratch.peak_memory(console.process) < 120, scratch.peak_memory(console.process)
    person.key("ctrl+d")
    console.close()
    console.is_gone()
    nothing_left(scratch, "java")


def test_a_recording_holds_every_line_of_a_flood(scratch):
    _, console = started(scratch, scratch.source("Flood.java"))
    shows(scratch, console, "ready\n")
    path = os.path.join(scratch.work, "Aufzeichnung.txt")
    wanted = [f"line {number} of a flood of three hundred thousand" for number in range(300000)]
    scratch.choose_in_file_menu(console, "Start recording lines", path)
    wait_until("the record", lambda: os.path.exists(path))
    console.activate()
    console.press("File")
    assert not console.control("Save current display to file").enabled
    assert not console.control("Start recording lines").enabled
    assert console.control("Stop recording lines").enabled
    # Once: with the menu closed, the key belongs to the program.
    person.key("Escape")
    console.activate()
    person.key("Return")
    # The line that the key was pressed on, and the last one of the program.
    whole = len("\n".join(["", *wanted, "last", ""]))
    wait_until("the flood in the record", lambda: os.path.getsize(path) >= whole)
    console.press("File")
    console.press("Stop recording lines")
    with open(path, encoding="utf-8") as text:
        lines = text.read().split("\n")
    assert lines == ["", *wanted, "last", ""], (len(lines), lines[:3], lines[-3:])
    display = scratch.saved_display(console)
    assert display.endswith("line 299999 of a flood of three hundred thousand\nlast\n\n"), display[-200:]
    assert display.count("\n") == 1500
    assert scratch.peak_memory(console.process) < 80, scratch.peak_memory(console.process)


def test_a_program_that_ends_while_its_child_lives_gets_its_banner(scratch):
    _, console = started(scratch, scratch.source("Grandparent.java"))
    display = shows(scratch, console, BANNER)
    assert f"left behind\n\n\n{BANNER}\n\n" in display, display
    assert not scratch.processes("java") and len(scratch.processes("sleep")) == 1
    # The next key closes the console all the same.
    console.activate()
    person.key("space")
    console.is_gone()
    nothing_left(scratch, "java")


def deaf(scratch):
    _, panel = scratch.first_start()
    # The compiler need not say that this is no way to write programs.
    console = scratch.run_class(panel, scratch.compiled(scratch.source("Deaf.java"), "-XDignore.symbol.file"))
    shows(scratch, console, "deaf")
    assert len(scratch.processes("java")) == 1 and len(scratch.processes("sleep")) == 1
    return panel, console


def test_a_program_that_ignores_the_request_to_end_goes_with_its_console(scratch):
    panel, console = deaf(scratch)
    console.close()
    console.is_gone()
    nothing_left_but(scratch, panel.process)


def test_a_program_that_ignores_the_request_to_end_goes_with_a_killed_console(scratch):
    panel, console = deaf(scratch)
    os.kill(console.process, signal.SIGKILL)
    nothing_left_but(scratch, panel.process)


def test_letters_beyond_ascii_come_from_the_keyboard_too(scratch):
    _, console = started(scratch, scratch.sample("Greeter.java"))
    shows(scratch, console, "What is your name? ")
    type_slowly(console, "Zoë ßé")
    person.key("BackSpace", "Left", "Delete", "Return")
    display = shows(scratch, console, "Hello, Zoë!")
    assert "What is your name? Zoë \n" in display, display


def type_slowly(console, text):
    """Letters that the keyboard does not have get keys of their own first: for a moment only, as the tool would do it by
    itself, a busy machine might not notice them."""
    listed = subprocess.run(["xmodmap", "-pke"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True, check=True)
    free = [line.split()[1] for line in listed.stdout.splitlines() if line.endswith("=")]
    for letter in sorted(set(text)):
        if not letter.isascii():
            subprocess.run(["xmodmap", "-e", f"keycode {free.pop()} = U{ord(letter):04X}"], stdin=subprocess.DEVNULL, check=True)
    console.activate()
    person.xdotool("type", "--delay", 100, text)


def test_what_is_typed_ahead_is_answered_line_by_line(scratch):
    """Pasted lines go one by one, so that the answer to each stands below it."""
    _, console = started(scratch, scratch.sample("Greeter.java"))
    shows(scratch, console, "What is your name? ")
    console.activate()
    person.put_on_clipboard("Ada\nfirst\nsecond\nbye\n")
    person.key("ctrl+v")
    display = shows(scratch, console, BANNER)
    places = [display.index(text) for text in ("Hello, Ada!", "first\n", 'You said "first"', "second\n",
                                               'You said "second"', "bye\n", "Good bye, Ada.")]
    assert places == sorted(places), display
    type_line(console, "")
    console.is_gone()
