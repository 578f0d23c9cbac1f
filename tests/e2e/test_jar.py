"""Archives from the window "jar", made by the real JDKs of this machine."""

import glob
import os
import shlex
import subprocess
import zipfile

import person
import world
from person import Window, wait_until

ALL_FILES = "Add all files,\nincluding all subfolders"
ARCHIVE, BASE, FILES, FOLDERS, MANIFEST, MAIN_CLASS, CLASS_PATH = range(7)

MAIN = ("package shop;\npublic class Till {\n  public static void main(String[] words) {\n"
        "    System.out.println(\"Sold by \" + Till.class.getName());\n  }\n}\n")


def jdks():
    """The folders of all JDKs here, each once."""
    tools = {os.path.dirname(os.path.realpath(jar)) for jar in glob.glob("/usr/lib/jvm/*/bin/jar")}
    tools.add(os.path.dirname(world.real_javac()))
    return sorted(tools)


def write(scratch, name, text):
    path = os.path.join(scratch.work, name)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as out:
        out.write(text)
    return path


def base_folder(scratch, jdk):
    """Classes of a package, and files of all kinds, in a folder whose name holds a blank."""
    source = write(scratch, "ba se/shop/Till.java", MAIN)
    subprocess.run([os.path.join(jdk, "javac"), source], check=True, timeout=120, env=scratch.environment)
    for name in ("one.txt", "two words.txt", "Grüße.txt", "-C", "@list", ".hidden", "sub folder/inner.txt"):
        write(scratch, "ba se/" + name, name * 100)
    return os.path.join(scratch.work, "ba se")


def start(scratch, jdk):
    scratch.change_settings(JAVA_PATH=os.path.join(jdk, ""))
    program = scratch.start()
    panel = Window("Tarnwick")
    next(one for one in panel.controls() if one.role == "page tab" and one.label == "Utilities").click()
    return program, panel


def leave(program, panel):
    panel.activate()
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def open_dialog(panel, base=None, archive=None, how="Create new archive"):
    panel.activate()
    panel.press("jar")
    dialog = Window("jar")
    if base:
        dialog.write(base, BASE)
    if archive:
        dialog.press(how)
        world.answer_file_dialog(archive, dialog)
        wait_until("the archive's name", lambda: dialog.field(ARCHIVE).text == archive)
    return dialog


def run(scratch, panel, dialog, button):
    """Presses the button, and waits until the panel listens again."""
    before = os.stat(scratch.configuration).st_mtime_ns
    dialog.press(button)
    dialog.is_gone()
    wait_until("the start of the run", lambda: os.stat(scratch.configuration).st_mtime_ns != before)
    wait_until("the end of the run", lambda: not scratch.processes("jar"))
    panel.activate()


def names_in(archive):
    with zipfile.ZipFile(archive) as content:
        return sorted(name for name in content.namelist() if not name.endswith("/"))


def is_archive(path):
    return os.path.exists(path) and zipfile.is_zipfile(path)


def picture(scratch, name):
    person.screenshot(os.path.join(scratch.project, "build", "e2e", name + ".png"))


def test_archives_are_created_updated_and_indexed(scratch):
    scratch.configured()
    for number, jdk in enumerate(jdks()):
        base = base_folder(scratch, jdk)
        program, panel = start(scratch, jdk)

        # All files, told one by one; the archive lies among them.
        archive = os.path.join(base, f"all {number}.jar")
        notes = len(scratch.editor_notes())
        dialog = open_dialog(panel, base, archive)
        dialog.press(ALL_FILES)
        dialog.press("verbose")
        picture(scratch, f"jar-{number}")
        run(scratch, panel, dialog, "Create archive")
        log = wait_until("the log", lambda: scratch.editor_notes()[notes:], 30)[0][1]
        assert f'jar cfv "all {number}.jar" *' in log and "inner.txt" in log, log
        files = ["-C", "@list", "Grüße.txt", "META-INF/MANIFEST.MF", "one.txt", "shop/Till.class", "shop/Till.java",
                 "sub folder/inner.txt", "two words.txt"]
        assert names_in(archive) == sorted(files), names_in(archive)
        os.remove(archive)
        leave(program, panel)


def test_named_files_and_folders_without_manifest_and_compression(scratch):
    scratch.configured()
    jdk = jdks()[-1]
    base = base_folder(scratch, jdk)
    program, panel = start(scratch, jdk)
    archive = os.path.join(scratch.work, "named.jar")
    dialog = open_dialog(panel, base, archive)
    dialog.write("one.txt \"two words.txt\"", FILES)
    dialog.write("shop", FOLDERS)
    dialog.press("Don't create manifest")
    dialog.press("no ZIP compression")
    run(scratch, panel, dialog, "Create archive")
    assert names_in(archive) == ["one.txt", "shop/Till.class", "shop/Till.java", "two words.txt"]
    with zipfile.ZipFile(archive) as content:
        assert all(entry.compress_type == zipfile.ZIP_STORED for entry in content.infolist())

    # The panel has kept both marks.
    dialog = open_dialog(panel, base, archive, "Update existing archive")
    assert dialog.control("Don't create manifest").checked and dialog.control("no ZIP compression").checked
    dialog.press("Don't create manifest")
    dialog.write("\"sub folder\"", FOLDERS)
    run(scratch, panel, dialog, "Update archive")
    assert "sub folder/inner.txt" in names_in(archive) and "one.txt" in names_in(archive), names_in(archive)

    dialog = open_dialog(panel, None, archive, "Update existing archive")
    run(scratch, panel, dialog, "Create index")
    wait_until("the index", lambda: "META-INF/INDEX.LIST" in names_in(archive))
    leave(program, panel)


def test_a_runnable_archive_starts_and_is_opened_as_zip(scratch):
    shown = os.path.join(scratch.root, "shown")
    viewer = os.path.join(scratch.root, "Viewer für Zip")
    with open(viewer, "w", encoding="utf-8") as out:
        out.write(f"#!/bin/sh\nprintf '%s\\n' \"$@\" > {shlex.quote(shown)}\n")
    os.chmod(viewer, 0o755)
    with open(os.path.join(scratch.home, ".local", "share", "applications", "zip.desktop"), "w", encoding="utf-8") as out:
        out.write(f'[Desktop Entry]\nType=Application\nName=Zip\nExec="{viewer}" %f\nMimeType=application/zip;\n')
    with open(os.path.join(scratch.home, ".config", "mimeapps.list"), "a", encoding="utf-8") as out:
        out.write("application/zip=zip.desktop\n")
    scratch.configured()
    for jdk in jdks():
        base = base_folder(scratch, jdk)
        program, panel = start(scratch, jdk)
        archive = os.path.join(scratch.work, "my shop.jar")
        dialog = open_dialog(panel, base, archive)
        dialog.write("shop", FOLDERS)
        dialog.write("shop.Till", MAIN_CLASS)
        assert dialog.control("Open jar archive as zip after jar operation").checked
        picture(scratch, "jar-runnable")
        run(scratch, panel, dialog, "Create archive")
        wait_until("the archive in its viewer", lambda: os.path.exists(shown) and os.path.getsize(shown))
        with open(shown, encoding="utf-8") as lines:
            assert lines.read() == archive + "\n"
        os.remove(shown)
        said = subprocess.run([os.path.join(jdk, "java"), "-jar", archive], check=True, timeout=120, text=True,
                              env=scratch.environment, stdout=subprocess.PIPE).stdout
        assert said == "Sold by shop.Till\n", said
        assert not glob.glob(os.path.join(os.path.dirname(scratch.configuration), "*Manifest*")), "the lines are gone"
        leave(program, panel)


def test_what_is_emptied_lies_in_the_trash(scratch):
    scratch.configured()
    archive = os.path.join(scratch.work, "old.jar")
    with zipfile.ZipFile(archive, "w") as content:
        content.writestr("precious.txt", "precious")
    program, panel = start(scratch, jdks()[0])
    dialog = open_dialog(panel, scratch.work, archive)
    assert os.path.getsize(archive) == 0
    dialog.press("Cancel")
    dialog.is_gone()
    trashed = os.path.join(scratch.home, ".local", "share", "Trash", "files", "old (copy).jar")
    assert names_in(trashed) == ["precious.txt"]
    assert not os.path.exists(os.path.join(scratch.work, "old (copy).jar"))
    leave(program, panel)


def test_what_jar_refuses_is_shown_in_its_own_words(scratch):
    scratch.configured()
    program, panel = start(scratch, jdks()[0])
    archive = os.path.join(scratch.work, "x.jar")
    dialog = open_dialog(panel, scratch.work, archive)
    dialog.write("\"no such file\"", FILES)
    run(scratch, panel, dialog, "Create archive")
    log = wait_until("the log", scratch.editor_notes, 30)[0][1]
    assert "no such file" in log and "jar cf x.jar \"no such file\"" in log, log
    leave(program, panel)
