"""The command line, on the real program: what each line opens, what it says, and its exit code."""

import os
import subprocess

import person
from person import Window, wait_until
from test_locked_configuration import obey_permissions

NO_CONFIGURATION = 'Tarnwickfile::open(): Don\'t know how to open ""\nFile '

CHILD = """#!/bin/sh
# Stands in for a Java tool: says where it runs and with what, and waits.
pwd
for argument in "$@"; do printf '<%s>\\n' "$argument"; done
read answer
"""


def project(scratch, name):
    path = os.path.join(scratch.work, name)
    with open(path, "w", encoding="utf-8") as out:
        out.write("REM\n")
    return path


def console_configuration(scratch, rows="JAVA_XMS  1m\n", name="Konsole 日本.cfg"):
    path = os.path.join(scratch.work, name)
    with open(path, "w", encoding="utf-8") as out:
        out.write(rows)
    return path


def child(scratch):
    path = os.path.join(scratch.work, "Kind für Tests")
    with open(path, "w", encoding="utf-8") as out:
        out.write(CHILD)
    os.chmod(path, 0o755)
    return path


def switches(scratch, *more, rows="JAVA_XMS  1m\n"):
    """The switches that a console cannot do without, then others."""
    return [rf"\/DEFAULTDIR={scratch.work}/\/", rf"\/EXEFILE={child(scratch)}\/",
            rf"\/CFG={console_configuration(scratch, rows)}\/", *more]


def box_that_says(words):
    """The message box with exactly these words, and nothing else on the screen."""
    def found():
        return next((window for window in person.look() if any(one.name == words for one in window.all())), None)
    try:
        box = person.standing(f"the message {words!r}", found)
    except person.NotSeen as nothing:
        raise AssertionError([[one.name for one in window.all()] for window in person.look()]) from nothing
    assert len(person.look()) == 1
    return box


def press_ok(box):
    next(one for one in box.all() if one.label == "OK").click()


def is_refused(scratch, words, *arguments):
    """The line is answered by these words; then the program ends as one that failed, and nothing was written."""
    before = scratch.listing()
    program = scratch.start(*arguments)
    press_ok(box_that_says(words))
    assert program.wait(person.LIMIT) == 1
    assert person.look() == []
    assert scratch.listing() == before


def opens_the_panel(scratch, *arguments):
    program = scratch.start(*arguments)
    panel = Window("Tarnwick")
    assert [one.name for one in person.look()] == ["Tarnwick"]
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def shows(scratch, console, text):
    def saved():
        display = scratch.saved_display(console)
        return display.lstrip("\n") if text in display else None
    return wait_until(f"{text!r} in the console", saved)


def ends(console, program):
    """The close box ends console and child."""
    console.close()
    console.is_gone()
    assert program.wait(person.LIMIT) == 0


def test_no_argument_and_an_empty_one_open_the_panel(scratch):
    scratch.configured()
    opens_the_panel(scratch)
    opens_the_panel(scratch, "")


def test_project_file_opens_the_panel(scratch):
    scratch.configured()
    path = project(scratch, "Mein Projekt.twp")
    opens_the_panel(scratch, path)
    opens_the_panel(scratch, f'"{path}"')
    # A desktop may hand over a name with blanks in pieces.
    opens_the_panel(scratch, *path.split(" "))


def test_project_file_with_an_upper_case_extension_opens_the_panel(scratch):
    scratch.configured()
    opens_the_panel(scratch, project(scratch, "my dir a.TWP"))
    opens_the_panel(scratch, '"' + project(scratch, "日本.Twp") + '"')


def test_project_file_that_is_missing_is_no_project(scratch):
    missing = os.path.join(scratch.work, "fehlt.twp")
    is_refused(scratch, NO_CONFIGURATION, missing)
    is_refused(scratch, NO_CONFIGURATION, f'"{missing}"')


def test_what_is_no_project_file_is_refused(scratch):
    os.mkdir(os.path.join(scratch.work, "Ordner.twp"))
    is_refused(scratch, NO_CONFIGURATION, os.path.join(scratch.work, "Ordner.twp"))
    is_refused(scratch, NO_CONFIGURATION, console_configuration(scratch))


def test_words_are_neither_a_project_nor_options_of_the_toolkit(scratch):
    is_refused(scratch, NO_CONFIGURATION, "nonsense")
    is_refused(scratch, NO_CONFIGURATION, "--help", "me")
    is_refused(scratch, NO_CONFIGURATION, "--display=:4711", "--g-fatal-warnings")
    is_refused(scratch, NO_CONFIGURATION, " ")


def test_switches_without_a_configuration_are_refused(scratch):
    is_refused(scratch, NO_CONFIGURATION, r"\/TITLE=x\/", r"\/RUN=", "X")


def test_configuration_that_cannot_be_read_is_refused(scratch):
    missing = os.path.join(scratch.work, "fehlt 日本.cfg")
    is_refused(scratch, f"No such file or directory\nFile {missing}", rf"\/CFG={missing}\/", r"\/RUN=", "X")
    is_refused(scratch, f"No such file or directory\nFile {missing}", rf'\/CFG="{missing}"\/')
    is_refused(scratch, f"Is a directory\nFile {scratch.work}", rf"\/CFG={scratch.work}\/")
    is_refused(scratch, "No such file or directory\nFile ", r"\/CFG=\/")


def test_configuration_that_may_not_be_read_is_refused(scratch):
    closed = console_configuration(scratch)
    os.chmod(closed, 0)
    obey_permissions(scratch)
    is_refused(scratch, f"Permission denied\nFile {closed}", rf"\/CFG={closed}\/", r"\/RUN=", "X")


def test_pipe_that_nobody_writes_to_is_not_waited_for(scratch):
    pipe = os.path.join(scratch.work, "Rohr")
    os.mkfifo(pipe)
    is_refused(scratch, NO_CONFIGURATION, pipe)
    line = switches(scratch, r"\/TITLE=x\/", r"\/RUN=")
    line[2] = rf"\/CFG={pipe}\/"
    is_refused(scratch, f"Not a regular file\nFile {pipe}", *line)


def test_configuration_with_a_bad_value_is_refused(scratch):
    is_refused(scratch, "Encountered problems reading the configuration", *switches(scratch, rows="FILEVIEW_TAB  12x\n"))
    is_refused(scratch, "Encountered problems reading the configuration", *switches(scratch, rows="JAVAC_DEBUG  MAYBE\n"))


def test_default_folder_that_cannot_be_entered_is_refused(scratch):
    missing = os.path.join(scratch.work, "kein Ordner") + "/"
    is_refused(scratch, f"Can't access folder {missing}", rf"\/DEFAULTDIR={missing}\/", *switches(scratch)[1:])
    is_refused(scratch, "Can't access folder ", r"\/DEFAULTDIR=\/", *switches(scratch)[1:])
    is_refused(scratch, f"Can't access folder {child(scratch)}", rf"\/DEFAULTDIR={child(scratch)}\/")


def test_switch_line_opens_the_console_of_its_child(scratch):
    line = switches(scratch, r"\/TITLE=Größe 日本\/", r"\/RUN=", "one", '"two words"', r"a \/b")
    configuration = console_configuration(scratch)
    before = os.stat(configuration).st_mtime_ns
    program = scratch.start(*line)
    console = Window("Größe 日本")
    display = shows(scratch, console, r"<\/b>")
    assert display.startswith(f"{scratch.work}\n<one>\n<two words>\n<a>\n<\\/b>\n"), display
    assert console.process == program.pid
    ends(console, program)
    assert os.stat(configuration).st_mtime_ns == before, "a console writes no configuration"
    assert os.listdir(scratch.config) == []


def test_names_ignore_case_and_unknown_switches_are_skipped(scratch):
    line = [one.replace("DEFAULTDIR", "defaultDir").replace("EXEFILE", "ExeFile").replace("CFG", "cfg")
            for one in switches(scratch)]
    program = scratch.start(line[0], r"\/WHAT=is this\/", line[1], r"\/UNKNOWN\/", line[2], r"\/jdebug\/", r"\/title=x\/",
                            r"\/run=", "one")
    console = Window("x")
    assert shows(scratch, console, "<one>").startswith(scratch.work + "\n")
    console.activate()
    console.press("Help")
    assert console.control("jdb Help").enabled, "a debugging start"
    person.key("Escape", "Escape")
    ends(console, program)


def test_child_that_cannot_be_started_is_told_and_only_the_close_box_ends_its_console(scratch):
    line = switches(scratch, r"\/TITLE=x\/", r"\/RUN=")
    missing = child(scratch)
    os.remove(missing)
    program = scratch.start(*line)
    words = f"Can't start {missing}\nCreateProcess error 2\nNo such file or directory"
    press_ok(person.standing("the message", lambda: next(
        (window for window in person.look() if any(one.name == words for one in window.all())), None)))
    console = Window("x")
    console.activate()
    person.type_text("typed")
    person.key("Return", "F5", "Left")
    assert shows(scratch, console, "typed") == "typed\ncont\n\n"
    ends(console, program)


def test_without_the_debugging_switch_the_debuggers_help_is_disabled(scratch):
    program = scratch.start(*switches(scratch, r"\/TITLE=x\/", r"\/RUN="))
    console = Window("x")
    console.activate()
    console.press("Help")
    assert not console.control("jdb Help").enabled
    person.key("Escape", "Escape")
    ends(console, program)


def test_title_loses_its_blanks_on_the_left_only(scratch):
    for given, title in ((r"\/TITLE=  x\/", "x"), (r"\/TITLE=y  \/", "y  ")):
        program = scratch.start(*switches(scratch, given, r"\/RUN="))
        ends(Window(title), program)


def test_last_switch_that_is_not_closed_still_counts(scratch):
    program = scratch.start(*switches(scratch, r"\/TITLE=offen"))
    console = Window("offen")
    shows(scratch, console, scratch.work)
    ends(console, program)


def test_unknown_tags_and_missing_values_are_no_failure_of_a_console(scratch):
    program = scratch.start(*switches(scratch, r"\/TITLE=x\/", r"\/RUN=", rows="WHAT  is this\nFILEVIEW_TAB\n\n"))
    ends(Window("x"), program)


def test_debug_tables_with_fast_code_are_warned_of_and_the_console_opens(scratch):
    program = scratch.start(*switches(scratch, r"\/TITLE=x\/", r"\/RUN=", rows="JAVAC_DEBUG  ON\nJAVAC_FASTCODE  ON\n"))
    press_ok(box_that_says(
        "Javac settings:\n\nAs of JDK 1.2, you can combine -g and -O, but you may get surprising results,\n"
        "such as missing variables or relocated or missing code."))
    ends(Window("x"), program)


def test_console_looks_neither_at_the_default_configuration_nor_at_its_version(scratch):
    scratch.configured()
    scratch.change_settings(TARNWICK_VERSION="Tarnwick V1", FILEVIEW_TAB="12x")
    before = scratch.listing()
    program = scratch.start(*switches(scratch, r"\/TITLE=x\/", r"\/RUN="))
    ends(Window("x"), program)
    after = scratch.listing()
    assert {name: after[name] for name in before} == before


def test_both_windows_bear_the_programs_icon(scratch):
    def icon(window):
        return subprocess.run(["xprop", "-id", window.x_number(), "-notype", "_NET_WM_ICON"], stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, check=True, timeout=30).stdout

    _, panel = scratch.first_start()
    program = scratch.start(*switches(scratch, r"\/TITLE=x\/", r"\/RUN="))
    console = Window("x")
    assert "Icon (" in icon(panel), icon(panel)[:200]
    assert icon(console) == icon(panel)
    ends(console, program)
