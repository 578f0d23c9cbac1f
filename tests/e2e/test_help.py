"""The user's guide, About and the links."""

import os
import shutil
import urllib.parse

import person
import world
from person import Window, wait_until
from test_bad_input import message
from test_locked_configuration import press_ok


def opened(scratch):
    """What the browser was given first."""
    (arguments, _content), *_ = wait_until("something in the browser", scratch.editor_notes)
    return arguments


def address_of_the_guide(scratch):
    guide = os.path.join(os.path.dirname(scratch.program), "usersguide.htm")
    assert os.path.isfile(guide), "the guide lies beside the program"
    return "file://" + urllib.parse.quote(guide)


def test_a_consoles_menu_opens_the_guide_and_about(scratch):
    compiled = scratch.compiled(scratch.sample("Greeter.java"))
    _, panel = scratch.first_start()
    console = scratch.run_class(panel, compiled)
    console.activate()
    console.press("Help")
    console.press("Tarnwick Help")
    assert opened(scratch) == [address_of_the_guide(scratch)], opened(scratch)
    console.activate()
    console.press("Help")
    console.press("About Tarnwick...")
    about = Window("About Tarnwick")
    assert "Tarnwick V4.7a" in about.labels(), about.labels()
    about.press("OK")
    about.is_gone()


def test_help_of_the_settings_opens_the_guide_at_the_page_that_shows(scratch):
    _, panel = scratch.first_start()
    panel.press("Settings")
    settings = Window("Tarnwick settings")
    anchors = {"JDK tools": "configTab1", "javac": "javacparameters", "java": "javaparameters", "jdb": "jdbparams",
               "appletviewer": "appletviewerparameters", "Sourcecode editor": "editorparameters", "Paths": "paths"}
    guide = address_of_the_guide(scratch)
    for count, (tab, anchor) in enumerate(anchors.items(), start=1):
        settings.control(tab, "page tab").click()
        settings.press("Help")
        wait_until(f"help on {tab}", lambda: len(scratch.editor_notes()) == count)
        assert [f"{guide}#{anchor}"] in [arguments for arguments, _ in scratch.editor_notes()], scratch.editor_notes()
    settings.press("About ...")
    about = Window("About Tarnwick")
    about.press("OK")
    about.is_gone()
    settings.press("Cancel")
    settings.is_gone()


def test_without_a_browser_help_and_links_tell_the_place(scratch):
    # The system's own applications are none of this user's.
    scratch.environment["XDG_DATA_DIRS"] = os.path.join(scratch.root, "nichts")
    os.remove(os.path.join(scratch.home, ".local", "share", "applications", "notes.desktop"))
    scratch.start()
    welcome = Window("Welcome to Tarnwick")
    link = next(one for one in welcome.controls() if one.name.startswith("https://"))
    link.click()
    words = message()
    assert f"There is no browser on this computer. It would show:\n{link.name}" in words, words
    press_ok()
    welcome.press("OK")
    settings = Window("Tarnwick settings")
    settings.press("Help")
    guide = os.path.join(os.path.dirname(scratch.program), "usersguide.htm")
    words = message()
    assert f"There is no browser on this computer. It would show:\n{guide}" in words, words
    press_ok()
    assert scratch.editor_notes() == []


def test_a_link_of_welcome_opens_in_the_browser(scratch):
    scratch.start()
    welcome = Window("Welcome to Tarnwick")
    link = next(one for one in welcome.controls() if one.name.startswith("https://"))
    link.click()
    assert opened(scratch) == [link.name], opened(scratch)
    assert welcome.shows()


def test_a_lost_guide_is_asked_for_and_remembered(scratch):
    compiled = scratch.compiled(scratch.sample("Greeter.java"))
    scratch.configured()
    lost = os.path.join(scratch.home, "gone", "usersguide.htm")
    scratch.change_settings(HELPFILE=lost)
    found = shutil.copy(os.path.join(scratch.project, "guide", "usersguide.htm"), os.path.join(scratch.work, "Führer #1.htm"))
    scratch.start()
    console = scratch.run_class(Window("Tarnwick"), compiled)
    console.activate()
    console.press("Help")
    console.press("Tarnwick Help")
    question = Window("Unable to open usersguide.htm")
    assert lost in question.labels(), question.labels()
    question.press("Find usersguide.htm ...")
    chooser = wait_until("the file dialog", lambda: next(
        (one for one in person.look() if one.role == "file chooser"), None))
    dialog = Window(chooser.name)
    dialog.activate()
    person.key("ctrl+l")
    world.enter_path(dialog, found)
    question.is_gone()
    address, = opened(scratch)
    assert address.endswith("F%C3%BChrer%20%231.htm"), address
    assert scratch.settings()["HELPFILE"] == found
