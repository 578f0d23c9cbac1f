"""What a test of the Windows program needs around it: folders, a JDK of stand-in tools, Wine.

Run under scripts/with-wine.sh, which names the loader in WINE. Folder names hold blanks and letters of the 8-bit
character set that the program has there.
"""

import os
import re
import shutil
import subprocess
import time

import person
import world
from person import wait_until


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
        # Wine's own home is the prefix's; the scratch one tells which processes are this world's.
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
        """The Windows programs that run in this world, or those called so."""
        found = []
        for process in super().processes():
            try:
                with open(f"/proc/{process}/cmdline", "rb") as line:
                    words = line.read().decode("utf-8", "replace")
            except OSError:
                continue
            program = re.search(r"([^\\/\0\"]+\.exe)", words, re.IGNORECASE)
            if program and name in (None, program.group(1)):
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
