"""What goes wrong is told in words, and nothing is lost."""

import os
import shutil
import subprocess

import person
import world
from person import Window, wait_until


def message(panel_title="Tarnwick"):
    """The message box that shows: its words. Pressing its button is left to the test."""
    box = wait_until("a message box", lambda: next(
        (one for one in person.look() if one.role in ("alert", "dialog") and
         any(child.label in ("OK", "Cancel") for child in one.all())), None))
    return "\n".join(one.name for one in box.all() if one.name)


def test_no_jdk_at_the_path(scratch):
    source = scratch.sample("Greeter.java")
    scratch.configured()
    nowhere = os.path.join(scratch.root, "kein JDK") + os.sep
    scratch.change_settings(JAVA_PATH=nowhere)
    scratch.start()
    panel = Window("Tarnwick")
    panel.write(world.quoted(source))
    panel.press("javac")
    words = message()
    assert nowhere + "javac" in words, words
    assert "Is the JDK installed?" in words or "No such file or directory" in words, words
    person.key("Return")
    # The panel goes on, and what was typed is kept.
    wait_until("the panel", lambda: panel.control("javac").enabled and panel.field().text == world.quoted(source))
    assert scratch.settings()["JAVA_PATH"] == nowhere


def test_no_java_at_the_path_when_a_class_is_to_run(scratch):
    path = scratch.compiled(scratch.sample("Greeter.java"))
    scratch.configured()
    nowhere = os.path.join(scratch.root, "kein JDK") + os.sep
    scratch.change_settings(JAVA_PATH=nowhere)
    scratch.start()
    panel = Window("Tarnwick")
    panel.write(world.quoted(path), index=1)
    panel.press("java")
    words = message()
    assert "Can't access the JDK tool " + nowhere + "java\n" in words, words
    assert "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?" in words, words


def hide_jdks(scratch):
    """Starts the program where the system's folder of JDKs is empty, and the variables name none."""
    hidden = "/usr/lib/jvm"
    unshare = [shutil.which("unshare") or "unshare", "--mount"] + ([] if os.geteuid() == 0 else ["--map-root-user"])
    mount = f"{shutil.which('mount')} -t tmpfs none {hidden}"
    if os.path.isdir(hidden):
        if subprocess.run([*unshare, "/bin/sh", "-c", mount], capture_output=True).returncode != 0:
            raise world.Skipped("a JDK is installed, and nothing may be mounted over it here")
        wrapper = os.path.join(scratch.root, "ohne JDK")
        with open(wrapper, "w", encoding="utf-8") as out:
            out.write(f"#!/bin/sh\nexec {' '.join(unshare)} /bin/sh -c '{mount} && exec \"$0\" \"$@\"' '{scratch.program}' \"$@\"\n")
        os.chmod(wrapper, 0o755)
        scratch.program = wrapper
    empty = scratch._folder("keine Programme")
    for tool in ("sh", "ls", "cp", "mv", "grep"):
        os.symlink(shutil.which(tool), os.path.join(empty, tool))
    scratch.environment["PATH"] = empty
    scratch.environment.pop("JAVA_HOME", None)


def test_without_a_jdk_the_field_is_empty_and_the_tools_say_so(scratch):
    hide_jdks(scratch)
    scratch.start()
    Window("Welcome to Tarnwick").press("OK")
    settings = Window("Tarnwick settings")
    assert settings.field().text == ""
    settings.press("Cancel")
    panel = Window("Tarnwick")
    source = scratch.sample("Greeter.java")
    panel.write(world.quoted(source))
    panel.press("javac")
    # The settings dialog opens on its first page, to be told where the tools are.
    Window("Tarnwick settings").press("Cancel")
    assert "No path to javac and other tools available from settings" in message()


def test_source_that_is_not_there(scratch):
    _, panel = scratch.first_start()
    missing = os.path.join(scratch.work, "Fehlt.java")
    panel.write(world.quoted(missing))
    panel.press("javac")
    # A file is asked for; cancelling leaves everything as it was.
    chooser = wait_until("the file dialog", lambda: next(
        (one for one in person.look() if one.role == "file chooser"), None))
    Window(chooser.name).activate()
    person.key("Escape")
    assert "No .java file known." in message()
    person.key("Return")
    wait_until("the panel", lambda: panel.control("javac").enabled)
    assert panel.field().text == world.quoted(missing)
    assert scratch.editor_notes() == []


def test_class_that_is_not_there(scratch):
    _, panel = scratch.first_start()
    panel.write(world.quoted(os.path.join(scratch.work, "Fehlt.class")), index=1)
    panel.press("java")
    chooser = wait_until("the file dialog", lambda: next(
        (one for one in person.look() if one.role == "file chooser"), None))
    Window(chooser.name).activate()
    person.key("Escape")
    assert "No known .class file" in message()
    assert len(scratch.processes("tarnwick")) == 1


def refuses_to_save(scratch, reason):
    """The first start, where the settings cannot be saved: another folder is asked for, by the reason."""
    scratch.start()
    Window("Welcome to Tarnwick").press("OK")
    Window("Tarnwick settings").press("OK")
    other = Window(reason)
    assert "default location:\n" + scratch.configuration in other.labels(), other.labels()
    assert "TARNWICK_CFGDIR" in other.labels(), other.labels()
    other.press("Cancel")
    words = message()
    assert reason in words and "\nCan't save configuration data in " + scratch.configuration in words, words


def test_configuration_file_that_is_a_directory(scratch):
    os.mkdir(scratch.configuration)
    refuses_to_save(scratch, "Is a directory")
    assert os.listdir(scratch.config) == ["Tarnwickdefault.CFG"]
    assert os.listdir(scratch.configuration) == []


def test_configuration_folder_that_cannot_be_written(scratch):
    """A file in the place of the folder keeps everybody out, the superuser included."""
    os.rmdir(scratch.config)
    with open(scratch.config, "w", encoding="utf-8") as out:
        out.write("a file")
    refuses_to_save(scratch, "Not a directory")
    with open(scratch.config, encoding="utf-8") as kept:
        assert kept.read() == "a file"


def test_no_display_is_told_in_one_line(scratch):
    for display in (None, ":4711"):
        variables = dict(scratch.environment)
        variables.pop("DISPLAY", None)
        variables.pop("WAYLAND_DISPLAY", None)
        if display is not None:
            variables["DISPLAY"] = display
        done = subprocess.run([scratch.program], env=variables, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              timeout=20)
        assert done.returncode == 1, done
        assert done.stdout == "", done
        lines = done.stderr.split("\n")
        assert len(lines) == 2 and lines[0] and lines[1] == "", done.stderr
        assert "display" in lines[0].lower(), done.stderr
    assert os.listdir(scratch.config) == []
