"""The files that were used last are offered in the panel's fields."""

import person
import world
from person import Window, key, wait_until


def restarted(program, scratch, panel):
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0
    program = scratch.start()
    return program, Window("Tarnwick")


def test_a_source_of_yesterday_is_chosen_by_the_keyboard(scratch):
    scratch.configured()
    program, panel = scratch.start(), Window("Tarnwick")
    sources = [scratch.sample(name) for name in ("Greeter.java", "Broken.java")]
    scratch.compile(panel, sources[0])
    panel.write(world.quoted(sources[1]))
    panel.press("javac")
    wait_until("the compiler's messages in the editor", scratch.editor_notes)
    wait_until("both sources", lambda: scratch.settings().get("LAST_SOURCES") == ";".join(reversed(sources)))
    scratch.listens(panel)
    program, panel = restarted(program, scratch, panel)
    panel.activate()
    panel.field().click()
    assert panel.field().text == world.quoted(sources[1])
    key("alt+Down", "End", "Return")
    wait_until("the older source", lambda: panel.field().text == world.quoted(sources[0]))
    scratch.listens(panel)
    panel.press("javac")
    wait_until("the new order", lambda: scratch.settings()["LAST_SOURCES"] == ";".join(sources))
    wait_until("a panel that listens again", panel.listens)
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0
