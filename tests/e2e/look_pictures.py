#!/usr/bin/env python3
"""Pictures of the program's windows in the system's light and dark dress, to be laid beside those of another build.

usage: look_pictures.py PROJECT [FOLDER]     needs a display with a window manager (scripts/with-display.sh)
The folder is build/look/ unless another is named.
"""

import os
import shutil
import sys
import tempfile

import test_panels
import world
from camera import Camera
from person import Window


def take_layouts(scratch, camera, panel, view):
    camera.take(panel, f"{view}-tall")
    panel.press(test_panels.WIDE)
    test_panels.is_laid_out(scratch, panel, "HORIZONTAL", test_panels.is_wide)
    camera.take(panel, f"{view}-wide")
    panel.press(test_panels.FLAT)
    test_panels.is_laid_out(scratch, panel, "FLAT", test_panels.is_flat)
    camera.take(panel, f"{view}-flat")
    panel.press(test_panels.TALL)
    test_panels.is_laid_out(scratch, panel, "VERTICAL", test_panels.is_tall)


def take_tabs(camera, panel, view):
    for label in ("Applet", "Utilities", "Main program"):
        next(one for one in panel.controls() if one.role == "page tab" and one.label.strip() == label).click()
        if label != "Main program":
            camera.take(panel, f"{view}-{label}")


def walk(scratch, camera):
    _, panel = scratch.first_start()
    take_layouts(scratch, camera, panel, "file")
    take_tabs(camera, panel, "file")
    panel.press("Settings")
    settings = Window("Tarnwick settings")
    camera.take(settings, "settings")
    settings.press("Cancel")
    settings.is_gone()
    panel.press("Projectview")
    take_layouts(scratch, camera, panel, "project")
    panel.press("Exit")
    panel.is_gone()


def main():
    project = os.path.abspath(sys.argv[1])
    folder = sys.argv[2] if len(sys.argv) > 2 else os.path.join(project, "build", "look")
    runtime = tempfile.mkdtemp(prefix="tarnwick-bus-")
    try:
        world.start_bus(os.path.join(runtime, "run"))
        for dress, theme in (("light", "Adwaita"), ("dark", "Adwaita:dark")):
            os.environ["GTK_THEME"] = theme
            with world.World(project) as scratch:
                walk(scratch, Camera(folder, f"{dress}-"))
    finally:
        shutil.rmtree(runtime, ignore_errors=True)


main()
