"""The panel is told to end: by Ctrl+C in its terminal, by a session that is over, by another program."""

import contextlib
import os
import signal
import subprocess
import time

import person
import world
from person import Window, wait_until
from test_tools import content, panel_with_stand_ins


@contextlib.contextmanager
def started_with(number, handling):
    """What is started meanwhile finds this signal so. A script's background jobs, as tests are, ignore Ctrl+C."""
    before = signal.signal(number, handling)
    try:
        yield
    finally:
        signal.signal(number, before)


def leftovers(scratch):
    """What a run puts into the configuration folder and should take away again."""
    return [name for name in os.listdir(scratch.config) if name != "Tarnwickdefault.CFG"]


def logs(scratch):
    return [name for name in leftovers(scratch) if name.startswith("Tarnwick_LOG")]


# One descendant is where a person would look for it, one in a session of its own and with nobody between.
TOOL = "grandchild 3600000\norphan 3600000\nsleep 3600000\n"


def split_under_way(scratch):
    """The panel in the middle of a compilation for which it has split the source beside it."""
    source = scratch.sample("Shapes.java")
    panel, record = panel_with_stand_ins(scratch, TOOL, classic=True)
    panel.activate()
    panel.write(world.quoted(source))
    panel.press("javac")
    Window("Java Portability Warning").press("Compile")
    wait_until("the tool", lambda: len(content(record + ".pids").split()) == 2)
    assert len(scratch.processes("javac")) == 3
    assert "Circle.java" in os.listdir(scratch.work) and leftovers(scratch)
    return panel


def expect_the_end(scratch, number):
    """Tells the program to end. It does so without a complaint."""
    program = scratch.running[-1]
    program.send_signal(number)
    assert program.wait(person.LIMIT) == 0
    assert scratch.messages() == "", scratch.messages()
    assert not leftovers(scratch), leftovers(scratch)


def expect_an_end_without_traces(scratch, number):
    expect_the_end(scratch, number)
    wait_until("the end of the tool", lambda: not scratch.processes("javac"))
    assert os.listdir(scratch.work) == ["Shapes.java"], os.listdir(scratch.work)
    assert not scratch.editor_notes(), "nobody is shown what the tool has said"


def test_from_outside_in_the_middle_of_a_run_it_leaves_nothing(scratch):
    split_under_way(scratch)
    expect_an_end_without_traces(scratch, signal.SIGTERM)


def test_in_the_middle_of_a_run_the_users_file_comes_back(scratch):
    """A file that bears the name of a piece."""
    mine = os.path.join(scratch.work, "Circle.java")
    with open(mine, "w", encoding="utf-8") as file:
        file.write("mine")
    split_under_way(scratch)
    assert content(mine) != "mine", "the piece has the name"
    expect_the_end(scratch, signal.SIGTERM)
    assert content(mine) == "mine"
    assert sorted(os.listdir(scratch.work)) == ["Circle.java", "Shapes.java"], os.listdir(scratch.work)


def test_after_a_kill_the_next_compile_puts_the_users_file_back(scratch):
    mine = os.path.join(scratch.work, "Circle.java")
    with open(mine, "w", encoding="utf-8") as file:
        file.write("class Circle { }\n")
    split_under_way(scratch)
    scratch.running[-1].kill()
    scratch.running[-1].wait(person.LIMIT)
    for tool in scratch.processes("javac"):
        with contextlib.suppress(ProcessLookupError):
            os.kill(tool, signal.SIGKILL)
    scratch.change_settings(JAVA_PATH=os.path.dirname(world.real_javac()) + os.sep)
    scratch.start()
    scratch.compile(Window("Tarnwick"), mine)
    assert content(mine) == "class Circle { }\n"
    assert sorted(os.listdir(scratch.work)) == ["Circle.class", "Circle.java", "Shapes.java"], os.listdir(scratch.work)


def test_by_ctrl_c_in_the_middle_of_a_run_it_leaves_nothing(scratch):
    with started_with(signal.SIGINT, signal.SIG_DFL):
        split_under_way(scratch)
    expect_an_end_without_traces(scratch, signal.SIGINT)


def test_with_its_terminal_in_the_middle_of_a_run_it_leaves_nothing(scratch):
    with started_with(signal.SIGHUP, signal.SIG_DFL):
        split_under_way(scratch)
    expect_an_end_without_traces(scratch, signal.SIGHUP)


def expect_that_the_tool_ends_and_the_next_start_clears(scratch, end):
    """What nobody could clean up is cleared by the next start, and what ran has ended by then."""
    split_under_way(scratch)
    end(scratch.running[-1])
    wait_until("the end of the tool and all that it has started", lambda: not scratch.processes("javac"))
    wait_until("the end of its guards", lambda: not scratch.processes("tarnwick"))
    assert logs(scratch) == ["Tarnwick_LOG1.tmp"]
    program = scratch.start()
    Window("Tarnwick")
    assert not logs(scratch), logs(scratch)
    program.terminate()
    assert program.wait(person.LIMIT) == 0


def test_killed_in_the_middle_of_a_run_it_takes_the_tool_along(scratch):
    def kill(program):
        program.kill()
        assert program.wait(person.LIMIT) == -signal.SIGKILL
    expect_that_the_tool_ends_and_the_next_start_clears(scratch, kill)


def test_told_to_quit_in_the_middle_of_a_run_it_takes_the_tool_along(scratch):
    def quit_it(program):
        program.send_signal(signal.SIGQUIT)
        assert program.wait(person.LIMIT) == -signal.SIGQUIT
    with started_with(signal.SIGQUIT, signal.SIG_DFL):
        expect_that_the_tool_ends_and_the_next_start_clears(scratch, quit_it)


def test_a_second_panel_leaves_the_log_of_the_first_alone(scratch):
    first = after_a_run(scratch)
    second = scratch.start()
    wait_until("the second panel", lambda: len([one for one in person.look() if one.name == "Tarnwick"]) == 2)
    assert logs(scratch) == ["Tarnwick_LOG1.tmp"]
    second.terminate()
    assert second.wait(person.LIMIT) == 0
    first.press("Exit")


@contextlib.contextmanager
def screen_of_its_own():
    """A second X server, which the test may end; until then everything happens on it."""
    reading, writing = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
                               "-noreset"], pass_fds=[writing], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL)
    os.close(writing)
    before = os.environ["DISPLAY"]
    with os.fdopen(reading) as number:
        os.environ["DISPLAY"] = ":" + number.readline().strip()
    manager = subprocess.Popen(["openbox"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    try:
        # A window that comes before the manager is moved when that comes, away from under the pointer.
        wait_until("the window manager", lambda: "window id" in subprocess.run(
            ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True).stdout)
        yield server
    finally:
        os.environ["DISPLAY"] = before
        for process in (manager, server):
            process.kill()
            process.wait(person.LIMIT)


def end_of_the_screen(scratch, server):
    """The X server goes; the program ends as if it had been told to."""
    program = scratch.running[-1]
    server.terminate()
    assert program.wait(person.LIMIT) == 0, program.returncode
    assert not leftovers(scratch), leftovers(scratch)


def test_with_its_screen_in_the_middle_of_a_run_it_leaves_nothing(scratch):
    with screen_of_its_own() as server:
        scratch.environment["DISPLAY"] = os.environ["DISPLAY"]
        split_under_way(scratch)
        end_of_the_screen(scratch, server)
    wait_until("the end of the tool and all that it has started", lambda: not scratch.processes("javac"))
    assert os.listdir(scratch.work) == ["Shapes.java"], os.listdir(scratch.work)
    assert not scratch.editor_notes()


def test_with_its_screen_and_dialogs_on_it_it_leaves_nothing(scratch):
    with screen_of_its_own() as server:
        scratch.environment["DISPLAY"] = os.environ["DISPLAY"]
        panel = after_a_run(scratch)
        panel.press("Settings")
        Window("Tarnwick settings").press("About ...")
        Window("About Tarnwick")
        end_of_the_screen(scratch, server)


WRITES_ON = """#!/bin/sh
(while :; do echo tick; sleep 0.2; done) &
echo $! > "$NOTE"
echo done
"""


@contextlib.contextmanager
def panel_with_a_tool_that_leaves_a_writer(scratch):
    """The panel in the middle of "javac", whose compiler has ended and left something behind that writes on."""
    tools, note = os.path.join(scratch.root, "tools"), os.path.join(scratch.root, "writer")
    os.mkdir(tools)
    for name in ("javac", "java"):
        with open(os.path.join(tools, name), "w", encoding="utf-8") as out:
            out.write(WRITES_ON)
        os.chmod(os.path.join(tools, name), 0o755)
    scratch.configured()
    scratch.change_settings(JAVA_PATH=os.path.join(tools, ""))
    scratch.start(NOTE=note)
    panel = Window("Tarnwick")
    panel.activate()
    panel.write(world.quoted(scratch.sample("Greeter.java")))
    panel.press("javac")
    writer = int(wait_until("the writer", lambda: content(note).strip()))
    try:
        yield panel
    finally:
        # It ends by itself when it next writes and nobody listens any longer.
        with contextlib.suppress(ProcessLookupError):
            os.kill(writer, signal.SIGKILL)


def test_a_tool_that_leaves_a_writer_behind_does_not_keep_the_panel(scratch):
    with panel_with_a_tool_that_leaves_a_writer(scratch) as panel:
        begin = time.monotonic()
        _, log = wait_until("the log", scratch.editor_notes, 60)[0]
        assert time.monotonic() - begin > 5, "it is given some time to fall silent"
        assert "done\n" in log and log.count("tick\n") > 10, log
        assert log.endswith("\n\nThe tool has ended, but something that it has left behind still writes.\n"), log
        panel.press("Settings")
        Window("Tarnwick settings").press("Cancel")


def test_while_a_tool_leaves_a_writer_behind_it_ends_when_it_is_told_to(scratch):
    with panel_with_a_tool_that_leaves_a_writer(scratch):
        begin = time.monotonic()
        expect_the_end(scratch, signal.SIGTERM)
        assert time.monotonic() - begin < 8, "the settling was not waited for"
        assert not scratch.editor_notes()


def test_behind_a_nohup_it_outlives_its_terminal(scratch):
    with started_with(signal.SIGHUP, signal.SIG_IGN):
        program, panel = scratch.first_start()
    program.send_signal(signal.SIGHUP)
    time.sleep(2)
    assert program.poll() is None
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def after_a_run(scratch):
    """A panel that has a log to take away."""
    _, panel = scratch.first_start()
    scratch.compile(panel, scratch.sample("Greeter.java"))
    assert leftovers(scratch)
    return panel


def test_with_dialogs_on_top_of_each_other_it_closes_all(scratch):
    panel = after_a_run(scratch)
    panel.press("Settings")
    Window("Tarnwick settings").press("About ...")
    Window("About Tarnwick")
    expect_the_end(scratch, signal.SIGTERM)


def test_with_a_message_on_the_screen_it_closes_that_too(scratch):
    panel = after_a_run(scratch)
    panel.control("Applet").click()
    panel.press("appletviewer")
    Window("Open").press("Cancel")
    wait_until("the message", lambda: any("no htm* file known" in (one.name, one.text)
                                          for window in person.look() for one in window.all()))
    expect_the_end(scratch, signal.SIGTERM)


def test_with_a_file_dialog_on_top_of_a_dialog_it_closes_both_and_makes_no_file(scratch):
    panel = after_a_run(scratch)
    files = sorted(os.listdir(scratch.work))
    panel.press("New")
    Window("Create new .java/.html file").press("Create sourcefile")
    Window("Save as")
    expect_the_end(scratch, signal.SIGTERM)
    assert sorted(os.listdir(scratch.work)) == files


def test_at_the_welcome_it_ends_as_if_it_had_not_been_started(scratch):
    program = scratch.start()
    Window("Welcome to Tarnwick")
    program.terminate()
    program.wait(person.LIMIT)
    assert not os.path.exists(scratch.configuration)
    scratch.start()
    Window("Welcome to Tarnwick")
