"""The first start, and what is remembered of it."""

import os
import signal
import subprocess

import person
import world
from person import Window, wait_until


def assert_stands_in_the_middle(window):
    width, height = (int(number) for number in person.xdotool("getdisplaygeometry").split())
    shell = person.xdotool("getwindowgeometry", "--shell", window.x_number())
    place = dict(line.split("=") for line in shell.split())
    across = int(place["X"]) + int(place["WIDTH"]) / 2 - width / 2
    down = int(place["Y"]) + int(place["HEIGHT"]) / 2 - height / 2
    assert abs(across) < width / 10 and abs(down) < height / 10, place


def test_first_start_welcomes_asks_for_the_jdk_and_saves_all_settings(scratch):
    program = scratch.start()
    welcome = Window("Welcome to Tarnwick")
    words = welcome.labels()
    assert "You seem to be using Tarnwick for the first time,\nas I can't find any data from a previous session." in words
    assert "Look for a file \"javac\" in a \"bin\" subfolder of the JDK installation tree" in words
    assert not os.path.exists(scratch.configuration)
    welcome.press("OK")

    settings = Window("Tarnwick settings")
    assert settings.control("JDK tools").selected
    folder = settings.field().text
    assert os.path.join(folder, "javac") == world.real_javac(), folder
    settings.press("OK")

    panel = Window("Tarnwick")
    assert_stands_in_the_middle(panel)
    with open(scratch.configuration, encoding="utf-8") as lines:
        rows = lines.read().split("\n")
    assert rows[:2] == [f"REM  This configuration file was written by {world.VERSION}", "REM"], rows[:2]
    assert rows[-1] == "" and len(rows) == 2 + 111 + 5 + 1, len(rows)
    # On from the first use where the JDK is of version 5 or newer.
    assert rows[-6:-1] == ["NEWER_JAVA  ON", "JAVAC_ONE_RUN  ON", "NEWER_CONSOLE  ON", "WATCH_RUNS  ON",
                           "STATUS_LINE  ON"], rows[-6:]
    assert scratch.settings()["JAVA_PATH"] == folder
    assert scratch.settings()["TARNWICK_VERSION"] == world.VERSION
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def test_cancel_at_the_first_start_still_saves_and_opens_the_panel(scratch):
    program = scratch.start()
    Window("Welcome to Tarnwick").press("OK")
    Window("Tarnwick settings").press("Cancel")
    panel = Window("Tarnwick")
    assert len(scratch.settings()) == 111 + 5
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def test_second_start_goes_straight_to_the_panel(scratch):
    scratch.configured()
    program = scratch.start()
    panel = Window("Tarnwick")
    assert [one.name for one in person.look()] == ["Tarnwick"]
    assert [panel.control(label).label for label in ("Main program", "Applet", "Utilities")]
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def test_every_button_of_the_file_view_can_be_pressed(scratch):
    _, panel = scratch.first_start()
    for label in ("New", "Browse", "Edit", "javac", "jdb debug", "java", "Settings", "Projectview", "Exit"):
        assert panel.control(label).enabled, label
    panel.control("Utilities").click()
    for label in ("jar", "javadoc", "Shortcut"):
        assert panel.control(label).enabled, label


def test_another_version_is_told_of_the_upgrade(scratch):
    scratch.configured()
    scratch.change_settings(TARNWICK_VERSION="Tarnwick V4.6")
    scratch.start()
    welcome = Window("Welcome to Tarnwick")
    assert "You seem to be upgrading from a previous Tarnwick version," in welcome.labels()
    welcome.press("OK")
    Window("Tarnwick")
    assert scratch.settings()["TARNWICK_VERSION"] == world.VERSION


def test_position_is_remembered(scratch):
    program, panel = scratch.first_start()
    person.xdotool("windowmove", "--sync", panel.x_number(), 340, 210)
    before = settled_area(panel)
    panel.press("Exit")
    program.wait(person.LIMIT)
    scratch.start()
    assert settled_area(Window("Tarnwick")) == before
    assert scratch.settings()["WINDOW_POSITION"] != ""


def test_however_it_is_closed_place_and_fields_are_remembered(scratch):
    scratch.configured()
    ends = {
        "its close box": lambda program, panel: panel.close(),
        "Escape": lambda program, panel: (panel.activate(), person.key("Escape")),
        "the end of the session": lambda program, panel: program.send_signal(signal.SIGTERM),
        "Exit": lambda program, panel: panel.press("Exit"),
    }
    for number, (name, end) in enumerate(ends.items()):
        program, panel = scratch.start(), Window("Tarnwick")
        person.xdotool("windowmove", panel.x_number(), 240 + 30 * number, 210)
        before = settled_area(panel)
        panel.write(f"Source{number}.java")
        end(program, panel)
        assert program.wait(20) == 0, name
        program, panel = scratch.start(), Window("Tarnwick")
        assert settled_area(panel) == before, name
        assert panel.field().text == f"Source{number}.java", name
        panel.press("Exit")
        assert program.wait(20) == 0, name


def settled_area(window):
    last = None
    def steady():
        nonlocal last
        before, last = last, window.controls()[0].area
        return last if last == before else None
    return wait_until("a window that stands still", steady)


def test_keyboard_alone_reaches_and_presses_every_button(scratch):
    program, panel = scratch.first_start()
    panel.activate()
    wanted = {one.label for one in panel.controls() if one.role == "push button" and one.enabled}
    met = set()
    for _ in range(40):
        person.key("Tab")
        scratch.listens(panel)
        met |= {one.label for one in panel.controls() if one.focused and one.role == "push button"}
        if met >= wanted:
            break
    assert met >= wanted, wanted - met
    for _ in range(40):
        if any(one.focused and one.label == "Exit" for one in panel.controls()):
            break
        person.key("Tab")
        scratch.listens(panel)
    person.key("space")
    assert program.wait(person.LIMIT) == 0


def test_close_box_ends_the_program(scratch):
    program, panel = scratch.first_start()
    panel.close()
    assert program.wait(person.LIMIT) == 0


def test_nothing_is_written_outside_the_configuration_folder_and_the_users_files(scratch):
    source = scratch.sample("Greeter.java")
    before = scratch.listing()
    program, panel = scratch.first_start()
    console = scratch.run_class(panel, scratch.compile(panel, source))
    console.close()
    console.is_gone()
    panel.press("Exit")
    program.wait(person.LIMIT)
    after = scratch.listing()
    changed = {name for name in after if before.get(name) != after[name]} | (before.keys() - after.keys())
    own = (os.path.relpath(scratch.config, scratch.root) + os.sep, os.path.relpath(scratch.work, scratch.root) + os.sep)
    assert changed and not [name for name in changed if not name.startswith(own)], changed


def test_version_and_help_are_printed_without_a_display(scratch):
    environment = {name: value for name, value in scratch.environment.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
    for word, begin in (("--version", world.VERSION + "\n"), ("--help", "Usage: tarnwick [FILE]\n")):
        done = subprocess.run([scratch.program, word], env=environment, cwd=scratch.home, capture_output=True, text=True,
                              timeout=person.LIMIT)
        assert done.returncode == 0 and done.stdout.startswith(begin) and done.stderr == "", done
    assert os.listdir(scratch.config) == []
    with open("/dev/full", "w") as full:
        assert subprocess.run([scratch.program, "--help"], env=environment, stdout=full, timeout=person.LIMIT).returncode == 1


def test_a_source_on_the_command_line_stands_in_its_field(scratch):
    scratch.configured()
    source = scratch.sample("Greeter.java")
    scratch.start(source)
    panel = Window("Tarnwick")
    assert panel.field().text == world.quoted(source), panel.field().text
    panel.press("javac")
    wait_until("the class", lambda: os.path.exists(source.removesuffix(".java") + ".class"))
