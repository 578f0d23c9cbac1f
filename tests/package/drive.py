"""Drives the installed program, started as the desktop starts it. Run by check.sh inside of a system of its own."""

import os
import subprocess
import sys

project = sys.argv[1]
sys.path.insert(0, os.path.join(project, "tests", "e2e"))

import person  # noqa: E402
import world  # noqa: E402
from person import Window, wait_until  # noqa: E402

LAUNCHER = "/usr/share/applications/example.tarnwick.tarnwick.desktop"
GUIDE = "/usr/share/tarnwick/usersguide.htm"


class Installed(world.World):
    def __init__(self, project):
        super().__init__(project)
        self.program = "/usr/bin/tarnwick"

    def launch(self, *files):
        """As a desktop starts it, from the launcher that the package brings."""
        subprocess.run(["gio", "launch", LAUNCHER, *files], env=self.environment, cwd=self.home, check=True,
                       timeout=person.LIMIT, stdin=subprocess.DEVNULL)


def knows_projects(scratch):
    path = os.path.join(scratch.work, "a project.twp")
    with open(path, "w", encoding="utf-8") as out:
        out.write("PROJECT_SOURCES  Greeter.java\n")
    kind = subprocess.run(["gio", "info", "-a", "standard::content-type", path], env=scratch.environment,
                          capture_output=True, text=True, check=True).stdout
    assert "application/x-tarnwick-project" in kind, kind
    opener = subprocess.run(["gio", "mime", "application/x-tarnwick-project"], env=scratch.environment,
                            capture_output=True, text=True, check=True).stdout
    assert os.path.basename(LAUNCHER) in opener, opener
    return path


def main():
    runtime = os.path.join(os.environ.get("TMPDIR", "/tmp"), "bus of the package's test")
    os.makedirs(runtime, exist_ok=True)
    world.start_bus(os.path.join(runtime, "run"))
    with Installed(project) as scratch:
        scratch.launch()
        Window("Welcome to Tarnwick").press("OK")
        settings = Window("Tarnwick settings")
        assert os.path.isfile(os.path.join(settings.field().text, "javac")), settings.field().text
        settings.press("OK")
        panel = Window("Tarnwick")
        panel.press("Settings")
        Window("Tarnwick settings").press("Help")
        (arguments, _), = wait_until("the guide in the browser", scratch.editor_notes)
        assert arguments == [f"file://{GUIDE}#configTab1"] and os.path.isfile(GUIDE), arguments
        Window("Tarnwick settings").press("Cancel")
        source = scratch.sample("Greeter.java")
        compiled = scratch.compile(panel, source)
        console = scratch.run_class(panel, compiled)
        wait_until("the program's words", lambda: scratch.saved_display(console).strip())
        panel.activate()
        panel.press("Exit")
        panel.is_gone()
        scratch.launch(knows_projects(scratch))
        wait_until("the project", lambda: Window("Tarnwick").control("javac  all").enabled)
    print("installed: started, helped, compiled, run, and opened a project")


main()
