"""What the panel does while a tool runs: a tool that takes its time stands in for javac."""

import os
import signal
import time

import person
import pointer
import window_manager
import world
from person import Window, wait_until
from test_projects import answer, message

STAND_INS = os.path.join("build", "linux", "stand-ins", "")


def panel_with_stand_ins(scratch, script, classic=False):
    """The panel with the stand-ins as its JDK, and the file to which they write what they were given. Sources are read
    the newer way, or the classic one."""
    path, record = os.path.join(scratch.root, "script"), os.path.join(scratch.root, "record")
    with open(path, "w", encoding="utf-8") as out:
        out.write(script)
    scratch.configured()
    if classic:
        scratch.forget_newer_java()
    scratch.change_settings(JAVA_PATH=os.path.join(scratch.project, STAND_INS))
    scratch.start(STANDIN_SCRIPT=path, STANDIN_RECORD=record)
    panel = Window("Tarnwick")
    return panel, record


def until_told(scratch):
    """A script whose tool runs until it is told to end."""
    return f"await end {os.path.join(scratch.root, 'told')}\n"


def tell(scratch):
    with open(os.path.join(scratch.root, "told"), "w", encoding="ascii") as out:
        out.write("end")


def content(path):
    if not os.path.exists(path):
        return ""
    with open(path, encoding="utf-8") as lines:
        return lines.read()


def test_a_second_press_starts_no_second_run(scratch):
    source = scratch.sample("Greeter.java")
    panel, record = panel_with_stand_ins(scratch, until_told(scratch))
    panel.activate()
    panel.write(world.quoted(source))
    button = panel.control("javac")
    button.click()
    wait_until("the tool", lambda: content(record))
    for _ in range(3):
        button.click()
    person.key("Return", "alt+F4")
    answer(message("javac is still at work. Stop it and leave Tarnwick?"), "No")
    assert len(scratch.processes("javac")) == 1, "the tool still runs, and it is the only one"
    assert panel.shows(), "the panel does not close while it runs"
    scratch.listens(panel)
    tell(scratch)
    wait_until("the end of the tool", lambda: not scratch.processes("javac"))
    time.sleep(2)
    assert content(record).count("Greeter.java") == 1, content(record)
    assert not scratch.processes("javac")
    # Now the panel listens again.
    panel.activate()
    panel.press("javac")
    wait_until("the second run", lambda: content(record).count("Greeter.java") == 2)


def test_the_panel_repaints_while_a_tool_runs(scratch):
    source = scratch.sample("Greeter.java")
    panel, record = panel_with_stand_ins(scratch, until_told(scratch))
    panel.activate()
    panel.write(world.quoted(source))
    panel.press("javac")
    wait_until("the tool", lambda: content(record))
    panel.control("javac Greeter.java ...   |   Tarnwickdefault.CFG")
    before = settled(scratch, panel)
    # Hidden and shown again, the window has to paint anew.
    number = panel.x_number()
    person.xdotool("windowunmap", "--sync", number)
    person.xdotool("windowmap", "--sync", number)
    wait_until("the window's picture", lambda: same_picture(scratch, before, shot(scratch, panel, "during.png")))
    assert scratch.processes("javac"), "the tool still runs"


def test_the_pointer_shows_that_the_panel_is_busy(scratch):
    source = scratch.sample("Greeter.java")
    panel, record = panel_with_stand_ins(scratch, until_told(scratch))
    panel.activate()
    panel.write(world.quoted(source))
    button = panel.control("javac")
    left, top, width, height = button.area
    person.xdotool("mousemove", left + width // 2, top + height // 2)
    time.sleep(0.5)
    idle = pointer.picture()
    button.click()
    wait_until("the tool", lambda: content(record))
    wait_until("a pointer for those who wait", lambda: pointer.picture() != idle)
    assert scratch.processes("javac"), "the tool still runs"
    tell(scratch)
    wait_until("the usual pointer", lambda: pointer.picture() == idle)
    assert not scratch.processes("javac"), "not before the tool has ended"


def test_the_panel_stays_responsive_to_the_window_system_while_a_tool_runs(scratch):
    source = scratch.sample("Greeter.java")
    panel, record = panel_with_stand_ins(scratch, until_told(scratch))
    panel.activate()
    panel.write(world.quoted(source))
    number = int(panel.x_number())
    with window_manager.Asker() as asker:
        assert asker.answers(number, person.LIMIT), "the idle panel answers"
        panel.press("javac")
        wait_until("the tool", lambda: content(record))
        # Window managers wait for 5 seconds and more before they call a program unresponsive.
        begin, asked = time.monotonic(), 0
        while time.monotonic() - begin < 11 or asked < 3:
            assert asker.answers(number, person.LIMIT), f"no answer after {time.monotonic() - begin:.0f} s"
            assert panel.control("javac").showing, "whoever reads the screen to the user gets an answer"
            asked += 1
            time.sleep(0.5)
        assert scratch.processes("javac"), "the tool still runs"


def test_a_window_that_does_not_answer_is_noticed(scratch):
    """The question put to a program that is stopped: otherwise the test above could not fail."""
    scratch.configured()
    program = scratch.start()
    number = int(Window("Tarnwick").x_number())
    with window_manager.Asker() as asker:
        assert asker.answers(number, person.LIMIT)
        program.send_signal(signal.SIGSTOP)
        assert not asker.answers(number, 2)
        program.send_signal(signal.SIGCONT)


def test_the_editor_opens_the_source(scratch):
    source = scratch.sample("Greeter.java")
    scratch.configured()
    scratch.change_settings(**{"EDITOR=NOTEPAD": "ON"})
    scratch.start()
    panel = Window("Tarnwick")
    panel.activate()
    panel.write(world.quoted(source))
    panel.press("Edit")
    (arguments, text), = wait_until("the source in the editor", scratch.editor_notes)
    assert arguments == [source], arguments
    with open(source, encoding="utf-8") as lines:
        assert text == lines.read()


def test_without_any_editor_our_own_shows_the_log(scratch):
    source = scratch.sample("Broken.java")
    os.remove(os.path.join(scratch.home, ".local", "share", "applications", "notes.desktop"))
    scratch.environment |= {"XDG_DATA_DIRS": os.path.join(scratch.root, "no data"), "PATH": os.path.join(scratch.root, "no programs")}
    scratch.configured()
    scratch.change_settings(JAVA_PATH=os.path.join(os.path.dirname(world.real_javac()), ""))
    scratch.start()
    panel = Window("Tarnwick")
    panel.activate()
    panel.write(world.quoted(source))
    panel.press("javac")
    log = wait_until("the editor's window", lambda: next(
        (one for one in person.look() if one.name.endswith("- Tarnwick text editor")), None))
    assert log.name.startswith("Tarnwick_LOG"), log.name
    text = wait_until("the log", lambda: next((one.text for one in Window(log.name).controls() if "incompatible types" in one.text), None))
    assert "Broken.java:6: error: incompatible types: int cannot be converted to String" in text
    person.screenshot(os.path.join(scratch.project, "build", "e2e", "own editor.png"))


def shot(scratch, panel, name):
    path = os.path.join(scratch.root, name)
    # The pointer and what it hovers over are no part of the picture.
    person.xdotool("mousemove", 1, 1)
    person.subprocess.run(["import", "-silent", "-window", panel.x_number(), path], check=True, timeout=person.LIMIT,
                          stdin=person.subprocess.DEVNULL)
    return path


def settled(scratch, panel):
    """The panel's picture, once it stays."""
    pictures = [shot(scratch, panel, "before.png")]

    def stays():
        pictures.append(shot(scratch, panel, f"before{len(pictures)}.png"))
        return same_picture(scratch, pictures[-2], pictures[-1])

    wait_until("a picture that stays", stays)
    return pictures[-1]


def same_picture(scratch, one, other):
    """True where almost nothing differs: the caret blinks, and the pressed button has the focus."""
    done = person.subprocess.run(["compare", "-metric", "AE", "-fuzz", "10%", one, other, "null:"], timeout=person.LIMIT,
                                 stdin=person.subprocess.DEVNULL, stdout=person.subprocess.PIPE,
                                 stderr=person.subprocess.PIPE, text=True)
    return float(done.stderr.split()[0]) < 2500
