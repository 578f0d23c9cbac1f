"""The console of today, on the real JDKs 17 and 25."""

import os
import re
import time

import person
import pointer
import test_console as consoles
import test_messages as messages
from person import wait_until
from test_console import BANNER, shows
from test_newer_run import panel_with
from world import type_line

ASKS = """import java.util.Scanner;
public class Asks {
    public static void main(String[] arguments) throws Exception {
        Scanner in = new Scanner(System.in);
        System.out.print("Press Enter to continue ");
        System.out.flush();
        String first = in.nextLine();
        System.out.println("thanks [" + first + "]");
        while (in.hasNextLine()) System.out.println("got [" + in.nextLine() + "]");
        System.out.println("end of input");
        System.exit(3);
    }
}
"""

TICKS = """import java.util.Scanner;
public class Ticks {
    public static void main(String[] arguments) {
        Thread ticker = new Thread(() -> {
            for (int count = 1; ; count++) {
                System.out.print("tick" + count + (count % 3 == 0 ? "\\n" : " "));
                System.out.flush();
                try {
                    Thread.sleep(40);
                } catch (InterruptedException end) {
                    return;
                }
            }
        });
        ticker.setDaemon(true);
        ticker.start();
        Scanner in = new Scanner(System.in);
        while (in.hasNextLine()) System.out.println("got [" + in.nextLine() + "]");
    }
}
"""

ENDLESS = """public class Endless {
    public static void main(String[] arguments) throws Exception {
        byte[] block = new byte[1 << 16];
        java.util.Arrays.fill(block, (byte) 'x');
        int mebibytes = Integer.getInteger("mebibytes", 200);
        for (int count = 0; count < mebibytes * 16; count++) System.out.write(block, 0, block.length);
        System.out.println();
        System.out.println("all written");
        System.in.read();
    }
}
"""

LINES = """public class Lines {
    public static void main(String[] arguments) throws Exception {
        System.out.println("hit 1");
        for (int line = 0; line < 60; line++) System.out.println("line " + line);
        System.out.println("HIT 2");
        while (System.in.read() >= 0) System.out.println("more");
    }
}
"""

BROKEN = """package parts;

public class Broken {
    static int size(String text) {
        return text.length();
    }

    public static void main(String[] arguments) throws Exception {
        try {
            size(null);
        } catch (NullPointerException fault) {
            for (var place : fault.getStackTrace()) System.err.println("\\tat " + place);
        }
        System.in.read();
    }
}
"""


def program(scratch, version, name, text, today=True):
    """The panel, and the console in which the program runs with a JDK of this version."""
    source = scratch.write(f"{name}.java", text)
    scratch.configured()
    assert scratch.settings()["NEWER_CONSOLE"] == "ON", "from the first use"
    if not today:
        scratch.forget("NEWER_CONSOLE")
    panel = panel_with(scratch, version)
    return panel, scratch.run_class(panel, scratch.compiled(source, "--release", "17"))


def title_of(console):
    return next((one.name for one in person.look() if one.process == console.process and one.role == "frame"), "")


def ended_title(console, manner):
    return wait_until(f"a title that tells: {manner}",
                      lambda: re.fullmatch(rf"{console.title} - {manner} after \d+\.\d s", title_of(console)))


def asks(scratch, version):
    panel, console = program(scratch, version, "Asks", ASKS)
    shows(scratch, console, "Press Enter to continue ")
    console.activate()
    person.key("Return")
    shows(scratch, console, "thanks []\n")
    type_line(console, "one")
    shows(scratch, console, "got [one]\n")
    person.key("ctrl+d")
    display = shows(scratch, console, BANNER)
    assert "end of input\n" in display, display
    ended_title(console, "ended with 3")
    # A key that does nothing by itself leaves it open, and so does copying.
    console.activate()
    person.key("shift", "ctrl", "alt")
    person.key("ctrl+a", "ctrl+c")
    time.sleep(0.5)
    assert console.shows()
    person.key("ctrl+r")
    wait_until("the plain title", lambda: title_of(console) == "Asks")
    wait_until("the question anew", lambda: scratch.saved_display(console).count("Press Enter to continue ") == 2)
    console.activate()
    person.key("Return")
    wait_until("the answer anew", lambda: scratch.saved_display(console).count("thanks []\n") == 2)
    console.press("Program")
    console.press("End of input")
    wait_until("the second banner", lambda: scratch.saved_display(console).count(BANNER) == 2)
    ended_title(console, "ended with 3")
    console.activate()
    person.key("space")
    console.is_gone()
    consoles.nothing_left_but(scratch, panel.process)


def test_press_enter_takes_one_return_and_the_input_can_be_ended_17(scratch):
    asks(scratch, 17)


def test_press_enter_takes_one_return_and_the_input_can_be_ended_25(scratch):
    asks(scratch, 25)


def test_in_the_classic_console_the_same_program_waits_for_a_second_return(scratch):
    _, console = program(scratch, 17, "Asks", ASKS, today=False)
    shows(scratch, console, "Press Enter to continue ")
    console.activate()
    person.key("Return")
    time.sleep(1)
    assert "thanks" not in scratch.saved_display(console)
    console.activate()
    person.key("Return")
    shows(scratch, console, "thanks [")
    assert title_of(console) == "Asks"


def test_a_line_that_output_interrupts_is_sent_whole(scratch):
    _, console = program(scratch, 17, "Ticks", TICKS)
    shows(scratch, console, "tick3")
    console.activate()
    # Slowly, as a person types.
    for letter in "hello world":
        person.key("space" if letter == " " else letter)
    person.key("BackSpace", "Home", "Delete", "H", "End", "d")
    person.key("Return")
    display = shows(scratch, console, "got [")
    assert "got [Hello world]\n" in display, display
    console.close()
    console.is_gone()


def stopped(scratch, version, press):
    panel, console = program(scratch, version, "Ticks", TICKS)
    shows(scratch, console, "tick3")
    console.activate()
    press()
    question = wait_until("the question", lambda: next(
        (one for window in person.look() if window.process == console.process for one in window.all()
         if one.name == "Stop the program?"), None))
    assert question
    person.key("Return")
    display = shows(scratch, console, BANNER)
    assert "tick1 " in display, display
    ended_title(console, "stopped")
    consoles.nothing_left(scratch, "java")
    assert console.shows()
    console.close()
    console.is_gone()
    consoles.nothing_left_but(scratch, panel.process)


def test_control_c_stops_a_program_17(scratch):
    stopped(scratch, 17, lambda: person.key("ctrl+c"))


def test_control_break_stops_a_program_25(scratch):
    stopped(scratch, 25, lambda: person.key("ctrl+Pause"))


def test_a_line_without_end_takes_little_memory(scratch):
    _, console = program(scratch, 17, "Endless", ENDLESS)
    display = wait_until("all of it", lambda: next(
        (text for text in [scratch.saved_display(console)] if "all written" in text), None), 120)
    pieces = [line for line in display.split("\n") if line.startswith("[the line goes on] x")]
    assert len(pieces) == 17, len(pieces)
    assert all((1 << 20) - 1000 < len(piece) <= 1 << 20 for piece in pieces[:-1]), [len(piece) for piece in pieces]
    assert scratch.peak_memory(console.process) < 100, scratch.peak_memory(console.process)
    person.screenshot(os.path.join(scratch.project, "build", "e2e", "console-endless.png"))
    console.close()
    console.is_gone()


COLOURS = """public class Terminal {
    public static void main(String[] arguments) throws Exception {
        System.out.print("\\u001b[32mgreen MMMMMMMM\\u001b[0m \\u001b[48;2;255;200;0mon orange\\u001b[m plain\\n");
        System.out.print("\\u001b[1mbold\\u001b[22m \\u001b[4munderlined\\u001b[24m \\u001b[7minverse\\u001b[27m\\n");
        System.out.print("\\u001b[38;5;226myellow on white can be read\\u001b[0m\\n");
        for (int part = 1; part <= 100; part++) {
            System.out.print("\\r" + part + " %");
            System.out.flush();
        }
        System.out.print("\\u001b]0;a title\\u0007 done\\n");
        System.in.read();
    }
}
"""


def coloured(scratch, version):
    _, console = program(scratch, version, "Terminal", COLOURS)
    display = shows(scratch, console, "done")
    assert "green MMMMMMMM on orange plain\nbold underlined inverse\nyellow on white can be read\n100 % done\n" in display, display
    assert "\x1b" not in display
    assert consoles.has_colour(console, "#FFC800")
    assert not consoles.has_colour(console, "#FFFF00"), "on white it could not be read"
    person.screenshot(os.path.join(scratch.project, "build", "e2e", f"console-colours-{version}.png"))
    console.close()
    console.is_gone()


def test_colours_and_carriage_returns_show_as_on_a_terminal_17(scratch):
    coloured(scratch, 17)


def test_colours_and_carriage_returns_show_as_on_a_terminal_25(scratch):
    coloured(scratch, 25)


def test_words_are_found_and_the_view_holds_still(scratch):
    _, console = program(scratch, 17, "Lines", LINES)
    shows(scratch, console, "HIT 2")
    console.activate()
    person.key("ctrl+f")
    find = person.Window("Find")
    find.write("hit")
    find.press("Find")
    find.is_gone()
    console.activate()
    # The last one first; the one before it is the only one that is not in sight.
    assert title_of(console) == "Lines"
    person.key("F3")
    wait_until("the title that tells of it", lambda: title_of(console) == "Lines - scrolled back")
    person.screenshot(os.path.join(scratch.project, "build", "e2e", "console-found.png"))
    assert consoles.has_colour(console, "#001F99"), "the place that is selected, inverted"
    person.key("shift+F3")
    wait_until("the end again", lambda: title_of(console) == "Lines")
    person.key("F3")
    wait_until("the beginning again", lambda: title_of(console) == "Lines - scrolled back")
    person.key("Return")
    wait_until("the end, where one types", lambda: title_of(console) == "Lines")
    shows(scratch, console, "more")
    assert consoles.has_colour(console, "#FFE066"), "the mark at the end"


def trace_opens(scratch, version):
    """A stack trace in a console of a class that lies in a folder of its package."""
    source = scratch.write("parts/Broken.java", BROKEN)
    scratch.configured()
    scratch.change_settings(EDITOR_TARGET=messages.with_messages(scratch)["EDITOR_TARGET"])
    panel = panel_with(scratch, version)
    console = scratch.run_class(panel, scratch.compiled(source, "--release", "17"))
    shows(scratch, console, "at parts.Broken.main(Broken.java:10)")
    console.activate()
    left, top, _, height = console.controls()[0].area
    person.xdotool("mousemove", left + 280, top + 100, "sleep", 0.2)
    usual = pointer.picture()
    person.xdotool("keydown", "ctrl")
    try:
        # Below the menu bar, over which the pointer is another one too.
        def at_a_place():
            for down in range(60, min(height, 200), 6):
                person.xdotool("mousemove", left + 280, top + down, "sleep", 0.1)
                if pointer.picture() != usual:
                    return down
            return None
        down = wait_until("another pointer over a place of the trace", at_a_place)
        person.screenshot(os.path.join(scratch.project, "build", "e2e", "console-trace.png"))
        person.xdotool("mousemove", left + 280, top + down, "sleep", 0.1, "click", 1)
    finally:
        person.xdotool("keyup", "ctrl")
    assert messages.opened(scratch, 1) == (5, 1, source)


def test_a_stack_trace_opens_the_editor_17(scratch):
    trace_opens(scratch, 17)


def test_a_stack_trace_opens_the_editor_25(scratch):
    trace_opens(scratch, 25)
