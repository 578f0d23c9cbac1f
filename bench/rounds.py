"""Runs programs next to one another and prints how long they take. Not a test: nothing here fails on a figure."""

import os
import statistics
import subprocess
import sys
import time


class Program:
    """A program to be timed: its name in the figures and its command line."""

    def __init__(self, name, *arguments):
        self.name = name
        self.arguments = [str(argument) for argument in arguments]

    def run(self):
        """Gives the seconds that one run takes."""
        start = time.perf_counter()
        with open(os.devnull, "wb") as nowhere:
            subprocess.run(self.arguments, stdin=subprocess.DEVNULL, stdout=nowhere, check=True)
        return time.perf_counter() - start


def compare(programs, rounds=9):
    """Runs all in turn, `rounds` times, after one round that warms the caches; prints and gives their medians."""
    for program in programs:
        program.run()
    times = {program.name: [] for program in programs}
    for _ in range(rounds):
        for program in programs:
            times[program.name].append(program.run())
    medians = {}
    print(f"wall time of {rounds} rounds, in turn, warm cache")
    for name, seconds in times.items():
        medians[name] = statistics.median(seconds)
        print(f"  {name:24} median {1000 * medians[name]:9.1f} ms   ({1000 * min(seconds):.1f} to {1000 * max(seconds):.1f})")
    return medians


def ratio(medians, name, peer, goal):
    """Prints what `name` takes for each second of `peer`, and what it should."""
    print(f"  {name} / {peer}: {medians[name] / medians[peer]:.2f}   (goal: at most {goal})")


def output_of(*arguments):
    """What a program writes."""
    done = subprocess.run([str(a) for a in arguments], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, check=True)
    return done.stdout.decode()


def folders():
    """The folder of the built programs and a folder to work in, as bench.sh gives them."""
    programs, work = sys.argv[1:3]
    os.makedirs(work, exist_ok=True)
    return programs, work
