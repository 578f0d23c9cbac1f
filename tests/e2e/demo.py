#!/usr/bin/env python3
"""Walks through the program on the samples with the real JDK, and leaves numbered screenshots in build/demo/.

usage: demo.py PROJECT     needs a display with a window manager (scripts/with-display.sh)
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time

import person
import test_jar
import world
from person import Window, wait_until


class Album:
    """Screenshots in their order, each with a line on what it shows."""

    def __init__(self, folder):
        shutil.rmtree(folder, ignore_errors=True)
        os.makedirs(folder)
        self.folder = folder
        self.lines = []

    def take(self, name, what):
        time.sleep(0.6)
        file = f"{len(self.lines) + 1:02}-{name}.png"
        person.screenshot(os.path.join(self.folder, file))
        self.lines.append(f"{file}: {what}")
        print(self.lines[-1], flush=True)
        with open(os.path.join(self.folder, "README.txt"), "w", encoding="utf-8") as out:
            out.write("\n".join(self.lines) + "\n")


def paint_background():
    """Windows stand out better before something calmer than black."""
    subprocess.run(["xsetroot", "-solid", "#6f8fa3"], check=True, timeout=30, stdin=subprocess.DEVNULL)


def use_real_editor(scratch):
    """The editor for plain text that a fresh machine gets, in the place of the tests' own."""
    with open(os.path.join(scratch.home, ".config", "mimeapps.list"), "w", encoding="utf-8") as out:
        out.write("[Default Applications]\ntext/plain=org.xfce.mousepad.desktop\n")
    return os.path.exists("/usr/share/applications/org.xfce.mousepad.desktop")


def put(window, left, top, width=None, height=None):
    """Windows side by side hide nothing of one another."""
    person.xdotool("windowmove", window.x_number(), left, top)
    if width:
        person.xdotool("windowsize", window.x_number(), width, height)
    time.sleep(0.3)


def first_start(scratch, album):
    scratch.start()
    welcome = Window("Welcome to Tarnwick")
    album.take("welcome", "the first start: Welcome")
    welcome.press("OK")
    settings = Window("Tarnwick settings")
    album.take("settings", f"the settings dialog, with the JDK found: {settings.field().text}")
    settings.press("OK")
    panel = Window("Tarnwick")
    put(panel, 20, 60)
    album.take("panel", "the panel after the first start; the settings are saved")
    return panel


def compile_samples(scratch, album, panel):
    broken = scratch.sample("Broken.java")
    known = {one.name for one in person.look()}
    panel.write(world.quoted(broken))
    album.take("source-named", "a source with an error is named in the field; the folder has blanks and letters of all kinds")
    panel.press("javac")
    shown = wait_until("the log in an editor", lambda: next(
        (one.name for one in person.look() if one.name not in known), None))
    editor = Window(shown)
    put(editor, 20, 560, 1240, 300)
    album.take("compiler-message", "\"javac\" on it: the compiler's message opens in the editor")
    editor.close()
    editor.is_gone()
    compiled = scratch.compile(panel, scratch.sample("Greeter.java"))
    album.take("compiled", f"a good source: {os.path.basename(compiled)} is there, and no log opens")
    return compiled


def talk(scratch, album, panel, compiled):
    console = scratch.run_class(panel, compiled)
    put(console, 500, 60)
    wait_until("the question", lambda: "What is your name? " in scratch.saved_display(console))
    album.take("console", "\"java\" on the class: a console, and the program's question, a line not yet ended, in blue")
    person.type_text("Ada Lovelace")
    album.take("typing", "the answer is typed behind it, in black")
    person.key("Return")
    wait_until("the greeting", lambda: "Hello, Ada Lovelace!" in scratch.saved_display(console))
    album.take("answer", "Return sends the line, and the program answers")
    world.type_line(console, "Ça va, Zoë από Αθήνα?")
    wait_until("the answer", lambda: "backwards" in scratch.saved_display(console))
    album.take("standard-error", "a line with letters of all kinds; the remark on standard error is red")
    world.type_line(console, "bye")
    wait_until("the banner", lambda: "E n d   o f   j a v a" in scratch.saved_display(console))
    album.take("end", "the program has ended: the green banner")
    console.activate()
    person.key("space")
    console.is_gone()
    album.take("console-gone", "the next key closes the console")


def stop_clock(scratch, album, panel):
    console = scratch.run_class(panel, scratch.compile(panel, scratch.sample("Clock.java")))
    put(console, 500, 60)
    time.sleep(3)
    album.take("clock", f"a program that never ends; java processes: {len(scratch.processes('java'))}")
    console.close()
    console.is_gone()
    wait_until("the end of java", lambda: not scratch.processes("java"))
    album.take("clock-stopped", f"its console is closed by the close box; java processes: {len(scratch.processes('java'))}")


def pack(scratch, album, panel):
    panel.activate()
    next(one for one in panel.controls() if one.role == "page tab" and one.label == "Utilities").click()
    panel.press("jar")
    dialog = Window("jar")
    put(dialog, 500, 60)
    archive = os.path.join(scratch.work, "greeter.jar")
    dialog.press("Create new archive")
    world.answer_file_dialog(archive, dialog)
    dialog.write(scratch.work, test_jar.BASE)
    dialog.write("*.class", test_jar.FILES)
    dialog.write("Greeter", test_jar.MAIN_CLASS)
    album.take("jar", "\"jar\": all classes go into a new archive, whose manifest names the main class")
    dialog.press("Create archive")
    dialog.is_gone()
    wait_until("the archive", lambda: test_jar.is_archive(archive) and not scratch.processes("jar"), 60)
    java = os.path.join(os.path.dirname(world.real_javac()), "java")
    said = subprocess.run([java, "-jar", archive], input="Ada\nbye\n", check=True, timeout=60, text=True,
                          env=scratch.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
    album.take("jar-started", f"the archive starts with java -jar, and says: {said.splitlines()[0]}")


def walk(scratch, album):
    if not use_real_editor(scratch):
        print("Mousepad is not installed; the log opens in another editor, or in none.")
    panel = first_start(scratch, album)
    compiled = compile_samples(scratch, album, panel)
    talk(scratch, album, panel, compiled)
    stop_clock(scratch, album, panel)
    pack(scratch, album, panel)
    panel.press("Exit")
    panel.is_gone()


def main():
    project = os.path.abspath(sys.argv[1])
    album = Album(os.path.join(project, "build", "demo"))
    runtime = tempfile.mkdtemp(prefix="tarnwick-bus-")
    try:
        world.start_bus(os.path.join(runtime, "run"))
        paint_background()
        # Letters that the fonts of a fresh machine can show.
        with world.World(project, letters="Αθήνα") as scratch:
            try:
                walk(scratch, album)
            except BaseException:
                album.take("stuck", "here the demo could not go on")
                raise
    finally:
        shutil.rmtree(runtime, ignore_errors=True)
    print(f"{len(album.lines)} pictures in {album.folder}")


main()
