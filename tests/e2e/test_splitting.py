"""A source with several public types, compiled the classic way from the panel on the real JDK."""

import os
import time

import person
import world
from person import Window, wait_until
from test_bad_input import message

WARNING = "Java Portability Warning"
STAY_AWAY = "Don't display this warning for some time"
CLASSES = ["Circle.class", "Gallery.class", "Rectangle.class", "Shape.class"]


def folder(scratch):
    return sorted(os.listdir(scratch.work))


def press_javac(scratch, source):
    panel = Window("Tarnwick")
    panel.activate()
    panel.write(world.quoted(source))
    panel.press("javac")
    return panel


def remove_classes(scratch):
    for name in CLASSES:
        os.remove(os.path.join(scratch.work, name))


def wait_for_classes(scratch):
    """The pieces go after the compiler, so what is left are the source and its classes."""
    wait_until("the classes and no pieces", lambda: folder(scratch) == sorted(CLASSES + ["Shapes.java"]))


def test_shapes_are_split_compiled_and_run(scratch):
    source = scratch.sample("Shapes.java")
    with open(source, encoding="utf-8") as text:
        before = text.read()
    scratch.in_the_classic_way()
    panel = press_javac(scratch, source)
    warning = Window(WARNING)
    assert "but only one of them may be public." in warning.labels(), warning.labels()
    assert "use Tarnwick's capabilities of compiling nonportable source files." in warning.labels(), warning.labels()
    assert not warning.control(STAY_AWAY).checked
    assert folder(scratch) == ["Shapes.java"], "nothing is written before the answer"
    person.screenshot(os.path.join(scratch.project, "build", "e2e", "portability-warning.png"))
    warning.press("Compile")
    wait_for_classes(scratch)
    with open(source, encoding="utf-8") as text:
        assert text.read() == before
    wait_until("the panel", lambda: panel.control("javac").enabled)
    assert scratch.editor_notes() == []
    console = scratch.run_class(panel, os.path.join(scratch.work, "Gallery.class"))
    wait_until("the areas", lambda: "Circle: area 3.14\nRectangle: area 6.00" in scratch.saved_display(console))


def test_cancel_compiles_nothing(scratch):
    source = scratch.sample("Shapes.java")
    scratch.in_the_classic_way()
    panel = press_javac(scratch, source)
    warning = Window(WARNING)
    warning.press("Cancel")
    warning.is_gone()
    wait_until("the panel", lambda: panel.control("javac").enabled)
    time.sleep(1)
    assert [one.name for one in person.look()] == ["Tarnwick"], "nothing is shown"
    assert folder(scratch) == ["Shapes.java"]
    assert scratch.editor_notes() == []


def test_return_is_compile_and_escape_is_cancel(scratch):
    source = scratch.sample("Shapes.java")
    scratch.in_the_classic_way()
    press_javac(scratch, source)
    Window(WARNING).activate()
    person.key("Escape")
    Window("Tarnwick").activate()
    assert folder(scratch) == ["Shapes.java"]
    press_javac(scratch, source)
    Window(WARNING).activate()
    person.key("Return")
    wait_for_classes(scratch)


def test_the_box_keeps_the_warning_away_until_the_next_start(scratch):
    source = scratch.sample("Shapes.java")
    program, panel = scratch.in_the_classic_way()
    press_javac(scratch, source)
    warning = Window(WARNING)
    warning.press(STAY_AWAY)
    assert warning.control(STAY_AWAY).checked
    warning.press("Compile")
    wait_for_classes(scratch)
    remove_classes(scratch)
    press_javac(scratch, source)
    wait_for_classes(scratch)
    panel.press("Exit")
    program.wait(person.LIMIT)
    remove_classes(scratch)
    scratch.start()
    press_javac(scratch, source)
    Window(WARNING).press("Cancel")


def test_a_mistake_in_one_of_the_types_is_told_and_leaves_no_pieces(scratch):
    source = scratch.sample("Shapes.java")
    with open(source, encoding="utf-8") as text:
        changed = text.read().replace("return width * height;", "return width * depth;")
    with open(source, "w", encoding="utf-8") as text:
        text.write(changed)
    scratch.in_the_classic_way()
    press_javac(scratch, source)
    Window(WARNING).press("Compile")
    (_, log), = wait_until("the log in the editor", scratch.editor_notes)
    assert "-d . -g -classpath . Shape.java Circle.java Rectangle.java Gallery.java\n" in log, log
    assert "Rectangle.java:" in log and "error: cannot find symbol" in log, log
    assert [name for name in folder(scratch) if name.endswith(".java")] == ["Shapes.java"]


def answer_newer_java(label):
    """The newer way of reading would take the source, so it is offered."""
    box = wait_until("the question", lambda: next(
        (one for one in person.look() if any("Read sources the newer way" in child.name for child in one.all())), None))
    next(child for child in box.all() if child.label == label).click()


def refused(scratch, name, content, expected):
    """A source that never reaches the compiler: the message, and a panel that works afterwards."""
    path = os.path.join(scratch.work, name)
    with open(path, "wb") as out:
        out.write(content)
    panel = press_javac(scratch, path)
    words = message()
    assert expected in words, words
    person.key("Return")
    wait_until("the panel", lambda: panel.control("javac").enabled)
    assert [one for one in folder(scratch) if one.endswith(".java")] == [name]
    os.remove(path)


def test_what_is_no_source_is_told_and_the_panel_goes_on(scratch):
    scratch.in_the_classic_way()
    no_source = "There is neither a class nor an interface definition in the source file.\nIs it really a source file?"
    no_text = "Line 1 doesn't seem to make sense.\nThe input file may not be in text format."
    refused(scratch, "Empty.java", b"", "Empty.java :\n" + no_source)
    refused(scratch, "Binary.java", b"\x7fELF\x02\x01\x01\0\0\0 junk \xff\xfe", no_text)
    refused(scratch, "Huge.java", b"x" * (50 << 20), no_text)
    refused(scratch, "Brace.java", b"class A {}\n}\n", "Line 2: Too many }\nCan't process file ")
    refused(scratch, "Other.java", b"public class A {}\n", "Javac requires a class/interface with the attribute 'public'")
    # The panel still compiles.
    scratch.compile(Window("Tarnwick"), scratch.sample("Greeter.java"))


def test_a_long_complaint_keeps_its_button_on_the_screen(scratch):
    """What a complaint quotes of the source may be of any length."""
    scratch.in_the_classic_way()
    path = os.path.join(scratch.work, "Long.java")
    with open(path, "wb") as out:
        out.write(b"class A {}\n" + b"int " + b"x" * 5000 + b"\n" * 1_000_000 + b";")
    panel = press_javac(scratch, path)
    words = message()
    assert "Long.java :\nLine 1000002 doesn't seem to make sense.\nPossibly unbalanced { and }.\n" in words, words
    box = next(one for one in person.look() if one.role in ("alert", "dialog"))
    button = next(one for one in box.all() if one.label == "OK")
    left, top, width, height = button.area
    screen = [int(number) for number in person.xdotool("getdisplaygeometry").split()]
    assert 0 <= left and left + width <= screen[0] and 0 <= top and top + height <= screen[1], button.area
    button.click()
    answer_newer_java("No")
    wait_until("the panel", lambda: panel.control("javac").enabled)


def test_a_name_taken_by_a_folder_is_told_and_stays(scratch):
    source = scratch.sample("Shapes.java")
    taken = os.path.join(scratch.work, "Rectangle.java")
    os.mkdir(taken)
    scratch.in_the_classic_way()
    press_javac(scratch, source)
    Window(WARNING).press("Compile")
    words = message()
    assert "Is a directory\nCan't process file " + taken in words, words
    person.key("Return")
    answer_newer_java("No")
    Window("Tarnwick").activate()
    assert folder(scratch) == ["Rectangle.java", "Shapes.java"] and os.path.isdir(taken)
