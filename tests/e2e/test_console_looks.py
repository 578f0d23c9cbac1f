"""How the text of the console of today looks, as far as its user chooses: the letters' size, and long lines."""

import os

import person
from person import wait_until
from test_console import shows
from test_console_pictures import MARGIN, View
from test_console_today import program
from test_jdb import picture

WIDE = """public class Wide {
    public static void main(String[] arguments) throws Exception {
        System.out.println("MMMMMMMM " + "abcdefghi ".repeat(20) + "the end");
        System.out.println("ready");
        System.in.read();
    }
}
"""


def cell(view):
    """Width and height of a cell, by the first word; nothing stays selected."""
    view.measure(MARGIN + 10, view.first_row() + 3, letters=8)
    view.point(view.area[2] - 30, view.area[3] - 30)
    person.xdotool("click", 1)
    return view.width, view.height


def wheel_with_control(button):
    person.xdotool("keydown", "ctrl")
    person.xdotool("click", button)
    person.xdotool("keyup", "ctrl")


def remembered(scratch):
    path = os.path.join(scratch.config, "Tarnwickconsole.CFG")
    if not os.path.exists(path):
        return {}
    with open(path, encoding="utf-8") as lines:
        return dict(line.split() for line in lines if line.startswith("CONSOLE_"))


def begin(scratch, console):
    shows(scratch, console, "ready\n")
    console.activate()
    return View(console)


def test_letters_and_long_lines_are_as_the_user_wants_them_and_stay_so(scratch):
    panel, console = program(scratch, 17, "Wide", WIDE)
    view = begin(scratch, console)
    usual = cell(view)
    sizes = [usual]
    for act in (lambda: person.key("ctrl+plus"), lambda: person.key("ctrl+equal"), lambda: person.key("ctrl+KP_Add"),
                lambda: wheel_with_control(4)):
        act()
        sizes.append(cell(view))
        assert sizes[-1][1] > sizes[-2][1], sizes
    picture(scratch, "console-larger")
    for act in (lambda: person.key("ctrl+minus"), lambda: person.key("ctrl+KP_Subtract"), lambda: wheel_with_control(5)):
        act()
        sizes.pop()
        assert cell(view) == sizes[-1], sizes
    person.key("ctrl+0")
    assert cell(view) == usual
    wait_until("nothing to remember", lambda: remembered(scratch) == {})
    person.key("ctrl+plus", "ctrl+plus")
    larger = cell(view)
    console.press("View")
    console.control("Wrap long lines")
    picture(scratch, "console-view-menu")
    console.press("Wrap long lines")
    wait_until("both are remembered", lambda: remembered(scratch).get("CONSOLE_WRAP") == "ON")
    assert int(remembered(scratch)["CONSOLE_LETTERS"]) > 10
    view.settled()
    picture(scratch, "console-wrapped")
    # What was one line is one still.
    person.key("ctrl+a", "ctrl+c")
    assert "MMMMMMMM " + "abcdefghi " * 20 + "the end\n" in scratch.saved_display(console)
    console.close()
    console.is_gone()

    console = scratch.run_class(panel, os.path.join(scratch.work, "Wide.class"))
    view = begin(scratch, console)
    assert cell(view) == larger
    # The line has more than one row, so that below the first one there is ink at its end.
    before = view.settled()
    row = before.pixels(*view.cell(0, 3)[:2], view.cell(8, 3)[2], view.cell(8, 3)[3])
    assert len(row) > 1, row
    console.press("View")
    console.press("Wrap long lines")
    wait_until("that is remembered, too", lambda: "CONSOLE_WRAP" not in remembered(scratch))
    assert view.settled().bytes != before.bytes
