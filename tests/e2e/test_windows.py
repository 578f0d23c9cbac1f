"""The way through the Windows program, under Wine, with stand-ins for the JDK's tools."""

import os
import signal

import person
import world
from person import Window, wait_until
from test_console import BANNER, has_colour, nothing_left, shows
from wine_world import windows_path


def test_first_start_welcomes_asks_for_the_jdk_and_saves_all_settings(scratch):
    program = scratch.start()
    welcome = Window("Welcome to Tarnwick")
    words = welcome.labels()
    assert "You seem to be using Tarnwick for the first time,\nas I can't find any data from a previous session." in words
    assert 'Look for a file "javac.exe" in a "bin" subfolder of the JDK installation tree' in words
    assert 'enter it in the field "Tools .exe directory".' in words
    assert not os.path.exists(scratch.configuration)
    scratch.picture("welcome")
    welcome.press("OK")

    settings = Window("Tarnwick settings")
    assert settings.control("Tools .exe directory") and settings.control("Notepad").checked
    settings.write(windows_path(scratch.jdk))
    scratch.picture("settings")
    settings.press("OK")

    panel = Window("Tarnwick")
    scratch.picture("panel")
    with open(scratch.configuration, "rb") as file:
        rows = file.read().decode("cp1252").split("\r\n")
    assert rows[:2] == [f"REM  This configuration file was written by {world.VERSION}", "REM"], rows[:2]
    assert rows[-1] == "" and len(rows) == 2 + 111 + 1 and "\n" not in "".join(rows), len(rows)
    assert scratch.settings()["JAVA_PATH"] == windows_path(scratch.jdk) + "\\"
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def test_second_start_goes_straight_to_the_panel(scratch):
    program, panel = scratch.first_start()
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0
    program = scratch.start()
    panel = Window("Tarnwick")
    assert [one.name for one in person.look()] == ["Tarnwick"]
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def test_compiler_gets_its_arguments_and_its_errors_are_shown(scratch):
    _, panel = scratch.first_start()
    source = scratch.made("Größe.java", b"class Size {}\n")
    scratch.play("err Größe.java:7: error: ';' expected", "exit 1")
    panel.write(world.quoted(source))
    panel.press("javac")
    log = Window("Tarnwick_LOG1.tmp - Notepad")
    assert scratch.recorded()[-1] == source, scratch.recorded()
    text = log.field().text
    assert f'"{source}"' in text and "Größe.java:7: error: ';' expected" in text, text
    scratch.picture("log")
    log.close()
    log.is_gone()
    assert panel.control("javac").enabled


def test_silent_compiler_shows_nothing(scratch):
    _, panel = scratch.first_start()
    scratch.play("exit 0")
    panel.write(world.quoted(scratch.made("Quiet.java", b"class Quiet {}\n")))
    panel.press("javac")
    assert scratch.recorded()
    nothing_left(scratch, "javac.exe")
    wait_until("the panel", lambda: panel.control("javac").enabled)
    wait_until("the panel alone", lambda: [one.name for one in person.look()] == ["Tarnwick"])


def test_tool_has_a_console_window_for_as_long_as_it_runs(scratch):
    _, panel = scratch.first_start()
    source = scratch.made("Slow.java", b"class Slow {}\n")
    scratch.play("sleep 6000")
    panel.write(world.quoted(source))
    panel.press("javac")

    def command():
        return next((one for one in person.look() if one.name.startswith("javac ")), None)
    seen = wait_until("the tool's console", command)
    assert source in seen.name and not seen.iconic, (seen.name, seen.iconic)
    scratch.picture("tool-console")
    wait_until("the end of the tool's console", lambda: command() is None)
    wait_until("the panel", lambda: panel.control("javac").enabled)


def minimised(scratch):
    """The console window that the system gives to the program itself, once it is an icon."""
    def icon():
        own = scratch.own_console("java.exe")
        return own if own and own.iconic else None
    return wait_until("the program's own console, minimised", icon)


def test_program_in_the_console_is_asked_and_answers(scratch):
    _, panel = scratch.first_start()
    console = scratch.run_class(panel, "Greeter", "out Wie heißt du?", "err Störung", "readline", "out bye")
    # Until then it may have the keyboard.
    own = minimised(scratch)
    shows(scratch, console, "Störung")
    assert own.name != own.name.lower(), "in letters of mixed case, which tell it from all other windows"
    assert sorted(one.name for one in person.look()) == sorted(["Tarnwick", "Greeter", own.name])
    assert has_colour(console, "#0000FF") and has_colour(console, "#FF0000") and not has_colour(console, "#00FF00")
    world.type_line(console, "Ada Lovelace")
    display = shows(scratch, console, BANNER)
    assert "Wie heißt du?\n" in display and "\nAda Lovelace\ngot: Ada Lovelace\nbye\n" in display, display
    assert has_colour(console, "#00FF00")
    assert scratch.recorded()[-1] == "Greeter", scratch.recorded()
    scratch.picture("console")
    nothing_left(scratch, "java.exe")
    console.activate()
    person.key("space")
    console.is_gone()
    assert panel.control("java").enabled


def test_closing_the_console_stops_the_program_and_what_it_started(scratch):
    _, panel = scratch.first_start()
    console = scratch.run_class(panel, "Clock", "out tick", "grandchild 600000", "sleep 600000")
    wait_until("the grandchild", lambda: len(scratch.processes("java.exe")) == 2)
    minimised(scratch)
    console.close()
    console.is_gone()
    nothing_left(scratch, "java.exe")
    wait_until("the end of the program's own console", lambda: scratch.own_console("java.exe") is None)
    assert panel.shows()


def test_closing_the_programs_own_console_stops_the_program(scratch):
    _, panel = scratch.first_start()
    console = scratch.run_class(panel, "Clock", "out tick", "sleep 600000")
    own = minimised(scratch)
    # As its entry in the task bar does, brought back first.
    person.xdotool("windowmap", wait_until("its X window", lambda: person.x_windows(own.name, visible=False))[-1])
    wait_until("the window itself", lambda: not scratch.own_console("java.exe").iconic)
    Window(own.name).close()
    nothing_left(scratch, "java.exe")
    shows(scratch, console, BANNER)


def test_exit_in_the_menu_stops_the_program(scratch):
    _, panel = scratch.first_start()
    console = scratch.run_class(panel, "Clock", "out tick", "sleep 600000")
    wait_until("the program", lambda: scratch.processes("java.exe"))
    console.activate()
    person.key("alt+f", "x")
    console.is_gone()
    nothing_left(scratch, "java.exe")


def test_killed_console_leaves_nothing(scratch):
    program, panel = scratch.first_start()
    console = scratch.run_class(panel, "Clock", "out tick", "grandchild 600000", "sleep 600000")
    wait_until("the grandchild", lambda: len(scratch.processes("java.exe")) == 2)
    process = [one for one in scratch.processes("Tarnwick.exe") if one != program.pid]
    assert len(process) == 1
    os.kill(process[0], signal.SIGKILL)
    console.is_gone()
    nothing_left(scratch, "java.exe")
    wait_until("the end of the program's own console", lambda: scratch.own_console("java.exe") is None)
    assert panel.shows()
