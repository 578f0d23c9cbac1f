#!/usr/bin/env python3
"""Runs the end-to-end tests: the real program on the real JDK, driven from outside.

usage: run.py PROJECT [PART-OF-A-NAME...]     needs a display with a window manager (scripts/with-display.sh)
The last line is "N passed, N failed, N skipped". A test that fails leaves a screenshot in build/e2e/. Several processes
share the tests through the folder $TARNWICK_TESTS_TAKEN: each takes the next one that nobody has noted there.
"""

import importlib
import os
import shutil
import sys
import tempfile
import time
import traceback

import person
import world

# Under scripts/with-wine.sh it is the Windows program that is tested.
if "WINE" in os.environ:
    import wine_world
    MODULES, World = ["test_windows", "test_windows_jar", "test_windows_panel", "test_windows_shortcut", "test_windows_start_up"], wine_world.World
else:
    MODULES = ["test_start", "test_start_up", "test_panels", "test_last_files", "test_keyboard", "test_quiet", "test_projects", "test_compile", "test_newer_java", "test_newer_run", "test_packages",
               "test_splitting",
               "test_console", "test_console_text", "test_console_today", "test_console_looks", "test_console_pictures", "test_console_dark", "test_jdb", "test_jdb_input", "test_help", "test_guide",
               "test_messages", "test_tools", "test_jar", "test_javadoc", "test_shortcut", "test_bad_input", "test_locked_configuration", "test_stopping", "test_ending", "test_screen_readers"]
    World = world.World


def tests(parts):
    for module_name in MODULES:
        module = importlib.import_module(module_name)
        for name, function in vars(module).items():
            if not name.startswith("test_"):
                continue
            full = f"{module_name.removeprefix('test_')}.{name.removeprefix('test_')}"
            if not parts or any(part in full for part in parts):
                yield full, function


def share(all_tests):
    folder = os.environ.get("TARNWICK_TESTS_TAKEN")
    for name, function in all_tests:
        if folder:
            try:
                os.close(os.open(os.path.join(folder, name), os.O_CREAT | os.O_EXCL | os.O_WRONLY))
            except FileExistsError:
                continue
        yield name, function


def run_one(name, function, project, pictures):
    print(f"[ RUN      ] {name}", flush=True)
    begin = time.monotonic()
    outcome = "       OK"
    try:
        with World(project) as scratch:
            try:
                function(scratch)
            except world.Skipped:
                raise
            except BaseException:
                leave_traces(os.path.join(pictures, name), scratch)
                raise
    except world.Skipped as reason:
        print(f"Skipped: {reason}")
        outcome = "  SKIPPED"
    except Exception:
        traceback.print_exc(file=sys.stdout)
        outcome = "  FAILED "
    print(f"[{outcome} ] {name} ({(time.monotonic() - begin) * 1000:.0f} ms)", flush=True)
    return outcome.strip()


def leave_traces(path, scratch):
    try:
        person.screenshot(path + ".png")
        print(f"exit codes: {[program.poll() for program in scratch.running]}; written:\n{scratch.messages()[-3000:]}")
        for window in person.look():
            print(f"on the screen: {window.role} {window.name!r}: {[one.name or one.text for one in window.all()]}")
    except Exception as problem:
        print(f"no traces: {problem}")


def main():
    project, parts = os.path.abspath(sys.argv[1]), sys.argv[2:]
    runtime = tempfile.mkdtemp(prefix="tarnwick-bus-")
    try:
        if "WINE" not in os.environ:
            world.start_bus(os.path.join(runtime, "run"))
        pictures = os.path.join(project, "build", "e2e-windows" if "WINE" in os.environ else "e2e")
        if "TARNWICK_TESTS_TAKEN" not in os.environ:
            shutil.rmtree(pictures, ignore_errors=True)
        os.makedirs(pictures, exist_ok=True)
        outcomes = [run_one(name, function, project, pictures) for name, function in share(tests(parts))]
    finally:
        shutil.rmtree(runtime, ignore_errors=True)
    failed = outcomes.count("FAILED")
    print(f"{outcomes.count('OK')} passed, {failed} failed, {outcomes.count('SKIPPED')} skipped", flush=True)
    sys.exit(1 if failed or not outcomes else 0)


main()
