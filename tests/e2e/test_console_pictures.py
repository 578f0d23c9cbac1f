"""What a person sees in a console: every claim is checked in the pixels of the screen."""

import os
import time

import person
import world
from person import wait_until
from picture import BLACK, WHITE, Picture, frame_of, inverted
from test_console import BANNER, shows, started
from test_jdb import TIPS, buttons, debugged, picture

LETTERS = 32  # in each full line of the program
MARGIN = 4
BLUE, RED, GREEN = (0, 0, 255), (176, 0, 0), (0, 255, 0)


class View:
    """The part of a console in which its text stands."""

    def __init__(self, console):
        self.console = console
        self.area = [one for one in console.controls() if one.role == "panel"][-1].area
        self.width, self.height = 0, 0  # of a cell, once measured
        self.hint_asked = 0.0

    def now(self):
        return Picture(self.area)

    def settled(self):
        """A picture that stays as it is, of a console that has worked off all keys and clicks."""
        world.World.listens(self.console)
        before = self.now()
        for _ in range(50):
            time.sleep(0.15)
            after = self.now()
            if after.bytes == before.bytes:
                return after
            before = after
        raise AssertionError("the console does not come to rest")

    def point(self, x, y):
        person.xdotool("mousemove", self.area[0] + x, self.area[1] + y)
        time.sleep(0.1)

    def cell(self, column, row):
        """The rectangle of a cell."""
        left, top = MARGIN + column * self.width, MARGIN + row * self.height
        return left, top, left + self.width, top + self.height

    def middle(self, column, row):
        """A point in the left half of a cell, which belongs to it."""
        left, top, right, bottom = self.cell(column, row)
        return left + (right - left) // 4, (top + bottom) // 2

    def row(self, row):
        return 0, MARGIN + row * self.height, self.area[2], MARGIN + (row + 1) * self.height

    def double_click(self, x, y):
        self.point(x, y)
        person.xdotool("click", "--repeat", 2, "--delay", 40, 1)

    def select_word(self, x, y):
        """Double-clicks on a word until it is selected, which nothing was before: a busy machine may bring the second click
        too late. Gives the picture."""
        before = self.settled()

        def selected():
            self.double_click(x, y)
            now = self.settled()
            return now if now.bytes != before.bytes else None
        return wait_until("a selected word", selected)

    def hint(self, before):
        """Lets the hint show, and gives a picture of it. It goes by itself: who comes too late asks for it again."""
        def shows():
            self.hint_asked = time.monotonic()
            person.xdotool("click", 3)
            first, again = self.now(), self.now()
            return again if first.bytes == again.bytes != before.bytes else None
        return wait_until("the hint", shows)

    def first_row(self, colour=BLUE):
        """The topmost row of pixels that holds the colour."""
        now = self.settled()
        return next(y for y in range(self.area[3]) if now.pixels(0, y, self.area[2], y + 1).get(colour))

    def measure(self, x, y, letters=LETTERS):
        """Selects the word at a point, which has so many letters: its rectangle tells the size of a cell."""
        before = self.settled()
        after = self.select_word(x, y)
        places = before.changes(after)
        left, top, right, bottom = frame_of(places)
        assert left == MARGIN and (right - left) % letters == 0, (left, right)
        self.width, self.height = (right - left) // letters, bottom - top
        assert len(places) == (right - left) * (bottom - top), "a whole rectangle"
        return before, after


def between(shade, one, other):
    """A soft edge is a mixture of two colours, as far as bytes can tell."""
    return all(min(parts) - 1 <= part <= max(parts) + 1 for part, *parts in zip(shade, one, other))


def coloured(scratch, paper=WHITE, blue=BLUE):
    """A console with three blue lines, three red ones and a begun blue one."""
    _, console = started(scratch, scratch.source("Colours.java"))
    shows(scratch, console, "part of a line")
    console.activate()
    view = View(console)
    assert view.settled().pixel(view.area[2] - 5, 5) == paper
    before, after = view.measure(MARGIN + 20, view.first_row(blue) + 3)
    return console, view, before, after


def ink(view, now, rectangle):
    return sum(count for colour, count in now.pixels(*rectangle).items() if colour != WHITE)


def test_each_kind_of_text_has_its_colour_in_its_cells(scratch):
    _, view, now, _ = coloured(scratch)
    picture(scratch, "console-colours")
    # The blank line that each of the two streams begins with.
    for row in (0, 1):
        assert ink(view, now, view.row(row)) == 0, row
    for row, colour in [(2, BLUE), (3, BLUE), (4, BLUE), (5, RED), (6, RED), (7, RED)]:
        seen = now.pixels(*view.row(row))
        assert seen[colour] > 100, (row, seen)
        assert all(between(shade, colour, WHITE) for shade in seen), (row, seen)
        for column in range(LETTERS):
            assert ink(view, now, view.cell(column, row)) > 5, (row, column)
        left, top, right, bottom = view.row(row)
        assert ink(view, now, (view.cell(LETTERS, row)[0], top, right, bottom)) == 0, row
    person.type_text("typed")
    now = view.settled()
    for column, letter in enumerate("part of a linetyped"):
        seen = now.pixels(*view.cell(column, 8))
        if letter == " ":
            assert seen == {WHITE: view.width * view.height}, (column, seen)
        elif column < 14:
            assert all(shade[2] == 255 for shade in seen) and len(seen) > 1, (column, seen)
        else:
            assert all(max(shade) == min(shade) for shade in seen) and len(seen) > 1, (column, seen)
    person.key("Return")
    shows(scratch, view.console, BANNER)
    now = view.settled()
    picture(scratch, "console-banner")
    green = [row for row in range(25) if now.pixels(*view.row(row)).get(GREEN)]
    assert len(green) == 1, green
    # It stands on a dark band of its own cells.
    _, top, right, bottom = view.row(green[0])
    end = view.cell(len(BANNER), green[0])[0]
    band = now.pixels(view.cell(0, green[0])[0], top, end, bottom)
    assert band.get(BLACK) and all(red == 0 and blue == 0 for red, _, blue in band), band
    assert set(now.pixels(end, top, right, bottom)) == {WHITE}
    # Two lines lie between it and the last line of the program, and the caret's line behind.
    assert green[0] == 11 and now.pixels(*view.cell(0, 12)).get(BLACK) == 2 * view.height, green


def test_a_selected_word_is_inverted(scratch):
    _, view, before, after = coloured(scratch)
    picture(scratch, "console-word")
    left, top, right, bottom = view.row(2)
    assert {(x, y) for x in range(MARGIN, MARGIN + LETTERS * view.width) for y in range(top, bottom)} == \
        before.changes(after)
    for y in range(top, bottom):
        for x in range(MARGIN, MARGIN + LETTERS * view.width):
            assert after.pixel(x, y) == inverted(before.pixel(x, y)), (x, y)
    # A click drops it.
    view.point(*view.middle(50, 20))
    person.xdotool("click", 1)
    assert view.settled().bytes == before.bytes


def test_dragging_inverts_from_where_to_where(scratch):
    _, view, _, _ = coloured(scratch)
    view.point(*view.middle(50, 20))
    person.xdotool("click", 1)
    before = view.settled()
    view.point(*view.middle(5, 2))
    person.xdotool("mousedown", 1)
    view.point(*view.middle(9, 3))
    view.point(*view.middle(3, 5))
    person.xdotool("mouseup", 1)
    after = view.settled()
    picture(scratch, "console-selection")
    end = MARGIN + LETTERS * view.width
    wanted = {(x, y) for row, left, right in [(2, view.cell(5, 2)[0], end), (3, MARGIN, end), (4, MARGIN, end),
                                              (5, MARGIN, view.cell(3, 5)[0])]
              for x in range(left, right) for y in range(*view.row(row)[1::2])}
    assert before.changes(after) == wanted
    assert all(after.pixel(x, y) == inverted(before.pixel(x, y)) for x, y in wanted)
    # A click of the right button copies what is selected into the input.
    view.point(*view.middle(50, 20))
    person.xdotool("click", 1)
    view.select_word(*view.middle(5, 3))
    person.xdotool("click", 3)
    shows(scratch, view.console, "part of a line" + "O" * LETTERS + "\n")
    view.console.activate()
    assert frame_of(before.changes(view.settled()))[1] >= view.row(8)[1], "nothing is selected any more"


def test_the_caret_stands_in_the_middle_of_what_is_typed(scratch):
    _, view, before, _ = coloured(scratch)

    def caret_at(column):
        left, top, right, bottom = view.cell(column, 8)
        now = view.settled()
        assert now.pixels(left, top, left + 2, bottom) == {BLACK: 2 * view.height}, column
        assert now.pixels(left + 2, top, right, bottom) == {WHITE: (view.width - 2) * view.height}, column
        return now
    assert before.pixels(*view.cell(14, 8))[BLACK] == 2 * view.height
    person.type_text("ab      cd")
    caret_at(24)
    person.key(*["Left"] * 4)
    now = caret_at(20)
    picture(scratch, "console-caret")
    assert now.pixels(*view.cell(24, 8)) == {WHITE: view.width * view.height}
    person.type_text("X")
    now = caret_at(21)
    assert ink(view, now, view.cell(20, 8)) > 5
    person.key("Home")
    now = view.settled()
    left, top, _, bottom = view.cell(14, 8)
    assert sum(now.pixel(left, y) == BLACK for y in range(top, bottom)) > view.height // 2
    person.key("End")
    caret_at(25)
    assert "part of a lineab    X  cd\n" in scratch.saved_display(view.console)


def test_the_hint_shows_for_eight_seconds_or_until_a_click(scratch):
    _, view, _, _ = coloured(scratch)
    view.point(*view.middle(60, 20))
    person.xdotool("click", 1)
    before = view.settled()
    after = view.hint(before)
    picture(scratch, "console-hint")
    left, top, right, bottom = frame_of(before.changes(after))
    # It may reach beyond the console at its right.
    assert (left, top) == (20, 20) and right > 400 and 60 < bottom - 20 < 200, (left, top, right, bottom)
    assert after.pixel(25, 25) != WHITE
    wait_until("the end of the hint", lambda: view.now().bytes == before.bytes)
    assert time.monotonic() - view.hint_asked > 7, time.monotonic() - view.hint_asked
    # It never takes the keys.
    view.hint(before)
    person.type_text("x")
    now = view.settled()
    assert frame_of(before.changes(now))[1] >= view.row(8)[1], "the hint has gone"
    assert ink(view, now, view.cell(14, 8)) > 5


def test_every_button_of_the_toolbar_has_its_own_picture(scratch):
    _, console = debugged(scratch, launch=False)
    shows(scratch, console, "> ")
    console.activate()
    person.xdotool("mousemove", 5, 5)
    View(console).settled()
    assert buttons(console) == TIPS
    seen = {}
    for one in console.controls():
        if one.role != "push button" or one.label not in TIPS:
            continue
        left, top, width, height = one.area
        icon = Picture((left + width // 2 - 9, top + height // 2 - 9, 18, 18))
        colours = icon.pixels(0, 0, 18, 18)
        paper = max(colours, key=colours.get)
        assert sum(colours.values()) - colours[paper] >= 30, (one.label, colours)
        assert icon.bytes not in seen, (one.label, seen.get(icon.bytes))
        seen[icon.bytes] = one.label
    assert len(seen) == 23
    # The text begins below it, on white.
    view = View(console)
    assert view.area[1] >= max(one.area[1] + one.area[3] for one in console.controls() if one.label in TIPS)
    assert view.settled().pixel(view.area[2] - 5, view.area[3] - 5) == WHITE
