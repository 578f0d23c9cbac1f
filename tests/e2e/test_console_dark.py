"""The console of today on a desktop with a dark theme: its text stands on dark ground, and everything can be read."""


import person
from person import wait_until
from picture import Picture, contrast, frame_of, ground_and_ink, inverted, lightness
from test_console import shows
from test_console_pictures import LETTERS, MARGIN, View, between, coloured
from test_jdb import TIPS, debugged, picture

READABLE, VISIBLE = 4.5, 3
PAPER, BLUE, RED = (30, 30, 30), (130, 180, 255), (255, 140, 140)


def dark(scratch):
    scratch.environment["GTK_THEME"] = "Adwaita:dark"


def stands_out(name, area, least):
    """The theme has made the ground dark, and what lies on it stands out."""
    ground, ink = ground_and_ink(Picture(area))
    assert lightness(ground) < 0.1, (name, ground)
    assert contrast(ground, ink) >= least, (name, ground, ink, contrast(ground, ink))


def test_text_selection_and_caret_stand_out_on_dark_ground(scratch):
    dark(scratch)
    _, view, before, after = coloured(scratch, PAPER, BLUE)
    picture(scratch, "dark-word")
    for row, colour in [(2, BLUE), (3, BLUE), (4, BLUE), (5, RED), (6, RED), (7, RED)]:
        seen = before.pixels(*view.row(row))
        assert max(seen, key=seen.get) == PAPER and seen[colour] > 100, (row, seen)
        assert all(between(shade, colour, PAPER) for shade in seen), (row, seen)
    for y in range(*view.row(2)[1::2]):
        for x in range(MARGIN, MARGIN + LETTERS * view.width):
            assert after.pixel(x, y) == inverted(before.pixel(x, y)), (x, y)
    person.type_text("abcd")
    typed = view.settled()
    seen = {}
    for column in range(14, 18):
        for shade, count in typed.pixels(*view.cell(column, 8)).items():
            seen[shade] = seen.get(shade, 0) + count
    assert max(seen, key=seen.get) == PAPER and contrast(PAPER, max(seen)) > READABLE, seen
    # In the middle of the letters the caret inverts what is there.
    person.key("Left", "Left")
    moved = view.settled()
    picture(scratch, "dark-caret")
    wanted = {(x, y) for column in (16, 18) for left, top, _, bottom in [view.cell(column, 8)]
              for x in (left, left + 1) for y in range(top, bottom)}
    assert typed.changes(moved) == wanted
    assert all(moved.pixel(x, y) == inverted(typed.pixel(x, y)) for x, y in wanted)


def test_the_hint_and_the_menus_can_be_read(scratch):
    dark(scratch)
    console, view, _, _ = coloured(scratch, PAPER, BLUE)
    view.point(*view.middle(60, 20))
    person.xdotool("click", 1)
    before = view.settled()
    left, top, right, bottom = frame_of(before.changes(view.hint(before)))
    picture(scratch, "dark-hint")
    view.hint(before)
    # Its letters begin to the right of the icon.
    letters = 100
    stands_out("hint", (view.area[0] + left + letters, view.area[1] + top, right - left - letters, bottom - top), READABLE)
    # A click hides it; a key would reach the program.
    view.point(*view.middle(60, 20))
    person.xdotool("click", 1)
    assert view.settled().bytes == before.bytes
    for menu, entries in [("File", ["Save current display to file", "Start recording lines", "Exit"]),
                          ("Edit", ["Select all"]), ("Help", ["Tarnwick Help", "About Tarnwick..."])]:
        stands_out(menu, console.control(menu).area, READABLE)
        console.press(menu)
        areas = {entry: console.control(entry).area for entry in entries}
        # Whatever is under the pointer has another ground.
        person.xdotool("mousemove", 5, 5)
        view.settled()
        picture(scratch, f"dark-menu-{menu}")
        for entry, area in areas.items():
            stands_out(entry, area, READABLE)
        person.key("Escape")
    wait_until("the console as it was", lambda: view.settled().bytes == before.bytes)


def test_the_toolbars_pictures_stand_out(scratch):
    dark(scratch)
    _, console = debugged(scratch, launch=False)
    shows(scratch, console, "> ")
    console.activate()
    person.xdotool("mousemove", 5, 5)
    View(console).settled()
    picture(scratch, "dark-toolbar")
    seen = []
    for one in console.controls():
        if one.role != "push button" or one.label not in TIPS:
            continue
        left, top, width, height = one.area
        stands_out(one.label, (left + width // 2 - 9, top + height // 2 - 9, 18, 18), VISIBLE)
        seen.append(one.label)
    assert sorted(seen) == sorted(TIPS)
    view = View(console)
    assert view.settled().pixel(view.area[2] - 5, view.area[3] - 5) == PAPER
