"""The panel is told to end: by Ctrl+C in its terminal, by a session that is over, by another program."""

import contextlib
import os
import signal
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


def split_under_way(scratch):
    """The panel in the middle of a compilation for which it has split the source."""
    source = scratch.sample("Shapes.java")
    panel, record = panel_with_stand_ins(scratch, "sleep 3600000\n")
    panel.activate()
    panel.write(world.quoted(source))
    panel.press("javac")
    Window("Java Portability Warning").press("Compile")
    wait_until("the tool", lambda: content(record))
    assert "Circle.java" in os.listdir(scratch.work) and leftovers(scratch)
    return panel


def expect_the_end(scratch, number):
    """Tells the program to end. It does so without a complaint; what GTK said while it was looked at is no matter."""
    program, said = scratch.running[-1], scratch.messages()
    program.send_signal(number)
    assert program.wait(person.LIMIT) == 0
    assert scratch.messages() == said, scratch.messages()
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
    scratch.running[-1].wait(20)
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
