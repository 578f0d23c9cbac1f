"""A tool that lasts is shown beside the panel, and whoever has had enough of it stops it."""

import os

import person
import world
from person import Window, key, wait_until
from test_projects import answer, message
from test_tools import content

DEAF = """#!/bin/sh
trap '' TERM INT HUP
echo at work
setsid sleep 3600 &
echo $$ $! > "$NOTE.new"
mv "$NOTE.new" "$NOTE"
while :; do sleep 1; done
"""


def deaf_javac_under_way(scratch):
    """The panel with a compiler at work that listens to no signal; with the numbers of its processes."""
    tools, note = os.path.join(scratch.root, "tools"), os.path.join(scratch.root, "note")
    os.mkdir(tools)
    for name in ("javac", "java"):
        with open(os.path.join(tools, name), "w", encoding="utf-8") as out:
            out.write(DEAF)
        os.chmod(os.path.join(tools, name), 0o755)
    scratch.configured()
    scratch.change_settings(JAVA_PATH=os.path.join(tools, ""))
    program = scratch.start(NOTE=note)
    panel = Window("Tarnwick")
    panel.activate()
    panel.write(world.quoted(scratch.sample("Greeter.java")))
    panel.press("javac")
    return program, panel, [int(word) for word in wait_until("the tool", lambda: content(note).split())]


def expect_that_all_have_gone(processes):
    wait_until("their end", lambda: not [one for one in processes if os.path.exists(f"/proc/{one}")])


def test_by_its_button_with_all_that_it_has_started(scratch):
    _, panel, processes = deaf_javac_under_way(scratch)
    watch = Window("javac")
    assert "Greeter.java" in watch.labels()
    assert "Running for " in watch.labels(), watch.labels()
    watch.press("Stop")
    watch.is_gone()
    expect_that_all_have_gone(processes)
    _, log = wait_until("the log", scratch.editor_notes)[0]
    assert log.endswith("\n\nat work\n\nStopped.\n"), log
    panel.press("Settings")
    Window("Tarnwick settings").press("Cancel")


def test_by_escape_in_the_panel(scratch):
    _, panel, processes = deaf_javac_under_way(scratch)
    watch = Window("javac")
    panel.activate()
    key("Escape")
    watch.is_gone()
    expect_that_all_have_gone(processes)


def test_who_closes_the_panel_meanwhile_is_asked(scratch):
    program, panel, processes = deaf_javac_under_way(scratch)
    Window("javac")
    panel.close()
    answer(message("javac is still at work. Stop it and leave Tarnwick?"), "No")
    wait_until("the box to go", lambda: len(person.look()) == 2)
    assert program.poll() is None and all(os.path.exists(f"/proc/{one}") for one in processes)
    panel.close()
    answer(message("javac is still at work. Stop it and leave Tarnwick?"), "Yes")
    assert program.wait(person.LIMIT) == 0
    expect_that_all_have_gone(processes)
    assert scratch.messages() == "", scratch.messages()
