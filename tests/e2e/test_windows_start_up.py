"""The command line on the Windows program, under Wine: what each line opens, what it says, and its exit code.

Wine puts quotes around an argument with blanks, as the shell of Windows does.
"""

import os

import person
from person import Window, wait_until
from test_console import has_colour, shows
from test_start_up import NO_CONFIGURATION, ends, is_refused, opens_the_panel, press_ok
from wine_world import windows_path


def in_work(scratch, name):
    return windows_path(os.path.join(scratch.work, name))


def folded(path):
    """The letters at even places small, those at odd places large."""
    return "".join((one.upper() if place % 2 else one.lower()) if one.isascii() else one for place, one in enumerate(path))


def test_what_is_neither_a_project_nor_a_line_of_switches_is_refused(scratch):
    for line in ("nonsense", "--help me", in_work(scratch, "fehlt.twp"), in_work(scratch, ""), r"\/TITLE=x\/"):
        is_refused(scratch, NO_CONFIGURATION, line)


def test_configuration_that_cannot_be_read_is_refused(scratch):
    missing, bad = in_work(scratch, "fehlt é.cfg"), scratch.made("Größe.cfg", b"FILEVIEW_TAB  12x\r\n")
    is_refused(scratch, f"No such file or directory\nFile {missing}", rf"\/CFG={missing}\/")
    is_refused(scratch, "No such file or directory\nFile ", r"\/CFG=\/")
    is_refused(scratch, f"Permission denied\nFile {windows_path(scratch.work)}", rf"\/CFG={windows_path(scratch.work)}\/")
    is_refused(scratch, "Encountered problems reading the configuration", rf"\/CFG={bad}\/")


def test_default_folder_that_cannot_be_entered_is_refused(scratch):
    missing = in_work(scratch, "kein Ordner")
    is_refused(scratch, f"Can't access folder {missing}", rf"\/DEFAULTDIR={missing}\/", r"\/TITLE=x\/")
    is_refused(scratch, "Can't access folder ", r"\/DEFAULTDIR=\/")


def test_no_argument_and_a_project_file_open_the_panel(scratch):
    program, panel = scratch.first_start()
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0
    opens_the_panel(scratch)
    opens_the_panel(scratch, scratch.made("my dir a.TWP", b"REM\r\n"))
    opens_the_panel(scratch, scratch.made("b.twp", b"REM\r\n"))


def test_line_of_switches_opens_a_console_whose_child_bears_the_folded_name(scratch):
    java = windows_path(os.path.join(scratch.jdk, "java.exe"))
    configuration = scratch.made("Größe.cfg", b"WHAT  is this\r\nFILEVIEW_TAB\r\nJAVAC_FASTCODE  ON\r\n")
    scratch.play("folder", "out here", "readline")
    program = scratch.start(rf"\/DefaultDir={windows_path(scratch.work)}\/", r"\/WHAT=is this\/", rf"\/exefile={java}\/",
                            rf"\/cfg={configuration}\/", r"\/Title=Main\/", r"\/run=a", r"\/b")
    # The system's box sets the first words apart, in larger letters.
    warning = ["Javac settings:", "As of JDK 1.2, you can combine -g and -O, but you may get surprising results,\n"
               "such as missing variables or relocated or missing code."]
    box = person.standing("the warning", lambda: next(
        (one for one in person.look() if [child.name for child in one.all()][-3:-1] == warning), None))
    press_ok(box)
    console = Window("Main")
    display = shows(scratch, console, "here")
    assert display.lstrip("\n").startswith(windows_path(scratch.work) + "\nhere\n"), display
    assert has_colour(console, "#0000FF")
    assert scratch.recorded()[-2:] == ["a", "\\/b"], scratch.recorded()
    own = wait_until("the child's own console", lambda: scratch.own_console("java.exe"))
    assert own.name == folded(java), own.name
    assert os.listdir(scratch.config) == [], "a console writes no configuration"
    ends(console, program)


def test_title_loses_its_blanks_on_the_left_only(scratch):
    configuration, java = scratch.made("x.cfg"), windows_path(os.path.join(scratch.jdk, "java.exe"))
    for given, title in ((r"\/TITLE=  x\/", "x"), (r"\/TITLE=y  \/", "y  "), (r"\/TITLE=offen", "offen")):
        scratch.play("out here", "readline")
        program = scratch.start(rf"\/EXEFILE={java}\/", rf"\/CFG={configuration}\/", given)
        ends(Window(title), program)
