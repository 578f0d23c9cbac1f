"""The window of what the tools have said: a broken project, clicked through with a stand-in for the user's editor."""

import glob
import os
import shlex

import person
import world
from person import Window, active_window, wait_until

TITLE = "Messages - Tarnwick"
SOURCES = 20
BROKEN = """package parts;

public class Part{number:02} {{
    // See Elsewhere.java:3: error: nothing
    int size = nothing;
\tString text() {{ return {number}; }}
}}
"""


def with_messages(scratch, **more):
    """Sets the Messages window, and an editor that is known by its name and takes notes."""
    editor = os.path.join(scratch.root, "geany")
    with open(editor, "w", encoding="utf-8") as out:
        out.write(world.NOTES.format(folder=shlex.quote(scratch.notes)))
    os.chmod(editor, 0o755)
    return {"DISPLAY_MESSAGES": "ON", "EDITOR_TARGET": editor, "NEWER_JAVA": "ON", "JAVAC_ONE_RUN": "ON"} | more


def rows(settings):
    return "".join(f"{tag}  {value}\n" for tag, value in settings.items())


def sum_of(window, text):
    wait_until(f"the sum {text!r}", lambda: text in window.labels())


def opened(scratch, count):
    """What the editor was given last, once it has been started so often: line, column and file."""
    def notes():
        return [name for name in os.listdir(scratch.notes) if name.endswith(".arguments")]
    wait_until(f"{count} starts of the editor", lambda: len(notes()) >= count)
    assert len(notes()) == count, notes()
    with open(os.path.join(scratch.notes, f"{count - 1}.arguments"), encoding="utf-8") as lines:
        arguments = lines.read().split("\n")[:-1]
    assert arguments[0] == "-l" and arguments[2] == "--column" and len(arguments) == 5, arguments
    return int(arguments[1]), int(arguments[3]), arguments[4]


def clicked_through(scratch, tools):
    names = [f"parts/Part{number:02}.java" for number in range(SOURCES)]
    for number, name in enumerate(names):
        scratch.write(name, BROKEN.format(number=number))
    project = scratch.write("broken.twp", rows(with_messages(scratch, PROJECT_SOURCES=";".join(names), JAVA_PATH=tools + "/")))
    program = scratch.start(project)
    panel = Window("Tarnwick")
    panel.activate()
    keyboard = active_window()
    panel.press("javac")
    messages = Window(TITLE)
    sum_of(messages, f"{2 * SOURCES} errors in {SOURCES} files, ")
    assert active_window() == keyboard, "the window took the keyboard"
    expected = []
    for step in range(2 * SOURCES):
        person.key("F4")
        expected.append(opened(scratch, step + 1))
        assert active_window() == keyboard
    folder = os.path.join(scratch.work, "parts")
    wanted = {(5, 16, os.path.join(folder, f"Part{number:02}.java")) for number in range(SOURCES)} | {
        (6, 25, os.path.join(folder, f"Part{number:02}.java")) for number in range(SOURCES)}
    assert set(expected) == wanted and len(expected) == len(wanted), expected
    # Behind the last one there is nothing; back is the one before it.
    person.key("F4")
    person.key("shift+F4")
    assert opened(scratch, 2 * SOURCES + 1) == expected[-2]
    # In the window itself, too, Return and a double click beside.
    messages.activate()
    person.key("Return")
    assert opened(scratch, 2 * SOURCES + 2) == expected[-2]
    person.key("F4")
    assert opened(scratch, 2 * SOURCES + 3) == expected[-1]
    panel.activate()
    panel.press("Exit")
    program.wait(person.LIMIT)
    with open(project, encoding="utf-8") as lines:
        assert any(line.startswith("MESSAGES_PLACE  ") for line in lines), "it remembers its place"


def jdks():
    return sorted({os.path.dirname(os.path.realpath(javac)) for javac in glob.glob("/usr/lib/jvm/*/bin/javac")})


def test_a_broken_project_is_clicked_through_with_every_jdk(scratch):
    found = jdks()
    assert found
    scratch.configured()
    for tools in found:
        print(tools)
        for name in os.listdir(scratch.notes):
            os.remove(os.path.join(scratch.notes, name))
        clicked_through(scratch, tools)


def test_the_window_stays_open_between_runs_and_says_when_all_is_well(scratch):
    source = scratch.write("One.java", "public class One { int size = nothing; }\n")
    scratch.configured()
    with open(scratch.configuration, encoding="utf-8") as lines:
        kept = [line for line in lines if not line.startswith(("EDITOR_TARGET ", "NEWER_JAVA", "JAVAC_ONE_RUN"))]
    with open(scratch.configuration, "w", encoding="utf-8") as out:
        out.writelines(kept + [rows(with_messages(scratch))])
    scratch.start()
    panel = Window("Tarnwick")
    panel.activate()
    panel.write(world.quoted(source))
    panel.press("javac")
    messages = Window(TITLE)
    sum_of(messages, "1 error in 1 file, ")
    scratch.write("One.java", "public class One { int size = 1; }\n")
    panel.activate()
    panel.press("javac")
    sum_of(messages, "No messages, ")
    messages.activate()
    person.key("Escape")
    messages.is_gone()
    assert Window("Tarnwick").shows()
    assert scratch.editor_notes() == []
