"""The debugger beside a program that reads its input, on the real JDK."""

import os
import shlex
import signal

import person
import world
from person import Window, wait_until
from test_console import BANNER, nothing_left_but, shows
from test_jdb import picture
from test_newer_run import tools_of
from world import type_line

# As the table of sockets writes the addresses of this computer alone.
LOOPBACK = {"0100007F", "0000000000000000FFFF00000100007F", "00000000000000000000000001000000"}
LISTENING = "0A"


def panel_for_input(scratch):
    """The panel whose user has chosen that a debugged program has its own input, and the class of such a program."""
    _, panel = scratch.first_start()
    panel.press("Settings")
    settings = Window("Tarnwick settings")
    settings.control("jdb", "page tab").click()
    settings.press("The program has its own input and output")
    picture(scratch, "jdb-page")
    settings.press("OK")
    settings.is_gone()
    assert scratch.settings()["JDB_OWN_STREAMS"] == "ON"
    return panel, scratch.compile(panel, scratch.source("Asker.java"))


def debug(scratch, panel, path):
    panel.activate()
    panel.write(world.quoted(path), index=1)
    panel.press("jdb debug")
    console = Window("Asker")
    shows(scratch, console, "VM Started:")
    wait_until("the debugger and its program", lambda: scratch.processes("jdb") and scratch.processes("java"))
    return console


def goes(console, label):
    """What the choice's name is to who cannot see that it stands behind "Input goes"."""
    wait_until(f"the choice {label!r}", lambda: console.control("Input goes " + label, "radio button").checked)


def sockets_of(process):
    found = set()
    try:
        for name in os.listdir(f"/proc/{process}/fd"):
            target = os.readlink(f"/proc/{process}/fd/{name}")
            if target.startswith("socket:["):
                found.add(target[len("socket:["):-1])
    except OSError:
        pass
    return found


def listening(processes):
    """The addresses, without their ports, on which these processes wait for others."""
    own = set().union(*(sockets_of(process) for process in processes), set())
    found = set()
    for table in ("tcp", "tcp6"):
        with open(f"/proc/net/{table}", encoding="ascii") as lines:
            for line in list(lines)[1:]:
                fields = line.split()
                if fields[3] == LISTENING and fields[9] in own:
                    found.add(fields[1].split(":")[0])
    return found


def walk_through(scratch, panel, path):
    console = debug(scratch, panel, path)
    goes(console, "to jdb")
    type_line(console, "stop in Asker.greet")
    shows(scratch, console, "Deferring breakpoint Asker.greet")
    type_line(console, "run")
    shows(scratch, console, "What is your name?")
    console.activate()
    person.key("ctrl+Tab")
    goes(console, "to program")
    type_line(console, "Grüße, Zoë")
    shows(scratch, console, "Breakpoint hit: ")
    # A button asks the debugger, whoever gets what is typed; the choice stays.
    console.press("Show local variables")
    shows(scratch, console, 'name = "')
    goes(console, "to program")
    picture(scratch, "jdb-input")
    console.press("Continue")
    shows(scratch, console, "Hello, Grüße, Zoë!")
    console.press("Input goes to jdb")
    goes(console, "to jdb")
    type_line(console, "clear Asker.greet")
    shows(scratch, console, "Removed: breakpoint Asker.greet")
    console.press("Input goes to program")
    goes(console, "to program")
    type_line(console, "Ada")
    display = shows(scratch, console, "Hello, Ada!")
    assert "Unrecognized command" not in display, display
    console.activate()
    person.key("ctrl+d")
    display = shows(scratch, console, BANNER)
    assert "Nobody else." in display, display
    person.key("Return")
    console.is_gone()
    nothing_left_but(scratch, panel.process)


def panel_anew(scratch, panel, tools):
    """The panel, started again with the tools of another folder."""
    panel.press("Exit")
    panel.is_gone()
    scratch.change_settings(JAVA_PATH=tools)
    scratch.start()
    return Window("Tarnwick")


def debugged_by(scratch, version):
    tools = tools_of(version)
    panel, path = panel_for_input(scratch)
    walk_through(scratch, panel_anew(scratch, panel, tools), path)


def test_a_program_that_reads_its_input_is_debugged_17(scratch):
    debugged_by(scratch, 17)


def test_a_program_that_reads_its_input_is_debugged_25(scratch):
    debugged_by(scratch, 25)


def jdk_with_a_slow_java(scratch):
    """The tools' folder of a JDK whose java takes its time, so that the debugger waits long enough to be looked at."""
    real = os.path.dirname(world.real_javac())
    tools = os.path.join(scratch.root, "langsam", "bin")
    os.makedirs(tools)
    for name in os.listdir(real):
        if name != "java":
            os.symlink(os.path.join(real, name), os.path.join(tools, name))
    with open(os.path.join(tools, "java"), "w", encoding="utf-8") as out:
        out.write(f'#!/bin/sh\nsleep 5\nexec {shlex.quote(os.path.join(real, "java"))} "$@"\n')
    os.chmod(os.path.join(tools, "java"), 0o755)
    return tools + "/"


def test_the_debugger_waits_on_this_computer_alone(scratch):
    panel, path = panel_for_input(scratch)
    panel = panel_anew(scratch, panel, jdk_with_a_slow_java(scratch))
    panel.activate()
    panel.write(world.quoted(path), index=1)
    panel.press("jdb debug")
    seen = set()

    def waited():
        seen.update(listening(scratch.processes("jdb") + scratch.processes("java")))
        return seen
    wait_until("a debugger that waits", waited)
    console = Window("Asker")
    shows(scratch, console, "VM Started:")
    waited()
    assert seen <= LOOPBACK, seen
    console.close()
    console.is_gone()
    nothing_left_but(scratch, panel.process)


def test_however_one_of_the_two_ends_nothing_is_left(scratch):
    panel, path = panel_for_input(scratch)
    ends = {
        "close": lambda console: console.close(),
        "exit": lambda console: type_line(console, "exit"),
        "no jdb": lambda console: os.kill(scratch.processes("jdb")[0], signal.SIGKILL),
        "no java": lambda console: os.kill(scratch.processes("java")[0], signal.SIGKILL),
        "no console": lambda console: os.kill(console.process, signal.SIGKILL),
    }
    for name, end in ends.items():
        console = debug(scratch, panel, path)
        end(console)
        if name.startswith("no j") or name == "exit":
            # While the banner shows, the two have gone.
            shows(scratch, console, BANNER)
            wait_until(f"the end of both after {name!r}", lambda: not scratch.processes("jdb") + scratch.processes("java"))
            console.close()
        console.is_gone()
        nothing_left_but(scratch, panel.process)
