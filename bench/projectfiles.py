"""The window "Files" of a project above many sources: finding and listing them, and `find` over the same folders."""

import os

import rounds

SOURCES = 5_000
FOLDERS = 200


def project(work):
    """Sources in folders of two levels, and a project above them that has none yet."""
    top = os.path.join(work, f"projectfiles-{SOURCES}")
    file = os.path.join(top, "bench.twp")
    if not os.path.exists(file):
        for number in range(SOURCES):
            folder = number % FOLDERS
            path = os.path.join(top, f"folder{folder // 20}", f"part{folder}")
            os.makedirs(path, exist_ok=True)
            with open(os.path.join(path, f"C{number}.java"), "w", encoding="utf-8") as out:
                out.write(f"package folder{folder // 20}.part{folder};\nclass C{number} {{\n}}\n")
        with open(file, "w", encoding="utf-8") as out:
            out.write("NEWER_JAVA  ON\n")
    return top, file


def main():
    programs, work = rounds.folders()
    configuration = os.path.join(work, "projectfiles")
    os.makedirs(configuration, exist_ok=True)
    top, file = project(work)
    print(f"{SOURCES} sources in {FOLDERS} folders, each step within the program   (goal: under 1000 ms)")
    print(rounds.output_of(os.path.join(programs, "projectfiles"), configuration, file, 9), end="")
    rounds.compare([rounds.Program("find -name '*.java'", "find", top, "-name", "*.java")])


main()
