"""Java as it is written today, from a first start with nothing configured, on the real JDK."""

import os

import world
from person import Window, wait_until
from test_bad_input import message
from test_splitting import WARNING, answer_newer_java, press_javac
import person

TODAY = """package shop.till;

import java.util.*;

/** Words in braces: { { "{" */
public sealed interface Shape<T extends Comparable<T>> permits Circle, Square {
    String text = \"""
        } a text block } with "braces" {
        \""";
    char brace = '{';

    double area();
}

record Circle(double radius) implements Shape<String> {
    public double area() { return Math.PI * radius * radius; }
}

non-sealed class Square implements Shape<String> {
    enum Side { SHORT { int length() { return 1; } }, LONG { int length() { return 2; } }; abstract int length(); }
    @interface Note { String value() default "}"; }
    public double area() { return Side.LONG.length(); }
}
"""

PIECES = """import java.util.List;

/** Zoë's colours: äöü. */
public enum Farbe { ROT, GRÜN }

public record Pieces(List<Farbe> colours) {
    public static void main(String... arguments) {
        System.out.println("Zoë: " + new Pieces(List.of(Farbe.values())).colours());
    }
}
"""


def test_what_the_classic_way_refuses_compiles_after_one_question(scratch):
    source = scratch.write("shop/till/Shape.java", TODAY)
    scratch.in_the_classic_way()
    panel = press_javac(scratch, source)
    message()
    person.key("Return")
    answer_newer_java("Yes")
    names = ["Shape.class", "Circle.class", "Square.class", "Square$Side.class", "Square$Note.class"]
    wait_until("the classes", lambda: all(os.path.exists(os.path.join(scratch.work, "shop", "till", name)) for name in names))
    wait_until("the panel", lambda: panel.control("javac").enabled)
    assert scratch.settings()["NEWER_JAVA"] == "ON"
    # Nothing is asked a second time.
    scratch.compile(panel, scratch.write("Colour.java", "public enum Colour { RED }\n"))
    assert scratch.editor_notes() == []


def test_todays_java_compiles_from_the_first_start_on(scratch):
    scratch.first_start()
    press_javac(scratch, scratch.write("shop/till/Shape.java", TODAY))
    names = ["Shape.class", "Circle.class", "Square.class", "Square$Side.class", "Square$Note.class"]
    wait_until("the classes", lambda: all(os.path.exists(os.path.join(scratch.work, "shop", "till", name)) for name in names))
    assert scratch.editor_notes() == []


def test_a_source_named_like_one_of_its_public_types_is_split_and_runs(scratch):
    source = scratch.write("Pieces.java", PIECES)
    scratch.first_start()
    panel = press_javac(scratch, source)
    Window(WARNING).press("Compile")
    wait_until("the classes", lambda: sorted(os.listdir(scratch.work)) == ["Farbe.class", "Pieces.class", "Pieces.java"])
    wait_until("the panel", lambda: panel.control("javac").enabled)
    with open(source, encoding="utf-8") as text:
        assert text.read() == PIECES
    assert not [name for name in os.listdir(scratch.config) if name.startswith("Tarnwick_split")]
    console = scratch.run_class(panel, os.path.join(scratch.work, "Pieces.class"))
    wait_until("its words", lambda: "Zoë: [ROT, GRÜN]" in scratch.saved_display(console))


def test_a_project_compiles_in_one_run(scratch):
    for name in ["Main", "Part", "Other"]:
        body = "public static void main(String[] a) { System.out.println(new Part().other); }" if name == "Main" else \
            "Other other = new Other();" if name == "Part" else ""
        scratch.write(name + ".java", f"public class {name} {{ {body} enum Kind {{ ONE }} }}\n")
    project = scratch.write("one run.twp", "PROJECT_SOURCES  Main.java;Other.java;Part.java\nNEWER_JAVA  ON\nJAVAC_ONE_RUN  ON\n"
                    f"JAVA_PATH  {os.path.dirname(world.real_javac())}/\n")
    scratch.configured()
    scratch.start(project)
    panel = Window("Tarnwick")
    panel.press("javac")
    names = [f"{name}{member}.class" for name in ["Main", "Other", "Part"] for member in ["", "$Kind"]]
    wait_until("the classes", lambda: all(os.path.exists(os.path.join(scratch.work, name)) for name in names))
    wait_until("a project that can be run", lambda: panel.control("jdb debug").enabled)
    assert scratch.editor_notes() == []


def test_a_mistake_in_a_split_source_is_told_in_its_own_line(scratch):
    source = scratch.write("Pieces.java", PIECES.replace("List.of(Farbe", "Liste.of(Farbe"))
    scratch.first_start()
    press_javac(scratch, source)
    Window(WARNING).press("Compile")
    (_, log), = wait_until("the log in the editor", scratch.editor_notes)
    assert f"{source}:8: error: cannot find symbol" in log, log
    assert "Tarnwick_split" not in log, log
