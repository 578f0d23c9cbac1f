"""Are all sources of a project up to date? Ours for two sizes, and `make -q` over the same files and dependencies."""

import os

import rounds

CHAIN = 10  # a class and nine above it


def project(work, count):
    """A folder of `count` sources in chains of supertypes, each with a class file that is newer, and a Makefile."""
    folder = os.path.join(work, f"uptodate-{count}")
    if os.path.exists(os.path.join(folder, "Makefile")):
        return folder
    os.makedirs(folder, exist_ok=True)
    rules = []
    for number in range(count):
        place = number % CHAIN
        above = f" extends C{number - 1}" if place else ""
        for name, content, when in ((f"C{number}.java", f"public class C{number}{above} {{\n}}\n", 1_500_000_000),
                                    (f"C{number}.class", "", 1_500_000_100)):
            path = os.path.join(folder, name)
            with open(path, "w") as out:
                out.write(content)
            os.utime(path, (when, when))
        needed = " ".join(f"C{number - step}.java" for step in range(place + 1))
        rules.append(f"C{number}.class: {needed}\n")
    with open(os.path.join(folder, "Makefile"), "w") as out:
        out.write(f"all: {' '.join(f'C{number}.class' for number in range(count))}\n" + "".join(rules))
    return folder


def main():
    programs, work = rounds.folders()
    program = os.path.join(programs, "uptodate")
    for count in (2_000, 20_000):
        folder = project(work, count)
        print(f"{count} sources in chains of {CHAIN}, nothing stale")
        print("  tarnwick, the check alone: " + rounds.output_of(program, folder, count, 9).strip())
        print("  tarnwick, newer, the check alone: " + rounds.output_of(program, folder, count, 9, "newer").strip())
    print("  (goal for 2000: at most 30 ms, and ten times that for 20000)")
    rounds.compare([
        rounds.Program("tarnwick, 2000, with the analysis", program, project(work, 2_000), 2_000, 1),
        rounds.Program("tarnwick newer, 2000, likewise", program, project(work, 2_000), 2_000, 1, "newer"),
        rounds.Program("make -q, 2000", "make", "-rRq", "-C", project(work, 2_000)),
    ], rounds=7)


main()
