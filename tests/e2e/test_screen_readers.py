"""What readers of the screen hear of the program's windows, over the bus on which they hear it."""

import os

import person
import world
from person import Window, wait_until
from test_console import shows
from test_console_today import LINES, program
from test_jar import BASE
from test_jdb_input import debug, panel_for_input
from test_locked_configuration import obey_permissions, press_ok
from test_messages import TITLE as MESSAGES
from test_panels import FLAT, TALL, WIDE, is_flat, is_laid_out, is_tall, is_wide
from test_projects import (FILES, HELPER, MAIN, SECOND, SELECT, answer, compile_changed_without_main, message, new_project,
                           write_source)
from test_splitting import WARNING
from test_stopping import deaf_javac_under_way, expect_that_all_have_gone

# What a person does something with, whether it can have the focus or not.
USED = {"push button", "toggle button", "check box", "radio button", "combo box", "text", "entry", "list", "list box", "table",
        "tree table", "page tab", "progress bar", "link", "menu", "menu item", "check menu item"}
DEBUG_TABLES = "Create debug\ntables (-g)"
# Entries have what they show for a name; tabs speak for the row of tabs, and what scrolls hands the focus on.
SPEAK_BY_THEIR_CONTENT = {"table cell", "scroll pane", "page tab list"}


def hear(window, *expected):
    """Each thing that shows in a window says its name and its kind; among them are those expected, as kind and name."""
    heard = set()
    for one in window.controls()[1:]:
        assert not one.spoken.endswith("-symbolic"), (window.title, "a picture's name", one.spoken)
        if one.role not in USED and (not one.focusable or one.role in SPEAK_BY_THEIR_CONTENT):
            continue
        assert one.role not in ("unknown", "filler", "invalid"), (window.title, one.role, one.spoken)
        assert any(letter.isalpha() for letter in one.spoken), (window.title, one.role, one.spoken)
        if one.role in ("push button", "check box", "radio button") and one.enabled:
            assert one.focusable, (window.title, one.role, one.spoken)
        heard.add((one.role, one.spoken.strip()))
    missing = set(expected) - heard
    assert not missing, (window.title, missing, sorted(heard))


def buttons(*names):
    return [("push button", name) for name in names]


def turn_to(window, page):
    window.control(page, "page tab").click()
    wait_until(f"the page {page!r}", lambda: window.control(page, "page tab").selected)


def leave(window, label="Cancel"):
    window.press(label)
    window.is_gone()


def hear_panel(scratch, panel, *expected):
    for label, name, fits in ((WIDE, "HORIZONTAL", is_wide), (FLAT, "FLAT", is_flat), (TALL, "VERTICAL", is_tall)):
        panel.press(label)
        is_laid_out(scratch, panel, name, fits)
        for page, names in (("Utilities", ("jar", "javadoc")), ("Applet", ("appletviewer",)), ("Main program", ("java",))):
            turn_to(panel, page)
            hear(panel, *expected, *buttons("javac", "Settings", "Exit", *names), ("page tab", page))


def test_the_panel_in_all_its_layouts(scratch):
    _, panel = scratch.first_start()
    hear_panel(scratch, panel, *buttons("New", "Browse for a source file", "Edit", "Projectview"),
               ("text", "Source file (.java)"))
    panel.press("Projectview")
    panel.control("Fileview")
    hear_panel(scratch, panel, *buttons("New", "Open", "Files", "Edit", "javac  all", "Fileview"))


def test_welcome_and_the_settings(scratch):
    scratch.start()
    welcome = Window("Welcome to Tarnwick")
    hear(welcome, *buttons("OK"))
    leave(welcome, "OK")
    settings = Window("Tarnwick settings")
    pages = [one.label for one in settings.controls() if one.role == "page tab"]
    assert len(pages) == 7, pages
    for page in pages:
        turn_to(settings, page)
        hear(settings, *buttons("OK", "Cancel", "Help", "About ..."), ("page tab", page))
    settings.press("About ...")
    about = Window("About Tarnwick")
    hear(about, *buttons("OK"))
    leave(about, "OK")
    turn_to(settings, "Paths")
    settings.press("Add to -classpath")
    path = Window("Add components to a path")
    hear(path, *buttons("Add a folder ...", "Add an archive ...", "Cancel"))
    leave(path)
    leave(settings, "OK")


def test_a_state_is_heard_when_it_changes(scratch):
    _, panel = scratch.first_start()
    panel.press("Settings")
    settings = Window("Tarnwick settings")
    turn_to(settings, "javac")
    before = settings.control(DEBUG_TABLES, "check box").checked
    settings.press(DEBUG_TABLES)
    wait_until("the other state", lambda: settings.control(DEBUG_TABLES, "check box").checked != before)
    wait_until("the focus on it", lambda: settings.control(DEBUG_TABLES, "check box").focused)
    leave(settings)
    panel.press("Projectview")
    wait_until("a button that cannot be pressed", lambda: not panel.control("javac", "push button").enabled)


def test_the_dialogs_of_the_tools(scratch):
    _, panel = scratch.first_start()
    os.mkdir(os.path.join(scratch.work, "Unterordner"))
    turn_to(panel, "Utilities")
    panel.press("jar")
    jar = Window("jar")
    jar.write(scratch.work, BASE)
    hear(jar, *buttons("Cancel", "Create new archive", "Run jar", "Help"), ("text", "Archive"))
    jar.press("Select subfolders")
    folders = Window("Select folder")
    hear(folders, *buttons("OK", "Cancel"), ("table", "Subfolders"))
    leave(folders)
    leave(jar)
    panel.press("javadoc")
    javadoc = Window("javadoc")
    pages = [one.label for one in javadoc.controls() if one.role == "page tab"]
    assert len(pages) == 5, pages
    for page in pages:
        turn_to(javadoc, page)
        hear(javadoc, *buttons("Cancel", "Help"), ("page tab", page))
    leave(javadoc)
    panel.press("Shortcut")
    shortcut = Window("Create shortcut to Java application")
    hear(shortcut, *buttons("Close", "Help"))
    leave(shortcut, "Close")


def test_the_dialogs_of_new_files(scratch):
    _, panel = scratch.first_start()
    panel.press("New")
    new = Window("Create new .java/.html file")
    hear(new, *buttons("Cancel", "Add new template .."))
    new.press("Add new template ..")
    template = Window("Add template for new sourcefiles")
    hear(template, *buttons("Cancel"))
    leave(template)
    leave(new)
    panel.write(world.quoted(scratch.sample("Shapes.java")))
    panel.press("javac")
    warning = Window(WARNING)
    hear(warning, *buttons("Compile", "Cancel"))
    leave(warning)


def test_the_dialogs_of_a_project(scratch):
    for name, text in (("Start", MAIN), ("Helper", HELPER), ("Second", SECOND)):
        write_source(scratch, name + ".java", text)
    _, panel = scratch.first_start()
    new_project(scratch, panel, "Helper.java", "Second.java", "Start.java")
    box = message("both have \"public static void main\" methods.")
    assert box.role == "alert" and box.name.strip(), (box.role, box.name)
    answer(box, "OK")
    panel.press("Files")
    files = Window(FILES)
    hear(files, *buttons("OK", "Cancel", "Add selected files to project"))
    files.press("Allow 'public static void main' in multiple classes")
    files.press("Create new file ....")
    made = Window("Create new sourcefile in project")
    hear(made, *buttons("Create sourcefile", "Cancel"))
    leave(made)
    leave(files, "OK")
    compile_changed_without_main(scratch, panel)
    panel.press("Select")
    select = Window("Select class with main()")
    hear(select, *buttons("OK", "Cancel"))
    leave(select)
    panel.press("Open")
    projects = Window(SELECT)
    hear(projects, *buttons("OK", "Cancel"))
    leave(projects)


def test_a_save_that_fails(scratch):
    scratch.configured()
    os.chmod(scratch.configuration, 0o444)
    os.chmod(scratch.config, 0o555)
    obey_permissions(scratch)
    scratch.start()
    panel = Window("Tarnwick")
    panel.press("Wide layout")
    question = Window("Permission denied")
    hear(question, *buttons("Cancel", "Browse"))
    leave(question)
    press_ok()


def test_a_guide_that_is_lost(scratch):
    scratch.configured()
    scratch.change_settings(HELPFILE=os.path.join(scratch.home, "gone", "usersguide.htm"))
    scratch.start()
    panel = Window("Tarnwick")
    panel.press("Settings")
    settings = Window("Tarnwick settings")
    settings.press("Help")
    question = Window("Unable to open usersguide.htm")
    hear(question, *buttons("Find usersguide.htm ...", "Don't open usersguide.htm"))
    leave(question, "Don't open usersguide.htm")
    leave(settings)


def test_the_console_and_what_it_opens(scratch):
    _, console = program(scratch, 17, "Lines", LINES)
    shows(scratch, console, "HIT 2")
    hear(console, ("menu", "File"), ("menu", "Help"))
    assert console.control("Console").focused
    console.activate()
    person.key("ctrl+f")
    find = Window("Find")
    hear(find, *buttons("Find", "Cancel"))
    leave(find)


def test_the_debugger_of_a_program_with_an_input_of_its_own(scratch):
    panel, path = panel_for_input(scratch)
    console = debug(scratch, panel, path)
    hear(console, *buttons("Continue", "where"), ("radio button", "Input goes to jdb"),
         ("radio button", "Input goes to program"))


def test_the_messages(scratch):
    _, panel = scratch.first_start()
    panel.press("Settings")
    settings = Window("Tarnwick settings")
    settings.press("Messages window")
    leave(settings, "OK")
    panel.write(world.quoted(scratch.sample("Broken.java")))
    panel.press("javac")
    messages = Window(MESSAGES)
    wait_until("the sum", lambda: "error" in messages.labels())
    hear(messages)
    assert messages.control("Messages")


def test_a_tool_at_work(scratch):
    _, _, processes = deaf_javac_under_way(scratch)
    watch = Window("javac")
    hear(watch, *buttons("Stop"))
    leave(watch, "Stop")
    expect_that_all_have_gone(processes)
