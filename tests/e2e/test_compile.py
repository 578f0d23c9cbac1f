"""javac from the panel, on the real JDK."""

import os
import time

import person
import world
from person import Window, wait_until


def class_of(source):
    return source.removesuffix(".java") + ".class"


def test_good_file_gives_a_class_and_opens_no_editor(scratch):
    source = scratch.sample("Greeter.java")
    _, panel = scratch.first_start()
    scratch.compile(panel, source)
    # By now an editor would have been started.
    time.sleep(1)
    assert scratch.editor_notes() == []
    assert [one.name for one in person.look()] == ["Tarnwick"]


def test_error_opens_the_log_with_the_compilers_message(scratch):
    source = scratch.sample("Broken.java")
    _, panel = scratch.first_start()
    panel.write(world.quoted(source))
    panel.press("javac")
    (_, log), = wait_until("the log in the editor", scratch.editor_notes)
    assert "Broken.java:6: error: incompatible types: int cannot be converted to String" in log, log
    assert "1 error" in log, log
    assert not os.path.exists(class_of(source))


def test_a_verbose_compiler_counts_as_one_that_has_something_to_say(scratch):
    source = scratch.sample("Greeter.java")
    scratch.configured()
    scratch.change_settings(JAVAC_VERBOSE="ON", JAVA_PATH=os.path.join(os.path.dirname(world.real_javac()), ""))
    scratch.start()
    panel = Window("Tarnwick")
    panel.activate()
    panel.write(world.quoted(source))
    panel.press("javac")
    (_, log), = wait_until("the log in the editor", scratch.editor_notes)
    assert log.startswith("\n\njavac ") and " -verbose " in log.split("\n")[2], log[:300]
    # Some of what it says, from its beginning to its end, with the folder's letters as they are.
    assert "\n[parsing started " in log and source in log, log[:300]
    assert "\n[wrote ./Greeter.class]\n[total " in log and log.endswith("ms]\n"), log[-300:]
    assert os.path.exists(class_of(source))


def test_an_old_class_survives_a_failed_compilation(scratch):
    source = scratch.sample("Broken.java")
    with open(class_of(source), "wb") as out:
        out.write(b"old")
    _, panel = scratch.first_start()
    panel.write(world.quoted(source))
    panel.press("javac")
    wait_until("the log in the editor", scratch.editor_notes)
    with open(class_of(source), "rb") as kept:
        assert kept.read() == b"old"
    assert "int cannot be converted" in scratch.editor_notes()[0][1]


def test_the_panel_is_used_without_a_utf8_locale(scratch):
    """Tools that take the C locale cannot name such folders."""
    source = scratch.sample("Greeter.java")
    scratch.environment["LC_ALL"] = "C"
    scratch.environment.pop("LANG", None)
    _, panel = scratch.first_start()
    console = scratch.run_class(panel, scratch.compile(panel, source))
    wait_until("the question", lambda: "What is your name? " in scratch.saved_display(console))


def test_the_panel_is_used_with_a_language_that_is_not_installed(scratch):
    """Tools that do not get the locale they are told of take the C locale."""
    source = scratch.sample("Greeter.java")
    scratch.environment.pop("LC_ALL", None)
    scratch.environment["LANG"] = "xx_XX.UTF-8"
    _, panel = scratch.first_start()
    console = scratch.run_class(panel, scratch.compile(panel, source))
    wait_until("the question", lambda: "What is your name? " in scratch.saved_display(console))


def test_a_folder_that_a_shell_would_touch(scratch):
    scratch.work = scratch._folder("Zoës Heim", "it's 100% & $HOME `id` #1 ;x| (日本)")
    source = scratch.sample("Greeter.java")
    _, panel = scratch.first_start()
    console = scratch.run_class(panel, scratch.compile(panel, source))
    wait_until("the question", lambda: "What is your name? " in scratch.saved_display(console))


def test_source_stays_in_the_field_for_the_next_start(scratch):
    source = scratch.sample("Greeter.java")
    program, panel = scratch.first_start()
    scratch.compile(panel, source)
    assert source in scratch.settings()["FILEVIEW_SOURCE"]
    panel.press("Exit")
    program.wait(person.LIMIT)
    scratch.start()
    assert Window("Tarnwick").field().text == world.quoted(source)
