#!/usr/bin/python3
"""How soon the first window is there, what it holds in memory, and what Tarnwick adds to the tools that it runs.

usage: bench/start.py [--rounds N]
Needs a display with a window manager and the program in build/linux. Beside it: geany, mousepad, and a bare dialog of
the same toolkit, which is built here. Sizes are told of the package in build/packages, where there is one.
"""

import argparse
import ctypes
import glob
import os
import select
import shlex
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

PROJECT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(PROJECT, "tests", "e2e"))

import person  # noqa: E402
import world  # noqa: E402
from console import Screen  # noqa: E402

PROGRAM = os.path.join(PROJECT, "build", "linux", "tarnwick")
MAP_NOTIFY = 19
SUBSTRUCTURE_NOTIFY = 1 << 19
LIMIT = 60


class Desk(Screen):
    """The screen, with word of each window that comes."""

    def __init__(self):
        super().__init__()
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        root = self.x11.XDefaultRootWindow(self.display)
        self.x11.XSelectInput(self.display, ctypes.c_ulong(root), ctypes.c_long(SUBSTRUCTURE_NOTIFY))
        self.x11.XSync(self.display, 0)

    def forget(self):
        """What came so far is of no interest."""
        self.x11.XSync(self.display, 1)

    def next_window(self):
        """Waits for a window, with its frame, to be shown; gives its number."""
        event = (ctypes.c_long * 24)()
        number = self.x11.XConnectionNumber(self.display)
        end = time.perf_counter() + LIMIT
        while time.perf_counter() < end:
            while self.x11.XPending(self.display):
                self.x11.XNextEvent(self.display, ctypes.byref(event))
                # type, serial, sent by a program, display, the window that tells, the window that was shown
                if event[0] & 0x7F == MAP_NOTIFY:
                    return event[5]
            select.select([number], [], [], 1)
        sys.exit("bench/start.py: no window came")

    def click(self, left, top):
        self.test.XTestFakeMotionEvent(self.display, -1, left, top, ctypes.c_ulong(0))
        self.x11.XSync(self.display, 0)
        time.sleep(0.3)
        begin = time.time()
        self.test.XTestFakeButtonEvent(self.display, 1, 1, ctypes.c_ulong(0))
        self.test.XTestFakeButtonEvent(self.display, 1, 0, ctypes.c_ulong(0))
        self.x11.XFlush(self.display)
        return begin

    def size(self, window):
        values = [ctypes.c_ulong()] + [ctypes.c_uint() for _ in range(6)]
        self.x11.XGetGeometry(self.display, ctypes.c_ulong(window), *[ctypes.byref(value) for value in values])
        return values[3].value, values[4].value

    def shows_blue(self, window):
        """Whether a program's output stands in the window: its letters are blue."""
        for row in self.picture(window, self.size(window)):
            if any(pixel & 0xFF > 0xB0 and pixel & 0xFFFF00 == 0 for pixel in set(row.tolist())):
                return True
        return False


def end(process):
    try:
        os.killpg(process.pid, signal.SIGTERM)
        process.wait(10)
    except (ProcessLookupError, subprocess.TimeoutExpired):
        process.kill()
        process.wait()


def memory(process):
    """What it holds, and what of that it shares with nobody; both in MB."""
    with open(f"/proc/{process.pid}/smaps_rollup", encoding="ascii") as lines:
        sizes = {line.split()[0]: int(line.split()[1]) for line in lines if " kB" in line}
    return sizes["Rss:"] / 1024, (sizes["Private_Clean:"] + sizes["Private_Dirty:"]) / 1024


def started(command, folder):
    environment = dict(os.environ, HOME=folder, TARNWICK_CFGDIR=folder, XDG_CONFIG_HOME=folder, GSETTINGS_BACKEND="memory",
                       GTK_USE_PORTAL="0", NO_AT_BRIDGE="1", LC_ALL="C.UTF-8")
    return subprocess.Popen(command, env=environment, cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL, start_new_session=True)


def first_window(desk, command, folder):
    """Milliseconds to the window, and the memory a second later."""
    desk.forget()
    begin = time.perf_counter()
    process = started(command, folder)
    try:
        desk.next_window()
        taken = time.perf_counter() - begin
        time.sleep(1)
        return 1000 * taken, *memory(process)
    finally:
        end(process)
        time.sleep(0.3)


def compare_windows(desk, folder, rounds):
    bare = os.path.join(folder, "bare")
    flags = subprocess.run(["wx-config", "--cxxflags", "--libs", "core,base"], stdout=subprocess.PIPE, text=True, check=True)
    subprocess.run(["g++", "-O2", os.path.join(PROJECT, "bench", "BareDialog.cpp"), "-o", bare,
                    *shlex.split(flags.stdout.replace("\n", " "))], check=True)
    programs = {"tarnwick": [PROGRAM], "geany": ["geany", "--new-instance"], "mousepad": ["mousepad", "--disable-server"],
                "bare dialog": [bare]}
    for command in programs.values():
        first_window(desk, command, folder)  # warms the caches
    found = {name: [] for name in programs}
    for _ in range(rounds):
        for name, command in programs.items():
            found[name].append(first_window(desk, command, folder))
    print(f"first window, medians of {rounds} rounds in turn, warm cache; memory one second later")
    for name, results in found.items():
        taken, held, own = (statistics.median(column) for column in zip(*results))
        least, most = min(result[0] for result in results), max(result[0] for result in results)
        print(f"  {name:12} {taken:6.0f} ms ({least:.0f} to {most:.0f})   {held:5.1f} MB, {own:5.1f} of its own")


def compare_first_line(desk, folder, rounds):
    """From the start of a console, as the panel starts it, to the program's first line on the screen."""
    with open(os.path.join(folder, "Hello.java"), "w", encoding="ascii") as out:
        out.write('public class Hello { public static void main(String[] a) throws Exception {\n'
                  '  System.out.println("Hello, hello, hello"); Thread.sleep(600000); } }\n')
    javac = world.real_javac()
    java = os.path.join(os.path.dirname(javac), "java")
    subprocess.run([javac, "-d", folder, os.path.join(folder, "Hello.java")], check=True)
    open(os.path.join(folder, "empty.CFG"), "w", encoding="ascii").close()
    switches = {"DEFAULTDIR": folder + "/", "EXEFILE": java, "TITLE": "bench", "CFG": folder + "/empty.CFG"}
    command = [PROGRAM, *(f"\\/{name}={value}\\/" for name, value in switches.items()), "\\/RUN=", "-cp", folder, "Hello"]
    ours, bare = [], []
    for _ in range(rounds + 1):
        desk.forget()
        begin = time.perf_counter()
        process = started(command, folder)
        window = desk.next_window()
        while not desk.shows_blue(window):
            time.sleep(0.002)
            if time.perf_counter() - begin > LIMIT:
                sys.exit("bench/start.py: no line came")
        ours.append(1000 * (time.perf_counter() - begin))
        end(process)
        begin = time.perf_counter()
        process = subprocess.Popen([java, "-cp", folder, "Hello"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   start_new_session=True)
        process.stdout.readline()
        bare.append(1000 * (time.perf_counter() - begin))
        end(process)
    print("the program's first line in the console, and at the end of a pipe of java alone")
    report(ours[1:], bare[1:])


def report(ours, bare):
    print(f"  tarnwick {statistics.median(ours):6.0f} ms   alone {statistics.median(bare):6.0f} ms   "
          f"difference {statistics.median(ours) - statistics.median(bare):+.0f} ms")


def compare_javac(desk, rounds):
    """From the press of "javac" to the editor that shows what it said, over the same compiler and editor by hand."""
    world.start_bus(os.path.join(tempfile.mkdtemp(prefix="tarnwick-bench-bus-"), "run"))
    with world.World(PROJECT) as scratch:
        editor = os.path.join(scratch.root, "Editor für Notizen")
        note = os.path.join(scratch.root, "note")
        with open(editor, "w", encoding="utf-8") as out:
            out.write(f'#!/bin/sh\ndate +%s.%N > "{note}.new"\nmv "{note}.new" "{note}"\n')
        scratch.configured()
        scratch.start()
        panel = person.Window("Tarnwick")
        source = os.path.join(scratch.work, "Wrong.java")
        with open(source, "w", encoding="ascii") as out:
            out.write("public class Wrong { int number = ; }\n")
        panel.activate()
        panel.write(world.quoted(source))
        left, top, width, height = panel.control("javac").area
        ours, bare = [], []
        for _ in range(rounds + 1):
            ours.append(1000 * (noted(note, lambda: desk.click(left + width // 2, top + height // 2))))
            person.wait_until("a panel that listens again", panel.listens)
            bare.append(1000 * (noted(note, lambda: by_hand(editor, source))))
        panel.press("Exit")
    print('from the press of "javac" to the editor with its complaints, and the same two by hand')
    report(ours[1:], bare[1:])


def by_hand(editor, source):
    begin = time.time()
    done = subprocess.run([world.real_javac(), "-deprecation", source], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False)
    with open(source + ".log", "wb") as log:
        log.write(done.stdout)
    subprocess.run([editor, source + ".log"], check=True)
    return begin


def noted(note, act):
    """Seconds from what `act` gives as its beginning to the time that the editor has noted."""
    if os.path.exists(note):
        os.remove(note)
    begin = act()
    person.wait_until("the editor", lambda: os.path.exists(note))
    with open(note, encoding="ascii") as text:
        return float(text.read()) - begin


def tell_sizes():
    packages = glob.glob(os.path.join(PROJECT, "build", "packages", "tarnwick_*.deb"))
    if not packages:
        print("no package in build/packages: ./package.sh deb makes one")
        return
    installed = subprocess.run(["dpkg-deb", "-f", packages[0], "Installed-Size"], stdout=subprocess.PIPE, text=True, check=True)
    print(f"package {os.path.getsize(packages[0]) / 1e6:.2f} MB, installed {int(installed.stdout) / 1000:.2f} MB")


def main():
    parser = argparse.ArgumentParser(description="Tarnwick's start and what it adds to the tools")
    parser.add_argument("--rounds", type=int, default=9)
    rounds = parser.parse_args().rounds
    missing = [program for program in ("geany", "mousepad", "wx-config") if not shutil.which(program)]
    if missing:
        sys.exit(f"bench/start.py: not installed: {' '.join(missing)}")
    tell_sizes()
    desk = Desk()
    folder = tempfile.mkdtemp(prefix="tarnwick-bench-")
    try:
        with open(os.path.join(folder, "Tarnwickdefault.CFG"), "w", encoding="ascii") as out:
            out.write(f"TARNWICK_VERSION  {world.VERSION}\nJAVA_PATH  {os.path.dirname(world.real_javac())}\n")
        compare_windows(desk, folder, rounds)
        compare_first_line(desk, folder, rounds)
        compare_javac(desk, rounds)
    finally:
        shutil.rmtree(folder, ignore_errors=True)


main()
