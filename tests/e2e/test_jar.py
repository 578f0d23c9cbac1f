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


def base_folder(scratch, jdk):
    """Classes of a package, and files of all kinds, in a folder whose name holds a blank."""
    source = scratch.write("ba se/shop/Till.java", MAIN)
    subprocess.run([os.path.join(jdk, "javac"), source], check=True, timeout=120, env=scratch.environment)
    for name in ("one.txt", "two words.txt", "Grüße.txt", "-C", "@list", ".hidden", "sub folder/inner.txt"):
        scratch.write("ba se/" + name, name * 100)
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
    extra = scratch.write("else where/from else where.txt", "x")
    for number, jdk in enumerate(jdks()):
        base = base_folder(scratch, jdk)
        program, panel = start(scratch, jdk)
        archive = os.path.join(scratch.work, f"named {number}.jar")
        dialog = open_dialog(panel, base, archive)
        dialog.write("one.txt \"two words.txt\"", FILES)
        dialog.write("shop", FOLDERS)
        dialog.press("Don't create manifest")
        dialog.press("no ZIP compression")
        run(scratch, panel, dialog, "Create archive")
        assert names_in(archive) == ["one.txt", "shop/Till.class", "shop/Till.java", "two words.txt"]
        with zipfile.ZipFile(archive) as content:
            assert all(entry.compress_type == zipfile.ZIP_STORED for entry in content.infolist())

        # The panel has kept both marks. A selected file is taken from where it was found.
        dialog = open_dialog(panel, base, archive, "Update existing archive")
        assert dialog.control("Don't create manifest").checked and dialog.control("no ZIP compression").checked
        dialog.press("Don't create manifest")
        dialog.write("\"sub folder\"", FOLDERS)
        dialog.press("Select individual files")
        world.answer_file_dialog(extra, dialog)
        wait_until("the file", lambda: dialog.field(FILES).text == '"from else where.txt"')
        run(scratch, panel, dialog, "Update archive")
        updated = names_in(archive)
        assert {"sub folder/inner.txt", "one.txt", "from else where.txt"} <= set(updated), updated

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


def library(scratch, jdk, folder, name, package):
    """An archive with a class that says where it comes from."""
    source = scratch.write(f"sources/{package}/Say.java", f"package {package};\npublic class Say {{\n  public static "
                   f"String words() {{ return \"{package} \"; }}\n}}\n")
    classes = os.path.join(scratch.work, "classes of " + package)
    subprocess.run([os.path.join(jdk, "javac"), "-d", classes, source], check=True, timeout=120, env=scratch.environment)
    archive = os.path.join(folder, name)
    os.makedirs(os.path.dirname(archive), exist_ok=True)
    subprocess.run([os.path.join(jdk, "jar"), "cf", archive, "-C", classes, "."], check=True, timeout=120,
                   env=scratch.environment)
    return archive


def set_newer_java(scratch, on):
    """The setting stands in the file only where it is on."""
    with open(scratch.configuration, encoding="utf-8") as lines:
        rows = [row for row in lines if not row.startswith("NEWER_JAVA ")]
    with open(scratch.configuration, "w", encoding="utf-8") as out:
        out.writelines(rows + (["NEWER_JAVA  ON\n"] if on else []))


def manifest_of(archive):
    with zipfile.ZipFile(archive) as content:
        lines = content.read("META-INF/MANIFEST.MF").replace(b"\r\n ", b"").decode("utf-8")
    return dict(line.split(": ", 1) for line in lines.splitlines() if line)


def test_a_runnable_archive_finds_its_libraries_with_newer_java(scratch):
    scratch.configured()
    for jdk in jdks():
        products = os.path.join(scratch.work, "pro ducts " + os.path.basename(os.path.dirname(jdk)))
        # Below the archive, beside it, and a folder of classes.
        below = library(scratch, jdk, products, "lib für/100% #1.jar", "below")
        beside = library(scratch, jdk, os.path.join(scratch.work, "else where"), "other.jar", "beside")
        library(scratch, jdk, products, "unused.jar", "loose")
        loose = os.path.join(scratch.work, "classes of loose")
        main = ("package shop;\npublic class Till {\n  public static void main(String[] words) {\n"
                "    System.out.println(below.Say.words() + beside.Say.words() + loose.Say.words());\n  }\n}\n")
        source = scratch.write("ba se/shop/Till.java", main)
        base = os.path.join(scratch.work, "ba se")
        subprocess.run([os.path.join(jdk, "javac"), "-cp", os.pathsep.join((below, beside, loose)), source], check=True,
                       timeout=120, env=scratch.environment)
        typed = ";".join((world.quoted(below), world.quoted(beside), world.quoted(loose)))
        archive = os.path.join(products, "shop.jar")
        for newer in (True, False):
            set_newer_java(scratch, newer)
            program, panel = start(scratch, jdk)
            dialog = open_dialog(panel, base, archive)
            dialog.write("shop", FOLDERS)
            dialog.write("shop.Till", MAIN_CLASS)
            dialog.write(typed, CLASS_PATH)
            run(scratch, panel, dialog, "Create archive")
            leave(program, panel)
            ran = subprocess.run([os.path.join(jdk, "java"), "-jar", archive], timeout=120, text=True, cwd="/",
                                 env=scratch.environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
            if newer:
                assert ran.stdout == "below beside loose \n", ran
                words = manifest_of(archive)["Class-Path"].split(" ")
                assert words[0] == "lib%20f%C3%BCr/100%25%20%231.jar" and len(words) == 3, words
                assert words[1].startswith("file:/") and words[1].endswith("/else%20where/other.jar"), words
                assert words[2].startswith("file:/") and words[2].endswith("/classes%20of%20loose/"), words
            else:
                assert manifest_of(archive)["Class-Path"] == typed, manifest_of(archive)
                assert ran.returncode != 0 and ran.stdout == "", ran


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
