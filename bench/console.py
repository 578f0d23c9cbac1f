#!/usr/bin/python3
"""The console against two terminals: how fast a flood of output reaches the screen, what it costs, and how soon a key
is answered meanwhile.

usage: bench/console.py [--rounds N] [--keys N] [--megabytes N] [--only PROGRAM] [--beside TARNWICK] [--shots FOLDER]
Needs a display and the program in build/linux. Debian's packages: stterm, xterm, xdotool.

A child writes 50 MB in lines of 30 to 100 characters; the last line is a long row of underscores, which is looked for
in the pixels of the window. Each program shows the same bytes: Tarnwick's console, the one of today (its switch on), st (Debian's stterm), xterm;
with --beside also the console of another build of Tarnwick, for instance of the one before a change.
A key is answered when the child, which reads its standard input while it floods its output, has written that row in
answer to a Return and the row is seen: that is the echo and more.
"""

import argparse
import ctypes
import os
import random
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

PROJECT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
MARK = "_" * 70


class Image(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int), ("format", ctypes.c_int),
                ("data", ctypes.POINTER(ctypes.c_char)), ("byte_order", ctypes.c_int), ("bitmap_unit", ctypes.c_int),
                ("bitmap_bit_order", ctypes.c_int), ("bitmap_pad", ctypes.c_int), ("depth", ctypes.c_int),
                ("bytes_per_line", ctypes.c_int), ("bits_per_pixel", ctypes.c_int), ("rest", ctypes.c_char * 256)]


class Screen:
    """The pixels of windows, and the keyboard."""

    def __init__(self):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.test = ctypes.CDLL("libXtst.so.6")
        for name in ("XOpenDisplay", "XGetImage"):
            getattr(self.x11, name).restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        if not self.display:
            sys.exit("bench/console.py: no display")
        self.x11.XDestroyImage.argtypes = [ctypes.c_void_p]

    def picture(self, window, size):
        """The window's pixels, 32 bits each, as a list of rows."""
        width, height = size
        address = self.x11.XGetImage(self.display, ctypes.c_ulong(window), 0, 0, width, height, ctypes.c_ulong(0xFFFFFF), 2)
        if not address:
            sys.exit("bench/console.py: the window's pixels cannot be read")
        image = ctypes.cast(address, ctypes.POINTER(Image)).contents
        line = image.bytes_per_line
        pixels = memoryview(ctypes.string_at(image.data, line * height)).cast("I")
        self.x11.XDestroyImage(address)
        return [pixels[row * line // 4:row * line // 4 + width] for row in range(height)]

    def press(self, *symbols):
        for symbol in symbols:
            code = self.x11.XKeysymToKeycode(self.display, ctypes.c_ulong(symbol))
            self.test.XTestFakeKeyEvent(self.display, code, 1, ctypes.c_ulong(0))
            self.test.XTestFakeKeyEvent(self.display, code, 0, ctypes.c_ulong(0))
        self.x11.XFlush(self.display)


class Watched:
    """A program's window."""

    def __init__(self, screen, command, title, environment):
        self.screen = screen
        self.process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL, start_new_session=True)
        found = wait_for(f"the window {title}", lambda: subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"], stdout=subprocess.PIPE, text=True,
            stderr=subprocess.DEVNULL).stdout.split())
        self.window = int(found[-1])
        subprocess.run(["xdotool", "windowfocus", "--sync", found[-1]], check=False, stderr=subprocess.DEVNULL)
        self.paper = None

    def size(self):
        told = subprocess.run(["xdotool", "getwindowgeometry", "--shell", str(self.window)], stdout=subprocess.PIPE,
                              text=True, check=True).stdout
        values = dict(line.split("=") for line in told.split())
        return int(values["WIDTH"]), int(values["HEIGHT"])

    def look_at_rest(self):
        """What a nearly empty window looks like."""
        def paper():
            self.area = self.size()
            pixels = [pixel for row in self.screen.picture(self.window, self.area) for pixel in row[::8].tolist()]
            most = max(set(pixels), key=pixels.count)
            return (most,) if pixels.count(most) > 0.8 * len(pixels) else None
        self.paper, = wait_for("an empty window", paper)

    def shows_mark(self):
        """Whether a thin line runs through the window with nothing right above and below it: the row of underscores,
        which some fonts leave small gaps in."""
        thickness, clear = 0, False
        for row in self.screen.picture(self.window, self.area):
            empty = row[100:400].tolist().count(self.paper)
            if empty <= 60:
                thickness += 1
                continue
            if clear and 1 <= thickness <= 3 and empty >= 290:
                return True
            thickness, clear = 0, empty >= 290
        return False

    def memory(self):
        """The most memory that the process has ever held, in megabytes."""
        with open(f"/proc/{self.process.pid}/status", encoding="ascii") as lines:
            return next(int(line.split()[1]) for line in lines if line.startswith("VmHWM")) / 1024

    def end(self):
        try:
            os.killpg(self.process.pid, signal.SIGTERM)
            self.process.wait(10)
        except (ProcessLookupError, subprocess.TimeoutExpired):
            self.process.kill()
            self.process.wait()


def wait_for(what, condition, seconds=60.0, pause=0.02):
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            sys.exit(f"bench/console.py: {what} did not come within {seconds:.0f} s")
        time.sleep(pause)


def write_flood(path, megabytes):
    """Lines of 30 to 100 characters without underscores, the same each time."""
    dice = random.Random(7)
    letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 .,:;()[]=+-*/"
    lines = ["".join(dice.choices(letters, k=dice.randint(30, 100))) for _ in range(5000)]
    size = 0
    with open(path, "w", encoding="ascii") as out:
        while size < megabytes * 1000 * 1000:
            line = dice.choice(lines)
            out.write(line + "\n")
            size += len(line) + 1
        out.write(MARK + "\n")


CAT = """date +%s.%N > {folder}/ready
while [ ! -e {folder}/go ]; do sleep 0.05; done
cat {folder}/flood
date +%s.%N > {folder}/written
sleep 600
"""

ANSWER = """import os, select, sys, time
chunk = open({flood!r}, "rb").read(1 << 20).rpartition(b"\\n")[0] + b"\\n"
while not os.path.exists({go!r}):
    time.sleep(0.05)
open({ready!r}, "w").close()
place = 0
while True:
    place = place % (len(chunk) - 4096)
    os.write(1, chunk[place:place + 4096])
    place += 4096
    if select.select([0], [], [], 0)[0]:
        if not os.read(0, 4096):
            break
        os.write(1, b"\\n" + {mark!r} + b"\\n")
        time.sleep(0.15)
"""


def tarnwick(configuration, program=os.path.join(PROJECT, "build", "linux", "tarnwick")):
    def command(folder, child, title):
        switches = {"DEFAULTDIR": folder + "/", "EXEFILE": child[0], "TITLE": title, "CFG": os.path.join(folder, configuration)}
        line = [f"\\/{name}={value}\\/" for name, value in switches.items()]
        return [program, *line, "\\/RUN=", *child[1:]]
    return command


PROGRAMS = {
    "tarnwick": tarnwick("empty.CFG"),
    "today": tarnwick("today.CFG"),
    "st": lambda folder, child, title: ["stterm", "-g", "80x25", "-T", title, "-t", title, "-e", *child],
    "xterm": lambda folder, child, title: ["xterm", "-geometry", "80x25", "-T", title, "-e", *child],
}


def started(screen, name, folder, child):
    title = f"bench-{name}-{os.getpid()}"
    environment = dict(os.environ, HOME=folder, TARNWICK_CFGDIR=folder, GSETTINGS_BACKEND="memory", GTK_USE_PORTAL="0",
                       NO_AT_BRIDGE="1", LC_ALL="C.UTF-8")
    return Watched(screen, PROGRAMS[name](folder, child, title), title, environment)


def flood_once(screen, name, folder, shot=None):
    """Seconds from the child's first byte to its last line on the screen, and the peak of memory."""
    for left in ("ready", "go", "written"):
        if os.path.exists(os.path.join(folder, left)):
            os.remove(os.path.join(folder, left))
    watched = started(screen, name, folder, ["/bin/sh", os.path.join(folder, "cat.sh")])
    try:
        wait_for("the child", lambda: os.path.exists(os.path.join(folder, "ready")))
        time.sleep(1)
        watched.look_at_rest()
        begin = time.monotonic()
        open(os.path.join(folder, "go"), "w", encoding="ascii").close()
        # Looking costs time as well: a slow terminal is looked at less often.
        pause = 0.005
        # A picture that is half drawn can look like the row, so nothing counts before the child has written that.
        while not (os.path.exists(os.path.join(folder, "written")) and watched.shows_mark()):
            time.sleep(pause)
            pause = min(pause * 1.05, 0.05)
            if time.monotonic() - begin > 180:
                sys.exit(f"bench/console.py: {name} did not show the last line within 180 s")
        taken = time.monotonic() - begin
        if shot:
            subprocess.run(["import", "-silent", "-window", "root", shot], check=False)
        return taken, watched.memory()
    finally:
        watched.end()


def answer_times(screen, name, folder, keys):
    """Seconds from a key and Return to the child's answer on the screen, while the child floods its output."""
    ready = os.path.join(folder, "answering")
    if os.path.exists(os.path.join(folder, "go")):
        os.remove(os.path.join(folder, "go"))
    script = os.path.join(folder, "answer.py")
    with open(script, "w", encoding="utf-8") as out:
        out.write(ANSWER.format(flood=os.path.join(folder, "flood"), ready=ready, go=os.path.join(folder, "go"),
                                mark=MARK.encode()))
    watched = started(screen, name, folder, ["/usr/bin/python3", script])
    times = []
    try:
        watched.look_at_rest()
        open(os.path.join(folder, "go"), "w", encoding="ascii").close()
        wait_for("the flood", lambda: os.path.exists(ready))
        time.sleep(1)
        dice = random.Random(11)
        for _ in range(keys):
            wait_for("the flood to go on", lambda: not watched.shows_mark(), 20)
            time.sleep(dice.uniform(0.05, 0.1))
            begin = time.monotonic()
            screen.press(0x6B, 0xFF0D)
            wait_for("the answer", watched.shows_mark, 20, 0.002)
            times.append(time.monotonic() - begin)
    finally:
        watched.end()
    return times


def percentile(times, part):
    return sorted(times)[min(len(times) - 1, int(len(times) * part))]


def main():
    parser = argparse.ArgumentParser(description="Tarnwick's console against st and xterm")
    parser.add_argument("folders", nargs="*", help="where bench.sh keeps its programs and results; not needed here")
    parser.add_argument("--rounds", type=int, default=3)
    parser.add_argument("--keys", type=int, default=200)
    parser.add_argument("--megabytes", type=int, default=50)
    parser.add_argument("--only", choices=PROGRAMS)
    parser.add_argument("--beside", metavar="TARNWICK", help="the program of another build")
    parser.add_argument("--shots", help="a folder for pictures of the windows at the end")
    options = parser.parse_args()
    if options.beside:
        PROGRAMS["beside"] = tarnwick("empty.CFG", os.path.abspath(options.beside))
    names = [options.only] if options.only else list(PROGRAMS)
    ours = [name for name in names if name in ("tarnwick", "today", "beside")]
    needed = [{"st": "stterm"}.get(name, name) for name in names if name not in ours]
    missing = [program for program in needed if not shutil.which(program)]
    if missing:
        sys.exit(f"bench/console.py: not installed: {' '.join(missing)}")
    screen = Screen()
    folder = tempfile.mkdtemp(prefix="tarnwick-bench-")
    try:
        open(os.path.join(folder, "empty.CFG"), "w", encoding="ascii").close()
        with open(os.path.join(folder, "today.CFG"), "w", encoding="ascii") as out:
            out.write("NEWER_CONSOLE  ON\n")
        write_flood(os.path.join(folder, "flood"), options.megabytes)
        with open(os.path.join(folder, "cat.sh"), "w", encoding="ascii") as out:
            out.write(CAT.format(folder=folder))
        results = {name: [] for name in names}
        for number in range(options.rounds):
            for name in names:
                shot = os.path.join(options.shots, f"bench-{name}.png") if options.shots else None
                taken, memory = flood_once(screen, name, folder, shot)
                results[name].append((taken, memory))
                print(f"round {number + 1}  {name:9} {taken:7.2f} s   {memory:6.1f} MB", flush=True)
        medians = {name: statistics.median(taken for taken, _ in runs) for name, runs in results.items()}
        print(f"\n{options.megabytes} MB to the last line on the screen, median of {options.rounds}:")
        for name in names:
            print(f"  {name:9} {medians[name]:7.2f} s   {medians[name] / medians[names[0]]:6.2f} times {names[0]}'s   "
                  f"peak memory {max(memory for _, memory in results[name]):.1f} MB")
        for name in ours if options.keys else []:
            times = answer_times(screen, name, folder, options.keys)
            print(f"a key during the flood, answered on the screen, {name}, {len(times)} times: median "
                  f"{statistics.median(times) * 1000:.0f} ms, 99th percentile {percentile(times, 0.99) * 1000:.0f} ms, "
                  f"longest {max(times) * 1000:.0f} ms")
    finally:
        shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    main()
