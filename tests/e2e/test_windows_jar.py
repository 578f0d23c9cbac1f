"""Archives from the window "jar" of the Windows program, under Wine. A stand-in takes the tool's place: it writes down what
it is given, and keeps a copy of the manifest, which is gone when the run has ended."""

import os
import shutil

import person
import world
from person import Window, wait_until
from test_windows_panel import box_with
from wine_world import windows_path

ARCHIVE, BASE, FILES, FOLDERS, MANIFEST, MAIN_CLASS, CLASS_PATH = range(7)


def start(scratch):
    shutil.copy(os.path.join(scratch.project, "build", "windows-x86_64", "stand-ins", "jar.exe"), scratch.jdk)
    return scratch.first_start()


def base_folder(scratch):
    """With a file and two folders; its name holds a blank."""
    base = os.path.join(scratch.work, "ba se")
    for name in ("shop", "two words"):
        os.makedirs(os.path.join(base, name))
    with open(os.path.join(base, "one.txt"), "w", encoding="ascii") as out:
        out.write("x")
    return base


def to_utilities(panel):
    """The labels of tabs are no windows of their own. From the class's field the keyboard leads to the other pages."""
    panel.fields()[1].click()
    for shown in ("appletviewer", "jar"):
        person.key("ctrl+Tab")
        panel.control(shown)


def open_dialog(panel):
    panel.press("jar")
    return Window("jar")


def choose_archive(dialog, button, path):
    dialog.press(button)
    chooser = wait_until("the file dialog", lambda: next(
        (one for one in person.look() if one.process == dialog.process and one.name not in ("", "jar", "Tarnwick")), None))
    Window(chooser.name).write(windows_path(path))
    person.key("Return")
    wait_until("the archive's name", lambda: dialog.field(ARCHIVE).text == windows_path(path))


def run(scratch, dialog, button, *script):
    """What the tool was given."""
    scratch.play(*script)
    dialog.press(button)
    dialog.is_gone()
    words = scratch.recorded()
    wait_until("the end of the tool", lambda: not scratch.processes("jar.exe"))
    return words


def manifest_name(scratch):
    return windows_path(os.path.join(scratch.config, "Tarnwick_tempManifest1.tmp"))


def kept(scratch):
    """The manifest as the tool has seen it."""
    with open(scratch.record + ".kept", encoding="cp1252", newline="") as lines:
        text = lines.read()
    os.remove(scratch.record + ".kept")
    return text.replace("\r\n", "\n")


def test_archives_are_created_updated_and_indexed(scratch):
    _, panel = start(scratch)
    base, archive = base_folder(scratch), os.path.join(scratch.work, "my shop.jar")
    to_utilities(panel)
    dialog = open_dialog(panel)
    dialog.write(windows_path(base), BASE)
    choose_archive(dialog, "Create new archive", archive)
    assert os.path.getsize(archive) == 0, "it is there as soon as it is chosen"
    dialog.press("Add all")
    wait_until("the subfolders", lambda: dialog.field(FOLDERS).text == 'shop "two words"')
    dialog.write("one.txt", FILES)
    dialog.press("no ZIP compression")
    scratch.picture("jar")
    words = run(scratch, dialog, "Create archive", "folder")
    assert words[0] == "cf0" and words[1] == windows_path(archive), words
    assert words[2:] == ["shop", "two words", "one.txt"], words
    # It had something to say, so that its log is shown.
    log = wait_until("the log", lambda: next((one for one in person.look() if "Notepad" in one.name), None))
    assert windows_path(base) in "".join(one.text + one.name for one in log.all())
    Window(log.name).close()
    wait_until("the end of the log", lambda: all(one.name != log.name for one in person.look()))

    # The star is expanded by the tool's own run-time; here the archive lies in its own base folder.
    inside = os.path.join(base, "in side.jar")
    shutil.copy(archive, inside)
    panel.activate()
    dialog = open_dialog(panel)
    assert dialog.field(BASE).text == windows_path(base) and dialog.control("no ZIP compression").checked
    choose_archive(dialog, "Update existing archive", inside)
    dialog.press("Add all files,\nincluding all subfolders")
    words = run(scratch, dialog, "Update archive")
    assert words == ["uf0", "in side.jar", "*"], words

    panel.activate()
    dialog = open_dialog(panel)
    choose_archive(dialog, "Update existing archive", inside)
    assert run(scratch, dialog, "Create index") == ["-i", windows_path(inside)]


def test_the_manifest_of_a_runnable_archive(scratch):
    _, panel = start(scratch)
    base, archive = base_folder(scratch), os.path.join(scratch.work, "shop.jar")
    libraries = ";".join(world.quoted(windows_path(os.path.join(scratch.work, name)))
                         for name in ("für alle.jar", "ba se", os.path.join("lib", "tax.jar")))
    to_utilities(panel)
    for newer in (False, True):
        if newer:
            panel.press("Exit")
            panel.is_gone()
            with open(scratch.configuration, "a", encoding="cp1252", newline="") as out:
                out.write("NEWER_JAVA  ON\r\n")
            scratch.start()
            panel = Window("Tarnwick")
            panel.control("jar")
        dialog = open_dialog(panel)
        dialog.write(windows_path(base), BASE)
        choose_archive(dialog, "Create new archive", archive)
        dialog.write("shop", FOLDERS)
        dialog.write("shop.Till", MAIN_CLASS)
        dialog.write(libraries, CLASS_PATH)
        words = run(scratch, dialog, "Create archive", "keep " + manifest_name(scratch))
        assert words == ["cfm", windows_path(archive), manifest_name(scratch), "shop"], words
        path = "f%C3%BCr%20alle.jar ba%20se/ lib/tax.jar" if newer else libraries
        assert f"Main-Class: shop.Till\nClass-Path: {path}\n" in kept(scratch), path
        panel.activate()
        wait_until("the end of the manifest", lambda: not os.path.exists(
            os.path.join(scratch.config, "Tarnwick_tempManifest1.tmp")))


def test_more_files_than_one_command_line_takes_are_told_before_the_start(scratch):
    _, panel = start(scratch)
    base, archive = base_folder(scratch), os.path.join(scratch.work, "shop.jar")
    to_utilities(panel)
    dialog = open_dialog(panel)
    dialog.write(windows_path(base), BASE)
    choose_archive(dialog, "Create new archive", archive)
    names = " ".join(f"F{number:04}.class" for number in range(5000))
    dialog.write(names, FILES)
    scratch.play()
    dialog.press("Create archive")
    box = box_with("Select fewer files at a time, or whole subfolders.")
    said = "".join(one.name for one in box.all())
    assert "The command line for jar is too long: it has " in said and "this system takes 32766" in said, said
    person.key("Return")
    wait_until("the dialog again", lambda: dialog.control("Create archive").enabled)
    assert dialog.field(FILES).text == names
    assert not os.path.exists(scratch.record)
