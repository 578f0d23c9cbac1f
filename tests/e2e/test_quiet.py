"""A program that works writes nothing on its standard streams, whoever looks at it meanwhile."""

import signal

import person
from person import Window, key, wait_until
from test_keyboard import FLAT, TALL, WIDE, project_of_one_source
from test_projects import message

def through_the_settings(panel):
    panel.press("Settings")
    settings = Window("Tarnwick settings")
    tabs = [one for one in settings.controls() if one.role == "page tab"]
    assert len(tabs) == 7, [one.label for one in tabs]
    for tab in tabs:
        tab.click()
        wait_until(f"the page {tab.label!r}", lambda: settings.control(tab.label, "page tab").selected)
    settings.press("About ...")
    about = Window("About Tarnwick")
    about.press("OK")
    about.is_gone()
    settings.press("Cancel")
    settings.is_gone()
    person.look()


def through_the_panel(panel):
    for pressed in (WIDE, FLAT, TALL):
        panel.press(pressed)
        wait_until("the other layout", lambda: pressed not in panel.labels())
    for tab in ("Applet", "Utilities", "Main program"):
        panel.control(tab, "page tab").click()
        wait_until(f"the tab {tab!r}", lambda: panel.control(tab, "page tab").selected)
    panel.press("New")
    source = Window("Create new .java/.html file")
    source.press("Cancel")
    source.is_gone()
    for view, back in (("Projectview", "Fileview"), ("Fileview", "Projectview")):
        panel.press(view)
        assert panel.control(back)


def expect_silence(scratch):
    assert scratch.messages() == "", scratch.messages()


def test_a_walk_through_the_program_leaves_no_word_on_standard_error(scratch):
    source = scratch.sample("Greeter.java")
    program, panel = scratch.first_start()
    expect_silence(scratch)
    through_the_settings(panel)
    expect_silence(scratch)
    through_the_panel(panel)
    expect_silence(scratch)
    console = scratch.run_class(panel, scratch.compile(panel, source))
    console.close()
    console.is_gone()
    person.look()
    expect_silence(scratch)
    panel.activate()
    panel.close()
    assert program.wait(person.LIMIT) == 0
    expect_silence(scratch)


def test_a_project_is_opened_and_left_without_a_word(scratch):
    path = project_of_one_source(scratch)
    program, panel = scratch.start(path), Window("Tarnwick")
    panel.press("Files")
    files = Window("Define which files belong to the project")
    files.press("Cancel")
    files.is_gone()
    panel.press("Open")
    select = Window("Select existing project")
    select.press("Cancel")
    select.is_gone()
    message("No new project opened. Continue with ")
    key("Return")
    wait_until("the panel alone", lambda: len(person.look()) == 1)
    for view, back in (("Fileview", "Projectview"), ("Projectview", "Fileview")):
        panel.press(view)
        assert panel.control(back)
    program.send_signal(signal.SIGTERM)
    assert program.wait(person.LIMIT) == 0
    expect_silence(scratch)


def test_told_to_end_while_a_field_has_the_focus_it_says_nothing(scratch):
    program, panel = scratch.first_start()
    panel.field(0).click()
    person.type_text("some")
    wait_until("what was typed", lambda: panel.field(0).text == "some")
    program.send_signal(signal.SIGTERM)
    assert program.wait(person.LIMIT) == 0
    expect_silence(scratch)
