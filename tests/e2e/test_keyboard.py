"""The keyboard always works on something that is seen, with a project open and without."""

import os
import shutil

import person
import world
from person import Window, key, wait_until
from test_projects import MAIN, message, write_source

WIDE, FLAT, TALL = "Wide layout", "Flat layout", "Tall layout"


def focused(panel):
    """The control with the focus, once there is one and the person sees it."""
    def seen():
        found = [one for one in panel.controls() if one.focused]
        return found[0] if len(found) == 1 and found[0].enabled else None
    return wait_until("a focus that is seen", seen)


def name_of(control):
    """Tells controls of the panel apart: the list of the tabs has no name."""
    return control.label or control.role


def tab(panel, keys="Tab"):
    """Presses Tab; gives the control that the focus has gone to."""
    before = name_of(focused(panel))
    key(keys)

    def other():
        now = focused(panel)
        return now if name_of(now) != before else None
    return wait_until(f"another focus than {before!r}", other)


def tab_to(panel, label):
    """Walks to a control by Tab alone."""
    for _ in range(40):
        if name_of(focused(panel)) == label:
            return
        tab(panel)
    raise person.NotSeen(f"Tab never comes to {label!r}")


def expect_focus(panel, label):
    wait_until(f"the focus on {label!r}", lambda: name_of(focused(panel)) == label)


def walk_round(panel):
    """Everything that Tab reaches, from the focus round to the focus."""
    first = name_of(focused(panel))
    reached = [first]
    while True:
        reached.append(name_of(tab(panel)))
        if reached[-1] == first:
            return reached[:-1]
        assert len(reached) < 40, reached


def expect_the_keyboard_reaches_everything(panel):
    reached = walk_round(panel)
    assert len(reached) == len(set(reached)), reached
    wanted = {one.label for one in panel.controls() if one.role == "push button" and one.enabled}
    assert wanted <= set(reached), (wanted - set(reached), reached)
    assert wanted, "no button can be pressed"


def project_of_one_source(scratch, compiled=False):
    """A project file as an earlier run would leave it; gives its path."""
    scratch.configured()
    source = write_source(scratch, "Start.java", MAIN.replace("Helper.greeting()", '"Hello"'))
    if compiled:
        scratch.compiled(source)
    path = os.path.join(scratch.work, "Vorrat.twp")
    shutil.copy(scratch.configuration, path)
    with open(path, "a", encoding="utf-8") as out:
        out.write("PROJECT_SOURCES  Start.java\n")
    return path


def started_with_project(scratch, **options):
    path = project_of_one_source(scratch, **options)
    program, panel = scratch.start(path), Window("Tarnwick")
    assert panel.control("Fileview")
    panel.project = path
    return program, panel


def leave(program):
    key("Escape")
    assert program.wait(person.LIMIT) == 0


def test_without_a_project_the_keyboard_works_from_the_start(scratch):
    program, panel = scratch.first_start()
    expect_focus(panel, "Source file (.java)")
    expect_the_keyboard_reaches_everything(panel)
    leave(program)


def test_with_a_project_the_keyboard_works_from_the_start(scratch):
    program, panel = started_with_project(scratch)
    expect_focus(panel, "New")
    expect_the_keyboard_reaches_everything(panel)
    leave(program)


def test_with_a_project_the_keyboard_works_in_the_file_view_too(scratch):
    program, panel = started_with_project(scratch)
    panel.press("Fileview")
    wait_until("the file view", lambda: "Browse" in panel.labels())
    panel.field(0).click()
    expect_focus(panel, "Source file (.java)")
    person.type_text("some")
    wait_until("what was typed", lambda: panel.field(0).text == "some")
    key("shift+Tab", "Tab")
    expect_focus(panel, "Source file (.java)")
    expect_the_keyboard_reaches_everything(panel)
    leave(program)


def switch(panel, there, back):
    tab_to(panel, there)
    key("space")
    wait_until("the other view", lambda: back in panel.labels())
    expect_focus(panel, back)


def expect_both_views_by_keyboard(panel):
    switch(panel, "Projectview", "Fileview")
    expect_the_keyboard_reaches_everything(panel)
    switch(panel, "Fileview", "Projectview")
    expect_the_keyboard_reaches_everything(panel)


def test_views_are_switched_by_keyboard_without_a_project(scratch):
    program, panel = scratch.first_start()
    expect_both_views_by_keyboard(panel)
    leave(program)


def test_views_are_switched_by_keyboard_with_a_project(scratch):
    program, panel = started_with_project(scratch)
    switch(panel, "Fileview", "Projectview")
    expect_both_views_by_keyboard(panel)
    leave(program)


def expect_all_layouts_by_keyboard(panel, titled):
    """The two buttons stay where they are under the focus, whatever layout they lead to."""
    for pressed, leads_to, title in ((WIDE, TALL, titled), (TALL, WIDE, "Tarnwick"), (FLAT, WIDE, titled),
                                     (WIDE, FLAT, titled), (TALL, WIDE, "Tarnwick")):
        tab_to(panel, pressed)
        key("space")
        panel.title = title
        wait_until("the other layout", lambda: pressed not in panel.labels())
        expect_focus(panel, leads_to)
    expect_the_keyboard_reaches_everything(panel)
    tab(panel)
    tab(panel, "shift+Tab")
    expect_focus(panel, WIDE)


def test_layouts_are_changed_by_keyboard_without_a_project(scratch):
    program, panel = scratch.first_start()
    expect_all_layouts_by_keyboard(panel, "Tarnwick")
    leave(program)


def test_layouts_are_changed_by_keyboard_with_a_project(scratch):
    program, panel = started_with_project(scratch)
    expect_all_layouts_by_keyboard(panel, f"Tarnwick - project {world.quoted(panel.project)}")
    leave(program)


def test_after_a_dialog_the_keyboard_goes_on_where_it_was(scratch):
    program, panel = started_with_project(scratch)
    for _ in range(2):
        tab_to(panel, "Settings")
        key("space")
        settings = Window("Tarnwick settings for project Vorrat")
        focused(settings)
        key("Escape")
        settings.is_gone()
        expect_focus(panel, "Settings")
        tab(panel)
        switch(panel, *(("Fileview", "Projectview") if "Fileview" in panel.labels() else ("Projectview", "Fileview")))
    leave(program)


def test_a_button_that_is_disabled_under_the_focus_hands_it_on(scratch):
    program, panel = started_with_project(scratch, compiled=True)
    wait_until("that it can run", lambda: panel.control("jdb debug", "push button").enabled)
    tab_to(panel, "jdb debug")
    source = os.path.join(scratch.work, "Start.java")
    os.utime(source, (os.stat(source).st_mtime + 60,) * 2)
    key("space")
    message("Not all classes are up-to-date. Compile!")
    key("Return")
    wait_until("the disabled button", lambda: not panel.control("jdb debug", "push button").enabled)
    focused(panel)
    expect_the_keyboard_reaches_everything(panel)
    leave(program)
