"""The outline of all sources of java.base: ours, Universal Ctags, and only reading the files."""

import os

import jdk_sources
import rounds
from jdk_sources import listed


def main():
    programs, work = rounds.folders()
    files = jdk_sources.unpacked(work, "java.base")
    size = sum(os.path.getsize(file) for file in files)
    print(f"{len(files)} sources of java.base, {size / 1e6:.1f} MB")
    everything = listed(work, "all.txt", files)
    outline = os.path.join(programs, "outline")
    medians = rounds.compare([
        rounds.Program("tarnwick outline", outline, everything),
        rounds.Program("tarnwick newer outline", outline, everything, "newer"),
        rounds.Program("universal-ctags", "ctags-universal", "--quiet", "--options=NONE", "--languages=Java", "--kinds-Java=cip",
                       "--sort=no", "-f", "-", "-L", everything),
        rounds.Program("cat", "xargs", "-a", everything, "cat"),
    ])
    rounds.ratio(medians, "tarnwick outline", "universal-ctags", "0.33")
    rounds.ratio(medians, "tarnwick outline", "cat", "4")
    rounds.ratio(medians, "tarnwick newer outline", "universal-ctags", "0.3")
    rounds.ratio(medians, "tarnwick newer outline", "cat", "2")
    print("memory, one process")
    for share in (4, 1):
        some = listed(work, f"one-in-{share}.txt", files[::share])
        print("  tarnwick outline: " + rounds.output_of(outline, some).strip())
        print("  tarnwick newer outline: " + rounds.output_of(outline, some, "newer").strip())


main()
