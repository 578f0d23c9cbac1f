#!/usr/bin/env python3
"""Takes the pictures of the user's guide anew, on the samples with the real JDK, and puts them into guide/.

usage: guide_pictures.py PROJECT [FOLDER]     needs a display with a window manager (scripts/with-display.sh)
"""

import os
import shutil
import sys
import tempfile

import person
import test_jar
import test_projects
import world
from camera import Camera
from person import Window, wait_until


def turn_to(settings, label):
    next(one for one in settings.controls() if one.role == "page tab" and one.label == label).click()


def take_settings(camera, settings):
    camera.take(settings, "tools")
    turn_to(settings, "javac")
    settings.control("Serialization")
    camera.take(settings, "javac")
    for label, name in (("java", "java"), ("jdb", "jdb"), ("Sourcecode editor", "editor"), ("Paths", "paths")):
        turn_to(settings, label)
        camera.take(settings, name)


def take_new_file(camera, panel):
    panel.press("New")
    new = Window("Create new .java/.html file")
    person.key("Down")
    camera.take(new, "new")
    new.press("Add new template ..")
    template = Window("Add template for new sourcefiles")
    camera.take(template, "template")
    template.press("Cancel")
    template.is_gone()
    new.press("Cancel")
    new.is_gone()


def take_messages(scratch, camera, panel):
    panel.press("Settings")
    settings = Window("Tarnwick settings")
    settings.press("Messages window")
    settings.press("OK")
    settings.is_gone()
    panel.write(world.quoted(scratch.sample("Broken.java")))
    panel.press("javac")
    messages = Window("Messages - Tarnwick")
    wait_until("the sum", lambda: "error" in messages.labels())
    camera.take(messages, "messages")
    messages.close()
    messages.is_gone()


def take_console(scratch, camera, panel):
    console = scratch.run_class(panel, scratch.compile(panel, scratch.sample("Greeter.java")))
    for expected, line in (("What is your name? ", "Ada Lovelace"), ("Hello, Ada Lovelace!", "Ça va, Zoë από Αθήνα?"),
                           ("backwards", "bye")):
        wait_until(expected, lambda words=expected: words in scratch.saved_display(console))
        world.type_line(console, line)
    wait_until("the banner", lambda: "E n d   o f   j a v a" in scratch.saved_display(console))
    camera.take(console, "console")
    console.close()
    console.is_gone()


def take_debugger(scratch, camera, panel):
    path = scratch.compile(panel, scratch.source("Countdown.java"))
    panel.write(world.quoted(path), index=1)
    panel.press("jdb debug")
    console = Window("Countdown")

    def shows(words, times=1):
        wait_until(words, lambda: scratch.saved_display(console).count(words) >= times)
    shows("main[1] ")
    world.type_line(console, "stop in Countdown.tell")
    shows("breakpoint Countdown.tell")
    console.press("Continue")
    shows("Breakpoint hit:")
    prompts = scratch.saved_display(console).count("main[1] ")
    for count, button in enumerate(("Show local variables", "Show current object (dump this)", "where"), start=1):
        console.press(button)
        shows("main[1] ", prompts + count)
    camera.take(console, "debugger")
    console.close()
    console.is_gone()


def take_project(scratch, camera, panel):
    for name in ("Shop.java", "Till.java", "Receipt.java"):
        with open(os.path.join(scratch.work, name), "w", encoding="utf-8") as out:
            main = " public static void main(String[] words) { } " if name == "Shop.java" else ""
            out.write(f"public class {name.removesuffix('.java')} {{{main}}}\n")
    panel.press("Projectview")
    panel.press("New")
    world.answer_file_dialog(os.path.join(scratch.work, "Shop.twp"), panel)
    files = Window(test_projects.FILES)
    for name in ("Shop.java", "Till.java"):
        files.control(name).click()
        files.press("Add selected files to project")
    camera.take(files, "files")
    files.press("OK")
    files.is_gone()
    test_projects.compile_changed(scratch, panel, "Shop.class", "Till.class")
    camera.take(panel, "project")


def take_jar(scratch, camera, panel):
    turn_to(panel, "Utilities")
    panel.press("jar")
    dialog = Window("jar")
    dialog.press("Create new archive")
    world.answer_file_dialog(os.path.join(scratch.work, "Shop.jar"), dialog)
    dialog.press(test_jar.ALL_FILES)
    camera.take(dialog, "jar")
    dialog.press("Cancel")
    dialog.is_gone()


def take_javadoc(scratch, camera, panel):
    panel.press("javadoc")
    dialog = Window("javadoc")
    dialog.press("Add to the Java files")
    world.answer_file_dialog(os.path.join(scratch.work, "Till.java"), dialog)
    camera.take(dialog, "javadoc")
    dialog.press("Cancel")
    dialog.is_gone()


def take_shortcut(camera, panel):
    turn_to(panel, "Utilities")
    panel.press("Shortcut")
    dialog = Window("Create shortcut to Java application")
    dialog.press("Create shortcut on desktop")
    dialog.press("Execute under Tarnwick's control")
    camera.take(dialog, "shortcut")
    dialog.press("Close")
    dialog.is_gone()


def walk(scratch, camera):
    scratch.start()
    Window("Welcome to Tarnwick").press("OK")
    settings = Window("Tarnwick settings")
    take_settings(camera, settings)
    settings.press("OK")
    panel = Window("Tarnwick")
    panel.field().click()
    camera.take(panel, "panel")
    panel.press("Wide layout")
    camera.take(panel, "wide")
    panel.press("Tall layout")
    take_new_file(camera, panel)
    take_messages(scratch, camera, panel)
    take_console(scratch, camera, panel)
    take_debugger(scratch, camera, panel)
    take_project(scratch, camera, panel)
    take_jar(scratch, camera, panel)
    take_javadoc(scratch, camera, panel)
    take_shortcut(camera, panel)
    panel.press("Exit")
    panel.is_gone()


def main():
    project = os.path.abspath(sys.argv[1])
    camera = Camera(sys.argv[2] if len(sys.argv) > 2 else os.path.join(project, "guide"), "guide-")
    runtime = tempfile.mkdtemp(prefix="tarnwick-bus-")
    try:
        world.start_bus(os.path.join(runtime, "run"))
        # Letters that the fonts of a fresh machine can show.
        with world.World(project, letters="Αθήνα") as scratch:
            walk(scratch, camera)
    finally:
        shutil.rmtree(runtime, ignore_errors=True)


main()
