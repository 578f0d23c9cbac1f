"""A project from its file dialog to the running program, on the real JDK."""

import os
import time

import person
import world
from person import Window, wait_until

FILES = "Define which files belong to the project"
SELECT = "Select existing project"

HELPER = "public class Helper {\n  static String greeting() { return \"Hello from the project\"; }\n}\n"
MAIN = ("public class Start {\n  public static void main(String[] words) {\n"
        "    System.out.println(Helper.greeting() + \" \" + String.join(\"-\", words));\n  }\n}\n")
SECOND = "public class Second {\n  public static void main(String[] words) { System.out.println(\"Second\"); }\n}\n"


def write_source(scratch, name, text):
    path = os.path.join(scratch.work, name)
    with open(path, "w", encoding="utf-8") as out:
        out.write(text)
    return path


def message(part):
    """The box that says this; the words of all of it."""
    def found():
        return next((one for one in person.look() if any(part in each.name for each in one.all())), None)
    return wait_until(f"the message {part!r}", found)


def answer(box, label):
    next(one for one in box.all() if one.label == label).click()


def new_project(scratch, panel, *names):
    """Makes a project with these sources of the folder; gives its path."""
    path = os.path.join(scratch.work, "mein Projekt 日本.twp")
    panel.press("Projectview")
    panel.press("New")
    world.answer_file_dialog(path, panel)
    files = Window(FILES)
    for name in names:
        files.control(name).click()
        files.press("Add selected files to project")
    person.screenshot(os.path.join(scratch.project, "build", "e2e", "project-files.png"))
    files.press("OK")
    files.is_gone()
    return path


def rows_of(path):
    with open(path, encoding="utf-8") as lines:
        return dict(line.rstrip("\n").split("  ", 1) for line in lines if "  " in line and not line.startswith("REM"))


def compile_changed(scratch, panel, *classes):
    panel.press("javac")
    wait_until("the classes", lambda: all(os.path.exists(os.path.join(scratch.work, name)) for name in classes))
    wait_until("that it can run", lambda: panel.control("jdb debug").enabled)


def test_a_project_is_made_compiled_run_and_opened_again(scratch):
    write_source(scratch, "Start.java", MAIN)
    write_source(scratch, "Helper.java", HELPER)
    program, panel = scratch.first_start()
    path = new_project(scratch, panel, "Helper.java", "Start.java")
    assert rows_of(path)["PROJECT_SOURCES"] == "Helper.java;Start.java"
    assert panel.control("java").enabled and not panel.control("jdb debug").enabled, "it can be compiled from there"
    compile_changed(scratch, panel, "Start.class", "Helper.class")
    field = panel.field()
    assert field.text == "Start"
    panel.write("Start one two")
    panel.press("java")
    console = Window("Start")
    wait_until("the greeting", lambda: "Hello from the project one-two" in scratch.saved_display(console))
    console.activate()
    person.key("Return")
    console.is_gone()
    panel.activate()
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0

    # Started with the project's file, as by a double click.
    program = scratch.start(path)
    panel = Window("Tarnwick")
    assert panel.control("java").enabled and panel.field().text == "Start"
    person.screenshot(os.path.join(scratch.project, "build", "e2e", "project-view.png"))
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0

    # And from the list of the recent ones.
    program, panel = scratch.start(), Window("Tarnwick")
    panel.press("Projectview")
    panel.press("Open")
    dialog = Window(SELECT)
    person.screenshot(os.path.join(scratch.project, "build", "e2e", "project-select.png"))
    dialog.press("OK")
    dialog.is_gone()
    wait_until("that it can run", lambda: panel.control("jdb debug").enabled)
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def test_two_main_methods_are_a_conflict_until_they_are_allowed(scratch):
    write_source(scratch, "Start.java", MAIN)
    write_source(scratch, "Helper.java", HELPER)
    write_source(scratch, "Second.java", SECOND)
    program, panel = scratch.first_start()
    path = new_project(scratch, panel, "Helper.java", "Second.java", "Start.java")
    answer(message("both have \"public static void main\" methods."), "OK")
    panel.press("Files")
    files = Window(FILES)
    files.press("Allow 'public static void main' in multiple classes")
    files.press("OK")
    files.is_gone()
    compile_changed_without_main(scratch, panel)
    panel.press("Select")
    select = Window("Select class with main()")
    person.screenshot(os.path.join(scratch.project, "build", "e2e", "project-main-class.png"))
    select.control("Second").click()
    select.press("OK")
    select.is_gone()
    wait_until("that it can run", lambda: panel.control("jdb debug").enabled)
    assert rows_of(path)["CLASS_WITH_MAIN"] == "Second" and rows_of(path)["PROJECT_MULTIMAIN"] == "ON"
    panel.press("java")
    console = Window("Second")
    console.activate()
    console.close()
    console.is_gone()
    panel.activate()
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def compile_changed_without_main(scratch, panel):
    panel.press("javac")
    wait_until("the classes", lambda: all(os.path.exists(os.path.join(scratch.work, name + ".class"))
                                          for name in ("Start", "Helper", "Second")))
    wait_until("the end of the compilation", lambda: not scratch.processes("javac"))
    wait_until("a panel that listens again", panel.listens)


def test_only_what_a_change_touches_is_compiled_again(scratch):
    start = write_source(scratch, "Start.java", MAIN)
    write_source(scratch, "Helper.java", HELPER)
    _, panel = scratch.first_start()
    new_project(scratch, panel, "Helper.java", "Start.java")
    compile_changed(scratch, panel, "Start.class", "Helper.class")
    helper = os.stat(os.path.join(scratch.work, "Helper.class")).st_mtime_ns
    before = os.stat(os.path.join(scratch.work, "Start.class")).st_mtime_ns
    time.sleep(1.1)  # file times are counted in whole seconds
    write_source(scratch, "Start.java", MAIN + "\n")
    panel.press("java")
    answer(message("Not all classes are up-to-date. Compile!"), "OK")
    panel.press("javac")
    wait_until("a new class", lambda: os.stat(os.path.join(scratch.work, "Start.class")).st_mtime_ns > before)
    assert os.path.exists(start)
    assert os.stat(os.path.join(scratch.work, "Helper.class")).st_mtime_ns == helper


def test_a_new_source_is_made_within_the_project(scratch):
    _, panel = scratch.first_start()
    path = new_project(scratch, panel)
    panel.press("Files")
    files = Window(FILES)
    files.press("Create new file ....")
    made = Window("Create new sourcefile in project")
    made.write("Fresh.java")
    made.press("Create sourcefile")
    made.is_gone()
    assert files.control("Fresh.java")
    files.press("OK")
    files.is_gone()
    assert rows_of(path)["PROJECT_SOURCES"] == "Fresh.java"
    assert os.path.exists(os.path.join(scratch.work, "Fresh.java"))


def test_a_project_that_is_gone_is_told_at_the_start(scratch):
    scratch.configured()
    path = os.path.join(scratch.work, "a.twp")
    with open(path, "w", encoding="utf-8") as out:
        out.write("PROJECT_SOURCES  Gone.java;Missing.java\n")
    program = scratch.start(path)
    answer(message("2 source files belonging to the project could not be opened."), "OK")
    panel = Window("Tarnwick")
    assert panel.control("Fileview") and panel.control("Files").enabled
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0
