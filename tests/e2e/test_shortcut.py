"""Shortcuts that the window of "Shortcut" makes, started from outside as a desktop starts them."""

import configparser
import os
import subprocess

import person
import world
from person import Window, wait_until
from test_console import BANNER, nothing_left, shows
from test_jar import jdks, picture, start as start_with_jdk

TITLE = "Create shortcut to Java application"
APPLICATION, NAME, DESCRIPTION, MENU_FOLDER, FOLDER = range(5)
ON_DESKTOP = "Create shortcut on desktop"
IN_MENU = "Create shortcut in applications menu"
IN_FOLDER = "Create shortcut in arbitrary location"
UNDER_CONTROL = "Execute under Tarnwick's control"
WITHOUT_CONTROL = "Execute without Tarnwick"

# What a shell, a desktop or a template would take for something else.
HARD = r"""one "two words" "" $HOME `id` back\slash 100% %f %% q'q ; & | < > * ? # ~ c\"d Grüße日"""
ARRIVED = ["one", "two words", "", "$HOME", "`id`", "back\\slash", "100%", "%f", "%%", "q'q", ";", "&", "|", "<", ">", "*",
           "?", "#", "~", 'c"d', "Grüße日"]

# Writes its arguments and its folder to a file, so that it can be heard without a console, too.
WORDS = """import java.io.*;
public class Words {
  public static void main(String[] words) throws Exception {
    StringBuilder text = new StringBuilder(new File("").getAbsolutePath() + "\\n");
    for (String word : words) text.append(word).append("\\n");
    System.out.print(text);
    String name = System.getenv("HOME") + "/words";
    try (Writer out = new OutputStreamWriter(new FileOutputStream(name + ".new"), "UTF-8")) { out.write(text.toString()); }
    new File(name + ".new").renameTo(new File(name));
  }
}
"""


def make_class(scratch, jdk, folder="cla sses"):
    source = scratch.write(folder + "/Words.java", WORDS)
    subprocess.run([os.path.join(jdk, "javac"), "-encoding", "UTF-8", source], check=True, timeout=person.LIMIT,
                   env=scratch.environment)
    return source.removesuffix(".java") + ".class"


def make_archive(scratch, jdk):
    folder = os.path.dirname(make_class(scratch, jdk))
    archive = os.path.join(folder, "my words.jar")
    subprocess.run([os.path.join(jdk, "jar"), "cfe", archive, "Words", "-C", folder, "Words.class"], check=True,
                   timeout=person.LIMIT, env=scratch.environment)
    return archive


def start(scratch, jdk):
    scratch.change_settings(JAVA_XFUTURE="OFF")
    return start_with_jdk(scratch, jdk)


def open_dialog(panel, application):
    panel.press("Shortcut")
    dialog = Window(TITLE)
    dialog.write(application, APPLICATION)
    return dialog


def create(dialog, *files, button="Create Shortcut"):
    dialog.press(button)
    for file in files:
        wait_until(f"the shortcut {file}", lambda file=file: os.path.exists(file))
    return files[0]


def launch(scratch, file):
    """As a desktop starts it; in a folder that has nothing to do with it."""
    subprocess.run(["gio", "launch", file], check=True, timeout=person.LIMIT, env=scratch.environment, cwd="/",
                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def heard(scratch):
    """What the started program has written down: its folder, and its arguments."""
    path = os.path.join(scratch.home, "words")
    wait_until("the program's words", lambda: os.path.exists(path))
    with open(path, encoding="utf-8") as lines:
        folder, *words = lines.read().split("\n")[:-1]
    os.remove(path)
    return folder, words


def entry(file):
    parser = configparser.RawConfigParser()
    parser.optionxform = str
    parser.read(file, encoding="utf-8")
    return dict(parser["Desktop Entry"])


def desktop_folder(scratch):
    return os.path.join(scratch.home, "Desktop")


def leave(program, panel, dialog):
    dialog.press("Close")
    dialog.is_gone()
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def press_in_box(words, answer):
    """Presses a button of the message box that says this."""
    box = person.standing(f"the message {words!r}", lambda: next(
        (window for window in person.look() if any(words in one.name for one in window.all()) and
         any(one.label == answer for one in window.all())), None))
    number = person.active_window()
    next(one for one in box.all() if one.label == answer).click()
    # The next one may say the same.
    wait_until("the end of the message", lambda: person.active_window() != number)


def test_a_shortcut_under_control_opens_the_console(scratch):
    scratch.configured()
    for number, jdk in enumerate(jdks()):
        path = make_class(scratch, jdk)
        program, panel = start(scratch, jdk)
        dialog = open_dialog(panel, f'"{path}" {HARD}')
        dialog.write(f"On the desktop {number}", NAME)
        dialog.write("prints its words", DESCRIPTION)
        assert not dialog.control("Create Shortcut").enabled
        dialog.press(ON_DESKTOP)
        dialog.press(UNDER_CONTROL)
        picture(scratch, f"shortcut-{number}")
        file = create(dialog, os.path.join(desktop_folder(scratch), f"On the desktop {number}.desktop"))
        keys = entry(file)
        assert keys["Name"] == f"On the desktop {number}" and keys["Comment"] == "prints its words", keys
        assert os.path.isfile(keys["Icon"]) and keys["Path"] == os.path.join(scratch.project, "build", "linux", ""), keys
        assert os.access(file, os.X_OK)
        leave(program, panel, dialog)
        launch(scratch, file)
        console = Window("Words")
        display = shows(scratch, console, BANNER)
        assert heard(scratch) == (os.path.dirname(path), ARRIVED), display
        assert "two words\n" in display and "$HOME\n" in display, display
        console.activate()
        person.key("space")
        console.is_gone()
        nothing_left(scratch, "java", "tarnwick")


def test_a_shortcut_without_control_starts_the_program_alone(scratch):
    scratch.configured()
    for number, jdk in enumerate(jdks()):
        program, panel = start(scratch, jdk)
        for application, place in ((make_class(scratch, jdk), "class"), (make_archive(scratch, jdk), "archive")):
            folder = os.path.join(scratch.work, f"short cuts {number} {place}")
            os.makedirs(folder)
            dialog = open_dialog(panel, f'"{application}" {HARD}')
            dialog.press(IN_FOLDER)
            dialog.press(WITHOUT_CONTROL)
            dialog.write(folder, FOLDER)
            name = os.path.basename(application).rpartition(".")[0]
            file = create(dialog, os.path.join(folder, name + ".desktop"))
            dialog.press("Close")
            dialog.is_gone()
            launch(scratch, file)
            assert heard(scratch) == (os.path.dirname(application), ARRIVED)
            assert not [one for one in person.look() if one.name == "Words"], "no console"
        panel.press("Exit")
        assert program.wait(person.LIMIT) == 0


def test_a_shortcut_to_a_project_of_packages_starts_its_class(scratch):
    scratch.configured()
    jdk = jdks()[-1]
    source = scratch.write("shop/src/shop/till/Words.java", "package shop.till;\n" + WORDS)
    subprocess.run([os.path.join(jdk, "javac"), source], check=True, timeout=person.LIMIT, env=scratch.environment)
    project = scratch.write("shop/shop.twp", "NEWER_JAVA  ON\nJAVA_XFUTURE  OFF\nPROJECT_SOURCES  src/shop/till/Words.java\n"
                            f"JAVA_PATH  {jdk}/\n")
    program = scratch.start(project)
    panel = Window("Tarnwick")
    next(one for one in panel.controls() if one.role == "page tab" and one.label == "Utilities").click()
    panel.press("Shortcut")
    dialog = Window(TITLE)
    assert dialog.field(APPLICATION).text == f'"{source.removesuffix(".java")}.class"', dialog.field(APPLICATION).text
    folder = os.path.join(scratch.work, "short cuts")
    os.makedirs(folder)
    dialog.press(IN_FOLDER)
    dialog.press(WITHOUT_CONTROL)
    dialog.write(folder, FOLDER)
    file = create(dialog, os.path.join(folder, "Words.desktop"))
    leave(program, panel, dialog)
    assert "shop.till.Words" in entry(file)["Exec"], entry(file)
    launch(scratch, file)
    assert heard(scratch) == (os.path.dirname(source), [])


def test_three_at_once_and_one_that_is_there(scratch):
    scratch.configured()
    jdk = jdks()[-1]
    path = make_class(scratch, jdk)
    program, panel = start(scratch, jdk)
    dialog = open_dialog(panel, world.quoted(path))
    folder = os.path.join(scratch.work, "any where")
    os.makedirs(folder)
    for box in (ON_DESKTOP, IN_MENU, IN_FOLDER, WITHOUT_CONTROL):
        dialog.press(box)
    dialog.write("Java tools", MENU_FOLDER)
    dialog.write(folder, FOLDER)
    menu = os.path.join(scratch.home, ".local", "share", "applications", "Java tools")
    places = (desktop_folder(scratch), menu, folder)
    files = [os.path.join(place, "Words.desktop") for place in places]
    create(dialog, *files, button="Create Shortcuts")
    for file in files:
        launch(scratch, file)
        assert heard(scratch) == (os.path.dirname(path), [])

    # Each that is there is asked about; a refusal leaves it and goes on.
    with open(files[1], "w", encoding="utf-8") as out:
        out.write("old")
    dialog.press("Create Shortcuts")
    stamp = [os.stat(file).st_mtime_ns for file in files]
    for answer in ("No", "Yes", "No"):
        press_in_box("Shortcut Words already exists. Overwrite?", answer)
    wait_until("the new one", lambda: "Exec" in entry_or_nothing(files[1]))
    leave(program, panel, dialog)
    assert [os.stat(file).st_mtime_ns == before for file, before in zip(files, stamp)] == [True, False, True]
    for place in places:
        assert os.listdir(place) == ["Words.desktop"], os.listdir(place)


def entry_or_nothing(file):
    try:
        return entry(file)
    except configparser.Error:
        return {}


def trusted(scratch, file):
    """What the desktop's mark of harmless launchers says of the file; nothing where it has none."""
    said = subprocess.run(["gio", "info", "-a", "metadata::trusted", file], check=True, timeout=person.LIMIT, text=True,
                          env=scratch.environment, stdout=subprocess.PIPE).stdout
    return next((line.split(": ")[1] for line in said.splitlines() if "metadata::trusted" in line), "")


def test_what_lies_on_the_desktop_is_marked_trusted_and_nothing_else(scratch):
    # Such marks are kept by a service of the desktop.
    del scratch.environment["GIO_USE_VFS"]
    probe = scratch.write("probe", "")
    if subprocess.run(["gio", "set", probe, "metadata::probe", "kept"], timeout=person.LIMIT, env=scratch.environment,
                      stderr=subprocess.DEVNULL).returncode != 0:
        raise world.Skipped("nothing keeps marks of files here: the packages gvfs and gvfs-daemons are missing")
    scratch.configured()
    jdk = jdks()[-1]
    program, panel = start(scratch, jdk)
    dialog = open_dialog(panel, world.quoted(make_class(scratch, jdk)))
    folder = os.path.join(scratch.work, "any where")
    os.makedirs(folder)
    for box in (ON_DESKTOP, IN_MENU, IN_FOLDER, WITHOUT_CONTROL):
        dialog.press(box)
    dialog.write(folder, FOLDER)
    menu = os.path.join(scratch.home, ".local", "share", "applications")
    files = [os.path.join(place, "Words.desktop") for place in (desktop_folder(scratch), menu, folder)]
    create(dialog, *files, button="Create Shortcuts")
    wait_until("the mark", lambda: trusted(scratch, files[0]))
    leave(program, panel, dialog)
    assert [trusted(scratch, file) for file in files] == ["true", "", ""]


def test_what_cannot_be_made_is_told_and_the_dialog_stays(scratch):
    scratch.configured()
    jdk = jdks()[0]
    program, panel = start(scratch, jdk)
    dialog = open_dialog(panel, world.quoted(os.path.join(scratch.home, "App.class")))
    dialog.press(IN_FOLDER)
    dialog.press(WITHOUT_CONTROL)
    gone = os.path.join(scratch.work, "gone")
    dialog.write(gone, FOLDER)
    dialog.press("Create Shortcut")
    words = f"Can't create shortcut to {os.path.join(jdk, 'java')} in \"{gone}/App.desktop\"\nNo such file or directory"
    press_in_box(words, "OK")
    wait_until("the dialog again", lambda: dialog.control("Create Shortcut").enabled)
    assert dialog.field(FOLDER).text == gone
    leave(program, panel, dialog)


def test_the_program_itself_gets_a_shortcut(scratch):
    scratch.configured()
    program, panel = start(scratch, jdks()[0])
    panel.press("Settings")
    settings = Window("Tarnwick settings")
    settings.press("On Desktop")
    file = os.path.join(desktop_folder(scratch), "Tarnwick.desktop")
    wait_until("the shortcut", lambda: os.path.exists(file))
    settings.press("Cancel")
    settings.is_gone()
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0
    launch(scratch, file)
    Window("Tarnwick").press("Exit")
    nothing_left(scratch, "tarnwick")
