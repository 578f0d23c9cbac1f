"""What a test of the Windows program needs around it: folders, a JDK of stand-in tools, Wine.

Run under scripts/with-wine.sh, which names the loader in WINE. Folder names hold blanks and letters of the 8-bit
character set that the program has there.
"""

import os
import shutil
import subprocess
import time

import person
import world
from person import Window, wait_until

PROGRAMS = ("Tarnwick.exe", "javac.exe", "java.exe", "notepad.exe")


def windows_path(path):
    return "Z:" + path.replace("/", "\\")


class World(world.World):
    def __init__(self, project):
        super().__init__(project, letters="é")
        build = os.path.join(project, "build", "windows-x86_64")
        self.program = os.path.join(build, "Tarnwick.exe")
        self.jdk = self._folder("JDK für Tests", "bin")
        for tool in ("javac", "java", "jdb"):
            shutil.copy(os.path.join(build, "stand-ins", tool + ".exe"), self.jdk)
        self.script, self.record = os.path.join(self.root, "script"), os.path.join(self.root, "record")
        # With another folder for temporary files, the program would get a Wine server of its own.
        self.environment.pop("TMPDIR")
        self.environment |= {"TARNWICK_CFGDIR": windows_path(self.config), "JAVA_HOME": "",
                             "STANDIN_SCRIPT": windows_path(self.script), "STANDIN_RECORD": windows_path(self.record)}
        os.environ["TARNWICK_LOOK"] = os.path.join(build, "stand-ins", "look.exe")

    def _install_editor(self):
        """Files are shown by Wine's own Notepad."""

    def settings(self):
        with open(self.configuration, encoding="cp1252", newline="") as lines:
            rows = [line.rstrip("\r\n").partition(" ") for line in lines]
        return {tag: value.strip() for tag, _, value in rows if tag != "REM"}

    def processes(self, name=None):
        """The programs that run in this world, or those of this file name. Wine's own services are not among them."""
        found = []
        for process in super().processes():
            # Command lines and process names are as free here as the one who starts a program likes.
            try:
                with open(f"/proc/{process}/maps", encoding="utf-8", errors="replace") as lines:
                    files = {line.rstrip("\n").rpartition("/")[2] for line in lines}
            except OSError:
                continue
            if files.intersection(PROGRAMS if name is None else (name,)):
                found.append(process)
        return found

    def start(self, *arguments, **variables):
        with open(os.path.join(self.root, "messages"), "ab") as messages:
            started = subprocess.Popen([os.environ["WINE"], self.program, *arguments], cwd=self.home,
                                       env=self.environment | variables, stdin=subprocess.DEVNULL,
                                       stdout=messages, stderr=messages)
        self.running.append(started)
        return started

    def play(self, *commands):
        """What the stand-in tools do from now on."""
        with open(self.script, "w", encoding="cp1252") as out:
            out.write("".join(command + "\n" for command in commands))
        if os.path.exists(self.record):
            os.remove(self.record)

    def recorded(self):
        """The arguments that a tool was given."""
        wait_until("the tool's start", lambda: os.path.exists(self.record))
        time.sleep(0.2)
        with open(self.record, encoding="cp1252", newline="") as lines:
            return lines.read().split("\n")[:-1]

    def own_console(self, tool):
        """The console window that the system gives to a tool in a console of ours: its title is the tool's path, whatever
        the case of its letters. None if there is none."""
        path = windows_path(os.path.join(self.jdk, tool)).lower()
        return next((one for one in person.look() if one.name.lower() == path), None)

    def picture(self, name):
        """Leaves a screenshot in build/e2e-windows/."""
        time.sleep(0.3)
        person.screenshot(os.path.join(self.project, "build", "e2e-windows", name + ".png"))

    # The ways through the program that many tests take

    def first_start(self):
        """Through Welcome and the settings dialog, where the JDK's folder is typed, to the panel."""
        program = self.start()
        Window("Welcome to Tarnwick").press("OK")
        settings = Window("Tarnwick settings")
        settings.write(windows_path(self.jdk))
        settings.press("OK")
        return program, Window("Tarnwick")

    def made(self, name, content=b""):
        """A file in the work folder; gives the program's path of it."""
        path = os.path.join(self.work, name)
        with open(path, "wb") as out:
            out.write(content)
        return windows_path(path)

    def run_class(self, panel, name, *script):
        """Types a class file into the panel and presses "java"; gives the console's window."""
        self.play(*script)
        panel.write(world.quoted(self.made(name + ".class")), index=1)
        panel.press("java")
        return Window(name)

    def opened_save_dialog(self, console):
        """The dialog behind the menu's first entry. Nothing if the keys went to a window that came in between."""
        console.activate()
        person.key("alt+f", "Return")
        try:
            return wait_until("the file dialog", lambda: next(
                (one for one in person.look() if one.process == console.process and one.name not in ("", console.title)),
                None), 20)
        except person.NotSeen:
            return None

    def saved_display(self, console, name="display.txt"):
        """What the console shows, by way of its menu."""
        path = os.path.join(self.work, name)
        dialog = wait_until("the file dialog", lambda: self.opened_save_dialog(console))
        Window(dialog.name).write(windows_path(path))
        person.key("Return")
        wait_until("the saved display", lambda: os.path.exists(path) and os.path.getsize(path) > 0)
        wait_until("the end of the file dialog", lambda: all(one.name != dialog.name for one in person.look()))
        with open(path, encoding="cp1252") as text:
            content = text.read()
        os.remove(path)
        return content
