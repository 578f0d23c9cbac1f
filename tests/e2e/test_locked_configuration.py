"""A configuration that is somebody else's, read-only, on a full disk or damaged locks nobody out."""

import os
import shutil
import stat
import subprocess

import person
import world
from person import Window, wait_until
from test_bad_input import message

REFUSED = "Permission denied"
FULL = "No space left on device"


def wrap(scratch, command):
    """From now on this command starts the program, whose path and arguments it gets."""
    wrapper = os.path.join(scratch.root, "auf Umwegen")
    with open(wrapper, "w", encoding="utf-8") as out:
        out.write(f"#!/bin/sh\nexec {command} '{scratch.program}' \"$@\"\n")
    os.chmod(wrapper, 0o755)
    scratch.program = wrapper


def obey_permissions(scratch):
    """The superuser may write everything; the program then runs without that right."""
    if os.geteuid() == 0:
        wrap(scratch, f"{shutil.which('setpriv')} --bounding-set=-dac_override,-dac_read_search")


def fill_disk(scratch):
    """The program sees a small full disk in the place of its configuration folder."""
    unshare = [shutil.which("unshare") or "unshare", "--mount"] + ([] if os.geteuid() == 0 else ["--map-root-user"])
    disk = f'mount -t tmpfs -o size=16k none "{scratch.config}" && head -c 16384 /dev/zero > "{scratch.config}/filler"'
    tried = subprocess.run([*unshare, "/bin/sh", "-c", disk], capture_output=True)
    if tried.returncode != 0:
        raise world.Skipped("no disk can be mounted here")
    wrap(scratch, f"{' '.join(unshare)} /bin/sh -c '{disk} && exec \"$0\" \"$@\"'")


def press_ok():
    box = person.standing("a message box", lambda: next(
        (one for one in person.look() if one.role in ("alert", "dialog") and
         any(child.label == "OK" for child in one.all())), None))
    next(child for child in box.all() if child.label == "OK").click()


def decline(scratch, reason):
    """A save fails; the user wants no other folder, and is told that nothing was saved."""
    other = Window(reason)
    assert "default location:\n" + scratch.configuration in other.labels(), other.labels()
    other.press("Cancel")
    other.is_gone()
    words = message()
    assert f"{reason}\nCan't save configuration data in {scratch.configuration}" in words, words
    press_ok()


def listens(panel):
    wait_until("the panel", lambda: [one.name for one in person.look()] == ["Tarnwick"] and panel.control("javac").enabled)


def first_use(scratch, reason):
    """Welcome and settings come up and are left; what cannot be saved holds for this run."""
    scratch.start()
    Window("Welcome to Tarnwick").press("OK")
    Window("Tarnwick settings").press("OK")
    for _ in range(2):
        decline(scratch, reason)
    panel = Window("Tarnwick")
    listens(panel)
    return panel


def compile_and_decline(scratch, panel, source, reason, log_message=None):
    """Compiles; the settings are to be saved before and after it."""
    compiled = source.removesuffix(".java") + ".class"
    panel.write(world.quoted(source))
    panel.press("javac")
    decline(scratch, reason)
    if log_message:
        words = message()
        assert log_message in words, words
        press_ok()
    decline(scratch, reason)
    listens(panel)
    assert os.path.exists(compiled)


def choose_folder(question, folder):
    question.press("Browse")
    chooser = wait_until("the folder browser", lambda: next(
        (one for one in person.look() if one.role == "file chooser"), None))
    dialog = Window(chooser.name)
    dialog.activate()
    person.key("ctrl+l")
    world.enter_path(dialog, folder)
    question.is_gone()


def test_configuration_that_may_only_be_read(scratch):
    source, broken = scratch.sample("Greeter.java"), scratch.sample("Broken.java")
    scratch.configured()
    with open(scratch.configuration, "rb") as file:
        before = file.read()
    os.chmod(scratch.configuration, 0o444)
    os.chmod(scratch.config, 0o555)
    obey_permissions(scratch)
    scratch.start()
    panel = Window("Tarnwick")
    listens(panel)
    log = os.path.join(scratch.config, "Tarnwick_LOG1.tmp")
    compile_and_decline(scratch, panel, source, REFUSED, f"{REFUSED}\nCan't open log file {log}")
    # Another folder takes the settings from now on, and the compiler's messages too.
    panel.write(world.quoted(broken))
    panel.press("javac")
    other = os.path.join(scratch.home, "Woanders 日本")
    os.mkdir(other)
    choose_folder(Window(REFUSED), other)
    words = message()
    assert f'The following environment variable definition has been created:\n\nTARNWICK_CFGDIR="{other}"' in words, words
    press_ok()
    (arguments, content), *_ = wait_until("the compiler's messages in the editor", scratch.editor_notes)
    assert arguments == [os.path.join(other, "Tarnwick_LOG1.tmp")], arguments
    assert "Broken.java" in content, content
    listens(panel)
    assert "Tarnwickdefault.CFG" in os.listdir(other)
    with open(scratch.configuration, "rb") as file:
        assert file.read() == before
    assert os.listdir(scratch.config) == ["Tarnwickdefault.CFG"]


def test_configuration_of_another_user(scratch):
    source = scratch.sample("Greeter.java")
    scratch.configured()
    if os.geteuid() == 0:
        os.chown(scratch.configuration, 65534, 65534)
        os.chown(scratch.config, 65534, 65534)
        os.chmod(scratch.configuration, 0o600)
        os.chmod(scratch.config, 0o700)
    else:
        os.chmod(scratch.configuration, 0)
        os.chmod(scratch.config, 0)
    obey_permissions(scratch)
    scratch.start()
    Window("Welcome to Tarnwick").press("OK")
    Window("Tarnwick settings").press("OK")
    other = os.path.join(scratch.home, "Meins 日本")
    os.mkdir(other)
    choose_folder(Window(REFUSED), other)
    assert "The following environment variable definition has been created:" in message()
    press_ok()
    panel = Window("Tarnwick")
    listens(panel)
    # A program's console reads the settings where they lie now.
    scratch.configuration = os.path.join(other, "Tarnwickdefault.CFG")
    console = scratch.run_class(panel, scratch.compile(panel, source))
    wait_until("the program's question", lambda: "What is your name?" in scratch.saved_display(console))
    console.close()
    console.is_gone()
    panel.press("Exit")
    assert scratch.running[-1].wait(person.LIMIT) == 0


def test_configuration_on_a_full_disk(scratch):
    source = scratch.sample("Greeter.java")
    fill_disk(scratch)
    panel = first_use(scratch, FULL)
    compile_and_decline(scratch, panel, source, FULL)
    panel.press("Exit")
    assert scratch.running[-1].wait(person.LIMIT) == 0


def test_damaged_configuration(scratch):
    with open(scratch.configuration, "wb") as out:
        out.write(bytes(range(256)) * 40 + b"\nJAVA_XMS  64m\nFILEVIEW_TAB  many\nFUNCTIONKEYS  ]\n\0\0\0")
    program = scratch.start()
    Window("Welcome to Tarnwick").press("OK")
    Window("Tarnwick settings").press("Cancel")
    panel = Window("Tarnwick")
    listens(panel)
    assert len(scratch.settings()) == 111
    assert scratch.settings()["JAVA_XMS"] == "64m"
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0


def test_configuration_that_is_a_link_stays_one(scratch):
    real = os.path.join(scratch.home, "Wolke 日本", "meine.cfg")
    os.mkdir(os.path.dirname(real))
    os.symlink(real, scratch.configuration)
    program, panel = scratch.first_start()
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0
    assert os.path.islink(scratch.configuration)
    assert len(scratch.settings()) == 111 + 5
    assert os.listdir(scratch.config) == ["Tarnwickdefault.CFG"] and os.listdir(os.path.dirname(real)) == ["meine.cfg"]
    program = scratch.start()
    listens(Window("Tarnwick"))


def test_configuration_that_is_a_pipe_holds_nobody_up(scratch):
    os.mkfifo(scratch.configuration)
    program = scratch.start()
    words = message()
    assert f"Not a regular file\nFile {scratch.configuration}" in words, words
    press_ok()
    Window("Welcome to Tarnwick").press("OK")
    Window("Tarnwick settings").press("OK")
    for _ in range(2):
        decline(scratch, "No such device or address")
    panel = Window("Tarnwick")
    listens(panel)
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0
    assert stat.S_ISFIFO(os.stat(scratch.configuration).st_mode)


def test_configuration_that_leads_to_an_endless_device_starts(scratch):
    os.symlink("/dev/zero", scratch.configuration)
    scratch.start()
    words = message()
    assert f"Not a regular file\nFile {scratch.configuration}" in words, words
    press_ok()
    # Nothing is saved over: what would be written there is thrown away.
    Window("Welcome to Tarnwick").press("OK")
    Window("Tarnwick settings").press("Cancel")
    listens(Window("Tarnwick"))
    assert os.readlink(scratch.configuration) == "/dev/zero"


def test_configuration_folder_that_is_missing_is_made(scratch):
    os.rmdir(scratch.config)
    scratch.config = os.path.join(scratch.config, "tiefer 日本")
    scratch.configuration = os.path.join(scratch.config, "Tarnwickdefault.CFG")
    scratch.environment["TARNWICK_CFGDIR"] = scratch.config
    program, panel = scratch.first_start()
    assert len(scratch.settings()) == 111 + 5
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0
    assert os.listdir(scratch.config) == ["Tarnwickdefault.CFG"]


def test_huge_configuration(scratch):
    """A line of a million characters, and very many lines of somebody else's."""
    scratch.configured()
    with open(scratch.configuration, "a", encoding="utf-8") as out:
        out.write("JAVA_PROPERTY  " + "x" * 1000000 + "\n")
    program = scratch.start()
    panel = Window("Tarnwick")
    listens(panel)
    panel.press("Exit")
    assert program.wait(person.LIMIT) == 0
    with open(scratch.configuration, "w", encoding="utf-8") as out:
        out.write("JAVA_XMS  64m\n" + "SOMEBODY  else's\n" * 100000)
    program = scratch.start()
    Window("Welcome to Tarnwick").press("OK")
    Window("Tarnwick settings").press("Cancel")
    listens(Window("Tarnwick"))
    assert len(scratch.settings()) == 111 and scratch.settings()["JAVA_XMS"] == "64m"
