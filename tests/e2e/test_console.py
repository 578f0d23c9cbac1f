"""Programs in the console, on the real JDK."""

import os
import re
import signal
import subprocess
import time

import person
import world
from person import NotSeen, wait_until
from world import type_line

BANNER = "****  Tarnwick:  E n d   o f   j a v a   e x e c u t i o n   ****"


def shows(scratch, console, text):
    """Waits until the console's saved display holds the text; gives all of it."""
    display = ""

    def saved():
        nonlocal display
        display = scratch.saved_display(console)
        return display if text in display else None
    try:
        return wait_until(f"{text!r} in the console", saved)
    except NotSeen as e:
        raise NotSeen(f"{e}; the console shows:\n{display}") from None


def started(scratch, path):
    _, panel = scratch.first_start()
    return panel, scratch.run_class(panel, scratch.compiled(path))


def nothing_left(scratch, *names):
    for name in names:
        wait_until(f"the end of {name}", lambda name=name: not scratch.processes(name))


def nothing_left_but(scratch, *others):
    """Waits until nothing runs in this world but the others. What would be left behind never ends by itself."""
    left = set()

    def gone():
        nonlocal left
        left = set(scratch.processes()).difference(others)
        return not left
    try:
        wait_until("the end of all that was started", gone)
    except NotSeen as e:
        raise NotSeen(f"{e}; left behind: {[command_line(process) for process in left]}") from None


def command_line(process):
    try:
        with open(f"/proc/{process}/cmdline", encoding="utf-8", errors="replace") as arguments:
            return arguments.read().split("\0")
    except OSError:
        return process


def test_interactive_program_is_asked_and_answers(scratch):
    panel, console = started(scratch, scratch.sample("Greeter.java"))
    shows(scratch, console, "What is your name? ")
    type_line(console, "Ada")
    shows(scratch, console, "Hello, Ada!")
    type_line(console, "Grüße an Zoë 日本")
    display = shows(scratch, console, "backwards")
    assert "What is your name? Ada\n" in display, display
    assert '> Grüße an Zoë 日本\n' in display, display
    assert 'You said "Grüße an Zoë 日本", backwards "本日 ëoZ na eßürG".' in display, display

    type_line(console, "bye")
    display = shows(scratch, console, BANNER)
    assert "Good bye, Ada.\n" in display and "Lines answered: 1\n" in display, display
    nothing_left(scratch, "java")
    # The console shows until somebody has seen it; the next key closes it.
    time.sleep(1)
    assert console.shows()
    console.activate()
    person.key("space")
    console.is_gone()
    assert panel.control("java").enabled


def test_arguments_behind_the_class_reach_the_program(scratch):
    path = scratch.compiled(scratch.sample("Arguments.java"))
    _, panel = scratch.first_start()
    panel.write(f'{world.quoted(path)} one "two words"', index=1)
    panel.press("java")
    console = person.Window("Arguments")
    display = shows(scratch, console, BANNER)
    assert "Arguments: 2\n1: one\n2: two words\n" in display, display


def test_output_is_blue_errors_are_red_and_the_banner_is_green(scratch):
    _, console = started(scratch, scratch.source("Colours.java"))
    shows(scratch, console, "part of a line")
    assert has_colour(console, "#0000FF") and has_colour(console, "#B00000")
    assert not has_colour(console, "#00FF00")
    type_line(console, "")
    shows(scratch, console, BANNER)
    wait_until("the green banner", lambda: has_colour(console, "#00FF00"))


def has_colour(console, colour):
    """Whether glyphs of this colour show: pixels that are the colour itself, where no smoothing mixed in the paper."""
    left, top, width, height = console.controls()[0].area
    console.activate()
    colours = subprocess.run(["import", "-silent", "-window", "root", "-crop", f"{width}x{height}+{left}+{top}",
                              "-depth", "8", "-format", "%c", "histogram:info:-"],
                             stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True, check=True, timeout=60).stdout
    return sum(int(count) for count in re.findall(rf"(\d+): \([^)]*\) {colour}\b", colours)) >= 20


def test_program_without_output_leaves_no_console(scratch):
    program, panel = scratch.first_start()
    path = scratch.compiled(scratch.source("Silent.java"))
    panel.write(world.quoted(path), index=1)
    panel.press("java")
    wait_until("the program's run", lambda: os.path.exists(os.path.join(scratch.work, "silent-was-here")))
    wait_until("the end of the console", lambda: scratch.processes("tarnwick") == [program.pid])
    assert [one.name for one in person.look()] == ["Tarnwick"]


def test_a_program_that_ends_under_the_file_dialog_leaves_it_open(scratch):
    panel, console = started(scratch, scratch.source("Patient.java"))
    console.activate()
    console.press("File")
    console.press("Save current display to file")
    dialog = person.Window("Save as")
    open(os.path.join(scratch.work, "go"), "w", encoding="ascii").close()
    nothing_left(scratch, "java")
    # A program that said nothing takes its console along, but not from under somebody's hands.
    time.sleep(1)
    assert dialog.shows() and console.shows()
    dialog.activate()
    person.key("Escape")
    dialog.is_gone()
    wait_until("the message", lambda: any("Can't open output file." in child.name for one in person.look()
                                          for child in one.all()))
    person.key("Return")
    console.is_gone()
    assert scratch.processes("tarnwick") == [panel.process]


def test_closing_the_console_stops_the_program(scratch):
    panel, console = started(scratch, scratch.sample("Clock.java"))
    shows(scratch, console, "The clock runs")
    assert len(scratch.processes("java")) == 1
    console.close()
    console.is_gone()
    nothing_left_but(scratch, panel.process)
    assert panel.shows()


def test_exit_in_the_menu_stops_the_program(scratch):
    panel, console = started(scratch, scratch.sample("Clock.java"))
    shows(scratch, console, "The clock runs")
    console.press("File")
    console.press("Exit")
    console.is_gone()
    nothing_left_but(scratch, panel.process)


def test_closing_the_console_stops_what_the_program_started(scratch):
    panel, console = started(scratch, scratch.source("Parent.java"))
    shows(scratch, console, "child ")
    assert len(scratch.processes("java")) == 1 and len(scratch.processes("sleep")) == 1
    console.close()
    console.is_gone()
    nothing_left_but(scratch, panel.process)


def test_killed_console_leaves_nothing(scratch):
    program, panel = scratch.first_start()
    console = scratch.run_class(panel, scratch.compiled(scratch.source("Parent.java")))
    shows(scratch, console, "child ")
    assert console.process != program.pid
    os.kill(console.process, signal.SIGKILL)
    nothing_left_but(scratch, program.pid)
    console.is_gone()
    assert panel.control("java").enabled


def stubborn(scratch):
    """A console whose program has a shutdown hook, and a process that hides from it."""
    panel, console = started(scratch, scratch.source("Stubborn.java"))
    shows(scratch, console, "started")
    assert len(scratch.processes("java")) == 1 and len(scratch.processes("sleep")) == 1
    assert not hook_was_here(scratch)
    return panel, console


def hook_was_here(scratch):
    return os.path.exists(os.path.join(scratch.work, "hook-was-here"))


def test_closing_the_console_lets_hooks_run_and_leaves_nothing_in_other_sessions(scratch):
    panel, console = stubborn(scratch)
    console.close()
    console.is_gone()
    nothing_left_but(scratch, panel.process)
    assert hook_was_here(scratch)


def test_killing_the_console_lets_hooks_run_and_leaves_nothing_in_other_sessions(scratch):
    panel, console = stubborn(scratch)
    os.kill(console.process, signal.SIGKILL)
    nothing_left_but(scratch, panel.process)
    assert hook_was_here(scratch)


def test_killing_the_console_after_the_panel_lets_hooks_run_and_leaves_nothing(scratch):
    panel, console = stubborn(scratch)
    os.kill(panel.process, signal.SIGKILL)
    scratch.running[0].wait(person.LIMIT)
    panel.is_gone()
    assert len(scratch.processes("java")) == 1, "a console needs no panel"
    os.kill(console.process, signal.SIGKILL)
    nothing_left_but(scratch)
    assert hook_was_here(scratch)


def test_a_console_of_a_few_pixels_does_no_harm(scratch):
    _, console = started(scratch, scratch.sample("Clock.java"))
    shows(scratch, console, "The clock runs")
    # What GTK says of the windows that have gone is another matter.
    before = len(scratch.messages())
    for step, size in enumerate([(300, 40), (60, 30), (1, 1), (3, 200), (200, 3), (600, 400)]):
        resize(scratch, console, size, 50 + 20 * step)
    written = scratch.messages()[before:]
    assert "CRITICAL" not in written, written
    shows(scratch, console, "The clock runs")


def resize(scratch, window, size, left):
    """Gives the window a size, as far as it takes it, and a place where it has not stood; waits until its program knows."""
    number = window.x_number()
    person.xdotool("windowsize", number, *size)
    # The window manager takes one request behind the other: when the window has moved, its size has changed.
    person.xdotool("windowmove", "--sync", number, left, 100)
    scratch.listens(window)


def test_console_outlives_the_panel(scratch):
    program, panel = scratch.first_start()
    console = scratch.run_class(panel, scratch.compiled(scratch.sample("Greeter.java")))
    shows(scratch, console, "What is your name? ")
    panel.activate()
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0
    type_line(console, "Ada")
    shows(scratch, console, "Hello, Ada!")
    console.close()
    console.is_gone()
    nothing_left_but(scratch)


def test_two_consoles_run_side_by_side(scratch):
    _, panel = scratch.first_start()
    greeter = scratch.run_class(panel, scratch.compiled(scratch.sample("Greeter.java")))
    clock = scratch.run_class(panel, scratch.compiled(scratch.sample("Clock.java")))
    shows(scratch, clock, "The clock runs")
    clock.close()
    clock.is_gone()
    type_line(greeter, "Ada")
    shows(scratch, greeter, "Hello, Ada!")
    assert len(scratch.processes("java")) == 1
