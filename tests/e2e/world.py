"""What a test needs around the program: folders, an accessibility bus, the JDK, an editor that takes notes.

All folder names hold blanks and letters beyond ASCII. Everything that the program starts inherits the scratch HOME, by
which it is recognised afterwards.
"""

import atexit
import os
import shlex
import shutil
import signal
import subprocess
import tempfile

import person
import window_manager
from person import Window, wait_until

VERSION = "Tarnwick V4.7a"

# What the program's first start has left, by all that it depends on.
FIRST_CONFIGURATIONS = {}

NOTES = """#!/bin/sh
# Stands in for the user's editor: keeps a copy of each file that it is given, and writes its arguments down.
cd {folder} || exit 1
number=$(ls | grep -c arguments)
for argument in "$@"; do
  [ -f "$argument" ] && cp "$argument" "$number.file"
done
printf '%s\\n' "$@" > "$number.new"
mv "$number.new" "$number.arguments"
"""


def start_bus(folder):
    """The bus over which windows tell what is in them; for this process and all that it starts."""
    os.makedirs(folder, mode=0o700)
    os.environ["XDG_RUNTIME_DIR"] = folder
    reading, writing = os.pipe()
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", f"--print-address={writing}"], pass_fds=[writing],
                           stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writing)
    with os.fdopen(reading) as answer:
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = answer.readline().strip()

    def end():
        bus.terminate()
        bus.wait(person.LIMIT)
    atexit.register(end)
    # Ended from outside, the process still has to end what it started.
    signal.signal(signal.SIGTERM, lambda *_: os.sys.exit(143))


def real_javac():
    """The JDK as the program should find it."""
    home = os.environ.get("JAVA_HOME")
    if home and os.path.isfile(os.path.join(home, "bin", "javac")):
        return os.path.realpath(os.path.join(home, "bin", "javac"))
    return os.path.realpath(shutil.which("javac"))


class Skipped(Exception):
    """Ends a test that cannot run here; carries the reason."""


class World:
    def __init__(self, project, letters="日本"):
        self.project = project
        self.program = os.path.join(project, "build", "linux", "tarnwick")
        self.root = tempfile.mkdtemp(prefix=f"tarnwick {letters} ")
        self.home = self._folder("Zoës Heim")
        self.config = self._folder(f"Meine Einstellungen {letters}")
        self.work = self._folder("Zoës Heim", f"Java-Übungen {letters}")
        self.notes = self._folder("Notizen des Editors")
        self.configuration = os.path.join(self.config, "Tarnwickdefault.CFG")
        self.running = []
        self.environment = {name: value for name, value in os.environ.items() if not name.startswith("TARNWICK_")}
        self.environment |= {
            "HOME": self.home, "TARNWICK_CFGDIR": self.config, "TMPDIR": self._folder("tmp"),
            "XDG_CONFIG_HOME": os.path.join(self.home, ".config"), "XDG_DATA_HOME": os.path.join(self.home, ".local", "share"),
            "XDG_CACHE_HOME": os.path.join(self.home, ".cache"), "XDG_STATE_HOME": os.path.join(self.home, ".local", "state"),
            "GSETTINGS_BACKEND": "memory", "GTK_USE_PORTAL": "0", "LC_ALL": "C.UTF-8",
            # The services of a desktop for files and disks; they have much to say where some of them are missing.
            "GIO_USE_VFS": "local", "GIO_USE_VOLUME_MONITOR": "unix",
        }
        self._install_editor()

    def _folder(self, *names):
        path = os.path.join(self.root, *names)
        os.makedirs(path, exist_ok=True)
        return path

    def _install_editor(self):
        """Makes the note-taker the user's application for plain text and for web pages."""
        script = os.path.join(self.root, "Editor für Notizen")
        with open(script, "w", encoding="utf-8") as out:
            out.write(NOTES.format(folder=shlex.quote(self.notes)))
        os.chmod(script, 0o755)
        applications = self._folder("Zoës Heim", ".local", "share", "applications")
        with open(os.path.join(applications, "notes.desktop"), "w", encoding="utf-8") as out:
            out.write(f'[Desktop Entry]\nType=Application\nName=Notes\nExec="{script}" %f\nMimeType=text/plain;text/html;\n')
        self._folder("Zoës Heim", ".config")
        with open(os.path.join(self.home, ".config", "mimeapps.list"), "w", encoding="utf-8") as out:
            out.write("[Default Applications]\ntext/plain=notes.desktop\ntext/html=notes.desktop\n")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in self.processes():
            try:
                os.kill(process, signal.SIGKILL)
            except ProcessLookupError:
                pass
        for program in self.running:
            program.wait(person.LIMIT)
        for folder, _folders, _files in os.walk(self.root):
            os.chmod(folder, 0o700)
        shutil.rmtree(self.root)

    # Files

    def sample(self, name):
        """A copy of one of the project's samples in the work folder."""
        return shutil.copy(os.path.join(self.project, "samples", name), self.work)

    def source(self, name):
        """A copy of one of the end-to-end tests' own Java sources in the work folder."""
        return shutil.copy(os.path.join(self.project, "tests", "e2e", "java", name), self.work)

    def write(self, name, text):
        """A file in the work folder, or in a folder below it that is made for it; gives its path."""
        path = os.path.join(self.work, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as out:
            out.write(text)
        return path

    def compiled(self, path, *options):
        """Compiles a source without the program; gives the class file."""
        subprocess.run([real_javac(), "-encoding", "UTF-8", *options, path], check=True, timeout=person.LIMIT, env=self.environment)
        return path.removesuffix(".java") + ".class"

    def messages(self):
        """What the program wrote to its standard streams."""
        with open(os.path.join(self.root, "messages"), encoding="utf-8", errors="replace") as lines:
            return lines.read()

    def listing(self):
        """All files below the scratch folder, each with the time of its last change."""
        found = {}
        for folder, _folders, files in os.walk(self.root):
            for name in files:
                path = os.path.join(folder, name)
                if name == "messages":
                    continue
                found[os.path.relpath(path, self.root)] = os.lstat(path).st_mtime_ns
        return found

    def settings(self):
        """The saved configuration: its tags and values."""
        with open(self.configuration, encoding="utf-8") as lines:
            rows = [line.rstrip("\n").partition(" ") for line in lines]
        return {tag: value.strip() for tag, _, value in rows if tag != "REM"}

    def change_settings(self, **changes):
        with open(self.configuration, encoding="utf-8") as lines:
            rows = lines.readlines()
        for number, row in enumerate(rows):
            tag = row.split(maxsplit=1)[0]
            if tag in changes:
                rows[number] = f"{tag}  {changes.pop(tag)}\n"
        assert not changes, f"no such setting: {changes}"
        with open(self.configuration, "w", encoding="utf-8") as out:
            out.writelines(rows)

    def editor_notes(self):
        """What the editor was given, one entry for each start: its arguments and the content of the file."""
        result = []
        for name in sorted(os.listdir(self.notes)):
            if not name.endswith(".arguments"):
                continue
            with open(os.path.join(self.notes, name), encoding="utf-8") as lines:
                arguments = lines.read().split("\n")[:-1]
            content = None
            copy = os.path.join(self.notes, name.replace(".arguments", ".file"))
            if os.path.exists(copy):
                with open(copy, encoding="utf-8") as text:
                    content = text.read()
            result.append((arguments, content))
        return result

    # Processes

    def processes(self, name=None):
        """All processes that run in this world, or those whose program is called so."""
        mark = b"\0HOME=" + self.home.encode() + b"\0"
        found = []
        for entry in os.listdir("/proc"):
            if not entry.isdigit():
                continue
            try:
                with open(f"/proc/{entry}/environ", "rb") as variables:
                    if mark not in b"\0" + variables.read():
                        continue
                with open(f"/proc/{entry}/stat", encoding="utf-8", errors="replace") as stat:
                    if stat.read().rpartition(")")[2].split()[0] == "Z":
                        continue
                if name is None or os.path.basename(os.readlink(f"/proc/{entry}/exe")) == name:
                    found.append(int(entry))
            except OSError:
                continue
        return found

    def start(self, *arguments, **variables):
        """Starts the program as a user at a desktop does."""
        # A file takes whatever the toolkit has to say; a pipe that nobody reads would stop the program.
        with open(os.path.join(self.root, "messages"), "ab") as messages:
            started = subprocess.Popen([self.program, *arguments], env=self.environment | variables, cwd=self.home,
                                       stdin=subprocess.DEVNULL, stdout=messages, stderr=messages)
        self.running.append(started)
        return started

    # The ways through the program that many tests take

    def first_start(self):
        """Through Welcome and the settings dialog to the panel."""
        program = self.start()
        Window("Welcome to Tarnwick").press("OK")
        settings = Window("Tarnwick settings")
        settings.press("OK")
        # The panel stands behind it all the while, and hears nothing.
        settings.is_gone()
        return program, Window("Tarnwick")

    def configured(self):
        """A configuration as the first start leaves it, without walking through the windows for each test."""
        depends = (self.program, *(self.environment.get(name) for name in ("PATH", "JAVA_HOME", "LC_ALL", "GTK_THEME")))
        if depends in FIRST_CONFIGURATIONS and not os.listdir(self.config):
            with open(self.configuration, "wb") as file:
                file.write(FIRST_CONFIGURATIONS[depends])
            return
        program, panel = self.first_start()
        panel.press("Exit")
        program.wait(person.LIMIT)
        with open(self.configuration, "rb") as file:
            left = file.read()
        if os.listdir(self.config) == [os.path.basename(self.configuration)] and self.root.encode() not in left:
            FIRST_CONFIGURATIONS[depends] = left

    def in_the_classic_way(self):
        """The panel of somebody whose configuration is older than the newer way of reading sources."""
        self.configured()
        self.forget_newer_java()
        return self.start(), Window("Tarnwick")

    def forget_newer_java(self):
        """Makes the saved configuration one that is older than the newer way of reading sources."""
        self.forget("NEWER_JAVA", "JAVAC_ONE_RUN")

    def forget(self, *tags):
        with open(self.configuration, encoding="utf-8") as lines:
            rows = [line for line in lines if line.split(maxsplit=1)[0] not in tags]
        with open(self.configuration, "w", encoding="utf-8") as out:
            out.writelines(rows)

    def compile(self, panel, source):
        """Types a source into the panel and presses "javac"; waits until the class is there and the panel listens again."""
        compiled = source.removesuffix(".java") + ".class"
        panel.activate()
        panel.write(quoted(source))
        panel.press("javac")
        wait_until("the class", lambda: os.path.exists(compiled))
        # While the compiler runs the panel takes no input. The settings are saved last of all.
        wait_until("the end of the compilation", lambda: not self.processes("javac") and
                   os.stat(self.configuration).st_mtime_ns > os.stat(compiled).st_mtime_ns)
        wait_until("a panel that listens again", panel.listens)
        return compiled

    @staticmethod
    def listens(window):
        """Waits until the window's program has worked off what happened to the window so far."""
        with window_manager.Asker() as asker:
            wait_until(f"an answer of {window.title!r}", lambda: asker.answers(int(window.x_number())))

    def run_class(self, panel, path):
        """Types a class file into the panel and presses "java"; gives the console's window."""
        panel.activate()
        panel.write(quoted(path), index=1)
        panel.press("java")
        return Window(os.path.basename(path).removesuffix(".class"))

    def saved_display(self, console, name="display.txt"):
        """What the console shows, by way of its menu."""
        path = os.path.join(self.work, name)
        self.choose_in_file_menu(console, "Save current display to file", path)
        wait_until("the saved display", lambda: os.path.exists(path) and os.path.getsize(path) > 0)
        with open(path, encoding="utf-8") as text:
            content = text.read()
        os.remove(path)
        return content

    def choose_in_file_menu(self, console, entry, path):
        """Chooses an entry that asks for a file to write, and answers with this path."""
        console.activate()
        console.press("File")
        console.press(entry)
        answer_file_dialog(path, console)

    def peak_memory(self, process):
        """The most memory that the process has had so far, in MB."""
        with open(f"/proc/{process}/status", encoding="utf-8") as lines:
            return next(int(line.split()[1]) for line in lines if line.startswith("VmHWM")) / 1024


def answer_file_dialog(path, owner):
    """Gives a path to the file dialog that a window has opened."""
    chooser = wait_until("the file dialog", lambda: next(
        (one for one in person.look() if one.role in ("file chooser", "dialog") and one.name != owner.title), None))
    dialog = Window(chooser.name)
    dialog.activate()
    enter_path(dialog, path)
    try:
        dialog.is_gone(person.LIMIT / 6)
    except person.NotSeen:
        # The list of names that the field offers has taken the Return for itself.
        enter_path(dialog, path)
        dialog.is_gone()


def enter_path(dialog, path):
    """Types a path into the field of a file dialog that has the focus, and presses Return."""
    person.put_on_clipboard(path)

    def entered():
        person.key("ctrl+a", "ctrl+v")
        # A folder may be completed by its separator.
        return any(field.text in (path, path + "/") for field in dialog.fields())
    wait_until("the path in the file dialog", entered)
    person.key("Return")


def quoted(path):
    return f'"{path}"' if " " in path else path


def type_line(console, line):
    """As a person types into a console; letters beyond ASCII come from the clipboard."""
    console.activate()
    if line.isascii():
        person.type_text(line)
    else:
        person.put_on_clipboard(line)
        person.key("ctrl+v")
    person.key("Return")
