"""The debugger in the console, on the real JDK: by toolbar, by function key, by typing."""

import os
import re
import signal

import person
import world
from person import NotSeen, wait_until
from test_console import BANNER, hook_was_here, nothing_left, nothing_left_but, shows
from world import type_line

TIPS = ["run", "Step in", "Step over", "Step out", "Continue", "Show local variables", "Show current object (dump this)",
        "threads", "where", "Display source code (list)", "List breakpoints (clear)", "stop at", "stop in",
        "Clear breakpoint (clear)", "trace methods", "untrace methods", "Show monitors (monitor)", "Set monitor (monitor)",
        "unmonitor", "jdb help", "Custom buttons", "Debugging with Tarnwick", "exit"]


def debugged(scratch, *arguments, launch=True, source="Countdown"):
    """The console of the debugger on a class that the panel has compiled."""
    program, panel = scratch.first_start()
    if not launch:
        panel.press("Exit")
        program.wait(person.LIMIT)
        scratch.change_settings(JDB_LAUNCH="OFF")
        scratch.start()
        panel = person.Window("Tarnwick")
    path = scratch.compile(panel, scratch.source(source + ".java"))
    panel.write(" ".join([world.quoted(path), *arguments]), index=1)
    panel.press("jdb debug")
    return panel, person.Window(source)


# The debugger hands on its program's output character by character, with its own words in between as they come.
BETWEEN = r'(?:\n|>? |Step completed:|"thread=main", |Countdown\.main\(\), .*\n|\d+ +.*\n|main\[1\] |The application exited)*'


def said(scratch, console, words):
    """Waits until the debugged program has said the words, whatever the debugger says meanwhile; gives all of the display."""
    pattern = re.compile(BETWEEN.join(map(re.escape, words)))
    display = ""

    def heard():
        nonlocal display
        display = scratch.saved_display(console)
        return display if pattern.search(display) else None
    try:
        return wait_until(f"{words!r} from the program", heard)
    except NotSeen as e:
        raise NotSeen(f"{e}; the console shows:\n{display}") from None


def picture(scratch, name):
    """Left behind to be looked at."""
    person.screenshot(os.path.join(scratch.project, "build", "e2e", name + ".png"))


def buttons(console):
    """The toolbar's buttons as they stand, from left to right."""
    found = [one for one in console.controls() if one.role == "push button" and one.label in TIPS]
    return [one.label for one in sorted(found, key=lambda one: one.area[0])]


def count(scratch, console, text, wanted):
    """Waits until the text stands in the console so many times."""
    display = ""

    def enough():
        nonlocal display
        display = scratch.saved_display(console)
        return display if display.count(text) >= wanted else None
    try:
        return wait_until(f"{wanted} times {text!r} in the console", enough)
    except NotSeen as e:
        raise NotSeen(f"{e}; the console shows:\n{display}") from None


def test_a_program_is_debugged_by_toolbar(scratch):
    _, console = debugged(scratch, "one", launch=False)
    shows(scratch, console, "> ")
    assert buttons(console) == TIPS, buttons(console)
    picture(scratch, "jdb-toolbar")
    console.press("stop in")
    person.type_text("Countdown.main")
    person.key("Return")
    shows(scratch, console, "Deferring breakpoint Countdown.main")
    console.press("List breakpoints (clear)")
    # Nothing runs before the first button says so.
    assert len(scratch.processes("java")) == 0
    console.press("run")
    shows(scratch, console, "Breakpoint hit: ")
    console.press("Display source code (list)")
    display = shows(scratch, console, "=>         Countdown countdown = new Countdown();")
    assert "stop in Countdown.main\n" in display, display
    console.press("Step over")
    count(scratch, console, "Step completed:", 1)
    console.press("Step over")
    count(scratch, console, "Step completed:", 2)
    console.press("Step in")
    shows(scratch, console, "Countdown.tell(), line=14")
    console.press("Show local variables")
    shows(scratch, console, "left = 3")
    console.press("Show current object (dump this)")
    shows(scratch, console, 'unit: "seconds"')
    console.press("where")
    shows(scratch, console, "[2] Countdown.main (Countdown.java:8)")
    console.press("threads")
    shows(scratch, console, "Group main:")
    picture(scratch, "jdb-debugging")
    console.press("Step out")
    said(scratch, console, "3 seconds")
    count(scratch, console, "Step completed:", 4)
    console.press("Clear breakpoint (clear)")
    person.type_text("Countdown.main")
    person.key("Return")
    shows(scratch, console, "Removed: breakpoint Countdown.main")
    console.press("Continue")
    shows(scratch, console, BANNER)
    said(scratch, console, "Lift off, 1 arguments")
    nothing_left(scratch, "java", "jdb")


def test_a_program_is_debugged_by_function_keys(scratch):
    _, console = debugged(scratch)
    shows(scratch, console, "VM Started: ")
    type_line(console, "stop in Countdown.tell")
    shows(scratch, console, "Deferring breakpoint Countdown.tell")
    person.key("F5")
    shows(scratch, console, "Breakpoint hit: ")
    person.key("F8")
    shows(scratch, console, "left = 3")
    person.key("ctrl+F7")
    shows(scratch, console, "[1] Countdown.tell (Countdown.java:14)")
    person.key("ctrl+F8")
    shows(scratch, console, 'unit: "seconds"')
    # Left for the user to complete: nothing is sent before Return.
    person.key("alt+F7")
    person.type_text("5")
    display = shows(scratch, console, "list 5")
    assert "=>" not in display, display
    person.key("Return")
    shows(scratch, console, "public static void main")
    person.key("F10")
    shows(scratch, console, "Step completed: ")
    person.key("F11")
    count(scratch, console, "Step completed:", 2)
    person.key("F12")
    shows(scratch, console, "Countdown.main(), line=")
    # The empty text of a group sends nothing.
    person.key("shift+F5")
    type_line(console, "exit")
    shows(scratch, console, BANNER)
    nothing_left(scratch, "java", "jdb")


def test_a_program_is_debugged_by_typing(scratch):
    panel, console = debugged(scratch)
    shows(scratch, console, "VM Started: ")
    for line, answer in [("stop in Countdown.main", "Deferring"), ("run", "Nothing suspended."), ("cont", "Breakpoint hit: "),
                         ("locals", "args = instance of java.lang.String[0]"), ("where", "[1] Countdown.main"),
                         ("step", "Step completed: "), ("help", "** command list **")]:
        type_line(console, line)
        if line != "run":  # already under way: what the debugger says to that is its own affair
            shows(scratch, console, answer)
    type_line(console, "exit")
    shows(scratch, console, BANNER)
    nothing_left(scratch, "java", "jdb")
    # A button then ends the console as a key does.
    console.press("where")
    console.is_gone()
    assert panel.shows()


def test_a_console_without_a_debugger_has_no_toolbar(scratch):
    _, panel = scratch.first_start()
    console = scratch.run_class(panel, scratch.compiled(scratch.sample("Clock.java")))
    shows(scratch, console, "The clock runs")
    assert buttons(console) == []
    console.press("Help")
    assert not console.control("jdb Help").enabled
    person.key("Escape")
    person.key("Escape")


def test_the_help_entry_of_the_menu_asks_the_debugger(scratch):
    _, console = debugged(scratch)
    shows(scratch, console, "VM Started: ")
    console.press("Help")
    console.press("jdb Help")
    shows(scratch, console, "** command list **")


def test_the_function_keys_of_every_group_type_their_texts(scratch):
    program, panel = scratch.first_start()
    panel.press("Exit")
    program.wait(person.LIMIT)
    # Each key tells its group and itself; a blank at the end leaves the text in the line.
    groups = "!".join(";".join(f"g{group}f{key} " for key in range(5, 13)) for group in range(8))
    scratch.change_settings(FUNCTIONKEYS=groups, JDB_LAUNCH="OFF")
    scratch.start()
    panel = person.Window("Tarnwick")
    path = scratch.compile(panel, scratch.source("Countdown.java"))
    panel.write(world.quoted(path), index=1)
    panel.press("jdb debug")
    console = person.Window("Countdown")
    shows(scratch, console, "> ")
    console.activate()
    wanted = "> "
    # Ctrl and Alt without Shift, group 6, never come to a window here: with a function key the X server keeps them.
    for group, modifiers in {0: "", 1: "shift+", 2: "ctrl+", 3: "ctrl+shift+", 4: "alt+", 5: "alt+shift+",
                             7: "ctrl+alt+shift+"}.items():
        for key in range(5, 13):
            person.key(f"{modifiers}F{key}")
            wanted += f"g{group}f{key} "
    display = scratch.saved_display(console)
    assert wanted + "\n" in display, display


def both_run(scratch, console):
    shows(scratch, console, "VM Started: ")
    wait_until("the debugger and its program", lambda: scratch.processes("jdb") and scratch.processes("java"))


def test_closing_the_console_ends_the_debugger_and_its_program(scratch):
    panel, console = debugged(scratch)
    both_run(scratch, console)
    console.close()
    console.is_gone()
    nothing_left_but(scratch, panel.process)


def test_a_killed_console_leaves_no_debugger(scratch):
    panel, console = debugged(scratch)
    both_run(scratch, console)
    os.kill(console.process, signal.SIGKILL)
    nothing_left_but(scratch, panel.process)


def without_panel(scratch):
    """A debugger whose panel has been killed."""
    panel, console = debugged(scratch)
    both_run(scratch, console)
    os.kill(panel.process, signal.SIGKILL)
    scratch.running[0].wait(person.LIMIT)
    panel.is_gone()
    type_line(console, "stop in Countdown.tell")
    shows(scratch, console, "Deferring breakpoint Countdown.tell")
    return console


def test_the_debugger_outlives_the_panel_and_ends_with_its_console(scratch):
    console = without_panel(scratch)
    console.close()
    console.is_gone()
    nothing_left_but(scratch)


def test_a_killed_console_whose_panel_is_gone_leaves_no_debugger(scratch):
    os.kill(without_panel(scratch).process, signal.SIGKILL)
    nothing_left_but(scratch)


def running_with_a_hook(scratch):
    """A debugger whose program runs, has a shutdown hook and a process that hides from it."""
    panel, console = debugged(scratch, source="Stubborn")
    both_run(scratch, console)
    person.key("F5")
    shows(scratch, console, "started")
    assert len(scratch.processes("sleep")) == 1 and not hook_was_here(scratch)
    return panel, console


def test_closing_the_console_lets_the_hooks_of_a_debugged_program_run(scratch):
    panel, console = running_with_a_hook(scratch)
    console.close()
    console.is_gone()
    nothing_left_but(scratch, panel.process)
    assert hook_was_here(scratch)


def test_killing_the_console_lets_the_hooks_of_a_debugged_program_run(scratch):
    panel, console = running_with_a_hook(scratch)
    os.kill(console.process, signal.SIGKILL)
    nothing_left_but(scratch, panel.process)
    assert hook_was_here(scratch)


def test_a_debugger_that_is_killed_does_not_leave_a_program_that_runs(scratch):
    panel, console = running_with_a_hook(scratch)
    os.kill(scratch.processes("jdb")[0], signal.SIGKILL)
    shows(scratch, console, BANNER)
    console.close()
    console.is_gone()
    nothing_left_but(scratch, panel.process)


def test_a_debugger_that_is_killed_leaves_no_program(scratch):
    panel, console = debugged(scratch)
    both_run(scratch, console)
    # Stopped at its start, the program does nothing by itself; it goes with the console at the latest.
    os.kill(scratch.processes("jdb")[0], signal.SIGKILL)
    shows(scratch, console, BANNER)
    console.close()
    console.is_gone()
    nothing_left_but(scratch, panel.process)
