"""The panel among other windows, and names that it can't use, on the Windows program under Wine."""

import os

import person
import world
from person import Window, wait_until
from wine_world import windows_path

UNKNOWN_LETTER = ('No file\'s name holds a "?". It may stand for a letter that is not in the character set which Windows '
                  "gives to this program.")
TOO_LONG = "Windows takes no path of more than 259 characters from this program."


def active_title():
    """The title of the window that has the keyboard; empty if none has."""
    try:
        return person.xdotool("getwindowfocus", "getwindowname")
    except person.subprocess.CalledProcessError:
        return ""


def box_with(words):
    """The message box that says this, whatever it says before."""
    def found():
        return next((window for window in person.look() if any(words in one.name for one in window.all())), None)
    return person.standing(f"the message {words!r}", found)


def file_dialog(panel):
    """The system's dialog over the panel."""
    return wait_until("the file dialog", lambda: next(
        (one for one in person.look() if one.process == panel.process and one.name == "Open"), None))


def test_after_a_compile_of_some_seconds_the_panel_has_the_keyboard(scratch):
    _, panel = scratch.first_start()
    scratch.play("sleep 3000")
    panel.write(world.quoted(scratch.made("Slow.java", b"class Slow {}\n")))
    panel.press("javac")
    wait_until("the tool's console has the keyboard", lambda: active_title().startswith("javac "))
    wait_until("the end of the tool", lambda: not scratch.processes("javac.exe"))
    wait_until("the panel has the keyboard", lambda: active_title() == "Tarnwick")
    panel.field().click()
    person.key("ctrl+a")
    person.type_text("typed")
    wait_until("what is typed arrives", lambda: panel.field().text == "typed")


def test_name_with_letters_that_windows_does_not_give_to_the_program_is_told(scratch):
    _, panel = scratch.first_start()
    os.makedirs(os.path.join(scratch.work, "日本"))
    source = scratch.made(os.path.join("日本", "Jp.java"), b"class Jp {}\n")
    panel.write(world.quoted(source))
    panel.press("javac")
    box = box_with(UNKNOWN_LETTER)
    scratch.picture("unknown-letter")
    assert windows_path(scratch.work) + "\\??\\Jp.java" in "".join(one.name for one in box.all()).replace("\n", "")
    person.key("Return")
    assert file_dialog(panel)
    person.key("Escape")
    box_with("No .java file known.")
    person.key("Return")
    wait_until("the panel", lambda: panel.control("javac").enabled)


def test_path_that_is_too_long_is_told(scratch):
    _, panel = scratch.first_start()
    folder = os.path.join(scratch.work, "x" * 120, "y" * 120)
    os.makedirs(folder)
    with open(os.path.join(folder, "Long.java"), "w", encoding="ascii") as out:
        out.write("class Long {}\n")
    panel.write(world.quoted(windows_path(os.path.join(folder, "Long.java"))))
    panel.press("javac")
    box_with(TOO_LONG)
    scratch.picture("too-long")
    person.key("Return")
    assert file_dialog(panel)
    person.key("Escape")
    box_with("No .java file known.")
    person.key("Return")


def test_second_instance_stands_a_step_aside_and_the_place_that_is_kept_is_the_first_ones(scratch):
    first, panel = scratch.first_start()
    kept = scratch.settings()["WINDOW_POSITION"]
    place = wait_until("the panel", panel._now).area[:2]
    second = scratch.start()

    def both():
        seen = [one.area[:2] for one in person.look() if one.name == "Tarnwick"]
        return seen if len(seen) == 2 else None
    places = sorted(wait_until("two panels", both))
    assert places[0] == place and places[1][0] > place[0] and places[1][1] > place[1], places
    scratch.picture("second-instance")
    other = next(one for one in person.look() if one.name == "Tarnwick" and one.area[:2] == places[1])
    next(one for one in other.all() if one.label == "Exit").click()
    assert second.wait(20) == 0
    assert scratch.settings()["WINDOW_POSITION"] == kept
    panel.press("Exit")
    assert first.wait(20) == 0
