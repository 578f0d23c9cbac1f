"""The panel's three layouts and its two views."""

import person
from person import Window, key, wait_until, xdotool
from test_start import settled_area

# The names of the bar's small buttons for readers of the screen.
WIDE, FLAT, TALL = "Wide layout", "Flat layout", "Tall layout"


def size(panel):
    return wait_until("the panel", panel._now).area[2:]


def is_laid_out(scratch, panel, layout, fits):
    wait_until(f"the layout {layout}", lambda: fits(*size(panel)))
    wait_until("the saved layout", lambda: scratch.settings()["PANEL_LAYOUT"] == layout)
    scratch.listens(panel)
    return size(panel)


def is_tall(width, height):
    return width < 1.5 * height


def is_wide(width, height):
    return 4 * height < width < 7.5 * height


def is_flat(width, height):
    # The status line, which a first use brings, makes the strip higher.
    return width > 8 * height


def restarted(program, scratch, panel):
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0
    return scratch.start(), Window("Tarnwick")


def test_layout_buttons_change_the_layout_and_the_next_start_finds_it_again(scratch):
    program, panel = scratch.first_start()
    assert is_tall(*size(panel))
    panel.press(WIDE)
    wide = is_laid_out(scratch, panel, "HORIZONTAL", is_wide)
    program, panel = restarted(program, scratch, panel)
    assert size(panel) == wide
    panel.press(FLAT)
    flat = is_laid_out(scratch, panel, "FLAT", is_flat)
    panel.close()
    assert program.wait(person.LIMIT) == 0
    program, panel = scratch.start(), Window("Tarnwick")
    assert size(panel) == flat
    # Each layout's own button leads on, by mouse and by keyboard; the one that took its place has the focus.
    panel.press(WIDE)
    assert is_laid_out(scratch, panel, "HORIZONTAL", is_wide) == wide
    key("space")
    assert is_laid_out(scratch, panel, "FLAT", is_flat) == flat
    panel.close()
    assert program.wait(person.LIMIT) == 0


def test_flat_layout_is_no_wider_than_the_screen(scratch):
    program, panel = scratch.first_start()
    panel.press(FLAT)
    is_laid_out(scratch, panel, "FLAT", is_flat)
    screen = int(xdotool("getdisplaygeometry").split()[0])
    assert size(panel)[0] <= screen
    panel.press("Projectview")
    assert panel.control("Fileview")
    scratch.listens(panel)
    assert size(panel)[0] <= screen
    panel.close()
    assert program.wait(person.LIMIT) == 0


def test_open_tab_is_remembered(scratch):
    program, panel = scratch.first_start()
    panel.control("Utilities", "page tab").click()
    wait_until("the saved tab", lambda: scratch.settings()["FILEVIEW_TAB"] == "2")
    panel.close()
    assert program.wait(person.LIMIT) == 0
    scratch.start()
    assert Window("Tarnwick").control("Utilities", "page tab").selected


def test_views_switch_and_share_the_layout(scratch):
    program, panel = scratch.first_start()
    tall = size(panel)
    assert "Browse" in panel.labels()
    panel.press("Projectview")
    assert panel.control("Fileview")
    scratch.listens(panel)
    assert "Project" in panel.labels() and "Browse" not in panel.labels()
    assert size(panel) == tall
    for label in ("Files", "Edit", "javac  all", "javac", "Select", "jdb debug", "java", "Settings"):
        assert not panel.control(label).enabled, label
    for label in ("New", "Open"):
        assert panel.control(label).enabled, label
    panel.press(WIDE)
    is_laid_out(scratch, panel, "HORIZONTAL", is_wide)
    panel.press("Fileview")
    assert panel.control("Projectview")
    scratch.listens(panel)
    assert is_wide(*size(panel)) and "Browse" in panel.labels()
    program, panel = restarted(program, scratch, panel)
    assert panel.control("Projectview") and is_wide(*size(panel))
    panel.press(TALL)
    is_laid_out(scratch, panel, "VERTICAL", is_tall)
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def test_escape_leaves_either_view_and_notes_where_the_window_stood(scratch):
    scratch.configured()
    for view, left, top in (("Fileview", 340, 210), ("Projectview", 120, 90)):
        program, panel = scratch.start(), Window("Tarnwick")
        if view == "Projectview":
            panel.press(view)
            assert panel.control("Fileview")
        xdotool("windowmove", "--sync", panel.x_number(), left, top)
        place = settled_area(panel)
        panel.activate()
        key("Escape")
        assert program.wait(person.LIMIT) == 0
        program, panel = scratch.start(), Window("Tarnwick")
        assert settled_area(panel)[:2] == place[:2], view
        panel.close()
        assert program.wait(person.LIMIT) == 0


def test_window_of_a_screen_that_is_gone_shows_whole(scratch):
    scratch.configured()
    for place in ("5000;200", "200;5000", "2147483647;2147483647"):
        scratch.change_settings(WINDOW_POSITION=place)
        program, panel = scratch.start(), Window("Tarnwick")
        left, top, width, height = settled_area(panel)
        assert 0 <= left and left + width <= 1280 and 0 <= top and top + height <= 1024, (place, left, top)
        panel.press("Exit")
        assert program.wait(person.LIMIT) == 0
        kept = [int(one) for one in scratch.settings()["WINDOW_POSITION"].split(";")]
        assert kept[0] < 1280 and kept[1] < 1024, (place, kept)
