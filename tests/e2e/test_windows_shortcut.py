"""Shortcuts of the Windows program, made by the shell's objects and started through the shell, under Wine."""

import os
import shutil
import subprocess
import time

import person
from person import Window, wait_until
from wine_world import windows_path

TITLE = "Create Windows shortcut to Java application"
APPLICATION, NAME, DESCRIPTION, MENU_FOLDER, FOLDER = range(5)
WORDS = 'one "two words" 100% %NOTHING% Grüße'


def open_dialog(scratch):
    shutil.copy(os.path.join(scratch.jdk, "java.exe"), os.path.join(scratch.jdk, "javaw.exe"))
    program, panel = scratch.first_start()
    # The labels of tabs are no windows of their own. From the class's field the keyboard leads to the other pages.
    panel.fields()[1].click()
    for shown in ("appletviewer", "WinShortcut"):
        person.key("ctrl+Tab")
        panel.control(shown)
    panel.press("WinShortcut")
    dialog = Window(TITLE)
    dialog.write(f'"{scratch.made("My App.class")}" {WORDS}', APPLICATION)
    return program, panel, dialog


def mark(dialog, box):
    """The tool tip of one box may lie over the next, and takes a click for itself."""
    person.xdotool("mousemove", "--sync", 1270, 1010)
    time.sleep(0.5)
    dialog.press(box)
    wait_until(f"the mark of {box!r}", lambda: dialog.control(box).checked)


def user_folder(*names):
    return os.path.join(os.environ["WINEPREFIX"], "drive_c", "users", os.environ.get("USER", "root"), *names)


def launch(scratch, link):
    """As a double click starts it."""
    subprocess.run([os.environ["WINE"], "start", "/unix", link], check=True, timeout=person.LIMIT, cwd="/",
                   env=scratch.environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)


def test_links_on_the_desktop_in_the_menu_and_in_a_folder_open_the_console(scratch):
    folder = os.path.join(scratch.work, "any where")
    links = [user_folder("Desktop", "My App.lnk"),
             user_folder("AppData", "Roaming", "Microsoft", "Windows", "Start Menu", "My App.lnk"),
             os.path.join(folder, "My App.lnk")]
    # A run that was ended in the middle leaves its links.
    for link in links:
        if os.path.exists(link):
            os.remove(link)
    _, _, dialog = open_dialog(scratch)
    os.makedirs(folder)
    for box in ("Create shortcut on desktop", "Create shortcut in startmenu", "Create shortcut in arbitrary location",
                "Execute under Tarnwick's control"):
        mark(dialog, box)
    dialog.write(windows_path(folder), FOLDER)
    scratch.picture("shortcut")
    dialog.press("Create Shortcuts")
    for link in links:
        wait_until(f"the link {link}", lambda link=link: os.path.exists(link))
    assert os.listdir(folder) == ["My App.lnk"]
    for link in links:
        scratch.play("out here")
        launch(scratch, link)
        console = Window("My App")
        words = scratch.recorded()
        assert words[-6:] == ["My", "App", "one", "two words", "100%", "%NOTHING%", "Grüße"][-6:], words
        assert "here" in scratch.saved_display(console)
        console.activate()
        person.key("space")
        console.is_gone()
    for link in links:
        os.remove(link)


def test_a_link_without_control_starts_the_tool_alone(scratch):
    _, _, dialog = open_dialog(scratch)
    for box in ("Create shortcut in arbitrary location", "Execute without Tarnwick"):
        mark(dialog, box)
    dialog.write(windows_path(scratch.work), FOLDER)
    dialog.press("Create Shortcut")
    link = os.path.join(scratch.work, "My App.lnk")
    wait_until("the link", lambda: os.path.exists(link))
    scratch.play("folder")
    launch(scratch, link)
    words = scratch.recorded()
    assert words[-5:] == ["one", "two words", "100%", "%NOTHING%", "Grüße"], words
    assert not person.x_windows("My App")


def test_arguments_that_windows_cuts_are_warned_of_and_the_link_stays(scratch):
    _, _, dialog = open_dialog(scratch)
    for box in ("Create shortcut in arbitrary location", "Execute without Tarnwick"):
        mark(dialog, box)
    dialog.write(windows_path(scratch.work), FOLDER)
    dialog.write(f'"{windows_path(os.path.join(scratch.work, "App.class"))}" x' + " xxxxxxxxx" * 4000, APPLICATION)
    dialog.press("Create Shortcut")
    words = "Warning: Windows may have truncated shortcut arguments!"
    person.standing("the warning", lambda: next(
        (window for window in person.look() if any(words in one.name for one in window.all())), None))
    scratch.picture("shortcut-warning")
    person.key("Return")
    assert os.path.exists(os.path.join(scratch.work, "App.lnk"))
